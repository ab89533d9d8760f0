#include "accounts/pagine.h"

#include "accounts/tracciati.h"
#include "tests/accounts/conti_di_prova.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using Tipo = Elemento_CV::Tipo;

struct Pagine_CV_Test : testing::Test, Conti_Di_Prova {
  Documento_CV documento = DocumentoCV(programma, {});
  Foglio_CV foglio{5, 2, 297};

  Pagine_CV_Test() {
    documento.conto = {"41", "14/03/2025", "Adriatica", "12 del 13/03/2025", "15", "8"};
    documento.fornitore = *CercaFornitoreCV(programma, "Adriatica");
    Righe({Riga_CV("A", "Granchio", "10", "20,00", "22"), Riga_CV("A", "Orata", "100", "5,00", "10"),
           Riga_CV("A", "Orata", "10", "-5,00", "10")});
  }

  void Righe(const std::vector<LedgerRow>& righe, Vista spese = "15", Vista provvigione = "8") {
    std::vector<double> iva;
    documento.importi = CalcolaImporti(righe, documento.regole, spese, provvigione, iva, ',');
  }
  void Tante(int numero) {
    std::vector<LedgerRow> righe;
    for (int i = 1; i <= numero; ++i)
      righe.push_back(Riga_CV("A", "Specie " + Pad_Sinistra(std::to_string(i), 2, '0'), "1", "2", "10"));
    Righe(righe);
  }
  std::vector<Pagina_CV> Pagine(Tracciato_CV tracciato, bool contorni = false) const {
    return PagineCV(documento, {tracciato, contorni}, foglio, ',');
  }

  static std::vector<Testo> Testi(const Pagina_CV& pagina) {
    std::vector<Testo> testi;
    for (const Elemento_CV& cosa : pagina)
      if (!cosa.testo.empty()) testi.push_back(cosa.testo);
    return testi;
  }
  static const Elemento_CV& Con(const Pagina_CV& pagina, Vista testo) {
    const auto dove = std::find_if(pagina.begin(), pagina.end(),
                                   [&](const Elemento_CV& cosa) { return cosa.testo == testo; });
    if (dove == pagina.end()) throw std::runtime_error("non c'e': " + Testo(testo));
    return *dove;
  }
  static std::pair<float, float> Posto(const Pagina_CV& pagina, Vista testo) {
    const Elemento_CV& cosa = Con(pagina, testo);
    return {cosa.x, cosa.y};
  }
  static std::size_t Quanti(const Pagina_CV& pagina, Tipo tipo) {
    return static_cast<std::size_t>(std::count_if(
        pagina.begin(), pagina.end(), [&](const Elemento_CV& cosa) { return cosa.tipo == tipo; }));
  }
};

constexpr std::pair<float, float> P(float x, float y) { return {x, y}; }

TEST(Tracciato, LaSceltaDelleImpostazioni) {
  struct Caso {
    int flag;
    Tracciato_CV tracciato;
    bool contorni;
  };
  for (const auto& [flag, tracciato, contorni] :
       {Caso{0, Tracciato_CV::Semplice, false}, Caso{1, Tracciato_CV::Tipo1, true},
        Caso{2, Tracciato_CV::Tipo2, false}, Caso{3, Tracciato_CV::Busta, true},
        Caso{4, Tracciato_CV::Busta, false}, Caso{5, Tracciato_CV::Semplice, false},
        Caso{6, Tracciato_CV::Colli, true}, Caso{7, Tracciato_CV::Semplice, false},
        Caso{-1, Tracciato_CV::Semplice, false}}) {
    EXPECT_EQ(TracciatoCV(flag).tracciato, tracciato) << flag;
    EXPECT_EQ(TracciatoCV(flag).ConContorni, contorni) << flag;
  }
}

TEST(Tracciato, LeColonne) {
  const auto larghezze = [](Tracciato_CV tracciato) {
    std::vector<int> esito;
    for (const Colonna_CV& colonna : FormaCV(tracciato).colonne) esito.push_back(colonna.larghezza);
    return esito;
  };
  EXPECT_THAT(larghezze(Tracciato_CV::Busta), ElementsAre(115, 25, 25, 25, 10));
  EXPECT_THAT(larghezze(Tracciato_CV::Semplice), ElementsAre(10, 95, 25, 25, 25, 10));
  EXPECT_THAT(larghezze(Tracciato_CV::Tipo1), ElementsAre(10, 95, 25, 25, 25, 10));
  EXPECT_THAT(larghezze(Tracciato_CV::Tipo2), ElementsAre(85, 25, 25, 25, 10));
  EXPECT_THAT(larghezze(Tracciato_CV::Colli), ElementsAre(10, 15, 90, 25, 25, 25, 10));
  EXPECT_EQ(FormaCV(Tracciato_CV::Busta).Larghezza(), 200);
  EXPECT_EQ(FormaCV(Tracciato_CV::Colli).Larghezza(), 200);
}

TEST(Tracciato, QuanteRighePerPagina) {
  struct Caso {
    Tracciato_CV tracciato;
    Foglio_CV foglio;
    int righe;
  };
  for (const auto& [tracciato, foglio, righe] :
       {Caso{Tracciato_CV::Semplice, {0, 0, 297}, 29}, Caso{Tracciato_CV::Tipo2, {0, 0, 297}, 18},
        Caso{Tracciato_CV::Busta, {0, 0, 297}, 26}, Caso{Tracciato_CV::Colli, {0, 0, 297}, 26},
        Caso{Tracciato_CV::Tipo1, {0, 0, 297}, 26}, Caso{Tracciato_CV::Busta, {0, 6, 297}, 25},
        Caso{Tracciato_CV::Busta, {0, 0, 286.5F}, 24}, Caso{Tracciato_CV::Busta, {0, 200, 297}, 1}})
    EXPECT_EQ(RighePerPagina(tracciato, foglio), righe);
}

// ---- the layout of the envelope, whose window the address must meet

TEST_F(Pagine_CV_Test, BustaTestata) {
  const Pagina_CV pagina = Pagine(Tracciato_CV::Busta).at(0);
  EXPECT_EQ(Posto(pagina, "Mare Blu s.n.c."), P(5, 2));
  EXPECT_EQ(Con(pagina, "Mare Blu s.n.c.").punti, 12);
  EXPECT_TRUE(Con(pagina, "Mare Blu s.n.c.").grassetto);
  EXPECT_EQ(Posto(pagina, "di Verdi Anna & C."), P(5, 6));
  EXPECT_EQ(Con(pagina, "di Verdi Anna & C.").punti, 10);
  EXPECT_EQ(Posto(pagina, "Posteggio 7"), P(5, 10));
  EXPECT_EQ(Posto(pagina, "30100 Venezia - VE"), P(5, 18));
  EXPECT_EQ(Con(pagina, "30100 Venezia - VE").punti, 9);
  EXPECT_EQ(Posto(pagina, "Venezia, 14/03/2025"), P(10, 32));
  EXPECT_EQ(Posto(pagina, "Spett.le Ditta"), P(127, 56));
  EXPECT_EQ(Posto(pagina, "Adriatica"), P(127, 61));
  EXPECT_TRUE(Con(pagina, "Adriatica").grassetto);
  EXPECT_EQ(Posto(pagina, "Pesca s.r.l."), P(127, 66));
  EXPECT_EQ(Posto(pagina, "via Riva 4"), P(127, 71));
  EXPECT_EQ(Posto(pagina, "30015 Chioggia"), P(127, 76));
  EXPECT_EQ(Posto(pagina, "CONTO VENDITA N. 41"), P(10, 47));
  EXPECT_EQ(Posto(pagina, "pag. 1 di 1"), P(59, 47));
  EXPECT_EQ(Posto(pagina, "Rif Doc. 12 del 13/03/2025"), P(10, 52));
}

TEST_F(Pagine_CV_Test, SenzaSecondoNomeLIndirizzoSale) {
  for (const Testo& secondo : {Testo(), Testo("-")}) {
    documento.fornitore.RagSoc2 = secondo;
    const Pagina_CV pagina = Pagine(Tracciato_CV::Busta).at(0);
    EXPECT_EQ(Posto(pagina, "via Riva 4"), P(127, 66));
    EXPECT_EQ(Posto(pagina, "30015 Chioggia"), P(127, 71));
  }
}

TEST_F(Pagine_CV_Test, BustaRigheETotali) {
  const Pagina_CV pagina = Pagine(Tracciato_CV::Busta).at(0);
  EXPECT_EQ(Posto(pagina, "Descrizione"), P(6, 87));
  EXPECT_EQ(Posto(pagina, "Granchio (SBG)"), P(6, 92));
  const Elemento_CV& importo = Con(pagina, "200,00");
  EXPECT_EQ(importo.tipo, Tipo::Destra);
  EXPECT_EQ(importo.x, 170);
  EXPECT_EQ(importo.larghezza, 24);
  EXPECT_EQ(Posto(pagina, "22,"), P(195, 92));
  EXPECT_EQ(Posto(pagina, "100,000"), P(120, 97));
  EXPECT_EQ(Posto(pagina, "Note"), P(6, 238));
  // y1 is 232: label k at y1 + 4 + 5k
  EXPECT_EQ(Posto(pagina, "Imponibile Totale"), P(145, 236));
  EXPECT_EQ(Posto(pagina, "Commissioni (8,00%)"), P(145, 241));
  EXPECT_EQ(Posto(pagina, "Imponibile IVA 22%"), P(145, 246));
  EXPECT_EQ(Posto(pagina, "Importo IVA 22%"), P(145, 251));
  EXPECT_EQ(Posto(pagina, "Imponibile IVA 10%"), P(145, 256));
  EXPECT_EQ(Posto(pagina, "Importo IVA 10%"), P(145, 261));
  EXPECT_EQ(Posto(pagina, "Totale "), P(145, 276));
  EXPECT_EQ(Posto(pagina, "Spese anticipate"), P(145, 281));
  EXPECT_EQ(Posto(pagina, "Totale Euro"), P(145, 286));
  const Elemento_CV& totale = Con(pagina, "664,88");
  EXPECT_EQ(totale.x, 170);
  EXPECT_EQ(totale.y, 286);
  EXPECT_EQ(totale.larghezza, 35);
  EXPECT_TRUE(totale.grassetto);
  EXPECT_THAT(Testi(pagina), Contains("679,88"));
  EXPECT_THAT(Testi(pagina), Not(Contains(testing::HasSubstr("IVA 4%"))));
}

// The first rate prints in this layout also with nothing at it; the others don't.
TEST_F(Pagine_CV_Test, LaPrimaAliquotaSoloNellaBustaAncheAZero) {
  Righe({Riga_CV("A", "Alga", "10", "1", "4")}, "0", "0");
  const auto busta = Testi(Pagine(Tracciato_CV::Busta).at(0));
  EXPECT_THAT(busta, Contains("Imponibile IVA 10%"));
  EXPECT_THAT(busta, Contains("Imponibile IVA 4%"));
  for (const Tracciato_CV tracciato : {Tracciato_CV::Semplice, Tracciato_CV::Tipo1, Tracciato_CV::Colli})
    EXPECT_THAT(Testi(Pagine(tracciato).at(0)), Not(Contains("Imponibile IVA 10%")));
}

TEST_F(Pagine_CV_Test, NessunaAliquotaConProvvigione100OSoleNote) {
  for (const bool note : {false, true}) {
    if (note)
      Righe({Riga_CV("A", "Orata", "10", "-5", "22")});
    else
      Righe({Riga_CV("A", "Orata", "10", "5", "22")}, "0", "100");
    const auto testi = Testi(Pagine(Tracciato_CV::Colli).at(0));
    EXPECT_THAT(testi, Not(Contains(testing::HasSubstr("IVA "))));
    EXPECT_THAT(testi, Contains(note ? "-71,12" : "0,00"));
  }
}

TEST_F(Pagine_CV_Test, CorniciOLinee) {
  const Pagina_CV con = Pagine(Tracciato_CV::Busta, true).at(0);
  const Pagina_CV senza = Pagine(Tracciato_CV::Busta, false).at(0);
  EXPECT_EQ(Quanti(con, Tipo::Riga_Verticale), 5U);
  EXPECT_EQ(Quanti(con, Tipo::Riquadro), 4U);  // number, page, table, notes
  EXPECT_EQ(Quanti(con, Tipo::Riga_Orizzontale), 1U);
  EXPECT_EQ(Quanti(senza, Tipo::Riga_Verticale), 0U);
  // one line between crab and bream, none between the two breams
  ASSERT_EQ(Quanti(senza, Tipo::Riga_Orizzontale), 1U);
  const auto linea = std::find_if(senza.begin(), senza.end(), [](const Elemento_CV& cosa) {
    return cosa.tipo == Tipo::Riga_Orizzontale;
  });
  EXPECT_EQ(std::pair(linea->x, linea->y), P(5, 96));
  EXPECT_EQ(linea->larghezza, 200);
}

TEST_F(Pagine_CV_Test, UnaPaginaPienaEUnaRigaInPiu) {
  for (const auto& [tracciato, piena] : {std::pair{Tracciato_CV::Semplice, 29},
                                         {Tracciato_CV::Tipo1, 26},
                                         {Tracciato_CV::Tipo2, 18},
                                         {Tracciato_CV::Busta, 26},
                                         {Tracciato_CV::Colli, 26}}) {
    Tante(piena);
    const auto una = Pagine(tracciato);
    ASSERT_EQ(una.size(), 1U);
    EXPECT_THAT(Testi(una[0]), Not(Contains("Continua ...")));
    Tante(piena + 1);
    const auto due = Pagine(tracciato);
    ASSERT_EQ(due.size(), 2U);
    EXPECT_EQ(Posto(due[0], "Continua ...").second, 297 - 55 + 6);
    EXPECT_THAT(Testi(due[1]), Not(Contains("Continua ...")));
    // the totals stand on the last page alone
    const Testo euro = tracciato == Tracciato_CV::Tipo2 ? "Netto Euro" : "Totale Euro";
    EXPECT_THAT(Testi(due[0]), Not(Contains(euro)));
    EXPECT_THAT(Testi(due[1]), Contains(euro));
    EXPECT_THAT(Testi(due[1]), Contains(testing::HasSubstr("2 di 2")));
    EXPECT_THAT(Testi(due[1]), Contains(testing::HasSubstr("Specie " + std::to_string(piena + 1))));
  }
}

// A layout with a fixed number of lines fits also where the margin is wide or the printer doesn't reach the
// end of the sheet: the last line must not lie under the totals or the notes.
TEST_F(Pagine_CV_Test, LeRigheFisseNonVannoNelPiede) {
  documento.NotaDDLL = true;
  struct Caso {
    Tracciato_CV tracciato;
    int righe;
    Vista sotto;  // what comes first below the table
  };
  for (const auto& [tracciato, righe, sotto] :
       {Caso{Tracciato_CV::Semplice, 29, "Imponibile Totale"},
        Caso{Tracciato_CV::Tipo2, 18, "Cessione Intercomunitaria non imponibile"}})
    for (const float altezza : {297.0F, 287.0F})
      for (const int alto : {0, 2, 6, 15}) {
        SCOPED_TRACE(Testo(sotto) + " " + std::to_string(altezza) + " " + std::to_string(alto));
        foglio = {5, alto, altezza};
        Tante(righe);
        const Pagina_CV pagina = Pagine(tracciato).at(0);
        float prima = static_cast<float>(alto) + 85;
        for (int riga = 1; riga <= righe; ++riga) {
          const Testo specie = "Specie " + Pad_Sinistra(std::to_string(riga), 2, '0') + " (SBG)";
          const float y = Posto(pagina, specie).second;
          EXPECT_GE(y, prima + 4);
          prima = y;
        }
        EXPECT_LE(prima + 4, Posto(pagina, sotto).second);
      }
  foglio = {5, 2, 297};
  Tante(29);
  EXPECT_EQ(Posto(Pagine(Tracciato_CV::Semplice).at(0), "Specie 29 (SBG)").second, 2 + 85 + 29 * 5);
}

// A supplier with rows of price 0 alone: a page with his totals of 0, for the number that was given to it.
TEST_F(Pagine_CV_Test, UnContoSenzaRigheHaUnaPagina) {
  Righe({});
  const auto pagine = Pagine(Tracciato_CV::Busta);
  ASSERT_EQ(pagine.size(), 1U);
  EXPECT_THAT(Testi(pagine[0]), Contains("pag. 1 di 1"));
  EXPECT_THAT(Testi(pagine[0]), Contains("-15,00"));
}

TEST_F(Pagine_CV_Test, LeScritteARichiesta) {
  const auto prima = Testi(Pagine(Tracciato_CV::Busta).at(0));
  EXPECT_THAT(prima, Not(Contains(testing::StartsWith("Kg. Totali"))));
  documento.KgTotali = documento.NotaDDLL = true;
  documento.piede = "Merce resa franco mercato";
  const Pagina_CV pagina = Pagine(Tracciato_CV::Busta).at(0);
  EXPECT_EQ(Posto(pagina, "Kg. Totali = 120,00"), P(15, 276));
  EXPECT_EQ(Posto(pagina, "Cessione Intercomunitaria non imponibile"), P(15, 246));
  EXPECT_EQ(Posto(pagina, "Articolo EX 41 comma 1 DDLL 331/93"), P(15, 261));
  EXPECT_EQ(Posto(pagina, "Merce resa franco mercato"), P(5, 292));
  EXPECT_EQ(Con(pagina, "Merce resa franco mercato").punti, 8);
}

TEST_F(Pagine_CV_Test, SpeseInPercentuale) {
  documento.regole.FlagSarvena = true;
  Righe({Riga_CV("A", "Orata", "100", "10", "10")}, "2", "0");
  const Pagina_CV busta = Pagine(Tracciato_CV::Busta).at(0);
  EXPECT_EQ(Posto(busta, "(*) rimborso spese accessorie (Rif. Ns. Ft. Separata)"), P(7, 277));
  EXPECT_THAT(Testi(busta), Contains("Spese Acc. (*)"));
  documento.KgTotali = true;  // the two lines must not be printed one over the other
  EXPECT_EQ(Posto(Pagine(Tracciato_CV::Busta).at(0), "Kg. Totali = 100,00"), P(15, 271));
  EXPECT_EQ(Con(busta, "20,00").y, 281);
  // with the VAT in it, as this layout completes it
  CompletaPerTipo1(documento.importi, documento.regole);
  const Pagina_CV tipo1 = Pagine(Tracciato_CV::Tipo1).at(0);
  EXPECT_EQ(Posto(tipo1, "Totale Ivato").second, 276);
  EXPECT_EQ(Con(tipo1, "1.100,00").y, 276);
  EXPECT_EQ(Con(tipo1, "1.080,00").y, 286);
}

TEST_F(Pagine_CV_Test, NelTipo1LeSpeseSoloSeCiSono) {
  Righe({Riga_CV("A", "Orata", "1", "1")}, "0", "0");
  EXPECT_THAT(Testi(Pagine(Tracciato_CV::Tipo1).at(0)), Not(Contains("Spese anticipate")));
  EXPECT_THAT(Testi(Pagine(Tracciato_CV::Busta).at(0)), Contains("Spese anticipate"));
  Righe({Riga_CV("A", "Orata", "1", "1")}, "3", "0");
  EXPECT_THAT(Testi(Pagine(Tracciato_CV::Tipo1).at(0)), Contains("Spese anticipate"));
}

TEST_F(Pagine_CV_Test, SempliceLeAliquoteNelSuoOrdine) {
  Righe({Riga_CV("A", "Orata", "1", "100", "10"), Riga_CV("A", "Vongola", "1", "200", "22"),
         Riga_CV("A", "Alga", "1", "300", "4")});
  const Pagina_CV pagina = Pagine(Tracciato_CV::Semplice).at(0);
  EXPECT_LT(Con(pagina, "Imponibile IVA 22%").y, Con(pagina, "Imponibile IVA 4%").y);
  EXPECT_LT(Con(pagina, "Imponibile IVA 4%").y, Con(pagina, "Imponibile IVA 10%").y);
  EXPECT_EQ(Posto(pagina, "Spett.le"), P(115, 56));
  EXPECT_THAT(Testi(pagina), testing::IsSupersetOf<Testo>({"Num. Conto Vendita", "Data", "Vs. Bolla n.",
                                                           "pagina 1 di 1", "001 ", "Orata (SBG)"}));
}

TEST_F(Pagine_CV_Test, Tipo1Testata) {
  const auto testi = Testi(Pagine(Tracciato_CV::Tipo1).at(0));
  EXPECT_THAT(testi,
              testing::IsSupersetOf<Testo>({"Num. Conto Vendita", "Data", "Vs. BOlla n.", "Spett.le Ditta"}));
}

TEST_F(Pagine_CV_Test, Tipo2) {
  documento.citta = "Chioggia";
  const Pagina_CV pagina = Pagine(Tracciato_CV::Tipo2).at(0);
  EXPECT_EQ(Con(pagina, "Conto Vendita n. 41").punti, 21);
  EXPECT_EQ(Posto(pagina, "Denom. prodotto"), P(26, 87));
  EXPECT_THAT(Testi(pagina),
              testing::IsSupersetOf<Testo>(
                  {"Venezia, 14/03/2025", "Spett.le Ditta ", "p.IVA 11111111111", "Kg.", "prezzo", "importo",
                   "al.", "Importo parziale di questa pagina", "Importo Totale Euro", "Commissioni (8,00%)",
                   "Imp.le e Iva 22%", "Imp.le e Iva 10%", "Totale Conto Vendita", "Spese Anticipate",
                   "Netto Euro", "679,88", "664,88"}));
  for (const Elemento_CV& cosa : pagina) EXPECT_EQ(cosa.carattere, "Arial");
}

TEST_F(Pagine_CV_Test, Tipo2SommaOgniPagina) {
  Tante(20);
  const auto pagine = Pagine(Tracciato_CV::Tipo2);
  EXPECT_EQ(Posto(pagine[0], "Importo parziale di questa pagina"), P(85, 236));
  EXPECT_THAT(Testi(pagine[0]), Contains("36,00"));
  EXPECT_EQ(Con(pagine[1], "40,00").y, 241);
  EXPECT_EQ(Con(pagine[1], "4,00").y, 236);
}

TEST_F(Pagine_CV_Test, Colli) {
  Righe({Riga_CV("A", "Orata", "1", "1", "10", "12"), Riga_CV("A", "Sarda", "1", "1", "10", ""),
         Riga_CV("A", "Triglia", "1", "1", "10", "3")});
  const Pagina_CV pagina = Pagine(Tracciato_CV::Colli).at(0);
  EXPECT_EQ(Con(pagina, "Colli").x, 16);
  EXPECT_EQ(Posto(pagina, "12"), P(15, 92));
  EXPECT_EQ(Con(pagina, "Totale n. Colli = 15").y, 276);
  EXPECT_EQ(Con(pagina, "Totale ").y, 281);
  EXPECT_EQ(Quanti(pagina, Tipo::Riga_Verticale), 7U);
}

// ---- the letterhead

TEST_F(Pagine_CV_Test, IntestazionePrestampata) {
  documento.Ragione[0] = "Ditta DOLVENA";
  const auto testi = [&](Tracciato_CV tracciato) {
    std::vector<Testo> esito;
    for (const Riga_Intestazione& riga : IntestazioneCV(documento, tracciato)) esito.push_back(riga.testo);
    return esito;
  };
  for (const Tracciato_CV tracciato : {Tracciato_CV::Tipo1, Tracciato_CV::Busta, Tracciato_CV::Colli})
    EXPECT_THAT(testi(tracciato), ElementsAre("Ditta DOLVENA", "Commissionari", "Druprim", "Tel. (041) 12345",
                                              "Partita I.V.A. 01234567890"));
  EXPECT_THAT(testi(Tracciato_CV::Semplice), Contains("di Verdi Anna & C."));
  EXPECT_THAT(testi(Tracciato_CV::Tipo2), Contains("di Verdi Anna & C."));
  documento.diciture.telefono = "Telefono: ";
  EXPECT_THAT(testi(Tracciato_CV::Busta), Contains("Telefono: (041) 12345"));
}

// ---- drawing

TEST_F(Pagine_CV_Test, UnDocumentoPerCopia) {
  Tante(30);
  std::vector<Testo> titoli;
  for (int copia = 0; copia < 2; ++copia)
    StampaConto(programma, documento, {Tracciato_CV::Busta, true},
                [&](const Testo& t) { titoli.push_back(t); });
  EXPECT_EQ(registro.pagine, 4);
  EXPECT_EQ(std::count(registro.righe.begin(), registro.righe.end(), "fine"), 2);
  EXPECT_THAT(registro.righe, Contains("documento \"20250314 Conto Vendita 41 0001\" Registro").Times(2));
  EXPECT_THAT(titoli, ElementsAre("0001 Pagina 1 di 2 in corso...", "0001 Pagina 2 di 2 in corso...",
                                  "0001 Pagina 1 di 2 in corso...", "0001 Pagina 2 di 2 in corso..."));
}

// A name of any length leaves the weight, the address and the edge of the sheet free.
TEST_F(Pagine_CV_Test, ITestiLunghiRestanoNelLoroPosto) {
  const Testo lunga = "Vongola verace allevata della laguna veneta sud di calibro grande extra";
  Righe({Riga_CV("A", lunga, "1234", "2", "10")});
  documento.conto.DDT_CV = "123 del 14/03/2025 e 4567/A del 13/03/2025";
  documento.fornitore.RagSoc1 = "Cooperativa fra i pescatori della laguna di Marano e delle valli";
  for (const auto& [tracciato, destinatario, colonna] : {std::tuple{Tracciato_CV::Semplice, 110, 105},
                                                         {Tracciato_CV::Tipo1, 122, 105},
                                                         {Tracciato_CV::Tipo2, 122, 105},
                                                         {Tracciato_CV::Busta, 122, 115},
                                                         {Tracciato_CV::Colli, 122, 115}}) {
    registro = {};
    StampaConto(programma, documento, {tracciato, true}, [](const Testo&) {});
    const auto fine = [&](const Testo& testo, float inizio, bool grassetto) {
      const auto riga = std::find_if(registro.righe.begin(), registro.righe.end(),
                                     [&](const Testo& r) { return r.ends_with(": " + testo); });
      if (riga == registro.righe.end()) throw std::runtime_error("manca: " + testo);
      printer.FontName = "Arial";
      printer.FontBold = grassetto;
      printer.FontSize = std::stof(riga->substr(riga->find(" Arial ") + 7));
      return inizio + printer.TextWidth(testo);
    };
    const int sinistra = FormaCV(tracciato).scarto + FormaCV(tracciato).Sinistra_Di(Campo_CV::Descrizione);
    EXPECT_LE(fine(lunga + " (SBG)", static_cast<float>(sinistra + 1), false), static_cast<float>(colonna));
    EXPECT_LE(fine(documento.fornitore.RagSoc1, static_cast<float>(destinatario), true), 200);
    if (tracciato == Tracciato_CV::Semplice || tracciato == Tracciato_CV::Tipo1) {
      EXPECT_LE(fine(documento.conto.DDT_CV, 43, true), static_cast<float>(destinatario));
    }
  }
  // what not even the smallest letters hold is cut
  Righe({Riga_CV("A", Testo(300, 'W'), "1234", "2", "10")});
  registro = {};
  StampaConto(programma, documento, {Tracciato_CV::Busta, true}, [](const Testo&) {});
  EXPECT_THAT(registro.righe, Not(Contains(testing::HasSubstr(Testo(200, 'W')))));
  EXPECT_THAT(registro.righe, Contains(testing::HasSubstr(" Arial 5: " + Testo(50, 'W'))));
}

TEST_F(Pagine_CV_Test, SenzaStampanteNonSuccedeNiente) {
  macchina.stampante.reset();
  StampaConto(programma, documento, {Tracciato_CV::Busta, true}, [](const Testo&) {});
  EXPECT_THAT(registro.righe, IsEmpty());
}

}  // namespace

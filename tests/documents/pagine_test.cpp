#include "documents/pagine.h"

#include <gmock/gmock.h>

#include "tests/documents/documenti_di_prova.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct Pagine_Test : testing::Test, Documenti_Di_Prova {
  Pagine_Test() {
    auto& intesta = programma.preferenze.DS_intesta;
    intesta[0] = "Mare Blu s.n.c.";
    intesta[1] = "Posteggio 07";
  }

  // A document of so many different items, of lots L1, L2 ...
  Documento_Cliente Documento(std::size_t voci, TipoDoc tipo = TipoDoc::DDT, bool prezzi = false,
                              Vista numero = "007 (ds)") const {
    std::vector<LedgerRow> righe;
    for (std::size_t i = 1; i <= voci; ++i) {
      righe.push_back(Riga(static_cast<int>(i), "Laguna Pesca", "5,5"));
      righe.back()[CampoRiga::Lotti] = "L" + Pad_Sinistra(std::to_string(i), 3, '0');
    }
    return *ComponiDocumento(programma, "Laguna Pesca", numero, tipo, prezzi, std::move(righe));
  }
  Pagine_Documento Pagine(const Documento_Cliente& documento) const {
    return PagineDocumento(documento, FoglioDocumento(programma.preferenze), ',');
  }
  std::vector<Testo> Stampa(const Documento_Cliente& documento) {
    registro.righe.clear();
    registro.pagine = 0;
    EXPECT_TRUE(StampaPagine(programma, documento));
    return registro.righe;
  }
};

// What stands at a height of the page, from left to right as it was put down.
std::vector<Testo> A_Quota(const std::vector<Scritta_Pagina>& scritte, float y) {
  std::vector<Testo> testi;
  for (const Scritta_Pagina& scritta : scritte)
    if (scritta.y == y) testi.push_back(scritta.testo);
  return testi;
}

// ---- how items fall on pages

struct Caso_Pagine {
  int altezza, altezza_dest;
  TipoDoc tipo;
  Vista tracciato;  // "allergeni", "semplice", "vecchio"
  std::size_t voci;
  std::size_t pagine;
  std::size_t ultima;  // items on the last page
};

TEST_F(Pagine_Test, LeVociSulleLoroPagine) {
  const Caso_Pagine casi[] = {
      {172, 0, TipoDoc::DDT, "allergeni", 1, 1, 1},        {172, 0, TipoDoc::DDT, "allergeni", 7, 1, 7},
      {172, 0, TipoDoc::DDT, "allergeni", 8, 2, 1},        {172, 0, TipoDoc::DDT, "semplice", 9, 1, 9},
      {172, 0, TipoDoc::DDT, "semplice", 10, 2, 1},        {172, 0, TipoDoc::Sanitario, "allergeni", 6, 1, 6},
      {172, 0, TipoDoc::Sanitario, "allergeni", 7, 2, 1},  {172, 0, TipoDoc::Sanitario, "semplice", 8, 1, 8},
      {172, 0, TipoDoc::Sanitario, "semplice", 17, 3, 1},  {172, 0, TipoDoc::DDT, "vecchio", 9, 1, 9},
      {172, 0, TipoDoc::DDT, "vecchio", 10, 2, 1},         {172, 12, TipoDoc::DDT, "semplice", 8, 1, 8},
      {172, 12, TipoDoc::DDT, "semplice", 9, 2, 1},        {293, 0, TipoDoc::DDT, "allergeni", 14, 1, 14},
      {293, 0, TipoDoc::Sanitario, "semplice", 18, 1, 18}, {293, 0, TipoDoc::Sanitario, "semplice", 19, 2, 1},
      {40, 0, TipoDoc::DDT, "semplice", 3, 3, 1}};  // a page too low for an item holds one
  for (const Caso_Pagine& caso : casi) {
    programma.preferenze.DocSani_AltezzaPagina = caso.altezza;
    programma.preferenze.DocSani_AltezzaDest = caso.altezza_dest;
    programma.preferenze.FlagComponiDDTNuovo = caso.tracciato != "vecchio";
    programma.preferenze.FlagAllergeni = caso.tracciato == "allergeni";
    const Pagine_Documento pagine = Pagine(Documento(caso.voci, caso.tipo));
    ASSERT_EQ(pagine.size(), caso.pagine) << caso.tracciato << " " << caso.voci;
    const std::size_t righe = caso.tracciato == "allergeni" ? 4 : 3;
    // four texts of the head, two empty lines behind the items; the first line of an item has three texts
    EXPECT_EQ((pagine.back().tabella.size() - 6) / (righe + 2), caso.ultima) << caso.tracciato;
    EXPECT_EQ(pagine.back().testata.front().testo,
              "pagina " + std::to_string(caso.pagine) + " di " + std::to_string(caso.pagine));
  }
}

TEST_F(Pagine_Test, SenzaVociNessunaPagina) { EXPECT_THAT(Pagine(Documento(0)), IsEmpty()); }

TEST_F(Pagine_Test, LeVociSeguonoDiPaginaInPagina) {
  const Pagine_Documento pagine = Pagine(Documento(11));
  ASSERT_EQ(pagine.size(), 2U);
  EXPECT_THAT(A_Quota(pagine[0].tabella, 69), Contains("orata - L001 (Sparus aurata)"));
  EXPECT_THAT(A_Quota(pagine[0].tabella, 69 + 8 * 12), Contains("orata - L009 (Sparus aurata)"));
  EXPECT_THAT(A_Quota(pagine[1].tabella, 69), Contains("orata - L010 (Sparus aurata)"));
  EXPECT_THAT(A_Quota(pagine[1].tabella, 81), Contains("orata - L011 (Sparus aurata)"));
  EXPECT_EQ(pagine[0].testata[0].testo, "pagina 1 di 2");
  EXPECT_EQ(pagine[1].testata[0].testo, "pagina 2 di 2");
  EXPECT_EQ(std::vector(pagine[0].testata.begin() + 1, pagine[0].testata.end()),
            std::vector(pagine[1].testata.begin() + 1, pagine[1].testata.end()))
      << "every page has the whole heading";
}

// The pen passes two lines more behind the last item.
TEST_F(Pagine_Test, DueRigheVuoteSottoLUltimaVoce) {
  const Pagine_Documento pagine = Pagine(Documento(1));
  EXPECT_THAT(A_Quota(pagine[0].tabella, 81), ElementsAre(""));
  EXPECT_THAT(A_Quota(pagine[0].tabella, 85), ElementsAre(""));
}

// ---- positions

TEST_F(Pagine_Test, LeMisureSpostanoLaPagina) {
  Preferenze& preferenze = programma.preferenze;
  preferenze.DocSani_LarghezzaPagina = 210;
  preferenze.DocSani_dadestra = 5;
  preferenze.DocSani_Offset_Logo = 40;
  preferenze.DocSani_Aggiustamento = 10;
  preferenze.DocSani_AltezzaDest = 7;
  const Pagine_Documento pagine = Pagine(Documento(1));
  ASSERT_EQ(pagine.size(), 1U);
  const auto dove = [&](Vista testo) {
    for (const auto* scritte : {&pagine[0].testata, &pagine[0].tabella})
      for (const Scritta_Pagina& scritta : *scritte)
        if (scritta.testo == testo) return std::vector<float>{scritta.x, scritta.y};
    return std::vector<float>();
  };
  EXPECT_THAT(dove("pagina 1 di 1"), ElementsAre(5 + 210 - 1, 0));
  EXPECT_THAT(dove("Mare Blu s.n.c."), ElementsAre(5 + 40 - 10 + (210 - 40) / 2.0F, -1));
  EXPECT_THAT(dove("DOCUMENTO di TRASPORTO - CEE IT 940"), ElementsAre(120, 27));
  EXPECT_THAT(dove("Destinatario:"), ElementsAre(15, 7 + 9 + 35)) << "lowered with what follows";
  EXPECT_THAT(dove("Destinazione merce:"), ElementsAre(5 + 20 + 105, 51));
  EXPECT_THAT(dove("COLLI"), ElementsAre(7, 7 + 9 + 55));
  EXPECT_THAT(dove("PESO Kg"), ElementsAre(214, 71));
  EXPECT_THAT(dove("orata - L001 (Sparus aurata)"), ElementsAre(19, 76));
  EXPECT_THAT(dove("2"), ElementsAre(15, 76));
  EXPECT_THAT(dove("10,00"), ElementsAre(214, 76));
}

TEST_F(Pagine_Test, NumeriDiUnaVoce) {
  struct Caso {
    double colli, peso, prezzo;
    bool prezzi;
    Vista testo_colli;
    Testo testo_peso;
  };
  const Caso casi[] = {{2, 10, 5.5, false, "2", "10,00"},
                       {2, 10, 5.5, true, "2", "10,00 € 5,50"_t},
                       {0, 1234.5, 0.5, true, "0", "1.234,50 € 0,50"_t},
                       {2.5, 0.005, 1234.5, true, "2,50", "0,01 € 1.234,50"_t},
                       {1200, 12.345, 3, false, "1.200", "12,35"}};
  for (const Caso& caso : casi)
    for (const char separatore : {',', '.'}) {
      Documento_Cliente documento = Documento(1, TipoDoc::DDT, caso.prezzi);
      documento.righe[0].Colli = caso.colli;
      documento.righe[0].Peso = caso.peso;
      documento.righe[0].Prezzo = caso.prezzo;
      const auto pagine = PagineDocumento(documento, FoglioDocumento(programma.preferenze), separatore);
      EXPECT_THAT(A_Quota(pagine[0].tabella, 69),
                  ElementsAre(caso.testo_colli, "orata - L001 (Sparus aurata)", caso.testo_peso))
          << separatore;
    }
}

// ---- the foot of a sanitary document

TEST_F(Pagine_Test, IlPiedeStaSullUltimaPagina) {
  EXPECT_FALSE(Pagine(Documento(1))[0].piede) << "a DDT has none";
  const Pagine_Documento pagine = Pagine(Documento(9, TipoDoc::Sanitario));
  ASSERT_EQ(pagine.size(), 2U);
  EXPECT_FALSE(pagine[0].piede);
  EXPECT_EQ(pagine[1].piede, 172);
  programma.preferenze.FlagPiedePagina = false;
  EXPECT_EQ(Pagine(Documento(1, TipoDoc::Sanitario))[0].piede, 172) << "that flag is only kept";
}

// Eight items of three lines reach down to 165 mm of the 172: what the law wants to be read can't be printed
// over them.
TEST_F(Pagine_Test, IlPiedeNonStaSopraLeVoci) {
  EXPECT_EQ(Pagine(Documento(7, TipoDoc::Sanitario))[0].piede, 172);
  EXPECT_EQ(Pagine(Documento(8, TipoDoc::Sanitario))[0].piede, 165 + 10);
  programma.preferenze.FlagAllergeni = true;
  EXPECT_EQ(Pagine(Documento(6, TipoDoc::Sanitario))[0].piede, 165 + 10);
  programma.preferenze.DocSani_AltezzaPagina = 293;
  EXPECT_EQ(Pagine(Documento(13, TipoDoc::Sanitario))[0].piede, 293);
  EXPECT_EQ(Pagine(Documento(14, TipoDoc::Sanitario))[0].piede, 293) << "no paper is left below";
}

// ---- drawn

const std::vector<Testo> indirizzo = {"p1 testo 10.00 44.00 Arial 9: Destinatario:",
                                      "p1 testo 10.00 44.00 Arial 9: Destinatario:",
                                      "p1 testo 10.00 48.00 Arial 9: Laguna Pesca",
                                      "p1 testo 10.00 48.00 Arial 9: Laguna Pesca",
                                      "p1 testo 10.00 52.00 Arial 9: Fondamenta 3 - 30121 Venezia",
                                      "p1 testo 10.00 52.00 Arial 9: Fondamenta 3 - 30121 Venezia",
                                      "p1 testo 10.00 56.00 Arial 9: p. iva 01234567890",
                                      "p1 testo 10.00 56.00 Arial 9: p. iva 01234567890"};
const std::vector<Testo> destinazione = {"p1 testo 97.00 44.00 Arial 9: Destinazione merce:",
                                         "p1 testo 97.00 44.00 Arial 9: Destinazione merce:",
                                         "p1 testo 97.00 48.00 Arial 9: _____________________________",
                                         "p1 testo 97.00 48.00 Arial 9: _____________________________",
                                         "p1 testo 97.00 52.00 Arial 9: _____________________________",
                                         "p1 testo 97.00 52.00 Arial 9: _____________________________",
                                         "p1 testo 97.00 56.00 Arial 9: _____________________________",
                                         "p1 testo 97.00 56.00 Arial 9: _____________________________"};
const std::vector<Testo> bollo = {"p1 ellisse 146.00 8.00 11.00 3.30 penna 10 #000000",
                                  "p1 testo 144.43 6.42 Arial 8: 07"};

std::vector<Testo> Insieme(std::initializer_list<std::vector<Testo>> parti) {
  std::vector<Testo> tutto;
  for (const auto& parte : parti) tutto.insert(tutto.end(), parte.begin(), parte.end());
  return tutto;
}

// Checked by eye on paper: the customer, and whoever stops him on the road, must read who sold what to whom.
TEST_F(Pagine_Test, UnDDTSenzaPrezzi) {
  EXPECT_THAT(
      Stampa(Documento(1)),
      ElementsAreArray(Insieme(
          {{"documento \"20250314 DDT 007 00123\" Registro", "pagina 1 verticale 210x297",
            "p1 testo 136.84 0.00 Arial 8: pagina 1 di 1", "p1 testo 72.74 -1.00 Arial 10: Mare Blu s.n.c.",
            "p1 testo 72.74 -1.00 Arial 10: Mare Blu s.n.c.", "p1 testo 74.20 3.00 Arial 10: Posteggio 07",
            "p1 testo 74.20 3.00 Arial 10: Posteggio 07",
            "p1 testo 45.37 27.00 Arial 11: DOCUMENTO di TRASPORTO - CEE IT 940",
            "p1 testo 45.37 27.00 Arial 11: DOCUMENTO di TRASPORTO - CEE IT 940",
            "p1 testo 52.79 33.00 Arial 11: (CEE IT 940) no. 007 del 14/03/2025",
            "p1 testo 52.79 33.00 Arial 11: (CEE IT 940) no. 007 del 14/03/2025"},
           indirizzo,
           destinazione,
           bollo,
           {"p1 testo 2.00 64.00 Arial 8: COLLI", "p1 testo 2.00 64.00 Arial 8: COLLI",
            "p1 testo 14.00 64.00 Arial 8: LOTTO", "p1 testo 14.00 64.00 Arial 8: LOTTO",
            "p1 testo 65.00 64.00 Arial 8: DESCRIZIONE", "p1 testo 65.00 64.00 Arial 8: DESCRIZIONE",
            "p1 testo 140.92 64.00 Arial 8: PESO Kg", "p1 testo 140.92 64.00 Arial 8: PESO Kg",
            "p1 testo 8.23 69.00 Arial 9: 2", "p1 testo 14.00 69.00 Arial 9: orata - L001 (Sparus aurata)",
            "p1 testo 145.05 69.00 Arial 9: 10,00",
            "p1 testo 14.00 73.00 Arial 9:  A0837 - Mar Mediterraneo, provenienza Italia",
            "p1 testo 14.00 77.00 Arial 9: SBG (Orata): Fresco / Refrigerato,  Non Lavorato, Intero, "
            "Attr.pesca=Reti da traino",
            "fine"}})));
  EXPECT_EQ(registro.pagine, 1);
}

TEST_F(Pagine_Test, UnDocumentoSanitarioConAllergeniEPrezzi) {
  programma.preferenze.FlagAllergeni = true;
  Documento_Cliente documento = Documento(1, TipoDoc::Sanitario, true, "");
  documento.righe[0].Allergene = "Allergeni: Crostacei";
  EXPECT_THAT(
      Stampa(documento),
      ElementsAreArray(Insieme(
          {{"documento \"20250314 Documento Sanitario 00123\" Registro", "pagina 1 verticale 210x297",
            "p1 testo 136.84 0.00 Arial 8: pagina 1 di 1", "p1 testo 72.74 -1.00 Arial 10: Mare Blu s.n.c.",
            "p1 testo 72.74 -1.00 Arial 10: Mare Blu s.n.c.", "p1 testo 74.20 3.00 Arial 10: Posteggio 07",
            "p1 testo 74.20 3.00 Arial 10: Posteggio 07",
            "p1 testo 32.28 27.00 Arial 11: DOCUMENTO sulla TRACCIABILITA' dei PRODOTTI ITTICI",
            "p1 testo 32.28 27.00 Arial 11: DOCUMENTO sulla TRACCIABILITA' dei PRODOTTI ITTICI",
            "p1 testo 40.92 33.00 Arial 11: (CEE IT 940) no. ______________ del 14/03/2025",
            "p1 testo 40.92 33.00 Arial 11: (CEE IT 940) no. ______________ del 14/03/2025"},
           indirizzo,
           destinazione,
           bollo,
           {"p1 testo 2.00 64.00 Arial 8: COLLI", "p1 testo 2.00 64.00 Arial 8: COLLI",
            "p1 testo 14.00 64.00 Arial 8: LOTTO", "p1 testo 14.00 64.00 Arial 8: LOTTO",
            "p1 testo 65.00 64.00 Arial 8: DESCRIZIONE", "p1 testo 65.00 64.00 Arial 8: DESCRIZIONE",
            "p1 testo 129.78 64.00 Arial 8: PESO_Kg  Prezzo",
            "p1 testo 129.78 64.00 Arial 8: PESO_Kg  Prezzo", "p1 testo 8.23 69.00 Arial 9: 2",
            "p1 testo 14.00 69.00 Arial 9: orata - L001 (Sparus aurata)",
            "p1 testo 135.35 69.00 Arial 9: 10,00 € 5,50"_t,
            "p1 testo 14.00 73.00 Arial 9:  A0837 - Mar Mediterraneo, provenienza Italia",
            "p1 testo 14.00 77.00 Arial 9: SBG (Orata): Fresco / Refrigerato,  Non Lavorato, Intero, "
            "Attr.pesca=Reti da traino",
            "p1 testo 14.00 81.00 Arial 9: Allergeni: Crostacei",
            "p1 testo 5.00 162.00 Arial 9: assolve gli obblighi di cui all'Art. 62 comma 1 del D.L.24 "
            "gennaio "
            "2012",
            "p1 testo 5.00 166.00 Arial 9: n. 1 convertito con modificazioni dalla Legge 24 marzo 2012 n° 27"_t,
            "fine"}})));
}

TEST_F(Pagine_Test, IlTracciatoVecchioHaTestataPropriaENessunaDestinazione) {
  programma.preferenze.FlagComponiDDTNuovo = false;
  EXPECT_THAT(
      Stampa(Documento(1)),
      ElementsAreArray(Insieme(
          {{"documento \"20250314 DDT 007 00123\" Registro", "pagina 1 verticale 210x297",
            "p1 testo 136.84 0.00 Arial 8: pagina 1 di 1", "p1 testo 76.07 -1.00 Arial 10: SARVENA",
            "p1 testo 76.07 -1.00 Arial 10: SARVENA",
            "p1 testo 49.56 3.00 Arial 10: Commissionario al Mercato Ittico all'Ingrosso",
            "p1 testo 49.56 3.00 Arial 10: Commissionario al Mercato Ittico all'Ingrosso",
            "p1 testo 72.24 7.00 Arial 10: Posteggio n. 07", "p1 testo 72.24 7.00 Arial 10: Posteggio n. 07",
            "p1 testo 75.09 11.00 Arial 10: via Roma, 1", "p1 testo 75.09 11.00 Arial 10: via Roma, 1",
            "p1 testo 68.81 15.00 Arial 10: 30100 Venezia - VE",
            "p1 testo 68.81 15.00 Arial 10: 30100 Venezia - VE", "p1 testo 75.38 19.00 Arial 10: CEE IT 940",
            "p1 testo 75.38 19.00 Arial 10: CEE IT 940",
            "p1 testo 57.12 27.00 Arial 11: DOCUMENTO di TRASPORTO",
            "p1 testo 57.12 27.00 Arial 11: DOCUMENTO di TRASPORTO",
            "p1 testo 50.31 33.00 Arial 11: M./I. CEE IT 940 no.007 del 14/03/2025",
            "p1 testo 50.31 33.00 Arial 11: M./I. CEE IT 940 no.007 del 14/03/2025"},
           indirizzo,
           bollo,
           {"p1 testo 2.00 64.00 Arial 8: COLLI", "p1 testo 2.00 64.00 Arial 8: COLLI",
            "p1 testo 14.00 64.00 Arial 8: LOTTO  Z.FAO", "p1 testo 14.00 64.00 Arial 8: LOTTO  Z.FAO",
            "p1 testo 65.00 64.00 Arial 8: DESCRIZIONE", "p1 testo 65.00 64.00 Arial 8: DESCRIZIONE",
            "p1 testo 140.92 64.00 Arial 8: PESO Kg", "p1 testo 140.92 64.00 Arial 8: PESO Kg",
            "p1 testo 8.23 69.00 Arial 9: 2", "p1 testo 14.00 69.00 Arial 9: orata - L001 (Sparus aurata)",
            "p1 testo 145.05 69.00 Arial 9: 10,00",
            "p1 testo 14.00 73.00 Arial 9:  A0837 - Mar Mediterraneo, provenienza Italia",
            "p1 testo 14.00 77.00 Arial 9: SBG (Orata): Fresco / Refrigerato,  Non Lavorato, Intero, "
            "Attr.pesca=Reti da traino",
            "fine"}})));
}

TEST_F(Pagine_Test, LaSarvenaHaLaSuaTestataNeiTracciatiNuovi) {
  programma.preferenze.Codice_Commissionario = "Sarvena";
  const std::vector<Testo> righe = Stampa(Documento(1, TipoDoc::Sanitario));
  for (const Vista riga :
       {"p1 testo 76.07 -1.00 Arial 10: SARVENA", "p1 testo 57.12 27.00 Arial 11: DOCUMENTO di TRASPORTO",
        "p1 testo 50.31 33.00 Arial 11: M./I. CEE IT 940 no.007 del 14/03/2025",
        "p1 testo 97.00 44.00 Arial 9: Destinazione merce:", "p1 testo 14.00 64.00 Arial 8: LOTTO"})
    EXPECT_EQ(std::ranges::count(righe, riga), 2) << riga;
}

// The stamp moves its own centre to the left as it is drawn: on every page it must start from the settings.
TEST_F(Pagine_Test, IlBolloStaAlloStessoPostoSuOgniPagina) {
  const std::vector<Testo> righe = Stampa(Documento(25));
  EXPECT_EQ(registro.pagine, 3);
  for (const Vista pagina : {"p1", "p2", "p3"})
    EXPECT_THAT(righe, Contains(Testo(pagina) + " ellisse 146.00 8.00 11.00 3.30 penna 10 #000000"));
  EXPECT_EQ(programma.preferenze.ellisse_centrox, 165);
  programma.preferenze.FlagEllisse = false;
  EXPECT_THAT(Stampa(Documento(1)), Not(Contains(HasSubstr("ellisse"))));
}

TEST_F(Pagine_Test, UnSoloLavoroDiStampaPerDocumento) {
  const std::vector<Testo> righe = Stampa(Documento(10));
  EXPECT_EQ(std::ranges::count(righe, Testo("fine")), 1);
  EXPECT_THAT(righe, Contains("pagina 2 verticale 210x297"));
  EXPECT_EQ(registro.pagine, 2) << "no page is left blank at the end";
  EXPECT_EQ(printer.documento.genere, "DDT");
  Stampa(Documento(1, TipoDoc::Sanitario));
  EXPECT_EQ(printer.documento, (::Documento{"20250314", "Documento Sanitario", "007", "00123"}));
}

TEST_F(Pagine_Test, DiceAChePuntoE) {
  std::vector<Testo> titoli;
  const int prima = macchina.ridipinture;
  EXPECT_TRUE(StampaPagine(programma, Documento(10), [&](const Testo& titolo) { titoli.push_back(titolo); }));
  EXPECT_THAT(titoli, ElementsAre("00123 Pagina 1 di 2 in corso...", "00123 Pagina 2 di 2 in corso..."));
  EXPECT_GE(macchina.ridipinture - prima, 2) << "and the screen shows it";
}

TEST_F(Pagine_Test, SenzaStampanteNonSiDisegna) {
  macchina.stampante.reset();
  EXPECT_FALSE(StampaPagine(programma, Documento(1)));
  EXPECT_THAT(registro.righe, IsEmpty());
}

// The lot and the Latin name belong to what the customer must be able to read: smaller letters rather than
// the weight printed over them, or the end lost beyond the edge of the form.
TEST_F(Pagine_Test, UnTestoTroppoLungoHaLettereMinori) {
  Documento_Cliente documento = Documento(1, TipoDoc::DDT, true);
  documento.righe[0].Descrizione = "gamberetto grigio delle lagune del nord adriatico - NADR250313";
  documento.righe[0].Latino = "Crangon crangon (Linnaeus, 1758)";
  documento.destinatario.Nome = Testo(80, 'N');
  const std::vector<Testo> righe = Stampa(documento);
  EXPECT_THAT(righe, Contains(testing::AllOf(HasSubstr("gamberetto"), HasSubstr(" 69.00 Arial 6: "))));
  EXPECT_THAT(righe, Contains(testing::AllOf(HasSubstr("NNNN"), HasSubstr("Arial 5"))));
  EXPECT_THAT(righe, Contains(HasSubstr("Arial 9: SBG (Orata)"))) << "the others stay";
}

}  // namespace

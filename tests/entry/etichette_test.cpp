#include "entry/etichette.h"

#include "entry/comandi.h"
#include "tests/entry/stampa_di_giornata.h"

using C = CampoRiga;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

LedgerRow Riga_Con(C campo, Vista testo) {
  LedgerRow riga = Giornata_Di_Prova::RigaBuona();
  riga[C::Commento] = "10.00";
  riga[campo] = testo;
  return riga;
}

Contenuto_Etichetta Contenuto(C campo, Vista testo, char separatore = ',') {
  return Componi_Etichetta(Riga_Con(campo, testo), separatore);
}

struct Caso_Commento {
  Vista commento, prezzo, trattamento;
};
class Commenti : public testing::TestWithParam<Caso_Commento> {};

// What the stall keys behind the price is what the buyer reads of the treatment.
TEST_P(Commenti, DannoPrezzoETrattamento) {
  for (const char separatore : {',', '.'}) {
    const Contenuto_Etichetta etichetta = Contenuto(C::Commento, GetParam().commento, separatore);
    EXPECT_EQ(etichetta.prezzo, GetParam().prezzo);
    EXPECT_EQ(etichetta.trattamento, GetParam().trattamento);
  }
}

INSTANTIATE_TEST_SUITE_P(Commento, Commenti,
                         testing::Values(Caso_Commento{"10.00", "10,00", " nessun trattamento"},
                                         Caso_Commento{"10.00 - solfiti", "10,00", "# trattato con  solfiti"},
                                         Caso_Commento{"10.00 -", "10,00", ""},
                                         Caso_Commento{"5", "5,00", " nessun trattamento"},
                                         Caso_Commento{"5-", "5,00", ""}, Caso_Commento{"5 -   ", "5,00", ""},
                                         Caso_Commento{"12,50", "12,50", " nessun trattamento"},
                                         Caso_Commento{"12.5-solfiti", "12,50", "# trattato con solfiti"},
                                         Caso_Commento{"1234.5", "1234,50", " nessun trattamento"},
                                         Caso_Commento{"8 - polifosfati - solfiti", "8,00",
                                                       "# trattato con  polifosfati - solfiti"},
                                         Caso_Commento{"congelato", "0,00", " nessun trattamento"},
                                         Caso_Commento{"- solfiti", "0,00", "# trattato con  solfiti"},
                                         Caso_Commento{"", "0,00", " nessun trattamento"}));

struct Caso_Zona {
  Vista zona, genere, didascalia;
};
class Zone_Etichetta : public testing::TestWithParam<Caso_Zona> {};

TEST_P(Zone_Etichetta, DiconoPescatoOAllevato) {
  const Contenuto_Etichetta etichetta = Contenuto(C::ZonaP, GetParam().zona);
  EXPECT_EQ(etichetta.genere, GetParam().genere);
  EXPECT_EQ(etichetta.origine[0].didascalia, GetParam().didascalia);
  EXPECT_EQ(etichetta.origine[0].testo, GetParam().zona);
  EXPECT_EQ(etichetta.origine[0].didascalia_grassetto, GetParam().didascalia == "FAO:");
}

INSTANTIATE_TEST_SUITE_P(
    Zona, Zone_Etichetta,
    testing::Values(Caso_Zona{"A0837 - Mar Mediterraneo", "Prodotto PESCATO", "FAO:"},
                    Caso_Zona{"A", "Prodotto PESCATO", "FAO:"},
                    Caso_Zona{"B - Prodotto della pesca in acqua dolce", "prodotto ALLEVATO", "FAO"},
                    Caso_Zona{"C - Prodotto di acquacoltura", "prodotto ALLEVATO", "FAO"},
                    Caso_Zona{"", "prodotto ALLEVATO", "FAO"}));

TEST(Etichetta, LAllergeneSiTaceSoloDoveEDettoAssente) {
  const Testo avviso = "* Il prodotto è un allergene"_t;
  for (const Vista assente : {"Assenti", "assenti", "ASSENTI", "Assenti "})
    EXPECT_EQ(Contenuto(C::Allergeni, assente).allergeni, "") << assente;
  for (const Vista presente : {"Presenti", "-", "", "XXX Assenti", "PES Pesci"})
    EXPECT_EQ(Contenuto(C::Allergeni, presente).allergeni, avviso) << presente;
}

// The codes of three letters and the blank behind them aren't for the buyer.
TEST(Etichetta, LeVociCodificateSonoSenzaCodice) {
  const Contenuto_Etichetta etichetta = Contenuto(C::Lotti, "MB250313");
  const auto voce = [&](std::size_t i) {
    return etichetta.origine[i].didascalia + "|" + etichetta.origine[i].testo;
  };
  EXPECT_EQ(voce(1), "Provenienza:|001 IT Laguna Venezia");
  EXPECT_EQ(voce(2), "Attrezzo di pesca:|Reti da traino");
  EXPECT_EQ(voce(3), "Pezzatura e Stato Fisico:|Grande , Fresco / Refrigerato");
  EXPECT_EQ(voce(4), "Lavorazione e Preparazione:|Non Lavorato , Intero");
  EXPECT_EQ(etichetta.lotto.didascalia + "|" + etichetta.lotto.testo, "Lotto:|MB250313");
  EXPECT_EQ(Contenuto(C::MetodoPesca, "RDT").origine[2].testo, "");
}

// ---- the command

struct Giorno_Di_Etichette : Giornata_Con_Stampante {
  explicit Giorno_Di_Etichette(Vista profilo = "Tolvera",
                               std::vector<Testo> commenti = {"10,00", "", "5 -"}) {
    programma.preferenze.Codice_Commissionario = profilo;
    programma.Vet_Tabella.righe.clear();
    for (std::size_t i = 0; i < commenti.size(); ++i) {
      LedgerRow riga = RigaDelGiorno(static_cast<int>(i) + 1, "Lagunare", "00200");
      riga[C::Commento] = commenti[i];
      programma.Vet_Tabella.righe.push_back(riga);
    }
    Apri();
  }
  void Comando() { Etichette(programma, edita); }
  bool Tutte() const { return edita.Check[18].segnata; }
};

TEST(Etichette_Comando, UnaRigaEUnDocumentoDiUnaPagina) {
  Giorno_Di_Etichette g;
  const Testo titolo = g.edita.titolo;
  g.Comando();
  EXPECT_EQ(g.registro.righe.front(), "documento \"20250314 Etichetta 0001 Orata\" Registro");
  EXPECT_EQ(g.registro.righe.back(), "fine");
  EXPECT_EQ(g.registro.pagine, 1);
  EXPECT_THAT(
      g.Scritti(),
      ElementsAre("Orata", "Prodotto PESCATO", "Sparus aurata", "10,00", "/kg",
                  "* Il prodotto è un allergene"_t, " nessun trattamento", "FAO:", "A0837 - Mar Mediterraneo",
                  "Provenienza:", "001 IT Laguna Venezia", "Attrezzo di pesca:", "Reti da traino",
                  "Pezzatura e Stato Fisico:", "Grande , Fresco / Refrigerato",
                  "Lavorazione e Preparazione:", "Non Lavorato , Intero", "Lotto:", "MB250313"));
  EXPECT_THAT(g.macchina.messaggi, IsEmpty());
  EXPECT_EQ(g.edita.titolo, titolo);
  EXPECT_FALSE(Occupata(g.edita));
}

// The label is that of the fields: what is keyed and not yet stored prints too.
TEST(Etichette_Comando, StampaQuelloCheStaNeiCampi) {
  Giorno_Di_Etichette g;
  g[C::Specie] = "Branzino";
  g[C::Commento] = "18,90 - solfiti";
  g.Comando();
  EXPECT_THAT(g.Scritti(),
              AllOf(Contains("Branzino"), Contains("18,90"), Contains("# trattato con  solfiti")));
  EXPECT_EQ(g.Riga(1)[C::Specie], "Orata");
}

TEST(Etichette_Comando, SenzaCommentoMancaIlPrezzo) {
  for (const Vista vuoto : {"", "   "}) {
    Giorno_Di_Etichette g;
    g[C::Commento] = vuoto;
    g.Comando();
    EXPECT_THAT(g.macchina.messaggi, ElementsAre("Manca il prezzo di vendita..."));
    EXPECT_THAT(g.registro.righe, IsEmpty());
  }
}

TEST(Etichette_Comando, SenzaRigaScelta) {
  Giorno_Di_Etichette g;
  g.edita.albero.ListaVoci.scelta = -1;
  g.Comando();
  EXPECT_THAT(g.macchina.messaggi, ElementsAre("Selezionare la riga sulla lista..(Hai salvato?)"));
  EXPECT_THAT(g.registro.righe, IsEmpty());
}

// Only the firms that label all they buy are asked; for the others the box has no effect and goes off.
TEST(Etichette_Comando, TutteSoloPerLeDitteCheLoFanno) {
  for (const Vista profilo : {"Caspero", "Tolvera", "Cavarzo", "Ombrano"}) {
    Giorno_Di_Etichette g(profilo);
    g.Segna(18);
    g.macchina.risposte = {true};
    g.Comando();
    EXPECT_THAT(g.macchina.domande,
                ElementsAre("OK per stampare tutte le etichette con il prezzo di acquisto..."));
    EXPECT_EQ(g.Documenti(), 2) << profilo;  // the row without a price is passed over
    EXPECT_TRUE(g.Tutte());
    EXPECT_THAT(g.macchina.messaggi, IsEmpty());
  }
  for (const Vista profilo : {"0", "Sarvena", "Lagomar"}) {
    Giorno_Di_Etichette g(profilo);
    g.Segna(18);
    g.Comando();
    EXPECT_THAT(g.macchina.domande, IsEmpty());
    EXPECT_EQ(g.Documenti(), 1) << profilo;
    EXPECT_FALSE(g.Tutte());
  }
}

TEST(Etichette_Comando, TuttePassaDaOgniRiga) {
  Giorno_Di_Etichette g("Ombrano", {"10,00", "congelato", "5 -", "-3", "0", "7,5 - solfiti"});
  const Testo titolo = g.edita.titolo;
  g.Segna(18);
  g.macchina.risposte = {true};
  g.Comando();
  EXPECT_THAT(g.registro.righe, Contains(HasSubstr("documento \"")).Times(3));
  EXPECT_THAT(g.Scritti(),
              AllOf(Contains("10,00"), Contains("5,00"), Contains("7,50"), Not(Contains("0,00"))));
  EXPECT_THAT(g.Scritti(), Contains(" nessun trattamento").Times(1));
  EXPECT_EQ(g.edita.hd.valore, 6);
  EXPECT_EQ(g.edita.albero.ListaVoci.scelta, 5);
  EXPECT_EQ(g.edita.titolo, titolo);
  EXPECT_FALSE(Occupata(g.edita));
}

// The row that is selected then is the one whose label comes next.
TEST(Etichette_Comando, EscFermaTraUnaELAltra) {
  Giorno_Di_Etichette g("Ombrano", {"10,00", "congelato", "5 -", "0", "7,5 - solfiti"});
  const Testo titolo = g.edita.titolo;
  g.Segna(18);
  g.macchina.risposte = {true};
  g.macchina.ferma_dopo = 2;
  g.Comando();
  EXPECT_EQ(g.Documenti(), 2);
  EXPECT_EQ(g.registro.righe.back(), "fine");
  EXPECT_THAT(g.macchina.messaggi, ElementsAre("Stampa interrotta: 2 etichette su 3."));
  EXPECT_EQ(g.edita.hd.valore, 5);
  EXPECT_EQ(g.edita.titolo, titolo);
  EXPECT_FALSE(Occupata(g.edita));
}

// Cancel isn't the end: it is the answer "only this one".
TEST(Etichette_Comando, AnnullaStampaSoloQuesta) {
  Giorno_Di_Etichette g;
  g.Segna(18);
  g.macchina.risposte = {false};
  g.Comando();
  EXPECT_EQ(g.Documenti(), 1);
  EXPECT_FALSE(g.Tutte());
}

TEST(Etichette_Comando, UnaSolaSenzaStampanteNonCambiaNulla) {
  Giorno_Di_Etichette g;
  g.macchina.stampante.reset();
  g.Comando();
  EXPECT_THAT(g.registro.righe, IsEmpty());
  EXPECT_FALSE(g.programma.Tabella_Modificata);
  EXPECT_FALSE(Occupata(g.edita));
}

TEST(Etichette_Comando, HaBottoneECasella) {
  Giorno_Di_Etichette g;
  EXPECT_TRUE(StatoComando(g.programma, g.edita, "Etichetta").attivo);
  EXPECT_FALSE(g.edita.Check[18].didascalia.empty());
  EXPECT_FALSE(g.Tutte());
}

}  // namespace

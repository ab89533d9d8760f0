#include "stats/statistica.h"

#include "tests/stats/periodo_di_prova.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct StatisticaDelGiorno : Periodo_Di_Prova {
  Statistica schermo;
  std::vector<Testo> Apri(const std::vector<Vendita>& vendite) {
    Apri_Giorno(vendite);
    schermo = {};
    schermo.scegli_file = [this] { return file; };
    Apri_Statistica(programma, schermo);
    return Righe_Di(schermo.ListaStatistica);
  }
  std::optional<Percorso> file = cartella / "uscita.txt";
};

TEST_F(StatisticaDelGiorno, TitoliSopraLeColonne) {
  EXPECT_THAT(Titoli_Statistica(),
              ElementsAre("fornitore             | specie               |   peso   |Imponibile prezzo ",
                          "                                                  kg.   |  totale    medio "));
}

// One line for each supplier and species, credit rows on lines of their own.
TEST_F(StatisticaDelGiorno, ConsolidaPerFornitoreESpecie) {
  EXPECT_THAT(Apri({{"Nord Adria", "Orata", "10", "5"},
                    {"mare blu", "Branzino", "2,5", "12,80"},
                    {"Mare Blu", "branzino", "1", "-3"},
                    {"Mare Blu", "BRANZINO", "7,5", "10"}}),
              ElementsAre("Mare Blu             | ACC. branzino       | 1        | -3,00    | -3,00   ",
                          "mare blu             | Branzino            | 10       | 107      | 10,70   ",
                          "Nord Adria           | Orata               | 10       | 50,00    | 5,00    ",
                          " totale importo 154,00", " totale        kg 21,00"));
  EXPECT_THAT(Righe_Di(schermo.ListaFornitori), ElementsAre("Mare Blu", "Nord Adria"));
}

TEST_F(StatisticaDelGiorno, IlPrezzoMedioEImportoSuPesoNonMediaDeiPrezzi) {
  EXPECT_THAT(Apri({{"A", "Orata", "30", "10"}, {"A", "Orata", "10", "20"}})[0],
              HasSubstr("| 40       | 500      | 12,50"));
}

TEST_F(StatisticaDelGiorno, SoloNoteDiAccreditoSoloLineeAcc) {
  EXPECT_THAT(Apri({{"A", "Orata", "3", "-2"}, {"A", "Orata", "1", "-2"}}),
              ElementsAre("A                    | ACC. Orata          | 4        | -8       | -2,00   ",
                          " totale importo -8,00", " totale        kg 4,00"));
}

// Without weight there is no average: the ledger's account number stays where the average stands.
TEST_F(StatisticaDelGiorno, PesoZeroLasciaIlNumeroDelConto) {
  EXPECT_THAT(Apri({{"A", "Orata", "0", "5"}})[0],
              "A                    | Orata               | 0        | 0,00     | 9999    ");
}

// A statement on a text that is no number is left undone: the boxes stay where the amount would stand.
TEST_F(StatisticaDelGiorno, NumeriIllegibiliLascianoIlCampoComEra) {
  EXPECT_THAT(Apri({{"A", "Orata", "2", "abc"}})[0],
              "A                    | Orata               | 2        | 3        | 1,50    ");
  EXPECT_THAT(Apri({{"A", "Orata", "abc", "5"}})[0],
              "A                    | Orata               | abc      | 3        | 9999    ");
}

// Whatever the place of a row that can't be read, the others of its species are all in the sum.
TEST_F(StatisticaDelGiorno, UnaRigaIllegibileNonPortaViaLeAltre) {
  const Vendita buona = {"A", "Orata", "2", "10"}, altra = {"A", "Orata", "3", "10"};
  for (const Vendita& storta : {Vendita{"A", "Orata", "abc", "5"}, Vendita{"A", "Orata", "0", "abc"}}) {
    for (const auto& vendite :
         {std::vector<Vendita>{storta, buona, altra}, {buona, storta, altra}, {buona, altra, storta}})
      EXPECT_THAT(Apri(vendite)[0],
                  "A                    | Orata               | 5        | 53       | 10,60   ");
    EXPECT_EQ(schermo.Avviso.testo, "righe senza peso o prezzo leggibile: 1");
  }
  Apri({buona});
  EXPECT_EQ(schermo.Avviso.testo, "");
}

TEST_F(StatisticaDelGiorno, NomiLunghiSiTagliano) {
  EXPECT_THAT(
      Apri({{"Cooperativa Pescatori Chioggia", "Canocchia o cicala di mare", "123456,789", "100"}})[0],
      "Cooperativa Pescator | Canocchia o cicala d| 123456,7 | 12345678 | 100,00  ");
}

TEST_F(StatisticaDelGiorno, IlGiornoVuotoHaSoloITotali) {
  programma.Vet_Tabella.righe = {Riga_Segnaposto()};
  Apri_Statistica(programma, schermo);
  EXPECT_THAT(Righe_Di(schermo.ListaStatistica),
              ElementsAre(" totale importo 0,00", " totale        kg 0,00"));
  EXPECT_THAT(Righe_Di(schermo.ListaFornitori), IsEmpty());
  EXPECT_FALSE(schermo.StampaGrafico.attivo);
}

TEST_F(StatisticaDelGiorno, ITotaliSonoInFormaItaliana) {
  programma.Separatore_Decimale = '.';
  programma.Separatore_Altro = ',';
  EXPECT_THAT(Apri({{"A", "Orata", "1000.5", "2"}}),
              ElementsAre("A                    | Orata               | 1000.5   | 2001.00  | 2.00    ",
                          " totale importo 2.001,00", " totale        kg 1.000,50"));
}

TEST_F(StatisticaDelGiorno, LaGiornataRestaComEra) {
  Apri({{"B", "Orata", "1", "5"}, {"A", "Orata", "2", "-5"}});
  EXPECT_EQ(programma.Vet_Tabella.righe,
            Righe_Di(std::vector<Vendita>{{"B", "Orata", "1", "5"}, {"A", "Orata", "2", "-5"}}));
  EXPECT_FALSE(programma.Tabella_Modificata);
}

TEST_F(StatisticaDelGiorno, SiCalcolaUnaVoltaSola) {
  Apri({{"A", "Orata", "1", "5"}});
  programma.Vet_Tabella.righe.clear();
  Apri_Statistica(programma, schermo);
  EXPECT_EQ(schermo.ListaStatistica.Numero(), 3U);
}

TEST_F(StatisticaDelGiorno, LeBarreSonoDelleStesseCifre) {
  Apri({{"A", "Orata", "1", "5"}, {"B", "Orata", "2", "50"}, {"A", "Orata", "1", "-1"}});
  ASSERT_EQ(schermo.grafico.barre.size(), 3U);
  EXPECT_EQ(schermo.grafico.barre[0].nome, "B, Orata");
  EXPECT_EQ(schermo.grafico.barre[0].importo, 100);
  EXPECT_EQ(schermo.grafico.barre[2].nome, "A, ACC. Orata");
  EXPECT_EQ(schermo.grafico.barre[2].importo, -1);
}

TEST_F(StatisticaDelGiorno, IlMenuDelFornitoreAppareQuandoSiSceglie) {
  Apri({{"A", "Orata", "1", "5"}, {"B & C", "Orata", "2", "50"}});
  EXPECT_FALSE(schermo.stampaFornitore.visibile);
  schermo.ListaFornitori.scelta = 1;
  Scelto_Fornitore(schermo);
  EXPECT_TRUE(schermo.stampaFornitore.visibile);
  EXPECT_EQ(schermo.stampaFornitore.testo, "Stampa_B && C");  // a single & would be a key in a menu
  EXPECT_EQ(schermo.ListaStatistica.scelta, 1);
}

TEST_F(StatisticaDelGiorno, StampaTutto) {
  Apri({{"A", "Orata", "1", "5"}});
  Stampa_Statistica(programma, schermo);
  EXPECT_THAT(
      Disegnato(),
      ElementsAre(
          "p1 testo 10.00 10.00 Courier New 11 grassetto: Statistica del giorno 14/03/2025 pag. 1 di 1",
          "p1 testo 10.00 18.79 Courier New 11 grassetto: " + Titoli_Statistica()[0],
          "p1 testo 10.00 23.19 Courier New 11 grassetto: " + Titoli_Statistica()[1],
          "p1 testo 10.00 31.98 Courier New 11: " + schermo.ListaStatistica.Riga(0),
          "p1 testo 10.00 36.38 Courier New 11:  totale importo 5,00",
          "p1 testo 10.00 40.77 Courier New 11:  totale        kg 1,00"));
  EXPECT_EQ(schermo.titolo, "Statistica del giorno");
  EXPECT_TRUE(schermo.attiva);
}

TEST_F(StatisticaDelGiorno, PiuPagineSonoContate) {
  std::vector<Vendita> vendite;
  for (int i = 0; i < 100; ++i) vendite.push_back({"F" + std::to_string(i), "Orata", "1", "5"});
  Apri(vendite);
  Stampa_Statistica(programma, schermo);
  EXPECT_EQ(registro.pagine, 2);
  EXPECT_THAT(registro.righe, Contains(HasSubstr("Statistica del giorno 14/03/2025 pag. 2 di 2")));
  EXPECT_THAT(registro.righe, Contains(HasSubstr("fornitore             |")).Times(2));
}

TEST_F(StatisticaDelGiorno, StampaIlFornitoreScelto) {
  Apri({{"A", "Orata", "1", "5"}, {"B", "Orata", "2", "50"}, {"b", "Sgombro", "1", "1"}});
  Stampa_Fornitore(programma, schermo);
  EXPECT_TRUE(registro.righe.empty());
  schermo.ListaFornitori.scelta = 1;
  Scelto_Fornitore(schermo);
  schermo.Grassetto.segnata = true;
  Stampa_Fornitore(programma, schermo);
  EXPECT_THAT(registro.righe, Contains(HasSubstr("courier new 11 grassetto: B                    | Orata")));
  EXPECT_THAT(registro.righe,
              Contains(HasSubstr("courier new 11 grassetto: b                    | Sgombro")));
  EXPECT_THAT(registro.righe, Not(Contains(HasSubstr("totale importo"))));
  EXPECT_THAT(registro.righe, Not(Contains(HasSubstr("A           "))));
}

TEST_F(StatisticaDelGiorno, SenzaStampanteNonSiStampaESiRestaPronti) {
  Apri({{"A", "Orata", "1", "5"}});
  macchina.stampante.reset();
  Stampa_Statistica(programma, schermo);
  Stampa_Barre(programma, schermo);
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_TRUE(schermo.attiva);
  EXPECT_EQ(schermo.titolo, "Statistica del giorno");
}

TEST_F(StatisticaDelGiorno, Salva) {
  Apri({{"A", "Orata", "1", "5"}});
  Salva_Statistica(programma, schermo);
  EXPECT_EQ(cartella.Contenuto("uscita.txt"),
            "\r\n" + Titoli_Statistica()[0] + "\r\n" + Titoli_Statistica()[1] + "\r\n\r\n" +
                schermo.ListaStatistica.Riga(0) + "\r\n totale importo 5,00\r\n totale        kg 1,00\r\n");
  EXPECT_THAT(macchina.messaggi, ElementsAre("fatto..."));
}

TEST_F(StatisticaDelGiorno, AnnullareLaSceltaDelFileNonScriveNulla) {
  Apri({{"A", "Orata", "1", "5"}});
  file.reset();
  Salva_Statistica(programma, schermo);
  EXPECT_EQ(cartella.Contenuto("uscita.txt"), "(manca)");
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(StatisticaDelGiorno, ColDiscoPienoLoDice) {
  Apri({{"A", "Orata", "1", "5"}});
  Disco_Pieno();
  Salva_Statistica(programma, schermo);
  EXPECT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_THAT(macchina.messaggi[0], HasSubstr("Errore 28 durante il salvataggio"));
  EXPECT_EQ(cartella.Contenuto("uscita.txt"), "(manca)");
}

TEST_F(StatisticaDelGiorno, Aiuto) {
  Aiuto_Statistica(programma);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Per stampare tutta la lista scegliere il Menu StampaTutto\n"
                                             "Per stampare un singolo fornitore:\n"
                                             "- Selezionare il fornitore con il mouse,\n"
                                             "- Appare il Menu Stampa_Fornitore\n"
                                             "- Usare questo menu"));
}

}  // namespace

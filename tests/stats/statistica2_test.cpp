#include "stats/statistica2.h"

#include "tests/stats/periodo_di_prova.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct StatisticaDelPeriodo : Periodo_Di_Prova {
  StatisticaDelPeriodo() {
    Metti_Giorno("20250103", {{"Mare Blu", "Orata", "12,50", "9,80"}, {"Laguna", "Orata", "1", "-4"}});
    Metti_Giorno("20250314", {{"MARE BLU", "Branzino", "1", "0,333"}, {"laguna", "Orata", "0", "5"}});
    Metti_Giorno("20251231", {{"Nord Adria", "Orata", "1000", "1000"}});
  }
  Statistica2 schermo;
  std::vector<Testo> Applica(const Testo& da, const Testo& a) {
    schermo.Text1.testo = da;
    schermo.Text2.testo = a;
    Applica_Periodo(programma, schermo);
    return Righe_Di(schermo.ListaSaldo);
  }
};

TEST_F(StatisticaDelPeriodo, SiApreConIlPrimoELUltimoGiorno) {
  Metti_File("2025note.txt", "altro");
  EXPECT_TRUE(Apri_Statistica2(programma, schermo));
  EXPECT_EQ(schermo.Text1.testo, "20250103");
  EXPECT_EQ(schermo.Text2.testo, "20251231");
  EXPECT_EQ(schermo.titolo, "Statistica Tolvera");
  EXPECT_EQ(schermo.Titoli.testo, "fornitore                                | euro");
  EXPECT_THAT(Righe_Di(schermo.ListaSaldo), IsEmpty());
}

TEST_F(StatisticaDelPeriodo, SenzaGiorniNonSiApre) {
  programma.Anno_Lavoro = "2024";
  programma.Cartella_Anno = cartella / "2024";
  EXPECT_FALSE(Apri_Statistica2(programma, schermo));
  EXPECT_THAT(macchina.messaggi, ElementsAre(" non ci sono dati...nulla da fare"));
}

TEST_F(StatisticaDelPeriodo, UnAnnoCheNonSiLeggeSiDiceENonDaTotali) {
  const Testo errore =
      "Errore 40 durante la lettura\n" + Testo_Percorso(cartella / "2025") + "\n" + Testo_Errore(40);
  Applica("20250103", "20251231");
  std::filesystem::rename(cartella / "2025", cartella / "altrove");
  std::filesystem::create_directory_symlink("2025", cartella / "2025");
  EXPECT_THAT(Applica("20250103", "20251231"), IsEmpty());
  EXPECT_THAT(macchina.messaggi, ElementsAre(errore));
  EXPECT_EQ(schermo.Avviso.testo, "la cartella dell'anno non si legge");
  EXPECT_FALSE(Apri_Statistica2(programma, schermo));
  EXPECT_THAT(macchina.messaggi, ElementsAre(errore, errore));
}

TEST_F(StatisticaDelPeriodo, UnaLineaPerFornitore) {
  EXPECT_THAT(Applica("20250103", "20251231"),
              ElementsAre("Laguna                                   =  -4 \x80",
                          "Mare Blu                                 =  122,833 \x80",
                          "Nord Adria                               =  1000000 \x80"));
  EXPECT_EQ(schermo.Avanzamento.testo, "20251231.txt letto");
  EXPECT_EQ(schermo.grafico.barre[0].nome, "Nord Adria");
  EXPECT_EQ(schermo.Avviso.testo, "");
}

TEST_F(StatisticaDelPeriodo, LeDateSonoComprese) {
  EXPECT_EQ(Applica("20250314", "20250314").size(), 2U);
  EXPECT_EQ(Applica("20250104", "20251230").size(), 2U);
}

TEST_F(StatisticaDelPeriodo, UnPeriodoSenzaFileDaUnaListaVuota) {
  Applica("20250103", "20251231");
  EXPECT_THAT(Applica("20250401", "20250430"), IsEmpty());
  EXPECT_THAT(Applica("20251231", "20250101"), IsEmpty());
  EXPECT_FALSE(schermo.StampaGrafico.attivo);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(StatisticaDelPeriodo, DateNonGiusteSiDiconoSullaFinestra) {
  EXPECT_THAT(Applica("14/03/2025", "oggi"), IsEmpty());
  EXPECT_EQ(schermo.Avviso.testo, "Sistemare le date nel formato aaaammgg");
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(StatisticaDelPeriodo, SegnapostoEGiornoVuotoNonContano) {
  Metti_Giorno("20250601", {});
  Metti_File("20250602.txt", Scrivi_Tabella({{Riga_Segnaposto()}}));
  EXPECT_THAT(Applica("20250601", "20250602"), IsEmpty());
}

TEST_F(StatisticaDelPeriodo, NumeriIllegibiliSiDicono) {
  Metti_Giorno("20250601", {{"Mare Blu", "Orata", "x", "2"}, {"Mare Blu", "Orata", "2", "2"}});
  EXPECT_THAT(Applica("20250601", "20250601"),
              ElementsAre("Mare Blu                                 =  4 \x80"));
  EXPECT_EQ(schermo.Avviso.testo, "righe senza peso o prezzo leggibile: 1");
}

TEST_F(StatisticaDelPeriodo, EscLasciaLaListaVuota) {
  Applica("20250103", "20251231");
  macchina.unita = 0;
  macchina.ferma_dopo = 1;
  EXPECT_THAT(Applica("20250103", "20251231"), IsEmpty());
  EXPECT_EQ(schermo.Avanzamento.testo, "calcolo interrotto");
  EXPECT_TRUE(schermo.attiva);
}

TEST_F(StatisticaDelPeriodo, Stampa) {
  Applica("20250103", "20250314");
  schermo.Titoli.testo = Titoli_Periodo();
  Stampa_Periodo(programma, schermo);
  EXPECT_THAT(
      Disegnato(),
      ElementsAre(
          "p1 testo 10.00 10.00 Courier New 11 grassetto: Statistica dal 20250103 al 20250314 pag. 1 di 1",
          "p1 testo 10.00 18.79 Courier New 11 grassetto: fornitore                                | euro",
          "p1 testo 10.00 27.58 Courier New 11: Laguna                                   =  -4 \x80",
          "p1 testo 10.00 31.98 Courier New 11: Mare Blu                                 =  122,833 \x80"));
}

TEST_F(StatisticaDelPeriodo, StampaInGrassettoELeBarre) {
  Applica("20250103", "20250314");
  schermo.Grassetto.segnata = true;
  Stampa_Periodo(programma, schermo);
  EXPECT_THAT(registro.righe, Contains(HasSubstr("Courier New 11 grassetto: Laguna")));
  registro = {};
  Stampa_Barre(programma, schermo);
  EXPECT_THAT(registro.righe, Contains(HasSubstr("Importi maggiori dal 20250103 al 20250314")));
}

TEST_F(StatisticaDelPeriodo, NonToccaIFileNeIlGiorno) {
  const Testo prima = cartella.Contenuto("2025/20250103.txt");
  Applica("20250103", "20251231");
  EXPECT_EQ(cartella.Contenuto("2025/20250103.txt"), prima);
  EXPECT_THAT(cartella.Nomi(), ElementsAre("2025"));
}

}  // namespace

#include "stats/rxfor.h"

#include "tests/stats/periodo_di_prova.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr int Per_Fornitore = 1, Per_Specie = 2, Per_Sbarco = 4;

struct SaldoFornitori : Periodo_Di_Prova {
  SaldoFornitori() {
    Metti_Giorno("20250310", {{"Mare Blu", "Orata", "12,50", "9,80", "Bar", "Chioggia"},
                              {"Laguna", "Branzino", "4", "10", "Bar", "Caorle"}});
    Metti_Giorno("20250312", {{"MARE BLU", "orata", "7,5", "8", "Bar", ""},
                              {"Mare Blu", "Acciuga", "3", "2", "Bar", "Chioggia"},
                              {"Laguna", "Branzino", "1", "-10", "Bar", "Caorle"}});
    Apri_RXFor(programma, schermo);
  }
  RXFor schermo;

  std::vector<Testo> Calcola(const Testo& da, const Testo& a, int scelte) {
    schermo.Text1.testo = da;
    schermo.Text2.testo = a;
    schermo.Check1.segnata = (scelte & Per_Fornitore) != 0;
    schermo.Check2.segnata = (scelte & Per_Specie) != 0;
    schermo.Check3.segnata = (scelte & Per_Sbarco) != 0;
    Calcola_Saldo(programma, schermo);
    return Righe_Di(schermo.ListaSaldo);
  }
  std::vector<Testo> Calcola_OK(const Testo& da, const Testo& a, int scelte) {
    macchina.risposte = {true};
    return Calcola(da, a, scelte);
  }
};

TEST_F(SaldoFornitori, SiApreSulGiorno) {
  EXPECT_EQ(schermo.titolo, "Righe immesse per fornitore");
  EXPECT_EQ(schermo.Caption.testo, "Data in formato AAAAMMDD");
  EXPECT_EQ(schermo.Text1.testo, "20250314");
  EXPECT_EQ(schermo.Text2.testo, "20250314");
  EXPECT_EQ(schermo.Check1.didascalia, "Fornitori");
  EXPECT_EQ(schermo.Check2.didascalia, "Specie per Fornitore");
  EXPECT_EQ(schermo.Check3.didascalia, "Primo Sbarco");
  EXPECT_EQ(schermo.Command4.testo, "Fornitore e Specie");
  EXPECT_FALSE(schermo.Check1.segnata || schermo.Check2.segnata || schermo.Check3.segnata);
  EXPECT_FALSE(schermo.Stampa.attivo || schermo.Salva.attivo);
}

TEST_F(SaldoFornitori, LeDateVannoDiUnGiornoAvantiEIndietro) {
  struct Caso {
    const char *prima, *avanti, *indietro;
  };
  constexpr Caso casi[] = {{"20250314", "20250315", "20250313"},
                           {"20250228", "20250301", "20250227"},
                           {"20250101", "20250102", "20241231"},
                           {"20241231", "20250101", "20241230"},
                           {"20240229", "20240301", "20240228"},
                           {"ieri", "ieri", "ieri"},
                           {"", "", ""},
                           {"14/03/2025", "14/03/2025", "14/03/2025"}};
  for (const auto& [prima, avanti, indietro] : casi) {
    CampoTesto campo;
    campo.testo = prima;
    Passo_Data(campo, true);
    EXPECT_EQ(campo.testo, avanti) << prima;
    campo.testo = prima;
    Passo_Data(campo, false);
    EXPECT_EQ(campo.testo, indietro) << prima;
  }
}

TEST_F(SaldoFornitori, SenzaOpzioniNonSiCalcola) {
  EXPECT_THAT(Calcola("20250310", "20250312", Per_Sbarco), IsEmpty());
  EXPECT_THAT(macchina.messaggi, ElementsAre("Scegliere le opzioni (fornitori o specie e fornitori..."));
}

// "Nothing to do" would be untrue: the days may all be there.
TEST_F(SaldoFornitori, UnAnnoCheNonSiLeggeSiDice) {
  programma.Anno_Lavoro = "2024";
  programma.Cartella_Anno = cartella / "2024";
  std::filesystem::create_directory_symlink("2024", cartella / "2024");
  EXPECT_THAT(Calcola("20240310", "20240312", Per_Fornitore), IsEmpty());
  EXPECT_THAT(macchina.messaggi, ElementsAre("Errore 40 durante la lettura\n" +
                                             Testo_Percorso(cartella / "2024") + "\n" + Testo_Errore(40)));
}

TEST_F(SaldoFornitori, DateCheNonVanno) {
  const Testo forma = "Sistemare le date nel formato aaaammgg", anno = "deve essere lo stesso anno";
  struct Caso {
    Testo da, a, messaggio;
  };
  const Caso casi[] = {
      {"2025031", "20250312", forma},
      {"20250310", "", forma},
      {"10/03/25", "20250312", forma},
      {"20250310", "20251312", forma},
      {"20241231", "20250101", anno},
      {"20250310", "20260310", anno},
      {"20250309", "20250312", "primo file: sistemare le date da...a (il primo file è 20250310.txt)"_t},
      {"20250310", "20250313", "ultimo file: sistemare le date da...a (il primo file è 20250312.txt)"_t},
      {"20240310", "20240312", "primo file: sistemare le date da...a (il primo file è 20250310.txt)"_t},
      {"20260310", "20260312", "ultimo file: sistemare le date da...a (il primo file è 20250312.txt)"_t},
      {"20250313", "20250310", "ultimo file: sistemare le date da...a (il primo file è 20250312.txt)"_t},
      {"20250312", "20250309", "primo file: sistemare le date da...a (il primo file è 20250310.txt)"_t}};
  for (const Caso& caso : casi) {
    macchina.messaggi.clear();
    EXPECT_THAT(Calcola(caso.da, caso.a, Per_Fornitore), IsEmpty());
    EXPECT_THAT(macchina.messaggi, ElementsAre(caso.messaggio)) << caso.da << " " << caso.a;
  }
}

TEST_F(SaldoFornitori, SenzaNessunGiornoNonCENullaDaFare) {
  programma.Anno_Lavoro = "2024";
  programma.Cartella_Anno = cartella / "2024";
  EXPECT_THAT(Calcola("20240101", "20240102", Per_Fornitore), IsEmpty());
  EXPECT_THAT(macchina.messaggi, ElementsAre(" non ci sono dati...nulla da fare"));
}

TEST_F(SaldoFornitori, LaDomandaDiceIlPrimoELUltimoFile) {
  macchina.risposte = {false};
  EXPECT_THAT(Calcola("20250310", "20250312", Per_Fornitore), IsEmpty());
  EXPECT_THAT(
      macchina.domande,
      ElementsAre("Il calcolo comincia da:\n20250310.txte finisce con: 20250312.txt..... OK per continuare"));
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_EQ(cartella.Contenuto("zzzztemp.txt"), "(manca)");
}

TEST_F(SaldoFornitori, AnnullandoLaListaRestaComEra) {
  const auto prima = Calcola_OK("20250310", "20250312", Per_Fornitore);
  macchina.risposte = {false};
  EXPECT_EQ(Calcola("20250312", "20250312", Per_Specie), prima);
  EXPECT_EQ(Calcola("2025", "20250312", Per_Specie), prima);
  Salva_Saldo(programma, schermo);
  EXPECT_THAT(cartella.Contenuto("Statistiche/20250310_20250312.txt"), HasSubstr(prima[0]));
}

TEST_F(SaldoFornitori, PerSpecieConITotali) {
  EXPECT_THAT(
      Calcola_OK("20250310", "20250312", Per_Specie),
      ElementsAre("Laguna                        Branzino                      5 kg =   \x80 = 30-> 6,00",
                  "Mare Blu                      Acciuga                       3 kg =   \x80 = 6-> 2,00",
                  "Mare Blu                      Orata                         20 kg =   \x80 = 182,5-> 9,13",
                  "", "totale \x80 = 218,50", ""));
  EXPECT_EQ(schermo.Avanzamento.testo, "5 - righe lette");
  EXPECT_THAT(macchina.messaggi, ElementsAre("fatto..."));
  EXPECT_EQ(cartella.Contenuto("zzzztemp.txt"),
            "Mare Blu\tOrata\t12,50\t9,80\r\nLaguna\tBranzino\t4\t10\r\nMARE BLU\torata\t7,5\t8\r\n"
            "Mare Blu\tAcciuga\t3\t2\r\nLaguna\tBranzino\t1\t-10\r\n");
}

TEST_F(SaldoFornitori, PerFornitoreSenzaTotali) {
  EXPECT_THAT(Calcola_OK("20250310", "20250312", Per_Fornitore),
              ElementsAre("Laguna                        5 kg =   \x80 = 30-> 6,00",
                          "Mare Blu                      23 kg =   \x80 = 188,5-> 8,20"));
  EXPECT_EQ(schermo.grafico.barre[0].nome, "Mare Blu");
}

TEST_F(SaldoFornitori, ConEntrambePrimaLeSpeciePoiIFornitori) {
  const auto righe = Calcola_OK("20250310", "20250312", Per_Fornitore | Per_Specie);
  ASSERT_EQ(righe.size(), 8U);
  EXPECT_EQ(righe[4], "totale € = 218,50"_t);
  EXPECT_EQ(righe[7], "Mare Blu                      23 kg =   € = 188,5-> 8,20"_t);
}

TEST_F(SaldoFornitori, UnGiornoSoloEIlPesoComeScritto) {
  EXPECT_THAT(Calcola_OK("20250310", "20250310", Per_Fornitore),
              ElementsAre("Laguna                        4 kg =   \x80 = 40-> 10,00",
                          "Mare Blu                      12,50 kg =   \x80 = 122,5-> 9,80"));
  EXPECT_THAT(macchina.domande.back(), HasSubstr("20250310.txte finisce con: 20250310.txt"));
}

// Credit rows lower the amount, and their kilograms still add.
TEST_F(SaldoFornitori, LeNoteDiAccreditoAbbassanoLImporto) {
  const auto righe = Calcola_OK("20250312", "20250312", Per_Fornitore);
  EXPECT_EQ(righe[0], "Laguna                        1 kg =   € = -10-> -10,00"_t);
}

TEST_F(SaldoFornitori, PerPrimoSbarco) {
  EXPECT_THAT(Calcola_OK("20250310", "20250312", Per_Fornitore | Per_Sbarco),
              ElementsAre("                              7,5 kg =   \x80 = 60-> 8,00",
                          "Caorle                        5 kg =   \x80 = 30-> 6,00",
                          "Chioggia                      15,5 kg =   \x80 = 128,5-> 8,29"));
  EXPECT_THAT(cartella.Contenuto("zzzztemp.txt"), HasSubstr("\r\n\torata\t7,5\t8\r\n"));
}

TEST_F(SaldoFornitori, SenzaPesoNienteMedia) {
  Metti_Giorno("20250310", {{"Mare Blu", "Orata", "0", "5"}});
  EXPECT_THAT(Calcola_OK("20250310", "20250310", Per_Fornitore),
              ElementsAre("Mare Blu                      0 kg =   \x80 = 0-> "));
}

TEST_F(SaldoFornitori, UnPeriodoSenzaFileDaNessuno) {
  EXPECT_THAT(Calcola_OK("20250311", "20250311", Per_Specie),
              ElementsAre("Nessuno                       niente                        0 kg =   \x80 = 0-> ",
                          "", "totale \x80 = 0,00", ""));
  EXPECT_EQ(cartella.Contenuto("zzzztemp.txt"), "(manca)");
}

TEST_F(SaldoFornitori, IlFileVuotoEIlSegnaposto) {
  Metti_File("20250310.txt", "");
  EXPECT_THAT(Calcola_OK("20250310", "20250310", Per_Specie)[0],
              "Nessuno                       nulla                         0 kg =   € = 0-> "_t);
  EXPECT_EQ(cartella.Contenuto("zzzztemp.txt"), "Nessuno\tnulla\t0\t0\r\n");
  Metti_File("20250310.txt", Scrivi_Tabella({{Riga_Segnaposto()}}));
  EXPECT_THAT(Calcola_OK("20250310", "20250310", Per_Specie)[0], HasSubstr("niente"));
}

TEST_F(SaldoFornitori, IlTemporaneoDiPrimaNonResta) {
  cartella.Metti("zzzztemp.txt", "vecchio\r\n");
  Calcola_OK("20250312", "20250312", Per_Fornitore);
  EXPECT_THAT(cartella.Contenuto("zzzztemp.txt"), Not(HasSubstr("vecchio")));
}

TEST_F(SaldoFornitori, ColDiscoPienoITotaliCiSonoESiDice) {
  programma.disco.guasto = [](const Percorso& file) {
    return file.filename() == "zzzztemp.txt" ? ENOSPC : 0;
  };
  EXPECT_EQ(Calcola_OK("20250310", "20250312", Per_Fornitore).size(), 2U);
  ASSERT_EQ(macchina.messaggi.size(), 2U);
  EXPECT_THAT(macchina.messaggi[0], HasSubstr("Errore 28 durante la scrittura di zzzztemp.txt"));
  EXPECT_THAT(macchina.messaggi[0], HasSubstr("I totali sono completi."));
  EXPECT_EQ(macchina.messaggi[1], "fatto...");
}

TEST_F(SaldoFornitori, EscFermaENonLasciaNulla) {
  Calcola_OK("20250310", "20250312", Per_Fornitore);
  macchina.messaggi.clear();
  macchina.unita = 0;
  macchina.ferma_dopo = 1;
  EXPECT_THAT(Calcola_OK("20250310", "20250312", Per_Fornitore), IsEmpty());
  EXPECT_EQ(schermo.Avanzamento.testo, "calcolo interrotto");
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_EQ(cartella.Contenuto("zzzztemp.txt"), "(manca)");
  EXPECT_FALSE(schermo.Stampa.attivo || schermo.Salva.attivo);
  macchina.ferma_dopo.reset();
  EXPECT_EQ(Calcola_OK("20250310", "20250312", Per_Fornitore).size(), 2U);
}

TEST_F(SaldoFornitori, UnSoloCalcoloAllaVolta) {
  macchina.fra_le_unita = [this] {
    EXPECT_FALSE(schermo.Command4.attivo);
    Calcola_Saldo(programma, schermo);  // would ask a second question
  };
  EXPECT_EQ(Calcola_OK("20250310", "20250312", Per_Fornitore).size(), 2U);
  EXPECT_EQ(macchina.domande.size(), 1U);
}

TEST_F(SaldoFornitori, StampaPerFornitore) {
  Calcola_OK("20250310", "20250312", Per_Fornitore | Per_Specie);
  Stampa_Saldo(programma, schermo);
  EXPECT_THAT(registro.righe[0], HasSubstr("20250314 Saldo 20250310-20250312"));
  EXPECT_THAT(
      Disegnato(),
      ElementsAre(
          "p1 testo 10.00 10.00 Courier new 11 grassetto: Saldo Giornaliero per Fornitore del "
          "20250310 al 20250312",
          "p1 testo 174.38 10.00 Courier new 11: pag. 1 di 1",
          "p1 testo 10.00 23.19 Courier new 11: 001 Laguna                         -> 30,00 per 5,00 Kg.",
          "p1 testo 10.00 27.58 Courier new 11: 002 Mare Blu                       -> 188,50 per 23,00 Kg.",
          "p1 testo 10.00 36.38 Courier new 11: Saldo totale = 218,50 euro"));
}

TEST_F(SaldoFornitori, StampaPerSpecieELeBarre) {
  Calcola_OK("20250310", "20250312", Per_Specie);
  Stampa_Saldo(programma, schermo);
  EXPECT_THAT(registro.righe,
              Contains(HasSubstr("003 Mare Blu                      Orata                          -> "
                                 "182,50 per 20,00 Kg.")));
  registro = {};
  Stampa_Barre(programma, schermo);
  EXPECT_THAT(registro.righe, Contains(HasSubstr("Mare Blu, Orata")));
}

TEST_F(SaldoFornitori, SalvaNellaCartellaStatistiche) {
  Calcola_OK("20250310", "20250312", Per_Fornitore);
  macchina.messaggi.clear();
  Salva_Saldo(programma, schermo);
  EXPECT_EQ(cartella.Contenuto("Statistiche/20250310_20250312.txt"),
            "Laguna                        5 kg =   \x80 = 30-> 6,00\r\n"
            "Mare Blu                      23 kg =   \x80 = 188,5-> 8,20\r\n"
            "\r\nSaldo calcolato il 14/03/2025\r\ndal: 20250310 al: 20250312\r\n\r\n");
  EXPECT_THAT(macchina.messaggi, ElementsAre("fatto..."));
}

// The name tells whose figures are in it, also when a date was changed after the run.
TEST_F(SaldoFornitori, IlNomeSegueLeDateDelCalcolo) {
  Calcola_OK(" 20250310 ", "20250312", Per_Fornitore);
  schermo.Text1.testo = "20250311";
  Salva_Saldo(programma, schermo);
  EXPECT_THAT(cartella.Contenuto("Statistiche/20250310_20250312.txt"), HasSubstr("dal: 20250310"));
}

TEST_F(SaldoFornitori, SenzaCartellaNonSiSalvaESiDice) {
  Calcola_OK("20250310", "20250312", Per_Fornitore);
  macchina.messaggi.clear();
  Disco_Pieno();
  Salva_Saldo(programma, schermo);
  EXPECT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_THAT(macchina.messaggi[0], HasSubstr("Errore 28"));
}

TEST_F(SaldoFornitori, IGiorniRestanoComErano) {
  const Testo prima = cartella.Contenuto("2025/20250310.txt");
  Calcola_OK("20250310", "20250312", Per_Fornitore | Per_Specie);
  EXPECT_EQ(cartella.Contenuto("2025/20250310.txt"), prima);
  EXPECT_EQ(programma.Vet_Tabella.Righe(), 1);
}

}  // namespace

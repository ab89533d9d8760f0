#include "tests/accounts/conti_di_prova.h"

// Preview, printing and text files through the screen of the accounts.

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

struct Stampa_Conti : testing::Test, Conti_Di_Prova {
  void Giornata() {
    Vendita(Riga_CV("Adriatica", "Orata", "100", "5,00", "10"), "", "15", "8");
    Vendita(Riga_CV("Adriatica", "Granchio", "10", "20,00", "22"), "", "15", "8");
    Vendita(Riga_CV("Adriatica", "Orata", "10", "-5,00", "10"), "", "15", "8");
    Vendita(Riga_CV("Baldo", "Sarda", "20", "3", "10"), "", "", "0");
  }
  void Premi(Tasto tasto) { EXPECT_TRUE(TastoConti(programma, zvendita, {.tasto = tasto})); }
  Testo Stampato() const {
    Testo tutto;
    for (const Testo& riga : registro.righe) tutto.append(riga).append("\n");
    return tutto;
  }
  std::vector<std::string> File_No() const {
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(cartella / "2025/CV_NO"))
      nomi.push_back(voce.path().filename().string());
    std::sort(nomi.begin(), nomi.end());
    return nomi;
  }
  std::vector<Testo> Anteprima() const {
    std::vector<Testo> righe;
    for (std::size_t i = 0; i < zvendita.Anteprima.Numero(); ++i) righe.push_back(zvendita.Anteprima.Riga(i));
    return righe;
  }
};

constexpr Vista file_esempio =
    "Adriatica\r\n650,00\r\n52,00\r\n184,00\r\n40,48\r\n414,00\r\n41,40\r\n679,88\r\n15,00\r\n664,88\r\n"
    "no\r\n,00\r\n,00\r\n";

// The worked example to the cent, in all three forms.
TEST_F(Stampa_Conti, LEsempioInAnteprimaSuCartaENelFile) {
  Giornata();
  programma.preferenze.FlagStampaFrame = 3;
  Apri();  // 41 Baldo, 42 Adriatica
  Premi(Tasto::F9);
  Premi(Tasto::F6);
  EXPECT_TRUE(zvendita.Anteprima.visibile);
  EXPECT_FALSE(zvendita.Pannello.visibile);
  EXPECT_EQ(zvendita.titolo, "Preview ContoVendita ...");
  EXPECT_THAT(Anteprima(), testing::IsSupersetOf<Testo>({"Num Conto Vendita: 42", "Totale  =679,88",
                                                         "Totale =664,88", "Kg Totali 120,00"}));
  Premi(Tasto::Esc);
  EXPECT_FALSE(zvendita.Anteprima.visibile);
  EXPECT_FALSE(zvendita.chiusa);
  EXPECT_EQ(zvendita.titolo, "Conti Vendita del 14/03/2025 Ultimo ncv=42");

  Premi(Tasto::F2);
  EXPECT_THAT(macchina.messaggi, ElementsAre("fatto..."));
  EXPECT_EQ(zvendita.titolo, "Conti Vendita");
  EXPECT_THAT(Stampato(), testing::HasSubstr("Arial 10 grassetto: 679,88"));
  EXPECT_THAT(Stampato(), testing::HasSubstr("Arial 10 grassetto: 664,88"));
  EXPECT_EQ(registro.pagine, 1);
  EXPECT_THAT(File_No(), ElementsAre("03140042.txt"));
  EXPECT_EQ(cartella.Contenuto("2025/CV_NO/03140042.txt"), file_esempio);
}

// F2 after it prints the account in view: the preview of another one doesn't stay in front of the list.
TEST_F(Stampa_Conti, UnAltroContoToglieLAnteprima) {
  Giornata();
  Apri();
  Premi(Tasto::F6);
  Premi(Tasto::F2);
  EXPECT_TRUE(zvendita.Anteprima.visibile);
  EXPECT_THAT(File_No(), ElementsAre("03140041.txt"));
  Premi(Tasto::F9);
  EXPECT_FALSE(zvendita.Anteprima.visibile);
  EXPECT_TRUE(zvendita.Pannello.visibile);
  EXPECT_EQ(zvendita.ListaCV.scelta, 1);
  Premi(Tasto::F6);
  EXPECT_THAT(Anteprima(), Contains("Num Conto Vendita: 42"));
  Premi(Tasto::F4);
  macchina.risposte = {true};
  Premi(Tasto::F2);
  EXPECT_FALSE(zvendita.Anteprima.visibile);
}

TEST_F(Stampa_Conti, AnteprimaSenzaRigaScelta) {
  Giornata();
  Apri();
  zvendita.ListaCV.scelta = -1;
  Premi(Tasto::F6);
  EXPECT_THAT(macchina.messaggi, ElementsAre("ripetere il comando..."));
  EXPECT_EQ(zvendita.ListaCV.scelta, 0);
  EXPECT_FALSE(zvendita.Anteprima.visibile);
}

// The heading of an unknown supplier is that of the one before: the statement finds nothing and changes
// nothing.
TEST_F(Stampa_Conti, AnteprimaDiUnFornitoreSconosciuto) {
  Giornata();
  Vendita(Riga_CV("Ignoto", "Sarda", "1", "1"));
  Apri();  // 41 Ignoto, 42 Baldo, 43 Adriatica
  Premi(Tasto::F6);
  EXPECT_EQ(Anteprima().at(0), "Spett.le  ");
  Premi(Tasto::F9);
  Premi(Tasto::F6);
  Premi(Tasto::F8);
  Premi(Tasto::F6);
  EXPECT_EQ(Anteprima().at(0), "Spett.le  Baldo");
  EXPECT_THAT(Anteprima(), Contains("Num Conto Vendita: 41"));
}

TEST_F(Stampa_Conti, TuttiConUnComando) {
  Giornata();
  Vendita(Riga_CV("Ignoto", "Sarda", "1", "1"));
  Apri();
  Premi(Tasto::F4);
  EXPECT_TRUE(zvendita.Check1.segnata);
  macchina.risposte = {true};
  Premi(Tasto::F2);
  EXPECT_THAT(
      macchina.domande,
      ElementsAre("OK per stampare tutti i Conti Vendita...\n(i dati devono essere stati aggiornati)"));
  // who isn't in the list is told, and left out of paper and files; a commission of 0 is no reason to
  EXPECT_THAT(
      macchina.messaggi,
      ElementsAre("Attenzione:\nIgnoto\nnon trovato\ncorreggere l'anagrafica dei fornitori.", "fatto..."));
  EXPECT_EQ(registro.pagine, 2);
  EXPECT_THAT(File_No(), ElementsAre("03140042.txt", "03140043.txt"));
  // printing changes nothing in the ledger
  EXPECT_THAT(Colonna_Salvata(CampoRiga::NCV), testing::Each(""));
}

// Preview and paper read the ledger; only numbering and changes write into it.
TEST_F(Stampa_Conti, StampareNonCambiaIlLibro) {
  Giornata();
  Apri();
  const Testo prima = Scrivi_Tabella(programma.Vet_Tabella);
  const auto file = cartella.Contenuto("2025/20250314.txt");
  for (int frame = 0; frame <= 6; ++frame) {
    programma.preferenze.FlagStampaFrame = frame;
    zvendita.Check1.segnata = zvendita.Check6.segnata = true;
    macchina.risposte = {true};
    Premi(Tasto::F6);
    Premi(Tasto::F2);
    EXPECT_EQ(Scrivi_Tabella(programma.Vet_Tabella), prima);
    EXPECT_EQ(cartella.Contenuto("2025/20250314.txt"), file);
    EXPECT_EQ(Ultimo_Salvato(), "42");
  }
}

TEST_F(Stampa_Conti, TuttiRifiutato) {
  Giornata();
  Apri();
  Premi(Tasto::F4);
  macchina.risposte = {false};
  Premi(Tasto::F2);
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_THAT(File_No(), IsEmpty());
  EXPECT_THAT(macchina.messaggi, ElementsAre("fatto..."));
}

TEST_F(Stampa_Conti, SoloControlloScriveSoloIFile) {
  Giornata();
  Apri();
  zvendita.Check1.segnata = zvendita.Check3.segnata = true;
  macchina.risposte = {true};
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.domande,
              ElementsAre("OK per salvare tutti i Conti Vendita  (senza stampare)...\n(i dati devono "
                          "essere stati aggiornati)"));
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_THAT(File_No(), ElementsAre("03140041.txt", "03140042.txt"));
}

TEST_F(Stampa_Conti, TreCopieUnFile) {
  Giornata();
  Apri();
  zvendita.Combo1.scelta = 2;
  Premi(Tasto::F2);
  EXPECT_EQ(registro.pagine, 3);
  EXPECT_EQ(std::count(registro.righe.begin(), registro.righe.end(), "fine"), 3);
  EXPECT_THAT(File_No(), ElementsAre("03140041.txt"));
}

TEST_F(Stampa_Conti, DueVolteSostituisceIlFileETogliIlGemello) {
  Giornata();
  Apri();
  cartella.Metti("2025/CV_NO/03140041.txt", "estraneo");
  cartella.Metti("2025/CV_SI/03140041.txt", "");
  Premi(Tasto::F2);
  const auto prima = cartella.Contenuto("2025/CV_NO/03140041.txt");
  Premi(Tasto::F2);
  EXPECT_EQ(cartella.Contenuto("2025/CV_NO/03140041.txt"), prima);
  EXPECT_TRUE(std::filesystem::is_empty(cartella / "2025/CV_SI"));
}

TEST_F(Stampa_Conti, IDatiCambiatiSiChiedono) {
  Giornata();
  Apri();
  zvendita.Text1[Campo_Spese].testo = "7";
  macchina.risposte = {false};
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.domande, ElementsAre("OK per aggiornare i dati...."));
  EXPECT_THAT(registro.righe, IsEmpty());
  macchina.risposte = {true, true};
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.domande.back(), "i dati sono stati cambiati... OK per continuare");
  EXPECT_THAT(Stampato(), testing::HasSubstr(": 7,00"));
  EXPECT_THAT(Colonna_Salvata(CampoRiga::NCV), Contains("41"));
}

// The second question refused: what prints is the account as it is.
TEST_F(Stampa_Conti, IDatiCambiatiMaNonConfermati) {
  Giornata();
  Apri();
  zvendita.Text1[Campo_NCV].testo = "77";
  macchina.risposte = {true, false};
  Premi(Tasto::F2);
  EXPECT_THAT(File_No(), ElementsAre("03140041.txt"));
}

// A number that the ledger couldn't take must not come on paper.
TEST_F(Stampa_Conti, SulDiscoPienoNonSiStampaIlNumeroNuovo) {
  Giornata();
  Apri();
  zvendita.Text1[Campo_NCV].testo = "77";
  macchina.risposte = {true, true};
  Guasto_Su("2025/20250314.txt");
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Errore 28 durante il salvataggio"));
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_THAT(File_No(), IsEmpty());
  EXPECT_EQ(Ultimo_Salvato(), "42");
}

// Before the first sheet the file of last numbers holds the highest number: a crash while printing must not
// let it be given out again.
TEST_F(Stampa_Conti, IlNumeroESuDiscoPrimaDellaCarta) {
  programma.preferenze.FlagNumCVAutomatica = false;
  Giornata();
  Apri();
  zvendita.Text1[Campo_NCV].testo = "77";
  macchina.risposte = {true, true};
  Testo durante;
  programma.disco.guasto = [&](const Percorso& p) {
    if (p.filename() == "03140077.txt") durante = Ultimo_Salvato();
    return 0;
  };
  Premi(Tasto::F2);
  EXPECT_EQ(durante, "77");
  EXPECT_EQ(Ultimo_Salvato(), "77");
}

TEST_F(Stampa_Conti, SenzaIlFileDeiNumeriNonSiStampa) {
  programma.preferenze.FlagNumCVAutomatica = false;
  Giornata();
  Apri();
  zvendita.Text1[Campo_NCV].testo = "77";
  macchina.risposte = {true, true};
  Guasto_Su("_2020_ncv.txt");
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Errore 28 durante il salvataggio"));
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_EQ(Ultimo_Salvato(), "40");
}

// The last line of the list gives the last number, also when that goes down: a day of the past was printed.
TEST_F(Stampa_Conti, LUltimoNumeroSegueLaLista) {
  Vendita(Riga_CV("Adriatica", "Orata", "1", "1"), "12");
  Vendita(Riga_CV("Baldo", "Orata", "1", "1"), "15");
  Apri();
  Premi(Tasto::F2);
  EXPECT_EQ(Ultimo_Salvato(), "15");
  EXPECT_EQ(programma.Ultimo_CV, 15);
}

TEST_F(Stampa_Conti, ConUnContoSenzaNumeroIlContatoreDiventa9999) {
  programma.preferenze.FlagNumCVAutomatica = false;
  Vendita(Riga_CV("Adriatica", "Orata", "1", "1"), "12");
  Vendita(Riga_CV("Baldo", "Orata", "1", "1"), "9999");
  Apri();
  Premi(Tasto::F2);
  EXPECT_EQ(Ultimo_Salvato(), "9999");
}

TEST_F(Stampa_Conti, IlFileDelContoSulDiscoPienoSiDiceAllaFine) {
  Giornata();
  Apri();
  zvendita.Check1.segnata = true;
  macchina.risposte = {true};
  Guasto_Su("2025/CV_NO/03140041.txt");
  Premi(Tasto::F2);
  EXPECT_EQ(registro.pagine, 2);  // the accounts stay printed
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("Il file di questi conti vendita non è stato scritto nella cartella CV_NO:\n"
                          "00041 |14/03/2025|Baldo          |-              |       |0 %"_t,
                          "fatto..."));
  EXPECT_THAT(File_No(), ElementsAre("03140042.txt"));
}

TEST_F(Stampa_Conti, SenzaNoteDiAccredito) {
  Giornata();
  Apri();
  zvendita.Check4.segnata = true;
  Premi(Tasto::F9);
  Premi(Tasto::F6);
  EXPECT_THAT(Anteprima(), Contains("Totale Imponibile = 700,00"));
  EXPECT_EQ(programma.Vet_Tabella.Righe(), 4);
}

TEST_F(Stampa_Conti, IvaAzzerata) {
  Giornata();
  Apri();
  Premi(Tasto::F9);
  Premi(Tasto::F6);
  zvendita.Check6.segnata = true;
  CambiaAzzeraIva(zvendita);
  Premi(Tasto::F6);
  EXPECT_THAT(Anteprima(), Contains("Totale  =598,00"));
  EXPECT_EQ(zvendita.Righe_CV.at(0)[CampoRiga::Iva], "0");
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Iva, 1), "10");
}

TEST_F(Stampa_Conti, SpeseInPercentualeNelFileDelTipo1) {
  programma.preferenze.FlagSarvena = true;
  Vendita(Riga_CV("Baldo", "Orata", "100", "10", "10"), "", "2", "0");
  for (const auto& [frame, totale] : {std::pair{1, "1100,00"}, {0, "1000,00"}}) {
    programma.preferenze.FlagStampaFrame = frame;
    Apri();
    Premi(Tasto::F2);
    const Testo file = cartella.Contenuto("2025/CV_NO/" + File_No().back());
    EXPECT_EQ(file, "Baldo\r\n1000,00\r\n,00\r\n,00\r\n,00\r\n1000,00\r\n100,00\r\n" + Testo(totale) +
                        "\r\n20,00\r\n1000,00\r\nno\r\n,00\r\n,00\r\n");
    // column 5 stays the percentage, or it would grow with each print
    EXPECT_EQ(zvendita.Tabella_CV[0].SpeAnt, "2");
  }
}

TEST_F(Stampa_Conti, SoleRigheAPrezzoZero) {
  Vendita(Riga_CV("Baldo", "Orata", "100", "0", "10"), "", "", "8");
  Apri();
  ASSERT_EQ(zvendita.ListaCV.Numero(), 1U);
  Premi(Tasto::F2);
  EXPECT_EQ(registro.pagine, 1);
  EXPECT_THAT(cartella.Contenuto("2025/CV_NO/03140041.txt"), testing::StartsWith("Baldo\r\n,00\r\n,00\r\n"));
}

TEST_F(Stampa_Conti, NumeroDiCinqueCifreEDataImpossibile) {
  Vendita(Riga_CV("Baldo", "Orata", "1", "1", "10"), "12345", "", "8");
  Apri();
  EXPECT_EQ(Sinistra(zvendita.ListaCV.Riga(0), 7), "12345 |");
  Premi(Tasto::F2);
  EXPECT_THAT(File_No(), ElementsAre("031412345.txt"));
  EXPECT_EQ(Ultimo_Salvato(), "12345");
  zvendita.Text1[Campo_Data].testo = "../../x";
  macchina.risposte = {true, true};
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.messaggi.at(1), testing::StartsWith("Il file di questi conti vendita non"));
}

TEST_F(Stampa_Conti, SenzaRigaSceltaFraTante) {
  Giornata();
  Apri();
  zvendita.ListaCV.scelta = -1;
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Scegliere il Conto Vendita da stampare...", "fatto..."));
  EXPECT_THAT(registro.righe, IsEmpty());
}

TEST_F(Stampa_Conti, DuranteUnComandoITastiNonFannoNiente) {
  Giornata();
  Apri();
  zvendita.Check1.segnata = true;
  macchina.risposte = {true};
  macchina.durante_attesa = [&] {
    for (const Tasto tasto : {Tasto::F2, Tasto::F4, Tasto::F6, Tasto::F8, Tasto::F9, Tasto::Esc})
      Premi(tasto);
    Rinumera(programma, zvendita);
    ModificaDati(programma, zvendita);
    EXPECT_FALSE(zvendita.Command2.attivo);
  };
  Premi(Tasto::F2);
  EXPECT_EQ(macchina.domande.size(), 1U);
  EXPECT_TRUE(zvendita.Check1.segnata);
  EXPECT_FALSE(zvendita.chiusa);
  EXPECT_TRUE(zvendita.Command2.attivo);
  EXPECT_EQ(registro.pagine, 2);
}

}  // namespace

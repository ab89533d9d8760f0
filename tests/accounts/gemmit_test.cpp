#include "accounts/gemmit.h"

#include <cerrno>

#include "core/giorno.h"
#include "tests/accounts/gemmit_prova.h"

namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using C = CampoRiga;

constexpr Vista domanda_tutti = "OK per stampare tutti i Conti Vendita\n(salta quelli con provvigione=0)";

// The machine that also notes what the caption says at each repaint.
struct Macchina_Attenta : Piattaforma_Finta {
  const Testo* titolo = nullptr;
  std::vector<Testo> titoli;
  void Ridipingi() override {
    if (titolo) titoli.push_back(*titolo);
  }
};

struct Schermo_Manuale : testing::Test {
  Schermo_Manuale() {
    programma.Cartella_Dati = cartella.percorso;
    programma.File_Ini = cartella / "Velmara_2020.ini";
    programma.preferenze = Preferenze_Predefinite();
    programma.Anno_Lavoro = "2025";
    programma.Data_AAAAMMGG = "20250314";
    programma.Data_Giorno = "14/03/2025";
    programma.Cartella_Anno = cartella / "2025";
    programma.File_Giorno = cartella / "2025" / "20250314.txt";
    programma.Ultimo_CV = 3;
    programma.Vet_Fornitori = {{"0001", "Laguna Pesca", "di Boscolo Piero", "Calle dei Botteri, 11",
                                "30015 Chioggia - VE", "201", "8"},
                               {"0002", "Valle Zappa", "", "Valle Zappa, 1", "30010 Lugo - VE", "202", "8"}};
    for (const char* nome : {"CV_NO", "CV_SI"}) std::filesystem::create_directories(cartella / "2025" / nome);
    macchina.dispositivo = &printer;
    macchina.titolo = &zgemmit.titolo;
  }
  void Apri(const std::vector<Vendita>& vendite) {
    programma.Vet_Tabella = Tabella_Vendite(vendite);
    bool errore = false;
    Salva_Giorno(programma, errore);
    ApriContiManuali(programma, zgemmit);
  }
  void ApriDueConti() {
    Apri({{"Valle Zappa", "6", "Seppia", "50", "2,00", "10", "0"},
          {"Laguna Pesca", "5", "Orata", "100", "5,00"},
          {"Laguna Pesca", "5", "Scampo", "10", "20,00", "22"}});
  }
  bool Premi(Tasto tasto) { return TastoConti(programma, zgemmit, {.tasto = tasto}); }
  std::vector<Testo> Righe_Di(const Elenco& elenco) const {
    std::vector<Testo> righe;
    for (std::size_t i = 0; i < elenco.Numero(); ++i) righe.push_back(elenco.Riga(i));
    return righe;
  }
  std::vector<Testo> Colonna(C campo) const {
    std::vector<Testo> testi;
    for (const LedgerRow& riga : programma.Vet_Tabella.righe) testi.push_back(riga[campo]);
    return testi;
  }
  Testo File(const Testo& nome) const { return cartella.Contenuto("2025/CV_NO/" + nome); }
  std::vector<Testo> Campi() const {
    std::vector<Testo> testi;
    for (const CampoTesto& campo : zgemmit.Text1) testi.push_back(campo.testo);
    return testi;
  }

  Cartella_Temporanea cartella;
  Macchina_Attenta macchina;
  Programma programma{macchina};
  Registro_Pagine registro;
  Registratore printer{macchina.stampante, registro};
  Zgemmit zgemmit;
};

// ---- opening

TEST_F(Schermo_Manuale, AllApertura) {
  ApriDueConti();
  EXPECT_EQ(zgemmit.titolo, "Conti Vendita del 14/03/2025 Ultimo ncv=3 (Manuale)");
  EXPECT_THAT(Righe_Di(zgemmit.ListaCV),
              ElementsAre("00005 |14/03/2025|Laguna Pesca   |12             |     15|8 %",
                          "00006 |14/03/2025|Valle Zappa    |12             |     15|0 %"));
  EXPECT_EQ(zgemmit.ListaCV.scelta, 0);
  EXPECT_THAT(Campi(), ElementsAre("5", "14/03/2025", "Laguna Pesca", "12", "15", "8", "Venezia"));
  EXPECT_EQ(zgemmit.Command1.testo, "Anteprima F6");
  EXPECT_EQ(zgemmit.Command2.testo, "Stampa CV F2");
  EXPECT_EQ(zgemmit.Check1.didascalia, "Stampa Tutti i CV F4");
  EXPECT_EQ(zgemmit.Check2.didascalia, "Stampa Statistica");
  EXPECT_THAT(Righe_Di(zgemmit.Combo1), ElementsAre("1 copia", "2 copie", "3 copie"));
}

// Numbers were given by hand: opening gives none, dates none, and changes no row but their order.
TEST_F(Schermo_Manuale, AprireNonCambiaLeRighe) {
  programma.preferenze.FlagNumCVAutomatica = true;
  Apri({{"Valle Zappa", "-", "Seppia", "50", "2,00"}, {"Laguna Pesca", "5", "Orata", "100", "5,00"}});
  EXPECT_THAT(Colonna(C::NCV), ElementsAre("-", "5"));
  programma.Vet_Tabella(C::DataCV, 1) = "13/03/2025";
  const Testo giorno = cartella.Contenuto("2025/20250314.txt");
  ApriContiManuali(programma, zgemmit);
  EXPECT_THAT(Colonna(C::DataCV), ElementsAre("13/03/2025", "14/03/2025"));
  EXPECT_EQ(programma.Ultimo_CV, 3);
  EXPECT_FALSE(programma.Tabella_Modificata);
  EXPECT_EQ(cartella.Contenuto("2025/20250314.txt"), giorno);
}

TEST_F(Schermo_Manuale, GiornoSenzaRighe) {
  programma.Vet_Tabella.righe = {Riga_Segnaposto()};
  ApriContiManuali(programma, zgemmit);
  EXPECT_EQ(zgemmit.ListaCV.Numero(), 0U);
  Premi(Tasto::F6);
  EXPECT_THAT(macchina.messaggi, ElementsAre("nulla da fare..."));
  Premi(Tasto::F2);
  EXPECT_EQ(macchina.messaggi.back(), "fatto...");
  zgemmit.Check1.segnata = true;
  Premi(Tasto::F2);
  Premi(Tasto::F8);
  Premi(Tasto::F9);
  ModificaDati(programma, zgemmit);
  EXPECT_THAT(macchina.domande, IsEmpty());
  EXPECT_EQ(registro.pagine, 0);
  EXPECT_EQ(programma.Ultimo_CV, 3);
}

TEST_F(Schermo_Manuale, PiuFornitoriConUnNumeroSiVede) {
  Apri({{"Laguna Pesca", "5", "Orata", "1", "1"},
        {"Valle Zappa", "5", "Orata", "1", "1"},
        {"Valle Zappa", "6", "Orata", "1", "1"}});
  EXPECT_EQ(zgemmit.Avviso.testo, "Il conto 5 ha righe di più fornitori: Laguna Pesca, Valle Zappa"_t);
  Premi(Tasto::F9);
  EXPECT_EQ(zgemmit.Avviso.testo, "");
}

// ---- keys

TEST_F(Schermo_Manuale, F8EF9GiranoFraIConti) {
  ApriDueConti();
  struct Caso {
    Tasto tasto;
    int scelta;
  };
  const Caso casi[] = {{Tasto::F9, 1}, {Tasto::F9, 0}, {Tasto::F8, 1}, {Tasto::F8, 0}};
  for (const auto& [tasto, scelta] : casi) {
    Premi(tasto);
    EXPECT_EQ(zgemmit.ListaCV.scelta, scelta);
    EXPECT_EQ(zgemmit.Text1[Campo_NCV].testo, scelta == 0 ? "5" : "6");
  }
}

TEST_F(Schermo_Manuale, F4CambiaIlSegnoEF5NonFaNulla) {
  ApriDueConti();
  Premi(Tasto::F4);
  EXPECT_TRUE(zgemmit.Check1.segnata);
  Premi(Tasto::F4);
  EXPECT_FALSE(zgemmit.Check1.segnata);
  EXPECT_FALSE(Premi(Tasto::F5));
  EXPECT_FALSE(TastoConti(programma, zgemmit, {.tasto = Tasto::F2, .ctrl = true}));
}

TEST_F(Schermo_Manuale, InvioSuEGiuPassanoFraICampi) {
  ApriDueConti();
  EXPECT_TRUE(TastoCampoConto(zgemmit, Campo_NCV, {.tasto = Tasto::Invio}));
  EXPECT_EQ(zgemmit.fuoco, Campo_Data);
  EXPECT_TRUE(TastoCampoConto(zgemmit, Campo_Citta, {.tasto = Tasto::Giu}));
  EXPECT_EQ(zgemmit.fuoco, Campo_NCV);
  EXPECT_TRUE(TastoCampoConto(zgemmit, Campo_NCV, {.tasto = Tasto::Su}));
  EXPECT_EQ(zgemmit.fuoco, Campo_Citta);
  EXPECT_FALSE(TastoCampoConto(zgemmit, Campo_NCV, {.tasto = Tasto::F9}));
}

TEST_F(Schermo_Manuale, IlDoppioClicMetteLaData) {
  ApriDueConti();
  DoppioClicCampo(programma, zgemmit, Campo_DDT);
  EXPECT_EQ(zgemmit.Text1[Campo_DDT].testo, "12 del 14/03/2025");
  DoppioClicCampo(programma, zgemmit, Campo_Fornitore);
  EXPECT_EQ(zgemmit.Text1[Campo_Fornitore].testo, "14/03/2025");
  DoppioClicCampo(programma, zgemmit, Campo_NCV);
  EXPECT_EQ(zgemmit.Text1[Campo_NCV].testo, "5");
}

TEST_F(Schermo_Manuale, Aiuto) {
  ApriDueConti();
  MostraAiutoConti(programma, zgemmit);
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("Questa procedura richiede che il numero di conto vendita sia stato attribuito \n"
                          " Manualmente.   \n E' possibile stampare \n"
                          "tutti i conti vendita con un unico comando \n(prima F4 e poi F2)."));
}

// ---- preview

TEST_F(Schermo_Manuale, Anteprima) {
  Apri(Vendite_Di_Esempio());
  Premi(Tasto::F6);
  EXPECT_THAT(
      Righe_Di(zgemmit.Anteprima),
      ElementsAre("Spett.le  Laguna Pesca", "di Boscolo Piero", "30015 Chioggia - VE Calle dei Botteri, 11",
                  " ", "Num Conto Vendita: 5", "Data: 14/03/2025", "Rif. DDT/Bolla n. 12", " ",
                  "Nr.  Qualità   Kg.   Prezzo    Importo    Iva"_t, " ",
                  " 001  : Orata                : 10,000 x -5,00 = -50,00 + 10,% ",
                  " 002  : Orata                : 100,000 x 5,00 = 500,00 + 10,% ",
                  " 003  : Scampo               : 10,000 x 20,00 = 200,00 + 22,% ",
                  " 004  : Vongola verace       : 20,000 x 3,00 = 60,00 + 04,% ", " ",
                  "Totale Imponibile = 650,00", "Totale commissioni (8,00 %) = 52,000", "", "", "", "", "",
                  "", "Totale  =742,28", "Spese anticipate = 15,00", "Totale =727,28", " ",
                  "Kg Totali 140,00", " ", "ESC per tornare...."));
  EXPECT_TRUE(zgemmit.Anteprima.visibile);
  EXPECT_FALSE(zgemmit.Pannello.visibile);
  EXPECT_EQ(zgemmit.titolo, "Preview ContoVendita ... (Manuale)");
  EXPECT_THAT(macchina.titoli, ElementsAre("Calcoli per ContoVendita ...", "Calcolo Importi ..."));
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_FALSE(std::filesystem::exists(cartella / "2025/CV_NO/03140005.txt"));

  Premi(Tasto::F2);  // what is in view
  EXPECT_THAT(macchina.messaggi, ElementsAre("fatto..."));
  EXPECT_TRUE(std::filesystem::exists(cartella / "2025/CV_NO/03140005.txt"));
  EXPECT_TRUE(zgemmit.Anteprima.visibile);
  Premi(Tasto::Esc);
  EXPECT_FALSE(zgemmit.Anteprima.visibile);
  EXPECT_FALSE(zgemmit.chiusa);
  EXPECT_EQ(zgemmit.titolo, "Conti Vendita del 14/03/2025 Ultimo ncv=5 (Manuale)");
  EXPECT_EQ(zgemmit.fuoco, Zgemmit::fuoco_Lista);
  Premi(Tasto::Esc);
  EXPECT_TRUE(zgemmit.chiusa);
}

// F2 after it prints the account in view: the preview of another one doesn't stay in front of the list.
TEST_F(Schermo_Manuale, UnAltroContoToglieLAnteprima) {
  ApriDueConti();
  Premi(Tasto::F6);
  Premi(Tasto::F9);
  EXPECT_FALSE(zgemmit.Anteprima.visibile);
  EXPECT_TRUE(zgemmit.Pannello.visibile);
  EXPECT_EQ(zgemmit.ListaCV.scelta, 1);
  Premi(Tasto::F6);
  Premi(Tasto::F4);
  macchina.risposte = {true};
  Premi(Tasto::F2);
  EXPECT_FALSE(zgemmit.Anteprima.visibile);
}

TEST_F(Schermo_Manuale, AnteprimaSenzaSceltaESenzaFornitore) {
  Apri({{"Sconosciuto", "5", "Orata", "1", "1"}});
  zgemmit.ListaCV.scelta = -1;
  Premi(Tasto::F6);
  EXPECT_THAT(macchina.messaggi, ElementsAre("ripetere il comando..."));
  EXPECT_EQ(zgemmit.ListaCV.scelta, 0);
  Premi(Tasto::F6);
  EXPECT_EQ(macchina.messaggi.back(), "Sconosciuto\ncodice non trovato tra i fornitori ... !");
  EXPECT_FALSE(zgemmit.Anteprima.visibile);
}

// ---- paper and file

TEST_F(Schermo_Manuale, F2StampaIlContoScelto) {
  Apri(Vendite_Di_Esempio());
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.domande, IsEmpty());
  EXPECT_THAT(macchina.messaggi, ElementsAre("fatto..."));
  EXPECT_EQ(registro.pagine, 1);
  EXPECT_EQ(registro.righe.front(), "documento \"20250314 Conto Vendita 5 0001\" Registro");
  EXPECT_EQ(zgemmit.titolo, "Conti Vendita (Manuale)");
  EXPECT_EQ(programma.Ultimo_CV, 5);
  EXPECT_THAT(cartella.Contenuto("_2020_ncv.txt"), HasSubstr("\r\n5\r\n"));
  EXPECT_TRUE(zgemmit.attiva);
}

// Amounts in plain form: the account of the other screen has two decimals in any case.
TEST_F(Schermo_Manuale, IlFileDelConto) {
  Apri(Vendite_Di_Esempio());
  cartella.Metti("2025/CV_SI/03140005.txt", "gemello");
  Premi(Tasto::F2);
  EXPECT_EQ(
      File("03140005.txt"),
      "Laguna Pesca\r\n650\r\n52\r\n184\r\n40,48\r\n414\r\n41,4\r\n742,28\r\n15\r\n727,28\r\nno\r\n60\r\n"
      "2,4\r\n");
  EXPECT_FALSE(std::filesystem::exists(cartella / "2025/CV_SI/03140005.txt"));
}

TEST_F(Schermo_Manuale, TreCopieEUnFileSolo) {
  ApriDueConti();
  zgemmit.Combo1.scelta = 2;
  Premi(Tasto::F2);
  EXPECT_THAT(registro.righe, Contains("fine").Times(3));
  EXPECT_EQ(registro.pagine, 3);
  EXPECT_THAT(cartella.Contenuto("2025/CV_NO/03140006.txt"), "(manca)");
}

// The question speaks of a skipping that there never was: a commission of 0 prints too.
TEST_F(Schermo_Manuale, TuttiAncheQuelliSenzaProvvigione) {
  ApriDueConti();
  Premi(Tasto::F4);
  macchina.risposte = {true};
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.domande, ElementsAre(domanda_tutti));
  EXPECT_THAT(registro.righe, IsSupersetOf({"documento \"20250314 Conto Vendita 5 0001\" Registro",
                                            "documento \"20250314 Conto Vendita 6 0002\" Registro"}));
  EXPECT_THAT(File("03140006.txt"), HasSubstr("Valle Zappa\r\n100\r\n0\r\n"));
  EXPECT_EQ(zgemmit.ListaCV.scelta, 1);
  EXPECT_EQ(programma.Ultimo_CV, 6);
}

// Rows to which nobody gave a number are an account too: it stands first in the list, prints like the others,
// and shows the agent what was forgotten. 9999 stands for no number and yet becomes the last one used.
TEST_F(Schermo_Manuale, RigheSenzaNumero) {
  Apri({{"Laguna Pesca", "-", "Orata", "1", "1"},
        {"Laguna Pesca", "5", "Orata", "1", "1"},
        {"Valle Zappa", "9999", "Orata", "1", "1"}});
  EXPECT_THAT(Righe_Di(zgemmit.ListaCV),
              ElementsAre(HasSubstr("00000 |"), HasSubstr("00005 |"), HasSubstr("09999 |")));
  Premi(Tasto::F4);
  macchina.risposte = {true};
  Premi(Tasto::F2);
  EXPECT_THAT(registro.righe, Contains("fine").Times(3));
  EXPECT_NE(File("03140000.txt"), "(manca)");
  EXPECT_EQ(programma.Ultimo_CV, 9999);
}

TEST_F(Schermo_Manuale, TuttiAnnullato) {
  ApriDueConti();
  Premi(Tasto::F4);
  macchina.risposte = {false};
  Premi(Tasto::F2);
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_EQ(File("03140005.txt"), "(manca)");
}

TEST_F(Schermo_Manuale, UnFornitoreCheMancaRestaFuoriEGliAltriNo) {
  Apri({{"Laguna Pesca", "5", "Orata", "1", "1"},
        {"Sconosciuto", "6", "Orata", "1", "1"},
        {"Valle Zappa", "7", "Orata", "1", "1"}});
  Premi(Tasto::F4);
  macchina.risposte = {true};
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("Sconosciuto\ncodice non trovato tra i fornitori ... !", "fatto..."));
  EXPECT_THAT(registro.righe, Contains("fine").Times(2));
  EXPECT_EQ(File("03140006.txt"), "(manca)");
  EXPECT_NE(File("03140007.txt"), "(manca)");
}

TEST_F(Schermo_Manuale, SenzaSceltaEConPiuConti) {
  ApriDueConti();
  zgemmit.ListaCV.scelta = -1;
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Scegliere il Conto Vendita da stampare...", "fatto..."));
  EXPECT_THAT(registro.righe, IsEmpty());
}

TEST_F(Schermo_Manuale, IlFileCheNonSiPuoScrivereEDetto) {
  ApriDueConti();
  programma.disco.guasto = [](const Percorso& dove) {
    return Contiene(Testo_Percorso(dove), "CV_NO") ? ENOSPC : 0;
  };
  Premi(Tasto::F4);
  macchina.risposte = {true};
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("Il file di questi conti vendita non è stato scritto nella cartella CV_NO:\n"_t
                          "00005 |14/03/2025|Laguna Pesca   |12             |     15|8 %\n"_t
                          "00006 |14/03/2025|Valle Zappa    |12             |     15|0 %"_t,
                          "fatto..."));
  EXPECT_THAT(registro.righe, Contains("fine").Times(2));
}

TEST_F(Schermo_Manuale, StampareNonCambiaIlLibro) {
  Apri(Vendite_Di_Esempio());
  const Tabella prima = programma.Vet_Tabella;
  const Testo giorno = cartella.Contenuto("2025/20250314.txt");
  Premi(Tasto::F2);
  EXPECT_EQ(programma.Vet_Tabella.righe, prima.righe);
  EXPECT_EQ(cartella.Contenuto("2025/20250314.txt"), giorno);
  EXPECT_FALSE(programma.Tabella_Modificata);
}

TEST_F(Schermo_Manuale, LeDicitureDelTracciato) {
  struct Caso {
    int tracciato;
    std::vector<Testo> scritte;
  };
  programma.Ragione = {"Ditta Dolvena", "", "", "", "", "Tel. 041 000", "Partita I.V.A. 17"};
  const Caso casi[] = {{0, {"Spese Anticipate Euro"}},
                       {1, {"Telefono:"}},
                       {2, {"Provvigioni ", "P.IVA 201"}},
                       {3, {"Telefono:"}},
                       {4, {"Telefono:"}}};
  for (const auto& [tracciato, scritte] : casi) {
    programma.preferenze.FlagStampaFrame = tracciato;
    registro = {};
    Apri(Vendite_Di_Esempio());
    Premi(Tasto::F2);
    for (const Testo& scritta : scritte)
      EXPECT_THAT(registro.righe, Contains(HasSubstr(": " + scritta))) << tracciato << " " << scritta;
  }
}

// ---- changes

TEST_F(Schermo_Manuale, ModificaDatiSuTutteLeRigheDelNumero) {
  Apri({{"Laguna Pesca", "5", "Orata", "100", "5,00"},
        {"Laguna Pesca", "5", "Orata", "10", " -5,00", "10", "8", "15", "Rif. 3"},
        {"Laguna Pesca", "6", "Orata", "10", "5,00"}});
  zgemmit.Text1[Campo_DDT].testo = " 77 ";
  zgemmit.Text1[Campo_Spese].testo = "20,5";
  zgemmit.Text1[Campo_Prov].testo = "9";
  macchina.risposte = {true};
  ModificaDati(programma, zgemmit);
  EXPECT_THAT(macchina.domande, ElementsAre("i dati sono stati cambiati... OK per continuare"));
  EXPECT_THAT(Colonna(C::DDT_CV), ElementsAre("77", "Rif. 3", "12"));  // a credit keeps its own
  EXPECT_THAT(Colonna(C::SAnt), ElementsAre("20,5", "20,5", "15"));
  EXPECT_THAT(Colonna(C::Provvigione), ElementsAre("9", "9", "8"));
  EXPECT_EQ(zgemmit.Tabella_CV[0].DDT_CV, "77");
  EXPECT_FALSE(programma.Tabella_Modificata);
  EXPECT_THAT(cartella.Contenuto("2025/20250314.txt"), HasSubstr("20,5"));
}

TEST_F(Schermo_Manuale, NienteDiCambiatoNienteDomanda) {
  ApriDueConti();
  zgemmit.Text1[Campo_Fornitore].testo = " LAGUNA pesca ";
  ModificaDati(programma, zgemmit);
  EXPECT_THAT(macchina.domande, IsEmpty());
  EXPECT_THAT(Colonna(C::Fornitore), Each(testing::Not("LAGUNA pesca")));
}

TEST_F(Schermo_Manuale, AnnullaLasciaTutto) {
  ApriDueConti();
  const Tabella prima = programma.Vet_Tabella;
  zgemmit.Text1[Campo_Prov].testo = "9";
  macchina.risposte = {false};
  ModificaDati(programma, zgemmit);
  EXPECT_EQ(programma.Vet_Tabella.righe, prima.righe);
  EXPECT_EQ(zgemmit.Tabella_CV[0].Prov, "8");
  EXPECT_EQ(zgemmit.Text1[Campo_Prov].testo, "9");
}

TEST_F(Schermo_Manuale, UnAltroNumeroAncheDiUnAltroConto) {
  ApriDueConti();
  zgemmit.Text1[Campo_NCV].testo = "12";
  macchina.risposte = {true};
  ModificaDati(programma, zgemmit);
  EXPECT_THAT(Colonna(C::NCV), ElementsAre("12", "12", "6"));
  EXPECT_EQ(zgemmit.ListaCV.Numero(), 2U);
  EXPECT_EQ(zgemmit.ListaCV.scelta, 1);  // it has gone to its place
  EXPECT_EQ(zgemmit.Text1[Campo_Fornitore].testo, "Laguna Pesca");
  zgemmit.Text1[Campo_NCV].testo = "6";
  macchina.risposte = {true};
  ModificaDati(programma, zgemmit);
  EXPECT_EQ(zgemmit.ListaCV.Numero(), 1U);
  EXPECT_EQ(zgemmit.Avviso.testo, "Il conto 6 ha righe di più fornitori: Laguna Pesca, Valle Zappa"_t);
}

TEST_F(Schermo_Manuale, UnAltroFornitore) {
  for (const bool confermato : {true, false}) {
    ApriDueConti();
    macchina.domande.clear();
    ScegliFornitore(zgemmit, "Nord Adria");
    EXPECT_EQ(zgemmit.fuoco, Campo_Fornitore);
    macchina.risposte = {true, confermato};
    ModificaDati(programma, zgemmit);
    EXPECT_EQ(macchina.domande.back(),
              "Attenzione NCV = 5 : Il fornitore è stato cambiato da:\nLaguna Pesca\na:\nNord Adria\n"_t
              "...OK per aggiornare i dati al CV n. 5"_t);
    const Testo atteso = confermato ? "Nord Adria" : "Laguna Pesca";
    EXPECT_THAT(Colonna(C::Fornitore), ElementsAre(atteso, atteso, "Valle Zappa"));
    EXPECT_EQ(zgemmit.Tabella_CV[0].Fornitore, atteso);
  }
}

// Rows of two suppliers under one number: a change of the commission must not give one the other's goods.
TEST_F(Schermo_Manuale, CambiareLaProvvigioneNonCambiaIFornitori) {
  Apri({{"Laguna Pesca", "5", "Orata", "1", "1"}, {"Valle Zappa", "5", "Orata", "1", "1"}});
  zgemmit.Text1[Campo_Prov].testo = "3";
  macchina.risposte = {true};
  ModificaDati(programma, zgemmit);
  EXPECT_THAT(Colonna(C::Fornitore), ElementsAre("Laguna Pesca", "Valle Zappa"));
  EXPECT_THAT(Colonna(C::Provvigione), Each("3"));
}

TEST_F(Schermo_Manuale, DiscoPienoRimetteTutto) {
  ApriDueConti();
  const Tabella prima = programma.Vet_Tabella;
  const Tabella_Conti conti = zgemmit.Tabella_CV;
  programma.disco.guasto = [](const Percorso&) { return ENOSPC; };
  zgemmit.Text1[Campo_Prov].testo = "9";
  macchina.risposte = {true, true};
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.domande,
              ElementsAre("OK per aggiornare i dati....", "i dati sono stati cambiati... OK per continuare"));
  EXPECT_EQ(programma.Vet_Tabella.righe, prima.righe);
  EXPECT_EQ(zgemmit.Tabella_CV, conti);
  EXPECT_EQ(zgemmit.Text1[Campo_Prov].testo, "9");
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_THAT(macchina.messaggi, ElementsAre(HasSubstr("durante il salvataggio")));
}

TEST_F(Schermo_Manuale, F2ConCampiCambiati) {
  struct Caso {
    std::deque<bool> risposte;
    int pagine;
    Testo provvigione;
  };
  const Caso casi[] = {{{true, true}, 1, "9"}, {{false}, 0, "8"}, {{true, false}, 0, "8"}};
  for (const Caso& caso : casi) {
    ApriDueConti();
    registro = {};
    zgemmit.Text1[Campo_Prov].testo = "9";
    macchina.risposte = caso.risposte;
    Premi(Tasto::F2);
    EXPECT_EQ(registro.pagine, caso.pagine);
    EXPECT_EQ(Colonna(C::Provvigione).front(), caso.provvigione);
    EXPECT_THAT(macchina.risposte, IsEmpty());
  }
}

// ---- closing

TEST_F(Schermo_Manuale, ChiudendoSiSalvanoSegniECitta) {
  ApriDueConti();
  zgemmit.Check1.segnata = zgemmit.Check2.segnata = true;
  zgemmit.Text1[Campo_Citta].testo = " Chioggia ";
  Premi(Tasto::Esc);
  EXPECT_TRUE(zgemmit.chiusa);
  const Testo ini = cartella.Contenuto("Velmara_2020.ini");
  for (const char* riga : {"FlagC1=-1", "FlagC2=-1", "CittaVC=Chioggia"}) EXPECT_THAT(ini, HasSubstr(riga));
  Zgemmit ancora;
  ApriContiManuali(programma, ancora);
  EXPECT_TRUE(ancora.Check1.segnata);
  EXPECT_EQ(ancora.Text1[Campo_Citta].testo, "Chioggia");
}

TEST_F(Schermo_Manuale, MentreUnComandoLavoraGliAltriAspettano) {
  ApriDueConti();
  Premi(Tasto::F4);
  macchina.durante_attesa = [&] {
    EXPECT_FALSE(zgemmit.Command1.attivo);
    EXPECT_FALSE(zgemmit.Chiudi.attivo);
    Premi(Tasto::Esc);
    Premi(Tasto::F2);
    Premi(Tasto::F9);
  };
  macchina.risposte = {true};
  Premi(Tasto::F2);
  EXPECT_FALSE(zgemmit.chiusa);
  EXPECT_THAT(registro.righe, Contains("fine").Times(2));
  EXPECT_TRUE(zgemmit.Chiudi.attivo);
}

}  // namespace

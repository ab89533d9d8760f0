#include "accounts/zvendita.h"

#include "tests/accounts/conti_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Zvendita_Test : testing::Test, Conti_Di_Prova {
  // Three suppliers without a number, out of order; one row of price 0, one credit row.
  void Giornata() {
    Vendita(Riga_CV("Cozze Srl", "Cozza", "100", "2"), "", "", "0");
    Vendita(Riga_CV("Adriatica", "Orata", "10", "9"), "", "5", "8");
    Vendita(Riga_CV("Baldo", "Sarda", "20", "3"), "9999", "", "10");
    Vendita(Riga_CV("Adriatica", "Branzino", "5", "12"), "", "15", "8");
    Vendita(Riga_CV("Adriatica", "Orata", "1", "-9"), "", "15", "8")[CampoRiga::DDT_CV] = "Rif. 7";
  }
  // The same without automatic numbers.
  void A_Mano() { programma.preferenze.FlagNumCVAutomatica = false; }
  void Scegli(Vista fornitore) {
    for (std::size_t i = 0; i < zvendita.Tabella_CV.size(); ++i)
      if (zvendita.Tabella_CV[i].Fornitore == fornitore) return SceltaConto(zvendita, static_cast<int>(i));
    FAIL() << fornitore;
  }
  Testo& Campo(Campo_Conto campo) { return zvendita.Text1[static_cast<std::size_t>(campo)].testo; }
  void Premi(Tasto tasto) { EXPECT_TRUE(TastoConti(programma, zvendita, {.tasto = tasto})); }
  std::vector<Testo> Fornitori() const {
    std::vector<Testo> nomi;
    for (const Conto_CV& conto : zvendita.Tabella_CV) nomi.push_back(conto.Fornitore);
    return nomi;
  }
  bool Importi_Attivi() const {
    return zvendita.Text1[Campo_Spese].attivo && zvendita.Text1[Campo_Prov].attivo;
  }
};

// ---- opening

TEST_F(Zvendita_Test, Apertura) {
  Giornata();
  A_Mano();
  Apri();
  EXPECT_EQ(zvendita.titolo, "Conti Vendita del 14/03/2025 Ultimo ncv=40");
  EXPECT_THAT(Fornitori(), ElementsAre("Cozze Srl", "Adriatica", "Baldo"));  // 9999 stands last
  EXPECT_THAT(Numeri(), ElementsAre("", "", "9999"));
  EXPECT_EQ(zvendita.ListaCV.Riga(1), "00000 |14/03/2025|Adriatica      |Rif. 7         |     15|8 %");
  EXPECT_EQ(zvendita.ListaCV.scelta, 0);
  EXPECT_EQ(Campo(Campo_Fornitore), "Cozze Srl");
  EXPECT_EQ(zvendita.Caption[Campo_Spese].testo, "Spese anticipate in Euro");
  EXPECT_EQ(zvendita.Caption[Campo_Prov].testo, "Provvigione %");
  EXPECT_THAT(macchina.domande, IsEmpty());
  // the ledger is sorted and dated, and not saved by itself
  EXPECT_THAT(Colonna(CampoRiga::Fornitore),
              ElementsAre("Adriatica", "Adriatica", "Adriatica", "Baldo", "Cozze Srl"));
  EXPECT_THAT(Colonna(CampoRiga::Num), ElementsAre("0002", "0004", "0005", "0003", "0001"));
  EXPECT_THAT(Colonna(CampoRiga::DataCV), testing::Each("14/03/2025"));
  EXPECT_TRUE(programma.Tabella_Modificata);
  EXPECT_THAT(Colonna_Salvata(CampoRiga::NCV), ElementsAre("(manca)"));
}

// An account always carries the date of the day that it is opened on.
TEST_F(Zvendita_Test, LaDataDiPrimaSiPerde) {
  A_Mano();
  Vendita(Riga_CV("Baldo", "Sarda", "1", "1"), "12")[CampoRiga::DataCV] = "01/02/2024";
  Apri();
  EXPECT_EQ(zvendita.Tabella_CV[0].Data, "14/03/2025");
  EXPECT_EQ(zvendita.Tabella_CV[0].NCV, "12");
}

TEST_F(Zvendita_Test, DidascalieConSpeseInPercentuale) {
  programma.preferenze.FlagSarvena = true;
  Apri();
  EXPECT_EQ(zvendita.Caption[Campo_Spese].testo, "Spese acc. % imponibile");
  EXPECT_EQ(zvendita.Caption[Campo_Prov].testo, "Provvigione % imponibile");
}

TEST_F(Zvendita_Test, GiornoSenzaRighe) {
  programma.preferenze.AggioBanca = "3";
  Apri();
  EXPECT_EQ(zvendita.ListaCV.Numero(), 0U);
  EXPECT_EQ(Campo(Campo_NCV), "41");  // the proposal, which no account covers
  EXPECT_EQ(Campo(Campo_Spese), "3");
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::DataCV, 1), "");
  EXPECT_FALSE(programma.Tabella_Modificata);
  Premi(Tasto::F6);
  EXPECT_THAT(macchina.messaggi, ElementsAre("nulla da fare..."));
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.messaggi, ElementsAre("nulla da fare...", "fatto..."));
  Premi(Tasto::F8);
  Premi(Tasto::F9);
  ModificaDati(programma, zvendita);
  EXPECT_EQ(Ultimo_Salvato(), "40");
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_FALSE(programma.disco.Esiste_File(programma.File_Giorno));
}

// ---- numbers by themselves

TEST_F(Zvendita_Test, NumeriAutomatici) {
  Giornata();
  Apri();
  // the last supplier of the alphabet takes the first number
  EXPECT_THAT(Fornitori(), ElementsAre("Cozze Srl", "Baldo", "Adriatica"));
  EXPECT_THAT(Numeri(), ElementsAre("41", "42", "43"));
  EXPECT_EQ(zvendita.titolo, "Conti Vendita del 14/03/2025 Ultimo ncv=43");
  EXPECT_EQ(programma.Ultimo_CV, 43);
  EXPECT_EQ(Ultimo_Salvato(), "43");
  // on purpose the ledger has what each account had before; the day is saved so
  EXPECT_THAT(Colonna_Salvata(CampoRiga::NCV), ElementsAre("", "", "", "9999", ""));
  EXPECT_THAT(Colonna_Salvata(CampoRiga::DataCV), testing::Each("14/03/2025"));
  EXPECT_FALSE(programma.Tabella_Modificata);
}

// A screen that is closed without saving has used its numbers up.
TEST_F(Zvendita_Test, AprireDueVolteConsumaNumeri) {
  Giornata();
  Apri();
  Apri();
  EXPECT_THAT(Numeri(), ElementsAre("44", "45", "46"));
  EXPECT_EQ(Ultimo_Salvato(), "46");
}

TEST_F(Zvendita_Test, ChiHaUnNumeroLoTiene) {
  Vendita(Riga_CV("Adriatica", "Orata", "1", "1"), "9998");
  Vendita(Riga_CV("Baldo", "Orata", "1", "1"), "12");
  Vendita(Riga_CV("Cozze Srl", "Orata", "1", "1"), "0");
  Apri();
  EXPECT_THAT(Numeri(), ElementsAre("12", "41", "9998"));
  EXPECT_EQ(Ultimo_Salvato(), "41");
}

// The rows of a supplier take the text of his last row, also where an earlier one had a number.
TEST_F(Zvendita_Test, LUltimaRigaDecidePerTutte) {
  Vendita(Riga_CV("Adriatica", "Orata", "1", "1"), "12");
  Vendita(Riga_CV("Adriatica", "Sarda", "1", "1"), "-");
  Apri();
  EXPECT_THAT(Numeri(), ElementsAre("41"));
  EXPECT_THAT(Colonna_Salvata(CampoRiga::NCV), ElementsAre("-", "-"));
}

TEST_F(Zvendita_Test, SulDiscoPienoNessunNumeroSiConsuma) {
  Giornata();
  Guasto_Su("2025/20250314.txt");
  Apri();
  EXPECT_THAT(macchina.messaggi, ElementsAre("Errore 28 durante il salvataggio"));
  EXPECT_THAT(Numeri(), ElementsAre("", "", "9999"));
  EXPECT_EQ(programma.Ultimo_CV, 40);
  EXPECT_EQ(Ultimo_Salvato(), "40");
  EXPECT_TRUE(programma.Tabella_Modificata);
}

// A number that couldn't be put down must not be shown: it would be given out twice.
TEST_F(Zvendita_Test, SenzaIlFileDeiNumeriNessunNumeroSiMostra) {
  Giornata();
  Guasto_Su("_2020_ncv.txt");
  Apri();
  EXPECT_THAT(Numeri(), ElementsAre("", "", "9999"));
  EXPECT_EQ(programma.Ultimo_CV, 40);
  EXPECT_EQ(zvendita.titolo, "Conti Vendita del 14/03/2025 Ultimo ncv=40");
  Aggiusta();
  Apri();
  EXPECT_THAT(Numeri(), ElementsAre("41", "42", "43"));
}

// ---- moving about

TEST_F(Zvendita_Test, F8EF9GiranoInTondo) {
  Giornata();
  Apri();
  Premi(Tasto::F8);
  EXPECT_EQ(zvendita.ListaCV.scelta, 2);
  EXPECT_EQ(Campo(Campo_NCV), "43");
  Premi(Tasto::F9);
  EXPECT_EQ(zvendita.ListaCV.scelta, 0);
  Premi(Tasto::F9);
  EXPECT_EQ(Campo(Campo_Fornitore), "Baldo");
}

TEST_F(Zvendita_Test, TastiNeiCampi) {
  Giornata();
  Apri();
  const auto premi = [&](int campo, Tasto tasto) {
    EXPECT_TRUE(TastoCampoConto(zvendita, campo, {.tasto = tasto}));
    return zvendita.fuoco;
  };
  EXPECT_EQ(premi(0, Tasto::Invio), 1);
  EXPECT_EQ(premi(1, Tasto::Giu), 2);
  EXPECT_EQ(premi(2, Tasto::Su), 1);
  EXPECT_EQ(premi(6, Tasto::Invio), 0);  // the bank's field is off
  EXPECT_EQ(premi(0, Tasto::Su), 6);
  zvendita.Text1[Campo_Spese].attivo = zvendita.Text1[Campo_Prov].attivo = false;
  EXPECT_EQ(premi(3, Tasto::Invio), 6);
  EXPECT_FALSE(TastoCampoConto(zvendita, 0, {.tasto = Tasto::F8}));
  EXPECT_FALSE(TastoCampoConto(zvendita, 0, {.tasto = Tasto::Giu, .ctrl = true}));
}

TEST_F(Zvendita_Test, CaratteriDeiCampi) {
  EXPECT_EQ(CarattereCampoConto(Campo_Spese, '7', "", ','), '7');
  EXPECT_EQ(CarattereCampoConto(Campo_Spese, '.', "12", ','), ',');
  EXPECT_EQ(CarattereCampoConto(Campo_Prov, 'k', "12", '.'), '.');
  EXPECT_EQ(CarattereCampoConto(Campo_Prov, '-', "6,5", ','), std::nullopt);
  EXPECT_EQ(CarattereCampoConto(Campo_DDT, 'k', "12", ','), 'k');
}

TEST_F(Zvendita_Test, DoppioClic) {
  Giornata();
  Apri();
  Campo(Campo_DDT) = "123";
  DoppioClicCampo(programma, zvendita, Campo_DDT);
  EXPECT_EQ(Campo(Campo_DDT), "123 del 14/03/2025");
  DoppioClicCampo(programma, zvendita, Campo_Fornitore);  // an oddity that operators know
  EXPECT_EQ(Campo(Campo_Fornitore), "14/03/2025");
}

TEST_F(Zvendita_Test, IvaAzzerataSiVede) {
  Apri();
  EXPECT_EQ(zvendita.Stato_IVA.testo, "(Calcola Iva)");
  zvendita.Check6.segnata = zvendita.Check7.segnata = true;
  CambiaAzzeraIva(zvendita);
  EXPECT_EQ(zvendita.Stato_IVA.testo, "(Iva Azzerata)");
  EXPECT_EQ(zvendita.Schermo.sfondo, (Colore{200, 200, 255}));
  EXPECT_EQ(zvendita.Check1.sfondo, (Colore{200, 200, 255}));
  EXPECT_TRUE(zvendita.Check7.segnata);
  zvendita.Check6.segnata = false;
  CambiaAzzeraIva(zvendita);
  EXPECT_FALSE(zvendita.Check7.segnata);
  EXPECT_EQ(zvendita.Schermo.sfondo, (Colore{255, 255, 255}));
}

TEST_F(Zvendita_Test, AggioBanca) {
  Apri();
  EXPECT_EQ(Campo(Campo_Aggio), "0");
  EXPECT_FALSE(zvendita.Text1[Campo_Aggio].attivo);
  zvendita.Check8.segnata = true;
  CambiaAggioBanca(zvendita);
  EXPECT_EQ(Campo(Campo_Aggio), "1");
  EXPECT_TRUE(zvendita.Text1[Campo_Aggio].attivo);
  Campo(Campo_Aggio) = "2,5";
  Premi(Tasto::F2);
  EXPECT_EQ(programma.preferenze.PercentualeAggioBanca, "2,5");
  EXPECT_THAT(Ini(), testing::HasSubstr("PercentualeAggioBanca"));
}

// ---- changing an account

TEST_F(Zvendita_Test, ModificaDati) {
  Giornata();
  A_Mano();
  Apri();
  Scegli("Adriatica");
  Campo(Campo_NCV) = "50";
  Campo(Campo_DDT) = "123 del 14/03/2025";
  Campo(Campo_Spese) = " 20 ";
  macchina.risposte = {true};
  ModificaDati(programma, zvendita);
  EXPECT_THAT(macchina.domande, ElementsAre("i dati sono stati cambiati... OK per continuare"));
  EXPECT_THAT(Colonna_Salvata(CampoRiga::NCV), ElementsAre("50", "50", "50", "9999", ""));
  EXPECT_THAT(Colonna_Salvata(CampoRiga::SAnt), ElementsAre("20", "20", "20", "", ""));
  // a credit row keeps its own reference
  EXPECT_THAT(Colonna_Salvata(CampoRiga::DDT_CV),
              ElementsAre("123 del 14/03/2025", "123 del 14/03/2025", "Rif. 7", "-", "-"));
  // the account has moved in the list and stays the selected one
  EXPECT_THAT(Fornitori(), ElementsAre("Cozze Srl", "Adriatica", "Baldo"));
  EXPECT_EQ(Campo(Campo_Fornitore), "Adriatica");
  EXPECT_TRUE(Importi_Attivi());
  EXPECT_FALSE(programma.Tabella_Modificata);
  EXPECT_EQ(Ultimo_Salvato(), "40");  // the last number waits for the print
}

TEST_F(Zvendita_Test, IlContoModificatoRestaScelto) {
  Giornata();
  Apri();  // 41 Cozze, 42 Baldo, 43 Adriatica
  Campo(Campo_NCV) = "60";
  macchina.risposte = {true};
  ModificaDati(programma, zvendita);
  EXPECT_THAT(Fornitori(), ElementsAre("Baldo", "Adriatica", "Cozze Srl"));
  EXPECT_EQ(zvendita.ListaCV.scelta, 2);
  EXPECT_EQ(Campo(Campo_Fornitore), "Cozze Srl");
}

TEST_F(Zvendita_Test, SenzaCambiamentiODopoAnnullaGliImportiRestanoChiusi) {
  Giornata();
  Apri();
  ModificaDati(programma, zvendita);
  EXPECT_THAT(macchina.domande, IsEmpty());
  EXPECT_FALSE(Importi_Attivi());
  Campo(Campo_DDT) = "x";
  macchina.risposte = {false};
  ModificaDati(programma, zvendita);
  EXPECT_EQ(zvendita.Tabella_CV[0].DDT_CV, "-");
  EXPECT_FALSE(Importi_Attivi());
  macchina.risposte = {true};
  SalvaNumerazione(programma, zvendita);
  EXPECT_TRUE(Importi_Attivi());
}

TEST_F(Zvendita_Test, SoloMaiuscoleOSpaziNonSonoCambiamenti) {
  Giornata();
  Apri();
  Campo(Campo_Fornitore) = " COZZE SRL ";
  ModificaDati(programma, zvendita);
  EXPECT_THAT(macchina.domande, IsEmpty());
}

TEST_F(Zvendita_Test, CambiaFornitore) {
  Giornata();
  A_Mano();
  Apri();
  Scegli("Adriatica");
  Campo(Campo_NCV) = "50";
  macchina.risposte = {true};
  ModificaDati(programma, zvendita);
  Campo(Campo_Fornitore) = "Delta";
  macchina.risposte = {true, true};
  macchina.domande.clear();
  ModificaDati(programma, zvendita);
  EXPECT_THAT(macchina.domande,
              ElementsAre("i dati sono stati cambiati... OK per continuare",
                          "Attenzione NCV = 50 : Il fornitore è stato cambiato da:\nAdriatica\na:\nDelta\n"
                          "...OK per aggiornare i dati al CV n. 50"_t));
  EXPECT_THAT(Colonna_Salvata(CampoRiga::Fornitore),
              ElementsAre("Delta", "Delta", "Delta", "Baldo", "Cozze Srl"));
  EXPECT_EQ(Campo(Campo_Fornitore), "Delta");
}

TEST_F(Zvendita_Test, CambiaFornitoreRifiutato) {
  Giornata();
  Apri();
  Campo(Campo_Fornitore) = "Delta";
  Campo(Campo_DDT) = "7";
  macchina.risposte = {true, false};
  ModificaDati(programma, zvendita);
  EXPECT_EQ(Campo(Campo_Fornitore), "Cozze Srl");
  EXPECT_EQ(zvendita.Tabella_CV[0].DDT_CV, "7");  // what was done before the question stays
  EXPECT_THAT(Colonna_Salvata(CampoRiga::Fornitore), testing::Not(testing::Contains("Delta")));
  EXPECT_THAT(Colonna_Salvata(CampoRiga::DDT_CV), testing::Contains("7"));
}

// Rows are found by number: an account without one takes all others without one with it, and two suppliers
// with one number both change.
TEST_F(Zvendita_Test, CambiaFornitorePrendeTuttiQuelliConLoStessoNumero) {
  Vendita(Riga_CV("Adriatica", "Orata", "1", "1"), "0");
  Vendita(Riga_CV("Baldo", "Orata", "1", "1"), "0");
  Vendita(Riga_CV("Cozze Srl", "Orata", "1", "1"), "12");
  A_Mano();
  Apri();
  Scegli("Adriatica");
  Campo(Campo_Fornitore) = "Delta";
  macchina.risposte = {true, true};
  ModificaDati(programma, zvendita);
  EXPECT_THAT(Colonna_Salvata(CampoRiga::Fornitore), ElementsAre("Delta", "Delta", "Cozze Srl"));
}

TEST_F(Zvendita_Test, SulDiscoPienoLaModificaTornaIndietro) {
  Giornata();
  Apri();
  Campo(Campo_NCV) = "60";
  Campo(Campo_Fornitore) = "Delta";
  macchina.risposte = {true, true};
  Guasto_Su("2025/20250314.txt");
  ModificaDati(programma, zvendita);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Errore 28 durante il salvataggio"));
  EXPECT_THAT(Numeri(), ElementsAre("41", "42", "43"));
  EXPECT_THAT(Colonna(CampoRiga::NCV), ElementsAre("", "", "", "9999", ""));
  EXPECT_THAT(Colonna(CampoRiga::Fornitore), testing::Not(testing::Contains("Delta")));
  EXPECT_EQ(Campo(Campo_NCV), "60");  // what was keyed can be tried again
  EXPECT_TRUE(Importi_Attivi());
}

// ---- the menu

TEST_F(Zvendita_Test, SalvaNumerazione) {
  Giornata();
  Apri();
  macchina.risposte = {true};
  SalvaNumerazione(programma, zvendita);
  EXPECT_THAT(macchina.domande, ElementsAre("ok per salvare i numeri di conto vendita...."));
  EXPECT_THAT(macchina.messaggi, ElementsAre("fatto..."));
  EXPECT_THAT(Colonna_Salvata(CampoRiga::NCV), ElementsAre("43", "43", "43", "42", "41"));
  EXPECT_THAT(Colonna_Salvata(CampoRiga::SAnt), ElementsAre("15", "15", "15", "", ""));
  EXPECT_THAT(Colonna_Salvata(CampoRiga::DDT_CV), ElementsAre("-", "-", "Rif. 7", "-", "-"));
  // saved numbers stay
  Apri();
  EXPECT_THAT(Numeri(), ElementsAre("41", "42", "43"));
}

TEST_F(Zvendita_Test, SalvaNumerazioneDiUnAltroGiornoAvverte) {
  Giornata();
  Apri();
  macchina.oggi = {2025, 3, 20};
  macchina.risposte = {true, false};
  SalvaNumerazione(programma, zvendita);
  EXPECT_EQ(macchina.domande.at(1),
            "Attenzione cambiando i numeri dei conti di questo giorno (14/03/2025) \n"
            "si rischia di falsare tutta la numerazione successiva.\n"
            "Prima di combinare è meglio controllare i numeri dei conti vendita dei giorni successivi.\n"
            "OK per continuare o Annulla per NON aggiornare....\n"
            "tanto se sbagli la puoi rifare...."_t);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_THAT(Colonna_Salvata(CampoRiga::NCV), ElementsAre("", "", "", "9999", ""));
}

TEST_F(Zvendita_Test, SulDiscoPienoLaNumerazioneNonSiSalva) {
  Giornata();
  Apri();
  macchina.risposte = {true};
  Guasto_Su("2025/20250314.txt");
  SalvaNumerazione(programma, zvendita);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Errore 28 durante il salvataggio"));
  EXPECT_THAT(Colonna(CampoRiga::NCV), ElementsAre("", "", "", "9999", ""));
  EXPECT_THAT(Numeri(), ElementsAre("41", "42", "43"));
}

TEST_F(Zvendita_Test, Rinumera) {
  Giornata();
  Apri();
  macchina.risposte = {true, true};
  macchina.testi = {"7"};
  Rinumera(programma, zvendita);
  EXPECT_THAT(macchina.domande, ElementsAre("OK per rinumerare i conti vendita...", "primo numero",
                                            "ok per salvare i numeri di conto vendita...."));
  EXPECT_THAT(Numeri(), ElementsAre("7", "8", "9"));
  EXPECT_THAT(Colonna_Salvata(CampoRiga::NCV), ElementsAre("9", "9", "9", "8", "7"));
  EXPECT_EQ(Ultimo_Salvato(), "9");  // it goes down, and is meant to
}

TEST_F(Zvendita_Test, RinumeraRifiuti) {
  Giornata();
  Apri();
  const std::vector<std::optional<Testo>> rifiutati = {"0", "32001", "", "-3", "abc", std::nullopt};
  for (const auto& primo : rifiutati) {
    macchina.risposte = {true};
    macchina.testi = {primo};
    Rinumera(programma, zvendita);
    EXPECT_THAT(Numeri(), ElementsAre("41", "42", "43"));
  }
  macchina.risposte = {false};
  Rinumera(programma, zvendita);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_EQ(Ultimo_Salvato(), "43");
  macchina.risposte = {true, true};
  macchina.testi = {"32000"};
  Rinumera(programma, zvendita);
  EXPECT_THAT(Numeri(), ElementsAre("32000", "32001", "32002"));
  EXPECT_EQ(Ultimo_Salvato(), "32002");
}

// Refused at its own question the list is renumbered all the same, and the last number follows the list.
TEST_F(Zvendita_Test, RinumeraSenzaSalvare) {
  Giornata();
  Apri();
  macchina.risposte = {true, false};
  macchina.testi = {"7"};
  Rinumera(programma, zvendita);
  EXPECT_THAT(Numeri(), ElementsAre("7", "8", "9"));
  EXPECT_THAT(Colonna_Salvata(CampoRiga::NCV), ElementsAre("", "", "", "9999", ""));
  EXPECT_EQ(Ultimo_Salvato(), "9");
}

// With the ledger's old numbers on disk the last number must not fall below them.
TEST_F(Zvendita_Test, RinumeraSulDiscoPieno) {
  Giornata();
  Apri();
  macchina.risposte = {true, true};
  macchina.testi = {"7"};
  Guasto_Su("2025/20250314.txt");
  Rinumera(programma, zvendita);
  EXPECT_THAT(Numeri(), ElementsAre("41", "42", "43"));
  EXPECT_EQ(Ultimo_Salvato(), "43");
  EXPECT_EQ(programma.Ultimo_CV, 43);
}

TEST_F(Zvendita_Test, CancellaNumerazione) {
  Giornata();
  Apri();
  macchina.risposte = {true};
  CancellaNumerazione(programma, zvendita);
  EXPECT_THAT(macchina.domande, ElementsAre("OK per cancellare la numerazione attuale dei conti vendita..."));
  EXPECT_THAT(Numeri(), ElementsAre("0", "0", "0"));
  EXPECT_THAT(Colonna_Salvata(CampoRiga::NCV), ElementsAre("", "", "", "9999", ""));
  EXPECT_EQ(Ultimo_Salvato(), "43");
  macchina.risposte = {false};
  CancellaNumerazione(programma, zvendita);
}

TEST_F(Zvendita_Test, Aiuto) {
  Apri();
  MostraAiutoConti(programma, zvendita);
  EXPECT_EQ(
      macchina.messaggi.at(0),
      "Selezionare il conto vendita (F8 e F9 per scorrere la lista), \n Modificare e Accettare i Dati (F6) "
      "quindi \n stampare con F2. E' possibile stampare \ntutti i conti vendita con un unico comando "
      "\n(prima "
      "F4 e poi F2).\nE' possibile cambiare anche il nome del Fornitore:\nServono due operazioni:\n1 - "
      "attribuire "
      "il numero di contovendita (ACCETTA DATI)\n2 - cambiare il nome del Fornitore (e ancora ACCETTA "
      "DATI)\nPer "
      "cambiare nome al fornitore usare il bottone >>\nIl nome del fornitore viene cambiato su tutte le "
      "registrazioni con lo stesso numero di conto vendita.");
}

TEST_F(Zvendita_Test, ChiudendoSiTengonoLeOpzioni) {
  Giornata();
  Apri();
  for (Spunta* spunta : {&zvendita.Check1, &zvendita.Check2, &zvendita.Check3, &zvendita.Check5,
                         &zvendita.Check6, &zvendita.Check7})
    spunta->segnata = true;
  Campo(Campo_Citta) = "Chioggia";
  Campo(Campo_Spese) = "4";
  Premi(Tasto::Esc);
  EXPECT_TRUE(zvendita.chiusa);
  for (const char* riga : {"FlagC1=-1", "FlagC2=-1", "FlagC3=-1", "FlagKT=-1", "FlagIVA=-1", "FlagNOTA=-1",
                           "CittaVC=Chioggia", "AggioBanca=4"}) {
    Testo senza_spazi = Sostituisci_Tutti(Ini(), " ", "");
    EXPECT_THAT(senza_spazi, testing::HasSubstr(riga));
  }
  Zvendita altra;
  ApriConti(programma, altra);
  EXPECT_TRUE(altra.Check1.segnata && altra.Check3.segnata && altra.Check6.segnata);
  EXPECT_FALSE(altra.Check4.segnata);
  EXPECT_EQ(altra.Stato_IVA.testo, "(Iva Azzerata)");
  EXPECT_EQ(altra.Schermo.sfondo, (Colore{200, 200, 255}));
  EXPECT_EQ(altra.Text1[Campo_Citta].testo, "Chioggia");
}

TEST_F(Zvendita_Test, LeOpzioniSulDiscoPieno) {
  Apri();
  Guasto_Su("Velmara_2020.ini");
  Premi(Tasto::Esc);
  EXPECT_TRUE(zvendita.chiusa);
  ASSERT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_THAT(macchina.messaggi[0],
              testing::StartsWith("Le opzioni del Conto Vendita non sono state salvate"));
}

TEST_F(Zvendita_Test, LaStampanteInOrizzontaleNonVa) {
  EXPECT_TRUE(StampantePerConti(programma));
  macchina.stampante->orizzontale = true;
  EXPECT_FALSE(StampantePerConti(programma));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Orientare la stampate in verticale...."));
  macchina.stampante.reset();
  EXPECT_TRUE(StampantePerConti(programma));
}

}  // namespace

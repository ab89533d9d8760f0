#include "accounts/gemmit.h"
#include "accounts/zvendita_interno.h"
#include "tests/accounts/conti_di_prova.h"

// Esc while all accounts come out: a number on paper is never given again.

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Conti_Esc : testing::Test, Conti_Di_Prova {
  Conti_Esc() {
    for (const char* fornitore : {"Adriatica", "Baldo", "Cozze Srl"})
      Vendita(Riga_CV(fornitore, "Orata", "10", "5"));
    Apri();  // 41 Cozze Srl, 42 Baldo, 43 Adriatica
    zvendita.Check1.segnata = true;
  }
  void Stampa(int ferma_dopo) {
    macchina.risposte = {true};
    macchina.ferma_dopo = ferma_dopo;
    StampaCV(programma, zvendita);
  }
  std::vector<std::string> File_No() const {
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(cartella / "2025/CV_NO"))
      nomi.push_back(voce.path().filename().string());
    std::ranges::sort(nomi);
    return nomi;
  }
};

TEST_F(Conti_Esc, FermaTraUnContoELAltro) {
  Stampa(2);
  EXPECT_EQ(std::ranges::count(registro.righe, "fine"), 2);
  EXPECT_EQ(registro.righe.back(), "fine");
  EXPECT_THAT(File_No(), ElementsAre("03140041.txt", "03140042.txt"));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 2 conti vendita su 3."));
  EXPECT_EQ(zvendita.titolo, "Conti Vendita");
  EXPECT_EQ(zvendita.ListaCV.scelta, 1);
  EXPECT_TRUE(zvendita.attiva && zvendita.Command2.attivo);
  EXPECT_EQ(Ultimo_Salvato(), "43");
}

// Numbers that aren't saved yet: the highest of the list is written before the first sheet, and stays.
TEST_F(Conti_Esc, LUltimoNumeroNonScende) {
  const char* numeri[] = {"10001", "150", "200"};
  for (std::size_t i = 0; i < 3; ++i) zvendita.Tabella_CV[i].NCV = numeri[i];
  RiempiListaCV(programma, zvendita, 0);
  Stampa(1);
  EXPECT_EQ(Ultimo_Salvato(), "10001");
  EXPECT_EQ(programma.Ultimo_CV, 10001);
}

// A renumbering downwards is meant so, once all of it is on paper.
TEST_F(Conti_Esc, SoloUnaCorsaInteraLoAbbassa) {
  macchina.risposte = {true, true};
  macchina.testi = {"5"};
  Rinumera(programma, zvendita);
  programma.Ultimo_CV = 90;
  Salva_Ultimi_Numeri(programma);
  macchina.unita = 0;
  Stampa(1);
  EXPECT_EQ(Ultimo_Salvato(), "90");
  macchina.ferma_dopo.reset();
  macchina.risposte = {true};
  StampaCV(programma, zvendita);
  EXPECT_EQ(Ultimo_Salvato(), "7");
}

TEST_F(Conti_Esc, SoloControlloSalvaFinoLi) {
  zvendita.Check3.segnata = true;
  Stampa(1);
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_THAT(File_No(), ElementsAre("03140041.txt"));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Salvataggio interrotto: 1 conto vendita su 3."));
}

// An account is whole with all its copies and its text file.
TEST_F(Conti_Esc, LeCopieDiUnContoNonSiDividono) {
  zvendita.Combo1.scelta = 2;
  Stampa(1);
  EXPECT_EQ(std::ranges::count(registro.righe, "fine"), 3);
  EXPECT_THAT(File_No(), ElementsAre("03140041.txt"));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 1 conto vendita su 3."));
}

TEST_F(Conti_Esc, ChiMancaInAnagraficaNonSiConta) {
  programma.Vet_Fornitori.pop_back();  // Cozze Srl
  Stampa(2);
  EXPECT_EQ(macchina.messaggi.back(), "Stampa interrotta: 1 conto vendita su 3.");
}

// Numbering and saving go to their end.
TEST_F(Conti_Esc, LaNumerazioneNonSiFerma) {
  macchina.unita = 0;
  macchina.ferma_dopo = 1;
  macchina.risposte = {true};
  SalvaNumerazione(programma, zvendita);
  Apri();
  EXPECT_EQ(macchina.unita, 0);
  EXPECT_THAT(Colonna_Salvata(CampoRiga::NCV), ElementsAre("43", "42", "41"));
}

// ---- numbers given by hand

struct Manuali_Esc : testing::Test, Conti_Di_Prova {
  Manuali_Esc() {
    Vendita(Riga_CV("Adriatica", "Orata", "10", "5"), "70");
    Vendita(Riga_CV("Baldo", "Orata", "10", "5"), "50");
    Vendita(Riga_CV("Cozze Srl", "Orata", "10", "5"), "9999");
    ApriContiManuali(programma, zgemmit);
    zgemmit.Check1.segnata = true;
  }
  void Stampa(std::optional<int> ferma_dopo) {
    macchina.risposte = {true};
    macchina.unita = 0;
    macchina.ferma_dopo = ferma_dopo;
    StampaCV(programma, zgemmit);
  }
  Zgemmit zgemmit;
};

TEST_F(Manuali_Esc, LUltimoNumeroSaleAQuelloSuCarta) {
  programma.Ultimo_CV = 55;
  std::vector<Testo> numeri;
  for (const Conto_CV& conto : zgemmit.Tabella_CV) numeri.push_back(conto.NCV);
  ASSERT_THAT(numeri, ElementsAre("50", "70", "9999"));
  Stampa(1);
  EXPECT_EQ(programma.Ultimo_CV, 55);  // 50 is on paper
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 1 conto vendita su 3."));
  EXPECT_EQ(zgemmit.titolo, "Conti Vendita (Manuale)");
  EXPECT_EQ(zgemmit.ListaCV.scelta, 0);
  Stampa(2);
  EXPECT_EQ(programma.Ultimo_CV, 70);
  EXPECT_EQ(Ultimo_Salvato(), "70");
  EXPECT_EQ(std::ranges::count(registro.righe, "fine"), 3);
  EXPECT_TRUE(zgemmit.attiva);
}

}  // namespace

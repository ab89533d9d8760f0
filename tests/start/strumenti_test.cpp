#include "start/strumenti.h"

#include <gmock/gmock.h>

#include "start/inizio.h"
#include "tests/start/cartella_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Strumenti : public Cartella_Prova {
 protected:
  Strumenti() : programma(macchina) { programma.Cartella_Dati = cartella; }
  Programma programma;
};

TEST_F(Strumenti, Il_nome_esatto_va_prima_di_quello_senza_exe) {
  EXPECT_FALSE(Trova_Programma(programma, "CopiaDati.exe"));
  Scrivi("CopiaDati", "x");
  EXPECT_EQ(Trova_Programma(programma, "CopiaDati.exe"), cartella / "CopiaDati");
  Scrivi("copiadati.EXE", "x");
  EXPECT_EQ(Trova_Programma(programma, "CopiaDati.exe"), cartella / "copiadati.EXE");
}

TEST_F(Strumenti, Un_programma_che_parte_chiude_questo) {
  Scrivi("CopiaDati.exe", "x");
  EXPECT_TRUE(LanciaProgramma(programma, "CopiaDati.exe"));
  EXPECT_THAT(macchina.programmi, ElementsAre("CopiaDati.exe"));
  EXPECT_TRUE(macchina.terminata);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Strumenti, Un_programma_senza_exe_e_lo_stesso_programma) {
  Scrivi("CopiaDati", "x");
  EXPECT_TRUE(LanciaProgramma(programma, "CopiaDati.exe"));
  EXPECT_THAT(macchina.programmi, ElementsAre("CopiaDati"));
}

TEST_F(Strumenti, Una_cartella_con_quel_nome_non_e_un_programma) {
  std::filesystem::create_directory(cartella / "CopiaDati");
  EXPECT_FALSE(LanciaProgramma(programma, "CopiaDati.exe"));
}

TEST_F(Strumenti, Un_programma_che_manca_non_chiude_nulla) {
  EXPECT_FALSE(LanciaProgramma(programma, "CopiaDati.exe"));
  EXPECT_FALSE(macchina.terminata);
  EXPECT_THAT(macchina.messaggi, ElementsAre(Percorso_Di("CopiaDati.exe") + "\nnon trovato..."));
}

TEST_F(Strumenti, Un_programma_che_non_parte_non_chiude_nulla) {
  Scrivi("CopiaDati.exe", "x");
  macchina.programmi_partono = false;
  EXPECT_FALSE(LanciaProgramma(programma, "CopiaDati.exe"));
  EXPECT_FALSE(macchina.terminata);
  EXPECT_THAT(macchina.messaggi, ElementsAre(Percorso_Di("CopiaDati.exe") + "\nnon si avvia..."));
}

TEST_F(Strumenti, Gestione_Liste_lo_dice_e_lancia_il_generatore) {
  Scrivi("Velmara_2020_Descri", "x");
  GestioneListe(programma);
  EXPECT_THAT(macchina.messaggi, ElementsAre(Percorso_Di("Velmara_2020_Descri.exe") +
                                             "\nQuesto programma viene chiuso e viene lanciato"));
  EXPECT_THAT(macchina.programmi, ElementsAre("Velmara_2020_Descri"));
  EXPECT_TRUE(macchina.terminata);
}

TEST_F(Strumenti, Gestione_Liste_senza_generatore_resta_aperto) {
  GestioneListe(programma);
  ASSERT_EQ(macchina.messaggi.size(), 2U);
  EXPECT_EQ(macchina.messaggi[1], Percorso_Di("Velmara_2020_Descri.exe") + "\nnon trovato...");
  EXPECT_FALSE(macchina.terminata);
}

TEST_F(Strumenti, Abbandona_finisce) {
  Abbandona(programma);
  EXPECT_TRUE(macchina.terminata);
}

}  // namespace

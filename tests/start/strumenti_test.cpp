#include "start/strumenti.h"

#include <gmock/gmock.h>

#include "core/profili.h"
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

// ---- the siblings of the buttons

struct Caso_Strumento {
  const char* bottone;
  const char* programma;
  Testo avviso;
  bool conferma;
};

class Strumenti_Dei_Bottoni : public Strumenti, public testing::WithParamInterface<Caso_Strumento> {};

TEST_P(Strumenti_Dei_Bottoni, Dice_cosa_fa_parte_e_chiude_questo) {
  const Caso_Strumento& caso = GetParam();
  Scrivi(caso.programma, "x");
  if (caso.conferma) macchina.risposte = {true};
  UsaStrumento(programma, caso.bottone);
  std::vector<Testo> detto = macchina.messaggi;
  detto.insert(detto.end(), macchina.domande.begin(), macchina.domande.end());
  EXPECT_EQ(detto, caso.avviso.empty() ? std::vector<Testo>() : std::vector<Testo>{caso.avviso});
  EXPECT_EQ(macchina.domande.size(), caso.conferma ? 1U : 0U);
  EXPECT_THAT(macchina.programmi, ElementsAre(caso.programma));
  EXPECT_TRUE(macchina.terminata);
}

TEST_P(Strumenti_Dei_Bottoni, Se_manca_lo_dice_e_non_chiude_nulla) {
  const Caso_Strumento& caso = GetParam();
  if (caso.conferma) macchina.risposte = {true};
  UsaStrumento(programma, caso.bottone);
  ASSERT_FALSE(macchina.messaggi.empty());
  EXPECT_EQ(macchina.messaggi.back(), Percorso_Di(caso.programma) + "\nnon trovato...");
  EXPECT_FALSE(macchina.terminata);
}

TEST_P(Strumenti_Dei_Bottoni, Annulla_lascia_tutto_come_era) {
  const Caso_Strumento& caso = GetParam();
  Scrivi(caso.programma, "x");
  if (!caso.conferma) {  // there is nothing to cancel
    UsaStrumento(programma, caso.bottone);
    EXPECT_THAT(macchina.domande, IsEmpty());
    return;
  }
  macchina.risposte = {false};
  UsaStrumento(programma, caso.bottone);
  EXPECT_THAT(macchina.programmi, IsEmpty());
  EXPECT_FALSE(macchina.terminata);
}

INSTANTIATE_TEST_SUITE_P(
    Bottoni, Strumenti_Dei_Bottoni,
    testing::Values(
        Caso_Strumento{
            "Command4", "AzzeraDisco.exe",
            "Questo programma cancella definitivamente i dati su disco fisso rendendoli irrecuperabili \n"
            "come richiesto dalla Legge sulla Privacy (richiede un certo tempo...)",
            true},
        Caso_Strumento{"Command6", "ContaConti.exe", "", false},
        Caso_Strumento{"Command8", "CopiaDati.exe", "", false},
        Caso_Strumento{"Command14", "StampaMulti.exe",
                       "Stampa le fatture prodotte da Velmara....\n(Velmara verrà chiuso)"_t, true},
        Caso_Strumento{"Command15", "UnisciMese.exe",
                       "Procedura per preparare il file dat da convertire per MIDA", false},
        Caso_Strumento{"Command16", "CopiaFatture.exe",
                       "Copia: \nfatture, \nnote di credito, \nnella chiavetta USB.\nLa chiavetta USB va "
                       "consegnata al Servizio di Stampa....\n(Velmara verrà chiuso)"_t,
                       true}),
    [](const auto& caso) { return std::string(caso.param.bottone); });

TEST_F(Strumenti, Lagomar_non_ha_il_controllo_dei_conti) {
  Scrivi("ContaConti.exe", "x");
  programma.preferenze.Codice_Commissionario = Nome_Profilo(Profilo::Lagomar);
  UsaStrumento(programma, "Command6");
  EXPECT_THAT(macchina.programmi, IsEmpty());
  EXPECT_FALSE(macchina.terminata);
}

TEST_F(Strumenti, ConvertiDati_fa_il_file_del_comando_e_lo_lancia) {
  Scrivi("ConvertiDati", "x");
  macchina.risposte = {true};
  ConvertiDati(programma);
  EXPECT_EQ(Contenuto("ProgDati.txt"), "ConvertiDati.exe\r\n");
  EXPECT_THAT(
      macchina.domande,
      ElementsAre("lancia ConvertiDati.exe\nConvertiDati.exe è il programma di conversione per MIDA"_t));
  EXPECT_THAT(macchina.programmi, ElementsAre("ConvertiDati"));
  EXPECT_TRUE(macchina.terminata);
}

TEST_F(Strumenti, ConvertiDati_lancia_il_comando_della_prima_riga) {
  for (const char* nome : {"Altro.exe", "Un altro.exe"}) {
    Scrivi(nome, "x");
    Scrivi("ProgDati.txt", Testo(nome) + "\nSeconda.exe\n");
    macchina.risposte = {true};
    ConvertiDati(programma);
    ASSERT_FALSE(macchina.programmi.empty());
    EXPECT_EQ(macchina.programmi.back(), nome);
  }
  Scrivi("ProgDati.txt", "Altro.exe 2025 marzo");
  macchina.risposte = {true};
  ConvertiDati(programma);
  EXPECT_EQ(macchina.programmi.size(), 3U);
  EXPECT_EQ(macchina.programmi.back(), "Altro.exe");
}

TEST_F(Strumenti, ConvertiDati_senza_la_marca_di_un_editor) {
  Scrivi("ProgDati.txt",
         "\xEF\xBB\xBF"
         "Altro.exe\r\n");
  Scrivi("Altro.exe", "x");
  macchina.risposte = {true};
  ConvertiDati(programma);
  EXPECT_THAT(macchina.programmi, ElementsAre("Altro.exe"));
}

TEST_F(Strumenti, ConvertiDati_che_manca_o_annullato_non_chiude_nulla) {
  macchina.risposte = {false, true};
  ConvertiDati(programma);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  ConvertiDati(programma);
  EXPECT_THAT(macchina.messaggi, ElementsAre(Percorso_Di("ConvertiDati.exe") + "\nnon trovato..."));
  EXPECT_FALSE(macchina.terminata);
}

TEST_F(Strumenti, Un_ProgDati_che_non_si_scrive_si_dice) {
  programma.disco.guasto = [](const Percorso&) { return ENOSPC; };
  ConvertiDati(programma);
  ASSERT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_THAT(macchina.messaggi[0], testing::HasSubstr("non si scrive"));
  EXPECT_FALSE(macchina.terminata);
}

TEST_F(Strumenti, Il_foglio_dati_parte_e_il_programma_resta) {
  ApriFoglioDati(programma, cartella / "2025" / "20250314.txt");
  EXPECT_THAT(macchina.messaggi, ElementsAre("programma FoglioDati.exe\nnon trovato....\nvedere il file"));
  Scrivi("FoglioDati", "x");
  ApriFoglioDati(programma, cartella / "2025" / "20250314.txt");
  EXPECT_THAT(macchina.programmi, ElementsAre("FoglioDati"));
  EXPECT_FALSE(macchina.terminata);
}

TEST_F(Strumenti, Abbandona_finisce) {
  Abbandona(programma);
  EXPECT_TRUE(macchina.terminata);
}

}  // namespace

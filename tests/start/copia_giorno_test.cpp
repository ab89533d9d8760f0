#include "start/copia_giorno.h"

#include <cerrno>
#include <gmock/gmock.h>

#include "tests/start/cartella_prova.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Copia_Del_Giorno : public Cartella_Prova {
 protected:
  Copia_Del_Giorno() : programma(macchina) {
    programma.Cartella_Dati = cartella;
    programma.Oggi = macchina.oggi;
    std::filesystem::create_directory(chiavetta);
    macchina.volumi = {{chiavetta, "E:", "CHIAVETTA"}};
    inizio.Text1.testo = "14";
    inizio.Text3.testo = "2025";
    inizio.Combo1.Riempi({"Gennaio", "Febbraio", "Marzo"});
    inizio.Combo1.scelta = 2;
  }
  static void Metti(const Percorso& file, const char* contenuto) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << contenuto;
  }
  static Testo Letto(const Percorso& file) {
    std::ifstream flusso(file, std::ios::binary);
    if (!flusso) return "(manca)";
    return {std::istreambuf_iterator<char>(flusso), {}};
  }
  void Copia(bool dalla_chiavetta) {
    CopiaGiorno(programma, inizio, dalla_chiavetta, [this](ModoCopia modo, const Percorso&) {
      modi.push_back(modo);
      return drive;
    });
  }

  Programma programma;
  B_Inizio inizio;
  Percorso chiavetta = base / "chiavetta", qui = cartella / "2025" / "20250314.txt",
           la = chiavetta / "2025" / "20250314.txt";
  std::optional<DriveScelto> drive = DriveScelto{"E:[CHIAVETTA]", chiavetta, false};
  std::vector<ModoCopia> modi;
};

TEST_F(Copia_Del_Giorno, Sulla_chiavetta_nella_cartella_dell_anno) {
  Metti(qui, "righe");
  macchina.risposte = {true};
  Copia(false);
  EXPECT_THAT(macchina.domande,
              ElementsAre("OK per copiare i dati del giorno 14/03/2025\nsu chiavetta...(esportazione)"));
  EXPECT_THAT(modi, ElementsAre(ModoCopia::COPIA_IN));
  EXPECT_EQ(Letto(la), "righe");
  EXPECT_THAT(macchina.messaggi, ElementsAre("il file\n" + Testo_Percorso(qui) + "\nè stato copiato in \n"_t +
                                             Testo_Percorso(la)));
}

TEST_F(Copia_Del_Giorno, Dalla_chiavetta_chiede_di_sovrascrivere) {
  Metti(qui, "vecchie");
  Metti(la, "nuove");
  macchina.risposte = {true, false};
  Copia(true);
  EXPECT_THAT(macchina.domande,
              ElementsAre("OK per copiare i dati del giorno 14/03/2025\ndalla chiavetta...(importazione)",
                          "il file:\n" + Testo_Percorso(qui) + "\nesiste...ok per sovrascrivere"));
  EXPECT_EQ(Letto(qui), "vecchie");
  macchina.risposte = {true, true};
  Copia(true);
  EXPECT_THAT(modi, ElementsAre(ModoCopia::COPIA_DA, ModoCopia::COPIA_DA));
  EXPECT_EQ(Letto(qui), "nuove");
}

TEST_F(Copia_Del_Giorno, Annullare_la_domanda_o_il_disco_finisce_senza_messaggi) {
  Metti(qui, "righe");
  macchina.risposte = {false};
  Copia(false);
  EXPECT_THAT(modi, IsEmpty());
  drive.reset();
  macchina.risposte = {true};
  Copia(false);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_EQ(Letto(la), "(manca)");
}

TEST_F(Copia_Del_Giorno, Un_giorno_che_manca_o_e_una_cartella_si_dice) {
  macchina.risposte = {true};
  Copia(false);
  std::filesystem::create_directories(qui);
  macchina.risposte = {true};
  Copia(false);
  const Testo atteso = "il file\n" + Testo_Percorso(qui) + "\nnon è stato trovato"_t;
  EXPECT_THAT(macchina.messaggi, ElementsAre(atteso, atteso));
}

TEST_F(Copia_Del_Giorno, Una_chiavetta_piena_lascia_il_file_di_prima) {
  Metti(qui, "nuove");
  Metti(la, "vecchie");
  programma.disco.guasto = [this](const Percorso& file) {
    return Testo_Percorso(file).find(Testo_Percorso(chiavetta)) == 0 ? ENOSPC : 0;
  };
  macchina.risposte = {true, true};
  Copia(false);
  ASSERT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_THAT(macchina.messaggi[0], HasSubstr("il disco è pieno"_t));
  EXPECT_EQ(Letto(la), "vecchie");
  EXPECT_EQ(Letto(qui), "nuove");
}

// What is left of a pulled stick is an empty folder on the machine's own disk: a copy into it isn't one.
TEST_F(Copia_Del_Giorno, Una_chiavetta_tolta_non_e_una_copia) {
  Metti(qui, "righe");
  macchina.volumi.clear();
  macchina.risposte = {true};
  Copia(false);
  ASSERT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_THAT(macchina.messaggi[0], HasSubstr("il disco non c'è più"_t));
  EXPECT_EQ(Letto(qui), "righe");
}

// Nor is its place made anew on the machine's own disk, where the copy would be told as done.
TEST_F(Copia_Del_Giorno, Il_posto_di_una_chiavetta_tolta_non_rinasce) {
  Metti(qui, "righe");
  std::filesystem::remove(chiavetta);
  for (const bool ancora_in_elenco : {true, false}) {
    if (!ancora_in_elenco) macchina.volumi.clear();
    macchina.messaggi.clear();
    macchina.risposte = {true};
    Copia(false);
    ASSERT_EQ(macchina.messaggi.size(), 1U);
    EXPECT_THAT(macchina.messaggi[0], HasSubstr("non c'è più"_t));
    EXPECT_FALSE(std::filesystem::exists(chiavetta));
  }
}

TEST_F(Copia_Del_Giorno, Un_anno_scritto_male_non_esce_dalla_cartella) {
  inizio.Text3.testo = "../altra";
  macchina.risposte = {true};
  Copia(false);
  EXPECT_THAT(macchina.messaggi, ElementsAre("il file\n" + Testo_Percorso(cartella / "0" / "00314.txt") +
                                             "\nnon è stato trovato"_t));
}

// A day file dropped on the start screen.

TEST_F(Copia_Del_Giorno, Un_file_trascinato_entra_con_le_stesse_domande) {
  const Percorso file = chiavetta / "20250312.txt";
  const Percorso qui_12 = cartella / "2025" / "20250312.txt";
  Metti(file, "nuove");
  macchina.risposte = {true};
  CopiaFileGiorno(programma, inizio, file);
  EXPECT_THAT(macchina.domande,
              ElementsAre("OK per copiare i dati del giorno 12/03/2025\ndalla chiavetta...(importazione)"));
  EXPECT_THAT(macchina.messaggi, ElementsAre("il file\n" + Testo_Percorso(file) +
                                             "\nè stato copiato in \n"_t + Testo_Percorso(qui_12)));
  EXPECT_EQ(Letto(qui_12), "nuove");
  EXPECT_EQ(inizio.Text1.testo, "12");
  EXPECT_THAT(inizio.giorni_recenti, ElementsAre(Data{2025, 3, 12}));
}

TEST_F(Copia_Del_Giorno, Un_file_trascinato_su_un_giorno_che_c_e_chiede_di_sovrascrivere) {
  Metti(qui, "vecchie");
  Metti(chiavetta / "20250314.txt", "nuove");
  macchina.risposte = {true, false};
  CopiaFileGiorno(programma, inizio, chiavetta / "20250314.txt");
  EXPECT_THAT(macchina.domande,
              ElementsAre("OK per copiare i dati del giorno 14/03/2025\ndalla chiavetta...(importazione)",
                          "il file:\n" + Testo_Percorso(qui) + "\nesiste...ok per sovrascrivere"));
  EXPECT_EQ(Letto(qui), "vecchie");
  macchina.risposte = {false};
  CopiaFileGiorno(programma, inizio, chiavetta / "20250314.txt");
  EXPECT_EQ(Letto(qui), "vecchie");
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Copia_Del_Giorno, Un_file_trascinato_che_non_e_una_giornata_viene_rifiutato) {
  Metti(base / "lettera.txt", "caro");
  CopiaFileGiorno(programma, inizio, base / "lettera.txt");
  EXPECT_THAT(macchina.messaggi, ElementsAre(HasSubstr("non ha il nome di una giornata")));
  EXPECT_THAT(macchina.domande, IsEmpty());
}

TEST_F(Copia_Del_Giorno, Un_file_della_ditta_stessa_porta_solo_al_suo_giorno) {
  Metti(cartella / "2025" / "20250312.txt", "righe");
  CopiaFileGiorno(programma, inizio, cartella / "2025" / "20250312.txt");
  EXPECT_THAT(macchina.domande, IsEmpty());
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_EQ(inizio.Text1.testo, "12");
}

// What isn't a file after all: a folder of that name, a link to nothing, one that has gone meanwhile.
TEST_F(Copia_Del_Giorno, Quello_che_non_e_un_file_si_dice_e_non_lascia_nulla) {
  const Percorso nulla = chiavetta / "20250311.txt";
  std::filesystem::create_directories(chiavetta / "20250312.txt");
  std::filesystem::create_symlink(chiavetta / "sparito", nulla);
  for (const char* nome : {"20250311.txt", "20250312.txt", "20250313.txt"}) {
    macchina.messaggi.clear();
    macchina.risposte = {true};
    EXPECT_TRUE(CopiaFileGiorno(programma, inizio, chiavetta / nome));
    EXPECT_THAT(macchina.messaggi,
                ElementsAre("il file\n" + Testo_Percorso(chiavetta / nome) + "\nnon è stato trovato"_t));
    EXPECT_EQ(Letto(cartella / "2025" / nome), "(manca)");
  }
  EXPECT_EQ(inizio.Text1.testo, "14");
}

// A link is what it leads to, under its own name; also one that leads to the day itself.
TEST_F(Copia_Del_Giorno, Un_collegamento_porta_quello_a_cui_conduce) {
  Metti(base / "copia di ieri.bak", "righe");
  Metti(qui, "oggi");
  std::filesystem::create_symlink(base / "copia di ieri.bak", chiavetta / "20250313.txt");
  std::filesystem::create_symlink(qui, chiavetta / "20250314.txt");
  macchina.risposte = {true};
  CopiaFileGiorno(programma, inizio, chiavetta / "20250313.txt");
  EXPECT_EQ(Letto(cartella / "2025/20250313.txt"), "righe");
  EXPECT_FALSE(std::filesystem::is_symlink(cartella / "2025/20250313.txt"));
  macchina.risposte = {true, true};
  CopiaFileGiorno(programma, inizio, chiavetta / "20250314.txt");
  EXPECT_EQ(Letto(qui), "oggi");
}

TEST_F(Copia_Del_Giorno, Annulla_vale_anche_per_gli_altri_file_lasciati_insieme) {
  Metti(chiavetta / "20250312.txt", "righe");
  macchina.risposte = {false};
  EXPECT_FALSE(CopiaFileGiorno(programma, inizio, chiavetta / "20250312.txt"));
  EXPECT_TRUE(CopiaFileGiorno(programma, inizio, chiavetta / "lettera.txt"));
}

TEST_F(Copia_Del_Giorno, Un_file_trascinato_su_un_disco_pieno_lascia_il_vecchio) {
  Metti(qui, "vecchie");
  Metti(chiavetta / "20250314.txt", "nuove");
  programma.disco.guasto = [](const Percorso&) { return ENOSPC; };
  macchina.risposte = {true, true};
  CopiaFileGiorno(programma, inizio, chiavetta / "20250314.txt");
  EXPECT_THAT(macchina.messaggi, ElementsAre(HasSubstr("il disco è pieno"_t)));
  EXPECT_EQ(Letto(qui), "vecchie");
}

}  // namespace

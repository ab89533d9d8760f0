#include "start/giorni_recenti.h"

#include <gmock/gmock.h>

#include "start/inizio.h"
#include "tests/start/cartella_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Giorni_Recenti_Test : Cartella_Prova {
  Giorni_Recenti_Test() : programma(macchina) {
    programma.Cartella_Dati = cartella;
    programma.Oggi = macchina.oggi;
    programma.preferenze = Preferenze_Predefinite();
  }
  Programma programma;
  B_Inizio inizio;
};

TEST_F(Giorni_Recenti_Test, I_piu_vicini_per_primi_anche_dell_anno_prima) {
  for (const char* file :
       {"2025/20250102.txt", "2025/20250311.txt", "2024/20241231.txt", "2023/20230105.txt"})
    Scrivi(file, "riga\r\n");
  EXPECT_THAT(Giorni_Recenti(programma, 3),
              ElementsAre(Data{2025, 3, 11}, Data{2025, 1, 2}, Data{2024, 12, 31}));
  EXPECT_THAT(Giorni_Recenti(programma, 9),
              ElementsAre(Data{2025, 3, 11}, Data{2025, 1, 2}, Data{2024, 12, 31}, Data{2023, 1, 5}));
}

TEST_F(Giorni_Recenti_Test, Solo_giorni_dell_anno_della_cartella_e_non_futuri) {
  for (const char* file :
       {"2025/20250314.txt", "2025/20250315.txt", "2025/20250231.txt", "2025/20240310.txt",
        "2025/_RepFat.txt", "2025/2025031x.txt", "2025_fat/20250313.txt", "altro/20250312.txt"})
    Scrivi(file, "riga\r\n");
  EXPECT_THAT(Giorni_Recenti(programma, 7), ElementsAre(Data{2025, 3, 14}));
}

TEST_F(Giorni_Recenti_Test, Un_giorno_con_la_copia_dat_conta_una_volta) {
  for (const char* file : {"2025/20250312.txt", "2025/20250312.dat", "2025/20250311.dat"})
    Scrivi(file, "riga\r\n");
  EXPECT_THAT(Giorni_Recenti(programma, 7), ElementsAre(Data{2025, 3, 12}, Data{2025, 3, 11}));
}

// A list without a word would say that there are no other days.
TEST_F(Giorni_Recenti_Test, Una_cartella_che_non_si_legge_sta_nella_lista) {
  Scrivi("2024/20241231.txt", "riga\r\n");
  Carica_Inizio(programma, inizio);
  EXPECT_EQ(inizio.Recenti.Numero(), 1U);
  std::filesystem::create_directory(cartella / "2025");
  std::filesystem::create_directory_symlink("2023", cartella / "2023");
  Ritorna_Inizio(programma, inizio);
  EXPECT_EQ(inizio.Recenti.Numero(), 1U) << "a link to nowhere is no folder";
  programma.Cartella_Dati = cartella / "2023";
  Ritorna_Inizio(programma, inizio);
  ASSERT_EQ(inizio.Recenti.Numero(), 1U);
  EXPECT_EQ(inizio.Recenti.Riga(0), "(una cartella non si legge)");
  const Testo giorno = inizio.Text1.testo;
  inizio.Recenti.scelta = 0;
  Scelto_Recente(programma, inizio);
  EXPECT_EQ(inizio.Text1.testo, giorno);
  EXPECT_EQ(inizio.Recenti.scelta, -1);
  EXPECT_FALSE(Vai_Ai_Recenti(programma, inizio));
}

TEST_F(Giorni_Recenti_Test, Il_giorno_nel_nome_di_un_file) {
  EXPECT_EQ(Giorno_Nel_Nome("20250314.txt"), (Data{2025, 3, 14}));
  EXPECT_EQ(Giorno_Nel_Nome("20250314.TXT"), (Data{2025, 3, 14}));
  for (const char* nome : {"20250230.txt", "20250314.dat", "20250314", "20250314.txt.bak", "2025031.txt",
                           "a0250314.txt", "2025 314.txt", ""})
    EXPECT_EQ(Giorno_Nel_Nome(nome), std::nullopt) << nome;
}

TEST_F(Giorni_Recenti_Test, La_scelta_va_nei_campi_e_i_campi_segnano_la_scelta) {
  for (const char* file : {"2025/20250311.txt", "2024/20241231.txt"}) Scrivi(file, "riga\r\n");
  Carica_Inizio(programma, inizio);
  EXPECT_EQ(inizio.Recenti.scelta, -1);  // today has no file yet
  EXPECT_EQ(inizio.Recenti.Riga(0), "11/03/2025  (Martedì)"_t);
  inizio.Recenti.scelta = 1;
  Scelto_Recente(programma, inizio);
  EXPECT_EQ(inizio.Text1.testo, "31");
  EXPECT_EQ(inizio.Combo1.scelta, 11);
  EXPECT_EQ(inizio.Text3.testo, "2024");
  EXPECT_EQ(inizio.Label13.testo, "(Martedì)"_t);
  Giorno_Giu(programma, inizio);
  EXPECT_EQ(inizio.Recenti.scelta, -1);
  Giorno_Su(programma, inizio);
  EXPECT_EQ(inizio.Recenti.scelta, 1);
}

TEST_F(Giorni_Recenti_Test, F8_prende_il_piu_vicino_se_il_giorno_dei_campi_non_c_e) {
  Carica_Inizio(programma, inizio);
  EXPECT_FALSE(Vai_Ai_Recenti(programma, inizio));
  EXPECT_EQ(inizio.Text1.testo, "14");
  for (const char* file : {"2025/20250311.txt", "2025/20250310.txt"}) Scrivi(file, "riga\r\n");
  Ritorna_Inizio(programma, inizio);
  EXPECT_TRUE(Vai_Ai_Recenti(programma, inizio));
  EXPECT_EQ(inizio.Text1.testo, "11");
  Giorno_Giu(programma, inizio);
  EXPECT_TRUE(Vai_Ai_Recenti(programma, inizio));
  EXPECT_EQ(inizio.Text1.testo, "10");
}

}  // namespace

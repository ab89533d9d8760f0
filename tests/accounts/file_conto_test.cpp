#include "accounts/file_conto.h"

#include "tests/accounts/conti_di_prova.h"

namespace {

Importi_CV Esempio() {
  std::vector<double> iva;
  return CalcolaImporti(
      {Riga_CV("A", "Orata", "100", "5,00", "10"), Riga_CV("A", "Granchio", "10", "20,00", "22"),
       Riga_CV("A", "Orata", "10", "-5,00", "10")},
      {}, "15", "8", iva, ',');
}

TEST(File_Conto, IlNome) {
  struct Caso {
    Vista data, ncv, nome;
  };
  for (const auto& [data, ncv, nome] :
       {Caso{"14/03/2025", "123", "03140123.txt"}, Caso{"01/04/2025", "7", "04010007.txt"},
        Caso{"14/03/2025", "12345", "031412345.txt"}, Caso{"14/03/2025", "", "03140000.txt"},
        Caso{"14/03/2025", "9999", "03149999.txt"}, Caso{" 14-03-25 ", "1", "03140001.txt"},
        Caso{"1/4/2025", "7", "04010007.txt"}})
    EXPECT_EQ(NomeFileConto(data, ncv, ','), Testo(nome)) << data;
}

// A text that is no date must not become a path to somewhere else.
TEST(File_Conto, UnaDataCheNonEUnaData) {
  for (const Vista data : {"", "domani", "../../x", "1/4", "../../../"})
    EXPECT_FALSE(NomeFileConto(data, "1", ',')) << data;
}

// Byte by byte: the yearly control and the firm's own tools read these files by line.
TEST(File_Conto, LeTrediciRighe) {
  EXPECT_EQ(
      ContenutoFileConto(" Adriatica ", Esempio(), Forma_Importi::Centesimi, ','),
      "Adriatica\r\n650,00\r\n52,00\r\n184,00\r\n40,48\r\n414,00\r\n41,40\r\n679,88\r\n15,00\r\n664,88\r\n"
      "no\r\n,00\r\n,00\r\n");
  EXPECT_EQ(
      ContenutoFileConto("Adriatica", Esempio(), Forma_Importi::Piana, '.'),
      "Adriatica\r\n650\r\n52\r\n184\r\n40.48\r\n414\r\n41.4\r\n679.88\r\n15\r\n664.88\r\nno\r\n0\r\n0\r\n");
}

TEST(File_Conto, SenzaLoZeroDavanti) {
  Importi_CV importi;
  importi.ImponibileTotale = 0.5;
  importi.TotaleEuro = -0.5;
  EXPECT_EQ(ContenutoFileConto("A", importi, Forma_Importi::Centesimi, '.'),
            "A\r\n.50\r\n.00\r\n.00\r\n.00\r\n.00\r\n.00\r\n.00\r\n.00\r\n-.50\r\nno\r\n.00\r\n.00\r\n");
}

struct File_In_Cartella : testing::Test, Conti_Di_Prova {
  int Scrivi(Vista contenuto) {
    return ScriviFileConto(programma.disco, programma.Cartella_Anno, "03140007.txt", contenuto);
  }
};

// An editor that opened the file put its mark in front: the supplier is the same.
TEST_F(File_In_Cartella, LaMarcaDiUnEditorNonEDelFornitore) {
  cartella.Metti("2025/CV_NO/03140007.txt",
                 "\xEF\xBB\xBF"
                 "Mare Blu\r\n650,00\r\n52,00\r\n");
  const auto testa = Leggi_Testa_Conto(programma.disco, programma.Cartella_Anno / "CV_NO/03140007.txt");
  ASSERT_TRUE(testa);
  EXPECT_EQ(testa->Fornitore, "Mare Blu");
  EXPECT_EQ(testa->ImponibileTotale, "650,00");
}

TEST_F(File_In_Cartella, SostituisceETogliIlGemello) {
  cartella.Metti("2025/CV_NO/03140007.txt", "vecchio");
  cartella.Metti("2025/CV_SI/03140007.TXT", "saldato");
  std::filesystem::permissions(cartella / "2025/CV_SI/03140007.TXT", std::filesystem::perms::owner_read);
  EXPECT_EQ(Scrivi("nuovo"), 0);
  EXPECT_EQ(cartella.Contenuto("2025/CV_NO/03140007.txt"), "nuovo");
  EXPECT_TRUE(std::filesystem::is_empty(cartella / "2025/CV_SI"));
}

// The account settled before must not go while the new one couldn't be written.
TEST_F(File_In_Cartella, SulDiscoPienoIlGemelloResta) {
  cartella.Metti("2025/CV_SI/03140007.txt", "saldato");
  Guasto_Su("2025/CV_NO/03140007.txt");
  EXPECT_EQ(Scrivi("nuovo"), ENOSPC);
  EXPECT_EQ(cartella.Contenuto("2025/CV_SI/03140007.txt"), "saldato");
  EXPECT_TRUE(std::filesystem::is_empty(cartella / "2025/CV_NO"));
}

TEST_F(File_In_Cartella, SenzaLaCartellaDegliAltri) {
  std::filesystem::remove(cartella / "2025/CV_SI");
  EXPECT_EQ(Scrivi("nuovo"), 0);
}

}  // namespace

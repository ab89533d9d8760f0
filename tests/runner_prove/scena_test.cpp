#include "tests/runner/scena.h"

#include <gtest/gtest.h>

#include "tests/core/cartella_temporanea.h"

namespace giornata {

namespace {

namespace fs = std::filesystem;

class Scena_Prova : public testing::Test {
 protected:
  Scena_Prova() {
    scena.radice = cartella / "giornata";
    scena.accanto = cartella / "copioni";
    fs::create_directories(scena.radice);
    cartella.Metti("copioni/DOC_SANI/2025/a.txt", "a");
    cartella.Metti("copioni/chiave/b.txt", "b");
  }

  const Cartella_Temporanea cartella;  // each test its own: the tests run side by side
  Scena scena;
};

}  // namespace

// An installation for sanitary documents only is told by the name of its folder.
TEST_F(Scena_Prova, LaCopiaDellaDittaTieneIlNomeDellaCartella) {
  const Percorso origine = scena.accanto / "DOC_SANI";
  Prepara_Ditta(scena, &origine);
  EXPECT_EQ(scena.ditta, scena.radice / "DOC_SANI");
  EXPECT_EQ(Leggi_Byte(Nel_Disco(scena, "2025/a.txt")), "a");
  EXPECT_THROW(Prepara_Ditta(scena, nullptr), Fallito);
}

TEST_F(Scena_Prova, IlVolumeStaAccantoESiChiamaInTreModi) {
  Prepara_Ditta(scena, nullptr);
  Aggiungi_Volume(scena, "E:", "CHIAVE", "chiave");
  const Percorso dove = scena.radice / "chiave" / "b.txt";
  EXPECT_EQ(Nel_Disco(scena, "E:/b.txt"), dove);
  EXPECT_EQ(Nel_Disco(scena, "chiave/b.txt"), dove);
  EXPECT_EQ(Nel_Disco(scena, "../chiave/b.txt"), dove);
  EXPECT_EQ(Leggi_Byte(dove), "b");
  EXPECT_THROW(Nel_Disco(scena, "../altro/b.txt"), Fallito);
  EXPECT_THROW(Aggiungi_Volume(scena, "F:", "X", "ditta"), Fallito);
}

TEST_F(Scena_Prova, IlGuastoValePerUnFileOPerTuttaUnaCartella) {
  Prepara_Ditta(scena, nullptr);
  scena.guasti = {Nel_Disco(scena, "2025"), Nel_Disco(scena, "a.txt")};
  EXPECT_TRUE(Guasto(scena, scena.ditta / "a.txt"));
  EXPECT_TRUE(Guasto(scena, scena.ditta / "2025" / "20250314.txt"));
  EXPECT_TRUE(Guasto(scena, "a.txt"));
  EXPECT_FALSE(Guasto(scena, scena.ditta / "b.txt"));
  EXPECT_FALSE(Guasto(scena, scena.ditta / "2025_fat" / "c.txt"));
}

}  // namespace giornata

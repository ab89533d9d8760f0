#include <cerrno>
#include <chrono>
#include <gmock/gmock.h>

#include "core/disco.h"
#include "tests/core/cartella_temporanea.h"

namespace {

namespace fs = std::filesystem;

struct Collegamenti : testing::Test {
  Cartella_Temporanea cartella;
  Disco disco;
};

// Names that come out of fields and files stay in the folder that they are joined with.
TEST(Percorsi, UnNomeNonEsceDallaCartella) {
  const struct {
    Testo nome;
    const char* atteso;
  } casi[] = {{"..", "/dati/--"},
              {"../x", "/dati/--/x"},
              {"a/../../x", "/dati/a/--/--/x"},
              {"..\\x", "/dati/--\\x"},
              {"/../x", "/dati/--/x"},
              {"x/..", "/dati/x/--"},
              {Testo("..\0", 3), "/dati/..-"},
              {Testo("..\0/x", 5), "/dati/..-/x"},
              {Testo("a\0b", 3), "/dati/a-b"},
              {"...", "/dati/..."},
              {"a..b", "/dati/a..b"},
              {"..a", "/dati/..a"},
              {".", "/dati/."}};
  for (const auto& caso : casi) EXPECT_EQ(Unisci_Percorso("/dati", caso.nome).native(), caso.atteso);
}

TEST_F(Collegamenti, EUnCollegamentoSoloIlNomeCheLoE) {
  cartella.Metti("vero/a.txt", "x");
  fs::create_directory_symlink("vero", cartella / "Altrove");
  fs::create_symlink("manca", cartella / "pendente");
  EXPECT_TRUE(disco.E_Collegamento(cartella / "Altrove"));
  EXPECT_TRUE(disco.E_Collegamento(cartella / "ALTROVE")) << "in any letter case";
  EXPECT_TRUE(disco.E_Collegamento(cartella / "pendente"));
  EXPECT_FALSE(disco.E_Collegamento(cartella / "Altrove/a.txt"));
  EXPECT_FALSE(disco.E_Collegamento(cartella / "vero"));
  EXPECT_FALSE(disco.E_Collegamento(cartella / "manca"));
}

// The old bytes of what the link leads to would be gone for good.
TEST_F(Collegamenti, NonSiSovrascriveAttraversoUnCollegamento) {
  cartella.Metti("vero.txt", "tutto");
  fs::create_symlink("vero.txt", cartella / "a.dat");
  EXPECT_EQ(disco.Sovrascrivi(cartella / "a.dat", "x"), ELOOP);
  EXPECT_EQ(cartella.Contenuto("vero.txt"), "tutto");
  EXPECT_EQ(disco.Cancella(cartella / "a.dat"), 0) << "the link goes, what it leads to stays";
  EXPECT_EQ(cartella.Contenuto("vero.txt"), "tutto");
}

// Times after 19/01/2038 don't fit into 32 bits.
TEST_F(Collegamenti, IlTempoDiUnaCartellaDopoIl2038) {
  using namespace std::chrono;
  for (const int anno : {2037, 2041, 2099, 2150}) {
    const auto quando = file_clock::from_sys(sys_seconds(sys_days(year(anno) / 2 / 28)));
    std::error_code errore;
    fs::last_write_time(cartella.percorso, quando, errore);
    ASSERT_FALSE(errore) << anno;
    EXPECT_EQ(disco.Cambiata(cartella.percorso), quando) << anno;
  }
}

}  // namespace

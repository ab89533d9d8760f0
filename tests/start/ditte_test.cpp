#include "start/ditte.h"

#include <cerrno>
#include <gmock/gmock.h>

#include "tests/core/cartella_temporanea.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Ditte_Prova : testing::Test {
  Cartella_Temporanea cartella;
  Disco disco;
};

TEST_F(Ditte_Prova, SonoLeCartelleConIlProgrammaOLIntestazione) {
  cartella.Metti("Velmara/Mario/Velmara_2020", "x");
  cartella.Metti("Velmara/anna/_2020_ragione.txt", "x");
  cartella.Metti("Velmara/foto/mare.jpg", "x");
  cartella.Metti("Velmara/vecchia/RAGIONE.txt", "x");  // comes over from the older program
  cartella.Metti("Velmara/Velmara_2020", "x");
  EXPECT_THAT(
      Ditte_In(disco, cartella / "Velmara").value(),
      ElementsAre(cartella / "Velmara/anna", cartella / "Velmara/Mario", cartella / "Velmara/vecchia"));
  EXPECT_THAT(Ditte_In(disco, cartella / "manca").value(), IsEmpty());
  std::filesystem::create_directory_symlink("giro", cartella / "giro");
  int errore = 0;
  EXPECT_FALSE(Ditte_In(disco, cartella / "giro", &errore).has_value());
  EXPECT_EQ(errore, ELOOP);
}

TEST_F(Ditte_Prova, IlNomeDiUnaDittaEUnNomeDiCartella) {
  struct Caso {
    const char* scritto;
    std::optional<Testo> nome;
  };
  for (const Caso& caso : {Caso{"Rossi S.r.l.", "Rossi S.r.l"},
                           {"  Mare & Figli ", "Mare & Figli"},
                           {"../fuori", "fuori"},
                           {"a/b\\c:d", "abcd"},
                           {"..", std::nullopt},
                           {"  ", std::nullopt},
                           {"*?", std::nullopt},
                           {"tab\tqui", "tabqui"}})
    EXPECT_EQ(Nome_Di_Ditta(caso.scritto), caso.nome) << caso.scritto;
}

TEST_F(Ditte_Prova, IProgrammiVannoNellaCartellaESiPossonoAvviare) {
  cartella.Metti("lib/Velmara_2020", "nuovo");
  cartella.Metti("lib/Velmara_2020_Descri", "elenchi");
  cartella.Metti("Velmara/Mario/Velmara_2020", "vecchio");
  cartella.Metti("Velmara/Mario/_2020_ncv.txt", "12");
  EXPECT_EQ(Metti_Programmi(disco, cartella / "lib", cartella / "Velmara/Mario"), 0);
  EXPECT_EQ(cartella.Contenuto("Velmara/Mario/Velmara_2020"), "nuovo");
  EXPECT_EQ(cartella.Contenuto("Velmara/Mario/_2020_ncv.txt"), "12");
  const auto diritti = std::filesystem::status(cartella / "Velmara/Mario/Velmara_2020_Descri").permissions();
  EXPECT_NE(diritti & std::filesystem::perms::owner_exec, std::filesystem::perms::none);
}

TEST_F(Ditte_Prova, UnDiscoPienoLasciaIlProgrammaDiPrima) {
  cartella.Metti("lib/Velmara_2020", "nuovo");
  cartella.Metti("lib/Velmara_2020_Descri", "elenchi");
  cartella.Metti("Mario/Velmara_2020", "vecchio");
  disco.guasto = [](const Percorso&) { return ENOSPC; };
  EXPECT_EQ(Metti_Programmi(disco, cartella / "lib", cartella / "Mario"), ENOSPC);
  EXPECT_EQ(cartella.Contenuto("Mario/Velmara_2020"), "vecchio");
}

TEST_F(Ditte_Prova, SenzaProgrammiDaCopiareSiSa) {
  EXPECT_EQ(Metti_Programmi(disco, cartella / "lib", cartella / "Mario"), ENOENT);
}

}  // namespace

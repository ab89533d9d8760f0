#include "transfers/volumi.h"

#include <cerrno>
#include <gmock/gmock.h>

#include "tests/core/ditta_di_prova.h"

namespace {

const Volume chiavetta{"/media/anna/CHIAVETTA", "/media/anna/CHIAVETTA", "CHIAVETTA"};
const Volume dentro{"/media/anna/CHIAVETTA/altra", "F:", "ALTRA"};

TEST(Volumi, RigaDellaLista) {
  const std::pair<Volume, Testo> casi[] = {
      {{"/x", "E:", "CHIAVETTA"}, "E:[CHIAVETTA]"},
      {{"/x", "E:", ""}, "E:[]"},
      {{"/media/anna/DATI", "/media/anna/DATI", "DATI"}, "/media/anna/DATI[DATI]"},
      {{"/x", "a:", "letta"}, "a:[Dischetto Floppy]"},
      {{"/x", "B:", ""}, "b:[Dischetto Floppy]"},
      {{"/x", "E:", "DUE\nRIGHE"}, "E:[DUERIGHE]"},
  };
  for (const auto& [volume, voce] : casi) EXPECT_EQ(Voce_Volume(volume), voce);
}

TEST(Volumi, DiUnPercorso) {
  const std::vector<Volume> volumi = {chiavetta, dentro};
  EXPECT_EQ(Volume_Di(volumi, "/media/anna/CHIAVETTA"), Percorso("/media/anna/CHIAVETTA"));
  EXPECT_EQ(Volume_Di(volumi, "/media/anna/CHIAVETTA/"), Percorso("/media/anna/CHIAVETTA"));
  EXPECT_EQ(Volume_Di(volumi, "/media/anna/CHIAVETTA/velmara/2025"), Percorso("/media/anna/CHIAVETTA"));
  EXPECT_EQ(Volume_Di(volumi, "/media/anna/CHIAVETTA/altra/x"), Percorso("/media/anna/CHIAVETTA/altra"));
  EXPECT_EQ(Volume_Di({dentro, chiavetta}, "/media/anna/CHIAVETTA/altra/x"),
            Percorso("/media/anna/CHIAVETTA/altra"));
  EXPECT_EQ(Volume_Di(volumi, "/media/anna/CHIAVETTA2/x"), std::nullopt) << "a name that begins the same";
  EXPECT_EQ(Volume_Di(volumi, "/casa/anna/velmara"), std::nullopt);
  EXPECT_EQ(Volume_Di({}, "/casa/anna/velmara"), std::nullopt);
}

TEST(Volumi, SulVolumeONo) {
  const std::vector<Volume> volumi = {chiavetta, dentro};
  EXPECT_TRUE(Sul_Volume(volumi, "/media/anna/CHIAVETTA/a", "/media/anna/CHIAVETTA/"));
  EXPECT_FALSE(Sul_Volume(volumi, "/media/anna/CHIAVETTA/altra/a", "/media/anna/CHIAVETTA"));
  EXPECT_FALSE(Sul_Volume(volumi, "/casa/a", "/media/anna/CHIAVETTA"));
  EXPECT_FALSE(Sul_Volume({}, "/casa/a", "/media/anna/CHIAVETTA")) << "pulled out meanwhile";
}

struct Scrittura_Volume : Ditta_Di_Prova, testing::Test {
  Scrittura_Volume() {
    std::filesystem::create_directories(radice);
    macchina.volumi = {{radice, "E:", "CHIAVETTA"}};
  }
  Percorso radice = cartella / "chiavetta";
  Percorso file = radice / "dati.txt";
};

TEST_F(Scrittura_Volume, ScriveECopia) {
  EXPECT_EQ(Scrivi_Sul_Volume(programma, radice, file, "uno\r\n"), 0);
  EXPECT_EQ(cartella.Contenuto("chiavetta/dati.txt"), "uno\r\n");
  EXPECT_EQ(Copia_Sul_Volume(programma, radice, file, cartella / "copia.txt"), 0);
  EXPECT_EQ(cartella.Contenuto("copia.txt"), "uno\r\n");
  EXPECT_EQ(Scrivi_Sul_Volume(programma, {}, cartella / "mio.txt", "due"), 0) << "no volume in play";
  EXPECT_EQ(Copia_Sul_Volume(programma, radice, radice / "manca", cartella / "c"), ENOENT);
}

TEST_F(Scrittura_Volume, PienoOProtettoRestaIlFileDiPrima) {
  cartella.Metti("chiavetta/dati.txt", "prima");
  for (const int errore : {ENOSPC, EROFS, EIO}) {
    programma.disco.guasto = [errore](const Percorso&) { return errore; };
    EXPECT_EQ(Scrivi_Sul_Volume(programma, radice, file, "dopo"), errore);
    EXPECT_EQ(cartella.Contenuto("chiavetta/dati.txt"), "prima");
  }
}

// The empty folder of a stick that is gone takes a file without a word, on the machine's own disk.
TEST_F(Scrittura_Volume, ToltoPrimaNonSiScrive) {
  macchina.volumi.clear();
  EXPECT_EQ(Scrivi_Sul_Volume(programma, radice, file, "x"), ENODEV);
  EXPECT_EQ(cartella.Contenuto("chiavetta/dati.txt"), "(manca)");
  EXPECT_EQ(Copia_Sul_Volume(programma, radice, file, cartella / "c"), ENODEV);
}

TEST_F(Scrittura_Volume, ToltoDuranteSiDice) {
  programma.disco.guasto = [this](const Percorso&) {
    macchina.volumi.clear();
    return 0;
  };
  EXPECT_EQ(Scrivi_Sul_Volume(programma, radice, file, "x"), ENODEV);
}

TEST(Volumi, Guasti) {
  const std::pair<int, Testo> casi[] = {
      {ENOSPC, "il disco è pieno"_t},
      {EDQUOT, "il disco è pieno"_t},
      {EROFS, "il disco è protetto da scrittura"_t},
      {EACCES, "non è permesso scrivere qui"_t},
      {ENODEV, "il disco non c'è più: il file potrebbe mancare"_t},
      {ENOENT, "il disco o la cartella non c'è più"_t},
      {EIO, "il disco è guasto, o è stato tolto"_t},
      {EBUSY, Testo_Errore(EBUSY)},
  };
  for (const auto& [errore, parole] : casi)
    EXPECT_EQ(
        Testo_Guasto(errore, "il salvataggio", "/media/x/20250314.txt"),
        "Errore " + std::to_string(errore) + " durante il salvataggio\n/media/x/20250314.txt\n" + parole);
}

}  // namespace

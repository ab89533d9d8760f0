#include "transfers/sceltafile.h"

#include <cerrno>
#include <gmock/gmock.h>

#include "tests/core/ditta_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct SceltaFile_Test : Ditta_Di_Prova, testing::Test {
  SceltaFile_Test() {
    programma.Cartella_Dati = cartella / "ditta";
    cartella.Metti("ditta/uno.txt", "");
    cartella.Metti("ditta/due.xls", "");
    cartella.Metti("ditta/2025/20250314.txt", "");
    cartella.Metti("chiavetta/stick.txt", "");
    macchina.volumi = {{cartella / "chiavetta", "E:", "CHIAVETTA"}};
    Apri_SceltaFile(programma, schermo);
  }
  static std::vector<Testo> Righe(const Elenco& elenco) {
    std::vector<Testo> righe;
    for (std::size_t i = 0; i < elenco.Numero(); ++i) righe.push_back(elenco.Riga(i));
    return righe;
  }
  SceltaFile schermo;
};

TEST(NomeFile, ConLEstensione) {
  const std::pair<Testo, std::optional<Testo>> casi[] = {
      {"abc", "abc.xls"},         {"abc.txt", "abc.txt"}, {"abc.xls", "abc.xls"}, {"ABC.TXT", "ABC.TXT"},
      {"abc.csv", "abc.csv.xls"}, {" abc ", "abc.xls"},   {"", std::nullopt},     {"   ", std::nullopt},
      {".txt", ".txt"},           {"txt", "txt.xls"},
  };
  for (const auto& [nome, atteso] : casi) EXPECT_EQ(Nome_Con_Estensione(nome), atteso) << nome;
}

TEST_F(SceltaFile_Test, Apertura) {
  EXPECT_EQ(schermo.Text1.testo, "zzzz.txt");
  EXPECT_THAT(Righe(schermo.Drive1), ElementsAre(Testo_Percorso(programma.Cartella_Dati), "E:[CHIAVETTA]"));
  EXPECT_EQ(schermo.Drive1.scelta, 0);
  EXPECT_THAT(Righe(schermo.Dir1), ElementsAre("..", "2025"));
  EXPECT_THAT(Righe(schermo.File1), ElementsAre("due.xls", "uno.txt"));
  EXPECT_EQ(schermo.Cartella.testo, Testo_Percorso(programma.Cartella_Dati));
}

TEST_F(SceltaFile_Test, ConfermaDaCartellaENome) {
  schermo.Text1.testo = "abc";
  Conferma_File(programma, schermo);
  EXPECT_TRUE(schermo.chiusa);
  EXPECT_EQ(schermo.FileScelto, cartella / "ditta/abc.xls");
}

TEST_F(SceltaFile_Test, IlNomeVuotoNonFaNulla) {
  schermo.Text1.testo = "  ";
  Conferma_File(programma, schermo);
  EXPECT_FALSE(schermo.chiusa);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(SceltaFile_Test, UnNomeNonEUnPercorso) {
  for (const char* nome : {"../fuori", "a\\b.txt"}) {
    schermo.Text1.testo = nome;
    Conferma_File(programma, schermo);
    EXPECT_FALSE(schermo.chiusa) << nome;
  }
  EXPECT_EQ(macchina.messaggi.size(), 2U);
}

TEST_F(SceltaFile_Test, DiscoCartellaEFile) {
  schermo.Drive1.scelta = 1;
  Cambia_Disco(programma, schermo);
  EXPECT_THAT(Righe(schermo.File1), ElementsAre("stick.txt"));
  schermo.File1.scelta = 0;
  Prendi_Nome(schermo);
  EXPECT_EQ(schermo.Text1.testo, "stick.txt");
  Conferma_File(programma, schermo);
  EXPECT_EQ(schermo.FileScelto, cartella / "chiavetta/stick.txt");
}

TEST_F(SceltaFile_Test, EntraEdEsceDalleCartelle) {
  schermo.Dir1.scelta = 1;
  Entra_Cartella(programma, schermo);
  EXPECT_EQ(schermo.cartella, cartella / "ditta/2025");
  EXPECT_THAT(Righe(schermo.File1), ElementsAre("20250314.txt"));
  EXPECT_THAT(Righe(schermo.Dir1), ElementsAre(".."));
  for (int i = 0; i < 2; ++i) {
    schermo.Dir1.scelta = 0;
    Entra_Cartella(programma, schermo);
  }
  EXPECT_EQ(schermo.cartella, cartella.percorso);
  EXPECT_THAT(Righe(schermo.Dir1), ElementsAre("..", "chiavetta", "ditta"));
  schermo.Dir1.scelta = 1;
  Entra_Cartella(programma, schermo);
  EXPECT_EQ(schermo.Drive1.Scelta(), "E:[CHIAVETTA]") << "the disk follows the folder";
}

TEST_F(SceltaFile_Test, LaChiavettaToltaRiportaAllaDitta) {
  schermo.Drive1.scelta = 1;
  Cambia_Disco(programma, schermo);
  macchina.volumi.clear();
  std::filesystem::remove_all(cartella / "chiavetta");
  Aggiorna_SceltaFile(programma, schermo);
  EXPECT_EQ(schermo.cartella, programma.Cartella_Dati);
  EXPECT_EQ(schermo.Drive1.scelta, 0);
}

// An empty list would say that no file stands there.
TEST_F(SceltaFile_Test, UnaCartellaCheNonSiLeggeSiVede) {
  std::filesystem::create_directory_symlink("giro", cartella / "giro");
  programma.Cartella_Dati = cartella / "giro";
  Apri_SceltaFile(programma, schermo);
  EXPECT_THAT(Righe(schermo.File1), IsEmpty());
  EXPECT_EQ(schermo.Cartella.testo,
            Testo_Percorso(cartella / "giro") + " - non si legge: " + Testo_Errore(ELOOP));
}

TEST_F(SceltaFile_Test, Annulla) {
  Annulla_File(schermo);
  EXPECT_TRUE(schermo.chiusa);
  EXPECT_FALSE(schermo.FileScelto);
}

}  // namespace

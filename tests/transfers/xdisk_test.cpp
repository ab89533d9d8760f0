#include "transfers/xdisk.h"

#include <gmock/gmock.h>

#include "tests/core/ditta_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Xdisk_Test : Ditta_Di_Prova, testing::Test {
  Xdisk_Test() { macchina.volumi = {{"/media/E", "E:", "CHIAVETTA"}, {"/media/a", "a:", "?"}}; }
  std::vector<Testo> Righe() const {
    std::vector<Testo> righe;
    for (std::size_t i = 0; i < xdisk.List1.Numero(); ++i) righe.push_back(xdisk.List1.Riga(i));
    return righe;
  }
  void Scegli(int riga) {
    xdisk.List1.scelta = riga;
    Cambia_Drive(xdisk);
  }
  Xdisk xdisk;
};

TEST_F(Xdisk_Test, TitoliPerModo) {
  const std::pair<ModoCopia, Testo> casi[] = {
      {ModoCopia::NOTA, "Scegli nella lista dove vuoi salvare il file da inviare per fatturazione..."},
      // crosswise to the two copies' meaning, as the operators know them
      {ModoCopia::COPIA_DA, "Scegli la Chiavetta dove salvare il file dati..."},
      {ModoCopia::COPIA_IN, "Scegli la Chiavetta da dove copiare il file dati..."},
      {ModoCopia::Altro, "Scegli la Chiavetta dove operare..."},
  };
  for (const auto& [modo, titolo] : casi) {
    Apri_Xdisk(programma, xdisk, modo, "/ditta/XBanca");
    EXPECT_EQ(xdisk.titolo, "Scelta destinazione");
    EXPECT_EQ(xdisk.Titolo.testo, titolo);
    EXPECT_EQ(xdisk.Command2.testo, "&Annulla");
    EXPECT_EQ(xdisk.MenuAggiorna.testo, "AggiornaDischi");
  }
}

TEST_F(Xdisk_Test, SoloLaNotaOffreLaSuaCartella) {
  Apri_Xdisk(programma, xdisk, ModoCopia::NOTA, "/ditta/XBanca");
  EXPECT_THAT(Righe(), ElementsAre("/ditta/XBanca", "E:[CHIAVETTA]", "a:[Dischetto Floppy]"));
  Apri_Xdisk(programma, xdisk, ModoCopia::COPIA_IN, "/ditta/XBanca");
  EXPECT_THAT(Righe(), ElementsAre("E:[CHIAVETTA]", "a:[Dischetto Floppy]"));
}

TEST_F(Xdisk_Test, SenzaSceltaRestaAperta) {
  Apri_Xdisk(programma, xdisk, ModoCopia::NOTA, "/ditta/XBanca");
  EXPECT_EQ(xdisk.List1.scelta, -1);
  EXPECT_FALSE(xdisk.Command1.attivo);
  Conferma_Drive(xdisk);
  EXPECT_FALSE(xdisk.chiusa);
  EXPECT_FALSE(xdisk.scelto);
}

TEST_F(Xdisk_Test, ConfermaPrendeLaRiga) {
  Apri_Xdisk(programma, xdisk, ModoCopia::NOTA, "/ditta/XBanca");
  Scegli(1);
  EXPECT_TRUE(xdisk.Command1.attivo);
  Conferma_Drive(xdisk);
  EXPECT_TRUE(xdisk.chiusa);
  ASSERT_TRUE(xdisk.scelto);
  EXPECT_EQ(xdisk.scelto->radice, Percorso("/media/E"));
  EXPECT_EQ(xdisk.scelto->voce, "E:[CHIAVETTA]");
  EXPECT_FALSE(xdisk.scelto->cartella_propria);
}

TEST_F(Xdisk_Test, LaPrimaVoceDellaNotaELaCartella) {
  Apri_Xdisk(programma, xdisk, ModoCopia::NOTA, "/ditta/XBanca");
  Scegli(0);
  Conferma_Drive(xdisk);
  ASSERT_TRUE(xdisk.scelto);
  EXPECT_TRUE(xdisk.scelto->cartella_propria);
  EXPECT_EQ(xdisk.scelto->radice, Percorso("/ditta/XBanca"));
}

TEST_F(Xdisk_Test, AnnullaNonSceglie) {
  Apri_Xdisk(programma, xdisk, ModoCopia::NOTA, "/ditta/XBanca");
  Scegli(1);
  Annulla_Drive(xdisk);
  EXPECT_TRUE(xdisk.chiusa);
  EXPECT_FALSE(xdisk.scelto);
}

TEST_F(Xdisk_Test, AggiornaTieneLaScelta) {
  Apri_Xdisk(programma, xdisk, ModoCopia::COPIA_IN);
  Scegli(0);
  macchina.volumi.insert(macchina.volumi.begin(), Volume{"/media/D", "D:", "DISCO"});
  Aggiorna_Dischi(programma, xdisk);
  EXPECT_EQ(xdisk.List1.Scelta(), "E:[CHIAVETTA]");
  macchina.volumi.clear();
  Aggiorna_Dischi(programma, xdisk);
  EXPECT_THAT(Righe(), IsEmpty());
  EXPECT_EQ(xdisk.List1.scelta, -1);
  EXPECT_FALSE(xdisk.Command1.attivo);
  Conferma_Drive(xdisk);
  EXPECT_FALSE(xdisk.chiusa);
}

}  // namespace

#include "core/posti_finestre.h"

#include <gmock/gmock.h>

#include "tests/core/ditta_di_prova.h"

namespace {

using testing::Eq;
using testing::Optional;

constexpr Posto_Finestra clienti{10, 20, 700, 600, false}, cornice{0, 0, 1300, 700, true};

struct Posti : Ditta_Di_Prova, testing::Test {
  Posti_Finestre Apri() { return {programma.disco, cartella.percorso}; }
  Testo File() const { return cartella.Contenuto("_Finestre.txt"); }
};

TEST_F(Posti, UnaDittaNuovaNonHaPostiNeFile) {
  EXPECT_EQ(Apri().Posto("Clienti"), std::nullopt);
  EXPECT_FALSE(programma.disco.Esiste_File(cartella / "_Finestre.txt"));
}

TEST_F(Posti, RestanoDaUnaVoltaAllAltra) {
  auto posti = Apri();
  EXPECT_EQ(posti.Ricorda("Clienti", clienti), 0);
  EXPECT_EQ(posti.Ricorda("Albero2", cornice), 0);
  EXPECT_EQ(File(), "Albero2\t0\t0\t1300\t700\t1\r\nClienti\t10\t20\t700\t600\t0\r\n");
  EXPECT_THAT(Apri().Posto("Clienti"), Optional(Eq(clienti)));
  EXPECT_THAT(Apri().Posto("Albero2"), Optional(Eq(cornice)));
}

TEST_F(Posti, UnaFinestraSconosciutaResta) {
  cartella.Metti("_Finestre.txt", "DiDomani\t1\t2\t3\t4\t0\r\n");
  auto posti = Apri();
  posti.Ricorda("Clienti", clienti);
  EXPECT_THAT(File(), testing::HasSubstr("DiDomani\t1\t2\t3\t4\t0\r\n"));
}

TEST_F(Posti, LeRigheGuasteNonValgono) {
  cartella.Metti("_Finestre.txt",
                 "A\t1\t2\t3\r\n"        // no height
                 "B\t1\t2\tx\t4\t0\r\n"  // no number
                 "C\t1\t2\t0\t4\t0\r\n"  // no width
                 "D\t1\t2\t999999999\t4\t0\r\n"
                 "\t1\t2\t3\t4\t0\r\n"
                 "E\t-5\t2\t3\t4");  // a screen may lie to the left; the mark may be missing
  const auto posti = Apri();
  for (const char* nome : {"A", "B", "C", "D", ""}) EXPECT_EQ(posti.Posto(nome), std::nullopt) << nome;
  EXPECT_THAT(posti.Posto("E"), Optional(Eq(Posto_Finestra{-5, 2, 3, 4, false})));
}

TEST_F(Posti, ColDiscoPienoValgonoFinoAllaFineELaProssimaLiScrive) {
  auto posti = Apri();
  Disco_Pieno();
  EXPECT_EQ(posti.Ricorda("Clienti", clienti), ENOSPC);
  EXPECT_THAT(posti.Posto("Clienti"), Optional(Eq(clienti)));
  programma.disco.guasto = nullptr;
  EXPECT_EQ(posti.Ricorda("Albero2", cornice), 0);
  EXPECT_THAT(Apri().Posto("Clienti"), Optional(Eq(clienti)));
}

TEST_F(Posti, UnFileCheNonSiLeggeNonVieneSostituito) {
  std::filesystem::create_directory(cartella / "_Finestre.txt");
  auto posti = Apri();
  EXPECT_NE(posti.Ricorda("Clienti", clienti), 0);
  EXPECT_TRUE(programma.disco.Esiste_Cartella(cartella / "_Finestre.txt"));
}

TEST(Posto_Finestra_Test, DentroLoSchermo) {
  constexpr Posto_Finestra schermo{0, 0, 1366, 768, false};
  struct Caso {
    Posto_Finestra posto, dentro;
  };
  const Caso casi[] = {
      {{10, 20, 700, 600, false}, {10, 20, 700, 600, false}},
      {{2000, 900, 700, 600, false}, {666, 168, 700, 600, false}},  // the other screen is gone
      {{-300, -20, 700, 600, true}, {0, 0, 700, 600, true}},
      {{5, 5, 3000, 2000, false}, {0, 0, 1366, 768, false}}};
  for (const auto& [posto, dentro] : casi) EXPECT_EQ(Dentro_Lo_Schermo(posto, schermo), dentro);
}

}  // namespace

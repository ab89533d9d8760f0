#include "core/corsa.h"

#include <gtest/gtest.h>

#include "tests/piattaforma_finta.h"

namespace {

constexpr Parole_Corsa documenti{"Stampa interrotta", "documento", "documenti"};

int Corri(Corsa& corsa, int quante) {
  int iniziate = 0;
  while (iniziate < quante && corsa.Avanti()) {
    ++iniziate;
    corsa.Fatta();
  }
  return iniziate;
}

TEST(Corsa, SenzaEscArrivaInFondo) {
  Piattaforma_Finta macchina;
  Corsa corsa(macchina, 40);
  EXPECT_EQ(Corri(corsa, 40), 40);
  EXPECT_FALSE(corsa.Fermata());
  EXPECT_EQ(macchina.unita, 39);  // asked between two, neither before the first nor after the last
}

TEST(Corsa, EscFermaPrimaDellaProssima) {
  Piattaforma_Finta macchina;
  macchina.ferma_dopo = 12;
  Corsa corsa(macchina, 40);
  EXPECT_EQ(Corri(corsa, 40), 12);
  EXPECT_TRUE(corsa.Fermata());
  EXPECT_FALSE(corsa.Avanti());
  EXPECT_EQ(macchina.unita, 12);  // not asked again
  EXPECT_EQ(corsa.Testo_Fermata(documenti), "Stampa interrotta: 12 documenti su 40.");
}

TEST(Corsa, DiUnaSolaNonSiFerma) {
  Piattaforma_Finta macchina;
  macchina.ferma_dopo = 1;
  Corsa corsa(macchina, 1);
  EXPECT_EQ(Corri(corsa, 1), 1);
  EXPECT_FALSE(corsa.Fermata());
}

TEST(Corsa, IlTestoContaQuelloCheEFattoDavvero) {
  struct Caso {
    int fatte;
    std::size_t quante;
    int copie;
    Vista testo;
  };
  constexpr Caso casi[] = {{0, 3, 1, "Stampa interrotta: 0 documenti su 3."},
                           {1, 3, 1, "Stampa interrotta: 1 documento su 3."},
                           {2, 3, 0, "Stampa interrotta: 2 documenti su 3."},
                           {4, 3, 2, "Stampa interrotta: 4 documenti su 6 (2 copie)."}};
  for (const Caso& caso : casi) {
    Piattaforma_Finta macchina;
    Corsa corsa(macchina, caso.quante, caso.copie);
    corsa.Avanti();
    for (int i = 0; i < caso.fatte; ++i) corsa.Fatta();
    EXPECT_EQ(corsa.Testo_Fermata(documenti), caso.testo);
  }
}

}  // namespace

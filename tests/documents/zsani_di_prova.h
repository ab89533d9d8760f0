#pragma once

#include <gmock/gmock.h>

#include "tests/documents/documenti_di_prova.h"

// The document screen on a day of its own.
struct Zsani_Test : testing::Test, Documenti_Di_Prova {
  // Three customers, one with two rows, one credit row.
  void Giornata() {
    Vendita("Laguna Pesca", "001");
    Vendita("Trattoria Lido", "002");
    Vendita("Laguna Pesca", "001");
    Vendita("Bar Ponte", "003");
    Vendita("Bar Ponte", "Rif.Fat. 12", "-5");
  }
  void Premi(Tasto tasto) { EXPECT_TRUE(TastoDocumenti(programma, zsani, {.tasto = tasto})); }
};

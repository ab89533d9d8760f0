#include <cstdio>
#include <gtest/gtest.h>

#include <QApplication>

int main(int numero, char** argomenti) {
  testing::InitGoogleTest(&numero, argomenti);
  if (!qEnvironmentVariableIsSet("VELMARA_CODA")) {
    std::fputs("these tests need the print server that tests/stampante/coda starts\n", stderr);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication applicazione(numero, argomenti);
  return RUN_ALL_TESTS();
}

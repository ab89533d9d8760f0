#include <gtest/gtest.h>

#include <QApplication>

int main(int numero, char** argomenti) {
  testing::InitGoogleTest(&numero, argomenti);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication applicazione(numero, argomenti);
  return RUN_ALL_TESTS();
}

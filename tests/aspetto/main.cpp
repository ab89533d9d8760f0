#include <gtest/gtest.h>

#include <QApplication>

#include "platform/aspetto.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCHERMO_PICCOLO);
  QApplication qt(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  Prepara_Aspetto();
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}

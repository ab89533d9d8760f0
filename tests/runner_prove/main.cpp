#include <cstdlib>
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  ::testing::InitGoogleTest(&argc, argv);
  const QApplication applicazione(argc, argv);
  return RUN_ALL_TESTS();
}

#include "accounts/screens/zvendita_finestra.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>

#include "tests/accounts/conti_di_prova.h"

// The window of the accounts as it stands on the operator's screen.

namespace {

struct Finestra_Conti : Conti_Di_Prova, testing::Test {
  static void Premi(QWidget& finestra, int tasto) {
    QKeyEvent pressione(QEvent::KeyPress, tasto, Qt::NoModifier);
    QCoreApplication::sendEvent(&finestra, &pressione);
    QCoreApplication::processEvents();
  }
};

// On a small screen a window that grows puts its commands out of sight.
TEST_F(Finestra_Conti, LAnteprimaLasciaLaFinestraComEra) {
  Vendita(Riga_CV("Adriatica", "Orata", "100", "5,00"), "1");
  ZvenditaFinestra finestra(programma);
  finestra.show();
  QCoreApplication::processEvents();
  const QSize prima = finestra.size();
  auto* anteprima = finestra.findChild<QWidget*>(QStringLiteral("Anteprima"));
  ASSERT_NE(anteprima, nullptr);
  for (int volta = 0; volta < 2; ++volta) {
    Premi(finestra, Qt::Key_F6);
    EXPECT_TRUE(anteprima->isVisible());
    EXPECT_EQ(finestra.size(), prima);
    Premi(finestra, Qt::Key_Escape);
    EXPECT_FALSE(anteprima->isVisible());
    EXPECT_EQ(finestra.size(), prima);
  }
}

}  // namespace

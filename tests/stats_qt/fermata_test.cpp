#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QWindow>

#include "bench/anno.h"
#include "platform/interruzione.h"
#include "stats/screens/rxfor_finestra.h"
#include "stats/screens/statistica2_finestra.h"
#include "tests/core/ditta_di_prova.h"

// Esc in the real windows while they read a year.

namespace {

struct Finestre : Ditta_Di_Prova, testing::Test {
  Finestre() {
    programma.preferenze = Preferenze_Predefinite();
    programma.Anno_Lavoro = "2025";
    programma.Data_AAAAMMGG = "20250101";
    programma.Cartella_Anno = cartella / "2025";
    Anno({.giorni = 12, .righe = 50, .fornitori = 10}).Scrivi(programma.Cartella_Anno);
    macchina.fra_le_unita = [this] {
      if (Esc_Premuto()) macchina.ferma_dopo = macchina.unita + 1;
    };
  }

  // A key as the window system delivers it: in the queue until the window works.
  static void Premi(QWidget& finestra, int tasto) {
    for (const auto tipo : {QEvent::KeyPress, QEvent::KeyRelease})
      QCoreApplication::postEvent(finestra.windowHandle(), new QKeyEvent(tipo, tasto, Qt::NoModifier));
  }
  template <class Widget>
  static Widget& Trova(QWidget& finestra, const char* nome) {
    auto* widget = finestra.findChild<Widget*>(QString::fromUtf8(nome));
    if (widget == nullptr) throw std::logic_error(nome);
    return *widget;
  }
  static QString Avanzamento(QWidget& finestra) { return Trova<QLabel>(finestra, "Avanzamento").text(); }
  static int Righe(QWidget& finestra) { return Trova<QListView>(finestra, "ListaSaldo").model()->rowCount(); }
};

TEST_F(Finestre, EscFermaIlPeriodoELaFinestraResta) {
  Statistica2 statistica;
  ASSERT_TRUE(Apri_Statistica2(programma, statistica));
  Statistica2Finestra finestra(programma, std::move(statistica));
  finestra.show();
  QCoreApplication::processEvents();
  Premi(finestra, Qt::Key_Escape);
  Trova<QPushButton>(finestra, "Applica").click();
  EXPECT_EQ(Avanzamento(finestra), "calcolo interrotto");
  EXPECT_EQ(Righe(finestra), 0);
  EXPECT_EQ(macchina.unita, 1);  // after the first file
  QCoreApplication::processEvents();
  EXPECT_TRUE(finestra.isVisible());  // the key isn't taken a second time, for closing

  Trova<QPushButton>(finestra, "Applica").click();
  EXPECT_EQ(Avanzamento(finestra), "20250112.txt letto");
  EXPECT_EQ(Righe(finestra), 10);
}

TEST_F(Finestre, GliAltriTastiSonoLasciatiCadere) {
  RXForFinestra finestra(programma);
  finestra.show();
  QCoreApplication::processEvents();
  for (int i = 0; i < 11; ++i) Trova<QPushButton>(finestra, "Command3").click();
  Trova<QAbstractButton>(finestra, "Check1").click();
  macchina.risposte = {true};
  Premi(finestra, Qt::Key_9);
  Trova<QPushButton>(finestra, "Command4").click();
  QCoreApplication::processEvents();
  EXPECT_EQ(Avanzamento(finestra), "600 - righe lette");
  EXPECT_EQ(Righe(finestra), 10);
  EXPECT_EQ(Trova<QLineEdit>(finestra, "Text1").text(), "20250101");
}

}  // namespace

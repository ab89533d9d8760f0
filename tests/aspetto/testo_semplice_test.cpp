#include <gtest/gtest.h>

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QTimer>

#include "platform/legame.h"
#include "platform/piattaforma_qt.h"
#include "printing/registratore.h"

namespace {

const Testo Ostile = "<img src=\"/etc/hostname\"><b>Mare Blu</b>";

// A name out of a list is a name, also where it looks like markup: else it would fetch pictures from
// anywhere.
TEST(TestoSemplice, UnNomeNonEUnaPagina) {
  QWidget finestra;
  auto* scritta = new QLabel(&finestra);
  Scritta stato;
  stato.testo = Ostile;
  Legame legame(&finestra, [] {});
  legame.lega(scritta, QStringLiteral("Scritta"), stato);
  legame.mostra();
  EXPECT_EQ(scritta->text(), QStringLiteral("<img src=\"/etc/hostname\"><b>Mare Blu</b>"));
  EXPECT_EQ(scritta->textFormat(), Qt::PlainText);
}

TEST(TestoSemplice, AncheNelleDomande) {
  std::optional<Stampante> stampante;
  Registro_Pagine registro;
  Registratore carta(stampante, registro);
  Piattaforma_Qt macchina(carta);
  int scritte = 0;
  QTimer::singleShot(0, [&scritte] {
    auto* domanda = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(domanda);
    for (const QLabel* scritta : domanda->findChildren<QLabel*>()) {
      EXPECT_EQ(scritta->textFormat(), Qt::PlainText);
      ++scritte;
    }
    domanda->reject();
  });
  EXPECT_EQ(macchina.Chiedi(Ostile, {}, {}), std::nullopt);
  EXPECT_GT(scritte, 0);
}

}  // namespace

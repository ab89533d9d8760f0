#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>

#include "platform/piattaforma_qt.h"
#include "printing/registratore.h"

namespace {

void Batti_Esc(bool tenuto) {
  ASSERT_TRUE(QApplication::activeModalWidget());
  QKeyEvent tasto(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, tenuto);
  QApplication::sendEvent(QApplication::activeModalWidget(), &tasto);
}

// The Esc that stops a print, held a little too long, would close "Stampa interrotta...", then the screen,
// and then say no to the numbers.
TEST(EscTenuto, NonRispondeAUnMessaggio) {
  std::optional<Stampante> stampante;
  Registro_Pagine registro;
  Registratore carta(stampante, registro);
  Piattaforma_Qt macchina(carta);
  // A button that is chosen by a key goes down and up again before it answers.
  constexpr int ms_dopo = 400;
  bool resta = false, ha_risposto = true;
  QTimer::singleShot(0, [&] {
    for (int i = 0; i < 3; ++i) Batti_Esc(true);
    QTimer::singleShot(ms_dopo, [&] {
      auto* messaggio = QApplication::activeModalWidget();
      resta = messaggio != nullptr;
      if (!resta) return;
      Batti_Esc(false);
      QTimer::singleShot(ms_dopo, messaggio, [&, messaggio] {
        ha_risposto = false;
        messaggio->close();
      });
    });
  });
  EXPECT_FALSE(macchina.Domanda("Ok per salvare?", Icona::Domanda, {}));
  EXPECT_TRUE(resta);
  EXPECT_TRUE(ha_risposto) << "one that is keyed anew answers";
}

}  // namespace

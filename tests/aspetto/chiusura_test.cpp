#include <gtest/gtest.h>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>

#include "platform/finestra.h"

// How a window goes: by its own command, by Esc, by the window manager's X; and when it doesn't.

namespace {

class Finestra_Di_Prova : public FinestraDavanti {
 public:
  // With a closing command that asks: `lascia` is the answer.
  explicit Finestra_Di_Prova(bool con_comando) : FinestraDavanti(QStringLiteral("Prova")) {
    intitola(titolo);
    if (con_comando)
      si_chiude(finita, [this] {
        ++chiesta;
        finita = lascia;
      });
    else
      si_chiude(finita);
    show();
    mostra();
  }
  void esegui_comando(const Legame::Evento& comando) { legame.esegui(comando); }
  void premi_esc() {
    QKeyEvent tasto(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(this, &tasto);
  }

  Testo titolo = "prima";
  bool finita = false, lascia = true;
  int chiesta = 0;
};

TEST(Chiusura, IlTitoloSegueLoStato) {
  Finestra_Di_Prova finestra(false);
  EXPECT_EQ(finestra.windowTitle(), QStringLiteral("prima"));
  finestra.esegui_comando([&] { finestra.titolo = "dopo"; });
  EXPECT_EQ(finestra.windowTitle(), QStringLiteral("dopo"));
}

TEST(Chiusura, LoStatoLaChiudeUnaVoltaSola) {
  for (const bool con_comando : {false, true}) {
    Finestra_Di_Prova finestra(con_comando);
    int chiusure = 0;
    QObject::connect(&finestra, &Finestra::chiusa, &finestra, [&] { ++chiusure; });
    finestra.esegui_comando([&] {
      finestra.finita = true;
      finestra.mostra();  // as before a message
    });
    finestra.mostra();
    EXPECT_TRUE(finestra.isVisible());  // until what asked for it is over
    QCoreApplication::processEvents();
    EXPECT_FALSE(finestra.isVisible());
    EXPECT_EQ(chiusure, 1);
    EXPECT_EQ(finestra.chiesta, 0);
  }
}

TEST(Chiusura, EscELaXChiedonoAlComando) {
  for (const bool esc : {false, true}) {
    Finestra_Di_Prova finestra(true);
    const auto chiudi = [&] { esc ? finestra.premi_esc() : static_cast<void>(finestra.close()); };
    finestra.lascia = false;
    chiudi();
    EXPECT_TRUE(finestra.isVisible());
    finestra.lascia = true;
    chiudi();
    EXPECT_FALSE(finestra.isVisible());
    EXPECT_EQ(finestra.chiesta, 2);
  }
}

// A routine works on the window's state: it would be gone under it.
TEST(Chiusura, MentreLavoraNonSiChiude) {
  for (const bool con_comando : {false, true}) {
    Finestra_Di_Prova finestra(con_comando);
    finestra.esegui_comando([&] {
      EXPECT_FALSE(finestra.close());
      finestra.premi_esc();
      finestra.finita = true;
      EXPECT_FALSE(finestra.close());
      finestra.finita = false;
    });
    QCoreApplication::processEvents();
    EXPECT_TRUE(finestra.isVisible());
    EXPECT_EQ(finestra.chiesta, 0);
    EXPECT_TRUE(finestra.close());
  }
}

}  // namespace

#pragma once

#include <QWidget>

#include "platform/legame.h"

// The base of every screen. Its objectName is the screen's name ("B_Inizio", "Edita", "Albero" ...), its
// windowTitle the screen's caption, also where the screen stands inside the main window.
class Finestra : public QWidget {
  Q_OBJECT

 public:
  explicit Finestra(const QString& nome, QWidget* padre = nullptr, Qt::WindowFlags modi = {});

  // Shows the state: what the binder holds, and what a screen adds to it.
  virtual void mostra();

  // A routine of the logic is running: what arrives meanwhile (the window manager's X) must wait.
  bool occupata() const { return legame.in_evento(); }

  // A screen on its own, in front of the others until it closes; runs the event loop meanwhile.
  void esegui();

 signals:
  void chiusa();

 protected:
  void closeEvent(QCloseEvent* evento) override;

  Legame legame;
};

// A screen to fill in like a paper form: Enter goes on to the next line, Esc closes it.
class FinestraModulo : public Finestra {
  Q_OBJECT

 public:
  using Finestra::Finestra;

 protected:
  void keyPressEvent(QKeyEvent* evento) override;
};

// Every screen now visible shows its state. The machine's interface calls it before it repaints or asks,
// since the logic has changed states that no event has shown yet.
void Mostra_Finestre();

// The screen that the operator works in: the one that holds the keyboard focus, else the first visible one of
// the active (or topmost) window. Null without any.
Finestra* Finestra_Attiva();

#pragma once

#include <QWidget>

#include "platform/legame.h"

class CasellaTesto;
class QCheckBox;
class QLayout;
class QMenuBar;
class QPushButton;

// The base of every screen. Its objectName is the screen's name ("B_Inizio", "Edita", "Albero" ...), its
// windowTitle the screen's caption, also where the screen stands inside the main window.
class Finestra : public QWidget {
  Q_OBJECT

 public:
  explicit Finestra(const QString& nome, QWidget* padre = nullptr, Qt::WindowFlags modi = {});

  // Shows the state: the caption, what the binder holds, and what a screen adds to it.
  virtual void mostra();

  // A routine of the logic is running: what arrives meanwhile (the window manager's X) must wait.
  bool occupata() const { return legame.in_evento(); }

  // A screen on its own, in front of the others until it closes; runs the event loop meanwhile.
  void esegui();

 signals:
  void chiusa();

 protected:
  void keyPressEvent(QKeyEvent* evento) final;
  void closeEvent(QCloseEvent* evento) override;

  // A key that no control has used; whether the screen uses it.
  virtual bool tasto(const Pressione& pressione);

  // The caption is this one from now on, whatever becomes of it.
  void intitola(const Testo& titolo);
  // The window goes when its state says that it is closed. Who closes it otherwise (Esc, the window manager's
  // X) runs the closing command, which may leave it open.
  void si_chiude(const bool& chiusa, Legame::Evento comando = {});
  void chiudi_dopo();  // closes it, once the routine that asks for it is done

  // Controls in the size of all screens, joined with the state.
  QPushButton* fa_bottone(const QString& nome, Bottone& stato, Legame::Evento evento);
  QCheckBox* fa_casella(const QString& nome, Spunta& stato, Legame::Evento evento = {});
  QComboBox* fa_tendina(const QString& nome, const QString& letta, Elenco& stato, Legame::Evento evento = {});
  QLabel* fa_scritta(const QString& nome, Scritta& stato);
  // So many characters wide at least.
  CasellaTesto* fa_campo(const QString& nome, CampoTesto& stato, const Scritta& didascalia,
                         int caratteri = 0);
  QLabel* fa_titoli(const QString& nome, Scritta& stato, const QListView& sopra);  // over a list's columns
  void fa_voce(QWidget* menu, const QString& nome, Bottone& stato, Legame::Evento evento);
  void disponi(QMenuBar* menu, QLayout* corpo);  // the whole window

  Legame legame;

 private:
  bool puo_chiudersi();

  const Testo* titolo_ = nullptr;
  const bool* finita_ = nullptr;
  Legame::Evento comando_chiusura_;
};

// A screen in front of the one that opened it: Esc closes it.
class FinestraDavanti : public Finestra {
  Q_OBJECT

 public:
  using Finestra::Finestra;

 protected:
  bool tasto(const Pressione& pressione) override;
};

// A screen to fill in like a paper form: Enter goes on to the next line.
class FinestraModulo : public FinestraDavanti {
  Q_OBJECT

 public:
  using FinestraDavanti::FinestraDavanti;

 protected:
  bool tasto(const Pressione& pressione) override;
};

// Every screen now visible shows its state. The machine's interface calls it before it repaints or asks,
// since the logic has changed states that no event has shown yet.
void Mostra_Finestre();

// The screen that the operator works in: the one that holds the keyboard focus, else the first visible one of
// the active (or topmost) window. Null without any.
Finestra* Finestra_Attiva();

#pragma once

#include <functional>
#include <vector>

#include "platform/finestra.h"
#include "stats/barre.h"
#include "transfers/sceltafile.h"

class QAction;
class QBoxLayout;
class QLabel;
class QListView;
class QMenuBar;
class QPushButton;
class TelaBarre;

// Gives a window what asks for a file in front of it.
using Chi_Chiede_File = std::function<Scelta_File(QWidget*)>;

// What the windows of the statistics have alike: a menu bar of commands, lists in fixed pitch, the picture,
// Esc to close.
class FinestraStatistica : public Finestra {
  Q_OBJECT

 public:
  FinestraStatistica(const QString& nome, const Programma& programma, const Testo& titolo,
                     const Grafico& grafico, QWidget* padre);

  void mostra() override;

 protected:
  void keyPressEvent(QKeyEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;

  void voce(const char* nome, Bottone& stato, Legame::Evento evento);
  void interruttore(const char* nome, Spunta& stato);  // a menu entry that is switched on and off
  // So many characters wide at least.
  QListView* fa_lista(const char* nome, const char* letta, Elenco& stato, int caratteri,
                      Legame::Evento evento = {});
  // A list of names at the side of another, too long ones cut.
  QListView* fa_pannello(const char* nome, const char* letta, Elenco& stato, int caratteri,
                         Legame::Evento evento);
  QLabel* fa_titoli(const char* nome, Scritta& stato, const QListView& sopra);
  QLabel* fa_scritta(const char* nome, Scritta& stato);
  // A field with its caption in front, and a button, at the end of `riga`.
  void fa_campo(QBoxLayout* riga, const char* nome, CampoTesto& stato, const char* nome_scritta,
                Scritta& scritta, int caratteri);
  QPushButton* fa_bottone(QBoxLayout* riga, const char* nome, Bottone& stato, Legame::Evento evento);
  void chiudi_dopo();                  // once the command that asks for it is done
  void disponi(QBoxLayout* sinistra);  // the picture stands at the right
  void ingrandisci();                  // to the size in which long lines show

 private:
  struct Interruttore {
    QAction* azione;
    const Spunta& stato;
  };

  const Programma& programma_;
  const Testo& titolo_;
  QMenuBar* menu_;
  TelaBarre* tela_;
  std::vector<Interruttore> interruttori_;
};

// Lets the window work between two files of a long reading, and says whether the operator has pressed Esc
// meanwhile. Whatever else he pressed or clicked is dropped.
bool Esc_Premuto();

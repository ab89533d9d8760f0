#pragma once

#include <functional>
#include <vector>

#include "platform/finestra.h"
#include "stats/barre.h"
#include "transfers/sceltafile.h"

class QAction;
class QBoxLayout;
class QListView;
class QMenuBar;
class TelaBarre;

// Gives a window what asks for a file in front of it.
using Chi_Chiede_File = std::function<Scelta_File(QWidget*)>;

// What the windows of the statistics have alike: a menu bar of commands, lists in fixed pitch, the picture,
// Esc to close.
class FinestraStatistica : public FinestraDavanti {
  Q_OBJECT

 public:
  FinestraStatistica(const QString& nome, const Programma& programma, const Testo& titolo,
                     const Grafico& grafico, QWidget* padre);

  void mostra() override;

 protected:
  void interruttore(const char* nome, Spunta& stato);  // a menu entry that is switched on and off
  // So many characters wide at least.
  QListView* fa_lista(const char* nome, const char* letta, Elenco& stato, int caratteri,
                      Legame::Evento evento = {});
  // A list of names at the side of another, too long ones cut.
  QListView* fa_pannello(const char* nome, const char* letta, Elenco& stato, int caratteri,
                         Legame::Evento evento);
  // A date field with its caption in front, at the end of `riga`.
  void fa_data(QBoxLayout* riga, const QString& nome, CampoTesto& stato, Scritta& scritta);
  void disponi_con_grafico(QBoxLayout* sinistra);  // the picture stands at the right

  QMenuBar* menu_;

 private:
  struct Interruttore {
    QAction* azione;
    const Spunta& stato;
  };

  const Programma& programma_;
  TelaBarre* tela_;
  std::vector<Interruttore> interruttori_;
};

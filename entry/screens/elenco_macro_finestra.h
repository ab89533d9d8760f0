#pragma once

#include "core/programma.h"
#include "entry/elenco_macro.h"
#include "platform/finestra.h"

class CasellaTesto;
class QListView;
class QMenuBar;

// DescPre and DescPreFOR: the stored macros, with a box for a code and one for a text to look for.
class ElencoMacroFinestra : public FinestraDavanti {
  Q_OBJECT

 public:
  ElencoMacroFinestra(Programma& programma, Edita& edita, Tipo_Macro tipo, bool dal_campo,
                      QWidget* padre = nullptr);

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  QMenuBar* fa_menu();
  CasellaTesto* fa_ricerca(const QString& nome, CampoTesto& stato, const QString& letta);
  bool tasto_casella(const QKeyEvent& evento);
  bool tasto_lista(const QKeyEvent& evento);

  Programma& programma_;
  Edita& edita_;
  Elenco_Macro elenco_;
  CasellaTesto* codice_;
  CasellaTesto* cerca_;
  QListView* lista_;
};

// Opens the window in front of `padre` and returns at once; `padre` shows its state when it has closed.
void Apri_DescPre(Programma& programma, Edita& edita, Tipo_Macro tipo, bool dal_campo, Finestra* padre);

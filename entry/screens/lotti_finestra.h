#pragma once

#include "core/programma.h"
#include "entry/lotti.h"
#include "platform/finestra.h"

class CasellaTesto;
class QListView;

// Lotti_predefiniti: the firm's list of lots. A click on a lot, or Enter, writes it into the row; the arrows
// and the right button only mark it.
class LottiFinestra : public FinestraDavanti {
  Q_OBJECT

 public:
  LottiFinestra(Programma& programma, Edita& edita, Lotti_Predefiniti& lotti, QWidget* padre = nullptr);

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void aggiungi();

  Programma& programma_;
  Edita& edita_;
  Lotti_Predefiniti& lotti_;
  CasellaTesto* lotto_;
  QListView* lista_;
};

// Opens the window in front of `padre` and returns at once; `padre` shows its state when it has closed.
void Apri_Lotti(Programma& programma, Edita& edita, Lotti_Predefiniti& lotti, Finestra* padre);

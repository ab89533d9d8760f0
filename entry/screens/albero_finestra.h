#pragma once

#include "core/programma.h"
#include "entry/edita.h"
#include "platform/finestra.h"

class QListView;

// The ledger list below the entry form: the heading line and one line a row.
class AlberoFinestra : public Finestra {
  Q_OBJECT

 public:
  AlberoFinestra(Programma& programma, Edita& edita, QWidget* padre = nullptr);

  void apri();  // a day was opened: the colours and sizes of the settings take effect

 signals:
  void riga_scelta();      // the fields show another row
  void fuoco_rifiutato();  // the keyboard belongs to the entry form
  void riduci();           // F12

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  Programma& programma_;
  Edita& edita_;
  QListView* titoli_;
  QListView* lista_;
};

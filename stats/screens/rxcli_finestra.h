#pragma once

#include "stats/rxcli.h"
#include "stats/screens/finestra_statistica.h"

// The customers' totals of the open day, `RXcli`.
class RXcliFinestra : public FinestraStatistica {
  Q_OBJECT

 public:
  // `cliente`, where the day has it, is chosen at once.
  RXcliFinestra(Programma& programma, Vista cliente, const Chi_Chiede_File& chi_chiede,
                QWidget* padre = nullptr);

 private:
  void fa_menu();
  QBoxLayout* fa_liste();

  Programma& programma_;
  RXcli rxcli_;
  QListView* clienti_ = nullptr;
};

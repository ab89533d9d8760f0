#pragma once

#include "stats/screens/finestra_statistica.h"
#include "stats/statistica.h"

// The open day by supplier and species, `Statistica`.
class StatisticaFinestra : public FinestraStatistica {
  Q_OBJECT

 public:
  StatisticaFinestra(Programma& programma, const Chi_Chiede_File& chi_chiede, QWidget* padre = nullptr);

 private:
  void fa_menu();
  QBoxLayout* fa_liste();

  Programma& programma_;
  Statistica statistica_;
  QListView* lista_ = nullptr;
};

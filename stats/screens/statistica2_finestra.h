#pragma once

#include "stats/screens/finestra_statistica.h"
#include "stats/statistica2.h"

// A period by supplier, `Statistica2`. `statistica` has been opened.
class Statistica2Finestra : public FinestraStatistica {
  Q_OBJECT

 public:
  Statistica2Finestra(Programma& programma, Statistica2 statistica, QWidget* padre = nullptr);

 private:
  void fa_menu();
  QBoxLayout* fa_date();

  Programma& programma_;
  Statistica2 statistica_;
};

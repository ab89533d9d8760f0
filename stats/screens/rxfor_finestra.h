#pragma once

#include "stats/rxfor.h"
#include "stats/screens/finestra_statistica.h"

// The suppliers' balance of a period, `RXFor`.
class RXForFinestra : public FinestraStatistica {
  Q_OBJECT

 public:
  explicit RXForFinestra(Programma& programma, QWidget* padre = nullptr);

 private:
  void fa_menu();
  QBoxLayout* fa_date();
  QBoxLayout* fa_scelte();

  Programma& programma_;
  RXFor rxfor_;
};

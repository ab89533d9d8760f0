#pragma once

#include "core/schermo_colori.h"
#include "platform/finestra.h"

class QGroupBox;
class QLabel;

// The colours screen `Colori`: ink and background of the ledger lists.
class ColoriFinestra : public FinestraModulo {
  Q_OBJECT

 public:
  explicit ColoriFinestra(Programma& programma, QWidget* padre = nullptr);
  void mostra() override;

 private:
  QGroupBox* fa_inchiostri();
  QGroupBox* fa_fondo();
  QGroupBox* fa_campioni();

  Programma& programma_;
  SchermoColori schermo_;
  QLabel* normale_ = nullptr;
  QLabel* selezionato_ = nullptr;
};

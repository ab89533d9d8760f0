#pragma once

#include "invoices/diciture.h"
#include "platform/finestra.h"

class QBoxLayout;
class QGroupBox;

// The wording of the graphic invoices, `Personalizza_Fattura`: four sets of six lines in sight at once.
class DicitureFinestra : public FinestraModulo {
  Q_OBJECT

 public:
  explicit DicitureFinestra(Programma& programma, QWidget* padre = nullptr);

 private:
  QGroupBox* fa_serie(Serie_Dicitura quale);
  QBoxLayout* fa_comandi();

  Programma& programma_;
  Personalizza_Fattura schermo_;
};

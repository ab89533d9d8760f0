#pragma once

#include "platform/finestra.h"
#include "printing/schermo_stampante.h"

class QBoxLayout;
class QGroupBox;

// The screen `Stampante`: printer and orientation. In the list Enter or a double click takes the printer.
class StampanteFinestra : public FinestraDavanti {
  Q_OBJECT

 public:
  explicit StampanteFinestra(Programma& programma, QWidget* padre = nullptr);

 private:
  QGroupBox* fa_orientamento();
  QBoxLayout* fa_comandi();

  Programma& programma_;
  SchermoStampante schermo_;
};

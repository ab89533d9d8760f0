#pragma once

#include "platform/finestra.h"
#include "transfers/xdisk.h"

// On which drive, `xdisk`. Enter or a double click in the list takes the drive.
class XdiskFinestra : public FinestraDavanti {
  Q_OBJECT

 public:
  XdiskFinestra(const Programma& programma, ModoCopia modo, const Percorso& cartella_propria,
                QWidget* padre = nullptr);

  const std::optional<DriveScelto>& scelto() const { return xdisk_.scelto; }

 private:
  const Programma& programma_;
  Xdisk xdisk_;
};

// Asks in front of `padre` until the operator has chosen or cancelled; what rooms are given for asking.
Scelta_Drive Chiedi_Drive(const Programma& programma, QWidget* padre);

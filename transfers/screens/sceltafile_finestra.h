#pragma once

#include "platform/finestra.h"
#include "transfers/sceltafile.h"

class QBoxLayout;

// Drive, folder and name of a file, `SceltaFile`.
class SceltaFileFinestra : public FinestraDavanti {
  Q_OBJECT

 public:
  SceltaFileFinestra(Programma& programma, Vista nome, QWidget* padre = nullptr);

  const std::optional<Percorso>& scelto() const { return schermo_.FileScelto; }

 private:
  QBoxLayout* fa_liste();
  QBoxLayout* fa_comandi();

  Programma& programma_;
  SceltaFile schermo_;
};

// Asks in front of `padre` until the operator has named a file or cancelled; what rooms are given for asking.
Scelta_File Chiedi_File(Programma& programma, QWidget* padre, Vista nome = Nome_File_Proposto);

#pragma once

#include "platform/finestra.h"
#include "transfers/sceltafile.h"

class CasellaTesto;
class QBoxLayout;
class QListView;

// Drive, folder and name of a file, `SceltaFile`.
class SceltaFileFinestra : public Finestra {
  Q_OBJECT

 public:
  SceltaFileFinestra(Programma& programma, Vista nome, QWidget* padre = nullptr);

  void mostra() override;
  const std::optional<Percorso>& scelto() const { return schermo_.FileScelto; }

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  QBoxLayout* fa_liste();
  QBoxLayout* fa_comandi();

  Programma& programma_;
  SceltaFile schermo_;
  QListView* cartelle_;
  CasellaTesto* nome_;
};

// Asks in front of `padre` until the operator has named a file or cancelled; what rooms are given for asking.
Scelta_File Chiedi_File(Programma& programma, QWidget* padre, Vista nome = Nome_File_Proposto);

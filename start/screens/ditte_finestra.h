#pragma once

#include <QWidget>

#include "core/disco.h"

class QListWidget;
class QPushButton;

// Which of the user's firms shall be opened, or a new one. Ends the program when a firm was started.
class DitteFinestra : public QWidget {
  Q_OBJECT

 public:
  // `programmi` is the folder that the machine's copy of the programs stands in, `radice` that of the firms.
  DitteFinestra(Percorso programmi, Percorso radice);

  // True when a firm was started without asking: there is exactly one.
  bool apri_l_unica();

 private:
  void riempi();
  void apri_scelta();
  void nuova();
  bool avvia(const Percorso& ditta);

  Disco disco_;
  Percorso programmi_, radice_;
  QListWidget* lista_;
  QPushButton* apri_;
};

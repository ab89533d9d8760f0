#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QWidget>

#include "lists/genera.h"

// The list generator's one window: the files with what became of each, and the way back into the program.
class Finestra_Generatore : public QWidget {
  Q_OBJECT

 public:
  explicit Finestra_Generatore(Programma& programma);

 private:
  void Genera();
  void Mostra_Esiti();
  void Batti();  // looks ten times a second whether it is time to start the program
  void Ferma(const QString& messaggio);

  Programma& programma_;
  std::vector<Lista_Generata> esiti_;
  Ripartenza ripartenza_;
  QElapsedTimer dal_generare_, dal_dovere_;
  QTimer battito_;
  QLabel* Messaggio_;
  QTreeWidget* ListaFile_;
  QPushButton *Riprova_, *Avvia_, *Chiudi_;
};

#pragma once

#include "platform/finestra.h"
#include "stats/controllo_cv.h"

class QBoxLayout;
class QLineEdit;
class QListView;
class QMenuBar;

// The control of the accounts of a year or a month, `ControlloCV`.
class ControlloCVFinestra : public FinestraModulo {
  Q_OBJECT

 public:
  explicit ControlloCVFinestra(Programma& programma, QWidget* padre = nullptr);

 private:
  QMenuBar* fa_menu();
  QBoxLayout* fa_periodo();
  QWidget* fa_lista();
  QBoxLayout* fa_totali();
  QBoxLayout* fa_comandi();
  QLineEdit* fa_campo_grande(const QString& nome, CampoTesto& stato, Scritta& scritta, QBoxLayout* riga);

  Programma& programma_;
  ControlloCV schermo_;
  QListView* lista_ = nullptr;
};

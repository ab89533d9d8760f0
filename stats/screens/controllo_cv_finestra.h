#pragma once

#include "platform/finestra.h"
#include "stats/controllo_cv.h"

class QBoxLayout;
class QLineEdit;
class QListView;
class QMenuBar;
class QPushButton;

// The control of the accounts of a year or a month, `ControlloCV`.
class ControlloCVFinestra : public FinestraModulo {
  Q_OBJECT

 public:
  explicit ControlloCVFinestra(Programma& programma, QWidget* padre = nullptr);

  void mostra() override;

 protected:
  void closeEvent(QCloseEvent* evento) override;

 private:
  QMenuBar* fa_menu();
  QBoxLayout* fa_periodo();
  QWidget* fa_lista();
  QBoxLayout* fa_totali();
  QBoxLayout* fa_comandi();
  QLineEdit* fa_campo(const QString& nome, CampoTesto& stato, const QString& nome_scritta, Scritta& scritta,
                      QBoxLayout* riga);
  QPushButton* fa_bottone(const QString& nome, Bottone& stato, Legame::Evento evento);

  Programma& programma_;
  ControlloCV schermo_;
  QListView* lista_ = nullptr;
};

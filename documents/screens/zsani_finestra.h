#pragma once

#include <functional>

#include "documents/zsani.h"
#include "platform/finestra.h"

class QBoxLayout;
class QGroupBox;
class QLineEdit;
class QListView;
class QMenuBar;
class QPushButton;

// The day's transport and sanitary documents, `Zsani`.
class ZsaniFinestra : public Finestra {
  Q_OBJECT

 public:
  // `apri` opens the screen in one of its three ways, and says how it prints.
  ZsaniFinestra(Programma& programma, const std::function<void(Zsani&)>& apri, QWidget* padre = nullptr);

  void mostra() override;

 protected:
  void keyPressEvent(QKeyEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;

 private:
  QMenuBar* fa_menu();
  QWidget* fa_lista();
  QBoxLayout* fa_ordini();
  QGroupBox* fa_voce();
  QGroupBox* fa_numerazione();
  QGroupBox* fa_stampa();
  QLineEdit* fa_campo(const QString& nome, CampoTesto& stato, const Scritta& didascalia);
  QPushButton* fa_bottone(int numero, Bottone& stato, Legame::Evento evento);

  Programma& programma_;
  Zsani zsani_;
  QListView* lista_ = nullptr;
  bool in_chiusura_ = false;
};

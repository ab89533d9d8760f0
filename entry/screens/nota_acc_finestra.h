#pragma once

#include <array>

#include "entry/nota_acc.h"
#include "platform/finestra.h"

class CasellaTesto;
class QPushButton;

// The dialog of the credit note, `NotaAcc`.
class NotaAccFinestra : public Finestra {
  Q_OBJECT

 public:
  NotaAccFinestra(Programma& programma, Edita& edita, QWidget* padre = nullptr);

  void mostra() override;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;

 private:
  QPushButton* fa_bottone(const QString& nome, Bottone& stato, Legame::Evento evento);
  int indice_di(const QObject* oggetto) const;  // of the field, -1 for none
  bool tasto(int indice, QKeyEvent& evento);
  void annulla();

  Programma& programma_;
  Edita& edita_;
  NotaAcc nota_;
  std::array<CasellaTesto*, 3> campi_{};
  QPushButton* conferma_ = nullptr;
  bool in_chiusura_ = false;
};

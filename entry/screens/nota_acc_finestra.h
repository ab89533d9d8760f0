#pragma once

#include <array>

#include "entry/nota_acc.h"
#include "platform/finestra.h"

class CasellaTesto;
class QPushButton;

// The dialog of the credit note, `NotaAcc`.
class NotaAccFinestra : public FinestraDavanti {
  Q_OBJECT

 public:
  NotaAccFinestra(Programma& programma, Edita& edita, QWidget* padre = nullptr);

  void mostra() override;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  int indice_di(const QObject* oggetto) const;  // of the field, -1 for none
  bool tasto_campo(int indice, const QKeyEvent& evento);

  Programma& programma_;
  Edita& edita_;
  NotaAcc nota_;
  std::array<CasellaTesto*, 3> campi_{};
  QPushButton* conferma_ = nullptr;
};

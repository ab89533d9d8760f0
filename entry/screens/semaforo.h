#pragma once

#include <QLabel>

#include "entry/edita.h"

// The status light: colour, shape and word say the same, so that it is understood from the side, from afar
// and by who doesn't tell red from green. Its text is the word.
class SemaforoLuce : public QLabel {
  Q_OBJECT

 public:
  explicit SemaforoLuce(QWidget* padre = nullptr);
  void mostra(StatoSemaforo stato);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  StatoSemaforo stato_ = StatoSemaforo::NORMALE;
};

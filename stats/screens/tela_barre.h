#pragma once

#include <QWidget>

#include "stats/barre.h"

// The bars of the largest amounts, in the desktop's own colours. An amount below zero is a bar that is only
// outlined.
class TelaBarre : public QWidget {
  Q_OBJECT

 public:
  TelaBarre(const Grafico& grafico, char separatore, QWidget* padre = nullptr);
  void aggiorna();  // after a change of the figures
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  int passo() const;  // pixels from one bar to the next
  int larghezza_cifre() const;
  void dipingi_barra(QPainter& pittore, const Barra& barra, int alto) const;

  const Grafico& grafico_;
  char separatore_;
  unsigned versione_ = 0;  // of the figures that are shown
};

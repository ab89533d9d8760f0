#pragma once

#include <QWidget>

// The picture of the start screen, one of four, painted to whatever size it has.
class Quadro : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;
  void scegli(int quale);  // 1 to 4
  int quale() const { return quale_; }
  QSize sizeHint() const override { return {560, 420}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  int quale_ = 1;
};

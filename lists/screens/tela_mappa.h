#pragma once

#include <vector>

#include <QAbstractButton>
#include <QPainterPath>
#include <QPixmap>
#include <QTransform>

#include "lists/mappe.h"

class TelaMappa;

// The label of an area on the map: its number, a button that the keyboard reaches.
class ScrittaMappa : public QAbstractButton {
  Q_OBJECT

 public:
  ScrittaMappa(const Bersaglio& bersaglio, bool attuale, TelaMappa* tela);
  QSize sizeHint() const override;

 signals:
  void freccia(int dx, int dy);

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  bool attuale_;
};

// The drawing of a map with its labels, scaled to the widget. Whatever stays the same between two changes of
// size is painted once; the area looked at is laid between the water and the land.
class TelaMappa : public QWidget {
  Q_OBJECT

 public:
  // The map must outlive the drawing. `attuale`: position of the area to be marked, -1 for none.
  TelaMappa(const Mappa_Zone& mappa, int attuale, QWidget* padre = nullptr);
  void al_primo();  // the keyboard to the marked area, else to the first
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void scelto(int bersaglio);
  void guardato(int bersaglio);  // under the pointer, else with the keyboard; -1 for none

 protected:
  void resizeEvent(QResizeEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void leaveEvent(QEvent* evento) override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void fa_scritte();
  void disponi();  // scale and places of the labels, for the present size
  void sposta(int da, int dx, int dy);
  void sotto_il_cursore(int bersaglio);
  void rinfresca();
  QPixmap foglio_vuoto() const;
  int bersaglio_in(QPointF punto) const;
  QPointF al_widget(Punto_Mappa punto) const;
  void dipingi_fondo();
  void dipingi_terre();
  void dipingi_guardato();
  void dipingi_nomi(QPainter& pittore) const;
  void dipingi_richiami(QPainter& pittore) const;

  const Mappa_Zone& mappa_;
  int attuale_, indicato_ = -1, premuto_ = -1, guardato_ = -1;
  std::vector<ScrittaMappa*> scritte_;
  QPainterPath cornice_, terre_, coste_, reticolo_;
  std::vector<QPainterPath> aree_;
  QTransform scala_;
  QPixmap fondo_, guardata_, sopra_;  // sea and areas; the area looked at; land, coast and names
};

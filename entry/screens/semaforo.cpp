#include "entry/screens/semaforo.h"

#include <cmath>
#include <numbers>

#include <QPainter>
#include <QPainterPath>

#include "platform/testo_qt.h"

namespace {

struct Luce {
  QColor fondo, segno;
};

Luce Luce_Di(StatoSemaforo stato) {
  switch (stato) {
    case StatoSemaforo::BENE:
      return {QColor(0x12, 0x8a, 0x3c), Qt::white};
    case StatoSemaforo::ERRORE:
      return {QColor(0xc8, 0x1e, 0x1e), Qt::white};
    case StatoSemaforo::NORMALE:
      break;
  }
  return {QColor(0xe4, 0xe7, 0xea), QColor(0x55, 0x5d, 0x66)};
}

QPolygonF Ottagono(const QPointF& centro, double raggio) {
  QPolygonF ottagono;
  for (int i = 0; i < 8; ++i) {
    const double angolo = (i + 0.5) * std::numbers::pi / 4;
    ottagono << centro + raggio * QPointF(std::cos(angolo), std::sin(angolo));
  }
  return ottagono;
}

void Segno(QPainter& pittore, StatoSemaforo stato, const QPointF& centro, double raggio,
           const QColor& segno) {
  QPen penna(segno, raggio * 0.26, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  pittore.setPen(penna);
  pittore.setBrush(Qt::NoBrush);
  const auto punto = [&](double x, double y) { return centro + raggio * QPointF(x, y); };
  switch (stato) {
    case StatoSemaforo::BENE:  // a round light with a tick
      pittore.drawEllipse(centro, raggio, raggio);
      pittore.drawPolyline(QPolygonF({punto(-0.42, 0.02), punto(-0.1, 0.36), punto(0.46, -0.34)}));
      return;
    case StatoSemaforo::ERRORE:  // the stop sign with a cross
      pittore.drawPolygon(Ottagono(centro, raggio * 1.08));
      pittore.drawLine(punto(-0.38, -0.38), punto(0.38, 0.38));
      pittore.drawLine(punto(-0.38, 0.38), punto(0.38, -0.38));
      return;
    case StatoSemaforo::NORMALE:  // a flat bar
      pittore.drawRoundedRect(QRectF(punto(-0.9, -0.26), punto(0.9, 0.26)), raggio * 0.2, raggio * 0.2);
      return;
  }
}

}  // namespace

SemaforoLuce::SemaforoLuce(QWidget* padre) : QLabel(padre) { mostra(stato_); }

void SemaforoLuce::mostra(StatoSemaforo stato) {
  const QString parola = In_QString(Parola(stato));
  if (stato == stato_ && text() == parola) return;
  stato_ = stato;
  setText(parola);
  setAccessibleName(parola);
  update();
}

QSize SemaforoLuce::sizeHint() const {
  const QFontMetrics misure(font());
  return {misure.horizontalAdvance(QStringLiteral("NORMALE")) + misure.height() * 2, misure.height() * 5};
}

void SemaforoLuce::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  pittore.setRenderHint(QPainter::Antialiasing);
  const Luce luce = Luce_Di(stato_);
  const QRectF area = QRectF(rect()).adjusted(1, 1, -1, -1);
  pittore.setPen(QPen(luce.segno.darker(120), 1));
  pittore.setBrush(luce.fondo);
  pittore.drawRoundedRect(area, 10, 10);
  const double scritta = fontMetrics().height() * 1.5;
  const QRectF alto = area.adjusted(0, 0, 0, -scritta);
  const double raggio = qMin(alto.width(), alto.height()) * 0.34;
  Segno(pittore, stato_, alto.center() + QPointF(0, raggio * 0.15), raggio, luce.segno);
  pittore.setPen(luce.segno);
  pittore.drawText(QRectF(area.left(), alto.bottom(), area.width(), scritta), Qt::AlignCenter, text());
}

#include "start/screens/quadro.h"

#include <array>
#include <cmath>

#include <QPainter>
#include <QPainterPath>

namespace {

struct Tinte {
  QColor alto, fondo, cresta, tratto;
};

constexpr std::array<Tinte, 4> tinte = {{
    {QColor(0x2b, 0x7a, 0x8c), QColor(0x0d, 0x33, 0x4a), QColor(0x5f, 0xb0, 0xb8), QColor(0xf2, 0xf6, 0xf0)},
    {QColor(0x3d, 0x8f, 0x9e), QColor(0x14, 0x45, 0x5c), QColor(0x86, 0xc8, 0xc4), QColor(0xfa, 0xf3, 0xe0)},
    {QColor(0xf0, 0xc4, 0x8a), QColor(0x1c, 0x4f, 0x66), QColor(0x7d, 0xb4, 0xb5), QColor(0xfd, 0xf6, 0xe8)},
    {QColor(0x1b, 0x2a, 0x4a), QColor(0x08, 0x15, 0x2b), QColor(0x3e, 0x5f, 0x86), QColor(0xdf, 0xe8, 0xf5)},
}};

// The outline of a fish swimming to the left in a box 100 wide and 40 high.
QPainterPath Sagoma() {
  QPainterPath corpo;
  corpo.moveTo(0, 21);
  corpo.cubicTo(12, 4, 42, -2, 78, 17);
  corpo.cubicTo(86, 12, 92, 6, 100, 3);
  corpo.cubicTo(94, 13, 94, 27, 100, 37);
  corpo.cubicTo(92, 34, 86, 29, 78, 25);
  corpo.cubicTo(46, 43, 14, 38, 0, 21);
  corpo.closeSubpath();
  return corpo;
}

QPainterPath Pinne() {
  QPainterPath pinne;
  pinne.moveTo(30, 4);
  pinne.cubicTo(38, -8, 54, -6, 62, 8);
  pinne.moveTo(40, 37);
  pinne.cubicTo(46, 46, 54, 44, 58, 34);
  pinne.moveTo(30, 22);
  pinne.cubicTo(36, 18, 42, 20, 44, 26);
  pinne.cubicTo(38, 30, 32, 28, 30, 22);
  pinne.moveTo(20, 7);
  pinne.cubicTo(26, 15, 26, 27, 20, 35);
  return pinne;
}

void Pesce(QPainter& pittore, const QRectF& dove, const QColor& tratto, double velatura,
           bool a_destra = false) {
  pittore.save();
  pittore.translate(a_destra ? dove.right() : dove.left(), dove.top());
  pittore.scale((a_destra ? -1 : 1) * dove.width() / 100, dove.height() / 40);
  QPen penna(tratto, 1.1);
  penna.setCosmetic(false);
  penna.setCapStyle(Qt::RoundCap);
  penna.setJoinStyle(Qt::RoundJoin);
  pittore.setPen(penna);
  QColor pelle = tratto;
  pelle.setAlphaF(static_cast<float>(velatura));
  pittore.setBrush(pelle);
  pittore.drawPath(Sagoma());
  pittore.setBrush(Qt::NoBrush);
  pittore.drawPath(Pinne());
  for (int fila = 0; fila < 3; ++fila)  // a hint of scales
    for (int i = 0; i < 6; ++i)
      pittore.drawArc(QRectF(44 + i * 5 + (fila % 2) * 2.5, 13 + fila * 5, 4, 4), 90 * 16, 180 * 16);
  pittore.setBrush(tratto);
  pittore.drawEllipse(QPointF(12, 17), 1.6, 1.6);
  pittore.restore();
}

QPainterPath Onda(const QRectF& area, double altezza, double ampiezza, double passo, double fase) {
  const auto punto = [&](double x) {
    return QPointF(x, altezza + ampiezza * std::sin((x - area.left()) / passo + fase));
  };
  QPainterPath onda(punto(area.left()));
  for (double x = area.left() + 4; x <= area.right() + 4; x += 4) onda.lineTo(punto(x));
  return onda;
}

void Onde(QPainter& pittore, const QRectF& area, const QColor& cresta, double da, int quante) {
  const double spazio = area.height() * 0.075;
  for (int i = 0; i < quante; ++i) {
    QColor colore = cresta;
    colore.setAlphaF(0.75F - 0.12F * static_cast<float>(i));
    pittore.setPen(QPen(colore, area.height() / 160 + 1));
    pittore.setBrush(Qt::NoBrush);
    pittore.drawPath(Onda(area, area.top() + area.height() * da + i * spazio, area.height() * 0.014,
                          area.width() * 0.045 * (1 + 0.15 * i), i * 1.3));
  }
}

// The sea from that height down, over whatever the sky holds.
void Mare(QPainter& pittore, const QRectF& area, const Tinte& t, double da) {
  QPainterPath mare =
      Onda(area, area.top() + area.height() * da, area.height() * 0.014, area.width() * 0.045, 0);
  mare.lineTo(area.bottomRight());
  mare.lineTo(area.bottomLeft());
  mare.closeSubpath();
  pittore.setPen(Qt::NoPen);
  pittore.setBrush(t.fondo);
  pittore.drawPath(mare);
}

// Where a fish swims: its left top corner and its width as parts of the picture, the fins inside it too.
QRectF Riquadro(const QRectF& area, double x, double y, double larghezza) {
  const double w = area.width() * larghezza, h = w * 0.4;
  const double alto = qMin(area.height() * y, area.height() - h * 1.3);
  return {area.left() + area.width() * x, area.top() + alto, w, h};
}

void Barca(QPainter& pittore, const QRectF& area, const QColor& tratto) {
  pittore.save();
  pittore.translate(area.left() + area.width() * 0.36, area.top() + area.height() * 0.22);
  const double scala = area.width() * 0.0034;
  pittore.scale(scala, scala);
  pittore.setPen(QPen(tratto, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  pittore.setBrush(QColor(0x7a, 0x2e, 0x26));
  QPainterPath scafo(QPointF(0, 50));
  scafo.cubicTo(4, 62, 8, 68, 14, 72);
  scafo.lineTo(84, 72);
  scafo.cubicTo(92, 66, 98, 56, 102, 46);
  scafo.cubicTo(70, 54, 30, 54, 0, 50);
  pittore.drawPath(scafo);
  pittore.setBrush(tratto);
  pittore.drawRect(QRectF(18, 32, 20, 18));
  pittore.setBrush(QColor(0x1c, 0x4f, 0x66));
  pittore.drawRect(QRectF(22, 36, 5, 6));
  pittore.drawRect(QRectF(30, 36, 5, 6));
  pittore.drawLine(QPointF(60, 52), QPointF(60, 0));
  pittore.drawLine(QPointF(60, 4), QPointF(96, 48));
  pittore.drawLine(QPointF(60, 4), QPointF(38, 32));
  pittore.restore();
}

void Un_Pesce(QPainter& pittore, const QRectF& area, const Tinte& t) {
  Onde(pittore, area, t.cresta, 0.10, 3);
  Pesce(pittore, Riquadro(area, 0.14, 0.34, 0.66), t.tratto, 0.14);
  Pesce(pittore, Riquadro(area, 0.68, 0.80, 0.22), t.cresta, 0.10);
  Pesce(pittore, Riquadro(area, 0.50, 0.88, 0.14), t.cresta, 0.10);
}

void Branco(QPainter& pittore, const QRectF& area, const Tinte& t) {
  static constexpr std::array<std::array<double, 3>, 9> posti = {{{0.08, 0.42, 0.24},
                                                                  {0.30, 0.30, 0.20},
                                                                  {0.30, 0.54, 0.26},
                                                                  {0.54, 0.40, 0.24},
                                                                  {0.54, 0.66, 0.20},
                                                                  {0.76, 0.30, 0.16},
                                                                  {0.78, 0.54, 0.18},
                                                                  {0.20, 0.72, 0.18},
                                                                  {0.36, 0.84, 0.14}}};
  Onde(pittore, area, t.cresta, 0.08, 3);
  for (const auto& [x, y, larghezza] : posti)
    Pesce(pittore, Riquadro(area, x, y, larghezza), t.tratto, 0.18, true);
}

void Barca_In_Mare(QPainter& pittore, const QRectF& area, const Tinte& t) {
  Barca(pittore, area, t.tratto);
  Mare(pittore, area, t, 0.56);
  Onde(pittore, area, t.cresta, 0.57, 3);
  Pesce(pittore, Riquadro(area, 0.12, 0.80, 0.24), t.cresta, 0.12);
  Pesce(pittore, Riquadro(area, 0.52, 0.84, 0.30), t.cresta, 0.12, true);
}

void Notte(QPainter& pittore, const QRectF& area, const Tinte& t) {
  pittore.setPen(Qt::NoPen);
  pittore.setBrush(t.tratto);
  const double raggio = area.height() * 0.09;
  pittore.drawEllipse(area.topLeft() + QPointF(area.width() * 0.76, area.height() * 0.2), raggio, raggio);
  Mare(pittore, area, t, 0.46);
  Onde(pittore, area, t.cresta, 0.47, 3);
  Pesce(pittore, Riquadro(area, 0.10, 0.64, 0.48), t.tratto, 0.10);
  Pesce(pittore, Riquadro(area, 0.66, 0.76, 0.22), t.cresta, 0.10, true);
}

}  // namespace

void Quadro::scegli(int quale) {
  if (quale == quale_) return;
  quale_ = quale;
  update();
}

void Quadro::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  pittore.setRenderHint(QPainter::Antialiasing);
  const QRectF area = rect();
  const Tinte& t = tinte[static_cast<std::size_t>(qBound(1, quale_, 4) - 1)];
  QPainterPath cornice;
  cornice.addRoundedRect(area, 8, 8);
  pittore.setClipPath(cornice);
  QLinearGradient acqua(area.topLeft(), area.bottomLeft());
  acqua.setColorAt(0, t.alto);
  acqua.setColorAt(1, t.fondo);
  pittore.fillRect(area, acqua);
  static constexpr std::array quadri = {Un_Pesce, Branco, Barca_In_Mare, Notte};
  quadri[static_cast<std::size_t>(qBound(1, quale_, 4) - 1)](pittore, area, t);
}

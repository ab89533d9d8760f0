#include "documents/screens/schizzo_finestra.h"

#include <QPainter>

#include "platform/testo_qt.h"

namespace {

constexpr double decimi = 10;  // painted in tenths of a millimetre, since sizes of letters are whole

void Scrivi(QPainter& pennello, const Scritta_Pagina& scritta) {
  const QString testo = In_QString(scritta.testo);
  QFont fonte(QStringLiteral("Liberation Sans"));
  fonte.setPixelSize(qMax(1, qRound(scritta.punti * Millimetri_Per_Punto * decimi)));
  pennello.setFont(fonte);
  const QFontMetricsF misure(fonte);
  const double larghezza = misure.horizontalAdvance(testo);
  double x = scritta.x * decimi;
  if (scritta.allineamento == Allineamento::Centro) x -= larghezza / 2;
  if (scritta.allineamento == Allineamento::Destra) x -= larghezza;
  double base = scritta.y * decimi + misure.ascent();
  // A line that hangs over the upper edge comes down until it is whole, as on paper.
  if (scritta.y < 0 && base > 0) base = qMax(base, -misure.tightBoundingRect(testo).top());
  pennello.drawText(QPointF(x, base), testo);
}

}  // namespace

SchizzoDDT::SchizzoDDT(QWidget* padre) : QWidget(padre) {
  setMinimumWidth(fontMetrics().averageCharWidth() * 44);
  setAccessibleName(QStringLiteral("Figura del modulo"));
}

void SchizzoDDT::mostra(std::optional<Schizzo_DDT> schizzo) {
  schizzo_ = std::move(schizzo);
  update();
}

void SchizzoDDT::paintEvent(QPaintEvent* /*evento*/) {
  if (!schizzo_) return;
  const QRectF foglio(0, 0, schizzo_->foglio.larghezza * decimi, schizzo_->foglio.altezza * decimi);
  const double scala =
      qMin((width() - 2) / foglio.width(), (height() - 2 * fontMetrics().height()) / foglio.height());
  QPainter pennello(this);
  pennello.setRenderHint(QPainter::Antialiasing);
  pennello.translate((width() - foglio.width() * scala) / 2, fontMetrics().height());
  pennello.scale(scala, scala);
  QPen penna(palette().color(QPalette::Mid));
  penna.setCosmetic(true);
  pennello.setPen(penna);
  pennello.setBrush(Qt::white);
  pennello.drawRect(foglio);
  pennello.setClipRect(foglio);
  pennello.setBrush(palette().color(QPalette::Midlight));
  pennello.drawRect(QRectF(schizzo_->foglio.da_destra * decimi, 0, schizzo_->foglio.logo * decimi,
                           schizzo_->foglio.logo * decimi / 2));
  penna.setColor(Qt::black);
  pennello.setPen(penna);
  pennello.setBrush(Qt::NoBrush);
  for (const auto* scritte : {&schizzo_->pagina.testata, &schizzo_->pagina.tabella})
    for (const Scritta_Pagina& scritta : *scritte) Scrivi(pennello, scritta);
  if (const auto& bollo = schizzo_->bollo)
    pennello.drawEllipse(QPointF(bollo->x, bollo->y) * decimi, bollo->raggio_x * decimi,
                         bollo->raggio_y * decimi);
}

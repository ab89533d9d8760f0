#include "printing/screens/lavoro_carta.h"

#include <cmath>
#include <numbers>
#include <utility>

#include <QGlyphRun>
#include <QImage>

#include "platform/testo_qt.h"
#include "printing/screens/fonte_stampa.h"

namespace {

QColor In_QColor(const Colore& colore) { return {colore.rosso, colore.verde, colore.blu}; }

QPageLayout::Orientation In_Qt(int orientamento) {
  return orientamento == Orizzontale ? QPageLayout::Landscape : QPageLayout::Portrait;
}

}  // namespace

// A sheet lies with its foot at the left.
QMarginsF Bordi_Girati(const QMarginsF& bordi, int orientamento) {
  if (orientamento == Verticale) return bordi;
  return {bordi.bottom(), bordi.left(), bordi.top(), bordi.right()};
}

Lavoro_Carta::Lavoro_Carta(std::unique_ptr<QPrinter> stampante, const QPageSize& foglio,
                           const QMarginsF& bordi)
    : stampante_(std::move(stampante)), foglio_(foglio), bordi_(bordi) {
  stampante_->setFullPage(true);  // the origin is the sheet's corner: the borders are counted here
}

double Lavoro_Carta::Punti(double millimetri) const {
  constexpr double mm_per_pollice = 25.4;
  return millimetri * stampante_->logicalDpiX() / mm_per_pollice;
}

QPen Lavoro_Carta::Penna(int larghezza, const Colore& colore) const {
  QPen esito(In_QColor(colore));
  esito.setWidthF(Punti(std::max(larghezza, 1) * Millimetri_Per_Penna));
  esito.setCapStyle(Qt::FlatCap);
  esito.setJoinStyle(Qt::MiterJoin);
  return esito;
}

void Lavoro_Carta::Pagina(int pagina, int orientamento) {
  stampante_->setPageSize(foglio_);
  stampante_->setPageOrientation(In_Qt(orientamento));
  if (pagina == 1)
    pennello_.begin(stampante_.get());
  else
    stampante_->newPage();
  const QMarginsF bordi = Bordi_Girati(bordi_, orientamento);
  pennello_.resetTransform();
  pennello_.translate(Punti(bordi.left()), Punti(bordi.top()));
}

// Letter by letter at the places that the metrics give: no pair of letters is moved together, no width is
// rounded.
void Lavoro_Carta::Scrivi(double x, double base, Fonte_Stampa& fonte, double corpo, Vista testo) {
  const Metrica& metrica = fonte.Misure();
  const double corpo_in_punti = Punti(corpo);
  QRawFont disegno = fonte.Disegno();
  disegno.setPixelSize(corpo_in_punti);
  QList<QPointF> posti;
  double avanti = 0;
  for (const char c : testo) {
    posti.append({avanti, 0});
    avanti += metrica.larghezze[static_cast<unsigned char>(c)] * corpo_in_punti / metrica.quadrato;
  }
  QGlyphRun segni;
  segni.setRawFont(disegno);
  segni.setGlyphIndexes(disegno.glyphIndexesForString(In_QString(testo)));
  segni.setPositions(posti);
  pennello_.setPen(In_QColor(Nero));
  pennello_.drawGlyphRun({Punti(x), Punti(base)}, segni);
}

void Lavoro_Carta::Disegna(const Segno& segno) {
  const QPointF da(Punti(segno.x1), Punti(segno.y1)), a(Punti(segno.x2), Punti(segno.y2));
  const QRectF rettangolo = QRectF(da, a).normalized();
  if (segno.tratto == Tratto::Pieno) {
    pennello_.fillRect(rettangolo, In_QColor(segno.colore));
    return;
  }
  pennello_.setPen(Penna(segno.penna, segno.colore));
  pennello_.setBrush(Qt::NoBrush);
  if (segno.tratto == Tratto::Linea)
    pennello_.drawLine(da, a);
  else
    pennello_.drawRect(rettangolo);
}

void Lavoro_Carta::Disegna(const Ovale& ovale) {
  const double rx = Punti(ovale.raggio_x), ry = Punti(ovale.raggio_y);
  const QRectF intorno(Punti(ovale.x) - rx, Punti(ovale.y) - ry, 2 * rx, 2 * ry);
  pennello_.setPen(Penna(ovale.penna, ovale.colore));
  pennello_.setBrush(Qt::NoBrush);
  if (ovale.inizio == ovale.fine) {
    pennello_.drawEllipse(intorno);
    return;
  }
  constexpr double sedicesimi_di_grado = 16 * 180 / std::numbers::pi;
  const double giro = 2 * std::numbers::pi;
  const double arco = std::fmod(std::fmod(ovale.fine - ovale.inizio, giro) + giro, giro);
  pennello_.drawArc(intorno, static_cast<int>(std::lround(ovale.inizio * sedicesimi_di_grado)),
                    static_cast<int>(std::lround(arco * sedicesimi_di_grado)));
}

void Lavoro_Carta::Disegna(const Figura& figura) {
  const Immagine& immagine = figura.immagine;
  QImage punti(immagine.larghezza, immagine.altezza, QImage::Format_RGB32);
  std::size_t i = 0;
  for (int y = 0; y < immagine.altezza; ++y)
    for (int x = 0; x < immagine.larghezza; ++x) punti.setPixel(x, y, 0xFF000000U | immagine.punti[i++]);
  const QRectF posto(Punti(figura.x), Punti(figura.y), Punti(figura.larghezza), Punti(figura.altezza));
  pennello_.setRenderHint(QPainter::SmoothPixmapTransform);
  pennello_.drawImage(posto, punti);
}

std::optional<std::string> Lavoro_Carta::Finisci() {
  pennello_.end();
  return std::nullopt;
}

// A printer takes no page back.
bool Lavoro_Carta::Abbandona() {
  pennello_.end();
  return false;
}

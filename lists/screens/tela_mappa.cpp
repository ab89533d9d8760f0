#include "lists/screens/tela_mappa.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

#include "platform/aspetto.h"
#include "platform/testo_qt.h"

namespace {

struct Colori_Mappa {
  QColor mare, reticolo, confine, terra, costa, nome, alone;
  QColor scritta, testo_scritta, bordo_scritta;
  QColor scelta, testo_scelta, velo;  // the area looked at, the label of the row's area
  QColor tinte[6];
};

const Colori_Mappa di_giorno = {.mare = {214, 226, 234},
                                .reticolo = {120, 145, 165, 70},
                                .confine = {96, 120, 142, 150},
                                .terra = {240, 235, 222},
                                .costa = {126, 116, 96},
                                .nome = {40, 60, 78},
                                .alone = {255, 255, 255, 170},
                                .scritta = {255, 255, 255, 235},
                                .testo_scritta = {22, 44, 66},
                                .bordo_scritta = {70, 96, 122},
                                .scelta = {196, 78, 10},
                                .testo_scelta = {255, 255, 255},
                                .velo = {255, 255, 255, 130},
                                .tinte = {{168, 207, 236},
                                          {170, 220, 208},
                                          {196, 204, 240},
                                          {190, 224, 236},
                                          {212, 202, 234},
                                          {184, 226, 186}}};

const Colori_Mappa di_notte = {
    .mare = {34, 44, 54},
    .reticolo = {160, 180, 200, 40},
    .confine = {170, 190, 210, 90},
    .terra = {70, 66, 58},
    .costa = {150, 140, 118},
    .nome = {214, 226, 236},
    .alone = {10, 16, 22, 150},
    .scritta = {24, 32, 40, 235},
    .testo_scritta = {236, 242, 248},
    .bordo_scritta = {130, 150, 170},
    .scelta = {255, 160, 60},
    .testo_scelta = {20, 20, 20},
    .velo = {255, 255, 255, 45},
    .tinte = {{34, 74, 108}, {30, 88, 82}, {58, 64, 116}, {36, 86, 104}, {80, 66, 112}, {48, 94, 60}}};

const Colori_Mappa& Colori_Di(const QWidget* widget) {
  return widget->palette().color(QPalette::Window).lightness() < 128 ? di_notte : di_giorno;
}

QPainterPath Tracciato(const Spezzata& linea, bool chiudi) {
  QPainterPath tracciato;
  for (std::size_t i = 0; i < linea.size(); ++i)
    i == 0 ? tracciato.moveTo(linea[i].x, linea[i].y) : tracciato.lineTo(linea[i].x, linea[i].y);
  if (chiudi) tracciato.closeSubpath();
  return tracciato;
}

QPen Penna(const QColor& colore, double spessore) {
  QPen penna(colore, spessore);
  penna.setCosmetic(true);  // the same width at every scale
  penna.setJoinStyle(Qt::RoundJoin);
  return penna;
}

QFont Carattere_Nomi() { return Carattere(9.5, true); }

// Lines of about the same length, so that a name stays near its number.
QStringList A_Capo(const QString& nome) {
  constexpr qsizetype breve = 15;
  if (nome.size() <= breve) return {nome};
  qsizetype taglio = -1;
  for (qsizetype i = 0; i < nome.size(); ++i)
    if (nome[i] == QLatin1Char(' ') &&
        (taglio < 0 || qAbs(2 * i - nome.size()) < qAbs(2 * taglio - nome.size())))
      taglio = i;
  if (taglio < 0) return {nome};
  return {nome.left(taglio), nome.mid(taglio + 1)};
}

}  // namespace

ScrittaMappa::ScrittaMappa(const Bersaglio& bersaglio, bool attuale, TelaMappa* tela)
    : QAbstractButton(tela), attuale_(attuale) {
  const QString spiegazione = In_QString(bersaglio.spiegazione);
  setObjectName(QStringLiteral("Label1(%1)").arg(bersaglio.indice));
  setText(In_QString(bersaglio.numero));
  setToolTip(spiegazione);
  setAccessibleName(spiegazione);
  setFont(Carattere(punti_normali, true));
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setAttribute(Qt::WA_Hover);
}

QSize ScrittaMappa::sizeHint() const {
  const QFontMetrics misure = fontMetrics();
  const int alto = misure.height() + 6;
  return {qMax(misure.horizontalAdvance(text()) + 14, alto), alto};
}

void ScrittaMappa::paintEvent(QPaintEvent*) {
  const Colori_Mappa& colori = Colori_Di(this);
  QPainter pittore(this);
  pittore.setRenderHint(QPainter::Antialiasing);
  const bool acceso = hasFocus() || underMouse();
  const bool pieno = attuale_ || isDown();
  pittore.setPen(QPen(acceso || pieno ? colori.scelta : colori.bordo_scritta, acceso ? 2.5 : 1.2));
  pittore.setBrush(pieno ? colori.scelta : colori.scritta);
  const double margine = acceso ? 1.5 : 1;
  pittore.drawRoundedRect(QRectF(rect()).adjusted(margine, margine, -margine, -margine), 6, 6);
  pittore.setPen(pieno ? colori.testo_scelta : colori.testo_scritta);
  pittore.drawText(rect(), Qt::AlignCenter, text());
}

void ScrittaMappa::keyPressEvent(QKeyEvent* evento) {
  switch (evento->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return click();
    case Qt::Key_Left:
      return emit freccia(-1, 0);
    case Qt::Key_Right:
      return emit freccia(1, 0);
    case Qt::Key_Up:
      return emit freccia(0, -1);
    case Qt::Key_Down:
      return emit freccia(0, 1);
    default:
      QAbstractButton::keyPressEvent(evento);
  }
}

TelaMappa::TelaMappa(const Mappa_Zone& mappa, int attuale, QWidget* padre)
    : QWidget(padre), mappa_(mappa), attuale_(attuale), cornice_(Tracciato(mappa.cornice, true)) {
  setMouseTracking(true);
  for (const auto& terra : mappa.terre)
    for (const Anello& anello : terra) terre_.addPath(Tracciato(anello, true));
  for (const Spezzata& costa : mappa.coste) coste_.addPath(Tracciato(costa, false));
  for (const Spezzata& linea : mappa.reticolo) reticolo_.addPath(Tracciato(linea, false));
  for (const Bersaglio& bersaglio : mappa.bersagli) {
    QPainterPath& area = aree_.emplace_back();
    for (const Anello& confine : bersaglio.confini) area.addPath(Tracciato(confine, true));
    area.setFillRule(Qt::WindingFill);
  }
  fa_scritte();
}

void TelaMappa::fa_scritte() {
  for (int i = 0; const Bersaglio& bersaglio : mappa_.bersagli) {
    auto* scritta = new ScrittaMappa(bersaglio, i == attuale_, this);
    connect(scritta, &QAbstractButton::clicked, this, [this, i] { emit scelto(i); });
    connect(scritta, &ScrittaMappa::freccia, this, [this, i](int dx, int dy) { sposta(i, dx, dy); });
    scritta->installEventFilter(this);
    scritte_.push_back(scritta);
    ++i;
  }
}

void TelaMappa::al_primo() {
  if (scritte_.empty()) return;
  scritte_[static_cast<std::size_t>(qMax(attuale_, 0))]->setFocus();
}

QSize TelaMappa::sizeHint() const { return {1176, 620}; }
QSize TelaMappa::minimumSizeHint() const { return {640, 340}; }

void TelaMappa::sposta(int da, int dx, int dy) {
  const int altro = Bersaglio_Accanto(mappa_, da, dx, dy);
  if (altro >= 0) scritte_[static_cast<std::size_t>(altro)]->setFocus(Qt::OtherFocusReason);
}

void TelaMappa::disponi() {
  const double larga = mappa_.basso_destra.x - mappa_.alto_sinistra.x;
  const double alta = mappa_.basso_destra.y - mappa_.alto_sinistra.y;
  if (larga <= 0 || alta <= 0) return;
  const double fattore = qMin((width() - 2) / larga, (height() - 2) / alta);
  scala_ = QTransform::fromTranslate((width() - larga * fattore) / 2, (height() - alta * fattore) / 2);
  scala_.scale(fattore, fattore);
  scala_.translate(-mappa_.alto_sinistra.x, -mappa_.alto_sinistra.y);
  for (std::size_t i = 0; i < scritte_.size(); ++i) {
    const QSize misura = scritte_[i]->sizeHint();
    QRect posto({}, misura);
    posto.moveCenter(al_widget(mappa_.bersagli[i].scritta).toPoint());
    scritte_[i]->setGeometry(posto);
  }
}

QPointF TelaMappa::al_widget(Punto_Mappa punto) const { return scala_.map(QPointF(punto.x, punto.y)); }

int TelaMappa::bersaglio_in(QPointF punto) const {
  const QPointF sulla_mappa = scala_.inverted().map(punto);
  return Bersaglio_In(mappa_, {sulla_mappa.x(), sulla_mappa.y()});
}

void TelaMappa::resizeEvent(QResizeEvent*) {
  disponi();
  rinfresca();
}

void TelaMappa::rinfresca() {
  fondo_ = {};
  guardata_ = {};
  sopra_ = {};
  update();
}

void TelaMappa::changeEvent(QEvent* evento) {
  if (evento->type() == QEvent::PaletteChange || evento->type() == QEvent::FontChange) rinfresca();
  QWidget::changeEvent(evento);
}

QPixmap TelaMappa::foglio_vuoto() const {
  QPixmap foglio(size() * devicePixelRatioF());
  foglio.setDevicePixelRatio(devicePixelRatioF());
  foglio.fill(Qt::transparent);
  return foglio;
}

void TelaMappa::dipingi_fondo() {
  const Colori_Mappa& colori = Colori_Di(this);
  fondo_ = foglio_vuoto();
  QPainter pittore(&fondo_);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setTransform(scala_, true);
  pittore.fillPath(cornice_, colori.mare);
  pittore.setClipPath(cornice_);
  for (std::size_t i = 0; i < aree_.size(); ++i) {
    const QColor& tinta = colori.tinte[static_cast<std::size_t>(mappa_.bersagli[i].tinta) % 6];
    pittore.setPen(Penna(tinta, 1));  // closes the hairline between neighbours
    pittore.setBrush(tinta);
    pittore.drawPath(aree_[i]);
  }
  pittore.setBrush(Qt::NoBrush);
  pittore.setPen(Penna(colori.reticolo, 1));
  pittore.drawPath(reticolo_);
  pittore.setPen(Penna(colori.confine, 1));
  for (const QPainterPath& area : aree_) pittore.drawPath(area);
}

void TelaMappa::dipingi_terre() {
  const Colori_Mappa& colori = Colori_Di(this);
  sopra_ = foglio_vuoto();
  QPainter pittore(&sopra_);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.save();
  pittore.setTransform(scala_, true);
  pittore.setClipPath(cornice_);
  pittore.setPen(Penna(colori.terra, 1));
  pittore.setBrush(colori.terra);
  pittore.drawPath(terre_);
  pittore.setBrush(Qt::NoBrush);
  pittore.setPen(Penna(colori.costa, 1));
  pittore.drawPath(coste_);
  pittore.setClipping(false);
  pittore.setPen(Penna(colori.confine, 1.5));
  pittore.drawPath(cornice_);
  pittore.restore();
  dipingi_richiami(pittore);
  dipingi_nomi(pittore);
}

// From a label beside its area to the water.
void TelaMappa::dipingi_richiami(QPainter& pittore) const {
  const Colori_Mappa& colori = Colori_Di(this);
  for (const Bersaglio& bersaglio : mappa_.bersagli) {
    if (bersaglio.acqua == bersaglio.scritta) continue;
    const QPointF acqua = al_widget(bersaglio.acqua);
    pittore.setPen(QPen(colori.testo_scritta, 1.5));
    pittore.drawLine(al_widget(bersaglio.scritta), acqua);
    pittore.setBrush(colori.testo_scritta);
    pittore.drawEllipse(acqua, 2.5, 2.5);
  }
}

// Each name under its number, where there is room for it.
void TelaMappa::dipingi_nomi(QPainter& pittore) const {
  const Colori_Mappa& colori = Colori_Di(this);
  const QFont carattere = Carattere_Nomi();
  const QFontMetrics misure(carattere);
  std::vector<QRect> occupati;
  for (const ScrittaMappa* scritta : scritte_) occupati.push_back(scritta->geometry());
  for (std::size_t i = 0; i < scritte_.size(); ++i) {
    const QStringList righe = A_Capo(In_QString(mappa_.bersagli[i].nome));
    const QRect scritta = scritte_[i]->geometry();
    int largo = 0;
    for (const QString& riga : righe) largo = qMax(largo, misure.horizontalAdvance(riga));
    const QRect posto(scritta.center().x() - largo / 2, scritta.bottom() + 2, largo,
                      misure.lineSpacing() * static_cast<int>(righe.size()));
    const auto tocca = [&](const QRect& altro) { return altro.intersects(posto); };
    if (!rect().contains(posto) || std::any_of(occupati.begin(), occupati.end(), tocca)) continue;
    occupati.push_back(posto);
    QPainterPath lettere;
    for (int n = 0; const QString& riga : righe) {
      const int x = posto.center().x() - misure.horizontalAdvance(riga) / 2;
      lettere.addText(x, posto.top() + misure.ascent() + n++ * misure.lineSpacing(), carattere, riga);
    }
    pittore.strokePath(lettere, QPen(colori.alone, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pittore.fillPath(lettere, colori.nome);
  }
}

// Brighter, with its limits and its coast in a strong colour; half of the coast's stroke goes under the land.
void TelaMappa::dipingi_guardato() {
  guardata_ = foglio_vuoto();
  if (guardato_ < 0) return;
  const auto quale = static_cast<std::size_t>(guardato_);
  const Colori_Mappa& colori = Colori_Di(this);
  QPainter pittore(&guardata_);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setTransform(scala_, true);
  pittore.setClipPath(cornice_);
  pittore.setPen(Penna(colori.scelta, 4));
  pittore.setBrush(colori.velo);
  pittore.drawPath(aree_[quale]);
  QPolygonF tratto;
  for (const Spezzata& costa : Coste_Di(mappa_, mappa_.bersagli[quale])) {
    tratto.clear();
    for (const Punto_Mappa punto : costa) tratto << QPointF(punto.x, punto.y);
    pittore.drawPolyline(tratto);
  }
}

void TelaMappa::paintEvent(QPaintEvent*) {
  if (fondo_.isNull()) dipingi_fondo();
  if (guardata_.isNull()) dipingi_guardato();
  if (sopra_.isNull()) dipingi_terre();
  QPainter pittore(this);
  pittore.drawPixmap(0, 0, fondo_);
  pittore.drawPixmap(0, 0, guardata_);
  pittore.drawPixmap(0, 0, sopra_);
}

void TelaMappa::sotto_il_cursore(int bersaglio) {
  indicato_ = bersaglio;
  int con_tastiera = -1;
  for (std::size_t i = 0; i < scritte_.size(); ++i)
    if (scritte_[i]->hasFocus()) con_tastiera = static_cast<int>(i);
  const int ora = indicato_ >= 0 ? indicato_ : con_tastiera;
  if (ora == guardato_) return;
  guardato_ = ora;
  guardata_ = {};
  update();
  emit guardato(ora);
}

bool TelaMappa::eventFilter(QObject* oggetto, QEvent* evento) {
  const auto trovata = std::find(scritte_.begin(), scritte_.end(), oggetto);
  if (trovata == scritte_.end()) return QWidget::eventFilter(oggetto, evento);
  const int quale = static_cast<int>(trovata - scritte_.begin());
  switch (evento->type()) {
    case QEvent::Enter:
      sotto_il_cursore(quale);
      break;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Leave:
      sotto_il_cursore(-1);
      break;
    default:
      break;
  }
  return QWidget::eventFilter(oggetto, evento);
}

void TelaMappa::mouseMoveEvent(QMouseEvent* evento) {
  const int bersaglio = bersaglio_in(evento->position());
  setCursor(bersaglio >= 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
  sotto_il_cursore(bersaglio);
}

void TelaMappa::mousePressEvent(QMouseEvent* evento) {
  premuto_ = evento->button() == Qt::LeftButton ? bersaglio_in(evento->position()) : -1;
}

void TelaMappa::mouseReleaseEvent(QMouseEvent* evento) {
  if (evento->button() != Qt::LeftButton || premuto_ < 0) return;
  const int premuto = std::exchange(premuto_, -1);
  if (bersaglio_in(evento->position()) == premuto) emit scelto(premuto);
}

void TelaMappa::leaveEvent(QEvent*) { sotto_il_cursore(-1); }

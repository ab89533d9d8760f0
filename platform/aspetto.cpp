#include "platform/aspetto.h"

#include <QApplication>
#include <QFocusEvent>
#include <QGroupBox>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

namespace {

constexpr double visibile = 0.5;  // of the way from the ground to the text

bool Scura(const QPalette& tavolozza) {
  return tavolozza.color(QPalette::Window).lightness() < tavolozza.color(QPalette::WindowText).lightness();
}

QColor Fra(const QColor& fondo, const QColor& testo) {
  const auto mezzo = [](int da, int a) { return static_cast<int>(da + (a - da) * visibile); };
  return {mezzo(fondo.red(), testo.red()), mezzo(fondo.green(), testo.green()),
          mezzo(fondo.blue(), testo.blue())};
}

// The desktop's own style, with outlines where a dark palette would swallow them.
class Stile_Con_Contorni : public QProxyStyle {
 public:
  void drawPrimitive(PrimitiveElement parte, const QStyleOption* opzioni, QPainter* pittore,
                     const QWidget* widget) const override {
    QProxyStyle::drawPrimitive(parte, opzioni, pittore, widget);
    const bool tondo = parte == PE_IndicatorRadioButton;
    const bool quadro = parte == PE_FrameLineEdit || parte == PE_IndicatorCheckBox;
    if ((!tondo && !quadro) || !Scura(opzioni->palette)) return;
    pittore->save();
    pittore->setPen(Colore_Contorno(opzioni->palette));
    pittore->setBrush(Qt::NoBrush);
    const QRect intorno = opzioni->rect.adjusted(0, 0, -1, -1);
    if (tondo) {
      pittore->setRenderHint(QPainter::Antialiasing);
      pittore->drawEllipse(intorno);
    } else {
      pittore->drawRect(intorno);
    }
    pittore->restore();
  }
};

}  // namespace

void Prepara_Aspetto() {
  QApplication::setStyle(new Stile_Con_Contorni);
  QFont carattere = QApplication::font();
  if (!QFontInfo(carattere).fixedPitch()) return;
  carattere.setFamily(QStringLiteral("Liberation Sans"));
  QApplication::setFont(carattere);
}

QFont Carattere(double punti, bool grassetto) {
  QFont carattere = QApplication::font();
  carattere.setPointSizeF(punti);
  carattere.setBold(grassetto);
  return carattere;
}

QColor Colore_Contorno(const QPalette& tavolozza) {
  if (!Scura(tavolozza)) return tavolozza.color(QPalette::Midlight);
  return Fra(tavolozza.color(QPalette::Window), tavolozza.color(QPalette::WindowText));
}

QGroupBox* Riquadro_Titolato(const QString& titolo) {
  auto* riquadro = new QGroupBox(titolo);
  riquadro->setFont(Carattere(punti_normali, true));
  return riquadro;
}

QFont Carattere_Fisso(double punti) {
  QFont carattere(QStringLiteral("Liberation Mono"));
  carattere.setStyleHint(QFont::Monospace, QFont::PreferMatch);
  carattere.setFixedPitch(true);
  carattere.setPointSizeF(punti);
  carattere.setKerning(false);
  return carattere;
}

CasellaTesto::CasellaTesto(QWidget* padre) : QLineEdit(padre) {
  setContextMenuPolicy(Qt::NoContextMenu);  // the right button belongs to the screens
  setTextMargins(3, 1, 3, 1);
  QPalette tavolozza = palette();
  tavolozza.setColor(QPalette::Disabled, QPalette::Text, tavolozza.color(QPalette::Active, QPalette::Text));
  setPalette(tavolozza);
}

void CasellaTesto::tieni(bool si) {
  if (si == tenuta_) return;
  tenuta_ = si;
  update();
}

void CasellaTesto::focusOutEvent(QFocusEvent* evento) {
  QLineEdit::focusOutEvent(evento);
  if (evento->reason() != Qt::ActiveWindowFocusReason && evento->reason() != Qt::PopupFocusReason)
    setCursorPosition(0);  // a long text is read from its beginning
}

void CasellaTesto::paintEvent(QPaintEvent* evento) {
  QLineEdit::paintEvent(evento);
  if (!hasFocus() && !tenuta_) return;
  QPainter pittore(this);
  const int spessore = qMax(3, fontMetrics().height() / 7);
  if (tenuta_) pittore.fillRect(QRect(0, 0, spessore, height()), palette().color(QPalette::Mid).darker(130));
  if (!hasFocus()) return;
  QPen penna(palette().color(QPalette::Highlight), spessore);
  penna.setJoinStyle(Qt::MiterJoin);
  pittore.setPen(penna);
  const int meta = spessore / 2;
  pittore.drawRect(rect().adjusted(meta, meta, -meta - 1, -meta - 1));
}

#include "platform/aspetto.h"

#include <cmath>

#include <QAbstractItemView>
#include <QApplication>
#include <QFocusEvent>
#include <QGroupBox>
#include <QPainter>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleOption>

namespace {

constexpr double visibile = 0.5;  // of the way from the ground to the text
constexpr int passi = 20;

bool Scura(const QPalette& tavolozza) {
  return tavolozza.color(QPalette::Window).lightness() < tavolozza.color(QPalette::WindowText).lightness();
}

QColor Fra(const QColor& fondo, const QColor& testo, double parte) {
  const auto mezzo = [parte](int da, int a) { return static_cast<int>(da + (a - da) * parte); };
  return {mezzo(fondo.red(), testo.red()), mezzo(fondo.green(), testo.green()),
          mezzo(fondo.blue(), testo.blue())};
}

double Luminosita(const QColor& colore) {
  const auto lineare = [](double parte) {
    return parte <= 0.04045 ? parte / 12.92 : std::pow((parte + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * lineare(colore.redF()) + 0.7152 * lineare(colore.greenF()) +
         0.0722 * lineare(colore.blueF());
}

bool E_Lista(const QWidget* widget) { return qobject_cast<const QAbstractItemView*>(widget) != nullptr; }

// What a scroll bar looks like depends on: two that agree in all of it look the same.
QString Chiave_Scorrimento(const QStyleOptionSlider& barra, const QRect& cursore, double scala) {
  const QRect& tutta = barra.rect;
  return QStringLiteral("scorrimento %1 %2 %3 %4 %5 %6 %7 %8 %9")
             .arg(tutta.width())
             .arg(tutta.height())
             .arg(cursore.x() - tutta.x())
             .arg(cursore.y() - tutta.y())
             .arg(cursore.width())
             .arg(cursore.height())
             .arg(static_cast<uint>(barra.state), 0, 16)
             .arg(static_cast<uint>(barra.activeSubControls), 0, 16)
             .arg(scala) +
         QStringLiteral(" %1 %2 %3 %4 %5")
             .arg(barra.palette.cacheKey(), 0, 16)
             .arg(static_cast<uint>(barra.subControls), 0, 16)
             .arg(static_cast<int>(barra.orientation))
             .arg(static_cast<int>(barra.direction))
             .arg(barra.minimum == barra.maximum ? 1 : 0);
}

// The desktop's own style, with outlines where a dark palette would swallow them, room around the captions of
// buttons, and lists that show by their frame that they have the keyboard.
class Stile_Con_Contorni : public QProxyStyle {
 public:
  QSize sizeFromContents(ContentsType tipo, const QStyleOption* opzioni, const QSize& contenuto,
                         const QWidget* widget) const override {
    const QSize misura = QProxyStyle::sizeFromContents(tipo, opzioni, contenuto, widget);
    if (tipo != CT_PushButton) return misura;
    const int lettere = contenuto.width() + 3 * opzioni->fontMetrics.averageCharWidth();
    return {qMax(misura.width(), lettere), misura.height()};
  }

  int pixelMetric(PixelMetric quale, const QStyleOption* opzioni, const QWidget* widget) const override {
    if (quale == PM_DefaultFrameWidth && E_Lista(widget)) return spessore_cornice;
    return QProxyStyle::pixelMetric(quale, opzioni, widget);
  }

  void drawPrimitive(PrimitiveElement parte, const QStyleOption* opzioni, QPainter* pittore,
                     const QWidget* widget) const override {
    if (parte == PE_Frame && E_Lista(widget)) return cornice_lista(*opzioni, *pittore, *widget);
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

  // Each row that is added changes the range of the scroll bars, hardly ever what they look like; the
  // shades of a whole bar take as long to paint as the rest of the screen's fields.
  void drawComplexControl(ComplexControl parte, const QStyleOptionComplex* opzioni, QPainter* pittore,
                          const QWidget* widget) const override {
    const auto* barra = qstyleoption_cast<const QStyleOptionSlider*>(opzioni);
    if (parte != CC_ScrollBar || barra == nullptr || barra->rect.isEmpty() ||
        styleHint(SH_ScrollBar_Transient, opzioni, widget) != 0)  // these fade in and out
      return QProxyStyle::drawComplexControl(parte, opzioni, pittore, widget);
    const double scala = pittore->device()->devicePixelRatioF();
    const QRect cursore = subControlRect(parte, opzioni, SC_ScrollBarSlider, widget);
    const QString chiave = Chiave_Scorrimento(*barra, cursore, scala);
    QPixmap immagine;
    if (!QPixmapCache::find(chiave, &immagine)) {
      immagine = QPixmap((QSizeF(barra->rect.size()) * scala).toSize());
      immagine.setDevicePixelRatio(scala);
      immagine.fill(Qt::transparent);
      QPainter sopra(&immagine);
      sopra.translate(-barra->rect.topLeft());
      QProxyStyle::drawComplexControl(parte, opzioni, &sopra, widget);
      sopra.end();
      QPixmapCache::insert(chiave, immagine);
    }
    pittore->drawPixmap(barra->rect.topLeft(), immagine);
  }

 private:
  static void cornice_lista(const QStyleOption& opzioni, QPainter& pittore, const QWidget& lista) {
    const QPalette& tavolozza = opzioni.palette;
    if (lista.hasFocus()) return pittore.fillRect(opzioni.rect, Colore_Fuoco(tavolozza));
    pittore.fillRect(opzioni.rect, Colore_Contorno(tavolozza));
    pittore.fillRect(opzioni.rect.adjusted(1, 1, -1, -1), tavolozza.color(QPalette::Base));
  }
};

// Away from the text, step by step, as far as it takes.
void Stacca(QColor& fondo, const QColor& testo) {
  const bool scurisci = Luminosita(testo) > Luminosita(fondo);
  for (int i = 0; i < passi && Contrasto(fondo, testo) < contrasto_scelta; ++i)
    fondo = scurisci ? fondo.darker(105) : fondo.lighter(105);
}

// Towards the text of what is enabled.
void Rafforza(QColor& spento, const QColor& acceso, const QColor& fondo) {
  for (int i = 1; i <= passi && Contrasto(spento, fondo) < contrasto_spento; ++i)
    spento = Fra(spento, acceso, static_cast<double>(i) / passi);
}

}  // namespace

double Contrasto(const QColor& uno, const QColor& altro) {
  const double a = Luminosita(uno), b = Luminosita(altro);
  return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
}

QPalette Leggibile(QPalette tavolozza) {
  const QColor scelto = tavolozza.color(QPalette::Active, QPalette::HighlightedText);
  QColor fondo_scelto = tavolozza.color(QPalette::Active, QPalette::Highlight);
  Stacca(fondo_scelto, scelto);
  for (const auto gruppo : {QPalette::Active, QPalette::Inactive}) {
    tavolozza.setColor(gruppo, QPalette::Highlight, fondo_scelto);
    tavolozza.setColor(gruppo, QPalette::HighlightedText, scelto);
  }
  struct Scritta_Spenta {
    QPalette::ColorRole testo, fondo;
  };
  for (const auto& [testo, fondo] : {Scritta_Spenta{QPalette::ButtonText, QPalette::Button},
                                     Scritta_Spenta{QPalette::WindowText, QPalette::Window}}) {
    QColor spento = tavolozza.color(QPalette::Disabled, testo);
    Rafforza(spento, tavolozza.color(QPalette::Active, testo), tavolozza.color(QPalette::Disabled, fondo));
    tavolozza.setColor(QPalette::Disabled, testo, spento);
  }
  return tavolozza;
}

void Prepara_Aspetto() {
  QApplication::setStyle(new Stile_Con_Contorni);
  QApplication::setPalette(Leggibile(QApplication::palette()));
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
  if (!Scura(tavolozza)) return tavolozza.color(QPalette::Window).darker(140);
  return Fra(tavolozza.color(QPalette::Window), tavolozza.color(QPalette::WindowText), visibile);
}

QColor Colore_Fuoco(const QPalette& tavolozza) {
  const QColor scelto = tavolozza.color(QPalette::Highlight);
  return Scura(tavolozza) ? scelto.lighter(150) : scelto;
}

QGroupBox* Riquadro_Titolato(const QString& titolo) {
  auto* riquadro = new QGroupBox(titolo);
  riquadro->setFont(Carattere(punti_normali, true));
  return riquadro;
}

QPushButton* Bottone_Comodo(const QString& nome, const QString& didascalia, QWidget* padre) {
  auto* bottone = new QPushButton(didascalia, padre);
  bottone->setObjectName(nome);
  bottone->setAccessibleName(QString(didascalia).remove(QLatin1Char('&')).trimmed());
  bottone->setFont(Carattere(punti_normali));
  bottone->setAutoDefault(true);
  const QFontMetrics misure = bottone->fontMetrics();
  bottone->setMinimumHeight(misure.height() * 2);
  bottone->setMinimumWidth(misure.horizontalAdvance(didascalia) + misure.height() * 3 / 2);
  return bottone;
}

QFont Carattere_Fisso(double punti) {
  QFont carattere(QStringLiteral("Liberation Mono"));
  carattere.setStyleHint(QFont::Monospace, QFont::PreferMatch);
  carattere.setFixedPitch(true);
  carattere.setPointSizeF(punti);
  carattere.setBold(false);  // not the weight of the title it stands under
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
  QPen penna(Colore_Fuoco(palette()), spessore);
  penna.setJoinStyle(Qt::MiterJoin);
  pittore.setPen(penna);
  const int meta = spessore / 2;
  pittore.drawRect(rect().adjusted(meta, meta, -meta - 1, -meta - 1));
}

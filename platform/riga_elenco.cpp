#include "platform/riga_elenco.h"

#include <memory>

#include <QApplication>
#include <QPainter>
#include <QStyle>

namespace {

constexpr int righe_tenute = 500;  // some windows full

QPalette::ColorGroup Gruppo(QStyle::State stato) {
  if (!stato.testFlag(QStyle::State_Enabled)) return QPalette::Disabled;
  return stato.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
}

void Dipingi_Fuoco(QPainter& pittore, const QStyleOptionViewItem& voce, const QStyle& stile) {
  QStyleOptionFocusRect fuoco;
  fuoco.QStyleOption::operator=(voce);
  fuoco.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
  const bool scelta = voce.state.testFlag(QStyle::State_Selected);
  fuoco.backgroundColor =
      voce.palette.color(Gruppo(voce.state), scelta ? QPalette::Highlight : QPalette::Window);
  stile.drawPrimitive(QStyle::PE_FrameFocusRect, &fuoco, &pittore, voce.widget);
}

}  // namespace

RigaElenco::RigaElenco(QObject* padre) : QStyledItemDelegate(padre), testi_(righe_tenute) {}

const QStaticText& RigaElenco::testo(const QString& riga, const QFont& carattere) const {
  if (carattere != carattere_) {
    testi_.clear();
    carattere_ = carattere;
  }
  if (const QStaticText* tenuto = testi_.object(riga)) return *tenuto;
  auto nuovo = std::make_unique<QStaticText>(riga);
  nuovo->setTextFormat(Qt::PlainText);
  nuovo->prepare({}, carattere);
  QStaticText* dato = nuovo.get();
  testi_.insert(riga, nuovo.release());
  return *dato;
}

void RigaElenco::paint(QPainter* pittore, const QStyleOptionViewItem& opzioni,
                       const QModelIndex& indice) const {
  QStyleOptionViewItem voce = opzioni;
  initStyleOption(&voce, indice);
  const QStyle& stile = voce.widget != nullptr ? *voce.widget->style() : *QApplication::style();
  const int margine = stile.pixelMetric(QStyle::PM_FocusFrameHMargin, &voce, voce.widget) + 1;
  const QRect spazio = voce.rect.adjusted(margine, 0, -margine, 0);
  const QStaticText& riga = testo(voce.text, voce.font);
  if (riga.size().width() > spazio.width() || voce.text.contains(QChar(QChar::LineSeparator)))
    return QStyledItemDelegate::paint(pittore, opzioni, indice);  // cut short by the style
  const QRect dove = QStyle::alignedRect(voce.direction, voce.displayAlignment, riga.size().toSize(), spazio);
  stile.drawPrimitive(QStyle::PE_PanelItemViewItem, &voce, pittore, voce.widget);
  const bool scelta = voce.state.testFlag(QStyle::State_Selected);
  pittore->setFont(voce.font);
  pittore->setPen(
      voce.palette.color(Gruppo(voce.state), scelta ? QPalette::HighlightedText : QPalette::Text));
  pittore->drawStaticText(dove.topLeft(), riga);
  if (voce.state.testFlag(QStyle::State_HasFocus)) Dipingi_Fuoco(*pittore, voce, stile);
}

#include "lists/screens/parti.h"

#include <QApplication>
#include <QPushButton>
#include <QScrollBar>

#include "platform/aspetto.h"
#include "platform/testo_qt.h"

namespace {

constexpr int spessore_cornice = 3;  // always there, so that nothing moves with the focus

}  // namespace

ListaVoci::ListaVoci(double punti, QWidget* padre) : QListView(padre) {
  setFont(Carattere_Fisso(punti));
  setUniformItemSizes(true);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTextElideMode(Qt::ElideNone);
  setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
  setLineWidth(spessore_cornice);
  QPalette tavolozza = palette();
  for (const auto ruolo : {QPalette::Highlight, QPalette::HighlightedText})
    tavolozza.setColor(QPalette::Inactive, ruolo, tavolozza.color(QPalette::Active, ruolo));
  setPalette(tavolozza);
  for (QScrollBar* barra : {verticalScrollBar(), horizontalScrollBar()})
    barra->setPalette(QApplication::palette());  // not the frame's colour
  incornicia(false);
}

void ListaVoci::incornicia(bool in_uso) {
  QPalette tavolozza = palette();
  tavolozza.setColor(QPalette::WindowText, in_uso ? tavolozza.color(QPalette::Highlight)
                                                  : Colore_Contorno(QApplication::palette(this)));
  setPalette(tavolozza);
}

void ListaVoci::focusInEvent(QFocusEvent* evento) {
  incornicia(true);
  QListView::focusInEvent(evento);
}

void ListaVoci::focusOutEvent(QFocusEvent* evento) {
  incornicia(false);
  QListView::focusOutEvent(evento);
}

QPushButton* Fa_Bottone(const Bottone& stato) {
  auto* bottone = new QPushButton;
  bottone->setFont(Carattere(punti_normali));
  bottone->setAutoDefault(true);
  const QFontMetrics misure = bottone->fontMetrics();
  bottone->setMinimumHeight(misure.height() * 2);
  bottone->setMinimumWidth(misure.horizontalAdvance(In_QString(stato.testo)) + misure.height() * 3 / 2);
  return bottone;
}

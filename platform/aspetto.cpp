#include "platform/aspetto.h"

#include <QApplication>
#include <QFocusEvent>
#include <QPainter>

void Prepara_Caratteri() {
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

#include "tests/aspetto/regole.h"

#include <map>

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>

namespace {

constexpr QSize schermo_piccolo(1366, 768 - 32);  // 32 for the caption that the desktop draws

QString Chi(const QWidget& widget) {
  return QStringLiteral("%1 (%2)").arg(widget.objectName(), QLatin1String(widget.metaObject()->className()));
}

// In sight, and the keyboard goes there: inner parts of a control aside.
bool Raggiungibile(const QWidget& widget, const QWidget& finestra) {
  return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isVisibleTo(&finestra) &&
         !widget.focusProxy() && !qobject_cast<const QComboBox*>(widget.parentWidget());
}

QRect Posto(const QWidget& widget, const QWidget& finestra) {
  return {widget.mapTo(&finestra, QPoint(0, 0)), widget.size()};
}

const QGroupBox* Gruppo(const QWidget& widget) {
  for (const QWidget* sopra = widget.parentWidget(); sopra; sopra = sopra->parentWidget())
    if (const auto* gruppo = qobject_cast<const QGroupBox*>(sopra)) return gruppo;
  return nullptr;
}

bool Si_Toccano(int da, int a, int altro_da, int altro_a) { return da <= altro_a && altro_da <= a; }

// The same column and wholly above, or the same line and wholly on the left.
bool Torna_Indietro(const QRect& prima, const QRect& dopo) {
  const bool stessa_colonna = Si_Toccano(prima.left(), prima.right(), dopo.left(), dopo.right());
  const bool stessa_riga = Si_Toccano(prima.top(), prima.bottom(), dopo.top(), dopo.bottom());
  return (stessa_colonna && dopo.bottom() < prima.top()) || (stessa_riga && dopo.right() < prima.left());
}

}  // namespace

QStringList Senza_Nome(const QWidget& finestra) {
  QStringList difetti;
  const auto tutti = finestra.findChildren<QWidget*>();
  for (QWidget* widget : tutti) {
    if (!Raggiungibile(*widget, finestra)) continue;
    QAccessibleInterface* voce = QAccessible::queryAccessibleInterface(widget);
    if (!voce || voce->text(QAccessible::Name).trimmed().isEmpty()) difetti << Chi(*widget);
  }
  return difetti;
}

QStringList Fuori_Misura(const QWidget& finestra) {
  QStringList difetti;
  const QSize misura = finestra.size().expandedTo(finestra.minimumSizeHint());
  if (misura.width() > schermo_piccolo.width() || misura.height() > schermo_piccolo.height())
    difetti << QStringLiteral("%1 x %2").arg(misura.width()).arg(misura.height());
  const auto tutti = finestra.findChildren<QWidget*>();
  for (const QWidget* widget : tutti) {
    if (!widget->isVisibleTo(&finestra)) continue;
    const auto* bottone = qobject_cast<const QAbstractButton*>(widget);
    const auto* scritta = qobject_cast<const QLabel*>(widget);
    if (!bottone && (!scritta || scritta->wordWrap() || scritta->text().isEmpty())) continue;
    if (!finestra.rect().contains(Posto(*widget, finestra)))
      difetti << Chi(*widget) + QStringLiteral(" fuori");
    if (widget->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored) continue;
    const QString testo = (bottone ? bottone->text() : scritta->text()).remove(QLatin1Char('&'));
    const int spazio = widget->width() - widget->fontMetrics().size(0, testo).width();
    if (spazio < 0) difetti << Chi(*widget) + QStringLiteral(" tagliato");
    // the words of a caption don't touch the edge of its button; signs like "..." may
    const bool parole = testo.size() > 3 && qobject_cast<const QPushButton*>(bottone);
    if (parole && spazio < 2 * widget->fontMetrics().averageCharWidth())
      difetti << Chi(*widget) + QStringLiteral(" stretto");
  }
  return difetti;
}

QStringList Fuori_Ordine(QWidget& finestra) {
  QStringList difetti;
  const QWidget* prima = nullptr;
  for (QWidget* widget = finestra.nextInFocusChain(); widget && widget != &finestra;
       widget = widget->nextInFocusChain()) {
    if (widget->window() != &finestra || !Raggiungibile(*widget, finestra)) continue;
    if (prima && Gruppo(*prima) == Gruppo(*widget) &&
        Torna_Indietro(Posto(*prima, finestra), Posto(*widget, finestra)))
      difetti << Chi(*prima) + QStringLiteral(" -> ") + Chi(*widget);
    prima = widget;
  }
  return difetti;
}

QStringList Lettere_Doppie(const QWidget& finestra) {
  std::map<QChar, QStringList> lettere;
  const auto conta = [&](const QString& testo) {
    const auto posto = testo.indexOf(QLatin1Char('&'));
    if (posto >= 0 && posto + 1 < testo.size() && testo.at(posto + 1) != QLatin1Char('&'))
      lettere[testo.at(posto + 1).toUpper()] << testo;
  };
  const auto tutti = finestra.findChildren<QWidget*>();
  for (const QWidget* widget : tutti) {
    if (!widget->isVisibleTo(&finestra)) continue;
    if (const auto* bottone = qobject_cast<const QAbstractButton*>(widget)) conta(bottone->text());
    if (const auto* gruppo = qobject_cast<const QGroupBox*>(widget)) conta(gruppo->title());
    if (const auto* scritta = qobject_cast<const QLabel*>(widget); scritta && scritta->buddy())
      conta(scritta->text());
    if (const auto* menu = qobject_cast<const QMenuBar*>(widget))
      for (const QAction* voce : menu->actions())
        if (voce->isVisible()) conta(voce->text());
  }
  QStringList difetti;
  for (const auto& [lettera, testi] : lettere)
    if (testi.size() > 1) difetti << testi.join(QStringLiteral(" | "));
  return difetti;
}

#include "platform/memoria_finestre.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include "platform/testo_qt.h"

namespace {

Posto_Finestra In_Posto(const QRect& area, bool massima = false) {
  return {area.x(), area.y(), area.width(), area.height(), massima};
}

QRect In_QRect(const Posto_Finestra& posto) {
  return {posto.sinistra, posto.alto, posto.larghezza, posto.altezza};
}

Posto_Finestra Adesso(const QWidget& finestra) {
  const bool massima = finestra.isMaximized();
  const QRect normale = massima ? finestra.normalGeometry() : QRect();
  return In_Posto(normale.isValid() ? normale : finestra.geometry(), massima);
}

QRect Schermo_Di(const QRect& area, const QWidget& finestra) {
  const QScreen* schermo = QGuiApplication::screenAt(area.center());
  return (schermo ? schermo : finestra.screen())->availableGeometry();
}

}  // namespace

Memoria_Finestre::Memoria_Finestre(Posti_Finestre& posti, QObject* padre) : QObject(padre), posti_(posti) {
  QCoreApplication::instance()->installEventFilter(this);
}

// A window that comes up or goes sends these events before the screen shows it or loses it. Those of the
// window manager, which hides a window and shows it again, are no comings and goings.
bool Memoria_Finestre::eventFilter(QObject* oggetto, QEvent* evento) {
  const auto tipo = evento->type();
  if ((tipo != QEvent::Show && tipo != QEvent::Hide) || evento->spontaneous()) return false;
  auto* finestra = qobject_cast<QWidget*>(oggetto);
  if (!finestra || !finestra->isWindow() || !finestra->property("ricordata").toBool()) return false;
  if (tipo == QEvent::Show)
    ritrova(*finestra);
  else
    ricorda(*finestra);
  return false;
}

void Memoria_Finestre::ritrova(QWidget& finestra) {
  if (const auto posto = posti_.Posto(Da_QString(finestra.objectName()))) {
    const QRect area = In_QRect(*posto);
    const QRect dentro = In_QRect(Dentro_Lo_Schermo(*posto, In_Posto(Schermo_Di(area, finestra))));
    finestra.setWindowState(finestra.windowState() & ~Qt::WindowMaximized);
    finestra.setGeometry(dentro);
    if (posto->massima) finestra.setWindowState(finestra.windowState() | Qt::WindowMaximized);
  }
  venute_[&finestra] = Adesso(finestra);
  // where the desktop itself places it isn't the operator's doing
  QTimer::singleShot(0, &finestra, [this, &finestra] {
    if (finestra.isVisible() && venute_.contains(&finestra)) venute_[&finestra] = Adesso(finestra);
  });
}

// A place that can't be written isn't worth a word: it holds for today, and the next window tries again.
void Memoria_Finestre::ricorda(const QWidget& finestra) {
  const auto venuta = venute_.constFind(&finestra);
  if (venuta == venute_.constEnd()) return;
  const Posto_Finestra adesso = Adesso(finestra);
  if (adesso != *venuta) static_cast<void>(posti_.Ricorda(Da_QString(finestra.objectName()), adesso));
  venute_.erase(venuta);
}

#include "platform/finestra.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QPointer>
#include <QScreen>

#include "platform/tasti_qt.h"

Finestra::Finestra(const QString& nome, QWidget* padre, Qt::WindowFlags modi)
    : QWidget(padre, modi), legame(this, [this] { mostra(); }) {
  setObjectName(nome);
  setProperty("schermata", true);
  setProperty("ricordata", true);
}

void Finestra::mostra() { legame.mostra(); }

void Finestra::esegui() {
  const QPointer<QWidget> prima = QApplication::activeWindow();
  setWindowModality(Qt::ApplicationModal);
  mostra();
  if (!testAttribute(Qt::WA_Resized)) adjustSize();
  const QRect schermo = screen()->availableGeometry();
  const QRect intorno = parentWidget() ? parentWidget()->window()->geometry() : schermo;
  const QPoint angolo = intorno.center() - rect().center();
  move(qMax(schermo.left(), qMin(angolo.x(), schermo.right() - width())),
       qMax(schermo.top(), qMin(angolo.y(), schermo.bottom() - height())));
  show();
  activateWindow();
  QEventLoop giro;
  connect(this, &Finestra::chiusa, &giro, &QEventLoop::quit);
  connect(this, &QObject::destroyed, &giro, &QEventLoop::quit);
  giro.exec();
  if (prima) prima->activateWindow();  // also where no window manager gives the keyboard back
}

void Finestra::closeEvent(QCloseEvent* evento) {
  QWidget::closeEvent(evento);
  if (evento->isAccepted()) emit chiusa();
}

void FinestraModulo::keyPressEvent(QKeyEvent* evento) {
  const Pressione pressione = Da_QKeyEvent(*evento);
  if (pressione.tasto == Tasto::Invio && pressione.Nudo())
    focusNextChild();
  else if (pressione.tasto == Tasto::Esc && pressione.Nudo())
    close();
  else
    Finestra::keyPressEvent(evento);
}

void Mostra_Finestre() {
  const auto tutti = QApplication::allWidgets();
  for (QWidget* widget : tutti)
    if (auto* finestra = qobject_cast<Finestra*>(widget); finestra && finestra->isVisible())
      finestra->mostra();
}

namespace {

Finestra* Prima_Visibile(QWidget* cima) {
  if (auto* finestra = qobject_cast<Finestra*>(cima)) return finestra;
  const auto dentro = cima->findChildren<Finestra*>();
  for (Finestra* finestra : dentro)
    if (finestra->isVisible()) return finestra;
  return nullptr;
}

}  // namespace

Finestra* Finestra_Attiva() {
  QWidget* cima = QApplication::activeModalWidget();
  if (!cima) cima = QApplication::activeWindow();
  QWidget* fuoco = QApplication::focusWidget();
  for (QWidget* widget = fuoco; widget; widget = widget->parentWidget()) {
    auto* finestra = qobject_cast<Finestra*>(widget);
    if (finestra && finestra->isVisible() && (!cima || finestra->window() == cima)) return finestra;
  }
  if (cima) return Prima_Visibile(cima);
  const auto finestre = QApplication::topLevelWidgets();
  for (QWidget* widget : finestre)
    if (widget->isVisible())
      if (Finestra* finestra = Prima_Visibile(widget)) return finestra;
  return nullptr;
}

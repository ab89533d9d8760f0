#include "platform/finestra.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QEventLoop>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QScreen>

#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"

Finestra::Finestra(const QString& nome, QWidget* padre, Qt::WindowFlags modi)
    : QWidget(padre, modi), legame(this, [this] { mostra(); }) {
  setObjectName(nome);
  setProperty("schermata", true);
  setProperty("ricordata", true);
}

void Finestra::mostra() {
  legame.mostra();
  if (titolo_) setWindowTitle(In_QString(*titolo_));
  if (finita_ && *finita_) chiudi_dopo();  // refused while a routine runs, which shows the state at its end
}

void Finestra::intitola(const Testo& titolo) { titolo_ = &titolo; }

void Finestra::si_chiude(const bool& chiusa, Legame::Evento comando) {
  finita_ = &chiusa;
  comando_chiusura_ = std::move(comando);
}

void Finestra::chiudi_dopo() { QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection); }

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

bool Finestra::puo_chiudersi() {
  if (occupata()) return false;
  if (!finita_ || *finita_ || !comando_chiusura_) return true;
  legame.esegui(comando_chiusura_);
  return *finita_;
}

void Finestra::closeEvent(QCloseEvent* evento) {
  if (!puo_chiudersi()) return evento->ignore();
  QWidget::closeEvent(evento);
  if (evento->isAccepted()) emit chiusa();
}

void Finestra::keyPressEvent(QKeyEvent* evento) {
  if (!tasto(Da_QKeyEvent(*evento))) QWidget::keyPressEvent(evento);
}

bool Finestra::tasto(const Pressione& /*pressione*/) { return false; }

bool FinestraDavanti::tasto(const Pressione& pressione) {
  const bool esc = pressione.tasto == Tasto::Esc && pressione.Nudo();
  if (esc) close();
  return esc;
}

bool FinestraModulo::tasto(const Pressione& pressione) {
  if (pressione.tasto != Tasto::Invio || !pressione.Nudo()) return FinestraDavanti::tasto(pressione);
  focusNextChild();
  return true;
}

QPushButton* Finestra::fa_bottone(const QString& nome, Bottone& stato, Legame::Evento evento) {
  QPushButton* bottone = Bottone_Comodo(nome, In_QString(stato.testo));
  legame.lega(bottone, nome, stato, std::move(evento));
  return bottone;
}

QCheckBox* Finestra::fa_casella(const QString& nome, Spunta& stato, Legame::Evento evento) {
  auto* casella = new QCheckBox;
  casella->setFont(Carattere(punti_normali));
  legame.lega(casella, nome, stato, std::move(evento));
  return casella;
}

QComboBox* Finestra::fa_tendina(const QString& nome, const QString& letta, Elenco& stato,
                                Legame::Evento evento) {
  auto* tendina = new QComboBox;
  tendina->setFont(Carattere(punti_normali));
  tendina->setAccessibleName(letta);
  legame.lega(tendina, nome, stato, std::move(evento));
  return tendina;
}

QLabel* Finestra::fa_scritta(const QString& nome, Scritta& stato) {
  auto* scritta = new QLabel;
  scritta->setFont(Carattere(punti_normali));
  scritta->setTextFormat(Qt::PlainText);
  legame.lega(scritta, nome, stato);
  return scritta;
}

CasellaTesto* Finestra::fa_campo(const QString& nome, CampoTesto& stato, const Scritta& didascalia,
                                 int caratteri) {
  auto* campo = new CasellaTesto;
  campo->setFont(Carattere(punti_normali));
  campo->setAccessibleName(Senza_Scorciatoia(In_QString(didascalia.testo)));
  if (caratteri > 0) campo->setMinimumWidth(campo->fontMetrics().averageCharWidth() * caratteri);
  legame.lega(campo, nome, stato);
  return campo;
}

QLabel* Finestra::fa_titoli(const QString& nome, Scritta& stato, const QListView& sopra) {
  QLabel* titoli = fa_scritta(nome, stato);
  titoli->setFont(sopra.font());
  titoli->setIndent(sopra.frameWidth() + 3);  // of the list's own lines
  return titoli;
}

void Finestra::fa_voce(QWidget* menu, const QString& nome, Bottone& stato, Legame::Evento evento) {
  legame.lega(menu->addAction(In_QString(stato.testo)), nome, stato, std::move(evento));
}

void Finestra::disponi(QMenuBar* menu, QLayout* corpo) {
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(0, 0, 0, 0);
  tutto->setMenuBar(menu);
  tutto->addLayout(corpo, 1);
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

#include "lists/screens/esclusi_finestra.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>

#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"

EsclusiFinestra::EsclusiFinestra(Programma& programma, QWidget* padre)
    : FinestraDavanti(QStringLiteral("Esclusi"), padre, Qt::Window),
      programma_(programma),
      lista_(new ListaVoci(programma.preferenze.DimFontListe)),
      campo_(new CasellaTesto),
      appunti_(new QPlainTextEdit) {
  Prepara_Esclusi(programma_, schermo_);
  intitola(schermo_.titolo);
  setFont(Carattere(punti_normali));
  lega_lista();

  auto* doppio_clic = fa_scritta(QStringLiteral("AiutoDoppioClic"), schermo_.AiutoDoppioClic);
  doppio_clic->setWordWrap(true);
  auto* sinistra = new QVBoxLayout;
  sinistra->addWidget(lista_, 1);
  sinistra->addWidget(doppio_clic);
  auto* destra = new QVBoxLayout;
  destra->setSpacing(12);
  destra->addWidget(fa_manuale());
  destra->addWidget(fa_automatico(), 1);
  auto* affiancate = new QHBoxLayout;
  affiancate->setSpacing(14);
  affiancate->addLayout(sinistra, 1);
  affiancate->addLayout(destra, 1);

  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(14, 14, 14, 14);
  tutto->setSpacing(12);
  tutto->addLayout(affiancate, 1);
  tutto->addLayout(fa_comandi());
  mostra();
}

void EsclusiFinestra::lega_lista() {
  lista_->setAccessibleName(QStringLiteral("Codici esclusi"));
  lista_->installEventFilter(this);
  legame.scelta(lista_, [this] { Reintegra_Escluso(programma_, schermo_); });
  legame.lega(lista_, QStringLiteral("List1"), schermo_.List1);
}

QGroupBox* EsclusiFinestra::fa_manuale() {
  auto* riquadro = Riquadro_Titolato(In_QString(schermo_.AiutoManuale.testo));
  auto* griglia = new QGridLayout(riquadro);
  campo_->setFont(Carattere(punti_grandi));
  campo_->setAccessibleName(QStringLiteral("Codice"));
  legame.invio(campo_, [this] { Aggiungi_Escluso(programma_, schermo_); });
  legame.lega(campo_, QStringLiteral("Text1"), schermo_.Text1);
  griglia->addWidget(campo_, 0, 0, 1, 2);
  griglia->addWidget(fa_bottone(QStringLiteral("Aggiungi"), schermo_.Aggiungi,
                                [this] { Aggiungi_Escluso(programma_, schermo_); }),
                     1, 0);
  griglia->addWidget(fa_bottone(QStringLiteral("Elimina"), schermo_.Elimina,
                                [this] { Elimina_Escluso(programma_, schermo_); }),
                     1, 1);
  return riquadro;
}

QGroupBox* EsclusiFinestra::fa_automatico() {
  auto* riquadro = Riquadro_Titolato(In_QString(schermo_.AiutoAutomatico.testo));
  auto* griglia = new QGridLayout(riquadro);
  appunti_->setObjectName(QStringLiteral("Appunti"));
  appunti_->setAccessibleName(QStringLiteral("Testo incollato"));
  QFont carattere = Carattere_Fisso(punti_normali);
  carattere.setBold(false);  // not the title's weight
  appunti_->setFont(carattere);
  appunti_->setReadOnly(true);
  appunti_->setTabChangesFocus(true);
  griglia->addWidget(appunti_, 0, 0, 1, 2);
  griglia->addWidget(fa_bottone(QStringLiteral("Incolla"), schermo_.Incolla,
                                [this] { Incolla_Esclusi(programma_, schermo_, Incollatura::Pezzo_Intero); }),
                     1, 0);
  griglia->addWidget(fa_bottone(QStringLiteral("Incolla2"), schermo_.Incolla2,
                                [this] { Incolla_Esclusi(programma_, schermo_, Incollatura::Prima_Parola); }),
                     1, 1);
  return riquadro;
}

QBoxLayout* EsclusiFinestra::fa_comandi() {
  auto* riga = new QHBoxLayout;
  riga->addWidget(fa_bottone(QStringLiteral("Salva"), schermo_.Salva,
                             [this] { Salva_Elenco_Esclusi(programma_, schermo_); }));
  riga->addWidget(fa_scritta(QStringLiteral("Esito"), schermo_.Esito), 1);
  riga->addWidget(fa_bottone(QStringLiteral("Chiudi"), schermo_.Chiudi, [this] { chiudi_dopo(); }));
  return riga;
}

void EsclusiFinestra::mostra() {
  Finestra::mostra();
  const QString appunti = In_QString(schermo_.Appunti.testo);
  if (appunti_->toPlainText() != appunti) appunti_->setPlainText(appunti);
}

void EsclusiFinestra::apri() {
  const QRect intorno = parentWidget() ? parentWidget()->window()->geometry() : screen()->availableGeometry();
  const QRect libero = intorno & screen()->availableGeometry();
  resize(qMax(sizeHint().width(), fontMetrics().averageCharWidth() * 80), libero.height() * 7 / 10);
  move(libero.right() - width() - 14, libero.top() + (libero.height() - height()) / 2);
  show();
  activateWindow();
  campo_->setFocus(Qt::OtherFocusReason);
}

void EsclusiFinestra::escludi(const Testo& codice) {
  legame.esegui([&] { Escludi_Codice(programma_, schermo_, codice); });
}

// Delete takes the line of the list away.
bool EsclusiFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::KeyPress) return FinestraDavanti::eventFilter(oggetto, evento);
  const Pressione pressione = Da_QKeyEvent(*static_cast<QKeyEvent*>(evento));
  if (pressione.tasto != Tasto::Canc || !pressione.Nudo())
    return FinestraDavanti::eventFilter(oggetto, evento);
  legame.esegui([this] { Elimina_Escluso(programma_, schermo_); });
  return true;
}

namespace {

EsclusiFinestra* Aperta(const QWidget* padre) {
  if (!padre) return nullptr;
  const auto finestre = padre->findChildren<EsclusiFinestra*>(QString(), Qt::FindDirectChildrenOnly);
  for (EsclusiFinestra* finestra : finestre)
    if (finestra->isVisible()) return finestra;
  return nullptr;
}

EsclusiFinestra* Nuova(Programma& programma, QWidget* padre, const std::function<void()>& chiusa) {
  auto* finestra = new EsclusiFinestra(programma, padre);
  finestra->setAttribute(Qt::WA_DeleteOnClose);
  if (chiusa) QObject::connect(finestra, &Finestra::chiusa, finestra, chiusa);
  finestra->apri();
  return finestra;
}

}  // namespace

EsclusiFinestra* Apri_Esclusi(Programma& programma, QWidget* padre, const std::function<void()>& chiusa) {
  EsclusiFinestra* aperta = Aperta(padre);
  if (!aperta) return Nuova(programma, padre, chiusa);
  aperta->raise();
  aperta->activateWindow();
  return aperta;
}

// Where the list stands open already the keyboard stays in the entry screen.
EsclusiFinestra* Escludi_Questo_Codice(Programma& programma, QWidget* padre, const Testo& codice,
                                       const std::function<void()>& chiusa) {
  EsclusiFinestra* finestra = Aperta(padre);
  if (!finestra) finestra = Nuova(programma, padre, chiusa);
  finestra->escludi(codice);
  return finestra;
}

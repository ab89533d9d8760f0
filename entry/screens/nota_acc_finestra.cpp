#include "entry/screens/nota_acc_finestra.h"

#include <algorithm>
#include <utility>

#include <QBoxLayout>
#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"

NotaAccFinestra::NotaAccFinestra(Programma& programma, Edita& edita, QWidget* padre)
    : Finestra(QStringLiteral("NotaAcc"), padre, Qt::Window), programma_(programma), edita_(edita) {
  Apri_NotaAcc(programma_, edita_, nota_);
  setWindowTitle(In_QString(nota_.titolo));
  setFont(Carattere(punti_normali));

  auto* griglia = new QGridLayout;
  griglia->setHorizontalSpacing(14);
  griglia->setVerticalSpacing(10);
  for (std::size_t i = 0; i < campi_.size(); ++i) {
    const int riga = static_cast<int>(i);
    auto* didascalia = new QLabel;
    didascalia->setFont(Carattere(punti_normali));
    legame.lega(didascalia, QStringLiteral("Caption(%1)").arg(riga), nota_.Caption[i]);
    campi_[i] = new CasellaTesto;
    campi_[i]->setFont(Carattere(punti_grandi, true));
    campi_[i]->setMinimumWidth(campi_[i]->fontMetrics().averageCharWidth() * 14);
    campi_[i]->setAccessibleName(In_QString(nota_.Caption[i].testo));
    didascalia->setBuddy(campi_[i]);
    legame.lega(campi_[i], QStringLiteral("Text1(%1)").arg(riga), nota_.Text1[i]);
    campi_[i]->installEventFilter(this);
    griglia->addWidget(didascalia, riga, 0);
    griglia->addWidget(campi_[i], riga, 1);
  }
  auto* giorni = new QHBoxLayout;
  giorni->addWidget(
      fa_bottone(QStringLiteral("Command11"), nota_.Command11, [this] { PassoNotaAcc(nota_, false); }));
  giorni->addWidget(
      fa_bottone(QStringLiteral("Command12"), nota_.Command12, [this] { PassoNotaAcc(nota_, true); }));
  griglia->addLayout(giorni, 2, 2);
  auto* aiuto = new QLabel;
  aiuto->setFont(Carattere(punti_normali));
  legame.lega(aiuto, QStringLiteral("Label1"), nota_.Label1);
  griglia->addWidget(aiuto, 0, 2, 2, 1);

  auto* bottoni = new QHBoxLayout;
  bottoni->addStretch();
  conferma_ = fa_bottone(QStringLiteral("Command2"), nota_.Command2,
                         [this] { Conferma_NotaAcc(programma_, edita_, nota_); });
  bottoni->addWidget(conferma_);
  bottoni->addWidget(fa_bottone(QStringLiteral("Annulla"), nota_.Annulla, [this] { annulla(); }));
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(18, 14, 18, 14);
  tutto->setSpacing(16);
  tutto->addLayout(griglia);
  tutto->addLayout(bottoni);
  mostra();
}

QPushButton* NotaAccFinestra::fa_bottone(const QString& nome, Bottone& stato, Legame::Evento evento) {
  QPushButton* bottone = Fa_Bottone(stato);
  legame.lega(bottone, nome, stato, std::move(evento));
  return bottone;
}

int NotaAccFinestra::indice_di(const QObject* oggetto) const {
  const auto dove = std::ranges::find(campi_, oggetto);
  return dove == campi_.end() ? -1 : static_cast<int>(dove - campi_.begin());
}

bool NotaAccFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  const int indice = indice_di(oggetto);
  if (indice >= 0 && evento->type() == QEvent::KeyPress)
    return tasto(indice, static_cast<QKeyEvent&>(*evento));
  if (indice >= 0 && evento->type() == QEvent::FocusIn && !legame.in_mostra())
    legame.esegui([&] { FuocoNotaAcc(programma_, nota_, indice); });
  return Finestra::eventFilter(oggetto, evento);
}

// A typed character goes in as the field takes it: itself, another in its place, or not at all.
bool NotaAccFinestra::tasto(int indice, QKeyEvent& evento) {
  const Pressione pressione = Da_QKeyEvent(evento);
  if (pressione.tasto == Tasto::Invio && pressione.Nudo()) {
    legame.esegui([&] { InvioNotaAcc(nota_, indice); });
    return true;
  }
  const QString testo = evento.text();
  if (testo.size() != 1 || !testo[0].isPrint() || evento.modifiers().testFlag(Qt::ControlModifier))
    return false;
  CasellaTesto* campo = campi_[static_cast<std::size_t>(indice)];
  QString resta = campo->text();
  if (campo->hasSelectedText()) resta.remove(campo->selectionStart(), campo->selectedText().size());
  char dopo = 0;
  legame.esegui(
      [&] { dopo = FiltraNotaAcc(programma_, nota_, indice, Da_QString(resta), Da_QString(testo)[0]); });
  if (dopo != 0) campo->insert(In_QString(Vista(&dopo, 1)));
  return true;
}

void NotaAccFinestra::keyPressEvent(QKeyEvent* evento) {
  const Pressione pressione = Da_QKeyEvent(*evento);
  if (pressione.tasto == Tasto::Esc && pressione.Nudo())
    legame.esegui([this] { annulla(); });
  else
    Finestra::keyPressEvent(evento);
}

void NotaAccFinestra::annulla() { Annulla_NotaAcc(programma_, edita_, nota_); }

void NotaAccFinestra::mostra() {
  Finestra::mostra();
  if (legame.in_evento()) return;
  const int dove = std::exchange(nota_.fuoco, NotaAcc::nessun_fuoco);
  if (dove == NotaAcc::fuoco_conferma) conferma_->setFocus(Qt::OtherFocusReason);
  if (dove >= 0 && dove < NotaAcc::fuoco_conferma) {
    CasellaTesto* campo = campi_[static_cast<std::size_t>(dove)];
    campo->setFocus(Qt::OtherFocusReason);
    Seleziona_Tutto(campo);
  }
  if (!nota_.chiusa || in_chiusura_) return;
  in_chiusura_ = true;
  QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

void NotaAccFinestra::closeEvent(QCloseEvent* evento) {
  if (!nota_.chiusa) {
    in_chiusura_ = true;
    legame.esegui([this] { annulla(); });
  }
  Finestra::closeEvent(evento);
}

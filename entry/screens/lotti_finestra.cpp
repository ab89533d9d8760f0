#include "entry/screens/lotti_finestra.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QPushButton>

#include "entry/screens/davanti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"

LottiFinestra::LottiFinestra(Programma& programma, Edita& edita, Lotti_Predefiniti& lotti, QWidget* padre)
    : Finestra(QStringLiteral("Lotti_predefiniti"), padre, Qt::Window),
      programma_(programma),
      edita_(edita),
      lotti_(lotti),
      lotto_(new CasellaTesto),
      lista_(new QListView) {
  Apri_LottiPredefiniti(programma_, lotti_);
  setWindowTitle(In_QString(lotti_.titolo));

  auto* etichetta = new QLabel(QStringLiteral("&Lotto"));
  etichetta->setFont(Carattere(punti_normali));
  etichetta->setBuddy(lotto_);
  lotto_->setFont(Carattere(punti_grandi, true));
  lotto_->setAccessibleName(QStringLiteral("Lotto"));
  legame.lega(lotto_, QStringLiteral("Text1"), lotti_.Text1);
  lotto_->installEventFilter(this);

  lista_->setFont(Carattere_Fisso(programma_.preferenze.DimFontListe));
  lista_->setUniformItemSizes(true);
  lista_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lista_->setAccessibleName(QStringLiteral("Lotti predefiniti"));
  legame.lega(lista_, QStringLiteral("List1"), lotti_.List1);
  lista_->installEventFilter(this);
  connect(lista_, &QListView::clicked, this, [this] { scegli(); });

  auto* bottoni = new QVBoxLayout;
  bottoni->setSpacing(8);
  bottoni->addWidget(fa_bottone(QStringLiteral("Aggiungi"), lotti_.Aggiungi, [this] { aggiungi(); }));
  bottoni->addWidget(
      fa_bottone(QStringLiteral("Carica"), lotti_.Carica, [this] { CaricaLotti(programma_, lotti_); }));
  bottoni->addWidget(
      fa_bottone(QStringLiteral("Salva"), lotti_.Salva, [this] { SalvaLotti(programma_, lotti_); }));
  bottoni->addWidget(
      fa_bottone(QStringLiteral("Svuota"), lotti_.Svuota, [this] { SvuotaLotti(programma_, lotti_); }));
  bottoni->addWidget(
      fa_bottone(QStringLiteral("Elimina"), lotti_.Elimina, [this] { EliminaLotto(programma_, lotti_); }));
  bottoni->addStretch(1);
  auto* chiudi = fa_bottone(QStringLiteral("Chiudi"), lotti_.Chiudi, {});
  connect(chiudi, &QPushButton::clicked, this, &QWidget::close);
  bottoni->addWidget(chiudi);

  auto* colonna = new QVBoxLayout;
  colonna->setSpacing(6);
  colonna->addWidget(etichetta);
  colonna->addWidget(lotto_);
  colonna->addWidget(lista_, 1);
  auto* tutto = new QHBoxLayout(this);
  tutto->setContentsMargins(18, 14, 18, 14);
  tutto->setSpacing(18);
  tutto->addLayout(colonna, 1);
  tutto->addLayout(bottoni);

  const QFontMetrics misure = lista_->fontMetrics();
  resize(misure.averageCharWidth() * 60, misure.lineSpacing() * 20);
  mostra();
  if (lotti_.lotti.empty())
    lotto_->setFocus();
  else
    lista_->setFocus();
}

QPushButton* LottiFinestra::fa_bottone(const QString& nome, Bottone& stato, Legame::Evento evento) {
  auto* bottone = new QPushButton;
  bottone->setFont(Carattere(punti_normali));
  bottone->setAutoDefault(true);  // Enter presses it
  bottone->setMinimumSize(bottone->fontMetrics().averageCharWidth() * 20,
                          bottone->fontMetrics().height() * 2);
  legame.lega(bottone, nome, stato, std::move(evento));
  return bottone;
}

void LottiFinestra::aggiungi() {
  AggiungiLotto(lotti_);
  lotto_->setFocus();
  lotto_->selectAll();  // the next lot is typed over it
}

void LottiFinestra::scegli() {
  legame.esegui([this] { ScegliLotto(edita_, lotti_); });
  if (lotti_.chiusa) close();
}

bool LottiFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == lotto_ && evento->type() == QEvent::MouseButtonDblClick) {
    legame.esegui([this] { LottoDiOggi(programma_, lotti_); });
    return true;
  }
  if (evento->type() != QEvent::KeyPress) return Finestra::eventFilter(oggetto, evento);
  const Pressione pressione = Da_QKeyEvent(*static_cast<QKeyEvent*>(evento));
  if (!pressione.Nudo()) return Finestra::eventFilter(oggetto, evento);
  if (pressione.tasto == Tasto::Invio) {
    if (oggetto == lista_)
      scegli();
    else
      legame.esegui([this] { aggiungi(); });
    return true;
  }
  if (oggetto == lista_ && pressione.tasto == Tasto::Canc) {
    legame.esegui([this] { EliminaLotto(programma_, lotti_); });
    return true;
  }
  if (oggetto == lotto_ && pressione.tasto == Tasto::Giu) {
    lista_->setFocus(Qt::OtherFocusReason);
    return true;
  }
  return Finestra::eventFilter(oggetto, evento);
}

void LottiFinestra::keyPressEvent(QKeyEvent* evento) {
  const Pressione pressione = Da_QKeyEvent(*evento);
  if (pressione.tasto == Tasto::Esc && pressione.Nudo())
    close();
  else
    Finestra::keyPressEvent(evento);
}

void LottiFinestra::closeEvent(QCloseEvent* evento) {
  if (occupata()) return evento->ignore();  // a question of this window waits for its answer
  Finestra::closeEvent(evento);
}

void Apri_Lotti(Programma& programma, Edita& edita, Lotti_Predefiniti& lotti, Finestra* padre) {
  Apri_Davanti(new LottiFinestra(programma, edita, lotti, padre), padre);
}

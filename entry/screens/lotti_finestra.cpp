#include "entry/screens/lotti_finestra.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QPushButton>

#include "entry/screens/davanti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"

LottiFinestra::LottiFinestra(Programma& programma, Edita& edita, Lotti_Predefiniti& lotti, QWidget* padre)
    : FinestraDavanti(QStringLiteral("Lotti_predefiniti"), padre, Qt::Window),
      programma_(programma),
      edita_(edita),
      lotti_(lotti),
      lotto_(new CasellaTesto),
      lista_(new QListView) {
  Apri_LottiPredefiniti(programma_, lotti_);
  intitola(lotti_.titolo);
  si_chiude(lotti_.chiusa);

  auto* etichetta = new QLabel(QStringLiteral("&Lotto"));
  etichetta->setFont(Carattere(punti_normali));
  etichetta->setBuddy(lotto_);
  lotto_->setFont(Carattere(punti_grandi, true));
  lotto_->setAccessibleName(QStringLiteral("Lotto"));
  legame.lega(lotto_, QStringLiteral("Text1"), lotti_.Text1);
  legame.invio(lotto_, [this] { aggiungi(); });
  lotto_->installEventFilter(this);

  lista_->setFont(Carattere_Fisso(programma_.preferenze.DimFontListe));
  lista_->setUniformItemSizes(true);
  lista_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lista_->setAccessibleName(QStringLiteral("Lotti predefiniti"));
  legame.lega(lista_, QStringLiteral("List1"), lotti_.List1);
  const auto scegli = [this] { ScegliLotto(edita_, lotti_); };
  legame.invio(lista_, scegli);
  lista_->installEventFilter(this);
  connect(lista_, &QListView::clicked, this, [this, scegli] { legame.esegui(scegli); });

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
  bottoni->addWidget(fa_bottone(QStringLiteral("Chiudi"), lotti_.Chiudi, [this] { chiudi_dopo(); }));

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

void LottiFinestra::aggiungi() {
  AggiungiLotto(lotti_);
  lotto_->setFocus();
  lotto_->selectAll();  // the next lot is typed over it
}

bool LottiFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == lotto_ && evento->type() == QEvent::MouseButtonDblClick) {
    legame.esegui([this] { LottoDiOggi(programma_, lotti_); });
    return true;
  }
  if (evento->type() != QEvent::KeyPress) return Finestra::eventFilter(oggetto, evento);
  const Pressione pressione = Da_QKeyEvent(*static_cast<QKeyEvent*>(evento));
  if (!pressione.Nudo()) return Finestra::eventFilter(oggetto, evento);
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

void Apri_Lotti(Programma& programma, Edita& edita, Lotti_Predefiniti& lotti, Finestra* padre) {
  Apri_Davanti(new LottiFinestra(programma, edita, lotti, padre), padre);
}

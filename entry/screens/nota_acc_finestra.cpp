#include "entry/screens/nota_acc_finestra.h"

#include <algorithm>
#include <utility>

#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include "platform/aspetto.h"
#include "platform/tasti_qt.h"

NotaAccFinestra::NotaAccFinestra(Programma& programma, Edita& edita, QWidget* padre)
    : FinestraDavanti(QStringLiteral("NotaAcc"), padre, Qt::Window), programma_(programma), edita_(edita) {
  Apri_NotaAcc(programma_, edita_, nota_);
  const auto annulla = [this] { Annulla_NotaAcc(programma_, edita_, nota_); };
  intitola(nota_.titolo);
  si_chiude(nota_.chiusa, annulla);
  setFont(Carattere(punti_normali));

  auto* griglia = new QGridLayout;
  griglia->setHorizontalSpacing(14);
  griglia->setVerticalSpacing(10);
  for (std::size_t i = 0; i < campi_.size(); ++i) {
    const int riga = static_cast<int>(i);
    auto* didascalia = fa_scritta(QStringLiteral("Caption(%1)").arg(riga), nota_.Caption[i]);
    campi_[i] = fa_campo(QStringLiteral("Text1(%1)").arg(riga), nota_.Text1[i], nota_.Caption[i]);
    campi_[i]->setFont(Carattere(punti_grandi, true));
    campi_[i]->setMinimumWidth(campi_[i]->fontMetrics().averageCharWidth() * 14);
    didascalia->setBuddy(campi_[i]);
    legame.invio(campi_[i], [this, riga] { InvioNotaAcc(nota_, riga); });
    campi_[i]->installEventFilter(this);
    griglia->addWidget(didascalia, riga, 0);
    griglia->addWidget(campi_[i], riga, 1);
  }
  auto* giorni = new QHBoxLayout;
  giorni->setSpacing(8);
  giorni->addWidget(
      fa_bottone(QStringLiteral("Command11"), nota_.Command11, [this] { PassoNotaAcc(nota_, false); }));
  giorni->addWidget(
      fa_bottone(QStringLiteral("Command12"), nota_.Command12, [this] { PassoNotaAcc(nota_, true); }));
  griglia->addLayout(giorni, 2, 2);
  griglia->addWidget(fa_scritta(QStringLiteral("Label1"), nota_.Label1), 0, 2, 2, 1);

  auto* bottoni = new QHBoxLayout;
  bottoni->addStretch();
  conferma_ = fa_bottone(QStringLiteral("Command2"), nota_.Command2,
                         [this] { Conferma_NotaAcc(programma_, edita_, nota_); });
  bottoni->addWidget(conferma_);
  bottoni->addWidget(fa_bottone(QStringLiteral("Annulla"), nota_.Annulla, annulla));
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(18, 14, 18, 14);
  tutto->setSpacing(16);
  tutto->addLayout(griglia);
  tutto->addLayout(bottoni);
  mostra();
}

int NotaAccFinestra::indice_di(const QObject* oggetto) const {
  const auto dove = std::ranges::find(campi_, oggetto);
  return dove == campi_.end() ? -1 : static_cast<int>(dove - campi_.begin());
}

bool NotaAccFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  const int indice = indice_di(oggetto);
  if (indice >= 0 && evento->type() == QEvent::KeyPress)
    return tasto_campo(indice, static_cast<QKeyEvent&>(*evento));
  if (indice >= 0 && evento->type() == QEvent::FocusIn && !legame.in_mostra())
    legame.esegui([&] { FuocoNotaAcc(programma_, nota_, indice); });
  return Finestra::eventFilter(oggetto, evento);
}

bool NotaAccFinestra::tasto_campo(int indice, const QKeyEvent& evento) {
  return Batti_Carattere(
      *campi_[static_cast<std::size_t>(indice)], evento, [this, indice](char battuto, const Testo& resta) {
        char dopo = 0;
        legame.esegui([&] { dopo = FiltraNotaAcc(programma_, nota_, indice, resta, battuto); });
        return dopo != 0 ? std::optional(dopo) : std::nullopt;
      });
}

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
}

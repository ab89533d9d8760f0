#include "printing/screens/stampante_finestra.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>

#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"

StampanteFinestra::StampanteFinestra(Programma& programma, QWidget* padre)
    : Finestra(QStringLiteral("Stampante"), padre, Qt::Window), programma_(programma), lista_(new QListView) {
  Apri_Stampante(programma_, schermo_);
  setWindowTitle(In_QString(schermo_.titolo));
  setFont(Carattere(punti_normali));

  auto* corrente = new QLabel;
  corrente->setFont(Carattere(punti_grandi, true));
  corrente->setTextFormat(Qt::PlainText);
  corrente->setWordWrap(true);
  legame.lega(corrente, QStringLiteral("Corrente"), schermo_.Corrente);

  lista_->setFont(Carattere(punti_grandi));
  lista_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lista_->setAccessibleName(QStringLiteral("Stampanti"));
  lista_->setMinimumHeight(lista_->fontMetrics().lineSpacing() * 6);
  lista_->installEventFilter(this);
  legame.lega(lista_, QStringLiteral("Stampanti"), schermo_.Stampanti);
  connect(lista_, &QListView::doubleClicked, this, [this] { legame.esegui([this] { applica(); }); });

  auto* apri = new QCheckBox;
  legame.lega(apri, QStringLiteral("ApriPDF"), schermo_.ApriPDF);
  auto* stampe = new QLabel;
  stampe->setTextFormat(Qt::PlainText);
  stampe->setWordWrap(true);
  stampe->setTextInteractionFlags(Qt::TextSelectableByMouse);
  legame.lega(stampe, QStringLiteral("Stampe"), schermo_.Stampe);

  auto* destra = new QVBoxLayout;
  destra->setSpacing(12);
  destra->addWidget(fa_orientamento());
  destra->addWidget(apri);
  destra->addWidget(stampe);
  destra->addStretch();
  auto* affiancate = new QHBoxLayout;
  affiancate->setSpacing(14);
  affiancate->addWidget(lista_, 1);
  affiancate->addLayout(destra, 1);

  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(18, 14, 18, 14);
  tutto->setSpacing(14);
  tutto->addWidget(corrente);
  tutto->addLayout(affiancate, 1);
  tutto->addLayout(fa_comandi());
  mostra();
  lista_->setFocus(Qt::OtherFocusReason);
}

QGroupBox* StampanteFinestra::fa_orientamento() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Foglio"));
  auto* colonna = new QVBoxLayout(riquadro);
  struct Voce {
    const char* nome;
    Spunta& stato;
    bool orizzontale;
  };
  const Voce voci[] = {{"Verticale", schermo_.Verticale, false}, {"Orizzontale", schermo_.Orizzontale, true}};
  for (const auto& [nome, stato, orizzontale] : voci) {
    auto* scelta = new QRadioButton;
    scelta->setFont(font());
    const Spunta* segno = &stato;
    legame.lega(scelta, QString::fromUtf8(nome), stato, [this, segno, sdraiato = orizzontale] {
      if (segno->segnata) Scegli_Orientamento(schermo_, sdraiato);
    });
    colonna->addWidget(scelta);
  }
  return riquadro;
}

QPushButton* StampanteFinestra::fa_bottone(const QString& nome, Bottone& stato, Legame::Evento evento) {
  auto* bottone = new QPushButton;
  bottone->setFont(Carattere(punti_normali));
  bottone->setAutoDefault(true);
  bottone->setMinimumHeight(bottone->fontMetrics().height() * 2);
  legame.lega(bottone, nome, stato, std::move(evento));
  return bottone;
}

QBoxLayout* StampanteFinestra::fa_comandi() {
  auto* riga = new QHBoxLayout;
  riga->addWidget(fa_bottone(QStringLiteral("ApriUltimo"), schermo_.ApriUltimo,
                             [this] { Mostra_Ultimo_PDF(programma_, schermo_); }));
  riga->addStretch();
  riga->addWidget(fa_bottone(QStringLiteral("Applica"), schermo_.Applica, [this] { applica(); }));
  riga->addWidget(fa_bottone(QStringLiteral("Chiudi"), schermo_.Chiudi, [this] { close(); }));
  return riga;
}

void StampanteFinestra::applica() { Applica_Stampante(programma_, schermo_); }

bool StampanteFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto != lista_ || evento->type() != QEvent::KeyPress) return Finestra::eventFilter(oggetto, evento);
  const Pressione pressione = Da_QKeyEvent(*static_cast<QKeyEvent*>(evento));
  if (pressione.tasto != Tasto::Invio || !pressione.Nudo()) return Finestra::eventFilter(oggetto, evento);
  legame.esegui([this] { applica(); });
  return true;
}

void StampanteFinestra::keyPressEvent(QKeyEvent* evento) {
  const Pressione pressione = Da_QKeyEvent(*evento);
  if (pressione.tasto == Tasto::Esc && pressione.Nudo())
    close();
  else
    Finestra::keyPressEvent(evento);
}

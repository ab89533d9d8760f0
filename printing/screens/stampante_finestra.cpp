#include "printing/screens/stampante_finestra.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>

#include "platform/aspetto.h"

StampanteFinestra::StampanteFinestra(Programma& programma, QWidget* padre)
    : FinestraDavanti(QStringLiteral("Stampante"), padre, Qt::Window), programma_(programma) {
  Apri_Stampante(programma_, schermo_);
  intitola(schermo_.titolo);
  setFont(Carattere(punti_normali));

  auto* corrente = fa_scritta(QStringLiteral("Corrente"), schermo_.Corrente);
  corrente->setFont(Carattere(punti_grandi, true));
  corrente->setWordWrap(true);

  auto* lista = new QListView;
  lista->setFont(Carattere(punti_grandi));
  lista->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lista->setAccessibleName(QStringLiteral("Stampanti"));
  lista->setMinimumHeight(lista->fontMetrics().lineSpacing() * 6);
  legame.scelta(lista, [this] { Applica_Stampante(programma_, schermo_); });
  legame.lega(lista, QStringLiteral("Stampanti"), schermo_.Stampanti);

  auto* stampe = fa_scritta(QStringLiteral("Stampe"), schermo_.Stampe);
  stampe->setWordWrap(true);
  stampe->setTextInteractionFlags(Qt::TextSelectableByMouse);

  auto* destra = new QVBoxLayout;
  destra->setSpacing(12);
  destra->addWidget(fa_orientamento());
  destra->addWidget(fa_casella(QStringLiteral("ApriPDF"), schermo_.ApriPDF));
  destra->addWidget(stampe);
  destra->addStretch();
  auto* affiancate = new QHBoxLayout;
  affiancate->setSpacing(14);
  affiancate->addWidget(lista, 1);
  affiancate->addLayout(destra, 1);

  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(18, 14, 18, 14);
  tutto->setSpacing(14);
  tutto->addWidget(corrente);
  tutto->addLayout(affiancate, 1);
  tutto->addLayout(fa_comandi());
  mostra();
  lista->setFocus(Qt::OtherFocusReason);
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

QBoxLayout* StampanteFinestra::fa_comandi() {
  auto* riga = new QHBoxLayout;
  riga->addWidget(fa_bottone(QStringLiteral("ApriUltimo"), schermo_.ApriUltimo,
                             [this] { Mostra_Ultimo_PDF(programma_, schermo_); }));
  riga->addStretch();
  riga->addWidget(fa_bottone(QStringLiteral("Applica"), schermo_.Applica,
                             [this] { Applica_Stampante(programma_, schermo_); }));
  riga->addWidget(fa_bottone(QStringLiteral("Chiudi"), schermo_.Chiudi, [this] { chiudi_dopo(); }));
  return riga;
}

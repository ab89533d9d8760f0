#include "documents/screens/dimddt_finestra.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "platform/aspetto.h"
#include "platform/testo_qt.h"

DimDDTFinestra::DimDDTFinestra(Programma& programma, QWidget* padre)
    : FinestraModulo(QStringLiteral("DimDDT"), padre, Qt::Window),
      programma_(programma),
      schizzo_(new SchizzoDDT(this)) {
  Apri_DimDDT(programma_, schermo_);
  intitola(schermo_.titolo);
  si_chiude(schermo_.chiusa, [this] { Chiudi_DimDDT(schermo_); });
  setFont(Carattere(punti_normali));

  const Gruppo_Campi misure[] = {
      {"&Foglio",
       {"DocSani_LarghezzaPagina", "DocSani_AltezzaPagina"},
       {"ModuloContinuo", "FoglioA4"},
       false},
      {"&Margini",
       {"DocSani_Offset_Logo", "DocSani_Aggiustamento", "DocSani_AltezzaDest", "DocSani_dadestra"},
       {"PredefinitoMargini"},
       false},
      {"&Bollo", {"StringaCEE", "ellisse_centrox", "ellisse_centroy"}, {"PredefinitoEllisse"}, false}};
  const Gruppo_Campi testi[] = {
      {"&Intestazione",
       {"DS_intesta1", "DS_intesta2", "DS_intesta3", "DS_intesta4", "DS_intesta5", "DS_intesta6"},
       {"PredefinitoIntestazione"},
       true},
      {"&Titolo", {"TitoloBolla"}, {"PredefinitoTitolo"}, true},
      {"&Piede",
       {"PiedePaginaBolla1", "PiedePaginaBolla2"},
       {"PredefinitoPiede"},
       true,
       &schermo_.FlagPiedePagina}};
  auto* sinistra = new QVBoxLayout;
  for (const Gruppo_Campi& gruppo : misure) sinistra->addWidget(fa_gruppo(gruppo));
  sinistra->addStretch();
  auto* destra = new QVBoxLayout;
  for (const Gruppo_Campi& gruppo : testi) destra->addWidget(fa_gruppo(gruppo));
  destra->addStretch();
  auto* affiancate = new QHBoxLayout;
  affiancate->setSpacing(14);
  affiancate->addLayout(sinistra);
  affiancate->addWidget(schizzo_, 1);
  affiancate->addLayout(destra, 1);

  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(18, 14, 18, 14);
  tutto->setSpacing(12);
  tutto->addLayout(affiancate, 1);
  tutto->addLayout(fa_comandi());
  mostra();
}

QGroupBox* DimDDTFinestra::fa_gruppo(const Gruppo_Campi& gruppo) {
  auto* riquadro = Riquadro_Titolato(QString::fromUtf8(gruppo.titolo));
  auto* griglia = new QGridLayout(riquadro);
  griglia->setVerticalSpacing(5);
  for (const Vista chiave : gruppo.campi) fa_campo(griglia, chiave, gruppo.testi);
  auto* sotto = new QHBoxLayout;
  if (gruppo.spunta) sotto->addWidget(fa_casella(QStringLiteral("FlagPiedePagina"), *gruppo.spunta));
  sotto->addStretch();
  auto* bottoni = new QVBoxLayout;  // all as wide as the widest
  bottoni->setSpacing(5);
  for (const Vista nome : gruppo.predefiniti)
    bottoni->addWidget(fa_bottone(In_QString(nome), schermo_.predefiniti.find(nome)->second,
                                  [this, nome] { Riempi_DimDDT(programma_, schermo_, nome); }));
  sotto->addLayout(bottoni);
  griglia->addLayout(sotto, griglia->rowCount(), 0, 1, 2);
  return riquadro;
}

void DimDDTFinestra::fa_campo(QGridLayout* griglia, Vista chiave, bool testo) {
  const QString nome = In_QString(chiave);
  auto* campo = new CasellaTesto;
  campo->setFont(Carattere(punti_normali));
  legame.lega(campo, nome, schermo_.campi.find(chiave)->second, [this] { Tocca_DimDDT(schermo_); });
  const int riga = griglia->rowCount();
  Scritta& didascalia = schermo_.didascalie.find(chiave)->second;
  campo->setAccessibleName(didascalia.testo.empty() ? nome : In_QString(didascalia.testo));
  if (!didascalia.testo.empty()) {
    auto* scritta = fa_scritta(QStringLiteral("Caption_") + nome, didascalia);
    scritta->setBuddy(campo);
    griglia->addWidget(scritta, riga, 0, 1, testo ? 2 : 1);
  }
  const int larghezza = campo->fontMetrics().averageCharWidth();
  if (testo) {
    campo->setMinimumWidth(larghezza * 58);
    griglia->addWidget(campo, riga + 1, 0, 1, 2);
  } else {
    campo->setFixedWidth(larghezza * 12);
    griglia->addWidget(campo, riga, 1);
  }
}

QBoxLayout* DimDDTFinestra::fa_comandi() {
  auto* riga = new QHBoxLayout;
  riga->addStretch();
  riga->addWidget(fa_bottone(QStringLiteral("Conferma"), schermo_.Conferma,
                             [this] { Conferma_DimDDT(programma_, schermo_); }));
  riga->addWidget(fa_bottone(QStringLiteral("Chiudi"), schermo_.Chiudi, [this] { Chiudi_DimDDT(schermo_); }));
  return riga;
}

void DimDDTFinestra::mostra() {
  Finestra::mostra();
  schizzo_->mostra(Schizzo(programma_, schermo_));
}

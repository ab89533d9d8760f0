#include "lists/screens/ufficiali_finestra.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QScreen>

#include "lists/screens/parti.h"
#include "platform/aspetto.h"

UfficialiFinestra::UfficialiFinestra(Programma& programma, SchermoAnagrafica& specie, Finestra* modulo)
    : FinestraDavanti(QStringLiteral("ModDescrLista"), modulo, Qt::Window),
      programma_(programma),
      specie_(specie),
      modulo_(modulo),
      lista_(new ListaVoci(programma.preferenze.DimFontListe)) {
  Apri_Ufficiali(programma_, schermo_);
  setWindowModality(Qt::WindowModal);
  intitola(schermo_.titolo);
  setFont(Carattere(punti_normali));

  lista_->setAccessibleName(QStringLiteral("Descrizioni ufficiali"));
  legame.scelta(lista_, [this] { copia(); });
  legame.lega(lista_, QStringLiteral("List1"), schermo_.List1);

  auto* riga = new QHBoxLayout;
  riga->addWidget(fa_bottone(QStringLiteral("Cerca_Alfa"), schermo_.Cerca_Alfa,
                             [this] { Cerca_Ufficiale(programma_, schermo_, true); }));
  riga->addWidget(fa_bottone(QStringLiteral("Cerca_Latino"), schermo_.Cerca_Latino,
                             [this] { Cerca_Ufficiale(programma_, schermo_, false); }));
  riga->addStretch(1);
  riga->addWidget(fa_bottone(QStringLiteral("Copia"), schermo_.Copia, [this] { copia(); }));
  riga->addWidget(fa_bottone(QStringLiteral("Chiudi"), schermo_.Chiudi, [this] { chiudi_dopo(); }));

  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(14, 14, 14, 14);
  tutto->setSpacing(10);
  tutto->addWidget(lista_, 1);
  tutto->addLayout(riga);
  mostra();
}

void UfficialiFinestra::apri() {
  const QRect schermo = screen()->availableGeometry();
  const int larghezza = lista_->fontMetrics().horizontalAdvance(u'0') * 92;
  resize(qMin(larghezza, schermo.width() * 9 / 10), schermo.height() * 4 / 5);
  move(schermo.center() - rect().center());
  show();
  activateWindow();
  lista_->setFocus(Qt::OtherFocusReason);
}

void UfficialiFinestra::copia() {
  if (!Copia_Ufficiale(programma_, schermo_, specie_)) return;
  modulo_->mostra();
  chiudi_dopo();
}

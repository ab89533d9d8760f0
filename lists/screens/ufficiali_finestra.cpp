#include "lists/screens/ufficiali_finestra.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>

#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"

UfficialiFinestra::UfficialiFinestra(Programma& programma, SchermoAnagrafica& specie, Finestra* modulo)
    : Finestra(QStringLiteral("ModDescrLista"), modulo, Qt::Window),
      programma_(programma),
      specie_(specie),
      modulo_(modulo),
      lista_(new ListaVoci(programma.preferenze.DimFontListe)) {
  Apri_Ufficiali(programma_, schermo_);
  setWindowModality(Qt::WindowModal);
  setWindowTitle(In_QString(schermo_.titolo));
  setFont(Carattere(punti_normali));

  lista_->setAccessibleName(QStringLiteral("Descrizioni ufficiali"));
  lista_->installEventFilter(this);
  legame.lega(lista_, QStringLiteral("List1"), schermo_.List1);
  connect(lista_, &QListView::doubleClicked, this, [this] { copia(); });

  auto* riga = new QHBoxLayout;
  fa_bottone(riga, QStringLiteral("Cerca_Alfa"), schermo_.Cerca_Alfa,
             [this] { Cerca_Ufficiale(programma_, schermo_, true); });
  fa_bottone(riga, QStringLiteral("Cerca_Latino"), schermo_.Cerca_Latino,
             [this] { Cerca_Ufficiale(programma_, schermo_, false); });
  riga->addStretch(1);
  fa_bottone(riga, QStringLiteral("Copia"), schermo_.Copia, [this] { copia(); });
  fa_bottone(riga, QStringLiteral("Chiudi"), schermo_.Chiudi, [this] { close(); });

  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(14, 14, 14, 14);
  tutto->setSpacing(10);
  tutto->addWidget(lista_, 1);
  tutto->addLayout(riga);
  mostra();
}

void UfficialiFinestra::fa_bottone(QLayout* riga, const QString& nome, Bottone& stato,
                                   Legame::Evento evento) {
  auto* bottone = Fa_Bottone(stato);
  legame.lega(bottone, nome, stato, std::move(evento));
  riga->addWidget(bottone);
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
  bool copiata = false;
  legame.esegui([&] { copiata = Copia_Ufficiale(programma_, schermo_, specie_); });
  if (!copiata) return;
  modulo_->mostra();
  close();
}

bool UfficialiFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == lista_ && evento->type() == QEvent::KeyPress) {
    const Pressione pressione = Da_QKeyEvent(*static_cast<QKeyEvent*>(evento));
    if (pressione.tasto == Tasto::Invio && pressione.Nudo()) {
      copia();
      return true;
    }
  }
  return Finestra::eventFilter(oggetto, evento);
}

void UfficialiFinestra::keyPressEvent(QKeyEvent* evento) {
  const Pressione pressione = Da_QKeyEvent(*evento);
  if (pressione.tasto == Tasto::Esc && pressione.Nudo())
    close();
  else
    Finestra::keyPressEvent(evento);
}

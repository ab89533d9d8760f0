#include "stats/screens/finestra_statistica.h"

#include <algorithm>

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QStyledItemDelegate>

#include "core/programma.h"
#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"
#include "stats/screens/tela_barre.h"

namespace {

constexpr int margine = 14, stacco = 10;
constexpr double parte_di_schermo = 0.92;

// Takes what the operator does while the program reads.
class Filtro_Esc : public QObject {
 public:
  bool esc = false;

  bool eventFilter(QObject*, QEvent* evento) override {
    switch (evento->type()) {
      case QEvent::KeyPress:
        esc = esc || static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Escape;
        return true;
      case QEvent::Close:
        return evento->spontaneous();
      case QEvent::KeyRelease:
      case QEvent::Shortcut:
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
      case QEvent::Wheel:
      case QEvent::ContextMenu:
        return true;
      default:
        return false;
    }
  }
};

// Every line of a list is as wide as the widest, so that the list can be scrolled to the end of it: the view
// measures one line for all.
class Riga_Piu_Larga : public QStyledItemDelegate {
 public:
  Riga_Piu_Larga(const Elenco& elenco, QObject* padre) : QStyledItemDelegate(padre), elenco_(elenco) {}

  QSize sizeHint(const QStyleOptionViewItem& opzioni, const QModelIndex& indice) const override {
    std::size_t lunga = 0;
    for (std::size_t i = 0; i < elenco_.Numero(); ++i) lunga = std::max(lunga, elenco_.Riga(i).size());
    const QSize una = QStyledItemDelegate::sizeHint(opzioni, indice);
    const int carattere = opzioni.fontMetrics.horizontalAdvance(QLatin1Char('0'));
    return {std::max(una.width(), carattere * static_cast<int>(lunga + 1)), una.height()};
  }

 private:
  const Elenco& elenco_;
};

}  // namespace

bool Esc_Premuto() {
  Filtro_Esc filtro;
  qApp->installEventFilter(&filtro);
  QCoreApplication::processEvents();
  qApp->removeEventFilter(&filtro);
  return filtro.esc;
}

FinestraStatistica::FinestraStatistica(const QString& nome, const Programma& programma, const Testo& titolo,
                                       const Grafico& grafico, QWidget* padre)
    : Finestra(nome, padre, Qt::Window),
      programma_(programma),
      titolo_(titolo),
      menu_(new QMenuBar(this)),
      tela_(new TelaBarre(grafico, programma.Separatore_Decimale, this)) {
  setFont(Carattere(punti_normali));
}

void FinestraStatistica::voce(const char* nome, Bottone& stato, Legame::Evento evento) {
  legame.lega(menu_->addAction(In_QString(stato.testo)), QString::fromUtf8(nome), stato, std::move(evento));
}

void FinestraStatistica::interruttore(const char* nome, Spunta& stato) {
  QAction* azione = menu_->addAction(In_QString(stato.didascalia));
  azione->setObjectName(QString::fromUtf8(nome));
  azione->setCheckable(true);
  interruttori_.push_back({azione, stato});
  connect(azione, &QAction::toggled, this, [this, &stato](bool si) {
    if (!legame.in_mostra()) legame.esegui([&] { stato.segnata = si; });
  });
}

QListView* FinestraStatistica::fa_lista(const char* nome, const char* letta, Elenco& stato, int caratteri,
                                        Legame::Evento evento) {
  auto* lista = new ListaVoci(programma_.preferenze.DimFontListe);
  lista->setAccessibleName(QString::fromUtf8(letta));
  lista->setItemDelegate(new Riga_Piu_Larga(stato, lista));
  lista->setMinimumWidth(lista->fontMetrics().horizontalAdvance(QLatin1Char('0')) * caratteri);
  legame.lega(lista, QString::fromUtf8(nome), stato, std::move(evento));
  return lista;
}

QListView* FinestraStatistica::fa_pannello(const char* nome, const char* letta, Elenco& stato, int caratteri,
                                           Legame::Evento evento) {
  QListView* lista = fa_lista(nome, letta, stato, caratteri, std::move(evento));
  lista->setMaximumWidth(lista->minimumWidth() * 3 / 2);
  lista->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lista->setTextElideMode(Qt::ElideRight);
  lista->setItemDelegate(new QStyledItemDelegate(lista));
  return lista;
}

QLabel* FinestraStatistica::fa_titoli(const char* nome, Scritta& stato, const QListView& sopra) {
  QLabel* titoli = fa_scritta(nome, stato);
  titoli->setFont(sopra.font());
  titoli->setIndent(sopra.frameWidth() + 3);  // over the list's own columns
  return titoli;
}

QLabel* FinestraStatistica::fa_scritta(const char* nome, Scritta& stato) {
  auto* scritta = new QLabel;
  scritta->setFont(Carattere(punti_normali));
  scritta->setTextFormat(Qt::PlainText);
  legame.lega(scritta, QString::fromUtf8(nome), stato);
  return scritta;
}

void FinestraStatistica::fa_campo(QBoxLayout* riga, const char* nome, CampoTesto& stato,
                                  const char* nome_scritta, Scritta& scritta, int caratteri) {
  auto* campo = new CasellaTesto;
  campo->setFont(Carattere(punti_grandi));
  campo->setAccessibleName(In_QString(scritta.testo));
  campo->setMaximumWidth(campo->fontMetrics().horizontalAdvance(QLatin1Char('0')) * caratteri);
  QLabel* didascalia = fa_scritta(nome_scritta, scritta);
  didascalia->setBuddy(campo);
  legame.lega(campo, QString::fromUtf8(nome), stato);
  riga->addWidget(didascalia);
  riga->addWidget(campo);
}

QPushButton* FinestraStatistica::fa_bottone(QBoxLayout* riga, const char* nome, Bottone& stato,
                                            Legame::Evento evento) {
  QPushButton* bottone = Fa_Bottone(stato);
  legame.lega(bottone, QString::fromUtf8(nome), stato, std::move(evento));
  riga->addWidget(bottone);
  return bottone;
}

void FinestraStatistica::chiudi_dopo() {
  QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

void FinestraStatistica::disponi(QBoxLayout* sinistra) {
  auto* affiancate = new QHBoxLayout;
  affiancate->setContentsMargins(margine, margine, margine, margine);
  affiancate->setSpacing(stacco);
  sinistra->setSpacing(stacco);
  affiancate->addLayout(sinistra, 4);
  affiancate->addWidget(tela_, 1);
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(0, 0, 0, 0);
  tutto->setMenuBar(menu_);
  tutto->addLayout(affiancate);
  ingrandisci();
}

void FinestraStatistica::ingrandisci() {
  resize(sizeHint().expandedTo((QSizeF(screen()->availableSize()) * parte_di_schermo).toSize()));
}

void FinestraStatistica::mostra() {
  Finestra::mostra();
  const QString titolo = In_QString(titolo_);
  if (windowTitle() != titolo) setWindowTitle(titolo);
  tela_->aggiorna();
  // A menu bar shows no tick of its own.
  for (const auto& [azione, stato] : interruttori_) {
    const QString didascalia = In_QString(stato.didascalia);
    const QSignalBlocker fermo(azione);
    azione->setChecked(stato.segnata);
    azione->setText(stato.segnata ? QString::fromUtf8("\xE2\x9C\x93 ") + didascalia : didascalia);
    azione->setEnabled(stato.attivo);
  }
}

void FinestraStatistica::keyPressEvent(QKeyEvent* evento) {
  const Pressione pressione = Da_QKeyEvent(*evento);
  if (pressione.tasto == Tasto::Esc && pressione.Nudo())
    close();
  else
    Finestra::keyPressEvent(evento);
}

void FinestraStatistica::closeEvent(QCloseEvent* evento) {
  if (occupata())
    evento->ignore();
  else
    Finestra::closeEvent(evento);
}

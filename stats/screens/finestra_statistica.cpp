#include "stats/screens/finestra_statistica.h"

#include <algorithm>

#include <QAction>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QScreen>
#include <QStyledItemDelegate>

#include "core/programma.h"
#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/testo_qt.h"
#include "stats/screens/tela_barre.h"

namespace {

constexpr int margine = 14, stacco = 10, caratteri_data = 12;
constexpr double parte_di_schermo = 0.92;

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

FinestraStatistica::FinestraStatistica(const QString& nome, const Programma& programma, const Testo& titolo,
                                       const Grafico& grafico, QWidget* padre)
    : FinestraDavanti(nome, padre, Qt::Window),
      menu_(new QMenuBar(this)),
      programma_(programma),
      tela_(new TelaBarre(grafico, programma.Separatore_Decimale, this)) {
  intitola(titolo);
  setFont(Carattere(punti_normali));
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

void FinestraStatistica::fa_data(QBoxLayout* riga, const QString& nome, CampoTesto& stato, Scritta& scritta) {
  auto* campo = fa_campo(nome, stato, scritta);
  campo->setFont(Carattere(punti_grandi));
  campo->setMaximumWidth(campo->fontMetrics().horizontalAdvance(QLatin1Char('0')) * caratteri_data);
  QLabel* didascalia = fa_scritta(QStringLiteral("Caption_") + nome, scritta);
  didascalia->setBuddy(campo);
  riga->addWidget(didascalia);
  riga->addWidget(campo);
}

void FinestraStatistica::disponi_con_grafico(QBoxLayout* sinistra) {
  auto* affiancate = new QHBoxLayout;
  affiancate->setContentsMargins(margine, margine, margine, margine);
  affiancate->setSpacing(stacco);
  sinistra->setSpacing(stacco);
  affiancate->addLayout(sinistra, 4);
  affiancate->addWidget(tela_, 1);
  disponi(menu_, affiancate);
  // to the size in which long lines show
  resize(sizeHint().expandedTo((QSizeF(screen()->availableSize()) * parte_di_schermo).toSize()));
}

void FinestraStatistica::mostra() {
  Finestra::mostra();
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

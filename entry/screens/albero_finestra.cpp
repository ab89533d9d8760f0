#include "entry/screens/albero_finestra.h"

#include <QBoxLayout>
#include <QEvent>
#include <QKeyEvent>
#include <QListView>
#include <QScrollBar>

#include "platform/aspetto.h"
#include "platform/riga_elenco.h"
#include "platform/testo_qt.h"

namespace {

// Every line has the same size, so that a list of thousands never measures its lines. What a long comment has
// beyond these columns is read in its field.
constexpr int colonne_riga = 200;

class Disegno_Riga : public RigaElenco {
 public:
  using RigaElenco::RigaElenco;
  QSize sizeHint(const QStyleOptionViewItem& opzioni, const QModelIndex&) const override {
    const QFontMetrics& misure = opzioni.fontMetrics;
    return {misure.horizontalAdvance(u'0') * colonne_riga, misure.height() + 4};
  }
};

QColor Colore_Testo(int scelta) {
  switch (scelta) {
    case 1:
      return Qt::white;
    case 3:
      return Qt::blue;
    case 4:
      return Qt::yellow;
    default:
      return Qt::black;
  }
}

void Prepara(QListView* lista) {
  lista->setUniformItemSizes(true);
  lista->setTextElideMode(Qt::ElideNone);
  lista->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lista->setFocusPolicy(Qt::NoFocus);
  lista->setFrameShape(QFrame::NoFrame);
  lista->setItemDelegate(new Disegno_Riga(lista));
  lista->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
}

}  // namespace

AlberoFinestra::AlberoFinestra(Programma& programma, Edita& edita, QWidget* padre)
    : Finestra(QStringLiteral("Albero"), padre),
      programma_(programma),
      edita_(edita),
      titoli_(new QListView),
      lista_(new QListView) {
  setWindowTitle(QStringLiteral("Prima Nota"));
  Prepara(titoli_);
  Prepara(lista_);
  legame.lega(titoli_, QStringLiteral("Titoli"), edita_.albero.Titoli);
  legame.lega(lista_, QStringLiteral("ListaVoci"), edita_.albero.ListaVoci, [this] {
    CambiaHd(programma_, edita_, edita_.albero.ListaVoci.scelta + 1);
    emit riga_scelta();
  });
  titoli_->setAccessibleName(QStringLiteral("Titoli"));
  lista_->setAccessibleName(QStringLiteral("Prima Nota"));
  titoli_->setSelectionMode(QAbstractItemView::NoSelection);
  titoli_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  titoli_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lista_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  lista_->installEventFilter(this);
  connect(lista_->horizontalScrollBar(), &QScrollBar::valueChanged, titoli_->horizontalScrollBar(),
          &QScrollBar::setValue);
  // A click on the line already selected brings its row back into the fields.
  connect(lista_, &QListView::clicked, this, [this](const QModelIndex& indice) {
    legame.esegui([&] { CambiaHd(programma_, edita_, indice.row() + 1); });
    emit riga_scelta();
  });

  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(titoli_);
  colonna->addWidget(lista_, 1);
}

void AlberoFinestra::apri() {
  const Preferenze& preferenze = programma_.preferenze;
  const QFont carattere = Carattere_Fisso(preferenze.DimFontListe);
  QFont grassetto = carattere;
  grassetto.setBold(true);
  titoli_->setFont(grassetto);
  lista_->setFont(carattere);
  titoli_->setFixedHeight(titoli_->fontMetrics().height() + 4);

  QPalette tavolozza = palette();
  tavolozza.setColor(QPalette::Base, QColor(preferenze.Colore1, preferenze.Colore2, preferenze.Colore3));
  tavolozza.setColor(QPalette::Text, Colore_Testo(preferenze.ColoreTesto));
  // The keyboard is elsewhere, and the selected row is seen all the same.
  for (const auto ruolo : {QPalette::Highlight, QPalette::HighlightedText})
    tavolozza.setColor(QPalette::Inactive, ruolo, tavolozza.color(QPalette::Active, ruolo));
  lista_->setPalette(tavolozza);
  mostra();
}

bool AlberoFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::FocusIn && edita_.pronta) emit fuoco_rifiutato();
  if (evento->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(evento)->key() == Qt::Key_F12) {
    emit riduci();
    return true;
  }
  return Finestra::eventFilter(oggetto, evento);
}

#include "tools/finestra_generatore.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QStyle>
#include <QVBoxLayout>

#include "platform/aspetto.h"
#include "platform/testo_qt.h"

namespace {

QTreeWidget* Elenco_Di(QWidget* padre) {
  auto* elenco = new QTreeWidget(padre);
  elenco->setObjectName(QStringLiteral("ListaFile"));
  elenco->setAccessibleName(QStringLiteral("File delle liste"));
  elenco->setHeaderLabels({QStringLiteral("File"), QStringLiteral("Esito")});
  elenco->setRootIsDecorated(false);
  elenco->setSelectionMode(QAbstractItemView::NoSelection);
  elenco->setUniformRowHeights(true);
  elenco->setAlternatingRowColors(true);
  elenco->setFont(Carattere(punti_normali));
  elenco->header()->setSectionsMovable(false);
  return elenco;
}

QStyle::StandardPixmap Segno(const Lista_Generata& lista) {
  if (lista.errore != 0) return QStyle::SP_MessageBoxCritical;
  return lista.scritta ? QStyle::SP_DialogApplyButton : QStyle::SP_FileIcon;
}

}  // namespace

Finestra_Generatore::Finestra_Generatore(Programma& programma)
    : programma_(programma),
      Messaggio_(new QLabel(this)),
      ListaFile_(Elenco_Di(this)),
      Riprova_(Bottone_Comodo(QStringLiteral("Riprova"), QStringLiteral("&Riprova"), this)),
      Avvia_(Bottone_Comodo(QStringLiteral("Avvia"), QStringLiteral("&Avvia Velmara"), this)),
      Chiudi_(Bottone_Comodo(QStringLiteral("Chiudi"), QStringLiteral("&Chiudi"), this)) {
  setObjectName(QStringLiteral("Generatore"));
  setWindowTitle(QStringLiteral("Generazione delle liste"));
  auto* titolo = new QLabel(QStringLiteral("Generazione delle liste"), this);
  titolo->setFont(Carattere(punti_titolo, true));
  auto* cartella = new QLabel(In_QString(Testo_Percorso(programma.Cartella_Dati)), this);
  cartella->setFont(Carattere(punti_normali));
  cartella->setTextInteractionFlags(Qt::TextSelectableByMouse);
  Messaggio_->setObjectName(QStringLiteral("Messaggio"));
  Messaggio_->setFont(Carattere(punti_normali, true));
  Messaggio_->setWordWrap(true);

  auto* bottoni = new QHBoxLayout;
  bottoni->addWidget(Riprova_);
  bottoni->addStretch();
  bottoni->addWidget(Avvia_);
  bottoni->addWidget(Chiudi_);
  auto* pagina = new QVBoxLayout(this);
  const int margine = QFontMetrics(Carattere(punti_normali)).height();
  pagina->setContentsMargins(margine, margine, margine, margine);
  pagina->setSpacing(margine * 2 / 3);
  pagina->addWidget(titolo);
  pagina->addWidget(cartella);
  pagina->addWidget(ListaFile_, 1);
  pagina->addWidget(Messaggio_);
  pagina->addLayout(bottoni);

  connect(Avvia_, &QPushButton::clicked, this, [this] {
    ripartenza_.chiesta = true;
    dal_dovere_.invalidate();
    battito_.start();
    Batti();
  });
  connect(Riprova_, &QPushButton::clicked, this, &Finestra_Generatore::Genera);
  connect(Chiudi_, &QPushButton::clicked, this, &QWidget::close);
  battito_.setInterval(100);
  connect(&battito_, &QTimer::timeout, this, &Finestra_Generatore::Batti);
  Genera();
}

void Finestra_Generatore::Genera() {
  esiti_ = Genera_Liste(programma_);
  ripartenza_ = {};
  ripartenza_.errori = Con_Errori(esiti_);
  Mostra_Esiti();
  dal_generare_.start();
  dal_dovere_.invalidate();
  battito_.start();
  Avvia_->setFocus();
}

void Finestra_Generatore::Mostra_Esiti() {
  ListaFile_->clear();
  for (const Lista_Generata& lista : esiti_) {
    auto* riga =
        new QTreeWidgetItem(ListaFile_, {In_QString(lista.nome), In_QString(Esito_In_Parole(lista))});
    riga->setIcon(0, style()->standardIcon(Segno(lista)));
    if (lista.errore == 0) continue;
    riga->setFont(1, Carattere(punti_normali, true));
    ListaFile_->scrollToItem(riga);
  }
  const int aria = 2 * ListaFile_->fontMetrics().height();
  for (const int colonna : {0, 1}) {
    ListaFile_->resizeColumnToContents(colonna);
    ListaFile_->setColumnWidth(colonna, ListaFile_->columnWidth(colonna) + aria);
  }
  const int righe_alte = ListaFile_->sizeHintForRow(0) * static_cast<int>(esiti_.size());
  ListaFile_->setMinimumSize(
      ListaFile_->columnWidth(0) + ListaFile_->columnWidth(1) + aria,
      righe_alte + ListaFile_->header()->sizeHint().height() + 2 * ListaFile_->frameWidth());
  const QString seguito = ripartenza_.errori ? QString() : QStringLiteral(" Velmara si avvia da solo...");
  Messaggio_->setText(In_QString(Riassunto(esiti_)) + seguito);
  Riprova_->setVisible(ripartenza_.errori);
}

void Finestra_Generatore::Batti() {
  const auto secondi = [](const QElapsedTimer& da) {
    return da.isValid() ? static_cast<double>(da.elapsed()) / 1000 : 0;
  };
  ripartenza_.secondi = secondi(dal_generare_);
  ripartenza_.secondi_di_attesa = secondi(dal_dovere_);
  switch (Prossimo_Passo(ripartenza_, Cartella_Libera(programma_.Cartella_Dati))) {
    case Passo_Ripartenza::Resta:
      return;
    case Passo_Ripartenza::Aspetta:
      if (!dal_dovere_.isValid()) dal_dovere_.start();
      return Messaggio_->setText(QStringLiteral("Attendo che Velmara si chiuda..."));
    case Passo_Ripartenza::Occupata:
      return Ferma(QStringLiteral("Velmara è ancora aperto in questa cartella: chiuderlo e premere Avvia."));
    case Passo_Ripartenza::Avvia:
      if (!programma_.piattaforma.Avvia_Programma(Unisci_Percorso(programma_.Cartella_Dati, "Velmara_2020")))
        return Ferma(QStringLiteral("Velmara_2020 non si avvia: avviarlo dalla cartella."));
      battito_.stop();
      close();
  }
}

// The operator decides what happens next.
void Finestra_Generatore::Ferma(const QString& messaggio) {
  battito_.stop();
  ripartenza_.chiesta = false;
  Messaggio_->setText(messaggio);
  Avvia_->setFocus();
}

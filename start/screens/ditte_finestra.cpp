#include "start/screens/ditte_finestra.h"

#include <utility>

#include <QApplication>
#include <QBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QShortcut>

#include "platform/aspetto.h"
#include "platform/testo_qt.h"
#include "start/ditte.h"

namespace {

QString In_Q(const Percorso& percorso) { return QString::fromStdString(percorso.string()); }

}  // namespace

DitteFinestra::DitteFinestra(Percorso programmi, Percorso radice)
    : programmi_(std::move(programmi)),
      radice_(std::move(radice)),
      lista_(new QListWidget(this)),
      apri_(Bottone_Comodo(QStringLiteral("Apri"), QStringLiteral("&Apri"), this)) {
  setObjectName(QStringLiteral("Ditte"));
  setWindowTitle(QStringLiteral("Velmara - Scegli la ditta"));
  auto* titolo = new QLabel(QStringLiteral("Quale ditta?"), this);
  titolo->setFont(Carattere(punti_titolo, true));
  auto* dove = new QLabel(QStringLiteral("Le ditte stanno in ") + In_Q(radice_), this);
  dove->setFont(Carattere(punti_normali));
  dove->setTextInteractionFlags(Qt::TextSelectableByMouse);
  lista_->setObjectName(QStringLiteral("ListaDitte"));
  lista_->setAccessibleName(QStringLiteral("Ditte"));
  lista_->setFont(Carattere(punti_grandi));
  auto* nuova_ditta = Bottone_Comodo(QStringLiteral("Nuova"), QStringLiteral("&Nuova ditta..."), this);
  auto* chiudi = Bottone_Comodo(QStringLiteral("Chiudi"), QStringLiteral("&Chiudi"), this);
  apri_->setDefault(true);

  setTabOrder(nuova_ditta, apri_);
  setTabOrder(apri_, chiudi);
  auto* bottoni = new QHBoxLayout;
  bottoni->addWidget(nuova_ditta);
  bottoni->addStretch();
  bottoni->addWidget(apri_);
  bottoni->addWidget(chiudi);
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(18, 14, 18, 14);
  tutto->setSpacing(12);
  tutto->addWidget(titolo);
  tutto->addWidget(lista_, 1);
  tutto->addWidget(dove);
  tutto->addLayout(bottoni);
  resize(620, 420);

  connect(apri_, &QPushButton::clicked, this, &DitteFinestra::apri_scelta);
  connect(lista_, &QListWidget::itemActivated, this, &DitteFinestra::apri_scelta);
  connect(nuova_ditta, &QPushButton::clicked, this, &DitteFinestra::nuova);
  connect(chiudi, &QPushButton::clicked, this, &QWidget::close);
  connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);
  riempi();
}

void DitteFinestra::riempi() {
  lista_->clear();
  int errore = 0;
  const auto ditte = Ditte_In(disco_, radice_, &errore);
  if (!ditte)
    QMessageBox::warning(this, windowTitle(),
                         QStringLiteral("Le ditte non si possono elencare: la cartella\n") + In_Q(radice_) +
                             QStringLiteral("\nnon si legge: ") + In_QString(Testo_Errore(errore)));
  for (const Percorso& ditta : ditte.value_or(std::vector<Percorso>())) {
    auto* voce = new QListWidgetItem(In_Q(ditta.filename()), lista_);
    voce->setData(Qt::UserRole, In_Q(ditta));
  }
  lista_->setCurrentRow(0);
  apri_->setEnabled(lista_->count() > 0);
}

bool DitteFinestra::apri_l_unica() {
  const auto ditte = Ditte_In(disco_, radice_);
  return ditte && ditte->size() == 1 && avvia(ditte->front());
}

void DitteFinestra::apri_scelta() {
  const QListWidgetItem* voce = lista_->currentItem();
  if (voce && avvia(voce->data(Qt::UserRole).toString().toStdString())) QApplication::quit();
}

void DitteFinestra::nuova() {
  bool confermata = false;
  const QString scritto =
      QInputDialog::getText(this, QStringLiteral("Nuova ditta"), QStringLiteral("Nome della ditta:"),
                            QLineEdit::Normal, QStringLiteral("La mia ditta"), &confermata);
  if (!confermata) return;
  const auto nome = Nome_Di_Ditta(Da_QString(scritto));
  if (!nome) {
    QMessageBox::warning(this, windowTitle(), QStringLiteral("Scrivere un nome per la ditta."));
    return;
  }
  const Percorso ditta = Unisci_Percorso(radice_, *nome);
  if (disco_.Esiste_Cartella(ditta)) {
    QMessageBox::warning(this, windowTitle(),
                         QStringLiteral("C'è già una cartella con questo nome:\n") + In_Q(ditta));
    return;
  }
  if (avvia(ditta)) QApplication::quit();
}

bool DitteFinestra::avvia(const Percorso& ditta) {
  if (const int errore = Metti_Programmi(disco_, programmi_, ditta); errore != 0) {
    QMessageBox::warning(this, windowTitle(),
                         QStringLiteral("Il programma non si copia nella cartella\n") + In_Q(ditta) +
                             QLatin1Char('\n') + In_QString(Testo_Errore(errore)));
    return false;
  }
  const QString programma = In_Q(Unisci_Percorso(ditta, Programma_Ditta));
  if (QProcess::startDetached(programma, {}, In_Q(ditta))) return true;
  QMessageBox::warning(this, windowTitle(), QStringLiteral("Il programma non parte:\n") + programma);
  return false;
}

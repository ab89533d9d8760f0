#include "transfers/screens/xdisk_finestra.h"

#include <QAction>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>

#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"
#include "transfers/screens/senza_proposta.h"

XdiskFinestra::XdiskFinestra(const Programma& programma, ModoCopia modo, const Percorso& cartella_propria,
                             QWidget* padre)
    : Finestra(QStringLiteral("xdisk"), padre, Qt::Window),
      programma_(programma),
      lista_(new Senza_Proposta<QListView>) {
  Apri_Xdisk(programma_, xdisk_, modo, cartella_propria);
  setWindowTitle(In_QString(xdisk_.titolo));
  setFont(Carattere(punti_normali));

  auto* barra = new QMenuBar;
  legame.lega(barra->addAction(QString()), QStringLiteral("MenuAggiorna"), xdisk_.MenuAggiorna,
              [this] { Aggiorna_Dischi(programma_, xdisk_); });

  auto* titolo = new QLabel;
  titolo->setFont(Carattere(punti_grandi, true));
  titolo->setWordWrap(true);
  legame.lega(titolo, QStringLiteral("Titolo"), xdisk_.Titolo);

  lista_->setFont(Carattere(punti_grandi));
  lista_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lista_->setAccessibleName(QStringLiteral("Dischi"));
  lista_->setMinimumSize(lista_->fontMetrics().averageCharWidth() * 60,
                         lista_->fontMetrics().lineSpacing() * 6);
  lista_->installEventFilter(this);
  legame.lega(lista_, QStringLiteral("List1"), xdisk_.List1, [this] { Cambia_Drive(xdisk_); });
  connect(lista_, &QListView::doubleClicked, this,
          [this] { legame.esegui([this] { Conferma_Drive(xdisk_); }); });

  auto* comandi = new QHBoxLayout;
  comandi->addStretch();
  const auto bottone = [&](const char* nome, Bottone& stato, Legame::Evento evento) {
    auto* fatto = new QPushButton;
    fatto->setFont(Carattere(punti_normali));
    fatto->setAutoDefault(true);
    fatto->setMinimumHeight(fatto->fontMetrics().height() * 2);
    legame.lega(fatto, QString::fromUtf8(nome), stato, std::move(evento));
    comandi->addWidget(fatto);
  };
  bottone("Command1", xdisk_.Command1, [this] { Conferma_Drive(xdisk_); });
  bottone("Command2", xdisk_.Command2, [this] { Annulla_Drive(xdisk_); });

  auto* corpo = new QVBoxLayout;
  corpo->setContentsMargins(18, 14, 18, 14);
  corpo->setSpacing(14);
  corpo->addWidget(titolo);
  corpo->addWidget(lista_, 1);
  corpo->addLayout(comandi);
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(0, 0, 0, 0);
  tutto->setMenuBar(barra);
  tutto->addLayout(corpo);
  mostra();
  lista_->setFocus(Qt::OtherFocusReason);
}

void XdiskFinestra::mostra() {
  Finestra::mostra();
  if (xdisk_.chiusa && isVisible()) QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

bool XdiskFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto != lista_ || evento->type() != QEvent::KeyPress) return Finestra::eventFilter(oggetto, evento);
  const Pressione pressione = Da_QKeyEvent(*static_cast<QKeyEvent*>(evento));
  if (pressione.tasto != Tasto::Invio || !pressione.Nudo()) return Finestra::eventFilter(oggetto, evento);
  legame.esegui([this] { Conferma_Drive(xdisk_); });
  return true;
}

void XdiskFinestra::keyPressEvent(QKeyEvent* evento) {
  const Pressione pressione = Da_QKeyEvent(*evento);
  if (pressione.tasto == Tasto::Esc && pressione.Nudo())
    legame.esegui([this] { Annulla_Drive(xdisk_); });
  else
    Finestra::keyPressEvent(evento);
}

Scelta_Drive Chiedi_Drive(const Programma& programma, QWidget* padre) {
  return [&programma, padre](ModoCopia modo, const Percorso& cartella_propria) {
    XdiskFinestra finestra(programma, modo, cartella_propria, padre);
    finestra.esegui();
    return finestra.scelto();
  };
}

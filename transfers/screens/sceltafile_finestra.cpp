#include "transfers/screens/sceltafile_finestra.h"

#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>

#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"
#include "transfers/screens/senza_proposta.h"

namespace {

QListView* Fa_Lista(const QString& nome) {
  auto* lista = new Senza_Proposta<QListView>;
  lista->setFont(Carattere(punti_normali));
  lista->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lista->setAccessibleName(nome);
  lista->setMinimumSize(lista->fontMetrics().averageCharWidth() * 34,
                        lista->fontMetrics().lineSpacing() * 12);
  return lista;
}

}  // namespace

SceltaFileFinestra::SceltaFileFinestra(Programma& programma, Vista nome, QWidget* padre)
    : Finestra(QStringLiteral("SceltaFile"), padre, Qt::Window),
      programma_(programma),
      cartelle_(Fa_Lista(QStringLiteral("Cartelle"))),
      nome_(new CasellaTesto) {
  Apri_SceltaFile(programma_, schermo_, nome);
  setWindowTitle(In_QString(schermo_.titolo));
  setFont(Carattere(punti_normali));

  auto* barra = new QMenuBar;
  legame.lega(barra->addAction(QString()), QStringLiteral("MenuAggiorna"), schermo_.MenuAggiorna,
              [this] { Aggiorna_SceltaFile(programma_, schermo_); });

  auto* dischi = new QComboBox;
  dischi->setFont(Carattere(punti_normali));
  dischi->setAccessibleName(QStringLiteral("Dischi"));
  legame.lega(dischi, QStringLiteral("Drive1"), schermo_.Drive1,
              [this] { Cambia_Disco(programma_, schermo_); });
  auto* cartella = new QLabel;
  cartella->setFont(Carattere(punti_normali, true));
  cartella->setTextFormat(Qt::PlainText);
  cartella->setWordWrap(true);
  legame.lega(cartella, QStringLiteral("Cartella"), schermo_.Cartella);

  auto* didascalia = new QLabel;
  legame.lega(didascalia, QStringLiteral("Caption_Text1"), schermo_.Caption_Text1);
  nome_->setFont(Carattere(punti_grandi));
  nome_->setAccessibleName(In_QString(schermo_.Caption_Text1.testo));
  nome_->installEventFilter(this);
  legame.lega(nome_, QStringLiteral("Text1"), schermo_.Text1);
  auto* riga_nome = new QHBoxLayout;
  riga_nome->addWidget(didascalia);
  riga_nome->addWidget(nome_, 1);

  auto* corpo = new QVBoxLayout;
  corpo->setContentsMargins(18, 14, 18, 14);
  corpo->setSpacing(12);
  corpo->addWidget(dischi);
  corpo->addWidget(cartella);
  corpo->addLayout(fa_liste(), 1);
  corpo->addLayout(riga_nome);
  corpo->addLayout(fa_comandi());
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(0, 0, 0, 0);
  tutto->setMenuBar(barra);
  tutto->addLayout(corpo);
  mostra();
  nome_->setFocus(Qt::OtherFocusReason);
  nome_->selectAll();
}

QBoxLayout* SceltaFileFinestra::fa_liste() {
  cartelle_->installEventFilter(this);
  legame.lega(cartelle_, QStringLiteral("Dir1"), schermo_.Dir1);
  connect(cartelle_, &QListView::doubleClicked, this,
          [this] { legame.esegui([this] { Entra_Cartella(programma_, schermo_); }); });
  QListView* file = Fa_Lista(QStringLiteral("File"));
  legame.lega(file, QStringLiteral("File1"), schermo_.File1, [this] { Prendi_Nome(schermo_); });
  auto* liste = new QHBoxLayout;
  liste->setSpacing(12);
  liste->addWidget(cartelle_, 1);
  liste->addWidget(file, 1);
  return liste;
}

QBoxLayout* SceltaFileFinestra::fa_comandi() {
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
  bottone("Command1", schermo_.Command1, [this] { Conferma_File(programma_, schermo_); });
  bottone("Command2", schermo_.Command2, [this] { Annulla_File(schermo_); });
  return comandi;
}

void SceltaFileFinestra::mostra() {
  Finestra::mostra();
  if (schermo_.chiusa && isVisible()) QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

// Enter in the folders goes into the selected one, in the name it confirms.
bool SceltaFileFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::KeyPress) return Finestra::eventFilter(oggetto, evento);
  const Pressione pressione = Da_QKeyEvent(*static_cast<QKeyEvent*>(evento));
  if (pressione.tasto != Tasto::Invio || !pressione.Nudo()) return Finestra::eventFilter(oggetto, evento);
  legame.esegui([&] {
    if (oggetto == cartelle_)
      Entra_Cartella(programma_, schermo_);
    else
      Conferma_File(programma_, schermo_);
  });
  return true;
}

void SceltaFileFinestra::keyPressEvent(QKeyEvent* evento) {
  const Pressione pressione = Da_QKeyEvent(*evento);
  if (pressione.tasto == Tasto::Esc && pressione.Nudo())
    legame.esegui([this] { Annulla_File(schermo_); });
  else
    Finestra::keyPressEvent(evento);
}

Scelta_File Chiedi_File(Programma& programma, QWidget* padre, Vista nome) {
  return [&programma, padre, proposto = Testo(nome)] {
    SceltaFileFinestra finestra(programma, proposto, padre);
    finestra.esegui();
    return finestra.scelto();
  };
}

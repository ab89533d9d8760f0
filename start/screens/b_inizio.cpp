#include "start/screens/b_inizio.h"

#include <algorithm>

#include <QBoxLayout>
#include <QComboBox>
#include <QDropEvent>
#include <QGroupBox>
#include <QLabel>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QUrl>

#include "platform/aspetto.h"
#include "platform/testo_qt.h"
#include "start/copia_giorno.h"
#include "start/screens/quadro.h"
#include "start/strumenti.h"
#include "transfers/screens/xdisk_finestra.h"

namespace {

int Pesce_Scelto(const Preferenze& preferenze) {
  if (preferenze.v_pesce2) return 2;
  if (preferenze.v_pesce3) return 3;
  return preferenze.v_pesce4 ? 4 : 1;
}

CasellaTesto* Campo_Numero(int cifre, double punti) {
  auto* campo = new CasellaTesto;
  campo->setFont(Carattere(punti, true));
  campo->setAlignment(Qt::AlignCenter);
  campo->setAcceptDrops(false);  // a day file dropped on it is the screen's
  campo->setFixedWidth(campo->fontMetrics().horizontalAdvance(QString(cifre + 2, u'0')));
  return campo;
}

}  // namespace

B_InizioFinestra::B_InizioFinestra(Programma& programma, QWidget* padre)
    : Finestra(QStringLiteral("B_Inizio"), padre), programma_(programma), quadro_(new Quadro) {
  setFont(Carattere(punti_normali));
  Carica_Inizio(programma_, inizio_);
  intitola(inizio_.titolo);
  inizio_.Command11.suggerimento = "Giorno dopo";
  inizio_.Command12.suggerimento = "Giorno prima";

  auto* colonna = new QVBoxLayout;
  colonna->setSpacing(14);
  auto* prompt = fa_scritta(QStringLiteral("Prompt"), inizio_.Prompt);
  prompt->setFont(Carattere(punti_grandi));
  colonna->addWidget(prompt);
  colonna->addWidget(fa_data());
  colonna->addWidget(fa_comandi());
  colonna->addWidget(fa_numeri());
  colonna->addWidget(fa_recenti(), 1);
  colonna->addWidget(fa_strumenti());

  auto* destra = new QVBoxLayout;
  destra->addWidget(quadro_, 1);
  destra->addWidget(fa_ditta());

  auto* tutto = new QHBoxLayout(this);
  tutto->setContentsMargins(24, 20, 24, 16);
  tutto->setSpacing(28);
  tutto->addLayout(colonna);
  tutto->addLayout(destra, 1);

  setAcceptDrops(true);
  copia_->installEventFilter(this);
  auto* file1 = new QListView(this);
  legame.lega(file1, QStringLiteral("File1"), inizio_.File1);
  connect(file1, &QListView::doubleClicked, this,
          [this] { legame.esegui([this] { MostraFile1(programma_, inizio_); }); });
  mostra();
}

QWidget* B_InizioFinestra::fa_data() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Giorno di lavoro"));
  auto* riga = new QHBoxLayout(riquadro);
  const auto cambia = [this] { Cambia_Data(programma_, inizio_); };

  auto* giorno = Campo_Numero(2, punti_titolo + 4);
  giorno->setAccessibleName(QStringLiteral("Giorno"));
  giorno->setMaxLength(2);
  giorno_ = giorno;
  auto* mese = new QComboBox;
  mese->setFont(Carattere(punti_titolo));
  mese->setAccessibleName(QStringLiteral("Mese"));
  mese->setMaxVisibleItems(12);
  auto* anno = Campo_Numero(4, punti_titolo + 4);
  anno->setAccessibleName(QStringLiteral("Anno"));
  anno->setMaxLength(4);
  legame.lega(giorno, QStringLiteral("Text1"), inizio_.Text1, cambia);
  legame.lega(mese, QStringLiteral("Combo1"), inizio_.Combo1, cambia);
  legame.lega(anno, QStringLiteral("Text3"), inizio_.Text3, cambia);
  mese->setMinimumWidth(mese->fontMetrics().horizontalAdvance(QStringLiteral("Settembre   ")) + 40);
  mese->setMinimumHeight(giorno->sizeHint().height());

  auto* passi = new QVBoxLayout;
  passi->setSpacing(2);
  auto* su = new QPushButton;
  auto* giu = new QPushButton;
  legame.lega(su, QStringLiteral("Command11"), inizio_.Command11, [this] { Giorno_Su(programma_, inizio_); });
  legame.lega(giu, QStringLiteral("Command12"), inizio_.Command12,
              [this] { Giorno_Giu(programma_, inizio_); });
  for (QPushButton* passo : {su, giu}) {
    passo->setFont(Carattere(punti_normali, true));
    passo->setFixedSize(44, giorno->sizeHint().height() / 2);
    passi->addWidget(passo);
  }

  auto* settimana = fa_scritta(QStringLiteral("Label13"), inizio_.Label13);
  settimana->setFont(Carattere(punti_grandi, true));
  settimana->setMinimumWidth(settimana->fontMetrics().horizontalAdvance(QStringLiteral("(Mercoledì) ")));

  riga->addWidget(giorno);
  riga->addLayout(passi);
  riga->addWidget(mese);
  riga->addWidget(anno);
  riga->addWidget(settimana, 1);
  return riquadro;
}

QWidget* B_InizioFinestra::fa_numeri() {
  struct Voce {
    const char* titolo;
    const char* nome;
    CampoTesto& stato;
  };
  const std::array<Voce, 4> voci = {{{"Conto Vendita", "Text2", inizio_.Text2},
                                     {"Nota di Accredito", "Text4", inizio_.Text4},
                                     {"Fattura", "Text5", inizio_.Text5},
                                     {"DDT", "Text6", inizio_.Text6}}};
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Ultimi numeri emessi"));
  auto* griglia = new QGridLayout(riquadro);
  griglia->setHorizontalSpacing(16);
  int colonna = 0;
  for (const Voce& voce : voci) {
    auto* campo = Campo_Numero(6, punti_grandi);
    const QString titolo = QString::fromLatin1(voce.titolo);
    campo->setAccessibleName(titolo);
    legame.lega(campo, QString::fromLatin1(voce.nome), voce.stato);
    auto* etichetta = new QLabel(titolo);
    etichetta->setFont(Carattere(punti_normali));
    etichetta->setBuddy(campo);
    griglia->addWidget(etichetta, 0, colonna);
    griglia->addWidget(campo, 1, colonna++);
  }
  griglia->setColumnStretch(colonna, 1);
  return riquadro;
}

// Chosen with the arrows, opened with Enter as any day.
QWidget* B_InizioFinestra::fa_recenti() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Ultimi giorni   F8"));
  auto* colonna = new QVBoxLayout(riquadro);
  recenti_ = new QListView;
  recenti_->setFont(Carattere_Fisso(punti_normali));
  recenti_->setAccessibleName(QStringLiteral("Ultimi giorni"));
  recenti_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  recenti_->setUniformItemSizes(true);
  recenti_->setMinimumHeight(recenti_->fontMetrics().height() * 3);
  legame.lega(recenti_, QStringLiteral("Recenti"), inizio_.Recenti,
              [this] { Scelto_Recente(programma_, inizio_); });
  connect(recenti_, &QListView::doubleClicked, this, [this] { legame.esegui([this] { continua(); }); });
  colonna->addWidget(recenti_);
  return riquadro;
}

QWidget* B_InizioFinestra::fa_comandi() {
  auto* riga = new QWidget;
  auto* disposizione = new QHBoxLayout(riga);
  disposizione->setContentsMargins(0, 0, 0, 0);
  auto* avanti = new QPushButton;
  auto* fine = new QPushButton;
  legame.lega(avanti, QStringLiteral("Command2"), inizio_.Command2, [this] { continua(); });
  legame.lega(fine, QStringLiteral("Command1"), inizio_.Command1, [this] { Abbandona(programma_); });
  avanti->setDefault(true);
  avanti->setFont(Carattere(punti_titolo, true));
  avanti->setMinimumHeight(avanti->fontMetrics().height() * 2);
  fine->setFont(Carattere(punti_grandi));
  fine->setMinimumHeight(avanti->minimumHeight());
  disposizione->addWidget(avanti, 2);
  disposizione->addWidget(fine, 1);
  return riga;
}

QWidget* B_InizioFinestra::fa_strumenti() {
  struct Voce {
    const char* nome;
    Bottone& stato;
    Legame::Evento evento;
  };
  const auto strumento = [this](const char* nome) {
    return [this, nome] { UsaStrumento(programma_, nome); };
  };
  const std::vector<Voce> voci = {{"Command7", inizio_.Command7, [this] { copia(false); }},
                                  {"Command10", inizio_.Command10, [this] { GestioneListe(programma_); }},
                                  {"Command6", inizio_.Command6, strumento("Command6")},
                                  {"Command8", inizio_.Command8, strumento("Command8")},
                                  {"Command4", inizio_.Command4, strumento("Command4")},
                                  {"Command9", inizio_.Command9, [this] { ConvertiDati(programma_); }},
                                  {"Command14", inizio_.Command14, strumento("Command14")},
                                  {"Command15", inizio_.Command15, strumento("Command15")},
                                  {"Command16", inizio_.Command16, strumento("Command16")},
                                  {"Command5", inizio_.Command5, {}}};
  constexpr int per_riga = 5;
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Strumenti"));
  auto* griglia = new QGridLayout(riquadro);
  int posto = 0;
  for (const Voce& voce : voci) {
    auto* bottone = new QPushButton;
    legame.lega(bottone, QString::fromLatin1(voce.nome), voce.stato, voce.evento);
    bottone->setFont(Carattere(punti_normali));
    bottone->setMinimumHeight(bottone->fontMetrics().height() * 2);
    if (&voce.stato == &inizio_.Command7) copia_ = bottone;
    if (!voce.stato.visibile) {
      bottone->setParent(riquadro);
      continue;
    }
    griglia->addWidget(bottone, posto / per_riga, posto % per_riga);
    griglia->setColumnStretch(posto % per_riga, 1);
    ++posto;
  }
  return riquadro;
}

// Its right button copies the other way; the menu key does the same from the keyboard.
bool B_InizioFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto != copia_ || evento->type() != QEvent::ContextMenu)
    return Finestra::eventFilter(oggetto, evento);
  legame.esegui([this] { copia(true); });
  return true;
}

void B_InizioFinestra::copia(bool dalla_chiavetta) {
  CopiaGiorno(programma_, inizio_, dalla_chiavetta, Chiedi_Drive(programma_, this));
  Aggiorna_Recenti(programma_, inizio_);
}

// Always as a copy, whatever is proposed: who thinks that it was moved may delete it where it came from.
void B_InizioFinestra::prendi(QDropEvent* evento) {
  evento->setDropAction(Qt::CopyAction);
  evento->accept();
}

void B_InizioFinestra::dragEnterEvent(QDragEnterEvent* evento) {
  const auto indirizzi = evento->mimeData()->urls();
  const bool file = std::ranges::any_of(indirizzi, [](const QUrl& uno) { return uno.isLocalFile(); });
  if (!occupata() && inizio_.attiva && file) prendi(evento);
}

void B_InizioFinestra::dragMoveEvent(QDragMoveEvent* evento) { prendi(evento); }

// The questions come when the desktop has its mouse back.
void B_InizioFinestra::dropEvent(QDropEvent* evento) {
  prendi(evento);
  QMetaObject::invokeMethod(
      this, [this, file = evento->mimeData()->urls()] { copia_file(file); }, Qt::QueuedConnection);
}

void B_InizioFinestra::copia_file(const QList<QUrl>& file) {
  if (occupata() || !inizio_.attiva || !isVisible()) return;
  window()->activateWindow();
  legame.esegui([&] {
    for (const QUrl& uno : file)
      if (uno.isLocalFile() && !CopiaFileGiorno(programma_, inizio_, uno.toLocalFile().toStdString())) return;
  });
}

QWidget* B_InizioFinestra::fa_ditta() {
  auto* riquadro = new QWidget;
  auto* colonna = new QVBoxLayout(riquadro);
  colonna->setContentsMargins(4, 6, 4, 0);
  colonna->setSpacing(4);
  auto* ditta = fa_scritta(QStringLiteral("Ditta"), inizio_.Ditta);
  auto* ragione = fa_scritta(QStringLiteral("RagioneSociale"), inizio_.RagioneSociale);
  ditta->setFont(Carattere(punti_normali));
  ragione->setFont(Carattere(punti_titolo, true));
  colonna->addWidget(ditta);
  colonna->addWidget(ragione);
  colonna->addWidget(fa_scritta(QStringLiteral("Moduli"), inizio_.Moduli));
  colonna->addWidget(fa_scritta(QStringLiteral("Nota"), inizio_.Nota));
  colonna->addWidget(fa_scritta(QStringLiteral("Stato"), inizio_.Stato));
  return riquadro;
}

void B_InizioFinestra::mostra() {
  Finestra::mostra();
  Mostra_Sfondo(this, inizio_.sfondo);
  quadro_->scegli(Pesce_Scelto(programma_.preferenze));
}

void B_InizioFinestra::ritorna() {
  Ritorna_Inizio(programma_, inizio_);
  mostra();
  giorno_->setFocus();
  giorno_->selectAll();
}

void B_InizioFinestra::continua() {
  if (inizio_.attiva && Apri_Giorno(programma_, inizio_)) emit giorno_aperto();
}

bool B_InizioFinestra::tasto(const Pressione& pressione) {
  bool vai_ai_recenti = false;
  const bool usato = legame.usa([&] {
    if (pressione.tasto == Tasto::Invio && pressione.Nudo())
      continua();
    else if (pressione.tasto == Tasto::Esc && pressione.Nudo())
      Abbandona(programma_);
    else if (pressione.tasto == Tasto::F8 && pressione.Nudo())
      vai_ai_recenti = Vai_Ai_Recenti(programma_, inizio_);
    else
      return TastoInizio(programma_, inizio_, pressione);
    return true;
  });
  if (vai_ai_recenti) recenti_->setFocus(Qt::OtherFocusReason);
  return usato;
}

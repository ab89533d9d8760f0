#include "accounts/screens/gemmit_finestra.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>

#include "lists/screens/fornitori_finestra.h"
#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"
#include "printing/screens/stampante_finestra.h"

namespace {

constexpr double punti_anteprima = 8.25;
constexpr int margine = 14, stacco = 12, righe_in_vista = 10;

}  // namespace

ZgemmitFinestra::ZgemmitFinestra(Programma& programma, QWidget* padre)
    : Finestra(QStringLiteral("Zgemmit"), padre, Qt::Window), programma_(programma) {
  ApriContiManuali(programma_, zgemmit_);
  setFont(Carattere(punti_normali));
  anteprima_ = new ListaVoci(punti_anteprima);
  anteprima_->setAccessibleName(QStringLiteral("Anteprima del conto vendita"));
  legame.lega(anteprima_, QStringLiteral("Anteprima"), zgemmit_.Anteprima);

  auto* dentro = new QGridLayout;  // one over the other, so that the window keeps its size
  dentro->setContentsMargins(margine, margine, margine, margine);
  dentro->addWidget(fa_pannello(), 0, 0);
  dentro->addWidget(anteprima_, 0, 0);
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(0, 0, 0, 0);
  tutto->setMenuBar(fa_menu());
  tutto->addLayout(dentro, 1);
  mostra();
  lista_->setFocus(Qt::OtherFocusReason);
}

QMenuBar* ZgemmitFinestra::fa_menu() {
  auto* barra = new QMenuBar;
  legame.lega(barra->addAction(QString()), QStringLiteral("Scelta_Stampante"), zgemmit_.Scelta_Stampante,
              [this] {
                StampanteFinestra(programma_, this).esegui();
                AggiornaComandi(programma_, zgemmit_);
              });
  legame.lega(barra->addAction(QString()), QStringLiteral("Aiuto"), zgemmit_.Aiuto,
              [this] { MostraAiutoConti(programma_, zgemmit_); });
  return barra;
}

QWidget* ZgemmitFinestra::fa_pannello() {
  auto* pannello = new QWidget;
  legame.lega(pannello, QStringLiteral("Pannello"), zgemmit_.Pannello);
  auto* sotto = new QHBoxLayout;
  sotto->setSpacing(stacco);
  sotto->addWidget(fa_conto(), 1);
  sotto->addWidget(fa_stampa());
  auto* colonna = new QVBoxLayout(pannello);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(stacco);
  colonna->addWidget(fa_lista(), 1);
  colonna->addLayout(sotto);
  return pannello;
}

QWidget* ZgemmitFinestra::fa_lista() {
  auto* parte = new QWidget;
  auto* colonna = new QVBoxLayout(parte);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(2);
  lista_ = new ListaVoci(programma_.preferenze.DimFontListe);
  lista_->setAccessibleName(QStringLiteral("Conti vendita"));
  auto* titoli = new QLabel;
  titoli->setFont(lista_->font());
  titoli->setTextFormat(Qt::PlainText);
  titoli->setIndent(lista_->frameWidth() + 3);  // over the list's own columns
  legame.lega(titoli, QStringLiteral("Titolo_Lista"), zgemmit_.Titolo_Lista);
  legame.lega(lista_, QStringLiteral("ListaCV"), zgemmit_.ListaCV,
              [this] { SceltaConto(programma_, zgemmit_, zgemmit_.ListaCV.scelta); });
  const QFontMetrics misure = lista_->fontMetrics();
  lista_->setMinimumWidth(misure.horizontalAdvance(QLatin1Char('0')) * 72);
  lista_->setMinimumHeight(misure.height() * righe_in_vista);
  auto* avviso = new QLabel;
  avviso->setWordWrap(true);
  legame.lega(avviso, QStringLiteral("Avviso"), zgemmit_.Avviso);
  colonna->addWidget(titoli);
  colonna->addWidget(lista_, 1);
  colonna->addWidget(avviso);
  return parte;
}

QWidget* ZgemmitFinestra::fa_conto() {
  auto* riquadro = new QGroupBox(QStringLiteral("Conto vendita"));
  riquadro->setFont(Carattere(punti_normali, true));
  auto* griglia = new QGridLayout(riquadro);
  for (int campo = 0; campo < static_cast<int>(campi_.size()); ++campo) fa_campo(griglia, campo);
  griglia->addWidget(fa_bottone(QStringLiteral("Command4"), zgemmit_.Command4, [this] { apri_fornitori(); }),
                     static_cast<int>(Campo_Fornitore), 2);
  griglia->addWidget(fa_bottone(QStringLiteral("Command3"), zgemmit_.Command3,
                                [this] { ModificaDati(programma_, zgemmit_); }),
                     static_cast<int>(campi_.size()), 1, 1, 2);
  return riquadro;
}

void ZgemmitFinestra::fa_campo(QGridLayout* griglia, int campo) {
  const auto posto = static_cast<std::size_t>(campo);
  auto* didascalia = new QLabel;
  didascalia->setFont(Carattere(punti_normali));
  legame.lega(didascalia, QStringLiteral("Caption(%1)").arg(campo), zgemmit_.Caption[posto]);
  campi_[posto] = new CasellaTesto;
  CasellaTesto* casella = campi_[posto];
  casella->setFont(Carattere(punti_normali));
  casella->setAccessibleName(In_QString(zgemmit_.Caption[posto].testo));
  casella->setMinimumWidth(casella->fontMetrics().averageCharWidth() * 28);
  casella->installEventFilter(this);
  didascalia->setBuddy(casella);
  legame.lega(casella, QStringLiteral("Text1(%1)").arg(campo), zgemmit_.Text1[posto]);
  griglia->addWidget(didascalia, campo, 0);
  griglia->addWidget(casella, campo, 1, 1, campo == Campo_Fornitore ? 1 : 2);
}

QWidget* ZgemmitFinestra::fa_stampa() {
  auto* riquadro = new QGroupBox(QStringLiteral("Stampa"));
  riquadro->setFont(Carattere(punti_normali, true));
  auto* colonna = new QVBoxLayout(riquadro);
  struct Casella {
    const char* nome;
    Spunta& stato;
  };
  const Casella caselle[] = {{"Check1", zgemmit_.Check1}, {"Check2", zgemmit_.Check2}};
  for (const auto& [nome, stato] : caselle) {
    const QString didascalia = In_QString(stato.didascalia);
    auto* casella = new QCheckBox(didascalia);
    casella->setFont(Carattere(punti_normali));
    casella->setAccessibleName(didascalia);
    legame.lega(casella, QString::fromUtf8(nome), stato);
    colonna->addWidget(casella);
  }
  auto* copie = new QComboBox;
  copie->setFont(Carattere(punti_normali));
  copie->setAccessibleName(QStringLiteral("Copie"));
  legame.lega(copie, QStringLiteral("Combo1"), zgemmit_.Combo1);
  colonna->addWidget(copie);
  auto* stampante = new QLabel;
  stampante->setFont(Carattere(punti_normali));
  legame.lega(stampante, QStringLiteral("Stampante"), zgemmit_.Stampante);
  colonna->addWidget(stampante);
  colonna->addWidget(fa_bottone(QStringLiteral("Command1"), zgemmit_.Command1,
                                [this] { MostraAnteprima(programma_, zgemmit_); }));
  colonna->addWidget(
      fa_bottone(QStringLiteral("Command2"), zgemmit_.Command2, [this] { StampaCV(programma_, zgemmit_); }));
  colonna->addStretch();
  colonna->addWidget(
      fa_bottone(QStringLiteral("Chiudi"), zgemmit_.Chiudi, [this] { ChiudiConti(programma_, zgemmit_); }));
  return riquadro;
}

QPushButton* ZgemmitFinestra::fa_bottone(const QString& nome, Bottone& stato, Legame::Evento evento) {
  QPushButton* bottone = Fa_Bottone(stato);
  legame.lega(bottone, nome, stato, std::move(evento));
  return bottone;
}

void ZgemmitFinestra::apri_fornitori() {
  Apri_Fornitori(programma_, this, [this](const Testo& nome, const Testo&, const Testo&) {
    legame.esegui([&] { ScegliFornitore(zgemmit_, nome); });
  });
}

void ZgemmitFinestra::porta_fuoco() {
  const int fuoco = std::exchange(zgemmit_.fuoco, Zgemmit::nessun_fuoco);
  if (fuoco == Zgemmit::fuoco_Lista) lista_->setFocus(Qt::OtherFocusReason);
  if (fuoco >= 0) campi_[static_cast<std::size_t>(fuoco)]->setFocus(Qt::OtherFocusReason);
}

void ZgemmitFinestra::mostra() {
  const bool coperta = anteprima_ && anteprima_->isHidden();
  Finestra::mostra();
  const QString titolo = In_QString(zgemmit_.titolo);
  if (windowTitle() != titolo) setWindowTitle(titolo);
  if (coperta && anteprima_ && !anteprima_->isHidden()) anteprima_->setFocus(Qt::OtherFocusReason);
  porta_fuoco();
  if (!zgemmit_.chiusa || in_chiusura_) return;
  in_chiusura_ = true;
  QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

// Enter and the arrows go through the fields; in the fields of amounts any key but a digit is the decimal
// separator.
bool ZgemmitFinestra::tasto_campo(int campo, const QKeyEvent& evento) {
  bool usato = false;
  legame.esegui([&] { usato = TastoCampoConto(zgemmit_, campo, Da_QKeyEvent(evento)); });
  if (usato) return true;
  const QString scritto = evento.text();
  const bool carattere = scritto.size() == 1 && scritto.at(0).isPrint() &&
                         !(evento.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  if (!carattere) return false;
  QLineEdit* casella = campi_[static_cast<std::size_t>(campo)];
  QString resto = casella->text();
  if (casella->hasSelectedText()) resto.remove(casella->selectionStart(), casella->selectionLength());
  const char battuto = Da_QString(scritto).front();
  const auto entra = CarattereCampoConto(campo, battuto, Da_QString(resto), programma_.Separatore_Decimale);
  if (entra == battuto) return false;
  if (entra) casella->insert(In_QString(Testo(1, *entra)));
  return true;
}

bool ZgemmitFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  const auto dove = std::find(campi_.begin(), campi_.end(), oggetto);
  if (dove == campi_.end()) return Finestra::eventFilter(oggetto, evento);
  const int campo = static_cast<int>(dove - campi_.begin());
  if (evento->type() == QEvent::KeyPress && tasto_campo(campo, *static_cast<QKeyEvent*>(evento))) return true;
  if (evento->type() == QEvent::MouseButtonDblClick) {
    legame.esegui([&] { DoppioClicCampo(programma_, zgemmit_, campo); });
    return true;
  }
  return Finestra::eventFilter(oggetto, evento);
}

void ZgemmitFinestra::keyPressEvent(QKeyEvent* evento) {
  const Pressione pressione = Da_QKeyEvent(*evento);
  bool usato = false;
  legame.esegui([&] { usato = TastoConti(programma_, zgemmit_, pressione); });
  if (!usato) Finestra::keyPressEvent(evento);
}

void ZgemmitFinestra::closeEvent(QCloseEvent* evento) {
  if (!zgemmit_.chiusa) {
    in_chiusura_ = true;
    if (!occupata()) legame.esegui([this] { ChiudiConti(programma_, zgemmit_); });
    in_chiusura_ = zgemmit_.chiusa;
  }
  if (zgemmit_.chiusa)
    Finestra::closeEvent(evento);
  else
    evento->ignore();
}

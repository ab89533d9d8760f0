#include "accounts/screens/zvendita_finestra.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>

#include "lists/screens/fornitori_finestra.h"
#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"

namespace {

constexpr double punti_anteprima = 8.25;
constexpr int caratteri_lista = 74;

// A box that takes the screen's colour.
QCheckBox* Fa_Casella(const Spunta& stato) {
  auto* casella = new QCheckBox(In_QString(stato.didascalia));
  casella->setFont(Carattere(punti_normali));
  casella->setBackgroundRole(QPalette::Window);
  casella->setForegroundRole(QPalette::WindowText);
  return casella;
}

}  // namespace

ZvenditaFinestra::ZvenditaFinestra(Programma& programma, QWidget* padre)
    : Finestra(QStringLiteral("Zvendita"), padre, Qt::Window), programma_(programma) {
  ApriConti(programma_, zvendita_);
  setFont(Carattere(punti_normali));
  setWindowTitle(QStringLiteral("Conto Vendita"));

  auto* schermo = new QWidget;
  legame.lega(schermo, QStringLiteral("Schermo"), zvendita_.Schermo);
  auto* sovrapposti = new QGridLayout(schermo);  // one over the other, so that the window keeps its size
  sovrapposti->setContentsMargins(18, 14, 18, 14);
  sovrapposti->addWidget(fa_pannello(), 0, 0);
  anteprima_ = new ListaVoci(punti_anteprima);
  anteprima_->setAccessibleName(QStringLiteral("Anteprima del conto vendita"));
  legame.lega(anteprima_, QStringLiteral("Anteprima"), zvendita_.Anteprima);
  sovrapposti->addWidget(anteprima_, 0, 0);

  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(0, 0, 0, 0);
  tutto->setMenuBar(fa_menu());
  tutto->addWidget(schermo, 1);
  mostra();
  lista_->setFocus(Qt::OtherFocusReason);
}

QMenuBar* ZvenditaFinestra::fa_menu() {
  auto* barra = new QMenuBar;
  const auto voce = [&](const char* nome, Bottone& stato, Legame::Evento evento) {
    legame.lega(barra->addAction(In_QString(stato.testo)), QString::fromUtf8(nome), stato, std::move(evento));
  };
  voce("Canc_Numerazione", zvendita_.Canc_Numerazione,
       [this] { CancellaNumerazione(programma_, zvendita_); });
  voce("Rinumera", zvendita_.Rinumera, [this] { Rinumera(programma_, zvendita_); });
  voce("Salva_Numerazione", zvendita_.Salva_Numerazione, [this] { SalvaNumerazione(programma_, zvendita_); });
  voce("Stato_IVA", zvendita_.Stato_IVA, {});
  voce("Aiuto", zvendita_.Aiuto, [this] { MostraAiutoConti(programma_, zvendita_); });
  return barra;
}

QWidget* ZvenditaFinestra::fa_pannello() {
  auto* pannello = new QWidget;
  legame.lega(pannello, QStringLiteral("Pannello"), zvendita_.Pannello);
  auto* destra = new QVBoxLayout;
  destra->setSpacing(12);
  destra->addWidget(fa_stampa());
  destra->addWidget(fa_opzioni());
  destra->addStretch();
  destra->addWidget(fa_bottone("Command5", zvendita_.Command5, [this] { CambiaAltreOpzioni(zvendita_); }));
  destra->addWidget(fa_bottone("Chiudi", zvendita_.Chiudi, [this] { ChiudiConti(programma_, zvendita_); }));
  auto* sinistra = new QVBoxLayout;
  sinistra->setSpacing(12);
  sinistra->addLayout(fa_lista(), 1);
  sinistra->addWidget(fa_conto());
  auto* affiancate = new QHBoxLayout(pannello);
  affiancate->setContentsMargins(0, 0, 0, 0);
  affiancate->setSpacing(14);
  affiancate->addLayout(sinistra, 1);
  affiancate->addLayout(destra);
  return pannello;
}

QBoxLayout* ZvenditaFinestra::fa_lista() {
  auto* colonna = new QVBoxLayout;
  colonna->setSpacing(2);
  lista_ = new ListaVoci(programma_.preferenze.DimFontListe);
  lista_->setAccessibleName(QStringLiteral("Conti vendita"));
  lista_->setMinimumWidth(lista_->fontMetrics().horizontalAdvance(QLatin1Char('0')) * caratteri_lista);
  auto* titolo = new QLabel;
  titolo->setFont(lista_->font());
  titolo->setIndent(lista_->frameWidth() + 1);
  legame.lega(titolo, QStringLiteral("Titolo_Lista"), zvendita_.Titolo_Lista);
  legame.lega(lista_, QStringLiteral("ListaCV"), zvendita_.ListaCV,
              [this] { SceltaConto(zvendita_, zvendita_.ListaCV.scelta); });
  colonna->addWidget(titolo);
  colonna->addWidget(lista_, 1);
  return colonna;
}

QGroupBox* ZvenditaFinestra::fa_conto() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Conto"));
  auto* griglia = new QGridLayout(riquadro);
  for (int i = Campo_NCV; i <= Campo_Prov; ++i) {
    fa_campo(i, riquadro);
    auto* didascalia = riquadro->findChild<QLabel*>(QStringLiteral("Caption(%1)").arg(i));
    griglia->addWidget(didascalia, i % 3, i / 3 * 3);
    griglia->addWidget(campi_[static_cast<std::size_t>(i)], i % 3, i / 3 * 3 + 1);
  }
  auto* fornitori = fa_bottone("Command4", zvendita_.Command4, [this] { apri_fornitori(); });
  fornitori->setMinimumWidth(0);
  griglia->addWidget(fornitori, Campo_Fornitore, 2);
  auto* comandi = new QHBoxLayout;
  comandi->addWidget(
      fa_bottone("Command1", zvendita_.Command1, [this] { ConfermaDati(programma_, zvendita_); }));
  comandi->addWidget(
      fa_bottone("Command3", zvendita_.Command3, [this] { ModificaDati(programma_, zvendita_); }));
  griglia->addLayout(comandi, 3, 0, 1, 5);
  griglia->setColumnStretch(1, 1);
  griglia->setColumnStretch(4, 1);
  return riquadro;
}

QGroupBox* ZvenditaFinestra::fa_stampa() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Stampa"));
  auto* colonna = new QVBoxLayout(riquadro);
  const auto casella = [&](const char* nome, Spunta& stato) {
    auto* spunta = Fa_Casella(stato);
    legame.lega(spunta, QString::fromUtf8(nome), stato);
    colonna->addWidget(spunta);
  };
  casella("Check1", zvendita_.Check1);
  casella("Check3", zvendita_.Check3);
  casella("Check4", zvendita_.Check4);
  auto* copie = new QComboBox;
  copie->setFont(Carattere(punti_normali));
  copie->setAccessibleName(QStringLiteral("Copie"));
  legame.lega(copie, QStringLiteral("Combo1"), zvendita_.Combo1);
  copie->installEventFilter(this);
  copie_ = copie;
  colonna->addWidget(copie);
  colonna->addWidget(fa_bottone("Command2", zvendita_.Command2, [this] { StampaCV(programma_, zvendita_); }));
  return riquadro;
}

QGroupBox* ZvenditaFinestra::fa_opzioni() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Opzioni"));
  legame.lega(riquadro, QStringLiteral("Riquadro_Opzioni"), zvendita_.Riquadro_Opzioni);
  auto* griglia = new QGridLayout(riquadro);
  const auto casella = [&](const char* nome, Spunta& stato, Legame::Evento evento) {
    auto* spunta = Fa_Casella(stato);
    legame.lega(spunta, QString::fromUtf8(nome), stato, std::move(evento));
    griglia->addWidget(spunta, griglia->rowCount(), 0, 1, 2);
  };
  const auto campo = [&](int indice) {
    fa_campo(indice, riquadro);
    const int riga = griglia->rowCount();
    griglia->addWidget(riquadro->findChild<QLabel*>(QStringLiteral("Caption(%1)").arg(indice)), riga, 0);
    griglia->addWidget(campi_[static_cast<std::size_t>(indice)], riga, 1);
  };
  casella("Check5", zvendita_.Check5, {});
  casella("Check6", zvendita_.Check6, [this] { CambiaAzzeraIva(zvendita_); });
  casella("Check7", zvendita_.Check7, {});
  casella("Check2", zvendita_.Check2, {});
  casella("Check8", zvendita_.Check8, [this] { CambiaAggioBanca(zvendita_); });
  campo(Campo_Aggio);
  campo(Campo_Citta);
  return riquadro;
}

// The field and its caption, for the caller to place.
void ZvenditaFinestra::fa_campo(int indice, QWidget* dove) {
  const auto posto = static_cast<std::size_t>(indice);
  auto* didascalia = new QLabel(dove);
  didascalia->setFont(Carattere(punti_normali));
  legame.lega(didascalia, QStringLiteral("Caption(%1)").arg(indice), zvendita_.Caption[posto]);
  auto* campo = new CasellaTesto(dove);
  campo->setFont(Carattere(punti_normali));
  campo->setAccessibleName(In_QString(zvendita_.Caption[posto].testo));
  campo->setMinimumWidth(campo->fontMetrics().averageCharWidth() * 14);
  legame.lega(campo, QStringLiteral("Text1(%1)").arg(indice), zvendita_.Text1[posto]);
  campo->installEventFilter(this);
  didascalia->setBuddy(campo);
  campi_[posto] = campo;
}

QPushButton* ZvenditaFinestra::fa_bottone(const char* nome, Bottone& stato, Legame::Evento evento) {
  QPushButton* bottone = Fa_Bottone(stato);
  legame.lega(bottone, QString::fromUtf8(nome), stato, std::move(evento));
  return bottone;
}

void ZvenditaFinestra::apri_fornitori() {
  Apri_Fornitori(programma_, this, [this](const Testo& nome, const Testo&, const Testo&) {
    legame.esegui([&] { ScegliFornitore(zvendita_, nome); });
  });
}

void ZvenditaFinestra::mostra() {
  const bool coperto = anteprima_->isHidden() == zvendita_.Anteprima.visibile;
  Finestra::mostra();
  const QString titolo = In_QString(zvendita_.titolo);
  if (windowTitle() != titolo) setWindowTitle(titolo);
  // the list that comes in front takes the keyboard
  if (coperto && zvendita_.Anteprima.visibile) anteprima_->setFocus(Qt::OtherFocusReason);
  prendi_fuoco();
  if (!zvendita_.chiusa || in_chiusura_) return;
  in_chiusura_ = true;
  QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

void ZvenditaFinestra::prendi_fuoco() {
  const int dove = std::exchange(zvendita_.fuoco, Zvendita::nessun_fuoco);
  if (dove == Zvendita::fuoco_Lista) lista_->setFocus(Qt::OtherFocusReason);
  if (dove < 0) return;
  QLineEdit* campo = campi_[static_cast<std::size_t>(dove)];
  campo->setFocus(Qt::OtherFocusReason);
  Seleziona_Tutto(campo);
}

int ZvenditaFinestra::indice_di(const QObject* oggetto) const {
  const auto posto = std::find(campi_.begin(), campi_.end(), oggetto);
  return posto == campi_.end() ? -1 : static_cast<int>(posto - campi_.begin());
}

bool ZvenditaFinestra::tasto_campo(int indice, const QKeyEvent& evento) {
  const Pressione pressione = Da_QKeyEvent(evento);
  bool usato = false;
  legame.esegui([&] { usato = TastoCampoConto(zvendita_, indice, pressione); });
  if (usato) return true;
  const QString scritto = evento.text();
  if (scritto.isEmpty() || !scritto[0].isPrint() || pressione.ctrl || pressione.alt) return false;
  QLineEdit* campo = campi_[static_cast<std::size_t>(indice)];
  QString resto = campo->text();
  if (campo->hasSelectedText()) resto.remove(campo->selectionStart(), campo->selectedText().size());
  const Testo carattere = Da_QString(scritto);
  const auto passa =
      CarattereCampoConto(indice, carattere[0], Da_QString(resto), programma_.Separatore_Decimale);
  if (passa == carattere[0]) return false;
  if (passa) campo->insert(QString(QLatin1Char(*passa)));
  return true;
}

bool ZvenditaFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  const int indice = indice_di(oggetto);
  if (indice >= 0 && evento->type() == QEvent::KeyPress)
    return tasto_campo(indice, *static_cast<QKeyEvent*>(evento));
  if (oggetto == copie_ && evento->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(evento)->key() == Qt::Key_F4) {
    keyPressEvent(static_cast<QKeyEvent*>(evento));  // the list of copies would open with it
    return true;
  }
  if (indice >= 0 && evento->type() == QEvent::MouseButtonDblClick)
    legame.esegui([&] { DoppioClicCampo(programma_, zvendita_, indice); });
  return Finestra::eventFilter(oggetto, evento);
}

// The list takes the arrows itself; what the fields leave comes here.
void ZvenditaFinestra::keyPressEvent(QKeyEvent* evento) {
  const Pressione pressione = Da_QKeyEvent(*evento);
  bool usato = false;
  legame.esegui([&] { usato = TastoConti(programma_, zvendita_, pressione); });
  if (!usato) Finestra::keyPressEvent(evento);
}

void ZvenditaFinestra::closeEvent(QCloseEvent* evento) {
  if (!zvendita_.chiusa) {
    in_chiusura_ = true;
    if (!occupata()) legame.esegui([this] { ChiudiConti(programma_, zvendita_); });
    in_chiusura_ = zvendita_.chiusa;
  }
  if (zvendita_.chiusa)
    Finestra::closeEvent(evento);
  else
    evento->ignore();
}

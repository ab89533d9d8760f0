#include "accounts/screens/zvendita_finestra.h"

#include <QAction>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>

#include "lists/screens/liste_finestre.h"
#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"

namespace {

constexpr double punti_anteprima = 8.25;
constexpr int caratteri_lista = 74, caratteri_campo = 14;

}  // namespace

ZvenditaFinestra::ZvenditaFinestra(Programma& programma, QWidget* padre)
    : Finestra(QStringLiteral("Zvendita"), padre, Qt::Window), programma_(programma) {
  ApriConti(programma_, zvendita_);
  intitola(zvendita_.titolo);
  si_chiude(zvendita_.chiusa, [this] { ChiudiConti(programma_, zvendita_); });
  setFont(Carattere(punti_normali));

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
  fa_voce(barra, QStringLiteral("Canc_Numerazione"), zvendita_.Canc_Numerazione,
          [this] { CancellaNumerazione(programma_, zvendita_); });
  fa_voce(barra, QStringLiteral("Rinumera"), zvendita_.Rinumera, [this] { Rinumera(programma_, zvendita_); });
  fa_voce(barra, QStringLiteral("Salva_Numerazione"), zvendita_.Salva_Numerazione,
          [this] { SalvaNumerazione(programma_, zvendita_); });
  fa_voce(barra, QStringLiteral("Stato_IVA"), zvendita_.Stato_IVA, {});
  fa_voce(barra, QStringLiteral("Aiuto"), zvendita_.Aiuto,
          [this] { MostraAiutoConti(programma_, zvendita_); });
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
  destra->addWidget(
      fa_bottone(QStringLiteral("Command5"), zvendita_.Command5, [this] { CambiaAltreOpzioni(zvendita_); }));
  destra->addWidget(
      fa_bottone(QStringLiteral("Chiudi"), zvendita_.Chiudi, [this] { ChiudiConti(programma_, zvendita_); }));
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
  legame.lega(lista_, QStringLiteral("ListaCV"), zvendita_.ListaCV,
              [this] { SceltaConto(zvendita_, zvendita_.ListaCV.scelta); });
  colonna->addWidget(fa_titoli(QStringLiteral("Titolo_Lista"), zvendita_.Titolo_Lista, *lista_));
  colonna->addWidget(lista_, 1);
  return colonna;
}

QGroupBox* ZvenditaFinestra::fa_conto() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Conto"));
  auto* griglia = new QGridLayout(riquadro);
  for (int i = Campo_NCV; i <= Campo_Prov; ++i) fa_cella(i, griglia, i % 3, i / 3 * 3);
  auto* fornitori = fa_bottone(QStringLiteral("Command4"), zvendita_.Command4, [this] { apri_fornitori(); });
  fornitori->setMinimumHeight(0);  // as the field beside it
  fornitori->setMinimumWidth(0);
  griglia->addWidget(fornitori, Campo_Fornitore, 2);
  auto* comandi = new QHBoxLayout;
  comandi->addWidget(fa_bottone(QStringLiteral("Command1"), zvendita_.Command1,
                                [this] { ConfermaDati(programma_, zvendita_); }));
  comandi->addWidget(fa_bottone(QStringLiteral("Command3"), zvendita_.Command3,
                                [this] { ModificaDati(programma_, zvendita_); }));
  griglia->addLayout(comandi, 3, 0, 1, 5);
  griglia->setColumnStretch(1, 1);
  griglia->setColumnStretch(4, 1);
  return riquadro;
}

QGroupBox* ZvenditaFinestra::fa_stampa() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Stampa"));
  auto* colonna = new QVBoxLayout(riquadro);
  colonna->addWidget(fa_spunta(QStringLiteral("Check1"), zvendita_.Check1));
  colonna->addWidget(fa_spunta(QStringLiteral("Check3"), zvendita_.Check3));
  colonna->addWidget(fa_spunta(QStringLiteral("Check4"), zvendita_.Check4));
  copie_ = fa_tendina(QStringLiteral("Combo1"), QStringLiteral("Copie"), zvendita_.Combo1);
  copie_->installEventFilter(this);
  colonna->addWidget(copie_);
  colonna->addWidget(fa_bottone(QStringLiteral("Command2"), zvendita_.Command2,
                                [this] { StampaCV(programma_, zvendita_); }));
  return riquadro;
}

QGroupBox* ZvenditaFinestra::fa_opzioni() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Opzioni"));
  legame.lega(riquadro, QStringLiteral("Riquadro_Opzioni"), zvendita_.Riquadro_Opzioni);
  auto* griglia = new QGridLayout(riquadro);
  const auto casella = [&](const char* nome, Spunta& stato, Legame::Evento evento) {
    griglia->addWidget(fa_spunta(QString::fromUtf8(nome), stato, std::move(evento)), griglia->rowCount(), 0,
                       1, 2);
  };
  casella("Check5", zvendita_.Check5, {});
  casella("Check6", zvendita_.Check6, [this] { CambiaAzzeraIva(zvendita_); });
  casella("Check7", zvendita_.Check7, {});
  casella("Check2", zvendita_.Check2, {});
  casella("Check8", zvendita_.Check8, [this] { CambiaAggioBanca(zvendita_); });
  for (const int indice : {Campo_Aggio, Campo_Citta}) fa_cella(indice, griglia, griglia->rowCount(), 0);
  return riquadro;
}

void ZvenditaFinestra::fa_cella(int indice, QGridLayout* griglia, int riga, int colonna) {
  const auto posto = static_cast<std::size_t>(indice);
  auto* didascalia = fa_scritta(QStringLiteral("Caption(%1)").arg(indice), zvendita_.Caption[posto]);
  auto* campo = fa_campo(QStringLiteral("Text1(%1)").arg(indice), zvendita_.Text1[posto],
                         zvendita_.Caption[posto], caratteri_campo);
  campo->installEventFilter(this);
  didascalia->setBuddy(campo);
  campi_[posto] = campo;
  griglia->addWidget(didascalia, riga, colonna);
  griglia->addWidget(campo, riga, colonna + 1);
}

// A box that takes the screen's colour.
QWidget* ZvenditaFinestra::fa_spunta(const QString& nome, Spunta& stato, Legame::Evento evento) {
  QCheckBox* casella = fa_casella(nome, stato, std::move(evento));
  casella->setBackgroundRole(QPalette::Window);
  casella->setForegroundRole(QPalette::WindowText);
  return casella;
}

void ZvenditaFinestra::apri_fornitori() {
  Apri_Fornitori(programma_, this, [this](const Testo& nome, const Testo&, const Testo&) {
    legame.esegui([&] { ScegliFornitore(zvendita_, nome); });
  });
}

void ZvenditaFinestra::mostra() {
  const bool coperto = anteprima_->isHidden() == zvendita_.Anteprima.visibile;
  Finestra::mostra();
  // the list that comes in front takes the keyboard
  if (coperto && zvendita_.Anteprima.visibile) anteprima_->setFocus(Qt::OtherFocusReason);
  prendi_fuoco();
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
  if (legame.usa([&] { return TastoCampoConto(zvendita_, indice, pressione); })) return true;
  return Batti_Carattere(*campi_[static_cast<std::size_t>(indice)], evento,
                         [this, indice](char battuto, const Testo& resta) {
                           return CarattereCampoConto(indice, battuto, resta, programma_.Separatore_Decimale);
                         });
}

bool ZvenditaFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  const int indice = indice_di(oggetto);
  if (indice >= 0 && evento->type() == QEvent::KeyPress)
    return tasto_campo(indice, *static_cast<QKeyEvent*>(evento));
  if (oggetto == copie_ && evento->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(evento)->key() == Qt::Key_F4) {
    tasto(Da_QKeyEvent(*static_cast<QKeyEvent*>(evento)));  // the list of copies would open with it
    return true;
  }
  if (indice >= 0 && evento->type() == QEvent::MouseButtonDblClick)
    legame.esegui([&] { DoppioClicCampo(programma_, zvendita_, indice); });
  return Finestra::eventFilter(oggetto, evento);
}

// The list takes the arrows itself; what the fields leave comes here.
bool ZvenditaFinestra::tasto(const Pressione& pressione) {
  return legame.usa([&] { return TastoConti(programma_, zvendita_, pressione); });
}

#include "accounts/screens/gemmit_finestra.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>

#include "lists/screens/liste_finestre.h"
#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"
#include "printing/screens/stampante_finestra.h"

namespace {

constexpr double punti_anteprima = 8.25;
constexpr int margine = 14, stacco = 12, righe_in_vista = 10, caratteri_campo = 28;

}  // namespace

ZgemmitFinestra::ZgemmitFinestra(Programma& programma, QWidget* padre)
    : Finestra(QStringLiteral("Zgemmit"), padre, Qt::Window), programma_(programma) {
  ApriContiManuali(programma_, zgemmit_);
  intitola(zgemmit_.titolo);
  si_chiude(zgemmit_.chiusa, [this] { ChiudiConti(programma_, zgemmit_); });
  setFont(Carattere(punti_normali));
  anteprima_ = new ListaVoci(punti_anteprima);
  anteprima_->setAccessibleName(QStringLiteral("Anteprima del conto vendita"));
  legame.lega(anteprima_, QStringLiteral("Anteprima"), zgemmit_.Anteprima);

  auto* dentro = new QGridLayout;  // one over the other, so that the window keeps its size
  dentro->setContentsMargins(margine, margine, margine, margine);
  dentro->addWidget(fa_pannello(), 0, 0);
  dentro->addWidget(anteprima_, 0, 0);
  disponi(fa_menu(), dentro);
  mostra();
  lista_->setFocus(Qt::OtherFocusReason);
}

QMenuBar* ZgemmitFinestra::fa_menu() {
  auto* barra = new QMenuBar;
  fa_voce(barra, QStringLiteral("Scelta_Stampante"), zgemmit_.Scelta_Stampante, [this] {
    StampanteFinestra(programma_, this).esegui();
    AggiornaComandi(programma_, zgemmit_);
  });
  fa_voce(barra, QStringLiteral("Aiuto"), zgemmit_.Aiuto, [this] { MostraAiutoConti(programma_, zgemmit_); });
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
  legame.lega(lista_, QStringLiteral("ListaCV"), zgemmit_.ListaCV,
              [this] { SceltaConto(programma_, zgemmit_, zgemmit_.ListaCV.scelta); });
  const QFontMetrics misure = lista_->fontMetrics();
  lista_->setMinimumWidth(misure.horizontalAdvance(QLatin1Char('0')) * 72);
  lista_->setMinimumHeight(misure.height() * righe_in_vista);
  auto* avviso = fa_scritta(QStringLiteral("Avviso"), zgemmit_.Avviso);
  avviso->setWordWrap(true);
  colonna->addWidget(fa_titoli(QStringLiteral("Titolo_Lista"), zgemmit_.Titolo_Lista, *lista_));
  colonna->addWidget(lista_, 1);
  colonna->addWidget(avviso);
  return parte;
}

QWidget* ZgemmitFinestra::fa_conto() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Conto vendita"));
  auto* griglia = new QGridLayout(riquadro);
  for (int campo = 0; campo < static_cast<int>(campi_.size()); ++campo) fa_cella(griglia, campo);
  auto* fornitori = fa_bottone(QStringLiteral("Command4"), zgemmit_.Command4, [this] { apri_fornitori(); });
  fornitori->setMinimumHeight(0);  // as the field beside it
  griglia->addWidget(fornitori, static_cast<int>(Campo_Fornitore), 2);
  griglia->addWidget(fa_bottone(QStringLiteral("Command3"), zgemmit_.Command3,
                                [this] { ModificaDati(programma_, zgemmit_); }),
                     static_cast<int>(campi_.size()), 1, 1, 2);
  return riquadro;
}

void ZgemmitFinestra::fa_cella(QGridLayout* griglia, int campo) {
  const auto posto = static_cast<std::size_t>(campo);
  auto* didascalia = fa_scritta(QStringLiteral("Caption(%1)").arg(campo), zgemmit_.Caption[posto]);
  CasellaTesto* casella = fa_campo(QStringLiteral("Text1(%1)").arg(campo), zgemmit_.Text1[posto],
                                   zgemmit_.Caption[posto], caratteri_campo);
  campi_[posto] = casella;
  casella->installEventFilter(this);
  didascalia->setBuddy(casella);
  griglia->addWidget(didascalia, campo, 0);
  griglia->addWidget(casella, campo, 1, 1, campo == Campo_Fornitore ? 1 : 2);
}

QWidget* ZgemmitFinestra::fa_stampa() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Stampa"));
  auto* colonna = new QVBoxLayout(riquadro);
  colonna->addWidget(fa_casella(QStringLiteral("Check1"), zgemmit_.Check1));
  colonna->addWidget(fa_casella(QStringLiteral("Check2"), zgemmit_.Check2));
  colonna->addWidget(fa_tendina(QStringLiteral("Combo1"), QStringLiteral("Copie"), zgemmit_.Combo1));
  colonna->addWidget(fa_scritta(QStringLiteral("Stampante"), zgemmit_.Stampante));
  colonna->addWidget(fa_bottone(QStringLiteral("Command1"), zgemmit_.Command1,
                                [this] { MostraAnteprima(programma_, zgemmit_); }));
  colonna->addWidget(
      fa_bottone(QStringLiteral("Command2"), zgemmit_.Command2, [this] { StampaCV(programma_, zgemmit_); }));
  colonna->addStretch();
  colonna->addWidget(
      fa_bottone(QStringLiteral("Chiudi"), zgemmit_.Chiudi, [this] { ChiudiConti(programma_, zgemmit_); }));
  return riquadro;
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
  const bool coperta = anteprima_->isHidden();
  Finestra::mostra();
  if (coperta && !anteprima_->isHidden()) anteprima_->setFocus(Qt::OtherFocusReason);
  porta_fuoco();
}

// Enter and the arrows go through the fields; in the fields of amounts any key but a digit is the decimal
// separator.
bool ZgemmitFinestra::tasto_campo(int campo, const QKeyEvent& evento) {
  if (legame.usa([&] { return TastoCampoConto(zgemmit_, campo, Da_QKeyEvent(evento)); })) return true;
  return Batti_Carattere(*campi_[static_cast<std::size_t>(campo)], evento,
                         [this, campo](char battuto, const Testo& resta) {
                           return CarattereCampoConto(campo, battuto, resta, programma_.Separatore_Decimale);
                         });
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

bool ZgemmitFinestra::tasto(const Pressione& pressione) {
  return legame.usa([&] { return TastoConti(programma_, zgemmit_, pressione); });
}

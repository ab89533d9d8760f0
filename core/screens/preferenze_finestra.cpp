#include "core/screens/preferenze_finestra.h"

#include <algorithm>
#include <iterator>

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "core/programma.h"
#include "platform/aspetto.h"
#include "platform/testo_qt.h"

namespace {

std::vector<Testo> Fonti_Della_Macchina() {
  std::vector<Testo> fonti;
  const auto famiglie = QFontDatabase::families(QFontDatabase::Latin);
  for (const QString& famiglia : famiglie)
    if (QFontDatabase::isSmoothlyScalable(famiglia) && !QFontDatabase::isPrivateFamily(famiglia))
      fonti.push_back(Da_QString(famiglia));
  return fonti;
}

// A point below the other screens, so that all settings stand in sight on a small screen.
constexpr double punti = 10;

// The order in which the settings stand in their groups; what isn't named here follows in the order of the
// table.
constexpr Vista ordine[] = {"nposteggio",
                            "PrimaAliquota",
                            "SecondaAliquota",
                            "TerzaAliquota",
                            "IBANCommissionario1",
                            "IBANCommissionario2",
                            "fonte",
                            "DimFont",
                            "DimFontListe",
                            "DimFontEdita",
                            "DimFontEtichetta",
                            "DASU3",
                            "BORDO3",
                            "FlagColonneListaVoci",
                            "FlagAutoSalvataggio",
                            "maxrighesalvate",
                            "FlagAllergeni",
                            "FlagLottiAutomatici",
                            "FlagCopiaNPinCommento",
                            "FlagNonBloccaMacro",
                            "FlagDataMacro",
                            "FlagAzzSoloPeso",
                            "FlagAzzeraPrezzo",
                            "FlagAzzCliente",
                            "FlagBarra",
                            "FlagTastierino",
                            "FlagMouse",
                            "FlagDetto",
                            "StringaCEE",
                            "StringaB",
                            "StringaC",
                            "FlagEllisse",
                            "FlagSpessoreEllisse",
                            "FlagComponiDDTNuovo",
                            "FlagDSimmediato",
                            "FlagDSimmediatoUR",
                            "FlagFAO",
                            "FlagAggDDT",
                            "FlagFirmaPN",
                            "FlagStampaFramePN",
                            "FlagC3pn",
                            "FlagStampaFrame",
                            "FlagNumCVAutomatica",
                            "FlagCVManuale",
                            "FlagModificaCV",
                            "FlagCaselleCV"};

std::vector<const Impostazione*> Del_Gruppo(Gruppo gruppo) {
  std::vector<const Impostazione*> esito;
  for (const Impostazione& impostazione : Impostazioni())
    if (impostazione.gruppo == gruppo) esito.push_back(&impostazione);
  std::ranges::stable_sort(esito, {}, [](const Impostazione* impostazione) {
    return std::ranges::find(ordine, Vista(impostazione->chiave)) - std::begin(ordine);
  });
  return esito;
}

// A detail of the setting above it.
bool Rientra(const Impostazione& impostazione) {
  return impostazione.chiave == "FlagSpessoreEllisse" || impostazione.chiave == "maxrighesalvate";
}

// Wordings, account numbers and long lists take the whole width, under their caption.
bool A_Tutta_Larghezza(const Impostazione& impostazione) {
  if (impostazione.chiave == "fonte" || impostazione.chiave == "FlagStampaFrame") return true;
  return std::holds_alternative<Testo Preferenze::*>(impostazione.posto) && impostazione.scelte.empty() &&
         impostazione.chiave != "nposteggio";
}

QWidget* Rientrato(QWidget* widget) {
  auto* riga = new QWidget;
  auto* orizzontale = new QHBoxLayout(riga);
  orizzontale->setContentsMargins(widget->fontMetrics().height() + 6, 0, 0, 0);
  orizzontale->addWidget(widget);
  return riga;
}

}  // namespace

PreferenzeFinestra::PreferenzeFinestra(Programma& programma, Vicini_Preferenze vicini, QWidget* padre)
    : FinestraModulo(QStringLiteral("Preferenze"), padre, Qt::Window), programma_(programma) {
  schermo_.larghezza_edita = std::move(vicini.larghezza_edita);
  schermo_.dimensioni_ddt = std::move(vicini.dimensioni_ddt);
  schermo_.personalizza = std::move(vicini.personalizza);
  Apri_Preferenze(programma_, schermo_, Fonti_Della_Macchina());
  intitola(schermo_.titolo);
  setFont(Carattere(punti));

  using Gruppi = std::initializer_list<std::pair<Gruppo, const char*>>;
  const std::initializer_list<Gruppi> colonne = {
      {{Gruppo::Ditta, "&Ditta"}, {Gruppo::Stampa, "&Stampa"}},
      {{Gruppo::Inserimento, "&Inserimento"}},
      {{Gruppo::Documenti, "D&ocumenti"}, {Gruppo::Prima_Nota, "Prima &Nota"}},
      {{Gruppo::Conto_Vendita, "Conto &Vendita"}, {Gruppo::Fatture, "Fa&tture"}}};
  auto* affiancate = new QHBoxLayout;
  affiancate->setSpacing(14);
  for (const Gruppi& colonna : colonne) {
    auto* sotto = new QVBoxLayout;
    sotto->setSpacing(12);
    for (const auto& [gruppo, titolo] : colonna)
      sotto->addWidget(fa_gruppo(gruppo, QString::fromUtf8(titolo)));
    sotto->addStretch();
    affiancate->addLayout(sotto);
  }

  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(18, 14, 18, 14);
  tutto->setSpacing(12);
  tutto->addLayout(affiancate, 1);
  tutto->addLayout(fa_comandi());
  mostra();
  const auto campi = findChildren<QLineEdit*>();
  for (QLineEdit* campo : campi) campo->home(false);  // a long wording is read from its beginning
}

QGroupBox* PreferenzeFinestra::fa_gruppo(Gruppo gruppo, const QString& titolo) {
  auto* riquadro = new QGroupBox(titolo);
  riquadro->setFont(Carattere(punti, true));
  auto* griglia = new QGridLayout(riquadro);
  griglia->setVerticalSpacing(5);
  griglia->setColumnStretch(0, 1);
  for (const Impostazione* impostazione : Del_Gruppo(gruppo)) fa_controllo(griglia, *impostazione);

  const int fine = griglia->rowCount();
  const auto apre = [this](const std::function<void()>& schermo) {
    return [this, &schermo] { Apri_Altro_Schermo(programma_, schermo_, schermo); };
  };
  if (gruppo == Gruppo::Documenti)
    griglia->addWidget(fa_bottone_piccolo(QStringLiteral("DimensioniDDT"), schermo_.DimensioniDDT,
                                          apre(schermo_.dimensioni_ddt)),
                       fine, 0, 1, 2);
  if (gruppo == Gruppo::Fatture)
    griglia->addWidget(fa_bottone_piccolo(QStringLiteral("Personalizza"), schermo_.Personalizza,
                                          apre(schermo_.personalizza)),
                       fine, 0, 1, 2);
  return riquadro;
}

QWidget* PreferenzeFinestra::fa_valore(const Impostazione& impostazione) {
  const QString nome = In_QString(impostazione.chiave);
  const auto tocca = [this] { Tocca_Preferenze(schermo_); };
  if (const auto elenco = schermo_.elenchi.find(impostazione.chiave); elenco != schermo_.elenchi.end()) {
    auto* casella = new QComboBox;
    casella->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    casella->setMinimumContentsLength(6);
    legame.lega(casella, nome, elenco->second, tocca);
    return casella;
  }
  auto* campo = new CasellaTesto;
  legame.lega(campo, nome, schermo_.campi.find(impostazione.chiave)->second, tocca);
  return campo;
}

void PreferenzeFinestra::fa_controllo(QGridLayout* griglia, const Impostazione& impostazione) {
  const int riga = griglia->rowCount();
  const QString didascalia = In_QString(impostazione.didascalia);
  if (const auto spunta = schermo_.spunte.find(impostazione.chiave); spunta != schermo_.spunte.end()) {
    auto* casella =
        fa_casella(In_QString(impostazione.chiave), spunta->second, [this] { Tocca_Preferenze(schermo_); });
    casella->setFont(Carattere(punti));
    griglia->addWidget(Rientra(impostazione) ? Rientrato(casella) : casella, riga, 0, 1, 2);
    return;
  }
  auto* scritta = new QLabel(didascalia);
  scritta->setFont(Carattere(punti));
  QWidget* valore = fa_valore(impostazione);
  valore->setFont(Carattere(punti));
  valore->setAccessibleName(didascalia);
  scritta->setBuddy(valore);
  if (!A_Tutta_Larghezza(impostazione)) {
    valore->setFixedWidth(valore->fontMetrics().horizontalAdvance(QStringLiteral("00000000000")));
    griglia->addWidget(Rientra(impostazione) ? Rientrato(scritta) : scritta, riga, 0);
    griglia->addWidget(valore, riga, 1);
    return;
  }
  griglia->addWidget(scritta, riga, 0, 1, 2);
  const bool con_bottone = impostazione.chiave == "fonte";
  griglia->addWidget(valore, riga + 1, 0, 1, con_bottone ? 1 : 2);
  if (con_bottone)
    griglia->addWidget(fa_bottone_piccolo(QStringLiteral("Default"), schermo_.Default,
                                          [this] { Fonte_Predefinita(schermo_); }),
                       riga + 1, 1);
}

QPushButton* PreferenzeFinestra::fa_bottone_piccolo(const QString& nome, Bottone& stato,
                                                    Legame::Evento evento) {
  auto* bottone = new QPushButton;
  bottone->setFont(Carattere(punti));
  bottone->setAutoDefault(true);  // Enter presses it
  legame.lega(bottone, nome, stato, std::move(evento));
  return bottone;
}

QLayout* PreferenzeFinestra::fa_comandi() {
  auto* riga = new QHBoxLayout;
  auto* esito = fa_scritta(QStringLiteral("Esito"), schermo_.Esito);
  esito->setFont(Carattere(punti));
  riga->addWidget(fa_bottone_piccolo(QStringLiteral("Predefiniti"), schermo_.Predefiniti,
                                     [this] { Riempi_Predefiniti(schermo_); }));
  riga->addWidget(esito, 1);
  riga->addWidget(fa_bottone_piccolo(QStringLiteral("Applica"), schermo_.Applica,
                                     [this] { Applica_Preferenze(programma_, schermo_); }));
  riga->addWidget(fa_bottone_piccolo(QStringLiteral("Chiudi"), schermo_.Chiudi, [this] { chiudi_dopo(); }));
  for (int i = 0; i < riga->count(); ++i)
    if (auto* bottone = qobject_cast<QPushButton*>(riga->itemAt(i)->widget())) {
      bottone->setMinimumWidth(bottone->fontMetrics().averageCharWidth() * 20);
      bottone->setMinimumHeight(bottone->fontMetrics().height() * 2);
    }
  return riga;
}

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

#include "entry/comandi.h"
#include "entry/liste_campi.h"
#include "entry/screens/edita_finestra.h"
#include "entry/screens/semaforo.h"
#include "platform/aspetto.h"
#include "platform/testo_qt.h"

// What stands where on the entry form. The order is that of the paper slip: who sells, who buys, what, from
// where and how, then weight, price, lot and boxes in the largest letters, and below what the program fills
// in.

enum class Misura { Piccola, Media, Lunga, Grande, Massima };

struct Cella {
  CampoRiga campo;
  int riga, colonna, largo;
  Misura misura = Misura::Grande;
};

namespace {

using enum CampoRiga;

constexpr int colonne = 24;
constexpr Cella celle[] = {
    {Num, 0, 0, 2},
    {Fornitore, 0, 2, 8},
    {Cliente, 0, 10, 9},
    {CodCliente, 0, 19, 5},
    {Specie, 1, 0, 8},
    {CodSpecie, 1, 8, 3},
    {ZonaP, 1, 11, 6, Misura::Lunga},
    {Prov, 1, 17, 7, Misura::Lunga},
    {MetodoPesca, 2, 0, 4, Misura::Media},
    {Pezzatura, 2, 4, 4, Misura::Media},
    {StatoFisico, 2, 8, 4, Misura::Media},
    {Lavorazione, 2, 12, 4, Misura::Media},
    {Preparazione, 2, 16, 4, Misura::Media},
    {PrimoImb, 2, 20, 4, Misura::Media},
    {Peso, 3, 0, 5, Misura::Massima},
    {Prezzo, 3, 5, 5, Misura::Massima},
    {Iva, 3, 10, 2, Misura::Massima},
    {Lotti, 3, 12, 8, Misura::Massima},
    {Colli, 3, 20, 4, Misura::Massima},
    {Commento, 4, 0, 5, Misura::Piccola},
    {Allergeni, 4, 5, 4, Misura::Piccola},
    {DDT_CV, 4, 9, 3, Misura::Piccola},
    {NCV, 4, 12, 3, Misura::Piccola},
    {DataCV, 4, 15, 2, Misura::Piccola},
    {SAnt, 4, 17, 3, Misura::Piccola},
    {Provvigione, 4, 20, 2, Misura::Piccola},
    {Controllato, 4, 22, 2, Misura::Piccola},
    {NomeLatino, 5, 0, 3, Misura::Piccola},
    {Famiglia, 5, 3, 2, Misura::Piccola},
    {NomeComune, 5, 5, 5, Misura::Piccola},
    {CodNumVeritas, 5, 10, 4, Misura::Piccola},
    {Alfa, 5, 14, 2, Misura::Piccola},
    {DDT, 5, 16, 4, Misura::Piccola},
    {FAT, 5, 20, 4, Misura::Piccola},
};

// Letters as multiples of the entry screen's text size.
double Fattore(Misura misura) {
  switch (misura) {
    case Misura::Massima:
      return 1.9;
    case Misura::Grande:
    case Misura::Lunga:  // as large, but lighter: the entries of zones and countries are long
      return 1.5;
    case Misura::Media:
      return 1.25;
    case Misura::Piccola:
      break;
  }
  return 1.1;
}

// Fields that the species list fills: Tab passes over them, a click corrects them for the row.
bool Dalla_Specie(CampoRiga campo) {
  return campo == NomeLatino || campo == Famiglia || campo == NomeComune || campo == CodNumVeritas ||
         campo == Alfa;
}

void Con_Carattere(QWidget* widget, double fattore, bool grassetto = false) {
  widget->setProperty("fattore", fattore);
  widget->setProperty("grassetto", grassetto);
}

// The arrow buttons carry their key.
QString Didascalia(const Voce_Comando& voce) {
  if (voce.tasto == Tasto::F8) return QStringLiteral("<  F8");
  if (voce.tasto == Tasto::F9) return QStringLiteral("F9  >");
  return In_QString(voce.didascalia);
}

// A form in which nothing moves: what is hidden leaves its room.
void Tiene_Posto(QWidget* widget) {
  QSizePolicy politica = widget->sizePolicy();
  politica.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(politica);
}

}  // namespace

QWidget* EditaFinestra::fa_modulo() {
  auto* modulo = new QWidget;
  auto* griglia = new QGridLayout(modulo);
  griglia->setContentsMargins(0, 0, 0, 0);
  griglia->setHorizontalSpacing(6);
  griglia->setVerticalSpacing(3);
  for (int i = 0; i < colonne; ++i) griglia->setColumnStretch(i, 1);
  for (const Cella& cella : celle) fa_cella(griglia, cella);

  constexpr int codici = Indice(CodiciConsolidare);
  campi_[codici] = new CasellaTesto(modulo);
  lega_campo(codici);
  edita_.Text1[codici].visibile = false;

  QWidget* prima = nullptr;
  for (const Cella& cella : celle) {
    QWidget* campo = campi_[static_cast<std::size_t>(Indice(cella.campo))];
    if (prima) setTabOrder(prima, campo);
    prima = campo;
  }
  return modulo;
}

void EditaFinestra::fa_cella(QGridLayout* griglia, const Cella& cella) {
  const int indice = Indice(cella.campo);
  const auto i = static_cast<std::size_t>(indice);
  auto* riquadro = new QWidget;
  auto* colonna = new QVBoxLayout(riquadro);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  auto* testa = new QHBoxLayout;
  testa->setSpacing(4);

  if (cella.campo == Lotti) {
    testa->addWidget(fa_bottone(QStringLiteral("Imposta_Lotti"), QStringLiteral("lotti"),
                                QStringLiteral("Imposta lista Lotti")));
    testa->addStretch(1);
    testa->addWidget(fa_bottone(QStringLiteral("Command25"), QStringLiteral("± giorno"),
                                QStringLiteral("Bottone Sx: giorno dopo...Bottone Dx: giorno prima")));
  } else {
    auto* titolo = new QLabel;
    legame.lega(titolo, QStringLiteral("Caption(%1)").arg(indice), edita_.Caption[i]);
    Con_Carattere(titolo, 1);
    titolo->setMinimumWidth(1);  // a long caption never widens its column
    Tiene_Posto(titolo);
    testa->addWidget(titolo, 1, Qt::AlignBottom);  // all captions of a line on one height
  }
  if (const Finestra_Campo* finestra = FinestraDelCampo(indice); finestra && finestra->campo == cella.campo)
    testa->addWidget(fa_bottone_lista(*finestra));
  if (cella.campo == DDT || cella.campo == FAT) {
    auto* bottone = new QToolButton;  // no wider than its word: the caption beside it stays whole
    const bool ddt = cella.campo == DDT;
    const CampoRiga campo = cella.campo;
    legame.lega(bottone, ddt ? QStringLiteral("BottoneDDT") : QStringLiteral("BottoneFAT"),
                ddt ? edita_.BottoneDDT : edita_.BottoneFAT,
                [this, campo] { BottoneNumero(programma_, edita_, campo); });
    bottone->setFocusPolicy(Qt::TabFocus);
    Con_Carattere(bottone, 0.9);
    testa->addWidget(bottone);
  }
  if (const int casella = CasellaCampo(indice); casella > 0) {
    auto* spunta = new QCheckBox;
    legame.lega(spunta, QStringLiteral("Check%1").arg(casella),
                edita_.Check[static_cast<std::size_t>(casella)],
                [this, casella] { CambiaSpunta(programma_, edita_, casella); });
    spunta->setFocusPolicy(Qt::TabFocus);
    spunta->setStyleSheet(QStringLiteral("QCheckBox::indicator { width: 1.3em; height: 1.3em; }"));
    Con_Carattere(spunta, 1.1);
    testa->addWidget(spunta, 0, Qt::AlignBottom);
  }
  colonna->addLayout(testa);

  auto* campo = new CasellaTesto;
  campi_[i] = campo;
  lega_campo(indice);
  Con_Carattere(campo, Fattore(cella.misura),
                cella.misura == Misura::Grande || cella.misura == Misura::Massima);
  campo->setMinimumWidth(1);
  if (Dalla_Specie(cella.campo)) campo->setFocusPolicy(Qt::ClickFocus);
  // Num is never keyed: with the first focus of the window its cursor would blink on while it is disabled.
  if (cella.campo == Num) campo->setFocusPolicy(Qt::NoFocus);
  colonna->addWidget(campo);
  Tiene_Posto(campo);
  griglia->addWidget(riquadro, cella.riga, cella.colonna, 1, cella.largo, Qt::AlignBottom);
  if (cella.riga > 1) piegabili_.push_back(riquadro);
}

QWidget* EditaFinestra::fa_lato() {
  auto* lato = new QWidget;
  auto* colonna = new QVBoxLayout(lato);
  colonna->setContentsMargins(0, 0, 0, 0);
  luce_ = new SemaforoLuce;
  luce_->setObjectName(QStringLiteral("SemaforoRiga"));
  Con_Carattere(luce_, 1.3, true);
  data_ = new QLabel;
  data_->setAlignment(Qt::AlignCenter);
  legame.lega(data_, QStringLiteral("Label4"), edita_.Label4);
  Con_Carattere(data_, 1.4, true);
  colonna->addWidget(luce_);
  colonna->addWidget(data_);

  for (const int casella : {12, 18}) {
    auto* spunta = new QCheckBox;
    legame.lega(spunta, QStringLiteral("Check%1").arg(casella),
                edita_.Check[static_cast<std::size_t>(casella)],
                [this, casella] { CambiaSpunta(programma_, edita_, casella); });
    spunta->setFocusPolicy(Qt::TabFocus);
    Con_Carattere(spunta, 1);
    colonna->addWidget(spunta);
    piegabili_.push_back(spunta);
  }
  colonna->addStretch();
  return lato;
}

QAbstractButton* EditaFinestra::fa_bottone(const QString& nome, const QString& didascalia,
                                           const QString& suggerimento) {
  auto* bottone = new QPushButton(didascalia);
  bottone->setObjectName(nome);
  bottone->setToolTip(suggerimento);
  bottone->setAccessibleName(Senza_Scorciatoia(didascalia));
  bottone->setFocusPolicy(Qt::TabFocus);  // a click leaves the keyboard in the field
  bottone->installEventFilter(this);
  Con_Carattere(bottone, 1);
  connect(bottone, &QPushButton::clicked, this, [this, nome] { esegui_comando(nome); });
  comandi_[nome].bottoni.push_back(bottone);
  return bottone;
}

// The list of a field, for the mouse; at the keyboard it is the key of the context menu in the field.
QAbstractButton* EditaFinestra::fa_bottone_lista(const Finestra_Campo& finestra) {
  const QString nome = In_QString(finestra.nome), didascalia = In_QString(finestra.didascalia);
  auto* bottone = new QToolButton;
  bottone->setText(QStringLiteral("..."));
  bottone->setObjectName(nome);
  bottone->setToolTip(didascalia);
  bottone->setAccessibleName(didascalia);
  bottone->setFocusPolicy(Qt::NoFocus);
  Con_Carattere(bottone, 1, true);
  Tiene_Posto(bottone);
  connect(bottone, &QToolButton::clicked, this, [this, nome] { esegui_comando(nome); });
  comandi_[nome].bottoni.push_back(bottone);
  return bottone;
}

QWidget* EditaFinestra::fa_comandi() {
  // The commands of the row, largest, and Chiudi far from them; below the jobs of the day, then the tools.
  constexpr std::array<Vista, 8> principali = {"Aggiungi",       "Modifica",       "Elimina", "Salva",
                                               "RigaPrecedente", "RigaSuccessiva", "Pulisci", "Chiudi"};
  constexpr std::array<Vista, 11> del_giorno = {"Conti_Vendita",    "Prima_Nota", "Doc_Trasporto", "DSI",
                                                "DSI_Riga",         "Fat",        "Saldo",         "KgCli",
                                                "Cerca_Acquirente", "Stat",       "Stat2"};
  auto* riquadro = new QWidget;
  auto* colonna = new QVBoxLayout(riquadro);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(3);
  auto* prima = new QHBoxLayout;
  auto* lavori = new QHBoxLayout;
  auto* strumenti = new QHBoxLayout;
  for (QHBoxLayout* riga : {prima, lavori, strumenti}) {
    riga->setSpacing(4);
    colonna->addLayout(riga);
  }

  for (const Vista nome : principali) {
    const auto comandi = Comandi();
    const auto voce = std::ranges::find(comandi, nome, &Voce_Comando::nome);
    if (voce == comandi.end()) continue;
    auto* bottone = fa_bottone(In_QString(voce->nome), Didascalia(*voce), In_QString(voce->suggerimento));
    Con_Carattere(bottone, 1.2, nome == "Aggiungi");
    if (nome == "Chiudi") prima->addStretch(1);
    prima->addWidget(bottone, nome == "Aggiungi" ? 2 : 0);
  }

  for (const Voce_Comando& voce : Comandi()) {
    const QString nome = In_QString(voce.nome);
    const bool principale = std::ranges::find(principali, voce.nome) != principali.end();
    if (principale || comandi_.contains(nome) || nome.startsWith(QLatin1String("Bottone"))) continue;
    const bool lavoro = std::ranges::find(del_giorno, voce.nome) != del_giorno.end();
    auto* bottone = fa_bottone(nome, In_QString(voce.didascalia), In_QString(voce.suggerimento));
    Con_Carattere(bottone, 0.9);
    (lavoro ? lavori : strumenti)->addWidget(bottone, 1);
  }
  piegabili_.push_back(riquadro);
  return riquadro;
}

void EditaFinestra::fa_menu(QMenuBar* barra) {
  std::map<QString, QMenu*> menu;
  for (const Voce_Menu& voce : Menu()) {
    const QString titolo = In_QString(voce.menu);
    const QString nome = In_QString(voce.nome);
    QAction* azione = nullptr;
    if (voce.voce.empty()) {
      azione = barra->addAction(titolo);
    } else {
      QMenu*& dove = menu[titolo];
      if (!dove) Con_Carattere(dove = barra->addMenu(titolo), 1.1);
      azione = dove->addAction(In_QString(voce.voce));
    }
    azione->setObjectName(QStringLiteral("menu ") + nome);
    azione->setEnabled(voce.funziona);
    if (!voce.funziona) continue;
    connect(azione, &QAction::triggered, this, [this, nome] { esegui_comando(nome); });
    comandi_[nome].voci.push_back(azione);
    voci_mutevoli_.emplace_back(azione, &voce);
  }
}

// What lies over the form and takes no room in it.
void EditaFinestra::fa_sopra() {
  lista_ = new QListView(this);
  lista_->setUniformItemSizes(true);
  lista_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lista_->setFocusPolicy(Qt::NoFocus);  // a click leaves the keyboard in the field
  lista_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lista_->setFrameStyle(QFrame::Box | QFrame::Plain);
  lista_->setLineWidth(2);
  lista_->setAccessibleName(QStringLiteral("Voci"));
  Con_Carattere(lista_, 1.4);
  legame.lega(lista_, QStringLiteral("List1"), edita_.List1);
  lista_->installEventFilter(this);
  lista_->viewport()->installEventFilter(this);
  connect(lista_, &QListView::clicked, this, [this](const QModelIndex& indice) {
    legame.esegui([&] { ScegliList1(programma_, edita_, indice.row()); });
  });

  salvataggio_ = new QLabel(this);
  salvataggio_->setAlignment(Qt::AlignCenter);
  salvataggio_->setFrameStyle(QFrame::Box | QFrame::Plain);
  salvataggio_->setLineWidth(3);
  salvataggio_->setAutoFillBackground(true);
  salvataggio_->setBackgroundRole(QPalette::ToolTipBase);
  salvataggio_->setForegroundRole(QPalette::ToolTipText);
  legame.lega(salvataggio_, QStringLiteral("Frame_Salvataggio"), edita_.Frame_Salvataggio);
  Con_Carattere(salvataggio_, 2, true);
}

void EditaFinestra::fa_tastierino() {
  constexpr std::array tasti = {"7", "8", "9", "4", "5", "6", "1", "2", "3", "0", "000"};
  tastierino_ = new QFrame(this);
  tastierino_->setFrameStyle(QFrame::Box | QFrame::Raised);
  tastierino_->setAutoFillBackground(true);
  legame.lega(tastierino_, QStringLiteral("Frame1"), edita_.Frame1);
  auto* griglia = new QGridLayout(tastierino_);
  griglia->setSpacing(4);
  int posto = 0;
  const auto aggiungi = [&](const QString& testo, int largo, const Legame::Evento& evento) {
    auto* bottone = new QPushButton(testo);
    bottone->setObjectName(QStringLiteral("Frame1 ") + testo);
    bottone->setFocusPolicy(Qt::NoFocus);
    bottone->setMinimumSize(1, 1);
    Con_Carattere(bottone, 1.8, true);
    griglia->addWidget(bottone, posto / 3, posto % 3, 1, largo);
    posto += largo;
    connect(bottone, &QPushButton::clicked, this, [this, evento] { legame.esegui(evento); });
    return bottone;
  };
  const auto cifra = [&](const QString& testo) {
    auto* bottone =
        aggiungi(testo, 1, [this, testo] { BottoneTastierino(programma_, edita_, Da_QString(testo)); });
    bottone->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(bottone, &QWidget::customContextMenuRequested, this,
            [this] { legame.esegui([this] { SvuotaTastierino(programma_, edita_); }); });
  };
  for (const char* tasto : tasti) cifra(QString::fromLatin1(tasto));
  cifra(QString(QLatin1Char(programma_.Separatore_Decimale)));
  aggiungi(QStringLiteral("Invio"), 3, [this] { InvioTastierino(programma_, edita_); });
}

void EditaFinestra::adatta_caratteri() {
  const double base = programma_.preferenze.DimFontEdita;
  const auto tutti = findChildren<QWidget*>();
  for (QWidget* widget : tutti)
    if (const QVariant fattore = widget->property("fattore"); fattore.isValid())
      widget->setFont(Carattere(base * fattore.toDouble(), widget->property("grassetto").toBool()));
  riga_aiuto_->setMinimumHeight(riga_aiuto_->fontMetrics().height() + 6);
}

EditaFinestra::EditaFinestra(Programma& programma, Edita& edita, QWidget* padre)
    : Finestra(QStringLiteral("Edita"), padre), programma_(programma), edita_(edita) {
  intitola(edita_.titolo);
  prepara_azioni();
  auto* tutto = new QHBoxLayout(this);
  tutto->setContentsMargins(8, 4, 6, 4);
  tutto->setSpacing(8);

  auto* colonna = new QVBoxLayout;
  colonna->setSpacing(4);
  auto* sopra = new QHBoxLayout;
  sopra->setSpacing(8);
  sopra->addWidget(fa_modulo(), 1);
  sopra->addWidget(fa_lato());
  colonna->addLayout(sopra);
  riga_aiuto_ = new QLabel;
  riga_aiuto_->setTextFormat(Qt::PlainText);
  riga_aiuto_->setMinimumWidth(1);
  riga_aiuto_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  legame.lega(riga_aiuto_, QStringLiteral("Label2"), edita_.Label2);
  Con_Carattere(riga_aiuto_, 1.4);
  colonna->addWidget(riga_aiuto_);
  colonna->addWidget(fa_comandi());
  colonna->addStretch();
  tutto->addLayout(colonna, 1);

  auto* hd = new QScrollBar(Qt::Vertical);
  hd->setAccessibleName(QStringLiteral("Riga"));
  legame.lega(hd, QStringLiteral("hd"), edita_.hd,
              [this] { CambiaHd(programma_, edita_, edita_.hd.valore); });
  tutto->addWidget(hd);

  auto* barra = new QMenuBar;
  Con_Carattere(barra, 1.1);
  fa_menu(barra);
  tutto->setMenuBar(barra);
  fa_sopra();
  fa_tastierino();
  adatta_caratteri();
  setFocusPolicy(Qt::NoFocus);  // a click beside the fields leaves the keyboard where it is
}

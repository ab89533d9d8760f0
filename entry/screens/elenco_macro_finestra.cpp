#include "entry/screens/elenco_macro_finestra.h"

#include <QAction>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QScreen>

#include "entry/screens/davanti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"

namespace {

constexpr int righe_in_vista = 18;

QLabel* Etichetta(const QString& testo, QWidget* compagno) {
  auto* scritta = new QLabel(testo);
  scritta->setFont(Carattere(punti_normali));
  scritta->setBuddy(compagno);
  return scritta;
}

}  // namespace

ElencoMacroFinestra::ElencoMacroFinestra(Programma& programma, Edita& edita, Tipo_Macro tipo, bool dal_campo,
                                         QWidget* padre)
    : FinestraDavanti(tipo == Tipo_Macro::Specie ? QStringLiteral("DescPre") : QStringLiteral("DescPreFOR"),
                      padre, Qt::Window),
      programma_(programma),
      edita_(edita),
      lista_(new QListView) {
  Apri_ElencoMacro(programma_, elenco_, tipo, dal_campo);
  intitola(elenco_.titolo);
  si_chiude(elenco_.chiusa);
  connect(this, &Finestra::chiusa, this, [this] { Chiudi_ElencoMacro(edita_, elenco_); });
  codice_ = fa_ricerca(QStringLiteral("Text1"), elenco_.Text1, QStringLiteral("Codice"));
  cerca_ = fa_ricerca(QStringLiteral("Text2"), elenco_.Text2, QStringLiteral("Cerca"));
  legame.invio(codice_, [this] { EseguiCodice(programma_, edita_, elenco_); });
  legame.invio(cerca_, [this] { CercaMacro(elenco_); });
  auto* etichetta_codice = Etichetta(QStringLiteral("Co&dice"), codice_);
  auto* etichetta_cerca = Etichetta(QStringLiteral("Cer&ca"), cerca_);
  codice_->setMaximumWidth(codice_->fontMetrics().averageCharWidth() * 14);
  cerca_->setMaximumWidth(cerca_->fontMetrics().averageCharWidth() * 30);

  auto* esito = fa_scritta(QStringLiteral("Esito"), elenco_.Esito);
  esito->setFont(Carattere(punti_normali, true));

  MostraStampante(programma_, elenco_);
  auto* stampante = fa_scritta(QStringLiteral("Stampante"), elenco_.Stampante);
  stampante->setAlignment(Qt::AlignRight);

  lista_->setFont(Carattere_Fisso(programma_.preferenze.DimFontListe));
  lista_->setUniformItemSizes(true);
  lista_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lista_->setTextElideMode(Qt::ElideNone);
  lista_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  lista_->setAccessibleName(QStringLiteral("Macro"));
  legame.lega(lista_, QStringLiteral("List1"), elenco_.List1);
  lista_->installEventFilter(this);
  connect(lista_, &QListView::doubleClicked, this,
          [this] { legame.esegui([this] { EseguiScelta(programma_, edita_, elenco_); }); });

  auto* sopra = new QHBoxLayout;
  sopra->setSpacing(8);
  sopra->addWidget(etichetta_codice);
  sopra->addWidget(codice_);
  sopra->addSpacing(20);
  sopra->addWidget(esito, 1);
  sopra->addWidget(etichetta_cerca);
  sopra->addWidget(cerca_, 1);
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(12, 8, 12, 12);
  tutto->setSpacing(8);
  tutto->setMenuBar(fa_menu());
  tutto->addLayout(sopra);
  tutto->addWidget(lista_, 1);
  tutto->addWidget(stampante);

  const QFontMetrics misure = lista_->fontMetrics();
  const int colonne = tipo == Tipo_Macro::Specie ? 114 : 132;
  const QSize voluta(misure.averageCharWidth() * colonne, misure.lineSpacing() * (righe_in_vista + 5));
  resize(voluta.boundedTo(screen()->availableSize() * 0.92));
  setTabOrder(codice_, cerca_);
  setTabOrder(cerca_, lista_);
  mostra();
  lista_->setFocus();
}

CasellaTesto* ElencoMacroFinestra::fa_ricerca(const QString& nome, CampoTesto& stato, const QString& letta) {
  auto* casella = new CasellaTesto;
  casella->setFont(Carattere(punti_grandi));
  casella->setAccessibleName(letta);
  legame.lega(casella, nome, stato);
  casella->installEventFilter(this);
  return casella;
}

QMenuBar* ElencoMacroFinestra::fa_menu() {
  auto* barra = new QMenuBar;
  barra->setFont(Carattere(punti_normali));
  const auto voce = [&](const QString& nome, Bottone& stato, const Legame::Evento& evento) {
    legame.lega(barra->addAction(QString()), QStringLiteral("menu ") + nome, stato, evento);
  };
  voce(QStringLiteral("Chiudi"), elenco_.Chiudi, [this] { chiudi_dopo(); });
  voce(QStringLiteral("Copia"), elenco_.Copia, [this] { EseguiScelta(programma_, edita_, elenco_); });
  voce(QStringLiteral("Elimina"), elenco_.Elimina, [this] { EliminaMacro(programma_, elenco_); });
  voce(QStringLiteral("Rinomina"), elenco_.Rinomina, [this] { RinominaMacro(programma_, elenco_); });
  voce(QStringLiteral("Stampa"), elenco_.Stampa, [this] { StampaMacro(programma_, elenco_); });
  voce(QStringLiteral("Aiuto"), elenco_.Aiuto, [this] { AiutoMacro(programma_, elenco_); });
  return barra;
}

bool ElencoMacroFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::KeyPress) return Finestra::eventFilter(oggetto, evento);
  const auto& tasto = *static_cast<QKeyEvent*>(evento);
  if (oggetto == lista_ ? tasto_lista(tasto) : tasto_casella(tasto)) return true;
  return Finestra::eventFilter(oggetto, evento);
}

bool ElencoMacroFinestra::tasto_casella(const QKeyEvent& evento) {
  const Pressione pressione = Da_QKeyEvent(evento);
  const bool giu = pressione.tasto == Tasto::Giu && pressione.Nudo();
  if (giu) lista_->setFocus(Qt::OtherFocusReason);
  return giu;
}

bool ElencoMacroFinestra::tasto_lista(const QKeyEvent& evento) {
  const Pressione pressione = Da_QKeyEvent(evento);
  if (pressione.ctrl || pressione.alt) return false;
  if (pressione.tasto == Tasto::Invio) {
    legame.esegui([this] { EseguiScelta(programma_, edita_, elenco_); });
    return true;
  }
  if (pressione.tasto == Tasto::Canc) {
    legame.esegui([this] { EliminaMacro(programma_, elenco_); });
    return true;
  }
  const QString testo = evento.text();
  if (testo.size() != 1 || !testo[0].isPrint()) return false;
  legame.esegui([&] { SaltaMacro(elenco_, Da_QString(testo)[0]); });
  return true;
}

void Apri_DescPre(Programma& programma, Edita& edita, Tipo_Macro tipo, bool dal_campo, Finestra* padre) {
  Apri_Davanti(new ElencoMacroFinestra(programma, edita, tipo, dal_campo, padre), padre);
}

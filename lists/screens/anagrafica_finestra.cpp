#include "lists/screens/anagrafica_finestra.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QStyledItemDelegate>

#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"

namespace {

constexpr int margine = 14;
constexpr std::size_t ordini_in_riga = 3;  // more of them stand on a line of their own, under the search

// Shows what stands behind a TAB in a column of its own; the line itself keeps its TAB.
class Colonne : public QStyledItemDelegate {
 public:
  Colonne(int colonna, QObject* padre) : QStyledItemDelegate(padre), colonna_(colonna) {}

 protected:
  void initStyleOption(QStyleOptionViewItem* opzioni, const QModelIndex& indice) const override {
    QStyledItemDelegate::initStyleOption(opzioni, indice);
    const qsizetype tab = opzioni->text.indexOf(u'\t');
    if (tab >= 0)
      opzioni->text =
          opzioni->text.left(tab).leftJustified(colonna_) + QStringLiteral("  ") + opzioni->text.mid(tab + 1);
  }

 private:
  int colonna_;
};

// The room that the list and its editor share: the opener's window, but no more than the screen.
QRect Spazio(const QWidget* padre, const QWidget* finestra) {
  const QRect schermo = (padre ? padre : finestra)->screen()->availableGeometry();
  const QRect intorno = padre ? padre->window()->geometry() & schermo : schermo;
  return intorno.width() < schermo.width() / 2 ? schermo : intorno;
}

}  // namespace

AnagraficaFinestra::AnagraficaFinestra(Programma& programma, const Anagrafica& anagrafica, QWidget* padre,
                                       std::function<void(std::size_t)> copia)
    : FinestraDavanti(
          QString::fromLatin1(anagrafica.lista.data(), static_cast<qsizetype>(anagrafica.lista.size())),
          padre, Qt::Window),
      programma_(programma),
      cerca_(new CasellaTesto),
      lista_(new ListaVoci(programma.preferenze.DimFontListe)) {
  schermo_.copia = std::move(copia);
  Apri_Anagrafica(programma_, schermo_, anagrafica);
  intitola(schermo_.titolo);
  setWindowModality(Qt::WindowModal);
  setFont(Carattere(punti_normali));
  lega_lista();

  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(margine, margine, margine, margine);
  tutto->setSpacing(10);
  if (anagrafica.destinatario) {
    auto* menu = new QMenuBar(this);
    legame.lega(menu->addAction(QString()), QStringLiteral("Privacy"), schermo_.Privacy,
                [this] { Lettera_Privacy(programma_, schermo_); });
    tutto->setMenuBar(menu);
  }
  auto* ricerca = fa_ricerca();
  tutto->addLayout(ricerca);
  fa_ordini(ricerca, tutto);
  tutto->addWidget(lista_, 1);
  tutto->addLayout(fa_comandi());
  mostra();
}

void AnagraficaFinestra::lega_lista() {
  lista_->setAccessibleName(In_QString(schermo_.anagrafica->didascalia_lista));
  if (const int colonna = schermo_.anagrafica->colonna_tab; colonna > 0) {
    lista_->setItemDelegate(new Colonne(colonna, lista_));
    lista_->setUniformItemSizes(false);  // the view scrolls to the end of the longest line
  }
  lista_->installEventFilter(this);
  legame.scelta(lista_, [this] { Copia_Voce(schermo_); });
  legame.lega(lista_, QStringLiteral("List1"), schermo_.List1, [this] { Scegli_Voce(programma_, schermo_); });
}

QBoxLayout* AnagraficaFinestra::fa_ricerca() {
  auto* riga = new QHBoxLayout;
  auto* scritta = new QLabel(QStringLiteral("Ce&rca"));
  scritta->setBuddy(cerca_);
  cerca_->setFont(Carattere(punti_grandi));
  cerca_->setAccessibleName(QStringLiteral("Cerca"));
  cerca_->installEventFilter(this);
  legame.invio(cerca_, [this] { Cerca_Voce(programma_, schermo_, true); });
  legame.lega(cerca_, QStringLiteral("Cerca"), schermo_.Cerca, [this] { Cerca_Voce(programma_, schermo_); });
  riga->addWidget(scritta);
  riga->addWidget(cerca_, 1);
  const auto& comandi = schermo_.anagrafica->comandi;
  for (std::size_t i = 0; i < comandi.size(); ++i)
    if (const auto esegui = comandi[i].esegui; !comandi[i].solo_modulo)
      riga->addWidget(fa_bottone(In_QString(comandi[i].nome), schermo_.Comandi[i],
                                 [this, esegui] { esegui(programma_, schermo_); }));
  return riga;
}

void AnagraficaFinestra::fa_ordini(QBoxLayout* ricerca, QBoxLayout* tutto) {
  const auto& ordini = schermo_.anagrafica->ordini;
  QBoxLayout* riga = ricerca;
  if (ordini.size() > ordini_in_riga) {
    riga = new QHBoxLayout;
    riga->addWidget(new QLabel(QStringLiteral("Ordina")));
    tutto->addLayout(riga);
  }
  for (std::size_t i = 0; i < ordini.size(); ++i)
    riga->addWidget(fa_bottone(In_QString(ordini[i].nome), schermo_.Ordini[i],
                               [this, i] { Ordina_Anagrafica(programma_, schermo_, i); }));
  if (riga != ricerca) riga->addStretch();
}

QLayout* AnagraficaFinestra::fa_comandi() {
  auto* riga = new QHBoxLayout;
  riga->addWidget(
      fa_bottone(QStringLiteral("AggiungiModifica"), schermo_.AggiungiModifica, [this] { apri_modulo(); }));
  riga->addWidget(fa_scritta(QStringLiteral("Esito"), schermo_.Esito), 1);
  riga->addWidget(fa_bottone(QStringLiteral("Copia"), schermo_.Copia, [this] { Copia_Voce(schermo_); }));
  riga->addWidget(fa_bottone(QStringLiteral("Chiudi"), schermo_.Chiudi, [this] { chiudi_dopo(); }));
  return riga;
}

void AnagraficaFinestra::apri() {
  const QRect spazio = Spazio(parentWidget(), this);
  const int larghezza = qMin(lista_->fontMetrics().horizontalAdvance(u'0') * 72, spazio.width() * 11 / 20);
  resize(qMax(larghezza, minimumSizeHint().width()), spazio.height() * 9 / 10);
  move(spazio.left() + margine, spazio.top() + spazio.height() / 20);
  show();
  activateWindow();
  cerca_->setFocus(Qt::OtherFocusReason);
}

void AnagraficaFinestra::apri_modulo() {
  if (!modulo_) {
    modulo_ = std::make_unique<ModuloFinestra>(programma_, schermo_, this);
    connect(modulo_.get(), &ModuloFinestra::mostrata, this, [this] { mostra(); });
    // not every desktop gives the keyboard back by itself
    connect(modulo_.get(), &ModuloFinestra::chiusa, this, [this] { activateWindow(); });
    connect(modulo_.get(), &ModuloFinestra::comando, this,
            [this](Vista nome) { emit comando(nome, modulo_.get()); });
  }
  Apri_Modulo(programma_, schermo_);
  modulo_->apri(Spazio(parentWidget(), this));
}

// Any character typed goes on in the search field.
bool AnagraficaFinestra::tasto_lista(QKeyEvent& evento) {
  const Pressione pressione = Da_QKeyEvent(evento);
  const QString testo = evento.text();
  if (testo.isEmpty() || !testo.at(0).isPrint() || pressione.ctrl || pressione.alt) return false;
  cerca_->setFocus(Qt::OtherFocusReason);
  cerca_->end(false);
  QCoreApplication::sendEvent(cerca_, &evento);
  return true;
}

bool AnagraficaFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::KeyPress) return Finestra::eventFilter(oggetto, evento);
  auto& tasto = *static_cast<QKeyEvent*>(evento);
  if (oggetto == lista_) return tasto_lista(tasto) || Finestra::eventFilter(oggetto, evento);
  const Pressione pressione = Da_QKeyEvent(tasto);
  if (oggetto != cerca_ || !pressione.Nudo()) return Finestra::eventFilter(oggetto, evento);
  if (pressione.tasto == Tasto::Giu || pressione.tasto == Tasto::Su) {
    lista_->setFocus(Qt::OtherFocusReason);
    return true;
  }
  return Finestra::eventFilter(oggetto, evento);
}

void AnagraficaFinestra::closeEvent(QCloseEvent* evento) {
  if (modulo_) modulo_->close();
  Finestra::closeEvent(evento);
}

AnagraficaFinestra* Apri_Finestra_Anagrafica(Programma& programma, const Anagrafica& anagrafica,
                                             QWidget* padre, std::function<void(std::size_t)> copia,
                                             const std::function<void()>& chiusa) {
  auto* finestra = new AnagraficaFinestra(programma, anagrafica, padre, std::move(copia));
  finestra->setAttribute(Qt::WA_DeleteOnClose);
  if (chiusa) QObject::connect(finestra, &Finestra::chiusa, finestra, chiusa);
  finestra->apri();
  return finestra;
}

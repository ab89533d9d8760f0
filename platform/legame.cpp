#include "platform/legame.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QScrollBar>
#include <QSignalBlocker>

#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"

namespace {

void Mostra_Controllo(QWidget* widget, const Controllo& stato) {
  if (widget->isHidden() == stato.visibile) widget->setVisible(stato.visibile);
  // The widget's own mark, whatever its parents are.
  if (widget->isEnabledTo(widget->parentWidget()) != stato.attivo) widget->setEnabled(stato.attivo);
  const QString suggerimento = In_QString(stato.suggerimento);
  if (widget->toolTip() != suggerimento) widget->setToolTip(suggerimento);
  Mostra_Sfondo(widget, stato.sfondo);
}

void Mostra_Campo(QLineEdit* campo, const Testo& stato) {
  const QString testo = In_QString(stato);
  if (campo->text() == testo) return;
  const bool tutto = campo->hasSelectedText() && campo->selectedText().size() == campo->text().size();
  const int posto = campo->cursorPosition();
  const bool in_fondo = posto == campo->text().size();
  campo->setText(testo);
  if (!campo->hasFocus())
    campo->setCursorPosition(0);  // a long text is read from its beginning
  else if (tutto)
    Seleziona_Tutto(campo);
  else if (!in_fondo)
    campo->setCursorPosition(posto);
}

void Mostra_Didascalia(QAbstractButton* bottone, const Testo& stato) {
  const QString testo = In_QString(stato);
  if (testo.isEmpty() || bottone->text() == testo) return;  // a button with a picture keeps it
  bottone->setText(testo);
  bottone->setAccessibleName(Senza_Scorciatoia(testo));
}

class Filtro_Invio : public QObject {
 public:
  Filtro_Invio(Legame& legame, Legame::Evento evento)
      : QObject(&legame), legame_(legame), evento_(std::move(evento)) {}

  bool eventFilter(QObject*, QEvent* evento) override {
    if (evento->type() != QEvent::KeyPress) return false;
    const Pressione pressione = Da_QKeyEvent(*static_cast<QKeyEvent*>(evento));
    if (pressione.tasto != Tasto::Invio || !pressione.Nudo()) return false;
    legame_.esegui(evento_);
    return true;
  }

 private:
  Legame& legame_;
  Legame::Evento evento_;
};

}  // namespace

void Seleziona_Tutto(QLineEdit* campo) {
  const auto caratteri = static_cast<int>(campo->text().size());
  campo->setSelection(caratteri, -caratteri);
}

void Mostra_Sfondo(QWidget* widget, const std::optional<Colore>& sfondo) {
  if (!sfondo && !widget->testAttribute(Qt::WA_SetPalette))
    return;  // never painted: looking a property up takes long
  const bool dipinto = widget->property("sfondo").isValid();
  if (!sfondo) {
    if (!dipinto) return;
    widget->setProperty("sfondo", {});
    widget->setPalette({});
    return;
  }
  const QColor colore(sfondo->rosso, sfondo->verde, sfondo->blu);
  if (dipinto && widget->property("sfondo").value<QColor>() == colore) return;
  const QColor testo = colore.lightnessF() > 0.5F ? Qt::black : Qt::white;
  QPalette tavolozza = widget->palette();
  // A screen's colour is not that of the fields on it.
  const bool campo = qobject_cast<QLineEdit*>(widget) != nullptr;
  tavolozza.setColor(campo ? QPalette::Base : QPalette::Window, colore);
  tavolozza.setColor(campo ? QPalette::Text : QPalette::WindowText, testo);
  widget->setProperty("sfondo", colore);
  widget->setAutoFillBackground(true);
  widget->setPalette(tavolozza);
}

QString Senza_Scorciatoia(const QString& didascalia) {
  QString esito = didascalia;
  return esito.remove(QLatin1Char('&')).trimmed();
}

ModelloElenco::ModelloElenco(const Elenco& elenco, QObject* padre)
    : QAbstractListModel(padre),
      elenco_(elenco),
      versione_(elenco.versione),
      righe_(static_cast<int>(elenco.Numero())) {}

int ModelloElenco::rowCount(const QModelIndex& padre) const { return padre.isValid() ? 0 : righe_; }

// A view asks for every line when it lays them out; the toolkit's own way would count rows and columns each
// time.
QModelIndex ModelloElenco::index(int riga, int colonna, const QModelIndex& padre) const {
  const bool c_e = riga >= 0 && riga < righe_ && colonna == 0 && !padre.isValid();
  return c_e ? createIndex(riga, colonna) : QModelIndex();
}

QVariant ModelloElenco::data(const QModelIndex& indice, int ruolo) const {
  if (!indice.isValid() || (ruolo != Qt::DisplayRole && ruolo != Qt::EditRole)) return {};
  return In_QString(elenco_.Riga(static_cast<std::size_t>(indice.row())));
}

void ModelloElenco::aggiorna() {
  if (versione_ == elenco_.versione) return;
  versione_ = elenco_.versione;
  const int adesso = static_cast<int>(elenco_.Numero());
  const int rimaste = std::min(righe_, adesso);
  if (adesso > righe_) {
    beginInsertRows({}, righe_, adesso - 1);
    righe_ = adesso;
    endInsertRows();
  } else if (adesso < righe_) {
    beginRemoveRows({}, adesso, righe_ - 1);
    righe_ = adesso;
    endRemoveRows();
  }
  if (rimaste > 0) emit dataChanged(index(0), index(rimaste - 1), {Qt::DisplayRole});
}

Legame::Legame(QWidget* schermo, Evento mostra_schermo)
    : QObject(schermo), mostra_schermo_(std::move(mostra_schermo)) {}

void Legame::esegui(const Evento& evento) {
  if (mostrando_) return;
  const QPointer<Legame> vivo(this);
  ++profondita_;
  if (evento) evento();
  if (!vivo) return;  // the event has closed the screen
  --profondita_;
  mostra_schermo_();
}

bool Legame::usa(const std::function<bool()>& evento) {
  bool usato = false;
  esegui([&] { usato = evento(); });
  return usato;
}

void Legame::mostra() {
  if (mostrando_) return;
  mostrando_ = true;
  for (const auto& voce : voci_) voce();
  mostrando_ = false;
}

void Legame::al_widget(QWidget* widget, const QString& nome, Controllo& stato) {
  widget->setObjectName(nome);
  voci_.emplace_back([widget, &stato] { Mostra_Controllo(widget, stato); });
}

void Legame::lega(QLineEdit* campo, const QString& nome, CampoTesto& stato, Evento evento) {
  al_widget(campo, nome, stato);
  voci_.emplace_back([campo, &stato] { Mostra_Campo(campo, stato.testo); });
  connect(campo, &QLineEdit::textEdited, this, [this, &stato, evento](const QString& testo) {
    stato.testo = Senza_Separatori(Da_QString(testo));
    esegui(evento);
  });
}

void Legame::lega(QAbstractButton* casella, const QString& nome, Spunta& stato, Evento evento) {
  al_widget(casella, nome, stato);
  voci_.emplace_back([casella, &stato] {
    const QSignalBlocker fermo(casella);
    Mostra_Didascalia(casella, stato.didascalia);
    if (casella->isChecked() != stato.segnata) casella->setChecked(stato.segnata);
  });
  connect(casella, &QAbstractButton::toggled, this, [this, &stato, evento](bool segnata) {
    stato.segnata = segnata;
    esegui(evento);
  });
}

void Legame::lega(QAbstractButton* bottone, const QString& nome, Bottone& stato, Evento evento) {
  al_widget(bottone, nome, stato);
  voci_.emplace_back([bottone, &stato] { Mostra_Didascalia(bottone, stato.testo); });
  connect(bottone, &QAbstractButton::clicked, this, [this, evento] { esegui(evento); });
}

void Legame::lega(QAction* voce, const QString& nome, Bottone& stato, Evento evento) {
  voce->setObjectName(nome);
  voci_.emplace_back([voce, &stato] {
    const QString testo = In_QString(stato.testo);
    if (!testo.isEmpty() && voce->text() != testo) voce->setText(testo);
    voce->setEnabled(stato.attivo);
    voce->setVisible(stato.visibile);
  });
  connect(voce, &QAction::triggered, this, [this, evento] { esegui(evento); });
}

void Legame::lega(QLabel* scritta, const QString& nome, Scritta& stato) {
  // A customer's name that looks like markup must not fetch a picture from anywhere.
  scritta->setTextFormat(Qt::PlainText);
  al_widget(scritta, nome, stato);
  voci_.emplace_back([scritta, &stato] {
    const QString testo = In_QString(stato.testo);
    if (scritta->text() != testo) scritta->setText(testo);
  });
}

void Legame::lega(QComboBox* elenco, const QString& nome, Elenco& stato, Evento evento) {
  al_widget(elenco, nome, stato);
  auto* modello = new ModelloElenco(stato, elenco);
  elenco->setModel(modello);
  voci_.emplace_back([elenco, modello, &stato] {
    const QSignalBlocker fermo(elenco);
    modello->aggiorna();
    if (elenco->currentIndex() != stato.scelta) elenco->setCurrentIndex(stato.scelta);
  });
  connect(elenco, &QComboBox::currentIndexChanged, this, [this, &stato, evento](int scelta) {
    stato.scelta = scelta;
    esegui(evento);
  });
}

void Legame::lega(QListView* elenco, const QString& nome, Elenco& stato, Evento evento) {
  al_widget(elenco, nome, stato);
  auto* modello = new ModelloElenco(stato, elenco);
  elenco->setModel(modello);
  voci_.emplace_back([elenco, modello, &stato] {
    modello->aggiorna();
    if (elenco->currentIndex().row() == stato.scelta) return;
    const QModelIndex indice = modello->index(stato.scelta);
    elenco->setCurrentIndex(indice);
    if (indice.isValid()) elenco->scrollTo(indice);
  });
  connect(elenco->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this, &stato, evento](const QModelIndex& indice) {
            if (mostrando_) return;
            stato.scelta = indice.row();
            esegui(evento);
          });
}

void Legame::lega(QAbstractSlider* cursore, const QString& nome, Cursore& stato, Evento evento) {
  al_widget(cursore, nome, stato);
  voci_.emplace_back([cursore, &stato] {
    const QSignalBlocker fermo(cursore);
    if (cursore->minimum() != stato.minimo || cursore->maximum() != stato.massimo)
      cursore->setRange(stato.minimo, stato.massimo);
    if (cursore->value() != stato.valore) cursore->setValue(stato.valore);
  });
  connect(cursore, &QAbstractSlider::valueChanged, this, [this, &stato, evento](int valore) {
    stato.valore = valore;
    esegui(evento);
  });
}

void Legame::lega(QWidget* widget, const QString& nome, Controllo& stato) { al_widget(widget, nome, stato); }

void Legame::invio(QWidget* widget, Evento evento) {
  widget->installEventFilter(new Filtro_Invio(*this, std::move(evento)));
}

void Legame::scelta(QListView* elenco, Evento evento) {
  connect(elenco, &QListView::doubleClicked, this, [this, evento] { esegui(evento); });
  invio(elenco, std::move(evento));
}

#include "tests/runner/controlli.h"

#include <algorithm>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTextEdit>

#include "platform/finestra.h"
#include "tests/runner/scena.h"

namespace giornata {

namespace {

constexpr int righe_mostrate = 12;

bool E_Schermo(const QWidget* widget) { return widget->property("schermata").toBool() || widget->isWindow(); }

QWidget* Padre_Widget(const QObject* oggetto) {
  for (QObject* padre = oggetto->parent(); padre; padre = padre->parent())
    if (auto* widget = qobject_cast<QWidget*>(padre)) return widget;
  return nullptr;
}

// A menu is a window of its own to the toolkit; to the operator its entries stand in the screen that opens
// it.
QWidget* Schermo_Della_Voce(const QAction* voce) {
  QWidget* widget = Padre_Widget(voce);
  while (widget && qobject_cast<QMenu*>(widget) && widget->parentWidget()) widget = widget->parentWidget();
  return widget ? Schermo_Di(widget) : nullptr;
}

bool Interno_Del_Toolkit(const QObject* oggetto) {
  return oggetto->objectName().startsWith(QLatin1String("qt_"));
}

struct In_Schermo {
  std::vector<QWidget*> widget;
  std::vector<QAction*> voci;
};

In_Schermo Contenuto(QWidget* schermo) {
  In_Schermo esito;
  const auto widget = schermo->window()->findChildren<QWidget*>();
  esito.widget.push_back(schermo);
  for (QWidget* uno : widget)
    if (uno != schermo && Schermo_Di(uno) == schermo && !Interno_Del_Toolkit(uno))
      esito.widget.push_back(uno);
  const auto voci = schermo->window()->findChildren<QAction*>();
  for (QAction* voce : voci)
    if (!voce->isSeparator() && Schermo_Della_Voce(voce) == schermo) esito.voci.push_back(voce);
  return esito;
}

QString Didascalia(const QWidget* widget) {
  if (const auto* bottone = qobject_cast<const QAbstractButton*>(widget)) return bottone->text();
  if (const auto* gruppo = qobject_cast<const QGroupBox*>(widget)) return gruppo->title();
  if (const auto* scritta = qobject_cast<const QLabel*>(widget)) return scritta->text();
  return {};
}

QString Confrontabile(const QString& didascalia) {
  return Senza_E_Commerciale(didascalia).section(QLatin1Char('\t'), 0, 0).trimmed();
}

using Trovati = std::vector<Controllo_Trovato>;

void Aggiungi_Unico(Trovati& trovati, const Controllo_Trovato& controllo) {
  if (std::find(trovati.begin(), trovati.end(), controllo) == trovati.end()) trovati.push_back(controllo);
}

// Keeps those that `quali` picks, unless it picks none.
template <class Criterio>
void Preferisci(Trovati& trovati, const Criterio& quali) {
  if (trovati.size() > 1 && std::any_of(trovati.begin(), trovati.end(), quali))
    std::erase_if(trovati, [&](const Controllo_Trovato& c) { return !quali(c); });
}

Trovati Per_Nome(QWidget* schermo, const QString& nome) {
  const In_Schermo contenuto = Contenuto(schermo);
  Trovati trovati;
  for (QWidget* widget : contenuto.widget)
    if (widget->objectName() == nome) trovati.push_back({widget, nullptr});
  for (QAction* voce : contenuto.voci)
    if (voce->objectName() == nome) trovati.push_back({nullptr, voce});
  Preferisci(trovati, [](const Controllo_Trovato& c) { return c.widget != nullptr; });
  Preferisci(trovati, Visibile);
  return trovati;
}

Trovati Per_Didascalia(QWidget* schermo, const QString& didascalia) {
  const QString voluta = Confrontabile(didascalia);
  const In_Schermo contenuto = Contenuto(schermo);
  Trovati trovati;
  for (QWidget* widget : contenuto.widget) {
    if (widget == schermo) continue;
    if (Confrontabile(Didascalia(widget)) != voluta && Confrontabile(widget->accessibleName()) != voluta)
      continue;
    const auto* scritta = qobject_cast<QLabel*>(widget);
    QWidget* campo = scritta ? scritta->buddy() : nullptr;
    Aggiungi_Unico(trovati, {campo ? campo : widget, nullptr});
  }
  for (QAction* voce : contenuto.voci)
    if (Confrontabile(voce->text()) == voluta) trovati.push_back({nullptr, voce});
  Preferisci(trovati, Visibile);
  // An entry of a menu is chosen by `menu`; what bears the caption itself comes before what a label names.
  Preferisci(trovati, [](const Controllo_Trovato& c) { return c.widget != nullptr; });
  Preferisci(trovati, [](const Controllo_Trovato& c) { return !qobject_cast<QLabel*>(c.widget); });
  Preferisci(trovati, [&](const Controllo_Trovato& c) {
    return c.widget && Confrontabile(Didascalia(c.widget)) == voluta;
  });
  return trovati;
}

std::string Nome_Schermo(const QWidget* schermo) {
  const QString nome = schermo->objectName().isEmpty() ? schermo->windowTitle() : schermo->objectName();
  return nome.toStdString();
}

std::string Che_Cosa_C_E(const std::vector<QWidget*>& schermi, bool didascalie) {
  std::string esito;
  for (QWidget* schermo : schermi) {
    QStringList nomi;
    for (QWidget* widget : Contenuto(schermo).widget) {
      const QString nome = didascalie ? Confrontabile(Didascalia(widget)) : widget->objectName();
      if (widget != schermo && !nome.isEmpty() && widget->isVisible()) nomi << nome;
    }
    nomi.sort();
    nomi.removeDuplicates();
    esito += (esito.empty() ? "in " : "; in ") + Nome_Schermo(schermo) + ": " +
             nomi.join(QLatin1String(didascalie ? " | " : " ")).toStdString();
  }
  return esito.empty() ? "nessuna finestra aperta" : esito;
}

Controllo_Trovato Solo_Uno(const Trovati& trovati, const std::string& voluto) {
  if (trovati.size() == 1) return trovati.front();
  std::string quali;
  for (const Controllo_Trovato& c : trovati) quali += (quali.empty() ? "" : ", ") + Nome_Controllo(c);
  throw Fallito("un solo controllo " + voluto, std::to_string(trovati.size()) + ": " + quali);
}

QWidget* Schermo_Chiamato(const QString& nome) {
  for (QWidget* schermo : Schermi_Aperti())
    if (schermo->objectName() == nome) return schermo;
  std::string aperte;
  for (QWidget* schermo : Schermi_Aperti()) aperte += (aperte.empty() ? "" : ", ") + Nome_Schermo(schermo);
  throw Fallito("la finestra " + nome.toStdString() + " aperta", aperte.empty() ? "nessuna" : aperte);
}

}  // namespace

QWidget* Schermo_Attivo() {
  if (QWidget* finestra = Finestra_Attiva()) return finestra;
  if (QWidget* modale = QApplication::activeModalWidget()) return modale;
  if (QWidget* finestra = QApplication::activeWindow()) return finestra;
  const auto cime = QApplication::topLevelWidgets();
  for (QWidget* cima : cime)
    if (cima->isVisible() && cima->windowType() != Qt::Popup && cima->windowType() != Qt::ToolTip)
      return cima;
  return nullptr;
}

QWidget* Schermo_Di(QWidget* widget) {
  while (!E_Schermo(widget) && widget->parentWidget()) widget = widget->parentWidget();
  return widget;
}

std::vector<QWidget*> Schermi_Aperti() {
  std::vector<QWidget*> schermi;
  if (QWidget* attivo = Schermo_Attivo()) schermi.push_back(attivo);
  const auto tutti = QApplication::allWidgets();
  for (QWidget* widget : tutti)
    if (widget->isVisible() && E_Schermo(widget) && widget->windowType() != Qt::ToolTip &&
        std::find(schermi.begin(), schermi.end(), widget) == schermi.end())
      schermi.push_back(widget);
  return schermi;
}

Controllo_Trovato Trova_Controllo(const Parola& parola) {
  QString nome = QString::fromStdString(parola.testo);
  QString finestra = QString::fromStdString(parola.davanti);
  if (const qsizetype punto = nome.indexOf(QLatin1Char('.')); !parola.virgolette && punto > 0) {
    finestra = nome.left(punto);
    nome = nome.mid(punto + 1);
  }
  const std::string voluto = (finestra.isEmpty() ? "" : finestra.toStdString() + ".") +
                             (parola.virgolette ? Citato(parola.testo) : nome.toStdString());
  const auto cerca = [&](QWidget* schermo) {
    return parola.virgolette ? Per_Didascalia(schermo, nome) : Per_Nome(schermo, nome);
  };

  std::vector<QWidget*> schermi = Schermi_Aperti();
  if (!finestra.isEmpty()) schermi = {Schermo_Chiamato(finestra)};
  if (!schermi.empty())
    if (const Trovati trovati = cerca(schermi.front()); !trovati.empty()) return Solo_Uno(trovati, voluto);
  Trovati altrove;
  for (std::size_t i = 1; i < schermi.size(); ++i)
    for (const Controllo_Trovato& c : cerca(schermi[i])) altrove.push_back(c);
  Preferisci(altrove, Visibile);
  if (altrove.empty()) throw Fallito("il controllo " + voluto, Che_Cosa_C_E(schermi, parola.virgolette));
  return Solo_Uno(altrove, voluto);
}

std::string Nome_Controllo(const Controllo_Trovato& controllo) {
  const QObject* oggetto = controllo.widget ? static_cast<QObject*>(controllo.widget) : controllo.voce;
  const QString didascalia = controllo.widget ? Didascalia(controllo.widget) : controllo.voce->text();
  const QWidget* schermo =
      controllo.widget ? Schermo_Di(controllo.widget) : Schermo_Della_Voce(controllo.voce);
  const std::string davanti = schermo ? Nome_Schermo(schermo) + "." : "";
  if (!oggetto->objectName().isEmpty()) return davanti + oggetto->objectName().toStdString();
  return davanti + Citato(didascalia.toStdString());
}

bool Visibile(const Controllo_Trovato& controllo) {
  return controllo.widget ? controllo.widget->isVisible() : controllo.voce->isVisible();
}

bool Attivo(const Controllo_Trovato& controllo) {
  return controllo.widget ? controllo.widget->isEnabled() : controllo.voce->isEnabled();
}

bool Ha_Fuoco(const Controllo_Trovato& controllo) {
  const QWidget* fuoco = QApplication::focusWidget();
  if (!controllo.widget || !fuoco) return false;
  if (fuoco == controllo.widget) return true;
  return !E_Schermo(controllo.widget) && controllo.widget->isAncestorOf(fuoco);
}

bool Segnato(const Controllo_Trovato& controllo) {
  if (controllo.voce && controllo.voce->isCheckable()) return controllo.voce->isChecked();
  if (const auto* bottone = qobject_cast<QAbstractButton*>(controllo.widget);
      bottone && bottone->isCheckable())
    return bottone->isChecked();
  if (const auto* gruppo = qobject_cast<QGroupBox*>(controllo.widget); gruppo && gruppo->isCheckable())
    return gruppo->isChecked();
  throw Fallito("una casella da segnare", Nome_Controllo(controllo));
}

QString Senza_E_Commerciale(const QString& testo) {
  QString esito = testo;
  return esito.remove(QLatin1Char('&'));
}

bool Ha_Didascalia(const Controllo_Trovato& controllo) {
  if (controllo.voce) return true;
  if (const auto* scritta = qobject_cast<QLabel*>(controllo.widget)) return scritta->buddy() != nullptr;
  return qobject_cast<QAbstractButton*>(controllo.widget) || qobject_cast<QGroupBox*>(controllo.widget);
}

QString Testo_Controllo(const Controllo_Trovato& controllo) {
  if (controllo.voce) return controllo.voce->text().section(QLatin1Char('\t'), 0, 0);
  QWidget* widget = controllo.widget;
  if (const auto* campo = qobject_cast<QLineEdit*>(widget)) return campo->text();
  if (const auto* combo = qobject_cast<QComboBox*>(widget)) return combo->currentText();
  if (const auto* numero = qobject_cast<QAbstractSpinBox*>(widget)) return numero->text();
  if (const auto* testo = qobject_cast<QPlainTextEdit*>(widget)) return testo->toPlainText();
  if (const auto* testo = qobject_cast<QTextEdit*>(widget)) return testo->toPlainText();
  if (const auto* cursore = qobject_cast<QAbstractSlider*>(widget)) return QString::number(cursore->value());
  if (const auto* avanzamento = qobject_cast<QProgressBar*>(widget))
    return QString::number(avanzamento->value());
  if (const auto* lista = qobject_cast<QAbstractItemView*>(widget)) {
    const QModelIndex indice = lista->currentIndex();
    if (indice.isValid()) return Riga_Di(controllo, indice.row());
    // A list that is one line (a heading) is its text.
    return lista->model()->rowCount() == 1 ? Riga_Di(controllo, 0) : QString();
  }
  if (const QString didascalia = Didascalia(widget); !didascalia.isEmpty()) return didascalia;
  const QVariant testo = widget->property("text");
  return testo.isValid() ? testo.toString() : widget->accessibleName();
}

namespace {

const QAbstractItemModel* Modello(const Controllo_Trovato& controllo) {
  if (const auto* lista = qobject_cast<QAbstractItemView*>(controllo.widget)) return lista->model();
  if (const auto* combo = qobject_cast<QComboBox*>(controllo.widget)) return combo->model();
  return nullptr;
}

}  // namespace

bool Ha_Righe(const Controllo_Trovato& controllo) { return Modello(controllo) != nullptr; }

int Numero_Righe(const Controllo_Trovato& controllo) {
  if (const auto* modello = Modello(controllo)) return modello->rowCount();
  if (const auto* testo = qobject_cast<QPlainTextEdit*>(controllo.widget)) return testo->blockCount();
  throw Fallito("un controllo con righe", Nome_Controllo(controllo));
}

QString Riga_Di(const Controllo_Trovato& controllo, int riga) {
  const auto* modello = Modello(controllo);
  QStringList celle;
  for (int colonna = 0; colonna < modello->columnCount(); ++colonna)
    celle << modello->index(riga, colonna).data(Qt::DisplayRole).toString();
  return celle.join(QLatin1Char('\t'));
}

int Cerca_Riga(const Controllo_Trovato& controllo, const QString& parte) {
  const int righe = Numero_Righe(controllo);
  for (int riga = 0; riga < righe; ++riga)
    if (Riga_Di(controllo, riga).contains(parte)) return riga;
  return -1;
}

std::string Prime_Righe(const Controllo_Trovato& controllo) {
  const int righe = Numero_Righe(controllo);
  std::string esito = std::to_string(righe) + " righe";
  for (int riga = 0; riga < std::min(righe, righe_mostrate); ++riga)
    esito += "\n    " + Citato(Riga_Di(controllo, riga).toStdString());
  if (righe > righe_mostrate) esito += "\n    ...";
  return esito;
}

}  // namespace giornata

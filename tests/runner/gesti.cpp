#include "tests/runner/gesti.h"

#include <array>
#include <utility>

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QTest>
#include <QTextEdit>

#include "tests/runner/scena.h"

namespace giornata {

namespace {

struct Tasto_Qt {
  Tasto tasto;
  Qt::Key qt;
  const char* testo;
};

constexpr std::array<Tasto_Qt, 14> tasti = {{{Tasto::Invio, Qt::Key_Return, "\r"},
                                             {Tasto::Esc, Qt::Key_Escape, "\x1b"},
                                             {Tasto::Tab, Qt::Key_Tab, "\t"},
                                             {Tasto::Spazio, Qt::Key_Space, " "},
                                             {Tasto::Backspace, Qt::Key_Backspace, "\b"},
                                             {Tasto::Canc, Qt::Key_Delete, "\x7f"},
                                             {Tasto::Su, Qt::Key_Up, ""},
                                             {Tasto::Giu, Qt::Key_Down, ""},
                                             {Tasto::Destra, Qt::Key_Right, ""},
                                             {Tasto::Sinistra, Qt::Key_Left, ""},
                                             {Tasto::PagSu, Qt::Key_PageUp, ""},
                                             {Tasto::PagGiu, Qt::Key_PageDown, ""},
                                             {Tasto::Inizio, Qt::Key_Home, ""},
                                             {Tasto::Fine, Qt::Key_End, ""}}};

std::pair<Qt::Key, QString> In_Qt(const Pressione& pressione) {
  if (pressione.tasto >= Tasto::F1 && pressione.tasto <= Tasto::F12)
    return {
        static_cast<Qt::Key>(Qt::Key_F1 + static_cast<int>(pressione.tasto) - static_cast<int>(Tasto::F1)),
        {}};
  for (const Tasto_Qt& voce : tasti) {
    if (voce.tasto != pressione.tasto) continue;
    if (voce.qt == Qt::Key_Tab && pressione.maiuscole) return {Qt::Key_Backtab, {}};
    return {voce.qt, pressione.ctrl || pressione.alt ? QString() : QString::fromLatin1(voce.testo)};
  }
  throw Fallito("un tasto", "nessuno");
}

bool Bloccata(const QWidget* widget) {
  const QWidget* davanti = QApplication::activeModalWidget();
  const QWidget* finestra = widget->window();
  return davanti && finestra != davanti && !davanti->isAncestorOf(finestra) &&
         finestra->windowType() != Qt::Popup;
}

// Where the keyboard goes: an open popup, else the widget with the focus, else the window in front.
QWidget* Con_La_Tastiera() {
  if (QWidget* aperto = QApplication::activePopupWidget())
    return aperto->focusWidget() ? aperto->focusWidget() : aperto;
  QWidget* fuoco = QApplication::focusWidget();
  if (fuoco && !Bloccata(fuoco)) return fuoco;
  QWidget* finestra = QApplication::activeModalWidget();
  if (!finestra) finestra = QApplication::activeWindow();
  if (!finestra) throw Fallito("una finestra con la tastiera", "nessuna");
  return finestra->focusWidget() ? finestra->focusWidget() : finestra;
}

void Batti(Qt::Key tasto, const QString& testo, Qt::KeyboardModifiers modi) {
  QWidget* bersaglio = Con_La_Tastiera();
  if (!bersaglio->isEnabled())
    throw Fallito("un controllo attivo con la tastiera", Nome_Controllo({bersaglio, {}}));
  QTest::sendKeyEvent(QTest::Press, bersaglio, tasto, testo, modi);
  // The key goes up where the keyboard is by then.
  if (QApplication::activePopupWidget() || QApplication::focusWidget() || QApplication::activeWindow())
    QTest::sendKeyEvent(QTest::Release, Con_La_Tastiera(), tasto, testo, modi);
}

void Esigi_Usabile(const Controllo_Trovato& controllo) {
  const std::string nome = Nome_Controllo(controllo);
  if (!Visibile(controllo)) throw Fallito(nome + " visibile", "nascosto");
  if (!Attivo(controllo)) throw Fallito(nome + " attivo", "inattivo");
  if (controllo.widget && Bloccata(controllo.widget))
    throw Fallito(nome + " raggiungibile", "davanti c'è " + Nome_Controllo({Schermo_Attivo(), nullptr}));
}

// What stands open over the windows goes away when a person clicks elsewhere.
void Vieni_Davanti(QWidget* widget) {
  while (QWidget* aperto = QApplication::activePopupWidget()) {
    if (aperto == widget || aperto->isAncestorOf(widget)) return;
    aperto->close();
  }
  QWidget* finestra = widget->window();
  if (!finestra->isActiveWindow()) {
    finestra->raise();
    finestra->activateWindow();
    QApplication::setActiveWindow(finestra);
  }
}

struct Punto {
  QWidget* widget;
  QPoint posto;
};

Punto Punto_Della_Riga(QAbstractItemView* lista, const QModelIndex& indice) {
  lista->scrollTo(indice);
  const QRect riga = lista->visualRect(indice) & lista->viewport()->rect();
  if (riga.isEmpty()) throw Fallito("la riga visibile nella lista", "fuori dalla lista");
  return {lista->viewport(), riga.center()};
}

template <class Casella>
Punto Punto_Della_Casella(Casella* casella, QStyle::SubElement segno) {
  QStyleOptionButton opzioni;
  opzioni.initFrom(casella);
  opzioni.text = casella->text();
  return {casella, casella->style()->subElementRect(segno, &opzioni, casella).center()};
}

Punto Dove(QWidget* widget) {
  if (auto* lista = qobject_cast<QAbstractItemView*>(widget)) {
    const QModelIndex indice = lista->currentIndex();
    if (indice.isValid()) return Punto_Della_Riga(lista, indice);
  }
  if (auto* area = qobject_cast<QAbstractScrollArea*>(widget))
    return {area->viewport(), area->viewport()->rect().center()};
  if (auto* casella = qobject_cast<QCheckBox*>(widget))
    return Punto_Della_Casella(casella, QStyle::SE_CheckBoxIndicator);
  if (auto* casella = qobject_cast<QRadioButton*>(widget))
    return Punto_Della_Casella(casella, QStyle::SE_RadioButtonIndicator);
  return {widget, widget->rect().center()};
}

void Batti_Mouse(const Punto& punto, Qt::MouseButton bottone, bool doppio) {
  const QPointer<QWidget> vivo(punto.widget);
  const auto manda = [&](QTest::MouseAction azione) {
    if (vivo) QTest::mouseEvent(azione, vivo.data(), bottone, Qt::NoModifier, punto.posto);
  };
  manda(QTest::MousePress);
  if (bottone == Qt::RightButton && vivo) {  // the desktop asks for the context menu with the press
    QContextMenuEvent evento(QContextMenuEvent::Mouse, punto.posto, vivo->mapToGlobal(punto.posto));
    QSpontaneKeyEvent::setSpontaneous(&evento);
    qApp->notify(vivo, &evento);
  }
  manda(QTest::MouseRelease);
  if (!doppio) return;
  manda(QTest::MouseDClick);
  manda(QTest::MouseRelease);
}

void Scegli_Nel_Combo(QComboBox* combo, int riga) {
  const QPointer<QComboBox> vivo(combo);
  const QString testo = combo->itemText(riga);
  combo->setFocus(Qt::MouseFocusReason);
  combo->setCurrentIndex(riga);
  if (vivo) emit vivo->activated(riga);
  if (vivo) emit vivo->textActivated(testo);
}

void Muovi(QAbstractSlider* cursore, const QString& testo) {
  bool numero = false;
  const int valore = testo.toInt(&numero);
  if (!numero || valore < cursore->minimum() || valore > cursore->maximum())
    throw Fallito(
        "un valore da " + std::to_string(cursore->minimum()) + " a " + std::to_string(cursore->maximum()),
        testo.toStdString());
  cursore->setSliderPosition(valore);
}

void Riscrivi(QWidget* campo, const QString& testo) {
  campo->setFocus(Qt::TabFocusReason);
  if (!campo->hasFocus())
    throw Fallito("la tastiera in " + Nome_Controllo({campo, nullptr}), "il campo non la prende");
  QMetaObject::invokeMethod(campo, "selectAll");
  if (testo.isEmpty())
    Premi_Tasto({Tasto::Canc});
  else
    Scrivi(testo);
}

bool Sola_Lettura(const QWidget* widget) { return widget->property("readOnly").toBool(); }

QAction* Cerca_Voce(const QList<QAction*>& voci, const QString& didascalia) {
  const auto confrontabile = [](const QString& testo) {
    return Senza_E_Commerciale(testo).section(QLatin1Char('\t'), 0, 0).trimmed();
  };
  for (QAction* voce : voci)
    if (voce->isVisible() && !voce->isSeparator() && confrontabile(voce->text()) == confrontabile(didascalia))
      return voce;
  QStringList presenti;
  for (const QAction* voce : voci)
    if (voce->isVisible() && !voce->isSeparator()) presenti << Senza_E_Commerciale(voce->text());
  throw Fallito("la voce di menu " + Citato(didascalia.toStdString()),
                presenti.isEmpty() ? "nessuna voce" : presenti.join(QLatin1String(" | ")).toStdString());
}

QMenuBar* Barra_In(QWidget* widget) {
  const auto barre = widget->findChildren<QMenuBar*>();
  for (QMenuBar* barra : barre)
    if (barra->isVisible() && !barra->actions().isEmpty()) return barra;
  return nullptr;
}

QMenuBar* Barra() {
  QWidget* schermo = Schermo_Attivo();
  if (!schermo) throw Fallito("una barra dei menu", "nessuna finestra aperta");
  if (QMenuBar* barra = Barra_In(schermo)) return barra;
  if (QMenuBar* barra = Barra_In(schermo->window())) return barra;
  const auto cime = QApplication::topLevelWidgets();
  for (QWidget* cima : cime)
    if (qobject_cast<QMainWindow*>(cima) && cima->isVisible())
      if (QMenuBar* barra = Barra_In(cima)) return barra;
  throw Fallito("una barra dei menu", "nessuna in " + Nome_Controllo({schermo, nullptr}));
}

// A menu that stands open by itself, as the right mouse button opens one.
bool Nel_Menu_Aperto(const QString& didascalia) {
  auto* aperto = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (!aperto) return false;
  QAction* voce = Cerca_Voce(aperto->actions(), didascalia);
  Esigi_Usabile({nullptr, voce});
  aperto->setActiveAction(voce);
  Premi_Tasto({Tasto::Invio});
  return true;
}

}  // namespace

namespace {

void Batti_Carattere(char32_t codice) {
  if (codice == U'\n') return Premi_Tasto({Tasto::Invio});
  if (codice == U'\t') return Premi_Tasto({Tasto::Tab});
  const QString carattere = QString::fromUcs4(&codice, 1);
  // Keys of the Latin letters and signs carry the code of the capital; the others have none of their own.
  const char16_t maiuscolo = carattere.toUpper().at(0).unicode();
  const bool ha_tasto = maiuscolo >= 0x20 && maiuscolo <= 0xFF;
  Batti(ha_tasto ? static_cast<Qt::Key>(maiuscolo) : Qt::Key_unknown, carattere,
        carattere.at(0).isUpper() ? Qt::ShiftModifier : Qt::NoModifier);
}

}  // namespace

void Premi_Tasto(const Pressione& pressione) {
  const auto [tasto, testo] = In_Qt(pressione);
  Qt::KeyboardModifiers modi;
  modi.setFlag(Qt::ShiftModifier, pressione.maiuscole);
  modi.setFlag(Qt::ControlModifier, pressione.ctrl);
  modi.setFlag(Qt::AltModifier, pressione.alt);
  Batti(tasto, testo, modi);
}

void Scrivi(const QString& testo) {
  bool iniziato = false;
  try {
    for (const char32_t codice : testo.toStdU32String()) {
      Batti_Carattere(codice);
      iniziato = true;
    }
  } catch (Fallito& fallito) {
    fallito.a_meta = iniziato;
    throw;
  }
}

void Clic(const Controllo_Trovato& controllo, Qt::MouseButton bottone, bool doppio) {
  Esigi_Usabile(controllo);
  if (controllo.voce) {
    if (bottone != Qt::LeftButton || doppio)
      throw Fallito("un clic semplice su una voce di menu", Nome_Controllo(controllo));
    controllo.voce->trigger();
    return;
  }
  Vieni_Davanti(controllo.widget);
  Batti_Mouse(Dove(controllo.widget), bottone, doppio);
}

void Da_Fuoco(const Controllo_Trovato& controllo) {
  Esigi_Usabile(controllo);
  if (!controllo.widget) throw Fallito("un controllo che prende la tastiera", Nome_Controllo(controllo));
  Vieni_Davanti(controllo.widget);
  controllo.widget->setFocus(Qt::TabFocusReason);
}

void Metti(const Controllo_Trovato& controllo, const QString& testo) {
  Esigi_Usabile(controllo);
  QWidget* widget = controllo.widget;
  if (!widget) throw Fallito("un campo", Nome_Controllo(controllo));
  if (Sola_Lettura(widget)) throw Fallito(Nome_Controllo(controllo) + " da scrivere", "di sola lettura");
  Vieni_Davanti(widget);
  if (auto* combo = qobject_cast<QComboBox*>(widget); combo && !combo->isEditable()) {
    const int riga = combo->findText(testo, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (riga < 0) throw Fallito("nel combo la voce " + Citato(testo.toStdString()), Prime_Righe(controllo));
    Scegli_Nel_Combo(combo, riga);
  } else if (combo) {
    Riscrivi(combo->lineEdit(), testo);
  } else if (auto* cursore = qobject_cast<QAbstractSlider*>(widget)) {
    Muovi(cursore, testo);
  } else if (qobject_cast<QLineEdit*>(widget) || qobject_cast<QPlainTextEdit*>(widget) ||
             qobject_cast<QTextEdit*>(widget) || qobject_cast<QAbstractSpinBox*>(widget)) {
    Riscrivi(widget, testo);
  } else {
    throw Fallito("un campo, un combo o una barra", Nome_Controllo(controllo));
  }
}

void Scegli(const Controllo_Trovato& controllo, int riga) {
  Esigi_Usabile(controllo);
  if (!Ha_Righe(controllo)) throw Fallito("una lista o un combo", Nome_Controllo(controllo));
  if (riga < 0 || riga >= Numero_Righe(controllo))
    throw Fallito("la riga " + std::to_string(riga + 1), Prime_Righe(controllo));
  Vieni_Davanti(controllo.widget);
  if (auto* combo = qobject_cast<QComboBox*>(controllo.widget)) {
    Scegli_Nel_Combo(combo, riga);
    return;
  }
  auto* lista = qobject_cast<QAbstractItemView*>(controllo.widget);
  const QModelIndex indice = lista->model()->index(riga, 0);
  if (!lista->model()->flags(indice).testFlag(Qt::ItemIsEnabled))
    throw Fallito("una riga attiva", Riga_Di(controllo, riga).toStdString());
  Batti_Mouse(Punto_Della_Riga(lista, indice), Qt::LeftButton, false);
}

void Scegli_Menu(const std::vector<QString>& didascalie) {
  if (didascalie.size() == 1 && Nel_Menu_Aperto(didascalie.front())) return;
  QMenuBar* barra = Barra();
  Esigi_Usabile({barra, nullptr});
  QList<QAction*> voci = barra->actions();
  for (std::size_t i = 0; i < didascalie.size(); ++i) {
    QAction* voce = Cerca_Voce(voci, didascalie[i]);
    if (!voce->isEnabled())
      throw Fallito("la voce di menu " + Citato(didascalie[i].toStdString()) + " attiva", "inattiva");
    const bool ultima = i + 1 == didascalie.size();
    if (ultima == (voce->menu() != nullptr))
      throw Fallito(ultima ? "una voce di menu" : "un menu", Citato(didascalie[i].toStdString()));
    if (ultima) {
      voce->trigger();
      return;
    }
    emit voce->menu()->aboutToShow();  // a menu may settle its entries when it opens
    voci = voce->menu()->actions();
  }
}

}  // namespace giornata

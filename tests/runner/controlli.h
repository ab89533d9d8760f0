#pragma once

#include <string>
#include <vector>

#include <QAction>
#include <QPointer>
#include <QWidget>

#include "tests/runner/copione.h"

class QAbstractItemView;
class QAbstractItemModel;

namespace giornata {

// What a step means by a control: a widget, or an entry of a menu.
struct Controllo_Trovato {
  QWidget* widget = nullptr;
  QAction* voce = nullptr;
  bool operator==(const Controllo_Trovato&) const = default;
};

// The screen that the operator works in: the one with the keyboard, else the first visible one of the window
// in front. Null when no window is open.
QWidget* Schermo_Attivo();
// The screen that holds the widget: the innermost one, else its window.
QWidget* Schermo_Di(QWidget* widget);
// Every open screen, the active one first.
std::vector<QWidget*> Schermi_Aperti();

// The control with that name, or with that caption where it is the only one with it, in the active screen,
// then in the other open ones; in the named screen alone when the word names one. Fails when it is missing or
// ambiguous.
Controllo_Trovato Trova_Controllo(const Parola& parola);

std::string Nome_Controllo(const Controllo_Trovato& controllo);  // for messages
bool Visibile(const Controllo_Trovato& controllo);
bool Attivo(const Controllo_Trovato& controllo);
bool Ha_Fuoco(const Controllo_Trovato& controllo);
bool Segnato(const Controllo_Trovato& controllo);  // fails on what can't be marked

// The text that the operator reads: a field's text, a caption, a combo's choice, a list's selected line, a
// scroll bar's value.
QString Testo_Controllo(const Controllo_Trovato& controllo);
// Whether its text is a caption, in which "&" doesn't count.
bool Ha_Didascalia(const Controllo_Trovato& controllo);
QString Senza_E_Commerciale(const QString& testo);

// The lines of a list or combo, or of a text of several lines. Fails on anything else.
bool Ha_Righe(const Controllo_Trovato& controllo);
int Numero_Righe(const Controllo_Trovato& controllo);
QString Riga_Di(const Controllo_Trovato& controllo, int riga);             // from 0
int Cerca_Riga(const Controllo_Trovato& controllo, const QString& parte);  // from 0, -1 for none
std::string Prime_Righe(const Controllo_Trovato& controllo);               // for messages

}  // namespace giornata

#pragma once

#include <array>
#include <span>

#include "core/controlli.h"
#include "core/programma.h"

// The wording of the graphic invoices: four sets of six lines, each the foot of one layout. An empty line
// prints nothing and keeps its place on the page.

inline constexpr std::size_t Righe_Dicitura = 6;
using Dicitura = std::array<Testo, Righe_Dicitura>;

enum class Serie_Dicitura { Generica, Completa, Personalizzata1, Personalizzata2 };
inline constexpr std::array<Serie_Dicitura, 4> Serie_Diciture = {
    Serie_Dicitura::Generica, Serie_Dicitura::Completa, Serie_Dicitura::Personalizzata1,
    Serie_Dicitura::Personalizzata2};

// The six lines in use.
std::span<const Testo, Righe_Dicitura> Righe_Di(const Preferenze& preferenze, Serie_Dicitura serie);

// One of the four sets on the screen.
struct Serie_Campi {
  Scritta didascalia;
  std::array<CampoTesto, Righe_Dicitura> campi;
  Bottone predefinita;  // its default
};

// The screen `Personalizza_Fattura`. Fields Text1 to Text4 and the buttons Command5, 6, 4, 1 in the order of
// Serie_Diciture.
struct Personalizza_Fattura {
  Testo titolo = "Personalizzazione  Fattura";
  std::array<Serie_Campi, 4> serie;
  Bottone Command2, Command3;  // apply, close
  Scritta Esito;               // that the last command has stored, until a line changes
  bool chiusa = false;         // the window goes
};

void Apri_Personalizza(const Programma& programma, Personalizza_Fattura& schermo);
void Tocca_Personalizza(Personalizza_Fattura& schermo);  // a line was changed
// A default button: the texts in use change at once, the settings file doesn't.
void Predefinita_Personalizza(Programma& programma, Personalizza_Fattura& schermo, Serie_Dicitura quale);
// Takes all lines as they stand and writes their keys. When the file can't be written that is told, the texts
// in use stay, the screen keeps what was keyed, and the result is false.
bool Applica_Personalizza(Programma& programma, Personalizza_Fattura& schermo);
void Chiudi_Personalizza(Personalizza_Fattura& schermo);

#pragma once

#include <string>
#include <vector>

#include "tests/runner/controlli.h"

// What a person does at the machine, as key and mouse events of the toolkit. A control that is hidden,
// disabled or behind a window that must be answered first refuses every gesture.
namespace giornata {

void Premi_Tasto(const Pressione& pressione);  // into whatever has the keyboard
void Scrivi(const QString& testo);             // character by character; \n is Enter, \t is Tab
void Clic(const Controllo_Trovato& controllo, Qt::MouseButton bottone, bool doppio = false);
void Da_Fuoco(const Controllo_Trovato& controllo);
void Metti(const Controllo_Trovato& controllo, const QString& testo);
void Scegli(const Controllo_Trovato& controllo, int riga);  // from 0
void Scegli_Menu(const std::vector<QString>& didascalie);

}  // namespace giornata

#pragma once

#include "primanota/nota.h"

// Prepares the page device for a note (upright, millimetres) and measures its sheet.
Foglio_Nota PreparaFoglioNota(const Programma& programma);

// Draws the note on the page device that PreparaFoglioNota made ready. `titolo`, the screen's caption, tells
// the page in work.
void DisegnaNota(const Programma& programma, const Nota_Stampata& nota, const Foglio_Nota& foglio,
                 Testo& titolo);

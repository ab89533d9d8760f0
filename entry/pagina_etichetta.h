#pragma once

#include "entry/etichette.h"
#include "printing/dispositivo.h"

// How a label stands on its page: four cells, one below the other, in a frame at the top left of the sheet,
// made for a label paper of 100 x 70 mm. On a smaller paper, or with long texts, letters get smaller rather
// than run into one another or out of the frame; on a larger one the frame stays as it is.

// Breaks a text in two at the last blank before the width, in the font and unit in use, is exceeded; a text
// that fits stays whole. Where already the first word is too wide the break is behind it, and a text without
// a blank stays whole: both are then wider than asked. The blank at the break goes.
void SpezzaTesto(Printer& printer, float larghezza, Vista testo, Testo& prima, Testo& resto);

// Draws on the page in work, in millimetres and Arial.
void DisegnaEtichetta(Printer& printer, const Contenuto_Etichetta& etichetta);

#pragma once

#include "core/testo.h"

struct Programma;

// "Stampa Liste": the coded lists and the zones as they are in use, in the typewriter face, on the chosen
// printer as its paper lies. `titolo` is the caption of the screen that asks, which tells the page in work
// meanwhile.
void Stampa_Liste(Programma& programma, Testo& titolo);

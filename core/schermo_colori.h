#pragma once

#include "core/controlli.h"

struct Programma;

// The ink of the ledger lists for a value of ColoreTesto: 1 white, 2 black, 3 blue, 4 yellow, anything else
// black.
Colore Colore_Inchiostro(int colore_testo);

// A sample line on the colours screen.
struct Campione : Scritta {
  Colore inchiostro, fondo;
};

// The colours screen: ink and background of the ledger lists, which take them when the next day is opened.
struct SchermoColori {
  Testo titolo = "Colore Lista";
  Spunta ColoreTesto[4];              // white, black, blue, yellow
  Cursore Colore1, Colore2, Colore3;  // red, green, blue of the background
  Campione Normale, Selezionato;
  Bottone Applica, Chiudi;
};

void Apri_Colori(const Programma& programma, SchermoColori& schermo);
void Scegli_Inchiostro(SchermoColori& schermo, int colore_testo);  // 1 to 4
void Rinfresca_Campioni(SchermoColori& schermo);                   // after a slider has moved

// "&Applica": stores the four keys; a failed write is told, the values in use stay, and the result is false.
bool Applica_Colori(Programma& programma, SchermoColori& schermo);

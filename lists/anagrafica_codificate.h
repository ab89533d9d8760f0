#pragma once

#include "lists/anagrafica.h"

// The lists of one entry a line. Seven share the list window `MetodoPesca` and the editor `ModMetodo`; which
// of them is open is said by its `Tipo_Lista`: 1 gear, 2 size, 3 physical state, 4 working, 5 presentation, 6
// boat, 7 allergens. The provenances have windows of their own, `Provenienze` and `ModProv`. Blank lines of a
// file aren't entries and go with the next save.

// Any number below 1 or above 7 is taken for the nearest of these.
const Anagrafica& Anagrafica_Codificata(int tipo);
const Anagrafica& Anagrafica_Provenienze();

// An entry as the row being keyed takes it.
const Testo& Voce_Codificata(const Programma& programma, int tipo, std::size_t r);

// Writes the entries of that kind's table to its file and reads it again; false when it couldn't be written
// (told).
bool Salva_Lista_Tipo(Programma& programma, int tipo);
// The same for the provenances. Every entry is written a second time, to zzzzz.txt, for whoever keeps the
// built-in lists; a failure there is told and undoes nothing.
bool Salva_Provenienze(Programma& programma);

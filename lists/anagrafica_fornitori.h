#pragma once

#include "lists/anagrafica.h"

// The suppliers: list window `Fornitori`, editor `ModFOR`.

const Anagrafica& Anagrafica_Fornitori();

// What a row being keyed takes from a supplier: the commission with the machine's separator, and the lot code
// where lots are automatic (empty otherwise).
struct Fornitore_Copiato {
  Testo nome, provvigione, lotto;
};
Fornitore_Copiato Copia_Del_Fornitore(const Programma& programma, std::size_t r);

#pragma once

#include "lists/anagrafica.h"

// The customers: list window `Clienti`, editor `ModCLI`.

const Anagrafica& Anagrafica_Clienti();

// The list line of row `r` (from 0) of Vet_Clienti. In the order of nicknames the nickname stands in front.
Testo Riga_Cliente(const Programma& programma, std::size_t r, bool per_soprannome);

struct Cliente_Copiato {
  Testo nome, codice;
};
Cliente_Copiato Copia_Del_Cliente(const Programma& programma, std::size_t r);

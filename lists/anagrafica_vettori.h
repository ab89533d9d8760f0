#pragma once

#include <array>

#include "lists/anagrafica.h"

// The carriers: list window `AnagraficaVettori`, editor `ModVETTORI`. No day opening reads them: the list is
// read when its window opens.

const Anagrafica& Anagrafica_Vettori();

// What a carrier invoice takes: by which means the goods go, and the three lines about the carrier.
struct Vettore_Copiato {
  Testo mezzo;
  std::array<Testo, 3> vettore;
};
Vettore_Copiato Copia_Del_Vettore(const Programma& programma, std::size_t r);

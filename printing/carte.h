#pragma once

#include <span>

#include "core/testo.h"

// Papers by the names that printers give them, upright. Millimetres; 0 for the two that have no size of their
// own.
struct Carta_Nota {
  Vista nome;
  double larghezza = 0, altezza = 0;
};
std::span<const Carta_Nota> Carte();

// The name of a sheet of that size, whichever way it lies; "User" for a size that no paper has.
Vista Nome_Carta(double larghezza, double altezza);

#pragma once

#include <array>
#include <cstdint>

#include "core/testo.h"

// How wide and high the letters of a typeface are, in design units. What is measured from here comes out the
// same on every device, and the same as what is drawn.

using Larghezze = std::array<std::uint16_t, 256>;  // of each character of Windows-1252

struct Metrica {
  Larghezze larghezze{};
  int quadrato = 2048;  // design units to the size of the font
  int sopra = 0;        // from the top of the line to the base line
  int sotto = 0;        // from the base line to the bottom of the line
};

// The typeface that stands in for a font name, ignoring case: the typewriter face for "Courier New",
// "Courier" and "Liberation Mono", the sans serif one for everything else.
enum class Faccia { Sans, Mono };
Faccia Faccia_Di(Vista carattere);
bool Faccia_Propria(Vista carattere);  // the name is one of those that the tables were made for
Vista Nome_Faccia(Faccia faccia);      // "Liberation Sans", "Liberation Mono"

// Slanting changes no width.
const Metrica& Metrica_Della_Faccia(Faccia faccia, bool grassetto);

// Sum of the widths in design units. Control characters and the bytes that the code page leaves undefined
// take no room and are not drawn.
std::int64_t Unita(const Metrica& metrica, Vista testo);

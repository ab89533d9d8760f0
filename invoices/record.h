#pragma once

#include "core/testo.h"

// Fields of records of fixed length, which other firms' programs cut at their positions.

// A whole number (rounded) with zeros on the left; a minus takes the first place of the field. One too long
// for the field stays whole: who reads it must not take a smaller sum for it.
Testo NumeroRecord(double valore, std::size_t lunghezza, char separatore);
// A code with zeros on the left; a longer one is cut.
Testo CodiceRecord(Vista codice, std::size_t lunghezza);

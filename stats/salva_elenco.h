#pragma once

#include <span>

#include "core/programma.h"

// Writes lines to a file, which they replace as a whole. A failure is told, the file stays as it was, and the
// result is false.
bool Salva_Righe(Programma& programma, const Percorso& file, std::span<const Testo> righe);

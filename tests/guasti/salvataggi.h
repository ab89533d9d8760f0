#pragma once

#include <memory>
#include <ostream>
#include <span>

#include "tests/guasti/scena.h"

// Everything that the rooms save, as a table: what stands before, and the saving itself.
struct Salvataggio {
  const char* nome;
  // Sets the scene up, and gives the saving. That is true when it counts as done: when nothing failed, or
  // nobody was told of a failure.
  std::function<std::function<bool()>(Scena&)> prepara;
  // What isn't told, as its loss costs the operator a tick and no data.
  bool taciuto = false;
  // Files are overwritten where they lie, so that nobody reads them again: half of that is as good as the
  // whole.
  bool si_distrugge = false;
  // The command leaves its numbers in the rows whatever becomes of its files, and the operator saves the day
  // afterwards.
  bool cambia_le_righe = false;
};

inline void PrintTo(const Salvataggio& salvataggio, std::ostream* dove) { *dove << salvataggio.nome; }

std::span<const Salvataggio> Salvataggi();

#pragma once

#include <optional>
#include <vector>

#include "core/programma.h"

// The sibling programs that stand in the data folder, each for one job.

// Where the sibling stands: under its exact name, or under that name without ".exe"; nothing when it is
// missing.
std::optional<Percorso> Trova_Programma(const Programma& programma, Vista nome);

// Starts the sibling and ends this program, since the siblings work on its files. A missing one, or one that
// doesn't start, is told and gives false; the program goes on.
bool LanciaProgramma(Programma& programma, Vista nome, const std::vector<Testo>& argomenti = {});

#pragma once

#include <vector>

#include "core/programma.h"

// The last days that have a file, .txt or .dat, in the folders of the years, the latest first; none that lies
// ahead. `tutti` says whether every folder could be read.
std::vector<Data> Giorni_Recenti(const Programma& programma, std::size_t quanti, bool* tutti = nullptr);

// The day in the name of a day file, "20250314.txt": nothing where it isn't one.
std::optional<Data> Giorno_Nel_Nome(Vista nome);

#pragma once

#include "core/disco.h"
#include "tests/runner/foto.h"

namespace giornata {

// Plays the script in a process of its own, so that a program that dies or never comes back fails this day
// alone, and removes the day's folder after it. 0 passed; otherwise what failed was told on the standard
// output. `album` takes the pictures that the day shows, if they are wanted; `resto`
// gets the firm's folder and the pages of a day that passed.
int Gioca_Copione(const Percorso& file, int& argc, char** argv, Album* album = nullptr,
                  const Percorso& resto = {});

}  // namespace giornata

#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "tests/operatori/schermi.h"
#include "tests/operatori/testi_noti.h"

namespace operatori {

// One operator: goes to a screen and does anything at all there for so many steps.
struct Giro {
  const Schermo* schermo = nullptr;
  std::uint64_t seme = 1;
  int passi = 200;
};

struct Esito {
  std::string difetto;             // empty: none
  std::vector<std::string> passi;  // what was done and shown, in order
  std::set<std::string> classi;    // of the windows that were seen
};

// Plays it in a process of its own, on a firm of its own; `progetto` is the folder of the sources.
Esito Gioca(const Giro& giro, const Percorso& progetto, const Testi_Noti& testi);

// What a person needs to see it again: screen, seed, and the last steps.
std::string Racconto(const Giro& giro, const Esito& esito);

}  // namespace operatori

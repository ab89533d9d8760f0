#pragma once

#include <span>
#include <string>
#include <vector>

namespace operatori {

// A screen of the program and the way of a person to it.
struct Schermo {
  const char* nome;    // its objectName
  const char* classe;  // of its window
  // From the entry screen (from the start screen where `dall_inizio`), one step each: "clic C", "destro C",
  // "menu A|B", "tasto F2", "metti C TESTO", "scegli C 3", "fuoco C", "scrivi TESTO".
  std::vector<const char*> via;
  const char* impostazioni = "";  // lines of the settings file that the way needs
  bool dall_inizio = false;
};

std::span<const Schermo> Schermi();

}  // namespace operatori

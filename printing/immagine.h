#pragma once

#include <cstdint>
#include <vector>

// A picture of a screen: its points row by row from the top left, each 0xRRGGBB.
struct Immagine {
  int larghezza = 0, altezza = 0;  // points
  std::vector<std::uint32_t> punti;
  bool Vuota() const { return larghezza <= 0 || altezza <= 0; }
};

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace operatori {

// Chance that a seed gives back anywhere and always, which the library's distributions don't promise.
class Caso {
 public:
  explicit Caso(std::uint64_t seme) : stato_(seme) {}

  std::uint64_t prossimo() {  // splitmix64
    std::uint64_t z = (stato_ += 0x9E3779B97F4A7C15U);
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31U);
  }
  std::size_t sotto(std::size_t n) { return n == 0 ? 0 : static_cast<std::size_t>(prossimo() % n); }
  int fra(int primo, int ultimo) {
    return primo + static_cast<int>(sotto(static_cast<std::size_t>(ultimo - primo) + 1));
  }
  bool una_su(std::size_t n) { return sotto(n) == 0; }

  template <class Serie>
  decltype(auto) uno(const Serie& serie) {
    return serie[sotto(std::size(serie))];
  }

 private:
  std::uint64_t stato_;
};

}  // namespace operatori

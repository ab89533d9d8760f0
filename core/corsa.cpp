#include "core/corsa.h"

#include <algorithm>

Corsa::Corsa(Piattaforma& piattaforma, std::size_t quante, int copie)
    : piattaforma_(piattaforma),
      quante_(quante * static_cast<std::size_t>(std::max(1, copie))),
      copie_(copie) {}

bool Corsa::Avanti() {
  if (iniziata_ && !fermata_) fermata_ = piattaforma_.Vuole_Fermare();
  iniziata_ = true;
  return !fermata_;
}

Testo Corsa::Testo_Fermata(const Parole_Corsa& parole) const {
  const Vista cosa = fatte_ == 1 ? parole.uno : parole.molti;
  Testo testo(parole.lavoro);
  testo.append(": ").append(std::to_string(fatte_)).append(" ").append(cosa);
  testo.append(" su ").append(std::to_string(quante_));
  if (copie_ > 1) testo.append(" (").append(std::to_string(copie_)).append(" copie)");
  return testo.append(".");
}

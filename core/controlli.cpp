#include "core/controlli.h"

void Elenco::Riempi(std::vector<Testo> righe) {
  righe_ = std::move(righe);
  numero_ = nullptr;
  riga_ = nullptr;
  if (scelta >= static_cast<int>(righe_.size())) scelta = -1;
  Cambiato();
}

void Elenco::Collega(std::function<std::size_t()> numero, std::function<Testo(std::size_t)> riga) {
  righe_.clear();
  numero_ = std::move(numero);
  riga_ = std::move(riga);
  Cambiato();
}

std::size_t Elenco::Numero() const { return numero_ ? numero_() : righe_.size(); }

Testo Elenco::Riga(std::size_t i) const {
  if (i >= Numero()) return {};
  return riga_ ? riga_(i) : righe_[i];
}

Testo Elenco::Scelta() const { return scelta < 0 ? Testo() : Riga(static_cast<std::size_t>(scelta)); }

#include "stats/vendite.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "core/numeri.h"

namespace {

constexpr double mille = 1000, milione = 1e6;

// The number as a whole number of `parti`, where it is one: a decimal text of so many digits reads as the
// nearest double, which the division gives again.
std::optional<std::int64_t> In_Parti(double valore, double parti) {
  constexpr double massimo = 9e15;  // a double holds every whole number up to there
  const double scalato = std::nearbyint(valore * parti);
  if (!(std::abs(scalato) < massimo) || scalato / parti != valore) return std::nullopt;
  return static_cast<std::int64_t>(scalato);
}

}  // namespace

bool Senza_Vendita(const LedgerRow& riga) {
  if (Uguali(riga[CampoRiga::Fornitore], Riga_Vuota)) return true;
  constexpr CampoRiga campi[] = {CampoRiga::Fornitore, CampoRiga::Specie, CampoRiga::Peso, CampoRiga::Prezzo};
  return std::ranges::all_of(campi, [&](CampoRiga campo) { return Pulito(riga[campo]).empty(); });
}

Testo Righe_Illeggibili(int senza_numero) {
  if (senza_numero == 0) return {};
  return "righe senza peso o prezzo leggibile: " + std::to_string(senza_numero);
}

Testo Righe_Illeggibili(const std::vector<LedgerRow>& righe, char separatore) {
  const auto illeggibile = [&](const LedgerRow& riga) {
    return !Senza_Vendita(riga) &&
           !(Numero(riga[CampoRiga::Peso], separatore) && Numero(riga[CampoRiga::Prezzo], separatore));
  };
  return Righe_Illeggibili(static_cast<int>(std::ranges::count_if(righe, illeggibile)));
}

void Somma_Esatta::Aggiungi(double valore) {
  if (const auto parti = In_Parti(valore, milione))
    Aggiungi_Milionesimi(*parti);
  else
    resto_ += valore;
}

void Somma_Esatta::Aggiungi_Prodotto(double a, double b) {
  const auto primo = In_Parti(a, mille), secondo = In_Parti(b, mille);
  std::int64_t prodotto = 0;
  if (primo && secondo && !__builtin_mul_overflow(*primo, *secondo, &prodotto))
    Aggiungi_Milionesimi(prodotto);
  else
    resto_ += a * b;
}

void Somma_Esatta::Aggiungi(const Somma_Esatta& altra) {
  Aggiungi_Milionesimi(altra.milionesimi_);
  resto_ += altra.resto_;
}

void Somma_Esatta::Aggiungi_Milionesimi(std::int64_t milionesimi) {
  if (__builtin_add_overflow(milionesimi_, milionesimi, &milionesimi_)) {
    // the builtin has stored the sum less what doesn't fit
    const double giro = std::ldexp(1.0, 64) / milione;
    resto_ += milionesimi > 0 ? giro : -giro;
  }
}

double Somma_Esatta::Valore() const { return static_cast<double>(milionesimi_) / milione + resto_; }

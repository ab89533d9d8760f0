#pragma once

namespace operatori {

// Ends the process (status 3) when a step takes longer than five seconds: of its own work, so that a busy
// machine isn't taken for a fault, or six times as long on the clock, for one that waits and does nothing.
void Prendi_La_Guardia();
void Rinnova_La_Guardia();  // a step begins
void Lascia_La_Guardia();

inline constexpr int Esito_Fermo = 3;

}  // namespace operatori

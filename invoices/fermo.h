#pragma once

#include "core/impegno.h"
#include "invoices/zfatture.h"

// A command runs or asks.
inline auto Ferma(const Programma& programma, ZFatture& zfatture) {
  return Schermo_Occupato(zfatture, programma.piattaforma,
                          [&programma, &zfatture] { AggiornaComandi(programma, zfatture); });
}

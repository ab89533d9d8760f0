#pragma once

#include "core/impegno.h"
#include "core/programma.h"

// A command of one of these screens runs or asks.
template <class Schermo>
auto In_Corso(Programma& programma, Schermo& schermo) {
  return Schermo_Occupato(schermo, programma.piattaforma, [&schermo] { Aggiorna_Comandi(schermo); });
}

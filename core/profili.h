#pragma once

#include "core/testo.h"

// Some layouts and rules follow a named firm. The firm's code (setting CodiceCOM) selects the profile.
enum class Profilo {
  Nessuno,
  Altinel,
  Brenval,
  Burvano,
  Caspero,
  Cavarzo,
  Dolvena,
  Fusinal,
  Lagomar,
  Marvesi,
  Ombrano,
  Rovigal,
  Sarvena,
  Tolvera,
  Zenival
};

// The profile of a firm's code. "0", an empty or unknown code: no profile. The profile's own name is taken as
// a code too, ignoring case.
Profilo Profilo_Ditta(Vista codice);
Vista Nome_Profilo(Profilo profilo);

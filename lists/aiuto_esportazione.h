#pragma once

#include "core/testo.h"

// What operators are told of the market operator's file: in the help of the entry screen, and where the file
// is made. `dati` is the data folder, which stands before the name of the file's own.
Testo Aiuto_Esportazione(Vista dati = {});

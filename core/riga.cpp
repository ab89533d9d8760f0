#include "core/riga.h"

LedgerRow Riga_Segnaposto() {
  LedgerRow riga;
  riga[CampoRiga::Num] = "0001";
  riga[CampoRiga::Fornitore] = Riga_Vuota;
  return riga;
}

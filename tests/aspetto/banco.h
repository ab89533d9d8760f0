#pragma once

#include "entry/edita.h"
#include "entry/lotti.h"
#include "invoices/zfatture.h"
#include "lists/anagrafica.h"
#include "printing/registratore.h"
#include "start/inizio.h"
#include "tests/core/ditta_di_prova.h"

// The sample firm with its day open, as the screens of a working day find it.
struct Banco : Ditta_Di_Prova {
  Banco();

  Registro_Pagine registro;
  Registratore printer{macchina.stampante, registro};
  Edita edita;
  Lotti_Predefiniti lotti;
  SchermoAnagrafica anagrafica;  // of the editor that stands in front of a list
};

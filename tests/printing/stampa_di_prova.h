#pragma once

#include <gmock/gmock.h>

#include "printing/pagina.h"
#include "printing/registratore.h"
#include "tests/core/ditta_di_prova.h"

// A firm whose machine has the recorder for a printer.
struct Stampa_Di_Prova : Ditta_Di_Prova, testing::Test {
  Stampa_Di_Prova() {
    programma.preferenze = Preferenze_Predefinite();
    macchina.dispositivo = &printer;
  }

  // The drawn things so far, without the lines of documents and pages, which begin otherwise.
  std::vector<Testo> Disegnato() const {
    std::vector<Testo> esito;
    for (const Testo& riga : registro.righe)
      if (Inizia(riga, "p1 ") || Inizia(riga, "p2 ") || Inizia(riga, "p3 ")) esito.push_back(riga);
    return esito;
  }

  Registro_Pagine registro;
  Registratore printer{macchina.stampante, registro};
};

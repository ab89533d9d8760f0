#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "printing/registratore.h"
#include "tests/entry/giornata_di_prova.h"

// The recorder on a sheet of any size.
struct Registratore_Su_Foglio : Registratore {
  using Registratore::Registratore;
  std::optional<Carta> foglio;

 protected:
  Carta Foglio(int orientamento) const override {
    return foglio ? *foglio : Registratore::Foglio(orientamento);
  }
};

// A day on whose machine the recorder is the printer.
struct Giornata_Con_Stampante : Giornata_Di_Prova {
  Registro_Pagine registro;
  Registratore_Su_Foglio printer{macchina.stampante, registro};

  explicit Giornata_Con_Stampante(char separatore = ',') : Giornata_Di_Prova(separatore) {
    programma.preferenze = Preferenze_Predefinite();
    macchina.dispositivo = &printer;
  }

  // What was written, without places and fonts.
  std::vector<Testo> Scritti() const {
    std::vector<Testo> esito;
    for (const Testo& riga : registro.righe)
      if (riga.find(" testo ") != Testo::npos) esito.push_back(riga.substr(riga.find(": ") + 2));
    return esito;
  }
  int Documenti() const {
    return static_cast<int>(
        std::ranges::count_if(registro.righe, [](const Testo& riga) { return Inizia(riga, "documento "); }));
  }
};

#pragma once

#include <utility>

#include "core/programma.h"

// A command of a screen runs or asks: the pointer shows it, and clicks and keys that come meanwhile do
// nothing.
template <class Schermo>
class Comando_In_Corso {
 public:
  Comando_In_Corso(Programma& programma, Schermo& schermo)
      : programma_(programma), schermo_(schermo), era_attiva_(std::exchange(schermo.attiva, false)) {
    programma_.piattaforma.Occupato(true);
    Aggiorna_Comandi(schermo_);
  }
  ~Comando_In_Corso() {
    schermo_.attiva = era_attiva_;
    programma_.piattaforma.Occupato(false);
    Aggiorna_Comandi(schermo_);
  }
  Comando_In_Corso(const Comando_In_Corso&) = delete;
  Comando_In_Corso& operator=(const Comando_In_Corso&) = delete;

 private:
  Programma& programma_;
  Schermo& schermo_;
  bool era_attiva_;
};

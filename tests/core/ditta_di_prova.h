#pragma once

#include <cerrno>

#include "core/programma.h"
#include "tests/core/cartella_temporanea.h"
#include "tests/piattaforma_finta.h"

// A firm's empty folder with its program.
struct Ditta_Di_Prova {
  Cartella_Temporanea cartella;
  Piattaforma_Finta macchina;
  Programma programma{macchina};

  Ditta_Di_Prova() {
    programma.Cartella_Dati = cartella.percorso;
    programma.File_Ini = cartella / "Velmara_2020.ini";
    programma.Oggi = macchina.oggi;
  }

  void Metti_Ini(Vista contenuto) const { cartella.Metti("Velmara_2020.ini", Testo(contenuto)); }
  Testo Ini() const {
    return programma.disco.Esiste_File(programma.File_Ini) ? cartella.Contenuto("Velmara_2020.ini") : Testo();
  }
  void Disco_Pieno() {
    programma.disco.guasto = [](const Percorso&) { return ENOSPC; };
  }
};

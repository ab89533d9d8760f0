#pragma once

#include <cerrno>

#include "core/programma.h"
#include "tests/core/cartella_temporanea.h"
#include "tests/piattaforma_finta.h"

// The program works in that folder on 14/03/2025.
inline void Apri_Giornata(Programma& programma, const Percorso& cartella, char separatore) {
  programma.Cartella_Dati = cartella;
  programma.File_Ini = cartella / "Velmara_2020.ini";
  programma.Separatore_Decimale = separatore;
  programma.Separatore_Altro = separatore == ',' ? '.' : ',';
  programma.Oggi = {2025, 3, 14};
  programma.Ieri_AAMMGG = "250313";
  programma.Anno_Lavoro = "2025";
  programma.Data_AAAAMMGG = "20250314";
  programma.Data_GGMMAAAA = "14032025";
  programma.Data_Giorno = "14/03/2025";
  programma.Cartella_Anno = cartella / "2025";
  programma.File_Giorno = cartella / "2025/20250314.txt";
}

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

  void Apri_Giorno(char separatore = ',') {
    macchina.separatore = separatore;
    Apri_Giornata(programma, cartella.percorso, separatore);
  }
  void Metti_Ini(Vista contenuto) const { cartella.Metti("Velmara_2020.ini", Testo(contenuto)); }
  Testo Ini() const {
    return programma.disco.Esiste_File(programma.File_Ini) ? cartella.Contenuto("Velmara_2020.ini") : Testo();
  }
  void Disco_Pieno() {
    programma.disco.guasto = [](const Percorso&) { return ENOSPC; };
  }
};

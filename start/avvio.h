#pragma once

#include <array>
#include <functional>
#include <optional>

#include "core/programma.h"

// Start-up, once, before any window: constants, folder, settings, files of older generations, letterhead.
enum class EsitoAvvio { Pronto, Fine };  // Fine: the program ends (another instance, list generator started)

// `cartella` is the folder of the program file. The lock stays with the caller for the program's life.
// `chiedi` shows the first-run dialog where the folder has no letterhead yet (before the settings are read,
// so that the stall number is asked once); nothing when it was cancelled.
struct PrimoAvvio;
EsitoAvvio Avvia(Programma& programma, const Percorso& cartella, Blocco_Cartella& blocco,
                 const std::function<std::optional<PrimoAvvio>()>& chiedi);

// Copies a file of the older generation to its present name, with its message; false when the program must
// end (the species list can't be made from anything and the list generator runs).
bool Converti_File(Programma& programma, Vista vecchio, Vista nuovo);

// The first run: seven letterhead lines, the firm's code and the stall number.
struct PrimoAvvio {
  std::array<Testo, 7> righe;
  Testo codice;
  Testo posteggio;
};
// Writes letterhead, code and stall number; a failure is told and gives false.
bool Scrivi_Primo_Avvio(Programma& programma, const PrimoAvvio& dati);

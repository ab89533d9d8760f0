#pragma once

#include "core/programma.h"
#include "tests/operatori/caso.h"
#include "tests/operatori/schermi.h"

namespace operatori {

// A firm with several days, customers, species, suppliers, carriers, macros, lots, account files and letters,
// and settings at random around what the screen needs.
void Prepara_Ditta(const Percorso& progetto, const Percorso& ditta, const Schermo& schermo, Caso& caso);

// What is wrong with a day file's bytes; empty for none.
std::string Difetto_File(Vista contenuto);
// What is wrong with the open day, in memory and on the disk, and with the days of all years.
std::string Difetto_Giorno(const Programma& programma);
std::string Difetto_Giorni(const Percorso& ditta);

// The last account's number in the firm's file.
long Ultimo_Conto(const Percorso& ditta);

// All that a message can hold of the firm's data.
Testo Dati_Della_Ditta(const Percorso& radice, const Programma* programma);

}  // namespace operatori

#pragma once

#include "core/programma.h"

// The day file <yyyy>/<yyyymmdd>.txt: one line a row, 35 fields joined by TAB, Windows-1252, CR LF. And the
// file of last numbers, _2020_ncv.txt.

// Sets File_Giorno for Cartella_Anno and Data_AAAAMMGG. With Modo_Dat it is the .dat copy, which is made when
// it isn't there yet.
void Scegli_File_Giorno(Programma& programma);

// Reads File_Giorno into Vet_Tabella; a missing or empty file gives the placeholder row. Tabella_Modificata
// and the order are reset, the file isn't touched. A file that is there and can't be read is told and gives
// false: then the day must not be opened, since a save would replace it.
bool Carica_Giorno(Programma& programma);

// Writes Vet_Tabella to File_Giorno. On failure "Errore <n> durante il salvataggio" is shown, the last good
// file and Tabella_Modificata stay, and `errore` is true.
void Salva_Giorno(Programma& programma, bool& errore);

void Leggi_Ultimi_Numeri(Programma& programma);  // seeds a missing file
// False when the file couldn't be written (told to the operator).
bool Salva_Ultimi_Numeri(Programma& programma);

// The folder of the day's invoice files; the second makes it if needed.
Percorso Percorso_Fatture(const Programma& programma);
Percorso Cartella_Fatture(Programma& programma);

// After a question, overwrites and deletes the .dat files of the year `anno`; Modo_Dat goes off in any case.
void Cancella_File_Dat(Programma& programma, Vista anno);

// "Errore <n> durante <che_cosa>", the path, and the error in words.
void Di_Errore_File(const Programma& programma, int errore, Vista che_cosa, const Percorso& percorso);

// Makes a folder with its parents; on failure shows number, path and text of the error and gives false.
bool Crea_Cartella(Programma& programma, const Percorso& cartella);

// The bytes of a table's day file, and a table from such bytes (separators of weight, price and commission
// brought to the machine's), of no more than the first `massime` rows. `contenuto` empty: the placeholder
// row.
Testo Scrivi_Tabella(const Tabella& tabella);
Tabella Leggi_Tabella(Vista contenuto, char separatore, std::size_t massime = Vista::npos);

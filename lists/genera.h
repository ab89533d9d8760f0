#pragma once

#include <vector>

#include "core/programma.h"

// The list generator's work: writes every list and number file of the data folder that is missing (reference
// species list, species list, coded lists, zones, provenances, suppliers, customers, carriers, last numbers).
// What is there stays as it is. A file whose forerunner of the older generation is there isn't written:
// start-up or its reader makes it from that one, and a default would hide the firm's own data.
struct Lista_Generata {
  Testo nome;            // file name
  bool scritta = false;  // false: it was there already, or `errore` says why it couldn't be written
  int errore = 0;
  int righe = 0;
  Testo precedente;  // the forerunner's name, where that is why it wasn't written
};
std::vector<Lista_Generata> Genera_Liste(Programma& programma);

// The outcome of a file in the operator's words: "scritto, 83 righe", "già presente" and the like.
Testo Esito_In_Parole(const Lista_Generata& lista);
// One sentence over all files.
Testo Riassunto(const std::vector<Lista_Generata>& liste);
bool Con_Errori(const std::vector<Lista_Generata>& liste);

// When the program starts again behind the generator: by itself after two seconds in which the list can be
// read, or at once when the operator asks; never by itself when a file failed. The folder must be free of the
// program that started the generator, which is waited for five seconds.
struct Ripartenza {
  bool errori = false;
  bool chiesta = false;          // the operator pressed the button
  double secondi = 0;            // since the outcome is on screen
  double secondi_di_attesa = 0;  // since the start is due
};
enum class Passo_Ripartenza { Resta, Aspetta, Avvia, Occupata };
Passo_Ripartenza Prossimo_Passo(const Ripartenza& ripartenza, bool cartella_libera);
// Whether no program of the firm works in the folder.
bool Cartella_Libera(const Percorso& cartella);

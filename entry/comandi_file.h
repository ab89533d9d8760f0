#pragma once

#include "entry/edita.h"

// Commands of the menus that work on the whole day or on the files beside it.

// "Cancella Tutto", after two questions: the day is one row with all fields empty. The list marks it as one
// to be keyed; the table has no mark, so the next sale that is added comes behind it.
void CancellaTutto(Programma& programma, Edita& edita);

// "Rinnova Liste", after a question: deletes the eight fixed lists, which the next opening of a day writes
// anew, saves the day with its question and ends the program. When the day can't be saved the program goes
// on, so that no row is lost.
void RinnovaListe(Programma& programma, Edita& edita);

// "Campi": writes _Lista_Campi.txt and opens it with the desktop's viewer. A failure is told.
void ListaCampi(Programma& programma);
Testo Testo_Lista_Campi();

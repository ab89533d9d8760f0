#pragma once

#include "entry/edita.h"

// Macros: the fields of a row that repeat from sale to sale, kept under a short code. Each is a text file of
// its own, one field a line: those that begin with the supplier in PREDEF_FOR, those that begin with the
// species in PREDEF. A code is a number from 01 to 99, always of two digits, or a word.

enum class Tipo_Macro { Fornitore, Specie };

// Runs the macro of that code: 0 when it ran, 1 when it didn't. A code of one character never runs, so 7 and
// 07 differ. A supplier macro empties the fields of supplier and provenance first, and leaves them so when
// there is no such macro; a species macro touches only what it holds.
int EseguiMacroFornitore(Programma& programma, Edita& edita, Vista codice);
int EseguiMacroSpecie(Programma& programma, Edita& edita, Vista codice);
int EseguiMacro(Programma& programma, Edita& edita, Tipo_Macro tipo, Vista codice);

// The commands that store the fields of the row being keyed as a macro; they ask for its code.
void MemorizzaFornitore(Programma& programma, Edita& edita);
void MemorizzaSpecie(Programma& programma, Edita& edita);

// The text of supplier or species calls a macro: a number runs it, a "-" in front asks for the window of the
// macros. False for any other text or field.
bool MacroDalCampo(Programma& programma, Edita& edita, int indice);

// ---- the files

Percorso Cartella_Macro(const Programma& programma, Tipo_Macro tipo);
Percorso File_Macro(const Programma& programma, Tipo_Macro tipo, Vista codice);
// False for a code that is no file name: it would leave the folder, or can't stand on the machines that the
// firms' folders go to.
bool Codice_Macro_Lecito(Vista codice);
Testo Difetto_Codice_Macro();  // what the operator is told of such a code
// The number of a code as it is stored, "07"; codes that are no number above zero stay as they are.
Testo Codice_Scritto(Vista codice, char separatore);

// The fields of one macro as its file holds them; fields that the file hasn't are absent.
struct Voce_Macro {
  CampoRiga campo;
  Testo testo;
};
std::vector<Voce_Macro> Leggi_Macro(Tipo_Macro tipo, Vista contenuto);

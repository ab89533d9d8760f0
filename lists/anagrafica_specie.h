#pragma once

#include <array>
#include <optional>

#include "lists/anagrafica.h"

// The firm's species: list window `Descrizioni`, editor `ModDescr`, and the official list `ModDescrLista`
// from which the editor copies.

const Anagrafica& Anagrafica_Specie();
inline constexpr Vista comando_ufficiali = "Lista_Ufficiale";  // of the editor: opens the official list

using Campi_Specie = std::array<Testo, 8>;  // in the order of the file

// "10 - Orata"; a species without its Latin name or ALFA code is marked as one still to be defined.
Testo Riga_Specie(const Campi_Specie& campi);

// There is no species file, and the table holds only what stands in for one: the list shows two samples,
// nothing can be entered or copied.
bool Specie_Provvisorie(const Programma& programma);

// The row that a row being keyed takes over; nothing of the samples.
std::optional<Campi_Specie> Specie_Da_Copiare(const Programma& programma, std::size_t r);

// Trims the fields one after the other; 1 to refuse. The first message about a missing field ends the check
// and by itself refuses nothing: that is the part of the fields without a message, and of a rate that isn't
// in use.
int Controlla_Specie(Programma& programma, Campi_Specie& campi);

// The next of the firm's three rates in two digits; any other text gives the first.
Testo Prossima_Aliquota(const Programma& programma, Vista aliquota);
Testo Prossima_Famiglia(Vista famiglia);

// Asks for the code or the name and gives the row that has it: the first one, or the next one when `da` (-1
// for none) has it already. -1, told, when there is none; `da` when nothing was asked for.
int Cerca_Codice_Alfa(Programma& programma, const TabellaLista<8>& tabella, int da);
int Cerca_Nome_Latino(Programma& programma, const TabellaLista<8>& tabella, int da);

// ---- the official list, Vet_Pelmoro, which is only read

struct SchermoUfficiali {
  Testo titolo = "Descrizioni ufficiali - doppio click per copiare";
  Elenco List1;
  Bottone Copia, Cerca_Alfa, Cerca_Latino, Chiudi;
};
// The screen must stay where it is from here on: its list asks it for the lines.
void Apri_Ufficiali(Programma& programma, SchermoUfficiali& ufficiali);
void Cerca_Ufficiale(Programma& programma, SchermoUfficiali& ufficiali, bool per_alfa);
// Asks, then copies the selected row into the fields of the editor. The firm's own name and its two codes
// stay where they are filled. False when nothing was copied.
bool Copia_Ufficiale(Programma& programma, const SchermoUfficiali& ufficiali, SchermoAnagrafica& specie);

// ----

// "salva lista Specie": writes Vet_Descrizioni.txt, each column in double quotes and followed by a TAB; told
// either way.
bool Esporta_Specie(Programma& programma);

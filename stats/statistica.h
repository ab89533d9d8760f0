#pragma once

#include <vector>

#include "core/controlli.h"
#include "core/programma.h"
#include "stats/barre.h"
#include "stats/vendite.h"
#include "transfers/sceltafile.h"

// The screen `Statistica`: the open day by supplier and species. It works on a copy, and changes nothing.

struct Statistica {
  Testo titolo = "Statistica del giorno";
  Elenco ListaTitoli;      // two lines over the columns
  Elenco ListaStatistica;  // a line for each supplier and species, then the totals
  Elenco ListaFornitori;   // each supplier once
  Bottone Chiudi, Salva, Stampa, stampaFornitore, Aiuto, StampaGrafico;
  Spunta Grassetto;  // bold print
  Scritta Avviso;    // rows that can't be read as numbers
  Grafico grafico;

  // The copy, one row for each supplier and species: Peso the kilograms, Colli the amount, NCV the average
  // price, and "ACC. " before the Specie of credit rows.
  std::vector<LedgerRow> Vet_Statistica;
  bool calcolata = false;
  bool attiva = true;  // false while a command runs or asks
  Scelta_File scegli_file;
};

// Computes, the first time, and fills the lists.
void Apri_Statistica(const Programma& programma, Statistica& schermo);
// What is enabled, shown and written now; every routine here ends with it.
void Aggiorna_Comandi(Statistica& schermo);
// A line of ListaFornitori was chosen: the list goes to that supplier's first line.
void Scelto_Fornitore(Statistica& schermo);

void Stampa_Statistica(Programma& programma, Statistica& schermo);  // the whole list
void Stampa_Fornitore(Programma& programma, Statistica& schermo);   // the chosen supplier's lines
void Salva_Statistica(Programma& programma, Statistica& schermo);   // into a file that is asked for
void Aiuto_Statistica(Programma& programma);

std::vector<Testo> Titoli_Statistica();

#pragma once

#include <vector>

#include "core/controlli.h"
#include "core/programma.h"
#include "stats/barre.h"
#include "stats/vendite.h"
#include "transfers/sceltafile.h"

// The screen `RXcli`: how many rows of the open day each customer has, with weight and taxable amount. Of the
// ledger it changes nothing but the order.

struct Totale_Cliente {
  Testo Cliente;  // as its first row spells it
  int righe = 0;
  Somma_Esatta kg, imponibile;
};

struct RXcli {
  Testo titolo = "Numero Immissioni e Peso totale per Cliente";
  Elenco ListaTotali;   // a line for each customer
  Elenco ListaClienti;  // their names; choosing one finds its line
  Bottone Stampa, Salva, StampaGrafico, Chiudi;
  Spunta SoloPeso;  // the print leaves the amounts out
  Scritta Avviso;   // rows that can't be read as numbers
  Grafico grafico;

  std::vector<Totale_Cliente> totali;
  bool attiva = true;
  Scelta_File scegli_file;
};

// Computes, sorting the ledger, and fills the lists. `cliente`, where the day has it, is chosen.
void Apri_RXcli(Programma& programma, RXcli& schermo, Vista cliente = {});
void Aggiorna_Comandi(RXcli& schermo);
// 1: the ledger is sorted by customer first, and put back in the order of Num at the end; otherwise a
// customer counts anew wherever the rows in between are another's.
void CalcolaPerCliente(Programma& programma, RXcli& schermo, int ordina);
void Scelto_Cliente(RXcli& schermo);

void Stampa_Clienti(Programma& programma, RXcli& schermo);
void Salva_Totali(Programma& programma, RXcli& schermo);  // into a file that is asked for

Testo Riga_Cliente(const Totale_Cliente& totale, char separatore);

#pragma once

#include <vector>

#include "core/controlli.h"
#include "core/programma.h"
#include "stats/barre.h"
#include "stats/scansione.h"

// The screen `RXFor`: what each supplier sold in a period of the open year, by supplier, by supplier and
// species, or by first landing. It reads the day files, and leaves the rows that it read in a temporary file
// of the data folder.

inline constexpr Vista File_Temporaneo = "zzzztemp.txt";
inline constexpr Vista Cartella_Statistiche = "Statistiche";

struct RXFor {
  Testo titolo = "Righe immesse per fornitore";
  Scritta Caption, Caption_Text1, Caption_Text2;
  CampoTesto Text1, Text2;       // first and last day, "yyyymmdd"
  Bottone Command25, Command26;  // first day forward, back
  Bottone Command3, Command2;    // last day forward, back
  Spunta Check1, Check2, Check3;
  Bottone Command4;  // computes
  Bottone Stampa, Salva, StampaGrafico, Chiudi;
  Elenco ListaSaldo;
  Scritta Avanzamento;  // the file just read, then the rows read
  Scritta Avviso;       // what the figures leave out
  Grafico grafico;

  std::vector<Totale> Vet_Temp1;  // as the list shows it last: with "Fornitori" by supplier
  bool per_fornitore = false;     // what Vet_Temp1 holds
  Testo da, a;                    // of the figures in the list
  bool attiva = true;
};

void Apri_RXFor(const Programma& programma, RXFor& schermo);
void Aggiorna_Comandi(RXFor& schermo);

// The small buttons: a date one day on or back. What is no date stays.
void Passo_Data(CampoTesto& campo, bool avanti);

// "Fornitore e Specie". Stopped by the operator it leaves an empty list and no temporary file.
void Calcola_Saldo(Programma& programma, RXFor& schermo);

void Stampa_Saldo(Programma& programma, RXFor& schermo);
void Salva_Saldo(Programma& programma, RXFor& schermo);  // Statistiche/<da>_<a>.txt

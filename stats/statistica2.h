#pragma once

#include <vector>

#include "core/controlli.h"
#include "core/programma.h"
#include "stats/barre.h"
#include "stats/scansione.h"

// The screen `Statistica2`: a period of the open year's days by supplier. It reads the files and changes
// nothing.

struct Statistica2 {
  Testo titolo = "Statistica Tolvera";
  Scritta Caption_Text1, Caption_Text2;
  CampoTesto Text1, Text2;  // first and last day, "yyyymmdd"
  Bottone Applica, Chiudi;
  Bottone MenuChiudi, Stampante, Stampa, Aiuto, StampaGrafico;
  Spunta Grassetto;     // bold print
  Scritta Titoli;       // over the list
  Elenco ListaSaldo;    // a line for each supplier
  Scritta Avanzamento;  // the file just read
  Scritta Avviso;       // what the figures leave out
  Grafico grafico;

  std::vector<Totale> Vet_Periodo;
  Testo da, a;  // of the figures in the list
  bool attiva = true;
};

// False when the year has no day yet (told): the screen doesn't open.
bool Apri_Statistica2(Programma& programma, Statistica2& schermo);
void Aggiorna_Comandi(Statistica2& schermo);

// "&Applica": the days from "da" to "a" as numbers, both included. Stopped by the operator it leaves an empty
// list.
void Applica_Periodo(Programma& programma, Statistica2& schermo);
void Stampa_Periodo(Programma& programma, Statistica2& schermo);
void Aiuto_Statistica2(Programma& programma);

Testo Titoli_Periodo();

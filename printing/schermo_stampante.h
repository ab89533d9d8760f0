#pragma once

#include "core/controlli.h"

struct Programma;

// The screen of the menu "Stampante": which printer, and how the paper lies. The choice holds until the
// program ends; the next start begins with the machine's own default printer.
struct SchermoStampante {
  Testo titolo = "Stampante";
  Scritta Corrente;  // name and orientation as they are now, as the captions of other screens show them
  Elenco Stampanti;  // "PDF" is always among them
  Spunta Verticale, Orizzontale;
  Spunta ApriPDF;  // a finished PDF is shown at once
  Scritta Stampe;  // where PDFs go
  Bottone Applica, ApriUltimo, Chiudi;
};

void Apri_Stampante(Programma& programma, SchermoStampante& schermo);
void Scegli_Orientamento(SchermoStampante& schermo, bool orizzontale);
// "&Applica": takes the choice. A printer that can't be had any more is told, and the one in use stays; the
// result is then false.
bool Applica_Stampante(Programma& programma, SchermoStampante& schermo);
void Mostra_Ultimo_PDF(Programma& programma, const SchermoStampante& schermo);

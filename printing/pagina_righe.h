#pragma once

#include "printing/pagina.h"

// Lists on paper: lines of text in the typewriter face under the headings of each page.

struct Riga_Stampata {
  Testo testo;
  bool grassetto = false;
};

struct Foglio_Di_Righe {
  Documento documento;
  Testo codice;              // in the caption while a page is drawn: "Liste Pagina 1 di 3 in corso..."
  std::vector<Testo> testa;  // bold, one below the other, the number of the page beside the first
  std::vector<Testo> testa_seguito;  // of the pages behind the first; empty: the same
  bool numero_in_testa = false;      // " pag. 1 di 3" stands at the end of the first heading, not beside it
  std::vector<Riga_Stampata> righe;
  Testo carattere = "Courier New";
};

// Prints on the chosen printer as its paper lies, in the size of the settings or, where a line is wider than
// the sheet, in the largest smaller one that lets it in; what is too wide for 6 points is cut. `titolo` is
// the caption of the screen that asks, which tells the page in work meanwhile. Without lines nothing is
// printed. Esc stops it between two pages, which is told; a PDF is then not written.
void Stampa_Righe(Programma& programma, const Foglio_Di_Righe& foglio, Testo& titolo);

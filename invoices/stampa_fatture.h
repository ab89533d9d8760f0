#pragma once

#include <optional>

#include "invoices/fatture.h"
#include "printing/pagina.h"

// Printing and filing of invoices and credit notes: the run over all of them, one alone, and what is shown of
// their files. A screen keeps the lists, the choices and the caption, and hands them over here.

// Of a firm that ships its goods: its invoices are transport documents too. They are always drawn; a run also
// writes their text pages, the bank's transactions and, where the firm wants them, the accountant's records.
struct Spedizione {
  Trasporto_Fattura trasporto;
  double spese = 0, aliquota = 0;  // euro on each invoice, and their rate in per cent
};

// What a print command works on. The screen shows `scelte` again when a command is done: the commands set
// some of the boxes themselves.
struct Stampa_Fatture {
  TabellaDocumenti fatture, note;  // in the order in which the lists stand
  Scelte_Stampa scelte;
  Testo Text2;                           // the place before the date
  std::optional<Spedizione> spedizione;  // of a firm that ships its goods
  Avanzamento titolo;                    // the screen's caption; may be empty
};

// "Stampa Fat+Na": checks, asks, replaces all documents of the day by new ones, prints as chosen, writes the
// report. True when all was done; whatever stopped it has been told. When a document can't be written, or the
// operator presses Esc before they are, those of the last run stay as they were, and so does the report.
bool StampaFatNa(Programma& programma, Stampa_Fatture& stampa);

// A double click on an entry: prints that document after a question; with nothing to print it opens the day's
// folder. `voce` is an entry of one of the lists.
bool StampaVoce(Programma& programma, Stampa_Fatture& stampa, TipoFattura tipo, const Voce_Fattura& voce);

// "Report": the run without paper, then the folder of reports.
bool StampaReport(Programma& programma, Stampa_Fatture& stampa);

// "Archivio": sets the boxes for the archive, two documents a sheet by number, or for the customers, by code.
// Gives the column that the lists are to be sorted by and what then stands on the button.
struct Ordine_Archivio {
  ColonnaFatture colonna = ColonnaFatture::Numero;
  Testo didascalia;
};
Ordine_Archivio CambiaArchivio(Scelte_Stampa& scelte);
inline constexpr Vista Suggerimento_Archivio = "Opzioni predefinite";  // tip of that button

// The text of the confirmation that a run asks for; the other one for carriers' invoices.
Testo ConfermaFatNa(const Scelte_Stampa& scelte, Vista orientamento);
Testo ConfermaVettore();

// ---- menu "Mostra"

void MostraTransazioni(Programma& programma);  // the folder XBanca
void MostraFatture(Programma& programma);      // the day's folder
void MostraReport(Programma& programma);       // the day's report
// "Formato Record semplice": how a list of transactions is laid out. "Formato record Lear" shows nothing.
void MostraFormatoSemplice(Programma& programma);

#pragma once

#include <vector>

#include "core/disco.h"
#include "invoices/fatture.h"
#include "printing/pagina.h"

// The files of invoices and credit notes: one for each page, in a folder for each day. Their names carry the
// data that reports and transactions are made from, at fixed positions, so that files of several firms can be
// put together and sort themselves:
//
//   00345_FAT_00127_20250314_00042_12340_11.txt
//   customer, kind, number, day, firm, total in cents, pages and page

// The names of such files, for a listing.
Vista ModelloDocumenti(TipoFattura tipo);
inline constexpr Vista ModelloTutti = "*.txt";

// Five characters: zeros on the left, longer ones cut.
Testo CinqueCaratteri(Vista codice);
// A text as part of a file name: characters that would lead to another folder, or that not every machine
// takes, become "-".
Testo In_Nome_File(Testo testo);

// The name of the first page of a document of one page. The number of an invoice is its leading number on
// five digits, that of a note stands as it is. Characters that would lead to another folder become "-".
Testo NomeDocumento(const Programma& programma, const Documento_Fattura& documento);
// The same name for a page of so many: in place of the last seven characters, "_", number of pages, page,
// ".txt". A shorter name, which can't be a document's, gives nothing.
Testo NomePagina(Vista nome, int pagine, int pagina);

// What a name tells. Any text in; what isn't there is empty.
struct Dati_Nome {
  Testo codice, numero, data, ditta;
  Testo centesimi;  // ten pages and more leave the first of their digits here
  Testo pagina;     // last digit of the page
};
Dati_Nome LeggiNome(Vista nome);
// How many pages the document of a first page has: 12 for "..._121.txt"; 0 where no pages are told.
int PagineDelNome(Vista nome);

// ---- folders; none of these makes one

Percorso CartellaGiornoFatture(const Programma& programma);  // <data>/<yyyy>_fat/<yyyymmdd>
Percorso CartellaReport(const Programma& programma);         // <data>/<yyyy>_fat/Report
Percorso CartellaTransazioni(const Programma& programma);    // <data>/XBanca

// ---- writing

struct File_Documento {
  Testo nome;
  Testo contenuto;
};

// How writing ended: an errno, 0 for success, and which file it was.
struct Esito_File {
  int errore = 0;
  Percorso file;
  bool rimesso = true;  // after a failure the files of before are there again
};

// Makes `file` the only text files of the folder. All new ones are safe on disk before an old one goes, and
// when one of them can't be written the folder gets back what it had. A foreign text file goes last; one that
// can't be deleted changes nothing.
Esito_File SostituisciDocumenti(const Disco& disco, const Percorso& cartella,
                                const std::vector<File_Documento>& file);
// The same for all files that match, none of them foreign; no folder is made.
Esito_File SostituisciFile(const Disco& disco, const Percorso& cartella, Vista modello,
                           const std::vector<File_Documento>& file);
// Deletes the files of the folder that match; goes on after a failure and gives the first, or that of the
// folder.
Esito_File CancellaFile(const Disco& disco, const Percorso& cartella, Vista modello);

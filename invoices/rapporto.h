#pragma once

#include <optional>
#include <vector>

#include "invoices/file_fatture.h"

// The report of a day's run. It is made from the names of the files in the day's folder and not from memory,
// so that it tells what is there.

// A document as the name of its file tells it.
struct Riga_Run {
  Testo codice, numero, data, ditta;
  Testo centesimi;
  Testo pagina;
  Testo nome;  // of the file
};

// TabellaRun: the documents of one kind in the day's folder, in the order of their files.
struct Tabella_Run {
  std::vector<Riga_Run> righe;
  double somma = 0;   // SommaFat or SommaNac, in cents
  Testo data, ditta;  // of the first file
};

// A document of several pages counts once, with the amount of its first page. Where a folder holds later
// pages only, one empty row is left. Nothing where the folder can't be read; `errore` then says why.
std::optional<Tabella_Run> LeggiDocumenti(const Programma& programma, TipoFattura tipo,
                                          const Avanzamento& avanzamento = {}, int* errore = nullptr);

Percorso PercorsoReport(const Programma& programma);  // makes no folder

// Writes them: those of the invoices as a new file, those of the notes behind it. The folder is made when it
// is missing. The first failure is in the result.
Esito_File ScriviReport(const Programma& programma, TipoFattura tipo, const Avanzamento& avanzamento = {});

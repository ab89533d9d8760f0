#pragma once

#include "invoices/rapporto.h"

// The day's file for the bank: a head, a record for each document, a tail. It is made from the names of the
// day's files, as the report is. Lengths without the line's end.

inline constexpr std::size_t lunghezza_testa = 300, lunghezza_dettaglio = 317;

// XBanca/Transazioni_00042_20250314.txt
Percorso FileTransazioni(const Programma& programma);

// `cliente` is the code of the customer who was looked up last: the bank's records all bear the same one, and
// each document's own customer stands in its text.
Testo RecordTesta(const Programma& programma);
Testo RecordDettaglio(const Programma& programma, TipoFattura tipo, Vista cliente, const Riga_Run& riga);
// The sum of cents stands there multiplied by 100 once more, as the bank's program has always had it.
Testo RecordCoda(const Programma& programma, const Tabella_Run& fatture, const Tabella_Run& note);

// Writes the file, its folder too; when that fails the file of before stays.
Esito_File ScriviTransazioni(const Programma& programma, Vista cliente, const Avanzamento& avanzamento = {});
// Deletes all other text files of the folder, so that the bank gets one day only. The first failure is in the
// result.
Esito_File CancellaAltreTransazioni(const Programma& programma);

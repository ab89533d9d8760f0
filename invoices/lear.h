#pragma once

#include "invoices/file_fatture.h"

// The accountant's records: a file of one line for each document of the day, with names and amounts at fixed
// positions. A program of the accountant's joins those of a month.

inline constexpr std::size_t lunghezza_lear = 283;  // but for the customer's VAT number and the text

Percorso CartellaLear(const Programma& programma);  // <data>/_ReportLear; makes none

// "20250314_00127_Lear.txt". A note has the digits of its number alone, so that NA005 and invoice 00005 of
// one day are one file, and the invoice, which is written later, stays.
Testo NomeLear(const Programma& programma, const Documento_Fattura& documento);
Testo RecordLear(const Programma& programma, const Documento_Fattura& documento);  // without the line's end

// Makes the records of these documents (notes first) the only ones of the day. When one can't be written
// those of before are put back.
Esito_File ScriviLear(const Programma& programma, const std::vector<Documento_Fattura>& documenti);
// The day's records go, those of other days stay.
Esito_File CancellaLear(const Programma& programma);

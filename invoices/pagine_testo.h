#pragma once

#include <vector>

#include "core/corsa.h"
#include "invoices/fatture.h"
#include "invoices/file_fatture.h"

// The text layout: pages of fixed-width lines, each a file of its own, which is the archived form of a
// document and goes to the printer in a typewriter face.

inline constexpr int Voci_Per_Pagina = 16;  // two lines each

using Pagina_Testo = std::vector<Testo>;  // lines without ends

// The pages of a document; none when it has no line. From the fifth line on, lines are 132 characters wide
// but for an amount on the totals that is wider than its column.
std::vector<Pagina_Testo> ComponiPagineTesto(const Programma& programma, const Documento_Fattura& documento,
                                             const Avanzamento& avanzamento = {});

// The files of its pages, by their names, not written yet.
std::vector<File_Documento> PagineDocumento(const Programma& programma, const Documento_Fattura& documento,
                                            const Avanzamento& avanzamento = {});
// Writes them; each that stood there already is replaced.
Esito_File ScriviPagineTesto(const Programma& programma, const Percorso& cartella,
                             const std::vector<File_Documento>& pagine);

// ---- on paper

// What a document is called on its paper's file: "Fattura", "Nota di Accredito".
Vista GenereDocumento(TipoFattura tipo);

// Pages that couldn't be read again, and are missing on paper.
using Pagine_Mancate = std::vector<Esito_File>;

// Sends the pages of the document whose first page is `nome` to the printer, a sheet each. The orientation
// must be set. Nothing for a name that isn't a document's.
Pagine_Mancate StampaFileTesto(const Programma& programma, const Percorso& nome, TipoFattura tipo);
// The pages of these documents two to a sheet, upright, in the order given. A stopped run ends before a
// sheet that begins with a document.
Pagine_Mancate StampaDuePerFoglio(const Programma& programma, const std::vector<Percorso>& nomi,
                                  TipoFattura tipo, Corsa& corsa);

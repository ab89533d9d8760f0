#pragma once

#include <vector>

#include "invoices/fatture.h"
#include "invoices/pagine_testo.h"
#include "printing/dispositivo.h"

// The graphic layouts: a document drawn on the page device in millimetres. They leave no file.

// Draws the document once for each copy, each copy a document of the printer's. A document without lines is
// passed over. `cornice`: the layouts with a letterhead get the lines of a frame, for firms that want one.
// False when the printer lies on its side and the layout can't be drawn on it (not told here).
bool StampaGrafica(const Programma& programma, const Documento_Fattura& documento,
                   Tracciato_Fattura tracciato, int copie, const Avanzamento& avanzamento = {},
                   bool cornice = false);

// How many items a page holds. `altezza` is the printable height in millimetres.
int VociPerPaginaGrafica(const Programma& programma, Tracciato_Fattura tracciato, float altezza);

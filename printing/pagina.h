#pragma once

#include <functional>

#include "core/programma.h"
#include "printing/dispositivo.h"

// What all print routines share. Positions are in the current unit of the page device, in practice
// millimetres; a position that is told as whole is an int. The shape of a print routine: set Orientation if
// the layout wants one and call Due_Pause; PreparaPagina twice; count the pages (Pagine_Di); for each page
// put Pagina_In_Corso into the screen's caption, draw, and NewPage but after the last one; EndDoc; the
// screen's own caption again. Copies are the whole document once more.

// Gets the caption for the screen that prints or writes, each time it changes.
using Avanzamento = std::function<void(const Testo& titolo)>;

inline Printer& Dispositivo(const Programma& programma) { return programma.piattaforma.Dispositivo(); }

// The settings that layouts go by.
inline const Testo& FontePagina(const Programma& programma) { return programma.preferenze.fonte; }
inline float DimFontPagina(const Programma& programma) {
  return static_cast<float>(programma.preferenze.DimFont);
}
inline int BordoSinistro(const Programma& programma) { return programma.preferenze.BORDO3; }
inline int BordoAlto(const Programma& programma) { return programma.preferenze.DASU3; }

// Lets the screen work twice, so that the printer's driver takes a change before anything is measured.
void Due_Pause(const Programma& programma);

// Brings the device to the standard state of a graphic page: millimetres, the page's font and size, bold,
// usable width computed; opens the document where none is open. All of it runs twice, with a pause between,
// and every layout calls it twice: each time two lines of the font are passed over, and bold stays on.
void PreparaPagina(const Programma& programma);

// The font stays as set afterwards.
void StampaTesto(Printer& printer, float x, float y, Vista testo, Vista fontName, float fontSize, bool bold);
// Right-aligned in a column; a wider text runs out of it to the left. Font as it stands.
void StampaDestra(Printer& printer, float left, float top, float width, Vista testo);
// The text, trimmed, around xCentre.
void StampaCentrato(Printer& printer, float y, Vista testo, float xCentre);

// The pen width stays set after a horizontal line; a vertical one sets it back to 1. Layouts set it on each
// call.
void LineaOrizzontale(Printer& printer, int x, int y, int length, Colore colore, int penWidth);
void LineaVerticale(Printer& printer, float x, float y, float length, Colore colore, int penWidth);
// Not filled: an outline in black, whatever the colour.
void Riquadro(Printer& printer, float x, float y, float width, float height, int penWidth, Colore colore,
              bool filled);

// The oval stamp with the stall number; nothing at all with FlagEllisse off. Moves the caller's x 19 to the
// left: the stamp is centred there.
void StampaEllisse(const Programma& programma, float& x, float y);
// The two foot lines of the transport document. `scarto` is the layout's column offset.
void StampaDueRighe(const Programma& programma, float y, float x, float scarto = 0);

// ---- which printer

Testo NomeStampante(Printer& printer);  // "nessuna stampante..." without one
// The caption of a screen that prints: name, two blanks, "- Verticale" or "- Orizzontale".
void TitoloStampante(Printer& printer, Scritta& control);
Testo OrientamentoStampante(const Printer& printer);  // "Stampante VERTICALE", "Stampante ORIZZONTALE"

// ---- pages and copies

// How many pages so many lines take; 0 for none, and where a page has no room for a line.
int Pagine_Di(int righe, int righe_per_pagina);
// "00345 Pagina 1 di 3 in corso...", the caption while a page is drawn.
Testo Pagina_In_Corso(Vista codice, int pagina, int pagine);
std::vector<Testo> Voci_Copie();  // of the list of copies: "1 copia", "2 copie", "3 copie"

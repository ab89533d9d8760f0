#pragma once

#include <optional>
#include <vector>

#include "documents/documento.h"
#include "printing/pagina.h"

// The pages of one customer's document: first as values, what stands where, then drawn. Positions are
// millimetres from the corner of the sheet's printable part, and the top of a line of text.

enum class Allineamento { Sinistra, Centro, Destra };

struct Scritta_Pagina {
  Allineamento allineamento = Allineamento::Sinistra;
  float x = 0, y = 0;  // its left end, middle or right end; its top
  float punti = 9;
  Testo testo;
  bool doppia = false;  // printed twice on the same spot, which comes out darker
  float spazio = 0;     // how wide it may be: a longer one gets smaller letters; 0 for no limit
  bool operator==(const Scritta_Pagina&) const = default;
};

struct Pagina_Documento {
  std::vector<Scritta_Pagina> testata;  // page number, letterhead, title, number, addressee
  std::vector<Scritta_Pagina> tabella;  // the table's head and its items
  std::optional<float> piede;           // height that StampaDueRighe takes, where the foot lines stand
};

// The sheet of the settings.
struct Foglio_Documento {
  int larghezza = 154, altezza = 172;
  int logo = 45, aggiustamento = 15;  // room of the preprinted logo; the heading's shift into it
  int altezza_dest = 0, da_destra = 0;
  float stampabile = 297;  // how far down the device prints
};
Foglio_Documento FoglioDocumento(const Preferenze& preferenze);

using Pagine_Documento = std::vector<Pagina_Documento>;

// The three layouts, none of which makes a page of a document without items: four lines an item with the
// allergens, three without, and the old one with its fixed heading and no place of delivery.
Pagine_Documento LayoutAllergeni(const Documento_Cliente& documento, const Foglio_Documento& foglio,
                                 char separatore);
Pagine_Documento LayoutSemplice(const Documento_Cliente& documento, const Foglio_Documento& foglio,
                                char separatore);
Pagine_Documento LayoutVecchio(const Documento_Cliente& documento, const Foglio_Documento& foglio,
                               char separatore);
// The one of the three that the document was made for.
Pagine_Documento PagineDocumento(const Documento_Cliente& documento, const Foglio_Documento& foglio,
                                 char separatore);

// Draws the document as one print job. False where nothing came out (no printer, a full disk), which the
// device has told.
bool StampaPagine(const Programma& programma, const Documento_Cliente& documento,
                  const Avanzamento& avanzamento = {});

#pragma once

#include <cstdint>
#include <vector>

#include "core/testo.h"

// The numbers of the day's transport and sanitary documents, one for each customer, and the marks of what was
// printed: "007", "007 (ds)", "007 (ddt)", "007 (ds) (ddt)". An empty text is a document without a number.

enum class TipoDoc { Sanitario, DDT };

struct MarchiDoc {
  bool ds = false, ddt = false;
  bool operator==(const MarchiDoc&) const = default;
};

struct VoceDoc {
  Testo Cliente;
  Testo Numero;
  bool operator==(const VoceDoc&) const = default;
};
using ListaDocumenti = std::vector<VoceDoc>;

// What an entry without a valid number holds while the numbers are being repaired. A day whose documents
// reach this number can't tell it from a real one.
inline constexpr int Numero_Non_Valido = 999;

// The leading number; what is no number, or is below zero, counts as 0.
int NumeroDoc(Vista testo);
MarchiDoc LeggiMarchi(Vista testo);
// Three digits, or as many as it has, and the marks, each behind one blank.
Testo TestoNumero(std::int64_t numero, MarchiDoc marchi = {});
// The text with that mark, which a second print doesn't repeat. Everything else of it stays.
Testo ConMarchio(Vista testo, TipoDoc tipo);
// What stands before the marks.
Testo SenzaMarchi(Vista testo);

bool QualcunoStampato(const ListaDocumenti& lista);

// Sorting, ignoring case; numbers as texts, so "1000" stands before "999", and a printed "007 (ds)" before a
// "007", which lets the printed one keep its number in the repair. Equal ones keep their order.
void OrdinaPerCliente(ListaDocumenti& lista);
void OrdinaPerNumero(ListaDocumenti& lista, bool crescente = true);

// Gives those without a number the ones after the highest, in list order; a lone mark stays behind the
// number.
void NumeraMancanti(ListaDocumenti& lista);
// Numbers all from `primo` on in list order; marks go.
void NumeraDa(ListaDocumenti& lista, std::int64_t primo);

// Brings the numbers into their form and without doubles or holes from `primo` (1 or more) on, sorted.
// Whoever gets a new number loses his marks. False, and the list as it was, when that can't come to an end:
// numbers above 999 sort among the lower ones.
bool RiparaNumeri(ListaDocumenti& lista, int primo);

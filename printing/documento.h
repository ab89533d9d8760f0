#pragma once

#include "core/testo.h"

// What a printed document is, for the name of its file and the title of its pages. What isn't known is empty.
struct Documento {
  Testo giorno;  // yyyymmdd, the day that it belongs to
  Testo genere;  // "Conto Vendita", "Fattura" ...
  Testo numero;  // as issued: "12", "12/003", "NA5"
  Testo codice;  // the addressee's code
  bool operator==(const Documento&) const = default;
};

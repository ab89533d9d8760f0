#pragma once

#include <array>
#include <vector>

#include "core/programma.h"

// The arithmetic of one invoice or credit note: its rows merged, its lines, its sums. Nothing is rounded
// here; amounts are rounded where they are shown. A credit note has negative prices, so all its amounts are
// negative.

// One line of a document.
struct Voce_Documento {
  LedgerRow riga;  // the merged rows: fields that aren't summed are those of the first
  Testo Voce;      // commercial name
  Testo Attrezzo;  // gear, with its code
  Testo ZonaRiga;  // provenance, which the pages print under the heading of the zone
  Testo ZonaPesca;
  Testo Lotto;
  Testo RifRiga;  // the sale's own transport document
  Testo Latino;
  Testo Consolida;                                                  // the codes behind the merge
  Testo Attributi;                                                  // what the law wants told of the goods
  double PesoRiga = 0, PrezzoRiga = 0, IvaRiga = 0, ColliRiga = 0;  // kg, euro per kg, per cent, boxes
  double Importo = 0;                                               // euro
};

// Sums of a document in euro; index 0 to 2 is the first, second, third rate of the settings. A line whose
// rate is none of the three counts in no sum; where two settings hold one rate its lines count in both.
struct Importi {
  std::array<double, 3> Aliquota{}, Imponibile{}, Iva{};
  double TotaleImponibile = 0, TotaleIva = 0, TotaleDocumento = 0, TotalePagare = 0;
  double Spese = 0, SpeseAliquota = 0, IvaSpese = 0;  // expenses of a carrier's invoice
  double TotalePeso = 0, TotaleColli = 0;             // kg, boxes
};

// Merges like rows and leaves them in the order of the merge. `esteso`: the codes of the goods are keys and
// the fishing zone isn't. Prices are compared as texts: "5.00" and "5" stay two lines.
void UnisciRighe(std::vector<LedgerRow>& righe, bool esteso, char separatore);

// A number that can't be read counts as 0.
Voce_Documento ComponiVoce(const LedgerRow& riga, char separatore);

Importi CalcolaImporti(const std::vector<Voce_Documento>& voci, const std::array<double, 3>& aliquote);

// Expenses (euro, and their rate in per cent) of a carrier's invoice go into the three totals.
void AggiungiSpese(Importi& importi, double spese, double aliquota);

#pragma once

#include <vector>

#include "core/preferenze.h"
#include "core/riga.h"

// The arithmetic of one consignment account, from its rows to the sums that preview, paper and text file
// show. Double precision, nothing is rounded: rounding happens where a number becomes text, so printed lines
// need not add up to the cent.

struct Regole_Importi {
  double PrimaAliquota = 10, SecondaAliquota = 22, TerzaAliquota = 4;  // per cent
  bool AzzeraIva = false;
  bool FlagSarvena = false;  // SpeAnt is per cent of the taxable total
};
Regole_Importi RegoleImporti(const Preferenze& preferenze, bool AzzeraIva);

struct Riga_Importo {
  Testo Descr;           // species
  Testo AlfaCV;          // " (SBG)"
  Testo NrColli;         // as the ledger has it
  double Kg = 0;         // kilograms
  double PrezzoCV = 0;   // euro per kilogram, negative in a credit row
  double ImportoCV = 0;  // euro
  double IvaCV = 0;      // per cent
  bool operator==(const Riga_Importo&) const = default;
};

struct Importi_CV {
  std::vector<Riga_Importo> righe;
  double Prov = 0;      // per cent
  double SpeAnt = 0;    // euro, in every case
  double SpeseAcc = 0;  // euro, with FlagSarvena only
  double KgTotali = 0;  // of all lines, whatever their rate
  double Imponibile1 = 0, Imponibile2 = 0,
         Imponibile3 = 0;  // at the three rates; in the end net of commission
  double Iva1 = 0, Iva2 = 0, Iva3 = 0;
  double ImponibileTotale = 0;  // before commission
  double Commissioni = 0;
  double TotaleCV = 0, TotaleEuro = 0;
  bool operator==(const Importi_CV&) const = default;
};

// The rows as lines of the account, and their kilos in KgTotali. What can't be read as a number is 0.
// `IvaCV` are the rates of the lines that the screen showed last: with AzzeraIva they stay as they are (0
// where none was), otherwise they take those of these rows.
Importi_CV RigheImporti(const std::vector<LedgerRow>& righe, bool AzzeraIva, std::vector<double>& IvaCV,
                        char separatore);

// All amounts of a supplier's account. `speAnt` and `prov` are the account's texts; one that can't be read
// is 0. A line at a rate that is none of the three counts with its kilos only; two rates of one value both
// take it.
Importi_CV CalcolaImporti(const std::vector<LedgerRow>& righe, const Regole_Importi& regole, Vista speAnt,
                          Vista prov, std::vector<double>& IvaCV, char separatore);

// What the layout `tipo 1` makes of the sums when it prints: with FlagSarvena TotaleCV becomes the net sums
// and their VAT. The account's text file then shows it so.
void CompletaPerTipo1(Importi_CV& importi, const Regole_Importi& regole);

#pragma once

#include <optional>
#include <vector>

#include "core/programma.h"

// The day's consignment accounts: what was sold of one supplier's goods on one day. They aren't stored as
// records of their own but derived from the ledger each time their screen opens.

struct Conto_CV {
  Testo NCV;        // its number as text; 0 and 9999 stand for none
  Testo Data;       // dd/mm/yyyy
  Testo Fornitore;  // as the ledger has it
  Testo DDT_CV;     // "123 del 14/03/2025"
  Testo SpeAnt;     // euro advanced, or with FlagSarvena per cent of the taxable total
  Testo Prov;       // commission, per cent
  bool operator==(const Conto_CV&) const = default;
};
using Tabella_Conti = std::vector<Conto_CV>;

inline constexpr int Senza_Numero_CV = 9999;  // NCV of an account without a number, as 0 is
// The whole part of an account number; what is no number is 0.
int NumeroCV(Vista ncv, char separatore);
bool Numerato(Vista ncv, char separatore);

// One account for each change of the field `chiave` (ignoring case) in a table sorted by it, from the last
// row to the first: so in descending order of the key, each filled from the last row of its key. The mark of
// an empty day is no account.
Tabella_Conti ContiDelGiorno(const Tabella& tabella, CampoRiga chiave, char separatore);

// By number as text of four digits; equal ones keep their order, those without a number come first, and
// longer numbers stand where their text stands. Gives the old places, from 0, in the new order.
std::vector<std::size_t> Ordina_Tabella_CV(Tabella_Conti& conti, char separatore);

// A line of the list of accounts, all of them, and the line above.
Testo RigaListaCV(const Conto_CV& conto, char separatore);
std::vector<Testo> RigheListaCV(const Tabella_Conti& conti, char separatore);
Testo TitoloListaCV();

// Sorts by the texts of keys A and B, and merges rows in which both are equal ignoring case: the sums go into
// the first as plain decimal texts, and so "12,5" and "12,50" stay two prices.
void Consolida_CV(std::vector<LedgerRow>& righe, CampoRiga chiaveA, CampoRiga chiaveB, CampoRiga sommaA,
                  CampoRiga sommaB, char separatore);

// The rows of a supplier's account, merged by species and price: those with a price above 0, then, unless
// `senza_note`, the credit rows. A row of price 0 is in no account. A private copy.
std::vector<LedgerRow> CaricaRigheCV(const Tabella& tabella, Vista fornitore, bool senza_note,
                                     char separatore);

// The supplier as the pages show him.
struct Testata_Fornitore {
  Testo Codice, RagSoc1, RagSoc2, Indirizzo, CapCitta, PIva;
  bool operator==(const Testata_Fornitore&) const = default;
};
// The first of the supplier list with that name (trimmed, ignoring case); nothing for none.
std::optional<Testata_Fornitore> CercaFornitoreCV(const Programma& programma, Vista nome);

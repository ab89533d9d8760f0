#pragma once

#include <cstddef>
#include <initializer_list>
#include <span>
#include <utility>
#include <vector>

#include "core/programma.h"

// Sorting. A row's key is the texts of its key columns, each followed by " - ", and the row's number in six
// digits; keys are compared ignoring case, as texts ("10" stands before "9"; of Num see Davanti_Alla_Chiave).
// The number at the end makes every key different, so rows that are equal otherwise keep their order.

// Sorts texts from index `basso` to `alto`, both included, ignoring case; nothing happens unless basso <
// alto.
void Quick_Sort(std::vector<Testo>& chiavi, std::size_t basso, std::size_t alto);

// The old places (from 0) of rows in their new order. Key i holds the key texts of row i, joined, without the
// row number.
std::vector<std::size_t> Ordine_Chiavi(std::vector<Testo> chiavi);

// The text of a ledger row's field as a key: blanks at the end of CodiciConsolidare don't count, since a row
// just keyed has one there and a row read back has none.
Vista Testo_Chiave(const LedgerRow& riga, CampoRiga campo);
template <std::size_t N>
Vista Testo_Chiave(const std::array<Testo, N>& riga, std::size_t colonna) {
  return riga[colonna];
}

// What stands in front of a field's text in a key, so that the order of entry holds beyond 9,999 rows: Num
// has four digits, and a longer number stands behind all of those with fewer. Empty for all other fields and
// texts.
Testo Davanti_Alla_Chiave(const LedgerRow& riga, CampoRiga campo);
template <std::size_t N>
Vista Davanti_Alla_Chiave(const std::array<Testo, N>&, std::size_t) {
  return {};
}

// Puts rows into the order that Ordine_Chiavi gave. They change places where they stand, round by round: each
// takes the place of the one that goes elsewhere.
template <class Riga>
void Riordina(std::vector<Riga>& righe, std::vector<std::size_t> ordine) {
  for (std::size_t primo = 0; primo < ordine.size(); ++primo) {
    if (ordine[primo] == primo) continue;
    Riga in_mano = std::move(righe[primo]);
    std::size_t qui = primo;
    for (std::size_t da = ordine[qui]; da != primo; da = ordine[qui]) {
      righe[qui] = std::move(righe[da]);
      ordine[qui] = qui;
      qui = da;
    }
    righe[qui] = std::move(in_mano);
    ordine[qui] = qui;
  }
}

inline constexpr std::size_t posto_chiave = 110;  // three names and the row's number: more is rare, and grows

// Sorts any table of rows by the columns given: LedgerRow by CampoRiga, list rows by their columns from 0.
template <class Riga, class Campo>
void Ordina_Righe(std::vector<Riga>& righe, std::span<const Campo> campi) {
  if (righe.size() < 2) return;
  std::vector<Testo> chiavi;
  chiavi.reserve(righe.size());
  for (const Riga& riga : righe) {
    Testo chiave;
    chiave.reserve(posto_chiave);
    for (const Campo campo : campi) {
      chiave += Davanti_Alla_Chiave(riga, campo);
      chiave += Testo_Chiave(riga, campo);
      chiave += " - ";
    }
    chiavi.push_back(std::move(chiave));
  }
  Riordina(righe, Ordine_Chiavi(std::move(chiavi)));
}
template <class Riga, class Campo>
void Ordina_Righe(std::vector<Riga>& righe, std::initializer_list<Campo> campi) {
  Ordina_Righe(righe, std::span<const Campo>(campi.begin(), campi.size()));
}

// ---- the day's table. All set Colonna_Ordine to the first column, move whole rows, and leave Num and
// Tabella_Modificata alone. Whoever shows the ledger fills its list again.

// By one field. Prezzo goes by its form "00000.000": positive prices in the order of numbers, negative ones
// before them and among themselves by their text (-2 before -12).
void Ordina_Colonna(Programma& programma, CampoRiga campo);
// By several fields, Prezzo among them by its text.
void OrdinaDue(Programma& programma, CampoRiga c1, CampoRiga c2);
void OrdinaTre(Programma& programma, CampoRiga c1, CampoRiga c2, CampoRiga c3);
void OrdinaCinque(Programma& programma, CampoRiga c1, CampoRiga c2, CampoRiga c3, CampoRiga c4, CampoRiga c5);
// By any number of fields; Prezzo alone goes as with Ordina_Colonna.
void Ordina_Tabella(Programma& programma, std::span<const CampoRiga> campi);
// Order of entry: by Num, which then becomes each row's place in four digits. True when a Num was another
// one.
bool Rinumera_Tabella(Programma& programma);

// ---- lists. Each order is written to the list's file; false when that failed (told), the table is sorted
// then.

// `campo` as the operator counts: 1 code, 2 name, 3 nickname.
bool Ordina_Clienti(Programma& programma, int campo);
// By a column of the species list: specie::Alfa, Descrizione, Iva or NomeLatino.
bool Ordina_Specie(Programma& programma, int colonna);

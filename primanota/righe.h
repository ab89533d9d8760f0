#pragma once

#include <vector>

#include "core/programma.h"

// Which of the day's rows go to the market: onto the printed ledger and into its file. All of it works on
// copies; the ledger is never touched.

struct Cliente_Lasciato {
  Testo Codice, Nome;
};

// The customers that the printed ledger leaves out: those whose mark in the customer list is longer than
// three characters, "ESCLUSO" in practice.
std::vector<Cliente_Lasciato> ClientiEsclusi(const Programma& programma);

// The rows that are sales: not the mark of an empty day, nor a row without any content.
std::vector<LedgerRow> RigheDelGiorno(const Tabella& tabella);
// The rows without those of the excluded customers, by code. `trovati` gets the customers of whom there was
// one, in the order of the list.
std::vector<LedgerRow> SenzaEsclusi(std::vector<LedgerRow> righe,
                                    const std::vector<Cliente_Lasciato>& esclusi,
                                    std::vector<Cliente_Lasciato>* trovati = nullptr);

// One note: what one supplier sold of one provenance. Without provenances Prov is empty.
struct Nota {
  Testo Prov, Fornitore;
};
// The notes of these rows, sorted by provenance and supplier.
std::vector<Nota> NoteDelGiorno(const std::vector<LedgerRow>& righe, bool senza_provenienza);
Testo VoceNota(const Nota& nota);  // its line in the list
// The note's rows, in their order.
std::vector<LedgerRow> RigheDellaNota(const std::vector<LedgerRow>& righe, const Nota& nota,
                                      bool senza_provenienza);
// By species, or in the order of entry.
void OrdinaNota(std::vector<LedgerRow>& righe, bool per_specie);

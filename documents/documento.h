#pragma once

#include <array>
#include <optional>
#include <vector>

#include "core/programma.h"
#include "documents/numeri.h"

// One customer's transport or sanitary document as a value: everything that the page shows and the law asks
// for. The layouts only draw it.

// The lines of one item: what is bought, where it comes from, what it is, and with Allergeni what may harm.
enum class Tracciato { Allergeni, Semplice, Vecchio };
Tracciato ScegliTracciato(const Preferenze& preferenze);

// How the items fall on pages.
struct Impaginazione {
  int righe = 0;            // text lines on a page, a multiple of those of one item
  int voci_per_pagina = 1;  // at least one, however low the page
  int pagine = 0;           // none without an item
  bool operator==(const Impaginazione&) const = default;
};
int RighePerVoce(Tracciato tracciato);
// Heights in millimetres: of the page, and by how much the addressee is lowered.
Impaginazione Impagina(int altezza_pagina, int altezza_dest, TipoDoc tipo, Tracciato tracciato,
                       std::size_t voci);

struct Riga_Documento {
  LedgerRow riga;     // the sales of one species at one price from one lot with one set of codes, merged
  Testo Descrizione;  // "orata - MB250313"
  Testo Latino;
  Testo Dati;     // ALFA3 code, official name, state, working, presentation, gear
  Testo Zona;     // where it was caught
  Testo Origine;  // zone and provenance
  Testo Allergene;
  Testo PrimoImb;
  double Peso = 0, Prezzo = 0, Colli = 0;  // kilograms, euro per kilogram, boxes; 0 when unreadable
};

struct Destinatario_Documento {
  Testo Codice, Nome;
  Testo Indirizzo;  // street and town
  Testo PIva;       // "p. iva " and the number
};

struct Documento_Cliente {
  TipoDoc tipo = TipoDoc::Sanitario;
  Tracciato tracciato = Tracciato::Semplice;
  bool con_prezzi = false;
  bool testata_propria = false;  // the fixed heading of the firm Sarvena
  bool con_destinazione = true;  // the block "Destinazione merce:"
  Testo Numero;                  // as keyed, with its marks; empty for none
  Testo Data;                    // dd/mm/yyyy
  std::array<Testo, 6> Intestazione;
  Testo Titolo;
  Testo Bollo;        // the firm's health mark
  Testo Riga_Numero;  // "(CEE IT 940) no. 007 del 14/03/2025"
  Destinatario_Documento destinatario;
  std::vector<Riga_Documento> righe;
  std::array<Testo, 2> Piede;  // of a sanitary document, on its last page
  double Peso_Totale = 0, Colli_Totali = 0;
  Impaginazione pagine;
};

// The day's rows of which documents are made, sorted by customer: without credit rows and the mark of an
// empty day.
std::vector<LedgerRow> RigheDeiDocumenti(const Tabella& tabella, char separatore);
// One entry for each customer of such rows, with the number of his last row, from the last name to the first.
ListaDocumenti VociDeiDocumenti(const std::vector<LedgerRow>& righe, char separatore);
// Whether the row takes a document's number: a sale, not a credit row.
bool PrendeNumero(const LedgerRow& riga, char separatore);

// Merges the rows of one customer that stand on one line of the document; weights and boxes are summed.
void ConsolidaRighe(std::vector<LedgerRow>& righe, char separatore);
Riga_Documento ComponiRiga(const Programma& programma, const LedgerRow& riga);

// The document of a customer of the list; nothing when he isn't in it. `righe` are his, not merged yet.
std::optional<Documento_Cliente> ComponiDocumento(const Programma& programma, Vista cliente, Vista numero,
                                                  TipoDoc tipo, bool con_prezzi,
                                                  std::vector<LedgerRow> righe);

#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/profili.h"
#include "core/programma.h"
#include "invoices/importi.h"

// The day's invoices and credit notes. Nothing about a document is stored apart from the ledger: it exists as
// the fields FAT and DDT of its customer's rows. An invoice stands for a customer's rows of positive price, a
// credit note for those of negative price.

enum class TipoFattura { Fattura, Nota };

// A document in its list.
struct Voce_Fattura {
  Testo Codice, Cliente;  // of the customer
  Testo Riferimento;      // transport document, or the invoice that a note refers to
  Testo Numero;           // "00127", "127/004", "NA005"; empty for none
  bool operator==(const Voce_Fattura&) const = default;
};
// TabellaFatture and TabellaNote.
using TabellaDocumenti = std::vector<Voce_Fattura>;

// ---- the document as a value: everything that pages, files and records are made of

struct Cliente_Fattura {
  Testo Codice = "xxxx", Nome = "xxx";
  Testo Soprannome, Indirizzo, Citta, PIva, Iban;
  // Not in the customer list: the name stays "xxx", and Codice is that of the last customer of the list,
  // since the search keeps each code that it passes. File names go by Codice.
  bool trovato = false;
};

// What a document is drawn by.
enum class Tracciato_Fattura { Pagine_Testo, Grafica1, Grafica2, Grafica3, Grafica4, Nota_Grafica, Vettore };

// How a carrier's invoice, which is a transport document too, tells of the transport.
struct Trasporto_Fattura {
  Testo Causale, Aspetto, Mezzo;
  std::array<Testo, 3> Vettore;
};

struct Documento_Fattura {
  TipoFattura tipo = TipoFattura::Fattura;
  Testo Numero;  // as in the list
  Testo RifDocumento;
  Testo Data;           // of the day, dd/mm/yyyy
  Testo Data_AAAAMMGG;  // the same, for file names
  Testo CittaVC;        // place before the date
  Testo codice;         // the customer's code in the ledger
  Cliente_Fattura cliente;
  std::vector<Voce_Documento> voci;  // none when all prices are zero
  Importi importi;
  std::optional<Trasporto_Fattura> trasporto;  // of a carrier's invoice only
};

// ---- what the operator has chosen for a print or a run

struct Scelte_Stampa {
  bool Tutte = true;            // all documents in one run
  bool Stampale = false;        // to the printer too
  bool Paginax2 = false;        // two documents a sheet
  bool Personalizzata = false;  // graphic layout
  bool Check1 = false;          // the other graphic layout
  bool Completa = false;        // the complete graphic layout
  int copie = 1;
};

// What draws such a document. A credit note goes by the firm; a lone `Completa` leaves it as text.
Tracciato_Fattura ScegliTracciato(TipoFattura tipo, const Scelte_Stampa& scelte, Profilo profilo);

// ---- the lists

// The documents of the ledger as it stands, from its last row to its first: neighbouring rows of one customer
// are one document, with the reference and number of the last of them. A row of price 0 opens an invoice.
TabellaDocumenti CaricaDocumenti(const Tabella& tabella, TipoFattura tipo);

enum class ColonnaFatture { Codice = 1, Cliente, Riferimento, Numero };
// By the column as text, ignoring case; equal ones keep their order.
void OrdinaDocumenti(TabellaDocumenti& tabella, ColonnaFatture colonna);

// Whether the customer's record has the mark; a code that isn't in the list has none. The first five
// characters of the code count.
bool E_Escluso(const Programma& programma, Vista codice);
bool E_Ristorante(const Programma& programma, Vista codice);

Testo NumeroFattura(std::int64_t numero);  // "00127"
Testo NumeroNota(std::int64_t numero);     // "NA005"
// A number keyed by hand in its form: "127/4" is "127/004", "12" is "00012"; "5" and "NA5" are "NA005".
Testo CorreggiNumeroFattura(Vista testo, char separatore);
Testo CorreggiNumeroNota(Vista testo, char separatore);
// The digits of a number as a whole number: "NA005" is 5, "127/004" is 127.
int ValoreNumero(Vista numero, char separatore);

// ---- checks before a run

// Whether all documents have a number; an empty list passes. Without it the operator is told.
bool ControllaFatture(Programma& programma, const TabellaDocumenti& fatture);
bool ControllaNote(Programma& programma, const TabellaDocumenti& note);
// Whether all notes can be printed: a number, beginning with "NA", above 0. The first fault is told.
bool NoteStampabili(Programma& programma, const TabellaDocumenti& note);
// Whether a single document can be printed, told if not.
bool FatturaStampabile(Programma& programma, const Voce_Fattura& voce);
bool NotaStampabile(Programma& programma, const Voce_Fattura& voce);

// ---- the ledger

// Writes reference and number into the customer's rows: DDT and FAT of an invoice's, DDT_CV and FAT of a
// note's. A row of price 0 takes nothing. Marks the day as changed when a row has changed.
void Modifica_Vet_Tabella(Programma& programma, TipoFattura tipo, const Voce_Fattura& voce);
// All notes, then all invoices.
void Modifica_Vet_Tabella_Tutto(Programma& programma, const TabellaDocumenti& note,
                                const TabellaDocumenti& fatture);

// The customer by his code (trimmed, ignoring case). One who isn't in the list is told.
Cliente_Fattura TrovaCliente(Programma& programma, Vista codice);

// The document of an entry of the lists, its rows collected, merged and computed. An invoice writes its
// reference and number into the ledger rows first. `CittaVC` is the town in use. The entry's number isn't
// checked here.
Documento_Fattura PreparaDocumento(Programma& programma, TipoFattura tipo, const Voce_Fattura& voce);

// The number of an invoice as firms may look it up elsewhere one day; always 0.
int TrovaNumoroFattura(const Programma& programma, Vista codice);

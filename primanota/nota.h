#pragma once

#include <array>
#include <optional>
#include <vector>

#include "core/programma.h"
#include "primanota/righe.h"

// A printed note as a value: everything that its pages show, row by row and page by page. The printing only
// draws it.

struct Modo_Nota {
  bool tutto = false;          // the whole day in one document: no provenance, no signature
  bool tante_na = false;       // many credit rows: fewer rows on a page, closer together
  bool scrivi_totale = false;  // the last of several pages gives the total too
};
int RighePerPagina(const Modo_Nota& modo);
int PassoRighe(const Modo_Nota& modo);  // millimetres from line to line

struct Riga_Nota {
  LedgerRow riga;
  int numero = 0;      // in the note, from 1
  Testo Descrizione;   // the species
  Testo Peso, Prezzo;  // as they are printed: a text that is no number stands as it was keyed
  Testo Credito;       // what a credit row refers to; empty for a sale
  bool accredito = false;
  Testo Codice, Cliente;
  Testo Zona, Provenienza;  // Provenienza may be a blank
  Testo Lotto;
  double Importo = 0, Iva = 0;                     // euro; 0 where weight, price or rate is no number
  int Linee() const { return accredito ? 2 : 1; }  // on the page
};

struct Pagina_Nota {
  std::vector<Riga_Nota> righe;
  double Importo = 0;
  int linee = 0;  // of the rows
};

struct Nota_Stampata {
  Modo_Nota modo;
  Testo Giorno;                      // dd/mm/yyyy
  std::array<Testo, 3> Ditta;        // name; address and town; VAT number
  Testo Venditore;                   // the firm as the market knows it
  std::optional<Testo> Provenienza;  // of the note
  Testo Fornitore;                   // whose goods they are; empty for the whole day
  std::vector<Pagina_Nota> pagine;
  double Importo = 0, Iva = 0;  // of all rows, not rounded
  bool cornici = false;
  std::optional<Testo> Firma;  // place and day above the signature
};

// Where the rows stand on the sheet, in millimetres.
struct Foglio_Nota {
  double alto = 0, fondo = 0;  // upper margin, usable bottom
  bool operator==(const Foglio_Nota&) const = default;
};
inline constexpr double Alto_Tabella = 65;  // of the table's head below the margin
inline constexpr double Piede_Totale = 24, Piede_Firma = 15, Piede_Segno = 11,
                        Piede_Parziale = 10;  // above the bottom
// The bottom of a sheet of that printable height.
double FondoUtile(double altezza_stampabile);
// The height of line k below the head, from 1.
double AltezzaLinea(const Foglio_Nota& foglio, const Modo_Nota& modo, int k);

Riga_Nota ComponiRigaNota(const Programma& programma, const LedgerRow& riga, int numero);
// Zone and provenance of a row as printed: "A0837" and "IT", of farmed goods "IT_C" and a blank.
std::pair<Testo, Testo> ZonaMostrata(Vista zona_p, Vista prov);
Testo ClienteMostrato(Vista codice, Vista nome);

// Pages of as many rows as the mode has; fewer only where credit rows, which take a line more, would run
// into the foot.
std::vector<Pagina_Nota> ImpaginaNota(std::vector<Riga_Nota> righe, const Modo_Nota& modo,
                                      const Foglio_Nota& foglio);

// The note of these rows, which are in the order of the paper. `nota` is null for the whole day.
Nota_Stampata ComponiNota(const Programma& programma, const std::vector<LedgerRow>& righe, const Nota* nota,
                          const Modo_Nota& modo, const Foglio_Nota& foglio);

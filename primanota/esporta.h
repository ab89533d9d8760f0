#pragma once

#include <array>
#include <vector>

#include "core/programma.h"
#include "transfers/xdisk.h"

// The day's ledger as a file for the market operator, who fixed the form of its lines: 18 fields separated by
// ";", decimal comma, no heading. Every line has exactly 18 fields: a ";" inside a text becomes ",", and an
// end of line or a TAB becomes a blank, since its reader knows no quoting.

inline constexpr std::size_t Campi_Esportati = 18;
using RigaEsportata = std::array<Testo, Campi_Esportati>;

// The fields of a row. A weight or price that is no number counts as 0. `taglia_zona` is FlagZ5.
RigaEsportata ComponiCampi(const Programma& programma, const LedgerRow& riga, bool taglia_zona);
Testo ComponiLinea(const RigaEsportata& campi);  // without a line end

// A label of a zone as the operator of the market wants it: its code, a catch zone's cut to five characters,
// to six in the Mediterranean, if `taglia` says so.
Testo ZonaEsportata(Vista zona_p, bool taglia);
// The comment without a dot or comma at its end; of what is left less than four characters are none, and
// more than 250 are cut.
Testo CommentoPulito(Vista commento);
// A buyer's code without five digits of its own: a customer that isn't registered.
bool ClienteImmaginario(Vista codice_a_otto);

struct Esportazione {
  Testo contenuto;  // of the file
  int scritte = 0, immaginari = 0, totale = 0;
  std::vector<Testo> senza_numero;  // Num of the written rows whose weight or price is no number
};
// All rows of the day but those of excluded customers, sorted by supplier.
Esportazione ComponiEsportazione(const Programma& programma, bool taglia_zona);

// The folder of the file: it holds only the last one made.
Percorso CartellaEsportazione(const Programma& programma);
// Empties the folder, asks for the destination and writes the file; tells what came of it. `scegli` asks for
// the drive; without it the file goes into the folder. True when the file was written.
bool EsportaPrimaNota(Programma& programma, bool taglia_zona, const Scelta_Drive& scegli);

#pragma once

#include <optional>

#include "accounts/pagine.h"
#include "core/programma.h"

// The text file of an account, in the year's folder CV_NO under the name MMDDNNNN.txt (month, day, account
// number): thirteen lines, the supplier, then amounts with the machine's decimal separator. Its twin in CV_SI
// is that of an account settled before.

// "03140123.txt" for account 123 of 14/03/2025. Numbers above 9999 take five digits. Nothing for a date that
// is none.
std::optional<Testo> NomeFileConto(Vista data, Vista ncv, char separatore);

enum class Forma_Importi {
  Centesimi,  // two decimals without a leading zero: ",50"
  Piana       // plain decimal text: "0,5"
};
// The thirteen lines. The order of the rates, second, first and behind "no" the third, is fixed: others read
// these files by line.
Testo ContenutoFileConto(Vista fornitore, const Importi_CV& importi, Forma_Importi forma, char separatore);

// Puts the file into CV_NO of `cartella_anno`, then removes its twin from CV_SI. An errno, 0 for success:
// when the file can't be written the twin stays.
int ScriviFileConto(const Disco& disco, const Percorso& cartella_anno, Vista nome, Vista contenuto);

// Writes the file of an account that was printed. One that can't be written is kept among `falliti` by its
// line in the list, to be told when the print is done.
void ScriviConto(const Programma& programma, const Documento_CV& documento, Forma_Importi forma,
                 std::vector<Testo>& falliti);
void DiFileFalliti(const Programma& programma, const std::vector<Testo>& falliti);

// Its first three lines as they stand, trimmed; a line that is missing is empty.
struct Testa_Conto {
  Testo Fornitore, ImponibileTotale, Commissioni;
  bool operator==(const Testa_Conto&) const = default;
};

// Nothing when the file is missing or can't be read.
std::optional<Testa_Conto> Leggi_Testa_Conto(const Disco& disco, const Percorso& file);

#pragma once

#include <optional>

#include "core/testo.h"

// Numbers in texts. `separatore` is the machine's decimal separator, '.' or ','; no thousands signs are taken
// on input. Everything here is total: any bytes in, no throw, no dependence on the C locale.

inline constexpr char Altro_Separatore(char separatore) { return separatore == '.' ? ',' : '.'; }

// The whole text (blanks around it allowed): a sign, digits, at most one decimal separator, at least one
// digit. Where the text holds only the other separator it is taken for the machine's ("12.50" on a comma
// machine). Nothing otherwise: the statement that wanted a number is skipped and its target stays.
std::optional<double> Numero(Vista testo, char separatore);

// The leading number of the trimmed text, 0 when there is none: "22%" is 22, "007 (ds)" is 7, "NA5" is 0.
double Valore(Vista testo, char separatore);
// Valore truncated to a whole number, within the range of a 32-bit integer.
int Intero(Vista testo, char separatore);

// Plain decimal text: at most 15 significant digits, no exponent, no trailing zeros: 0.1 + 0.2 is "0,3".
Testo Piano(double valore, char separatore);

// The number in a classic pattern: "#0.00", "#.00" (0.5 is ",50"), "##.000", "00.#" (10 is "10,"), "#" (0 is
// ""), "000 ", "00000.000", "###,###,###,##0.00" (here "," in the pattern asks for thousands signs, written
// with the machine's other separator). Rounds half away from zero on the 15 significant digits of the number,
// as a person reads it; a result that rounds to zero has no minus sign.
Testo Formato(double valore, Vista modello, char separatore);
// The same of a text: an empty text stays empty, any other goes by its leading number.
Testo Formato(Vista testo, Vista modello, char separatore);

// Amounts on paper, always in Italian form whatever the machine: "." between thousands, "," before decimals.
Testo Euro2(double valore, char separatore);           // 1234.5 is "1234,50"
Testo Euro2_Migliaia(double valore, char separatore);  // 1234.5 is "1.234,50"
Testo Num3_Migliaia(double valore, char separatore);   // 1234.5 is "1.234,500"
Testo NumN_Migliaia(double valore, int decimali, char separatore);

// The first occurrence of the other separator becomes the machine's; only the first.
Testo Correggi_Separatore(Vista testo, char separatore);
// A text that holds the machine's separator, or neither, stays; otherwise every other one becomes the
// machine's.
Testo Normalizza_Numero(Vista testo, char separatore);
// When the text holds a "." anywhere, its first "," becomes ".".
Testo Punto_Per_Virgola(Vista testo);

// True for what Numero reads.
bool Numerico(Vista testo, char separatore);

#pragma once

#include <span>
#include <vector>

#include "invoices/foglio.h"

// What a carrier's invoice has otherwise than the layout it is made of: boxes in the table, where the goods
// go and who takes them, expenses among the sums.

// An amount at the foot; zero leaves its box empty.
struct Casella_Totale {
  Testo titolo;
  double valore = 0;
};

std::span<const Colonna_Fattura> Colonne_Vettore();
std::span<const Testo> Dicitura_Vettore();
std::vector<Casella_Totale> Totali_Vettore(const Importi& importi, char separatore);

// The block above the sums, with room for the signatures.
void Disegna_Trasporto(Foglio& foglio, const Trasporto_Fattura& trasporto, const Importi& importi,
                       float sinistra, char separatore);

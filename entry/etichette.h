#pragma once

#include "entry/edita.h"

// Shop labels: a row of the ledger with the price for the customer, which is keyed in the row's comment
// together with the treatment, since no field of the row is free for them:
//
//   "10.00"            the price; the label says that the goods weren't treated
//   "10.00 - solfiti"  the price, and what they were treated with
//   "10.00 -"          the price; the label says nothing of a treatment

// What stands on a label. Lines that are empty don't stand there.
struct Contenuto_Etichetta {
  struct Voce {
    Testo didascalia, testo;
    bool didascalia_grassetto = false;
  };
  Testo specie;
  Testo genere;  // caught or farmed, as the law wants it told
  Testo nome_latino;
  Testo prezzo;  // of a kilogram, "10,00"
  Testo allergeni, trattamento;
  std::vector<Voce> origine;  // zone, provenance, gear, size and state, working and presentation
  Voce lotto;
};

Contenuto_Etichetta Componi_Etichetta(const LedgerRow& riga, char separatore);

// The row in the entry fields on a page of its own, on the chosen printer as its paper lies.
void StampaEtichetta(Programma& programma, const Edita& edita);
// The command "Etichetta": the selected row; with Check18, for the firms that label all they buy, every row
// of the day that has a price, after a question.
void Etichette(Programma& programma, Edita& edita);

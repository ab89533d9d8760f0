#pragma once

#include <span>

#include "entry/edita.h"

// The orders of the ledger list. An order is no view: it rewrites Vet_Tabella, and documents, day file and
// paper follow it.

struct Ordinamento {
  Vista nome;  // of the menu entry
  Testo voce;  // its caption
  std::vector<CampoRiga> chiavi;
  bool rinumera = false;  // Num becomes each row's place
  int righe_minime = 1;   // with fewer rows nothing happens at all
  bool ricarica = true;   // the first row is loaded into the fields afterwards
};

// The nineteen of the menu "&Ordina", in its order.
std::span<const Ordinamento> Ordinamenti();

// Carries one out: the list is filled again and hd is 1. Where the first row isn't loaded no line is
// selected, so that F4 can't write the fields of another row over it.
void Ordina(Programma& programma, Edita& edita, const Ordinamento& ordinamento);

// The order of entry, for whoever has put the day into another one. `aggiorna`: the list is filled again and
// the first row loaded.
void OrdinaImmissione(Programma& programma, Edita& edita, bool aggiorna);

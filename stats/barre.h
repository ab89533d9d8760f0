#pragma once

#include <vector>

#include "core/programma.h"
#include "stats/in_corso.h"

// The picture beside a list: the ten largest amounts as bars, from the same figures as the list.

struct Barra {
  Testo nome;
  double importo = 0;
};

struct Grafico {
  Testo titolo;
  std::vector<Barra> barre;  // the largest first
  unsigned versione = 0;     // another one when the bars have changed
};

inline constexpr std::size_t Barre_Massime = 10;

void Riempi_Grafico(Grafico& grafico, Testo titolo, std::vector<Barra> tutte);
// How long a bar is, from 0 to 1, the longest being 1; an amount below zero is as long as its opposite.
double Lunghezza(const Grafico& grafico, const Barra& barra);
Testo Cifra(const Barra& barra, char separatore);  // "1.234,56 €"

// On a page of its own, on the chosen printer as its paper lies. Bars are filled grey with a black outline,
// those of amounts below zero are only outlined. `titolo` is the screen's caption.
void Stampa_Grafico(Programma& programma, const Grafico& grafico, Testo& titolo);

// The command of the screens that have one.
template <class Schermo>
void Stampa_Barre(Programma& programma, Schermo& schermo) {
  if (!schermo.attiva) return;
  const auto in_corso = In_Corso(programma, schermo);
  Stampa_Grafico(programma, schermo.grafico, schermo.titolo);
}

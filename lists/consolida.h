#pragma once

#include <algorithm>
#include <initializer_list>
#include <utility>
#include <vector>

#include "core/numeri.h"
#include "lists/ordina.h"

// `prima` plus `dopo` as plain decimal text. A text that is no number counts as nothing, and where `dopo` is
// none `prima` stays as it is: the weight that is known must not go with one that isn't.
void Somma_Testi(Testo& prima, Vista dopo, char separatore);

// Merges neighbouring rows whose key fields are equal ignoring case: the sum fields of the later row are
// added to those of the earlier one, which keeps all its other fields, and the later row goes. Doesn't sort.
// Sums are taken from the last row of a run up to its first, each stored as text, so that the digits are
// those of a merge done row by row.
template <class Riga, class Campo>
void Unisci_Vicine(std::vector<Riga>& righe, std::initializer_list<Campo> chiavi,
                   std::initializer_list<Campo> somme, char separatore) {
  if (righe.size() < 2) return;
  const auto uguali = [&](const Riga& a, const Riga& b) {
    return std::all_of(chiavi.begin(), chiavi.end(),
                       [&](Campo campo) { return Uguali(Testo_Chiave(a, campo), Testo_Chiave(b, campo)); });
  };
  std::vector<bool> assorbita(righe.size());
  for (std::size_t i = righe.size() - 1; i > 0; --i) {
    Riga& prima = righe[i - 1];
    const Riga& dopo = righe[i];
    if (!uguali(prima, dopo)) continue;
    for (const Campo campo : somme) Somma_Testi(prima[campo], dopo[campo], separatore);
    assorbita[i] = true;
  }
  std::size_t tenute = 0;
  for (std::size_t i = 0; i < righe.size(); ++i) {
    if (assorbita[i]) continue;
    if (tenute != i) righe[tenute] = std::move(righe[i]);
    ++tenute;
  }
  righe.resize(tenute);
}

// Sorts by the key fields and merges. A table of fewer than two rows is left alone.
template <class Riga, class Campo>
void Consolida(std::vector<Riga>& righe, std::initializer_list<Campo> chiavi,
               std::initializer_list<Campo> somme, char separatore) {
  if (righe.size() < 2) return;
  Ordina_Righe(righe, chiavi);
  Unisci_Vicine(righe, chiavi, somme, separatore);
}

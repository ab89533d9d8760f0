#pragma once

#include <cstdint>
#include <vector>

#include "core/riga.h"

// What all statistics share: which rows are sales, and sums that lose no cent.

// The row stands for nothing sold: the marker of a day without rows, or no supplier, species, weight or
// price.
bool Senza_Vendita(const LedgerRow& riga);

// What the figures leave out, for the operator; empty for no row.
Testo Righe_Illeggibili(int senza_numero);
// The same of a day's sales: weight or price is no number.
Testo Righe_Illeggibili(const std::vector<LedgerRow>& righe, char separatore);

// Adds amounts as a person would with pencil and paper: those of at most six decimals (a weight and a price
// of three each) exactly, whatever their number and order. Others go by the machine's floating point.
class Somma_Esatta {
 public:
  void Aggiungi(double valore);
  void Aggiungi_Prodotto(double a, double b);
  void Aggiungi(const Somma_Esatta& altra);
  double Valore() const;

 private:
  void Aggiungi_Milionesimi(std::int64_t milionesimi);

  std::int64_t milionesimi_ = 0;
  double resto_ = 0;
};

#pragma once

#include "accounts/gemmit_conto.h"
#include "tests/printing/stampa_di_prova.h"

// A row of the ledger with what an account needs of it.
struct Vendita {
  Testo fornitore, ncv, specie, peso, prezzo, iva = "10", prov = "8", spese = "15", ddt = "12", colli = "1";
};
inline LedgerRow Riga_Vendita(const Vendita& vendita) {
  LedgerRow riga;
  riga[CampoRiga::Fornitore] = vendita.fornitore;
  riga[CampoRiga::NCV] = vendita.ncv;
  riga[CampoRiga::Specie] = vendita.specie;
  riga[CampoRiga::Peso] = vendita.peso;
  riga[CampoRiga::Prezzo] = vendita.prezzo;
  riga[CampoRiga::Iva] = vendita.iva;
  riga[CampoRiga::Provvigione] = vendita.prov;
  riga[CampoRiga::SAnt] = vendita.spese;
  riga[CampoRiga::DDT_CV] = vendita.ddt;
  riga[CampoRiga::Colli] = vendita.colli;
  riga[CampoRiga::DataCV] = "14/03/2025";
  return riga;
}
inline Tabella Tabella_Vendite(const std::vector<Vendita>& vendite) {
  Tabella tabella;
  tabella.righe.clear();
  for (const Vendita& vendita : vendite) tabella.righe.push_back(Riga_Vendita(vendita));
  for (int r = 1; r <= tabella.Righe(); ++r)
    tabella(CampoRiga::Num, r) = Pad_Sinistra(std::to_string(r), 4, '0');
  return tabella;
}

// Rates 10, 22 and 4, a credit, and goods at the third rate.
inline std::vector<Vendita> Vendite_Di_Esempio() {
  return {{"Laguna Pesca", "5", "Orata", "100", "5,00"},
          {"Laguna Pesca", "5", "Scampo", "10", "20,00", "22"},
          {"Laguna Pesca", "5", "Orata", "10", "-5,00"},
          {"Laguna Pesca", "5", "Vongola verace", "20", "3,00", "4"}};
}

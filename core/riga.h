#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "core/testo.h"

// The ledger row: one sale of one lot of one species from one supplier to one customer. Every field is text;
// numbers and dates are converted where they are used.

inline constexpr int Num_Campi = 35;

// The fields in the order of the day file, counted from 1. Entry field Text1(N-1) shows field N.
enum class CampoRiga : int {
  Num = 1,
  Fornitore,
  Cliente,
  CodCliente,
  Specie,
  ZonaP,
  Peso,
  Prezzo,
  Iva,
  Colli,
  NCV,
  DataCV,
  DDT_CV,
  SAnt,
  Provvigione,
  Controllato,
  CodSpecie,
  Prov,
  Lotti,
  DDT,
  FAT,
  NomeLatino,
  Famiglia,
  NomeComune,
  CodNumVeritas,
  MetodoPesca,
  Alfa,
  Pezzatura,
  StatoFisico,
  Lavorazione,
  Preparazione,
  CodiciConsolidare,
  Commento,
  PrimoImb,
  Allergeni
};

inline constexpr int Indice(CampoRiga campo) {
  return static_cast<int>(campo) - 1;
}  // of Text1 and Vet_Titoli

struct LedgerRow {
  std::array<Testo, Num_Campi> campi;
  Testo& operator[](CampoRiga campo) { return campi[static_cast<std::size_t>(Indice(campo))]; }
  const Testo& operator[](CampoRiga campo) const { return campi[static_cast<std::size_t>(Indice(campo))]; }
  bool operator==(const LedgerRow&) const = default;
};

// Titles of the fields; index i is field i+1. "Allegeni" and the two "Codice" stand so on lists and files
// that the firms keep.
inline constexpr std::array<Vista, Num_Campi> Vet_Titoli = {"Num.",
                                                            "Fornitore",
                                                            "Cliente",
                                                            "Codice",
                                                            "Specie",
                                                            "ZonaP",
                                                            "Peso",
                                                            "Prezzo",
                                                            "Iva",
                                                            "Colli",
                                                            "NCV",
                                                            "data CV",
                                                            "DDT_CV",
                                                            "S.Ant",
                                                            "%",
                                                            "C",
                                                            "Codice",
                                                            "Prov.",
                                                            "Lotti",
                                                            "DDT",
                                                            "FAT",
                                                            "Nome Latino",
                                                            "Famiglia",
                                                            "Nome Comune Veritas",
                                                            "Cod. Num. Veritas",
                                                            "Metodo di Pesca",
                                                            "Alfa",
                                                            "Pezzatura",
                                                            "StatoFisico",
                                                            "Lavorazione",
                                                            "Preparazione",
                                                            "Codici per consolidare",
                                                            "Commento (solo in fattura)",
                                                            "Primo Imb",
                                                            "Allegeni"};

inline constexpr Vista Riga_Vuota = "Modificare questa riga...";  // Fornitore of a day without rows
inline constexpr Vista Non_Specificato = "non specificato";

// The day's table, never empty: rows are counted from 1, as the operator counts them.
struct Tabella {
  std::vector<LedgerRow> righe = std::vector<LedgerRow>(1);
  int Righe() const { return static_cast<int>(righe.size()); }
  LedgerRow& Riga(int r) { return righe[static_cast<std::size_t>(r - 1)]; }
  const LedgerRow& Riga(int r) const { return righe[static_cast<std::size_t>(r - 1)]; }
  Testo& operator()(CampoRiga campo, int r) { return Riga(r)[campo]; }
  const Testo& operator()(CampoRiga campo, int r) const { return Riga(r)[campo]; }
};

LedgerRow Riga_Segnaposto();  // "0001", Riga_Vuota, 33 empty fields

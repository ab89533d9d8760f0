#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/controlli.h"
#include "core/programma.h"
#include "stats/vendite.h"

// The day files of a period: each is read once from front to back and split where it lies; of the rows only
// totals are kept, so that a year takes no more room than a day.

// The open year's day files by name, without a folder. A day's file is called by its eight digits and ".txt";
// what other programs leave in the folder isn't one. Nothing, told, where the folder can't be read.
std::optional<std::vector<Percorso>> File_Dell_Anno(const Programma& programma);
Testo Giorno_Del_File(const Percorso& nome);  // "20250314"
bool In_Forma_AAAAMMGG(Vista testo);          // eight digits, month 01 to 12, day 01 to 31

// The sales of one supplier, or of one supplier and species. The names are spelled as on the first row.
struct Totale {
  Testo Fornitore, Specie;
  Somma_Esatta kg, importo;
  Testo primo_peso;  // as the first row has it
  int righe = 0;

  // A weight that was added to no other is shown as the row has it ("12,50"), a sum as plain decimal text.
  Testo Testo_Kg(char separatore) const;
  Testo Testo_Importo(char separatore) const;
  std::optional<double> Prezzo_Medio() const;  // nothing without weight
};

// What a scan is to look for.
struct Scopo_Scansione {
  bool per_specie = false;    // totals by supplier and species, else by supplier
  bool primo_sbarco = false;  // the first landing takes the place of the supplier
  Percorso provvisorio = {};  // gets a line for each row: supplier, species, weight, price; empty: none
};

class Scansione {
 public:
  Scansione(Programma& programma, Scopo_Scansione scopo);

  // Adds the rows of a day file. False when it can't be read; that of a missing one isn't a fault.
  bool Leggi_Giorno(const Percorso& file);
  // Writes what is still due to the temporary file; its errno, 0 for success. After a failure the
  // file is deleted.
  int Chiudi();

  int Righe() const { return righe_; }
  int Righe_Senza_Numero() const { return senza_numero_; }  // weight or price can't be read: count as nothing
  const std::vector<Testo>& Illeggibili() const { return illeggibili_; }  // names of files
  std::vector<Totale> Prendi_Totali();                                    // in the order of the first rows

 private:
  // Gives names numbers from 0 on. However a name is spelled in capitals and small letters, it has one
  // number.
  class Numeri_Nomi {
   public:
    std::uint32_t Di(Vista nome);

   private:
    struct Miscuglio {
      using is_transparent = void;
      std::size_t operator()(Vista nome) const { return std::hash<Vista>()(nome); }
    };
    using Indice = std::unordered_map<Testo, std::uint32_t, Miscuglio, std::equal_to<>>;
    Indice come_scritti_;  // every spelling that was met
    Indice piegati_;       // without regard to case
  };

  struct Vendita;
  class Lettore;
  void Conta(const Vendita& vendita);
  Totale& Trova(Vista fornitore, Vista specie);
  void Annota(const Vendita& vendita);
  void Svuota_Provvisorio();

  Programma& programma_;
  Scopo_Scansione scopo_;
  Numeri_Nomi fornitori_, specie_;
  std::unordered_map<std::uint64_t, Totale> totali_;  // by the numbers of the two names
  std::vector<Totale*> in_ordine_;                    // of the first rows
  Testo in_sospeso_;                                  // due to the temporary file
  int errore_ = 0;                                    // of the temporary file
  int righe_ = 0, senza_numero_ = 0;
  std::vector<Testo> illeggibili_;
};

// Reads files of the year's folder in their order and tells each in `avanzamento`. False when the operator
// stopped it.
bool Leggi_Periodo(Programma& programma, Scansione& scansione, std::span<const Percorso> nomi,
                   Scritta& avanzamento);

// By supplier and species, the order of the first rows among equals.
void Ordina_Totali(std::vector<Totale>& totali);
// Merges the totals of each supplier, whatever the species; in the suppliers' order.
void Consolida_Vettore_1x1a(std::vector<Totale>& totali);

// What the figures leave out, for the operator: rows that can't be read as numbers, files that can't be read.
// Empty when nothing is missing.
Testo Mancanze(const Scansione& scansione);

#pragma once

#include "core/programma.h"
#include "tests/piattaforma_finta.h"

// A machine that answers OK to everything, so that nothing waits for an operator.
class Piattaforma_Muta : public Piattaforma_Finta {
 public:
  bool Domanda(const Testo& testo, Icona, const Testo&) override {
    domande.push_back(testo);
    return true;
  }
  std::optional<Testo> Chiedi(const Testo& testo, const Testo&, const Testo&) override {
    domande.push_back(testo);
    return "01";
  }
};

// A firm of size in a folder of its own that goes with the object: all lists, 10,000 customers, 200
// suppliers.
class Ditta {
 public:
  Ditta();
  ~Ditta();
  Ditta(const Ditta&) = delete;
  Ditta& operator=(const Ditta&) = delete;

  const Percorso& Cartella() const { return cartella_; }
  // Writes the day of the machine's date with so many rows.
  void Scrivi_Giorno(Piattaforma& macchina, int righe) const;

 private:
  Percorso cartella_;
};

// Row n of a made-up day, as the entry screen would have stored it; lists of `programma` read.
LedgerRow Riga_Inventata(const Programma& programma, int n);

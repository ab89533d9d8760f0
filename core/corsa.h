#pragma once

#include <cstddef>

#include "core/piattaforma.h"

// How a stopped run is told: "Stampa interrotta", "documento", "documenti".
struct Parole_Corsa {
  Vista lavoro, uno, molti;
};

// A run over documents, accounts, labels, pages: the operator may stop it with Esc between two of them, never
// within one, and a run of one not at all. One that is refused (its customer isn't in the list) is begun and
// not done.
class Corsa {
 public:
  Corsa(Piattaforma& piattaforma, std::size_t quante, int copie = 1);

  // Before each unit. False once the operator has stopped the run.
  bool Avanti();
  void Fatta(std::size_t quante = 1) { fatte_ += quante; }  // those begun last are done

  bool Fermata() const { return fermata_; }
  // "Stampa interrotta: 12 documenti su 40.", with all copies counted where there are more.
  Testo Testo_Fermata(const Parole_Corsa& parole) const;

 private:
  Piattaforma& piattaforma_;
  std::size_t quante_, fatte_ = 0;
  int copie_;
  bool iniziata_ = false, fermata_ = false;
};

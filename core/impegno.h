#pragma once

#include <functional>
#include <utility>

#include "core/piattaforma.h"

// While a command of a screen runs or asks. A message lets further keys and clicks through: they must do
// nothing.

// The busy pointer.
class Clessidra {
 public:
  explicit Clessidra(Piattaforma& piattaforma) : piattaforma_(piattaforma) { piattaforma_.Occupato(true); }
  ~Clessidra() { piattaforma_.Occupato(false); }
  Clessidra(const Clessidra&) = delete;
  Clessidra& operator=(const Clessidra&) = delete;

 private:
  Piattaforma& piattaforma_;
};

// The screen stands still: its `attiva` is false. `aggiorna` renews what is enabled, then and afterwards.
template <class Schermo>
class Schermo_Fermo {
 public:
  explicit Schermo_Fermo(Schermo& schermo, std::function<void()> aggiorna = {})
      : schermo_(schermo), aggiorna_(std::move(aggiorna)), era_attiva_(std::exchange(schermo.attiva, false)) {
    if (aggiorna_) aggiorna_();
  }
  ~Schermo_Fermo() {
    schermo_.attiva = era_attiva_;
    if (aggiorna_) aggiorna_();
  }
  Schermo_Fermo(const Schermo_Fermo&) = delete;
  Schermo_Fermo& operator=(const Schermo_Fermo&) = delete;

 private:
  Schermo& schermo_;
  std::function<void()> aggiorna_;
  bool era_attiva_;
};

// Both.
template <class Schermo>
class Schermo_Occupato {
 public:
  Schermo_Occupato(Schermo& schermo, Piattaforma& piattaforma, std::function<void()> aggiorna)
      : fermo_(schermo, std::move(aggiorna)), clessidra_(piattaforma) {}

 private:
  Schermo_Fermo<Schermo> fermo_;
  Clessidra clessidra_;
};

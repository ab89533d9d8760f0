#pragma once

#include <utility>

#include "entry/edita.h"

// The entry screen stands still while a command runs or asks: keys and clicks that come meanwhile do nothing.
class Schermo_Fermo {
 public:
  explicit Schermo_Fermo(Edita& edita) : edita_(edita), era_attiva_(std::exchange(edita.attiva, false)) {}
  ~Schermo_Fermo() { edita_.attiva = era_attiva_; }
  Schermo_Fermo(const Schermo_Fermo&) = delete;
  Schermo_Fermo& operator=(const Schermo_Fermo&) = delete;

 private:
  Edita& edita_;
  bool era_attiva_;
};

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

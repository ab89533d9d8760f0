#pragma once

#include <utility>

#include "invoices/zfatture.h"

// A command runs or asks: keys and clicks that come meanwhile do nothing.
class Fermo {
 public:
  Fermo(const Programma& programma, ZFatture& zfatture)
      : programma_(programma), zfatture_(zfatture), era_attiva_(std::exchange(zfatture.attiva, false)) {
    AggiornaComandi(programma_, zfatture_);
    programma_.piattaforma.Occupato(true);
  }
  ~Fermo() {
    programma_.piattaforma.Occupato(false);
    zfatture_.attiva = era_attiva_;
    AggiornaComandi(programma_, zfatture_);
  }
  Fermo(const Fermo&) = delete;
  Fermo& operator=(const Fermo&) = delete;

 private:
  const Programma& programma_;
  ZFatture& zfatture_;
  bool era_attiva_;
};

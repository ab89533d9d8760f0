#pragma once

#include <memory>

#include "core/programma.h"

// The running program: start-up, then the main window with the start screen, then the day's screens. main.cpp
// and the working-day runner make one and give it the machine.
class Applicazione {
 public:
  Applicazione(Piattaforma& piattaforma, Percorso cartella);
  ~Applicazione();  // closes every window
  Applicazione(const Applicazione&) = delete;
  Applicazione& operator=(const Applicazione&) = delete;

  // Start-up to the first window. False: the program ends without one (second instance, list generator).
  bool Avvia();
  Programma& programma();

 private:
  struct Interno;
  std::unique_ptr<Interno> interno_;
};

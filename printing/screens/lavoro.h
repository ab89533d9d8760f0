#pragma once

#include <optional>
#include <string>

#include "printing/dispositivo.h"

class Fonte_Stampa;

// A document in work, on paper or as a file: it only draws. Millimetres from the corner of what can be
// printed.
class Lavoro {
 public:
  Lavoro() = default;
  Lavoro(const Lavoro&) = delete;
  Lavoro& operator=(const Lavoro&) = delete;
  virtual ~Lavoro() = default;

  virtual void Pagina(int pagina, int orientamento) = 0;  // from 1
  // Letters that can be seen, side by side as the font measures them; `corpo` is the size of the font.
  virtual void Scrivi(double x, double base, Fonte_Stampa& fonte, double corpo, Vista testo) = 0;
  virtual void Disegna(const Segno& segno) = 0;
  virtual void Disegna(const Ovale& ovale) = 0;
  virtual void Disegna(const Figura& figura) = 0;
  virtual std::optional<std::string> Finisci() = 0;  // the content of the file; nothing where there is none
  virtual bool Abbandona() = 0;                      // true: nothing of it came out
};

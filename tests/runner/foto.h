#pragma once

#include <memory>

#include "core/disco.h"

class Printer;

namespace giornata {

struct Scena;

// The pictures of the manual, taken while a working day is played: windows as PNG, paper as PDF. Only a day
// that is played with a folder for pictures makes files; any other only looks whether there is something to
// take.
class Album {
 public:
  explicit Album(Percorso cartella);
  ~Album();
  Album(const Album&) = delete;
  Album& operator=(const Album&) = delete;

  const Percorso& cartella() const { return cartella_; }
  // The paper of that firm: each document a PDF, whatever printers the machine has.
  Printer& carta(const Percorso& ditta);
  void prendi_carta(const std::string& nome);  // the last document that was finished, once

 private:
  Percorso cartella_;
  std::unique_ptr<Printer> carta_;
};

void Foto_Finestra(Scena& scena, const std::string& nome);  // the window in front
void Foto_Carta(Scena& scena, const std::string& nome);     // what was printed last

}  // namespace giornata

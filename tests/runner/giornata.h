#pragma once

#include <functional>
#include <string>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include "tests/runner/copione.h"
#include "tests/runner/scena.h"

// Plays one working day. The event loop drives the steps: the next one is set before a step runs, so that the
// steps go on inside a window that a step opened and that waits for its answer.
namespace giornata {

class Giornata : public QObject {
  Q_OBJECT

 public:
  // `radice` is an empty folder of this day's own. `segna` is told the line of each step before it runs.
  // `album` takes the pictures, if any shall be taken; it must outlive the day.
  // `resto`, if any, gets the firm's folder and the pages as they are at the end.
  Giornata(Copione copione, const Percorso& file, const Percorso& radice, std::function<void(int riga)> segna,
           Album* album = nullptr, const Percorso& resto = {});

  // Runs to the end in a fresh event loop: 0 passed, 1 failed and told on the standard output. Ends the
  // process at once where the program can't be left in an orderly way.
  int Gioca();

 private:
  void batti();
  bool chiudi_programma();  // false while windows of the program still wait
  void gioca_passo();
  void controlla_fine();
  [[noreturn]] void fallisci(int riga, const std::string& passo, const std::string& atteso,
                             const std::string& trovato);

  static constexpr std::size_t nessuno = static_cast<std::size_t>(-1);

  Copione copione_;
  std::string nome_;
  std::function<void(int)> segna_;
  Scena scena_;
  QTimer battito_;
  QElapsedTimer da_;              // since the first try of the step in turn
  std::size_t passo_ = 0;         // the step in turn
  std::size_t ultimo_ = nessuno;  // the last one begun
  int quieti_ = 0;                // beats without a step since the last one
  int dentro_ = 0;                // steps that are still waiting for a window they opened
};

// What is wrong with a script as a whole, though each of its steps is well written.
std::optional<Errore_Copione> Difetto(const Copione& copione);
void Stampa_Fallita(const std::string& file, int riga, const std::string& passo, const std::string& atteso,
                    const std::string& trovato);

}  // namespace giornata

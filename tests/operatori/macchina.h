#pragma once

#include <functional>
#include <string>

#include "tests/operatori/caso.h"
#include "tests/runner/piattaforma_copione.h"

namespace operatori {

// What an operator keys who knows the trade, and one who doesn't: codes, dates, numbers, names, and what has
// broken other programs. UTF-8.
std::span<const char* const> Testi_Battuti();

// A machine that answers at random, or, while the operator is on his way to a screen, always OK. Everything
// it is asked or told goes to `mostrato`. Of the programs that it starts only the list generator is there:
// its window comes up, and whoever started it waits until it is closed.
class Macchina : public giornata::Piattaforma_Copione {
 public:
  explicit Macchina(Caso& caso) : caso_(caso) {}

  bool docile = true;
  int mostrati = 0;  // since the step began
  std::function<void(const Testo& testo, const Testo& titolo, const std::string& risposta)> mostrato;

  void Messaggio(const Testo& testo, Icona icona, const Testo& titolo) override;
  bool Domanda(const Testo& testo, Icona icona, const Testo& titolo) override;
  std::optional<Testo> Chiedi(const Testo& testo, const Testo& titolo, const Testo& proposta) override;
  void Ridipingi() override;
  bool Avvia_Programma(const Percorso& file, const std::vector<Testo>& argomenti) override;

 private:
  void Mostra_Generatore(const Percorso& ditta);

  Caso& caso_;
  int ridipinture_ = 0;
};

}  // namespace operatori

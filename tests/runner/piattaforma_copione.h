#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <string>
#include <variant>

#include "core/piattaforma.h"
#include "printing/registratore.h"

namespace giornata {

enum class Tasto_Risposta { OK, Annulla };
// What the script queued for a question or an input box.
using Risposta = std::variant<Tasto_Risposta, Testo>;

// The machine of a working day: keeps every text it was shown, answers from the script's queue, and changes
// only when the script says so.
class Piattaforma_Copione : public Piattaforma {
 public:
  std::deque<Testo> messaggi;     // shown and not yet checked, oldest first
  std::deque<Testo> domande;      // questions and input boxes answered and not yet checked
  std::deque<Risposta> risposte;  // to the next ones
  std::string programma;          // the last program started, its arguments after a blank each
  Registro_Pagine pagine;         // what the page device drew
  Data oggi{2025, 3, 14};
  char separatore = ',';
  Testo appunti;
  std::vector<Volume> volumi;
  std::optional<Stampante> stampante = Stampante{"Registro", false};
  Registratore dispositivo{stampante, pagine};
  Printer* carta = nullptr;  // real paper, in place of the recorder
  bool terminata = false;
  int ferma_fra = 0;  // units of long works after which the operator presses Esc; 0: he doesn't
  // A question came for which no fitting answer stood in the queue. Doesn't return: a program that asks again
  // until it is content would never end.
  std::function<void(const std::string& atteso, const std::string& trovato)> senza_risposta;

  void Messaggio(const Testo& testo, Icona icona, const Testo& titolo) override;
  bool Domanda(const Testo& testo, Icona icona, const Testo& titolo) override;
  std::optional<Testo> Chiedi(const Testo& testo, const Testo& titolo, const Testo& proposta) override;
  void Ridipingi() override;
  bool Vuole_Fermare() override;
  void Attendi(double secondi) override;
  void Occupato(bool si) override;
  Data Oggi() override { return oggi; }
  char Separatore_Decimale() override { return separatore; }
  Testo Appunti() override { return appunti; }
  std::vector<Volume> Volumi() override { return volumi; }
  std::optional<Stampante> Stampante_Corrente() override { return stampante; }
  Printer& Dispositivo() override { return carta ? *carta : dispositivo; }
  bool Avvia_Programma(const Percorso& file, const std::vector<Testo>& argomenti) override;
  void Apri_Con_Desktop(const Percorso& file_o_cartella) override;
  void Termina() override { terminata = true; }

 private:
  std::optional<Risposta> Prossima(const Testo& testo);

  std::chrono::steady_clock::time_point ultima_ridipintura_;
};

}  // namespace giornata

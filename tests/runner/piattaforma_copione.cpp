#include "tests/runner/piattaforma_copione.h"

#include "platform/finestra.h"

namespace giornata {

namespace {

// As the desktop's own machine does: a loop over thousands of rows asks to repaint at each.
constexpr std::chrono::milliseconds fra_ridipinture{30};

std::string Citato(const Testo& testo) { return "\"" + In_Utf8(testo) + "\""; }

}  // namespace

void Piattaforma_Copione::Messaggio(const Testo& testo, Icona, const Testo&) {
  Mostra_Finestre();
  messaggi.push_back(testo);
}

std::optional<Risposta> Piattaforma_Copione::Prossima(const Testo& testo) {
  Mostra_Finestre();
  if (risposte.empty()) {
    senza_risposta("una risposta in coda per la domanda", Citato(testo));
    return std::nullopt;
  }
  domande.push_back(testo);
  Risposta risposta = risposte.front();
  risposte.pop_front();
  return risposta;
}

bool Piattaforma_Copione::Domanda(const Testo& testo, Icona, const Testo&) {
  const auto risposta = Prossima(testo);
  if (!risposta) return false;
  if (const auto* tasto = std::get_if<Tasto_Risposta>(&*risposta)) return *tasto == Tasto_Risposta::OK;
  senza_risposta("rispondi OK o rispondi Annulla per la domanda " + Citato(testo),
                 "in coda il testo " + Citato(std::get<Testo>(*risposta)));
  return false;
}

std::optional<Testo> Piattaforma_Copione::Chiedi(const Testo& testo, const Testo&, const Testo& proposta) {
  const auto risposta = Prossima(testo);
  if (!risposta) return std::nullopt;
  if (const auto* scritto = std::get_if<Testo>(&*risposta)) return *scritto;
  if (std::get<Tasto_Risposta>(*risposta) == Tasto_Risposta::OK) return proposta;
  return std::nullopt;
}

void Piattaforma_Copione::Ridipingi() {
  const auto adesso = std::chrono::steady_clock::now();
  if (adesso - ultima_ridipintura_ < fra_ridipinture) return;
  Mostra_Finestre();
  ultima_ridipintura_ = adesso;
}

bool Piattaforma_Copione::Vuole_Fermare() {
  Ridipingi();
  return ferma_fra > 0 && --ferma_fra == 0;
}

void Piattaforma_Copione::Attendi(double) { Mostra_Finestre(); }

void Piattaforma_Copione::Occupato(bool) {}

bool Piattaforma_Copione::Avvia_Programma(const Percorso& file, const std::vector<Testo>& argomenti) {
  programma = file.filename().string();
  for (const Testo& argomento : argomenti) programma += " " + In_Utf8(argomento);
  return true;
}

void Piattaforma_Copione::Apri_Con_Desktop(const Percorso&) {}

}  // namespace giornata

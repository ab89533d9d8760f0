#include "core/posti_finestre.h"

#include <algorithm>
#include <cerrno>
#include <charconv>

namespace {

constexpr Vista nome_file = "_Finestre.txt";
constexpr int limite = 100'000;  // beyond any screen

bool Leggi_Misura(Vista testo, int& misura) {
  const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), misura);
  return errore == std::errc() && fine == testo.data() + testo.size() && misura >= -limite &&
         misura <= limite;
}

std::optional<Posto_Finestra> Leggi_Posto(Vista riga) {
  Posto_Finestra posto;
  for (int* misura : {&posto.sinistra, &posto.alto, &posto.larghezza, &posto.altezza})
    if (!Leggi_Misura(Prossimo_Campo(riga), *misura)) return std::nullopt;
  if (posto.larghezza <= 0 || posto.altezza <= 0) return std::nullopt;
  posto.massima = riga == "1";
  return posto;
}

}  // namespace

Posti_Finestre::Posti_Finestre(const Disco& disco, const Percorso& cartella)
    : disco_(disco), file_(Unisci_Percorso(cartella, nome_file)) {
  int errore = 0;
  const auto contenuto = disco_.Leggi_Testo(file_, &errore);
  ignoti_ = !contenuto && errore != ENOENT;
  if (!contenuto) return;
  for (Vista riga : Righe(*contenuto)) {
    const Vista nome = Prossimo_Campo(riga);
    if (const auto posto = Leggi_Posto(riga); posto && !nome.empty()) posti_[Testo(nome)] = *posto;
  }
}

std::optional<Posto_Finestra> Posti_Finestre::Posto(Vista finestra) const {
  const auto trovato = posti_.find(Testo(finestra));
  if (trovato == posti_.end()) return std::nullopt;
  return trovato->second;
}

int Posti_Finestre::Ricorda(Vista finestra, const Posto_Finestra& posto) {
  if (Posto(finestra) == posto) return 0;
  posti_[Senza_Separatori(finestra)] = posto;
  if (ignoti_) return EIO;
  return disco_.Sostituisci(file_, Contenuto());
}

Testo Posti_Finestre::Contenuto() const {
  Testo esito;
  for (const auto& [nome, posto] : posti_) {
    esito += nome;
    for (const int misura : {posto.sinistra, posto.alto, posto.larghezza, posto.altezza})
      esito.append(1, TAB).append(std::to_string(misura));
    esito.append(1, TAB).append(posto.massima ? "1" : "0").append(FINE_RIGA);
  }
  return esito;
}

Posto_Finestra Dentro_Lo_Schermo(const Posto_Finestra& posto, const Posto_Finestra& schermo) {
  Posto_Finestra esito = posto;
  esito.larghezza = std::min(posto.larghezza, schermo.larghezza);
  esito.altezza = std::min(posto.altezza, schermo.altezza);
  esito.sinistra =
      std::clamp(posto.sinistra, schermo.sinistra, schermo.sinistra + schermo.larghezza - esito.larghezza);
  esito.alto = std::clamp(posto.alto, schermo.alto, schermo.alto + schermo.altezza - esito.altezza);
  return esito;
}

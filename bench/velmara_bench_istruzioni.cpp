#include <cstdio>

#include "bench/anno.h"
#include "bench/giornata.h"
#include "stats/scansione.h"

// What the operator does all night, once each, for bench/guardia, which counts the instructions of every
// routine here whose name begins with Misura_.

namespace {

constexpr int righe = 3'000, giorni = 5, aggiunte = 20;

struct Lavoro {
  const Ditta& ditta;
  Giornata giornata;
};

}  // namespace

[[gnu::noinline]] void Misura_carica(Lavoro& lavoro) {
  if (!Carica_Giorno(lavoro.giornata.programma)) throw std::runtime_error("il giorno non si carica");
}

[[gnu::noinline]] void Misura_salva(Lavoro& lavoro) {
  Cambia_Riga(lavoro.giornata);
  Salva_La_Giornata(lavoro.giornata);
}

[[gnu::noinline]] void Misura_ordina_per_tre(Lavoro& lavoro) { Ordina_Per_Tre(lavoro.giornata); }

// Letter by letter until one of 10,000 customers is left.
[[gnu::noinline]] void Misura_tasti_ricerca(Lavoro& lavoro) {
  constexpr int campo = Indice(CampoRiga::Cliente);
  constexpr Vista nome = "Ristorante Cliente 01233";
  Edita& edita = lavoro.giornata.edita;
  edita.CampoCorrente = campo;
  for (std::size_t lettere = 1; lettere <= nome.size(); ++lettere) {
    edita.Text1[campo].testo = nome.substr(0, lettere);
    CambiaCampo(lavoro.giornata.programma, edita, campo);
  }
  if (edita.List1.Numero() != 1) throw std::runtime_error("il nome intero non trova il suo cliente");
}

[[gnu::noinline]] void Misura_F5(Lavoro& lavoro) {
  for (int n = 1; n <= aggiunte; ++n) {
    Riempi_Campi(lavoro.giornata, n);
    Aggiungi(lavoro.giornata.programma, lavoro.giornata.edita);
  }
  if (lavoro.giornata.programma.Vet_Tabella.Righe() != righe + aggiunte)
    throw std::runtime_error("le righe non sono state aggiunte");
}

[[gnu::noinline]] void Misura_totali_anno(Lavoro& lavoro) {
  Programma& programma = lavoro.giornata.programma;
  const Percorso anno = Unisci_Percorso(lavoro.ditta.Cartella(), "1999");
  Scansione scansione(programma, {.per_specie = true});
  const auto nomi = programma.disco.Elenca(anno, "*.txt").value();
  for (const Percorso& nome : nomi) scansione.Leggi_Giorno(anno / nome);
  if (scansione.Righe() != giorni * righe) throw std::runtime_error("non tutte le righe sono state lette");
}

int main() {
  try {
    const Ditta ditta;
    Anno({.giorni = giorni, .righe = righe, .anno = 1999}).Scrivi(ditta.Cartella() / "1999");
    Lavoro lavoro{ditta, {ditta, righe}};
    Misura_carica(lavoro);
    Misura_salva(lavoro);
    Misura_ordina_per_tre(lavoro);
    Misura_tasti_ricerca(lavoro);
    Misura_F5(lavoro);
    Misura_totali_anno(lavoro);
  } catch (const std::exception& fallito) {
    std::fprintf(stderr, "%s\n", fallito.what());
    return 1;
  }
}

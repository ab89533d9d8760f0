#pragma once

#include <stdexcept>

#include "bench/ditta.h"
#include "core/giorno.h"
#include "entry/edita.h"
#include "lists/ordina.h"
#include "start/avvio.h"
#include "start/inizio.h"

// The program at the point where a day of so many rows has just been opened.
struct Giornata {
  Giornata(const Ditta& ditta, std::int64_t righe) : programma(macchina) {
    ditta.Scrivi_Giorno(macchina, static_cast<int>(righe));
    Avvia(programma, ditta.Cartella(), blocco, [] { return std::optional<PrimoAvvio>(); });
    Carica_Inizio(programma, inizio);
    Apri_Giorno(programma, inizio);
    Apri_Edita(programma, edita);
    edita.pronta = true;
    programma.preferenze.FlagAutoSalvataggio = false;
  }
  Piattaforma_Muta macchina;
  Programma programma;
  Blocco_Cartella blocco;
  B_Inizio inizio;
  Edita edita;
};

inline void Salva_La_Giornata(Giornata& giornata) {
  bool errore = false;
  Salva_Giorno(giornata.programma, errore);
  if (errore) throw std::runtime_error("il giorno non si salva");
}

// An unchanged file isn't written.
inline void Cambia_Riga(Giornata& giornata) {
  Testo& commento = giornata.programma.Vet_Tabella(CampoRiga::Commento, 1);
  commento = commento == "a" ? "b" : "a";
}

inline void Ordina_Per_Tre(Giornata& giornata) {
  OrdinaTre(giornata.programma, CampoRiga::Fornitore, CampoRiga::Specie, CampoRiga::Cliente);
}

// Row n of a made-up day stands in the entry fields, ready for F5.
inline void Riempi_Campi(Giornata& giornata, int n) {
  Edita& edita = giornata.edita;
  const LedgerRow nuova = Riga_Inventata(giornata.programma, n);
  edita.attiva = false;
  for (std::size_t campo = 0; campo < Num_Campi; ++campo) edita.Text1[campo].testo = nuova.campi[campo];
  edita.attiva = true;
  edita.Aggiungi.attivo = true;
}

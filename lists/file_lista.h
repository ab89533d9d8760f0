#pragma once

#include <array>
#include <optional>

#include "core/programma.h"

// Reading and writing a list file as a whole; what the readers and writers of the single lists share.

Percorso Percorso_Lista(const Programma& programma, Vista nome);
bool Esiste_Lista(const Programma& programma, Vista nome);
bool Manca_Lista(const Programma& programma, Vista nome, int* errore = nullptr);  // as Disco::Manca_File

// "Errore =<n>  aprendo il file <path>", a line for each file; nothing is shown for none.
struct Guasto_Lista {
  int errore = 0;
  Percorso percorso;
};
void Mostra_Guasti(Programma& programma, const std::vector<Guasto_Lista>& guasti);

// The whole file; nothing when it is missing. A file that is there and can't be read is told and counts as
// empty.
std::optional<Testo> Leggi_File_Lista(Programma& programma, Vista nome);

// Replaces the file: 0 or the errno. A file that is there and can't be read, or couldn't when its table was
// read, isn't replaced: the table knows nothing of what it holds.
int Scrivi_File_Lista(Programma& programma, Vista nome, Vista contenuto);
// The same, a failure told to the operator; false then.
bool Salva_File_Lista(Programma& programma, Vista nome, Vista contenuto);
// The same of what a missing list begins with: that nothing at all can be written in the firm's folder has
// been told.
bool Semina_File_Lista(Programma& programma, Vista nome, Vista contenuto);

// Appends a field without the bytes that would split it, or its line, when read back; TABs stay on request.
void Aggiungi_Campo(Testo& riga, Vista campo, bool con_tab = false);

// The first N fields of a line; fields that it hasn't are empty, further ones are dropped.
template <std::size_t N>
std::array<Testo, N> Campi_Riga(Vista riga) {
  std::array<Testo, N> campi;
  for (Testo& campo : campi) campo = Prossimo_Campo(riga);
  return campi;
}

// A list of one entry a line as its file has it.
Testo Contenuto_Voci(const std::vector<Testo>& voci);

// The table as its file has it. A row whose first column is empty was deleted and stays out.
// `resto_di_riga`: the last column is whatever stood at the end of the line and keeps its TABs.
template <std::size_t N>
Testo Contenuto_Tabella(const TabellaLista<N>& tabella, bool resto_di_riga = false) {
  Testo contenuto;
  for (const auto& riga : tabella) {
    if (Pulito(riga[0]).empty()) continue;
    for (std::size_t colonna = 0; colonna + 1 < N; ++colonna) {
      Aggiungi_Campo(contenuto, riga[colonna]);
      contenuto += TAB;
    }
    Aggiungi_Campo(contenuto, riga[N - 1], resto_di_riga);
    contenuto += FINE_RIGA;
  }
  return contenuto;
}

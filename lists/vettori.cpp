#include "lists/file_lista.h"
#include "lists/liste.h"
#include "lists/semi.h"

void Leggi_Vettori(Programma& programma) {
  constexpr std::size_t riga_minima = 3;
  auto& tabella = programma.Vet_Vettori;
  const auto contenuto = Leggi_File_Lista(programma, nomi_file::Vettori);
  if (!contenuto) {
    tabella = Seme_Vettori();
    return;
  }
  tabella.clear();
  for (const Vista riga : Righe(*contenuto))
    if (Pulito(riga).size() >= riga_minima) tabella.push_back(Campi_Riga<3>(riga));
}

bool Salva_Vettori(Programma& programma) {
  return Salva_File_Lista(programma, nomi_file::Vettori, Contenuto_Tabella(programma.Vet_Vettori));
}

bool Scrivi_Vettori_Predefiniti(Programma& programma) {
  if (!Manca_Lista(programma, nomi_file::Vettori)) return true;
  return Semina_File_Lista(programma, nomi_file::Vettori, Riga_Vettore_Predefinita());
}

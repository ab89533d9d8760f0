#include "lists/file_lista.h"
#include "lists/liste.h"
#include "lists/semi.h"

void Leggi_Zone(Programma& programma) {
  auto& tabella = programma.Vet_Zone;
  const auto contenuto = Leggi_File_Lista(programma, nomi_file::Zone);
  if (!contenuto) {
    tabella = Seme_Zone();
    Semina_File_Lista(programma, nomi_file::Zone, Contenuto_Tabella(tabella));
    return;
  }
  tabella.clear();
  for (const Vista riga : Righe(*contenuto)) {
    if (Pulito(riga).empty()) continue;
    auto& campi = tabella.emplace_back(Campi_Riga<2>(riga));
    if (Pulito(campi[zona::Codice]).empty()) campi[zona::Codice] = "-";
  }
}

bool Salva_Zone(Programma& programma) {
  return Salva_File_Lista(programma, nomi_file::Zone, Contenuto_Tabella(programma.Vet_Zone));
}

#include "lists/file_lista.h"
#include "lists/liste.h"
#include "lists/semi.h"

namespace {

TabellaLista<8> Righe_Specie(Vista contenuto) {
  TabellaLista<8> tabella;
  const auto righe = Righe(contenuto);
  tabella.reserve(righe.size());
  for (const Vista riga : righe) {
    auto& campi = tabella.emplace_back(Campi_Riga<8>(riga));
    if (Pulito(campi[specie::Alfa]).empty()) campi[specie::Alfa] = "-";
  }
  return tabella;
}

}  // namespace

void Leggi_Specie(Programma& programma) {
  if (const auto contenuto = Leggi_File_Lista(programma, nomi_file::Specie)) {
    programma.Vet_Specie = Righe_Specie(*contenuto);
    return;
  }
  const Testo percorso = Testo_Percorso(Percorso_Lista(programma, nomi_file::Specie));
  const Testo assenti = "file: " + percorso + "\ndescriz32.txt   assente\ndescriz.txt     assente\n";
  if (!Manca_Lista(programma, nomi_file::Pelmoro)) {
    programma.piattaforma.Messaggio(assenti + "genero il file di default");
    if (programma.Vet_Pelmoro.empty()) Leggi_Pelmoro(programma);
    // An empty list would bar the species from being made of it once it can be read.
    if (programma.Liste_Ignote.contains(Testo(nomi_file::Pelmoro))) {
      programma.Vet_Specie.assign(1, {});
      return;
    }
    programma.Vet_Specie = programma.Vet_Pelmoro;
    Salva_Specie(programma);
    return;
  }
  programma.piattaforma.Messaggio("NON trovo il file:\n" + percorso);
  programma.piattaforma.Messaggio(
      assenti + "specie32.txt    assente\ngenero un file temporaneo ma non sarà possibile inserire dati"_t);
  programma.Vet_Specie.assign(1, {});
}

void Leggi_Pelmoro(Programma& programma) {
  const auto contenuto = Leggi_File_Lista(programma, nomi_file::Pelmoro);
  programma.Vet_Pelmoro = Righe_Specie(contenuto.value_or(Testo{}));
}

bool Salva_Specie(Programma& programma) {
  return Salva_File_Lista(programma, nomi_file::Specie, Contenuto_Tabella(programma.Vet_Specie));
}

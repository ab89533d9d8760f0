#include "lists/file_lista.h"

#include <algorithm>
#include <cerrno>
#include <iterator>

Percorso Percorso_Lista(const Programma& programma, Vista nome) {
  return Unisci_Percorso(programma.Cartella_Dati, nome);
}

bool Esiste_Lista(const Programma& programma, Vista nome) {
  return programma.disco.Esiste_File(Percorso_Lista(programma, nome));
}

bool Manca_Lista(const Programma& programma, Vista nome, int* errore) {
  return programma.disco.Manca_File(Percorso_Lista(programma, nome), errore);
}

void Mostra_Guasti(Programma& programma, const std::vector<Guasto_Lista>& guasti) {
  Testo testo;
  for (const auto& [errore, percorso] : guasti) {
    if (!testo.empty()) testo += '\n';
    testo += "Errore =" + std::to_string(errore) + "  aprendo il file " + Testo_Percorso(percorso);
  }
  if (!testo.empty()) programma.piattaforma.Messaggio(testo);
}

std::optional<Testo> Leggi_File_Lista(Programma& programma, Vista nome) {
  programma.Liste_Ignote.erase(Testo(nome));
  const Percorso percorso = Percorso_Lista(programma, nome);
  int errore = 0;
  auto contenuto = programma.disco.Leggi_Testo(percorso, &errore);
  if (contenuto) return contenuto;
  // A folder or a pipe of that name isn't the list. Of a disk that doesn't answer it can't be said that the
  // list is missing: it must not be seeded anew.
  constexpr int non_e_un_file[] = {ENOENT, ENOTDIR, EISDIR, EINVAL, ENXIO};
  if (std::ranges::find(non_e_un_file, errore) != std::end(non_e_un_file)) return std::nullopt;
  programma.Liste_Ignote[Testo(nome)] = errore;
  Mostra_Guasti(programma, {{errore, percorso}});
  return Testo{};
}

int Scrivi_File_Lista(Programma& programma, Vista nome, Vista contenuto) {
  const Percorso percorso = Percorso_Lista(programma, nome);
  if (const auto ignota = programma.Liste_Ignote.find(Testo(nome)); ignota != programma.Liste_Ignote.end())
    return ignota->second;
  if (int errore = 0; !Manca_Lista(programma, nome) && !programma.disco.Leggi(percorso, &errore))
    return errore != 0 ? errore : EIO;
  return programma.disco.Sostituisci(percorso, contenuto);
}

bool Salva_File_Lista(Programma& programma, Vista nome, Vista contenuto) {
  const int errore = Scrivi_File_Lista(programma, nome, contenuto);
  if (errore == 0) return true;
  Mostra_Guasti(programma, {{errore, Percorso_Lista(programma, nome)}});
  return false;
}

bool Semina_File_Lista(Programma& programma, Vista nome, Vista contenuto) {
  const int errore = Scrivi_File_Lista(programma, nome, contenuto);
  if (errore == 0) return true;
  if (errore != programma.Errore_Cartella)
    Mostra_Guasti(programma, {{errore, Percorso_Lista(programma, nome)}});
  return false;
}

void Aggiungi_Campo(Testo& riga, Vista campo, bool con_tab) {
  constexpr Vista separatori("\r\n\0\t", 4);
  const Vista esclusi = con_tab ? separatori.substr(0, 3) : separatori;
  while (true) {
    const std::size_t pezzo = campo.find_first_of(esclusi);
    riga += campo.substr(0, pezzo);
    if (pezzo == Vista::npos) return;
    campo.remove_prefix(pezzo + 1);
  }
}

Testo Contenuto_Voci(const std::vector<Testo>& voci) {
  Testo contenuto;
  for (const Testo& voce : voci) {
    Aggiungi_Campo(contenuto, voce);
    contenuto += FINE_RIGA;
  }
  return contenuto;
}

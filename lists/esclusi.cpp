#include "lists/file_lista.h"
#include "lists/liste.h"

namespace {

constexpr Vista reintegrato = "_r_";

}  // namespace

void Leggi_Esclusi(Programma& programma) {
  programma.Vet_Esclusi = programma.Vet_Esclusi_Puliti = {"99999"};
  const auto contenuto = Leggi_File_Lista(programma, nomi_file::Esclusi);
  if (!contenuto || contenuto->empty()) return;
  const auto righe = Righe(*contenuto);
  programma.Vet_Esclusi.assign(righe.begin(), righe.end());
  programma.Vet_Esclusi_Puliti.clear();
  for (const Vista riga : righe)
    programma.Vet_Esclusi_Puliti.emplace_back(Inizia(riga, reintegrato) ? riga.substr(reintegrato.size())
                                                                        : riga);
}

bool Salva_Esclusi(Programma& programma) {
  return Salva_File_Lista(programma, nomi_file::Esclusi, Contenuto_Voci(programma.Vet_Esclusi));
}

int Codice_Escluso(const Programma& programma, Vista codice) {
  constexpr std::size_t al_piu =
      2;  // the firms rely on it: a longer list is one of notes and excludes nobody
  codice = Pulito(codice);
  if (codice.empty() || programma.Vet_Esclusi.size() > al_piu) return 0;
  for (const Testo& escluso : programma.Vet_Esclusi)
    if (Uguali(escluso, codice)) return 999;
  return 0;
}

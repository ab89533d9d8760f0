#include "core/numeri.h"
#include "lists/file_lista.h"
#include "lists/liste.h"
#include "lists/semi.h"

namespace {

const std::array<Testo, 9>* Cerca(const Programma& programma, Vista nome) {
  nome = Pulito(nome);
  if (nome.empty()) return nullptr;
  for (const auto& riga : programma.Vet_Fornitori)
    if (Uguali(Pulito(riga[fornitore::RagioneSociale1]), nome)) return &riga;
  return nullptr;
}

}  // namespace

void Leggi_Fornitori(Programma& programma) {
  constexpr std::size_t riga_minima = 6;  // shorter lines are leftovers, no suppliers
  const auto contenuto = Leggi_File_Lista(programma, nomi_file::Fornitori);
  auto& tabella = programma.Vet_Fornitori;
  if (!contenuto) {
    tabella = Seme_Fornitori();
    return;
  }
  tabella.clear();
  for (const Vista riga : Righe(*contenuto)) {
    if (riga.size() < riga_minima) continue;
    auto& campi = tabella.emplace_back(Campi_Riga<9>(riga));
    campi[fornitore::Provvigione] =
        Correggi_Separatore(campi[fornitore::Provvigione], programma.Separatore_Decimale);
  }
}

bool Salva_Fornitori(Programma& programma) {
  return Salva_File_Lista(programma, nomi_file::Fornitori, Contenuto_Tabella(programma.Vet_Fornitori));
}

bool Scrivi_Fornitori_Predefiniti(Programma& programma) {
  if (!Manca_Lista(programma, nomi_file::Fornitori)) return true;
  programma.piattaforma.Messaggio(Testo_Percorso(Percorso_Lista(programma, nomi_file::Fornitori)) +
                                  "....non trovato...\nScrivo il file di default... ");
  return Salva_File_Lista(programma, nomi_file::Fornitori, Riga_Fornitore_Predefinita());
}

std::optional<Testo> Provvigione_Fornitore(const Programma& programma, Vista nome) {
  const auto* riga = Cerca(programma, nome);
  if (riga == nullptr) return std::nullopt;
  const Testo provvigione = Punto_Per_Virgola((*riga)[fornitore::Provvigione]);
  return Testo(Pulito(Correggi_Separatore(provvigione, programma.Separatore_Decimale)));
}

Testo Codice_Lotto(const Programma& programma, Vista nome) {
  const auto* riga = Cerca(programma, nome);
  return riga == nullptr ? Testo{} : (*riga)[fornitore::CodiceLotto];
}

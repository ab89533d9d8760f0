#include <algorithm>

#include "lists/file_lista.h"
#include "lists/liste.h"
#include "lists/semi.h"

namespace {

// Reads one list, its file seeded first where it is missing. When the seed can't be written the built-in
// lines are used all the same; the fault goes to `guasti`, for the operator, unless it is that of the whole
// folder, which has been told.
void Leggi(Programma& programma, const Lista_Codificata& lista, std::vector<Guasto_Lista>& guasti) {
  auto& tabella = programma.*lista.tabella;
  const auto contenuto = Leggi_File_Lista(programma, lista.nome);
  if (!contenuto) {
    tabella = lista.seme();
    const int errore = Scrivi_File_Lista(programma, lista.nome, Contenuto_Voci(tabella));
    if (errore != 0 && errore != programma.Errore_Cartella)
      guasti.push_back({errore, Percorso_Lista(programma, lista.nome)});
    return;
  }
  const auto righe = Righe(*contenuto);
  tabella.clear();
  tabella.reserve(righe.size());
  for (Vista riga : righe) tabella.emplace_back(Prossimo_Campo(riga));
}

void Leggi(Programma& programma, std::vector<Testo> Programma::*tabella) {
  const auto liste = Liste_Codificate();
  const auto lista =
      std::find_if(liste.begin(), liste.end(), [&](const auto& l) { return l.tabella == tabella; });
  std::vector<Guasto_Lista> guasti;
  Leggi(programma, *lista, guasti);
  Mostra_Guasti(programma, guasti);
}

}  // namespace

void Leggi_Provenienze(Programma& programma) { Leggi(programma, &Programma::Vet_Provenienze); }
void Leggi_Metodi(Programma& programma) { Leggi(programma, &Programma::Vet_Metodi); }
void Leggi_Pezzature(Programma& programma) { Leggi(programma, &Programma::Vet_Pezzature); }
void Leggi_Stati(Programma& programma) { Leggi(programma, &Programma::Vet_Stati); }
void Leggi_Lavorazioni(Programma& programma) { Leggi(programma, &Programma::Vet_Lavorazioni); }
void Leggi_Presentazioni(Programma& programma) { Leggi(programma, &Programma::Vet_Presentazioni); }
void Leggi_Barche(Programma& programma) { Leggi(programma, &Programma::Vet_Barche); }
void Leggi_Allergeni(Programma& programma) { Leggi(programma, &Programma::Vet_Allergeni); }

void Leggi_Liste(Programma& programma) {
  std::vector<Guasto_Lista> guasti;
  const auto passo = [&](const auto& leggi) {
    leggi();
    programma.piattaforma.Ridipingi();
  };
  passo([&] { Leggi_Clienti(programma); });
  passo([&] { Leggi_Fornitori(programma); });
  passo([&] { Leggi_Specie(programma); });
  const auto liste = Liste_Codificate();
  passo([&] { Leggi(programma, liste.front(), guasti); });  // provenances
  passo([&] { Leggi_Zone(programma); });
  for (const Lista_Codificata& lista : liste.subspan(1)) passo([&] { Leggi(programma, lista, guasti); });
  Mostra_Guasti(programma, guasti);
}

#include "lists/stampa_liste.h"

#include <algorithm>
#include <vector>

#include "printing/pagina_righe.h"

namespace {

struct Lista_Stampata {
  Vista titolo;
  std::vector<Testo> Programma::*voci;
};
constexpr Lista_Stampata liste[] = {{"  Attrezzo di Pesca", &Programma::Vet_Metodi},
                                    {"  Pezzatura", &Programma::Vet_Pezzature},
                                    {"  Stato Fisico", &Programma::Vet_Stati},
                                    {"  Lavorazione ", &Programma::Vet_Lavorazioni},
                                    {"  Preparazione", &Programma::Vet_Presentazioni}};

void Aggiungi_Zone(const Programma& programma, std::vector<Riga_Stampata>& righe) {
  std::size_t larghezza = 0;
  for (const auto& zona : programma.Vet_Zone) larghezza = std::max(larghezza, zona[0].size());
  righe.push_back({});
  for (const auto& zona : programma.Vet_Zone) righe.push_back({Pad(zona[0], larghezza) + "  " + zona[1]});
}

// All that is printed below the headings, line by line. The zones follow without a title, as they are known
// by their codes.
std::vector<Riga_Stampata> Righe_Liste(const Programma& programma) {
  std::vector<Riga_Stampata> righe;
  for (const auto& [titolo, voci] : liste) {
    if (!righe.empty()) righe.push_back({});
    righe.push_back({Testo(titolo), true});
    for (const Testo& voce : programma.*voci) righe.push_back({voce});
  }
  Aggiungi_Zone(programma, righe);
  return righe;
}

}  // namespace

void Stampa_Liste(Programma& programma, Testo& titolo) {
  Foglio_Di_Righe foglio;
  foglio.documento = {programma.Data_AAAAMMGG, "Liste", "", ""};
  foglio.codice = "Liste";
  foglio.testa = {"Programma Velmara", "Liste in uso dal 13 dicembre 2014"};
  foglio.righe = Righe_Liste(programma);
  foglio.carattere = "courier new";
  Stampa_Righe(programma, foglio, titolo);
}

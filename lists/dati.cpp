#include "lists/dati.h"

std::vector<std::vector<Testo>> Righe_Incorporate(std::string_view nome) {
  std::vector<std::vector<Testo>> righe;
  const Testo contenuto = Da_Utf8(Dato_Incorporato(nome));
  for (Vista riga : Righe(contenuto)) {
    if (riga.empty() || riga.front() == '#') continue;
    auto& campi = righe.emplace_back();
    while (!riga.empty()) campi.emplace_back(Prossimo_Campo(riga));
  }
  return righe;
}

#include "start/ditte.h"

std::optional<std::vector<Percorso>> Ditte_In(const Disco& disco, const Percorso& radice, int* errore) {
  const auto nomi = disco.Elenca_Cartelle(radice, errore);
  if (!nomi) return std::nullopt;
  std::vector<Percorso> ditte;
  for (const Percorso& nome : *nomi) {
    const Percorso ditta = radice / nome;
    if (disco.Esiste_File(Unisci_Percorso(ditta, Programma_Ditta)) ||
        disco.Esiste_File(Unisci_Percorso(ditta, "_2020_RAGIONE.txt")) ||
        disco.Esiste_File(Unisci_Percorso(ditta, "RAGIONE.txt")))  // of the older generation
      ditte.push_back(ditta);
  }
  return ditte;
}

std::optional<Testo> Nome_Di_Ditta(Vista nome) {
  constexpr Vista vietati = "/\\:*?\"<>|";
  Testo esito;
  for (const char c : nome)
    if (static_cast<unsigned char>(c) >= 0x20 && vietati.find(c) == Vista::npos) esito += c;
  esito = Testo(Pulito(esito));
  // A point in front would hide the folder, one at the end is lost on the other kind of machine.
  while (!esito.empty() && (esito.front() == '.' || esito.front() == ' ')) esito.erase(0, 1);
  while (!esito.empty() && (esito.back() == '.' || esito.back() == ' ')) esito.pop_back();
  if (esito.empty()) return std::nullopt;
  return esito;
}

int Metti_Programmi(const Disco& disco, const Percorso& da, const Percorso& ditta) {
  if (const int errore = disco.Crea_Cartella(ditta); errore != 0) return errore;
  for (const Vista nome : Programmi_Ditta) {
    const Percorso file = Unisci_Percorso(ditta, nome);
    if (const int errore = disco.Copia(Unisci_Percorso(da, nome), file); errore != 0) return errore;
    if (const int errore = disco.Rendi_Eseguibile(file); errore != 0) return errore;
  }
  return 0;
}

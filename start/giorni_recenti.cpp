#include "start/giorni_recenti.h"

#include <algorithm>

namespace {

constexpr std::size_t cifre_anno = 4, cifre_giorno = 8;

std::optional<Data> Giorno_Del_File(Vista nome) {
  const Vista cifre = Sinistra(nome, cifre_giorno);
  return Tutte_Cifre(cifre, cifre_giorno) ? Leggi_Data(Data_Da_AAAAMMGG(cifre)) : std::nullopt;
}

}  // namespace

std::optional<Data> Giorno_Nel_Nome(Vista nome) {
  if (!Uguali(Da(nome, cifre_giorno + 1), ".txt")) return std::nullopt;
  return Giorno_Del_File(nome);
}

std::vector<Data> Giorni_Recenti(const Programma& programma, std::size_t quanti, bool* tutti) {
  bool letti = true;
  const auto prendi = [&letti](std::optional<std::vector<Percorso>> nomi) {
    letti = letti && nomi.has_value();
    return std::move(nomi).value_or(std::vector<Percorso>());
  };
  std::vector<Percorso> anni = prendi(programma.disco.Elenca_Cartelle(programma.Cartella_Dati));
  std::erase_if(anni, [](const Percorso& anno) { return !Tutte_Cifre(Testo_Percorso(anno), cifre_anno); });
  std::ranges::reverse(anni);
  const Data oggi = programma.piattaforma.Oggi();
  std::vector<Data> giorni;
  for (const Percorso& anno : anni) {
    const Percorso cartella = Unisci_Percorso(programma.Cartella_Dati, Testo_Percorso(anno));
    for (const char* modello : {"????????.txt", "????????.dat"})
      for (const Percorso& nome : prendi(programma.disco.Elenca(cartella, modello))) {
        const auto giorno = Giorno_Del_File(Testo_Percorso(nome));
        if (giorno && std::to_string(giorno->anno) == Testo_Percorso(anno) && *giorno <= oggi)
          giorni.push_back(*giorno);
      }
    std::ranges::sort(giorni, std::greater());
    giorni.erase(std::unique(giorni.begin(), giorni.end()), giorni.end());
    if (giorni.size() >= quanti) break;
  }
  giorni.resize(std::min(giorni.size(), quanti));
  if (tutti != nullptr) *tutti = letti;
  return giorni;
}

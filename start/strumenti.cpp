#include "start/strumenti.h"

std::optional<Percorso> Trova_Programma(const Programma& programma, Vista nome) {
  constexpr Vista estensione = ".exe";
  const Disco& disco = programma.disco;
  const Percorso esatto = Unisci_Percorso(programma.Cartella_Dati, nome);
  if (disco.Esiste_File(esatto)) return disco.Trova(esatto);
  if (!Uguali(Destra(nome, estensione.size()), estensione)) return std::nullopt;
  nome.remove_suffix(estensione.size());
  const Percorso senza = Unisci_Percorso(programma.Cartella_Dati, nome);
  if (disco.Esiste_File(senza)) return disco.Trova(senza);
  return std::nullopt;
}

bool LanciaProgramma(Programma& programma, Vista nome, const std::vector<Testo>& argomenti) {
  const auto file = Trova_Programma(programma, nome);
  if (!file) {
    programma.piattaforma.Messaggio(Testo_Percorso(Unisci_Percorso(programma.Cartella_Dati, nome)) +
                                    "\nnon trovato...");
    return false;
  }
  if (!programma.piattaforma.Avvia_Programma(*file, argomenti)) {
    programma.piattaforma.Messaggio(Testo_Percorso(*file) + "\nnon si avvia...");
    return false;
  }
  programma.piattaforma.Termina();
  return true;
}

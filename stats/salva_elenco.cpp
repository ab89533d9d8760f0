#include "stats/salva_elenco.h"

bool Salva_Righe(Programma& programma, const Percorso& file, std::span<const Testo> righe) {
  Testo contenuto;
  for (const Testo& riga : righe) contenuto.append(riga).append(FINE_RIGA);
  const int errore = programma.disco.Sostituisci(file, contenuto);
  if (errore == 0) return true;
  programma.piattaforma.Messaggio("Errore " + std::to_string(errore) + " durante il salvataggio\n" +
                                  Testo_Percorso(file) + "\n" + Testo_Errore(errore));
  return false;
}

#include "stats/salva_elenco.h"

#include "core/giorno.h"

bool Salva_Righe(Programma& programma, const Percorso& file, std::span<const Testo> righe) {
  Testo contenuto;
  for (const Testo& riga : righe) contenuto.append(riga).append(FINE_RIGA);
  const int errore = programma.disco.Sostituisci(file, contenuto);
  if (errore == 0) return true;
  Di_Errore_File(programma, errore, "il salvataggio", file);
  return false;
}

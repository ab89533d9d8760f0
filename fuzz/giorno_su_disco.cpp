#include "fuzz/ingresso.h"
#include "start/inizio.h"
#include "stats/scansione.h"

// All that looks at a day file: opening it, the check of the last numbers, the statistics of a period. None
// of them may touch it, and what is saved must open again.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  static const Ditta_Muta ditta;
  Ingresso ingresso(dati, quanti);
  Macchina_Muta macchina;
  Programma programma(macchina);
  ditta.Riparti(programma, ingresso.Separatore());
  const Vista contenuto = ingresso.Resto();
  ditta.Metti("2025/20250314.txt", contenuto);

  Esigi(Carica_Giorno(programma), "il giorno si apre");
  Scansione scansione(programma, {.per_specie = true});
  Esigi(scansione.Leggi_Giorno(programma.File_Giorno), "la statistica legge il giorno");
  Esigi(scansione.Righe() <= programma.Vet_Tabella.Righe(), "la statistica non conta righe che non ci sono");
  auto totali = scansione.Prendi_Totali();
  for (const Totale& totale : totali) {
    Esigi(!totale.Testo_Kg(',').empty() || totale.righe == 1, "un peso totale ha un testo");
    totale.Testo_Importo(',');
  }
  Ordina_Totali(totali);
  Consolida_Vettore_1x1a(totali);
  if (!contenuto.empty()) {  // an empty last day is deleted
    Trova_Ultimi_Numeri(programma, "2025");
    Esigi(ditta.Contenuto("2025/20250314.txt") == contenuto, "leggere non tocca il file");
  }
  bool errore = true;
  Salva_Giorno(programma, errore);
  const auto salvate = programma.Vet_Tabella.Righe();
  Esigi(!errore && Carica_Giorno(programma) && programma.Vet_Tabella.Righe() == salvate,
        "quel che e' salvato si riapre con le stesse righe");
  Esigi(macchina.messaggi == 0, "nessun messaggio");
  return 0;
}

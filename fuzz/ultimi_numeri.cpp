#include "fuzz/ingresso.h"
#include "start/inizio.h"

// The file of last numbers: any bytes give four numbers, which come back from a saved file.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  static const Ditta_Muta ditta;
  Ingresso ingresso(dati, quanti);
  Macchina_Muta macchina;
  Programma programma(macchina);
  ditta.Riparti(programma, ingresso.Separatore());
  ditta.Metti("_2020_ncv.txt", ingresso.Resto());
  Leggi_Ultimi_Numeri(programma);
  const std::array letti = {programma.Ultimo_CV, programma.Ultimo_DDT, programma.Ultima_NA,
                            programma.Ultima_Fattura};
  Esigi(ditta.Contenuto("_2020_ncv.txt") == ingresso.Resto(), "leggere non tocca il file");
  Esigi(Salva_Ultimi_Numeri(programma), "i numeri si salvano");
  Leggi_Ultimi_Numeri(programma);
  const std::array riletti = {programma.Ultimo_CV, programma.Ultimo_DDT, programma.Ultima_NA,
                              programma.Ultima_Fattura};
  Esigi(letti == riletti, "i numeri salvati si rileggono");
  Esigi(macchina.messaggi == 0, "nessun messaggio");
  return 0;
}

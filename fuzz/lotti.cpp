#include "entry/lotti.h"

#include "fuzz/ingresso.h"

// The file of predefined lots.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  static const Ditta_Muta ditta;
  Ingresso ingresso(dati, quanti);
  Macchina_Muta macchina;
  Programma programma(macchina);
  ditta.Riparti(programma, ',');
  ditta.Metti("LottiPredeiniti.txt", ingresso.Resto());
  Lotti_Predefiniti lista;
  Apri_LottiPredefiniti(programma, lista);
  Esigi(ditta.Contenuto("LottiPredeiniti.txt") == ingresso.Resto(), "leggere non tocca il file");
  for (const Testo& lotto : lista.lotti)
    Esigi(lotto.find_first_of("\t\r\n") == Testo::npos, "un lotto e' una riga");
  SalvaLotti(programma, lista);
  if (Comincia_Con_La_Marca(ditta.Contenuto("LottiPredeiniti.txt"))) return 0;
  Lotti_Predefiniti riletta;
  CaricaLotti(programma, riletta);
  Esigi(riletta.lotti == lista.lotti, "salvata e riletta e' la stessa lista");
  Edita edita;
  ScegliLotto(edita, lista);
  EliminaLotto(programma, lista);
  return 0;
}

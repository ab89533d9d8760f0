#include "core/date.h"
#include "fuzz/ingresso.h"
#include "lists/privacy.h"

// The text of the privacy letter.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  static const Ditta_Muta ditta;
  Ingresso ingresso(dati, quanti);
  Macchina_Muta macchina;
  Programma programma(macchina);
  ditta.Riparti(programma, ',');
  ditta.Metti("privacy.txt", ingresso.Resto());
  const auto lettera = CaricaPrivacy(programma);
  Esigi(lettera.has_value() != (macchina.messaggi == 1), "una lettera, o un messaggio");
  if (!lettera) return 0;
  Esigi(!lettera->empty(), "una lettera ha almeno una riga");
  for (const Testo& riga : *lettera) Esigi(riga.find_first_of("\r\n") == Testo::npos, "una riga e' una riga");
  Esigi(ditta.Contenuto("privacy.txt") == ingresso.Resto(), "leggere non tocca il file");
  return 0;
}

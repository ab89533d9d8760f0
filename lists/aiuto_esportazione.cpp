#include "lists/aiuto_esportazione.h"

Testo Aiuto_Esportazione(Vista dati) {
  return "Il file da trasmettere alla Veritas (per eleborare le statistiche):\n"
         "viene salvato nella cartella:\n" +
         Testo(dati) +
         "\\xVeritas\n"
         "è presente solo l'ultimo file creato, tutti gli altri file \n"
         "eventualmente presenti vengono cancellati\n"
         "Il separatore di campo è ; (punto e virgola) e non può essere cambiato.\n"
         "Se si sceglie una destinazione diversa (per esempio una chiavetta USB)\n"
         "il file viene salvato nella radice del disco (per esempio d:\\ )"_t;
}

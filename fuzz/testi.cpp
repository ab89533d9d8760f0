#include "fuzz/ingresso.h"

// Texts: the code page, letter case, lines and fields, paths.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  Ingresso ingresso(dati, quanti);
  const std::size_t n = ingresso.Scelta(256);
  const Testo altro = ingresso.Pezzo();
  const Vista testo = ingresso.Resto();
  Esigi(Da_Utf8(In_Utf8(testo)) == testo, "ogni byte torna da UTF-8");
  Esigi(Da_Utf8(testo).size() <= testo.size(), "un carattere e' almeno un byte");
  Esigi(Uguali(testo, Minuscolo(testo)) && Uguali(testo, Maiuscolo(testo)),
        "maiuscole e minuscole sono uguali");
  const int ordine = Confronta(testo, altro);
  Esigi((ordine < 0) == (Confronta(altro, testo) > 0) && (ordine == 0) == Uguali(testo, altro),
        "l'ordine e' lo stesso nei due versi");
  Esigi(!Inizia(testo, altro) || Contiene(testo, altro), "un inizio e' una parte");

  std::size_t lunghezza = 0;
  for (const Vista riga : Righe(testo)) {
    Esigi(riga.find_first_of("\r\n") == Vista::npos, "una riga e' una riga");
    lunghezza += riga.size();
    Vista resto = riga;
    for (int i = 0; i < Num_Campi; ++i)
      Esigi(Prossimo_Campo(resto).find(TAB) == Vista::npos, "un campo e' un campo");
    Vista prima = riga;
    Ultimo_Campo(prima);
  }
  Esigi(lunghezza <= testo.size(), "le righe stanno nel testo");
  Esigi(Pad(testo, n).size() == n && Pad_Sinistra(testo, n).size() >= n, "una colonna ha la sua larghezza");
  Sinistra(testo, n);
  Destra(testo, n);
  Da(testo, n);
  Pulito(testo);
  Sostituisci_Tutti(testo, altro, "x");
  Esigi(Senza_Separatori(testo).find_first_of(Vista("\t\r\n\0", 4)) == Testo::npos,
        "nessun separatore resta");

  const Percorso percorso = Unisci_Percorso("/dati", testo);
  Esigi(percorso.native().starts_with("/dati/"), "un nome sta sotto la sua cartella");
  Esigi(Nome_File(percorso).find_first_of("/\\") == Testo::npos, "un nome e' senza barre");
  return 0;
}

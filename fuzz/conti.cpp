#include "accounts/file_conto.h"
#include "core/numeri.h"
#include "fuzz/ingresso.h"
#include "stats/controllo_cv.h"

// Account files, their names, and the control that reads them.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  static const Ditta_Muta ditta;
  Ingresso ingresso(dati, quanti);
  Macchina_Muta macchina;
  Programma programma(macchina);
  const char separatore = ingresso.Separatore();
  ditta.Riparti(programma, separatore);
  const Testo data = ingresso.Pezzo(), ncv = ingresso.Pezzo();
  if (const auto nome = NomeFileConto(data, ncv, separatore)) {
    Esigi(nome->find_first_of("/\\") == Testo::npos && nome->size() >= 12, "il nome di un conto e' un nome");
    Esigi(nome->find_first_not_of("-0123456789.txt") == Testo::npos, "il nome di un conto e' di cifre");
  }
  const Vista contenuto = ingresso.Resto();
  ditta.Metti("2025/CV_NO/03140001.txt", contenuto);
  const auto testa = Leggi_Testa_Conto(programma.disco, ditta.cartella / "2025/CV_NO/03140001.txt");
  Esigi(testa.has_value(), "il conto si legge");

  ControlloCV schermo;
  Apri_Controllo(programma, schermo);
  schermo.Text1.testo = "2025";
  schermo.Combo1.scelta = 2;
  Leggi_Controllo(programma, schermo);
  Esigi(schermo.Tabella_Controllo.size() == 1, "il conto e' nel controllo");
  Riga_Controllo(schermo.Tabella_Controllo[0], separatore);
  Consolida_Controllo(programma, schermo);

  Importi_CV importi;
  importi.ImponibileTotale = Valore(testa->ImponibileTotale, separatore);
  importi.Commissioni = Valore(testa->Commissioni, separatore);
  for (const Forma_Importi forma : {Forma_Importi::Centesimi, Forma_Importi::Piana})
    Esigi(Righe(ContenutoFileConto(Senza_Separatori(testa->Fornitore), importi, forma, separatore)).size() ==
              13,
          "un conto ha tredici righe");
  return 0;
}

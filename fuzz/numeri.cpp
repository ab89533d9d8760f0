#include "core/numeri.h"

#include <cmath>
#include <cstring>

#include "fuzz/ingresso.h"

// Numbers in texts, and numbers into texts by any pattern.

namespace {

bool Cifre_E_Segni(Vista testo) { return testo.find_first_not_of("-0123456789.,") == Vista::npos; }

void Prova_Valore(double valore, char separatore) {
  const Testo piano = Piano(valore, separatore);
  Esigi(!piano.empty() && Cifre_E_Segni(piano), "un numero piano e' di cifre");
  const auto riletto = Numero(piano, separatore);
  Esigi(riletto.has_value() && Piano(*riletto, separatore) == piano, "un numero piano si rilegge");
  for (const Vista modello : {"#0.00", "#.00", "##.000", "00.#", "#", "00000.000", "###,###,###,##0.00"}) {
    const Testo testo = Formato(valore, modello, separatore);
    Esigi(Cifre_E_Segni(testo), "un numero in forma e' di cifre");
    Esigi(testo.find_first_of("123456789") != Testo::npos || testo.find('-') == Testo::npos,
          "lo zero non ha segno");
  }
  for (const auto euro : {Euro2, Euro2_Migliaia, Num3_Migliaia})
    Esigi(euro(valore, '.') == euro(valore, ','), "gli importi sono gli stessi su ogni macchina");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  Ingresso ingresso(dati, quanti);
  const char separatore = ingresso.Separatore();
  double qualunque = 0;
  if (ingresso.Scelta(2) == 0 && ingresso.Resto().size() >= sizeof qualunque)
    std::memcpy(&qualunque, ingresso.Resto().data(), sizeof qualunque);
  Prova_Valore(qualunque, separatore);

  const Testo modello = ingresso.Pezzo();
  const Testo testo(ingresso.Resto());
  const auto numero = Numero(testo, separatore);
  const double valore = Valore(testo, separatore);
  Esigi(std::isfinite(valore), "un valore e' un numero");
  Esigi(!numero || *numero == valore, "un numero vale quanto il suo inizio");
  Esigi(numero.has_value() == Numerico(testo, separatore), "numerico e' cio' che si legge");
  Esigi(Intero(testo, separatore) == static_cast<int>(std::clamp(valore, -2147483648.0, 2147483647.0)),
        "un intero e' il valore troncato");
  Prova_Valore(valore, separatore);
  Formato(valore, modello, separatore);
  Formato(qualunque, modello, separatore);
  Formato(testo, modello, separatore);
  Correggi_Separatore(testo, separatore);
  Punto_Per_Virgola(testo);
  Esigi(Normalizza_Numero(testo, separatore).size() == testo.size(), "un separatore e' un carattere");
  NumN_Migliaia(valore, static_cast<int>(modello.size()) - 2, separatore);
  return 0;
}

#include "core/date.h"

#include "fuzz/ingresso.h"

// Dates in texts, in every form.

namespace {

constexpr Vista forme[] = {"yyyymmdd", "yymmdd", "dd/mm/yyyy", "dd/mm/yy", "ddmmyyyy", "ddmmyy", "altro"};

void Prova_Passi(const Data& data) {
  if (data.anno <= 1 || data.anno >= 9998) return;
  for (const Vista forma : {forme[0], forme[2]}) {
    const Testo testo = Testo_Data(data, forma);
    Esigi(Giorno_Prima(Giorno_Dopo(testo, forma), forma) == testo,
          "il giorno dopo e quello prima si elidono");
    Esigi(Giorno_Dopo(Giorno_Prima(testo, forma), forma) == testo,
          "il giorno prima e quello dopo si elidono");
  }
  Esigi(Giorno_Settimana(data) >= 0 && Giorno_Settimana(data) <= 6, "un giorno della settimana");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  Ingresso ingresso(dati, quanti);
  const Vista forma = forme[ingresso.Scelta(std::size(forme))];
  const Vista testo = ingresso.Resto();
  const auto data = Leggi_Data(testo);
  Esigi(data.has_value() == E_Data(testo), "e' una data cio' che si legge");
  if (data) {
    Prova_Passi(*data);
    Esigi(Leggi_Data(Testo_Data(*data, "dd/mm/yyyy")) == data, "una data scritta si rilegge");
  }
  for (const auto passo : {static_cast<Testo (*)(Vista, Vista)>(Giorno_Dopo),
                           static_cast<Testo (*)(Vista, Vista)>(Giorno_Prima)}) {
    const Testo passata = passo(testo, forma);
    Esigi(passata.empty() || passata.size() == forma.size(), "una data ha la sua forma");
  }
  Data_Da_AAAAMMGG(testo);
  return 0;
}

#include "core/numeri.h"
#include "fuzz/ingresso.h"

// The day file: any bytes make a table; saved and loaded again it is the same table but for what loading
// always does.

namespace {

Tabella Attesa(Tabella tabella, char separatore) {
  for (LedgerRow& riga : tabella.righe) {
    for (std::size_t i = 0; i + 1 < riga.campi.size(); ++i) riga.campi[i] = Testo(Pulito(riga.campi[i]));
    for (const CampoRiga campo : {CampoRiga::Peso, CampoRiga::Prezzo, CampoRiga::Provvigione})
      riga[campo] = Correggi_Separatore(riga[campo], separatore);
  }
  return tabella;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  Ingresso ingresso(dati, quanti);
  const char separatore = ingresso.Separatore();
  const Tabella tabella = Leggi_Tabella(ingresso.Resto(), separatore);
  Esigi(tabella.Righe() >= 1, "la tabella non e' mai vuota");
  const Testo scritta = Scrivi_Tabella(tabella);
  if (Comincia_Con_La_Marca(scritta)) return 0;
  const Tabella riletta = Leggi_Tabella(scritta, separatore);
  Esigi(riletta.righe == Attesa(tabella, separatore).righe, "salvata e riletta e' la stessa tabella");
  return 0;
}

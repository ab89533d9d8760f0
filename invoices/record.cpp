#include "invoices/record.h"

#include "core/numeri.h"

Testo NumeroRecord(double valore, std::size_t lunghezza, char separatore) {
  const Testo cifre = Formato(valore, "#0", separatore);
  if (!cifre.starts_with('-')) return Pad_Sinistra(cifre, lunghezza, '0');
  return "-" + Pad_Sinistra(Vista(cifre).substr(1), lunghezza - 1, '0');
}

Testo CodiceRecord(Vista codice, std::size_t lunghezza) {
  return Pad_Sinistra(Sinistra(Pulito(codice), lunghezza), lunghezza, '0');
}

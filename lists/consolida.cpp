#include "lists/consolida.h"

void Somma_Testi(Testo& prima, Vista dopo, char separatore) {
  const auto b = Numero(dopo, separatore);
  if (b) prima = Piano(Numero(prima, separatore).value_or(0) + *b, separatore);
}

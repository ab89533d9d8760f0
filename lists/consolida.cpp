#include "lists/consolida.h"

void Somma_Testi(Testo& prima, Vista dopo, char separatore) {
  const auto a = Numero(prima, separatore);
  const auto b = Numero(dopo, separatore);
  if (a && b) prima = Piano(*a + *b, separatore);
}

#include "invoices/foglio.h"

#include <algorithm>

#include "core/numeri.h"

namespace {

constexpr float corpo_minimo = 5, passo_corpo = 0.5F;

// What stands in a cell of an item's first line.
Testo Testo_Cella(const Voce_Documento& voce, Cella cella, char separatore) {
  switch (cella) {
    case Cella::Descrizione:
      return voce.Voce;
    case Cella::Lotto:
      return voce.Lotto;
    case Cella::Colli:
      return Piano(voce.ColliRiga, separatore);
    case Cella::Peso:
      return Euro2_Migliaia(voce.PesoRiga, separatore);
    case Cella::Prezzo:
      return Euro2_Migliaia(voce.PrezzoRiga, separatore);
    case Cella::Importo:
      return Euro2_Migliaia(voce.Importo, separatore);
    case Cella::Iva:
      return Formato(voce.IvaRiga, "00", separatore) + "%";
    case Cella::Zona:
      return voce.ZonaRiga;
    case Cella::Vuota:
      break;
  }
  return {};
}

}  // namespace

void Foglio::Carattere(float corpo, bool grassetto) {
  printer_.FontName = fonte_;
  printer_.FontSize = corpo;
  printer_.FontBold = grassetto;
}

float Foglio::Corpo_Che_Entra(Vista testo, float corpo, float largo) {
  while (corpo > corpo_minimo && printer_.TextWidth(testo) > largo) {
    corpo -= passo_corpo;
    printer_.FontSize = corpo;
  }
  return corpo;
}

Vista Foglio::Parte_Che_Entra(Vista testo, float largo) {
  while (!testo.empty() && printer_.TextWidth(testo) > largo) testo.remove_suffix(1);
  return testo;
}

float Foglio::Larghezza(Vista testo, float corpo, bool grassetto) {
  Carattere(corpo, grassetto);
  return printer_.TextWidth(testo);
}

bool Foglio::Entra(Vista testo, float largo) { return Larghezza(testo, corpo_minimo, false) <= largo; }

void Foglio::Scrivi(float x, float y, Vista testo, float corpo, bool grassetto, float largo) {
  if (testo.empty()) return;
  if (largo > 0) {
    Carattere(corpo, grassetto);
    corpo = Corpo_Che_Entra(testo, corpo, largo);
    testo = Parte_Che_Entra(testo, largo);
  }
  StampaTesto(printer_, x, y, testo, fonte_, corpo, grassetto);
}

void Foglio::Corsivo(float x, float y, Vista testo, float corpo, float largo) {
  printer_.FontItalic = true;
  Scrivi(x, y, testo, corpo, false, largo);
  printer_.FontItalic = false;
}

void Foglio::A_Destra(float x, float y, float largo, Vista testo, float corpo, bool grassetto) {
  if (testo.empty()) return;
  Carattere(corpo, grassetto);
  Corpo_Che_Entra(testo, corpo, largo);
  StampaDestra(printer_, x, y, largo, testo);
}

void Foglio::Nome_A_Destra(float x, float y, float largo, Vista testo, float corpo) {
  Carattere(corpo, false);
  Corpo_Che_Entra(testo, corpo, largo);
  testo = Parte_Che_Entra(testo, largo);
  if (!testo.empty()) StampaDestra(printer_, x, y, largo, testo);
}

namespace {

void Disegna_Cella(Foglio& foglio, const Colonna_Fattura& colonna, Vista testo, float x, float y, float corpo,
                   bool grassetto) {
  const float largo = colonna.largo - 2 * Margine_Cella;
  const bool a_sinistra = colonna.cella == Cella::Descrizione || colonna.cella == Cella::Zona;
  if (a_sinistra)
    foglio.Scrivi(x + Margine_Cella, y, testo, corpo, grassetto, largo);
  else if (colonna.cella == Cella::Lotto && !grassetto)
    foglio.Nome_A_Destra(x + Margine_Cella, y, largo, testo, corpo);
  else
    foglio.A_Destra(x + Margine_Cella, y, largo, testo, corpo, grassetto);
}

}  // namespace

void Disegna_Titoli(Foglio& foglio, std::span<const Colonna_Fattura> colonne, float x, float y, float corpo) {
  for (const Colonna_Fattura& colonna : colonne) {
    Disegna_Cella(foglio, colonna, colonna.titolo, x, y, corpo, true);
    x += colonna.largo;
  }
}

void Disegna_Voce(Foglio& foglio, std::span<const Colonna_Fattura> colonne, const Voce_Documento& voce,
                  float x, float y, float corpo, char separatore) {
  for (const Colonna_Fattura& colonna : colonne) {
    Disegna_Cella(foglio, colonna, Testo_Cella(voce, colonna.cella, separatore), x, y, corpo, false);
    x += colonna.largo;
  }
}

Testo Lotto_Intero(Foglio& foglio, std::span<const Colonna_Fattura> colonne, const Voce_Documento& voce) {
  const auto colonna = std::ranges::find(colonne, Cella::Lotto, &Colonna_Fattura::cella);
  if (colonna == colonne.end() || foglio.Entra(voce.Lotto, colonna->largo - 2 * Margine_Cella)) return {};
  return "  Lotto: " + voce.Lotto;
}

Testo Codici_Voce(const Voce_Documento& voce) {
  constexpr std::size_t in_pagina = 20;
  Testo codici(Sinistra(voce.Consolida, in_pagina));
  const std::size_t asterisco = voce.Consolida.find('*');
  if (asterisco != Testo::npos) codici.append(" ").append(voce.Consolida, asterisco + 1);
  return codici;
}

Testo Percento(double aliquota, char separatore) { return Piano(aliquota, separatore) + "%"; }

Testo Numero_Pagina(Vista parola, int pagina, int pagine) {
  return Testo(parola) + std::to_string(pagina) + " di " + std::to_string(pagine);
}

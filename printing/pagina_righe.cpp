#include "printing/pagina_righe.h"

#include <cmath>

#include "core/corsa.h"
#include "core/impegno.h"

namespace {

constexpr float margine = 10;  // of the sheet, beside the borders of the settings
constexpr float punti_minimi = 6;
constexpr int righe_piede = 2;  // "Continua ..." and an empty line before it

struct Impaginazione {
  float sinistra = 0, alto = 0, passo = 0, larghezza = 0, punti = 0;
  int righe_testa = 0, righe_per_pagina = 0;

  float Riga(int n) const { return alto + static_cast<float>(n) * passo; }
};

std::size_t Riga_Piu_Lunga(const Foglio_Di_Righe& foglio) {
  std::size_t esito = 0;
  for (const Riga_Stampata& riga : foglio.righe) esito = std::max(esito, riga.testo.size());
  return esito;
}

// The size in which the longest line is as wide as the sheet at most, by halves of a point.
float Punti_Che_Entrano(Printer& printer, float punti, float larghezza, std::size_t lunga) {
  printer.FontSize = punti;
  const float intera = printer.TextWidth(Testo(lunga, '0'));
  if (intera <= larghezza) return punti;
  return std::max(std::min(punti, punti_minimi), std::floor(punti * larghezza / intera * 2) / 2);
}

Impaginazione Misura(const Programma& programma, Printer& printer, const Foglio_Di_Righe& foglio) {
  Impaginazione esito;
  esito.sinistra = static_cast<float>(BordoSinistro(programma)) + margine;
  esito.alto = static_cast<float>(BordoAlto(programma)) + margine;
  esito.larghezza = static_cast<float>(printer.LarghezzaUtile) - 2 * margine;
  printer.FontName = foglio.carattere;
  esito.punti = Punti_Che_Entrano(printer, DimFontPagina(programma), esito.larghezza, Riga_Piu_Lunga(foglio));
  printer.FontSize = esito.punti;
  esito.passo = printer.TextHeight("");
  esito.righe_testa = static_cast<int>(foglio.testa.size()) + 1;
  const float utile = printer.ScaleHeight() - esito.alto - margine;
  esito.righe_per_pagina =
      std::max(1, static_cast<int>(utile / esito.passo) - esito.righe_testa - righe_piede);
  return esito;
}

// As much of the text as the sheet is wide.
Vista Quanto_Entra(Printer& printer, Vista testo, float larghezza) {
  while (!testo.empty() && printer.TextWidth(testo) > larghezza) testo.remove_suffix(1);
  return testo;
}

void Stampa_Testa(Printer& printer, const Foglio_Di_Righe& foglio, const Impaginazione& carta, int pagina,
                  int pagine) {
  const auto& testa = pagina == 1 || foglio.testa_seguito.empty() ? foglio.testa : foglio.testa_seguito;
  const Testo numero = "pag. " + std::to_string(pagina) + " di " + std::to_string(pagine);
  for (int i = 0; i < static_cast<int>(testa.size()); ++i) {
    const Testo& riga = testa[static_cast<std::size_t>(i)];
    StampaTesto(printer, carta.sinistra, carta.Riga(i),
                i == 0 && foglio.numero_in_testa ? riga + " " + numero : riga, foglio.carattere, carta.punti,
                true);
  }
  printer.FontBold = false;
  if (!foglio.numero_in_testa) StampaDestra(printer, carta.sinistra, carta.alto, carta.larghezza, numero);
}

void Stampa_Pagina(Printer& printer, const Foglio_Di_Righe& foglio, const Impaginazione& carta, int pagina) {
  const int prima = (pagina - 1) * carta.righe_per_pagina;
  const int ultima = std::min(static_cast<int>(foglio.righe.size()), prima + carta.righe_per_pagina);
  for (int i = prima; i < ultima; ++i) {
    const auto& [testo, grassetto] = foglio.righe[static_cast<std::size_t>(i)];
    StampaTesto(printer, carta.sinistra, carta.Riga(carta.righe_testa + i - prima),
                Quanto_Entra(printer, testo, carta.larghezza), foglio.carattere, carta.punti, grassetto);
  }
}

void Stampa_Seguito(Printer& printer, const Foglio_Di_Righe& foglio, const Impaginazione& carta) {
  StampaTesto(printer, carta.sinistra, carta.Riga(carta.righe_testa + carta.righe_per_pagina + 1),
              "Continua ...", foglio.carattere, carta.punti, false);
}

// A list that was stopped: of a PDF there is nothing, a printer takes back none of the pages drawn.
void Lascia(Piattaforma& piattaforma, Printer& printer, Corsa& corsa, int disegnate) {
  if (!printer.Abbandona()) corsa.Fatta(static_cast<std::size_t>(disegnate));
  piattaforma.Messaggio(corsa.Testo_Fermata({"Stampa interrotta", "pagina", "pagine"}), Icona::Informazione);
}

}  // namespace

void Stampa_Righe(Programma& programma, const Foglio_Di_Righe& foglio, Testo& titolo) {
  if (foglio.righe.empty()) return;
  Printer& printer = Dispositivo(programma);
  const Testo titolo_normale = titolo;
  printer.documento = foglio.documento;
  const Clessidra clessidra(programma.piattaforma);
  PreparaPagina(programma);
  PreparaPagina(programma);
  printer.FontItalic = false;
  const Impaginazione carta = Misura(programma, printer, foglio);
  const int pagine = Pagine_Di(static_cast<int>(foglio.righe.size()), carta.righe_per_pagina);
  Corsa corsa(programma.piattaforma, static_cast<std::size_t>(pagine));
  int disegnate = 0;
  for (; disegnate < pagine && corsa.Avanti(); ++disegnate) {
    if (disegnate > 0) printer.NewPage();
    titolo = Pagina_In_Corso(foglio.codice, disegnate + 1, pagine);
    programma.piattaforma.Ridipingi();
    Stampa_Testa(printer, foglio, carta, disegnate + 1, pagine);
    Stampa_Pagina(printer, foglio, carta, disegnate + 1);
    if (disegnate + 1 < pagine) Stampa_Seguito(printer, foglio, carta);
  }
  titolo = titolo_normale;
  if (corsa.Fermata())
    Lascia(programma.piattaforma, printer, corsa, disegnate);
  else
    printer.EndDoc();
}

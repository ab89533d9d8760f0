#include "stats/barre.h"

#include <algorithm>
#include <cmath>

#include "core/numeri.h"
#include "printing/pagina.h"

namespace {

constexpr Vista carattere = "Arial";
constexpr float margine = 10;  // of the sheet, beside the borders of the settings
constexpr float punti_titolo = 14, punti_barra = 11;
constexpr float passo_titolo = 14, passo_barra = 16, spessore_barra = 7, distanza_cifra = 2;
constexpr Colore grigio{150, 150, 150};

double Massimo(const Grafico& grafico) {
  double massimo = 0;
  for (const Barra& barra : grafico.barre) massimo = std::max(massimo, std::abs(barra.importo));
  return massimo;
}

float Larghezza_Cifre(const Programma& programma, Printer& printer, const Grafico& grafico) {
  float larghezza = 0;
  printer.FontName = carattere;
  printer.FontSize = punti_barra;
  printer.FontBold = false;
  for (const Barra& barra : grafico.barre)
    larghezza = std::max(larghezza, printer.TextWidth(Cifra(barra, programma.Separatore_Decimale)));
  return larghezza;
}

struct Posto_Barra {
  float x = 0, y = 0, lunga = 0;
};

void Disegna_Barra(Printer& printer, const Posto_Barra& posto, const Barra& barra, const Testo& cifra) {
  StampaTesto(printer, posto.x, posto.y, barra.nome, carattere, punti_barra, false);
  const float alto = posto.y + printer.TextHeight("");
  if (barra.importo > 0) Riquadro(printer, posto.x, alto, posto.lunga, spessore_barra, 1, grigio, true);
  Riquadro(printer, posto.x, alto, posto.lunga, spessore_barra, 1, Nero, false);
  StampaTesto(printer, posto.x + posto.lunga + distanza_cifra,
              alto + (spessore_barra - printer.TextHeight("")) / 2, cifra, carattere, punti_barra, false);
}

}  // namespace

void Riempi_Grafico(Grafico& grafico, Testo titolo, std::vector<Barra> tutte) {
  std::stable_sort(tutte.begin(), tutte.end(),
                   [](const Barra& a, const Barra& b) { return a.importo > b.importo; });
  if (tutte.size() > Barre_Massime) tutte.resize(Barre_Massime);
  grafico.titolo = std::move(titolo);
  grafico.barre = std::move(tutte);
  ++grafico.versione;
}

double Lunghezza(const Grafico& grafico, const Barra& barra) {
  const double massimo = Massimo(grafico);
  return massimo == 0 ? 0 : std::abs(barra.importo) / massimo;
}

Testo Cifra(const Barra& barra, char separatore) {
  return Euro2_Migliaia(barra.importo, separatore) + " €"_t;
}

void Stampa_Grafico(Programma& programma, const Grafico& grafico, Testo& titolo) {
  if (grafico.barre.empty()) return;
  Printer& printer = Dispositivo(programma);
  const Testo titolo_normale = titolo;
  printer.documento = {programma.Data_AAAAMMGG, "Grafico", "", ""};
  PreparaPagina(programma);
  PreparaPagina(programma);
  printer.FontItalic = false;
  titolo = Pagina_In_Corso("Grafico", 1, 1);
  programma.piattaforma.Ridipingi();
  const float x = static_cast<float>(BordoSinistro(programma)) + margine;
  float y = static_cast<float>(BordoAlto(programma)) + margine;
  const float cifre = Larghezza_Cifre(programma, printer, grafico);
  const float utile = static_cast<float>(printer.LarghezzaUtile) - 2 * margine - cifre - distanza_cifra;
  StampaTesto(printer, x, y, grafico.titolo, carattere, punti_titolo, true);
  y += passo_titolo;
  for (const Barra& barra : grafico.barre) {
    const auto lunga = static_cast<float>(Lunghezza(grafico, barra)) * utile;
    Disegna_Barra(printer, {x, y, lunga}, barra, Cifra(barra, programma.Separatore_Decimale));
    y += passo_barra;
  }
  printer.EndDoc();
  titolo = titolo_normale;
}

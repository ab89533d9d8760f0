#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>
#include <vector>

#include "core/numeri.h"
#include "invoices/diciture.h"
#include "invoices/foglio.h"

// The layouts with the firm's letterhead: the personal invoice, and the credit note that goes by it.

namespace {

// Millimetres; what hangs on the top of the page is counted from the top margin, the foot from the bottom.
constexpr float y_luogo = 39, y_titolo = 44, y_riferimento = 49.5F, y_destinatario = 54, y_tabella = 85;
constexpr float x_destinatario = 122, alto_riquadro = 5, largo_riquadro = 52, rientro = 5;
constexpr float y_prima_voce = y_tabella + 7, alto_titoli = 6;
constexpr float piede_totali = 55 + 10, piede_dicitura = 60, piede_legenda = 5, passo_piede = 5;
// The sums stand to the right of the wording, which has the same heights.
constexpr float x_totali = 148, largo_dicitura = 144;
constexpr Colore Bianco{255, 255, 255};
constexpr float passo_destinatario = 4, sotto_ultima = 6;
constexpr Vista legenda = "(*) Vedi Legenda CE sulla identificazione del pesce. Reg. CE Nr. 104/2000 art. 4";

struct Tracciato_Intestato {
  float passo;  // of an item
  Vista pagina, titolo_fattura, titolo_nota;
  std::vector<Colonna_Fattura> colonne;
  bool attributi;  // a third line tells what the goods are
};

Tracciato_Intestato Scegli(bool nota) {
  const Vista descrizione = "Descrizione (Zona(*), Denom.scientifica)";
  std::vector<Colonna_Fattura> colonne = {
      {descrizione, 102, Cella::Descrizione}, {"Lotto", 22, Cella::Lotto},     {"Peso Kg.", 22, Cella::Peso},
      {"Prezzo ", 22, Cella::Prezzo},         {"Importo", 22, Cella::Importo}, {"IVA", 10, Cella::Iva}};
  if (!nota) return {8, "pag. ", "Fattura N. ", "Nota di redito N. ", std::move(colonne), false};
  constexpr float in_piu = 10;
  colonne.front().largo -= in_piu;
  colonne.push_back({"AC O", in_piu, Cella::Vuota});
  return {12, "Pag. ", "NOTA CREDITO N. ", "NOTA CREDITO N. ", std::move(colonne), true};
}

// A line of the letterhead.
struct Riga_Ragione {
  float x, y, corpo;
  Testo testo;
};

std::vector<Riga_Ragione> Ragione(const Programma& programma) {
  const auto& r = programma.Ragione;
  const Testo codice =
      programma.preferenze.Numero_Posteggio + " cod. " + programma.preferenze.Codice_Commissionario;
  std::vector<Riga_Ragione> righe = {{0, 0, 12, r[0] + " " + r[1]},
                                     {0, 4, 10, r[2]},
                                     {0, 8, 9, r[3] + " " + r[4]},
                                     {0, 12, 9, r[5]},
                                     {0, 16, 9, r[6]},
                                     {0, 20, 9, codice}};
  if (!Contiene(r[0], Nome_Profilo(Profilo::Dolvena))) return righe;
  // this firm has its letterhead stepped like its sign
  struct Posizione {
    float x, y, corpo;
  };
  constexpr Posizione posizioni[] = {{0, 0, 12},  {18, 5, 10},   {9, 10, 8},
                                     {14, 14, 8}, {8.5F, 18, 8}, {15, 21, 8}};
  for (std::size_t i = 0; i < righe.size(); ++i) {
    righe[i].x = posizioni[i].x;
    righe[i].y = posizioni[i].y;
    righe[i].corpo = posizioni[i].corpo;
  }
  return righe;
}

struct Pagina_Intestata {
  const Programma& programma;
  const Documento_Fattura& documento;
  Tracciato_Intestato tracciato;
  Foglio& foglio;
  bool cornice;
  float alto = static_cast<float>(BordoAlto(programma));
  float sinistra = static_cast<float>(BordoSinistro(programma) + 1);
  float larga = Larga();  // the table
  char separatore = programma.Separatore_Decimale;

  // Where the margin leaves less than the whole width, the description gives way: no amount runs off the
  // paper.
  float Larga() {
    constexpr float almeno = 130;
    const float posto = std::max(foglio.Penna().ScaleWidth() - sinistra, almeno);
    const float meno = std::max(Larghezza_Tabella - posto, 0.0F);
    tracciato.colonne.front().largo -= meno;
    return Larghezza_Tabella - meno;
  }

  void Testata(int pagina, int pagine) {
    foglio.A_Destra(sinistra, alto, larga, Numero_Pagina(tracciato.pagina, pagina, pagine), 8);
    constexpr float largo_ragione = 160;
    for (const Riga_Ragione& riga : Ragione(programma))
      foglio.Scrivi(sinistra + riga.x, alto + riga.y, riga.testo, riga.corpo, true, largo_ragione);
    foglio.Scrivi(sinistra + rientro, alto + y_luogo, documento.CittaVC + ", " + documento.Data, 10);
  }

  void Destinatario() {
    const Cliente_Fattura& cliente = documento.cliente;
    const std::pair<Testo, bool> righe[] = {
        {"Spett.le Ditta", false},        {cliente.Nome, true},
        {cliente.Indirizzo, true},        {cliente.Citta, false},
        {"P.IVA " + cliente.PIva, false}, {"cod. " + cliente.Codice, false}};
    float y = alto + y_destinatario;
    for (const auto& [testo, grassetto] : righe) {
      foglio.Scrivi(sinistra + x_destinatario, y, testo, 10, grassetto, larga - x_destinatario);
      y += passo_destinatario;
    }
  }

  void Riquadro_Documento() {
    constexpr float dentro = 0.5F, distacco = 3;
    const bool fattura = documento.tipo == TipoFattura::Fattura;
    const Testo titolo = Testo(fattura ? tracciato.titolo_fattura : tracciato.titolo_nota) + documento.Numero;
    const Testo riferimento = documento.RifDocumento.empty()
                                  ? "Rif. Doc."
                                  : "Rif. Doc. " + documento.RifDocumento + " del " + documento.Data;
    // a long reference widens its box
    const float largo = std::max(largo_riquadro, foglio.Larghezza(riferimento, 10) + 2 * rientro);
    Riquadro(foglio.Penna(), sinistra, alto + y_titolo, largo_riquadro, alto_riquadro, 1, Nero, false);
    Riquadro(foglio.Penna(), sinistra, alto + y_riferimento, largo, alto_riquadro, 1, Nero, false);
    foglio.Scrivi(sinistra + rientro, alto + y_titolo + dentro, titolo, 10, false, largo_riquadro - rientro);
    foglio.Scrivi(sinistra + largo_riquadro + distacco, alto + y_titolo + dentro, "del " + documento.Data,
                  10);
    foglio.Scrivi(sinistra + rientro, alto + y_riferimento + dentro, riferimento, 10);
  }

  // The columns' lines go down to the foot of the sheet; sums and wording lie on white.
  void Cornice() {
    constexpr float lunga = 200, margine = 2, filo = 0.3F;
    float x = sinistra;
    for (std::size_t i = 0; i < 6; ++i) {
      LineaVerticale(foglio.Penna(), x, alto + y_tabella, lunga, Nero, 1);
      x += tracciato.colonne[i].largo;
    }
    LineaOrizzontale(foglio.Penna(), static_cast<int>(sinistra), static_cast<int>(alto + y_tabella + lunga),
                     static_cast<int>(larga), Nero, 1);
    const float piede = foglio.Altezza() - piede_totali - margine;
    Riquadro(foglio.Penna(), sinistra + filo, piede, larga - filo, alto + y_tabella + lunga - filo - piede, 1,
             Bianco, true);
  }

  Testo Seconda_Riga(const Voce_Documento& voce) const {
    const Testo lotto = Lotto_Intero(foglio, tracciato.colonne, voce);
    if (programma.preferenze.Flag_fatture_Esteso) return Codici_Voce(voce) + lotto;
    return voce.ZonaRiga + " - (" + voce.Latino + ") " + voce.ZonaPesca + lotto;
  }

  float Voci(int prima, int ultima) {
    if (cornice) Cornice();
    Riquadro(foglio.Penna(), sinistra, alto + y_tabella, larga, alto_titoli, 1, Nero, false);
    Disegna_Titoli(foglio, tracciato.colonne, sinistra, alto + y_tabella + 1, 8);
    const float largo = larga - 2 * Margine_Cella;
    constexpr float sotto_la_linea = 0.4F;
    float y = alto + y_prima_voce;
    for (int i = prima; i < ultima; ++i) {
      const Voce_Documento& voce = documento.voci[static_cast<std::size_t>(i)];
      Disegna_Voce(foglio, tracciato.colonne, voce, sinistra, y + sotto_la_linea, 9, separatore);
      foglio.Corsivo(sinistra + Margine_Cella, y + 4, Seconda_Riga(voce), 8, largo);
      if (tracciato.attributi) foglio.Corsivo(sinistra + Margine_Cella, y + 8, voce.Attributi, 8, largo);
      y += tracciato.passo;
      const bool cambia = i + 1 < ultima && documento.voci[static_cast<std::size_t>(i) + 1].Voce != voce.Voce;
      if (cambia)
        LineaOrizzontale(foglio.Penna(), static_cast<int>(sinistra), static_cast<int>(y),
                         static_cast<int>(larga), Nero, 1);
    }
    return y;
  }

  void Totale(float& y, const Testo& titolo, double valore, float corpo, bool grassetto) {
    const float largo = larga - x_totali;
    foglio.Scrivi(sinistra + x_totali, y, titolo, corpo, grassetto);
    if (valore != 0)
      foglio.A_Destra(sinistra + x_totali, y, largo, Euro2_Migliaia(valore, separatore), corpo, grassetto);
    y += passo_piede;
  }

  void Totali() {
    const Importi& importi = documento.importi;
    float y = foglio.Altezza() - piede_totali;
    for (const std::size_t i : Ordine_Aliquote) {
      const Testo percento = Percento(importi.Aliquota[i], separatore);
      Totale(y, "Imponibile IVA " + percento, importi.Imponibile[i], 9, false);
      Totale(y, "Importo IVA " + percento, importi.Iva[i], 9, false);
    }
    Totale(y, "Totale Imponibile", importi.TotaleImponibile, 9, false);
    Totale(y, "Totale Euro", importi.TotaleDocumento, 10, true);
  }

  void Piede() {
    float y = foglio.Altezza() - piede_dicitura;
    for (const Testo& riga : Righe_Di(programma.preferenze, Serie_Dicitura::Personalizzata1)) {
      foglio.Scrivi(sinistra, y, riga, 7, false, largo_dicitura);
      y += passo_piede;
    }
    foglio.Scrivi(sinistra, foglio.Altezza() - piede_legenda, legenda, 8);
  }
};

}  // namespace

int Voci_Intestata(const Programma& programma, bool nota, float altezza) {
  const float spazio = altezza - 55 - 10 - (static_cast<float>(BordoAlto(programma)) + y_tabella) - 5;
  return std::max(1, static_cast<int>(std::floor(spazio / Scegli(nota).passo)) - 1);
}

void Disegna_Intestata(const Programma& programma, const Documento_Fattura& documento, bool nota,
                       bool cornice, const std::function<void(int, int)>& pagina_in_corso) {
  Foglio foglio(programma);
  Pagina_Intestata pagina{programma, documento, Scegli(nota), foglio, cornice};
  const int per_pagina = Voci_Intestata(programma, nota, foglio.Altezza());
  const int voci = static_cast<int>(documento.voci.size());
  const int pagine = Pagine_Di(voci, per_pagina);
  for (int p = 1; p <= pagine; ++p) {
    pagina_in_corso(p, pagine);
    pagina.Testata(p, pagine);
    pagina.Destinatario();
    pagina.Riquadro_Documento();
    const float sotto = pagina.Voci((p - 1) * per_pagina, std::min(voci, p * per_pagina));
    if (p == pagine)
      pagina.Totali();
    else
      foglio.Scrivi(pagina.sinistra + rientro, sotto + sotto_ultima, "Continua ...", 9);
    pagina.Piede();
    if (p < pagine) foglio.Penna().NewPage();
  }
}

#include "lists/stampa_liste.h"

#include <algorithm>
#include <vector>

#include "printing/pagina.h"

namespace {

constexpr Vista carattere = "courier new";
constexpr Vista intestazioni[] = {"Programma Velmara", "Liste in uso dal 13 dicembre 2014"};
constexpr float margine = 10;  // of the sheet, beside the borders of the settings
constexpr int righe_testa = 3,
              righe_piede = 2;  // headings and an empty line; "Continua ..." and one before it

struct Riga_Stampa {
  Testo testo;
  bool titolo = false;
};

struct Lista_Stampata {
  Vista titolo;
  std::vector<Testo> Programma::*voci;
};
constexpr Lista_Stampata liste[] = {{"  Attrezzo di Pesca", &Programma::Vet_Metodi},
                                    {"  Pezzatura", &Programma::Vet_Pezzature},
                                    {"  Stato Fisico", &Programma::Vet_Stati},
                                    {"  Lavorazione ", &Programma::Vet_Lavorazioni},
                                    {"  Preparazione", &Programma::Vet_Presentazioni}};

void Aggiungi_Zone(const Programma& programma, std::vector<Riga_Stampa>& righe) {
  std::size_t larghezza = 0;
  for (const auto& zona : programma.Vet_Zone) larghezza = std::max(larghezza, zona[0].size());
  righe.push_back({});
  for (const auto& zona : programma.Vet_Zone) righe.push_back({Pad(zona[0], larghezza) + "  " + zona[1]});
}

// All that is printed below the headings, line by line. The zones follow without a title, as they are known
// by their codes.
std::vector<Riga_Stampa> Righe_Liste(const Programma& programma) {
  std::vector<Riga_Stampa> righe;
  for (const auto& [titolo, voci] : liste) {
    if (!righe.empty()) righe.push_back({});
    righe.push_back({Testo(titolo), true});
    for (const Testo& voce : programma.*voci) righe.push_back({voce});
  }
  Aggiungi_Zone(programma, righe);
  return righe;
}

struct Impaginazione {
  float sinistra = 0, alto = 0, passo = 0, larghezza = 0, dimensione = 0;
  int righe_per_pagina = 0;

  float Riga(int n) const { return alto + static_cast<float>(n) * passo; }
};

Impaginazione Misura(const Programma& programma, Printer& printer) {
  Impaginazione esito;
  esito.dimensione = DimFontPagina(programma);
  esito.sinistra = static_cast<float>(BordoSinistro(programma)) + margine;
  esito.alto = static_cast<float>(BordoAlto(programma)) + margine;
  esito.larghezza = static_cast<float>(printer.LarghezzaUtile) - 2 * margine;
  printer.FontName = carattere;
  esito.passo = printer.TextHeight("");
  const float utile = printer.ScaleHeight() - esito.alto - margine;
  esito.righe_per_pagina = std::max(1, static_cast<int>(utile / esito.passo) - righe_testa - righe_piede);
  return esito;
}

void Stampa_Testa(Printer& printer, const Impaginazione& carta, int pagina, int pagine) {
  for (int i = 0; i < 2; ++i)
    StampaTesto(printer, carta.sinistra, carta.Riga(i), intestazioni[i], carattere, carta.dimensione, true);
  printer.FontBold = false;
  StampaDestra(printer, carta.sinistra, carta.alto, carta.larghezza,
               "pag. " + std::to_string(pagina) + " di " + std::to_string(pagine));
}

}  // namespace

void Stampa_Liste(Programma& programma, Testo& titolo) {
  Printer& printer = Dispositivo(programma);
  const Testo titolo_normale = titolo;
  printer.documento = {programma.Data_AAAAMMGG, "Liste", "", ""};
  PreparaPagina(programma);
  PreparaPagina(programma);
  printer.FontItalic = false;
  const Impaginazione carta = Misura(programma, printer);
  const std::vector<Riga_Stampa> righe = Righe_Liste(programma);
  const int numero = static_cast<int>(righe.size());
  const int pagine = Pagine_Di(numero, carta.righe_per_pagina);
  for (int pagina = 1; pagina <= pagine; ++pagina) {
    titolo = Pagina_In_Corso("Liste", pagina, pagine);
    programma.piattaforma.Ridipingi();
    Stampa_Testa(printer, carta, pagina, pagine);
    const int prima = (pagina - 1) * carta.righe_per_pagina;
    const int ultima = std::min(numero, prima + carta.righe_per_pagina);
    for (int i = prima; i < ultima; ++i) {
      const auto& [testo, grassetto] = righe[static_cast<std::size_t>(i)];
      StampaTesto(printer, carta.sinistra, carta.Riga(righe_testa + i - prima), testo, carattere,
                  carta.dimensione, grassetto);
    }
    if (pagina == pagine) break;
    StampaTesto(printer, carta.sinistra, carta.Riga(righe_testa + carta.righe_per_pagina + 1), "Continua ...",
                carattere, carta.dimensione, false);
    printer.NewPage();
  }
  printer.EndDoc();
  titolo = titolo_normale;
}

#include "entry/pagina_etichetta.h"

#include <cmath>
#include <numeric>

#include "printing/pagina.h"

namespace {

constexpr Vista carattere = "Arial";
constexpr float origine = 1;                            // of the frame, from the left and from above
constexpr float largo_massimo = 98, alto_massimo = 68;  // of the frame
constexpr float margine_lato = 1.5F, margine_riga = 1;  // of the texts in their cell
constexpr int penna_cornice = 6, penna_cella = 2;
constexpr float punti_minimi = 4;  // below that nobody reads it

// Sizes in points. Letters of the price are smaller than these only on a paper smaller than the label's.
struct Corpi {
  float titolo = 12, prezzo = 36, chilo = 32, minuto = 8;
};

struct Pezzo {
  Testo testo;
  float punti = 0;
  bool grassetto = false;
  float stacco = 0;  // from the piece before
};

struct Riga_Etichetta {
  std::vector<Pezzo> pezzi;  // one behind the other on one base line
  float rientro = 0;
  bool centrata = false;
};
using Cella = std::vector<Riga_Etichetta>;
constexpr std::size_t posto_prezzo = 1;  // among the cells

float Larghezza(Printer& printer, const Pezzo& pezzo) {
  printer.FontSize = pezzo.punti;
  printer.FontBold = pezzo.grassetto;
  return printer.TextWidth(pezzo.testo);
}

float Larghezza(Printer& printer, const Riga_Etichetta& riga) {
  return std::accumulate(
      riga.pezzi.begin(), riga.pezzi.end(), riga.rientro,
      [&](float somma, const Pezzo& pezzo) { return somma + pezzo.stacco + Larghezza(printer, pezzo); });
}

float Altezza(Printer& printer, float punti) {
  printer.FontSize = punti;
  return printer.TextHeight("");
}

float Punti(const Riga_Etichetta& riga) {
  float punti = 0;
  for (const Pezzo& pezzo : riga.pezzi) punti = std::max(punti, pezzo.punti);
  return punti;
}

float Altezza(Printer& printer, const Cella& cella) {
  return std::accumulate(cella.begin(), cella.end(), 0.0F, [&](float somma, const Riga_Etichetta& riga) {
    return somma + Altezza(printer, Punti(riga));
  });
}

// The piece in letters, by halves of a point, that let it into the width; the end of what is too wide even in
// the smallest is lost.
Pezzo Che_Entra(Printer& printer, Pezzo pezzo, float larghezza) {
  const float intera = Larghezza(printer, pezzo);
  if (intera <= larghezza) return pezzo;
  pezzo.punti = std::max(punti_minimi, std::floor(pezzo.punti * larghezza / intera * 2) / 2);
  while (!pezzo.testo.empty() && Larghezza(printer, pezzo) > larghezza) pezzo.testo.pop_back();
  return pezzo;
}

void Accoda(Printer& printer, Cella& cella, const Pezzo& pezzo, float larghezza) {
  if (!pezzo.testo.empty()) cella.push_back({{Che_Entra(printer, pezzo, larghezza)}});
}

// The lines of a text, in the font in use: one, two, or as many as it takes.
std::vector<Testo> Spezzato(Printer& printer, Testo testo, float larghezza) {
  std::vector<Testo> righe;
  do {
    Testo prima, resto;
    SpezzaTesto(printer, larghezza, testo, prima, resto);
    righe.push_back(std::move(prima));
    testo = std::move(resto);
  } while (!testo.empty());
  return righe;
}

void Accoda_Titolo(Printer& printer, Cella& cella, const Testo& testo, float punti, float larghezza) {
  printer.FontSize = punti;
  printer.FontBold = true;
  for (const Testo& riga : Spezzato(printer, testo, larghezza))
    Accoda(printer, cella, {riga, punti, true}, larghezza);
}

// A caption and its text behind it; a text too wide goes on below its own beginning.
void Accoda_Voce(Printer& printer, Cella& cella, const Contenuto_Etichetta::Voce& voce, float punti,
                 float larghezza) {
  const Pezzo didascalia{voce.didascalia, punti, voce.didascalia_grassetto};
  const float fine = Larghezza(printer, didascalia), stacco = printer.TextWidth(" "), inizio = fine + stacco;
  const float resta = larghezza - inizio;
  printer.FontBold = true;
  const std::vector<Testo> righe = Spezzato(printer, voce.testo, resta);
  cella.push_back({{didascalia, Che_Entra(printer, {righe.front(), punti, true, stacco}, resta)}});
  for (std::size_t i = 1; i < righe.size(); ++i)
    cella.push_back({{Che_Entra(printer, {righe[i], punti, true}, resta)}, inizio});
}

Riga_Etichetta Riga_Del_Prezzo(Printer& printer, const Testo& prezzo, const Corpi& corpi, float larghezza) {
  const Pezzo chilo{"/kg", corpi.chilo, true, margine_lato};
  const float resta = larghezza - chilo.stacco - Larghezza(printer, chilo);
  return {{Che_Entra(printer, {prezzo, corpi.prezzo, true}, resta), chilo}, 0, true};
}

std::vector<Cella> Celle(Printer& printer, const Contenuto_Etichetta& etichetta, const Corpi& corpi,
                         float larghezza) {
  Cella specie, prezzo, origini, lotto;
  Accoda_Titolo(printer, specie, etichetta.specie, corpi.titolo, larghezza);
  Accoda(printer, specie, {etichetta.genere, corpi.titolo, true}, larghezza);
  Accoda(printer, specie, {etichetta.nome_latino, corpi.minuto, false}, larghezza);
  prezzo.push_back(Riga_Del_Prezzo(printer, etichetta.prezzo, corpi, larghezza));
  Accoda(printer, prezzo, {etichetta.allergeni, corpi.minuto, false}, larghezza);
  Accoda(printer, prezzo, {etichetta.trattamento, corpi.minuto, false}, larghezza);
  for (const auto& voce : etichetta.origine) Accoda_Voce(printer, origini, voce, corpi.minuto, larghezza);
  Accoda_Voce(printer, lotto, etichetta.lotto, corpi.minuto, larghezza);
  return {std::move(specie), std::move(prezzo), std::move(origini), std::move(lotto)};
}

// The small letters give way first, the price last. False when they are as small as can be read.
bool Rimpicciolisci(Corpi& corpi) {
  if (corpi.minuto > 6) {
    corpi.minuto -= 0.5F;
    return true;
  }
  if (corpi.prezzo <= 12) return false;
  corpi.prezzo -= 2;
  corpi.chilo = std::min(corpi.chilo, corpi.prezzo - 2);
  corpi.titolo = std::max(6.0F, corpi.titolo - 0.5F);
  corpi.minuto = std::max(punti_minimi, corpi.minuto - 0.5F);
  return true;
}

float Altezza(Printer& printer, const std::vector<Cella>& celle) {
  return std::accumulate(celle.begin(), celle.end(), 0.0F, [&](float somma, const Cella& cella) {
    return somma + Altezza(printer, cella) + 2 * margine_riga;
  });
}

void Scrivi_Riga(Printer& printer, const Riga_Etichetta& riga, float x, float y, float larghezza) {
  const Metrica& metrica = Metrica_Della_Faccia(Faccia_Di(carattere), true);
  const auto sopra = static_cast<float>(metrica.sopra) / static_cast<float>(metrica.sopra + metrica.sotto);
  const float alta = Altezza(printer, Punti(riga));
  x += riga.centrata ? (larghezza - Larghezza(printer, riga)) / 2 : riga.rientro;
  for (const Pezzo& pezzo : riga.pezzi) {
    const float scende = (alta - Altezza(printer, pezzo.punti)) * sopra;
    const float larga = Larghezza(printer, pezzo);
    x += pezzo.stacco;
    StampaTesto(printer, x, y + scende, pezzo.testo, carattere, pezzo.punti, pezzo.grassetto);
    x += larga;
  }
}

// What room is left over stands around the first line.
void Scrivi_Cella(Printer& printer, const Cella& cella, float y, float avanzo, float larghezza) {
  y += margine_riga + avanzo / 2;
  for (const Riga_Etichetta& riga : cella) {
    Scrivi_Riga(printer, riga, origine + margine_lato, y, larghezza);
    y += Altezza(printer, Punti(riga));
    if (&riga == &cella.front()) y += avanzo / 2;
  }
}

}  // namespace

void SpezzaTesto(Printer& printer, float larghezza, Vista testo, Testo& prima, Testo& resto) {
  prima = testo;
  resto.clear();
  if (printer.TextWidth(testo) <= larghezza) return;
  std::size_t taglio = Vista::npos;
  for (std::size_t spazio = testo.find(' ', testo.find_first_not_of(' ')); spazio != Vista::npos;
       spazio = testo.find(' ', spazio + 1)) {
    if (taglio != Vista::npos && printer.TextWidth(testo.substr(0, spazio)) > larghezza) break;
    taglio = spazio;
  }
  if (taglio == Vista::npos) return;
  prima = Pulito_Destra(testo.substr(0, taglio));
  resto = Pulito(testo.substr(taglio));
}

void DisegnaEtichetta(Printer& printer, const Contenuto_Etichetta& etichetta) {
  printer.FontName = carattere;
  printer.FontItalic = false;
  const float largo = std::min(largo_massimo, printer.ScaleWidth() - 2 * origine);
  const float alto = std::min(alto_massimo, printer.ScaleHeight() - 2 * origine);
  const float larghezza = largo - 2 * margine_lato;
  Corpi corpi;
  std::vector<Cella> celle = Celle(printer, etichetta, corpi, larghezza);
  while (Altezza(printer, celle) > alto && Rimpicciolisci(corpi))
    celle = Celle(printer, etichetta, corpi, larghezza);
  const float avanzo = std::max(0.0F, alto - Altezza(printer, celle));
  const auto avanzo_di = [&](std::size_t i) { return i == posto_prezzo ? avanzo : 0; };
  Riquadro(printer, origine, origine, largo, alto, penna_cornice, Nero, false);
  std::vector<float> alture = {origine};
  for (std::size_t i = 0; i < celle.size(); ++i) {
    const float alta = Altezza(printer, celle[i]) + 2 * margine_riga + avanzo_di(i);
    Riquadro(printer, origine, alture[i], largo, alta, penna_cella, Nero, false);
    alture.push_back(alture[i] + alta);
  }
  for (std::size_t i = 0; i < celle.size(); ++i)
    Scrivi_Cella(printer, celle[i], alture[i], avanzo_di(i), larghezza);
}

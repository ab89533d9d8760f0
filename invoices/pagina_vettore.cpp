#include "invoices/pagina_vettore.h"

#include <array>

#include "core/numeri.h"

namespace {

constexpr Colonna_Fattura colonne[] = {{"Descrizione e Denom.scientifica", 72, Cella::Descrizione},
                                       {"Colli", 22, Cella::Colli},
                                       {"Peso Kg.", 22, Cella::Peso},
                                       {"Prezzo ", 22, Cella::Prezzo},
                                       {"Importo ", 22, Cella::Importo},
                                       {"IVA", 10, Cella::Iva},
                                       {"ZONA*", 30, Cella::Zona}};

// Millimetres; the block's top is measured from the foot of the page.
constexpr float piede_trasporto = 58.5F, alto_trasporto = 24, passo = 4.4F, prima_riga = 1.2F;
constexpr float largo_merce = 80, largo_vettore = 60, largo_firme = 60;
constexpr float corpo = 8;

}  // namespace

std::span<const Colonna_Fattura> Colonne_Vettore() { return colonne; }

std::span<const Testo> Dicitura_Vettore() {
  // as the firm words it, misspellings and all
  static const std::array<Testo, 2> righe = {
      "NON SI ACCETTANO CONTESTAZIONI SE NON COMUNICATE a MEZZO MAIL O FAX il GIORNO SUCCESSIVO alla "
      "CONSEGNA della MERCE",
      "Assolve agli obblighi di cui All'art 62, comma1, legge 24 Gennaio n.1, convertito, con modifiche, "
      "dalla Legge 24 Marcp 2012, n27"};
  return righe;
}

std::vector<Casella_Totale> Totali_Vettore(const Importi& importi, char separatore) {
  std::vector<Casella_Totale> caselle;
  for (const std::size_t i : Ordine_Aliquote) {
    const Testo percento = Percento(importi.Aliquota[i], separatore);
    caselle.push_back({"Impo. " + percento, importi.Imponibile[i]});
    caselle.push_back({"IVA " + percento, importi.Iva[i]});
  }
  caselle.push_back({"Spese", importi.Spese});
  caselle.push_back({"IVA Spese", importi.IvaSpese});
  caselle.push_back({"Totale Imp.", importi.TotaleImponibile});
  caselle.push_back({"Totale IVA", importi.TotaleIva});
  caselle.push_back({"Totale Fattura", importi.TotaleDocumento});
  return caselle;
}

void Disegna_Trasporto(Foglio& foglio, const Trasporto_Fattura& trasporto, const Importi& importi,
                       float sinistra, char separatore) {
  const float alto = foglio.Altezza() - piede_trasporto;
  const auto colonna = [&](float x, float largo, std::initializer_list<Testo> righe) {
    Riquadro(foglio.Penna(), x, alto, largo, alto_trasporto, 1, Nero, false);
    float y = alto + prima_riga;
    for (const Testo& riga : righe) {
      foglio.Scrivi(x + Margine_Cella, y, riga, corpo, false, largo - 2 * Margine_Cella);
      y += passo;
    }
  };
  colonna(sinistra, largo_merce,
          {"Causale trasporto: " + trasporto.Causale, "Aspetto esteriore dei beni: " + trasporto.Aspetto,
           "Trasporto mezzo: " + trasporto.Mezzo, "Numero colli: " + Piano(importi.TotaleColli, separatore),
           "Peso netto: " + Formato(importi.TotalePeso, "#0.00", separatore) + "kg"});
  colonna(sinistra + largo_merce, largo_vettore,
          {"Incaricato del trasporto:", trasporto.Vettore[0], trasporto.Vettore[1], trasporto.Vettore[2],
           "Ora inizo trasporto____________"});
  const float x = sinistra + largo_merce + largo_vettore;
  constexpr float alto_firma = alto_trasporto / 3;
  float y = alto;
  for (const Vista firma : {"Firma Vettore", "Firma Destinatario", "Annotazioni"}) {
    Riquadro(foglio.Penna(), x, y, largo_firme, alto_firma, 1, Nero, false);
    foglio.Scrivi(x + Margine_Cella, y + prima_riga, firma, corpo);
    y += alto_firma;
  }
}

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "core/numeri.h"
#include "invoices/diciture.h"
#include "invoices/foglio.h"
#include "invoices/pagina_vettore.h"

// The layouts for paper with a printed head: dates and numbers stand where that paper has room for them, the
// sums in a band of boxes at the foot.

namespace {

// Millimetres; the first three from the sheet's edge, since the printed head is there, the others from the
// top margin.
constexpr float x_data = 109, y_data = 48, y_numero = 56, x_numero = 146;
constexpr float y_ragione = 5, x_destinatario = 122, y_destinatario = 62, passo_destinatario = 4;
constexpr float y_riferimento = 78, y_titoli = 88, alto_titoli = 5, y_prima_voce = 94.5F, rientro = 5;
// From the foot of the page.
constexpr float alto_totali = 10, passo_dicitura = 3.5F;
constexpr float piede_spedizione = 14, piede_banca = 10.5F, piede_legenda = 6;
constexpr int voci_semplici = 25, voci_estese = 13;
constexpr float passo_semplice = 6, passo_esteso = 11.5F;
constexpr Vista spedizione =
    "Sped. a mezzo destinatario; cond. di pagamento: rimessa diretta ricevimento fattura.";
constexpr Vista legenda =
    "* Vedi Legenda CE sull'identificazione dei prodotti ittici - Reg CE n. 104/2000 art. 4.";

constexpr Colonna_Fattura colonne[] = {{"Descrizione e Denom.scientifica", 72, Cella::Descrizione},
                                       {"Lotto", 22, Cella::Lotto},
                                       {"Peso Kg.", 22, Cella::Peso},
                                       {"Prezzo ", 22, Cella::Prezzo},
                                       {"Importo ", 22, Cella::Importo},
                                       {"IVA", 10, Cella::Iva},
                                       {"ZONA*", 30, Cella::Zona}};

// What a carrier's invoice has at its foot takes more room than the wording of the others.
struct Misure_Piede {
  float voci;  // where the items end
  float totali, dicitura;
};
constexpr Misure_Piede piede_comune = {49, 48, 36.5F}, piede_vettore = {59.5F, 33, 21.5F};

Serie_Dicitura Serie(Tracciato_Fattura tracciato) {
  if (tracciato == Tracciato_Fattura::Grafica4) return Serie_Dicitura::Completa;
  if (tracciato == Tracciato_Fattura::Grafica3) return Serie_Dicitura::Generica;
  return Serie_Dicitura::Personalizzata2;
}

struct Pagina_Prestampata {
  const Programma& programma;
  const Documento_Fattura& documento;
  Tracciato_Fattura tracciato;
  Foglio& foglio;
  float alto = static_cast<float>(BordoAlto(programma));
  // The printed paper is wider to the left than the others; what would fall off the sheet is kept on it.
  float sinistra = static_cast<float>(std::max(0, BordoSinistro(programma) - 9));
  char separatore = programma.Separatore_Decimale;
  bool esteso = programma.preferenze.Flag_fatture_Esteso;
  bool vettore = tracciato == Tracciato_Fattura::Vettore;
  const Misure_Piede& piede = vettore ? piede_vettore : piede_comune;

  // The letterhead in one row, for firms whose paper doesn't carry it.
  void Ragione() {
    if (tracciato == Tracciato_Fattura::Grafica2) return;
    Testo riga;
    for (const Testo& parte : programma.Ragione) {
      if (Pulito(parte).empty()) continue;
      if (!riga.empty()) riga += " - ";
      riga += Pulito(parte);
    }
    riga +=
        " - " + programma.preferenze.Numero_Posteggio + " cod. " + programma.preferenze.Codice_Commissionario;
    foglio.Scrivi(sinistra, alto + y_ragione, riga, 9, true, Larghezza_Tabella);
  }

  void Testata(int pagina, int pagine) {
    foglio.A_Destra(sinistra, alto, Larghezza_Tabella, Numero_Pagina("pag. ", pagina, pagine), 8);
    Ragione();
    const bool fattura = documento.tipo == TipoFattura::Fattura;
    foglio.Scrivi(x_data, y_data, "Data: " + documento.Data, 10);
    foglio.Scrivi(sinistra + x_numero, y_numero,
                  (fattura ? "Fattura n. " : "Nota di Credito n. ") + documento.Numero, 10, true,
                  Larghezza_Tabella - x_numero);
    const Cliente_Fattura& cliente = documento.cliente;
    const std::pair<Testo, bool> righe[] = {{"Spett. Ditta", false},
                                            {cliente.Nome, true},
                                            {cliente.Indirizzo, true},
                                            {cliente.Citta, false},
                                            {"Cod. Fisc. e P.IVA " + cliente.PIva, false},
                                            {"cod. " + cliente.Codice, false}};
    float y = alto + y_destinatario;
    for (const auto& [testo, grassetto] : righe) {
      foglio.Scrivi(sinistra + x_destinatario, y, testo, 10, grassetto, Larghezza_Tabella - x_destinatario);
      y += passo_destinatario;
    }
    foglio.Scrivi(sinistra + rientro, alto + y_riferimento, "Riferimento ddt. nn. " + documento.RifDocumento,
                  10, false, x_destinatario - 2 * rientro);
  }

  Testo Denominazione(const Voce_Documento& voce) const {
    if (tracciato == Tracciato_Fattura::Grafica4) return " (" + voce.Latino + ")";
    return voce.Latino;
  }

  std::span<const Colonna_Fattura> Colonne() const {
    if (vettore) return Colonne_Vettore();
    return colonne;
  }

  Testo Seconda_Riga(const Voce_Documento& voce) const {
    Testo seconda = Denominazione(voce);
    if (esteso) seconda += "  " + Codici_Voce(voce);
    if (vettore) return seconda + (seconda.empty() ? "" : "  ") + "Lotto: " + voce.Lotto;
    return seconda + Lotto_Intero(foglio, colonne, voce);
  }

  // An item takes all the room that 25 (or 13) of them leave it between the headings and the foot.
  float Passo() const {
    const float spazio = foglio.Altezza() - piede.voci - (alto + y_prima_voce);
    return esteso ? std::min(passo_esteso, spazio / voci_estese)
                  : std::min(passo_semplice, spazio / voci_semplici);
  }

  void Voci(int prima, int ultima) {
    Riquadro(foglio.Penna(), sinistra, alto + y_titoli, Larghezza_Tabella, alto_titoli, 1, Nero, false);
    Disegna_Titoli(foglio, Colonne(), sinistra, alto + y_titoli + 0.7F, 8);
    constexpr float sotto = 3.2F, piu_sotto = 6.4F;
    // above a transport block the items stand closer
    const float corpo_seconda = vettore && !esteso ? 6.5F : 7;
    const float largo = Larghezza_Tabella - 2 * Margine_Cella;
    float y = alto + y_prima_voce;
    for (int i = prima; i < ultima; ++i) {
      const Voce_Documento& voce = documento.voci[static_cast<std::size_t>(i)];
      Disegna_Voce(foglio, Colonne(), voce, sinistra, y, 9, separatore);
      foglio.Corsivo(sinistra + Margine_Cella, y + sotto, Seconda_Riga(voce), corpo_seconda, largo);
      if (esteso) foglio.Corsivo(sinistra + Margine_Cella, y + piu_sotto, voce.Attributi, 7, largo);
      y += Passo();
    }
  }

  std::vector<Casella_Totale> Caselle() const {
    if (vettore) return Totali_Vettore(documento.importi, separatore);
    const Importi& importi = documento.importi;
    std::vector<Casella_Totale> caselle;
    for (const std::size_t i : Ordine_Aliquote) {
      const Testo percento = Percento(importi.Aliquota[i], separatore);
      caselle.push_back({"Imponibile " + percento, importi.Imponibile[i]});
      caselle.push_back({"Imposta " + percento, importi.Iva[i]});
    }
    caselle.push_back({"Totale Imponibile", importi.TotaleImponibile});
    caselle.push_back({"Totale Imposta", importi.TotaleIva});
    caselle.push_back({"Totale Fattura", importi.TotaleDocumento});
    return caselle;
  }

  void Totali() {
    const std::vector<Casella_Totale> caselle = Caselle();
    const float y = foglio.Altezza() - piede.totali;
    const float largo = Larghezza_Tabella / static_cast<float>(caselle.size());
    float x = sinistra;
    for (const Casella_Totale& casella : caselle) {
      const bool ultima = &casella == &caselle.back();
      Riquadro(foglio.Penna(), x, y, largo, alto_totali, 1, Nero, false);
      foglio.Scrivi(x + Margine_Cella, y + 0.8F, casella.titolo, 7, ultima, largo - 2 * Margine_Cella);
      if (casella.valore != 0)
        foglio.A_Destra(x + Margine_Cella, y + 5, largo - 2 * Margine_Cella,
                        Euro2_Migliaia(casella.valore, separatore), 9, ultima);
      x += largo;
    }
  }

  std::span<const Testo> Dicitura_Del_Tracciato() const {
    if (vettore) return Dicitura_Vettore();
    return Righe_Di(programma.preferenze, Serie(tracciato));
  }

  void Piede() {
    float y = foglio.Altezza() - piede.dicitura;
    for (const Testo& riga : Dicitura_Del_Tracciato()) {
      foglio.Scrivi(sinistra, y, riga, 7, false, Larghezza_Tabella);
      y += passo_dicitura;
    }
    const Preferenze& preferenze = programma.preferenze;
    Testo banca;
    if (!preferenze.IBANCommissionario1.empty() || !preferenze.IBANCommissionario2.empty())
      banca = "Banca di appoggio: " + preferenze.IBANCommissionario1;
    if (!preferenze.IBANCommissionario2.empty()) banca += " - IBAN " + preferenze.IBANCommissionario2;
    foglio.Scrivi(sinistra, foglio.Altezza() - piede_spedizione, spedizione, 8);
    foglio.Scrivi(sinistra, foglio.Altezza() - piede_banca, banca, 8, false, Larghezza_Tabella);
    foglio.Scrivi(sinistra, foglio.Altezza() - piede_legenda, legenda, 8);
  }
};

}  // namespace

int Voci_Prestampata(const Programma& programma) {
  return programma.preferenze.Flag_fatture_Esteso ? voci_estese : voci_semplici;
}

void Disegna_Prestampata(const Programma& programma, const Documento_Fattura& documento,
                         Tracciato_Fattura tracciato, const std::function<void(int, int)>& pagina_in_corso) {
  Foglio foglio(programma);
  Pagina_Prestampata pagina{programma, documento, tracciato, foglio};
  const int per_pagina = Voci_Prestampata(programma);
  const int voci = static_cast<int>(documento.voci.size());
  const int pagine = Pagine_Di(voci, per_pagina);
  for (int p = 1; p <= pagine; ++p) {
    pagina_in_corso(p, pagine);
    pagina.Testata(p, pagine);
    pagina.Voci((p - 1) * per_pagina, std::min(voci, p * per_pagina));
    if (p == pagine) {
      if (documento.trasporto)
        Disegna_Trasporto(foglio, *documento.trasporto, documento.importi, pagina.sinistra,
                          pagina.separatore);
      pagina.Totali();
    } else {
      foglio.Scrivi(pagina.sinistra + rientro, foglio.Altezza() - pagina.piede.totali, "Continua ...", 9);
    }
    pagina.Piede();
    if (p < pagine) foglio.Penna().NewPage();
  }
}

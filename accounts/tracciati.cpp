#include "accounts/tracciati.h"

#include <algorithm>
#include <numeric>

#include "core/numeri.h"

namespace {

using Importo = double Importi_CV::*;

struct Aliquota_CV {
  double Regole_Importi::*aliquota;
  Importo imponibile, iva;
};
constexpr Aliquota_CV aliquote_cv[] = {
    {&Regole_Importi::PrimaAliquota, &Importi_CV::Imponibile1, &Importi_CV::Iva1},
    {&Regole_Importi::SecondaAliquota, &Importi_CV::Imponibile2, &Importi_CV::Iva2},
    {&Regole_Importi::TerzaAliquota, &Importi_CV::Imponibile3, &Importi_CV::Iva3},
};

// Where the totals behind the rates begin.
constexpr int passo_aliquote = 2, passo_totale = 8;

std::vector<Colonna_CV> Colonne_Numerate() {
  return {{Campo_CV::Nr, "Nr", 10},           {Campo_CV::Descrizione, "Qualità"_t, 95},
          {Campo_CV::Peso, "Peso Kg.", 25},   {Campo_CV::Prezzo, "Prezzo ", 25},
          {Campo_CV::Importo, "Importo", 25}, {Campo_CV::Aliquota, "Al.", 10}};
}

std::vector<Colonna_CV> Colonne_Tipo2() {
  return {{Campo_CV::Descrizione, "Denom. prodotto", 85},
          {Campo_CV::Peso, "Kg.", 25},
          {Campo_CV::Prezzo, "prezzo", 25},
          {Campo_CV::Importo, "importo", 25},
          {Campo_CV::Aliquota, "al.", 10}};
}

std::vector<Colonna_CV> Colonne_Busta() {
  return {{Campo_CV::Descrizione, "Descrizione", 115},
          {Campo_CV::Peso, "Peso Kg.", 25},
          {Campo_CV::Prezzo, "Prezzo ", 25},
          {Campo_CV::Importo, "Importo", 25},
          {Campo_CV::Aliquota, "Al.", 10}};
}

// The two columns more are taken from the description, so that the table stays as wide.
std::vector<Colonna_CV> Colonne_Colli() {
  constexpr int numero = 10, colli = 15;
  std::vector<Colonna_CV> colonne = Colonne_Busta();
  colonne.front().larghezza -= numero + colli;
  colonne.insert(colonne.begin(), {{Campo_CV::Nr, "Nr", numero}, {Campo_CV::Colli, "Colli", colli}});
  return colonne;
}

class Elenco_Totali {
 public:
  Elenco_Totali(const Documento_CV& documento, Tracciato_CV tracciato, char separatore)
      : documento_(documento), importi_(documento.importi), tracciato_(tracciato), separatore_(separatore) {}

  std::vector<Totale_CV> Normali() {
    const bool tipo1 = tracciato_ == Tracciato_CV::Tipo1;
    const bool sarvena = documento_.regole.FlagSarvena;
    Aggiungi(0, "Imponibile Totale", importi_.ImponibileTotale);
    Aggiungi(1, Commissioni("Commissioni ("), importi_.Commissioni);
    Aliquote();
    int passo = passo_totale;
    if (tracciato_ == Tracciato_CV::Colli) totali_.push_back({passo++, Colli(), {}, {}});
    Aggiungi(passo++, tipo1 && sarvena ? "Totale Ivato" : "Totale ", importi_.TotaleCV);
    if (!tipo1 || sarvena || importi_.SpeAnt > 0) Aggiungi(passo, Spese(sarvena), importi_.SpeAnt);
    // this layout takes the expenses off what it made of the total, and keeps neither
    Aggiungi(passo + 1, "Totale Euro",
             tipo1 && sarvena ? importi_.TotaleCV - importi_.SpeAnt : importi_.TotaleEuro);
    return std::move(totali_);
  }

  // Step 0 is the page's own sum, which the page adds.
  std::vector<Totale_CV> Tipo2() {
    int passo = 1;
    Aggiungi(passo++, "Importo Totale Euro", importi_.ImponibileTotale);
    Aggiungi(passo++, Commissioni(documento_.diciture.commissioni_tipo2), importi_.Commissioni);
    for (const int numero : FormaCV(tracciato_).aliquote) {
      const auto& [aliquota, imponibile, iva] = aliquote_cv[numero - 1];
      if (importi_.*imponibile > 0)
        totali_.push_back({passo, "Imp.le e Iva " + Percento(documento_.regole.*aliquota),
                           Euro(importi_.*iva), Euro(importi_.*imponibile)});
      ++passo;
    }
    Aggiungi(passo++, "Totale Conto Vendita", importi_.TotaleCV);
    Aggiungi(passo++, "Spese Anticipate", importi_.SpeAnt);
    Aggiungi(passo, "Netto Euro", importi_.TotaleEuro);
    return std::move(totali_);
  }

 private:
  Testo Euro(double importo) const { return Euro2_Migliaia(importo, separatore_); }
  Testo Percento(double aliquota) const { return Piano(aliquota, separatore_) + "%"; }

  void Aggiungi(int passo, Testo etichetta, double importo) {
    totali_.push_back({passo, std::move(etichetta), Euro(importo), {}});
  }

  Testo Commissioni(Vista dicitura) const {
    const Vista fine = dicitura.find('(') == Vista::npos ? "%" : "%)";
    return Testo(dicitura).append(Formato(importi_.Prov, "#.00", separatore_)).append(fine);
  }

  Testo Spese(bool sarvena) const {
    if (sarvena) return "Spese Acc. (*)";
    return tracciato_ == Tracciato_CV::Semplice ? documento_.diciture.spese_semplice : "Spese anticipate";
  }

  Testo Colli() const {
    double colli = 0;
    for (const Riga_Importo& riga : importi_.righe) colli += Numero(riga.NrColli, separatore_).value_or(0);
    return "Totale n. Colli = " + Piano(colli, separatore_);
  }

  void Aliquote() {
    const Forma_CV& forma = FormaCV(tracciato_);
    int passo = passo_aliquote;
    for (const int numero : forma.aliquote) {
      const auto& [aliquota, imponibile, iva] = aliquote_cv[numero - 1];
      if (importi_.*imponibile > 0 || (numero == 1 && forma.prima_sempre)) {
        const Testo percento = Percento(documento_.regole.*aliquota);
        Aggiungi(passo, "Imponibile IVA " + percento, importi_.*imponibile);
        Aggiungi(passo + 1, "Importo IVA " + percento, importi_.*iva);
      }
      passo += 2;
    }
  }

  const Documento_CV& documento_;
  const Importi_CV& importi_;
  Tracciato_CV tracciato_;
  char separatore_;
  std::vector<Totale_CV> totali_;
};

// A telephone line without the word in front of its number.
Testo Numero_Telefono(Vista riga) {
  riga = Pulito(riga);
  for (const Vista parola : {"Telefono", "Tel"})
    if (Inizia(riga, parola)) {
      riga.remove_prefix(parola.size());
      break;
    }
  while (!riga.empty() && (riga.front() == '.' || riga.front() == ':' || riga.front() == ' '))
    riga.remove_prefix(1);
  return Testo(riga);
}

bool Prestampata(Tracciato_CV tracciato) {
  return tracciato == Tracciato_CV::Tipo1 || tracciato == Tracciato_CV::Busta ||
         tracciato == Tracciato_CV::Colli;
}

}  // namespace

int Forma_CV::Larghezza() const {
  return std::accumulate(colonne.begin(), colonne.end(), 0,
                         [](int somma, const Colonna_CV& colonna) { return somma + colonna.larghezza; });
}

int Forma_CV::Larghezza_Di(Campo_CV campo) const {
  for (const Colonna_CV& colonna : colonne)
    if (colonna.campo == campo) return colonna.larghezza;
  return 0;
}

int Forma_CV::Sinistra_Di(Campo_CV campo) const {
  int sinistra = 0;
  for (const Colonna_CV& colonna : colonne) {
    if (colonna.campo == campo) break;
    sinistra += colonna.larghezza;
  }
  return sinistra;
}

const Forma_CV& FormaCV(Tracciato_CV tracciato) {
  static const Forma_CV forme[] = {
      {Colonne_Numerate(), 0, 29, false, {2, 3, 1}}, {Colonne_Numerate(), 0, 0, false, {2, 1, 3}},
      {Colonne_Tipo2(), 20, 18, false, {2, 1, 3}},   {Colonne_Busta(), 0, 0, true, {2, 1, 3}},
      {Colonne_Colli(), 0, 0, false, {2, 1, 3}},
  };
  return forme[static_cast<int>(tracciato)];
}

std::vector<Totale_CV> TotaliCV(const Documento_CV& documento, Tracciato_CV tracciato, char separatore) {
  Elenco_Totali totali(documento, tracciato, separatore);
  return tracciato == Tracciato_CV::Tipo2 ? totali.Tipo2() : totali.Normali();
}

std::vector<Riga_Intestazione> IntestazioneCV(const Documento_CV& documento, Tracciato_CV tracciato) {
  const auto& ragione = documento.Ragione;
  std::vector<Testo> testi(ragione.begin(), ragione.end());
  if (Prestampata(tracciato) && Contiene(ragione[0], "Dolvena"))
    testi = {ragione[0], "Commissionari", "Druprim",
             documento.diciture.telefono + Numero_Telefono(ragione[5]), ragione[6]};
  std::vector<Riga_Intestazione> righe;
  for (std::size_t i = 0; i < testi.size(); ++i) {
    const int y = static_cast<int>(i) * 4;
    if (i == 0)
      righe.push_back({y, testi[i], 12, true});
    else if (!testi[i].empty())
      righe.push_back({y, testi[i], i == 1 ? 10.0F : 9.0F, false});
  }
  return righe;
}

int AltezzaTabella(const Foglio_CV& foglio) {
  return static_cast<int>(foglio.altezza - 55 - static_cast<float>(foglio.alto + 85) - 10);
}

int RighePerPagina(Tracciato_CV tracciato, const Foglio_CV& foglio) {
  const Forma_CV& forma = FormaCV(tracciato);
  if (forma.righe_fisse > 0) return forma.righe_fisse;
  return std::max(1, (AltezzaTabella(foglio) - 5) / 5 - 2);
}

#include <algorithm>
#include <cmath>

#include "accounts/tracciati.h"
#include "core/numeri.h"
#include "printing/pagina.h"

namespace {

using Tipo = Elemento_CV::Tipo;

constexpr int inizio_tabella = 85, passo_riga = 5, altezza_riga = 4;
constexpr int larghezza_pagina = 200;
constexpr int altezza_piede = 65, altezza_note = 54;  // of the foot from the end of the sheet; of its box

// Lays down one page after the other.
class Composizione {
 public:
  Composizione(const Documento_CV& documento, Scelta_Tracciato scelta, const Foglio_CV& foglio,
               char separatore)
      : documento_(documento),
        scelta_(scelta),
        forma_(FormaCV(scelta.tracciato)),
        foglio_(foglio),
        separatore_(separatore),
        per_pagina_(RighePerPagina(scelta.tracciato, foglio)),
        pagine_(std::max(1, Pagine_Di(static_cast<int>(documento.importi.righe.size()), per_pagina_))),
        tabella_x_(foglio.sinistra + forma_.scarto),
        tabella_y_(foglio.alto + inizio_tabella),
        piede_y_(static_cast<int>(foglio.altezza - altezza_piede)) {}

  std::vector<Pagina_CV> Tutte() {
    std::vector<Pagina_CV> esito;
    for (int p = 1; p <= pagine_; ++p) {
      pagina_.clear();
      Testata(p);
      Tabella(p);
      Piede();
      if (Tipo2()) Somma_Pagina(p);
      if (p < pagine_)
        Continua();
      else
        Totali();
      esito.push_back(std::move(pagina_));
    }
    return esito;
  }

 private:
  bool Tipo2() const { return scelta_.tracciato == Tracciato_CV::Tipo2; }
  bool Semplice() const { return scelta_.tracciato == Tracciato_CV::Semplice; }
  bool Contorni() const {
    return scelta_.tracciato == Tracciato_CV::Busta
               ? scelta_.ConContorni
               : scelta_.tracciato == Tracciato_CV::Tipo1 || scelta_.tracciato == Tracciato_CV::Colli;
  }

  Elemento_CV& Aggiungi(Tipo tipo, int x, int y, int larghezza = 0, int altezza = 0) {
    Elemento_CV& cosa = pagina_.emplace_back();
    cosa.tipo = tipo;
    cosa.x = static_cast<float>(x);
    cosa.y = static_cast<float>(y);
    cosa.larghezza = static_cast<float>(larghezza);
    cosa.altezza = static_cast<float>(altezza);
    if (Tipo2()) cosa.carattere = "Arial";
    return cosa;
  }

  void Scrivi(int x, int y, Testo testo, float punti = 10, bool grassetto = false) {
    Elemento_CV& cosa = Aggiungi(Tipo::Scritta, x, y);
    cosa.testo = std::move(testo);
    cosa.punti = punti;
    cosa.grassetto = grassetto;
  }

  void Destra(int x, int y, int larghezza, Testo testo, bool grassetto = false) {
    Elemento_CV& cosa = Aggiungi(Tipo::Destra, x, y, larghezza);
    cosa.testo = std::move(testo);
    cosa.grassetto = grassetto;
  }

  // A text of any length that must not run into what stands beside it.
  void Scrivi_In(int x, int y, int larghezza, Testo testo, bool grassetto = false) {
    Scrivi(x, y, std::move(testo), 10, grassetto);
    pagina_.back().larghezza = static_cast<float>(larghezza);
  }

  // A position of the page's head, from the margins.
  int X(int x) const { return foglio_.sinistra + x; }
  int Y(int y) const { return foglio_.alto + y; }

  // ---- the head

  void Testata(int p) {
    for (const Riga_Intestazione& riga : IntestazioneCV(documento_, scelta_.tracciato))
      Scrivi(X(0), Y(riga.y), riga.testo, riga.punti, riga.grassetto);
    Scrivi(X(5), Y(30), (Tipo2() ? Testo("Venezia") : documento_.citta) + ", " + documento_.conto.Data);
    Destinatario();
    switch (scelta_.tracciato) {
      case Tracciato_CV::Busta:
      case Tracciato_CV::Colli:
        return Testata_Busta(p);
      case Tracciato_CV::Tipo2:
        return Testata_Tipo2(p);
      case Tracciato_CV::Tipo1:
        return Testata_Campi("Vs. BOlla n.", "pag. ", p);
      case Tracciato_CV::Semplice:
        return Testata_Campi("Vs. Bolla n.", "pagina ", p);
    }
  }

  int Sinistra_Destinatario() const { return Semplice() ? 110 : 122; }

  void Destinatario() {
    const Testata_Fornitore& fornitore = documento_.fornitore;
    const int x = X(Sinistra_Destinatario());
    int y = Y(54);
    const auto riga = [&](const Testo& testo, bool grassetto = false) {
      Scrivi_In(x, y, larghezza_pagina - Sinistra_Destinatario(), testo, grassetto);
      y += passo_riga;
    };
    riga(Semplice() ? "Spett.le" : Tipo2() ? "Spett.le Ditta " : "Spett.le Ditta");
    riga(fornitore.RagSoc1, true);
    if (fornitore.RagSoc2.size() > 1) riga(fornitore.RagSoc2);
    riga(fornitore.Indirizzo);
    riga(fornitore.CapCitta);
    if (Tipo2()) riga(documento_.diciture.piva_tipo2 + fornitore.PIva);
  }

  Testo Pagina_Di(Vista parola, int p) const {
    return Testo(parola) + std::to_string(p) + " di " + std::to_string(pagine_);
  }

  void Testata_Busta(int p) {
    Aggiungi(Tipo::Riquadro, X(0), Y(44), 52, 5);
    Scrivi(X(5), Y(45), "CONTO VENDITA N. " + documento_.conto.NCV);
    Aggiungi(Tipo::Riquadro, X(52), Y(44), 30, 5);
    Scrivi(X(54), Y(45), Pagina_Di("pag. ", p));
    Scrivi(X(5), Y(50), "Rif Doc. " + documento_.conto.DDT_CV);
  }

  void Testata_Campi(Vista bolla, Vista pagina, int p) {
    constexpr int valori = 38;
    int y = Y(44);
    const auto campo = [&](Vista didascalia, const Testo& valore) {
      Scrivi(X(5), y, Testo(didascalia));
      Scrivi_In(X(5 + valori), y, Sinistra_Destinatario() - 5 - valori - 1, valore, true);
      y += passo_riga;
    };
    campo("Num. Conto Vendita", documento_.conto.NCV);
    campo("Data", documento_.conto.Data);
    campo(bolla, documento_.conto.DDT_CV);
    Scrivi(X(5), y, Pagina_Di(pagina, p));
  }

  void Testata_Tipo2(int p) {
    constexpr float punti_numero = 21;
    Scrivi(tabella_x_, Y(44), "Conto Vendita n. " + documento_.conto.NCV, punti_numero);
    Scrivi(tabella_x_, Y(59), "Rif Doc. " + documento_.conto.DDT_CV);
    Scrivi(tabella_x_, Y(64), Pagina_Di("pag. ", p));
  }

  // ---- the table

  std::size_t Prima_Riga(int p) const {
    return static_cast<std::size_t>(p - 1) * static_cast<std::size_t>(per_pagina_);
  }
  std::size_t Dopo_Ultima(int p) const {
    return std::min(Prima_Riga(p + 1), documento_.importi.righe.size());
  }

  void Tabella(int p) {
    int x = tabella_x_;
    for (const Colonna_CV& colonna : forma_.colonne) {
      Scrivi(x + 1, tabella_y_, colonna.titolo, 10, true);
      x += colonna.larghezza;
    }
    if (Contorni()) Cornice();
    for (std::size_t i = Prima_Riga(p); i < Dopo_Ultima(p); ++i) {
      const int y = Y_Riga(static_cast<int>(i - Prima_Riga(p)) + 1);
      Riga(i, y);
      const bool altra = i + 1 < Dopo_Ultima(p) &&
                         documento_.importi.righe[i + 1].Descr != documento_.importi.righe[i].Descr;
      if (altra && !Contorni())
        Aggiungi(Tipo::Riga_Orizzontale, tabella_x_, y + altezza_riga, forma_.Larghezza());
    }
  }

  // A fixed number of lines stands closer where margin and sheet leave less room than it needs, so that the
  // last one isn't printed over the foot.
  int Y_Riga(int quale) const {
    if (forma_.righe_fisse == 0) return tabella_y_ + quale * passo_riga;
    const int spazio = (Tipo2() ? Y_Note(14) : Y_Passo(0)) - altezza_riga - tabella_y_;
    // rounded up, so that the first one keeps off the headings
    const int quota = (quale * spazio + forma_.righe_fisse - 1) / forma_.righe_fisse;
    const int stretta = std::max(quale * altezza_riga, quota);
    return tabella_y_ + std::min(quale * passo_riga, stretta);
  }

  void Cornice() {
    const int altezza = AltezzaTabella(foglio_);
    Aggiungi(Tipo::Riquadro, tabella_x_, tabella_y_, forma_.Larghezza(), altezza);
    Aggiungi(Tipo::Riga_Orizzontale, tabella_x_, tabella_y_ + passo_riga, forma_.Larghezza());
    int x = tabella_x_;
    for (const Colonna_CV& colonna : forma_.colonne) {
      Aggiungi(Tipo::Riga_Verticale, x, tabella_y_, 0, altezza);
      x += colonna.larghezza;
    }
  }

  void Riga(std::size_t i, int y) {
    int x = tabella_x_;
    for (const Colonna_CV& colonna : forma_.colonne) {
      Testo testo = Cella(colonna.campo, i);
      if (colonna.campo == Campo_CV::Descrizione || colonna.campo == Campo_CV::Nr)
        Scrivi_In(x + 1, y, colonna.larghezza - 2, std::move(testo));
      else
        Destra(x, y, colonna.larghezza - 1, std::move(testo));
      x += colonna.larghezza;
    }
  }

  Testo Cella(Campo_CV campo, std::size_t i) const {
    const Riga_Importo& riga = documento_.importi.righe[i];
    switch (campo) {
      case Campo_CV::Nr:
        return Formato(static_cast<double>(i + 1), "000 ", separatore_);
      case Campo_CV::Colli:
        return riga.NrColli;
      case Campo_CV::Descrizione:
        return riga.Descr + riga.AlfaCV;
      case Campo_CV::Peso:
        return Num3_Migliaia(riga.Kg, separatore_);
      case Campo_CV::Prezzo:
        return Euro2_Migliaia(riga.PrezzoCV, separatore_);
      case Campo_CV::Importo:
        return Euro2_Migliaia(riga.ImportoCV, separatore_);
      case Campo_CV::Aliquota:
        return Formato(riga.IvaCV, "00.#", separatore_);
    }
    return {};
  }

  // ---- foot and totals

  int Larghezza_Note() const {
    return forma_.Sinistra_Di(Campo_CV::Peso) + forma_.Larghezza_Di(Campo_CV::Peso) - 2;
  }

  // The captions of this layout's totals are long and take the room of the notes, which stand above them.
  int Y_Note(int y) const { return Tipo2() ? piede_y_ - altezza_note + y : piede_y_ + y; }

  void Piede() {
    if (!Tipo2()) {
      Aggiungi(Tipo::Riquadro, tabella_x_, piede_y_ + 5, Larghezza_Note(), altezza_note);
      Scrivi(tabella_x_ + 1, piede_y_ + 6, "Note");
    }
    if (documento_.regole.FlagSarvena)
      Scrivi(tabella_x_ + 2, Y_Note(45), "(*) rimborso spese accessorie (Rif. Ns. Ft. Separata)");
    Elemento_CV& piede = Aggiungi(Tipo::Scritta, foglio_.sinistra, 0);
    piede.y = foglio_.altezza - 5;
    piede.testo = documento_.piede;
    piede.punti = 8;
  }

  int X_Totali() const {
    constexpr int tipo2 = 60;
    return tabella_x_ + (Tipo2() ? tipo2 : forma_.Sinistra_Di(Campo_CV::Prezzo));
  }
  int Y_Passo(int passo) const { return piede_y_ + 4 + passo * passo_riga; }

  void Totale(const Totale_CV& totale) {
    const int y = Y_Passo(totale.passo);
    Scrivi(X_Totali(), y, totale.etichetta, 10, true);
    const auto valore = [&](Campo_CV campo, int oltre, const Testo& testo) {
      if (testo.empty()) return;
      Destra(tabella_x_ + forma_.Sinistra_Di(campo), y, forma_.Larghezza_Di(campo) + oltre, testo, true);
    };
    valore(Campo_CV::Prezzo, 0, totale.imponibile);
    valore(Campo_CV::Importo, 10, totale.valore);
  }

  void Somma_Pagina(int p) {
    double somma = 0;
    for (std::size_t i = Prima_Riga(p); i < Dopo_Ultima(p); ++i)
      somma += documento_.importi.righe[i].ImportoCV;
    Totale({0, "Importo parziale di questa pagina", Euro2_Migliaia(somma, separatore_), {}});
  }

  void Totali() {
    for (const Totale_CV& totale : TotaliCV(documento_, scelta_.tracciato, separatore_)) Totale(totale);
    // with the line on the expenses, which stands nearly there, a line higher
    if (documento_.KgTotali)
      Scrivi(tabella_x_ + 10, Y_Note(documento_.regole.FlagSarvena ? 39 : 44),
             "Kg. Totali = " + Formato(documento_.importi.KgTotali, "#0.00", separatore_));
    if (!documento_.NotaDDLL) return;
    Scrivi(tabella_x_ + 10, Y_Note(14), "Cessione Intercomunitaria non imponibile");
    Scrivi(tabella_x_ + 10, Y_Note(29), "Articolo EX 41 comma 1 DDLL 331/93");
  }

  void Continua() {
    Elemento_CV& continua = Aggiungi(Tipo::Scritta, X_Totali(), 0);
    continua.y = foglio_.altezza - 55 + 6;
    continua.testo = "Continua ...";
  }

  const Documento_CV& documento_;
  Scelta_Tracciato scelta_;
  const Forma_CV& forma_;
  Foglio_CV foglio_;
  char separatore_;
  int per_pagina_, pagine_;
  int tabella_x_, tabella_y_, piede_y_;
  Pagina_CV pagina_;
};

}  // namespace

std::vector<Pagina_CV> PagineCV(const Documento_CV& documento, Scelta_Tracciato scelta,
                                const Foglio_CV& foglio, char separatore) {
  return Composizione(documento, scelta, foglio, separatore).Tutte();
}

#include "documents/pagine.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/numeri.h"
#include "printing/pagina.h"

namespace {

constexpr float passo = 4;  // from one line of text to the next
constexpr float crescita_testata = 9;
constexpr float alto_titolo = 27, alto_numero = 33;  // between the letterhead and the addressee
constexpr float alto_destinatario = 35, alto_titoli = 55, alto_righe = 60;  // below the grown heading
constexpr float punti_pagina = 8, punti_intestazione = 10, punti_titolo = 11, punti_destinatario = 9,
                punti_titoli = 8, punti_righe = 9;
constexpr float punti_minimi = 5;
constexpr float colonna_peso = 20, colonna_prezzo = 40;  // room at the right edge
constexpr float rientro = 14;                            // of an item's texts
constexpr Vista riga_a_mano = "_____________________________";

float In_Mm(int millimetri) { return static_cast<float>(millimetri); }

// What a layout has of its own.
struct Forma {
  Vista titolo_lotto;
  bool con_destinazione;
  bool con_allergeni;
};

// Puts down the texts of one document; what all its pages share is computed once.
class Compositore {
 public:
  Compositore(const Documento_Cliente& documento, const Foglio_Documento& foglio, char separatore,
              Forma forma)
      : documento_(documento), foglio_(foglio), separatore_(separatore), forma_(forma) {}

  Pagine_Documento Pagine() const {
    Pagine_Documento pagine;
    for (int numero = 1; numero <= documento_.pagine.pagine; ++numero) pagine.push_back(Pagina(numero));
    if (!pagine.empty() && documento_.tipo == TipoDoc::Sanitario) pagine.back().piede = Piede();
    return pagine;
  }

 private:
  Pagina_Documento Pagina(int numero) const {
    Pagina_Documento pagina;
    pagina.testata.push_back(A_Destra(
        0, punti_pagina,
        "pagina " + std::to_string(numero) + " di " + std::to_string(documento_.pagine.pagine), false));
    Intestazione(pagina.testata);
    Destinatario(pagina.testata);
    Titoli(pagina.tabella);
    Righe(numero, pagina.tabella);
    return pagina;
  }

  void Intestazione(std::vector<Scritta_Pagina>& scritte) const {
    float y = -1;
    for (const Testo& riga : documento_.Intestazione) {
      scritte.push_back(Al_Centro(y, punti_intestazione, riga));
      y += passo;
    }
    scritte.push_back(Al_Centro(alto_titolo, punti_titolo, documento_.Titolo));
    scritte.push_back(Al_Centro(alto_numero, punti_titolo, documento_.Riga_Numero));
  }

  void Destinatario(std::vector<Scritta_Pagina>& scritte) const {
    const float y = Origine() + alto_destinatario;
    const float sinistra = X0() + 10, destra = X0() + 20 + Larghezza() / 2;
    const float spazio = (forma_.con_destinazione ? destra : Bordo_Destro()) - sinistra - 2;
    const auto& cliente = documento_.destinatario;
    const Vista righe[] = {"Destinatario:", cliente.Nome, cliente.Indirizzo, cliente.PIva};
    for (std::size_t i = 0; i < std::size(righe); ++i)
      scritte.push_back(A_Sinistra(sinistra, y + passo * static_cast<float>(i), punti_destinatario, righe[i],
                                   true, spazio));
    if (!forma_.con_destinazione) return;
    scritte.push_back(A_Sinistra(destra, y, punti_destinatario, "Destinazione merce:", true));
    for (int i = 1; i <= 3; ++i)
      scritte.push_back(
          A_Sinistra(destra, y + passo * static_cast<float>(i), punti_destinatario, riga_a_mano, true));
  }

  void Titoli(std::vector<Scritta_Pagina>& scritte) const {
    const float y = Origine() + alto_titoli;
    scritte.push_back(A_Sinistra(X0() + 2, y, punti_titoli, "COLLI", true));
    scritte.push_back(A_Sinistra(X0() + rientro, y, punti_titoli, forma_.titolo_lotto, true));
    scritte.push_back(A_Sinistra(X0() + 65, y, punti_titoli, "DESCRIZIONE", true));
    scritte.push_back(A_Destra(y, punti_titoli, documento_.con_prezzi ? "PESO_Kg  Prezzo" : "PESO Kg", true));
  }

  void Righe(int pagina, std::vector<Scritta_Pagina>& scritte) const {
    const auto per_pagina = static_cast<std::size_t>(documento_.pagine.voci_per_pagina);
    const std::size_t prima = per_pagina * static_cast<std::size_t>(pagina - 1);
    const std::size_t dopo = std::min(prima + per_pagina, documento_.righe.size());
    float y = Origine() + alto_righe;
    for (std::size_t i = prima; i < dopo; ++i) y = Voce(documento_.righe[i], y, scritte);
    for (int vuota = 0; vuota < 2; ++vuota, y += passo)
      scritte.push_back(A_Sinistra(X0(), y, punti_righe, {}, false));
  }

  // One item from that height on; gives the height of the next.
  float Voce(const Riga_Documento& voce, float y, std::vector<Scritta_Pagina>& scritte) const {
    const float x = X0() + rientro, spazio = Bordo_Destro() - x;
    scritte.push_back({.allineamento = Allineamento::Destra,
                       .x = X0() + 10,
                       .y = y,
                       .punti = punti_righe,
                       .testo = Testo_Colli(voce.Colli)});
    scritte.push_back(A_Sinistra(x, y, punti_righe, voce.Descrizione + " (" + voce.Latino + ")", false,
                                 spazio - (documento_.con_prezzi ? colonna_prezzo : colonna_peso)));
    scritte.push_back(A_Destra(y, punti_righe, Testo_Peso(voce), false));
    scritte.push_back(A_Sinistra(x, y += passo, punti_righe, " " + voce.Origine, false, spazio));
    scritte.push_back(A_Sinistra(x, y += passo, punti_righe, voce.Dati, false, spazio));
    if (forma_.con_allergeni)
      scritte.push_back(A_Sinistra(x, y += passo, punti_righe, voce.Allergene, false, spazio));
    return y + passo;
  }

  // The foot lines stand at the foot of the sheet. A last page that is full reaches down to there: then they
  // follow the items, where the paper is long enough for both.
  float Piede() const {
    constexpr float prima_riga = 10, ultima_riga = 2;  // above the height that StampaDueRighe takes
    const auto alto = static_cast<float>(foglio_.altezza);
    const auto voci = static_cast<int>(documento_.righe.size()) -
                      (documento_.pagine.pagine - 1) * documento_.pagine.voci_per_pagina;
    const float fine =
        Origine() + alto_righe + passo * static_cast<float>(voci * RighePerVoce(documento_.tracciato));
    const float sotto = fine + prima_riga;
    return sotto > alto && sotto - ultima_riga <= foglio_.stampabile ? sotto : alto;
  }

  Testo Testo_Peso(const Riga_Documento& voce) const {
    Testo testo = Euro2_Migliaia(voce.Peso, separatore_);
    if (documento_.con_prezzi) testo += " € "_t + Euro2_Migliaia(voce.Prezzo, separatore_);
    return testo;
  }

  // Boxes are counted: decimals only where there are any.
  Testo Testo_Colli(double colli) const {
    Testo testo = Euro2_Migliaia(colli, separatore_);
    if (testo.ends_with(",00")) testo.resize(testo.size() - 3);
    return testo;
  }

  static Scritta_Pagina A_Sinistra(float x, float y, float punti, Vista testo, bool doppia,
                                   float spazio = 0) {
    return {Allineamento::Sinistra, x, y, punti, Testo(testo), doppia, spazio};
  }
  Scritta_Pagina A_Destra(float y, float punti, Testo testo, bool doppia) const {
    return {Allineamento::Destra, Bordo_Destro(), y, punti, std::move(testo), doppia};
  }
  Scritta_Pagina Al_Centro(float y, float punti, Vista testo) const {
    const float spazio = 2 * std::min(Centro() - X0(), Bordo_Destro() - Centro());
    return {Allineamento::Centro, Centro(), y, punti, Testo(testo), true, spazio};
  }

  float X0() const { return In_Mm(foglio_.da_destra); }
  float Larghezza() const { return In_Mm(foglio_.larghezza); }
  float Bordo_Destro() const { return X0() + Larghezza() - 1; }
  float Centro() const {
    const float logo = In_Mm(foglio_.logo);
    return X0() + logo - In_Mm(foglio_.aggiustamento) + (Larghezza() - logo) / 2;
  }
  float Origine() const { return crescita_testata + In_Mm(foglio_.altezza_dest); }

  const Documento_Cliente& documento_;
  const Foglio_Documento& foglio_;
  char separatore_;
  Forma forma_;
};

// ---- drawing

void Disegna(Printer& printer, const Scritta_Pagina& scritta) {
  printer.FontSize = scritta.punti;
  while (scritta.spazio > 0 && printer.FontSize > punti_minimi &&
         printer.TextWidth(scritta.testo) > scritta.spazio)
    printer.FontSize -= 0.5F;
  for (int volta = 0; volta < (scritta.doppia ? 2 : 1); ++volta) {
    switch (scritta.allineamento) {
      case Allineamento::Centro:
        StampaCentrato(printer, scritta.y, scritta.testo, scritta.x);
        break;
      case Allineamento::Destra:
        StampaDestra(printer, 0, scritta.y, scritta.x, scritta.testo);
        break;
      case Allineamento::Sinistra:
        printer.CurrentX = scritta.x;
        printer.CurrentY = scritta.y;
        printer.Print(scritta.testo);
        break;
    }
  }
}

void Disegna(const Programma& programma, const Pagina_Documento& pagina) {
  Printer& printer = Dispositivo(programma);
  const Preferenze& preferenze = programma.preferenze;
  printer.FontBold = false;
  for (const Scritta_Pagina& scritta : pagina.testata) Disegna(printer, scritta);
  float centro = In_Mm(preferenze.ellisse_centrox);
  StampaEllisse(programma, centro, In_Mm(preferenze.ellisse_centroy));
  for (const Scritta_Pagina& scritta : pagina.tabella) Disegna(printer, scritta);
  if (pagina.piede) StampaDueRighe(programma, *pagina.piede, In_Mm(preferenze.DocSani_dadestra));
}

}  // namespace

Foglio_Documento FoglioDocumento(const Preferenze& preferenze) {
  return {.larghezza = preferenze.DocSani_LarghezzaPagina,
          .altezza = preferenze.DocSani_AltezzaPagina,
          .logo = preferenze.DocSani_Offset_Logo,
          .aggiustamento = preferenze.DocSani_Aggiustamento,
          .altezza_dest = preferenze.DocSani_AltezzaDest,
          .da_destra = preferenze.DocSani_dadestra};
}

Pagine_Documento LayoutAllergeni(const Documento_Cliente& documento, const Foglio_Documento& foglio,
                                 char separatore) {
  return Compositore(documento, foglio, separatore, {"LOTTO", true, true}).Pagine();
}

Pagine_Documento LayoutSemplice(const Documento_Cliente& documento, const Foglio_Documento& foglio,
                                char separatore) {
  return Compositore(documento, foglio, separatore, {"LOTTO", true, false}).Pagine();
}

Pagine_Documento LayoutVecchio(const Documento_Cliente& documento, const Foglio_Documento& foglio,
                               char separatore) {
  return Compositore(documento, foglio, separatore, {"LOTTO  Z.FAO", false, false}).Pagine();
}

Pagine_Documento PagineDocumento(const Documento_Cliente& documento, const Foglio_Documento& foglio,
                                 char separatore) {
  switch (documento.tracciato) {
    case Tracciato::Allergeni:
      return LayoutAllergeni(documento, foglio, separatore);
    case Tracciato::Semplice:
      return LayoutSemplice(documento, foglio, separatore);
    case Tracciato::Vecchio:
      break;
  }
  return LayoutVecchio(documento, foglio, separatore);
}

bool StampaPagine(const Programma& programma, const Documento_Cliente& documento,
                  const Avanzamento& avanzamento) {
  Printer& printer = Dispositivo(programma);
  printer.documento = {programma.Data_AAAAMMGG,
                       documento.tipo == TipoDoc::DDT ? "DDT" : "Documento Sanitario",
                       SenzaMarchi(documento.Numero), documento.destinatario.Codice};
  PreparaPagina(programma);
  PreparaPagina(programma);
  Foglio_Documento foglio = FoglioDocumento(programma.preferenze);
  foglio.stampabile = printer.ScaleHeight();
  const Pagine_Documento pagine = PagineDocumento(documento, foglio, programma.Separatore_Decimale);
  const auto quante = static_cast<int>(pagine.size());
  for (int numero = 1; numero <= quante; ++numero) {
    if (avanzamento) avanzamento(Pagina_In_Corso(documento.destinatario.Codice, numero, quante));
    programma.piattaforma.Ridipingi();
    Disegna(programma, pagine[static_cast<std::size_t>(numero - 1)]);
    if (numero < quante) printer.NewPage();
  }
  return printer.EndDoc();
}

#include "accounts/pagine.h"

#include <algorithm>

#include "accounts/tracciati.h"
#include "printing/pagina.h"

namespace {

using Tipo = Elemento_CV::Tipo;

constexpr float punti_minimi = 5, passo_punti = 0.5F;

void Scrivi(Printer& printer, const Elemento_CV& cosa, Vista carattere) {
  Vista testo = cosa.testo;
  float punti = cosa.punti;
  if (cosa.larghezza > 0) {
    printer.FontName = carattere;
    printer.FontBold = cosa.grassetto;
    const auto esce = [&] {
      printer.FontSize = punti;
      return printer.TextWidth(testo) > cosa.larghezza;
    };
    while (punti > punti_minimi && esce()) punti -= passo_punti;
    while (!testo.empty() && esce()) testo.remove_suffix(1);
  }
  StampaTesto(printer, cosa.x, cosa.y, testo, carattere, punti, cosa.grassetto);
}

void Disegna(Printer& printer, const Elemento_CV& cosa, Vista carattere_pagina) {
  switch (cosa.tipo) {
    case Tipo::Riga_Orizzontale:
      return LineaOrizzontale(printer, static_cast<int>(cosa.x), static_cast<int>(cosa.y),
                              static_cast<int>(cosa.larghezza), Nero, 1);
    case Tipo::Riga_Verticale:
      return LineaVerticale(printer, cosa.x, cosa.y, cosa.altezza, Nero, 1);
    case Tipo::Riquadro:
      return Riquadro(printer, cosa.x, cosa.y, cosa.larghezza, cosa.altezza, 1, Nero, false);
    case Tipo::Scritta:
    case Tipo::Destra:
      break;
  }
  const Vista carattere = cosa.carattere.empty() ? carattere_pagina : Vista(cosa.carattere);
  if (cosa.tipo == Tipo::Scritta) return Scrivi(printer, cosa, carattere);
  printer.FontName = carattere;
  printer.FontSize = cosa.punti;
  printer.FontBold = cosa.grassetto;
  StampaDestra(printer, cosa.x, cosa.y, cosa.larghezza, cosa.testo);
}

Testo Giorno_AAAAMMGG(Vista data) {
  const auto letta = Leggi_Data(data);
  return letta ? Testo_Data(*letta, "yyyymmdd") : Testo();
}

}  // namespace

Scelta_Tracciato TracciatoCV(int FlagStampaFrame) {
  constexpr Scelta_Tracciato scelte[] = {
      {Tracciato_CV::Semplice, false}, {Tracciato_CV::Tipo1, true},  {Tracciato_CV::Tipo2, false},
      {Tracciato_CV::Busta, true},     {Tracciato_CV::Busta, false}, {Tracciato_CV::Semplice, false},
      {Tracciato_CV::Colli, true},
  };
  if (FlagStampaFrame < 0 || FlagStampaFrame >= static_cast<int>(std::size(scelte))) return scelte[0];
  return scelte[FlagStampaFrame];
}

Documento_CV DocumentoCV(const Programma& programma, const Regole_Importi& regole) {
  Documento_CV documento;
  documento.regole = regole;
  documento.Ragione = programma.Ragione;
  documento.citta = programma.preferenze.CittaCV;
  documento.piede = programma.preferenze.Testo_ContoVendita;
  return documento;
}

void StampaConto(const Programma& programma, const Documento_CV& documento, Scelta_Tracciato scelta,
                 const Avanzamento& avanzamento) {
  Printer& printer = Dispositivo(programma);
  printer.documento = {Giorno_AAAAMMGG(documento.conto.Data), "Conto Vendita",
                       Testo(Pulito(documento.conto.NCV)), documento.fornitore.Codice};
  PreparaPagina(programma);
  PreparaPagina(programma);
  const Foglio_CV foglio{BordoSinistro(programma), BordoAlto(programma), printer.ScaleHeight()};
  const auto pagine = PagineCV(documento, scelta, foglio, programma.Separatore_Decimale);
  const int quante = static_cast<int>(pagine.size());
  for (int p = 1; p <= quante; ++p) {
    avanzamento(Pagina_In_Corso(documento.fornitore.Codice, p, quante));
    for (const Elemento_CV& cosa : pagine[static_cast<std::size_t>(p - 1)])
      Disegna(printer, cosa, FontePagina(programma));
    if (p < quante) printer.NewPage();
  }
  printer.EndDoc();
}

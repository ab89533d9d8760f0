#include <algorithm>

#include "invoices/fermo.h"
#include "invoices/stampa_fatture.h"
#include "invoices/zfatture.h"
#include "invoices/zfatture_vettore.h"

// The print commands of the screen `ZFatture`: its boxes and lists go to the routines that print, and the
// boxes that these have set come back.

namespace {

struct Casella_Scelta {
  Spunta ZFatture::*casella;
  bool Scelte_Stampa::*scelta;
};
constexpr Casella_Scelta caselle[] = {
    {&ZFatture::Tutte, &Scelte_Stampa::Tutte},
    {&ZFatture::Stampale, &Scelte_Stampa::Stampale},
    {&ZFatture::Paginax2, &Scelte_Stampa::Paginax2},
    {&ZFatture::Personalizzata, &Scelte_Stampa::Personalizzata},
    {&ZFatture::Check1, &Scelte_Stampa::Check1},
    {&ZFatture::Completa, &Scelte_Stampa::Completa},
};

Scelte_Stampa Caselle(const ZFatture& zfatture) {
  Scelte_Stampa scelte;
  for (const auto& [casella, scelta] : caselle) scelte.*scelta = (zfatture.*casella).segnata;
  return scelte;
}

Scelte_Stampa Scelte(const ZFatture& zfatture) {
  Scelte_Stampa scelte = Caselle(zfatture);
  scelte.copie = std::max(0, zfatture.Combo2.scelta) + 1;
  if (zfatture.variante->spedizione) {
    // no box is there to say otherwise: carriers' invoices go to paper, one a sheet
    scelte.Stampale = true;
    scelte.Paginax2 = false;
  }
  return scelte;
}

void Mostra_Scelte(ZFatture& zfatture, const Scelte_Stampa& scelte) {
  for (const auto& [casella, scelta] : caselle) (zfatture.*casella).segnata = scelte.*scelta;
}

template <class Comando>
void Esegui(Programma& programma, ZFatture& zfatture, Comando comando) {
  const auto fermo = Ferma(programma, zfatture);
  Stampa_Fatture stampa{.fatture = zfatture.TabellaFatture,
                        .note = zfatture.TabellaNote,
                        .scelte = Scelte(zfatture),
                        .Text2 = zfatture.Text2.testo,
                        .spedizione = SpedizioneScelta(programma, zfatture),
                        .titolo = [&](const Testo& titolo) { zfatture.titolo = titolo; }};
  const Testo titolo = zfatture.titolo;
  if (!comando(stampa)) zfatture.titolo = titolo;
  Mostra_Scelte(zfatture, stampa.scelte);
}

}  // namespace

void StampaFatNa(Programma& programma, ZFatture& zfatture) {
  if (!zfatture.attiva) return;
  Esegui(programma, zfatture, [&](Stampa_Fatture& stampa) { return StampaFatNa(programma, stampa); });
}

void DoppioClic(Programma& programma, ZFatture& zfatture, TipoFattura tipo, int riga) {
  SceltaDocumento(programma, zfatture, tipo, riga);
  const TabellaDocumenti& documenti =
      tipo == TipoFattura::Fattura ? zfatture.TabellaFatture : zfatture.TabellaNote;
  if (!zfatture.attiva || riga < 0 || riga >= static_cast<int>(documenti.size())) return;
  const Voce_Fattura voce = documenti[static_cast<std::size_t>(riga)];
  Esegui(programma, zfatture,
         [&](Stampa_Fatture& stampa) { return StampaVoce(programma, stampa, tipo, voce); });
}

void Report(Programma& programma, ZFatture& zfatture) {
  if (!zfatture.attiva) return;
  Esegui(programma, zfatture, [&](Stampa_Fatture& stampa) { return StampaReport(programma, stampa); });
}

void Archivio(Programma& programma, ZFatture& zfatture) {
  if (!zfatture.attiva) return;
  Scelte_Stampa scelte = Caselle(zfatture);
  const Ordine_Archivio ordine = CambiaArchivio(scelte);
  Ordina(programma, zfatture, ordine.colonna);
  Mostra_Scelte(zfatture, scelte);
  if (!zfatture.variante->spedizione) zfatture.Command6.testo = ordine.didascalia;
}

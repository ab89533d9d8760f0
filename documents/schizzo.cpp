#include "core/numeri.h"
#include "documents/dimddt.h"

namespace {

const Testo& Scritto(const DimDDT& schermo, Vista chiave) { return schermo.campi.find(chiave)->second.testo; }

Foglio_Documento Foglio(const DimDDT& schermo, char separatore) {
  const auto mm = [&](Vista chiave) { return Intero(Scritto(schermo, chiave), separatore); };
  return {.larghezza = mm("DocSani_LarghezzaPagina"),
          .altezza = mm("DocSani_AltezzaPagina"),
          .logo = mm("DocSani_Offset_Logo"),
          .aggiustamento = mm("DocSani_Aggiustamento"),
          .altezza_dest = mm("DocSani_AltezzaDest"),
          .da_destra = mm("DocSani_dadestra")};
}

// A sanitary document for a customer that everybody knows.
Documento_Cliente Esempio(const Programma& programma, const DimDDT& schermo) {
  Documento_Cliente documento;
  documento.tracciato = ScegliTracciato(programma.preferenze);
  documento.Titolo = Scritto(schermo, "TitoloBolla");
  documento.Riga_Numero = "(" + Scritto(schermo, "StringaCEE") + ") no. 001 del " + programma.Data_Giorno;
  char numero = '1';
  for (Testo& riga : documento.Intestazione) riga = Scritto(schermo, Testo("DS_intesta") + numero++);
  documento.destinatario = {
      .Codice = {}, .Nome = "Mario Rossi", .Indirizzo = "via - citta'", .PIva = "p. iva"};
  documento.righe.push_back({.riga = {},
                             .Descrizione = "orata - lotto",
                             .Latino = "Sparus aurata",
                             .Dati = "SBG (Orata)",
                             .Zona = {},
                             .Origine = "zona, provenienza",
                             .Allergene = {},
                             .PrimoImb = {},
                             .Peso = 10,
                             .Prezzo = 0,
                             .Colli = 1});
  documento.pagine = {.righe = RighePerVoce(documento.tracciato), .voci_per_pagina = 1, .pagine = 1};
  return documento;
}

// Where StampaDueRighe puts the foot lines on a sheet of that height.
void Aggiungi_Piede(const DimDDT& schermo, const Foglio_Documento& foglio, Pagina_Documento& pagina) {
  constexpr float rientro = 5, sopra = 10, passo = 4;
  auto y = static_cast<float>(foglio.altezza) - sopra;
  for (const Vista chiave : {"PiedePaginaBolla1", "PiedePaginaBolla2"}) {
    pagina.tabella.push_back({.allineamento = Allineamento::Sinistra,
                              .x = static_cast<float>(foglio.da_destra) + rientro,
                              .y = y,
                              .testo = Scritto(schermo, chiave)});
    y += passo;
  }
}

// As StampaEllisse draws it: its centre stands to the left of the position in the settings.
Ovale Bollo(int x, int y) {
  constexpr double spostamento = 19, raggio = 11, aspetto = 0.3;
  Ovale bollo;
  bollo.x = x - spostamento;
  bollo.y = y;
  bollo.raggio_x = raggio;
  bollo.raggio_y = raggio * aspetto;
  return bollo;
}

}  // namespace

std::optional<Schizzo_DDT> Schizzo(const Programma& programma, const DimDDT& schermo) {
  const char separatore = programma.Separatore_Decimale;
  Schizzo_DDT schizzo;
  schizzo.foglio = Foglio(schermo, separatore);
  if (schizzo.foglio.larghezza < 1 || schizzo.foglio.larghezza > Larghezza_Massima_DDT ||
      schizzo.foglio.altezza < 1 || schizzo.foglio.altezza > Altezza_Massima_DDT)
    return std::nullopt;
  Pagine_Documento pagine = PagineDocumento(Esempio(programma, schermo), schizzo.foglio, separatore);
  schizzo.pagina = std::move(pagine.front());
  Aggiungi_Piede(schermo, schizzo.foglio, schizzo.pagina);
  if (programma.preferenze.FlagEllisse)
    schizzo.bollo = Bollo(Intero(Scritto(schermo, "ellisse_centrox"), separatore),
                          Intero(Scritto(schermo, "ellisse_centroy"), separatore));
  return schizzo;
}

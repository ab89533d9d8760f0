#include "invoices/zfatture_vettore.h"

#include <algorithm>

#include "core/numeri.h"
#include "invoices/fermo.h"

namespace {

using C = Campi_Spedizione;

// A field that keeps what was keyed, under a setting of its own.
struct Campo_Salvato {
  CampoTesto C::*campo;
  Testo Preferenze::*valore;
  Scritta C::*scritta;
  Vista didascalia, suggerimento;
  Vista predefinito;  // by double click
};
constexpr Campo_Salvato campi[] = {
    {&C::Text8, &Preferenze::Causale, &C::Caption_Text8, "Causale del trasporto", "Doppio click per Vendita",
     "Vendita"},
    {&C::Text3, &Preferenze::Aspetto, &C::Caption_Text3, "Aspetto esteriore dei beni",
     "Doppio click per Casse", "Casse"},
    {&C::Text6, &Preferenze::Mezzo, &C::Caption_Text6, "Trasporto a mezzo", "Doppio click per Vettore",
     "Vettore"},
    {&C::Text4, &Preferenze::Spese, &C::Caption_Text4, "Spese e  IVA spese", "", ""},
    {&C::Text5, &Preferenze::SpeseIVA, nullptr, "", "Aliquota IVA applicata alle spese", ""},
};

struct Comando_Spedizione {
  Bottone C::*bottone;
  Vista didascalia;
};
constexpr Comando_Spedizione comandi[] = {
    {&C::Command8, "Seleziona Ristoranti"},
    {&C::Command7, "Seleziona Alfanumerici"},
    {&C::Mostra_Esclusi, "Esclusi"},
    {&C::Vettori, "Vettori"},
};

Testo Pulita(const CampoTesto& campo) { return Testo(Pulito(Senza_Separatori(campo.testo))); }

}  // namespace

void PreparaSpedizione(const Preferenze& preferenze, ZFatture& zfatture) {
  if (!zfatture.variante->spedizione) return;
  Campi_Spedizione& spedizione = zfatture.spedizione;
  for (const Campo_Salvato& campo : campi) {
    (spedizione.*campo.campo).testo = preferenze.*campo.valore;
    (spedizione.*campo.campo).suggerimento = campo.suggerimento;
    if (campo.scritta) (spedizione.*campo.scritta).testo = campo.didascalia;
  }
  spedizione.Caption_Text7.testo = "Incaricato del trasporto";
  for (std::size_t i = 0; i < spedizione.Text7.size(); ++i) spedizione.Text7[i].testo = preferenze.Vettore[i];
  for (const auto& [bottone, didascalia] : comandi) (spedizione.*bottone).testo = didascalia;
}

void AttivaSpedizione(ZFatture& zfatture) {
  Campi_Spedizione& spedizione = zfatture.spedizione;
  for (const Campo_Salvato& campo : campi) (spedizione.*campo.campo).attivo = zfatture.attiva;
  for (CampoTesto& riga : spedizione.Text7) riga.attivo = zfatture.attiva;
  for (const Comando_Spedizione& comando : comandi) (spedizione.*comando.bottone).attivo = zfatture.attiva;
}

bool SalvaSpedizione(Programma& programma, const ZFatture& zfatture) {
  const Campi_Spedizione& spedizione = zfatture.spedizione;
  for (const Campo_Salvato& campo : campi)
    programma.preferenze.*campo.valore = Pulita(spedizione.*campo.campo);
  for (std::size_t i = 0; i < spedizione.Text7.size(); ++i)
    programma.preferenze.Vettore[i] = Pulita(spedizione.Text7[i]);
  return Scrivi_Preferenze(programma, {"Causale", "Aspetto", "Mezzo", "Spese", "SpeseIVA", "Vettore_1",
                                       "Vettore_2", "Vettore_3", "CittaVC"});
}

std::optional<Spedizione> SpedizioneScelta(const Programma& programma, const ZFatture& zfatture) {
  if (!zfatture.variante->spedizione) return std::nullopt;
  const Campi_Spedizione& campi_schermo = zfatture.spedizione;
  const char separatore = programma.Separatore_Decimale;
  Spedizione spedizione;
  spedizione.trasporto = {.Causale = Pulita(campi_schermo.Text8),
                          .Aspetto = Pulita(campi_schermo.Text3),
                          .Mezzo = Pulita(campi_schermo.Text6),
                          .Vettore = {}};
  for (std::size_t i = 0; i < campi_schermo.Text7.size(); ++i)
    spedizione.trasporto.Vettore[i] = Pulita(campi_schermo.Text7[i]);
  spedizione.spese = Valore(campi_schermo.Text4.testo, separatore);
  spedizione.aliquota = Valore(campi_schermo.Text5.testo, separatore);
  return spedizione;
}

void PredefinitoSpedizione(ZFatture& zfatture, CampoTesto Campi_Spedizione::*campo) {
  const auto* dove = std::ranges::find(campi, campo, &Campo_Salvato::campo);
  if (!zfatture.attiva || dove == std::end(campi) || dove->predefinito.empty()) return;
  (zfatture.spedizione.*campo).testo = dove->predefinito;
}

bool AmmessoNelleSpese(char c) { return E_Cifra(c); }

void PrendiVettore(ZFatture& zfatture, const Testo& mezzo, const std::array<Testo, 3>& vettore) {
  if (!zfatture.attiva) return;
  zfatture.spedizione.Text6.testo = mezzo;
  for (std::size_t i = 0; i < vettore.size(); ++i) zfatture.spedizione.Text7[i].testo = vettore[i];
}

void SelezionaRistoranti(Programma& programma, ZFatture& zfatture) {
  if (!zfatture.attiva) return;
  TogliFatture(programma, zfatture,
               [&](const Voce_Fattura& voce) { return !E_Ristorante(programma, voce.Codice); });
}

void SelezionaAlfanumerici(Programma& programma, ZFatture& zfatture) {
  if (!zfatture.attiva) return;
  TogliFatture(programma, zfatture,
               [](const Voce_Fattura& voce) { return Tutte_Cifre(Pulito(voce.Codice)); });
}

void MostraEsclusi(Programma& programma, ZFatture& zfatture) {
  if (!zfatture.attiva) return;
  const auto fermo = Ferma(programma, zfatture);
  programma.piattaforma.Messaggio(zfatture.Esclusi.testo, Icona::Informazione);
}

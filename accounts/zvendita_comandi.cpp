#include <algorithm>
#include <utility>

#include "accounts/numerazione.h"
#include "accounts/zvendita_interno.h"
#include "core/numeri.h"

namespace {

constexpr int massimo_primo_numero = 32000;

void AttivaImporti(Zvendita& zvendita, bool si) {
  zvendita.Text1[Campo_Spese].attivo = zvendita.Text1[Campo_Prov].attivo = si;
}

// The account's values without blanks around them, as its fields give them to the ledger.
Conto_CV Pulito_Conto(const Conto_CV& conto) {
  return {Testo(Pulito(conto.NCV)),    Testo(Pulito(conto.Data)),   Testo(Pulito(conto.Fornitore)),
          Testo(Pulito(conto.DDT_CV)), Testo(Pulito(conto.SpeAnt)), Testo(Pulito(conto.Prov))};
}

// The supplier's name goes on all rows with the account's number, whosever they are.
bool Conferma_Fornitore(const Programma& programma, const Testo& ncv, const Testo& vecchio,
                        const Testo& nuovo) {
  return programma.piattaforma.Domanda("Attenzione NCV = " + ncv +
                                           " : Il fornitore è stato cambiato da:\n"_t + vecchio + "\na:\n" +
                                           nuovo + "\n...OK per aggiornare i dati al CV n. " + ncv,
                                       Icona::Esclamazione);
}

void Scrivi_Modifica(Programma& programma, Conto_CV& conto, const Conto_CV& nuovo) {
  const Testo vecchio_fornitore = conto.Fornitore;
  conto = nuovo;
  conto.Fornitore = vecchio_fornitore;
  ScriviSuRighe(programma.Vet_Tabella, conto.Fornitore, conto, Riferimento_DDT::Scrivi);
  if (Uguali(Pulito(vecchio_fornitore), nuovo.Fornitore)) return;
  if (!Conferma_Fornitore(programma, nuovo.NCV, vecchio_fornitore, nuovo.Fornitore)) return;
  CambiaFornitoreRighe(programma.Vet_Tabella, nuovo.NCV, nuovo.Fornitore);
  conto.Fornitore = nuovo.Fornitore;
}

bool Giorno_Diverso(const Programma& programma) {
  return programma.Data_AAAAMMGG != Testo_Data(programma.piattaforma.Oggi(), "yyyymmdd");
}

bool Conferma_Altro_Giorno(const Programma& programma) {
  return programma.piattaforma.Domanda(
      "Attenzione cambiando i numeri dei conti di questo giorno (" + programma.Data_Giorno +
          ") \nsi rischia di falsare tutta la numerazione successiva.\n"
          "Prima di combinare è meglio controllare i numeri dei conti vendita dei giorni successivi.\n"_t
          "OK per continuare o Annulla per NON aggiornare....\n"
          "tanto se sbagli la puoi rifare....",
      Icona::Esclamazione);
}

}  // namespace

void TitoloConti(const Programma& programma, Zvendita& zvendita) {
  zvendita.titolo =
      "Conti Vendita del " + programma.Data_Giorno + " Ultimo ncv=" + std::to_string(programma.Ultimo_CV);
  zvendita.titolo_normale = zvendita.titolo;
}

void RiempiListaCV(const Programma& programma, Zvendita& zvendita, int scelta) {
  zvendita.ListaCV.Riempi(RigheListaCV(zvendita.Tabella_CV, programma.Separatore_Decimale));
  SceltaConto(zvendita, std::min(scelta, static_cast<int>(zvendita.Tabella_CV.size()) - 1));
  AggiornaComandi(zvendita);
}

void PrendiCitta(Programma& programma, const Zvendita& zvendita) {
  const Testo citta = Senza_Separatori(Pulito(zvendita.Text1[Campo_Citta].testo));
  if (!citta.empty()) programma.preferenze.CittaCV = citta;
}

Conto_CV CampiConto(const Zvendita& zvendita) {
  const auto campo = [&](Campo_Conto quale) {
    return Senza_Separatori(Pulito(zvendita.Text1[static_cast<std::size_t>(quale)].testo));
  };
  return {campo(Campo_NCV), campo(Campo_Data),  campo(Campo_Fornitore),
          campo(Campo_DDT), campo(Campo_Spese), campo(Campo_Prov)};
}

Conto_CV& ContoScelto(Zvendita& zvendita) {
  return zvendita.Tabella_CV[static_cast<std::size_t>(zvendita.ListaCV.scelta)];
}

bool CampiCambiati(const Zvendita& zvendita) {
  const Conto_CV campi = CampiConto(zvendita);
  const Conto_CV conto = Pulito_Conto(zvendita.Tabella_CV[static_cast<std::size_t>(zvendita.ListaCV.scelta)]);
  using Parte = Testo Conto_CV::*;
  constexpr Parte parti[] = {&Conto_CV::NCV,    &Conto_CV::Data,   &Conto_CV::Fornitore,
                             &Conto_CV::DDT_CV, &Conto_CV::SpeAnt, &Conto_CV::Prov};
  return !std::all_of(std::begin(parti), std::end(parti),
                      [&](Parte parte) { return Uguali(campi.*parte, conto.*parte); });
}

Esito_Modifica EseguiModifica(Programma& programma, Zvendita& zvendita) {
  AttivaImporti(zvendita, false);
  if (zvendita.ListaCV.scelta < 0) SceltaConto(zvendita, 0);
  if (!CampiCambiati(zvendita)) return Esito_Modifica::Uguale;
  if (!programma.piattaforma.Domanda("i dati sono stati cambiati... OK per continuare"))
    return Esito_Modifica::Annullata;
  const Clessidra clessidra(programma.piattaforma);
  const int scelta = zvendita.ListaCV.scelta;
  const Conto_CV prima = ContoScelto(zvendita);
  Ricordo_CV ricordo(programma.Vet_Tabella);
  Scrivi_Modifica(programma, ContoScelto(zvendita), CampiConto(zvendita));
  if (!SalvaConti(programma, ricordo)) {
    ContoScelto(zvendita) = prima;
    AttivaImporti(zvendita, true);
    return Esito_Modifica::Fallita;
  }
  // the account goes with its number to another line, and stays the selected one
  const auto ordine = Ordina_Tabella_CV(zvendita.Tabella_CV, programma.Separatore_Decimale);
  const auto posto = std::find(ordine.begin(), ordine.end(), static_cast<std::size_t>(scelta));
  AttivaImporti(zvendita, true);
  RiempiListaCV(programma, zvendita, static_cast<int>(posto - ordine.begin()));
  return Esito_Modifica::Fatta;
}

bool EseguiSalvaNumerazione(Programma& programma, Zvendita& zvendita) {
  if (!programma.piattaforma.Domanda("ok per salvare i numeri di conto vendita....")) return true;
  if (Giorno_Diverso(programma) && !Conferma_Altro_Giorno(programma)) return true;
  const Clessidra clessidra(programma.piattaforma);
  AttivaImporti(zvendita, false);
  Ricordo_CV ricordo(programma.Vet_Tabella);
  for (const Conto_CV& conto : zvendita.Tabella_CV)
    ScriviSuRighe(programma.Vet_Tabella, conto.Fornitore, Pulito_Conto(conto), Riferimento_DDT::Resta);
  const bool salvati = zvendita.Tabella_CV.empty() || SalvaConti(programma, ricordo);
  AttivaImporti(zvendita, true);
  RiempiListaCV(programma, zvendita, zvendita.ListaCV.scelta);
  if (salvati) programma.piattaforma.Messaggio("fatto...");
  return salvati;
}

bool Aggiorna_Ultimo_CV(Programma& programma, const Zvendita& zvendita) {
  const std::size_t righe = zvendita.ListaCV.Numero();
  if (righe == 0) return true;
  const int numero = Intero(zvendita.ListaCV.Riga(righe - 1), programma.Separatore_Decimale);
  return MettiUltimoCV(programma, std::max(0, numero));
}

void ModificaDati(Programma& programma, Zvendita& zvendita) {
  if (!zvendita.attiva || zvendita.Tabella_CV.empty()) return;
  const auto fermi = Ferma(zvendita);
  EseguiModifica(programma, zvendita);
}

void SalvaNumerazione(Programma& programma, Zvendita& zvendita) {
  if (!zvendita.attiva) return;
  const auto fermi = Ferma(zvendita);
  EseguiSalvaNumerazione(programma, zvendita);
}

void Rinumera(Programma& programma, Zvendita& zvendita) {
  if (!zvendita.attiva) return;
  const auto fermi = Ferma(zvendita);
  if (!programma.piattaforma.Domanda("OK per rinumerare i conti vendita...")) return;
  const auto risposta = programma.piattaforma.Chiedi("primo numero", "Rinumera Conti Vendita",
                                                     std::to_string(programma.Ultimo_CV));
  const int primo = risposta ? NumeroCV(*risposta, programma.Separatore_Decimale) : 0;
  if (primo <= 0 || primo > massimo_primo_numero) return;
  const Tabella_Conti prima = zvendita.Tabella_CV;
  int numero = primo;
  for (Conto_CV& conto : zvendita.Tabella_CV) conto.NCV = std::to_string(numero++);
  RiempiListaCV(programma, zvendita, zvendita.ListaCV.scelta);
  if (!EseguiSalvaNumerazione(programma, zvendita)) {
    // the ledger has its old numbers: the last number of all must not fall below them
    zvendita.Tabella_CV = prima;
    RiempiListaCV(programma, zvendita, zvendita.ListaCV.scelta);
    return;
  }
  Aggiorna_Ultimo_CV(programma, zvendita);
}

void CancellaNumerazione(Programma& programma, Zvendita& zvendita) {
  if (!zvendita.attiva) return;
  const auto fermi = Ferma(zvendita);
  if (!programma.piattaforma.Domanda("OK per cancellare la numerazione attuale dei conti vendita...")) return;
  for (Conto_CV& conto : zvendita.Tabella_CV) conto.NCV = "0";
  RiempiListaCV(programma, zvendita, zvendita.ListaCV.scelta);
}

#include "lists/schermo_esclusi.h"

#include "core/numeri.h"
#include "lists/file_lista.h"
#include "lists/liste.h"

namespace {

constexpr Vista reintegrato = "_r_";
constexpr Vista parola_vuota = "Esclusi";  // stands for a list without codes, also in the file
constexpr Vista senza_file = "99999";      // stands in the table while there is no file

void Elenco_Cambiato(SchermoEsclusi& schermo, int scelta) {
  schermo.List1.Riempi(schermo.codici);
  schermo.List1.scelta = std::min(scelta, static_cast<int>(schermo.codici.size()) - 1);
  schermo.titolo = "Esclusi: " + std::to_string(schermo.codici.size());
}

void Aggiungi(SchermoEsclusi& schermo, Testo codice) {
  schermo.codici.push_back(std::move(codice));
  Elenco_Cambiato(schermo, static_cast<int>(schermo.codici.size()) - 1);
  schermo.Esito.testo = "da salvare";
}

// The two words that stand for a list without codes are no codes.
bool Vuota(const Programma& programma) {
  const auto& voci = programma.Vet_Esclusi;
  if (voci.size() != 1) return voci.empty();
  return voci[0] == parola_vuota || (voci[0] == senza_file && !Esiste_Lista(programma, nomi_file::Esclusi));
}

Testo Senza_Segno(Vista voce) {
  return Testo(Inizia(voce, reintegrato) ? voce.substr(reintegrato.size()) : voce);
}

// A code with zeros in front to five characters; nothing when it is no number.
std::optional<Testo> Codice_A_Cinque(const Programma& programma, Vista testo) {
  const Vista codice = Pulito(testo);
  if (!Numerico(codice, programma.Separatore_Decimale)) return std::nullopt;
  return Pad_Sinistra(codice, 5, '0');
}

}  // namespace

void Prepara_Esclusi(Programma& programma, SchermoEsclusi& schermo) {
  schermo.Aggiungi.testo = "&Aggiungi";
  schermo.Elimina.testo = "&Elimina";
  schermo.Salva.testo = "&Salva";
  schermo.Incolla.testo = "&INCOLLA";
  schermo.Incolla2.testo = "INCOLLA&2";
  schermo.Chiudi.testo = "&Chiudi";
  schermo.Incolla.suggerimento = "un codice per riga";
  schermo.Incolla2.suggerimento = "il codice è la prima parola della riga"_t;
  schermo.AiutoManuale.testo = "Inserimento Manuale:";
  schermo.AiutoAutomatico.testo = "Inserimento Automatico";
  schermo.AiutoDoppioClic.testo = "doppio click per escludere/reintegrare con l'asterisco";
  schermo.codici = Vuota(programma) ? std::vector<Testo>() : programma.Vet_Esclusi;
  Elenco_Cambiato(schermo, -1);
}

void Aggiungi_Escluso(Programma& programma, SchermoEsclusi& schermo) {
  if (Escludi_Codice(programma, schermo, schermo.Text1.testo)) schermo.Text1.testo.clear();
}

bool Escludi_Codice(Programma& programma, SchermoEsclusi& schermo, Vista codice) {
  auto a_cinque = Codice_A_Cinque(programma, codice);
  if (!a_cinque) return false;
  Aggiungi(schermo, std::move(*a_cinque));
  return true;
}

void Elimina_Escluso(Programma& programma, SchermoEsclusi& schermo) {
  const int scelta = schermo.List1.scelta;
  if (scelta < 0) return programma.piattaforma.Messaggio("selezionare il codice da cancellare...");
  schermo.codici.erase(schermo.codici.begin() + scelta);
  Elenco_Cambiato(schermo, scelta);
  schermo.Esito.testo = "da salvare";
}

void Reintegra_Escluso(Programma& programma, SchermoEsclusi& schermo) {
  if (schermo.List1.scelta < 0) return;
  Testo& voce = schermo.codici[static_cast<std::size_t>(schermo.List1.scelta)];
  voce = Inizia(voce, reintegrato) ? Senza_Segno(voce) : Testo(reintegrato) + voce;
  Elenco_Cambiato(schermo, schermo.List1.scelta);
  Salva_Elenco_Esclusi(programma, schermo);
}

bool Salva_Elenco_Esclusi(Programma& programma, SchermoEsclusi& schermo) {
  auto nuovi = schermo.codici;
  if (nuovi.empty()) nuovi.emplace_back(parola_vuota);
  std::swap(programma.Vet_Esclusi, nuovi);
  if (!Salva_Esclusi(programma)) {
    std::swap(programma.Vet_Esclusi, nuovi);
    schermo.Esito.testo = "da salvare";
    return false;
  }
  programma.Vet_Esclusi_Puliti.clear();
  for (const Testo& voce : programma.Vet_Esclusi) programma.Vet_Esclusi_Puliti.push_back(Senza_Segno(voce));
  schermo.Esito.testo = "salvato";
  return true;
}

void Incolla_Esclusi(Programma& programma, SchermoEsclusi& schermo, Incollatura come) {
  Piattaforma& piattaforma = programma.piattaforma;
  const bool prima_parola = come == Incollatura::Prima_Parola;
  Testo testo = piattaforma.Appunti();
  if (testo.empty()) return piattaforma.Messaggio("Nessun testo da incollare...");
  testo = Sostituisci_Tutti(Sostituisci_Tutti(testo, "\r\n", "\n"), "\t", "\n");
  if (prima_parola) testo = Sostituisci_Tutti(testo, "  ", "\n");
  schermo.Appunti.testo = testo;
  piattaforma.Messaggio("dai una occhiata e premi ok...");
  const std::size_t prima = schermo.codici.size();
  for (const Vista riga : Righe(testo)) {
    const Vista pezzo = Pulito(riga);
    if (auto codice = Codice_A_Cinque(programma, prima_parola ? pezzo.substr(0, pezzo.find(' ')) : pezzo))
      schermo.codici.push_back(std::move(*codice));
  }
  if (schermo.codici.size() > prima) {
    Elenco_Cambiato(schermo, static_cast<int>(schermo.codici.size()) - 1);
    schermo.Esito.testo = "da salvare";
  }
  piattaforma.Messaggio("fatto..");
}

#include "primanota/righe.h"

#include <algorithm>
#include <map>

#include "lists/liste.h"
#include "lists/ordina.h"

namespace {

constexpr std::size_t marchio_breve =
    3;  // a mark of up to three characters, "-" in practice, leaves a customer in

Testo Piegato(Vista testo) { return Minuscolo(Pulito(testo)); }

bool Vendita(const LedgerRow& riga) {
  if (Uguali(Pulito(riga[CampoRiga::Fornitore]), Riga_Vuota)) return false;
  return std::any_of(riga.campi.begin() + 1, riga.campi.end(),
                     [](const Testo& campo) { return !Pulito(campo).empty(); });
}

}  // namespace

std::vector<Cliente_Lasciato> ClientiEsclusi(const Programma& programma) {
  std::vector<Cliente_Lasciato> esclusi;
  for (const auto& riga : programma.Vet_Clienti)
    if (Pulito(riga[cliente::Escluso]).size() > marchio_breve)
      esclusi.push_back({riga[cliente::Codice], riga[cliente::RagioneSociale1]});
  return esclusi;
}

std::vector<LedgerRow> RigheDelGiorno(const Tabella& tabella) {
  std::vector<LedgerRow> righe;
  righe.reserve(tabella.righe.size());
  std::copy_if(tabella.righe.begin(), tabella.righe.end(), std::back_inserter(righe), Vendita);
  return righe;
}

std::vector<LedgerRow> SenzaEsclusi(std::vector<LedgerRow> righe,
                                    const std::vector<Cliente_Lasciato>& esclusi,
                                    std::vector<Cliente_Lasciato>* trovati) {
  std::map<Testo, bool> codici;  // and whether a row of that code was found
  for (const Cliente_Lasciato& escluso : esclusi)
    if (Testo codice = Piegato(escluso.Codice); !codice.empty()) codici.emplace(std::move(codice), false);
  std::erase_if(righe, [&](const LedgerRow& riga) {
    const auto codice = codici.find(Piegato(riga[CampoRiga::CodCliente]));
    if (codice == codici.end()) return false;
    codice->second = true;
    return true;
  });
  if (trovati == nullptr) return righe;
  trovati->clear();
  for (const Cliente_Lasciato& escluso : esclusi) {
    const auto codice = codici.find(Piegato(escluso.Codice));
    if (codice == codici.end() || !codice->second) continue;
    trovati->push_back(escluso);
    codice->second = false;  // a code that stands in the list twice is told once
  }
  return righe;
}

std::vector<Nota> NoteDelGiorno(const std::vector<LedgerRow>& righe, bool senza_provenienza) {
  std::map<std::pair<Testo, Testo>, Nota> note;
  for (const LedgerRow& riga : righe) {
    const Vista prov = senza_provenienza ? Vista() : Pulito(riga[CampoRiga::Prov]);
    const Vista nome = Pulito(riga[CampoRiga::Fornitore]);
    note.try_emplace({Minuscolo(prov), Minuscolo(nome)}, Nota{Testo(prov), Testo(nome)});
  }
  std::vector<Nota> esito;
  esito.reserve(note.size());
  for (auto& [chiave, nota] : note) esito.push_back(std::move(nota));
  return esito;
}

Testo VoceNota(const Nota& nota) { return nota.Prov + " ::: " + nota.Fornitore; }

std::vector<LedgerRow> RigheDellaNota(const std::vector<LedgerRow>& righe, const Nota& nota,
                                      bool senza_provenienza) {
  std::vector<LedgerRow> esito;
  std::copy_if(righe.begin(), righe.end(), std::back_inserter(esito), [&](const LedgerRow& riga) {
    return Uguali(Pulito(riga[CampoRiga::Fornitore]), nota.Fornitore) &&
           (senza_provenienza || Uguali(Pulito(riga[CampoRiga::Prov]), nota.Prov));
  });
  return esito;
}

void OrdinaNota(std::vector<LedgerRow>& righe, bool per_specie) {
  Ordina_Righe(righe, {per_specie ? CampoRiga::Specie : CampoRiga::Num});
}

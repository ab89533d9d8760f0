#include "accounts/conti.h"

#include "core/numeri.h"
#include "lists/consolida.h"
#include "lists/liste.h"

namespace {

constexpr std::size_t larghezza_nome = 15, larghezza_spese = 7;

Testo Cifre(Vista ncv, Vista modello, char separatore) {
  return Formato(static_cast<double>(NumeroCV(ncv, separatore)), modello, separatore);
}

// Copies the supplier's rows whose price lies on that side of 0.
void Accoda_Righe(std::vector<LedgerRow>& righe, const Tabella& tabella, Vista fornitore, bool positive,
                  char separatore) {
  for (const LedgerRow& riga : tabella.righe) {
    if (!Uguali(Pulito(riga[CampoRiga::Fornitore]), fornitore)) continue;
    const double prezzo = Numero(riga[CampoRiga::Prezzo], separatore).value_or(0);
    if (positive ? prezzo > 0 : prezzo < 0) righe.push_back(riga);
  }
}

}  // namespace

int NumeroCV(Vista ncv, char separatore) { return Intero(ncv, separatore); }

bool Numerato(Vista ncv, char separatore) {
  const int numero = NumeroCV(ncv, separatore);
  return numero != 0 && numero != Senza_Numero_CV;
}

Tabella_Conti ContiDelGiorno(const Tabella& tabella, CampoRiga chiave, char separatore) {
  Tabella_Conti conti;
  const LedgerRow* dopo = nullptr;
  for (auto riga = tabella.righe.rbegin(); riga != tabella.righe.rend(); ++riga) {
    if ((*riga)[CampoRiga::Fornitore] == Riga_Vuota) continue;
    const bool nuovo = dopo == nullptr || !Uguali((*riga)[chiave], (*dopo)[chiave]);
    dopo = &*riga;
    if (!nuovo) continue;
    conti.push_back({(*riga)[CampoRiga::NCV], (*riga)[CampoRiga::DataCV], (*riga)[CampoRiga::Fornitore],
                     (*riga)[CampoRiga::DDT_CV], Normalizza_Numero((*riga)[CampoRiga::SAnt], separatore),
                     Normalizza_Numero((*riga)[CampoRiga::Provvigione], separatore)});
  }
  return conti;
}

std::vector<std::size_t> Ordina_Tabella_CV(Tabella_Conti& conti, char separatore) {
  std::vector<Testo> chiavi;
  chiavi.reserve(conti.size());
  for (const Conto_CV& conto : conti) chiavi.push_back(Cifre(conto.NCV, "0000", separatore) + " ");
  auto ordine = Ordine_Chiavi(std::move(chiavi));
  Riordina(conti, ordine);
  return ordine;
}

Testo RigaListaCV(const Conto_CV& conto, char separatore) {
  return Cifre(conto.NCV, "00000", separatore) + " |" + conto.Data + "|" +
         Pad(conto.Fornitore, larghezza_nome) + "|" + Pad(conto.DDT_CV, larghezza_nome) + "|" +
         Pad_Sinistra(conto.SpeAnt, larghezza_spese) + "|" + conto.Prov + " %";
}

std::vector<Testo> RigheListaCV(const Tabella_Conti& conti, char separatore) {
  std::vector<Testo> righe;
  righe.reserve(conti.size());
  for (const Conto_CV& conto : conti) righe.push_back(RigaListaCV(conto, separatore));
  return righe;
}

Testo TitoloListaCV() { return "NCV   | data     |   Fornitore   |     DDT_CV    |SpeAnt.|Prov.%"; }

void Consolida_CV(std::vector<LedgerRow>& righe, CampoRiga chiaveA, CampoRiga chiaveB, CampoRiga sommaA,
                  CampoRiga sommaB, char separatore) {
  Consolida(righe, {chiaveA, chiaveB}, {sommaA, sommaB}, separatore);
}

std::vector<LedgerRow> CaricaRigheCV(const Tabella& tabella, Vista fornitore, bool senza_note,
                                     char separatore) {
  std::vector<LedgerRow> righe;
  fornitore = Pulito(fornitore);
  Accoda_Righe(righe, tabella, fornitore, true, separatore);
  if (!senza_note) Accoda_Righe(righe, tabella, fornitore, false, separatore);
  Consolida_CV(righe, CampoRiga::Specie, CampoRiga::Prezzo, CampoRiga::Peso, CampoRiga::Colli, separatore);
  return righe;
}

std::optional<Testata_Fornitore> CercaFornitoreCV(const Programma& programma, Vista nome) {
  nome = Pulito(nome);
  if (nome.empty()) return std::nullopt;
  for (const auto& riga : programma.Vet_Fornitori) {
    if (!Uguali(Pulito(riga[fornitore::RagioneSociale1]), nome)) continue;
    return Testata_Fornitore{riga[fornitore::Codice],          riga[fornitore::RagioneSociale1],
                             riga[fornitore::RagioneSociale2], riga[fornitore::Via],
                             riga[fornitore::Citta],           riga[fornitore::PIva]};
  }
  return std::nullopt;
}

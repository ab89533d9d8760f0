#include "accounts/numerazione.h"

#include <limits>
#include <utility>

#include "core/giorno.h"
#include "core/numeri.h"
#include "lists/ordina.h"

namespace {

bool Del_Fornitore(const LedgerRow& riga, Vista fornitore) {
  return Uguali(riga[CampoRiga::Fornitore], fornitore);
}

// The supplier's rows with the number that the account had before and the day's date; true when one changed.
bool Rimetti_Numero(Programma& programma, const Conto_CV& conto) {
  bool cambiata = false;
  for (LedgerRow& riga : programma.Vet_Tabella.righe) {
    if (!Del_Fornitore(riga, conto.Fornitore)) continue;
    cambiata =
        cambiata || riga[CampoRiga::NCV] != conto.NCV || riga[CampoRiga::DataCV] != programma.Data_Giorno;
    riga[CampoRiga::NCV] = conto.NCV;
    riga[CampoRiga::DataCV] = programma.Data_Giorno;
  }
  return cambiata;
}

}  // namespace

Ricordo_CV::Ricordo_CV(const Tabella& tabella, Vista fornitore) {
  for (std::size_t i = 0; i < tabella.righe.size(); ++i)
    if (Del_Fornitore(tabella.righe[i], fornitore)) Ricorda(i, tabella.righe[i]);
}

Ricordo_CV::Ricordo_CV(const Tabella& tabella) {
  righe_.reserve(tabella.righe.size());
  for (std::size_t i = 0; i < tabella.righe.size(); ++i) Ricorda(i, tabella.righe[i]);
}

void Ricordo_CV::Ricorda(std::size_t posto, const LedgerRow& riga) {
  righe_.push_back({posto, riga[CampoRiga::NCV], riga[CampoRiga::DataCV], riga[CampoRiga::DDT_CV],
                    riga[CampoRiga::SAnt], riga[CampoRiga::Provvigione], riga[CampoRiga::Fornitore]});
}

void Ricordo_CV::Rimetti(Tabella& tabella) {
  for (Riga& prima : righe_) {
    LedgerRow& riga = tabella.righe[prima.posto];
    riga[CampoRiga::NCV] = std::move(prima.NCV);
    riga[CampoRiga::DataCV] = std::move(prima.DataCV);
    riga[CampoRiga::DDT_CV] = std::move(prima.DDT_CV);
    riga[CampoRiga::SAnt] = std::move(prima.SAnt);
    riga[CampoRiga::Provvigione] = std::move(prima.Provvigione);
    riga[CampoRiga::Fornitore] = std::move(prima.Fornitore);
  }
  righe_.clear();
}

bool SalvaConti(Programma& programma, Ricordo_CV& ricordo) {
  bool errore = false;
  Salva_Giorno(programma, errore);
  if (errore) ricordo.Rimetti(programma.Vet_Tabella);
  return !errore;
}

void PreparaLibro(Programma& programma) {
  Ordina_Colonna(programma, CampoRiga::Fornitore);
  for (LedgerRow& riga : programma.Vet_Tabella.righe) {
    if (riga[CampoRiga::Fornitore] == Riga_Vuota || riga[CampoRiga::DataCV] == programma.Data_Giorno)
      continue;
    riga[CampoRiga::DataCV] = programma.Data_Giorno;
    programma.Tabella_Modificata = true;
  }
}

bool NumeraConti(Programma& programma, Tabella_Conti& conti, const std::function<void()>& numerato) {
  bool da_salvare = true;  // the order and the dates of the opening
  for (Conto_CV& conto : conti) {
    const bool da_numerare = !Numerato(conto.NCV, programma.Separatore_Decimale);
    if (!da_numerare && !da_salvare) continue;
    Ricordo_CV ricordo(programma.Vet_Tabella, conto.Fornitore);
    if (da_numerare && Rimetti_Numero(programma, conto)) da_salvare = true;
    if (std::exchange(da_salvare, false) && !SalvaConti(programma, ricordo)) return false;
    const int numero = da_numerare ? ProssimoCV(programma) : programma.Ultimo_CV;
    if (!MettiUltimoCV(programma, numero)) return false;
    if (da_numerare) {
      conto.NCV = std::to_string(numero);
      conto.Data = programma.Data_Giorno;
    }
    numerato();
  }
  return true;
}

void ScriviSuRighe(Tabella& tabella, Vista fornitore, const Conto_CV& conto, Riferimento_DDT ddt) {
  for (LedgerRow& riga : tabella.righe) {
    if (!Del_Fornitore(riga, fornitore)) continue;
    riga[CampoRiga::NCV] = conto.NCV;
    riga[CampoRiga::DataCV] = conto.Data;
    if (ddt == Riferimento_DDT::Scrivi && !Inizia(Pulito(riga[CampoRiga::Prezzo]), "-"))
      riga[CampoRiga::DDT_CV] = conto.DDT_CV;
    riga[CampoRiga::SAnt] = conto.SpeAnt;
    riga[CampoRiga::Provvigione] = conto.Prov;
  }
}

void CambiaFornitoreRighe(Tabella& tabella, Vista ncv, const Testo& fornitore) {
  for (LedgerRow& riga : tabella.righe)
    if (Uguali(riga[CampoRiga::NCV], ncv)) riga[CampoRiga::Fornitore] = fornitore;
}

int ProssimoCV(const Programma& programma) {
  // a foreign file of last numbers may hold the highest number there is
  return programma.Ultimo_CV < std::numeric_limits<std::int32_t>::max() ? programma.Ultimo_CV + 1 : 1;
}

bool MettiUltimoCV(Programma& programma, int numero) {
  const auto prima = std::exchange(programma.Ultimo_CV, numero);
  if (Salva_Ultimi_Numeri(programma)) return true;
  programma.Ultimo_CV = prima;
  return false;
}

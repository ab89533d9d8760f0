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

// The first account's save takes also the order and the dates of the opening; later ones without a change
// have nothing to write.
bool Salva_Numerazione(Programma& programma, Ricordo_CV& ricordo, int numero) {
  return SalvaConti(programma, ricordo) && MettiUltimoCV(programma, numero);
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
  bool primo = true;
  for (Conto_CV& conto : conti) {
    const bool da_numerare = !Numerato(conto.NCV, programma.Separatore_Decimale);
    if (!da_numerare && !std::exchange(primo, false)) continue;
    primo = false;
    Ricordo_CV ricordo(programma.Vet_Tabella, conto.Fornitore);
    if (da_numerare) {
      for (LedgerRow& riga : programma.Vet_Tabella.righe) {
        if (!Del_Fornitore(riga, conto.Fornitore)) continue;
        riga[CampoRiga::NCV] = conto.NCV;
        riga[CampoRiga::DataCV] = programma.Data_Giorno;
      }
    }
    const int numero = da_numerare ? ProssimoCV(programma) : programma.Ultimo_CV;
    if (!Salva_Numerazione(programma, ricordo, numero)) return false;
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

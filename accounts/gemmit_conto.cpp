#include "accounts/gemmit_conto.h"

#include <set>

#include "core/numeri.h"
#include "lists/consolida.h"

namespace {

constexpr Vista riferimento_credito = "Rif.";

bool E_Di_Credito(Vista riferimento) { return Inizia(Pulito(riferimento), riferimento_credito); }

// A reference to a delivery; "-" stands for none.
bool E_Riferimento(Vista riferimento) {
  const Vista pulito = Pulito(riferimento);
  return !pulito.empty() && pulito != "-" && !E_Di_Credito(pulito);
}

bool E_Del_Conto(const LedgerRow& riga, Vista chiave) {
  return riga[CampoRiga::Fornitore] != Riga_Vuota && ChiaveNCV(riga[CampoRiga::NCV]) == chiave;
}

// The last one of the account's rows, as the account's other values are of its last row.
void Cerca_Altro_Riferimento(Conto_CV& conto, const Tabella& tabella) {
  const Testo chiave = ChiaveNCV(conto.NCV);
  for (auto riga = tabella.righe.rbegin(); riga != tabella.righe.rend(); ++riga) {
    if (!E_Del_Conto(*riga, chiave) || !E_Riferimento((*riga)[CampoRiga::DDT_CV])) continue;
    conto.DDT_CV = (*riga)[CampoRiga::DDT_CV];
    return;
  }
}

// The rates are compared each by itself: two of one value both take the line.
void Somma_Aliquote(Importi_CV& importi, const Regole_Importi& regole) {
  for (const Riga_Importo& riga : importi.righe) {
    if (riga.IvaCV == regole.PrimaAliquota) importi.Imponibile1 += riga.ImportoCV;
    if (riga.IvaCV == regole.SecondaAliquota) importi.Imponibile2 += riga.ImportoCV;
    if (riga.IvaCV == regole.TerzaAliquota) importi.Imponibile3 += riga.ImportoCV;
  }
}

}  // namespace

Testo ChiaveNCV(Vista ncv) {
  Vista chiave = Pulito(ncv);
  if (!Tutte_Cifre(chiave)) return Minuscolo(chiave);
  chiave.remove_prefix(std::min(chiave.find_first_not_of('0'), chiave.size() - 1));
  return Testo(chiave);
}

Tabella_Conti ContiManuali(const Tabella& tabella, Vista giorno, char separatore) {
  Tabella_Conti conti = ContiDelGiorno(tabella, CampoRiga::NCV, separatore);
  std::set<Testo> visti;
  std::erase_if(conti, [&](const Conto_CV& conto) { return !visti.insert(ChiaveNCV(conto.NCV)).second; });
  for (Conto_CV& conto : conti) {
    if (!E_Data(conto.Data)) conto.Data = giorno;
    if (E_Di_Credito(conto.DDT_CV)) Cerca_Altro_Riferimento(conto, tabella);
  }
  Ordina_Tabella_CV(conti, separatore);
  return conti;
}

std::vector<LedgerRow> RigheContoManuale(const Tabella& tabella, Vista ncv, char separatore) {
  const Testo chiave = ChiaveNCV(ncv);
  std::vector<LedgerRow> righe;
  for (const LedgerRow& riga : tabella.righe)
    if (E_Del_Conto(riga, chiave)) righe.push_back(riga);
  Consolida(righe, {CampoRiga::Specie, CampoRiga::Prezzo}, {CampoRiga::Peso}, separatore);
  return righe;
}

std::vector<Testo> FornitoriConto(const Tabella& tabella, Vista ncv) {
  const Testo chiave = ChiaveNCV(ncv);
  std::vector<Testo> nomi;
  for (const LedgerRow& riga : tabella.righe) {
    if (!E_Del_Conto(riga, chiave)) continue;
    const Vista nome = Pulito(riga[CampoRiga::Fornitore]);
    if (std::none_of(nomi.begin(), nomi.end(), [&](const Testo& altro) { return Uguali(altro, nome); }))
      nomi.emplace_back(nome);
  }
  return nomi;
}

Importi_CV ImportiManuali(const std::vector<LedgerRow>& righe, const Preferenze& preferenze, Vista speAnt,
                          Vista prov, char separatore) {
  const Regole_Importi regole = RegoleManuali(preferenze);
  std::vector<double> aliquote;
  Importi_CV importi = RigheImporti(righe, false, aliquote, separatore);
  importi.Prov = Numero(prov, separatore).value_or(0);
  importi.SpeAnt = Numero(speAnt, separatore).value_or(0);
  Somma_Aliquote(importi, regole);
  const double p = 0.01 * importi.Prov;
  importi.ImponibileTotale = importi.Imponibile1 + importi.Imponibile2;
  importi.Commissioni = p * importi.ImponibileTotale;
  importi.Imponibile1 = (1 - p) * importi.Imponibile1;
  importi.Imponibile2 = (1 - p) * importi.Imponibile2;
  importi.Iva1 = 0.01 * regole.PrimaAliquota * importi.Imponibile1;
  importi.Iva2 = 0.01 * regole.SecondaAliquota * importi.Imponibile2;
  importi.Iva3 = 0.01 * regole.TerzaAliquota * importi.Imponibile3;
  importi.TotaleCV = (0.01 * regole.SecondaAliquota + 1) * importi.Imponibile2 +
                     (0.01 * regole.PrimaAliquota + 1) * importi.Imponibile1 +
                     (0.01 * regole.TerzaAliquota + 1) * importi.Imponibile3;
  importi.TotaleEuro = importi.TotaleCV - importi.SpeAnt;
  return importi;
}

Regole_Importi RegoleManuali(const Preferenze& preferenze) {
  Regole_Importi regole = RegoleImporti(preferenze, false);
  regole.FlagSarvena = false;
  return regole;
}

Scelta_Tracciato TracciatoManuale(int FlagStampaFrame) {
  const Scelta_Tracciato scelta = TracciatoCV(FlagStampaFrame);
  return scelta.tracciato == Tracciato_CV::Colli ? Scelta_Tracciato() : scelta;
}

Diciture_CV DicitureManuali() { return {"Telefono:", "Spese Anticipate Euro", "Provvigioni ", "P.IVA "}; }

Testo TitoloAnteprimaManuale() { return "Nr.  Qualità   Kg.   Prezzo    Importo    Iva"_t; }

#include "accounts/importi.h"

#include "core/numeri.h"

namespace {

Riga_Importo Fai_Riga(const LedgerRow& riga, char separatore) {
  Riga_Importo esito;
  esito.Descr = riga[CampoRiga::Specie];
  esito.AlfaCV = " (" + riga[CampoRiga::Alfa] + ")";
  esito.NrColli = riga[CampoRiga::Colli];
  esito.Kg = Numero(riga[CampoRiga::Peso], separatore).value_or(0);
  esito.PrezzoCV = Numero(riga[CampoRiga::Prezzo], separatore).value_or(0);
  esito.ImportoCV = esito.Kg * esito.PrezzoCV;
  return esito;
}

// The three comparisons are independent of each other: two rates of one value both take the line.
void Somma_Righe(Importi_CV& importi, const Regole_Importi& regole) {
  for (const Riga_Importo& riga : importi.righe) {
    if (regole.AzzeraIva) {
      importi.Imponibile1 += riga.ImportoCV;
      continue;
    }
    if (riga.IvaCV == regole.TerzaAliquota) importi.Imponibile3 += riga.ImportoCV;
    if (riga.IvaCV == regole.PrimaAliquota) importi.Imponibile1 += riga.ImportoCV;
    if (riga.IvaCV == regole.SecondaAliquota) importi.Imponibile2 += riga.ImportoCV;
  }
}

double Somma_Netti(const Importi_CV& importi) {
  return importi.Imponibile1 + importi.Imponibile2 + importi.Imponibile3;
}

void Togli_Commissioni(Importi_CV& importi, double p) {
  importi.Imponibile1 = (1 - p) * importi.Imponibile1;
  importi.Imponibile2 = (1 - p) * importi.Imponibile2;
  importi.Imponibile3 = (1 - p) * importi.Imponibile3;
}

void Calcola_Iva(Importi_CV& importi, const Regole_Importi& regole) {
  if (regole.AzzeraIva) return;
  importi.Iva1 = 0.01 * regole.PrimaAliquota * importi.Imponibile1;
  importi.Iva2 = 0.01 * regole.SecondaAliquota * importi.Imponibile2;
  importi.Iva3 = 0.01 * regole.TerzaAliquota * importi.Imponibile3;
}

void Totali_Normali(Importi_CV& importi, const Regole_Importi& regole) {
  importi.TotaleCV = regole.AzzeraIva ? Somma_Netti(importi)
                                      : (0.01 * regole.PrimaAliquota + 1) * importi.Imponibile1 +
                                            (0.01 * regole.SecondaAliquota + 1) * importi.Imponibile2 +
                                            (0.01 * regole.TerzaAliquota + 1) * importi.Imponibile3;
  importi.TotaleEuro = importi.TotaleCV - importi.SpeAnt;
}

// The expenses are reimbursed by an invoice of their own. Where VAT is charged neither it nor they enter the
// total here: it is the layout that completes it.
void Totali_Sarvena(Importi_CV& importi, const Regole_Importi& regole) {
  importi.TotaleCV = Somma_Netti(importi);
  importi.TotaleEuro = regole.AzzeraIva ? importi.TotaleCV - importi.SpeseAcc : importi.TotaleCV;
}

}  // namespace

Regole_Importi RegoleImporti(const Preferenze& preferenze, bool AzzeraIva) {
  return {preferenze.Aliquota1, preferenze.Aliquota2, preferenze.Aliquota3, AzzeraIva,
          preferenze.FlagSarvena};
}

Importi_CV RigheImporti(const std::vector<LedgerRow>& righe, bool AzzeraIva, std::vector<double>& IvaCV,
                        char separatore) {
  Importi_CV importi;
  importi.righe.reserve(righe.size());
  IvaCV.resize(righe.size());
  for (std::size_t i = 0; i < righe.size(); ++i) {
    Riga_Importo& riga = importi.righe.emplace_back(Fai_Riga(righe[i], separatore));
    if (!AzzeraIva) IvaCV[i] = Numero(righe[i][CampoRiga::Iva], separatore).value_or(0);
    riga.IvaCV = IvaCV[i];
    importi.KgTotali += riga.Kg;
  }
  return importi;
}

Importi_CV CalcolaImporti(const std::vector<LedgerRow>& righe, const Regole_Importi& regole, Vista speAnt,
                          Vista prov, std::vector<double>& IvaCV, char separatore) {
  Importi_CV importi = RigheImporti(righe, regole.AzzeraIva, IvaCV, separatore);
  importi.Prov = Numero(prov, separatore).value_or(0);
  importi.SpeAnt = Numero(speAnt, separatore).value_or(0);
  Somma_Righe(importi, regole);
  const double p = 0.01 * importi.Prov;
  importi.ImponibileTotale = Somma_Netti(importi);  // not net yet
  importi.Commissioni = p * importi.ImponibileTotale;
  if (regole.FlagSarvena)
    importi.SpeAnt = importi.SpeseAcc = 0.01 * importi.SpeAnt * importi.ImponibileTotale;
  Togli_Commissioni(importi, p);
  Calcola_Iva(importi, regole);
  if (regole.FlagSarvena)
    Totali_Sarvena(importi, regole);
  else
    Totali_Normali(importi, regole);
  return importi;
}

void CompletaPerTipo1(Importi_CV& importi, const Regole_Importi& regole) {
  if (regole.FlagSarvena)
    importi.TotaleCV = Somma_Netti(importi) + importi.Iva1 + importi.Iva2 + importi.Iva3;
  else
    importi.Commissioni = 0.01 * importi.Prov * importi.ImponibileTotale;
}

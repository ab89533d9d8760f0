#include "invoices/importi.h"

#include <cstddef>

#include "core/numeri.h"
#include "lists/consolida.h"

namespace {

using enum CampoRiga;

// An entry of a coded list: its readable text stands behind the code and a gap.
constexpr CampoRiga codificati[] = {MetodoPesca, Pezzatura, StatoFisico, Lavorazione, Preparazione};
constexpr std::size_t inizio_testo = 5;

double Leggi(const LedgerRow& riga, CampoRiga campo, char separatore) {
  return Numero(riga[campo], separatore).value_or(0);
}

Testo Attributi_Di(const LedgerRow& riga) {
  Testo attributi = " ";
  attributi.append(riga[Alfa]).append(", ");
  for (const CampoRiga campo : codificati) attributi.append(Da(riga[campo], inizio_testo)).append(", ");
  const Vista sbarco = Pulito(riga[PrimoImb]);
  if (sbarco.size() > 3) attributi.append(Pulito(Da(sbarco, 2))).append(", ");
  attributi.append("Prov. ").append(riga[Prov]);
  return Testo(Pulito(attributi));
}

}  // namespace

void UnisciRighe(std::vector<LedgerRow>& righe, bool esteso, char separatore) {
  if (esteso)
    Consolida(righe, {Specie, Prezzo, Lotti, CodiciConsolidare}, {Peso, Colli}, separatore);
  else
    Consolida(righe, {Specie, Prezzo, ZonaP, Lotti}, {Peso, Colli}, separatore);
}

Voce_Documento ComponiVoce(const LedgerRow& riga, char separatore) {
  Voce_Documento voce;
  voce.riga = riga;
  voce.Voce = riga[Specie];
  voce.Attrezzo = riga[MetodoPesca];
  voce.ZonaRiga = Pulito(riga[Prov]);
  voce.ZonaPesca = Pulito(riga[ZonaP]);
  voce.Lotto = Pulito(riga[Lotti]);
  voce.RifRiga = riga[DDT];
  voce.Latino = riga[NomeLatino];
  voce.Consolida = Pulito(riga[CodiciConsolidare]);
  voce.Attributi = Attributi_Di(riga);
  voce.PesoRiga = Leggi(riga, Peso, separatore);
  voce.PrezzoRiga = Leggi(riga, Prezzo, separatore);
  voce.IvaRiga = Leggi(riga, Iva, separatore);
  voce.ColliRiga = Leggi(riga, Colli, separatore);
  voce.Importo = voce.PesoRiga * voce.PrezzoRiga;
  return voce;
}

Importi CalcolaImporti(const std::vector<Voce_Documento>& voci, const std::array<double, 3>& aliquote) {
  Importi importi;
  importi.Aliquota = aliquote;
  for (const Voce_Documento& voce : voci) {
    importi.TotalePeso += voce.PesoRiga;
    importi.TotaleColli += voce.ColliRiga;
    // each rate by itself: two equal ones both take the line
    for (std::size_t i = 0; i < aliquote.size(); ++i)
      if (voce.IvaRiga == aliquote[i]) importi.Imponibile[i] += voce.Importo;
  }
  for (std::size_t i = 0; i < aliquote.size(); ++i) {
    importi.Iva[i] = (0.01 * aliquote[i]) * importi.Imponibile[i];
    importi.TotaleImponibile += importi.Imponibile[i];
    importi.TotaleIva += importi.Iva[i];
    // from the taxable amounts, not from the two totals: the last bits decide how a half cent is rounded
    importi.TotaleDocumento += (0.01 * aliquote[i] + 1) * importi.Imponibile[i];
  }
  importi.TotalePagare = importi.TotaleDocumento;
  return importi;
}

void AggiungiSpese(Importi& importi, double spese, double aliquota) {
  const auto& [imponibile1, imponibile2, imponibile3] = importi.Imponibile;
  const auto& [iva1, iva2, iva3] = importi.Iva;
  importi.Spese = spese;
  importi.SpeseAliquota = aliquota;
  importi.IvaSpese = spese * aliquota * 0.01;
  importi.TotaleImponibile = imponibile1 + imponibile2 + imponibile3 + spese;
  importi.TotaleIva = iva1 + iva2 + iva3 + importi.IvaSpese;
  importi.TotaleDocumento =
      iva1 + iva2 + iva3 + importi.IvaSpese + imponibile1 + imponibile2 + imponibile3 + spese;
  importi.TotalePagare = importi.TotaleDocumento;
}

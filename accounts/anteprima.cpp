#include "accounts/pagine.h"
#include "core/numeri.h"

namespace {

constexpr std::size_t larghezza_descrizione = 20;

Testo Riga_Conto(std::size_t numero, const Riga_Importo& riga, char separatore) {
  return " " + Formato(static_cast<double>(numero), "000 ", separatore) + " : " +
         Pad(riga.Descr, larghezza_descrizione) + " : " + Num3_Migliaia(riga.Kg, separatore) + " x " +
         Euro2_Migliaia(riga.PrezzoCV, separatore) + " = " + Euro2_Migliaia(riga.ImportoCV, separatore) +
         " + " + Formato(riga.IvaCV, "00.#", separatore) + "% ";
}

void Accoda_Testata(std::vector<Testo>& righe, const Testata_Fornitore& fornitore) {
  righe.push_back("Spett.le  " + fornitore.RagSoc1);
  if (fornitore.RagSoc2.size() > 1) righe.push_back(fornitore.RagSoc2);
  righe.push_back(fornitore.CapCitta + " " + fornitore.Indirizzo);
  righe.push_back(" ");
}

void Accoda_Totali(std::vector<Testo>& righe, const Importi_CV& importi, char separatore) {
  const auto formato = [&](double valore, Vista modello) { return Formato(valore, modello, separatore); };
  righe.push_back(" ");
  righe.push_back("Totale Imponibile = " + Euro2_Migliaia(importi.ImponibileTotale, separatore));
  righe.push_back("Totale commissioni (" + formato(importi.Prov, "##.00") +
                  " %) = " + formato(importi.Commissioni, "##.000"));
  // the place of taxable sum and VAT at each rate, which the preview has always left empty
  for (const double netto : {importi.Imponibile3, importi.Imponibile1, importi.Imponibile2})
    if (netto > 0) righe.insert(righe.end(), 2, Testo());
  righe.push_back("Totale  =" + formato(importi.TotaleCV, "##.00"));
  if (importi.SpeAnt != 0) {
    righe.push_back("Spese anticipate = " + Euro2_Migliaia(importi.SpeAnt, separatore));
    righe.push_back("Totale =" + formato(importi.TotaleEuro, "##.00"));
  }
  righe.push_back(" ");
  righe.push_back("Kg Totali " + formato(importi.KgTotali, "#0.00"));
  righe.push_back(" ");
  righe.push_back("ESC per tornare....");
}

}  // namespace

Testo TitoloAnteprima() { return "Nr.  Qualità                Kg.   Prezzo  Importo Iva"_t; }

std::vector<Testo> RigheAnteprima(const Documento_CV& documento, Vista titolo, char separatore) {
  std::vector<Testo> righe;
  Accoda_Testata(righe, documento.fornitore);
  righe.push_back("Num Conto Vendita: " + documento.conto.NCV);
  righe.push_back("Data: " + documento.conto.Data);
  righe.push_back("Rif. DDT/Bolla n. " + documento.conto.DDT_CV);
  righe.push_back(" ");
  righe.emplace_back(titolo);
  righe.push_back(" ");
  std::size_t numero = 0;
  for (const Riga_Importo& riga : documento.importi.righe)
    righe.push_back(Riga_Conto(++numero, riga, separatore));
  Accoda_Totali(righe, documento.importi, separatore);
  return righe;
}

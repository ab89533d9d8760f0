#include "invoices/lear.h"

#include "core/numeri.h"
#include "invoices/record.h"

namespace {

constexpr std::size_t lunghezza_nome = 18, cifre_piva = 11, cifre_numero = 5, cifre_cliente = 5;
constexpr std::size_t cifre_aliquota = 5, cifre_imponibile = 12, cifre_iva = 11, cifre_totale = 12;
constexpr std::size_t prima_del_testo = 11, dopo_il_testo = 32;

Testo Numero_Del_Nome(const Programma& programma, const Documento_Fattura& documento) {
  const char separatore = programma.Separatore_Decimale;
  return NumeroRecord(ValoreNumero(documento.Numero, separatore), cifre_numero, separatore);
}

// "zz" stands in the list for no nickname, so that those customers sort last.
Vista Secondo_Nome(const Cliente_Fattura& cliente) {
  return cliente.Soprannome == "zz" ? Vista() : Vista(cliente.Soprannome);
}

Testo ModelloLear(const Programma& programma) { return programma.Data_AAAAMMGG + "_?????_Lear.txt"; }

}  // namespace

Percorso CartellaLear(const Programma& programma) {
  return Unisci_Percorso(programma.Cartella_Dati, "_ReportLear");
}

Testo NomeLear(const Programma& programma, const Documento_Fattura& documento) {
  return documento.Data_AAAAMMGG + "_" + Numero_Del_Nome(programma, documento) + "_Lear.txt";
}

Testo RecordLear(const Programma& programma, const Documento_Fattura& documento) {
  const char separatore = programma.Separatore_Decimale;
  const auto per_cento = [&](double valore, std::size_t lunghezza) {
    return NumeroRecord(valore * 100, lunghezza, separatore);
  };
  const auto gruppo = [&](double aliquota, double imponibile, double iva) {
    return per_cento(aliquota, cifre_aliquota) + per_cento(imponibile, cifre_imponibile) +
           per_cento(iva, cifre_iva);
  };
  const Cliente_Fattura& cliente = documento.cliente;
  const Importi& importi = documento.importi;
  Testo record = Pad(cliente.Nome, lunghezza_nome);
  record += Pad(Destra(Pulito_Destra(programma.Ragione.back()), cifre_piva), cifre_piva);
  record += Pad(Da(documento.Data_AAAAMMGG, 3), 6);
  record += Numero_Del_Nome(programma, documento);
  record += CodiceRecord(cliente.Codice, cifre_cliente);
  record += Pad(Secondo_Nome(cliente), lunghezza_nome);
  record += cliente.PIva;
  record += "B" + Testo(prima_del_testo, ' ');
  for (std::size_t i = 0; i < importi.Aliquota.size(); ++i)
    record += gruppo(importi.Aliquota[i], importi.Imponibile[i], importi.Iva[i]);
  record += gruppo(0, 0, 0) + gruppo(0, 0, 0);
  for (const double totale : {importi.TotalePagare, importi.TotaleImponibile, importi.TotaleDocumento})
    record += per_cento(totale, cifre_totale);
  return record + Maiuscolo(cliente.Nome) + Testo(dopo_il_testo, ' ');
}

Esito_File ScriviLear(const Programma& programma, const std::vector<Documento_Fattura>& documenti) {
  const Percorso cartella = CartellaLear(programma);
  if (!documenti.empty())
    if (const int errore = programma.disco.Crea_Cartella(cartella)) return {errore, cartella, true};
  std::vector<File_Documento> file;
  file.reserve(documenti.size());
  for (const Documento_Fattura& documento : documenti)
    file.push_back({NomeLear(programma, documento), RecordLear(programma, documento) + Testo(FINE_RIGA)});
  return SostituisciFile(programma.disco, cartella, ModelloLear(programma), file);
}

Esito_File CancellaLear(const Programma& programma) { return ScriviLear(programma, {}); }

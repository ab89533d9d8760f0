#include "invoices/pagine_grafiche.h"

#include "invoices/foglio.h"

namespace {

bool Prestampata(Tracciato_Fattura tracciato) {
  return tracciato == Tracciato_Fattura::Grafica2 || tracciato == Tracciato_Fattura::Grafica3 ||
         tracciato == Tracciato_Fattura::Grafica4 || tracciato == Tracciato_Fattura::Vettore;
}

}  // namespace

int VociPerPaginaGrafica(const Programma& programma, Tracciato_Fattura tracciato, float altezza) {
  if (Prestampata(tracciato)) return Voci_Prestampata(programma);
  return Voci_Intestata(programma, tracciato == Tracciato_Fattura::Nota_Grafica, altezza);
}

bool StampaGrafica(const Programma& programma, const Documento_Fattura& documento,
                   Tracciato_Fattura tracciato, int copie, const Avanzamento& avanzamento, bool cornice) {
  if (documento.voci.empty()) return true;
  Printer& printer = Dispositivo(programma);
  printer.Orientation(Verticale);
  Due_Pause(programma);
  if (Prestampata(tracciato) && printer.Orientation() != Verticale) return false;
  const auto pagina_in_corso = [&](int pagina, int pagine) {
    if (avanzamento) avanzamento(Pagina_In_Corso(documento.codice, pagina, pagine));
  };
  for (int copia = 0; copia < copie; ++copia) {
    printer.documento = {documento.Data_AAAAMMGG, Testo(GenereDocumento(documento.tipo)), documento.Numero,
                         documento.cliente.Codice};
    printer.FontItalic = false;
    PreparaPagina(programma);
    PreparaPagina(programma);
    if (Prestampata(tracciato))
      Disegna_Prestampata(programma, documento, tracciato, pagina_in_corso);
    else
      Disegna_Intestata(programma, documento, tracciato == Tracciato_Fattura::Nota_Grafica, cornice,
                        pagina_in_corso);
    printer.EndDoc();
  }
  return true;
}

#include <chrono>
#include <cstdio>
#include <ctime>

#include <QApplication>

#include "bench/ditta.h"
#include "core/giorno.h"
#include "entry/edita.h"
#include "invoices/stampa_fatture.h"
#include "lists/liste.h"
#include "lists/ordina.h"
#include "printing/screens/stampante_qt.h"
#include "start/avvio.h"
#include "start/inizio.h"

// What the evening's invoicing takes: 300 customers with 10 rows each, some of them credits. A figure for
// people to read: the text files with the report, then the same documents as graphic PDFs.

namespace {

constexpr int clienti = 300, righe = 3000;

void Riempi_Giorno(Programma& programma) {
  programma.Vet_Tabella.righe.clear();
  for (int n = 1; n <= righe; ++n) {
    LedgerRow riga = Riga_Inventata(programma, n);
    const auto& cliente = programma.Vet_Clienti[static_cast<std::size_t>(n % clienti)];
    riga[CampoRiga::Cliente] = cliente[cliente::RagioneSociale1];
    riga[CampoRiga::CodCliente] = cliente[cliente::Codice];
    if (n % 100 == 0) riga[CampoRiga::Prezzo] = "-" + riga[CampoRiga::Prezzo];
    programma.Vet_Tabella.righe.push_back(std::move(riga));
  }
  Ordina_Colonna(programma, CampoRiga::Cliente);
}

void Misura(Programma& programma, const char* cosa, const Scelte_Stampa& scelte) {
  Stampa_Fatture stampa;
  stampa.scelte = scelte;
  stampa.Text2 = "Venezia";
  stampa.fatture = CaricaDocumenti(programma.Vet_Tabella, TipoFattura::Fattura);
  stampa.note = CaricaDocumenti(programma.Vet_Tabella, TipoFattura::Nota);
  int numero = 0;
  for (Voce_Fattura& voce : stampa.fatture) voce.Numero = NumeroFattura(++numero);
  for (Voce_Fattura& voce : stampa.note) voce.Numero = NumeroNota(++numero);
  const auto inizio = std::chrono::steady_clock::now();
  const std::clock_t lavoro = std::clock();
  if (!StampaFatNa(programma, stampa)) std::printf("  attenzione: la corsa non è finita\n");
  const auto trascorso = std::chrono::steady_clock::now() - inizio;
  std::printf("%-52s %9.0f ms, di lavoro %9.0f ms\n", cosa,
              std::chrono::duration<double, std::milli>(trascorso).count(),
              1000.0 * static_cast<double>(std::clock() - lavoro) / CLOCKS_PER_SEC);
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication qt(argc, argv);
  const Ditta ditta;
  Piattaforma_Muta macchina;
  Programma programma(macchina);
  Stampante_Qt stampante(ditta.Cartella());
  stampante.Scegli("PDF", Verticale);
  macchina.dispositivo = &stampante;
  ditta.Scrivi_Giorno(macchina, 10);
  Blocco_Cartella blocco;
  B_Inizio inizio;
  Avvia(programma, ditta.Cartella(), blocco, [] { return std::optional<PrimoAvvio>(); });
  Carica_Inizio(programma, inizio);
  Apri_Giorno(programma, inizio);
  Riempi_Giorno(programma);
  Misura(programma, "fatture di 300 clienti, 3000 righe: file e report", {});
  Misura(programma, "le stesse di nuovo", {});
  Misura(programma, "le stesse in PDF, con grafica", {.Personalizzata = true});
  Misura(programma, "le stesse in PDF, due per foglio", {.Stampale = true, .Paginax2 = true});
}

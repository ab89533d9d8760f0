#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include <QApplication>

#include "accounts/zvendita.h"
#include "bench/ditta.h"
#include "core/giorno.h"
#include "documents/pagine.h"
#include "documents/zsani.h"
#include "entry/edita.h"
#include "invoices/stampa_fatture.h"
#include "lists/liste.h"
#include "lists/ordina.h"
#include "printing/nomi_stampe.h"
#include "printing/screens/stampante_qt.h"
#include "start/avvio.h"
#include "start/inizio.h"

// velmara_bench_carte CUSTOMERS [FOLDER]: the evening's paper of a day with so many customers and ten rows
// for each: all transport documents, all accounts, all invoices as PDF, by the commands of the screens.
// Prints the milliseconds of each and of all three, and how many PDFs came out; with FOLDER it leaves them
// there.

namespace {

using Orologio = std::chrono::steady_clock;

constexpr int righe_per_cliente = 10;

double Millisecondi(void (*opera)(Programma&), Programma& programma) {
  const auto inizio = Orologio::now();
  opera(programma);
  return std::chrono::duration<double, std::milli>(Orologio::now() - inizio).count();
}

void Riempi_Giorno(Programma& programma, int clienti) {
  programma.Vet_Tabella.righe.clear();
  for (int n = 1; n <= clienti * righe_per_cliente; ++n) {
    LedgerRow riga = Riga_Inventata(programma, n);
    const auto& cliente = programma.Vet_Clienti[static_cast<std::size_t>(n % clienti)];
    riga[CampoRiga::Cliente] = cliente[cliente::RagioneSociale1];
    riga[CampoRiga::CodCliente] = cliente[cliente::Codice];
    programma.Vet_Tabella.righe.push_back(std::move(riga));
  }
}

void Documenti(Programma& programma) {
  Zsani zsani;
  ApriDocumenti(programma, zsani);
  zsani.stampa = [&](const Documento_Cliente& documento, const Avanzamento& avanzamento) {
    return StampaPagine(programma, documento, avanzamento);
  };
  zsani.Check1.segnata = true;
  StampaDocumenti(programma, zsani);
}

void Conti(Programma& programma) {
  Zvendita zvendita;
  ApriConti(programma, zvendita);
  zvendita.Check1.segnata = true;
  StampaCV(programma, zvendita);
}

void Fatture(Programma& programma) {
  Ordina_Colonna(programma, CampoRiga::Cliente);
  Stampa_Fatture stampa;
  stampa.scelte.Personalizzata = true;
  stampa.Text2 = "Venezia";
  stampa.fatture = CaricaDocumenti(programma.Vet_Tabella, TipoFattura::Fattura);
  int numero = 0;
  for (Voce_Fattura& voce : stampa.fatture) voce.Numero = NumeroFattura(++numero);
  StampaFatNa(programma, stampa);
}

}  // namespace

int main(int argc, char** argv) {
  const int clienti = argc > 1 ? std::atoi(argv[1]) : 0;
  if (clienti < 1) {
    std::fprintf(stderr, "velmara_bench_carte CLIENTI [CARTELLA]\n");
    return 2;
  }
  const QApplication qt(argc, argv);
  const Ditta ditta;
  Piattaforma_Muta macchina;
  Programma programma(macchina);
  Stampante_Qt stampante(ditta.Cartella());
  stampante.Scegli(Testo(Stampante_PDF), Verticale);
  macchina.dispositivo = &stampante;
  ditta.Scrivi_Giorno(macchina, righe_per_cliente);
  Blocco_Cartella blocco;
  B_Inizio inizio;
  Avvia(programma, ditta.Cartella(), blocco, [] { return std::optional<PrimoAvvio>(); });
  Carica_Inizio(programma, inizio);
  Apri_Giorno(programma, inizio);
  Edita edita;
  Apri_Edita(programma, edita);
  Riempi_Giorno(programma, clienti);

  double totale = 0;
  for (void (*opera)(Programma&) : {Documenti, Conti, Fatture}) {
    const double durata = Millisecondi(opera, programma);
    totale += durata;
    std::printf("%.1f ", durata);
  }
  const Percorso stampe = Unisci_Percorso(ditta.Cartella(), Cartella_Stampe);
  std::printf("%.1f %zu\n", totale, programma.disco.Elenca(stampe, "*.pdf").size());
  for (const Testo& testo : macchina.messaggi) std::fprintf(stderr, "%s\n", In_Utf8(testo).c_str());
  if (argc > 2) std::filesystem::copy(stampe, argv[2], std::filesystem::copy_options::recursive);
}

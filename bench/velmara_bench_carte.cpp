#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
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
// Prints the milliseconds of each and of all three, how many PDFs came out, how much of the time the
// processor worked, and what the same PDFs take when they are only written and flushed, one by one; with
// FOLDER it leaves them there.

namespace {

using Orologio = std::chrono::steady_clock;

constexpr int righe_per_cliente = 10;

double Millisecondi(void (*opera)(Programma&), Programma& programma) {
  const auto inizio = Orologio::now();
  opera(programma);
  return std::chrono::duration<double, std::milli>(Orologio::now() - inizio).count();
}

double Millisecondi_Processore() {
  timespec tempo{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &tempo);
  return static_cast<double>(tempo.tv_sec) * 1e3 + static_cast<double>(tempo.tv_nsec) / 1e6;
}

// What the disk alone asks for.
double Millisecondi_Disco(const Disco& disco, const Percorso& stampe, const std::vector<Percorso>& nomi) {
  const Percorso copie = Unisci_Percorso(stampe, "copie");
  disco.Crea_Cartella(copie);
  std::vector<Testo> contenuti;
  contenuti.reserve(nomi.size());
  for (const Percorso& nome : nomi) contenuti.push_back(disco.Leggi(stampe / nome).value());
  const auto inizio = Orologio::now();
  for (std::size_t i = 0; i < nomi.size(); ++i) disco.Scrivi_Nuovo(copie / nomi[i], contenuti[i]);
  const double esito = std::chrono::duration<double, std::milli>(Orologio::now() - inizio).count();
  std::filesystem::remove_all(copie);
  return esito;
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
  const double lavoro = Millisecondi_Processore();
  for (void (*opera)(Programma&) : {Documenti, Conti, Fatture}) {
    const double durata = Millisecondi(opera, programma);
    totale += durata;
    std::printf("%.1f ", durata);
  }
  const Percorso stampe = Unisci_Percorso(ditta.Cartella(), Cartella_Stampe);
  const double lavorato = Millisecondi_Processore() - lavoro;
  const std::vector<Percorso> nomi = programma.disco.Elenca(stampe, "*.pdf").value();
  std::printf("%.1f %zu %.1f %.1f\n", totale, nomi.size(), lavorato,
              Millisecondi_Disco(programma.disco, stampe, nomi));
  for (const Testo& testo : macchina.messaggi) std::fprintf(stderr, "%s\n", In_Utf8(testo).c_str());
  if (argc > 2) std::filesystem::copy(stampe, argv[2], std::filesystem::copy_options::recursive);
}

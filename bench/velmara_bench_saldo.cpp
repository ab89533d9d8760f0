#include <algorithm>
#include <chrono>
#include <cstdio>
#include <sys/resource.h>

#include "stats/rxfor.h"
#include "tests/piattaforma_finta.h"

// velmara_bench_saldo FIRM: the command "Fornitore e Specie" over all days of FIRM/2025, as the screen runs
// it, the temporary file included. The totals go to standard output, supplier, species, kilograms and amount
// with all their decimals; milliseconds and the most memory that the program held, in megabytes, to standard
// error.

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "velmara_bench_saldo DITTA\n");
    return 2;
  }
  Piattaforma_Finta macchina;
  macchina.risposte = {true};
  Programma programma(macchina);
  programma.Separatore_Decimale = '.';
  programma.Separatore_Altro = ',';
  programma.Cartella_Dati = argv[1];
  programma.Anno_Lavoro = "2025";
  programma.Cartella_Anno = programma.Cartella_Dati / "2025";
  RXFor schermo;
  Apri_RXFor(programma, schermo);
  const auto nomi = File_Dell_Anno(programma).value();
  if (nomi.empty()) {
    std::fprintf(stderr, "nessun giorno\n");
    return 1;
  }
  schermo.Text1.testo = Giorno_Del_File(nomi.front());
  schermo.Text2.testo = Giorno_Del_File(nomi.back());
  schermo.Check2.segnata = true;

  const auto inizio = std::chrono::steady_clock::now();
  Calcola_Saldo(programma, schermo);
  const auto durata = std::chrono::steady_clock::now() - inizio;

  rusage uso{};
  getrusage(RUSAGE_SELF, &uso);
  std::fprintf(stderr, "%.1f %.1f\n", std::chrono::duration<double, std::milli>(durata).count(),
               static_cast<double>(uso.ru_maxrss) / 1024);
  for (const Totale& totale : schermo.Vet_Temp1)
    std::printf("%s\t%s\t%.3f\t%.6f\n", totale.Fornitore.c_str(), totale.Specie.c_str(), totale.kg.Valore(),
                totale.importo.Valore());
}

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <sys/resource.h>

#include "core/giorno.h"
#include "lists/ordina.h"
#include "tests/piattaforma_finta.h"

// velmara_bench_giorno COMMAND FILE [TARGET]: one operation on a day file as a program of its own, as the
// other tools are run, which read and write too.
//   carica: reads the day into the table.
//   salva:  reads it, changes a row, and saves it to TARGET as the program saves; only the saving is timed.
//   ordina: reads it, sorts by supplier, species and customer, and writes the numbers of the rows to TARGET.
// Standard output gets the rows, the milliseconds of the operation alone, and the most memory held in
// megabytes.

namespace {

using Orologio = std::chrono::steady_clock;

double Millisecondi_Da(Orologio::time_point inizio) {
  return std::chrono::duration<double, std::milli>(Orologio::now() - inizio).count();
}

struct Corsa {
  Programma& programma;
  Percorso meta;
  Orologio::time_point inizio;  // before the day is read
};

double Carica(Corsa& corsa) { return Millisecondi_Da(corsa.inizio); }

double Salva(Corsa& corsa) {
  corsa.programma.Vet_Tabella(CampoRiga::Commento, 1) += "!";
  corsa.programma.File_Giorno = corsa.meta;
  const auto inizio = Orologio::now();
  bool errore = false;
  Salva_Giorno(corsa.programma, errore);
  return errore ? -1 : Millisecondi_Da(inizio);
}

double Ordina(Corsa& corsa) {
  const auto inizio = Orologio::now();
  OrdinaTre(corsa.programma, CampoRiga::Fornitore, CampoRiga::Specie, CampoRiga::Cliente);
  const double durata = Millisecondi_Da(inizio);
  Testo numeri;
  for (const LedgerRow& riga : corsa.programma.Vet_Tabella.righe) (numeri += riga[CampoRiga::Num]) += '\n';
  std::FILE* file = std::fopen(corsa.meta.c_str(), "wb");
  if (file == nullptr) return -1;
  const bool scritti = std::fwrite(numeri.data(), 1, numeri.size(), file) == numeri.size();
  return std::fclose(file) == 0 && scritti ? durata : -1;
}

}  // namespace

int main(int argc, char** argv) {
  using Comando = double (*)(Corsa&);
  const std::map<std::string, Comando> comandi = {{"carica", Carica}, {"salva", Salva}, {"ordina", Ordina}};
  const auto comando = argc > 2 ? comandi.find(argv[1]) : comandi.end();
  if (comando == comandi.end() || (argc < 4 && comando->second != Carica)) {
    std::fprintf(stderr, "velmara_bench_giorno carica|salva|ordina FILE [META]\n");
    return 2;
  }
  const auto inizio = Orologio::now();
  Piattaforma_Finta macchina;
  Programma programma(macchina);
  programma.Separatore_Decimale = '.';
  programma.Separatore_Altro = ',';
  programma.File_Giorno = argv[2];
  Corsa corsa{programma, argc > 3 ? argv[3] : "", inizio};
  if (!Carica_Giorno(programma)) return 1;
  const double durata = comando->second(corsa);
  if (durata < 0) {
    std::fprintf(stderr, "%s non riesce\n", argv[1]);
    return 1;
  }
  rusage uso{};
  getrusage(RUSAGE_SELF, &uso);
  std::printf("%d %.2f %.1f\n", programma.Vet_Tabella.Righe(), durata,
              static_cast<double>(uso.ru_maxrss) / 1024);
  // The system takes back a process's memory at once; taking a million fields apart first is no part of the
  // operation.
  std::_Exit(std::fflush(stdout) == 0 ? 0 : 1);
}

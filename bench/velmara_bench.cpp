#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <functional>
#include <stdexcept>

#include "bench/giornata.h"
#include "core/numeri.h"
#include "lists/liste.h"
#include "printing/registratore.h"
#include "stats/controllo_cv.h"
#include "stats/statistica.h"

// The routines behind what the operator waits for, each on days of 300, 3,000 and 30,000 rows, so that a cost
// that grows faster than the day shows. Figures for people to read, not a test.

namespace {

using Orologio = std::chrono::steady_clock;

constexpr std::int64_t righe_poche = 300, righe_molte = 3'000, righe_massime = 30'000;

// Times each turn by itself: the mean goes to the report, and beside it the slowest of a hundred, which is
// what a hand at the keyboard feels.
class Cronometro {
 public:
  explicit Cronometro(benchmark::State& stato) : stato_(stato) {}
  ~Cronometro() {
    std::sort(millisecondi_.begin(), millisecondi_.end());
    const double turni = static_cast<double>(millisecondi_.size());
    stato_.counters["p99"] =
        millisecondi_.empty() ? 0 : millisecondi_[static_cast<std::size_t>(0.99 * (turni - 1))];
  }
  Cronometro(const Cronometro&) = delete;
  Cronometro& operator=(const Cronometro&) = delete;

  void Misura(const std::function<void()>& opera) {
    const auto inizio = Orologio::now();
    opera();
    const std::chrono::duration<double> durata = Orologio::now() - inizio;
    stato_.SetIterationTime(durata.count());
    millisecondi_.push_back(durata.count() * 1000);
  }

 private:
  benchmark::State& stato_;
  std::vector<double> millisecondi_;
};

using Opera = std::function<void(Giornata&)>;

// An operation on the whole day.
void Sul_Giorno(benchmark::State& stato, const Ditta& ditta, const Opera& prepara, const Opera& opera) {
  Giornata giornata(ditta, stato.range(0));
  Cronometro cronometro(stato);
  for ([[maybe_unused]] auto turno : stato) {
    if (prepara) prepara(giornata);
    cronometro.Misura([&] { opera(giornata); });
  }
}

void In_Ordine_Di_Immissione(Giornata& giornata) { Ordina_Colonna(giornata.programma, CampoRiga::Num); }

void Apri(Giornata& giornata) {
  Apri_Giorno(giornata.programma, giornata.inizio);
  Apri_Edita(giornata.programma, giornata.edita);
}

void Statistica_Del_Giorno(Giornata& giornata) {
  Statistica schermo;
  Apri_Statistica(giornata.programma, schermo);
}

// A key press in the look-up over 10,000 customers.
void Ricerca_Cliente(benchmark::State& stato, const Ditta& ditta) {
  Giornata giornata(ditta, stato.range(0));
  constexpr int campo = Indice(CampoRiga::Cliente);
  Edita& edita = giornata.edita;
  const Testo nome = "Ristorante Cliente 01233";
  edita.CampoCorrente = campo;
  std::size_t lettere = 0;
  Cronometro cronometro(stato);
  for ([[maybe_unused]] auto turno : stato) {
    edita.Text1[campo].testo = nome.substr(0, 1 + lettere++ % nome.size());
    cronometro.Misura([&] { CambiaCampo(giornata.programma, edita, campo); });
  }
  edita.Text1[campo].testo = nome;
  CambiaCampo(giornata.programma, edita, campo);
  if (edita.List1.Numero() != 1) stato.SkipWithError("il nome intero non trova il suo cliente");
}

// F5: only the command is timed, not the filling of the fields.
void Aggiunta(benchmark::State& stato, const Ditta& ditta) {
  Giornata giornata(ditta, stato.range(0));
  Programma& programma = giornata.programma;
  Edita& edita = giornata.edita;
  int prima = programma.Vet_Tabella.Righe();
  int riga = 0;
  Cronometro cronometro(stato);
  for ([[maybe_unused]] auto turno : stato) {
    Riempi_Campi(giornata, ++riga);
    cronometro.Misura([&] { Aggiungi(programma, edita); });
    if (programma.Vet_Tabella.Righe() != ++prima) stato.SkipWithError("la riga non è stata aggiunta");
  }
}

// The account files of a whole year, one after the other.
void Controllo_Conti(benchmark::State& stato, const Ditta& ditta) {
  Giornata giornata(ditta, righe_poche);
  Programma& programma = giornata.programma;
  Registro_Pagine registro;
  Registratore printer(giornata.macchina.stampante, registro);
  giornata.macchina.dispositivo = &printer;
  const Percorso cartella = programma.Cartella_Anno / "CV_NO";
  programma.disco.Crea_Cartella(cartella);
  const int conti = static_cast<int>(stato.range(0));
  for (int i = 1; i <= conti; ++i) {
    const Testo nome =
        Formato(1 + i % 12, "00", ',') + Formato(1 + i % 28, "00", ',') + Formato(i, "0000", ',');
    programma.disco.Sostituisci(cartella / (nome + ".txt"),
                                "Fornitore " + std::to_string(i % 60) + "\r\n100,10\r\n8,01\r\n");
  }
  ControlloCV controllo;
  Apri_Controllo(programma, controllo);
  controllo.Combo1.scelta = 12;
  Cronometro cronometro(stato);
  for ([[maybe_unused]] auto turno : stato) cronometro.Misura([&] { Leggi_Controllo(programma, controllo); });
  if (static_cast<int>(controllo.Tabella_Controllo.size()) != conti)
    stato.SkipWithError("non tutti i conti sono stati letti");
}

template <class... Argomenti>
benchmark::internal::Benchmark* Iscrivi(const char* nome, Argomenti&&... argomenti) {
  return benchmark::RegisterBenchmark(nome, std::forward<Argomenti>(argomenti)...)
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond);
}

void Iscrivi_Tutte(const Ditta& ditta) {
  struct Sul_Giorno_Intero {
    const char* nome;
    Opera prepara, opera;
  };
  const Sul_Giorno_Intero operazioni[] = {
      {"carica", {}, [](Giornata& giornata) { Carica_Giorno(giornata.programma); }},
      {"salva", Cambia_Riga, Salva_La_Giornata},
      {"ordina_per_tre", In_Ordine_Di_Immissione, Ordina_Per_Tre},
      {"apre_con_le_liste", {}, Apri},
      {"statistica", {}, Statistica_Del_Giorno},
      {"ultimi_numeri", {}, [](Giornata& giornata) {
         Trova_Ultimi_Numeri(giornata.programma, giornata.programma.Anno_Lavoro);
       }}};
  for (const Sul_Giorno_Intero& una : operazioni)
    Iscrivi(una.nome,
            [&ditta, una](benchmark::State& stato) { Sul_Giorno(stato, ditta, una.prepara, una.opera); })
        ->Arg(righe_poche)
        ->Arg(righe_molte)
        ->Arg(righe_massime);
  Iscrivi("tasto_ricerca", [&ditta](benchmark::State& stato) { Ricerca_Cliente(stato, ditta); })
      ->Arg(righe_poche)
      ->Arg(righe_massime);
  // A day holds so many rows that F5 can be pressed no more than this.
  constexpr int aggiunte = 1'000;
  Iscrivi("F5", [&ditta](benchmark::State& stato) { Aggiunta(stato, ditta); })
      ->Arg(righe_poche)
      ->Arg(righe_molte)
      ->Arg(righe_massime)
      ->Iterations(aggiunte);
  Iscrivi("controllo_conti", [&ditta](benchmark::State& stato) {
    Controllo_Conti(stato, ditta);
  })->Arg(5'000);
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  const Ditta ditta;
  Iscrivi_Tutte(ditta);
  benchmark::RunSpecifiedBenchmarks();
}

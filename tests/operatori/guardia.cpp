#include "tests/operatori/guardia.h"

#include <csignal>
#include <ctime>
#include <unistd.h>

namespace operatori {

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr double lentezza = 4;  // of the watched memory
#else
constexpr double lentezza = 1;
#endif
constexpr double secondi_di_lavoro = 5 * lentezza, secondi_in_tutto = 6 * secondi_di_lavoro;

// A signal handler reads them.
struct Inizio {
  timespec lavoro, orologio;
};
Inizio inizio;

double Da(const timespec& allora, clockid_t quale) {
  timespec adesso{};
  clock_gettime(quale, &adesso);
  return static_cast<double>(adesso.tv_sec - allora.tv_sec) +
         static_cast<double>(adesso.tv_nsec - allora.tv_nsec) * 1e-9;
}

void Guarda(int) {
  if (Da(inizio.lavoro, CLOCK_PROCESS_CPUTIME_ID) > secondi_di_lavoro ||
      Da(inizio.orologio, CLOCK_MONOTONIC) > secondi_in_tutto)
    _exit(Esito_Fermo);
  alarm(1);
}

}  // namespace

void Prendi_La_Guardia() {
  struct sigaction azione {};
  azione.sa_handler = Guarda;
  azione.sa_flags = SA_RESTART;
  sigaction(SIGALRM, &azione, nullptr);
  Rinnova_La_Guardia();
  alarm(1);
}

void Rinnova_La_Guardia() {
  timespec lavoro{}, orologio{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &lavoro);
  clock_gettime(CLOCK_MONOTONIC, &orologio);
  inizio = {lavoro, orologio};
}

void Lascia_La_Guardia() { alarm(0); }

}  // namespace operatori

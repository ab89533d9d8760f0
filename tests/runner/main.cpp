#include <cstdio>
#include <cstdlib>

#include "tests/runner/esecuzione.h"

// velmara_giornata SCRIPT...: plays working days, each in a fresh copy of its firm's folder. The status is 1
// when any of them failed.
int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: velmara_giornata SCRIPT...\n");
    return 1;
  }
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  int esito = 0;
  for (int i = 1; i < argc; ++i) {
    int uno = 1;  // the scripts are no arguments of the toolkit
    if (giornata::Gioca_Copione(argv[i], uno, argv) != 0) esito = 1;
  }
  return esito;
}

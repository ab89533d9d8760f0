#include <cstdio>
#include <cstdlib>

#include "bench/anno.h"

// velmara_bench_anno FOLDER [DAYS [ROWS]]: writes a made-up year of day files into FOLDER.
int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "velmara_bench_anno CARTELLA [GIORNI [RIGHE]]\n");
    return 2;
  }
  Anno_Inventato misure;
  misure.separatore = '.';  // the tools that the scan is measured against read no other
  if (argc > 2) misure.giorni = std::atoi(argv[2]);
  if (argc > 3) misure.righe = std::atoi(argv[3]);
  Anno(misure).Scrivi(argv[1]);
}

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <string>

#include "tests/operatori/giro.h"

// velmara_operatori [--seme N] [--giri N] [--passi N] [--schermo NOME] [--racconta]: random operators on the
// screens, each round with a seed of its own, so that one round can be played again by itself.
namespace {

struct Opzioni {
  std::uint64_t seme = 1;
  int giri = 1, passi = 200;
  std::string schermo;
  bool racconta = false;
};

bool Leggi(int argc, char** argv, Opzioni& opzioni) {
  for (int i = 1; i < argc; ++i) {
    const std::string nome = argv[i];
    if (nome == "--racconta") {
      opzioni.racconta = true;
      continue;
    }
    if (i + 1 == argc) return false;
    const char* valore = argv[++i];
    if (nome == "--seme")
      opzioni.seme = std::strtoull(valore, nullptr, 10);
    else if (nome == "--giri")
      opzioni.giri = std::atoi(valore);
    else if (nome == "--passi")
      opzioni.passi = std::atoi(valore);
    else if (nome == "--schermo")
      opzioni.schermo = valore;
    else
      return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  Opzioni opzioni;
  if (!Leggi(argc, argv, opzioni)) {
    std::fprintf(
        stderr, "usage: velmara_operatori [--seme N] [--giri N] [--passi N] [--schermo NOME] [--racconta]\n");
    return 2;
  }
  const Percorso progetto = PROGETTO;
  const auto testi = operatori::Testi_Noti::Dei_Sorgenti(progetto);
  int fatti = 0, difetti = 0;
  std::size_t passi = 0;
  for (int giro = 0; giro < opzioni.giri; ++giro) {
    for (const operatori::Schermo& schermo : operatori::Schermi()) {
      if (!opzioni.schermo.empty() && opzioni.schermo != schermo.nome) continue;
      const operatori::Giro questo{&schermo, opzioni.seme + static_cast<std::uint64_t>(giro), opzioni.passi};
      const operatori::Esito esito = Gioca(questo, progetto, testi);
      ++fatti;
      passi += esito.passi.size();
      if (opzioni.racconta)
        for (const std::string& passo : esito.passi) std::printf("%s\n", passo.c_str());
      if (esito.difetto.empty()) continue;
      ++difetti;
      std::printf("DIFETTO  %s", Racconto(questo, esito).c_str());
      std::fflush(stdout);
    }
  }
  std::printf("%d giri dal seme %llu, %zu passi, %d difetti\n", fatti,
              static_cast<unsigned long long>(opzioni.seme), passi, difetti);
  return difetti == 0 ? 0 : 1;
}

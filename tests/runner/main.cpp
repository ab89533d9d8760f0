#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>

#include "tests/runner/esecuzione.h"

// velmara_giornata [--foto FOLDER | --tieni FOLDER] SCRIPT...: plays working days, each in a fresh copy of
// its firm's folder. --foto puts the pictures that they take into that folder, --tieni what is left of the
// firm's folder and all that was drawn, by the script's name. The status is 1 when any of them failed.
int main(int argc, char** argv) {
  const bool con_foto = argc > 1 && std::strcmp(argv[1], "--foto") == 0;
  const bool tieni = argc > 1 && std::strcmp(argv[1], "--tieni") == 0;
  const int primo = con_foto || tieni ? 3 : 1;
  if (argc <= primo) {
    std::fprintf(stderr, "usage: velmara_giornata [--foto FOLDER | --tieni FOLDER] SCRIPT...\n");
    return 1;
  }
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  std::optional<giornata::Album> album;
  if (con_foto) {
    const Percorso cartella = std::filesystem::absolute(argv[2]);
    std::error_code errore;
    std::filesystem::create_directories(cartella, errore);
    if (errore) {
      std::fprintf(stderr, "%s: %s\n", argv[2], errore.message().c_str());
      return 1;
    }
    album.emplace(cartella);
  }
  int esito = 0;
  for (int i = primo; i < argc; ++i) {
    int uno = 1;  // the scripts are no arguments of the toolkit
    const Percorso resto = tieni ? std::filesystem::absolute(argv[2]) / Percorso(argv[i]).stem() : Percorso();
    if (giornata::Gioca_Copione(argv[i], uno, argv, album ? &*album : nullptr, resto) != 0) esito = 1;
  }
  return esito;
}

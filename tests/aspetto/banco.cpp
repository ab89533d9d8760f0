#include "tests/aspetto/banco.h"

#include <stdexcept>

#include "start/avvio.h"

namespace fs = std::filesystem;

Banco::Banco() {
  macchina.dispositivo = &printer;
  macchina.volumi = {{cartella / "chiavetta", "E:", "CHIAVETTA"}};
  for (const char* origine : {DITTA_BASE, DITTA_DEMO})
    fs::copy(origine, cartella.percorso, fs::copy_options::overwrite_existing | fs::copy_options::recursive);
  fs::create_directory(cartella / "2025");
  fs::copy_file(Percorso(DITTA_DEMO) / "giornata.txt", cartella / "2025" / "20250314.txt");
  Blocco_Cartella blocco;
  if (Avvia(programma, cartella.percorso, blocco, {}) != EsitoAvvio::Pronto) throw std::logic_error("avvio");
  B_Inizio inizio;
  Carica_Inizio(programma, inizio);
  if (!::Apri_Giorno(programma, inizio)) throw std::logic_error("giorno");
  Apri_Edita(programma, edita);
}

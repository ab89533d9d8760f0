#include <algorithm>

#include "core/disco.h"

namespace {

constexpr Vista barre = "/\\";

// A name out of a field or a file may be anything. Those parts that would lead out of the folder, and the NUL
// at which the system would cut the name short, become "-": the name then is another, but stands inside.
Testo Che_Resta_Dentro(Vista nome) {
  Testo dentro = Sostituisci_Tutti(nome, Vista("\0", 1), "-");
  for (std::size_t inizio = 0; inizio < dentro.size();) {
    const std::size_t fine = std::min(dentro.find_first_of(barre, inizio), dentro.size());
    if (Vista(dentro).substr(inizio, fine - inizio) == "..") dentro.replace(inizio, 2, "--");
    inizio = fine + 1;
  }
  return dentro;
}

}  // namespace

Percorso In_Percorso(Vista testo) { return Percorso(In_Utf8(testo)); }
Testo Testo_Percorso(const Percorso& percorso) { return Da_Utf8(percorso.native()); }

Percorso Unisci_Percorso(const Percorso& cartella, Vista nome) {
  nome.remove_prefix(std::min(nome.find_first_not_of(barre), nome.size()));
  const Percorso secondo = In_Percorso(Che_Resta_Dentro(nome));
  if (cartella.empty()) return secondo;
  std::string primo = cartella.native();
  while (!primo.empty() && barre.find(primo.back()) != Vista::npos) primo.pop_back();
  return Percorso(primo + '/' + secondo.native());
}

Testo Nome_File(const Percorso& percorso) {
  const Testo testo = Testo_Percorso(percorso);
  const std::size_t barra = testo.find_last_of(barre);
  return barra == Testo::npos ? testo : testo.substr(barra + 1);
}

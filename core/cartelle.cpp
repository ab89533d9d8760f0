#include "core/cartelle.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>
#include <utility>

namespace {

char Minuscola_ASCII(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

bool Uguali_ASCII(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return Minuscola_ASCII(x) == Minuscola_ASCII(y); });
}

// Each entry of a folder but itself and its parent, with the opened folder: 0, or the errno that ended it.
template <class Visita>
int Per_Ogni_Voce(const Percorso& cartella, const Visita& visita) {
  const std::unique_ptr<DIR, int (*)(DIR*)> aperta(opendir(cartella.c_str()), closedir);
  if (!aperta) return errno;
  for (;;) {
    errno = 0;
    const dirent* voce = readdir(aperta.get());
    if (voce == nullptr) return errno;
    const std::string_view nome(voce->d_name);
    if (nome != "." && nome != "..") visita(dirfd(aperta.get()), *voce);
  }
}

bool Senza_Cartella(int errore) { return errore == ENOENT || errore == ENOTDIR; }

// Folders mostly say what an entry is; a link has to be followed.
bool Della_Specie(int cartella, const dirent& voce, Specie_Voce specie) {
  const bool file = specie == Specie_Voce::File;
  if (voce.d_type != DT_UNKNOWN && voce.d_type != DT_LNK) return voce.d_type == (file ? DT_REG : DT_DIR);
  struct stat stato {};
  // What doesn't answer may be a file: whoever reads it is told.
  if (fstatat(cartella, voce.d_name, &stato, 0) != 0) return file && !Senza_Cartella(errno) && errno != ELOOP;
  return file ? S_ISREG(stato.st_mode) : S_ISDIR(stato.st_mode);
}

Percorso Senza_Barra_Finale(const Percorso& percorso) {
  return percorso.has_filename() || !percorso.has_relative_path() ? percorso : percorso.parent_path();
}

// The entry of a folder that has this name in another letter case, the first by name where there are several;
// `nome` where there is none.
Posto_Trovato Altra_Grafia(const Percorso& cartella, const Percorso& nome) {
  std::optional<std::string> trovata;
  const int errore = Per_Ogni_Voce(cartella.empty() ? Percorso(".") : cartella, [&](int, const dirent& voce) {
    if (!Uguali_ASCII(voce.d_name, nome.native())) return;
    if (!trovata || voce.d_name < *trovata) trovata = voce.d_name;
  });
  return {cartella / (trovata ? Percorso(*trovata) : nome), Senza_Cartella(errore) ? 0 : errore};
}

}  // namespace

Posto_Trovato Cerca(const Percorso& richiesto) {
  const Percorso percorso = Senza_Barra_Finale(richiesto);
  if (!percorso.has_filename()) return {percorso};
  struct stat stato {};
  // Other errors than these are met again by whoever opens it.
  if (lstat(percorso.c_str(), &stato) == 0 || !Senza_Cartella(errno)) return {percorso};
  const Percorso genitore = percorso.parent_path();
  const Posto_Trovato cartella = genitore.empty() ? Posto_Trovato() : Cerca(genitore);
  if (cartella.errore != 0) return {percorso, cartella.errore};
  return Altra_Grafia(cartella.percorso, percorso.filename());
}

bool Corrisponde(Vista nome, Vista modello) {
  std::size_t n = 0, m = 0, dopo_stella = Vista::npos, ripresa = 0;
  while (n < nome.size()) {
    if (m < modello.size() && modello[m] == '*') {
      dopo_stella = ++m;
      ripresa = n;
    } else if (m < modello.size() &&
               (modello[m] == '?' || Minuscola_ASCII(modello[m]) == Minuscola_ASCII(nome[n]))) {
      ++m;
      ++n;
    } else if (dopo_stella != Vista::npos) {
      m = dopo_stella;
      n = ++ripresa;
    } else {
      return false;
    }
  }
  return modello.find_first_not_of('*', m) == Vista::npos;
}

std::optional<std::vector<Percorso>> Nomi_In(const Percorso& cartella, Specie_Voce specie,
                                             const std::function<bool(Vista)>& voluto, int* errore) {
  std::vector<std::pair<Testo, Percorso>> trovati;
  const Posto_Trovato posto = Cerca(cartella);
  int esito = posto.errore;
  if (esito == 0)
    esito = Per_Ogni_Voce(posto.percorso, [&](int aperta, const dirent& voce) {
      Testo testo = Da_Utf8(voce.d_name);
      if (voluto(testo) && Della_Specie(aperta, voce, specie))
        trovati.emplace_back(std::move(testo), voce.d_name);
    });
  if (Senza_Cartella(esito)) {
    trovati.clear();
    esito = 0;
  }
  if (errore != nullptr) *errore = esito;
  if (esito != 0) return std::nullopt;
  std::sort(trovati.begin(), trovati.end(), [](const auto& a, const auto& b) {
    const int ordine = Confronta(a.first, b.first);
    return ordine != 0 ? ordine < 0 : a.second.native() < b.second.native();
  });
  std::vector<Percorso> nomi;
  nomi.reserve(trovati.size());
  for (auto& [testo, nome] : trovati) nomi.push_back(std::move(nome));
  return nomi;
}

#include "core/disco.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace {

namespace fs = std::filesystem;

constexpr Vista barre = "/\\";

// An open file that closes itself.
class Descrittore {
 public:
  explicit Descrittore(int numero) : numero_(numero) {}
  ~Descrittore() { Chiudi(); }
  Descrittore(const Descrittore&) = delete;
  Descrittore& operator=(const Descrittore&) = delete;
  int Numero() const { return numero_; }
  bool Aperto() const { return numero_ >= 0; }
  // Some file systems tell of a failed write only here.
  int Chiudi() {
    if (numero_ < 0) return 0;
    return close(std::exchange(numero_, -1)) == 0 ? 0 : errno;
  }

 private:
  int numero_;
};

Descrittore Apri(const Percorso& percorso, int modo) {
  constexpr mode_t diritti = 0666;  // less what the user's mask takes away
  return Descrittore(open(percorso.c_str(), modo | O_CLOEXEC | O_NOCTTY, diritti));
}

char Minuscola_ASCII(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

bool Uguali_ASCII(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return Minuscola_ASCII(x) == Minuscola_ASCII(y); });
}

// '*' is any characters, none too; '?' is exactly one.
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

bool C_E(const Percorso& percorso) {
  struct stat stato {};
  return lstat(percorso.c_str(), &stato) == 0;
}

// Nothing where there is no such file, or it can't be asked; `errore` then says why.
std::optional<struct stat> Stato(const Percorso& percorso, int* errore = nullptr) {
  struct stat stato {};
  const bool c_e = stat(percorso.c_str(), &stato) == 0;
  if (errore != nullptr) *errore = c_e ? 0 : errno;
  if (!c_e) return std::nullopt;
  return stato;
}

Percorso Cartella_Di(const Percorso& percorso) {
  const Percorso cartella = percorso.parent_path();
  return cartella.empty() ? Percorso(".") : cartella;
}

Percorso Senza_Barra_Finale(const Percorso& percorso) {
  return percorso.has_filename() || !percorso.has_relative_path() ? percorso : percorso.parent_path();
}

// The entry of a folder that has this name in another letter case; the first by name where there are several.
std::optional<Percorso> Altra_Grafia(const Percorso& cartella, const Percorso& nome) {
  std::optional<Percorso> trovata;
  std::error_code errore;
  for (fs::directory_iterator voce(cartella, errore), fine; !errore && voce != fine; voce.increment(errore)) {
    Percorso candidata = voce->path().filename();
    if (!Uguali_ASCII(candidata.native(), nome.native())) continue;
    if (!trovata || candidata.native() < trovata->native()) trovata = std::move(candidata);
  }
  return trovata;
}

// Where a path stands whose folders, and maybe its last name, are spelled in another letter case.
Percorso Cerca(const Percorso& richiesto) {
  const Percorso percorso = Senza_Barra_Finale(richiesto);
  if (C_E(percorso) || !percorso.has_filename()) return percorso;
  const Percorso genitore = percorso.parent_path();
  const Percorso cartella = genitore.empty() ? genitore : Cerca(genitore);
  const auto nome = Altra_Grafia(cartella.empty() ? Percorso(".") : cartella, percorso.filename());
  return cartella / nome.value_or(percorso.filename());
}

// The file that a chain of links leads to, there or not.
Percorso Bersaglio(Percorso percorso) {
  constexpr int catena_massima = 40;
  for (int i = 0; i < catena_massima; ++i) {
    std::error_code errore;
    const Percorso meta = fs::read_symlink(percorso, errore);
    if (errore) break;
    percorso = meta.is_absolute() ? meta : percorso.parent_path() / meta;
  }
  return percorso;
}

int Errore_Di_Specie(mode_t modo) {
  if (S_ISREG(modo)) return 0;
  return S_ISDIR(modo) ? EISDIR : EINVAL;
}

int Scrivi_Tutto(int descrittore, Vista contenuto) {
  while (!contenuto.empty()) {
    const ssize_t scritti = write(descrittore, contenuto.data(), contenuto.size());
    if (scritti < 0 && errno == EINTR) continue;
    if (scritti < 0) return errno;
    if (scritti == 0) return EIO;
    contenuto.remove_prefix(static_cast<std::size_t>(scritti));
  }
  return 0;
}

int Esito(int risultato) { return risultato == 0 ? 0 : errno; }

int Leggi_Tutto(int descrittore, Testo& contenuto) {
  std::size_t letti = 0;
  for (;;) {
    constexpr std::size_t passo = 4096;
    if (letti == contenuto.size()) contenuto.resize(letti + std::max(passo, letti));
    const ssize_t n = read(descrittore, contenuto.data() + letti, contenuto.size() - letti);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return errno;
    if (n == 0) break;
    letti += static_cast<std::size_t>(n);
  }
  contenuto.resize(letti);
  return 0;
}

// No file of a firm comes near; what does is no text of ours, and would take all the memory.
constexpr off_t dimensione_massima = off_t{1} << 30U;

int Leggi_File(const Percorso& percorso, Testo& contenuto) {
  // Without O_NONBLOCK a pipe would keep the program waiting for a writer.
  const Descrittore file = Apri(percorso, O_RDONLY | O_NONBLOCK);
  if (!file.Aperto()) return errno;
  struct stat stato {};
  if (fstat(file.Numero(), &stato) != 0) return errno;
  if (const int errore = Errore_Di_Specie(stato.st_mode)) return errore;
  if (stato.st_size > dimensione_massima) return EFBIG;
  contenuto.resize(static_cast<std::size_t>(stato.st_size) + 1);  // one more, so that the end shows at once
  return Leggi_Tutto(file.Numero(), contenuto);
}

bool Gia_Uguale(const Percorso& percorso, const struct stat& stato, Vista contenuto) {
  if (static_cast<std::size_t>(stato.st_size) != contenuto.size()) return false;
  Testo presente;
  return Leggi_File(percorso, presente) == 0 && presente == contenuto;
}

// Makes the names of a folder as lasting as the files they name. Some file systems can't and need not.
int Fissa_Cartella(const Percorso& cartella) {
  const Descrittore aperta = Apri(cartella, O_RDONLY | O_DIRECTORY);
  if (!aperta.Aperto()) return errno == EACCES ? 0 : errno;
  if (fsync(aperta.Numero()) == 0 || errno == EINVAL || errno == ENOTSUP) return 0;
  return errno;
}

// Names of files beside their target that are matched by no listing of days, copies or invoices: with the
// number of the process that writes there.
constexpr Vista inizio_provvisorio = ".velmara-";
constexpr char fine_provvisorio = '~';

// A file beside the target that takes the new content, and whose name goes away: it is renamed over the
// target, or changes places with it so that the old file can come back.
class File_Provvisorio {
 public:
  explicit File_Provvisorio(const Percorso& cartella) {
    constexpr int tentativi = 1000;
    for (int i = 0; i < tentativi; ++i) {
      percorso_ = cartella / (Testo(inizio_provvisorio) + std::to_string(getpid()) + "-" + std::to_string(i) +
                              fine_provvisorio);
      numero_ = open(percorso_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
      errore_ = Esito(numero_ < 0 ? -1 : 0);
      if (errore_ != EEXIST) return;
    }
  }
  ~File_Provvisorio() {
    if (numero_ >= 0) close(numero_);
    if (errore_ == 0 && ha_nome_) unlink(percorso_.c_str());
  }
  File_Provvisorio(const File_Provvisorio&) = delete;
  File_Provvisorio& operator=(const File_Provvisorio&) = delete;

  int Errore() const { return errore_; }

  // Owner and rights of the file that is to be replaced. The owner can be kept by a privileged user only.
  int Come(const struct stat& stato) const {
    const bool stesso = stato.st_uid == geteuid() && stato.st_gid == getegid();
    if (!stesso && fchown(numero_, stato.st_uid, stato.st_gid) != 0 && errno != EPERM) return errno;
    return Esito(fchmod(numero_, stato.st_mode & 07777U));
  }
  int Scrivi(Vista contenuto) const { return Scrivi_Tutto(numero_, contenuto); }
  int Fissa() {
    if (fsync(numero_) != 0) return errno;
    return Esito(close(std::exchange(numero_, -1)));
  }
  int Metti_Al_Posto_Di(const Percorso& bersaglio, bool c_e) {
    scambiato_ = c_e && Scambia(bersaglio) == 0;
    if (scambiato_) return 0;
    const int errore = Esito(rename(percorso_.c_str(), bersaglio.c_str()));
    ha_nome_ = errore != 0;
    return errore;
  }
  // Undoes the last step: the old file comes back, or the name goes that wasn't there.
  void Rimetti(const Percorso& bersaglio, bool c_era) const {
    if (scambiato_)
      Scambia(bersaglio);
    else if (!c_era)
      unlink(bersaglio.c_str());
  }

 private:
  int Scambia(const Percorso& bersaglio) const {
    return renameat2(AT_FDCWD, percorso_.c_str(), AT_FDCWD, bersaglio.c_str(), RENAME_EXCHANGE);
  }

  Percorso percorso_;
  int numero_ = -1, errore_ = 0;
  bool ha_nome_ = true, scambiato_ = false;
};

// Whether the file that stands there may be written over.
int Errore_Di_Scrittura(const Percorso& percorso, const struct stat& stato) {
  if (const int errore = Errore_Di_Specie(stato.st_mode)) return errore;
  return Esito(faccessat(AT_FDCWD, percorso.c_str(), W_OK, AT_EACCESS));
}

int Riempi_Di_Zeri(int descrittore, std::size_t quanti) {
  constexpr std::array<char, 4096> zeri{};
  while (quanti > 0) {
    const std::size_t parte = std::min(quanti, zeri.size());
    if (const int errore = Scrivi_Tutto(descrittore, Vista(zeri.data(), parte))) return errore;
    quanti -= parte;
  }
  return 0;
}

bool Stesso_File(const Percorso& a, const Percorso& b) {
  struct stat primo {
  }, secondo{};
  return lstat(a.c_str(), &primo) == 0 && lstat(b.c_str(), &secondo) == 0 && primo.st_ino == secondo.st_ino &&
         primo.st_dev == secondo.st_dev;
}

// Renames to a name that nobody has.
int Rinomina_Nuovo(const Percorso& da, const Percorso& a) {
  if (renameat2(AT_FDCWD, da.c_str(), AT_FDCWD, a.c_str(), RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return errno;
  if (C_E(a)) return EEXIST;  // a file system that can't do both in one step
  return Esito(rename(da.c_str(), a.c_str()));
}

// What a test says about a write to that path, under the name asked for or the one found.
int Guasto(const Disco& disco, const Percorso& chiesto, const Percorso& trovato) {
  if (!disco.guasto) return 0;
  if (const int errore = disco.guasto(chiesto)) return errore;
  return trovato == chiesto ? 0 : disco.guasto(trovato);
}

int Sostituisci_File(const Percorso& bersaglio, Vista contenuto, const std::function<int()>& guasto) {
  if (const int errore = guasto()) return errore;
  int ignoto = 0;
  const auto stato = Stato(bersaglio, &ignoto);
  // A file that can't be asked may be there, and nothing is known of what it holds.
  if (!stato && ignoto != ENOENT) return ignoto;
  if (stato) {
    if (const int errore = Errore_Di_Scrittura(bersaglio, *stato)) return errore;
    if (Gia_Uguale(bersaglio, *stato, contenuto)) return 0;
  }
  const Percorso cartella = Cartella_Di(bersaglio);
  File_Provvisorio nuovo(cartella);
  // Each step may fail; a test asks for that before each.
  const std::function<int()> passi[] = {
      [&] { return nuovo.Errore(); },
      [&] { return stato ? nuovo.Come(*stato) : 0; },
      [&] { return nuovo.Scrivi(contenuto); },
      [&] { return nuovo.Fissa(); },
      [&] { return nuovo.Metti_Al_Posto_Di(bersaglio, stato.has_value()); },
  };
  for (const auto& passo : passi) {
    if (const int errore = guasto()) return errore;
    if (const int errore = passo()) return errore;
  }
  int errore = guasto();
  if (errore == 0) errore = Fissa_Cartella(cartella);
  if (errore != 0) nuovo.Rimetti(bersaglio, stato.has_value());
  return errore;
}

int Aggiungi_In_Fondo(int descrittore, Vista contenuto) {
  struct stat stato {};
  if (fstat(descrittore, &stato) != 0) return errno;
  if (const int errore = Errore_Di_Specie(stato.st_mode)) return errore;
  if (const int errore = Scrivi_Tutto(descrittore, contenuto)) return errore;
  return Esito(fsync(descrittore));
}

int Scrivi_Sopra(int descrittore, Vista contenuto) {
  struct stat stato {};
  if (fstat(descrittore, &stato) != 0) return errno;
  if (const int errore = Errore_Di_Specie(stato.st_mode)) return errore;
  const auto lunghezza = static_cast<std::size_t>(stato.st_size);
  if (const int errore = Scrivi_Tutto(descrittore, contenuto)) return errore;
  // Cutting first would give the old blocks back with the old bytes still in them.
  if (lunghezza > contenuto.size())
    if (const int errore = Riempi_Di_Zeri(descrittore, lunghezza - contenuto.size())) return errore;
  if (fsync(descrittore) != 0) return errno;
  if (ftruncate(descrittore, static_cast<off_t>(contenuto.size())) != 0) return errno;
  return Esito(fsync(descrittore));
}

// Opens for writing, works, closes, and makes a new name lasting.
int Lavora_Su(const Percorso& percorso, int modo, Vista contenuto, int (*lavoro)(int, Vista)) {
  const bool nuovo = !Stato(percorso);
  Descrittore file = Apri(percorso, O_WRONLY | O_CREAT | O_NONBLOCK | modo);
  if (!file.Aperto()) return errno;
  if (const int errore = lavoro(file.Numero(), contenuto)) return errore;
  if (const int errore = file.Chiudi()) return errore;
  return nuovo ? Fissa_Cartella(Cartella_Di(percorso)) : 0;
}

int Crea_Con_Genitori(const Percorso& cartella) {
  if (const auto stato = Stato(cartella)) return S_ISDIR(stato->st_mode) ? 0 : ENOTDIR;
  const Percorso genitore = cartella.parent_path();
  if (!genitore.empty() && genitore != cartella)
    if (const int errore = Crea_Con_Genitori(genitore)) return errore;
  if (mkdir(cartella.c_str(), 0777) != 0 && errno != EEXIST) return errno;
  const auto stato = Stato(cartella);
  if (!stato || !S_ISDIR(stato->st_mode)) return ENOTDIR;
  return Fissa_Cartella(Cartella_Di(cartella));
}

// The names in a folder that are wanted, sorted by name ignoring case.
template <class Voluto>
std::vector<Percorso> Nomi_In(const Percorso& cartella, const Voluto& voluto) {
  std::vector<std::pair<Testo, Percorso>> trovati;
  std::error_code errore;
  for (fs::directory_iterator voce(cartella, errore), fine; !errore && voce != fine; voce.increment(errore)) {
    Percorso nome = voce->path().filename();
    Testo testo = Testo_Percorso(nome);
    if (voluto(*voce, testo)) trovati.emplace_back(std::move(testo), std::move(nome));
  }
  std::sort(trovati.begin(), trovati.end(), [](const auto& a, const auto& b) {
    const int ordine = Confronta(a.first, b.first);
    return ordine != 0 ? ordine < 0 : a.second.native() < b.second.native();
  });
  std::vector<Percorso> nomi;
  nomi.reserve(trovati.size());
  for (auto& [testo, nome] : trovati) nomi.push_back(std::move(nome));
  return nomi;
}

}  // namespace

Percorso In_Percorso(Vista testo) { return Percorso(In_Utf8(testo)); }
Testo Testo_Percorso(const Percorso& percorso) { return Da_Utf8(percorso.native()); }

Percorso Unisci_Percorso(const Percorso& cartella, Vista nome) {
  const Percorso secondo = In_Percorso(nome.substr(std::min(nome.find_first_not_of(barre), nome.size())));
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

bool Disco::Esiste_File(const Percorso& percorso) const {
  const auto stato = Stato(Cerca(percorso));
  return stato && S_ISREG(stato->st_mode);
}

bool Disco::Esiste_Cartella(const Percorso& percorso) const {
  const auto stato = Stato(Cerca(percorso));
  return stato && S_ISDIR(stato->st_mode);
}

Percorso Disco::Trova(const Percorso& percorso) const {
  const Percorso trovato = Cerca(percorso);
  return C_E(trovato) ? trovato : percorso;
}

std::optional<Testo> Disco::Leggi(const Percorso& percorso, int* errore) const {
  Testo contenuto;
  const int esito = Leggi_File(Cerca(percorso), contenuto);
  if (errore != nullptr) *errore = esito;
  if (esito != 0) return std::nullopt;
  return contenuto;
}

int Disco::Sostituisci(const Percorso& percorso, Vista contenuto) const {
  const Percorso trovato = Cerca(percorso);
  return Sostituisci_File(Bersaglio(trovato), contenuto, [&] { return Guasto(*this, percorso, trovato); });
}

int Disco::Scrivi_Nuovo(const Percorso& percorso, Vista contenuto) const {
  const Percorso file = Cerca(Cartella_Di(percorso)) / percorso.filename();
  if (C_E(file)) return EEXIST;
  return Sostituisci_File(file, contenuto, [&] { return Guasto(*this, percorso, file); });
}

int Disco::Aggiungi(const Percorso& percorso, Vista contenuto) const {
  constexpr std::size_t sostituito_fino_a = std::size_t{1} << 20U;
  const Percorso trovato = Cerca(percorso);
  int ignoto = 0;
  const auto prima = Stato(trovato, &ignoto);
  if (!prima && ignoto != ENOENT) return ignoto;
  const std::size_t lunghezza = prima ? static_cast<std::size_t>(prima->st_size) : 0;
  if (lunghezza + contenuto.size() <= sostituito_fino_a) {
    int errore = 0;
    const auto presente = prima ? Leggi(trovato, &errore) : Testo();
    return presente ? Sostituisci(percorso, *presente + Testo(contenuto)) : errore;
  }
  if (const int errore = Guasto(*this, percorso, trovato)) return errore;
  const int errore = Lavora_Su(trovato, O_APPEND, contenuto, Aggiungi_In_Fondo);
  // Half a line would be read as a line: what was written is taken back. Should that fail too, the first
  // error tells.
  if (errore != 0 && !prima) unlink(trovato.c_str());
  if (errore != 0 && prima && S_ISREG(prima->st_mode)) [[maybe_unused]]
    const int ripreso = truncate(trovato.c_str(), prima->st_size);
  return errore;
}

int Disco::Sovrascrivi(const Percorso& percorso, Vista contenuto) const {
  const Percorso trovato = Cerca(percorso);
  if (const int errore = Guasto(*this, percorso, trovato)) return errore;
  return Lavora_Su(trovato, 0, contenuto, Scrivi_Sopra);
}

int Disco::Copia(const Percorso& da, const Percorso& a) const {
  int errore = 0;
  const auto contenuto = Leggi(da, &errore);
  return contenuto ? Sostituisci(a, *contenuto) : errore;
}

int Disco::Cancella(const Percorso& percorso) const {
  const Percorso trovato = Cerca(percorso);
  if (const int errore = Guasto(*this, percorso, trovato)) return errore;
  return Esito(unlink(trovato.c_str()));
}

int Disco::Rinomina(const Percorso& da, const Percorso& a) const {
  const Percorso origine = Cerca(da), presente = Cerca(a);
  if (const int errore = Guasto(*this, da, origine)) return errore;
  if (const int errore = Guasto(*this, a, presente)) return errore;
  if (!C_E(origine)) return ENOENT;
  const Percorso meta = presente.parent_path() / a.filename();
  // The same file in another letter case isn't in its own way.
  if (C_E(presente) && (!Stesso_File(origine, presente) || meta == origine)) return EEXIST;
  if (const int errore = Rinomina_Nuovo(origine, meta)) return errore;
  int errore = Fissa_Cartella(Cartella_Di(meta));
  if (errore == 0) errore = Fissa_Cartella(Cartella_Di(origine));
  if (errore != 0) Rinomina_Nuovo(meta, origine);  // who was told of a failure finds the name of before
  return errore;
}

int Disco::Crea_Cartella(const Percorso& percorso) const {
  if (percorso.empty()) return ENOENT;
  const Percorso trovato = Cerca(percorso);
  if (Esiste_Cartella(trovato)) return 0;
  if (const int errore = Guasto(*this, percorso, trovato)) return errore;
  return Crea_Con_Genitori(trovato);
}

void Disco::Togli_Provvisori(const Percorso& cartella) const {
  const Testo modello = Testo(inizio_provvisorio) + "*" + fine_provvisorio;
  const Percorso trovata = Cerca(cartella);
  for (const Percorso& nome : Elenca(trovata, modello)) {
    const char* cifre = nome.c_str() + inizio_provvisorio.size();
    pid_t processo = 0;
    const auto letto = std::from_chars(cifre, nome.c_str() + nome.native().size(), processo);
    if (letto.ec != std::errc() || *letto.ptr != '-' || processo <= 0) continue;
    if (kill(processo, 0) != 0 && errno == ESRCH) unlink((trovata / nome).c_str());
  }
}

int Disco::Rendi_Eseguibile(const Percorso& percorso) const {
  const Percorso file = Cerca(percorso);
  const auto stato = Stato(file);
  if (!stato) return ENOENT;
  const mode_t lettura = stato->st_mode & 0444U;
  return Esito(chmod(file.c_str(), (stato->st_mode & 07777U) | (lettura >> 2U)));
}

std::vector<Percorso> Disco::Elenca(const Percorso& cartella, Vista modello) const {
  return Nomi_In(Cerca(cartella), [modello](const fs::directory_entry& voce, Vista nome) {
    std::error_code illeggibile;
    return Corrisponde(nome, modello) && voce.is_regular_file(illeggibile);
  });
}

std::optional<fs::file_time_type> Disco::Cambiata(const Percorso& cartella) const {
  std::error_code errore;
  const fs::file_time_type quando = fs::last_write_time(Cerca(cartella), errore);
  if (errore) return std::nullopt;
  return quando;
}

std::vector<Percorso> Disco::Elenca_Cartelle(const Percorso& cartella) const {
  return Nomi_In(Cerca(cartella), [](const fs::directory_entry& voce, Vista) {
    std::error_code illeggibile;
    return voce.is_directory(illeggibile);
  });
}

Testo Testo_Errore(int errore) { return Da_Utf8(std::generic_category().message(errore)); }

Blocco_Cartella::~Blocco_Cartella() { Lascia(); }

bool Blocco_Cartella::Prendi(const Percorso& cartella) {
  Lascia();
  descrittore_ = open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descrittore_ < 0) return true;
  if (flock(descrittore_, LOCK_EX | LOCK_NB) == 0) return true;
  const bool d_altri = errno == EWOULDBLOCK;
  Lascia();
  return !d_altri;
}

void Blocco_Cartella::Lascia() {
  if (descrittore_ < 0) return;
  close(descrittore_);
  descrittore_ = -1;
}

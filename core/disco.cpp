#include "core/disco.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "core/cartelle.h"
#include "core/memoria.h"

namespace {

namespace fs = std::filesystem;

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
  const std::size_t posto = static_cast<std::size_t>(stato.st_size) + 1;  // one more: the end shows at once
  contenuto.reserve(posto);
  Chiedi_Pagine_Grandi(contenuto.data(), posto);
  contenuto.resize(posto);
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

// A file that holds what it should already may be in the machine's memory only.
int Fissa_Presente(const Percorso& percorso) {
  const Descrittore file = Apri(percorso, O_RDONLY);
  if (!file.Aperto() || fsync(file.Numero()) != 0) return errno;
  return Fissa_Cartella(Cartella_Di(percorso));
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
  int Rileggi(Vista contenuto) const {
    Testo riletto;
    Dimentica();
    if (const int errore = Leggi_File(percorso_, riletto)) return errore;
    return riletto == contenuto ? 0 : EIO;
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
  // What the machine remembers of the file goes, so that reading asks the disk. Only advice.
  void Dimentica() const {
    const Descrittore file = Apri(percorso_, O_RDONLY);
    if (file.Aperto()) posix_fadvise(file.Numero(), 0, 0, POSIX_FADV_DONTNEED);
  }
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

// Whether a new file is read again before it takes its name.
enum class Rilettura { No, Si };

int Sostituisci_File(const Percorso& bersaglio, Vista contenuto, Rilettura rilettura,
                     const std::function<int()>& guasto) {
  if (const int errore = guasto()) return errore;
  int ignoto = 0;
  const auto stato = Stato(bersaglio, &ignoto);
  // A file that can't be asked may be there, and nothing is known of what it holds.
  if (!stato && ignoto != ENOENT) return ignoto;
  if (stato) {
    if (const int errore = Errore_Di_Scrittura(bersaglio, *stato)) return errore;
    if (Gia_Uguale(bersaglio, *stato, contenuto))
      return rilettura == Rilettura::Si ? Fissa_Presente(bersaglio) : 0;
  }
  const Percorso cartella = Cartella_Di(bersaglio);
  File_Provvisorio nuovo(cartella);
  // Each step may fail; a test asks for that before each.
  const std::function<int()> passi[] = {
      [&] { return nuovo.Errore(); },
      [&] { return stato ? nuovo.Come(*stato) : 0; },
      [&] { return nuovo.Scrivi(contenuto); },
      [&] {
        const int fissato = nuovo.Fissa();
        return fissato == 0 && rilettura == Rilettura::Si ? nuovo.Rileggi(contenuto) : fissato;
      },
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

int Metti(const Disco& disco, const Percorso& percorso, Vista contenuto, Rilettura rilettura) {
  const Posto_Trovato posto = Cerca(percorso);
  if (posto.errore != 0) return posto.errore;
  return Sostituisci_File(Bersaglio(posto.percorso), contenuto, rilettura,
                          [&] { return Guasto(disco, percorso, posto.percorso); });
}

int Accoda_In_Fondo(int descrittore, Vista contenuto) {
  struct stat stato {};
  if (fstat(descrittore, &stato) != 0) return errno;
  if (const int errore = Errore_Di_Specie(stato.st_mode)) return errore;
  return Scrivi_Tutto(descrittore, contenuto);
}

int Aggiungi_In_Fondo(int descrittore, Vista contenuto) {
  if (const int errore = Accoda_In_Fondo(descrittore, contenuto)) return errore;
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

}  // namespace

bool Disco::Esiste_File(const Percorso& percorso) const {
  const auto stato = Stato(Cerca(percorso).percorso);
  return stato && S_ISREG(stato->st_mode);
}

bool Disco::Manca_File(const Percorso& percorso, int* errore) const {
  const auto [trovato, ignoto] = Cerca(percorso);
  int esito = ignoto;
  const auto stato = esito == 0 ? Stato(trovato, &esito) : std::nullopt;
  const bool manca = stato ? !S_ISREG(stato->st_mode) : esito == ENOENT || esito == ENOTDIR;
  if (errore != nullptr) *errore = stato || manca ? 0 : esito;
  return manca;
}

bool Disco::Esiste_Cartella(const Percorso& percorso) const {
  const auto stato = Stato(Cerca(percorso).percorso);
  return stato && S_ISDIR(stato->st_mode);
}

bool Disco::E_Collegamento(const Percorso& percorso) const {
  struct stat stato {};
  return lstat(Cerca(percorso).percorso.c_str(), &stato) == 0 && S_ISLNK(stato.st_mode);
}

Percorso Disco::Trova(const Percorso& percorso) const {
  const Percorso trovato = Cerca(percorso).percorso;
  return C_E(trovato) ? trovato : percorso;
}

std::optional<Testo> Disco::Leggi(const Percorso& percorso, int* errore) const {
  Testo contenuto;
  const auto [trovato, ignoto] = Cerca(percorso);
  const int esito = ignoto != 0 ? ignoto : Leggi_File(trovato, contenuto);
  if (errore != nullptr) *errore = esito;
  if (esito != 0) return std::nullopt;
  return contenuto;
}

std::optional<Testo> Disco::Leggi_Testo(const Percorso& percorso, int* errore) const {
  auto contenuto = Leggi(percorso, errore);
  if (contenuto) contenuto->erase(0, contenuto->size() - Senza_Marca(*contenuto).size());
  return contenuto;
}

int Disco::Sostituisci(const Percorso& percorso, Vista contenuto) const {
  return Metti(*this, percorso, contenuto, Rilettura::No);
}

int Disco::Sostituisci_E_Rileggi(const Percorso& percorso, Vista contenuto) const {
  return Metti(*this, percorso, contenuto, Rilettura::Si);
}

int Disco::Scrivi_Nuovo(const Percorso& percorso, Vista contenuto) const {
  const Posto_Trovato cartella = Cerca(Cartella_Di(percorso));
  if (cartella.errore != 0) return cartella.errore;
  const Percorso file = cartella.percorso / percorso.filename();
  if (C_E(file)) return EEXIST;
  return Sostituisci_File(file, contenuto, Rilettura::No, [&] { return Guasto(*this, percorso, file); });
}

int Disco::Aggiungi(const Percorso& percorso, Vista contenuto) const {
  constexpr std::size_t sostituito_fino_a = std::size_t{1} << 20U;
  auto [trovato, ignoto] = Cerca(percorso);
  if (ignoto != 0) return ignoto;
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

int Disco::Accoda_Provvisorio(const Percorso& percorso, Vista contenuto) const {
  const auto [trovato, ignoto] = Cerca(percorso);
  if (ignoto != 0) return ignoto;
  if (const int errore = Guasto(*this, percorso, trovato)) return errore;
  Descrittore file = Apri(trovato, O_WRONLY | O_CREAT | O_APPEND | O_NONBLOCK | O_NOFOLLOW);
  if (!file.Aperto()) return errno;
  if (const int errore = Accoda_In_Fondo(file.Numero(), contenuto)) return errore;
  return file.Chiudi();
}

int Disco::Sovrascrivi(const Percorso& percorso, Vista contenuto) const {
  const auto [trovato, ignoto] = Cerca(percorso);
  if (ignoto != 0) return ignoto;
  if (const int errore = Guasto(*this, percorso, trovato)) return errore;
  // What a link leads to isn't this file, and would be gone for good.
  return Lavora_Su(trovato, O_NOFOLLOW, contenuto, Scrivi_Sopra);
}

int Disco::Copia(const Percorso& da, const Percorso& a) const {
  int errore = 0;
  const auto contenuto = Leggi(da, &errore);
  return contenuto ? Metti(*this, a, *contenuto, Rilettura::Si) : errore;
}

int Disco::Cancella(const Percorso& percorso) const {
  const auto [trovato, ignoto] = Cerca(percorso);
  if (ignoto != 0) return ignoto;
  if (const int errore = Guasto(*this, percorso, trovato)) return errore;
  return Esito(unlink(trovato.c_str()));
}

int Disco::Rinomina(const Percorso& da, const Percorso& a) const {
  const auto [origine, ignota] = Cerca(da);
  const auto [presente, ignoto] = Cerca(a);
  if (ignota != 0 || ignoto != 0) return ignota != 0 ? ignota : ignoto;
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
  const auto [trovato, ignoto] = Cerca(percorso);
  if (ignoto != 0) return ignoto;
  if (Esiste_Cartella(trovato)) return 0;
  if (const int errore = Guasto(*this, percorso, trovato)) return errore;
  return Crea_Con_Genitori(trovato);
}

void Disco::Togli_Provvisori(const Percorso& cartella) const {
  const Testo modello = Testo(inizio_provvisorio) + "*" + fine_provvisorio;
  const Percorso trovata = Cerca(cartella).percorso;
  // Those of a folder that can't be read stay, as they did no harm so far.
  for (const Percorso& nome : Elenca(trovata, modello).value_or(std::vector<Percorso>())) {
    const char* cifre = nome.c_str() + inizio_provvisorio.size();
    pid_t processo = 0;
    const auto letto = std::from_chars(cifre, nome.c_str() + nome.native().size(), processo);
    if (letto.ec != std::errc() || *letto.ptr != '-' || processo <= 0) continue;
    if (kill(processo, 0) != 0 && errno == ESRCH) unlink((trovata / nome).c_str());
  }
}

int Disco::Rendi_Eseguibile(const Percorso& percorso) const {
  const auto [file, ignoto] = Cerca(percorso);
  if (ignoto != 0) return ignoto;
  const auto stato = Stato(file);
  if (!stato) return ENOENT;
  const mode_t lettura = stato->st_mode & 0444U;
  return Esito(chmod(file.c_str(), (stato->st_mode & 07777U) | (lettura >> 2U)));
}

std::optional<std::vector<Percorso>> Disco::Elenca(const Percorso& cartella, Vista modello,
                                                   int* errore) const {
  return Nomi_In(
      cartella, Specie_Voce::File, [modello](Vista nome) { return Corrisponde(nome, modello); }, errore);
}

std::optional<std::vector<Percorso>> Disco::Elenca_Cartelle(const Percorso& cartella, int* errore) const {
  return Nomi_In(
      cartella, Specie_Voce::Cartella, [](Vista) { return true; }, errore);
}

std::optional<fs::file_time_type> Disco::Cambiata(const Percorso& cartella) const {
  std::error_code errore;
  const fs::file_time_type quando = fs::last_write_time(Cerca(cartella).percorso, errore);
  if (errore) return std::nullopt;
  return quando;
}

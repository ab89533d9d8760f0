#include "tests/guasti/chiamate.h"

#include <cerrno>
#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

Regia& regia() {
  static Regia sola;
  return sola;
}

void Regia::Registra() {
  *this = {};
  modo_ = Modo::Registra;
}

void Regia::Guasta(int posto, Guasto_Chiamata guasto) {
  *this = {};
  modo_ = Modo::Guasta;
  posto_ = posto;
  guasto_ = guasto;
}

void Regia::Uccidi(int posto) {
  *this = {};
  modo_ = Modo::Uccidi;
  posto_ = posto;
}

void Regia::Ferma() {
  modo_ = Modo::Ferma;
  a_ogni_nome = {};
}

void Regia::Falsa() {
  *this = {};
  modo_ = Modo::Falsa;
}

int Regia::Prima(const char* nome) {
  if (modo_ == Modo::Ferma || modo_ == Modo::Falsa) return 0;
  chiamate_.emplace_back(nome);
  const bool scrive = chiamate_.back() == "write";
  const bool qui = static_cast<int>(chiamate_.size()) == posto_;
  if (modo_ == Modo::Uccidi && qui) {
    if (!scrive) raise(SIGKILL);
    meta_ = muori_ = true;
    return 0;
  }
  if (modo_ != Modo::Guasta) return 0;
  if (alla_prossima_ && scrive) {
    alla_prossima_ = guasto_.per_sempre;
    return guasto_.errore;
  }
  if (scattato_ && guasto_.per_sempre) return guasto_.errore;
  if (!qui) return 0;
  if (guasto_.a_meta) {
    if (!scrive) return 0;
    scattato_ = meta_ = alla_prossima_ = true;
    return 0;
  }
  scattato_ = true;
  return guasto_.errore;
}

std::size_t Regia::Quanti(std::size_t voluti) {
  if (!meta_) return voluti;
  meta_ = false;
  return voluti - voluti / 2;
}

void Regia::Dopo_Scrittura() const {
  if (muori_) raise(SIGKILL);
}

void Regia::Dopo_Nome() const {
  if (a_ogni_nome) a_ogni_nome();
}

namespace {

// The fault first, else the real call.
template <class Vera, class... Argomenti>
auto Chiama(const char* nome, Vera vera, Argomenti... argomenti) -> decltype(vera(argomenti...)) {
  if (const int errore = regia().Prima(nome); errore != 0) {
    errno = errore;
    return -1;
  }
  return vera(argomenti...);
}

// The same of a call that gives a name to a file or takes it away.
template <class Vera, class... Argomenti>
auto Chiama_Nome(const char* nome, Vera vera, Argomenti... argomenti) -> decltype(vera(argomenti...)) {
  const auto esito = Chiama(nome, vera, argomenti...);
  const int errore = errno;
  if (esito == 0) regia().Dopo_Nome();
  errno = errore;
  return esito;
}

}  // namespace

extern "C" {

int __real_open(const char* percorso, int modo, mode_t diritti);
int __real_close(int file);
ssize_t __real_read(int file, void* dove, std::size_t quanti);
ssize_t __real_write(int file, const void* cosa, std::size_t quanti);
int __real_fchmod(int file, mode_t diritti);
int __real_fstat(int file, struct stat* stato);
int __real_stat(const char* percorso, struct stat* stato);
int __real_fstatat(int cartella, const char* percorso, struct stat* stato, int come);
int __real_faccessat(int cartella, const char* percorso, int modo, int altro);
int __real_rename(const char* da, const char* a);
int __real_renameat2(int da_dove, const char* da, int a_dove, const char* a, unsigned come);
int __real_unlink(const char* percorso);
int __real_mkdir(const char* percorso, mode_t diritti);
int __real_chmod(const char* percorso, mode_t diritti);
int __real_truncate(const char* percorso, off_t lunghezza);
int __real_ftruncate(int file, off_t lunghezza);
DIR* __real_opendir(const char* percorso);
dirent* __real_readdir(DIR* cartella);

int __wrap_open(const char* percorso, int modo, mode_t diritti) {
  return Chiama("open", __real_open, percorso, modo, diritti);
}
// A close that fails has closed all the same.
int __wrap_close(int file) {
  const int errore = regia().Prima("close");
  const int esito = __real_close(file);
  if (errore == 0) return esito;
  errno = errore;
  return -1;
}
ssize_t __wrap_read(int file, void* dove, std::size_t quanti) {
  return Chiama("read", __real_read, file, dove, quanti);
}
ssize_t __wrap_write(int file, const void* cosa, std::size_t quanti) {
  if (!regia().In_Scena()) return __real_write(file, cosa, quanti);
  if (const int errore = regia().Prima("write"); errore != 0) {
    errno = errore;
    return -1;
  }
  if (regia().Falsifica()) {
    std::string altro(static_cast<const char*>(cosa), quanti);
    for (char& c : altro) c = static_cast<char>(c ^ 1);
    return __real_write(file, altro.data(), quanti);
  }
  const ssize_t scritti = __real_write(file, cosa, regia().Quanti(quanti));
  regia().Dopo_Scrittura();
  return scritti;
}
// Nothing here survives a power cut anyway, and a real flush would make the tests wait for the disk.
int __wrap_fsync(int) {
  const int errore = regia().Prima("fsync");
  if (errore == 0) return 0;
  errno = errore;
  return -1;
}
int __wrap_fchmod(int file, mode_t diritti) { return Chiama("fchmod", __real_fchmod, file, diritti); }
int __wrap_fstat(int file, struct stat* stato) { return Chiama("fstat", __real_fstat, file, stato); }
int __wrap_stat(const char* percorso, struct stat* stato) {
  return Chiama("stat", __real_stat, percorso, stato);
}
int __wrap_fstatat(int cartella, const char* percorso, struct stat* stato, int come) {
  return Chiama("fstatat", __real_fstatat, cartella, percorso, stato, come);
}
int __wrap_faccessat(int cartella, const char* percorso, int modo, int altro) {
  return Chiama("faccessat", __real_faccessat, cartella, percorso, modo, altro);
}
int __wrap_rename(const char* da, const char* a) { return Chiama_Nome("rename", __real_rename, da, a); }
int __wrap_renameat2(int da_dove, const char* da, int a_dove, const char* a, unsigned come) {
  return Chiama_Nome("renameat2", __real_renameat2, da_dove, da, a_dove, a, come);
}
int __wrap_unlink(const char* percorso) { return Chiama_Nome("unlink", __real_unlink, percorso); }
int __wrap_mkdir(const char* percorso, mode_t diritti) {
  return Chiama("mkdir", __real_mkdir, percorso, diritti);
}
int __wrap_chmod(const char* percorso, mode_t diritti) {
  return Chiama("chmod", __real_chmod, percorso, diritti);
}
int __wrap_truncate(const char* percorso, off_t lunghezza) {
  return Chiama("truncate", __real_truncate, percorso, lunghezza);
}
int __wrap_ftruncate(int file, off_t lunghezza) {
  return Chiama("ftruncate", __real_ftruncate, file, lunghezza);
}

DIR* __wrap_opendir(const char* percorso) {
  if (const int errore = regia().Prima("opendir"); errore != 0) {
    errno = errore;
    return nullptr;
  }
  regia().Cartella_Aperta();
  return __real_opendir(percorso);
}
dirent* __wrap_readdir(DIR* cartella) {
  const int errore = regia().Prima_Voce() ? regia().Prima("readdir") : 0;
  if (errore == 0) return __real_readdir(cartella);
  errno = errore;
  return nullptr;
}

}  // extern "C"

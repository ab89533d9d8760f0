#include "tests/luogo/occhio.h"

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

bool Dentro(const fs::path& percorso, const fs::path& cartella) {
  return std::mismatch(cartella.begin(), cartella.end(), percorso.begin(), percorso.end()).first ==
         cartella.end();
}

}  // namespace

Occhio& occhio() {
  static Occhio uno;
  return uno;
}

void Occhio::Guarda(const fs::path& cartella) {
  fuori_.clear();
  cartella_ = cartella;
}

void Occhio::Chiamata(const char* nome, const char* percorso, bool domanda) {
  if (cartella_.empty()) return;
  const fs::path intero = fs::path(percorso).is_absolute() ? percorso : cartella_ / percorso;
  const fs::path pulito = intero.lexically_normal();
  if (Dentro(pulito, cartella_) || (domanda && Dentro(cartella_, pulito))) return;
  fuori_.push_back(std::string(nome) + " " + percorso);
}

extern "C" {

int __real_open(const char* percorso, int modo, mode_t diritti);
DIR* __real_opendir(const char* percorso);
int __real_stat(const char* percorso, struct stat* stato);
int __real_lstat(const char* percorso, struct stat* stato);
int __real_faccessat(int cartella, const char* percorso, int modo, int altro);
int __real_rename(const char* da, const char* a);
int __real_renameat2(int da_dove, const char* da, int a_dove, const char* a, unsigned come);
int __real_unlink(const char* percorso);
int __real_mkdir(const char* percorso, mode_t diritti);
int __real_chmod(const char* percorso, mode_t diritti);
int __real_truncate(const char* percorso, off_t lunghezza);

int __wrap_open(const char* percorso, int modo, mode_t diritti) {
  occhio().Chiamata("open", percorso, false);
  return __real_open(percorso, modo, diritti);
}
DIR* __wrap_opendir(const char* percorso) {
  occhio().Chiamata("opendir", percorso, false);
  return __real_opendir(percorso);
}
int __wrap_stat(const char* percorso, struct stat* stato) {
  occhio().Chiamata("stat", percorso, true);
  return __real_stat(percorso, stato);
}
int __wrap_lstat(const char* percorso, struct stat* stato) {
  occhio().Chiamata("lstat", percorso, true);
  return __real_lstat(percorso, stato);
}
int __wrap_faccessat(int cartella, const char* percorso, int modo, int altro) {
  occhio().Chiamata("faccessat", percorso, true);
  return __real_faccessat(cartella, percorso, modo, altro);
}
int __wrap_rename(const char* da, const char* a) {
  for (const char* percorso : {da, a}) occhio().Chiamata("rename", percorso, false);
  return __real_rename(da, a);
}
int __wrap_renameat2(int da_dove, const char* da, int a_dove, const char* a, unsigned come) {
  for (const char* percorso : {da, a}) occhio().Chiamata("renameat2", percorso, false);
  return __real_renameat2(da_dove, da, a_dove, a, come);
}
int __wrap_unlink(const char* percorso) {
  occhio().Chiamata("unlink", percorso, false);
  return __real_unlink(percorso);
}
int __wrap_mkdir(const char* percorso, mode_t diritti) {
  occhio().Chiamata("mkdir", percorso, false);
  return __real_mkdir(percorso, diritti);
}
int __wrap_chmod(const char* percorso, mode_t diritti) {
  occhio().Chiamata("chmod", percorso, false);
  return __real_chmod(percorso, diritti);
}
int __wrap_truncate(const char* percorso, off_t lunghezza) {
  occhio().Chiamata("truncate", percorso, false);
  return __real_truncate(percorso, lunghezza);
}

}  // extern "C"

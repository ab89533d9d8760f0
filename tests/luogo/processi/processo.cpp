#include "tests/luogo/processi/processo.h"

#include <cerrno>
#include <fcntl.h>
#include <stdexcept>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

void Prepara_Ambiente(const Processo::Ambiente& ambiente) {
  for (const auto& [nome, valore] : ambiente) {
    if (valore.empty())
      unsetenv(nome.c_str());
    else
      setenv(nome.c_str(), valore.c_str(), 1);
  }
}

}  // namespace

Processo::Processo(const std::filesystem::path& programma, const std::vector<std::string>& argomenti,
                   const Ambiente& ambiente) {
  int verso[2], da[2];
  if (pipe2(verso, O_CLOEXEC) != 0 || pipe2(da, O_CLOEXEC) != 0) throw std::runtime_error("pipe");
  std::vector<char*> lista = {const_cast<char*>(programma.c_str())};
  for (const std::string& argomento : argomenti) lista.push_back(const_cast<char*>(argomento.c_str()));
  lista.push_back(nullptr);
  pid_ = fork();
  if (pid_ < 0) throw std::runtime_error("fork");
  if (pid_ == 0) {
    dup2(verso[0], STDIN_FILENO);
    dup2(da[1], STDOUT_FILENO);
    Prepara_Ambiente(ambiente);
    execv(programma.c_str(), lista.data());
    _exit(127);
  }
  close(verso[0]);
  close(da[1]);
  ingresso_ = verso[1];
  uscita_ = da[0];
}

Processo::~Processo() {
  Uccidi();
  close(ingresso_);
  close(uscita_);
}

std::vector<std::string> Processo::Righe_Fino_A(const std::string& inizio) {
  std::vector<std::string> righe;
  for (;;) {
    for (auto fine = letto_.find('\n'); fine != std::string::npos; fine = letto_.find('\n')) {
      righe.push_back(letto_.substr(0, fine));
      letto_.erase(0, fine + 1);
      if (righe.back().starts_with(inizio)) return righe;
    }
    char pezzo[4096];
    const ssize_t n = read(uscita_, pezzo, sizeof pezzo);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return righe;
    letto_.append(pezzo, static_cast<std::size_t>(n));
  }
}

bool Processo::Vivo() {
  if (pid_ < 0) return false;
  if (waitpid(pid_, nullptr, WNOHANG) == 0) return true;
  pid_ = -1;
  return false;
}

void Processo::Uccidi() {
  if (pid_ < 0) return;
  kill(pid_, SIGKILL);
  while (waitpid(pid_, nullptr, 0) < 0 && errno == EINTR) continue;
  pid_ = -1;
}

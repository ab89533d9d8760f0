#pragma once

#include <csignal>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

// Another process, whose standard output is read line by line; it is killed with the object.
class Processo {
 public:
  using Ambiente = std::map<std::string, std::string>;  // set on top of ours; an empty value takes one away

  Processo(const std::filesystem::path& programma, const std::vector<std::string>& argomenti,
           const Ambiente& ambiente = {});
  ~Processo();
  Processo(const Processo&) = delete;
  Processo& operator=(const Processo&) = delete;

  // The lines up to one that begins so, that one included, or up to the end of its output.
  std::vector<std::string> Righe_Fino_A(const std::string& inizio);
  std::vector<std::string> Tutte() { return Righe_Fino_A("\n"); }
  void Manda(int segnale) const { kill(pid_, segnale); }
  bool Vivo();
  void Uccidi();  // and waits until it is gone

 private:
  pid_t pid_ = -1;
  int ingresso_ = -1, uscita_ = -1;
  std::string letto_;
};

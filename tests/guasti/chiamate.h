#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

// The calls by which the program reaches the disk (open, read, write, fsync, close, rename, opendir ...). The
// linker leads those of the program and of these tests through here (--wrap, see tests/CMakeLists.txt), so
// that each one can fail as on a real disk, with everything that the program does about it.

struct Guasto_Chiamata {
  int errore = 0;           // the errno; of a write that is cut short, of the write that follows it
  bool a_meta = false;      // a write stores half of its bytes, and the next one fails
  bool per_sempre = false;  // the disk is gone: every later call fails too
};

class Regia {
 public:
  // Lets everything pass and writes down the calls.
  void Registra();
  // The call at that place (from 1) fails.
  void Guasta(int posto, Guasto_Chiamata guasto);
  // The process dies at that place (from 1): before the call, or when half of a write's bytes are stored.
  void Uccidi(int posto);
  void Ferma();
  // Lets everything pass, but writes store other bytes than they were given, as a stick may that is worn out.
  void Falsa();
  // While calls are written down: after each one that gave a name to a file or took it away.
  std::function<void()> a_ogni_nome;

  const std::vector<std::string>& Chiamate() const { return chiamate_; }
  bool Scattato() const { return scattato_; }  // the fault was met

  // For the calls themselves. The errno with which this one fails, 0 to let it pass.
  int Prima(const char* nome);
  // How many bytes of a write are stored; a write that stores less kills the process where that is asked for.
  std::size_t Quanti(std::size_t voluti);
  void Dopo_Scrittura() const;
  void Dopo_Nome() const;
  bool In_Scena() const { return modo_ != Modo::Ferma; }
  bool Falsifica() const { return modo_ == Modo::Falsa; }
  // All entries of a folder count as one call.
  void Cartella_Aperta() { prima_voce_ = true; }
  bool Prima_Voce() { return std::exchange(prima_voce_, false); }

 private:
  enum class Modo { Ferma, Registra, Guasta, Uccidi, Falsa };
  Modo modo_ = Modo::Ferma;
  int posto_ = 0;
  Guasto_Chiamata guasto_;
  bool scattato_ = false, meta_ = false, muori_ = false, alla_prossima_ = false, prima_voce_ = false;
  std::vector<std::string> chiamate_;
};

Regia& regia();

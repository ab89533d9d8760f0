#pragma once

#include <filesystem>
#include <string>
#include <vector>

// Watches the calls by which the program reaches the disk (the linker leads them through here, --wrap in
// tests/CMakeLists.txt) and notes those that leave the folder.
class Occhio {
 public:
  void Guarda(const std::filesystem::path& cartella);
  void Chiudi() { cartella_.clear(); }
  // "open /etc/passwd" and so on. Asking what a folder above is doesn't count.
  const std::vector<std::string>& Fuori() const { return fuori_; }

  void Chiamata(const char* nome, const char* percorso, bool domanda);

 private:
  std::filesystem::path cartella_;
  std::vector<std::string> fuori_;
};

Occhio& occhio();

#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

// A folder of its own under the system's temporary one, gone with the object.
class Cartella_Temporanea {
 public:
  Cartella_Temporanea() {
    std::string modello = (std::filesystem::temp_directory_path() / "velmara_prova_XXXXXX").string();
    if (mkdtemp(modello.data()) == nullptr) throw std::runtime_error("nessuna cartella di prova");
    percorso = modello;
  }
  ~Cartella_Temporanea() {
    std::error_code errore;
    std::filesystem::remove_all(percorso, errore);
  }
  Cartella_Temporanea(const Cartella_Temporanea&) = delete;
  Cartella_Temporanea& operator=(const Cartella_Temporanea&) = delete;

  std::filesystem::path operator/(const std::string& nome) const { return percorso / nome; }

  void Metti(const std::string& nome, const std::string& contenuto) const {
    std::filesystem::create_directories((percorso / nome).parent_path());
    std::ofstream(percorso / nome, std::ios::binary) << contenuto;
  }
  std::string Contenuto(const std::string& nome) const {
    std::ifstream file(percorso / nome, std::ios::binary);
    if (!file) return "(manca)";
    return {std::istreambuf_iterator<char>(file), {}};
  }
  // Every name in it, hidden ones too, sorted.
  std::vector<std::string> Nomi() const {
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(percorso))
      nomi.push_back(voce.path().filename().string());
    std::sort(nomi.begin(), nomi.end());
    return nomi;
  }

  std::filesystem::path percorso;
};

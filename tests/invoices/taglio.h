#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// Cuts a record of fixed length as the receiving program does: field after field by length alone. It knows
// nothing of how the program writes them.

struct Campo_Record {
  const char* nome;
  std::size_t lunghezza;
};

class Record_Tagliato {
 public:
  Record_Tagliato(const std::string& record, const std::vector<Campo_Record>& tracciato) {
    std::size_t posto = 0;
    for (const Campo_Record& campo : tracciato) {
      if (posto + campo.lunghezza > record.size()) throw std::runtime_error("record corto: " + record);
      campi_.emplace_back(campo.nome, record.substr(posto, campo.lunghezza));
      posto += campo.lunghezza;
    }
    if (posto != record.size()) throw std::runtime_error("record lungo: " + record);
  }

  const std::string& operator[](const std::string& nome) const {
    for (const auto& [di, valore] : campi_)
      if (di == nome) return valore;
    throw std::runtime_error("campo ignoto: " + nome);
  }

 private:
  std::vector<std::pair<std::string, std::string>> campi_;
};

// The records of a file, each of which must have its end.
inline std::vector<std::string> Record_Di(const std::string& file) {
  std::vector<std::string> record;
  std::size_t inizio = 0;
  while (inizio < file.size()) {
    const std::size_t fine = file.find("\r\n", inizio);
    if (fine == std::string::npos) throw std::runtime_error("record senza fine");
    record.push_back(file.substr(inizio, fine - inizio));
    inizio = fine + 2;
  }
  return record;
}

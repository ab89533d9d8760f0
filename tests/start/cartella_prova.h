#pragma once

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>

#include "core/programma.h"
#include "tests/core/cartella_temporanea.h"
#include "tests/piattaforma_finta.h"

// A firm's folder for one test, with the machine and the program that work on it.
class Cartella_Prova : public testing::Test {
 protected:
  Cartella_Prova() { std::filesystem::create_directory(cartella); }

  void Scrivi(const std::string& nome, const Testo& contenuto) const {
    const Percorso file = cartella / nome;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << contenuto;
  }
  Testo Contenuto(const std::string& nome) const {
    std::ifstream file(cartella / nome, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  bool Manca(const std::string& nome) const { return !std::filesystem::exists(cartella / nome); }
  Testo Percorso_Di(const std::string& nome) const { return Testo_Percorso(cartella / nome); }
  std::set<std::string> Nomi() const {
    std::set<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(cartella))
      nomi.insert(voce.path().filename().string());
    return nomi;
  }

  Cartella_Temporanea temporanea;
  Percorso base = temporanea.percorso, cartella = base / "ditta";
  Piattaforma_Finta macchina;
};

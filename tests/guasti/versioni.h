#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/guasti/chiamate.h"
#include "tests/guasti/scena.h"

using Foto = std::map<std::string, std::string>;

// What the firm's files are before a save, after it, and in between, where it puts several in their places:
// each file that a save leaves which was stopped must be one of these.
struct Versioni_Intere {
  std::vector<Foto> foto;

  const Foto& Prima() const { return foto.front(); }
  const Foto& Dopo() const { return foto.back(); }

  // Takes them while the save runs; `salva` is called once.
  template <class Salva>
  void Prendi(const Scena& scena, const Salva& salva) {
    foto.push_back(scena.Foto());
    regia().Registra();
    regia().a_ogni_nome = [&] { foto.push_back(scena.Foto()); };
    salva();
    regia().Ferma();
    foto.push_back(scena.Foto());
  }

  // The names of files that are none of these. One that is there before and after may never be missing.
  std::vector<std::string> Guaste(const Foto& adesso) const {
    Foto tutte = adesso;
    for (const Foto& una : foto) tutte.insert(una.begin(), una.end());
    std::vector<std::string> guaste;
    for (const auto& [nome, contenuto] : tutte) {
      const auto come = [&](const Foto& una) { return Stesso(adesso, una, nome); };
      const bool sempre = Prima().contains(nome) && Dopo().contains(nome);
      if ((sempre && !adesso.contains(nome)) || std::ranges::none_of(foto, come)) guaste.push_back(nome);
    }
    return guaste;
  }

 private:
  static bool Stesso(const Foto& a, const Foto& b, const std::string& nome) {
    const auto in_a = a.find(nome), in_b = b.find(nome);
    if (in_a == a.end() || in_b == b.end()) return in_a == a.end() && in_b == b.end();
    return in_a->second == in_b->second;
  }
};

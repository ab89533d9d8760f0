#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

// A made-up year of day files, the same on every machine for the same numbers: the rows as the entry screen
// stores them, 35 fields, with credit rows, prices of one to three decimals and names in two letter cases
// among them.

struct Anno_Inventato {
  int giorni = 300, righe = 2000;
  int fornitori = 200, specie = 60, clienti = 400;
  char separatore = ',';
  int anno = 2025;
};

class Anno {
 public:
  explicit Anno(Anno_Inventato misure) : misure_(misure) {}

  // Writes the day files into `cartella`, which is made: January the first and the days that follow, 28 to a
  // month.
  void Scrivi(const std::filesystem::path& cartella) {
    std::filesystem::create_directories(cartella);
    constexpr int giorni_del_mese = 28;
    for (int giorno = 0; giorno < misure_.giorni; ++giorno) {
      const std::string nome = Cifre(misure_.anno, 4) + Cifre(giorno / giorni_del_mese + 1, 2) +
                               Cifre(giorno % giorni_del_mese + 1, 2) + ".txt";
      std::ofstream file(cartella / nome, std::ios::binary);
      for (int riga = 1; riga <= misure_.righe; ++riga) file << Riga(riga);
      if (!file.flush()) throw std::runtime_error("l'anno di prova non si può scrivere");
    }
  }

 private:
  static std::string Cifre(int numero, std::size_t quante) {
    std::string testo = std::to_string(numero);
    return std::string(quante - std::min(quante, testo.size()), '0') + testo;
  }

  int Caso(int fino_a) {
    caso_ = caso_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<int>((caso_ >> 33U) % static_cast<std::uint64_t>(fino_a));
  }

  std::string Decimale(int millesimi, int decimali) const {
    const std::string frazione = Cifre(millesimi % 1000, 3).substr(0, static_cast<std::size_t>(decimali));
    return std::to_string(millesimi / 1000) + misure_.separatore + frazione;
  }

  std::string Riga(int numero) {
    const std::string fornitore = Caso(40) == 0 ? "PESCATORI RIUNITI " : "Pescatori Riuniti ";
    const std::string prezzo = (Caso(50) == 0 ? "-" : "") + Decimale(1000 + Caso(29000), 1 + Caso(3));
    const int cliente = Caso(misure_.clienti);
    return Cifre(numero, 4) + '\t' + fornitore + Cifre(Caso(misure_.fornitori), 3) +
           "\tRistorante alla Vecchia Laguna " + Cifre(cliente, 4) + '\t' + Cifre(cliente, 5) +
           "\tSpecie di mare " + Cifre(Caso(misure_.specie), 2) + "\tA083721 - Mediterraneo Adriatico\t" +
           Decimale(500 + Caso(60000), 1 + Caso(3)) + '\t' + prezzo + "\t10\t" + std::to_string(1 + Caso(9)) +
           "\t" + Cifre(Caso(900), 3) + "\t15/03/2025\t-\t0\t6" + misure_.separatore +
           "5\t\t0113\t001 IT Italia\tL012250313\t" + Cifre(Caso(999), 3) +
           "\t\tSparus aurata\tSparidi\tOrata\t1131\tOTB reti a strascico\tSBG\tMED media\tFRE fresco\tINT "
           "intero\tGUT eviscerato\tINT GUT FRE MED \t\tChioggia " +
           Cifre(Caso(12), 2) + "\t-\r\n";
  }

  Anno_Inventato misure_;
  std::uint64_t caso_ = 20250314;
};

#include "tests/operatori/ditta.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "core/giorno.h"
#include "tests/runner/scena.h"

namespace operatori {

namespace fs = std::filesystem;

namespace {

struct Copia {
  const char* da;  // below the tests' working days
  const char* a;   // below the firm
};

constexpr std::array<Copia, 13> copie = {{{"stampe_macro/PREDEF", "PREDEF"},
                                          {"stampe_macro/PREDEF_FOR", "PREDEF_FOR"},
                                          {"statistiche/2025", "2025"},
                                          {"controllo_cv/CV_NO", "2025/CV_NO"},
                                          {"vettori_fatture/vettori.txt", "_2020_Vettori.txt"},
                                          {"lotti/lista.txt", "LottiPredeiniti.txt"},
                                          {"privacy/privacy.txt", "privacy.txt"},
                                          {"strumenti/CopiaDati.exe", "CopiaDati.exe"},
                                          {"strumenti/CopiaDati.exe", "Velmara_2020_Descri.exe"},
                                          {"vettori_fatture/giorno.txt", "2025/20250310.txt"},
                                          {"conti/giorno.txt", "2025/20250312.txt"},
                                          {"fatture/giorno.txt", "2025/20250313.txt"},
                                          {"primanota_pagine/giorno.txt", "2025/20250314.txt"}}};

constexpr std::array codici = {"0",   "0",   "0",   "101", "102", "103", "104", "105",     "106",
                               "107", "109", "110", "111", "112", "113", "114", "Lagomar", "99999"};

// What leads to another screen than the one that is meant, and what each firm has of its own.
constexpr std::array ferme = {"CodiceCOM", "nposteggio", "FlagFatBrenval", "FlagCVManuale"};

std::string Leggi(const Percorso& file) {
  std::ifstream flusso(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(flusso), {}};
}

void Aggiungi(const Percorso& file, const std::string& righe) {
  std::ofstream(file, std::ios::binary | std::ios::app) << righe;
}

// Some switches the other way, some choices and texts at random: what a firm has set over the years.
std::string Impostazioni_A_Caso(Caso& caso) {
  std::string righe;
  for (const Impostazione& una : Impostazioni()) {
    if (!caso.una_su(6) || std::find(ferme.begin(), ferme.end(), una.chiave) != ferme.end()) continue;
    if (std::holds_alternative<bool Preferenze::*>(una.posto))
      righe += una.chiave + (caso.una_su(2) ? "=-1\r\n" : "=0\r\n");
    else if (!una.scelte.empty())
      righe += una.chiave + "=" + caso.uno(una.scelte) + "\r\n";
    else if (caso.una_su(4))
      righe += una.chiave + "=" + std::to_string(caso.fra(-3, 300)) + "\r\n";
  }
  return righe;
}

}  // namespace

void Prepara_Ditta(const Percorso& progetto, const Percorso& ditta, const Schermo& schermo, Caso& caso) {
  const Percorso giornate = progetto / "tests/giornate";
  fs::remove_all(ditta);
  fs::create_directories(ditta / "2025");
  giornata::Copia_Tutto(giornate / "ditte/base", ditta);
  for (const Copia& copia : copie) giornata::Copia_Tutto(giornate / copia.da, ditta / copia.a);
  if (caso.una_su(3)) {  // the larger lists, with their own day
    giornata::Copia_Tutto(progetto / "data/demo", ditta);
    giornata::Copia_Tutto(ditta / "giornata.txt", ditta / "2025/20250314.txt");
  }
  const std::string proprie = schermo.impostazioni;
  std::string righe = "[VELMARA]\r\nnposteggio=12\r\n" + proprie;
  if (proprie.find("CodiceCOM") == std::string::npos)
    righe += std::string("CodiceCOM=") + caso.uno(codici) + "\r\n";
  const std::string a_caso = Impostazioni_A_Caso(caso);
  fs::remove(ditta / "Velmara_2020.ini");
  Aggiungi(ditta / "Velmara_2020.ini", righe);
  for (const Vista riga : Righe(a_caso))
    if (proprie.find(riga.substr(0, riga.find('='))) == std::string::npos)
      Aggiungi(ditta / "Velmara_2020.ini", std::string(riga) + "\r\n");
}

std::string Difetto_File(Vista contenuto) {
  std::size_t qui = 0;
  int riga = 0;
  while (qui < contenuto.size()) {
    ++riga;
    const auto fine = contenuto.find(FINE_RIGA, qui);
    if (fine == Vista::npos) return "la riga " + std::to_string(riga) + " senza fine";
    const Vista questa = contenuto.substr(qui, fine - qui);
    if (questa.find_first_of(Vista("\r\n\0", 3)) != Vista::npos)
      return "la riga " + std::to_string(riga) + " spezzata";
    const auto separatori = std::count(questa.begin(), questa.end(), TAB);
    if (separatori != static_cast<std::ptrdiff_t>(Num_Campi) - 1)
      return "la riga " + std::to_string(riga) + " con " + std::to_string(separatori + 1) + " campi";
    qui = fine + FINE_RIGA.size();
  }
  return {};
}

std::string Difetto_Giorno(const Programma& programma) {
  if (!programma.Edita_Aperta || programma.Tabella_Modificata || !fs::is_regular_file(programma.File_Giorno))
    return {};
  // An order of the list on the screen is none of the file, and the reader trims what it reads.
  const auto ordinate = [](Tabella tabella) {
    for (LedgerRow& riga : tabella.righe)
      for (Testo& campo : riga.campi) campo = Testo(Pulito(campo));
    std::sort(tabella.righe.begin(), tabella.righe.end(),
              [](const LedgerRow& a, const LedgerRow& b) { return a.campi < b.campi; });
    return tabella;
  };
  const Tabella salvata =
      ordinate(Leggi_Tabella(Leggi(programma.File_Giorno), programma.Separatore_Decimale));
  const Tabella in_mano = ordinate(programma.Vet_Tabella);
  const std::string nome = programma.File_Giorno.filename().string();
  if (salvata.Righe() != in_mano.Righe())
    return nome + " ha " + std::to_string(salvata.Righe()) + " righe, la tabella non modificata " +
           std::to_string(in_mano.Righe());
  for (int r = 1; r <= salvata.Righe(); ++r)
    for (std::size_t campo = 0; campo < salvata.Riga(r).campi.size(); ++campo)
      if (salvata.Riga(r).campi[campo] != in_mano.Riga(r).campi[campo])
        return nome + ", riga " + std::to_string(r) + ", campo " + std::to_string(campo + 1) + ": nel file " +
               giornata::Citato(In_Utf8(salvata.Riga(r).campi[campo])) + ", nella tabella non modificata " +
               giornata::Citato(In_Utf8(in_mano.Riga(r).campi[campo]));
  return {};
}

std::string Difetto_Giorni(const Percorso& ditta) {
  for (const auto& anno : fs::directory_iterator(ditta)) {
    if (!anno.is_directory() || !Tutte_Cifre(anno.path().filename().string(), 4)) continue;
    for (const auto& giorno : fs::directory_iterator(anno)) {
      if (!giorno.is_regular_file() || !Tutte_Cifre(giorno.path().stem().string(), 8)) continue;
      if (const std::string difetto = Difetto_File(Leggi(giorno.path())); !difetto.empty())
        return giorno.path().filename().string() + ": " + difetto;
    }
  }
  return {};
}

long Ultimo_Conto(const Percorso& ditta) {
  const std::string contenuto = Leggi(ditta / "_2020_ncv.txt");
  const std::vector<Vista> righe = Righe(contenuto);
  return righe.size() < 2 ? 0 : std::strtol(Testo(righe[1]).c_str(), nullptr, 10);
}

Testo Dati_Della_Ditta(const Percorso& radice, const Programma* programma) {
  Testo dati = radice.string();
  for (const auto& voce : fs::recursive_directory_iterator(radice)) {
    dati.append("\n").append(Testo_Percorso(voce.path().filename())).append("\n");
    if (voce.is_regular_file()) dati += Leggi(voce.path());
  }
  constexpr int errori = 134;
  for (int errore = 0; errore < errori; ++errore) dati.append("\n").append(Testo_Errore(errore));
  if (programma)
    for (const LedgerRow& riga : programma->Vet_Tabella.righe)
      for (const Testo& campo : riga.campi) dati.append("\n").append(campo);
  return dati;
}

}  // namespace operatori

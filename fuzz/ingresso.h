#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

#include "core/giorno.h"
#include "core/programma.h"
#include "printing/registratore.h"

// What the fuzz targets share: each is a file with `LLVMFuzzerTestOneInput`, which gets any bytes, hands them
// to one reader as that reader's file or text, and checks what must hold for all bytes.

// Stops the run when something that must hold doesn't.
inline void Esigi(bool vero, const char* che_cosa) {
  if (vero) return;
  std::fprintf(stderr, "non vale: %s\n", che_cosa);
  std::abort();
}

// The bytes of a run: one or more for choices, the rest for the reader.
class Ingresso {
 public:
  Ingresso(const std::uint8_t* dati, std::size_t quanti)
      : byte_(reinterpret_cast<const char*>(dati), quanti) {}

  unsigned Scelta(unsigned fra) {
    if (byte_.empty()) return 0;
    const auto primo = static_cast<unsigned char>(byte_.front());
    byte_.remove_prefix(1);
    return primo % fra;
  }
  char Separatore() { return Scelta(2) == 0 ? ',' : '.'; }
  // The bytes up to the next 0xFF, which goes: several texts in one input.
  Testo Pezzo() {
    const std::size_t fine = byte_.find('\xFF');
    const Testo pezzo(byte_.substr(0, fine));
    byte_.remove_prefix(fine == Vista::npos ? byte_.size() : fine + 1);
    return pezzo;
  }
  Vista Resto() const { return byte_; }

 private:
  Vista byte_;
};

// A machine on which every question gets the same answer.
class Macchina_Muta : public Piattaforma {
 public:
  int messaggi = 0;
  Testo risposta = "7";

  void Messaggio(const Testo&, Icona, const Testo&) override { ++messaggi; }
  bool Domanda(const Testo&, Icona, const Testo&) override { return true; }
  std::optional<Testo> Chiedi(const Testo&, const Testo&, const Testo&) override { return risposta; }
  void Ridipingi() override {}
  bool Vuole_Fermare() override { return false; }
  void Attendi(double) override {}
  void Occupato(bool) override {}
  Data Oggi() override { return {2025, 3, 14}; }
  char Separatore_Decimale() override { return ','; }
  Testo Appunti() override { return {}; }
  std::vector<Volume> Volumi() override { return {}; }
  std::optional<Stampante> Stampante_Corrente() override { return std::nullopt; }
  Printer& Dispositivo() override { return dispositivo_; }
  bool Avvia_Programma(const Percorso&, const std::vector<Testo>&) override { return false; }
  void Apri_Con_Desktop(const Percorso&) override {}
  void Termina() override {}

 private:
  std::optional<Stampante> stampante_;
  Registro_Pagine registro_;
  Registratore dispositivo_{stampante_, registro_};
};

// A firm's folder, the same for all runs of a process, with the day 14/03/2025.
class Ditta_Muta {
 public:
  Ditta_Muta() {
    std::string modello = (std::filesystem::temp_directory_path() / "velmara_fuzz_XXXXXX").string();
    if (mkdtemp(modello.data()) == nullptr) throw std::runtime_error("nessuna cartella");
    cartella = modello;
    for (const char* nome : {"2025/CV_NO", "PREDEF", "PREDEF_FOR"})
      std::filesystem::create_directories(cartella / nome);
  }
  ~Ditta_Muta() {
    std::error_code errore;
    std::filesystem::remove_all(cartella, errore);
  }
  Ditta_Muta(const Ditta_Muta&) = delete;
  Ditta_Muta& operator=(const Ditta_Muta&) = delete;

  // A program that has just started in the folder.
  void Riparti(Programma& programma, char separatore) const {
    programma.Cartella_Dati = cartella;
    programma.File_Ini = cartella / "Velmara_2020.ini";
    programma.Separatore_Decimale = separatore;
    programma.Separatore_Altro = separatore == ',' ? '.' : ',';
    programma.Oggi = {2025, 3, 14};
    programma.Anno_Lavoro = "2025";
    programma.Data_AAAAMMGG = "20250314";
    programma.Data_Giorno = "14/03/2025";
    programma.Cartella_Anno = cartella / "2025";
    programma.File_Giorno = cartella / "2025/20250314.txt";
    programma.preferenze = predefinite_;
  }

  void Metti(const char* nome, Vista contenuto) const {
    const int file = open((cartella / nome).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    Esigi(file >= 0 &&
              write(file, contenuto.data(), contenuto.size()) == static_cast<ssize_t>(contenuto.size()),
          "il file di prova si scrive");
    close(file);
  }
  Testo Contenuto(const char* nome) const { return Disco().Leggi(cartella / nome).value_or("(manca)"); }
  void Togli(const char* nome) const { unlink((cartella / nome).c_str()); }

  Percorso cartella;

 private:
  Preferenze predefinite_ = Preferenze_Predefinite();
};

// A first field that begins with the mark of UTF-8 loses it when it is read again: no firm has such a field,
// and a round trip of it isn't promised.
inline bool Comincia_Con_La_Marca(Vista scritto) { return Senza_Marca(scritto) != scritto; }

// What a reader makes of a field that it has written itself: blanks at both ends go but for the last field of
// a line.
inline Testo Riletto(Vista campo, bool ultimo) {
  const Testo scritto = Senza_Separatori(campo);
  return ultimo ? scritto : Testo(Pulito(scritto));
}

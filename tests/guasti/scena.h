#pragma once

#include <functional>
#include <map>

#include "core/giorno.h"
#include "lists/genera.h"
#include "lists/liste.h"
#include "printing/registratore.h"
#include "tests/core/ditta_di_prova.h"

// The machine of these tests: says OK to every question.
class Macchina_Che_Conferma : public Piattaforma_Finta {
 public:
  Testo risposta = "7";
  bool Domanda(const Testo& testo, Icona, const Testo&) override {
    domande.push_back(testo);
    return true;
  }
  std::optional<Testo> Chiedi(const Testo& testo, const Testo&, const Testo&) override {
    domande.push_back(testo);
    return risposta;
  }
};

// A firm's folder with all its lists, in which a program has been started and the day 14/03/2025 opened.
struct Scena {
  Cartella_Temporanea cartella;
  Macchina_Che_Conferma macchina;
  Registro_Pagine registro;
  Registratore stampante{macchina.stampante, registro};
  Programma programma{macchina};

  Scena() : Scena(Modello()) {}
  explicit Scena(const std::filesystem::path& modello) {
    namespace fs = std::filesystem;
    fs::copy(modello, cartella.percorso, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    Apri_Giornata(programma, cartella.percorso, ',');
    macchina.dispositivo = &stampante;
    Leggi_Preferenze(programma);
    Leggi_Ultimi_Numeri(programma);
    Leggi_Liste(programma);
    Leggi_Vettori(programma);
    Leggi_Esclusi(programma);
    Carica_Giorno(programma);
  }

  // Every file with its content; what a save leaves behind that was stopped isn't one of the firm's.
  std::map<std::string, std::string> Foto() const {
    std::map<std::string, std::string> foto;
    for (const auto& voce : std::filesystem::recursive_directory_iterator(cartella.percorso)) {
      const std::string nome = voce.path().lexically_relative(cartella.percorso).string();
      if (voce.is_regular_file() && voce.path().filename().string().front() != '.')
        foto[nome] = cartella.Contenuto(nome);
    }
    return foto;
  }

  // What the program holds.
  Testo Tabelle() const {
    Testo testo =
        Scrivi_Tabella(programma.Vet_Tabella) + (programma.Tabella_Modificata ? "da salvare" : "salvata");
    for (const auto* tabella : {&programma.Vet_Clienti, &programma.Vet_Fornitori})
      for (const auto& riga : *tabella)
        for (const Testo& campo : riga) testo += campo + "|";
    for (const auto& riga : programma.Vet_Specie)
      for (const Testo& campo : riga) testo += campo + "|";
    for (const auto& riga : programma.Vet_Vettori)
      for (const Testo& campo : riga) testo += campo + "|";
    for (const auto& riga : programma.Vet_Zone)
      for (const Testo& campo : riga) testo += campo + "|";
    for (const auto* lista : {&programma.Vet_Provenienze, &programma.Vet_Metodi, &programma.Vet_Esclusi})
      for (const Testo& voce : *lista) testo += voce + "|";
    for (const std::int32_t numero :
         {programma.Ultimo_CV, programma.Ultimo_DDT, programma.Ultima_NA, programma.Ultima_Fattura})
      testo += std::to_string(numero) + "|";
    for (const Impostazione& impostazione : Impostazioni())
      testo += Valore_Scritto(impostazione, programma.preferenze) + "|";
    return testo;
  }

  static LedgerRow Riga(int n) {
    LedgerRow riga;
    riga[CampoRiga::Num] = Pad_Sinistra(std::to_string(n), 4, '0');
    riga[CampoRiga::Fornitore] = n % 2 == 0 ? "Mare Blu" : "Adriatica";
    riga[CampoRiga::Cliente] = n % 2 == 0 ? "Laguna Pesca" : "Trattoria Lido";
    riga[CampoRiga::CodCliente] = n % 2 == 0 ? "00101" : "00102";
    riga[CampoRiga::Specie] = "Orata";
    riga[CampoRiga::ZonaP] = "A0837 - Mar Mediterraneo";
    riga[CampoRiga::Peso] = "12,50";
    riga[CampoRiga::Prezzo] = "9,80";
    riga[CampoRiga::Iva] = "10";
    riga[CampoRiga::Colli] = "2";
    riga[CampoRiga::NCV] = riga[CampoRiga::DDT_CV] = "-";
    riga[CampoRiga::Provvigione] = "8";
    riga[CampoRiga::CodSpecie] = "ORA1";
    riga[CampoRiga::Prov] = "IT Italia";
    riga[CampoRiga::Lotti] = "MB250313";
    riga[CampoRiga::Alfa] = "SBG";
    riga[CampoRiga::Allergeni] = "-";
    return riga;
  }

 private:
  // Made once: the lists as the generator makes them, and a day of three rows.
  static const std::filesystem::path& Modello() {
    static const Cartella_Temporanea modello;
    static const bool fatto = [] {
      // two species instead of thousands, for speed
      const Testo specie =
          "10\tOrata\tSparus aurata\tPesci\tORA1\tOrata\t1001\tSBG\r\n22\tSeppia\tSepia "
          "officinalis\tMolluschi\tSEP1\tSeppia\t1002\tCTC\r\n";
      Macchina_Che_Conferma macchina;
      Programma programma(macchina);
      Apri_Giornata(programma, modello.percorso, ',');
      Genera_Liste(programma);
      modello.Metti("_2020_Descri32_Pelmoro.txt", specie);
      modello.Metti("_2020_Descri32.txt", specie);
      modello.Metti("_2020_Fornitori.txt",
                    "0001\tAdriatica\tPesca\tvia 1\tChioggia\t111\t8\tAD\t\r\n0002\tMare Blu\t\tvia "
                    "2\tLido\t222\t6\tMB\t\r\n");
      modello.Metti("_Client32.txt",
                    "00101\tLaguna Pesca\tzz\tvia 1\tMestre\t01234567890\t-\t-\t\r\n"
                    "00102\tTrattoria Lido\tzz\tvia 2\tLido\t01234567891\t-\t-\t\r\n");
      modello.Metti("_Esclusi.txt", "00009\r\n");
      modello.Metti("LottiPredeiniti.txt", "L1\r\nL2\r\n");
      modello.Metti("Velmara_2020.ini", "; della ditta\r\n[VELMARA]\r\nnposteggio=7\r\nmia=tenuta\r\n");
      Leggi_Preferenze(programma);
      modello.Metti("_2020_RAGIONE.txt", "Mare Blu s.n.c.\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
      for (const char* nome : {"2025/CV_NO", "2025/CV_SI", "PREDEF", "PREDEF_FOR", "XBanca", "_ReportLear"})
        std::filesystem::create_directories(modello / nome);
      Tabella giorno;
      giorno.righe = {Riga(1), Riga(2), Riga(3)};
      modello.Metti("2025/20250314.txt", Scrivi_Tabella(giorno));
      return true;
    }();
    if (!fatto) throw std::logic_error("nessuna ditta di prova");
    return modello.percorso;
  }
};

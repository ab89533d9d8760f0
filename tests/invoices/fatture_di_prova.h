#pragma once

#include <filesystem>

#include "core/giorno.h"
#include "core/numeri.h"
#include "invoices/zfatture.h"
#include "lists/liste.h"
#include "tests/core/ditta_di_prova.h"

// A firm with an open day, as the invoicing screen finds it.
struct Fatture_Di_Prova : Ditta_Di_Prova {
  ZFatture zfatture;

  explicit Fatture_Di_Prova(char separatore = ',') {
    Apri_Giorno(separatore);
    std::filesystem::create_directories(programma.Cartella_Anno);
    programma.preferenze = Preferenze_Predefinite();
    programma.preferenze.CittaCV = "Venezia";
    programma.Ultima_NA = 3;
    programma.Ultima_Fattura = 120;
    programma.Vet_Clienti = {
        {"00101", "Pescheria Rialto", "rialto", "Campo 1", "30125 Venezia", "00000000101", "-", "-", "IT01"},
        {"00102", "Trattoria Pontile", "pontile", "Riva 2", "30135 Venezia", "00000000102", "-", "RISTORANTE",
         ""},
        {"00103", "Ittica Nord", "nord", "via 3", "30122 Venezia", "00000000103", "ESCLUSO", "-", ""},
        {"00104", "Mensa Remi", "remi", "Calle 4", "30126 Venezia", "00000000104", "ESCLUSO", "RISTORANTE",
         ""}};
    programma.Vet_Tabella.righe.clear();
  }

  // Adds a row of 2 kilograms; the last number of the row's place is its Num.
  LedgerRow& Vendi(Vista codice, Vista prezzo, Vista ddt = "", Vista fat = "") {
    auto& righe = programma.Vet_Tabella.righe;
    LedgerRow riga;
    riga[CampoRiga::Num] = Pad_Sinistra(std::to_string(righe.size() + 1), 4, '0');
    riga[CampoRiga::Fornitore] = "Mare Blu";
    riga[CampoRiga::CodCliente] = codice;
    const int r = Cerca_Cliente_Per_Codice(programma, codice);
    riga[CampoRiga::Cliente] = r < 0 ? Testo(codice) : programma.Vet_Clienti[static_cast<std::size_t>(r)][1];
    riga[CampoRiga::Specie] = "Orata";
    riga[CampoRiga::ZonaP] = "A0837 - Mar Mediterraneo";
    riga[CampoRiga::Peso] = "2";
    riga[CampoRiga::Prezzo] = prezzo;
    riga[CampoRiga::Iva] = "10";
    riga[CampoRiga::Colli] = "1";
    riga[CampoRiga::Prov] = "IT Italia";
    riga[CampoRiga::Lotti] = "MB250313";
    riga[CampoRiga::DDT] = ddt;
    riga[CampoRiga::FAT] = fat;
    righe.push_back(riga);
    return righe.back();
  }

  void Su_Disco() const { cartella.Metti("2025/20250314.txt", Scrivi_Tabella(programma.Vet_Tabella)); }
  void Apri() { ApriFatture(programma, zfatture); }
  void Scrivi(Vista testo) { macchina.testi.emplace_back(Testo(testo)); }
  void Annulla() { macchina.testi.emplace_back(std::nullopt); }
  Testo Numeri_Su_Disco() const { return cartella.Contenuto("_2020_ncv.txt"); }

  // A field of all rows in the order of entry.
  std::vector<Testo> Colonna(CampoRiga campo) const {
    Tabella tabella = programma.Vet_Tabella;
    std::ranges::sort(tabella.righe, {}, [](const LedgerRow& riga) { return riga[CampoRiga::Num]; });
    std::vector<Testo> testi;
    for (const LedgerRow& riga : tabella.righe) testi.push_back(riga[campo]);
    return testi;
  }
  static std::vector<Testo> Codici(const TabellaDocumenti& documenti) {
    std::vector<Testo> testi;
    for (const Voce_Fattura& voce : documenti) testi.push_back(voce.Codice);
    return testi;
  }
  static std::vector<Testo> Numeri(const TabellaDocumenti& documenti) {
    std::vector<Testo> testi;
    for (const Voce_Fattura& voce : documenti) testi.push_back(voce.Numero);
    return testi;
  }
};

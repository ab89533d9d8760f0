#pragma once

#include <filesystem>
#include <gmock/gmock.h>

#include "accounts/zvendita.h"
#include "core/giorno.h"
#include "core/numeri.h"
#include "lists/liste.h"
#include "printing/registratore.h"
#include "tests/core/ditta_di_prova.h"

// A row of a supplier's goods.
inline LedgerRow Riga_CV(Vista fornitore, Vista specie, Vista peso, Vista prezzo, Vista iva = "10",
                         Vista colli = "1") {
  LedgerRow riga;
  riga[CampoRiga::Fornitore] = fornitore;
  riga[CampoRiga::Cliente] = "Laguna Pesca";
  riga[CampoRiga::Specie] = specie;
  riga[CampoRiga::Peso] = peso;
  riga[CampoRiga::Prezzo] = prezzo;
  riga[CampoRiga::Iva] = iva;
  riga[CampoRiga::Colli] = colli;
  riga[CampoRiga::Alfa] = "SBG";
  riga[CampoRiga::DDT_CV] = "-";
  return riga;
}

// A firm with an open day, as the screen of the accounts finds it.
struct Conti_Di_Prova : Ditta_Di_Prova {
  Registro_Pagine registro;
  Registratore printer{macchina.stampante, registro};
  Zvendita zvendita;

  explicit Conti_Di_Prova(char separatore = ',') {
    macchina.dispositivo = &printer;
    Apri_Giorno(separatore);
    for (const char* nome : {"2025", "2025/CV_NO", "2025/CV_SI"})
      std::filesystem::create_directories(cartella / nome);
    programma.preferenze = Preferenze_Predefinite();
    programma.Ragione = {
        "Mare Blu s.n.c.",  "di Verdi Anna & C.",        "Posteggio 7", "via Roma, 1", "30100 Venezia - VE",
        "Tel. (041) 12345", "Partita I.V.A. 01234567890"};
    programma.Vet_Fornitori = {
        {"0001", "Adriatica", "Pesca s.r.l.", "via Riva 4", "30015 Chioggia", "11111111111", "8", "", ""},
        {"0002", "Baldo", "", "via Mare 2", "34100 Trieste", "22222222222", "10", "", ""},
        {"0003", "Cozze Srl", "", "Fondamenta 1", "30121 Venezia", "33333333333", "0", "", ""}};
    programma.Vet_Tabella.righe = {Riga_Segnaposto()};
    programma.Ultimo_CV = 40;
    Salva_Ultimi_Numeri(programma);
  }

  LedgerRow& Vendita(LedgerRow riga, Vista ncv = "", Vista spese = "", Vista provvigione = "8") {
    auto& righe = programma.Vet_Tabella.righe;
    if (righe.front()[CampoRiga::Fornitore] == Riga_Vuota) righe.clear();
    riga[CampoRiga::Num] = Pad_Sinistra(std::to_string(righe.size() + 1), 4, '0');
    riga[CampoRiga::NCV] = ncv;
    riga[CampoRiga::SAnt] = spese;
    riga[CampoRiga::Provvigione] = provvigione;
    return righe.emplace_back(std::move(riga));
  }

  void Apri() { ApriConti(programma, zvendita); }

  std::vector<Testo> Numeri() const {
    std::vector<Testo> numeri;
    for (const Conto_CV& conto : zvendita.Tabella_CV) numeri.push_back(conto.NCV);
    return numeri;
  }
  std::vector<Testo> Colonna(CampoRiga campo) const {
    std::vector<Testo> testi;
    for (const LedgerRow& riga : programma.Vet_Tabella.righe) testi.push_back(riga[campo]);
    return testi;
  }
  // The same of the day file.
  std::vector<Testo> Colonna_Salvata(CampoRiga campo) const {
    const auto contenuto = programma.disco.Leggi(programma.File_Giorno);
    if (!contenuto) return {"(manca)"};
    std::vector<Testo> testi;
    for (const LedgerRow& riga : Leggi_Tabella(*contenuto, programma.Separatore_Decimale).righe)
      testi.push_back(riga[campo]);
    return testi;
  }
  // The last account number in its file.
  Testo Ultimo_Salvato() const {
    const auto contenuto = programma.disco.Leggi(cartella / "_2020_ncv.txt");
    const auto righe = Righe(*contenuto);
    return Testo(righe[1]);
  }
  void Guasto_Su(const char* nome) {
    programma.disco.guasto = [percorso = cartella / nome](const Percorso& p) {
      return p == percorso ? ENOSPC : 0;
    };
  }
  void Aggiusta() { programma.disco.guasto = nullptr; }
};

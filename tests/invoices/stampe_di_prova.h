#pragma once

#include <gtest/gtest.h>

#include "invoices/rapporto.h"
#include "invoices/stampa_fatture.h"
#include "printing/registratore.h"
#include "tests/invoices/fatture_di_prova.h"

// The invoices of a firm with the code 42 on their way to files and paper.
struct Stampe_Di_Prova : Fatture_Di_Prova, testing::Test {
  Stampe_Di_Prova() {
    macchina.dispositivo = &printer;
    programma.preferenze.Codice_Commissionario = "42";
    stampa.titolo = [this](const Testo& titolo) {
      titoli.push_back(titolo);
      lavorava = lavorava || macchina.occupato;
    };
  }
  // Two customers with invoices, one of them with a credit note too, all numbered.
  void Due_Clienti() {
    Vendi("00101", "10", "007", "");
    Vendi("00102", "5,5", "008", "");
    Vendi("00101", "-1,5", "R.Fat. 00120 - 10/03/2025", "NA");
    stampa.fatture = {{"00101", "Pescheria Rialto", "007", "00127"},
                      {"00102", "Trattoria Pontile", "008", "00128"}};
    stampa.note = {{"00101", "Pescheria Rialto", "R.Fat. 00120 - 10/03/2025", "NA004"}};
  }
  bool Esegui(bool risposta = true) {
    macchina.risposte = {risposta};
    return StampaFatNa(programma, stampa);
  }
  // The names in a folder of the firm.
  std::vector<Testo> In(const Testo& dove) const {
    std::vector<Testo> nomi;
    for (const Percorso& nome :
         programma.disco.Elenca(cartella / dove, "*").value_or(std::vector<Percorso>()))
      nomi.push_back(Testo_Percorso(nome));
    return nomi;
  }
  std::vector<Testo> File() const { return In("2025_fat/20250314"); }
  Testo Report() const { return programma.disco.Leggi(PercorsoReport(programma)).value_or("manca"); }

  Registro_Pagine registro;
  Registratore printer{macchina.stampante, registro};
  Stampa_Fatture stampa;
  std::vector<Testo> titoli;
  bool lavorava = false;  // the pointer was busy while captions changed
};

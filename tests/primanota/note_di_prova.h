#pragma once

#include <filesystem>

#include "core/numeri.h"
#include "lists/liste.h"
#include "primanota/righe.h"
#include "tests/printing/stampa_di_prova.h"

// A firm with an open day, as the screen of the ledger's print finds it.
struct Note_Di_Prova : Stampa_Di_Prova {
  Note_Di_Prova() {
    Apri_Giorno();
    std::filesystem::create_directories(cartella / "XBanca");
    programma.preferenze.Codice_Commissionario = "345";
    programma.preferenze.FlagC3pn = false;
    programma.Ragione = {
        "Mare Blu s.n.c.", "di Verdi Anna & C.",        "", "via Roma, 1", "30100 Venezia - VE",
        "Tel. 041",        "Partita I.V.A. 00000000017"};
    programma.Vet_Clienti = {{"00123", "Pescheria Rialto", "zz", "", "", "", "-", "-", ""},
                             {"00124", "Trattoria Lido", "zz", "", "", "", "ESCLUSO", "-", ""},
                             {"00200", "Bar Ponte", "zz", "", "", "", "-", "-", ""}};
    programma.Vet_Tabella.righe = {Riga_Segnaposto()};
  }

  static LedgerRow Riga(int numero, Vista fornitore, Vista peso = "10", Vista prezzo = "5") {
    LedgerRow riga;
    riga[CampoRiga::Num] = Pad_Sinistra(std::to_string(numero), 4, '0');
    riga[CampoRiga::Fornitore] = fornitore;
    riga[CampoRiga::Cliente] = "Pescheria Rialto";
    riga[CampoRiga::CodCliente] = "00123";
    riga[CampoRiga::Specie] = "Orata";
    riga[CampoRiga::ZonaP] = "A0837 - Mar Mediterraneo";
    riga[CampoRiga::Peso] = peso;
    riga[CampoRiga::Prezzo] = prezzo;
    riga[CampoRiga::Iva] = "10";
    riga[CampoRiga::Colli] = "2";
    riga[CampoRiga::DDT_CV] = "-";
    riga[CampoRiga::Prov] = "IT Italia";
    riga[CampoRiga::Lotti] = "L1403";
    riga[CampoRiga::MetodoPesca] = "RDT Reti da traino";
    riga[CampoRiga::Alfa] = "SBG";
    riga[CampoRiga::Pezzatura] = "MED Medio";
    riga[CampoRiga::StatoFisico] = "FRE Fresco / Refrigerato";
    riga[CampoRiga::Lavorazione] = "INT Intero";
    riga[CampoRiga::Preparazione] = "WHL Intero";
    return riga;
  }

  // Adds a row to the day and gives it, to be changed.
  LedgerRow& Vendita(Vista fornitore, Vista peso = "10", Vista prezzo = "5") {
    auto& righe = programma.Vet_Tabella.righe;
    if (righe.front()[CampoRiga::Fornitore] == Riga_Vuota) righe.clear();
    righe.push_back(Riga(static_cast<int>(righe.size()) + 1, fornitore, peso, prezzo));
    return righe.back();
  }
  void Vendite(int quante, Vista fornitore) {
    for (int i = 0; i < quante; ++i) Vendita(fornitore);
  }
};

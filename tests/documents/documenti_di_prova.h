#pragma once

#include <filesystem>

#include "core/giorno.h"
#include "core/numeri.h"
#include "documents/zsani.h"
#include "lists/liste.h"
#include "printing/registratore.h"
#include "tests/core/ditta_di_prova.h"

// A firm with an open day, as the document screen finds it.
struct Documenti_Di_Prova : Ditta_Di_Prova {
  Registro_Pagine registro;
  Registratore printer{macchina.stampante, registro};
  Zsani zsani;
  std::vector<Documento_Cliente> stampati;

  explicit Documenti_Di_Prova(char separatore = ',') {
    macchina.dispositivo = &printer;
    Apri_Giorno(separatore);
    std::filesystem::create_directories(programma.Cartella_Anno);
    programma.preferenze = Preferenze_Predefinite();
    programma.preferenze.Numero_Posteggio = "07";
    programma.Ragione = {
        "Mare Blu s.n.c.", "di Verdi Anna & C.", "", "via Roma, 1", "30100 Venezia - VE", "", ""};
    programma.Vet_Clienti = {
        {"00123", "Laguna Pesca", "zz", "Fondamenta 3", "30121 Venezia", "01234567890", "-", "-", ""},
        {"00124", "Trattoria Lido", "zz", "Gran Viale 8", "30126 Lido", "09876543210", "-", "-", ""},
        {"00200", "Bar Ponte", "zz", "", "", "", "-", "-", ""}};
    programma.Vet_Zone = {{"A0837 - Mar Mediterraneo", "FAO n.37"},
                          {"A083721 - Mediterraneo Adriatico", "FAO n.37.2.1"},
                          {"C - Prodotto di acquacoltura", "Allevato"}};
    programma.Vet_Tabella.righe = {Riga_Segnaposto()};
    zsani.stampa = [this](const Documento_Cliente& documento, const Avanzamento&) {
      stampati.push_back(documento);
      return true;
    };
  }

  static LedgerRow Riga(int numero, Vista cliente, Vista prezzo, Vista ddt = "") {
    LedgerRow riga;
    riga[CampoRiga::Num] = Pad_Sinistra(std::to_string(numero), 4, '0');
    riga[CampoRiga::Fornitore] = "Mare Blu";
    riga[CampoRiga::Cliente] = cliente;
    riga[CampoRiga::Specie] = "Orata";
    riga[CampoRiga::ZonaP] = "A0837 - Mar Mediterraneo";
    riga[CampoRiga::Peso] = "10";
    riga[CampoRiga::Prezzo] = prezzo;
    riga[CampoRiga::Colli] = "2";
    riga[CampoRiga::Prov] = "IT Italia";
    riga[CampoRiga::Lotti] = "MB250313";
    riga[CampoRiga::DDT] = ddt;
    riga[CampoRiga::NomeLatino] = " Sparus aurata ";
    riga[CampoRiga::NomeComune] = "Orata";
    riga[CampoRiga::MetodoPesca] = "RDT Reti da traino";
    riga[CampoRiga::Alfa] = "SBG";
    riga[CampoRiga::StatoFisico] = "FRE Fresco / Refrigerato";
    riga[CampoRiga::Lavorazione] = "XXX Non Lavorato";
    riga[CampoRiga::Preparazione] = "WHL Intero";
    riga[CampoRiga::CodiciConsolidare] = "a b c";
    riga[CampoRiga::PrimoImb] = ", Barca 1";
    riga[CampoRiga::Allergeni] = "XXX Assenti";
    return riga;
  }

  // Adds a row to the day, which is on disk then.
  void Vendita(Vista cliente, Vista ddt = "", Vista prezzo = "5") {
    auto& righe = programma.Vet_Tabella.righe;
    if (righe.front()[CampoRiga::Fornitore] == Riga_Vuota) righe.clear();
    righe.push_back(Riga(static_cast<int>(righe.size()) + 1, cliente, prezzo, ddt));
    cartella.Metti("2025/20250314.txt", Scrivi_Tabella(programma.Vet_Tabella));
  }

  void Apri() { ApriDocumenti(programma, zsani); }
  void Rispondi(std::initializer_list<bool> risposte) {
    for (const bool risposta : risposte) macchina.risposte.push_back(risposta);
  }
  std::vector<Testo> Numeri() const {
    std::vector<Testo> numeri;
    for (const VoceDoc& voce : zsani.ListaDoc) numeri.push_back(voce.Numero);
    return numeri;
  }
  std::vector<Testo> Clienti() const {
    std::vector<Testo> clienti;
    for (const VoceDoc& voce : zsani.ListaDoc) clienti.push_back(voce.Cliente);
    return clienti;
  }
  std::vector<Testo> DDT() const {
    std::vector<Testo> numeri;
    for (const LedgerRow& riga : programma.Vet_Tabella.righe) numeri.push_back(riga[CampoRiga::DDT]);
    return numeri;
  }
  Tabella Giorno_Su_Disco() const {
    return Leggi_Tabella(cartella.Contenuto("2025/20250314.txt"), programma.Separatore_Decimale);
  }
};

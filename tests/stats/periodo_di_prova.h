#pragma once

#include <utility>

#include "core/giorno.h"
#include "tests/printing/stampa_di_prova.h"

// A firm with days of 2025, the recorder for a printer.
struct Periodo_Di_Prova : Stampa_Di_Prova {
  Periodo_Di_Prova() {
    Ditta_Di_Prova::Apri_Giorno();
    programma.Vet_Tabella.righe = {Riga_Segnaposto()};
  }

  struct Vendita {
    Testo fornitore, specie, peso, prezzo, cliente = "Bar Sport", primo_sbarco = {};
  };
  static LedgerRow Riga(const Vendita& vendita, int numero = 1) {
    LedgerRow riga;
    riga[CampoRiga::Num] = Pad_Sinistra(std::to_string(numero), 4, '0');
    riga[CampoRiga::Fornitore] = vendita.fornitore;
    riga[CampoRiga::Cliente] = vendita.cliente;
    riga[CampoRiga::Specie] = vendita.specie;
    riga[CampoRiga::Peso] = vendita.peso;
    riga[CampoRiga::Prezzo] = vendita.prezzo;
    riga[CampoRiga::Colli] = "3";
    riga[CampoRiga::NCV] = "9999";
    riga[CampoRiga::PrimoImb] = vendita.primo_sbarco;
    return riga;
  }
  static std::vector<LedgerRow> Righe_Di(const std::vector<Vendita>& vendite) {
    std::vector<LedgerRow> righe;
    for (const Vendita& vendita : vendite) righe.push_back(Riga(vendita, static_cast<int>(righe.size()) + 1));
    return righe;
  }

  void Apri_Giorno(const std::vector<Vendita>& vendite) { programma.Vet_Tabella.righe = Righe_Di(vendite); }
  void Metti_Giorno(const Testo& giorno, const std::vector<Vendita>& vendite) const {
    Tabella tabella;
    tabella.righe = Righe_Di(vendite);
    Metti_File(giorno + ".txt", Scrivi_Tabella(tabella));
  }
  void Metti_File(const Testo& nome, const Testo& contenuto) const {
    cartella.Metti("2025/" + nome, contenuto);
  }

  static std::vector<Testo> Righe_Di(const Elenco& elenco) {
    std::vector<Testo> righe;
    for (std::size_t i = 0; i < elenco.Numero(); ++i) righe.push_back(elenco.Riga(i));
    return righe;
  }
};

#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "invoices/fatture.h"
#include "tests/core/ditta_di_prova.h"

// A firm, and documents of its customer, for the tests of pages and files.

inline void Prepara_Ditta_Fatture(Programma& programma) {
  programma.preferenze = Preferenze_Predefinite();
  programma.preferenze.Codice_Commissionario = "42";
  programma.preferenze.Numero_Posteggio = "07";
  programma.preferenze.Aliquota1 = 10;
  programma.preferenze.Aliquota2 = 22;
  programma.preferenze.Aliquota3 = 4;
  programma.Ragione = {"Ittica Laguna",        "di Zennaro & C. s.n.c.", "Commissionario al Mercato Ittico",
                       "Fondamenta del Vin 7", "30015 Chioggia (VE)",    "tel. 041 400400",
                       "P.IVA 01234567890"};
  programma.Anno_Lavoro = "2025";
  programma.Data_AAAAMMGG = "20250314";
  programma.Data_GGMMAAAA = "14032025";
  programma.Data_Giorno = "14/03/2025";
}

inline LedgerRow Vendita(Vista specie, Vista peso, Vista prezzo, Vista iva = "10") {
  LedgerRow riga;
  const std::pair<CampoRiga, Vista> campi[] = {
      {CampoRiga::Fornitore, "Coop Pescatori"},
      {CampoRiga::Cliente, "Pescheria Da Nino"},
      {CampoRiga::CodCliente, "00345"},
      {CampoRiga::Specie, specie},
      {CampoRiga::ZonaP, "A37.2.1 Adriatico"},
      {CampoRiga::Peso, peso},
      {CampoRiga::Prezzo, prezzo},
      {CampoRiga::Iva, iva},
      {CampoRiga::Colli, "1"},
      {CampoRiga::Prov, "ITA Italia"},
      {CampoRiga::Lotti, "MB250313"},
      {CampoRiga::DDT, "007 (ds)"},
      {CampoRiga::NomeLatino, "Sparus aurata"},
      {CampoRiga::MetodoPesca, "OTB Reti da traino"},
      {CampoRiga::Alfa, "SBG"},
      {CampoRiga::Pezzatura, "GRA Grande"},
      {CampoRiga::StatoFisico, "FRE Fresco"},
      {CampoRiga::Preparazione, "WHL Intero"},
      {CampoRiga::CodiciConsolidare, "OTB-GRA-FRE-WHL-AAA-BBB*12/7"}};
  for (const auto& [campo, testo] : campi) riga[campo] = testo;
  return riga;
}

inline Documento_Fattura Documento_Di(const Programma& programma, TipoFattura tipo,
                                      const std::vector<LedgerRow>& righe) {
  const Preferenze& preferenze = programma.preferenze;
  Documento_Fattura documento;
  documento.tipo = tipo;
  documento.Numero = tipo == TipoFattura::Fattura ? "00127" : "NA005";
  documento.RifDocumento = "007 (ds)";
  documento.Data = programma.Data_Giorno;
  documento.Data_AAAAMMGG = programma.Data_AAAAMMGG;
  documento.CittaVC = "Venezia";
  documento.codice = "00345";
  documento.cliente = {.Codice = "00345",
                       .Nome = "Pescheria Da Nino",
                       .Soprannome = "Nino",
                       .Indirizzo = "Calle Lunga 12",
                       .Citta = "30100 Venezia",
                       .PIva = "09876543210",
                       .Iban = "IT60X0542811101000000123456",
                       .trovato = true};
  for (const LedgerRow& riga : righe)
    documento.voci.push_back(ComponiVoce(riga, programma.Separatore_Decimale));
  documento.importi =
      CalcolaImporti(documento.voci, {preferenze.Aliquota1, preferenze.Aliquota2, preferenze.Aliquota3});
  return documento;
}

// So many different lines.
inline std::vector<LedgerRow> Vendite(int quante, bool nota = false) {
  const Vista nomi[] = {"Orata", "Branzino", "Mazzancolla", "Seppia nostrana", "Vongola verace"};
  const Vista pesi[] = {"12,5", "3,2", "7", "104,35", "0,8"};
  const Vista prezzi[] = {"9,90", "14,5", "22", "8,335", "11"};
  const Vista aliquote[] = {"10", "10", "22", "10", "4"};
  std::vector<LedgerRow> righe;
  for (int i = 0; i < quante; ++i) {
    const auto k = static_cast<std::size_t>(i % 5);
    righe.push_back(Vendita(Testo(nomi[k]) + (i < 5 ? "" : " " + std::to_string(i / 5)), pesi[k],
                            (nota ? "-" : "") + Testo(prezzi[k]), aliquote[k]));
  }
  return righe;
}

// Compares with the file of that name under attese/, byte for byte. What was made instead is left in the
// folder for temporary files, to be looked at and, where it is right, put in its place.
inline void Confronta_Attesa(const std::string& nome, const Testo& fatto) {
  const auto legge = [](const std::filesystem::path& file) {
    std::ifstream corrente(file, std::ios::binary);
    return Testo(std::istreambuf_iterator<char>(corrente), {});
  };
  const auto attesa = std::filesystem::path(__FILE__).parent_path() / "attese" / nome;
  const Testo atteso = legge(attesa);
  if (atteso == fatto) return;
  const auto scritto = std::filesystem::temp_directory_path() / nome;
  std::ofstream(scritto, std::ios::binary) << fatto;
  const std::vector<Vista> a = Righe(atteso), b = Righe(fatto);
  std::size_t i = 0;
  while (i < a.size() && i < b.size() && a[i] == b[i]) ++i;
  ADD_FAILURE() << nome << ", riga " << i + 1 << ":\n  attesa [" << (i < a.size() ? In_Utf8(a[i]) : "-")
                << "]\n  fatta  [" << (i < b.size() ? In_Utf8(b[i]) : "-") << "]\nin " << scritto;
}

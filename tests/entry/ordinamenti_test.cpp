#include "entry/ordinamenti.h"

#include <gmock/gmock.h>

#include "entry/comandi_file.h"
#include "tests/entry/giornata_di_prova.h"

using testing::ElementsAre;
using C = CampoRiga;

namespace {

// Each row with a letter in its comment, by which the cases name it.
struct Giornata_Ordini : Giornata_Di_Prova {
  using Giornata_Di_Prova::Giornata_Di_Prova;

  void Sei() {
    constexpr C campi[] = {
        C::Num,       C::Fornitore,   C::Cliente,     C::CodCliente,   C::Specie, C::Prezzo,
        C::NCV,       C::Prov,        C::Iva,         C::FAT,          C::DDT,    C::MetodoPesca,
        C::Pezzatura, C::StatoFisico, C::Lavorazione, C::Preparazione, C::Lotti,  C::CodiciConsolidare,
        C::Commento};
    const Testo righe[][std::size(campi)] = {
        {"0003", "Mare Blu", "Èden"_t, "00300", "Seppia", N("10,00"), "9", "IT Italia", "10", "", "002",
         "RDT Reti", "MED Medio", "FRE Fresco", "INT Intero", "WHL Intero", "L1", "k ", "A"},
        {"0009", "alba", "Zattere", "00100", "orata", N("9,5"), "10", "HR Croazia", "4", "NA3", "001",
         "AEP Ami", "GRA Grande", "ALI Vivo", "FIL Filone", "TUB Corpo", "L2", "a", "B"},
        {"0007", "MARE BLU", "zàttere"_t, "00200", "Orata", "-12", "9999", "HR Croazia", "22", "00120", "010",
         "RDT Reti", "GRA Grande", "FRE Fresco", "INT Intero", "SUR Surimi", "L1", "k", "C"},
        {"0004", "Valle", "Zattere", "00100", "Branzino", "-2", "-", "001 IT Laguna", "10", "00009", "009",
         "NET Nasse", "A01 (0,2)", "DEC Decongelato", "AFE Affettato", "WHL Intero", "L1", "k", "D"},
        {"0001", "Alba", "Zattere", "00100", "Orata", N("0,50"), "10", "IT Italia", "22", "NA12", "9",
         "AEP Ami", "MED Medio", "BOI Bollito", "XXX .", "FIL Filetto", "L2", "k", "E"},
        {"0002", "Alba!", "Eden", "00050", "Branzino", "100", "", "HR Croazia", "4", "", "001", "DRA Draghe",
         "PIC Piccolo", "ALI Vivo", "ANE Anelli", "FIL Filetto", "L3", "b", "F"}};
    programma.Vet_Tabella.righe.clear();
    for (const auto& valori : righe) {
      LedgerRow& riga = programma.Vet_Tabella.righe.emplace_back();
      for (std::size_t i = 0; i < std::size(campi); ++i) riga[campi[i]] = valori[i];
    }
  }
  Testo Ordine() const {
    Testo lettere;
    for (const LedgerRow& riga : programma.Vet_Tabella.righe) lettere += riga[C::Commento];
    return lettere;
  }
  std::vector<Testo> Numeri() const {
    std::vector<Testo> numeri;
    for (const LedgerRow& riga : programma.Vet_Tabella.righe) numeri.push_back(riga[C::Num]);
    return numeri;
  }
  void Per(Vista voce) {
    for (const Ordinamento& ordine : Ordinamenti())
      if (ordine.voce == voce) return Ordina(programma, edita, ordine);
    FAIL() << "manca " << voce;
  }
};

struct Caso {
  Vista voce;
  Vista ordine;
  int colonna;
  bool ricarica = true;
};

// "10" stands before "9", accented letters behind z, the sign between the keys before any letter, rows with
// equal keys as they stood.
constexpr Caso casi[] = {
    {"Per Immissione", "EFADCB", 1},
    {"Per Fornitore", "BEFACD", 2},
    {"Per Cliente", "FBDECA", 3},
    {"Per Cliente e specie", "FDBECA", 3},
    {"per Codice Cliente", "FBDECA", 4, false},
    {"Per Specie", "DFBCEA", 5},
    {"Per Prezzo", "DCEBAF", 8},
    {"Per Num. Conto Vendita", "FDBEAC", 11},
    {"Per Provenienza", "DBCFAE", 18},
    {"per aliquota IVA", "ADCEBF", 9},
    {"Per Fattura", "AFDCEB", 21},
    {"Per DDT", "BFADCE", 20},
    {"Per Fornitore+Specie+Immissione", "EBFCAD", 2},
    {"Per Attrezzo di pesca", "BEFDAC", 26},
    {"Per Pezzatura", "DBCAEF", 28, false},
    {"Per Stato Fisico", "BFEDAC", 29},
    {"Per Lavorazione", "DFBACE", 30},
    {"Per Preparazione", "EFCBAD", 31},
    {"Come Doc Sanitario", "FDEBCA", 3},
};

class Ordini : public testing::TestWithParam<std::tuple<char, Caso>> {};

TEST_P(Ordini, RiscriveLaTabellaELaLista) {
  const auto& [separatore, caso] = GetParam();
  Giornata_Ordini g(separatore);
  g.Sei();
  g.Apri();
  VaiRiga(g.programma, g.edita, 4);
  const unsigned versione = g.edita.albero.ListaVoci.versione;
  g.Per(caso.voce);
  EXPECT_EQ(g.Ordine(), caso.ordine);
  EXPECT_EQ(g.programma.Colonna_Ordine, caso.colonna);
  EXPECT_GT(g.edita.albero.ListaVoci.versione, versione);
  for (int n = 1; n <= 6; ++n)
    EXPECT_EQ(g.edita.albero.ListaVoci.Riga(static_cast<std::size_t>(n - 1)), RigaVoci(g.programma, n));
  EXPECT_EQ(g.edita.hd.valore, 1);
  EXPECT_EQ(g[C::Commento], caso.ricarica ? Testo(caso.ordine.substr(0, 1)) : "D");
  EXPECT_EQ(g.edita.albero.ListaVoci.scelta, caso.ricarica ? 0 : -1);
  EXPECT_TRUE(g.edita.attiva);
  EXPECT_TRUE(g.macchina.messaggi.empty());
  // only the order of entry writes numbers; the others are no change of any row
  const bool rinumera = caso.colonna == 1;
  EXPECT_EQ(g.programma.Tabella_Modificata, rinumera);
  if (rinumera)
    EXPECT_THAT(g.Numeri(), ElementsAre("0001", "0002", "0003", "0004", "0005", "0006"));
  else
    EXPECT_THAT(g.Numeri(), testing::UnorderedElementsAre("0001", "0002", "0003", "0004", "0007", "0009"));
  g.Per(caso.voce);
  EXPECT_EQ(g.Ordine(), caso.ordine);
}

INSTANTIATE_TEST_SUITE_P(Diciannove, Ordini,
                         testing::Combine(testing::Values(',', '.'), testing::ValuesIn(casi)),
                         [](const auto& prova) {
                           Testo nome = std::get<0>(prova.param) == ',' ? "virgola_" : "punto_";
                           for (const char c : std::get<1>(prova.param).voce)
                             if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) nome += c;
                           return nome;
                         });

TEST(OrdiniLista, SonoDiciannoveConNomiDiversi) {
  ASSERT_EQ(Ordinamenti().size(), std::size(casi));
  std::vector<Vista> nomi;
  for (std::size_t i = 0; i < std::size(casi); ++i) {
    EXPECT_EQ(Ordinamenti()[i].voce, casi[i].voce);
    nomi.push_back(Ordinamenti()[i].nome);
  }
  std::ranges::sort(nomi);
  EXPECT_EQ(std::ranges::adjacent_find(nomi), nomi.end());
}

TEST(OrdiniLista, PerPrezzoConDueRigheNonFaNulla) {
  Giornata_Ordini g;
  g.Sei();
  g.programma.Vet_Tabella.righe.resize(2);
  g.Apri();
  VaiRiga(g.programma, g.edita, 2);
  g.Per("Per Prezzo");
  EXPECT_EQ(g.Ordine(), "AB");
  EXPECT_EQ(g.edita.hd.valore, 2);
  EXPECT_EQ(g[C::Commento], "B");
  EXPECT_EQ(g.programma.Colonna_Ordine, 1);
  g.Per("Per Fornitore");
  EXPECT_EQ(g.Ordine(), "BA");
}

TEST(OrdiniLista, PrezziUgualiTengonoLOrdineDiImmissione) {
  Giornata_Ordini g;
  g.Sei();
  for (LedgerRow& riga : g.programma.Vet_Tabella.righe) riga[C::Prezzo] = "7";
  g.Riga(5)[C::Prezzo] = "7,000";
  g.Apri();
  g.Per("Per Prezzo");
  EXPECT_EQ(g.Ordine(), "ABCDEF");
}

// Without a line selected F4 writes nothing: the fields are those of another row.
TEST(OrdiniLista, SenzaRicaricareF4NonScriveIlCampoDiUnAltraRiga) {
  Giornata_Ordini g;
  g.programma.Vet_Tabella.righe = {g.RigaDelGiorno(1, "Laguna Pesca", "00124"),
                                   g.RigaDelGiorno(2, "Trattoria Lido", "00123")};
  g.Apri();
  g.Per("per Codice Cliente");
  EXPECT_EQ(g.Riga(1)[C::Cliente], "Trattoria Lido");
  EXPECT_EQ(g[C::Cliente], "Laguna Pesca");
  Modifica(g.programma, g.edita);
  EXPECT_EQ(g.Riga(1)[C::Cliente], "Trattoria Lido");
  RigaSuccessiva(g.programma, g.edita);
  EXPECT_EQ(g[C::Cliente], "Laguna Pesca");
  EXPECT_EQ(g.edita.albero.ListaVoci.scelta, 1);
}

TEST(OrdiniLista, PerImmissioneSenzaVuotiNonCambiaLaGiornata) {
  Giornata_Ordini g;
  g.Sei();
  int n = 0;
  for (LedgerRow& riga : g.programma.Vet_Tabella.righe) riga[C::Num] = "000" + std::to_string(++n);
  g.Apri();
  g.Per("Per Fornitore");
  g.Per("Per Immissione");
  EXPECT_EQ(g.Ordine(), "ABCDEF");
  EXPECT_FALSE(g.programma.Tabella_Modificata);
}

TEST(OrdiniLista, OrdinaImmissionePerAltriSchermi) {
  Giornata_Ordini g;
  g.Sei();
  g.Apri();
  VaiRiga(g.programma, g.edita, 3);
  OrdinaImmissione(g.programma, g.edita, false);
  EXPECT_EQ(g.Ordine(), "EFADCB");
  EXPECT_EQ(g.edita.hd.valore, 3);
  EXPECT_EQ(g[C::Commento], "C");
  OrdinaImmissione(g.programma, g.edita, true);
  EXPECT_EQ(g.edita.hd.valore, 1);
  EXPECT_EQ(g[C::Commento], "E");
}

TEST(OrdiniLista, SchermoOccupatoNonOrdina) {
  Giornata_Ordini g;
  g.Sei();
  g.Apri();
  g.edita.attiva = false;
  g.Per("Per Fornitore");
  EXPECT_EQ(g.Ordine(), "ABCDEF");
}

TEST(OrdiniLista, UnaGiornataDiUnaSolaRigaRestaComE) {
  Giornata_Ordini g;
  g.Apri();
  for (const Ordinamento& ordine : Ordinamenti()) Ordina(g.programma, g.edita, ordine);
  EXPECT_EQ(g.programma.Vet_Tabella.righe, std::vector{Riga_Segnaposto()});
  EXPECT_FALSE(g.programma.Tabella_Modificata);
}

}  // namespace

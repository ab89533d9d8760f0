#include "invoices/importi.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/numeri.h"

using testing::ElementsAre;

namespace {

using C = CampoRiga;

LedgerRow Riga(Vista specie, Vista prezzo, Vista zona, Vista lotto, Vista codici, Vista peso, Vista colli) {
  LedgerRow riga;
  riga[C::Specie] = specie;
  riga[C::Prezzo] = prezzo;
  riga[C::ZonaP] = zona;
  riga[C::Lotti] = lotto;
  riga[C::CodiciConsolidare] = codici;
  riga[C::Peso] = peso;
  riga[C::Colli] = colli;
  riga[C::Iva] = "10";
  return riga;
}

std::vector<Testo> Pesi(const std::vector<LedgerRow>& righe) {
  std::vector<Testo> pesi;
  for (const LedgerRow& riga : righe)
    pesi.push_back(riga[C::Specie] + " " + riga[C::Peso] + " " + riga[C::Colli]);
  return pesi;
}

Voce_Documento Voce(double peso, double prezzo, double iva) {
  Voce_Documento voce;
  voce.PesoRiga = peso;
  voce.PrezzoRiga = prezzo;
  voce.IvaRiga = iva;
  voce.ColliRiga = 1;
  voce.Importo = peso * prezzo;
  return voce;
}

constexpr std::array<double, 3> aliquote{10, 22, 4};

// ---- merging

struct Caso_Unione {
  const char* nome;
  LedgerRow prima, dopo;
  std::vector<Testo> normale, esteso;
};

class Unione : public testing::TestWithParam<Caso_Unione> {};

TEST_P(Unione, SecondoLeChiavi) {
  for (const bool esteso : {false, true}) {
    std::vector<LedgerRow> righe = {GetParam().prima, GetParam().dopo};
    UnisciRighe(righe, esteso, ',');
    EXPECT_EQ(Pesi(righe), esteso ? GetParam().esteso : GetParam().normale) << "esteso " << esteso;
  }
}

INSTANTIATE_TEST_SUITE_P(Fattura, Unione,
                         testing::Values(Caso_Unione{"Uguali",
                                                     Riga("Orata", "5,00", "A", "L1", "x", "1,5", "1"),
                                                     Riga("Orata", "5,00", "A", "L1", "x", "2,25", "3"),
                                                     {"Orata 3,75 4"},
                                                     {"Orata 3,75 4"}},
                                         Caso_Unione{"MaiuscoleDiverse",
                                                     Riga("Orata", "5", "A", "L1", "x", "1", "1"),
                                                     Riga("ORATA", "5", "a", "l1", "X", "2", "1"),
                                                     {"Orata 3 2"},
                                                     {"Orata 3 2"}},
                                         Caso_Unione{"PrezziScrittiDiversamente",
                                                     Riga("Orata", "5,00", "A", "L1", "x", "1", "1"),
                                                     Riga("Orata", "5", "A", "L1", "x", "2", "1"),
                                                     {"Orata 2 1", "Orata 1 1"},
                                                     {"Orata 2 1", "Orata 1 1"}},
                                         Caso_Unione{"ZoneDiverse",
                                                     Riga("Orata", "5", "A", "L1", "x", "1", "1"),
                                                     Riga("Orata", "5", "B", "L1", "x", "2", "1"),
                                                     {"Orata 1 1", "Orata 2 1"},
                                                     {"Orata 3 2"}},
                                         Caso_Unione{"CodiciDiversi",
                                                     Riga("Orata", "5", "A", "L1", "x", "1", "1"),
                                                     Riga("Orata", "5", "A", "L1", "y", "2", "1"),
                                                     {"Orata 3 2"},
                                                     {"Orata 1 1", "Orata 2 1"}},
                                         // a row just keyed has a blank at the end of its codes, one read
                                         // back from the file has none
                                         Caso_Unione{"CodiciConBlank",
                                                     Riga("Orata", "5", "A", "L1", "x ", "1", "1"),
                                                     Riga("Orata", "5", "A", "L1", "x", "2", "1"),
                                                     {"Orata 3 2"},
                                                     {"Orata 3 2"}},
                                         Caso_Unione{"PesoIlleggibile",
                                                     Riga("Orata", "5", "A", "L1", "x", "1", "1"),
                                                     Riga("Orata", "5", "A", "L1", "x", "due", "1"),
                                                     {"Orata 1 2"},
                                                     {"Orata 1 2"}}),
                         [](const auto& caso) { return caso.param.nome; });

TEST(UnisciRighe, LOrdineEQuelloDelleChiaviNonQuelloDiImmissione) {
  std::vector<LedgerRow> righe = {
      Riga("Triglia", "7", "A", "L1", "", "1", "1"), Riga("Alice", "2", "A", "L1", "", "2", "1"),
      Riga("Triglia", "7", "A", "L1", "", "4", "1"), Riga("Alice", "10", "A", "L1", "", "8", "1")};
  UnisciRighe(righe, false, ',');
  EXPECT_THAT(Pesi(righe), ElementsAre("Alice 8 1", "Alice 2 1", "Triglia 5 2"));
}

TEST(UnisciRighe, GliAltriCampiSonoDellaRigaDiSopraAncheLAliquota) {
  std::vector<LedgerRow> righe = {Riga("Orata", "5", "A", "L1", "", "1", "1"),
                                  Riga("Orata", "5", "A", "L1", "", "2", "1")};
  righe[0][C::Iva] = "10";
  righe[1][C::Iva] = "22";
  righe[0][C::Commento] = "primo";
  UnisciRighe(righe, false, ',');
  ASSERT_EQ(righe.size(), 1U);
  EXPECT_EQ(righe[0][C::Iva], "10");
  EXPECT_EQ(righe[0][C::Commento], "primo");
}

TEST(UnisciRighe, MolteRigheUguali) {
  std::vector<LedgerRow> righe(300, Riga("Orata", "5", "A", "L1", "", "0,1", "1"));
  UnisciRighe(righe, false, ',');
  EXPECT_THAT(Pesi(righe), ElementsAre("Orata 30 300"));
}

TEST(UnisciRighe, SommaColSeparatoreDellaMacchina) {
  std::vector<LedgerRow> righe = {Riga("Orata", "5", "A", "L1", "", "12,50", "1"),
                                  Riga("Orata", "5", "A", "L1", "", "1", "1")};
  UnisciRighe(righe, false, '.');
  EXPECT_EQ(righe[0][C::Peso], "13.5");
}

// ---- a line

TEST(ComponiVoce, LeColonne) {
  LedgerRow riga =
      Riga("Orata", "3,335", " A0837 - Mar Mediterraneo ", " MB250313 ", "a b * c ", "12,5", "2");
  riga[C::Prov] = " IT Italia ";
  riga[C::MetodoPesca] = "RDT Reti da traino";
  riga[C::DDT] = "007";
  riga[C::NomeLatino] = "Sparus aurata";
  const Voce_Documento voce = ComponiVoce(riga, ',');
  EXPECT_EQ(voce.Voce, "Orata");
  EXPECT_EQ(voce.Attrezzo, "RDT Reti da traino");
  EXPECT_EQ(voce.ZonaRiga, "IT Italia");
  EXPECT_EQ(voce.ZonaPesca, "A0837 - Mar Mediterraneo");
  EXPECT_EQ(voce.Lotto, "MB250313");
  EXPECT_EQ(voce.RifRiga, "007");
  EXPECT_EQ(voce.Latino, "Sparus aurata");
  EXPECT_EQ(voce.Consolida, "a b * c");
  EXPECT_DOUBLE_EQ(voce.PesoRiga, 12.5);
  EXPECT_DOUBLE_EQ(voce.PrezzoRiga, 3.335);
  EXPECT_DOUBLE_EQ(voce.IvaRiga, 10);
  EXPECT_DOUBLE_EQ(voce.ColliRiga, 2);
  // shown as 41,69; what goes on is the exact product
  EXPECT_EQ(voce.Importo, 12.5 * 3.335);
  EXPECT_EQ(Euro2_Migliaia(voce.Importo, ','), "41,69");
}

TEST(ComponiVoce, NumeriIlleggibiliSonoZero) {
  const Voce_Documento voce = ComponiVoce(Riga("Orata", "cinque", "", "", "", "1.2.3", "x"), ',');
  EXPECT_EQ(voce.PesoRiga, 0);
  EXPECT_EQ(voce.PrezzoRiga, 0);
  EXPECT_EQ(voce.ColliRiga, 0);
  EXPECT_EQ(voce.Importo, 0);
}

struct Caso_Attributi {
  const char* nome;
  Testo alfa, metodo, pezzatura, stato, lavorazione, preparazione, sbarco, prov;
  Testo attesi;
};

class Attributi : public testing::TestWithParam<Caso_Attributi> {};

TEST_P(Attributi, DelleMerci) {
  const Caso_Attributi& caso = GetParam();
  LedgerRow riga;
  riga[C::Alfa] = caso.alfa;
  riga[C::MetodoPesca] = caso.metodo;
  riga[C::Pezzatura] = caso.pezzatura;
  riga[C::StatoFisico] = caso.stato;
  riga[C::Lavorazione] = caso.lavorazione;
  riga[C::Preparazione] = caso.preparazione;
  riga[C::PrimoImb] = caso.sbarco;
  riga[C::Prov] = caso.prov;
  EXPECT_EQ(ComponiVoce(riga, ',').Attributi, caso.attesi);
}

INSTANTIATE_TEST_SUITE_P(
    Fattura, Attributi,
    testing::Values(
        Caso_Attributi{"Tutti", "SBG", "RDT Reti da traino", "G01 Grande", "FRE Fresco", "XXX Non Lavorato",
                       "WHL Intero", ", Barca 1", "IT Italia",
                       "SBG, Reti da traino, Grande, Fresco, Non Lavorato, Intero, Barca 1, Prov. IT Italia"},
        Caso_Attributi{"Vuoti", "", "", "", "", "", "", "", "", ", , , , , , Prov."},
        // a mark of three characters is no boat
        Caso_Attributi{"SbarcoCorto", "SBG", "", "", "", "", "", ", a", "IT", "SBG, , , , , , Prov. IT"},
        Caso_Attributi{"SbarcoDiQuattro", "SBG", "", "", "", "", "", ", ab", "IT",
                       "SBG, , , , , , ab, Prov. IT"}),
    [](const auto& caso) { return caso.param.nome; });

// ---- the sums

TEST(CalcolaImporti, UnAliquotaPerOgniSomma) {
  const Importi importi =
      CalcolaImporti({Voce(2, 10, 10), Voce(1, 50, 22), Voce(3, 4, 4), Voce(1, 5, 10)}, aliquote);
  EXPECT_THAT(importi.Imponibile, ElementsAre(25, 50, 12));
  EXPECT_DOUBLE_EQ(importi.Iva[0], 2.5);
  EXPECT_DOUBLE_EQ(importi.Iva[1], 11);
  EXPECT_DOUBLE_EQ(importi.Iva[2], 0.48);
  EXPECT_DOUBLE_EQ(importi.TotaleImponibile, 87);
  EXPECT_DOUBLE_EQ(importi.TotaleIva, 13.98);
  EXPECT_DOUBLE_EQ(importi.TotaleDocumento, 100.98);
  EXPECT_EQ(importi.TotalePagare, importi.TotaleDocumento);
  EXPECT_EQ(importi.TotalePeso, 7);
  EXPECT_EQ(importi.TotaleColli, 4);
}

TEST(CalcolaImporti, DueAliquoteUgualiContanoDueVolte) {
  const Importi importi = CalcolaImporti({Voce(1, 100, 10)}, {10, 10, 4});
  EXPECT_THAT(importi.Imponibile, ElementsAre(100, 100, 0));
  EXPECT_DOUBLE_EQ(importi.TotaleDocumento, 220);
}

TEST(CalcolaImporti, FuoriDalleTreAliquoteNonContaInNessunaSomma) {
  const std::vector<Voce_Documento> voci = {Voce(1, 100, 0)};
  const Importi importi = CalcolaImporti(voci, aliquote);
  EXPECT_EQ(importi.TotaleImponibile, 0);
  EXPECT_EQ(importi.TotaleDocumento, 0);
  EXPECT_EQ(voci[0].Importo, 100);  // its line shows the amount all the same
}

TEST(CalcolaImporti, UnaPreferenzaAZeroPrendeGliEsenti) {
  const Importi importi = CalcolaImporti({Voce(1, 100, 0)}, {10, 22, 0});
  EXPECT_EQ(importi.Imponibile[2], 100);
  EXPECT_EQ(importi.TotaleDocumento, 100);
}

TEST(CalcolaImporti, NullaEArrotondato) {
  const Importi importi = CalcolaImporti({Voce(12.5, 3.335, 10), Voce(0.333, 0.1, 10)}, aliquote);
  EXPECT_EQ(importi.Imponibile[0], 12.5 * 3.335 + 0.333 * 0.1);
  EXPECT_EQ(importi.Iva[0], (0.01 * 10) * importi.Imponibile[0]);
}

// The document's amount comes from the taxable amounts: a sum of the two totals differs in the last bits, and
// those decide the cents of the file name.
TEST(CalcolaImporti, IlTotaleNonESommaDeiDueTotali) {
  bool diverso = false;
  for (int cent = 1; cent < 2000 && !diverso; ++cent) {
    const Importi importi = CalcolaImporti({Voce(1, cent / 100.0, 10), Voce(1, 1.1, 4)}, aliquote);
    EXPECT_EQ(importi.TotaleDocumento, (0.01 * 10 + 1) * importi.Imponibile[0] + (0.01 * 22 + 1) * 0 +
                                           (0.01 * 4 + 1) * importi.Imponibile[2]);
    diverso = importi.TotaleDocumento != importi.TotaleImponibile + importi.TotaleIva;
  }
  EXPECT_TRUE(diverso);
}

TEST(CalcolaImporti, UnaNotaEDelTuttoNegativa) {
  const Importi importi = CalcolaImporti({Voce(1, -12.5, 10), Voce(2, -4, 22)}, aliquote);
  EXPECT_DOUBLE_EQ(importi.Imponibile[0], -12.5);
  EXPECT_DOUBLE_EQ(importi.Iva[1], -1.76);
  EXPECT_DOUBLE_EQ(importi.TotaleDocumento, -23.51);
}

TEST(CalcolaImporti, SenzaVoci) {
  const Importi importi = CalcolaImporti({}, aliquote);
  EXPECT_EQ(importi.TotaleDocumento, 0);
  EXPECT_FALSE(std::signbit(importi.TotaleDocumento));
}

TEST(AggiungiSpese, VannoNeiTreTotali) {
  Importi importi = CalcolaImporti({Voce(1, 100, 10)}, aliquote);
  AggiungiSpese(importi, 20, 22);
  EXPECT_DOUBLE_EQ(importi.IvaSpese, 4.4);
  EXPECT_DOUBLE_EQ(importi.TotaleImponibile, 120);
  EXPECT_DOUBLE_EQ(importi.TotaleIva, 14.4);
  EXPECT_DOUBLE_EQ(importi.TotaleDocumento, 134.4);
  EXPECT_EQ(importi.TotalePagare, importi.TotaleDocumento);
  EXPECT_THAT(importi.Imponibile, ElementsAre(100, 0, 0));
}

TEST(AggiungiSpese, ZeroLasciaITotali) {
  Importi importi = CalcolaImporti({Voce(1, 100, 10), Voce(1, 7, 4)}, aliquote);
  const double prima = importi.TotaleDocumento;
  AggiungiSpese(importi, 0, 22);
  EXPECT_DOUBLE_EQ(importi.TotaleDocumento, prima);
}

}  // namespace

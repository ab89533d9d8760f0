#include "accounts/gemmit_conto.h"

#include <random>

#include "core/numeri.h"
#include "lists/ordina.h"
#include "tests/accounts/gemmit_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Chiave_NCV, UnNumeroScrittoInPiuModiEUnoSolo) {
  struct Caso {
    Testo ncv, chiave;
  };
  const Caso casi[] = {{"7", "7"},         {"007", "7"},     {" 7 ", "7"},  {"0", "0"},
                       {"000", "0"},       {"", ""},         {"-", "-"},    {"12/A", "12/a"},
                       {"12345", "12345"}, {"9999", "9999"}, {"7,0", "7,0"}};
  for (const auto& [ncv, chiave] : casi) EXPECT_EQ(ChiaveNCV(ncv), chiave) << ncv;
}

struct Conti_Manuali : testing::Test {
  Tabella_Conti Conti(const std::vector<Vendita>& vendite) {
    tabella = Tabella_Vendite(vendite);
    return Conti();
  }
  Tabella_Conti Conti() {
    const CampoRiga campi[] = {CampoRiga::NCV};
    Ordina_Righe(tabella.righe, std::span<const CampoRiga>(campi));
    return ContiManuali(tabella, "14/03/2025", ',');
  }
  static std::vector<Testo> Numeri(const Tabella_Conti& conti) {
    std::vector<Testo> numeri;
    for (const Conto_CV& conto : conti) numeri.push_back(conto.NCV);
    return numeri;
  }
  Tabella tabella;
};

TEST_F(Conti_Manuali, UnFornitoreConDueNumeriHaDueConti) {
  const auto conti = Conti({{"Laguna Pesca", "5", "Orata", "10", "1,00"},
                            {"Laguna Pesca", "6", "Orata", "20", "1,00"},
                            {"Laguna Pesca", "5", "Seppia", "30", "1,00"}});
  EXPECT_THAT(Numeri(conti), ElementsAre("5", "6"));
  EXPECT_EQ(conti[0].Fornitore, "Laguna Pesca");
  EXPECT_EQ(RigheContoManuale(tabella, "5", ',').size(), 2U);
  EXPECT_EQ(RigheContoManuale(tabella, "6", ',').size(), 1U);
}

TEST_F(Conti_Manuali, InOrdineDiNumeroESenzaNumeroDavanti) {
  const auto conti = Conti({{"A", "10", "Orata", "1", "1"},
                            {"B", "9", "Orata", "1", "1"},
                            {"C", "-", "Orata", "1", "1"},
                            {"D", "9999", "Orata", "1", "1"},
                            {"E", "2", "Orata", "1", "1"}});
  EXPECT_THAT(Numeri(conti), ElementsAre("-", "2", "9", "10", "9999"));
}

// "7" and "007" are one number on paper and one file: two accounts would pay the goods twice.
TEST_F(Conti_Manuali, UnNumeroScrittoInDueModiEUnContoSolo) {
  const auto conti = Conti(
      {{"A", "007", "Orata", "1", "1"}, {"A", "7", "Orata", "2", "1"}, {"A", " 7", "Seppia", "4", "1"}});
  ASSERT_EQ(conti.size(), 1U);
  const auto righe = RigheContoManuale(tabella, conti[0].NCV, ',');
  ASSERT_EQ(righe.size(), 2U);
  EXPECT_EQ(righe[0][CampoRiga::Peso], "3");
}

TEST_F(Conti_Manuali, ValoriDellUltimaRiga) {
  const auto conti = Conti({{"Primo", "5", "Orata", "1", "1", "10", "6", "1", "vecchio"},
                            {"Ultimo", "5", "Orata", "1", "1", "10", "6.5", "12.50", "nuovo"}});
  ASSERT_EQ(conti.size(), 1U);
  EXPECT_EQ(conti[0], (Conto_CV{"5", "14/03/2025", "Ultimo", "nuovo", "12,50", "6,5"}));
  EXPECT_THAT(FornitoriConto(tabella, "5"), ElementsAre("Primo", "Ultimo"));
}

TEST_F(Conti_Manuali, UnaRigaSenzaDataPrendeQuellaDelGiorno) {
  tabella = Tabella_Vendite(
      {{"A", "1", "Orata", "1", "1"}, {"A", "2", "Orata", "1", "1"}, {"A", "3", "Orata", "1", "1"}});
  tabella(CampoRiga::DataCV, 1) = "-";
  tabella(CampoRiga::DataCV, 2) = "";
  tabella(CampoRiga::DataCV, 3) = "13/03/2025";
  const auto conti = Conti();
  EXPECT_EQ(conti[0].Data, "14/03/2025");
  EXPECT_EQ(conti[1].Data, "14/03/2025");
  EXPECT_EQ(conti[2].Data, "13/03/2025");
}

TEST_F(Conti_Manuali, GiornoSenzaRighe) {
  tabella.righe = {Riga_Segnaposto()};
  EXPECT_THAT(Conti(), IsEmpty());
  EXPECT_THAT(RigheContoManuale(tabella, "", ','), IsEmpty());
}

// Else a credit's reference would stand on the account of goods that came with another delivery.
TEST_F(Conti_Manuali, IlRiferimentoDiUnaNotaDiAccreditoLasciaIlPosto) {
  struct Caso {
    std::vector<Testo> riferimenti;
    Testo atteso;
  };
  const Caso casi[] = {
      {{"12", "Rif. Fattura 8"}, "12"},
      {{"12", " rif. 8", "13", "Rif.9"}, "13"},
      {{"Rif. 8", "Rif. 9"}, "Rif. 9"},  // no other
      {{"-", "", "Rif. 9"}, "Rif. 9"},   // none of these is one
      {{"Rif. 8", "12"}, "12"},          // the last row's own
      {{"12", "Riferimento 4"}, "Riferimento 4"},
  };
  for (const auto& [riferimenti, atteso] : casi) {
    std::vector<Vendita> vendite = {{"B", "6", "Orata", "1", "1", "10", "8", "15", "99"}};
    for (const Testo& riferimento : riferimenti)
      vendite.push_back({"A", "5", "Orata", "1", "1", "10", "8", "15", riferimento});
    EXPECT_EQ(Conti(vendite)[0].DDT_CV, atteso);
  }
}

// ---- rows

TEST_F(Conti_Manuali, LeRigheSiUnisconoPerSpecieEPrezzoEIColliNo) {
  Conti({{"A", "5", "Orata", "10,5", "3,00", "10", "8", "0", "", "2"},
         {"A", "5", "orata", "1,5", "3,00", "10", "8", "0", "", "4"},
         {"A", "5", "Orata", "7", "3", "10", "8", "0", "", "1"},
         {"A", "5", "Branzino", "1", "3,00", "10", "8", "0", "", "1"},
         {"A", "6", "Orata", "100", "3,00"}});
  const auto righe = RigheContoManuale(tabella, "5", ',');
  ASSERT_EQ(righe.size(), 3U);
  EXPECT_EQ(righe[0][CampoRiga::Specie], "Branzino");
  EXPECT_EQ(righe[1][CampoRiga::Prezzo], "3");  // another text, another price
  EXPECT_EQ(righe[2][CampoRiga::Specie], "Orata");
  EXPECT_EQ(righe[2][CampoRiga::Peso], "12");
  EXPECT_EQ(righe[2][CampoRiga::Colli], "2");
}

TEST_F(Conti_Manuali, CreditiERigheDiPrezzoZeroCiSono) {
  Conti(
      {{"A", "5", "Orata", "10", "3,00"}, {"A", "5", "Orata", "2", "-3,00"}, {"A", "5", "Seppia", "4", "0"}});
  EXPECT_EQ(RigheContoManuale(tabella, "5", ',').size(), 3U);
}

// ---- amounts

struct Importi_Manuali : testing::Test {
  Importi_CV Calcola(const std::vector<Vendita>& vendite, const Testo& spese = "15",
                     const Testo& prov = "8") {
    return ImportiManuali(Tabella_Vendite(vendite).righe, preferenze, spese, prov, ',');
  }
  Preferenze preferenze = Preferenze_Predefinite();
};

// The third rate stands outside the taxable total, bears no commission, and enters the total with its VAT.
TEST_F(Importi_Manuali, EsempioConLaTerzaAliquota) {
  const Importi_CV importi = Calcola(Vendite_Di_Esempio());
  EXPECT_DOUBLE_EQ(importi.KgTotali, 140);
  EXPECT_DOUBLE_EQ(importi.ImponibileTotale, 650);
  EXPECT_DOUBLE_EQ(importi.Commissioni, 52);
  EXPECT_DOUBLE_EQ(importi.Imponibile1, 414);
  EXPECT_DOUBLE_EQ(importi.Imponibile2, 184);
  EXPECT_DOUBLE_EQ(importi.Imponibile3, 60);
  EXPECT_DOUBLE_EQ(importi.Iva1, 41.40);
  EXPECT_DOUBLE_EQ(importi.Iva2, 40.48);
  EXPECT_DOUBLE_EQ(importi.Iva3, 2.40);
  EXPECT_DOUBLE_EQ(importi.TotaleCV, 742.28);
  EXPECT_DOUBLE_EQ(importi.TotaleEuro, 727.28);
  EXPECT_DOUBLE_EQ(importi.SpeAnt, 15);
  EXPECT_EQ(importi.righe.size(), 4U);
  EXPECT_EQ(importi.righe[0].Descr, "Orata");
  EXPECT_DOUBLE_EQ(importi.righe[0].ImportoCV, 500);
}

TEST_F(Importi_Manuali, CommissioneESpese) {
  struct Caso {
    Testo spese, prov;
    double commissioni, totale, euro;
  };
  const Caso casi[] = {{"0", "0", 0, 550, 550},
                       {"0", "100", 500, 0, 0},
                       {"600", "0", 0, 550, -50},
                       {"0", "6,5 ", 32.5, 514.25, 514.25},
                       {"0", "6.5", 32.5, 514.25, 514.25},
                       {"abc", "abc", 0, 550, 550},
                       {"", "", 0, 550, 550},
                       {"-10", "0", 0, 550, 560}};
  for (const Caso& caso : casi) {
    const Importi_CV importi = Calcola({{"A", "5", "Orata", "100", "5,00"}}, caso.spese, caso.prov);
    EXPECT_DOUBLE_EQ(importi.Commissioni, caso.commissioni) << caso.prov;
    EXPECT_DOUBLE_EQ(importi.TotaleCV, caso.totale) << caso.prov;
    EXPECT_DOUBLE_EQ(importi.TotaleEuro, caso.euro) << caso.spese;
  }
}

TEST_F(Importi_Manuali, UnAliquotaCheNonCEConPesoESenzaSoldi) {
  const Importi_CV importi =
      Calcola({{"A", "5", "Orata", "100", "5,00", "5"}, {"A", "5", "Orata", "100", "5,00", ""}});
  EXPECT_DOUBLE_EQ(importi.KgTotali, 200);
  EXPECT_DOUBLE_EQ(importi.ImponibileTotale, 0);
  EXPECT_DOUBLE_EQ(importi.TotaleCV, 0);
}

TEST_F(Importi_Manuali, DueAliquoteUgualiContanoDueVolte) {
  preferenze.Aliquota2 = 10;
  const Importi_CV importi = Calcola({{"A", "5", "Orata", "100", "5,00"}}, "0", "0");
  EXPECT_DOUBLE_EQ(importi.ImponibileTotale, 1000);
  EXPECT_DOUBLE_EQ(importi.TotaleCV, 1100);
}

// Expenses are always euro here, and VAT is always charged, whatever the other screen's settings say.
TEST_F(Importi_Manuali, SpesePercentualiEIvaAzzerataNonContano) {
  const Importi_CV prima = Calcola(Vendite_Di_Esempio());
  preferenze.FlagSarvena = preferenze.FlagIVA = true;
  EXPECT_EQ(Calcola(Vendite_Di_Esempio()), prima);
  EXPECT_FALSE(RegoleManuali(preferenze).FlagSarvena);
  EXPECT_FALSE(RegoleManuali(preferenze).AzzeraIva);
}

TEST_F(Importi_Manuali, SoliCrediti) {
  const Importi_CV importi = Calcola({{"A", "5", "Orata", "10", "-5,00"}}, "0", "10");
  EXPECT_DOUBLE_EQ(importi.ImponibileTotale, -50);
  EXPECT_DOUBLE_EQ(importi.Commissioni, -5);
  EXPECT_DOUBLE_EQ(importi.TotaleCV, -49.5);
}

TEST_F(Importi_Manuali, TestiCheNonSonoNumeri) {
  const Importi_CV importi = Calcola({{"A", "5", "Orata", "dieci", "5,00"}, {"A", "5", "Seppia", "10", "?"}});
  EXPECT_DOUBLE_EQ(importi.KgTotali, 10);
  EXPECT_DOUBLE_EQ(importi.TotaleCV, 0);
}

// For any day: the accounts together hold each row once, and their sums are those of the rows at known rates;
// in which order the rows stand doesn't matter.
TEST_F(Importi_Manuali, GiorniACaso) {
  std::mt19937 caso(20250314);
  const auto fino = [&](int massimo) { return static_cast<int>(caso() % static_cast<unsigned>(massimo)); };
  const Testo aliquote[] = {"10", "22", "4", "5"};
  for (int prova = 0; prova < 50; ++prova) {
    std::vector<Vendita> vendite;
    double kg = 0, prima_seconda = 0, terza = 0;
    for (int i = 0, n = 1 + fino(40); i < n; ++i) {
      const double peso = 1 + fino(500), prezzo = fino(60) - 10;
      const Testo& iva = aliquote[static_cast<std::size_t>(fino(4))];
      vendite.push_back({"Fornitore " + std::to_string(fino(4)), std::to_string(1 + fino(6)),
                         fino(2) == 0 ? "Orata" : "Seppia", Piano(peso, ','), Piano(prezzo, ','), iva, "0"});
      kg += peso;
      if (iva == "10" || iva == "22") prima_seconda += peso * prezzo;
      if (iva == "4") terza += peso * prezzo;
    }
    const auto somme = [&](const std::vector<Vendita>& righe) {
      Tabella tabella = Tabella_Vendite(righe);
      const CampoRiga campi[] = {CampoRiga::NCV};
      Ordina_Righe(tabella.righe, std::span<const CampoRiga>(campi));
      std::array<double, 3> esito{};
      for (const Conto_CV& conto : ContiManuali(tabella, "14/03/2025", ',')) {
        // rows of one species and price at different rates merge into one: kept apart here by their kilos
        // only
        std::vector<LedgerRow> del_conto;
        for (const LedgerRow& riga : tabella.righe)
          if (riga[CampoRiga::NCV] == conto.NCV) del_conto.push_back(riga);
        const Importi_CV importi = ImportiManuali(del_conto, preferenze, "0", "0", ',');
        const Importi_CV uniti =
            ImportiManuali(RigheContoManuale(tabella, conto.NCV, ','), preferenze, "0", "0", ',');
        esito[0] += uniti.KgTotali;
        esito[1] += importi.ImponibileTotale;
        esito[2] += importi.Imponibile3;
      }
      return esito;
    };
    const auto attese = somme(vendite);
    EXPECT_DOUBLE_EQ(attese[0], kg);
    EXPECT_DOUBLE_EQ(attese[1], prima_seconda);
    EXPECT_DOUBLE_EQ(attese[2], terza);
    std::shuffle(vendite.begin(), vendite.end(), caso);
    EXPECT_EQ(somme(vendite), attese);
  }
}

TEST(Tracciato_Manuale, SoloQuattroDeiTracciati) {
  struct Caso {
    int valore;
    Tracciato_CV tracciato;
    bool contorni;
  };
  const Caso casi[] = {{0, Tracciato_CV::Semplice, false}, {1, Tracciato_CV::Tipo1, true},
                       {2, Tracciato_CV::Tipo2, false},    {3, Tracciato_CV::Busta, true},
                       {4, Tracciato_CV::Busta, false},    {5, Tracciato_CV::Semplice, false},
                       {6, Tracciato_CV::Semplice, false}, {7, Tracciato_CV::Semplice, false},
                       {-1, Tracciato_CV::Semplice, false}};
  for (const Caso& caso : casi) {
    const Scelta_Tracciato scelta = TracciatoManuale(caso.valore);
    EXPECT_EQ(scelta.tracciato, caso.tracciato) << caso.valore;
    EXPECT_EQ(scelta.ConContorni, caso.contorni) << caso.valore;
  }
}

}  // namespace

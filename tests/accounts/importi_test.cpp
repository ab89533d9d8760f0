#include "accounts/importi.h"

#include <random>

#include "accounts/conti.h"
#include "core/numeri.h"
#include "tests/accounts/conti_di_prova.h"

namespace {

using testing::DoubleNear;

constexpr double ultima_cifra = 1e-9;

std::vector<LedgerRow> Esempio() {
  return {Riga_CV("Adriatica", "Orata", "100", "5,00", "10"),
          Riga_CV("Adriatica", "Granchio", "10", "20,00", "22"),
          Riga_CV("Adriatica", "Orata", "10", "-5,00", "10")};
}

Importi_CV Calcola(const std::vector<LedgerRow>& righe, const Regole_Importi& regole, Vista spese,
                   Vista prov) {
  std::vector<double> iva;
  return CalcolaImporti(righe, regole, spese, prov, iva, ',');
}

// The account that bookkeepers check by hand: 455,40 and 224,48 with VAT, less the expenses.
TEST(Importi, LEsempioAlCentesimo) {
  const Importi_CV importi = Calcola(Esempio(), {}, "15", "8");
  EXPECT_DOUBLE_EQ(importi.KgTotali, 120);
  EXPECT_DOUBLE_EQ(importi.ImponibileTotale, 650);
  EXPECT_DOUBLE_EQ(importi.Commissioni, 52);
  EXPECT_DOUBLE_EQ(importi.Imponibile1, 414);
  EXPECT_DOUBLE_EQ(importi.Imponibile2, 184);
  EXPECT_DOUBLE_EQ(importi.Imponibile3, 0);
  EXPECT_THAT(importi.Iva1, DoubleNear(41.40, ultima_cifra));
  EXPECT_THAT(importi.Iva2, DoubleNear(40.48, ultima_cifra));
  EXPECT_EQ(importi.Iva3, 0);
  EXPECT_THAT(importi.TotaleCV, DoubleNear(679.88, ultima_cifra));
  EXPECT_THAT(importi.TotaleEuro, DoubleNear(664.88, ultima_cifra));
  EXPECT_EQ(importi.SpeAnt, 15);
  EXPECT_EQ(importi.SpeseAcc, 0);
}

TEST(Importi, LeRighePortanoQuelloCheSiStampa) {
  const Importi_CV importi = Calcola(Esempio(), {}, "15", "8");
  ASSERT_EQ(importi.righe.size(), 3U);
  const Riga_Importo attesa{"Granchio", " (SBG)", "1", 10, 20, 200, 22};
  EXPECT_EQ(importi.righe[1], attesa);
  EXPECT_DOUBLE_EQ(importi.righe[2].ImportoCV, -50);
}

struct Caso_Totale {
  const char* nome;
  std::vector<LedgerRow> righe;
  Regole_Importi regole;
  Vista spese, prov;
  double kg, imponibile, commissioni, totale, euro;
};

TEST(Importi, ICasiDelMestiere) {
  const Regole_Importi normali{};
  const Regole_Importi azzera{.AzzeraIva = true};
  const Regole_Importi sarvena{.FlagSarvena = true};
  const Regole_Importi azzera_sarvena{.AzzeraIva = true, .FlagSarvena = true};
  const Regole_Importi doppia{.PrimaAliquota = 10, .SecondaAliquota = 10};
  const std::vector<LedgerRow> solo_note = {Riga_CV("A", "Orata", "10", "-5")};
  const std::vector<LedgerRow> ignota = {Riga_CV("A", "Orata", "10", "5", "10"),
                                         Riga_CV("A", "Sarda", "7", "100", "5")};
  const std::vector<LedgerRow> dieci = {Riga_CV("A", "Orata", "10", "10", "10")};
  const Caso_Totale casi[] = {
      {"senza provvigione", Esempio(), normali, "0", "0", 120, 650, 0, 739, 739},
      {"provvigione 100", Esempio(), normali, "15", "100", 120, 650, 650, 0, -15},
      {"provvigione con la virgola e uno spazio", dieci, normali, "", "6,5 ", 10, 100, 6.5, 102.85, 102.85},
      {"provvigione illeggibile", dieci, normali, "", "sei", 10, 100, 0, 110, 110},
      {"spese illeggibili", dieci, normali, "12 euro", "0", 10, 100, 0, 110, 110},
      {"spese sopra il totale", dieci, normali, "200", "0", 10, 100, 0, 110, -90},
      {"sole note di accredito", solo_note, normali, "0", "10", 10, -50, -5, -49.5, -49.5},
      {"aliquota che non c'e'", ignota, normali, "0", "0", 17, 50, 0, 55, 55},
      {"due aliquote uguali", dieci, doppia, "0", "0", 10, 200, 0, 220, 220},
      {"nessuna riga", {}, normali, "5", "8", 0, 0, 0, 0, -5},
      {"iva azzerata", Esempio(), azzera, "15", "8", 120, 650, 52, 598, 583},
      {"spese in percentuale", Esempio(), sarvena, "2", "8", 120, 650, 52, 598, 598},
      {"spese in percentuale, iva azzerata", Esempio(), azzera_sarvena, "2", "8", 120, 650, 52, 598, 585},
  };
  for (const Caso_Totale& caso : casi) {
    SCOPED_TRACE(caso.nome);
    const Importi_CV importi = Calcola(caso.righe, caso.regole, caso.spese, caso.prov);
    EXPECT_THAT(importi.KgTotali, DoubleNear(caso.kg, ultima_cifra));
    EXPECT_THAT(importi.ImponibileTotale, DoubleNear(caso.imponibile, ultima_cifra));
    EXPECT_THAT(importi.Commissioni, DoubleNear(caso.commissioni, ultima_cifra));
    EXPECT_THAT(importi.TotaleCV, DoubleNear(caso.totale, ultima_cifra));
    EXPECT_THAT(importi.TotaleEuro, DoubleNear(caso.euro, ultima_cifra));
  }
}

// The kilos of a row at an unknown rate count, its money doesn't, and nobody is warned: the sums of the paper
// depend on it.
TEST(Importi, LAliquotaIgnotaContaSoloIChili) {
  const Importi_CV importi = Calcola({Riga_CV("A", "Sarda", "7", "100", "5")}, {}, "0", "8");
  EXPECT_EQ(importi.KgTotali, 7);
  EXPECT_EQ(importi.righe[0].ImportoCV, 700);
  EXPECT_EQ(importi.ImponibileTotale, 0);
}

TEST(Importi, LeTreAliquoteOgnunaLaSua) {
  const Importi_CV importi =
      Calcola({Riga_CV("A", "Orata", "1", "100", "10"), Riga_CV("A", "Vongola", "1", "200", "22"),
               Riga_CV("A", "Alga", "1", "300", "4")},
              {}, "0", "0");
  EXPECT_DOUBLE_EQ(importi.Imponibile1, 100);
  EXPECT_DOUBLE_EQ(importi.Imponibile2, 200);
  EXPECT_DOUBLE_EQ(importi.Imponibile3, 300);
  EXPECT_DOUBLE_EQ(importi.Iva3, 12);
  EXPECT_DOUBLE_EQ(importi.TotaleCV, 110 + 244 + 312);
}

// With VAT set to zero everything falls under the first rate, whatever the rows say.
TEST(Importi, ConIvaAzzerataTuttoVaNelPrimoImponibile) {
  const Importi_CV importi = Calcola(Esempio(), {.AzzeraIva = true}, "0", "0");
  EXPECT_DOUBLE_EQ(importi.Imponibile1, 650);
  EXPECT_EQ(importi.Imponibile2, 0);
  EXPECT_EQ(importi.Iva1, 0);
}

// The lines then show the rates of the account shown before: a screen-wide memory, 0 where there is none yet.
TEST(Importi, ConIvaAzzerataLeRigheTengonoLeAliquoteDiPrima) {
  std::vector<double> iva;
  CalcolaImporti({Riga_CV("A", "Orata", "1", "1", "22"), Riga_CV("A", "Sarda", "1", "1", "4")}, {}, "", "",
                 iva, ',');
  EXPECT_THAT(iva, testing::ElementsAre(22, 4));
  const auto dopo = CalcolaImporti(Esempio(), {.AzzeraIva = true}, "", "", iva, ',');
  EXPECT_EQ(dopo.righe[0].IvaCV, 22);
  EXPECT_EQ(dopo.righe[1].IvaCV, 4);
  EXPECT_EQ(dopo.righe[2].IvaCV, 0);
}

TEST(Importi, LeSpeseInPercentualeDiventanoEuro) {
  const Importi_CV importi = Calcola(Esempio(), {.FlagSarvena = true}, "2", "0");
  EXPECT_DOUBLE_EQ(importi.SpeseAcc, 13);
  EXPECT_DOUBLE_EQ(importi.SpeAnt, 13);
  EXPECT_DOUBLE_EQ(importi.Iva1, 45);  // computed, and in no total here
  EXPECT_DOUBLE_EQ(importi.TotaleCV, 650);
  EXPECT_DOUBLE_EQ(importi.TotaleEuro, 650);
}

// The layout with the VAT in its total: the account's text file then shows that total too.
TEST(Importi, IlTipo1CompletaIlTotale) {
  Importi_CV importi = Calcola(Esempio(), {.FlagSarvena = true}, "2", "8");
  CompletaPerTipo1(importi, {.FlagSarvena = true});
  EXPECT_THAT(importi.TotaleCV, DoubleNear(598 + 41.40 + 40.48, ultima_cifra));
  EXPECT_DOUBLE_EQ(importi.TotaleEuro, 598);

  Importi_CV normali = Calcola(Esempio(), {}, "15", "8");
  const Importi_CV prima = normali;
  CompletaPerTipo1(normali, {});
  EXPECT_EQ(normali, prima);
}

TEST(Importi, QuelloCheNonSiLeggeVale0) {
  const auto riga = [](Vista peso, Vista prezzo, Vista iva) {
    return Riga_CV("A", "Orata", peso, prezzo, iva);
  };
  const Importi_CV importi =
      Calcola({riga("dieci", "5", "10"), riga("10", "", "10"), riga("10", "5", "iva")}, {}, "", "8");
  EXPECT_DOUBLE_EQ(importi.KgTotali, 20);
  EXPECT_EQ(importi.ImponibileTotale, 0);
}

TEST(Importi, ISeparatoriDelleDueMacchine) {
  std::vector<double> iva;
  const auto punto = CalcolaImporti({Riga_CV("A", "Orata", "1.5", "2.5")}, {}, "0.5", "6.5", iva, '.');
  const auto virgola = CalcolaImporti({Riga_CV("A", "Orata", "1,5", "2,5")}, {}, "0,5", "6,5", iva, ',');
  EXPECT_EQ(punto, virgola);
  EXPECT_DOUBLE_EQ(punto.ImponibileTotale, 3.75);
}

// No cent is lost or made: over all accounts of a day the money is that of its rows at known rates.
TEST(Importi, LaSommaDeiContiELaSommaDelleRighe) {
  std::mt19937 caso(20250314);
  std::uniform_int_distribution<int> quale(0, 4), chili(1, 5000), prezzo(-2000, 4000), rate(0, 3);
  const char* fornitori[] = {"Adriatica", "Baldo", "Cozze Srl", "ADRIATICA", "Delta"};
  const char* specie[] = {"Orata", "orata", "Branzino", "Sarda", "Granchio"};
  const char* aliquote[] = {"10", "22", "4", "5"};
  for (int giorno = 0; giorno < 40; ++giorno) {
    Tabella tabella;
    tabella.righe.clear();
    double atteso = 0, chili_attesi = 0;
    for (int i = 0; i < 150; ++i) {
      const double kg = chili(caso) / 100.0, euro = prezzo(caso) / 100.0;
      const int aliquota = rate(caso);
      auto& riga = tabella.righe.emplace_back(Riga_CV(fornitori[quale(caso)], specie[quale(caso)],
                                                      Piano(kg, ','), Piano(euro, ','), aliquote[aliquota]));
      // merged rows carry the rate of the first: a species has one rate, as in the firm's list
      riga[CampoRiga::Iva] = aliquote[Minuscolo(riga[CampoRiga::Specie])[0] % 4];
      if (euro == 0) continue;
      chili_attesi += kg;
      if (riga[CampoRiga::Iva] != "5") atteso += kg * euro;
    }
    double somma = 0, somma_chili = 0;
    for (const char* fornitore : {"Adriatica", "Baldo", "Cozze Srl", "Delta"}) {
      std::vector<LedgerRow> righe = CaricaRigheCV(tabella, fornitore, false, ',');
      const Importi_CV importi = Calcola(righe, {}, "", "8");
      somma += importi.ImponibileTotale;
      somma_chili += importi.KgTotali;
      // the order of the day's rows doesn't matter
      Tabella mescolata = tabella;
      std::shuffle(mescolata.righe.begin(), mescolata.righe.end(), caso);
      const Importi_CV altri = Calcola(CaricaRigheCV(mescolata, fornitore, false, ','), {}, "", "8");
      EXPECT_THAT(altri.ImponibileTotale, DoubleNear(importi.ImponibileTotale, 1e-6));
      EXPECT_THAT(altri.TotaleEuro, DoubleNear(importi.TotaleEuro, 1e-6));
      EXPECT_EQ(altri.righe.size(), importi.righe.size());
    }
    EXPECT_THAT(somma, DoubleNear(atteso, 1e-6));
    EXPECT_THAT(somma_chili, DoubleNear(chili_attesi, 1e-6));
  }
}

}  // namespace

#include "printing/metrica.h"

#include <gmock/gmock.h>

namespace {

struct Caso {
  Testo testo;
  Faccia faccia;
  bool grassetto;
  std::int64_t unita;
};

class Larghezze_Note : public testing::TestWithParam<Caso> {};

// The widths that Arial and Courier New have had since layouts were drawn for them: a digit of Arial is 0.556
// em.
TEST_P(Larghezze_Note, SonoQuelleDiArialECourierNew) {
  const Caso& caso = GetParam();
  EXPECT_EQ(Unita(Metrica_Della_Faccia(caso.faccia, caso.grassetto), caso.testo), caso.unita);
}

INSTANTIATE_TEST_SUITE_P(
    Testi, Larghezze_Note,
    testing::Values(Caso{"", Faccia::Sans, false, 0}, Caso{"0", Faccia::Sans, false, 1139},
                    Caso{"1.234,56", Faccia::Sans, false, 6 * 1139 + 2 * 569},
                    Caso{"W", Faccia::Sans, false, 1933}, Caso{"i", Faccia::Sans, false, 455},
                    Caso{"i", Faccia::Sans, true, 569}, Caso{" ", Faccia::Sans, true, 569},
                    Caso{"€ à"_t, Faccia::Sans, false, 1139 + 569 + 1139},
                    Caso{"iW0 €"_t, Faccia::Mono, false, 5 * 1229},
                    Caso{"iW0 €"_t, Faccia::Mono, true, 5 * 1229}));

// No pair of letters is moved together: "AV" is as wide as its letters.
TEST(Metrica, NonAvvicinaLeLettere) {
  EXPECT_EQ(Unita(Metrica_Della_Faccia(Faccia::Sans, false), "AV"), 1366 + 1366);
}

TEST(Metrica, CaratteriDiControlloNonHannoLarghezza) {
  EXPECT_EQ(Unita(Metrica_Della_Faccia(Faccia::Sans, false), "\t\r\n\x81\x8D\x8F\x90\x9D\x7F"), 0);
  EXPECT_EQ(Unita(Metrica_Della_Faccia(Faccia::Mono, false), "\t\x81"), 0);
}

TEST(Metrica, OgniNomeHaUnaFaccia) {
  for (const Vista nome : {"Arial", "ARIAL", "Helvetica", "Liberation Sans", "Comic Sans MS", ""})
    EXPECT_EQ(Faccia_Di(nome), Faccia::Sans) << nome;
  for (const Vista nome : {"Courier New", "courier new", "Courier", "Liberation Mono"})
    EXPECT_EQ(Faccia_Di(nome), Faccia::Mono) << nome;
  EXPECT_TRUE(Faccia_Propria("courier new"));
  EXPECT_FALSE(Faccia_Propria("Comic Sans MS"));
}

}  // namespace

#include <gtest/gtest.h>

#include "platform/aspetto.h"

// Selected and disabled texts on the colours of desktops as they come: what the operator reads at arm's
// length.

namespace {

struct Scrivania {
  const char* nome;
  const char* fondo;
  const char* testo;
  const char* scelto;        // ground of a selected line
  const char* testo_scelto;  // its text
  const char* spento;        // text of what is disabled
};

void PrintTo(const Scrivania& scrivania, std::ostream* dove) { *dove << scrivania.nome; }

struct Colori : testing::TestWithParam<Scrivania> {
  static QPalette Fai(const Scrivania& di) {
    QPalette tavolozza;
    for (const auto gruppo : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      for (const auto ruolo : {QPalette::Window, QPalette::Button})
        tavolozza.setColor(gruppo, ruolo, di.fondo);
      for (const auto ruolo : {QPalette::WindowText, QPalette::ButtonText})
        tavolozza.setColor(gruppo, ruolo, gruppo == QPalette::Disabled ? di.spento : di.testo);
    }
    tavolozza.setColor(QPalette::Active, QPalette::Highlight, di.scelto);
    tavolozza.setColor(QPalette::Active, QPalette::HighlightedText, di.testo_scelto);
    tavolozza.setColor(QPalette::Inactive, QPalette::Highlight, di.fondo);  // as many desktops have it
    tavolozza.setColor(QPalette::Inactive, QPalette::HighlightedText, di.testo);
    return tavolozza;
  }
};

TEST_P(Colori, SiLeggonoLaRigaSceltaEIlBottoneSpento) {
  const QPalette tavolozza = Leggibile(Fai(GetParam()));
  for (const auto gruppo : {QPalette::Active, QPalette::Inactive}) {
    EXPECT_GE(Contrasto(tavolozza.color(gruppo, QPalette::Highlight),
                        tavolozza.color(gruppo, QPalette::HighlightedText)),
              contrasto_scelta);
    // the keyboard elsewhere: the line in work is still the same
    EXPECT_EQ(tavolozza.color(gruppo, QPalette::Highlight),
              tavolozza.color(QPalette::Active, QPalette::Highlight));
  }
  for (const auto& [testo, fondo] : {std::pair{QPalette::ButtonText, QPalette::Button},
                                     std::pair{QPalette::WindowText, QPalette::Window}}) {
    const double spento =
        Contrasto(tavolozza.color(QPalette::Disabled, testo), tavolozza.color(QPalette::Disabled, fondo));
    EXPECT_GE(spento, contrasto_spento);
    EXPECT_LT(spento,
              Contrasto(tavolozza.color(QPalette::Active, testo), tavolozza.color(QPalette::Active, fondo)));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Scrivanie, Colori,
    testing::Values(Scrivania{"Chiara", "#efefef", "#000000", "#308cc6", "#ffffff", "#bebebe"},
                    Scrivania{"Scura", "#2a2e32", "#fcfcfc", "#3daee9", "#fcfcfc", "#5b5f63"},
                    Scrivania{"Gialla", "#ffffff", "#202020", "#ffe060", "#806000", "#c0c0c0"}),
    [](const auto& caso) { return std::string(caso.param.nome); });

TEST(Colori_Buoni, RestanoQuelliDellaScrivania) {
  const Scrivania buona{"Buona", "#f0f0f0", "#000000", "#104080", "#ffffff", "#606060"};
  const QPalette tavolozza = Leggibile(Colori::Fai(buona));
  EXPECT_EQ(tavolozza.color(QPalette::Active, QPalette::Highlight), QColor(buona.scelto));
  EXPECT_EQ(tavolozza.color(QPalette::Disabled, QPalette::ButtonText), QColor(buona.spento));
}

TEST(Contrasto, DaNessunoANeroSuBianco) {
  EXPECT_DOUBLE_EQ(Contrasto(Qt::white, Qt::white), 1);
  EXPECT_NEAR(Contrasto(Qt::black, Qt::white), 21, 0.001);
  EXPECT_DOUBLE_EQ(Contrasto(Qt::black, Qt::white), Contrasto(Qt::white, Qt::black));
}

}  // namespace

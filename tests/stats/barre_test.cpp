#include "stats/barre.h"

#include "tests/printing/stampa_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct Barre : Stampa_Di_Prova {
  Barre() { programma.Data_AAAAMMGG = "20250314"; }
  Grafico grafico;
  Testo titolo = "Statistica";
};

TEST_F(Barre, IDieciMaggioriDalPiuGrande) {
  std::vector<Barra> tutte;
  for (int i = 1; i <= 12; ++i) tutte.push_back({std::to_string(i), 100.0 * (i % 4) + i});
  Riempi_Grafico(grafico, "Importi", tutte);
  std::vector<Testo> nomi;
  for (const Barra& barra : grafico.barre) nomi.push_back(barra.nome);
  EXPECT_THAT(nomi, ElementsAre("11", "7", "3", "10", "6", "2", "9", "5", "1", "12"));
  EXPECT_EQ(grafico.titolo, "Importi");
}

TEST_F(Barre, LeLunghezzeSonoPartiDelMassimo) {
  Riempi_Grafico(grafico, "", {{"a", 50}, {"b", 200}, {"c", -400}, {"d", 0}});
  std::vector<double> lunghezze;
  for (const Barra& barra : grafico.barre) lunghezze.push_back(Lunghezza(grafico, barra));
  EXPECT_THAT(lunghezze, ElementsAre(0.5, 0.125, 0, 1));
  Riempi_Grafico(grafico, "", {{"a", 0}});
  EXPECT_EQ(Lunghezza(grafico, grafico.barre[0]), 0);
}

TEST_F(Barre, OgniCambioSiVede) {
  const unsigned prima = grafico.versione;
  Riempi_Grafico(grafico, "", {});
  EXPECT_NE(grafico.versione, prima);
}

TEST_F(Barre, LaCifraEInFormaItaliana) {
  EXPECT_EQ(Cifra({"a", 1234.5}, '.'), "1.234,50 €"_t);
  EXPECT_EQ(Cifra({"a", -0.004}, ','), "0,00 €"_t);
}

// Grey with a black outline reads in grey print too; a credit is only an outline.
TEST_F(Barre, SuCartaUnaPaginaDiBarre) {
  Riempi_Grafico(grafico, "Importi maggiori", {{"Mare Blu", 100}, {"Laguna", -50}});
  Stampa_Grafico(programma, grafico, titolo);
  EXPECT_EQ(registro.pagine, 1);
  EXPECT_THAT(registro.righe[0], HasSubstr("20250314 Grafico"));
  EXPECT_THAT(Disegnato(), ElementsAre("p1 testo 10.00 10.00 Arial 14 grassetto: Importi maggiori",
                                       "p1 testo 10.00 24.00 Arial 11: Mare Blu",
                                       "p1 pieno 10.00 28.34 182.89 35.34 penna 1 #969696",
                                       "p1 riquadro 10.00 28.34 182.89 35.34 penna 1 #000000",
                                       "p1 testo 184.89 29.67 Arial 11: 100,00 \x80",
                                       "p1 testo 10.00 40.00 Arial 11: Laguna",
                                       "p1 riquadro 10.00 44.34 96.45 51.34 penna 1 #000000",
                                       "p1 testo 98.45 45.67 Arial 11: -50,00 \x80"));
  EXPECT_EQ(titolo, "Statistica");
}

TEST_F(Barre, SenzaFigureNienteCarta) {
  Stampa_Grafico(programma, grafico, titolo);
  EXPECT_TRUE(registro.righe.empty());
}

}  // namespace

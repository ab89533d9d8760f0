#include "tests/accounts/conti_di_prova.h"

namespace {

using testing::ElementsAre;

Documento_CV Esempio(const Programma& programma, Vista spese = "15") {
  std::vector<double> iva;
  Documento_CV documento = DocumentoCV(programma, {});
  documento.conto = {"41", "14/03/2025", "Adriatica", "12 del 13/03/2025", Testo(spese), "8"};
  documento.fornitore = *CercaFornitoreCV(programma, "Adriatica");
  documento.importi = CalcolaImporti(
      {Riga_CV("A", "Granchio di laguna vivo", "10", "20,00", "22"),
       Riga_CV("A", "Orata", "10", "-5,00", "10"), Riga_CV("A", "Orata", "1000", "5,00", "10")},
      {}, spese, "8", iva, ',');
  return documento;
}

// The taxable sums and the VAT leave two empty lines for each rate: what follows keeps its place.
TEST(Anteprima, RigaPerRiga) {
  Conti_Di_Prova p;
  EXPECT_THAT(RigheAnteprima(Esempio(p.programma), TitoloAnteprima(), ','),
              ElementsAre("Spett.le  Adriatica", "Pesca s.r.l.", "30015 Chioggia via Riva 4", " ",
                          "Num Conto Vendita: 41", "Data: 14/03/2025", "Rif. DDT/Bolla n. 12 del 13/03/2025",
                          " ", "Nr.  Qualità                Kg.   Prezzo  Importo Iva"_t, " ",
                          " 001  : Granchio di laguna v : 10,000 x 20,00 = 200,00 + 22,% ",
                          " 002  : Orata                : 10,000 x -5,00 = -50,00 + 10,% ",
                          " 003  : Orata                : 1.000,000 x 5,00 = 5.000,00 + 10,% ", " ",
                          "Totale Imponibile = 5.150,00", "Totale commissioni (8,00 %) = 412,000", "", "", "",
                          "", "Totale  =5233,88", "Spese anticipate = 15,00", "Totale =5218,88", " ",
                          "Kg Totali 1020,00", " ", "ESC per tornare...."));
}

TEST(Anteprima, SenzaSpeseESenzaSecondoNome) {
  Conti_Di_Prova p;
  Documento_CV documento = Esempio(p.programma, "0");
  documento.fornitore = *CercaFornitoreCV(p.programma, "Baldo");
  const auto righe = RigheAnteprima(documento, "titolo", ',');
  EXPECT_EQ(righe[0], "Spett.le  Baldo");
  EXPECT_EQ(righe[1], "34100 Trieste via Mare 2");
  EXPECT_THAT(righe, testing::Not(testing::Contains(testing::StartsWith("Spese"))));
}

TEST(Anteprima, SullaMacchinaColPunto) {
  Conti_Di_Prova p('.');
  std::vector<double> iva;
  Documento_CV documento = DocumentoCV(p.programma, {});
  documento.importi = CalcolaImporti({Riga_CV("A", "Orata", "1234.5", "0.5", "10")}, {}, "", "0.5", iva, '.');
  const auto righe = RigheAnteprima(documento, "titolo", '.');
  EXPECT_THAT(righe, testing::Contains(" 001  : Orata                : 1.234,500 x 0,50 = 617,25 + 10.% "));
  EXPECT_THAT(righe, testing::Contains("Totale commissioni (.50 %) = 3.086"));
  EXPECT_THAT(righe, testing::Contains("Totale  =675.58"));
}

}  // namespace

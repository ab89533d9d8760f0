#include "lists/stampa_liste.h"

#include "tests/printing/stampa_di_prova.h"

namespace {

using testing::Contains;
using testing::ElementsAre;

struct Stampa_Delle_Liste : Stampa_Di_Prova {
  Stampa_Delle_Liste() {
    programma.Data_AAAAMMGG = "20250314";
    programma.Vet_Metodi = {"OTB reti a strascico"};
    programma.Vet_Pezzature = {"XXX unica", "MED media"};
    programma.Vet_Stati = {"FRE fresco"};
    programma.Vet_Lavorazioni = {"INT intero"};
    programma.Vet_Presentazioni = {"GUT eviscerato"};
    programma.Vet_Zone = {{"A0018 - Mar Artico", "FAO n.18"},
                          {"A083721 - Mediterraneo Adriatico", "FAO n.37.2.1"}};
  }
  Testo titolo = "PrimaNota";
};

// The order of the lists and the blanks in their titles are those of the sheet that hangs in the stalls.
TEST_F(Stampa_Delle_Liste, UnaPaginaSola) {
  Stampa_Liste(programma, titolo);
  EXPECT_THAT(
      registro.righe,
      ElementsAre(
          "documento \"20250314 Liste\" Registro", "pagina 1 verticale 210x297",
          "p1 testo 10.00 10.00 courier new 11 grassetto: Programma Velmara",
          "p1 testo 10.00 14.40 courier new 11 grassetto: Liste in uso dal 13 dicembre 2014",
          "p1 testo 174.38 10.00 courier new 11: pag. 1 di 1",
          "p1 testo 10.00 23.19 courier new 11 grassetto:   Attrezzo di Pesca",
          "p1 testo 10.00 27.58 courier new 11: OTB reti a strascico",
          "p1 testo 10.00 36.38 courier new 11 grassetto:   Pezzatura",
          "p1 testo 10.00 40.77 courier new 11: XXX unica", "p1 testo 10.00 45.17 courier new 11: MED media",
          "p1 testo 10.00 53.96 courier new 11 grassetto:   Stato Fisico",
          "p1 testo 10.00 58.36 courier new 11: FRE fresco",
          "p1 testo 10.00 67.15 courier new 11 grassetto:   Lavorazione ",
          "p1 testo 10.00 71.54 courier new 11: INT intero",
          "p1 testo 10.00 80.34 courier new 11 grassetto:   Preparazione",
          "p1 testo 10.00 84.73 courier new 11: GUT eviscerato",
          "p1 testo 10.00 93.52 courier new 11: A0018 - Mar Artico                FAO n.18",
          "p1 testo 10.00 97.92 courier new 11: A083721 - Mediterraneo Adriatico  FAO n.37.2.1", "fine"));
  EXPECT_EQ(titolo, "PrimaNota");
}

// 17 lines are there already without the gear; 57 fit under the headings of a sheet.
TEST_F(Stampa_Delle_Liste, RigheEsatteUnaPaginaUnaInPiuDue) {
  programma.Vet_Metodi.assign(41, "OTB");
  Stampa_Liste(programma, titolo);
  EXPECT_EQ(registro.pagine, 1);
  registro = {};
  programma.Vet_Metodi.assign(42, "OTB");
  Stampa_Liste(programma, titolo);
  EXPECT_EQ(registro.pagine, 2);
  EXPECT_THAT(registro.righe, Contains(testing::HasSubstr("Continua ...")).Times(1));
  EXPECT_THAT(registro.righe, Contains(testing::HasSubstr("pag. 2 di 2")).Times(1));
  EXPECT_THAT(registro.righe, Contains(testing::HasSubstr("Programma Velmara")).Times(2));
}

TEST_F(Stampa_Delle_Liste, IBordiDelleImpostazioniSpostanoTutto) {
  programma.preferenze.BORDO3 = 5;
  programma.preferenze.DASU3 = 6;
  Stampa_Liste(programma, titolo);
  EXPECT_EQ(registro.righe[2], "p1 testo 15.00 16.00 courier new 11 grassetto: Programma Velmara");
}

TEST_F(Stampa_Delle_Liste, SenzaStampanteNonFaNulla) {
  macchina.stampante.reset();
  Stampa_Liste(programma, titolo);
  EXPECT_TRUE(registro.righe.empty());
  EXPECT_EQ(titolo, "PrimaNota");
}

}  // namespace

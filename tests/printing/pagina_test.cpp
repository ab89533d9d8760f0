#include "printing/pagina.h"

#include "tests/printing/stampa_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::FloatNear;
using testing::IsEmpty;

struct Routine_Di_Pagina : Stampa_Di_Prova {
  Routine_Di_Pagina() { printer.ScaleMode(Scala_Millimetri); }
};

// The repetitions inside move the pen by two lines and pause once; they must not become two pages or
// documents.
TEST_F(Routine_Di_Pagina, PreparaPaginaDueVolteApreUnaSolaPagina) {
  programma.preferenze.BORDO3 = 7;
  printer.ScaleMode(Scala_Twip);
  printer.FontSize = 11;
  PreparaPagina(programma);
  EXPECT_EQ(macchina.ridipinture, 1);
  EXPECT_THAT(printer.CurrentY, FloatNear(2 * 4.3353F, 0.001F));
  PreparaPagina(programma);
  EXPECT_EQ(macchina.ridipinture, 2);
  EXPECT_THAT(printer.CurrentY, FloatNear(4 * 4.3353F, 0.001F));
  EXPECT_THAT(registro.righe, ElementsAre("documento \"Stampa\" Registro", "pagina 1 verticale 210x297"));
  EXPECT_EQ(printer.Zoom, 0);
  EXPECT_EQ(printer.ScaleMode(), Scala_Millimetri);
  EXPECT_EQ(printer.FontName, "Arial");
  EXPECT_FLOAT_EQ(printer.FontSize, 11);
  EXPECT_TRUE(printer.FontBold);  // stays on: layouts that want it thin say so
  EXPECT_EQ(printer.LarghezzaUtile, 196);
}

TEST_F(Routine_Di_Pagina, PreparaPaginaUsaIlCarattereDelleImpostazioni) {
  programma.preferenze.fonte = "Courier New";
  programma.preferenze.DimFont = 8.25;
  PreparaPagina(programma);
  EXPECT_EQ(printer.FontName, "Courier New");
  EXPECT_FLOAT_EQ(printer.FontSize, 8.25F);
}

TEST_F(Routine_Di_Pagina, LaLarghezzaUtileETroncata) {
  macchina.stampante->orizzontale = true;
  programma.preferenze.BORDO3 = 200;
  PreparaPagina(programma);
  EXPECT_EQ(printer.LarghezzaUtile, 297 - 400);
}

TEST_F(Routine_Di_Pagina, StampaTestoLasciaIlCarattereComeMesso) {
  StampaTesto(printer, 10.5F, 20, "Destinatario:", "Courier New", 9, true);
  EXPECT_THAT(Disegnato(), ElementsAre("p1 testo 10.50 20.00 Courier New 9 grassetto: Destinatario:"));
  EXPECT_EQ(printer.FontName, "Courier New");
  EXPECT_FLOAT_EQ(printer.FontSize, 9);
  EXPECT_TRUE(printer.FontBold);
}

// Arial 10: a digit is 1.962 mm, comma and point 0.980 mm.
TEST_F(Routine_Di_Pagina, StampaDestraAllineaLeCifre) {
  StampaDestra(printer, 100, 50, 20, "1,50");
  StampaDestra(printer, 100, 55, 20, "1.234,50");
  StampaDestra(printer, 100, 60, 5, "1.234,50");
  EXPECT_THAT(Disegnato(),
              ElementsAre("p1 testo 113.13 50.00 Arial 10: 1,50", "p1 testo 106.27 55.00 Arial 10: 1.234,50",
                          "p1 testo 91.27 60.00 Arial 10: 1.234,50"));
}

TEST_F(Routine_Di_Pagina, StampaDestraDiUnTestoVuotoNonScrive) {
  StampaDestra(printer, 100, 50, 20, "");
  EXPECT_THAT(Disegnato(), IsEmpty());
  EXPECT_THAT(printer.CurrentY, FloatNear(53.941F, 0.001F));
}

TEST_F(Routine_Di_Pagina, StampaCentratoToglieGliSpaziAiLati) {
  StampaCentrato(printer, 30, "  0000  ", 105);
  EXPECT_THAT(Disegnato(), ElementsAre("p1 testo 101.08 30.00 Arial 10: 0000"));
}

// Layouts count on it: the oval drawn after a vertical line is thin, after a horizontal one as thick as that.
TEST_F(Routine_Di_Pagina, LaPennaRestaDopoLOrizzontaleETornaAUnoDopoLaVerticale) {
  LineaOrizzontale(printer, 10, 20, 180, {0, 0, 255}, 5);
  EXPECT_EQ(printer.DrawWidth, 5);
  LineaVerticale(printer, 10, 20, 100, {0, 0, 255}, 4);
  EXPECT_EQ(printer.DrawWidth, 1);
  EXPECT_THAT(Disegnato(), ElementsAre("p1 linea 10.00 20.00 190.00 20.00 penna 5 #0000FF",
                                       "p1 linea 10.00 20.00 10.00 120.00 penna 4 #0000FF"));
}

TEST_F(Routine_Di_Pagina, IlRiquadroVuotoENeroQualunqueColoreSiDia) {
  Riquadro(printer, 10, 20, 52, 5, 2, {200, 200, 200}, false);
  Riquadro(printer, 10, 20, 52, 5, 3, {200, 200, 200}, true);
  EXPECT_THAT(Disegnato(), ElementsAre("p1 riquadro 10.00 20.00 62.00 25.00 penna 2 #000000",
                                       "p1 pieno 10.00 20.00 62.00 25.00 penna 3 #C8C8C8"));
  EXPECT_EQ(printer.DrawWidth, 3);
}

TEST_F(Routine_Di_Pagina, LEllisseSpostaLaXDelChiamanteERimetteCarattereEPenna) {
  programma.preferenze.Numero_Posteggio = "07";
  printer.FontSize = 9;
  float x = 165;
  StampaEllisse(programma, x, 8);
  EXPECT_FLOAT_EQ(x, 146);
  EXPECT_EQ(printer.DrawWidth, 1);
  EXPECT_FLOAT_EQ(printer.FontSize, 9);
  EXPECT_THAT(Disegnato(), ElementsAre("p1 ellisse 146.00 8.00 11.00 3.30 penna 10 #000000",
                                       "p1 testo 144.43 6.42 Arial 8: 07"));
}

TEST_F(Routine_Di_Pagina, LEllisseSottile) {
  programma.preferenze.FlagSpessoreEllisse = false;
  float x = 165;
  StampaEllisse(programma, x, 8);
  EXPECT_EQ(Disegnato().front(), "p1 ellisse 146.00 8.00 11.00 3.30 penna 1 #000000");
}

TEST_F(Routine_Di_Pagina, SenzaEllisseNienteSiMuove) {
  programma.preferenze.FlagEllisse = false;
  printer.DrawWidth = 4;
  printer.FontSize = 9;
  float x = 165;
  StampaEllisse(programma, x, 8);
  EXPECT_FLOAT_EQ(x, 165);
  EXPECT_EQ(printer.DrawWidth, 4);
  EXPECT_FLOAT_EQ(printer.FontSize, 9);
  EXPECT_THAT(registro.righe, IsEmpty());
}

TEST_F(Routine_Di_Pagina, LeDueRigheAlPiede) {
  programma.preferenze.PiedePaginaBolla1 = "prima";
  programma.preferenze.PiedePaginaBolla2 = "seconda";
  StampaDueRighe(programma, 172, 3);
  StampaDueRighe(programma, 172, 3, 77);
  EXPECT_THAT(
      Disegnato(),
      ElementsAre("p1 testo 8.00 162.00 Arial 10: prima", "p1 testo 8.00 166.00 Arial 10: seconda",
                  "p1 testo 85.00 162.00 Arial 10: prima", "p1 testo 85.00 166.00 Arial 10: seconda"));
}

TEST_F(Routine_Di_Pagina, NomeTitoloEOrientamento) {
  Scritta titolo;
  TitoloStampante(printer, titolo);
  EXPECT_EQ(titolo.testo, "Registro  - Verticale");
  EXPECT_EQ(OrientamentoStampante(printer), "Stampante VERTICALE");
  printer.Orientation(Orizzontale);
  TitoloStampante(printer, titolo);
  EXPECT_EQ(titolo.testo, "Registro  - Orizzontale");
  EXPECT_EQ(OrientamentoStampante(printer), "Stampante ORIZZONTALE");
}

TEST_F(Routine_Di_Pagina, SenzaStampanteLaDidascaliaLoDice) {
  macchina.stampante.reset();
  Scritta titolo;
  TitoloStampante(printer, titolo);
  EXPECT_EQ(NomeStampante(printer), "nessuna stampante...");
  EXPECT_EQ(titolo.testo, "nessuna stampante...  - Verticale");
  PreparaPagina(programma);
  EXPECT_THAT(registro.righe, IsEmpty());
}

TEST(Pagine, UnaRigaInPiuEUnaPaginaInPiu) {
  EXPECT_EQ(Pagine_Di(0, 28), 0);
  EXPECT_EQ(Pagine_Di(1, 28), 1);
  EXPECT_EQ(Pagine_Di(28, 28), 1);
  EXPECT_EQ(Pagine_Di(29, 28), 2);
  EXPECT_EQ(Pagine_Di(57, 28), 3);
  EXPECT_EQ(Pagine_Di(5, 0), 0);
  EXPECT_EQ(Pagine_Di(5, -3), 0);
  EXPECT_EQ(Pagine_Di(-5, 28), 0);
}

TEST(Pagine, LaDidascaliaEIlNumeroDelleCopie) {
  EXPECT_EQ(Pagina_In_Corso("00345", 1, 3), "00345 Pagina 1 di 3 in corso...");
  EXPECT_THAT(Voci_Copie(), ElementsAre("1 copia", "2 copie", "3 copie"));
}

}  // namespace

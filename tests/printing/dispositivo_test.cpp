#include <limits>

#include "tests/printing/stampa_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::FloatNear;
using testing::IsEmpty;

using Dispositivo_Di_Pagina = Stampa_Di_Prova;

TEST_F(Dispositivo_Di_Pagina, ScriveDoveStaLaPennaEScendeDiUnaRiga) {
  printer.ScaleMode(Scala_Millimetri);
  printer.CurrentX = 10;
  printer.CurrentY = 20;
  printer.FontSize = 11;
  printer.Print("Peso Kg");
  EXPECT_FLOAT_EQ(printer.CurrentX, 0);
  EXPECT_THAT(printer.CurrentY, FloatNear(20 + 4.3353F, 0.001F));  // 11 points of 2288/2048
  printer.Print("sotto");
  printer.EndDoc();
  EXPECT_THAT(registro.righe, ElementsAre("documento \"Stampa\" Registro", "pagina 1 verticale 210x297",
                                          "p1 testo 10.00 20.00 Arial 11: Peso Kg",
                                          "p1 testo 0.00 24.34 Arial 11: sotto", "fine"));
  EXPECT_EQ(registro.pagine, 1);
}

// A layout prepares its page by printing nothing: that opens the document, once.
TEST_F(Dispositivo_Di_Pagina, UnTestoVuotoApreLaPaginaENonDisegna) {
  printer.Print("");
  printer.Print("");
  EXPECT_THAT(registro.righe, ElementsAre("documento \"Stampa\" Registro", "pagina 1 verticale 210x297"));
  EXPECT_GT(printer.CurrentY, 0);
}

TEST_F(Dispositivo_Di_Pagina, StileECarattereRestanoComeMessi) {
  printer.ScaleMode(Scala_Millimetri);
  printer.FontName = "courier new";
  printer.FontSize = 8.25F;
  printer.FontBold = printer.FontItalic = true;
  printer.Print("a");
  printer.NewPage();
  printer.Print("b");
  printer.EndDoc();
  printer.Print("c");
  EXPECT_THAT(Disegnato(), ElementsAre("p1 testo 0.00 0.00 courier new 8.25 grassetto corsivo: a",
                                       "p2 testo 0.00 0.00 courier new 8.25 grassetto corsivo: b",
                                       "p1 testo 0.00 0.00 courier new 8.25 grassetto corsivo: c"));
  EXPECT_EQ(registro.pagine, 3);
}

TEST_F(Dispositivo_Di_Pagina, MisuraNellUnitaInUso) {
  printer.FontSize = 10;
  EXPECT_FLOAT_EQ(printer.TextWidth("0"), static_cast<float>(1139.0 / 2048 * 10 * 20));  // 20 twips a point
  EXPECT_EQ(printer.ScaleWidth(), static_cast<float>(210 * 1440 / 25.4));
  printer.ScaleMode(Scala_Millimetri);
  EXPECT_FLOAT_EQ(printer.TextWidth("0"), static_cast<float>(1139.0 / 2048 * 10 * 25.4 / 72));
  EXPECT_FLOAT_EQ(printer.TextHeight(""), printer.TextHeight("due parole"));
  EXPECT_FLOAT_EQ(printer.ScaleWidth(), 210);
  EXPECT_FLOAT_EQ(printer.ScaleHeight(), 297);
  EXPECT_EQ(printer.Height(), 16838);  // twips, whatever the unit
}

TEST_F(Dispositivo_Di_Pagina, LaPennaRestaSulPostoQuandoCambiaLUnita) {
  printer.CurrentX = 1440;
  printer.CurrentY = 2880;
  printer.ScaleMode(Scala_Millimetri);
  EXPECT_FLOAT_EQ(printer.CurrentX, 25.4F);
  EXPECT_FLOAT_EQ(printer.CurrentY, 50.8F);
  printer.ScaleMode(7);
  EXPECT_EQ(printer.ScaleMode(), Scala_Millimetri);
}

TEST_F(Dispositivo_Di_Pagina, LOrientamentoValePerIlDocumentoCheViene) {
  printer.ScaleMode(Scala_Millimetri);
  printer.Orientation(Orizzontale);
  EXPECT_FLOAT_EQ(printer.ScaleWidth(), 297);
  EXPECT_EQ(printer.Height(), 11906);
  printer.Print("");
  EXPECT_EQ(registro.righe.back(), "pagina 1 orizzontale 297x210");
  printer.Orientation(0);
  EXPECT_EQ(printer.Orientation(), Orizzontale);
}

TEST_F(Dispositivo_Di_Pagina, AMetaDocumentoLOrientamentoValeDallaPaginaDopo) {
  printer.ScaleMode(Scala_Millimetri);
  printer.Print("");
  printer.Orientation(Orizzontale);
  EXPECT_EQ(printer.Orientation(), Orizzontale);
  EXPECT_FLOAT_EQ(printer.ScaleWidth(), 210);
  printer.NewPage();
  EXPECT_FLOAT_EQ(printer.ScaleWidth(), 297);
  EXPECT_EQ(registro.righe.back(), "pagina 2 orizzontale 297x210");
}

TEST_F(Dispositivo_Di_Pagina, UnaStampanteCheNonGiraIlFoglioRestaComE) {
  printer.orientamento_fisso = true;
  printer.Orientation(Orizzontale);
  EXPECT_EQ(printer.Orientation(), Verticale);
}

TEST_F(Dispositivo_Di_Pagina, DisegnaLineeRiquadriEdEllissi) {
  printer.ScaleMode(Scala_Millimetri);
  printer.CurrentX = 3;
  printer.CurrentY = 4;
  printer.Line(1, 2, 11, 2, {255, 0, 16});
  printer.DrawWidth = 3;
  printer.Line(1, 2, 11, 12, Nero, Tratto::Contorno);
  printer.Line(1, 2, 11, 12, {192, 192, 192}, Tratto::Pieno);
  printer.Circle(50, 60, 11, Nero, 0, 0, 0.5F);
  printer.Circle(50, 60, 10, Nero, 0, 0, 2);
  printer.Circle(50, 60, 10, Nero, 0, 3.14F);
  EXPECT_THAT(Disegnato(), ElementsAre("p1 linea 1.00 2.00 11.00 2.00 penna 1 #FF0010",
                                       "p1 riquadro 1.00 2.00 11.00 12.00 penna 3 #000000",
                                       "p1 pieno 1.00 2.00 11.00 12.00 penna 3 #C0C0C0",
                                       "p1 ellisse 50.00 60.00 11.00 5.50 penna 3 #000000",
                                       "p1 ellisse 50.00 60.00 5.00 10.00 penna 3 #000000",
                                       "p1 arco 50.00 60.00 10.00 10.00 da 0.00 a 3.14 penna 3 #000000"));
  EXPECT_FLOAT_EQ(printer.CurrentX, 3);  // only writing moves the pen
  EXPECT_FLOAT_EQ(printer.CurrentY, 4);
}

TEST_F(Dispositivo_Di_Pagina, PosizioniFuoriDalFoglioSonoScritteComeStanno) {
  printer.ScaleMode(Scala_Millimetri);
  printer.CurrentX = -9;
  printer.CurrentY = 400;
  printer.Print("fuori");
  EXPECT_THAT(Disegnato(), ElementsAre("p1 testo -9.00 400.00 Arial 10: fuori"));
}

TEST_F(Dispositivo_Di_Pagina, NumeriSenzaSensoNonDisegnano) {
  constexpr float infinito = std::numeric_limits<float>::infinity();
  printer.CurrentX = infinito;
  printer.Print("a");
  printer.FontSize = 0;
  printer.Print("b");
  printer.FontSize = -1;
  printer.Print("c");
  printer.Line(0, 0, infinito, 0);
  printer.Circle(0, 0, -1);
  printer.Circle(0, 0, 1, Nero, 0, 0, 0);
  EXPECT_THAT(Disegnato(), IsEmpty());
}

TEST_F(Dispositivo_Di_Pagina, CaratteriDiControlloSiLeggonoNelRegistro) {
  printer.Print("a\tb\r\n\x01 ");
  EXPECT_THAT(Disegnato(), ElementsAre("p1 testo 0.00 0.00 Arial 10: a\\tb\\r\\n\\x01 "));
}

TEST_F(Dispositivo_Di_Pagina, UnaPaginaNuovaSenzaDocumentoLoApre) {
  printer.NewPage();
  EXPECT_EQ(registro.pagine, 2);
  printer.EndDoc();
  printer.EndDoc();
  EXPECT_EQ(registro.righe.back(), "fine");
  EXPECT_EQ(registro.righe.size(), 4U);
}

TEST_F(Dispositivo_Di_Pagina, SenzaStampanteNonDisegnaEMisuraComeA4) {
  macchina.stampante.reset();
  printer.ScaleMode(Scala_Millimetri);
  printer.CurrentX = 5;
  printer.Print("a");
  printer.Line(0, 0, 1, 1);
  printer.NewPage();
  printer.EndDoc();
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_EQ(registro.pagine, 0);
  EXPECT_FLOAT_EQ(printer.CurrentX, 5);  // the statement was left undone
  EXPECT_FLOAT_EQ(printer.ScaleHeight(), 297);
}

// A printer that comes back in the midst of a document prints none of it: half a document is worse than none.
TEST_F(Dispositivo_Di_Pagina, UnDocumentoMancatoMancaTutto) {
  const auto stampante = macchina.stampante;
  macchina.stampante.reset();
  printer.documento = {"20250314", "Fattura", "12", ""};
  printer.Print("testa");
  macchina.stampante = stampante;
  printer.Print("righe");
  printer.NewPage();
  printer.EndDoc();
  EXPECT_THAT(registro.righe, IsEmpty());
  printer.Print("di nuovo");
  printer.EndDoc();
  EXPECT_THAT(registro.righe, testing::Contains(testing::EndsWith(": di nuovo")));
  EXPECT_EQ(registro.righe.back(), "fine");
}

// A routine that left without ending its document doesn't take the next one with it.
TEST_F(Dispositivo_Di_Pagina, DopoUnDocumentoMancatoIlProssimoEsce) {
  const auto stampante = macchina.stampante;
  macchina.stampante.reset();
  printer.documento = {"20250314", "Fattura", "12", ""};
  printer.Print("testa");
  macchina.stampante = stampante;
  printer.documento.numero = "13";
  printer.Print("testa");
  printer.EndDoc();
  EXPECT_EQ(registro.righe.front(), "documento \"20250314 Fattura 13\" Registro");
}

TEST_F(Dispositivo_Di_Pagina, LaSceltaDellaStampante) {
  printer.altre_stampanti = {"Etichette"};
  EXPECT_THAT(printer.Stampanti(), ElementsAre("Registro", "Etichette", "PDF"));
  EXPECT_TRUE(printer.Scegli("Etichette", Orizzontale));
  EXPECT_EQ(printer.DeviceName(), "Etichette");
  EXPECT_EQ(printer.Orientation(), Orizzontale);
  EXPECT_THAT(printer.Stampanti(), ElementsAre("Etichette", "Registro", "PDF"));
  EXPECT_FALSE(printer.Scegli("Quella buona", Verticale));
  EXPECT_EQ(printer.Orientation(), Orizzontale);
  printer.Print("");
  EXPECT_FALSE(printer.Scegli("PDF", Verticale));  // not under a document
  printer.EndDoc();
  EXPECT_TRUE(printer.Scegli("PDF", Verticale));
}

}  // namespace

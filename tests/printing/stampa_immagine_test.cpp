#include "printing/stampa_immagine.h"

#include "printing/carte.h"
#include "tests/printing/stampa_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Stampa_Immagine_Prova : Stampa_Di_Prova {
  FrmStampaFCPB schermo;
  static Immagine Figura_2x1() { return {2, 1, {0xFF0000, 0x00FF00}}; }
  bool Apri(double larghezza = 100, double altezza = 50) {
    return StampaFCPB(programma, schermo, "Mappa", Figura_2x1(), larghezza, altezza);
  }
};

constexpr Vista misure_errate = "La larghezza e l' altezza di stampa\nrichieste devono essere > 0.";
constexpr Vista troppo_grande =
    "Le dimensioni di stampa richieste\nsono superiori a quelle del foglio\n"
    "della stampante selezionata.\nPosso cambiare la scala?";

// A size of 0 stops before any printer is touched: this machine has none that could be.
TEST_F(Stampa_Immagine_Prova, UnaMisuraDiZeroFermaPrimaDellaStampante) {
  macchina.dispositivo = nullptr;
  EXPECT_FALSE(Apri(0, 50));
  EXPECT_FALSE(Apri(100, 0));
  EXPECT_FALSE(StampaFCPB(programma, schermo, "Mappa", {}, 100, 50));
  EXPECT_THAT(macchina.messaggi, ElementsAre(misure_errate, misure_errate, misure_errate));
}

TEST_F(Stampa_Immagine_Prova, LaSchermataMostraFoglioEStampanti) {
  ASSERT_TRUE(Apri());
  EXPECT_EQ(schermo.titolo, "  Stampa di: Mappa");
  EXPECT_EQ(schermo.fraFoglio.testo, " Foglio: A4,  Portrait");
  EXPECT_EQ(schermo.Altezza.testo, "Altezza: 297 mm");
  EXPECT_EQ(schermo.Larghezza.testo, "Larghezza: 210 mm");
  EXPECT_EQ(schermo.cboPrinterNames.Scelta(), "Registro");
  EXPECT_EQ(schermo.cmdChiudi.testo, "Applca e &Chiudi");
  EXPECT_EQ(schermo.txtScala.testo, "100");
  EXPECT_FALSE(schermo.lblFuoriFoglio.visibile);
  const Posto_Immagine posto = Posto_Sul_Foglio(schermo);
  EXPECT_DOUBLE_EQ(posto.x, 55);
  EXPECT_DOUBLE_EQ(posto.y, 123.5);
}

TEST_F(Stampa_Immagine_Prova, UnaFinestraGrandeEntraNelFoglioSenzaDomande) {
  ASSERT_TRUE(Apri(420, 100));
  EXPECT_EQ(schermo.txtScala.testo, "50");
  EXPECT_THAT(macchina.domande, IsEmpty());
}

TEST_F(Stampa_Immagine_Prova, LaScalaChePassaIlFoglioChiedeESiTieneLaPiuGrande) {
  ASSERT_TRUE(Apri(120, 50));
  schermo.txtScala.testo = "300";
  macchina.risposte = {true};
  ConfermaScala(programma, schermo);
  EXPECT_THAT(macchina.domande, ElementsAre(troppo_grande));
  EXPECT_EQ(schermo.txtScala.testo, "175");
  EXPECT_FALSE(schermo.lblFuoriFoglio.visibile);
}

TEST_F(Stampa_Immagine_Prova, NoTieneLaScalaEDiceFuoriFoglio) {
  ASSERT_TRUE(Apri());
  schermo.txtScala.testo = "10000";
  macchina.risposte = {false};
  ConfermaScala(programma, schermo);
  EXPECT_DOUBLE_EQ(schermo.scala, 10000);
  EXPECT_TRUE(schermo.lblFuoriFoglio.visibile);
  EXPECT_EQ(schermo.lblFuoriFoglio.testo, "Stampa fuori foglio");
  Print_FCPB(programma, schermo);
  EXPECT_THAT(Disegnato(), ElementsAre("p1 immagine -4895.00 -2351.50 5105.00 2648.50 2x1"));
}

TEST_F(Stampa_Immagine_Prova, UnaScalaCheNonENumeroTornaQuellaDiPrima) {
  ASSERT_TRUE(Apri());
  for (const char* scala : {"0", "-5", "", "dieci", "1,2,3"}) {
    schermo.txtScala.testo = scala;
    ConfermaScala(programma, schermo);
    EXPECT_EQ(schermo.txtScala.testo, "100") << scala;
  }
  EXPECT_EQ(macchina.messaggi.size(), 5U);
}

TEST_F(Stampa_Immagine_Prova, OgniCopiaEUnaPagina) {
  ASSERT_TRUE(Apri());
  schermo.txtNCopies.testo = "2";
  Print_FCPB(programma, schermo);
  EXPECT_THAT(registro.righe,
              ElementsAre("documento \"20250314 Immagine Mappa\" Registro", "pagina 1 verticale 210x297",
                          "p1 immagine 55.00 123.50 155.00 173.50 2x1", "pagina 2 verticale 210x297",
                          "p2 immagine 55.00 123.50 155.00 173.50 2x1", "fine"));
  EXPECT_FALSE(schermo.lblStampaInCorso.visibile);
  EXPECT_GE(macchina.ridipinture, 1);
}

TEST_F(Stampa_Immagine_Prova, LeCopieSonoAlmenoUna) {
  ASSERT_TRUE(Apri());
  for (const auto& [scritte, fatte] : {std::pair{"0", "1"}, {"x", "1"}, {"1000", "99"}}) {
    schermo.txtNCopies.testo = scritte;
    Print_FCPB(programma, schermo);
    EXPECT_EQ(schermo.txtNCopies.testo, fatte);
  }
}

TEST_F(Stampa_Immagine_Prova, UnAltraStampanteMisuraIlSuoFoglio) {
  ASSERT_TRUE(Apri());
  schermo.cboPrinterNames.scelta = 1;
  CambiaStampante(programma, schermo);
  EXPECT_EQ(*printer.DeviceName(), "PDF");
  ApplicaEChiudi(programma, schermo);
  EXPECT_THAT(macchina.messaggi, ElementsAre("la stampante corrente è PDF"_t));
  EXPECT_TRUE(schermo.chiusa);
}

// A printer taken in the properties stays; one taken for this picture only with cmdChiudi.
TEST_F(Stampa_Immagine_Prova, ChiudendoTornaLaStampanteDelProgramma) {
  ASSERT_TRUE(Apri());
  schermo.cboPrinterNames.scelta = 1;
  CambiaStampante(programma, schermo);
  Print_FCPB(programma, schermo);
  LasciaStampante(programma, schermo);
  EXPECT_EQ(*printer.DeviceName(), "Registro");

  ASSERT_TRUE(Apri());
  schermo.cboPrinterNames.scelta = 1;
  CambiaStampante(programma, schermo);
  ApplicaEChiudi(programma, schermo);
  LasciaStampante(programma, schermo);
  EXPECT_EQ(*printer.DeviceName(), "PDF");
}

TEST_F(Stampa_Immagine_Prova, LaStampanteDelleProprietaStampaLaFigura) {
  ASSERT_TRUE(Apri(250, 50));
  ASSERT_EQ(schermo.txtScala.testo, "84");
  printer.Scegli("PDF", Orizzontale);
  RiprendiDaProprieta(programma, schermo);
  EXPECT_EQ(schermo.cboPrinterNames.Scelta(), "PDF");
  EXPECT_EQ(schermo.fraFoglio.testo, " Foglio: A4,  Landscape");
  Print_FCPB(programma, schermo);
  LasciaStampante(programma, schermo);
  EXPECT_EQ(*printer.DeviceName(), "PDF");

  // upright again the picture at this scale no longer fits
  schermo.txtScala.testo = "110";
  ConfermaScala(programma, schermo);
  printer.Scegli("PDF", Verticale);
  macchina.risposte = {true};
  RiprendiDaProprieta(programma, schermo);
  EXPECT_THAT(macchina.domande, ElementsAre(troppo_grande));
  EXPECT_EQ(schermo.txtScala.testo, "84");
  RiprendiDaProprieta(programma, schermo);  // nothing changed, nothing is asked
}

TEST_F(Stampa_Immagine_Prova, UnaStampanteSparitaSiDiceESiRestaAllaPrima) {
  printer.altre_stampanti = {"Laser"};
  ASSERT_TRUE(Apri());
  printer.altre_stampanti.clear();
  schermo.cboPrinterNames.scelta = 1;
  ASSERT_EQ(schermo.cboPrinterNames.Scelta(), "Laser");
  CambiaStampante(programma, schermo);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Non posso accedere alla stampante richiesta."));
  EXPECT_EQ(schermo.cboPrinterNames.Scelta(), "Registro");
}

TEST_F(Stampa_Immagine_Prova, SenzaStampanteSiDice) {
  macchina.stampante.reset();
  ASSERT_TRUE(Apri());
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampante di default non specificata."));
}

TEST_F(Stampa_Immagine_Prova, IlFoglioSdraiato) {
  macchina.stampante->orizzontale = true;
  ASSERT_TRUE(Apri());
  EXPECT_EQ(schermo.fraFoglio.testo, " Foglio: A4,  Landscape");
}

TEST(Carte, SonoSessantottoEHannoUnNome) {
  EXPECT_EQ(Carte().size(), 68U);
  EXPECT_EQ(Nome_Carta(210, 297), "A4");
  EXPECT_EQ(Nome_Carta(297, 210), "A4");
  EXPECT_EQ(Nome_Carta(215.9, 279.4), "Letter");
  EXPECT_EQ(Nome_Carta(100, 70), "User");
  EXPECT_EQ(Nome_Carta(0, 0), "Unknown");
}

}  // namespace

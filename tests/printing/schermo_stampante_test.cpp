#include "printing/schermo_stampante.h"

#include "tests/printing/stampa_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct Schermo_Della_Stampante : Stampa_Di_Prova {
  std::vector<Testo> Nomi() const {
    std::vector<Testo> esito;
    for (std::size_t i = 0; i < schermo.Stampanti.Numero(); ++i) esito.push_back(schermo.Stampanti.Riga(i));
    return esito;
  }
  SchermoStampante schermo;
};

TEST_F(Schermo_Della_Stampante, MostraQuellaInUso) {
  printer.altre_stampanti = {"Etichette"};
  Apri_Stampante(programma, schermo);
  EXPECT_EQ(schermo.Corrente.testo, "Registro  - Verticale");
  EXPECT_THAT(Nomi(), ElementsAre("Registro", "Etichette", "PDF"));
  EXPECT_EQ(schermo.Stampanti.scelta, 0);
  EXPECT_TRUE(schermo.Verticale.segnata);
  EXPECT_FALSE(schermo.Orizzontale.segnata);
  EXPECT_FALSE(schermo.ApriUltimo.attivo);
  EXPECT_THAT(schermo.Stampe.testo, HasSubstr("/Stampe"));
}

TEST_F(Schermo_Della_Stampante, PrendeStampanteEOrientamento) {
  Apri_Stampante(programma, schermo);
  schermo.Stampanti.scelta = 1;
  Scegli_Orientamento(schermo, true);
  schermo.ApriPDF.segnata = true;
  EXPECT_TRUE(Applica_Stampante(programma, schermo));
  EXPECT_EQ(schermo.Corrente.testo, "PDF  - Orizzontale");
  EXPECT_EQ(printer.DeviceName(), "PDF");
  EXPECT_EQ(printer.Orientation(), Orizzontale);
  EXPECT_TRUE(printer.Apri_Alla_Fine);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Schermo_Della_Stampante, UnaStampanteCheNonGiraRimetteIlSegno) {
  printer.orientamento_fisso = true;
  Apri_Stampante(programma, schermo);
  Scegli_Orientamento(schermo, true);
  EXPECT_TRUE(Applica_Stampante(programma, schermo));
  EXPECT_TRUE(schermo.Verticale.segnata);
  EXPECT_EQ(schermo.Corrente.testo, "Registro  - Verticale");
}

TEST_F(Schermo_Della_Stampante, UnaStampanteSparitaEDettaEResaQuellaDiPrima) {
  printer.altre_stampanti = {"Etichette"};
  Apri_Stampante(programma, schermo);
  schermo.Stampanti.scelta = 1;
  printer.altre_stampanti.clear();
  EXPECT_FALSE(Applica_Stampante(programma, schermo));
  EXPECT_THAT(
      macchina.messaggi,
      ElementsAre("La stampante\nEtichette\nnon risponde. Resta quella di prima:\nRegistro  - Verticale"));
  EXPECT_EQ(printer.DeviceName(), "Registro");
  EXPECT_EQ(schermo.Stampanti.scelta, 0);
}

TEST_F(Schermo_Della_Stampante, SenzaStampanteRestaDaSceglierePDF) {
  macchina.stampante.reset();
  Apri_Stampante(programma, schermo);
  EXPECT_EQ(schermo.Corrente.testo, "nessuna stampante...  - Verticale");
  EXPECT_THAT(Nomi(), ElementsAre("PDF"));
  EXPECT_EQ(schermo.Stampanti.scelta, -1);
  EXPECT_FALSE(Applica_Stampante(programma, schermo));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Scegliere prima una stampante dalla lista."));
  schermo.Stampanti.scelta = 0;
  EXPECT_TRUE(Applica_Stampante(programma, schermo));
  EXPECT_EQ(schermo.Corrente.testo, "PDF  - Verticale");
}

}  // namespace

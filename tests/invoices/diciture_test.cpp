#include "invoices/diciture.h"

#include <gmock/gmock.h>

#include "tests/core/ditta_di_prova.h"

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct Diciture : Ditta_Di_Prova, testing::Test {
  Diciture() {
    Leggi_Ini();
    Apri_Personalizza(programma, schermo);
  }
  void Leggi_Ini() {
    Metti_Ini("[VELMARA]\r\nnposteggio=07\r\nTesto_Fattura_Gra_1=prima\r\n");
    Leggi_Preferenze(programma);
  }
  std::vector<Testo> Campi(Serie_Dicitura quale) const {
    std::vector<Testo> testi;
    for (const CampoTesto& campo : schermo.serie[static_cast<std::size_t>(quale)].campi)
      testi.push_back(campo.testo);
    return testi;
  }
  std::vector<Testo> In_Uso(Serie_Dicitura quale) const {
    const auto righe = Righe_Di(programma.preferenze, quale);
    return {righe.begin(), righe.end()};
  }
  CampoTesto& Campo(Serie_Dicitura quale, std::size_t riga) {
    return schermo.serie[static_cast<std::size_t>(quale)].campi[riga];
  }
  Personalizza_Fattura schermo;
};

const Testo piede_1 =
    "La merce viaggia a rischio e pericolo del committente anche se venduta franco destinazione.";
const Testo piede_2 =
    "Non si accettano reclami se non al momento della consegna. Non si accettano pagamenti se non effettuati";
const Testo piede_3 =
    "direttamente alla Ditta in intestazione. Per qualsiasi controversia è competente il Foro di Venezia."_t;
const Testo piede_4 =
    "Contributo CONAI assolto ove dovuto. Assolve gli Obblighi di cui all'art.62, comma1. del D.L. "
    "24/01/2012, n. 1";
const Testo piede_5 =
    "convertito con modificazioni della legge 24 marzo 2012, n. 27. Prezzo concordato giornalmente.";
const Testo piede_6 = "Durata del contratto: limitata solo alla presente consegna.";

TEST_F(Diciture, LeQuattroSerieDiSeiRighe) {
  EXPECT_EQ(schermo.titolo, "Personalizzazione  Fattura");
  std::vector<Testo> didascalie, bottoni;
  for (const Serie_Campi& serie : schermo.serie) {
    didascalie.push_back(serie.didascalia.testo);
    bottoni.push_back(serie.predefinita.testo);
  }
  EXPECT_THAT(didascalie, ElementsAre("Fattura Grafica (generica)", "Fattura Completa",
                                      "Fattura Personalizzata 1", "Fattura Personalizzata 2"));
  EXPECT_THAT(bottoni, ElementsAre("generica", "Default Completa", "Default Personalizzata &1",
                                   "Default Personalizzata 2"));
  for (const Serie_Dicitura quale : Serie_Diciture) EXPECT_EQ(Campi(quale), In_Uso(quale));
  EXPECT_EQ(Campo(Serie_Dicitura::Personalizzata1, 0).testo, "prima");
}

TEST_F(Diciture, AllAvvioLeRigheFinisconoInUnoSpazio) {
  for (const Serie_Dicitura quale : {Serie_Dicitura::Generica, Serie_Dicitura::Completa})
    EXPECT_THAT(In_Uso(quale),
                ElementsAre(piede_1, piede_2 + " ", piede_3 + " ", piede_4 + " ", piede_5, piede_6));
}

TEST_F(Diciture, IBottoniCambianoITestiInUsoSenzaScriverli) {
  const Testo prima = Ini();
  for (const Serie_Dicitura quale : Serie_Diciture) Predefinita_Personalizza(programma, schermo, quale);
  EXPECT_THAT(In_Uso(Serie_Dicitura::Generica),
              ElementsAre(piede_1, piede_2, piede_3, piede_4, piede_5, piede_6));
  EXPECT_EQ(In_Uso(Serie_Dicitura::Completa), In_Uso(Serie_Dicitura::Generica));
  EXPECT_THAT(In_Uso(Serie_Dicitura::Personalizzata1),
              ElementsAre(piede_1, piede_2 + " ", piede_3 + " ", piede_4 + " ", piede_5, piede_6));
  EXPECT_THAT(In_Uso(Serie_Dicitura::Personalizzata2),
              ElementsAre("Assolve gli obblighi di cui all'Art. 62,",
                          "Comma 1 del Decreto Legge 24 Gennaio 2012 n. 1.",
                          "convertito con modificazioni, della Legge 24 Marzo 2012. n. 27.", "", "", ""));
  for (const Serie_Dicitura quale : Serie_Diciture) EXPECT_EQ(Campi(quale), In_Uso(quale));
  EXPECT_EQ(Ini(), prima);
  Chiudi_Personalizza(schermo);
  EXPECT_TRUE(schermo.chiusa);
  Leggi_Ini();  // the next start
  EXPECT_THAT(In_Uso(Serie_Dicitura::Personalizzata2), Each(IsEmpty()));
}

TEST_F(Diciture, ApplicaPrendeLeRigheComeSono) {
  Campo(Serie_Dicitura::Personalizzata2, 5).testo = "  sesta riga, con spazi davanti";
  Campo(Serie_Dicitura::Completa, 1).testo = "";
  EXPECT_TRUE(Applica_Personalizza(programma, schermo));
  EXPECT_EQ(In_Uso(Serie_Dicitura::Personalizzata2)[5], "  sesta riga, con spazi davanti");
  EXPECT_EQ(In_Uso(Serie_Dicitura::Completa)[1], "");
  EXPECT_EQ(schermo.Esito.testo, "Diciture salvate.");
  std::size_t scritte = 0;
  const Testo ini = Ini();
  for (const Vista riga : Righe(ini)) scritte += riga.starts_with("Testo_Fattura_") ? 1U : 0U;
  EXPECT_EQ(scritte, 24U);
  Tocca_Personalizza(schermo);
  EXPECT_EQ(schermo.Esito.testo, "");
}

TEST_F(Diciture, UnDiscoPienoLoDiceETieneQuelCheEScritto) {
  Disco_Pieno();
  Campo(Serie_Dicitura::Generica, 0).testo = "nuova";
  EXPECT_FALSE(Applica_Personalizza(programma, schermo));
  EXPECT_THAT(macchina.messaggi,
              ElementsAre(testing::StartsWith("Le diciture non sono state salvate: il file\n")));
  EXPECT_EQ(Campo(Serie_Dicitura::Generica, 0).testo, "nuova");
  EXPECT_EQ(In_Uso(Serie_Dicitura::Generica)[0], piede_1);
  EXPECT_EQ(schermo.Esito.testo, "");
}

}  // namespace

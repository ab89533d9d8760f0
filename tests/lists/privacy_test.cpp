#include "lists/privacy.h"

#include "lists/anagrafica.h"
#include "lists/anagrafica_clienti.h"
#include "lists/anagrafica_fornitori.h"
#include "tests/printing/stampa_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct Lettere : Stampa_Di_Prova {
  SchermoAnagrafica schermo;
};

constexpr Vista lettera = "Informativa\r\n\r\nI dati servono ai documenti.\r\n";

TEST_F(Lettere, IlDestinatarioConDueNomi) {
  StampaPrivacy(programma, {"prima", "", "terza"}, {"Rossi", "Pesca", "Via Mare 1", "30100 Venezia"}, "0012");
  EXPECT_THAT(
      registro.righe,
      ElementsAre("documento \"20250314 Privacy 0012\" Registro", "pagina 1 verticale 210x297",
                  "p1 testo 105.00 55.00 Arial 10 grassetto: Spett.le Rossi",
                  "p1 testo 105.00 60.00 Arial 10 grassetto: Pesca",
                  "p1 testo 105.00 65.00 Arial 10 grassetto: Via Mare 1",
                  "p1 testo 105.00 70.00 Arial 10 grassetto: 30100 Venezia",
                  "p1 testo 10.00 90.00 Arial 10: prima", "p1 testo 10.00 98.00 Arial 10: terza", "fine"));
}

TEST_F(Lettere, SenzaSecondoNomeLeRigheSalgono) {
  StampaPrivacy(programma, {"x"}, {"Rossi", " ", "Via Mare 1", "30100 Venezia"}, "00001");
  EXPECT_THAT(Disegnato(), ElementsAre("p1 testo 105.00 55.00 Arial 10 grassetto: Spett.le Rossi",
                                       "p1 testo 105.00 60.00 Arial 10 grassetto: Via Mare 1",
                                       "p1 testo 105.00 65.00 Arial 10 grassetto: 30100 Venezia",
                                       "p1 testo 10.00 90.00 Arial 10: x"));
}

TEST_F(Lettere, UnaLetteraLungaContinuaSulFoglioDopo) {
  StampaPrivacy(programma, std::vector<Testo>(49, "riga"), {"Rossi", "", "Via", "Citta"}, "00001");
  const auto disegnato = Disegnato();
  ASSERT_FALSE(disegnato.empty());
  EXPECT_EQ(disegnato.back(), "p2 testo 10.00 20.00 Arial 10: riga");
}

TEST_F(Lettere, IlTestoDelFile) {
  cartella.Metti("privacy.txt", Testo(lettera));
  EXPECT_THAT(*CaricaPrivacy(programma), ElementsAre("Informativa", "", "I dati servono ai documenti."));
}

TEST_F(Lettere, SenzaFileNonSiStampa) {
  EXPECT_FALSE(CaricaPrivacy(programma));
  EXPECT_THAT(macchina.messaggi,
              ElementsAre(Testo_Percorso(cartella / "privacy.txt") + " non trovato...abort"));
}

TEST_F(Lettere, UnFileVuotoSiDice) {
  cartella.Metti("privacy.txt", "");
  EXPECT_FALSE(CaricaPrivacy(programma));
  ASSERT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_THAT(macchina.messaggi[0], HasSubstr("vuoto"));
}

TEST_F(Lettere, DallaListaDeiClientiLaVoceScelta) {
  cartella.Metti("privacy.txt", Testo(lettera));
  programma.Vet_Clienti = {{"00101", "Alba", "al", "Via 1", "Venezia"},
                           {"00102", "Bora", "bo", "Via 2", "Chioggia"}};
  Apri_Anagrafica(programma, schermo, Anagrafica_Clienti());
  schermo.List1.scelta = 1;
  Scegli_Voce(programma, schermo);
  macchina.risposte = {false, true};
  Lettera_Privacy(programma, schermo);
  EXPECT_THAT(registro.righe, IsEmpty());
  Lettera_Privacy(programma, schermo);
  EXPECT_THAT(macchina.domande, ElementsAre("OK per stampare:\nBora", "OK per stampare:\nBora"));
  EXPECT_EQ(registro.righe.front(), "documento \"20250314 Privacy 00102\" Registro");
  EXPECT_THAT(registro.righe, testing::Contains("p1 testo 105.00 60.00 Arial 10 grassetto: Via 2"));
}

TEST_F(Lettere, DallaListaDeiFornitoriConIlSecondoNome) {
  cartella.Metti("privacy.txt", Testo(lettera));
  programma.Vet_Fornitori = {{"0007", "Nord", "Pesca Alta", "Via 7", "Trieste"}};
  Apri_Anagrafica(programma, schermo, Anagrafica_Fornitori());
  schermo.List1.scelta = 0;
  Scegli_Voce(programma, schermo);
  macchina.risposte = {true};
  Lettera_Privacy(programma, schermo);
  EXPECT_THAT(registro.righe, testing::Contains("p1 testo 105.00 60.00 Arial 10 grassetto: Pesca Alta"));
}

TEST_F(Lettere, SenzaVoceSceltaLoDice) {
  programma.Vet_Clienti.clear();
  Apri_Anagrafica(programma, schermo, Anagrafica_Clienti());
  schermo.List1.scelta = -1;
  Lettera_Privacy(programma, schermo);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Selezionare una voce della lista..."));
  EXPECT_THAT(macchina.domande, IsEmpty());
}

}  // namespace

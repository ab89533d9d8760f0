#include "primanota/stampa_nota.h"

#include <gmock/gmock.h>

#include "tests/primanota/note_di_prova.h"

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

struct Nota_Su_Carta : Note_Di_Prova {
  void Stampa(int quante, Modo_Nota modo = {}) {
    std::vector<LedgerRow> righe;
    for (int i = 1; i <= quante; ++i) righe.push_back(Riga(i, "Laguna", "10", "5"));
    Stampa(righe, modo);
  }
  void Stampa(const std::vector<LedgerRow>& righe, Modo_Nota modo = {}) {
    registro.righe.clear();
    registro.pagine = 0;
    const Nota nota{"IT Italia", "Laguna"};
    const Foglio_Nota foglio = PreparaFoglioNota(programma);
    DisegnaNota(programma, ComponiNota(programma, righe, modo.tutto ? nullptr : &nota, modo, foglio), foglio,
                titolo);
  }
  // The drawn lines that end in this text, cut behind the position.
  std::vector<Testo> Posti(Vista testo) const {
    std::vector<Testo> posti;
    for (const Testo& riga : registro.righe) {
      const Testo fine = Testo(": ").append(testo);
      if (riga.size() < fine.size() || Destra(riga, fine.size()) != fine) continue;
      posti.push_back(
          riga.substr(0, riga.find(' ', riga.find(' ', riga.find(' ', riga.find(' ') + 1) + 1) + 1)));
    }
    return posti;
  }
  std::vector<Testo> Segni(Vista tratto) const {
    std::vector<Testo> segni;
    for (const Testo& riga : registro.righe)
      if (Contiene(riga, Testo(" ").append(tratto).append(" "))) segni.push_back(riga);
    return segni;
  }
  Testo titolo;
};

TEST_F(Nota_Su_Carta, TestataEPosti) {
  programma.preferenze.BORDO3 = 5;
  programma.preferenze.DASU3 = 10;
  Stampa(1);
  struct Caso {
    Testo testo, posto;
  };
  const Caso casi[] = {
      {"Mare Blu s.n.c. di Verdi Anna & C.", "p1 testo 5.00 10.00"},
      {"Prima Nota del 14/03/2025", "p1 testo 5.00 30.00"},
      {"Fornitore: 345 Mare Blu s.n.c.", "p1 testo 75.00 30.00"},
      {"Provenienza del Prodotto IT Italia", "p1 testo 15.00 45.00"},
      {" N", "p1 testo 6.00 75.00"},
      {"Zona", "p1 testo 14.00 75.00"},
      {"Denom. Prodotto", "p1 testo 29.00 75.00"},
      {"  KG", "p1 testo 69.00 75.00"},
      {"PREZZO", "p1 testo 89.00 75.00"},
      {"Codice", "p1 testo 109.00 75.00"},
      {"Acquirente", "p1 testo 122.00 75.00"},
      {"Lotto", "p1 testo 171.00 75.00"},
      {"Orata", "p1 testo 29.00 82.00"},
      {"A0837", "p1 testo 14.00 82.00"},
      {"00123  Pescheria Rialto", "p1 testo 109.00 82.00"},
      {"L1403", "p1 testo 171.00 82.00"},
      {" Importo Totale = Euro 50,00", "p1 testo 5.00 255.00"},
      {"Venezia 14-03-2025", "p1 testo 5.00 264.00"},
      {"Firma del Venditore", "p1 testo 100.00 264.00"},
      {"___________________", "p1 testo 100.00 268.00"},
  };
  for (const auto& [testo, posto] : casi) EXPECT_THAT(Posti(testo), testing::ElementsAre(posto)) << testo;
  EXPECT_THAT(Posti("pagina 1 di 1"), SizeIs(1));
  EXPECT_THAT(registro.righe, Contains("pagina 1 verticale 210x297"));
}

TEST_F(Nota_Su_Carta, LaRigaKStaASuoPosto) {
  Stampa(25);
  EXPECT_EQ(Posti("Orata").front(), "p1 testo 24.00 72.00");
  EXPECT_EQ(Posti("Orata").back(), "p1 testo 24.00 240.00");
  EXPECT_EQ(registro.pagine, 1);
  Stampa(15, {false, true, false});
  EXPECT_EQ(Posti("Orata").back(), "p1 testo 24.00 155.00");
}

// The reference of a credit row has a line of its own below the row, and the next row comes after it.
TEST_F(Nota_Su_Carta, LaNotaDiAccreditoContaUnaLinea) {
  std::vector<LedgerRow> righe = {Riga(1, "Laguna"), Riga(2, "Laguna", "5", "-3,5"), Riga(3, "Laguna")};
  righe[1][CampoRiga::DDT_CV] = "00012";
  Stampa(righe);
  EXPECT_THAT(Posti("Orata"),
              testing::ElementsAre("p1 testo 24.00 72.00", "p1 testo 24.00 79.00", "p1 testo 24.00 93.00"));
  EXPECT_THAT(Posti("Nota di Accredito 00012"), testing::ElementsAre("p1 testo 24.00 86.00"));
  EXPECT_THAT(Posti("-3,50"), SizeIs(1));
  EXPECT_THAT(Posti(" Importo Totale = Euro 82,50"), SizeIs(1));
}

TEST_F(Nota_Su_Carta, PiuPagine) {
  Stampa(60);
  EXPECT_EQ(registro.pagine, 3);
  EXPECT_THAT(Posti("Imp. Parziale pagina = Euro 1.250,00   (continua)"),
              testing::ElementsAre("p1 testo 0.00 269.00", "p2 testo 0.00 269.00"));
  EXPECT_THAT(Posti("Imp. Parziale di pagina = Euro 500,00"), testing::ElementsAre("p3 testo 0.00 255.00"));
  EXPECT_THAT(Posti(" Importo Totale = Euro 3.000,00"), IsEmpty());
  EXPECT_THAT(Posti("pagina 2 di 3"), SizeIs(1));
  EXPECT_THAT(Posti("60"), SizeIs(1)) << "rows are counted through all pages";
  EXPECT_THAT(Posti("Firma del Venditore"), testing::ElementsAre("p3 testo 95.00 264.00"));
  EXPECT_EQ(titolo, "Laguna Pagina 3 di 3 in corso...");
}

TEST_F(Nota_Su_Carta, PiuPagineColTotale) {
  Stampa(60, {false, false, true});
  EXPECT_THAT(Posti("Imp. Parziale di pagina = Euro 500,00"), testing::ElementsAre("p3 testo 0.00 255.00"));
  EXPECT_THAT(Posti(" Importo Totale = Euro 3.000,00"), testing::ElementsAre("p3 testo 105.00 255.00"));
}

TEST_F(Nota_Su_Carta, TuttoSenzaProvenienzaNeFirma) {
  Stampa(40, {true, false, false});
  EXPECT_EQ(registro.pagine, 2);
  EXPECT_THAT(Posti("Orata")[34], "p1 testo 24.00 275.00");
  EXPECT_THAT(Posti("Provenienza del Prodotto IT Italia"), IsEmpty());
  EXPECT_THAT(registro.righe, Not(Contains(HasSubstr("Firma"))));
  // the foot gives way to the rows of a full page
  EXPECT_THAT(Posti("Imp. Parziale pagina = Euro 1.750,00   (continua)"),
              testing::ElementsAre("p1 testo 0.00 281.00"));
  EXPECT_THAT(Posti("Imp. Parziale di pagina = Euro 250,00"), testing::ElementsAre("p2 testo 0.00 255.00"));
}

TEST_F(Nota_Su_Carta, Cornici) {
  Stampa(2);
  EXPECT_THAT(Segni("riquadro"), IsEmpty());
  EXPECT_THAT(Segni("linea"), IsEmpty());
  programma.preferenze.FlagStampaFramePN = 1;
  Stampa(2);
  EXPECT_THAT(Segni("riquadro"), testing::ElementsAre("p1 riquadro 0.00 53.00 210.00 71.00 penna 1 #000000"));
  const auto linee = Segni("linea");
  EXPECT_THAT(linee, Contains("p1 linea 0.00 78.00 210.00 78.00 penna 1 #000000"));
  EXPECT_THAT(linee, Contains("p1 linea 0.00 85.00 210.00 85.00 penna 1 #000000"));
  for (const char* x : {"0.00", "8.00", "23.00", "63.00", "83.00", "103.00", "175.00", "210.00"})
    EXPECT_THAT(linee, Contains(Testo("p1 linea ") + x + " 53.00 " + x + " 85.00 penna 1 #000000"));
  EXPECT_THAT(linee, SizeIs(10));
}

TEST_F(Nota_Su_Carta, IlFoglioTornaVerticale) {
  macchina.stampante = Stampante{"Registro", true};
  Stampa(1);
  EXPECT_THAT(registro.righe, Contains("pagina 1 verticale 210x297"));
}

TEST_F(Nota_Su_Carta, SenzaStampanteNonSiFermaNulla) {
  macchina.stampante.reset();
  Stampa(30);
  EXPECT_EQ(registro.pagine, 0);
}

TEST_F(Nota_Su_Carta, UnTestoLungoSiStringeNellaColonna) {
  LedgerRow riga = Riga(1, "Laguna");
  riga[CampoRiga::Specie] = Testo(30, 'M');
  Stampa({riga});
  Testo trovata;
  for (const Testo& stampata : registro.righe)
    if (Contiene(stampata, Testo(30, 'M'))) trovata = stampata;
  EXPECT_THAT(trovata, HasSubstr(" Arial 5: "));
  EXPECT_THAT(Posti("00123  Pescheria Rialto"), SizeIs(1));
}

// Goods are traced by their lot: none of it may run off the sheet. Broken at a blank, or where it must be.
TEST_F(Nota_Su_Carta, UnLottoLungoVaSuPiuLinee) {
  std::vector<LedgerRow> righe = {Riga(1, "Laguna"), Riga(2, "Laguna"), Riga(3, "Laguna")};
  righe[0][CampoRiga::Lotti] = "LAGP250313 LAGP250314 LAGP250315 LAGP250316";
  righe[1][CampoRiga::Lotti] = Testo(60, '8');
  righe[2][CampoRiga::Lotti] = "LAGP250313";
  Stampa(righe);
  EXPECT_THAT(Posti("LAGP250313 LAGP250314 LAGP250315"), testing::ElementsAre("p1 testo 176.00 72.00"));
  EXPECT_THAT(Posti("LAGP250316"), testing::ElementsAre("p1 testo 176.00 73.90"));
  const auto seconda = Segni("testo 176.00 79.00"), resto = Segni("testo 176.00 80.90");
  ASSERT_THAT(seconda, SizeIs(1));
  ASSERT_THAT(resto, SizeIs(1));
  const auto otto = [](const Testo& riga) { return std::count(riga.begin() + 24, riga.end(), '8'); };
  EXPECT_EQ(otto(seconda[0]) + otto(resto[0]), 60);
  EXPECT_THAT(Posti("LAGP250313"), testing::ElementsAre("p1 testo 176.00 86.00"));
}

}  // namespace

#include "stats/controllo_cv.h"

#include <numeric>

#include "core/numeri.h"
#include "tests/printing/stampa_di_prova.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct Controllo_Dei_Conti : Stampa_Di_Prova {
  Controllo_Dei_Conti() { Apri_Controllo(programma, schermo); }

  void Conto(const Testo& nome, const Testo& contenuto, const Testo& anno = "2025") const {
    cartella.Metti(anno + "/CV_NO/" + nome, contenuto);
  }
  void Conto(const Testo& nome, const Testo& fornitore, const Testo& imponibile, const Testo& commissioni) {
    Conto(nome, fornitore + "\r\n" + imponibile + "\r\n" + commissioni +
                    "\r\n,00\r\n,00\r\n,00\r\n,00\r\n,00\r\n,00\r\n,00\r\nno\r\n,00\r\n,00\r\n");
  }
  void Leggi(const Testo& anno, const Testo& mese) {
    schermo.Text1.testo = anno;
    for (std::size_t i = 0; i < schermo.Combo1.Numero(); ++i)
      if (schermo.Combo1.Riga(i) == mese) schermo.Combo1.scelta = static_cast<int>(i);
    Leggi_Controllo(programma, schermo);
  }
  void Leggi() { Leggi("2025", "Tutto"); }

  std::vector<Testo> Lista() const {
    std::vector<Testo> righe;
    for (std::size_t i = 0; i < schermo.ListaControllo.Numero(); ++i)
      righe.push_back(schermo.ListaControllo.Riga(i));
    return righe;
  }
  std::vector<Testo> Colonna(controllo::Colonna colonna) const {
    std::vector<Testo> testi;
    for (const RigaControllo& riga : schermo.Tabella_Controllo) testi.push_back(riga[colonna]);
    return testi;
  }
  double Somma(controllo::Colonna colonna) const {
    const auto testi = Colonna(colonna);
    return std::accumulate(testi.begin(), testi.end(), 0.0, [&](double somma, const Testo& testo) {
      return somma + Numero(testo, programma.Separatore_Decimale).value_or(0);
    });
  }

  ControlloCV schermo;
};

TEST_F(Controllo_Dei_Conti, UnaCartellaCheNonSiLeggeSiDice) {
  std::filesystem::create_directories(cartella / "2025");
  std::filesystem::create_directory_symlink("CV_NO", cartella / "2025/CV_NO");
  Leggi();
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("Errore 40 durante la lettura\n" + Testo_Percorso(cartella / "2025/CV_NO") + "\n" +
                          Testo_Errore(40)));
  EXPECT_TRUE(schermo.attiva);
}

TEST_F(Controllo_Dei_Conti, AllAperturaQuestAnnoEQuestoMese) {
  EXPECT_EQ(schermo.Text1.testo, "2025");
  EXPECT_EQ(schermo.Combo1.Numero(), 13U);
  EXPECT_EQ(schermo.Combo1.Riga(0), "Gennaio");
  EXPECT_EQ(schermo.Combo1.Riga(11), "Dicembre");
  EXPECT_EQ(schermo.Combo1.Riga(12), "Tutto");
  EXPECT_EQ(schermo.Combo1.Scelta(), "Marzo");
  EXPECT_EQ(schermo.Text2.testo, "");
  EXPECT_TRUE(schermo.Command3.attivo);
  for (const Bottone* comando : {&schermo.Command4, &schermo.Command5, &schermo.OrdinaNumero,
                                 &schermo.OrdinaFornitore, &schermo.OrdinaProvvigione, &schermo.MenuCancella})
    EXPECT_FALSE(comando->attivo) << comando->testo;
}

TEST_F(Controllo_Dei_Conti, LeggeITotaliEFaLeRighe) {
  Conto("03140123.txt", "Laguna Pesca", "650,00", "52,00");
  Conto("03150124.txt", "Valle Zappa", "1234567,50", ",50");
  Leggi();
  EXPECT_THAT(macchina.messaggi, ElementsAre("trovati 2"));
  EXPECT_THAT(Lista(),
              ElementsAre("0123 | Laguna Pesca                             |       650,00 |    52,00",
                          "0124 | Valle Zappa                              |   1234567,50 |      ,50"));
  EXPECT_EQ(schermo.Titoli.testo,
            "     |    Fornitore                             |      Importo | Provvigione");
  EXPECT_EQ(schermo.Text2.testo, "1235217,50");
  EXPECT_EQ(schermo.Text3.testo, "52,50");
  EXPECT_EQ(schermo.Esito.testo, "");
  EXPECT_EQ(schermo.Tabella_Controllo[0][controllo::File],
            Testo_Percorso(cartella / "2025" / "CV_NO" / "03140123.txt"));
  EXPECT_TRUE(schermo.Command4.attivo);
  EXPECT_TRUE(schermo.Command5.attivo);
}

TEST_F(Controllo_Dei_Conti, UnMeseOTutto) {
  for (const char* nome : {"01310001.txt", "03010007.txt", "03310008.txt", "12240900.txt"})
    Conto(nome, "Laguna Pesca", "1,00", ",10");
  struct Caso {
    Testo mese;
    std::vector<Testo> numeri;
  };
  const Caso casi[] = {{"Gennaio", {"0001"}},
                       {"Febbraio", {}},
                       {"Marzo", {"0007", "0008"}},
                       {"Dicembre", {"0900"}},
                       {"Tutto", {"0001", "0007", "0008", "0900"}}};
  for (const auto& [mese, numeri] : casi) {
    macchina.messaggi.clear();
    Leggi("2025", mese);
    EXPECT_EQ(Colonna(controllo::Numero), numeri) << mese;
    EXPECT_THAT(macchina.messaggi,
                ElementsAre(numeri.empty() ? "trovato niente" : "trovati " + std::to_string(numeri.size())))
        << mese;
  }
}

// An account beyond 9999 has nine characters in its name: the month doesn't find it, the year does, by its
// last four digits. Its file keeps its name, which other copies of the program read.
TEST_F(Controllo_Dei_Conti, UnNumeroDiCinqueCifreStaSoloNelTutto) {
  Conto("031412345.txt", "Laguna Pesca", "10,00", "1,00");
  Leggi("2025", "Marzo");
  EXPECT_THAT(macchina.messaggi, ElementsAre("trovato niente"));
  Leggi("2025", "Tutto");
  EXPECT_THAT(Colonna(controllo::Numero), ElementsAre("2345"));
}

TEST_F(Controllo_Dei_Conti, NomiInMaiuscoloECartellaInMinuscolo) {
  cartella.Metti("2024/cv_no/03140005.TXT", "Nord Adria\n5,00\n,25\n");
  Leggi("2024", "Marzo");
  EXPECT_THAT(Lista(),
              ElementsAre("0005 | Nord Adria                               |         5,00 |      ,25"));
}

TEST_F(Controllo_Dei_Conti, LAnno) {
  Conto("03140001.txt", "Laguna Pesca", "1,00", ",10");
  struct Caso {
    Testo anno, rimane;
    std::vector<Testo> messaggi;
    std::size_t righe;
  };
  const std::vector<Testo> uno = {"trovati 1"}, niente = {"trovato niente"};
  const Caso casi[] = {
      {"2025", "2025", uno, 1},  {"  2025 ", "2025", uno, 1},    {"2024", "2024", niente, 0},
      {"2026", "2025", {}, 0},   {"99999999999", "2025", {}, 0}, {"", "", niente, 0},
      {"abc", "abc", niente, 0}, {"-1", "-1", niente, 0},        {"2024/../2025", "2024/../2025", niente, 0},
      {"..", "..", niente, 0},
  };
  for (const auto& [anno, rimane, messaggi, righe] : casi) {
    macchina.messaggi.clear();
    Leggi(anno, "Tutto");
    EXPECT_EQ(schermo.Text1.testo, rimane) << anno;
    EXPECT_EQ(macchina.messaggi, messaggi) << anno;
    EXPECT_EQ(Lista().size(), righe) << anno;
  }
}

// A year that is still to come stops before anything: the list stays what it was.
TEST_F(Controllo_Dei_Conti, LAnnoFuturoLasciaLaLista) {
  Conto("03140001.txt", "Laguna Pesca", "1,00", ",10");
  Leggi();
  Leggi("2026", "Tutto");
  EXPECT_EQ(Lista().size(), 1U);
  EXPECT_EQ(schermo.Esito.testo, "L'anno 2026 deve ancora venire: rimesso 2025.");
  Leggi("2025", "Tutto");
  EXPECT_EQ(schermo.Esito.testo, "");
}

TEST_F(Controllo_Dei_Conti, NienteDaLeggereSvuotaListaETotali) {
  Conto("03140001.txt", "Laguna Pesca", "1,00", ",10");
  Leggi();
  ASSERT_EQ(schermo.Text2.testo, "1,00");
  std::filesystem::create_directories(cartella / "2023" / "CV_NO");
  for (const char* anno : {"2023", "2022"}) {  // an empty folder, and none
    Leggi(anno, "Tutto");
    EXPECT_EQ(macchina.messaggi.back(), "trovato niente") << anno;
    EXPECT_THAT(Lista(), IsEmpty());
    EXPECT_EQ(schermo.Text2.testo, "");
    EXPECT_EQ(schermo.Text3.testo, "");
    EXPECT_FALSE(schermo.Command5.attivo);
  }
}

TEST_F(Controllo_Dei_Conti, FileTagliatiEForestieriSiVedonoENonContano) {
  Conto("03140001.txt", "Laguna Pesca", "100,00", "8,00");
  Conto("03140002.txt", "");
  Conto("03140003.txt", "Valle Zappa");
  Conto("03140004.txt", "Nord Adria\r\n50,00");
  Conto("03140005.txt", "Nord Adria\r\ncinquanta\r\n4,00\r\n");
  Conto("a.txt", Testo("\0\x01\xFF", 3) + Testo(300, 'x') + "\n" + Testo(300, 'y') + "\n\t\n");
  Conto("lettera.doc", "Laguna Pesca\n1000,00\n1000,00\n");
  Leggi();
  EXPECT_EQ(macchina.messaggi.back(), "trovati 6");
  EXPECT_THAT(
      Lista(),
      ElementsAre("0001 | Laguna Pesca                             |       100,00 |     8,00",
                  "0002 |                                          |              |         ",
                  "0003 | Valle Zappa                              |              |         ",
                  "0004 | Nord Adria                               |        50,00 |         ",
                  "0005 | Nord Adria                               |    cinquanta |     4,00",
                  "a    | " + Testo("\0\x01\xFF", 3) + Testo(37, 'x') + " | yyyyyyyyyyyy |        \t"));
  EXPECT_EQ(schermo.Text2.testo, "150,00");
  EXPECT_EQ(schermo.Text3.testo, "12,00");
  EXPECT_EQ(schermo.Esito.testo,
            "5 file non si leggono per intero come conti vendita; nei totali manca quel che non si legge: "
            "03140002.txt, 03140003.txt, "
            "03140004.txt, 03140005.txt, a.txt");
}

TEST_F(Controllo_Dei_Conti, UnFileSoloEMoltiFileInEsito) {
  Conto("03140002.txt", "");
  Leggi();
  EXPECT_EQ(schermo.Esito.testo,
            "1 file non si legge per intero come conto vendita; nei totali manca quel che non si legge: "
            "03140002.txt");
  for (int i = 3; i < 9; ++i) Conto("0314000" + std::to_string(i) + ".txt", "");
  Leggi();
  EXPECT_EQ(schermo.Esito.testo,
            "7 file non si leggono per intero come conti vendita; nei totali manca quel che non si legge: "
            "03140002.txt, 03140003.txt, "
            "03140004.txt, 03140005.txt, 03140006.txt ...");
}

TEST_F(Controllo_Dei_Conti, SeparatoreDelGiornoInCuiFuScritto) {
  struct Caso {
    char separatore;
    Testo imponibile, commissioni, totale, provvigioni;
  };
  const Caso casi[] = {{',', "12,50", ",50", "12,50", "0,50"},
                       {'.', "12.50", ".50", "12.50", "0.50"},
                       // never as 1250: a file of a machine with the other sign
                       {',', "12.50", ".50", "12,50", "0,50"},
                       {'.', "12,50", ",50", "12.50", "0.50"},
                       {',', "-12,50", "-,50", "-12,50", "-0,50"}};
  for (const Caso& caso : casi) {
    programma.Separatore_Decimale = caso.separatore;
    Apri_Controllo(programma, schermo);
    Conto("03140001.txt", "Laguna Pesca", caso.imponibile, caso.commissioni);
    Leggi();
    EXPECT_EQ(schermo.Text2.testo, caso.totale);
    EXPECT_EQ(schermo.Text3.testo, caso.provvigioni);
    EXPECT_EQ(schermo.Esito.testo, "");
  }
}

// ---- merging and ordering

TEST_F(Controllo_Dei_Conti, DueContiDiUnFornitoreDiventanoUno) {
  Conto("03140001.txt", "Laguna Pesca", "100,00", "8,00");
  Conto("03140002.txt", "Valle Zappa", "10,00", ",50");
  Conto("03150003.txt", "LAGUNA PESCA", "0,50", ",50");
  Leggi();
  Consolida_Controllo(programma, schermo);
  EXPECT_THAT(Lista(),
              ElementsAre("     | Laguna Pesca                             |        100,5 |      8,5",
                          "     | Valle Zappa                              |        10,00 |      ,50"));
  EXPECT_EQ(schermo.Text2.testo, "110,50");
  EXPECT_EQ(schermo.Text3.testo, "9,00");
}

// Every digit of what could be read stays in the lines, also beside a file that is cut.
TEST_F(Controllo_Dei_Conti, LeRigheConsolidateDannoITotali) {
  Conto("03140001.txt", "Laguna Pesca", "100,00", "8,00");
  Conto("03140002.txt", "Laguna Pesca");
  Conto("03140003.txt", "laguna pesca", "7,25", "abc");
  Conto("03140004.txt", "laguna pesca", "-20,00", "1,00");
  Conto("03140005.txt", "Nord Adria\r\n");
  Leggi();
  EXPECT_EQ(schermo.Text2.testo, "87,25");
  Consolida_Controllo(programma, schermo);
  EXPECT_THAT(Colonna(controllo::Fornitore), ElementsAre("Laguna Pesca", "Nord Adria"));
  EXPECT_THAT(Colonna(controllo::Imponibile), ElementsAre("87,25", "0"));
  EXPECT_THAT(Colonna(controllo::Commissioni), ElementsAre("9", "0"));
  EXPECT_DOUBLE_EQ(Somma(controllo::Imponibile), schermo.totale_imponibile);
  EXPECT_DOUBLE_EQ(Somma(controllo::Commissioni), schermo.totale_commissioni);
}

// Commissions are compared as texts, so ",50" comes before "10,00" and that before "8,00": the list that
// the agent knows.
TEST_F(Controllo_Dei_Conti, OrdinaPerNumeroFornitoreProvvigioneComeTesti) {
  Conto("03140010.txt", "valle", "1,00", "8,00");
  Conto("03150002.txt", "Laguna", "2,00", ",50");
  Conto("03160007.txt", "Nord", "3,00", "10,00");
  Leggi();
  EXPECT_THAT(Colonna(controllo::Numero), ElementsAre("0010", "0002", "0007"));
  Ordina_Controllo(programma, schermo, controllo::Numero);
  EXPECT_THAT(Colonna(controllo::Numero), ElementsAre("0002", "0007", "0010"));
  Ordina_Controllo(programma, schermo, controllo::Fornitore);
  EXPECT_THAT(Colonna(controllo::Fornitore), ElementsAre("Laguna", "Nord", "valle"));
  Ordina_Controllo(programma, schermo, controllo::Commissioni);
  EXPECT_THAT(Colonna(controllo::Commissioni), ElementsAre(",50", "10,00", "8,00"));
  EXPECT_EQ(schermo.Text2.testo, "6,00");
}

TEST_F(Controllo_Dei_Conti, CancellaSvuotaListaETotaliELasciaIFile) {
  Conto("03140001.txt", "Laguna Pesca", "100,00", "8,00");
  Leggi();
  Cancella_Controllo(programma, schermo);
  EXPECT_THAT(Lista(), IsEmpty());
  EXPECT_EQ(schermo.Text2.testo, "");
  EXPECT_EQ(schermo.Text3.testo, "");
  EXPECT_FALSE(schermo.Command4.attivo);
  Consolida_Controllo(programma, schermo);
  Stampa_Controllo(programma, schermo);
  EXPECT_EQ(registro.pagine, 0);
  Leggi();
  EXPECT_EQ(Lista().size(), 1U);
}

// ---- paper

TEST_F(Controllo_Dei_Conti, Stampa) {
  Conto("03140123.txt", "Laguna Pesca", "650,00", "52,00");
  Conto("03150124.txt", "Valle Zappa", "1234567,50", ",50");
  Leggi("2025", "Marzo");
  schermo.Combo1.scelta = 0;  // what is printed is what was read
  schermo.Text1.testo = "2020";
  Stampa_Controllo(programma, schermo);
  EXPECT_THAT(
      registro.righe,
      ElementsAre(
          "documento \"20250314 Controllo CV Marzo 2025\" Registro", "pagina 1 verticale 210x297",
          "p1 testo 10.00 10.00 Courier New 11 grassetto: Marzo / 2025                  14/03/2025",
          "p1 testo 10.00 14.40 Courier New 11 grassetto:      |    Fornitore                             |  "
          " "
          "   Importo | Provvigione",
          "p1 testo 174.38 10.00 Courier New 11: pag. 1 di 1",
          "p1 testo 10.00 23.19 Courier New 11: 0123 | Laguna Pesca                             |       "
          "650,00 |    52,00",
          "p1 testo 10.00 27.58 Courier New 11: 0124 | Valle Zappa                              |   "
          "1234567,50 |      ,50",
          "p1 testo 10.00 31.98 Courier New 11: " + Testo(76, '-'),
          "p1 testo 10.00 36.38 Courier New 11 grassetto: Totale conti vendita 1.235.217,50",
          "p1 testo 10.00 40.77 Courier New 11 grassetto: Totale provvigioni   52,50", "fine"));
  EXPECT_EQ(schermo.titolo, "Controllo Conti Vendita");
  EXPECT_TRUE(schermo.attiva);
}

// Three lines under the list belong to it: 55 accounts fill a sheet.
TEST_F(Controllo_Dei_Conti, UnaPaginaPienaEUnaRigaInPiu) {
  const auto riempi = [&](int conti) {
    schermo.Tabella_Controllo.assign(static_cast<std::size_t>(conti),
                                     {"0001", "Laguna Pesca", "1,00", ",10", ""});
    registro = {};
    Stampa_Controllo(programma, schermo);
  };
  riempi(55);
  EXPECT_EQ(registro.pagine, 1);
  EXPECT_THAT(registro.righe, Not(Contains(HasSubstr("Continua ..."))));
  riempi(56);
  EXPECT_EQ(registro.pagine, 2);
  EXPECT_THAT(registro.righe, Contains(HasSubstr("Continua ...")).Times(1));
  EXPECT_THAT(registro.righe, Contains(HasSubstr("pag. 2 di 2")).Times(1));
  EXPECT_THAT(registro.righe, Contains(HasSubstr("Fornitore")).Times(2));
}

TEST_F(Controllo_Dei_Conti, SenzaStampanteNonSuccedeNulla) {
  macchina.stampante.reset();
  Conto("03140001.txt", "Laguna Pesca", "1,00", ",10");
  Apri_Controllo(programma, schermo);
  EXPECT_EQ(schermo.Stampante.testo, "nessuna stampante...  - Verticale");
  Leggi();
  Stampa_Controllo(programma, schermo);
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_TRUE(schermo.attiva);
}

// ---- a busy year

TEST_F(Controllo_Dei_Conti, UnAnnoPieno) {
  for (int i = 1; i <= 600; ++i) {
    const Testo giorno = Formato(1 + i % 12, "00", ',') + Formato(1 + i % 28, "00", ',');
    Conto(giorno + Formato(i, "0000", ',') + ".txt", "Fornitore " + std::to_string(i % 60), "100,10", "8,01");
  }
  Leggi();
  EXPECT_EQ(Lista().size(), 600U);
  EXPECT_EQ(schermo.Text2.testo, "60060,00");
  Consolida_Controllo(programma, schermo);
  EXPECT_EQ(Lista().size(), 60U);
}

}  // namespace

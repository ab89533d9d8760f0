#include <gtest/gtest.h>

#include "tests/runner/piattaforma_copione.h"

namespace giornata {

namespace {

struct Macchina : Piattaforma_Copione {
  Macchina() {
    senza_risposta = [this](const std::string& atteso, const std::string& trovato) {
      mancata = atteso + " / " + trovato;
    };
  }
  std::string mancata;
};

}  // namespace

TEST(Macchina_Copione, ComeSiTrovaSeIlCopioneNonDiceAltro) {
  Macchina macchina;
  EXPECT_EQ(macchina.Oggi(), (Data{2025, 3, 14}));
  EXPECT_EQ(macchina.Separatore_Decimale(), ',');
  ASSERT_TRUE(macchina.Stampante_Corrente());
  EXPECT_EQ(macchina.Stampante_Corrente()->nome, "Registro");
  EXPECT_FALSE(macchina.Stampante_Corrente()->orizzontale);
  EXPECT_EQ(macchina.pagine.pagine, 0);
}

// What the program prints comes to the steps about pages, and the script's printer is the one it prints on.
TEST(Macchina_Copione, QuelloCheSiStampaArrivaAlleRighe) {
  Macchina macchina;
  macchina.stampante = Stampante{"Banco", true};
  Printer& printer = macchina.Dispositivo();
  EXPECT_EQ(printer.Orientation(), Orizzontale);
  printer.Print("Peso Kg");
  printer.Orientation(Verticale);
  printer.EndDoc();
  EXPECT_EQ(macchina.pagine.righe,
            (std::vector<Testo>{"documento \"Stampa\" Banco", "pagina 1 orizzontale 297x210",
                                "p1 testo 0.00 0.00 Arial 10: Peso Kg", "fine"}));
  EXPECT_EQ(macchina.pagine.pagine, 1);
  EXPECT_FALSE(macchina.stampante->orizzontale);
  macchina.pagine = {};
  macchina.stampante.reset();
  printer.Print("niente");
  EXPECT_TRUE(macchina.pagine.righe.empty());
}

TEST(Macchina_Copione, LeDomandePrendonoLeRisposteInFila) {
  Macchina macchina;
  macchina.risposte = {Tasto_Risposta::OK, Tasto_Risposta::Annulla, Testo("12"), Tasto_Risposta::OK,
                       Tasto_Risposta::Annulla};
  EXPECT_TRUE(macchina.Domanda("uno", Icona::Domanda, {}));
  EXPECT_FALSE(macchina.Domanda("due", Icona::Domanda, {}));
  EXPECT_EQ(macchina.Chiedi("tre", {}, "proposta"), "12");
  EXPECT_EQ(macchina.Chiedi("quattro", {}, "proposta"), "proposta");
  EXPECT_EQ(macchina.Chiedi("cinque", {}, "proposta"), std::nullopt);
  EXPECT_EQ(macchina.domande.size(), 5U);
  EXPECT_TRUE(macchina.mancata.empty());
}

TEST(Macchina_Copione, UnaDomandaSenzaRispostaSiDice) {
  Macchina macchina;
  macchina.Domanda("OK per salvare\n3 dati", Icona::Domanda, {});
  EXPECT_NE(macchina.mancata.find("OK per salvare\n3 dati"), std::string::npos);
}

TEST(Macchina_Copione, UnTestoNonRispondeAUnaDomanda) {
  Macchina macchina;
  macchina.risposte = {Testo("OK")};
  EXPECT_FALSE(macchina.Domanda("sicuro?", Icona::Domanda, {}));
  EXPECT_NE(macchina.mancata.find("rispondi OK"), std::string::npos);
}

TEST(Macchina_Copione, IlProgrammaAvviatoConISuoiArgomenti) {
  Macchina macchina;
  EXPECT_TRUE(macchina.Avvia_Programma("/ditta/CopiaDati.exe", {"a", "b"}));
  EXPECT_EQ(macchina.programma, "CopiaDati.exe a b");
}

}  // namespace giornata

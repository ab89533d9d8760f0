#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/entry/giornata_di_prova.h"

using C = CampoRiga;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr int n(C campo) { return static_cast<int>(campo); }

TEST(Salvataggio_Automatico, AllaQuintaRiga) {
  Giorno_Di_Due g;
  for (int i = 1; i <= 4; ++i) {
    g.Compila();
    g.Aggiunge();
    EXPECT_EQ(g.programma.Righe_Non_Salvate, i);
  }
  EXPECT_EQ(g.macchina.attesa, 0);
  EXPECT_FALSE(g.programma.disco.Esiste_File(g.programma.File_Giorno));
  g.Compila();
  g.Fuoco();
  g.Aggiunge();
  EXPECT_EQ(g.macchina.attesa, 0.5);
  EXPECT_GE(g.macchina.ridipinture, 1);
  EXPECT_EQ(g.programma.Righe_Non_Salvate, 0);
  EXPECT_FALSE(g.programma.Tabella_Modificata);
  EXPECT_THAT(g.macchina.domande, IsEmpty());
  EXPECT_EQ(g.cartella.Contenuto("2025/20250314.txt"), Scrivi_Tabella(g.programma.Vet_Tabella));
  EXPECT_EQ(g.Fuoco(), n(C::Specie));  // from Cliente, the customer's code being held
}

struct Caso_Salva {
  int massimo, gia_contate;
  bool attivo, salva;
};

// The count is compared for equality: past a limit that was lowered nothing is saved until a save by hand.
TEST(Salvataggio_Automatico, SoloQuandoIlConteggioEUguale) {
  for (const Caso_Salva& caso :
       {Caso_Salva{5, 4, true, true}, Caso_Salva{5, 4, false, false}, Caso_Salva{5, 5, true, false},
        Caso_Salva{3, 7, true, false}, Caso_Salva{0, 0, true, false}, Caso_Salva{1, 0, true, true}}) {
    Giorno_Di_Due g;
    g.programma.preferenze.maxrighesalvate = caso.massimo;
    g.programma.preferenze.FlagAutoSalvataggio = caso.attivo;
    g.programma.Righe_Non_Salvate = caso.gia_contate;
    g.Aggiunge();
    EXPECT_EQ(g.programma.Righe_Non_Salvate, caso.salva ? 0 : caso.gia_contate + 1);
    EXPECT_EQ(g.programma.disco.Esiste_File(g.programma.File_Giorno), caso.salva);
  }
}

TEST(Salvataggio_Automatico, DiscoPieno) {
  Giorno_Di_Due g;
  g.programma.preferenze.maxrighesalvate = 1;
  g.programma.disco.guasto = [](const Percorso&) { return ENOSPC; };
  g.Aggiunge();
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 3);
  EXPECT_TRUE(g.programma.Tabella_Modificata);
  ASSERT_EQ(g.macchina.messaggi.size(), 1U);
  EXPECT_THAT(g.macchina.messaggi[0], HasSubstr("durante il salvataggio"));
  EXPECT_TRUE(g.edita.attiva);
}

TEST(Salva, ConDomanda) {
  Giorno_Di_Due g;
  g.programma.Tabella_Modificata = true;
  g.programma.Righe_Non_Salvate = 3;
  g.edita.Aggiungi.attivo = false;
  g.macchina.risposte = {true};
  Salva(g.programma, g.edita);
  EXPECT_THAT(g.macchina.domande, ElementsAre("OK per salvare 2 dati immessi..."));
  EXPECT_EQ(g.cartella.Contenuto("2025/20250314.txt"), Scrivi_Tabella(g.programma.Vet_Tabella));
  EXPECT_FALSE(g.programma.Tabella_Modificata);
  EXPECT_EQ(g.programma.Righe_Non_Salvate, 0);
  EXPECT_EQ(g.Luce(), "BENE");
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
  EXPECT_EQ(g.Titolo(), "Aggiunge/Modifica/Cancella - n.Voci = 2");
  EXPECT_TRUE(g.edita.attiva);
}

TEST(Salva, Annullato) {
  Giorno_Di_Due g;
  g.programma.Tabella_Modificata = true;
  g.programma.Righe_Non_Salvate = 3;
  g.macchina.risposte = {false};
  Salva(g.programma, g.edita);
  EXPECT_FALSE(g.programma.disco.Esiste_File(g.programma.File_Giorno));
  EXPECT_TRUE(g.programma.Tabella_Modificata);
  EXPECT_EQ(g.programma.Righe_Non_Salvate, 3);
}

TEST(Salva, DiscoPienoLasciaTuttoComEra) {
  Giorno_Di_Due g;
  g.programma.Tabella_Modificata = true;
  g.programma.Righe_Non_Salvate = 3;
  g.programma.disco.guasto = [](const Percorso&) { return ENOSPC; };
  g.macchina.risposte = {true};
  EXPECT_EQ(SalvaConDomanda(g.programma, g.edita), EsitoSalvataggio::Fallito);
  EXPECT_TRUE(g.programma.Tabella_Modificata);
  EXPECT_EQ(g.programma.Righe_Non_Salvate, 3);
  EXPECT_NE(g.Luce(), "BENE");
  EXPECT_TRUE(g.edita.attiva);
  EXPECT_EQ(g.macchina.messaggi.size(), 1U);
}

}  // namespace

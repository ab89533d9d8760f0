#include "entry/lotti.h"

#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "entry/comandi.h"
#include "tests/entry/giornata_di_prova.h"

using C = CampoRiga;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

const Testo domanda_lotti =
    "Questa procedura attribuisce automaticamente un numero di lotto\n a ciascuna specie. Il lotto è formato dal codice del fornitore + \nla data del giono precedente questa prima nota.\ni lotti relativi alle rimanenze dovranno essere modificati manualmente.\nOK per continuare...."_t;

struct Giornata_Lotti : Giornata_Di_Prova {
  Lotti_Predefiniti lista;

  Giornata_Lotti() {
    programma.Vet_Fornitori.push_back({"0003", "Nord Adria", "", "", "", "", "5", "NADR", ""});
  }
  void MettiRighe(const std::vector<Testo>& fornitori) {
    programma.Vet_Tabella.righe.clear();
    int n = 0;
    for (const Testo& fornitore : fornitori) {
      LedgerRow riga = RigaDelGiorno(++n, "Laguna Pesca", "00123");
      riga[C::Fornitore] = fornitore;
      riga[C::Lotti] = "vecchio";
      programma.Vet_Tabella.righe.push_back(riga);
    }
    Apri();
  }
  std::vector<Testo> Lotti() const {
    std::vector<Testo> lotti;
    for (const LedgerRow& riga : programma.Vet_Tabella.righe) lotti.push_back(riga[C::Lotti]);
    return lotti;
  }
  void MettiFile(const std::string& contenuto) const {
    std::ofstream(cartella / "LottiPredeiniti.txt", std::ios::binary) << contenuto;
  }
};

}  // namespace

TEST(Lotti, OgniRigaPrendeIlSuo) {
  Giornata_Lotti g;
  g.MettiRighe({"Mare Blu", " nord adria ", "Mare Blu"});
  const unsigned versione = g.edita.albero.ListaVoci.versione;
  g.macchina.risposte = {true};
  AttribuisciLotti(g.programma, g.edita);
  EXPECT_THAT(g.macchina.domande, ElementsAre(domanda_lotti));
  EXPECT_THAT(g.Lotti(), ElementsAre("MB250313", "NADR250313", "MB250313"));
  EXPECT_TRUE(g.programma.Tabella_Modificata);
  EXPECT_NE(g.edita.albero.ListaVoci.versione, versione);
  EXPECT_THAT(g.macchina.messaggi, ElementsAre());
  EXPECT_EQ(g[C::Lotti], "MB250313");  // the fields showed the row, and show it again
}

// The lot of the day before goes over the ends of months and years, and February ends as the firms count it.
TEST(Lotti, LaDataEIlGiornoPrimaDellaPrimaNota) {
  struct Caso {
    const char *giorno, *lotto;
  };
  for (const Caso& caso : {Caso{"20250101", "MB241231"}, Caso{"20240301", "MB240229"},
                           Caso{"20250301", "MB250228"}, Caso{"20250315", "MB250314"}}) {
    Giornata_Lotti g;
    g.programma.Data_AAAAMMGG = caso.giorno;
    g.MettiRighe({"Mare Blu"});
    g.macchina.risposte = {true};
    AttribuisciLotti(g.programma, g.edita);
    EXPECT_THAT(g.Lotti(), ElementsAre(caso.lotto));
  }
}

TEST(Lotti, UnFornitoreSenzaCodiceFerma) {
  for (const char* senza : {"Marina Nord", "Sconosciuto", ""}) {
    Giornata_Lotti g;
    g.MettiRighe({"Mare Blu", senza, "Nord Adria"});
    g.macchina.risposte = {true};
    AttribuisciLotti(g.programma, g.edita);
    EXPECT_THAT(g.Lotti(), ElementsAre("MB250313", "vecchio", "vecchio"));
    EXPECT_THAT(g.macchina.messaggi,
                ElementsAre(Testo(senza) + "\nsenza codice....Inserire i codici dei fornitori..."));
    EXPECT_TRUE(g.programma.Tabella_Modificata);
    EXPECT_FALSE(Occupata(g.edita));
  }
}

TEST(Lotti, FermatoAllaPrimaRigaNonCambiaIlGiorno) {
  Giornata_Lotti g;
  g.MettiRighe({"Marina Nord", "Mare Blu"});
  g.macchina.risposte = {true};
  AttribuisciLotti(g.programma, g.edita);
  EXPECT_THAT(g.Lotti(), ElementsAre("vecchio", "vecchio"));
  EXPECT_FALSE(g.programma.Tabella_Modificata);
}

TEST(Lotti, AnnullareLasciaTutto) {
  Giornata_Lotti g;
  g.MettiRighe({"Mare Blu"});
  g.macchina.risposte = {false};
  AttribuisciLotti(g.programma, g.edita);
  EXPECT_THAT(g.Lotti(), ElementsAre("vecchio"));
  EXPECT_FALSE(g.programma.Tabella_Modificata);
}

TEST(Lotti, UnGiornoSenzaRigheNonChiedeNulla) {
  Giornata_Lotti g;
  g.Apri();
  AttribuisciLotti(g.programma, g.edita);
  EXPECT_THAT(g.macchina.domande, ElementsAre());
  EXPECT_EQ(g.Riga(1)[C::Lotti], "");
}

// After the only row was deleted beside others: the blank row has no supplier, and stops nothing.
TEST(Lotti, LaRigaDaScrivereSiSalta) {
  Giornata_Lotti g;
  g.MettiRighe({Testo(Riga_Vuota), "Mare Blu"});
  g.macchina.risposte = {true};
  AttribuisciLotti(g.programma, g.edita);
  EXPECT_THAT(g.Lotti(), ElementsAre("vecchio", "MB250313"));
  EXPECT_THAT(g.macchina.messaggi, ElementsAre());
}

// With the old lot in its field F4 would undo the new one, and the day would go to disk so.
TEST(Lotti, QuelloCheSiStaScrivendoRestaMaNonIlLottoVecchio) {
  Giornata_Lotti g;
  g.MettiRighe({"Mare Blu"});
  g.Scrivi(C::Commento, "nuovo");
  g.macchina.risposte = {true};
  AttribuisciLotti(g.programma, g.edita);
  EXPECT_EQ(g[C::Lotti], "MB250313");
  EXPECT_EQ(g[C::Commento], "nuovo");
}

TEST(Lotti, ValeAncheSenzaLottiAutomatici) {
  for (const bool automatici : {true, false}) {
    Giornata_Lotti g;
    g.programma.preferenze.FlagLottiAutomatici = automatici;
    g.MettiRighe({"Mare Blu"});
    g.macchina.risposte = {true};
    AttribuisciLotti(g.programma, g.edita);
    EXPECT_THAT(g.Lotti(), ElementsAre("MB250313"));
  }
}

TEST(Lotti, MentreChiedeLoSchermoStaFermo) {
  Giornata_Lotti g;
  g.MettiRighe({"Mare Blu"});
  g.macchina.risposte = {true};
  g.macchina.durante_attesa = [&] {
    EXPECT_TRUE(Occupata(g.edita));
    AttribuisciLotti(g.programma, g.edita);  // a second press meanwhile
  };
  AttribuisciLotti(g.programma, g.edita);
  EXPECT_EQ(g.macchina.domande.size(), 1U);
  EXPECT_FALSE(Occupata(g.edita));
}

// Three dates that must not be mixed: the automatic lot follows the day before start-up, whatever the ledger.
TEST(Lotti, IlLottoAutomaticoHaUnAltraData) {
  Giornata_Lotti g;
  g.programma.preferenze.FlagLottiAutomatici = true;
  g.programma.Data_AAAAMMGG = "20250110";
  g.Apri();
  g[C::Fornitore] = "Mare Blu";
  g.Premi(C::Fornitore, Tasto::Invio);
  EXPECT_EQ(g[C::Lotti], "MB250313");
}

// ---- the predefined lots

TEST(LottiPredefiniti, LetturaEScrittura) {
  Giornata_Lotti g;
  g.MettiFile("L1\nL2\r\n\r\n  \r\nL\x80 3");
  Apri_LottiPredefiniti(g.programma, g.lista);
  EXPECT_THAT(g.lista.lotti, ElementsAre("L1", "L2", "L\x80 3"));
  EXPECT_EQ(g.lista.List1.Numero(), 3U);
  EXPECT_EQ(g.lista.List1.scelta, 0);  // Enter takes what is seen marked
  g.lista.Text1.testo = "L4";
  AggiungiLotto(g.lista);
  SalvaLotti(g.programma, g.lista);
  EXPECT_EQ(g.cartella.Contenuto("LottiPredeiniti.txt"), "L1\r\nL2\r\nL\x80 3\r\nL4\r\n");
}

// A line of NULs has nothing that could be chosen, or saved.
TEST(LottiPredefiniti, UnaRigaDiByteNulliNonEUnLotto) {
  Giornata_Lotti g;
  g.MettiFile(Testo("L1\r\n\0 \0\r\nL2", 11));
  Apri_LottiPredefiniti(g.programma, g.lista);
  EXPECT_THAT(g.lista.lotti, ElementsAre("L1", "L2"));
}

TEST(LottiPredefiniti, SenzaFile) {
  Giornata_Lotti g;
  Apri_LottiPredefiniti(g.programma, g.lista);
  EXPECT_THAT(g.macchina.messaggi, ElementsAre());
  g.lista.lotti = {"L1"};
  CaricaLotti(g.programma, g.lista);
  EXPECT_THAT(g.macchina.messaggi, ElementsAre("nessuna lista disponibile"));
  EXPECT_THAT(g.lista.lotti, ElementsAre("L1"));
}

// What was added and not saved is still there when the window opens again, since a choice closes it.
TEST(LottiPredefiniti, RiaprireNonPerdeLaLista) {
  Giornata_Lotti g;
  g.MettiFile("L1\r\n");
  g.lista.Text1.testo = "nuovo";
  AggiungiLotto(g.lista);
  g.lista.chiusa = true;
  Apri_LottiPredefiniti(g.programma, g.lista);
  EXPECT_THAT(g.lista.lotti, ElementsAre("nuovo"));
  EXPECT_FALSE(g.lista.chiusa);
  CaricaLotti(g.programma, g.lista);
  EXPECT_THAT(g.lista.lotti, ElementsAre("L1"));
}

TEST(LottiPredefiniti, UnTestoVuotoNonSiAggiunge) {
  Giornata_Lotti g;
  for (const char* testo : {"", "   "}) {
    g.lista.Text1.testo = testo;
    AggiungiLotto(g.lista);
  }
  EXPECT_TRUE(g.lista.lotti.empty());
}

TEST(LottiPredefiniti, SvuotareChiede) {
  Giornata_Lotti g;
  g.lista.lotti = {"L1", "L2"};
  g.macchina.risposte = {false, true};
  SvuotaLotti(g.programma, g.lista);
  EXPECT_EQ(g.lista.lotti.size(), 2U);
  SvuotaLotti(g.programma, g.lista);
  EXPECT_EQ(g.macchina.domande.back(), "OK per cancellare la lista attuale");
  EXPECT_TRUE(g.lista.lotti.empty());
  EXPECT_EQ(g.lista.List1.Numero(), 0U);
}

TEST(LottiPredefiniti, Elimina) {
  Giornata_Lotti g;
  g.MettiFile("L1\r\nL2\r\n");
  CaricaLotti(g.programma, g.lista);
  EliminaLotto(g.programma, g.lista);
  EXPECT_THAT(g.macchina.messaggi, ElementsAre("selezionare il lotto da cancellare..."));
  g.lista.List1.scelta = 1;
  EliminaLotto(g.programma, g.lista);
  EXPECT_THAT(g.lista.lotti, ElementsAre("L1"));
  EXPECT_EQ(g.lista.List1.scelta, 0);
  EliminaLotto(g.programma, g.lista);
  EXPECT_TRUE(g.lista.lotti.empty());
  EliminaLotto(g.programma, g.lista);
  EXPECT_EQ(g.macchina.messaggi.size(), 2U);
  EXPECT_EQ(g.cartella.Contenuto("LottiPredeiniti.txt"), "L1\r\nL2\r\n");  // saved only by its command
}

TEST(LottiPredefiniti, SceglierneUnoEComeScriverlo) {
  Giornata_Lotti g;
  g.Apri();
  Semaforo(g.edita, StatoSemaforo::BENE);
  g.lista.lotti = {"L1", "L2"};
  ScegliLotto(g.edita, g.lista);
  EXPECT_FALSE(g.lista.chiusa);
  g.lista.List1.scelta = 1;
  ScegliLotto(g.edita, g.lista);
  EXPECT_EQ(g[C::Lotti], "L2");
  EXPECT_TRUE(g.lista.chiusa);
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
  EXPECT_EQ(g.Luce(), "NORMALE");
  EXPECT_EQ(g.Fuoco(), static_cast<int>(C::Lotti));
}

TEST(LottiPredefiniti, DoppioClicMetteOggi) {
  Giornata_Lotti g;
  g.programma.PrefissoLotto = "MB";
  LottoDiOggi(g.programma, g.lista);
  EXPECT_EQ(g.lista.Text1.testo, "20250314");
  g.programma.preferenze.FlagLottiAutomatici = true;
  LottoDiOggi(g.programma, g.lista);
  EXPECT_EQ(g.lista.Text1.testo, "MB20250314");
}

TEST(LottiPredefiniti, IlSalvataggioCheFallisceSiDice) {
  Giornata_Lotti g;
  g.MettiFile("L1\r\n");
  g.lista.lotti = {"L2"};
  g.programma.disco.guasto = [](const Percorso&) { return ENOSPC; };
  SalvaLotti(g.programma, g.lista);
  ASSERT_EQ(g.macchina.messaggi.size(), 1U);
  EXPECT_THAT(g.macchina.messaggi[0], HasSubstr("Errore =28"));
  EXPECT_EQ(g.cartella.Contenuto("LottiPredeiniti.txt"), "L1\r\n");
  EXPECT_THAT(g.lista.lotti, ElementsAre("L2"));
}

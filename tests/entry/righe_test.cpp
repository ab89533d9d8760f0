#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/entry/giornata_di_prova.h"

using C = CampoRiga;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr int n(C campo) { return static_cast<int>(campo); }

TEST(Aggiungi, UnaRigaBuona) {
  Giorno_Di_Due g;
  g[C::Commento] = "10.00";
  const unsigned versione = g.edita.albero.ListaVoci.versione;
  g.Aggiunge();
  ASSERT_EQ(g.programma.Vet_Tabella.Righe(), 3);
  const LedgerRow& riga = g.Riga(3);
  EXPECT_EQ(riga[C::Num], "0003");
  EXPECT_EQ(riga[C::Fornitore], "Mare Blu");
  EXPECT_EQ(riga[C::Peso], "10");
  EXPECT_EQ(riga[C::Prezzo], "5,00");
  EXPECT_EQ(riga[C::Colli], "3");
  EXPECT_EQ(riga[C::NCV], "-");
  EXPECT_EQ(riga[C::DataCV], "-");
  EXPECT_EQ(riga[C::DDT_CV], "-");
  EXPECT_EQ(riga[C::SAnt], "0");
  EXPECT_EQ(riga[C::Provvigione], "6,5");
  EXPECT_EQ(riga[C::Controllato], "no");
  EXPECT_EQ(riga[C::DDT], "003");
  EXPECT_EQ(riga[C::FAT], "");
  EXPECT_EQ(riga[C::CodiciConsolidare], "RDT SBG GRA FRE XXX WHL , B - A0837 001 *10.00");
  EXPECT_EQ(riga[C::Commento], "10.00");
  EXPECT_EQ(g.Titolo(), "Aggiunge/Modifica/Cancella - n.Voci immesse = 3, totali = 2");
  EXPECT_EQ(g.Luce(), "BENE");
  EXPECT_FALSE(g.edita.Aggiungi.attivo);
  EXPECT_TRUE(g.edita.Modifica.attivo);
  EXPECT_TRUE(g.edita.Elimina.attivo);
  EXPECT_TRUE(g.edita.attiva);
  EXPECT_FALSE(g.edita.aggiunta_in_corso);
  EXPECT_EQ(g.edita.hd.valore, 3);
  EXPECT_EQ(g.edita.hd.massimo, 3);
  EXPECT_EQ(g.edita.albero.ListaVoci.scelta, 2);
  EXPECT_EQ(g.edita.albero.ListaVoci.Numero(), 3U);
  EXPECT_NE(g.edita.albero.ListaVoci.versione, versione);
  EXPECT_EQ(g.programma.Righe_Non_Salvate, 1);
  EXPECT_TRUE(g.programma.Tabella_Modificata);
  EXPECT_THAT(g.macchina.messaggi, IsEmpty());
}

TEST(Aggiungi, LaSecondaVoltaSenzaScrivereNonAggiunge) {
  Giorno_Di_Due g;
  g.Aggiunge();
  g.RiempiCampi();  // good again, but nothing typed
  g.Aggiunge();
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 3);
  g[C::Prezzo] = "0";
  g.Aggiunge();  // the check runs all the same and may show its message
  EXPECT_THAT(g.macchina.messaggi, ElementsAre("manca il prezzo..."));
  g.RiempiCampi();
  g.Scrivi(C::Peso, "11");
  g.Aggiunge();
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 4);
}

TEST(Aggiungi, RigaRifiutata) {
  Giorno_Di_Due g;
  g[C::ZonaP] = "A0";
  g.Aggiunge();
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 2);
  EXPECT_FALSE(g.programma.Tabella_Modificata);
  EXPECT_EQ(g.Luce(), "ERRORE");
  EXPECT_THAT(g.macchina.messaggi, ElementsAre("Dati errati o incompleti (o cliente escluso)"));
  EXPECT_TRUE(g.edita.attiva);
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
  EXPECT_EQ(g[C::ZonaP], "");
  EXPECT_EQ(g.Fuoco(), 0);
}

TEST(Aggiungi, ClienteEsclusoNonHaAltroEffetto) {
  Giorno_Di_Due g;
  g.programma.Vet_Esclusi = {"00123"};
  Semaforo(g.edita, StatoSemaforo::BENE);
  g[C::DDT] = "x";
  g.Aggiunge();
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 2);
  EXPECT_EQ(g.Luce(), "BENE");
  EXPECT_EQ(g[C::DDT], "x");
  EXPECT_EQ(g.macchina.messaggi.size(), 1U);
}

TEST(Aggiungi, ZeroColli) {
  Giorno_Di_Due g;
  g[C::Colli] = "0";
  g.macchina.risposte = {false};
  g.Aggiunge();
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 2);
  EXPECT_THAT(g.macchina.messaggi, IsEmpty());
  g.macchina.risposte = {true};
  g.Aggiunge();
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 3);
  EXPECT_EQ(g.Riga(3)[C::Colli], "0");
}

TEST(Aggiungi, PrezzoPerCassa) {
  Giorno_Di_Due g;
  g[C::Peso] = "10";
  g[C::Prezzo] = "12,5c";
  g[C::Colli] = "5";
  g.Aggiunge();
  EXPECT_EQ(g.Riga(3)[C::Peso], "50,00");
  EXPECT_EQ(g.Riga(3)[C::Prezzo], "1,25");
  EXPECT_EQ(g.Riga(3)[C::Colli], "5");
}

// The first sale of a day takes the place of the blank row.
TEST(Aggiungi, LaPrimaRigaDelGiorno) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Compila();
  Aggiungi(g.programma, g.edita);
  ASSERT_EQ(g.programma.Vet_Tabella.Righe(), 1);
  EXPECT_EQ(g.Riga(1)[C::Num], "0001");
  EXPECT_EQ(g.Riga(1)[C::Fornitore], "Mare Blu");
  EXPECT_EQ(g.Riga(1)[C::DDT], "001");
  EXPECT_EQ(g.Riga(1)[C::NCV], "9999");  // the second check of a modified row turns "-" into it
  EXPECT_EQ(g.Titolo(), "Aggiunge/Modifica/Cancella - n.Voci = 1");
  EXPECT_EQ(g.programma.Righe_Non_Salvate, 0);
  EXPECT_TRUE(g.programma.Tabella_Modificata);
  EXPECT_EQ(g.Luce(), "BENE");
  Aggiungi(g.programma, g.edita);  // nothing typed since: no second row
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 1);
}

TEST(Aggiungi, LaPrimaRigaErrataDiceIlMessaggioDellaModifica) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Compila();
  g[C::Specie] = "";
  g.macchina.risposte = {true};
  Aggiungi(g.programma, g.edita);
  EXPECT_THAT(g.macchina.domande, ElementsAre("dati errati o mancanti..."));
  EXPECT_EQ(g.Riga(1)[C::Fornitore], Riga_Vuota);
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
}

TEST(Aggiungi, NumeroDiDocumento) {
  struct Caso {
    bool automatico;
    const char *prezzo, *codice, *ddt;
  };
  for (const Caso& caso :
       {Caso{true, "5", "00124", "001"}, Caso{true, "5", "00123", "003"}, Caso{false, "5", "00123", ""},
        Caso{true, "-5", "00123", "vecchio"}, Caso{false, "-5", "00123", "vecchio"}}) {
    Giorno_Di_Due g;
    g.edita.Check[12].segnata = caso.automatico;
    g[C::Prezzo] = caso.prezzo;
    g[C::CodCliente] = caso.codice;
    g[C::DDT] = "vecchio";
    g.Aggiunge();
    EXPECT_EQ(g.Riga(3)[C::DDT], caso.ddt);
  }
}

// A credit row keeps the reference to the invoice and its mark: the credit note is made from them.
TEST(Aggiungi, RigaDiCreditoTieneIlRiferimento) {
  Giorno_Di_Due g;
  g[C::Prezzo] = "-5";
  g[C::DDT] = g[C::DDT_CV] = "Rif.Fat. 12 - 01/03/2025";
  g[C::FAT] = "NA";
  g.Aggiunge();
  EXPECT_EQ(g.Riga(3)[C::Prezzo], "-5,00");
  EXPECT_EQ(g.Riga(3)[C::DDT], "Rif.Fat. 12 - 01/03/2025");
  EXPECT_EQ(g.Riga(3)[C::DDT_CV], "Rif.Fat. 12 - 01/03/2025");
  EXPECT_EQ(g.Riga(3)[C::FAT], "NA");
}

TEST(Aggiungi, RigaPositivaPerdeFatturaERiferimento) {
  Giorno_Di_Due g;
  g[C::FAT] = "127";
  g[C::DDT_CV] = "riferimento";
  g.Aggiunge();
  EXPECT_EQ(g.Riga(3)[C::FAT], "");
  EXPECT_EQ(g.Riga(3)[C::DDT_CV], "-");
}

TEST(Aggiungi, IlContoDelFornitoreVieneDalleRigheDiPrima) {
  Giorno_Di_Due g;
  g.Riga(1)[C::NCV] = "41";
  g.Aggiunge();
  EXPECT_EQ(g.Riga(3)[C::NCV], "41");
}

TEST(Aggiungi, ConContoVenditaAMano) {
  Giorno_Di_Due g;
  g.programma.preferenze.FlagModificaCV = true;
  g.Riga(1)[C::NCV] = "41";
  g[C::NCV] = "";
  g[C::DataCV] = "13/03/2025";
  g[C::DDT_CV] = "rif";
  g.Aggiunge();
  EXPECT_EQ(g.Riga(3)[C::NCV], "9999");
  EXPECT_EQ(g.Riga(3)[C::DataCV], "13/03/2025");
  EXPECT_EQ(g.Riga(3)[C::DDT_CV], "rif");
  EXPECT_EQ(g.Riga(3)[C::SAnt], "0");
  EXPECT_EQ(g.Riga(3)[C::Controllato], "no");
}

TEST(Aggiungi, ConContoVenditaAManoValgonoINumeriScritti) {
  Giorno_Di_Due g;
  g.programma.preferenze.FlagModificaCV = true;
  g[C::NCV] = "7";
  g[C::SAnt] = "2,5";
  g[C::Controllato] = "si";
  g[C::DDT_CV] = "";
  g.Aggiunge();
  EXPECT_EQ(g.Riga(3)[C::NCV], "7");
  EXPECT_EQ(g.Riga(3)[C::SAnt], "2,5");
  EXPECT_EQ(g.Riga(3)[C::Controllato], "si");
  EXPECT_EQ(g.Riga(3)[C::DDT_CV], "-");  // storing a row leaves no empty reference
}

struct Caso_Azzera {
  bool cliente, peso, prezzo;  // settings
  std::vector<int> segnate;
  std::vector<C> vuoti;
};

TEST(Aggiungi, AzzeramentoTraLeRighe) {
  const std::vector<C> sempre = {C::Lotti,       C::MetodoPesca,  C::Pezzatura, C::StatoFisico,
                                 C::Lavorazione, C::Preparazione, C::PrimoImb,  C::Commento};
  const auto anche = [&](std::vector<C> altri) {
    altri.insert(altri.end(), sempre.begin(), sempre.end());
    return altri;
  };
  for (const Caso_Azzera& caso : {
           Caso_Azzera{false, false, false, {}, sempre},
           Caso_Azzera{true, false, false, {}, anche({C::Cliente, C::CodCliente})},
           Caso_Azzera{false, true, false, {}, anche({C::Peso})},
           Caso_Azzera{false, true, false, {8}, sempre},
           Caso_Azzera{false, false, true, {}, anche({C::Prezzo})},
           Caso_Azzera{false, false, true, {9}, sempre},
           Caso_Azzera{false, false, false, {4, 10, 11, 13, 14, 15, 16}, {C::Commento}},
           Caso_Azzera{
               false,
               false,
               false,
               {4, 13},
               {C::MetodoPesca, C::Pezzatura, C::Lavorazione, C::Preparazione, C::PrimoImb, C::Commento}},
           Caso_Azzera{true, true, true, {}, anche({C::Cliente, C::CodCliente, C::Peso, C::Prezzo})},
       }) {
    Giorno_Di_Due g;
    g.programma.preferenze.FlagAzzCliente = caso.cliente;
    g.programma.preferenze.FlagAzzSoloPeso = caso.peso;
    g.programma.preferenze.FlagAzzeraPrezzo = caso.prezzo;
    for (const int casella : caso.segnate) g.Segna(casella);
    g[C::Commento] = "x";
    g.Aggiunge();
    for (const C campo : {C::Fornitore, C::Cliente, C::CodCliente, C::Specie, C::ZonaP, C::Peso, C::Prezzo,
                          C::Prov, C::Lotti, C::MetodoPesca, C::Pezzatura, C::StatoFisico, C::Lavorazione,
                          C::Preparazione, C::PrimoImb, C::Colli, C::Alfa, C::Commento}) {
      const bool vuoto = std::find(caso.vuoti.begin(), caso.vuoti.end(), campo) != caso.vuoti.end();
      EXPECT_EQ(g[campo].empty(), vuoto) << n(campo);
    }
    EXPECT_FALSE(g.edita.Aggiungi.attivo);  // emptied by the program, not by the operator
  }
}

TEST(Aggiungi, IlFornitoreTenutoRestaChiuso) {
  Giorno_Di_Due g;
  g.edita.Check[5].segnata = true;
  Campo(g.edita, C::Fornitore).attivo = true;
  g.Aggiunge();
  EXPECT_FALSE(Campo(g.edita, C::Fornitore).attivo);
}

// The count of rows of a day is a 16-bit integer in the firm's files and forms.
TEST(Aggiungi, OltreIlMassimoDelleRighe) {
  Giorno_Di_Due g;
  g.programma.Vet_Tabella.righe.resize(32766, g.RigaDelGiorno(1, "Laguna Pesca", "00123", "001"));
  g.Aggiunge();
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 32767);
  EXPECT_EQ(g.Riga(32767)[C::Num], "32767");
  g.Compila();
  g.programma.Tabella_Modificata = false;
  const int contate = g.programma.Righe_Non_Salvate;
  g.Aggiunge();
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 32767);
  EXPECT_EQ(g.programma.Righe_Non_Salvate, contate);
  EXPECT_FALSE(g.programma.Tabella_Modificata);
  EXPECT_EQ(g[C::Lotti], "MB250313");
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
  EXPECT_THAT(
      g.macchina.messaggi,
      ElementsAre("La giornata ha raggiunto il massimo di 32767 righe: la riga non è stata aggiunta."_t));
}

// A question, and the pause of the automatic save, let key presses through: none of them may start a second
// commit.
TEST(Guardia, LaDomandaSuiColliNonFaEntrareAltriComandi) {
  Giorno_Di_Due g;
  g[C::Colli] = "0";
  g.macchina.risposte = {true};
  g.macchina.durante_attesa = [&] {
    g.Aggiunge();
    g.Modifica_Riga();
    Elimina(g.programma, g.edita);
    Salva(g.programma, g.edita);
    CambiaHd(g.programma, g.edita, 1);
    RigaSuccessiva(g.programma, g.edita);
    g.PremiSchermo(Tasto::F5);
    g.Premi(C::Colli, Tasto::Invio);
    EXPECT_EQ(FiltraCarattere(g.programma, g.edita, Indice(C::Peso), '7'), 0);
    g.Fuoco();
    EXPECT_TRUE(g.Premi(C::Peso, Tasto::Invio));
    EXPECT_TRUE(TastoList1(g.programma, g.edita, {.tasto = Tasto::Esc}));
    g.PremiSchermo(Tasto::PagGiu);
    InvertiSpuntaCampo(g.programma, g.edita, Indice(C::Peso));
    EXPECT_EQ(g.Fuoco(), 0);
    EXPECT_FALSE(g.edita.Check[6].segnata);
    EXPECT_FALSE(g.edita.Check[8].segnata);
    g.edita.List1.visibile = true;
    g.Premi(C::Cliente, Tasto::Esc);
    EXPECT_TRUE(g.edita.List1.visibile);
    g.edita.List1.visibile = false;
    DoppioClicCampo(g.programma, g.edita, Indice(C::Lotti));
    PassoLotto(g.programma, g.edita, true);
    Pulisci(g.programma, g.edita);
    CopiaCliente(g.programma, g.edita, 1);
    CopiaVoce(g.edita, C::ZonaP, "altra");
    Chiudi_Edita(g.programma, g.edita);
  };
  g.Aggiunge();
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 3);
  EXPECT_EQ(g.Riga(3)[C::Fornitore], "Mare Blu");
  EXPECT_EQ(g.Riga(3)[C::Lotti], "MB250313");
  EXPECT_EQ(g.Riga(3)[C::Cliente], "Laguna Pesca");
  EXPECT_EQ(g.Riga(3)[C::ZonaP], "A0837 - Mar Mediterraneo");
  EXPECT_EQ(g.macchina.domande.size(), 1U);
  EXPECT_TRUE(g.edita.pronta);
  EXPECT_FALSE(Occupata(g.edita));
}

TEST(Guardia, LaPausaDelSalvataggioNonFaEntrareAltriComandi) {
  Giorno_Di_Due g;
  g.programma.preferenze.maxrighesalvate = 1;
  int volte = 0;
  g.macchina.durante_attesa = [&] {
    ++volte;
    EXPECT_TRUE(g.edita.Frame_Salvataggio.visibile);
    EXPECT_FALSE(g.edita.attiva);
    g.edita.Aggiungi.attivo = true;
    g.Aggiunge();
    g.PremiSchermo(Tasto::F5);
    g.Premi(C::Colli, Tasto::Invio);
    CambiaHd(g.programma, g.edita, 1);
  };
  g.Aggiunge();
  EXPECT_EQ(volte, 1);
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 3);
  EXPECT_EQ(g.edita.hd.valore, 3);
  EXPECT_FALSE(g.edita.Frame_Salvataggio.visibile);
}

TEST(Guardia, LaDomandaDellaCancellazione) {
  Giorno_Di_Due g;
  g.macchina.risposte = {true};
  g.macchina.durante_attesa = [&] {
    CambiaHd(g.programma, g.edita, 2);
    Elimina(g.programma, g.edita);
    g.Aggiunge();
  };
  Elimina(g.programma, g.edita);
  ASSERT_EQ(g.programma.Vet_Tabella.Righe(), 1);
  EXPECT_EQ(g.Riga(1)[C::Cliente], "Lagunare");
}

TEST(Modifica, UnaRigaBuona) {
  Giorno_Di_Due g;
  g[C::Peso] = " 12 ";
  g.Modifica_Riga();
  ASSERT_EQ(g.programma.Vet_Tabella.Righe(), 2);
  const LedgerRow& riga = g.Riga(1);
  EXPECT_EQ(riga[C::Num], "0001");
  EXPECT_EQ(riga[C::Cliente], "Laguna Pesca");
  EXPECT_EQ(riga[C::Peso], "12");
  EXPECT_EQ(riga[C::Prezzo], "5,00");
  EXPECT_EQ(riga[C::DataCV], "-");
  EXPECT_EQ(riga[C::DDT_CV], "-");
  EXPECT_EQ(riga[C::CodiciConsolidare], "RDT SBG GRA FRE XXX WHL , B - A0837 001 ");
  EXPECT_TRUE(g.programma.Tabella_Modificata);
  EXPECT_EQ(g.programma.Righe_Non_Salvate, 0);
  EXPECT_EQ(g.Titolo(), "Aggiunge/Modifica/Cancella - n.Voci = 2");
  EXPECT_EQ(g.Luce(), "BENE");
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
  EXPECT_EQ(g.Fuoco(), n(C::Cliente));
  // F4 walks down through the ledger
  EXPECT_EQ(g.edita.hd.valore, 2);
  EXPECT_EQ(g.edita.albero.ListaVoci.scelta, 1);
  EXPECT_EQ(g[C::Cliente], "Lagunare");
}

TEST(Modifica, SullUltimaRigaRicaricaQuella) {
  Giorno_Di_Due g;
  CambiaHd(g.programma, g.edita, 2);
  g.Compila();
  g.Modifica_Riga();
  EXPECT_EQ(g.edita.hd.valore, 2);
  EXPECT_EQ(g.Riga(2)[C::Cliente], "Laguna Pesca");
  EXPECT_EQ(g[C::Num], "0002");
}

// The second check of a modified row finds the "-" of the account number and writes the number for none over
// it: added rows hold "-", modified ones "9999", and the accounts of the suppliers rely on both.
TEST(Modifica, IlContoVenditaDiventa9999) {
  Giorno_Di_Due g;
  g[C::NCV] = "41";
  g.Modifica_Riga();
  EXPECT_EQ(g.Riga(1)[C::NCV], "9999");
  g.Compila();
  g[C::NCV] = "41";
  g.programma.preferenze.FlagModificaCV = true;
  g.Modifica_Riga();
  EXPECT_EQ(g.Riga(2)[C::NCV], "41");
}

TEST(Modifica, RigaErrata) {
  Giorno_Di_Due g;
  g[C::Prov] = "";
  for (const bool risposta : {true, false}) {
    g.macchina.risposte = {risposta};
    g.Modifica_Riga();
    EXPECT_EQ(g.macchina.domande.back(), "dati errati o mancanti...");
    EXPECT_EQ(g.Luce(), "ERRORE");
    EXPECT_EQ(g.Riga(1)[C::Cliente], "Trattoria Lido");
    EXPECT_EQ(g.edita.hd.valore, 1);
    EXPECT_FALSE(g.programma.Tabella_Modificata);
  }
}

// The question about the boxes comes twice. A Cancel of the first goes on to the second check, whose answer
// counts.
TEST(Modifica, ZeroColliChiedeDueVolte) {
  Giorno_Di_Due g;
  g[C::Colli] = "0";
  g.macchina.risposte = {true, true};
  g.Modifica_Riga();
  EXPECT_EQ(g.macchina.domande.size(), 2U);
  EXPECT_EQ(g.Riga(1)[C::Colli], "0");

  g.Compila();
  g[C::Colli] = "0";
  g.macchina.risposte = {false, false};
  g.Modifica_Riga();
  EXPECT_EQ(g.macchina.domande.size(), 4U);
  EXPECT_EQ(g.Riga(2)[C::Cliente], "Lagunare");
  EXPECT_EQ(g.Luce(), "ERRORE");
  EXPECT_THAT(g.macchina.messaggi, ElementsAre("Dati errati o incompleti"));
  EXPECT_TRUE(g.edita.attiva);

  g[C::Colli] = "0";
  g.macchina.risposte = {false, true};
  g.Modifica_Riga();
  EXPECT_EQ(g.Riga(2)[C::Colli], "0");
}

TEST(Modifica, ClienteEscluso) {
  Giorno_Di_Due g;
  g.programma.Vet_Esclusi = {"00123"};
  g.Modifica_Riga();
  EXPECT_THAT(g.macchina.messaggi, ElementsAre("Laguna Pesca\nè escluso..."_t, "Laguna Pesca\nè escluso..."_t,
                                               "Dati errati o incompleti"));
  EXPECT_EQ(g.Riga(1)[C::Cliente], "Trattoria Lido");
}

TEST(Modifica, SenzaRigaSceltaOComandoSpento) {
  Giorno_Di_Due g;
  g.edita.albero.ListaVoci.scelta = -1;
  g.Modifica_Riga();
  g.edita.albero.ListaVoci.scelta = 0;
  g.edita.Modifica.attivo = false;
  g.Modifica_Riga();
  EXPECT_EQ(g.Riga(1)[C::Cliente], "Trattoria Lido");
  EXPECT_FALSE(g.programma.Tabella_Modificata);
}

TEST(Modifica, PrezzoPerCassa) {
  Giorno_Di_Due g;
  g[C::Prezzo] = " 12,5c ";
  g[C::Colli] = "5";
  g.Modifica_Riga();
  EXPECT_EQ(g.Riga(1)[C::Peso], "50,00");
  EXPECT_EQ(g.Riga(1)[C::Prezzo], "1,25");
}

// An excluded customer is told and refused after the crate has become kilograms: keyed again with another
// customer the row is the same sale.
TEST(Modifica, ClienteEsclusoConPrezzoPerCassa) {
  Giorno_Di_Due g;
  g.programma.Vet_Esclusi = {g[C::CodCliente]};
  g[C::Prezzo] = "12,5c";
  g[C::Colli] = "5";
  g.Modifica_Riga();
  EXPECT_EQ(g.macchina.messaggi.back(), "Dati errati o incompleti");
  EXPECT_EQ(g[C::Peso], "50,00");
  EXPECT_EQ(g[C::Prezzo], "1,25");
  EXPECT_FALSE(g.programma.Tabella_Modificata);
}

// Cancel leaves everything as it was keyed: the crate isn't turned into no kilograms.
TEST(Modifica, CasseAnnullateNonConvertonoLaCassa) {
  Giorno_Di_Due g;
  g[C::Prezzo] = "12,5c";
  g[C::Colli] = "0";
  g.macchina.risposte = {true, false};
  g.Modifica_Riga();
  EXPECT_EQ(g[C::Prezzo], "12,5c");
  EXPECT_EQ(g[C::Peso], "10");
}

TEST(Modifica, RiferimentoSoloConPrezzoSopraZero) {
  struct Caso {
    const char *prezzo, *dopo;
  };
  for (const Caso& caso : {Caso{"5", "-"}, Caso{"-5", "rif"}, Caso{"1c2", "rif"}}) {
    Giorno_Di_Due g;
    g[C::Prezzo] = caso.prezzo;
    g[C::DDT_CV] = "rif";
    g.Modifica_Riga();
    EXPECT_EQ(g.Riga(1)[C::DDT_CV], caso.dopo);
  }
}

TEST(Aggiungi, RiferimentoAncheConPrezzoIllegibile) {
  Giorno_Di_Due g;
  g[C::Prezzo] = "1c2";
  g[C::DDT_CV] = "rif";
  g.Aggiunge();
  EXPECT_EQ(g.Riga(3)[C::DDT_CV], "-");  // not negative is enough here
}

struct Caso_Numero {
  bool automatico;
  const char *prezzo, *codice, *ddt, *fat;  // keyed
  const char *ddt_dopo, *fat_dopo;
};

TEST(Modifica, NumeroDiDocumento) {
  for (const Caso_Numero& caso : {
           Caso_Numero{true, "5", "00124", "055", "9", "055", "9"},     // same customer
           Caso_Numero{true, "5", "00200", "001", "9", "002", "9"},     // the new customer's document
           Caso_Numero{true, "5", "00123", "001", "", "003", ""},       // a customer without rows yet
           Caso_Numero{true, "-5", "00123", "Rif", "NA", "Rif", "NA"},  // a credit row keeps its reference
           Caso_Numero{false, "5", "00200", "044", "127", "044",
                       ""},  // numbers by hand: the invoice number goes
       }) {
    Giorno_Di_Due g;
    g.edita.Check[12].segnata = caso.automatico;
    g[C::Prezzo] = caso.prezzo;
    g[C::CodCliente] = caso.codice;
    g[C::DDT] = caso.ddt;
    g[C::FAT] = caso.fat;
    g.Modifica_Riga();
    EXPECT_EQ(g.Riga(1)[C::DDT], caso.ddt_dopo);
    EXPECT_EQ(g.Riga(1)[C::FAT], caso.fat_dopo);
  }
}

TEST(Modifica, LaSolaRigaHaSempreIlPrimoDocumento) {
  struct Caso {
    bool automatico;
    const char *prezzo, *ddt, *fat;
  };
  for (const Caso& caso :
       {Caso{true, "5", "001", "9"}, Caso{true, "-5", "001", "9"}, Caso{false, "5", "044", ""}}) {
    Giornata_Di_Prova g;
    g.programma.Vet_Tabella.righe = {g.RigaDelGiorno(1, "Trattoria Lido", "00124", "007")};
    g.Apri();
    g.Compila();
    g.edita.Check[12].segnata = caso.automatico;
    g[C::Prezzo] = caso.prezzo;
    g[C::DDT] = "044";
    g[C::FAT] = "9";
    Modifica(g.programma, g.edita);
    EXPECT_EQ(g.Riga(1)[C::DDT], caso.ddt);
    EXPECT_EQ(g.Riga(1)[C::FAT], caso.fat);
  }
}

TEST(Elimina, UnaRiga) {
  struct Caso {
    int quale, scelta_dopo;
    const char* cliente;
  };
  for (const Caso& caso : {Caso{1, 1, "Lagunare"}, Caso{2, 1, "Trattoria Lido"}, Caso{3, 2, "Lagunare"}}) {
    Giorno_Di_Due g;
    g.programma.Vet_Tabella.righe.push_back(g.RigaDelGiorno(3, "Laguna Pesca", "00123", "003"));
    CambiaHd(g.programma, g.edita, caso.quale);
    g.macchina.risposte = {true};
    Elimina(g.programma, g.edita);
    EXPECT_THAT(g.macchina.domande,
                ElementsAre("OK per cancellare la voce n. " + std::to_string(caso.quale)));
    EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 2);
    EXPECT_EQ(g.edita.hd.massimo, 2);
    EXPECT_EQ(g.edita.hd.valore, caso.scelta_dopo);
    EXPECT_EQ(g.edita.albero.ListaVoci.scelta, caso.scelta_dopo - 1);
    EXPECT_EQ(g.edita.albero.ListaVoci.Numero(), 2U);
    EXPECT_EQ(g[C::Cliente], caso.cliente);
    EXPECT_TRUE(g.programma.Tabella_Modificata);
    EXPECT_EQ(g.Luce(), "NORMALE");
    EXPECT_EQ(g.Titolo(), "Aggiunge/Modifica/Cancella - n.Voci = 2");
  }
}

TEST(Elimina, INumeriDelleRigheRestano) {
  Giorno_Di_Due g;
  g.macchina.risposte = {true};
  Elimina(g.programma, g.edita);
  EXPECT_EQ(g.Riga(1)[C::Num], "0002");
}

TEST(Elimina, Annullata) {
  Giorno_Di_Due g;
  g.macchina.risposte = {false};
  Elimina(g.programma, g.edita);
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 2);
  EXPECT_FALSE(g.programma.Tabella_Modificata);
}

TEST(Elimina, ComandoSpentoOSenzaScelta) {
  Giorno_Di_Due g;
  g.edita.Elimina.attivo = false;
  Elimina(g.programma, g.edita);
  g.edita.Elimina.attivo = true;
  g.edita.albero.ListaVoci.scelta = -1;
  Elimina(g.programma, g.edita);
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 2);
  EXPECT_THAT(g.macchina.domande, IsEmpty());
}

TEST(Elimina, LaSolaRigaTornaVuotaETieneIlResto) {
  Giornata_Di_Prova g;
  g.programma.Vet_Tabella.righe = {g.RigaDelGiorno(7, "Trattoria Lido", "00124", "007")};
  g.Apri();
  LedgerRow attesa = g.Riga(1);
  attesa[C::Num] = "0001";
  attesa[C::Fornitore] = Riga_Vuota;
  Elimina(g.programma, g.edita);
  ASSERT_EQ(g.programma.Vet_Tabella.Righe(), 1);
  EXPECT_EQ(g.Riga(1), attesa);
  EXPECT_THAT(g.macchina.domande, IsEmpty());
  EXPECT_EQ(g.Luce(), "BENE");
  EXPECT_EQ(g.edita.albero.ListaVoci.scelta, 0);
  EXPECT_THAT(g.edita.albero.ListaVoci.Riga(0), HasSubstr("0001 | Modificare questa ri"));
  EXPECT_TRUE(g.programma.Tabella_Modificata);
}

TEST(Numeri_A_Mano, DueVolteIlBottone) {
  for (const C campo : {C::DDT, C::FAT}) {
    Giornata_Di_Prova g;
    g.programma.preferenze.FlagAggDDT = true;
    g.programma.Vet_Tabella.righe = {g.RigaDelGiorno(1, "Trattoria Lido", "00124", "001"),
                                     g.RigaDelGiorno(2, "Lagunare", "00200", "002")};
    g.Apri();
    g.edita.Check[12].segnata = campo == C::FAT;  // an invoice number stays only with automatic numbers
    g.Fuoco();
    EXPECT_FALSE(Campo(g.edita, campo).attivo);
    EXPECT_EQ(Campo(g.edita, campo).sfondo, (Colore{255, 192, 192}));
    BottoneNumero(g.programma, g.edita, campo);
    EXPECT_TRUE(Campo(g.edita, campo).attivo);
    EXPECT_EQ(Campo(g.edita, campo).sfondo, (Colore{255, 255, 255}));
    EXPECT_EQ(g.Fuoco(), n(campo));
    g.Scrivi(campo, " 077 ");
    BottoneNumero(g.programma, g.edita, campo);
    EXPECT_EQ(g.Riga(1)[campo], "077");
    EXPECT_FALSE(Campo(g.edita, campo).attivo);
    EXPECT_EQ(Campo(g.edita, campo).sfondo, (Colore{255, 192, 192}));
  }
}

TEST(Numeri_A_Mano, FatturaScrittaSenzaNumerazioneAutomaticaSiPerde) {
  Giornata_Di_Prova g;
  g.programma.preferenze.FlagAggDDT = true;
  g.programma.Vet_Tabella.righe = {g.RigaDelGiorno(1, "Trattoria Lido", "00124", "001"),
                                   g.RigaDelGiorno(2, "Lagunare", "00200", "002")};
  g.Apri();
  g.edita.Check[12].segnata = false;
  BottoneNumero(g.programma, g.edita, C::FAT);
  g.Scrivi(C::FAT, "077");
  BottoneNumero(g.programma, g.edita, C::FAT);
  EXPECT_EQ(g.Riga(1)[C::FAT], "");
}

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "entry/comandi.h"
#include "tests/entry/giornata_di_prova.h"

using C = CampoRiga;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(Apertura, GiornoSenzaRighe) {
  Giornata_Di_Prova g;
  g.Apri();
  EXPECT_TRUE(g.programma.Edita_Aperta);
  EXPECT_TRUE(g.edita.pronta);
  EXPECT_EQ(g.Titolo(), "Aggiunge/Modifica/Cancella n.Voci = 1");
  EXPECT_EQ(g.edita.Label4.testo, "14/03/2025");
  EXPECT_EQ(g.edita.hd.valore, 1);
  EXPECT_EQ(g.edita.hd.massimo, 1);
  EXPECT_EQ(g.edita.albero.ListaVoci.scelta, 0);
  EXPECT_EQ(g[C::Num], "0001");
  EXPECT_EQ(g[C::Fornitore], "Modificare questa riga...");
  EXPECT_EQ(g[C::Allergeni], "-");
  EXPECT_EQ(g[C::PrimoImb], "");
  EXPECT_FALSE(g.edita.Aggiungi.attivo);
  EXPECT_TRUE(g.edita.Modifica.attivo);
  EXPECT_TRUE(g.edita.Elimina.attivo);
  EXPECT_EQ(g.Luce(), "NORMALE");
  EXPECT_EQ(Campo(g.edita, C::Commento).suggerimento, "inserire prezzo - trattamento");
  for (const char* cartella : {"2025/CV_SI", "2025/CV_NO", "_ReportLear", "XBanca", "2025_fat/20250314"})
    EXPECT_TRUE(g.programma.disco.Esiste_Cartella(g.cartella / cartella)) << cartella;
}

// Where nothing can be written at all, which was told when the program started, the day's folders are no
// news.
TEST(Apertura, LeCartelleMancateSiDiconoSeNonSiSaGia) {
  for (const bool gia_detto : {false, true}) {
    Giornata_Di_Prova g;
    g.programma.Errore_Cartella = gia_detto ? EROFS : 0;
    g.programma.disco.guasto = [](const Percorso&) { return EROFS; };
    g.Apri();
    EXPECT_EQ(g.macchina.messaggi.size(), gia_detto ? 0U : 5U);
  }
}

// An established firm on such a disk: only the folders of the new day are missing.
TEST(Apertura, LaCartellaDelleFattureDiUnGiornoNuovoNonSiRidice) {
  Giornata_Di_Prova g;
  for (const char* nome : {"2025/CV_SI", "2025/CV_NO", "_ReportLear", "XBanca"})
    std::filesystem::create_directories(g.cartella / nome);
  g.programma.Errore_Cartella = EROFS;
  g.programma.disco.guasto = [](const Percorso&) { return EROFS; };
  g.Apri();
  EXPECT_THAT(g.macchina.messaggi, testing::IsEmpty());
}

TEST(Apertura, UnaCartellaMancataPerAltroSiDice) {
  Giornata_Di_Prova g;
  g.programma.Errore_Cartella = EROFS;
  g.programma.disco.guasto = [](const Percorso& p) { return p.filename() == "XBanca" ? EIO : 0; };
  g.Apri();
  ASSERT_EQ(g.macchina.messaggi.size(), 1U);
  EXPECT_TRUE(Contiene(g.macchina.messaggi[0], "XBanca"));
  EXPECT_TRUE(g.programma.disco.Esiste_Cartella(g.cartella / "2025_fat/20250314"));
}

TEST(Apertura, GiornoConRighe) {
  Giornata_Di_Prova g;
  g.programma.Vet_Tabella.righe = {g.RigaDelGiorno(1, "Trattoria Lido", "00124"),
                                   g.RigaDelGiorno(2, "Lagunare", "00200")};
  g.programma.Vet_Tabella.righe[0][C::Allergeni] = "";
  g.Apri();
  EXPECT_EQ(g.Titolo(), "Aggiunge/Modifica/Cancella n.Voci = 2");
  EXPECT_EQ(g.edita.hd.massimo, 2);
  EXPECT_EQ(g.edita.albero.ListaVoci.Numero(), 2U);
  EXPECT_EQ(g[C::Cliente], "Trattoria Lido");
  EXPECT_EQ(g[C::Allergeni], "");  // a row of the day shows what it holds
  EXPECT_FALSE(g.edita.Aggiungi.attivo);
}

TEST(Apertura, CampiChiusi) {
  Giornata_Di_Prova g;
  g.programma.preferenze.FlagCaselleCV = true;
  g.Apri();
  const std::vector<C> chiusi = {C::Num,  C::CodCliente,  C::Iva,         C::NCV,       C::DataCV, C::DDT_CV,
                                 C::SAnt, C::Provvigione, C::Controllato, C::CodSpecie, C::DDT,    C::FAT};
  for (int i = 0; i < Num_Campi; ++i) {
    const C campo = static_cast<C>(i + 1);
    const bool chiuso = std::find(chiusi.begin(), chiusi.end(), campo) != chiusi.end();
    EXPECT_EQ(Campo(g.edita, campo).attivo, !chiuso) << i + 1;
  }
}

TEST(Apertura, Diciture) {
  Giornata_Di_Prova g;
  g.Apri();
  const std::array<Testo, Num_Campi> attese = {"Num.",
                                               "Fornitore",
                                               "Cliente",
                                               "Codice Cliente",
                                               "Specie",
                                               "ZonaPesca",
                                               "Peso",
                                               "Prezzo",
                                               "+ Iva",
                                               "N colli",
                                               "N. Conto Vendita",
                                               "Data CV",
                                               "Rif. DDT",
                                               "Spese Anticipate",
                                               "Provvigione",
                                               "Controllato",
                                               "Codice",
                                               "Provenienza",
                                               "lotti",
                                               "Numero DDT Rif.",
                                               "Numero FAT. NA",
                                               "Nome Latino",
                                               "Famiglia",
                                               "Nome Comune Veritas",
                                               "Cod. Num. Veritas",
                                               "Attr.Pesca",
                                               "Alfa",
                                               "Pezzatura",
                                               "StatoFis.",
                                               "Lavoraz.",
                                               "Presentaz",
                                               "Codici per consolidare",
                                               "Commento",
                                               "1° Sbarco"_t,
                                               "Allergeni"};
  for (std::size_t i = 0; i < attese.size(); ++i) EXPECT_EQ(g.edita.Caption[i].testo, attese[i]) << i;
}

struct Caso_Flag {
  int flag5, flag6, flag7;
  bool fornitore, cliente, codice;  // fields that can be keyed
};

TEST(Apertura, CaselleDalleImpostazioni) {
  for (const Caso_Flag& caso : {Caso_Flag{0, 0, 1, true, true, false}, Caso_Flag{1, 0, 1, false, true, false},
                                Caso_Flag{0, 1, 0, true, false, true}, Caso_Flag{0, 0, 0, true, true, true},
                                Caso_Flag{0, 1, 1, true, true, false}}) {
    Giornata_Di_Prova g;
    g.programma.preferenze.Flag5 = caso.flag5;
    g.programma.preferenze.Flag6 = caso.flag6;
    g.programma.preferenze.Flag7 = caso.flag7;
    g.Apri();
    EXPECT_EQ(Campo(g.edita, C::Fornitore).attivo, caso.fornitore);
    EXPECT_EQ(Campo(g.edita, C::Cliente).attivo, caso.cliente);
    EXPECT_EQ(Campo(g.edita, C::CodCliente).attivo, caso.codice);
    EXPECT_FALSE(g.edita.Check[6].segnata && g.edita.Check[7].segnata);
  }
}

TEST(Apertura, CaselleELoroSuggerimenti) {
  Giornata_Di_Prova g;
  g.Apri();
  for (const std::size_t i : {1U, 2U, 3U, 4U, 5U, 8U, 9U, 10U, 11U, 13U, 14U, 15U, 16U}) {
    EXPECT_EQ(g.edita.Check[i].suggerimento, "usare Alt Gr") << i;
    EXPECT_FALSE(g.edita.Check[i].segnata) << i;
  }
  EXPECT_EQ(g.edita.Check[6].suggerimento, "usare PGSu PGGiù"_t);
  EXPECT_EQ(g.edita.Check[7].suggerimento, "usare PGSu PGGiù"_t);
  EXPECT_TRUE(g.edita.Check[12].segnata);
  EXPECT_EQ(g.edita.Check[12].didascalia, "#DDT automatico ");
}

TEST(Apertura, NumeriAMano) {
  for (const bool mostra : {false, true}) {
    Giornata_Di_Prova g;
    g.programma.preferenze.FlagAggDDT = mostra;
    g.Apri();
    for (const C campo : {C::DDT, C::FAT}) {
      EXPECT_EQ(Campo(g.edita, campo).visibile, mostra);
      EXPECT_FALSE(Campo(g.edita, campo).attivo);
    }
    EXPECT_EQ(g.edita.BottoneDDT.visibile, mostra);
    EXPECT_EQ(g.edita.BottoneFAT.visibile, mostra);
  }
}

// The window of the day before must see that the lists are new ones.
TEST(Apertura, UnAltroGiornoRinnovaLoSchermo) {
  Giornata_Di_Prova g;
  g.Apri();
  const unsigned versione = g.edita.albero.ListaVoci.versione;
  g.Scrivi(C::Cliente, "la");
  Marca(g.edita);
  Chiudi_Edita(g.programma, g.edita);
  g.Apri();
  EXPECT_GT(g.edita.albero.ListaVoci.versione, versione);
  EXPECT_FALSE(g.edita.List1.visibile);
  EXPECT_EQ(VoceMarca(g.edita), "Marca");
  EXPECT_FALSE(g.edita.Aggiungi.attivo);
}

TEST(Chiusura, SenzaModifiche) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Segna(5);
  g.Segna(6);
  Chiudi_Edita(g.programma, g.edita);
  EXPECT_FALSE(g.programma.Edita_Aperta);
  EXPECT_FALSE(g.edita.pronta);
  EXPECT_THAT(g.macchina.domande, IsEmpty());
  EXPECT_EQ(g.programma.preferenze.Flag5, 1);
  EXPECT_EQ(g.programma.preferenze.Flag6, 1);
  EXPECT_EQ(g.programma.preferenze.Flag7, 0);
  const std::string ini = g.cartella.Contenuto("Velmara_2020.ini");
  for (const char* chiave : {"Flag5", "Flag6", "Flag7"}) EXPECT_THAT(ini, testing::HasSubstr(chiave));
}

TEST(Chiusura, ConModifiche) {
  for (const bool risposta : {true, false}) {
    Giornata_Di_Prova g;
    g.Apri();
    g.programma.Tabella_Modificata = true;
    g.macchina.risposte = {risposta};
    Chiudi_Edita(g.programma, g.edita);
    EXPECT_THAT(g.macchina.domande, ElementsAre("OK per salvare 1 dati immessi..."));
    EXPECT_EQ(g.programma.disco.Esiste_File(g.programma.File_Giorno), risposta);
    EXPECT_FALSE(g.programma.Edita_Aperta);
  }
}

// Nobody loses a day because the disk is full: the screen stays, and the next closing may be told not to
// save.
TEST(Chiusura, SalvataggioFallitoLasciaLoSchermoAperto) {
  Giornata_Di_Prova g;
  g.Apri();
  g.programma.Tabella_Modificata = true;
  g.programma.disco.guasto = [](const Percorso&) { return ENOSPC; };
  g.macchina.risposte = {true};
  Chiudi_Edita(g.programma, g.edita);
  EXPECT_TRUE(g.programma.Edita_Aperta);
  EXPECT_TRUE(g.edita.pronta);
  EXPECT_TRUE(g.programma.Tabella_Modificata);
  g.macchina.risposte = {false};
  Chiudi_Edita(g.programma, g.edita);
  EXPECT_FALSE(g.programma.Edita_Aperta);
}

struct Giorno_Di_Tre : Giornata_Di_Prova {
  Giorno_Di_Tre() {
    programma.Vet_Tabella.righe = {RigaDelGiorno(1, "Laguna Pesca", "00123"),
                                   RigaDelGiorno(2, "Trattoria Lido", "00124"),
                                   RigaDelGiorno(3, "Lagunare", "00200")};
    Apri();
  }
};

TEST(Righe, AvantiEIndietroInTondo) {
  Giorno_Di_Tre g;
  for (const int atteso : {2, 3, 1}) {
    EXPECT_TRUE(g.PremiSchermo(Tasto::F9));
    EXPECT_EQ(g.edita.hd.valore, atteso);
    EXPECT_EQ(g.edita.albero.ListaVoci.scelta, atteso - 1);
    EXPECT_EQ(g[C::Num], g.Riga(atteso)[C::Num]);
  }
  for (const int atteso : {3, 2, 1}) {
    EXPECT_TRUE(g.PremiSchermo(Tasto::F8));
    EXPECT_EQ(g.edita.hd.valore, atteso);
    EXPECT_EQ(g[C::Cliente], g.Riga(atteso)[C::Cliente]);
  }
}

TEST(Righe, CambiaHdCaricaLaRiga) {
  Giorno_Di_Tre g;
  CambiaHd(g.programma, g.edita, 3);
  EXPECT_EQ(g[C::Cliente], "Lagunare");
  EXPECT_EQ(g.edita.albero.ListaVoci.scelta, 2);
  EXPECT_FALSE(g.edita.Aggiungi.attivo);
  CambiaHd(g.programma, g.edita, 99);
  EXPECT_EQ(g.edita.hd.valore, 3);
  CambiaHd(g.programma, g.edita, -4);
  EXPECT_EQ(g.edita.hd.valore, 1);
}

TEST(Righe, ConLoSchermoFermoNonCaricaNulla) {
  Giorno_Di_Tre g;
  g.edita.attiva = false;
  CambiaHd(g.programma, g.edita, 3);
  RigaSuccessiva(g.programma, g.edita);
  EXPECT_EQ(g.edita.hd.valore, 1);
  EXPECT_EQ(g[C::Cliente], "Laguna Pesca");
}

TEST(Righe, CaricaNienteSeNonPronta) {
  Giorno_Di_Tre g;
  g.edita.pronta = false;
  g.edita.hd.valore = 2;
  CaricaRiga(g.programma, g.edita);
  EXPECT_EQ(g[C::Cliente], "Laguna Pesca");
}

TEST(Righe, CaricaPrendeIlPrefissoSenzaToccareIlLotto) {
  Giorno_Di_Tre g;
  CambiaHd(g.programma, g.edita, 2);
  EXPECT_EQ(g.programma.PrefissoLotto, "");
  g.programma.preferenze.FlagLottiAutomatici = true;
  g.Riga(2)[C::Lotti] = "suo";
  CambiaHd(g.programma, g.edita, 2);
  EXPECT_EQ(g.programma.PrefissoLotto, "MB");
  EXPECT_EQ(g[C::Lotti], "suo");
}

TEST(Righe, CaricaMostraGliImporti) {
  Giorno_Di_Tre g;
  CambiaHd(g.programma, g.edita, 2);
  EXPECT_EQ(g.edita.Label2.testo, "5x10=50,00 + IVA 5,00 = 55,00 €/kg"_t);
}

// The columns of the list line up by these bytes; the operator reads the day by them.
TEST(Voci, Linea) {
  for (const char separatore : {',', '.'}) {
    Giornata_Di_Prova g(separatore);
    LedgerRow riga = g.RigaDelGiorno(1, "Laguna Pesca", "00123", "001");
    riga[C::Peso] = g.N("12,5");
    riga[C::Prezzo] = g.N("9,8");
    riga[C::Commento] = " nota ";
    g.programma.Vet_Tabella.righe = {riga};
    EXPECT_EQ(RigaVoci(g.programma, 1),
              "0001 | Mare Blu             | 00123 Laguna Pesca         | Orata           | A0837 - | " +
                  g.N("10% 12,50 009,80") + " 001 IT | 001 |  | MB250313    SBG | RDT GRA FRE XXX WHL nota ");
  }
}

struct Caso_Linea {
  C campo;
  const char *testo, *parte;
};

TEST(Voci, Particolari) {
  for (const Caso_Linea& caso : {
           Caso_Linea{C::Iva, "4", " |  4% 10,00 005,00 001 IT | "},
           Caso_Linea{C::Iva, "", " | % 10,00 005,00 001 IT | "},
           Caso_Linea{C::Prov, "IT", " | 10% 10,00 005,00 IT | "},
           Caso_Linea{C::Prov, "", " | 10% 10,00 005,00    | "},
           Caso_Linea{C::Peso, "1234,567", " | 10% 1234,57 005,00 001 IT | "},
           Caso_Linea{C::Prezzo, "-12", " | 10% 10,00 -012,00 001 IT | "},
           Caso_Linea{C::FAT, "NA", " |  |  NA   | MB250313"},
           Caso_Linea{C::FAT, "NA7", " |  | NA007 | MB250313"},
           Caso_Linea{C::FAT, "127/004", " |  | 127/004 | MB250313"},
           Caso_Linea{C::Lotti, "LOTTO MOLTO LUNGO", " |  |  | LOTTO MOLTO SBG | "},
           Caso_Linea{C::Fornitore, "Fornitore dal nome lungo", "0001 | Fornitore dal nome l | 00123"},
           Caso_Linea{C::Specie, "Specie dal nome lungo", " | Specie dal nome | A0837 - | "},
           Caso_Linea{C::ZonaP, "FAO", " | FAO | 10% "},
           Caso_Linea{C::Pezzatura, "GR", " | RDT GR FRE XXX WHL "},
       }) {
    Giornata_Di_Prova g;
    g.programma.Vet_Tabella.righe = {g.RigaDelGiorno(1, "Laguna Pesca", "00123")};
    g.programma.Vet_Tabella(caso.campo, 1) = caso.testo;
    EXPECT_THAT(RigaVoci(g.programma, 1), testing::HasSubstr(caso.parte));
  }
}

TEST(Voci, RigaVuota) {
  Giornata_Di_Prova g;
  const Testo vuoto(40, ' ');
  EXPECT_EQ(RigaVoci(g.programma, 1), "0001 | Modificare questa ri | " + vuoto.substr(0, 21) + " | " +
                                          vuoto.substr(0, 15) + " |  | %  " + vuoto.substr(0, 16) +
                                          " |  |  | " + vuoto.substr(0, 12) + " | " + vuoto.substr(0, 6));
}

TEST(Voci, Titoli) {
  EXPECT_EQ(TitoliVoci(),
            "Num. | Fornitore            | Cod.  Cliente              | Specie          | Z.Pesca |iva   Kg  "
            "  Euro "
            "Pr.     | DDT | N.Fat |  Lotto ");
  Giornata_Di_Prova g;
  g.Apri();
  EXPECT_EQ(g.edita.albero.Titoli.Riga(0), TitoliVoci());
  EXPECT_EQ(g.edita.albero.Titoli.Numero(), 1U);
}

TEST(Luce, Parole) {
  EXPECT_EQ(Parola(StatoSemaforo::NORMALE), "NORMALE");
  EXPECT_EQ(Parola(StatoSemaforo::BENE), "BENE");
  EXPECT_EQ(Parola(StatoSemaforo::ERRORE), "ERRORE");
}

TEST(Comandi, StatoSegueLoSchermo) {
  Giornata_Di_Prova g;
  g.Apri();
  const auto attivo = [&](Vista nome) { return StatoComando(g.programma, g.edita, nome).attivo; };
  EXPECT_FALSE(attivo("Aggiungi"));
  EXPECT_TRUE(attivo("Modifica"));
  EXPECT_TRUE(attivo("Elimina"));
  EXPECT_TRUE(attivo("Salva"));
  EXPECT_TRUE(attivo("Chiudi"));
  g.Scrivi(C::Lotti, "x");
  EXPECT_TRUE(attivo("Aggiungi"));
  g.edita.attiva = false;
  for (const Voce_Comando& voce : Comandi()) EXPECT_FALSE(attivo(voce.nome)) << voce.nome;
}

TEST(Comandi, QuelliIgnotiSonoSpenti) {
  Giornata_Di_Prova g;
  g.Apri();
  EXPECT_FALSE(StatoComando(g.programma, g.edita, "Nessun_Comando").attivo);
  EXPECT_FALSE(StatoComando(g.programma, g.edita, "Esclusi").visibile);
  EXPECT_FALSE(StatoComando(g.programma, g.edita, "BottoneDDT").visibile);
}

// The screens of documents, accounts and statistics open over a row that is perhaps half keyed.
TEST(Ripresa, UnaRigaRimastaComEraLasciaQuantoSiStaScrivendo) {
  Giornata_Di_Prova g;
  g.programma.Vet_Tabella.righe = {g.RigaDelGiorno(1, "Laguna Pesca", "00123"),
                                   g.RigaDelGiorno(2, "Trattoria Lido", "00124")};
  g.Apri();
  VaiRiga(g.programma, g.edita, 2);
  g.Scrivi(C::Peso, "77");
  const LedgerRow prima = RigaCorrente(g.programma, g.edita);
  g.programma.Vet_Tabella(C::DDT, 1) = "004";
  const unsigned versione = g.edita.albero.ListaVoci.versione;
  RiprendiEdita(g.programma, g.edita, prima);
  EXPECT_EQ(g[C::Peso], "77");
  EXPECT_NE(g.edita.albero.ListaVoci.versione, versione) << "the list shows the other row's number";
}

TEST(Ripresa, UnaRigaCambiataTornaNeiCampi) {
  Giornata_Di_Prova g;
  g.programma.Vet_Tabella.righe = {g.RigaDelGiorno(1, "Laguna Pesca", "00123"),
                                   g.RigaDelGiorno(2, "Trattoria Lido", "00124")};
  g.Apri();
  VaiRiga(g.programma, g.edita, 2);
  g.Scrivi(C::Peso, "77");
  const LedgerRow prima = RigaCorrente(g.programma, g.edita);
  g.programma.Vet_Tabella(C::DDT, 2) = "004";
  RiprendiEdita(g.programma, g.edita, prima);
  EXPECT_EQ(g[C::Peso], "10");
  EXPECT_EQ(g[C::DDT], "004");
}

TEST(Ripresa, UnaGiornataAccorciataTieneUnaRigaScelta) {
  Giornata_Di_Prova g;
  g.programma.Vet_Tabella.righe = {g.RigaDelGiorno(1, "Laguna Pesca", "00123"),
                                   g.RigaDelGiorno(2, "Trattoria Lido", "00124")};
  g.Apri();
  VaiRiga(g.programma, g.edita, 2);
  const LedgerRow prima = RigaCorrente(g.programma, g.edita);
  g.programma.Vet_Tabella.righe.pop_back();
  RiprendiEdita(g.programma, g.edita, prima);
  EXPECT_EQ(g.edita.hd.valore, 1);
  EXPECT_EQ(g.edita.hd.massimo, 1);
  EXPECT_EQ(g[C::Cliente], "Laguna Pesca");
}

TEST(Comandi, IDocumentiImmediatiSeguonoLeImpostazioni) {
  Giornata_Di_Prova g;
  g.Apri();
  const auto visibile = [&](Vista nome) { return StatoComando(g.programma, g.edita, nome).visibile; };
  EXPECT_FALSE(visibile("DSI") || visibile("DSI_Riga"));
  g.programma.preferenze.FlagDSimmediato = true;
  EXPECT_TRUE(visibile("DSI"));
  EXPECT_FALSE(visibile("DSI_Riga"));
  g.programma.preferenze.FlagDSimmediatoUR = true;
  EXPECT_TRUE(visibile("DSI_Riga"));
  EXPECT_TRUE(StatoComando(g.programma, g.edita, "DSI_Riga").attivo);
}

TEST(Comandi, VociDiMenu) {
  Giornata_Di_Prova g;
  g.Apri();
  std::vector<Testo> funzionano;
  for (const Voce_Menu& voce : Menu()) {
    if (voce.funziona) funzionano.push_back(DidascaliaMenu(g.edita, voce));
  }
  EXPECT_THAT(
      funzionano,
      ElementsAre("Cancella Tutto", "Salva", "Vettori", "Controllo CV", "Stampa Schermo", "Chiudi",
                  "Preferenze Operative", "Preferenze per Doc. Sanitario e DDI",
                  "Preferenze Fatture Personalizzate", "Stampante", "Colore Lista", "Rinnova Liste",
                  "Mediterraaneo FAO 37", "Tutto l Mondo", "Per Immissione", "Per Fornitore", "Per Cliente",
                  "Per Cliente e specie", "per Codice Cliente", "Per Specie", "Per Prezzo",
                  "Per Num. Conto Vendita", "Per Provenienza", "per aliquota IVA", "Per Fattura", "Per DDT",
                  "Per Fornitore+Specie+Immissione", "Per Attrezzo di pesca", "Per Pezzatura",
                  "Per Stato Fisico", "Per Lavorazione", "Per Preparazione", "Come Doc Sanitario",
                  "PrefSpecie", "PrefFornitori", "&Lista_F12", "Aiuto", "Lotti", "Fatture 1", "Fatture 2",
                  "Transazioni", "Numerazione DDT e DS", "Specie e Fornitori Predefiniti", "Prezzo per cassa",
                  "Export Prima Nota Esteso", "Campi", "Stampa Liste", "salva lista Specie", "Etichette",
                  "Manuale", "Marca"));
  Marca(g.edita);
  EXPECT_EQ(DidascaliaMenu(g.edita, Menu().back()), "SMarca");
}

}  // namespace

#include "entry/comandi_file.h"

#include <cerrno>
#include <gmock/gmock.h>

#include "entry/comandi.h"
#include "entry/ordinamenti.h"
#include "tests/entry/giornata_di_prova.h"

using testing::ElementsAre;
using C = CampoRiga;

namespace {

constexpr Vista marcata = "001 | Modificare questa riga...";

struct Giornata_Piena : Giornata_Di_Prova {
  Giornata_Piena() {
    programma.Vet_Tabella.righe = {RigaDelGiorno(1, "Laguna Pesca", "00123", "001"),
                                   RigaDelGiorno(2, "Trattoria Lido", "00124", "002"),
                                   RigaDelGiorno(3, "Lagunare", "00200", "003")};
    Apri();
  }
  void Cancella() {
    macchina.risposte = {true, true};
    CancellaTutto(programma, edita);
  }
};

TEST(Cancella_Tutto, DueDomandeEPoiUnaRigaSolaConTuttiICampiVuoti) {
  Giornata_Piena g;
  VaiRiga(g.programma, g.edita, 3);
  g.Cancella();
  EXPECT_THAT(g.macchina.domande,
              ElementsAre("OK per cancellare tutti i dati...", "Sei sicuro?...OK per confermare"));
  EXPECT_EQ(g.programma.Vet_Tabella.righe, std::vector<LedgerRow>(1));
  EXPECT_TRUE(g.programma.Tabella_Modificata);
  EXPECT_EQ(g.edita.albero.ListaVoci.Numero(), 1U);
  EXPECT_EQ(g.edita.albero.ListaVoci.Riga(0), marcata);
  EXPECT_EQ(g.edita.albero.ListaVoci.scelta, 0);
  EXPECT_EQ(g.edita.hd.valore, 1);
  EXPECT_EQ(g.edita.hd.massimo, 1);
  for (const CampoTesto& campo : g.edita.Text1) EXPECT_EQ(campo.testo, "");
  EXPECT_EQ(g.Titolo(), "Aggiunge/Modifica/Cancella - n.Voci = 1");
  EXPECT_TRUE(g.edita.attiva);
}

TEST(Cancella_Tutto, AnnullaAllaPrimaOAllaSecondaLasciaTutto) {
  for (const std::deque<bool>& risposte : {std::deque<bool>{false}, std::deque<bool>{true, false}}) {
    Giornata_Piena g;
    g.macchina.risposte = risposte;
    CancellaTutto(g.programma, g.edita);
    EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 3);
    EXPECT_FALSE(g.programma.Tabella_Modificata);
    EXPECT_EQ(g[C::Cliente], "Laguna Pesca");
    EXPECT_EQ(g.macchina.domande.size(), risposte.size());
  }
}

// The mark stands in the list only, so the next sale isn't taken for the first one of an empty day.
TEST(Cancella_Tutto, LaRigaAggiuntaDopoELaSeconda) {
  Giornata_Piena g;
  g.Cancella();
  g.Compila();
  Aggiungi(g.programma, g.edita);
  ASSERT_EQ(g.programma.Vet_Tabella.Righe(), 2);
  EXPECT_EQ(g.Riga(1), LedgerRow());
  EXPECT_EQ(g.Riga(2)[C::Num], "0002");
  EXPECT_EQ(g.Riga(2)[C::Cliente], "Laguna Pesca");
  EXPECT_EQ(g.edita.albero.ListaVoci.Riga(0), marcata);
  EXPECT_EQ(g.edita.albero.ListaVoci.Riga(1), RigaVoci(g.programma, 2));
}

TEST(Cancella_Tutto, IlSegnoVaViaQuandoLaRigaVieneScritta) {
  Giornata_Piena g;
  g.Cancella();
  g.Compila();
  Modifica(g.programma, g.edita);
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 1);
  EXPECT_EQ(g.Riga(1)[C::Num], "0001");
  EXPECT_EQ(g.edita.albero.ListaVoci.Riga(0), RigaVoci(g.programma, 1));
}

TEST(Cancella_Tutto, IlSegnoVaViaConUnOrdinamentoEConLEliminazione) {
  Giornata_Piena g;
  g.Cancella();
  Ordina(g.programma, g.edita, Ordinamenti()[1]);
  EXPECT_EQ(g.edita.albero.ListaVoci.Riga(0), RigaVoci(g.programma, 1));

  Giornata_Piena h;
  h.Cancella();
  Elimina(h.programma, h.edita);
  EXPECT_EQ(h.Riga(1)[C::Fornitore], Riga_Vuota);
  EXPECT_EQ(h.edita.albero.ListaVoci.Riga(0), RigaVoci(h.programma, 1));

  Giornata_Piena i;
  i.Cancella();
  i.Compila();
  Aggiungi(i.programma, i.edita);
  VaiRiga(i.programma, i.edita, 1);
  i.macchina.risposte = {true};
  Elimina(i.programma, i.edita);
  EXPECT_EQ(i.edita.albero.ListaVoci.Riga(0), RigaVoci(i.programma, 1));
}

TEST(Cancella_Tutto, MentreLaDomandaAspettaNonParteNientAltro) {
  Giornata_Piena g;
  g.macchina.durante_attesa = [&] {
    CancellaTutto(g.programma, g.edita);
    EXPECT_FALSE(StatoComando(g.programma, g.edita, "Salva").attivo);
  };
  g.Cancella();
  EXPECT_EQ(g.macchina.domande.size(), 2U);
}

constexpr Vista otto[] = {"_2020_Barca.txt",       "_2020_MetodoPesca.txt", "_2020_Pezzatura.txt",
                          "_2020_StatoFisico.txt", "_2020_Lavorazione.txt", "_2020_Presentazione.txt",
                          "_2020_Zona.txt",        "_2020_Proveni.txt"};
constexpr Vista restano[] = {"_2020_Allergeni.txt", "_2020_Descri32.txt", "_Client32.txt",
                             "_2020_Fornitori.txt"};
constexpr Vista domanda_liste =
    "Riscrive le liste fisse\n_2020_Barca.txt\n_2020_MetodoPesca.txt\n_2020_Pezzatura.txt\n"
    "_2020_StatoFisico.txt\n_2020_Lavorazione.txt\n_2020_Presentazione.txt\n_2020_Zona.txt\n"
    "_2020_Proveni.txt";

struct Giornata_Liste : Giornata_Piena {
  Giornata_Liste() {
    for (const Vista nome : otto) std::ofstream(cartella / Testo(nome)) << "la mia voce\r\n";
    for (const Vista nome : restano) std::ofstream(cartella / Testo(nome)) << "resta\r\n";
  }
  int Rimaste() const {
    int quante = 0;
    for (const Vista nome : otto) quante += programma.disco.Esiste_File(cartella / Testo(nome)) ? 1 : 0;
    return quante;
  }
};

TEST(Rinnova_Liste, CancellaGliOttoFileSalvaEFinisce) {
  Giornata_Liste g;
  g.macchina.risposte = {true, true};
  RinnovaListe(g.programma, g.edita);
  EXPECT_THAT(g.macchina.domande, ElementsAre(Testo(domanda_liste), "OK per salvare 3 dati immessi..."));
  EXPECT_THAT(g.macchina.messaggi, ElementsAre("Il programma deve essere chiuso e riavviato..."));
  EXPECT_EQ(g.Rimaste(), 0);
  for (const Vista nome : restano) EXPECT_EQ(g.cartella.Contenuto(Testo(nome)), "resta\r\n") << nome;
  EXPECT_TRUE(g.programma.disco.Esiste_File(g.programma.File_Giorno));
  EXPECT_TRUE(g.macchina.terminata);
  Leggi_Liste(g.programma);
  EXPECT_EQ(g.Rimaste(), 8);
  EXPECT_EQ(g.programma.Vet_Metodi.size(), 11U);
}

TEST(Rinnova_Liste, AnnullaLasciaTutto) {
  Giornata_Liste g;
  g.macchina.risposte = {false};
  RinnovaListe(g.programma, g.edita);
  EXPECT_EQ(g.Rimaste(), 8);
  EXPECT_FALSE(g.macchina.terminata);
  EXPECT_TRUE(g.macchina.messaggi.empty());
  EXPECT_TRUE(g.edita.attiva);
}

TEST(Rinnova_Liste, ChiNonSalvaFinisceLoStesso) {
  Giornata_Liste g;
  g.macchina.risposte = {true, false};
  RinnovaListe(g.programma, g.edita);
  EXPECT_FALSE(g.programma.disco.Esiste_File(g.programma.File_Giorno));
  EXPECT_TRUE(g.macchina.terminata);
}

// A row that can't be written must not go with the program.
TEST(Rinnova_Liste, SeLaGiornataNonSiSalvaIlProgrammaResta) {
  Giornata_Liste g;
  g.programma.Tabella_Modificata = true;
  g.programma.disco.guasto = [&](const Percorso& p) { return p == g.programma.File_Giorno ? ENOSPC : 0; };
  g.macchina.risposte = {true, true};
  RinnovaListe(g.programma, g.edita);
  EXPECT_FALSE(g.macchina.terminata);
  EXPECT_TRUE(g.programma.Tabella_Modificata);
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 3);
}

TEST(Rinnova_Liste, UnaListaCheNonSiCancellaEDetta) {
  Giornata_Liste g;
  std::filesystem::remove(g.cartella / "_2020_Barca.txt");
  g.programma.disco.guasto = [&](const Percorso& p) { return p.filename() == "_2020_Zona.txt" ? EACCES : 0; };
  g.macchina.risposte = {true, true};
  RinnovaListe(g.programma, g.edita);
  ASSERT_EQ(g.macchina.messaggi.size(), 2U);
  EXPECT_THAT(g.macchina.messaggi[0], testing::HasSubstr("_2020_Zona.txt"));
  EXPECT_THAT(g.macchina.messaggi[0], testing::Not(testing::HasSubstr("_2020_Barca.txt")));
  EXPECT_EQ(g.Rimaste(), 1);
}

TEST(Lista_Campi, UnaRigaPerCampoConNumeroNomeESignificato) {
  Giornata_Di_Prova g;
  ListaCampi(g.programma);
  const Testo contenuto = g.cartella.Contenuto("_Lista_Campi.txt");
  EXPECT_EQ(contenuto, Testo_Lista_Campi());
  EXPECT_EQ(Destra(contenuto, 2), FINE_RIGA);
  const auto righe = Righe(contenuto);
  ASSERT_EQ(righe.size(), 36U);
  EXPECT_EQ(righe[0], "Lista dei campi contenuti nella tabella");
  for (std::size_t i = 0; i < Vet_Titoli.size(); ++i) {
    EXPECT_TRUE(Inizia(righe[i + 1], "campo n. " + Pad_Sinistra(std::to_string(i + 1), 2) +
                                         "  nome: " + Testo(Vet_Titoli[i])))
        << righe[i + 1];
    EXPECT_GT(righe[i + 1].size(), righe[i + 1].find("significato: ") + 13) << righe[i + 1];
  }
  EXPECT_EQ(righe[1],
            "campo n.  1  nome: Num.                        significato: numero d'ordine della riga, "
            "quattro cifre");
}

// Words that firms know from their printed list.
TEST(Lista_Campi, ParoleFisse) {
  const Testo contenuto = Testo_Lista_Campi();
  const auto righe = Righe(contenuto);
  const std::pair<C, Vista> parole[] = {{C::ZonaP, "ZonaPesca"},
                                        {C::Prezzo, "segno meno per Nota di Accredito"},
                                        {C::DDT, "DDT per la Fattura"},
                                        {C::FAT, "Numero di Fattura"},
                                        {C::CodiciConsolidare, "per uso interno"},
                                        {C::Allergeni, "Allegeni"}};
  for (const auto& [campo, parola] : parole)
    EXPECT_THAT(Testo(righe[static_cast<std::size_t>(campo)]), testing::HasSubstr(Testo(parola)));
}

TEST(Lista_Campi, UnDiscoPienoEDetto) {
  Giornata_Di_Prova g;
  g.programma.disco.guasto = [](const Percorso&) { return ENOSPC; };
  ListaCampi(g.programma);
  ASSERT_EQ(g.macchina.messaggi.size(), 1U);
  EXPECT_THAT(g.macchina.messaggi[0], testing::HasSubstr("_Lista_Campi.txt"));
}

}  // namespace

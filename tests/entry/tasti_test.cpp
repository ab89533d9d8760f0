#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/entry/giornata_di_prova.h"

using C = CampoRiga;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int n(C campo) { return static_cast<int>(campo); }

struct Invio_Nudo {
  C campo;
  int atteso;
};

TEST(Tasti, InvioSenzaLista) {
  for (const Invio_Nudo& caso :
       {Invio_Nudo{C::Fornitore, n(C::Cliente)}, Invio_Nudo{C::Cliente, n(C::Specie)},
        Invio_Nudo{C::Specie, n(C::ZonaP)}, Invio_Nudo{C::ZonaP, n(C::Prov)},
        Invio_Nudo{C::Prov, n(C::MetodoPesca)}, Invio_Nudo{C::MetodoPesca, n(C::Pezzatura)},
        Invio_Nudo{C::Pezzatura, n(C::StatoFisico)}, Invio_Nudo{C::StatoFisico, n(C::Lavorazione)},
        Invio_Nudo{C::Lavorazione, n(C::Preparazione)}, Invio_Nudo{C::Preparazione, n(C::PrimoImb)},
        Invio_Nudo{C::PrimoImb, n(C::Peso)}, Invio_Nudo{C::Peso, n(C::Prezzo)},
        Invio_Nudo{C::Prezzo, n(C::Lotti)}, Invio_Nudo{C::Lotti, n(C::Colli)},
        Invio_Nudo{C::NomeLatino, n(C::Famiglia)},  // any other field: the one with the next index
        Invio_Nudo{C::NomeComune, n(C::CodNumVeritas)},
        Invio_Nudo{C::Colli, 0},         // the next one is disabled: the focus stays
        Invio_Nudo{C::Allergeni, 0}}) {  // there is no next one
    Giornata_Di_Prova g;
    g.Apri();
    g.Fuoco();
    EXPECT_TRUE(g.Premi(caso.campo, Tasto::Invio)) << n(caso.campo);
    EXPECT_EQ(g.Fuoco(), caso.atteso) << n(caso.campo);
  }
}

TEST(Tasti, FrecceSuEGiuSenzaLista) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Fuoco();
  EXPECT_TRUE(g.Premi(C::Peso, Tasto::Su));
  EXPECT_EQ(g.Fuoco(), n(C::PrimoImb));
  EXPECT_TRUE(g.Premi(C::Peso, Tasto::Giu));
  EXPECT_EQ(g.Fuoco(), n(C::Prezzo));
}

TEST(Tasti, FrecceLateraliApronoLaListaIntera) {
  for (const Tasto tasto : {Tasto::Sinistra, Tasto::Destra}) {
    Giornata_Di_Prova g;
    g.Apri();
    g[C::Cliente] = "Tratt";
    EXPECT_FALSE(g.Premi(C::Cliente, tasto));  // the cursor moves in the field as well
    EXPECT_TRUE(g.edita.List1.visibile);
    EXPECT_THAT(g.Lista(), ElementsAre("Laguna Pesca", "Trattoria Lido", "Lagunare"));
    EXPECT_EQ(g.edita.List1.scelta, 0);
    EXPECT_EQ(g.edita.CampoLista, Indice(C::Cliente));
    EXPECT_FALSE(g.edita.ListaChiusa);
  }
}

TEST(Tasti, FrecceLateraliSuiCampiSenzaLista) {
  for (const C campo : {C::Peso, C::Prezzo, C::Colli, C::Lotti, C::NomeLatino}) {
    Giornata_Di_Prova g;
    g.Apri();
    EXPECT_FALSE(g.Premi(campo, Tasto::Destra));
    EXPECT_FALSE(g.edita.List1.visibile) << n(campo);
  }
}

TEST(Tasti, IlTastoSinistroDelMouseApreLaListaSoloConMouse) {
  Giornata_Di_Prova g;
  g.Apri();
  SinistroCampo(g.programma, g.edita, Indice(C::Cliente));
  EXPECT_FALSE(g.edita.List1.visibile);
  g.programma.preferenze.FlagMouse = true;
  SinistroCampo(g.programma, g.edita, Indice(C::Cliente));
  EXPECT_TRUE(g.edita.List1.visibile);
  EXPECT_EQ(g.edita.List1.Numero(), 3U);
}

TEST(Tasti, EscNascondeLaLista) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Scrivi(C::Cliente, "lag");
  EXPECT_TRUE(g.edita.List1.visibile);
  EXPECT_TRUE(g.Premi(C::Cliente, Tasto::Esc));
  EXPECT_FALSE(g.edita.List1.visibile);
  EXPECT_EQ(g[C::Cliente], "lag");
}

TEST(Tasti, ITastiFunzioneVannoAlloSchermo) {
  for (const Tasto tasto :
       {Tasto::F2, Tasto::F3, Tasto::F4, Tasto::F5, Tasto::F6, Tasto::F7, Tasto::F8, Tasto::F9}) {
    Giornata_Di_Prova g;
    g.Apri();
    g.edita.Aggiungi.attivo = true;
    Semaforo(g.edita, StatoSemaforo::BENE);
    EXPECT_FALSE(g.Premi(C::Fornitore, tasto));
    EXPECT_EQ(g.Luce(), "BENE");
  }
}

TEST(Tasti, LaLuceTornaNormaleSoloConAggiungiAttivo) {
  Giornata_Di_Prova g;
  g.Apri();
  Semaforo(g.edita, StatoSemaforo::ERRORE);
  g.Premi(C::Peso, Tasto::Altro);
  EXPECT_EQ(g.Luce(), "ERRORE");
  g.edita.Aggiungi.attivo = true;
  g.Premi(C::Peso, Tasto::Altro);
  EXPECT_EQ(g.Luce(), "NORMALE");
}

TEST(Tasti, CommentoRestaUnCampoSemplice) {
  Giornata_Di_Prova g;
  g.Apri();
  g.edita.Aggiungi.attivo = true;
  Semaforo(g.edita, StatoSemaforo::BENE);
  for (const Tasto tasto : {Tasto::Invio, Tasto::Su, Tasto::Giu, Tasto::Destra, Tasto::Esc})
    EXPECT_FALSE(g.Premi(C::Commento, tasto));
  EXPECT_EQ(g.Luce(), "BENE");
  g.edita.Aggiungi.attivo = false;
  g.Scrivi(C::Commento, "nota");
  EXPECT_FALSE(g.edita.Aggiungi.attivo);
}

TEST(Tasti, InvioSuColliAggiungeLaRigaERicomincia) {
  Giornata_Di_Prova g;
  g.programma.Vet_Tabella.righe = {g.RigaDelGiorno(1, "Trattoria Lido", "00124", "001")};
  g.Apri();
  g.Compila();
  EXPECT_TRUE(g.Premi(C::Colli, Tasto::Invio));
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 2);
  EXPECT_EQ(g.Fuoco(), n(C::Fornitore));
  EXPECT_TRUE(g.Premi(C::Colli, Tasto::Invio));  // disabled now: nothing is added
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 2);
}

TEST(Tasti, InvioSuColliConCampiErrati) {
  Giornata_Di_Prova g;
  g.programma.Vet_Tabella.righe = {g.RigaDelGiorno(1, "Trattoria Lido", "00124", "001")};
  g.Apri();
  g.Compila();
  g.Fuoco();
  g[C::ZonaP] = "";
  g.Premi(C::Colli, Tasto::Invio);
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 1);
  EXPECT_THAT(g.macchina.messaggi, ElementsAre("Dati errati o incompleti (o cliente escluso)"));
  EXPECT_EQ(g.Fuoco(), n(C::Fornitore));  // the key goes on with the flow all the same
}

TEST(Tasti, InvioSulClienteTrovaIlCodice) {
  Giornata_Di_Prova g;
  g.Apri();
  g[C::Cliente] = " trattoria lido ";
  g.Premi(C::Cliente, Tasto::Invio);
  EXPECT_EQ(g[C::CodCliente], "00124");
  EXPECT_EQ(g.Fuoco(), n(C::Specie));
}

TEST(Tasti, InvioSulCodiceTrovaIlNome) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Segna(6);
  g[C::CodCliente] = "00200";
  g.Premi(C::CodCliente, Tasto::Invio);
  EXPECT_EQ(g[C::Cliente], "Lagunare");
  EXPECT_EQ(g.Fuoco(), n(C::Specie));
}

TEST(Tasti, ClienteSconosciutoLasciaIlCodice) {
  Giornata_Di_Prova g;
  g.Apri();
  g[C::Cliente] = "Nessuno";
  g[C::CodCliente] = "00001";
  g.Premi(C::Cliente, Tasto::Invio);
  EXPECT_EQ(g[C::CodCliente], "00001");
}

TEST(Tasti, InvioSulFornitorePreparaIlLotto) {
  Giornata_Di_Prova g;
  g.Apri();
  g[C::Fornitore] = "mare blu";
  g[C::Lotti] = "vecchio";
  g.Premi(C::Fornitore, Tasto::Invio);
  EXPECT_EQ(g[C::Lotti], "vecchio");  // lots by hand
  g.programma.preferenze.FlagLottiAutomatici = true;
  g.Premi(C::Fornitore, Tasto::Invio);
  EXPECT_EQ(g[C::Lotti], "MB250313");  // prefix and the day before the program started
  EXPECT_EQ(g.programma.PrefissoLotto, "MB");
  g[C::Fornitore] = "Marina Nord";  // a supplier without a prefix doesn't keep the other one's
  g.Premi(C::Fornitore, Tasto::Invio);
  EXPECT_EQ(g[C::Lotti], "250313");
}

TEST(Tasti, InvioPrendeLaVoceScelta) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Scrivi(C::Cliente, "lagunar");
  EXPECT_TRUE(g.Premi(C::Cliente, Tasto::Invio));
  EXPECT_EQ(g[C::Cliente], "Lagunare");
  EXPECT_EQ(g[C::CodCliente], "00200");
  EXPECT_FALSE(g.edita.List1.visibile);
  EXPECT_EQ(g.edita.List1.Numero(), 0U);
  EXPECT_EQ(g.Fuoco(), n(C::Specie));
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
}

TEST(Tasti, InvioPrendeIlFornitoreConIlSuoLotto) {
  Giornata_Di_Prova g;
  g.programma.preferenze.FlagLottiAutomatici = true;
  g.Apri();
  g.Scrivi(C::Fornitore, "mare");
  g.Premi(C::Fornitore, Tasto::Invio);
  EXPECT_EQ(g[C::Fornitore], "Mare Blu");
  EXPECT_EQ(g[C::Lotti], "MB250313");
  EXPECT_EQ(g.Fuoco(), n(C::Cliente));
}

// The row holds the name without the note in brackets; the codes come from the whole entry.
TEST(Tasti, InvioPrendeLaSpecieConISuoiCodici) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Scrivi(C::Specie, "ora");
  EXPECT_THAT(g.Lista(), ElementsAre("Orata (Grande)"));
  g.Premi(C::Specie, Tasto::Invio);
  EXPECT_EQ(g[C::Specie], "Orata");
  EXPECT_EQ(g[C::Iva], "10");
  EXPECT_EQ(g[C::NomeLatino], "Sparus aurata");
  EXPECT_EQ(g[C::Famiglia], "Pesci");
  EXPECT_EQ(g[C::CodSpecie], "ORA1");
  EXPECT_EQ(g[C::NomeComune], "Orata");
  EXPECT_EQ(g[C::CodNumVeritas], "1001");
  EXPECT_EQ(g[C::Alfa], "SBG");
  EXPECT_EQ(g.Fuoco(), n(C::ZonaP));
}

TEST(Tasti, InvioPrendeUnaVoceCodificataIntera) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Scrivi(C::MetodoPesca, "reti");
  g.Premi(C::MetodoPesca, Tasto::Invio);
  EXPECT_EQ(g[C::MetodoPesca], "RDT Reti da traino");
  EXPECT_EQ(g.Fuoco(), n(C::Pezzatura));
}

TEST(Tasti, UnaListaSenzaSceltaPrendeLaPrima) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Scrivi(C::Cliente, "lag");
  g.edita.List1.scelta = -1;
  g.Premi(C::Cliente, Tasto::Invio);
  EXPECT_EQ(g[C::Cliente], "Laguna Pesca");
}

// The words of an empty search are an entry like any other; the row check refuses them.
TEST(Tasti, NonTrovatoSiPuoPrendere) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Scrivi(C::Cliente, "zzz");
  EXPECT_THAT(g.Lista(), ElementsAre("non trovato..."));
  g.Premi(C::Cliente, Tasto::Invio);
  EXPECT_EQ(g[C::Cliente], "non trovato...");
}

TEST(Tasti, InvioConListaVuotaPassaAlCampoSeguente) {
  Giornata_Di_Prova g;
  g.programma.Vet_Zone.clear();
  g.Apri();
  g.Scrivi(C::ZonaP, "");
  EXPECT_EQ(g.edita.List1.Numero(), 0U);
  g[C::ZonaP] = "scritta a mano";
  g.Fuoco();
  g.Premi(C::ZonaP, Tasto::Invio);
  EXPECT_EQ(g[C::ZonaP], "scritta a mano");
  EXPECT_EQ(g.Fuoco(), n(C::Peso));  // the next index, not the next of the flow
}

TEST(Tasti, FrecceConListaEntranoNellaLista) {
  for (const Tasto tasto : {Tasto::Su, Tasto::Giu}) {
    Giornata_Di_Prova g;
    g.Apri();
    g.Scrivi(C::Cliente, "la");
    g.edita.List1.scelta = 1;
    EXPECT_TRUE(g.Premi(C::Cliente, tasto));
    EXPECT_EQ(g.edita.List1.scelta, 0);
    EXPECT_EQ(g.edita.fuoco, Edita::fuoco_List1);
  }
}

TEST(Lista, InvioDentroLaLista) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Scrivi(C::Cliente, "la");
  g.edita.List1.scelta = 1;
  EXPECT_TRUE(TastoList1(g.programma, g.edita, {.tasto = Tasto::Invio}));
  EXPECT_EQ(g[C::Cliente], "Lagunare");
  EXPECT_EQ(g[C::CodCliente], "00200");
  EXPECT_FALSE(g.edita.List1.visibile);
  EXPECT_EQ(g.Fuoco(), n(C::Specie));
}

TEST(Lista, ClicSuUnaVoceDellaSpecie) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Scrivi(C::Specie, "");
  ScegliList1(g.programma, g.edita, 1);
  EXPECT_EQ(g[C::Specie], "Seppia");
  EXPECT_EQ(g[C::Iva], "22");
  EXPECT_EQ(g.Fuoco(), n(C::ZonaP));
}

TEST(Lista, EscDentroLaListaTornaAlCampo) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Scrivi(C::Cliente, "la");
  EXPECT_TRUE(TastoList1(g.programma, g.edita, {.tasto = Tasto::Esc}));
  EXPECT_FALSE(g.edita.List1.visibile);
  EXPECT_EQ(g.Fuoco(), n(C::Cliente));
  EXPECT_EQ(g[C::Cliente], "la");
}

TEST(Lista, UnaVoceCheNonCeNonCambiaNulla) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Scrivi(C::Cliente, "la");
  ScegliList1(g.programma, g.edita, 7);
  ScegliList1(g.programma, g.edita, -1);
  EXPECT_EQ(g[C::Cliente], "la");
  EXPECT_TRUE(g.edita.List1.visibile);
}

// The list closes under the focus: where the flow ends the field takes it back.
TEST(Lista, IlFuocoTornaAlFornitoreSeIlClienteETenuto) {
  Giornata_Di_Prova g;
  g.Apri();
  g.edita.Check[6].segnata = g.edita.Check[7].segnata = true;
  g.Scrivi(C::Fornitore, "mare");
  ScegliList1(g.programma, g.edita, 0);
  EXPECT_EQ(g.Fuoco(), n(C::Fornitore));
}

struct Caso_Carattere {
  C campo;
  const char* testo;
  char scritto;
  char atteso;
};

void ProvaFiltro(const Caso_Carattere& caso, char separatore) {
  Giornata_Di_Prova g(separatore);
  g.Apri();
  g[caso.campo] = g.N(caso.testo);
  const char atteso = caso.atteso == ',' ? separatore : caso.atteso;
  EXPECT_EQ(FiltraCarattere(g.programma, g.edita, Indice(caso.campo), caso.scritto), atteso)
      << n(caso.campo) << " " << caso.testo << " " << caso.scritto;
}

TEST(Filtro, Caratteri) {
  for (const char separatore : {',', '.'})
    for (const Caso_Carattere& caso :
         {Caso_Carattere{C::Peso, "", '7', '7'},      Caso_Carattere{C::Peso, "1", ',', ','},
          Caso_Carattere{C::Peso, "1", '.', ','},     Caso_Carattere{C::Peso, "1", 'x', ','},
          Caso_Carattere{C::Peso, "1", '-', ','},     Caso_Carattere{C::Peso, "1,", 'x', 0},
          Caso_Carattere{C::Peso, "1,5", '.', 0},     Caso_Carattere{C::SAnt, "2", '.', ','},
          Caso_Carattere{C::SAnt, "2,", '.', 0},      Caso_Carattere{C::SAnt, "2,", '9', '9'},
          Caso_Carattere{C::Colli, "", '3', '3'},     Caso_Carattere{C::Colli, "", ',', 0},
          Caso_Carattere{C::Colli, "", 'a', 0},       Caso_Carattere{C::Colli, "", '-', 0},
          Caso_Carattere{C::NCV, "", '0', '0'},       Caso_Carattere{C::NCV, "", '.', 0},
          Caso_Carattere{C::Prezzo, "", '5', '5'},    Caso_Carattere{C::Prezzo, "5", 'c', 'c'},
          Caso_Carattere{C::Prezzo, "", 'c', 'c'},    Caso_Carattere{C::Prezzo, "5", 'C', 'C'},
          Caso_Carattere{C::Prezzo, "", '-', '-'},    Caso_Carattere{C::Prezzo, "5", 'x', ','},
          Caso_Carattere{C::Prezzo, "5,", 'x', 0},    Caso_Carattere{C::Fornitore, "", '-', '-'},
          Caso_Carattere{C::DataCV, "", '/', '/'},    Caso_Carattere{C::Provvigione, "6,", 'x', 'x'},
          Caso_Carattere{C::Peso, "1,", '\b', '\b'},  Caso_Carattere{C::Colli, "", '\t', '\t'},
          Caso_Carattere{C::Prezzo, "1,", '\r', '\r'}})
      ProvaFiltro(caso, separatore);
}

// The field is entered with all its text selected: the old separator goes with the first character typed.
TEST(Filtro, IlTestoSelezionatoNonConta) {
  Giornata_Di_Prova g;
  g.Apri();
  g[C::Peso] = "12,5";
  EXPECT_EQ(FiltraCarattere(g.programma, g.edita, Indice(C::Peso), "", ','), ',');
  EXPECT_EQ(FiltraCarattere(g.programma, g.edita, Indice(C::Peso), "12,5", ','), 0);
}

TEST(Schermo, SoloITastiNudi) {
  Giornata_Di_Prova g;
  g.Apri();
  EXPECT_FALSE(TastoSchermo(g.programma, g.edita, {.tasto = Tasto::F5, .maiuscole = true}));
  EXPECT_FALSE(TastoSchermo(g.programma, g.edita, {.tasto = Tasto::F9, .ctrl = true}));
  for (const Tasto tasto : {Tasto::F10, Tasto::F12, Tasto::Invio}) EXPECT_FALSE(g.PremiSchermo(tasto));
  EXPECT_EQ(g.edita.schermo, "");
}

// The accounts and the printed ledger are one key away, from any field.
TEST(Schermo, F2EF6ChiedonoLeSchermateDiAltreStanze) {
  for (const auto& [tasto, comando] : {std::pair{Tasto::F2, "Conti_Vendita"}, {Tasto::F6, "Prima_Nota"}}) {
    Giornata_Di_Prova g;
    g.Apri();
    EXPECT_TRUE(g.PremiSchermo(tasto));
    EXPECT_EQ(g.edita.schermo, comando);
  }
}

// One firm's own key, on the supplier alone; for the others Shift+F1 does nothing.
TEST(Tasti, MaiuscoleF1SulFornitoreApreLaSecondaStatistica) {
  struct Caso {
    const char* codice;
    C campo;
    Pressione pressione;
    const char* schermo;
  };
  const Pressione maiuscole_f1 = {.tasto = Tasto::F1, .maiuscole = true};
  const Caso casi[] = {{"Lagomar", C::Fornitore, maiuscole_f1, "Stat2"},
                       {"Lagomar", C::Cliente, maiuscole_f1, ""},
                       {"Lagomar", C::Fornitore, {.tasto = Tasto::F2, .maiuscole = true}, ""},
                       {"Lagomar", C::Fornitore, {.tasto = Tasto::F1, .maiuscole = true, .ctrl = true}, ""},
                       {"Tolvera", C::Fornitore, maiuscole_f1, ""},
                       {"0", C::Fornitore, maiuscole_f1, ""}};
  for (const auto& [codice, campo, pressione, schermo] : casi) {
    Giornata_Di_Prova g;
    g.programma.preferenze.Codice_Commissionario = codice;
    g.Apri();
    TastoCampo(g.programma, g.edita, Indice(campo), pressione);
    EXPECT_EQ(g.edita.schermo, schermo) << codice << " " << n(campo);
  }
}

TEST(Schermo, F4SoloConModificaAttiva) {
  Giornata_Di_Prova g;
  g.Apri();
  g.edita.Modifica.attivo = false;
  EXPECT_TRUE(g.PremiSchermo(Tasto::F4));
  EXPECT_THAT(g.macchina.domande, IsEmpty());
  g.edita.Modifica.attivo = true;
  g.macchina.risposte = {true};
  g.PremiSchermo(Tasto::F4);
  EXPECT_THAT(g.macchina.domande, ElementsAre("dati errati o mancanti..."));
}

TEST(Schermo, F3F5F7) {
  Giornata_Di_Prova g;
  g.programma.Vet_Tabella.righe = {g.RigaDelGiorno(1, "Trattoria Lido", "00124")};
  g.Apri();
  g.Compila();
  EXPECT_TRUE(g.PremiSchermo(Tasto::F5));
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 2);
  g.macchina.risposte = {true, true};
  EXPECT_TRUE(g.PremiSchermo(Tasto::F3));
  EXPECT_EQ(g.programma.Vet_Tabella.Righe(), 1);
  EXPECT_TRUE(g.PremiSchermo(Tasto::F7));
  EXPECT_THAT(g.macchina.domande,
              ElementsAre("OK per cancellare la voce n. 2", "OK per salvare 1 dati immessi..."));
}

}  // namespace

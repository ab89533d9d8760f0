#include "entry/liste_campi.h"

#include <gmock/gmock.h>

#include "entry/comandi.h"
#include "tests/entry/giornata_di_prova.h"

using C = CampoRiga;

namespace {

constexpr int nessuno = 0;  // the focus stays where it was

struct Caso {
  C aperto;
  Lista_Campo lista;
  int tipo;
  int fuoco;  // field number after closing
};

constexpr Caso casi[] = {
    {C::Fornitore, Lista_Campo::Fornitori, 0, 3},
    {C::Cliente, Lista_Campo::Clienti, 0, 5},
    {C::CodCliente, Lista_Campo::Clienti, 0, 5},
    {C::Specie, Lista_Campo::Specie, 0, 6},
    {C::ZonaP, Lista_Campo::Zone, 0, 18},
    {C::Prov, Lista_Campo::Provenienze, 0, 26},
    {C::MetodoPesca, Lista_Campo::Codificata, 1, 29},
    {C::Pezzatura, Lista_Campo::Codificata, 2, 30},
    {C::StatoFisico, Lista_Campo::Codificata, 3, 31},
    {C::Lavorazione, Lista_Campo::Codificata, 4, 34},
    {C::Preparazione, Lista_Campo::Codificata, 5, nessuno},
    {C::PrimoImb, Lista_Campo::Codificata, 6, 8},
    {C::Allergeni, Lista_Campo::Codificata, 7, nessuno},
};

TEST(ListeCampi, OgniCampoLaSuaEIlPassoDopo) {
  for (const Caso& caso : casi) {
    Giornata_Di_Prova g;
    g.Apri();
    FuocoCampo(g.programma, g.edita, Indice(C::Num));
    g.edita.List1.visibile = true;
    g.Fuoco();
    const Finestra_Campo* finestra = FinestraDelCampo(Indice(caso.aperto));
    ASSERT_NE(finestra, nullptr);
    EXPECT_EQ(finestra->lista, caso.lista);
    EXPECT_EQ(finestra->tipo, caso.tipo);
    Campo(g.edita, caso.aperto).attivo = true;
    ASSERT_TRUE(ApriListaCampo(g.edita, Indice(caso.aperto)));
    EXPECT_EQ(g.edita.richiesta, Richiesta::Lista_Campo);
    EXPECT_FALSE(Campo(g.edita, caso.aperto).attivo);
    EXPECT_FALSE(g.edita.List1.visibile);
    EXPECT_TRUE(Occupata(g.edita));
    EXPECT_FALSE(ApriListaCampo(g.edita, Indice(C::Specie)));
    ChiudiListaCampo(g.edita);
    EXPECT_TRUE(Campo(g.edita, caso.aperto).attivo);
    EXPECT_FALSE(Occupata(g.edita));
    EXPECT_EQ(g.Fuoco(), caso.fuoco) << static_cast<int>(caso.aperto);
    ChiudiListaCampo(g.edita);
    EXPECT_EQ(g.Fuoco(), nessuno);
  }
}

TEST(ListeCampi, DaiCampiFuoriDalFlussoLaTastieraTornaDoveEra) {
  Giornata_Di_Prova g;
  g.Apri();
  FuocoCampo(g.programma, g.edita, Indice(C::Preparazione));
  ASSERT_TRUE(DestroCampo(g.edita, Indice(C::Preparazione)));
  ChiudiListaCampo(g.edita);
  EXPECT_EQ(g.Fuoco(), 31);
}

TEST(ListeCampi, IlTastoDestroApreSoloICampiConUnaLista) {
  for (int i = 0; i < Num_Campi; ++i) {
    Giornata_Di_Prova g;
    g.Apri();
    g.edita.Text1[static_cast<std::size_t>(i)].attivo = true;
    const auto campo = static_cast<C>(i + 1);
    const bool con_lista =
        campo != C::Allergeni && std::ranges::any_of(casi, [&](const Caso& c) { return c.aperto == campo; });
    EXPECT_EQ(DestroCampo(g.edita, i), con_lista) << i;
  }
}

TEST(ListeCampi, UnCampoFermoNonSiApreColDestroMaColBottone) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Segna(5);
  EXPECT_FALSE(DestroCampo(g.edita, Indice(C::Fornitore)));
  ASSERT_TRUE(ApriListaCampo(g.edita, Indice(C::Fornitore)));
  CopiaFornitore(g.programma, g.edita, "Mare Blu", "6,5");
  ChiudiListaCampo(g.edita);
  EXPECT_EQ(g[C::Fornitore], "Mare Blu");
  EXPECT_FALSE(Campo(g.edita, C::Fornitore).attivo);
}

TEST(ListeCampi, LeCopieScrivonoIlCampoChiusoEAbilitanoIComandi) {
  Giornata_Di_Prova g;
  g.Apri();
  ASSERT_TRUE(ApriListaCampo(g.edita, Indice(C::Cliente)));
  CopiaCliente(g.edita, "Trattoria Lido", "00124");
  EXPECT_EQ(g[C::Cliente], "Trattoria Lido");
  EXPECT_EQ(g[C::CodCliente], "00124");
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
  ChiudiListaCampo(g.edita);

  ASSERT_TRUE(ApriListaCampo(g.edita, Indice(C::Specie)));
  CopiaSpecie(g.programma, g.edita,
              {"22", "Scampo (vivo)", "Nephrops norvegicus", "Crostacei", "SC", "Scampo", "7", "NEP"});
  EXPECT_EQ(g[C::Specie], "Scampo");
  EXPECT_EQ(g[C::Iva], "22");
  EXPECT_EQ(g[C::Alfa], "NEP");
  ChiudiListaCampo(g.edita);

  g.programma.preferenze.FlagLottiAutomatici = true;
  ASSERT_TRUE(ApriListaCampo(g.edita, Indice(C::Fornitore)));
  CopiaFornitore(g.programma, g.edita, "Mare Blu", "6.5");
  EXPECT_EQ(g[C::Provvigione], "6,5");
  EXPECT_EQ(g[C::Lotti], "MB250313");
  ChiudiListaCampo(g.edita);
}

TEST(ListeCampi, DodiciBottoniCheSiNascondono) {
  Giornata_Di_Prova g;
  g.Apri();
  ASSERT_EQ(Finestre_Campi().size(), 12U);
  const auto visibili = [&] {
    return std::ranges::count_if(Finestre_Campi(), [&](const Finestra_Campo& f) {
      const Stato_Comando stato = StatoComando(g.programma, g.edita, f.nome);
      EXPECT_TRUE(stato.attivo) << f.nome;
      return stato.visibile;
    });
  };
  EXPECT_EQ(visibili(), 12);
  MostraNascondeBottoni(g.edita);
  EXPECT_EQ(visibili(), 0);
  MostraNascondeBottoni(g.edita);
  EXPECT_EQ(visibili(), 12);
}

TEST(Mappe, F1IlMediterraneoEF11IlMondo) {
  const std::pair<Tasto, Richiesta> tasti[] = {{Tasto::F1, Richiesta::Mappa_Mediterraneo},
                                               {Tasto::F11, Richiesta::Mappa_Mondo}};
  for (const auto& [tasto, mappa] : tasti) {
    Giornata_Di_Prova g;
    g.Apri();
    g.edita.List1.visibile = true;
    EXPECT_FALSE(g.Premi(C::ZonaP, tasto));  // goes on to the screen
    EXPECT_TRUE(g.PremiSchermo(tasto));
    EXPECT_EQ(g.edita.richiesta, mappa);
    EXPECT_FALSE(g.edita.List1.visibile);
  }
}

TEST(Mappe, LaZonaSceltaEComeScritta) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Fuoco();
  ScegliZona(g.edita, "A083721 - Mar Med. Adratico");
  EXPECT_EQ(g[C::ZonaP], "A083721 - Mar Med. Adratico");
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
  EXPECT_EQ(g.Fuoco(), 18);
  g.edita.attiva = false;
  ScegliZona(g.edita, "altra");
  EXPECT_EQ(g[C::ZonaP], "A083721 - Mar Med. Adratico");
}

}  // namespace

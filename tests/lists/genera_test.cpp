#include "lists/genera.h"

#include "core/giorno.h"
#include "lists/dati.h"
#include "lists/semi.h"
#include "tests/lists/cartella_ditta.h"

using testing::Each;
using testing::Field;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class Generatore : public Cartella_Ditta {
 protected:
  static Lista_Generata Esito(const std::vector<Lista_Generata>& esiti, Vista nome) {
    for (const auto& esito : esiti)
      if (esito.nome == nome) return esito;
    ADD_FAILURE() << "non generato: " << nome;
    return {};
  }
};

TEST_F(Generatore, InUnaCartellaVuotaNasceTuttoSenzaMessaggi) {
  const auto esiti = Genera_Liste(programma);
  EXPECT_THAT(esiti, SizeIs(15));
  EXPECT_THAT(esiti, Each(Field(&Lista_Generata::scritta, true)));
  EXPECT_THAT(esiti, Each(Field(&Lista_Generata::errore, 0)));
  for (const auto& esito : esiti) {
    EXPECT_TRUE(Esiste(esito.nome)) << esito.nome;
    EXPECT_EQ(static_cast<std::size_t>(esito.righe), Righe(Contenuto(esito.nome)).size()) << esito.nome;
  }
  EXPECT_EQ(Esito(esiti, nomi_file::Zone).righe, 83);
  EXPECT_EQ(Esito(esiti, nomi_file::Provenienze).righe, 239);
  EXPECT_EQ(Esito(esiti, nomi_file::Pelmoro).righe, Esito(esiti, nomi_file::Specie).righe);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

// Start-up tells "non esiste.." for each of these that neither it nor its forerunner is there.
TEST_F(Generatore, IlSecondoAvvioTrovaQuelloCheCerca) {
  Genera_Liste(programma);
  for (const Vista nome : {"_2020_Descri32.txt", "_2020_Barca.txt", "_2020_ncv.txt", "_2020_Vettori.txt",
                           "_2020_Fornitori.txt", "_2020_Descri32_Pelmoro.txt"})
    EXPECT_TRUE(Esiste(nome)) << nome;
  Leggi_Pelmoro(programma);
  Leggi_Liste(programma);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_THAT(programma.Vet_Clienti, SizeIs(1));
  EXPECT_EQ(programma.Vet_Fornitori[0][fornitore::CodiceLotto], "ppqq");
}

TEST_F(Generatore, QuelloCheCERestaComE) {
  Scrivi(nomi_file::Specie, "10\tLa nostra\r\n");
  Scrivi("_2020_METODOPESCA.TXT", "AAA nostro\r\n");
  const auto esiti = Genera_Liste(programma);
  EXPECT_FALSE(Esito(esiti, nomi_file::Specie).scritta);
  EXPECT_EQ(Esito(esiti, nomi_file::Specie).errore, 0);
  EXPECT_FALSE(Esito(esiti, nomi_file::Metodi).scritta);
  EXPECT_EQ(Contenuto(nomi_file::Specie), "10\tLa nostra\r\n");
  EXPECT_EQ(Contenuto(nomi_file::Metodi), "AAA nostro\r\n");
}

TEST_F(Generatore, LaSecondaVoltaNonScriveNulla) {
  Genera_Liste(programma);
  EXPECT_THAT(Genera_Liste(programma), Each(Field(&Lista_Generata::scritta, false)));
}

// A firm that comes from the older generation would lose its lists and numbers to the defaults.
TEST_F(Generatore, NonCopreIFileDellaVersionePrecedente) {
  const std::tuple<Vista, Vista> coppie[] = {
      {"_Descri32.txt", nomi_file::Specie}, {"_Fornitori.txt", nomi_file::Fornitori},
      {"_Barca.txt", nomi_file::Barche},    {"_Vettori.txt", nomi_file::Vettori},
      {"ncv.txt", "_2020_ncv.txt"},         {"_CLIENTI_Anag_banca.txt", nomi_file::Clienti}};
  for (const auto& [vecchio, nuovo] : coppie) Scrivi(vecchio, "x\r\n");
  const auto esiti = Genera_Liste(programma);
  for (const auto& [vecchio, nuovo] : coppie) {
    EXPECT_FALSE(Esiste(nuovo)) << nuovo;
    EXPECT_FALSE(Esito(esiti, nuovo).scritta);
    EXPECT_EQ(Esito(esiti, nuovo).precedente, vecchio);
  }
  EXPECT_TRUE(Esiste(nomi_file::Pelmoro));
}

TEST_F(Generatore, UnGuastoSiDiceNellEsitoEGliAltriFileNascono) {
  Disco_Pieno(nomi_file::Pelmoro);
  const auto esiti = Genera_Liste(programma);
  EXPECT_EQ(Esito(esiti, nomi_file::Pelmoro).errore, ENOSPC);
  EXPECT_FALSE(Esito(esiti, nomi_file::Pelmoro).scritta);
  EXPECT_TRUE(Esito(esiti, nomi_file::Zone).scritta);
  EXPECT_FALSE(Esiste(nomi_file::Pelmoro));
}

TEST_F(Generatore, ANumeriNonScrittiLErroreDelDisco) {
  Disco_Pieno("_2020_ncv.txt");
  const auto esito = Esito(Genera_Liste(programma), "_2020_ncv.txt");
  EXPECT_FALSE(esito.scritta);
  EXPECT_EQ(esito.errore, ENOSPC);
}

TEST_F(Generatore, LEsitoInParole) {
  const std::tuple<Lista_Generata, Testo> prove[] = {
      {{"a", true, 0, 83, ""}, "scritto, 83 righe"},
      {{"a", true, 0, 1, ""}, "scritto, 1 riga"},
      {{"a", false, 0, 0, ""}, "già presente"_t},
      {{"a", false, 0, 0, "_Barca.txt"}, "resta quello della versione precedente, _Barca.txt"},
      {{"a", false, ENOSPC, 0, ""}, "errore 28: " + Testo_Errore(ENOSPC)}};
  for (const auto& [lista, parole] : prove) EXPECT_EQ(Esito_In_Parole(lista), parole);
  const Lista_Generata scritta = std::get<0>(prove[0]), presente = std::get<0>(prove[2]),
                       errata = std::get<0>(prove[4]);
  EXPECT_EQ(Riassunto({scritta, presente}), "Scritto un file.");
  EXPECT_EQ(Riassunto({scritta, scritta}), "Scritti 2 file.");
  EXPECT_EQ(Riassunto({presente}), "Le liste ci sono tutte, nessun file da scrivere.");
  EXPECT_EQ(Riassunto({scritta, errata}), "Un file non è stato scritto."_t);
  EXPECT_EQ(Riassunto({errata, errata}), "2 file non sono stati scritti.");
  EXPECT_TRUE(Con_Errori({scritta, errata}));
  EXPECT_FALSE(Con_Errori({scritta, presente}));
}

TEST_F(Generatore, IlProgrammaRiparteQuandoLaCartellaELibera) {
  using P = Passo_Ripartenza;
  struct Caso {
    Ripartenza stato;
    bool libera;
    P passo;
  };
  const Caso prove[] = {
      {{false, false, 1.9, 0}, true, P::Resta},      {{false, false, 2, 0}, true, P::Avvia},
      {{false, true, 0, 0}, true, P::Avvia},         {{false, true, 0, 0}, false, P::Aspetta},
      {{false, false, 6.9, 4.9}, false, P::Aspetta}, {{false, false, 7, 5}, false, P::Occupata},
      {{true, false, 60, 0}, true, P::Resta},        {{true, true, 1, 0}, true, P::Avvia}};
  for (const auto& [stato, libera, passo] : prove) EXPECT_EQ(Prossimo_Passo(stato, libera), passo);
}

TEST_F(Generatore, LaCartellaConUnProgrammaDentroNonELibera) {
  EXPECT_TRUE(Cartella_Libera(programma.Cartella_Dati));
  Blocco_Cartella blocco;
  ASSERT_TRUE(blocco.Prendi(programma.Cartella_Dati));
  EXPECT_FALSE(Cartella_Libera(programma.Cartella_Dati));
  blocco.Lascia();
  EXPECT_TRUE(Cartella_Libera(programma.Cartella_Dati));
}

TEST(Elenco_Di_Riferimento, OttoColonneCompleteCodiciUnici) {
  const auto elenco = Seme_Specie();
  EXPECT_GT(elenco.size(), 600U);
  std::set<Testo> descrizioni, alfa, codici;
  for (const auto& riga : elenco) {
    for (const Testo& campo : riga) EXPECT_NE(campo, "") << riga[specie::Descrizione];
    EXPECT_EQ(riga[specie::Iva], "10");
    EXPECT_EQ(riga[specie::CodiceMercato].size(), 5U);
    EXPECT_EQ(riga[specie::Alfa].size(), 3U);
    EXPECT_THAT(riga[specie::Famiglia], testing::AnyOf("Altro", "Crostacei", "Molluschi", "Pesci"));
    EXPECT_THAT(riga[specie::NomeLatino], testing::Not(testing::HasSubstr("?"))) << "fuori dal codice";
    EXPECT_GE(riga[specie::Descrizione].size(), 3U);
    descrizioni.insert(Minuscolo(riga[specie::Descrizione]));
    alfa.insert(riga[specie::Alfa]);
    codici.insert(riga[specie::CodiceMercato]);
  }
  EXPECT_EQ(descrizioni.size(), elenco.size());
  EXPECT_EQ(alfa.size(), elenco.size());
  EXPECT_EQ(codici.size(), elenco.size());
}

TEST(Elenco_Di_Riferimento, SpecieParlanti) {
  const std::array<Testo, 3> note[] = {{"SBG", "Orata", "Sparus aurata"},
                                       {"SOL", "Sogliola", "Solea solea"},
                                       {"MTS", "Canocchia o Pannocchia", "Squilla mantis"},
                                       {"BSS", "Spigola o Branzino", "Dicentrarchus labrax"},
                                       {"KCP", "Abadeco (Genypterus capensis)", "Genypterus capensis"}};
  const auto elenco = Seme_Specie();
  for (const auto& [alfa, descrizione, latino] : note) {
    const auto riga = std::find_if(elenco.begin(), elenco.end(),
                                   [&codice = alfa](const auto& r) { return r[specie::Alfa] == codice; });
    ASSERT_NE(riga, elenco.end()) << alfa;
    EXPECT_EQ((*riga)[specie::Descrizione], descrizione);
    EXPECT_EQ((*riga)[specie::NomeLatino], latino);
    EXPECT_EQ((*riga)[specie::NomeFattura], descrizione.substr(0, descrizione.find(" (")));
  }
}

TEST(Dati_Incorporati, UnNomeSconosciutoEVuoto) {
  EXPECT_THAT(Dato_Incorporato("niente.tsv"), IsEmpty());
  EXPECT_THAT(Righe_Incorporate("niente.tsv"), IsEmpty());
  EXPECT_THAT(Dato_Incorporato("zone.tsv"), testing::Not(IsEmpty()));
}

}  // namespace

#include "lists/semi.h"
#include "tests/lists/cartella_ditta.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using Fornitori = Cartella_Ditta;

TEST_F(Fornitori, UnaRigaDiCinqueCaratteriNonEUnFornitore) {
  Scrivi(nomi_file::Fornitori,
         "0001\t\r\n0001\tX\r\n\r\n0002\tMare\tdi Mario\tvia\tcitta\t9\t 6,5 \tpp\tIT\textra\r\n");
  Leggi_Fornitori(programma);
  ASSERT_THAT(programma.Vet_Fornitori, SizeIs(2));
  EXPECT_EQ(programma.Vet_Fornitori[0][fornitore::RagioneSociale1], "X");
  EXPECT_THAT(programma.Vet_Fornitori[1],
              ElementsAre("0002", "Mare", "di Mario", "via", "citta", "9", "6,5", "pp", "IT"));
}

TEST_F(Fornitori, LaProvvigionePrendeIlSeparatoreDellaMacchina) {
  struct Caso {
    char separatore;
    Testo scritta, letta;
  };
  const Caso prove[] = {
      {',', "6.5", "6,5"}, {'.', "6,5", "6.5"}, {',', "6,5", "6,5"}, {'.', "10", "10"}, {',', "", ""}};
  for (const auto& [separatore, scritta, letta] : prove) {
    programma.Separatore_Decimale = separatore;
    Scrivi(nomi_file::Fornitori, "0001\tMare Blu\t\t\t\t\t" + scritta + "\tpp\t\r\n");
    Leggi_Fornitori(programma);
    EXPECT_EQ(programma.Vet_Fornitori[0][fornitore::Provvigione], letta);
    EXPECT_EQ(Provvigione_Fornitore(programma, " MARE blu "), letta);
  }
}

TEST_F(Fornitori, SenzaFileDueEsempiENessunFile) {
  Leggi_Fornitori(programma);
  ASSERT_THAT(programma.Vet_Fornitori, SizeIs(2));
  for (const auto& riga : programma.Vet_Fornitori) EXPECT_EQ(riga[fornitore::Provvigione], "0");
  EXPECT_FALSE(Esiste(nomi_file::Fornitori));
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Fornitori, IlFilePredefinitoSiDiceESiScrive) {
  ASSERT_TRUE(Scrivi_Fornitori_Predefiniti(programma));
  EXPECT_THAT(macchina.messaggi, ElementsAre(Testo_Percorso(File(nomi_file::Fornitori)) +
                                             "....non trovato...\nScrivo il file di default... "));
  Leggi_Fornitori(programma);
  ASSERT_THAT(programma.Vet_Fornitori, SizeIs(1));
  const auto& riga = programma.Vet_Fornitori[0];
  EXPECT_EQ(riga[fornitore::Codice], "0001");
  EXPECT_EQ(riga[fornitore::Provvigione], "6,5");
  EXPECT_EQ(riga[fornitore::CodiceLotto], "ppqq");
  for (std::size_t i = 0; i <= fornitore::PIva; ++i) EXPECT_NE(riga[i], "");
  EXPECT_THAT(Contenuto(nomi_file::Fornitori), testing::EndsWith("\t6.5\tppqq\r\n"));
}

TEST_F(Fornitori, IlFileDellaDittaNonDiventaQuelloPredefinito) {
  Scrivi(nomi_file::Fornitori, "0007\tLa Nostra\r\n");
  EXPECT_TRUE(Scrivi_Fornitori_Predefiniti(programma));
  EXPECT_EQ(Contenuto(nomi_file::Fornitori), "0007\tLa Nostra\r\n");
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Fornitori, CodiceLottoEProvvigioneDiChiNonCE) {
  programma.Vet_Fornitori = {{"0001", "Mare Blu", "", "", "", "", "5", "mb"},
                             {"0002", "Mare Blu", "", "", "", "", "7", "xx"},
                             {"0003", ""}};
  EXPECT_EQ(Codice_Lotto(programma, "mare blu"), "mb");
  EXPECT_EQ(Provvigione_Fornitore(programma, "Mare Blu"), "5");
  EXPECT_EQ(Codice_Lotto(programma, "Mare"), "");
  EXPECT_EQ(Provvigione_Fornitore(programma, "Mare"), std::nullopt);
  EXPECT_EQ(Provvigione_Fornitore(programma, ""), std::nullopt);
}

TEST_F(Fornitori, SalvareLasciaFuoriIlCancellatoEUnGuastoLasciaTutto) {
  programma.Vet_Fornitori = {{"0001", "A", "", "", "", "", "5", "a", "I"}, {"", "B"}};
  ASSERT_TRUE(Salva_Fornitori(programma));
  EXPECT_EQ(Contenuto(nomi_file::Fornitori), "0001\tA\t\t\t\t\t5\ta\tI\r\n");
  Disco_Pieno(nomi_file::Fornitori);
  programma.Vet_Fornitori[0][fornitore::RagioneSociale1] = "C";
  EXPECT_FALSE(Salva_Fornitori(programma));
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_Su(nomi_file::Fornitori)));
  EXPECT_EQ(Contenuto(nomi_file::Fornitori), "0001\tA\t\t\t\t\t5\ta\tI\r\n");
}

using Specie = Cartella_Ditta;
constexpr Vista orata = "10\tOrata (Grande)\tSparus aurata\tPesci\t00001\tOrata\t1\tSBG\r\n";

TEST_F(Specie, OttoCampiEIlTrattinoDoveMancaIlCodice) {
  Scrivi(nomi_file::Specie, Testo(orata) + "4\tMista\t\tAltro\t00002\tMista\t2\t  \r\n10\tCorta\r\n");
  Leggi_Specie(programma);
  ASSERT_THAT(programma.Vet_Specie, SizeIs(3));
  EXPECT_THAT(programma.Vet_Specie[0],
              ElementsAre("10", "Orata (Grande)", "Sparus aurata", "Pesci", "00001", "Orata", "1", "SBG"));
  EXPECT_EQ(programma.Vet_Specie[1][specie::Alfa], "-");
  EXPECT_EQ(programma.Vet_Specie[2][specie::Alfa], "-");
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Specie, SenzaElencoSiPrendeQuelloDiRiferimento) {
  Scrivi(nomi_file::Pelmoro, orata);
  Leggi_Pelmoro(programma);
  Leggi_Specie(programma);
  EXPECT_EQ(programma.Vet_Specie, programma.Vet_Pelmoro);
  EXPECT_EQ(Contenuto(nomi_file::Specie), orata);
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("file: " + Testo_Percorso(File(nomi_file::Specie)) +
                          "\ndescriz32.txt   assente\ndescriz.txt     assente\ngenero il file di default"));
}

TEST_F(Specie, SenzaNessunElencoNonSiPossonoInserireDati) {
  Leggi_Specie(programma);
  EXPECT_THAT(programma.Vet_Specie, SizeIs(1));
  const Testo percorso = Testo_Percorso(File(nomi_file::Specie));
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("NON trovo il file:\n" + percorso,
                          "file: " + percorso +
                              "\ndescriz32.txt   assente\ndescriz.txt     assente\nspecie32.txt    assente\n"
                              "genero un file temporaneo ma non sarà possibile inserire dati"_t));
  EXPECT_FALSE(Esiste(nomi_file::Specie));
}

TEST_F(Specie, SalvareLasciaFuoriChiNonHaAliquota) {
  programma.Vet_Specie = {{"10", "A", "", "", "", "", "", "-"}, {"", "B"}};
  ASSERT_TRUE(Salva_Specie(programma));
  EXPECT_EQ(Contenuto(nomi_file::Specie), "10\tA\t\t\t\t\t\t-\r\n");
  Disco_Pieno(nomi_file::Specie);
  programma.Vet_Specie[0][specie::Iva] = "22";
  EXPECT_FALSE(Salva_Specie(programma));
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_Su(nomi_file::Specie)));
}

using Zone = Cartella_Ditta;

TEST_F(Zone, IlFileCheMancaRinasceConOttantatreRighe) {
  for (int volta = 0; volta < 2; ++volta) {
    Leggi_Zone(programma);
    ASSERT_THAT(programma.Vet_Zone, SizeIs(83));
    ASSERT_EQ(programma.disco.Cancella(File(nomi_file::Zone)), 0);
  }
  const std::array<Testo, 2> parlanti[] = {
      {"A0018 - Mar Artico", "FAO n.18"},
      {"A0121 - Atlantico nord-occidentale", "FAO n.21"},
      {"A0227 - Atlantico nord-orientale", "FAO n.27"},
      {"A02271 - Mar di Barents", "FAO n.27 I"},
      {"A022710a - Azores grounds", "FAO n.27 XA"},
      {"A02273d - Mar Baltico", "FAO n.27 IIId"},
      {"A0327 - Mar Baltico", "FAO n.27 IIId"},
      {"A0837 - Mar Mediterraneo", "FAO n.37"},
      {"A083721 - Mediterraneo Adriatico", "FAO n.37.2.1"},
      {"A09374 - Mar Nero", "FAO n.37.4"},
      {"A1258 - Oceano Indiano Antartico", "FAO n.58"},
      {"A02273a - Skagerrak e Kattegat", "FAO n.27 IIIa"},
      {"B - Prodotto della pesca in acqua dolce", "Pesca in acqua dolce"},
      {"C - Prodotto di acquacoltura", "Allevato"}};
  for (const auto& riga : parlanti) EXPECT_THAT(programma.Vet_Zone, testing::Contains(riga)) << riga[0];
  EXPECT_EQ(programma.Vet_Zone[81][zona::Codice], "Pesca in acqua dolce");
  EXPECT_EQ(programma.Vet_Zone[82][zona::Codice], "Allevato");
}

// Documents look a zone up by what stands before the first "-".
TEST_F(Zone, OgniZonaHaUnCodiceSuo) {
  Leggi_Zone(programma);
  std::set<Testo> codici;
  for (const auto& riga : programma.Vet_Zone)
    codici.emplace(Pulito(Vista(riga[zona::Etichetta]).substr(0, riga[zona::Etichetta].find('-'))));
  EXPECT_EQ(codici.size(), 83U);
}

TEST_F(Zone, OgniAreaHaLaSuaRigaTraLeZone) {
  Leggi_Zone(programma);
  for (const Vista area : {"18", "21", "27", "31", "34", "37", "41", "47", "48", "51", "57", "58", "61", "67",
                           "71", "77", "81", "87", "88"}) {
    int righe = 0;
    for (const auto& riga : programma.Vet_Zone)
      if (riga[zona::Codice] == "FAO n." + Testo(area) &&
          riga[zona::Etichetta].substr(3, 4) == Testo(area) + " -")
        ++righe;
    EXPECT_EQ(righe, 1) << area;
  }
}

TEST_F(Zone, RigheVuoteSaltateECodiceMancanteTrattino) {
  Scrivi(nomi_file::Zone,
         "A0837 - Mar Mediterraneo\tFAO n.37\tresto\r\n   \r\n\r\nX - Senza\t  \r\nY - Solo\r\n");
  Leggi_Zone(programma);
  ASSERT_THAT(programma.Vet_Zone, SizeIs(3));
  EXPECT_THAT(programma.Vet_Zone[0], ElementsAre("A0837 - Mar Mediterraneo", "FAO n.37"));
  EXPECT_THAT(programma.Vet_Zone[1], ElementsAre("X - Senza", "-"));
  EXPECT_THAT(programma.Vet_Zone[2], ElementsAre("Y - Solo", "-"));
}

TEST_F(Zone, ColDiscoPienoLeZoneValgonoInMemoria) {
  Disco_Pieno(nomi_file::Zone);
  Leggi_Zone(programma);
  EXPECT_THAT(programma.Vet_Zone, SizeIs(83));
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_Su(nomi_file::Zone)));
}

TEST_F(Zone, CheNienteSiPuoScrivereNonSiRidice) {
  Disco_Pieno(nomi_file::Zone);
  programma.Errore_Cartella = ENOSPC;
  Leggi_Zone(programma);
  EXPECT_THAT(programma.Vet_Zone, SizeIs(83));
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_FALSE(Salva_Zone(programma));  // a change that isn't kept is news
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_Su(nomi_file::Zone)));
}

TEST_F(Zone, SalvareLasciaFuoriLeRigheSenzaEtichetta) {
  programma.Vet_Zone = {{"A1", "x"}, {"", "y"}};
  ASSERT_TRUE(Salva_Zone(programma));
  EXPECT_EQ(Contenuto(nomi_file::Zone), "A1\tx\r\n");
}

using Vettori = Cartella_Ditta;

TEST_F(Vettori, DueCaratteriNonSonoUnVettore) {
  Scrivi(nomi_file::Vettori, " ab \r\nabc\r\nTrasporti\tvia\tcitta\tquarto\tquinto\r\n");
  Leggi_Vettori(programma);
  ASSERT_THAT(programma.Vet_Vettori, SizeIs(2));
  EXPECT_THAT(programma.Vet_Vettori[0], ElementsAre("abc", "", ""));
  EXPECT_THAT(programma.Vet_Vettori[1], ElementsAre("Trasporti", "via", "citta"));
}

TEST_F(Vettori, SenzaFileUnEsempioENessunFile) {
  Leggi_Vettori(programma);
  ASSERT_THAT(programma.Vet_Vettori, SizeIs(1));
  EXPECT_THAT(programma.Vet_Vettori[0],
              ElementsAre("Forserivo di Noso Sicuro", "via Setetrovo, 22", "Isola che non c'è"_t));
  EXPECT_FALSE(Esiste(nomi_file::Vettori));
}

// The default line has five fields; its second name line counts as the street.
TEST_F(Vettori, DelFilePredefinitoSiLeggonoTreCampi) {
  ASSERT_TRUE(Scrivi_Vettori_Predefiniti(programma));
  const Testo contenuto = Contenuto(nomi_file::Vettori);
  ASSERT_THAT(Righe(contenuto), SizeIs(1));
  EXPECT_EQ(std::count(contenuto.begin(), contenuto.end(), TAB), 4);
  Leggi_Vettori(programma);
  Vista riga = contenuto;
  EXPECT_EQ(programma.Vet_Vettori[0][0], Prossimo_Campo(riga));
  EXPECT_EQ(programma.Vet_Vettori[0][1], Prossimo_Campo(riga));
  EXPECT_EQ(programma.Vet_Vettori[0][2], Prossimo_Campo(riga));
  Scrivi(nomi_file::Vettori, "Nostro\ta\tb\r\n");
  EXPECT_TRUE(Scrivi_Vettori_Predefiniti(programma));
  EXPECT_EQ(Contenuto(nomi_file::Vettori), "Nostro\ta\tb\r\n");
}

TEST_F(Vettori, SalvareEGuasto) {
  programma.Vet_Vettori = {{"Uno", "a", "b"}, {"", "c", "d"}};
  ASSERT_TRUE(Salva_Vettori(programma));
  EXPECT_EQ(Contenuto(nomi_file::Vettori), "Uno\ta\tb\r\n");
  programma.Vet_Vettori[0][0] = "Due";
  Disco_Pieno(nomi_file::Vettori);
  EXPECT_FALSE(Salva_Vettori(programma));
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_Su(nomi_file::Vettori)));
}

// A file that is there and can't be read must not be lost to the empty table that it leaves.
TEST_F(Vettori, UnFileCheNonSiLeggeNonSiRiscrive) {
  std::filesystem::create_symlink("/proc/self/mem",
                                  File(nomi_file::Vettori));  // is there, and reads as an error
  Leggi_Vettori(programma);
  EXPECT_THAT(programma.Vet_Vettori, IsEmpty());
  const Testo errore =
      "Errore =" + std::to_string(EIO) + "  aprendo il file " + Testo_Percorso(File(nomi_file::Vettori));
  EXPECT_THAT(macchina.messaggi, ElementsAre(errore));
  EXPECT_FALSE(Salva_Vettori(programma));
  EXPECT_THAT(macchina.messaggi, ElementsAre(errore, errore));
}

}  // namespace

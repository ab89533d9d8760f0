#include <chrono>

#include "tests/lists/cartella_ditta.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using Clienti = Cartella_Ditta;

TEST_F(Clienti, NoveCampiNellOrdineDelFile) {
  Scrivi(
      nomi_file::Clienti,
      "00012\tLaguna Pesca\tlaguna\tvia Roma, 1\t30100 Venezia\t99010000000\tESCLUSO\tRISTORANTE\t IT60 X\r\n"
      "00013\t Due \tdue\t\t\t\t-\t-\t\r\n");
  Leggi_Clienti(programma);
  ASSERT_THAT(programma.Vet_Clienti, SizeIs(2));
  EXPECT_THAT(programma.Vet_Clienti[0],
              ElementsAre("00012", "Laguna Pesca", "laguna", "via Roma, 1", "30100 Venezia", "99010000000",
                          "ESCLUSO", "RISTORANTE", " IT60 X"));
  EXPECT_EQ(programma.Vet_Clienti[1][cliente::RagioneSociale1], "Due");
}

TEST_F(Clienti, IlNonoCampoEIlRestoDellaRigaEResiste) {
  const Vista riga = "00001\tA\tB\tC\tD\tE\t-\t-\tIT1\tnota\t \r\n";
  Scrivi(nomi_file::Clienti, riga);
  Leggi_Clienti(programma);
  EXPECT_EQ(programma.Vet_Clienti[0][cliente::Iban], "IT1\tnota\t ");
  programma.Vet_Clienti.push_back({"00002", "X", "x", "", "", "", "-", "-", ""});
  ASSERT_TRUE(Salva_Clienti(programma));
  EXPECT_EQ(Contenuto(nomi_file::Clienti), Testo(riga) + "00002\tX\tx\t\t\t\t-\t-\t\r\n");
}

// Customers without a nickname come last in the order of nicknames; the mark is in the firms' files.
TEST_F(Clienti, ChiNonHaSoprannomeStaInFondo) {
  Scrivi(nomi_file::Clienti, "00001\tSenza\t  \tC\tD\tE\t-\t-\t\r\n00002\tCorta\r\n");
  Leggi_Clienti(programma);
  EXPECT_EQ(programma.Vet_Clienti[0][cliente::Soprannome], "zz");
  EXPECT_EQ(programma.Vet_Clienti[1][cliente::Soprannome], "zz");
  ASSERT_TRUE(Salva_Clienti(programma));
  EXPECT_THAT(Contenuto(nomi_file::Clienti), testing::HasSubstr("00001\tSenza\tzz\tC"));

  // The blanks at the end of a line stay, and are no nickname: saved and read again, the list is the same.
  Scrivi(nomi_file::Clienti, "00001\tSenza\t ");
  Leggi_Clienti(programma);
  EXPECT_EQ(programma.Vet_Clienti[0][cliente::Soprannome], "zz");
}

TEST_F(Clienti, UnaRigaCortaHaVuotiICampiCheMancano) {
  Scrivi(nomi_file::Clienti, "00001\tSolo nome \r\n");
  Leggi_Clienti(programma);
  EXPECT_THAT(programma.Vet_Clienti[0], ElementsAre("00001", "Solo nome ", "zz", "", "", "", "", "", ""));
}

TEST_F(Clienti, IlFileNuovoValePiuDeiVecchi) {
  Scrivi(nomi_file::Clienti, "00001\tNuovo\tn\r\n");
  Scrivi(nomi_file::Clienti_16, "00002\tVecchio\tv\r\n");
  Scrivi(nomi_file::Clienti_Banca, "x\r\ny\r\n3\tBanca\r\n");
  Leggi_Clienti(programma);
  ASSERT_THAT(programma.Vet_Clienti, SizeIs(1));
  EXPECT_EQ(programma.Vet_Clienti[0][cliente::RagioneSociale1], "Nuovo");
}

TEST_F(Clienti, IlFileASeiCampiSiLeggeSenzaScrivere) {
  Scrivi(nomi_file::Clienti_16, "00002\tVecchio\tv\tvia\tcitta\t99010000000 cf XX\tperso\r\n00003\tB\tb\r\n");
  Leggi_Clienti(programma);
  ASSERT_THAT(programma.Vet_Clienti, SizeIs(2));
  EXPECT_THAT(programma.Vet_Clienti[0],
              ElementsAre("00002", "Vecchio", "v", "via", "citta", "99010000000", "-", "-", ""));
  EXPECT_THAT(programma.Vet_Clienti[1], ElementsAre("00003", "B", "b", "", "", "", "-", "-", ""));
  EXPECT_FALSE(Esiste(nomi_file::Clienti));
}

TEST_F(Clienti, IlRegistroDellaBancaSiConverteUnaVolta) {
  Scrivi(nomi_file::Clienti_Banca,
         "intestazione\r\naltra\r\n"
         "12\tPesce Fresco\tscartato\tvia Mare, 3\t30015\tChioggia\t 1234567890 \r\n"
         "123456\tLungo\t\tvia\t31100\tTreviso\tTREVISO\r\n"
         "\r\n");
  Leggi_Clienti(programma);
  const Vista atteso =
      "00012\tPesce Fresco\t-\tvia Mare, 3\t30015 Chioggia (VE)\t01234567890\t \t \t \r\n"
      "123456\tLungo\t-\tvia\t31100 Treviso (VE)\tTREVISO\t \t \t \r\n";
  EXPECT_EQ(Contenuto(nomi_file::Clienti), atteso);
  ASSERT_THAT(programma.Vet_Clienti, SizeIs(2));
  EXPECT_THAT(programma.Vet_Clienti[0], ElementsAre("00012", "Pesce Fresco", "-", "via Mare, 3",
                                                    "30015 Chioggia (VE)", "01234567890", "", "", " "));
}

TEST_F(Clienti, IlRegistroConvertitoValeAncheSeNonSiPuoScrivere) {
  Scrivi(nomi_file::Clienti_Banca, "a\r\nb\r\n1\tX\t\tv\t1\tC\t2\r\n");
  Disco_Pieno(nomi_file::Clienti);
  Leggi_Clienti(programma);
  ASSERT_THAT(programma.Vet_Clienti, SizeIs(1));
  EXPECT_EQ(programma.Vet_Clienti[0][cliente::PIva], "00000000002");
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_Su(nomi_file::Clienti)));
}

TEST_F(Clienti, UnRegistroDellaBancaDiSolaIntestazioneNonHaClienti) {
  Scrivi(nomi_file::Clienti_Banca, "a\r\nb");
  Leggi_Clienti(programma);
  EXPECT_THAT(programma.Vet_Clienti, IsEmpty());
}

TEST_F(Clienti, SenzaNessunFileUnaRigaDiEsempioEIlMessaggio) {
  Leggi_Clienti(programma);
  ASSERT_THAT(programma.Vet_Clienti, SizeIs(1));
  EXPECT_EQ(programma.Vet_Clienti[0][cliente::Codice], "00000");
  EXPECT_NE(programma.Vet_Clienti[0][cliente::RagioneSociale1], "");
  EXPECT_NE(programma.Vet_Clienti[0][cliente::Soprannome], "");
  for (std::size_t i = cliente::Via; i <= cliente::Iban; ++i) EXPECT_EQ(programma.Vet_Clienti[0][i], "");
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("ATTENZIONE, non è stato trovato nessuno di questi file:\n"_t +
                          Testo_Percorso(File("_Client32.txt")) + "\n" + Testo_Percorso(File("Clienti.txt")) +
                          "\n" + Testo_Percorso(File("_CLIENTI_Anag_banca.txt")) +
                          "\ni clienti devono essere immessi manualmente..."));
  EXPECT_FALSE(Esiste(nomi_file::Clienti));
}

TEST_F(Clienti, IlNomeDelFileValeConQualunqueGrafia) {
  Scrivi("_CLIENT32.TXT", "00001\tA\ta\r\n");
  Leggi_Clienti(programma);
  EXPECT_EQ(programma.Vet_Clienti[0][cliente::Codice], "00001");
  ASSERT_TRUE(Salva_Clienti(programma));
  EXPECT_FALSE(std::filesystem::exists(programma.Cartella_Dati / "_Client32.txt"));
}

TEST_F(Clienti, SalvareLasciaFuoriLeRigheSenzaCodice) {
  programma.Vet_Clienti = {{"00001", "A", "a"}, {"", "cancellato", "c"}, {"00003", "C\tX\r\n", "c"}};
  ASSERT_TRUE(Salva_Clienti(programma));
  EXPECT_EQ(Contenuto(nomi_file::Clienti), "00001\tA\ta\t\t\t\t\t\t\r\n00003\tCX\tc\t\t\t\t\t\t\r\n");
  EXPECT_THAT(programma.Vet_Clienti, SizeIs(3));
}

TEST_F(Clienti, UnSalvataggioFallitoLasciaFileETabella) {
  Scrivi(nomi_file::Clienti, "00001\tA\ta\r\n");
  programma.Vet_Clienti = {{"00002", "B", "b"}};
  Disco_Pieno(nomi_file::Clienti);
  EXPECT_FALSE(Salva_Clienti(programma));
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_Su(nomi_file::Clienti)));
  EXPECT_EQ(Contenuto(nomi_file::Clienti), "00001\tA\ta\r\n");
  EXPECT_EQ(programma.Vet_Clienti[0][cliente::Codice], "00002");
}

TEST_F(Clienti, CercaPerNomeEPerCodice) {
  programma.Vet_Clienti = {{"00001", "Caffè Ancora"_t}, {"00002", " Mare "}, {"00003", "MARE"}, {"", ""}};
  const std::tuple<Testo, int> nomi[] = {{"CAFFÈ ANCORA"_t, 0}, {"mare", 1}, {"  mare  ", 1},
                                         {"mar", -1},           {"", -1},    {" ", -1}};
  for (const auto& [nome, riga] : nomi) EXPECT_EQ(Cerca_Cliente_Per_Nome(programma, nome), riga) << nome;
  EXPECT_EQ(Cerca_Cliente_Per_Codice(programma, " 00003 "), 2);
  EXPECT_EQ(Cerca_Cliente_Per_Codice(programma, "3"), -1);
}

TEST_F(Clienti, CentomilaClientiSiLeggonoInUnAttimo) {
  Testo contenuto;
  for (int i = 0; i < 100000; ++i) {
    const Testo numero = Pad_Sinistra(std::to_string(i), 5, '0');
    contenuto += numero + "\tPescheria del Porto " + numero + " S.n.c.\tporto" + numero + "\tvia del Mare, " +
                 numero + "\t30015 Chioggia - VE\t99010000000\t-\t-\tIT60L9999910000000000100000\r\n";
  }
  Scrivi(nomi_file::Clienti, contenuto);
  const auto inizio = std::chrono::steady_clock::now();
  Leggi_Clienti(programma);
  const std::chrono::duration<double> durata = std::chrono::steady_clock::now() - inizio;
  ASSERT_THAT(programma.Vet_Clienti, SizeIs(100000));
  EXPECT_EQ(programma.Vet_Clienti.back()[cliente::Codice], "99999");
  // Quadratic reading would take minutes; this limit holds on a busy machine and with sanitizers too.
  EXPECT_LT(durata.count(), 10.0);
  EXPECT_EQ(Cerca_Cliente_Per_Codice(programma, "99999"), 99999);
}

using Esclusi = Cartella_Ditta;

TEST_F(Esclusi, SenzaFileUnSoloCodiceCheNessunoHa) {
  Leggi_Esclusi(programma);
  EXPECT_THAT(programma.Vet_Esclusi, ElementsAre("99999"));
  EXPECT_THAT(programma.Vet_Esclusi_Puliti, ElementsAre("99999"));
}

TEST_F(Esclusi, LaTabellaGemellaESenzaMarchio) {
  Scrivi(nomi_file::Esclusi, "00123\r\n_r_00456\r\n");
  Leggi_Esclusi(programma);
  EXPECT_THAT(programma.Vet_Esclusi, ElementsAre("00123", "_r_00456"));
  EXPECT_THAT(programma.Vet_Esclusi_Puliti, ElementsAre("00123", "00456"));
}

TEST_F(Esclusi, DueCodiciFermanoTreNonFermanoNessuno) {
  struct Caso {
    Testo file, codice;
    int esito;
  };
  const Caso prove[] = {{"11111\r\n22222\r\n", "11111", 999},
                        {"11111\r\n22222\r\n", " 22222 ", 999},
                        {"11111\r\n22222\r\n", "33333", 0},
                        {"11111\r\n22222\r\n33333\r\n", "11111", 0},
                        {"_r_11111\r\n", "11111", 0},
                        {"ABCDE\r\n", "abcde", 999},
                        {"11111\r\n\r\n", "", 0},
                        {"Esclusi\r\n", "00000", 0}};
  for (const auto& [file, codice, esito] : prove) {
    Scrivi(nomi_file::Esclusi, file);
    Leggi_Esclusi(programma);
    EXPECT_EQ(Codice_Escluso(programma, codice), esito) << file << codice;
  }
}

}  // namespace

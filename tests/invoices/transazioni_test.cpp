#include "invoices/transazioni.h"

#include <filesystem>
#include <gmock/gmock.h>

#include "invoices/record.h"
#include "tests/invoices/pagine_di_prova.h"
#include "tests/invoices/taglio.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

const std::vector<Campo_Record> testa = {{"tipo", 2},    {"data", 8},   {"vuoto", 4},
                                         {"mercato", 6}, {"ditta", 10}, {"coda", 270}};
const std::vector<Campo_Record> dettaglio = {{"tipo", 2},   {"zeri", 5},    {"cliente", 5}, {"importo", 15},
                                             {"ditta", 10}, {"testo", 140}, {"coda", 140}};
const std::vector<Campo_Record> chiusura = {
    {"tipo", 2}, {"data", 8}, {"quanti", 18}, {"totale", 15}, {"coda", 257}};

// The day's folder holds the documents of a run: a single page, one of three, two notes.
struct Transazioni : Ditta_Di_Prova, testing::Test {
  Transazioni() { Prepara_Ditta_Fatture(programma); }
  void Documento(const Testo& nome) const { cartella.Metti("2025_fat/20250314/" + nome, "x"); }
  void Giornata() const {
    Documento("00101_FAT_00127_20250314_00042_16170_11.txt");
    for (const char* pagina : {"31", "32", "33"})
      Documento("00345_FAT_00128_20250314_00042_123400_" + Testo(pagina) + ".txt");
    Documento("00101_NAC_NA005_20250314_00042_-1375_11.txt");
    Documento("A7B2C_NAC_NA006_20250314_00042_-5_11.txt");
  }
  Testo File() const { return cartella.Contenuto("XBanca/Transazioni_00042_20250314.txt"); }
  std::vector<Testo> In_XBanca() const {
    std::vector<Testo> nomi;
    for (const Percorso& nome :
         programma.disco.Elenca(cartella / "XBanca", "*").value_or(std::vector<Percorso>()))
      nomi.push_back(Testo_Percorso(nome));
    return nomi;
  }
};

TEST_F(Transazioni, IlFileDellaBancaAlByte) {
  Giornata();
  EXPECT_EQ(ScriviTransazioni(programma, "00345").errore, 0);
  Confronta_Attesa("transazioni.txt", File());
}

// The bank's program cuts by position: a field a place too long spoils all that follow.
TEST_F(Transazioni, IlTaglioDeiCampi) {
  Giornata();
  ScriviTransazioni(programma, "00345");
  const auto record = Record_Di(File());
  ASSERT_THAT(record, SizeIs(6));

  const Record_Tagliato capo(record[0], testa);
  EXPECT_EQ(capo["tipo"], "00");
  EXPECT_EQ(capo["data"], "14032025");
  EXPECT_EQ(capo["vuoto"], "    ");
  EXPECT_EQ(capo["mercato"], "ITTIVE");
  EXPECT_EQ(capo["ditta"], "0000000042");
  EXPECT_EQ(capo["coda"], std::string(270, ' '));

  struct Atteso {
    const char *tipo, *importo, *testo;
  };
  // three pages are one document, by the amount of its first; the minus takes the first place of the field
  const Atteso attesi[] = {{"10", "000000000016170", "FAT n. 00127/2025 per 00101"},
                           {"10", "000000000123400", "FAT n. 00128/2025 per 00345"},
                           {"20", "-00000000001375", "NAC n. NA005/2025 per 00101"},
                           {"20", "-00000000000005", "NAC n. NA006/2025 per A7B2C"}};
  for (std::size_t i = 0; i < std::size(attesi); ++i) {
    EXPECT_EQ(record[i + 1].size(), 317U);
    const Record_Tagliato riga(record[i + 1], dettaglio);
    EXPECT_EQ(riga["tipo"], attesi[i].tipo);
    EXPECT_EQ(riga["zeri"], "00000");
    // not the customer of the document: all records bear the one who was looked up last
    EXPECT_EQ(riga["cliente"], "00345");
    EXPECT_EQ(riga["importo"], attesi[i].importo);
    EXPECT_EQ(riga["ditta"], "0000000042");
    EXPECT_EQ(riga["testo"], std::string(140 - std::string(attesi[i].testo).size(), ' ') + attesi[i].testo);
    EXPECT_EQ(riga["coda"], std::string(140, ' '));
  }

  const Record_Tagliato fine(record.back(), chiusura);
  EXPECT_EQ(fine["tipo"], "99");
  EXPECT_EQ(fine["data"], "14032025");
  EXPECT_EQ(fine["quanti"], "000000000000000004");
  // 161.70 + 1234.00 - 13.75 - 0.05 euro, in cents and times a hundred once more
  EXPECT_EQ(fine["totale"], "000000013819000");
  EXPECT_EQ(fine["coda"], std::string(257, ' '));
}

TEST_F(Transazioni, UnTotaleNegativoHaIlMenoDavanti) {
  Documento("00101_NAC_NA005_20250314_00042_-1375_11.txt");
  ScriviTransazioni(programma, "00101");
  const auto record = Record_Di(File());
  ASSERT_THAT(record, SizeIs(3));
  EXPECT_EQ(Record_Tagliato(record[2], chiusura)["totale"], "-00000000137500");
  EXPECT_EQ(Record_Tagliato(record[2], chiusura)["quanti"], "000000000000000001");
}

TEST_F(Transazioni, SenzaDocumentiTestaECoda) {
  EXPECT_EQ(ScriviTransazioni(programma, "").errore, 0);
  const auto record = Record_Di(File());
  ASSERT_THAT(record, SizeIs(2));
  EXPECT_EQ(Record_Tagliato(record[1], chiusura)["quanti"], std::string(18, '0'));
  EXPECT_EQ(Record_Tagliato(record[1], chiusura)["totale"], std::string(15, '0'));
}

// Ten pages leave a sign of their number behind the amount in the file's name; the record has the amount.
TEST_F(Transazioni, DieciPagineNonGuastanoLImporto) {
  Documento("00101_FAT_00127_20250314_00042_16170_101.txt");
  ScriviTransazioni(programma, "00101");
  EXPECT_EQ(Record_Tagliato(Record_Di(File())[1], dettaglio)["importo"], "000000000016170");
}

TEST_F(Transazioni, CodiciCortiELunghiTengonoIPosti) {
  Giornata();
  for (const auto& [codice, ditta] : {std::pair{"7", "0000000007"}, std::pair{"12345678901", "1234567890"}}) {
    programma.preferenze.Codice_Commissionario = codice;
    EXPECT_EQ(Record_Tagliato(RecordTesta(programma), testa)["ditta"], ditta);
  }
  for (const auto& [codice, cliente] : {std::pair{"7", "00007"}, std::pair{"A12345", "A1234"}}) {
    const Testo record = RecordDettaglio(programma, TipoFattura::Fattura, codice, Riga_Run());
    EXPECT_EQ(Record_Tagliato(record, dettaglio)["cliente"], cliente);
  }
}

TEST_F(Transazioni, ISoliFileDiTestoDellaCartellaVannoVia) {
  Giornata();
  cartella.Metti("XBanca/Transazioni_00042_20250313.TXT", "ieri");
  cartella.Metti("XBanca/20250313.txt", "trasmesso");
  cartella.Metti("XBanca/foglio.ods", "x");
  EXPECT_EQ(ScriviTransazioni(programma, "00345").errore, 0);
  EXPECT_EQ(CancellaAltreTransazioni(programma).errore, 0);
  EXPECT_THAT(In_XBanca(), ElementsAre("foglio.ods", "Transazioni_00042_20250314.txt"));
}

TEST_F(Transazioni, SuUnDiscoPienoRestaIlFileDiPrima) {
  Giornata();
  cartella.Metti("XBanca/Transazioni_00042_20250314.txt", "di prima");
  Disco_Pieno();
  const Esito_File esito = ScriviTransazioni(programma, "00345");
  EXPECT_EQ(esito.errore, ENOSPC);
  EXPECT_EQ(esito.file, FileTransazioni(programma));
  EXPECT_EQ(File(), "di prima");
}

// The bank would take a file without amounts for a day without invoices.
TEST_F(Transazioni, UnGiornoCheNonSiLeggeNonDaTransazioni) {
  cartella.Metti("XBanca/Transazioni_00042_20250314.txt", "di prima");
  const Percorso giorno = CartellaGiornoFatture(programma);
  std::filesystem::create_directories(giorno.parent_path());
  std::filesystem::create_directory_symlink("20250314", giorno);
  const Esito_File esito = ScriviTransazioni(programma, "00345");
  EXPECT_EQ(esito.errore, ELOOP);
  EXPECT_EQ(esito.file, giorno);
  EXPECT_EQ(File(), "di prima");
}

TEST_F(Transazioni, UnaCartellaCheNonSiPuoFareSiDice) {
  cartella.Metti("XBanca", "un file al suo posto");
  const Esito_File esito = ScriviTransazioni(programma, "00345");
  EXPECT_NE(esito.errore, 0);
  EXPECT_EQ(esito.file, cartella / "XBanca");
}

TEST_F(Transazioni, UnFileCheNonSiCancellaSiDiceEGliAltriVanno) {
  Giornata();
  cartella.Metti("XBanca/a.txt", "x");
  cartella.Metti("XBanca/b.txt", "x");
  ScriviTransazioni(programma, "00345");
  programma.disco.guasto = [](const Percorso& file) { return file.filename() == "a.txt" ? EACCES : 0; };
  const Esito_File esito = CancellaAltreTransazioni(programma);
  EXPECT_EQ(esito.errore, EACCES);
  EXPECT_EQ(esito.file.filename(), "a.txt");
  EXPECT_THAT(In_XBanca(), ElementsAre("a.txt", "Transazioni_00042_20250314.txt"));
}

TEST(NumeroRecord, ZeriMenoELunghezza) {
  struct Caso {
    double valore;
    std::size_t lunghezza;
    const char* atteso;
  };
  const Caso casi[] = {{0, 5, "00000"},     {12, 5, "00012"},    {-12, 5, "-0012"},
                       {12.5, 4, "0013"},   {-12.5, 4, "-013"},  {-0.4, 3, "000"},
                       {12345, 5, "12345"}, {-1234, 5, "-1234"}, {123456, 5, "123456"}};
  for (const char separatore : {',', '.'})
    for (const auto& [valore, lunghezza, atteso] : casi)
      EXPECT_EQ(NumeroRecord(valore, lunghezza, separatore), atteso);
}

}  // namespace

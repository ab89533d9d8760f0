#include "invoices/rapporto.h"

#include <gmock/gmock.h>

#include "tests/invoices/pagine_di_prova.h"

// The day's report is made from the names in the folder, whoever put them there.

namespace {

using testing::IsEmpty;
using testing::SizeIs;

struct Rapporto : Ditta_Di_Prova, testing::Test {
  Rapporto() {
    Prepara_Ditta_Fatture(programma);
    std::filesystem::create_directories(CartellaGiornoFatture(programma));
  }
  void Metti(const std::string& nome) const { cartella.Metti("2025_fat/20250314/" + nome, "x"); }
  void Metti_Giornata() const {
    for (const char* nome :
         {"00101_FAT_00127_20250314_00042_123400_11.txt", "00345_FAT_00128_20250314_00042_50_21.txt",
          "00345_FAT_00128_20250314_00042_50_22.txt", "00700_FAT_00129_20250314_00042_1000005_11.txt",
          "00345_NAC_NA005_20250314_00042_-1235_11.txt", "appunti.txt"})
      Metti(nome);
  }
  Testo Report() const { return cartella.Contenuto("2025_fat/Report/20250314_00042_RepFat.txt"); }
  void Scrivi() const {
    EXPECT_EQ(ScriviReport(programma, TipoFattura::Fattura).errore, 0);
    EXPECT_EQ(ScriviReport(programma, TipoFattura::Nota).errore, 0);
  }
};

TEST_F(Rapporto, BytePerByte) {
  Metti_Giornata();
  Scrivi();
  EXPECT_EQ(Report(),
            " \r\n"
            "Report Fatture emesse il 14/03/2025 da: Ittica Laguna\r\n"
            "numero Fatture emesse = 3\r\n"
            " \r\n"
            "Fat n.00127 a: 00101 per euro    1234,00\r\n"
            "Fat n.00128 a: 00345 per euro       0,50\r\n"
            "Fat n.00129 a: 00700 per euro   10000,05\r\n"
            "*************** Totale euro =   11234,55\r\n"
            "\r\n"
            "Note di credito\r\n"
            "numero Note di credito = 1\r\n"
            "\r\n"
            "Nac n.NA005 a: 00345 per euro     -12,35\r\n"
            "*************** Totale euro =     -12,35\r\n");
}

TEST_F(Rapporto, ConLaCartellaVuotaETuttoZero) {
  programma.Separatore_Decimale = '.';
  Scrivi();
  EXPECT_EQ(Report(),
            " \r\nReport Fatture emesse il 14/03/2025 da: Ittica Laguna\r\nnumero Fatture emesse = 0\r\n \r\n"
            "*************** Totale euro =       0.00\r\n"
            "\r\nNote di credito\r\nnumero Note di credito = 0\r\n\r\n"
            "*************** Totale euro =       0.00\r\n");
}

TEST_F(Rapporto, SiRifaDaCapo) {
  Metti_Giornata();
  Scrivi();
  const Testo primo = Report();
  Scrivi();
  EXPECT_EQ(Report(), primo);
}

// The owner reads the total as the day's takings: a document of several pages must not be in it twice.
TEST_F(Rapporto, UnDocumentoDiDuePagineContaUnaVolta) {
  Metti_Giornata();
  const Tabella_Run run = LeggiDocumenti(programma, TipoFattura::Fattura).value();
  ASSERT_THAT(run.righe, SizeIs(3));
  EXPECT_EQ(run.somma, 123400 + 50 + 1000005);
  EXPECT_EQ(run.data, "20250314");
  EXPECT_EQ(run.ditta, "00042");
  const Riga_Run& riga = run.righe[1];
  EXPECT_EQ(riga.codice, "00345");
  EXPECT_EQ(riga.numero, "00128");
  EXPECT_EQ(riga.centesimi, "50");
  EXPECT_EQ(riga.nome, "00345_FAT_00128_20250314_00042_50_21.txt");
}

// A report of no invoices would be believed.
TEST_F(Rapporto, UnaCartellaCheNonSiLeggeNonDaRapporto) {
  Metti_Giornata();
  Scrivi();
  const Testo prima = Report();
  const Percorso giorno = CartellaGiornoFatture(programma);
  std::filesystem::remove_all(giorno);
  std::filesystem::create_directory_symlink("20250314", giorno);
  const Esito_File esito = ScriviReport(programma, TipoFattura::Fattura);
  EXPECT_EQ(esito.errore, ELOOP);
  EXPECT_EQ(esito.file, giorno);
  EXPECT_EQ(Report(), prima);
}

TEST_F(Rapporto, LeNoteHannoLaLoroSomma) {
  Metti_Giornata();
  EXPECT_EQ(LeggiDocumenti(programma, TipoFattura::Nota).value().somma, -1235);
}

TEST_F(Rapporto, UndiciPagineContanoDueVolte) {
  for (int pagina = 1; pagina <= 11; ++pagina)
    Metti("00345_FAT_00128_20250314_00042_50_11" + std::to_string(pagina) + ".txt");
  const Tabella_Run run = LeggiDocumenti(programma, TipoFattura::Fattura).value();
  EXPECT_THAT(run.righe, SizeIs(2));  // pages 1 and 11 end in the same digit
  EXPECT_EQ(run.somma, 100);
}

TEST_F(Rapporto, UnaPaginaSenzaLaPrimaLasciaUnaRigaVuota) {
  EXPECT_THAT(LeggiDocumenti(programma, TipoFattura::Fattura).value().righe, IsEmpty());
  Metti("00345_FAT_00128_20250314_00042_50_22.txt");
  const Tabella_Run run = LeggiDocumenti(programma, TipoFattura::Fattura).value();
  ASSERT_THAT(run.righe, SizeIs(1));
  EXPECT_EQ(run.righe[0].nome, "");
  EXPECT_EQ(run.somma, 0);
}

TEST_F(Rapporto, NomiEstraneiNonDisturbano) {
  for (const char* nome : {"abcde_FAT.txt", "abcde_FATtura.txt", "abcde_FAT_1.txt"}) Metti(nome);
  Scrivi();
  EXPECT_THAT(Report(), testing::HasSubstr("Totale euro =       0,00"));
}

TEST_F(Rapporto, UnDiscoPienoLoDice) {
  Scrivi();
  const Testo prima = Report();
  Metti_Giornata();
  Disco_Pieno();
  EXPECT_EQ(ScriviReport(programma, TipoFattura::Fattura).errore, ENOSPC);
  EXPECT_EQ(Report(), prima);
}

}  // namespace

#include "invoices/file_fatture.h"

#include <gmock/gmock.h>

#include "tests/invoices/pagine_di_prova.h"

// Reports and the bank's file are made from these names alone.

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct File_Fatture : Ditta_Di_Prova, testing::Test {
  File_Fatture() {
    Prepara_Ditta_Fatture(programma);
    giorno = CartellaGiornoFatture(programma);
    std::filesystem::create_directories(giorno);
  }
  void Metti(const std::string& nome, const Testo& contenuto = "vecchio") const {
    cartella.Metti("2025_fat/20250314/" + nome, contenuto);
  }
  Testo Letto(const std::string& nome) const { return cartella.Contenuto("2025_fat/20250314/" + nome); }
  std::vector<Testo> Nomi() const {
    std::vector<Testo> nomi;
    for (const Percorso& nome : programma.disco.Elenca(giorno, "*").value_or(std::vector<Percorso>()))
      nomi.push_back(Testo_Percorso(nome));
    return nomi;
  }
  // The document's name when its total is `totale` euro.
  Testo Nome(TipoFattura tipo, const Testo& numero, double totale, const Testo& codice = "00345") const {
    Documento_Fattura documento = Documento_Di(programma, tipo, Vendite(1));
    documento.Numero = numero;
    documento.importi.TotaleDocumento = totale;
    documento.cliente.Codice = codice;
    return NomeDocumento(programma, documento);
  }
  void Guasto_Su(const std::string& nome) {
    programma.disco.guasto = [nome](const Percorso& file) { return file.filename() == nome ? ENOSPC : 0; };
  }
  Percorso giorno;
};

TEST_F(File_Fatture, IlNomePortaIDati) {
  struct Caso {
    TipoFattura tipo;
    Testo numero;
    double totale;
    Testo codice, nome;
  };
  const Caso casi[] = {
      {TipoFattura::Fattura, "00127", 1234, "00345", "00345_FAT_00127_20250314_00042_123400_11.txt"},
      {TipoFattura::Fattura, "12/003", 0.004, "00345", "00345_FAT_00012_20250314_00042_0_11.txt"},
      {TipoFattura::Fattura, "00127", 41.68755, "7", "00007_FAT_00127_20250314_00042_4169_11.txt"},
      {TipoFattura::Nota, "NA005", -12.345, "00345", "00345_NAC_NA005_20250314_00042_-1235_11.txt"},
      {TipoFattura::Nota, "NA1000", -1, "123456", "12345_NAC_NA1000_20250314_00042_-100_11.txt"},
      {TipoFattura::Nota, "NA5/2", -1, "A/\\B", "0A--B_NAC_NA5-2_20250314_00042_-100_11.txt"}};
  for (const auto& [tipo, numero, totale, codice, nome] : casi)
    EXPECT_EQ(Nome(tipo, numero, totale, codice), nome);
}

TEST_F(File_Fatture, ISeparatoriDellaMacchinaNonEntranoNelNome) {
  programma.Separatore_Decimale = '.';
  EXPECT_EQ(Nome(TipoFattura::Fattura, "00127", 1234.56), "00345_FAT_00127_20250314_00042_123456_11.txt");
}

TEST_F(File_Fatture, DalNomeTornanoIDati) {
  for (const int pagine : {1, 3, 9}) {
    const Testo nome = NomePagina(Nome(TipoFattura::Nota, "NA005", -1234.5), pagine, pagine);
    const Dati_Nome dati = LeggiNome(nome);
    EXPECT_EQ(dati.codice, "00345");
    EXPECT_EQ(dati.numero, "NA005");
    EXPECT_EQ(dati.data, "20250314");
    EXPECT_EQ(dati.ditta, "00042");
    EXPECT_EQ(dati.centesimi, "-123450");
    EXPECT_EQ(dati.pagina, std::to_string(pagine));
  }
}

TEST_F(File_Fatture, DaDieciPagineUnSegnoRestaNellImporto) {
  const Testo nome = Nome(TipoFattura::Fattura, "00127", 1234);
  EXPECT_EQ(LeggiNome(NomePagina(nome, 10, 1)).centesimi, "123400_");
  EXPECT_EQ(LeggiNome(NomePagina(nome, 10, 10)).centesimi, "123400_1");
  EXPECT_EQ(LeggiNome(NomePagina(nome, 11, 11)).pagina, "1");  // taken for a first page
}

TEST_F(File_Fatture, NomiDiAltri) {
  for (const Testo& nome : {Testo(), Testo("a.txt"), Testo("abcde_FAT.txt"), Testo(300, 'x')}) {
    LeggiNome(nome);  // any text is taken
    PagineDelNome(nome);
  }
  EXPECT_EQ(LeggiNome("abcde_FATx.txt").data, "");
  EXPECT_EQ(NomePagina("11.txt", 2, 1), "");  // too short to be a document's
}

TEST_F(File_Fatture, LePagineSiSannoDalNomeDellaPrima) {
  const std::pair<Testo, int> casi[] = {{"x_11.txt", 1}, {"x_31.txt", 3}, {"x_121.TXT", 12},
                                        {"x_1.txt", 0},  {"x_11.doc", 0}, {"11.txt", 0},
                                        {"", 0},         {"senza.txt", 0}};
  for (const auto& [nome, pagine] : casi) EXPECT_EQ(PagineDelNome(nome), pagine) << nome;
}

TEST_F(File_Fatture, LeCartelle) {
  EXPECT_EQ(giorno, cartella / "2025_fat/20250314");
  EXPECT_EQ(CartellaReport(programma), cartella / "2025_fat/Report");
  EXPECT_EQ(CartellaTransazioni(programma), cartella / "XBanca");
}

TEST_F(File_Fatture, SiCancellaPerGenere) {
  const auto riempi = [&] {
    for (const char* nome :
         {"00345_FAT_a.txt", "00345_fat_b.TXT", "00345_NAC_c.txt", "1_FAT_d.txt", "altro.txt", "altro.doc"})
      Metti(nome);
  };
  riempi();
  CancellaFile(programma.disco, giorno, ModelloDocumenti(TipoFattura::Fattura));
  EXPECT_THAT(Nomi(), ElementsAre("00345_NAC_c.txt", "1_FAT_d.txt", "altro.doc", "altro.txt"));
  CancellaFile(programma.disco, giorno, ModelloDocumenti(TipoFattura::Nota));
  EXPECT_THAT(Nomi(), ElementsAre("1_FAT_d.txt", "altro.doc", "altro.txt"));
  riempi();
  EXPECT_EQ(CancellaFile(programma.disco, giorno, ModelloTutti).errore, 0);
  EXPECT_THAT(Nomi(), ElementsAre("altro.doc"));
}

TEST_F(File_Fatture, UnFileCheNonSiCancellaNonFermaGliAltri) {
  for (const char* nome : {"a.txt", "b.txt", "c.txt"}) Metti(nome);
  Guasto_Su("b.txt");
  const Esito_File esito = CancellaFile(programma.disco, giorno, ModelloTutti);
  EXPECT_EQ(esito.errore, ENOSPC);
  EXPECT_EQ(esito.file, giorno / "b.txt");
  EXPECT_THAT(Nomi(), ElementsAre("b.txt"));
}

TEST_F(File_Fatture, UnaCartellaCheNonSiLeggeNonEVuota) {
  std::filesystem::remove_all(giorno.parent_path());
  std::filesystem::create_directory_symlink("2025_fat", giorno.parent_path());
  for (const Esito_File& esito : {CancellaFile(programma.disco, giorno, ModelloTutti),
                                  SostituisciDocumenti(programma.disco, giorno, {}),
                                  SostituisciFile(programma.disco, giorno, ModelloTutti, {})}) {
    EXPECT_EQ(esito.errore, ELOOP);
    EXPECT_EQ(esito.file, giorno);
    EXPECT_TRUE(esito.rimesso);
  }
}

TEST_F(File_Fatture, INuoviPrendonoIlPostoDeiVecchi) {
  for (const char* nome :
       {"00001_FAT_1.txt", "00001_FAT_2.txt", "00002_NAC_1.txt", "appunti.txt", "foglio.ods"})
    Metti(nome);
  EXPECT_EQ(SostituisciDocumenti(programma.disco, giorno,
                                 {{"00001_FAT_2.txt", "nuovo"}, {"00003_FAT_1.txt", "nuovo"}})
                .errore,
            0);
  EXPECT_THAT(Nomi(), ElementsAre("00001_FAT_2.txt", "00003_FAT_1.txt", "foglio.ods"));
  EXPECT_EQ(Letto("00001_FAT_2.txt"), "nuovo");
}

// Whichever file fails, at writing or at taking away, the folder is what it was.
TEST_F(File_Fatture, UnDiscoPienoNonToglieNulla) {
  const std::vector<File_Documento> nuovi = {
      {"00001_FAT_2.txt", "nuovo"}, {"00003_FAT_1.txt", "nuovo"}, {"00004_FAT_1.txt", "nuovo"}};
  for (const char* nome : {"00001_FAT_1.txt", "00001_FAT_2.txt", "00002_NAC_1.txt", "appunti.txt"})
    Metti(nome);
  for (const char* guasto :
       {"00001_FAT_2.txt", "00003_FAT_1.txt", "00004_FAT_1.txt", "00001_FAT_1.txt", "00002_NAC_1.txt"}) {
    Guasto_Su(guasto);
    const Esito_File esito = SostituisciDocumenti(programma.disco, giorno, nuovi);
    EXPECT_EQ(esito.errore, ENOSPC);
    EXPECT_EQ(esito.file, giorno / guasto);
    EXPECT_TRUE(esito.rimesso) << guasto;
    EXPECT_THAT(Nomi(), ElementsAre("00001_FAT_1.txt", "00001_FAT_2.txt", "00002_NAC_1.txt", "appunti.txt"))
        << guasto;
    for (const char* nome : {"00001_FAT_1.txt", "00001_FAT_2.txt", "00002_NAC_1.txt"})
      EXPECT_EQ(Letto(nome), "vecchio") << guasto << " " << nome;
  }
}

TEST_F(File_Fatture, UnFileEstraneoCheRestaNonDisfaIDocumenti) {
  Metti("appunti.txt");
  Guasto_Su("appunti.txt");
  EXPECT_EQ(SostituisciDocumenti(programma.disco, giorno, {{"00003_FAT_1.txt", "nuovo"}}).errore, 0);
  EXPECT_THAT(Nomi(), ElementsAre("00003_FAT_1.txt", "appunti.txt"));
}

TEST_F(File_Fatture, SenzaDocumentiLaCartellaSiVuota) {
  Metti("00001_FAT_1.txt");
  EXPECT_EQ(SostituisciDocumenti(programma.disco, giorno, {}).errore, 0);
  EXPECT_THAT(Nomi(), IsEmpty());
}

}  // namespace

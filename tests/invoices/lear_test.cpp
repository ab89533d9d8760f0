#include "invoices/lear.h"

#include <gmock/gmock.h>

#include "tests/invoices/pagine_di_prova.h"
#include "tests/invoices/taglio.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

// As the accountant's program cuts it; the customer's VAT number and the last text are as long as they are.
std::vector<Campo_Record> Tracciato(std::size_t piva, std::size_t testo) {
  return {{"nome", 18},       {"piva ditta", 11}, {"data", 6},        {"numero", 5},      {"cliente", 5},
          {"nome 2", 18},     {"piva", piva},     {"marca", 1},       {"vuoto", 11},      {"aliquota 1", 5},
          {"impon 1", 12},    {"iva 1", 11},      {"aliquota 2", 5},  {"impon 2", 12},    {"iva 2", 11},
          {"aliquota 3", 5},  {"impon 3", 12},    {"iva 3", 11},      {"riserva 1a", 5},  {"riserva 1b", 12},
          {"riserva 1c", 11}, {"riserva 2a", 5},  {"riserva 2b", 12}, {"riserva 2c", 11}, {"pagare", 12},
          {"imponibile", 12}, {"documento", 12},  {"testo", testo},   {"coda", 32}};
}

struct Lear : Ditta_Di_Prova, testing::Test {
  Lear() { Prepara_Ditta_Fatture(programma); }
  Documento_Fattura Fattura() const {
    auto documento = Documento_Di(programma, TipoFattura::Fattura,
                                  {Vendita("Orata", "12,5", "9,90"), Vendita("Seppia", "2", "10", "22")});
    AggiungiSpese(documento.importi, 15, 22);
    return documento;
  }
  Documento_Fattura Nota(Vista numero = "NA005") const {
    auto documento = Documento_Di(programma, TipoFattura::Nota, {Vendita("Orata", "1", "-12,50")});
    documento.Numero = numero;
    return documento;
  }
  Testo Contenuto(const Testo& nome) const { return cartella.Contenuto("_ReportLear/" + nome); }
  std::vector<Testo> Nomi() const {
    std::vector<Testo> nomi;
    for (const Percorso& nome :
         programma.disco.Elenca(CartellaLear(programma), "*").value_or(std::vector<Percorso>()))
      nomi.push_back(Testo_Percorso(nome));
    return nomi;
  }
};

TEST_F(Lear, IRecordAlByte) {
  Confronta_Attesa("lear.txt",
                   RecordLear(programma, Fattura()) + "\r\n" + RecordLear(programma, Nota()) + "\r\n");
}

TEST_F(Lear, IlTaglioDellaFattura) {
  const Testo record = RecordLear(programma, Fattura());
  EXPECT_EQ(record.size(), lunghezza_lear + 11 + 17);
  const Record_Tagliato campi(record, Tracciato(11, 17));
  const std::pair<const char*, const char*> attesi[] = {{"nome", "Pescheria Da Nino "},
                                                        {"piva ditta", "01234567890"},
                                                        {"data", "250314"},
                                                        {"numero", "00127"},
                                                        {"cliente", "00345"},
                                                        {"nome 2", "Nino              "},
                                                        {"piva", "09876543210"},
                                                        {"marca", "B"},
                                                        {"vuoto", "           "},
                                                        {"aliquota 1", "01000"},
                                                        {"impon 1", "000000012375"},
                                                        {"iva 1", "00000001238"},
                                                        {"aliquota 2", "02200"},
                                                        {"impon 2", "000000002000"},
                                                        {"iva 2", "00000000440"},
                                                        {"aliquota 3", "00400"},
                                                        {"impon 3", "000000000000"},
                                                        {"iva 3", "00000000000"},
                                                        {"riserva 1a", "00000"},
                                                        {"riserva 1b", "000000000000"},
                                                        {"riserva 1c", "00000000000"},
                                                        {"riserva 2a", "00000"},
                                                        {"riserva 2b", "000000000000"},
                                                        {"riserva 2c", "00000000000"},
                                                        {"testo", "PESCHERIA DA NINO"}};
  for (const auto& [campo, atteso] : attesi) EXPECT_EQ(campi[campo], atteso) << campo;
  // expenses of 15 euro and their VAT of 3.30 are in the totals: 123.75 + 20 + 15 and 12.375 + 4.40 + 3.30
  EXPECT_EQ(campi["imponibile"], "000000015875");
  EXPECT_EQ(campi["documento"], "000000017883");
  EXPECT_EQ(campi["pagare"], "000000017883");
  EXPECT_EQ(campi["coda"], std::string(32, ' '));
}

// The minus of a note takes a place of the field, so that those behind it stand where they must.
TEST_F(Lear, IlTaglioDellaNota) {
  const Record_Tagliato campi(RecordLear(programma, Nota()), Tracciato(11, 17));
  const std::pair<const char*, const char*> attesi[] = {
      {"numero", "00005"},        {"aliquota 1", "01000"},      {"impon 1", "-00000001250"},
      {"iva 1", "-0000000125"},   {"impon 2", "000000000000"},  {"imponibile", "-00000001250"},
      {"pagare", "-00000001375"}, {"documento", "-00000001375"}};
  for (const auto& [campo, atteso] : attesi) EXPECT_EQ(campi[campo], atteso) << campo;
}

TEST_F(Lear, NomiLunghiCodiciEVuoti) {
  Documento_Fattura documento = Fattura();
  documento.cliente.Nome = "Società Cooperativa Pescatori"_t;
  documento.cliente.Soprannome = "zz";  // no nickname
  documento.cliente.Codice = "A7";
  documento.cliente.PIva = "";
  documento.Numero = "127/004";
  programma.Ragione[6] = "P.I. 123  ";
  const Record_Tagliato campi(RecordLear(programma, documento), Tracciato(0, 29));
  EXPECT_EQ(campi["nome"], "Società Cooperativ"_t);
  EXPECT_EQ(campi["nome 2"], std::string(18, ' '));
  EXPECT_EQ(campi["cliente"], "000A7");
  EXPECT_EQ(campi["numero"], "00127");
  EXPECT_EQ(campi["piva ditta"], "P.I. 123   ");
  EXPECT_EQ(campi["testo"], "SOCIETÀ COOPERATIVA PESCATORI"_t);
}

TEST_F(Lear, OgniDocumentoHaIlSuoFile) {
  EXPECT_EQ(NomeLear(programma, Fattura()), "20250314_00127_Lear.txt");
  EXPECT_EQ(ScriviLear(programma, {Nota(), Fattura()}).errore, 0);
  EXPECT_THAT(Nomi(), ElementsAre("20250314_00005_Lear.txt", "20250314_00127_Lear.txt"));
  EXPECT_EQ(Contenuto("20250314_00127_Lear.txt"), RecordLear(programma, Fattura()) + "\r\n");
  EXPECT_EQ(Contenuto("20250314_00005_Lear.txt"), RecordLear(programma, Nota()) + "\r\n");
}

// The digits alone are in the name: of a note and an invoice of one number the invoice, written later, stays.
TEST_F(Lear, UnaNotaEUnaFatturaDelloStessoNumeroSonoUnFile) {
  EXPECT_EQ(ScriviLear(programma, {Nota("NA127"), Fattura()}).errore, 0);
  EXPECT_THAT(Nomi(), ElementsAre("20250314_00127_Lear.txt"));
  EXPECT_EQ(Contenuto("20250314_00127_Lear.txt"), RecordLear(programma, Fattura()) + "\r\n");
}

TEST_F(Lear, SoloQuelliDelGiornoVannoVia) {
  for (const char* nome : {"20250314_00001_Lear.txt", "20250314_00127_lear.TXT", "20250313_00001_Lear.txt",
                           "20250314_1_Lear.txt", "mese.txt"})
    cartella.Metti("_ReportLear/" + Testo(nome), "x");
  EXPECT_EQ(CancellaLear(programma).errore, 0);
  EXPECT_THAT(Nomi(), UnorderedElementsAre("20250313_00001_Lear.txt", "20250314_1_Lear.txt", "mese.txt"));
}

TEST_F(Lear, SenzaCartellaNonCeNullaDaCancellare) {
  EXPECT_EQ(CancellaLear(programma).errore, 0);
  EXPECT_FALSE(programma.disco.Esiste_Cartella(CartellaLear(programma)));
}

TEST_F(Lear, SuUnDiscoPienoQuelliDiPrimaRestano) {
  cartella.Metti("_ReportLear/20250314_00005_Lear.txt", "nota di prima");
  cartella.Metti("_ReportLear/20250314_00099_Lear.txt", "fattura di prima");
  programma.disco.guasto = [](const Percorso& file) {
    return file.filename() == "20250314_00127_Lear.txt" ? ENOSPC : 0;
  };
  const Esito_File esito = ScriviLear(programma, {Nota(), Fattura()});
  EXPECT_EQ(esito.errore, ENOSPC);
  EXPECT_TRUE(esito.rimesso);
  EXPECT_THAT(Nomi(), ElementsAre("20250314_00005_Lear.txt", "20250314_00099_Lear.txt"));
  EXPECT_EQ(Contenuto("20250314_00005_Lear.txt"), "nota di prima");
}

}  // namespace

#include "printing/nomi_stampe.h"

#include <chrono>
#include <gmock/gmock.h>

#include "tests/core/cartella_temporanea.h"

namespace {

struct Caso {
  Documento documento;
  Testo nome, titolo;
};

class Nomi : public testing::TestWithParam<Caso> {};

TEST_P(Nomi, DiconoGiornoGenereNumeroECodice) {
  EXPECT_EQ(Nome_Stampa(GetParam().documento), GetParam().nome);
  EXPECT_EQ(Titolo_Stampa(GetParam().documento), GetParam().titolo);
}

INSTANTIATE_TEST_SUITE_P(
    Documenti, Nomi,
    testing::Values(Caso{{"20250314", "Fattura", "12", "00345"},
                         "20250314 Fattura 12 00345",
                         "Fattura 12 del 14/03/2025 - 00345"},
                    Caso{{"20250314", "Conto Vendita", "7", "0001"},
                         "20250314 Conto Vendita 7 0001",
                         "Conto Vendita 7 del 14/03/2025 - 0001"},
                    Caso{{"20250314", "Liste", "", ""}, "20250314 Liste", "Liste del 14/03/2025"},
                    Caso{{}, "Stampa", "Stampa"},
                    // Numbers carry slashes and marks; a file name doesn't.
                    Caso{{"20250314", "DDT", " 12/003 ", "A:1"},
                         "20250314 DDT 12-003 A-1",
                         "DDT 12/003 del 14/03/2025 - A:1"},
                    Caso{{"", "..\\su", "*?<>|\"", "\t"}, "-.-su ------ -", "..\\su *?<>|\" - \t"},
                    Caso{{"20250314", "Nota", "1.", ""}, "20250314 Nota 1-", "Nota 1. del 14/03/2025"},
                    Caso{{"oggi", "DDT", "", ""}, "oggi DDT", "DDT del oggi"}));

TEST(Nomi_Stampe, UnNomeLunghissimoESoloTagliato) {
  const Testo nome = Nome_Stampa({"20250314", Testo(500, 'x'), "1", "2"});
  EXPECT_EQ(nome, "20250314 " + Testo(111, 'x'));
}

// What counts on the disk are bytes, of which "€" has three; a running number and the extension come behind.
TEST(Nomi_Stampe, UnNomeLunghissimoStaSulDiscoAncheConLeLettereCheContanoTriplo) {
  const Cartella_Temporanea cartella;
  const Disco disco;
  for (const Testo& lettera : {"€"_t, "à"_t, "x"_t}) {
    Testo molte;
    for (int i = 0; i < 200; ++i) molte += lettera;
    for (int i = 0; i < 2; ++i) {
      const Percorso file = File_Stampa(disco, cartella.percorso, {"20250314", molte, "1", "2"});
      EXPECT_EQ(disco.Sostituisci(file, "%PDF"), 0) << file;
    }
  }
}

// A copy that was handed out stays what it was.
TEST(Nomi_Stampe, UnNomeCheCEHaDietroUnNumero) {
  const Cartella_Temporanea cartella;
  const Disco disco;
  const Documento documento{"20250314", "Fattura", "12", "00345"};
  EXPECT_EQ(File_Stampa(disco, cartella.percorso, documento), cartella / "20250314 Fattura 12 00345.pdf");
  cartella.Metti("20250314 FATTURA 12 00345.PDF",
                 "prima");  // from a machine that doesn't tell the cases apart
  EXPECT_EQ(File_Stampa(disco, cartella.percorso, documento), cartella / "20250314 Fattura 12 00345 (2).pdf");
  cartella.Metti("20250314 Fattura 12 00345 (2).pdf", "seconda");
  EXPECT_EQ(File_Stampa(disco, cartella.percorso, documento), cartella / "20250314 Fattura 12 00345 (3).pdf");
  std::filesystem::create_directory(cartella / "20250314 Fattura 12 00345 (3).pdf");
  EXPECT_EQ(File_Stampa(disco, cartella.percorso, documento), cartella / "20250314 Fattura 12 00345 (4).pdf");
}

// A run of hundreds of documents into a folder of years reads it once, and still sees what others put there.
TEST(NomiStampe, UnaCorsaVedeAncheICambiamentiAltrui) {
  const Cartella_Temporanea cartella;
  const Disco disco;
  Nomi_Stampe nomi;
  const Documento documento{"20250314", "Fattura", "12", "00345"};
  const auto stampa = [&] {
    Percorso file;
    EXPECT_EQ(nomi.Scrivi(disco, cartella.percorso, documento, "carta", file), 0);
    return Nome_File(file);
  };
  EXPECT_EQ(stampa(), "20250314 Fattura 12 00345.pdf");
  EXPECT_EQ(stampa(), "20250314 Fattura 12 00345 (2).pdf");
  using namespace std::chrono_literals;
  cartella.Metti("20250314 FATTURA 12 00345 (3).PDF", "d'altri");
  std::filesystem::last_write_time(cartella.percorso, std::filesystem::file_time_type::clock::now() + 1s);
  EXPECT_EQ(stampa(), "20250314 Fattura 12 00345 (4).pdf");
  std::filesystem::remove(cartella / "20250314 Fattura 12 00345.pdf");
  std::filesystem::last_write_time(cartella.percorso, std::filesystem::file_time_type::clock::now() + 2s);
  EXPECT_EQ(stampa(), "20250314 Fattura 12 00345.pdf");
}

// The folder's time may not tell of what came in the same moment: nothing that stands there is written over.
TEST(NomiStampe, UnNomePresoInQuestoMomento) {
  const Cartella_Temporanea cartella;
  const Disco disco;
  Nomi_Stampe nomi;
  const Documento documento{"20250314", "Fattura", "12", "00345"};
  const auto prima = std::filesystem::last_write_time(cartella.percorso);
  nomi.Libero(disco, cartella.percorso, documento);
  cartella.Metti("20250314 Fattura 12 00345.pdf", "d'altri");
  std::filesystem::last_write_time(cartella.percorso, prima);
  Percorso file;
  EXPECT_EQ(nomi.Scrivi(disco, cartella.percorso, documento, "carta", file), 0);
  EXPECT_EQ(Nome_File(file), "20250314 Fattura 12 00345 (2).pdf");
  EXPECT_EQ(cartella.Contenuto("20250314 Fattura 12 00345.pdf"), "d'altri");
}

}  // namespace

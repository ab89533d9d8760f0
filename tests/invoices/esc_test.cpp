#include <gmock/gmock.h>

#include "invoices/file_fatture.h"
#include "invoices/rapporto.h"
#include "invoices/stampa_fatture.h"
#include "printing/registratore.h"
#include "tests/invoices/stampe_di_prova.h"

// Esc in a run over all invoices and notes: before the new files are there the old ones stay, afterwards only
// paper is missing.

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const Testo vecchia = "00101_FAT_00099_20250314_00042_100_11.txt";
const Testo rimasti = "I documenti della stampa precedente sono rimasti come erano.";
const Testo scritti = "Su disco i documenti sono stati scritti.";

// A note and three invoices, the first of them of two pages; the files of an earlier run.
struct Fatture_Esc : Stampe_Di_Prova {
  Fatture_Esc() {
    for (int i = 0; i < 20; ++i) Vendi("00101", std::to_string(i + 1), "007");
    Vendi("00102", "5,5", "008");
    Vendi("00104", "6", "009");
    Vendi("00101", "-1,5", "R.Fat. 00120 - 10/03/2025", "NA");
    stampa.fatture = {{"00101", "Pescheria Rialto", "007", "00127"},
                      {"00102", "Trattoria Pontile", "008", "00128"},
                      {"00104", "Mensa Remi", "009", "00129"}};
    stampa.note = {{"00101", "Pescheria Rialto", "R.Fat. 00120 - 10/03/2025", "NA004"}};
    cartella.Metti("2025_fat/20250314/" + vecchia, "vecchia");
    cartella.Metti("2025_fat/Report/20250314_00042_RepFat.txt", "vecchio report");
  }
  bool Esegui(int ferma_dopo) {
    macchina.unita = 0;
    macchina.ferma_dopo = ferma_dopo;
    return Stampe_Di_Prova::Esegui();
  }
  std::ptrdiff_t Usciti() const { return std::ranges::count(registro.righe, "fine"); }
  // The screen works again, and the numbers in the rows are told at closing.
  void Pronta() const {
    EXPECT_TRUE(lavorava);
    EXPECT_FALSE(macchina.occupato);
    EXPECT_EQ(titoli.back(), "Fatturazione");
    EXPECT_TRUE(programma.Tabella_Modificata);
  }
};

TEST_F(Fatture_Esc, PrimaDiScrivereRestanoIVecchi) {
  stampa.scelte.Stampale = true;
  EXPECT_FALSE(Esegui(2));
  EXPECT_THAT(In("2025_fat/20250314"), ElementsAre(vecchia));
  EXPECT_EQ(Report(), "vecchio report");
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 0 documenti su 4.\n" + rimasti));
  Pronta();
}

TEST_F(Fatture_Esc, DopoMancaSoloLaCarta) {
  stampa.scelte.Stampale = true;
  EXPECT_FALSE(Esegui(4));  // three times while they are made, once on paper
  EXPECT_THAT(In("2025_fat/20250314"), SizeIs(5));
  EXPECT_THAT(Report(), HasSubstr("numero Fatture emesse = 3\r\n"));
  EXPECT_EQ(Usciti(), 2);  // both sheets of the first one
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 1 documento su 3.\n" + scritti));
  Pronta();
}

// Two to a sheet: it ends before a sheet that begins with a document, so that none is torn.
TEST_F(Fatture_Esc, DuePerFoglio) {
  stampa.scelte.Stampale = stampa.scelte.Paginax2 = true;
  EXPECT_FALSE(Esegui(4));
  EXPECT_THAT(In("2025_fat/20250314"), SizeIs(5));
  EXPECT_EQ(Usciti(), 1);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 1 documento su 4.\n" + scritti));
  registro = {};
  macchina.messaggi.clear();
  EXPECT_FALSE(Esegui(5));  // before the notes
  EXPECT_EQ(Usciti(), 2);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 3 documenti su 4.\n" + scritti));
}

// Drawn ones leave no file, and those of before go first.
TEST_F(Fatture_Esc, LePersonalizzateEsconoFinoLi) {
  stampa.scelte.Personalizzata = true;
  stampa.scelte.copie = 2;
  EXPECT_FALSE(Esegui(2));
  EXPECT_EQ(Usciti(), 4);
  EXPECT_THAT(In("2025_fat/20250314"), IsEmpty());
  EXPECT_EQ(Report(), "manca");
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 2 documenti su 4."));
  Pronta();
}

// The bank's file and the accountant's records tell of all documents that are on disk.
TEST_F(Fatture_Esc, ColVettoreIRegistriSonoInteri) {
  programma.preferenze.Flag_Lear = true;
  programma.Ragione = {"Ittica Laguna", "", "", "", "", "", "P.IVA 01234567890"};
  stampa.scelte.Stampale = true;
  stampa.spedizione = Spedizione{};
  cartella.Metti("XBanca/Transazioni_00042_20250314.txt", "transazioni di prima");
  EXPECT_FALSE(Esegui(3));
  EXPECT_EQ(cartella.Contenuto("XBanca/Transazioni_00042_20250314.txt"), "transazioni di prima");
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 0 documenti su 4.\n" + rimasti));
  macchina.messaggi.clear();
  EXPECT_FALSE(Esegui(5));
  EXPECT_EQ(Usciti(), 2);
  EXPECT_THAT(In("2025_fat/20250314"), SizeIs(5));
  EXPECT_THAT(Righe(cartella.Contenuto("XBanca/Transazioni_00042_20250314.txt")), SizeIs(6));
  EXPECT_THAT(In("_ReportLear"), SizeIs(4));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 2 documenti su 4.\n" + scritti));
}

// A run after a stopped one is as any other.
TEST_F(Fatture_Esc, LaCorsaDopoFaTutto) {
  stampa.scelte.Stampale = true;
  Esegui(4);
  const std::vector<Testo> file = In("2025_fat/20250314");
  macchina.messaggi.clear();
  registro = {};
  EXPECT_TRUE(Esegui(0));
  EXPECT_EQ(In("2025_fat/20250314"), file);
  EXPECT_EQ(Usciti(), 4);
  EXPECT_THAT(macchina.messaggi, ElementsAre("quanto richiesto è stato fatto...."_t));
}

// One document is whole, with its files and all copies.
TEST_F(Fatture_Esc, UnDocumentoDaSoloNonSiFerma) {
  stampa.scelte.Stampale = true;
  stampa.scelte.copie = 3;
  macchina.risposte = {true};
  macchina.ferma_dopo = 1;
  EXPECT_TRUE(StampaVoce(programma, stampa, TipoFattura::Fattura, stampa.fatture[0]));
  EXPECT_EQ(macchina.unita, 0);
  EXPECT_EQ(Usciti(), 6);
}

}  // namespace

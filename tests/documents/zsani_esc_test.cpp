#include "tests/documents/zsani_di_prova.h"

// Esc while all documents come out.

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Zsani_Esc : Zsani_Test {
  void Stampa(int ferma_dopo, int copie = 1) {
    zsani.Check1.segnata = true;
    zsani.Combo2.scelta = copie - 1;
    macchina.unita = 0;
    macchina.ferma_dopo = ferma_dopo;
    StampaDocumenti(programma, zsani);
  }
};

// Who has his paper bears the mark, the others don't: the list says what is still to be printed.
TEST_F(Zsani_Esc, FermaTraUnDocumentoELAltro) {
  Giornata();
  Apri();
  const Testo titolo = zsani.titolo;
  Stampa(2);
  EXPECT_EQ(stampati.size(), 2U);
  EXPECT_THAT(Numeri(), ElementsAre("003 (ds)", "001 (ds)", "002"));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 2 documenti su 3."));
  EXPECT_EQ(zsani.titolo, titolo);
  EXPECT_TRUE(zsani.attiva && zsani.Command1.attivo);
  EXPECT_FALSE(zsani.chiusa);
  EXPECT_THAT(DDT(), ElementsAre("001", "002", "001", "003", "Rif.Fat. 12")) << "rows only change by saving";
}

TEST_F(Zsani_Esc, NellaSecondaCopiaSiContanoTutte) {
  Giornata();
  Apri();
  Stampa(4, 2);
  EXPECT_EQ(stampati.size(), 4U);
  EXPECT_THAT(Numeri(), ElementsAre("003 (ds)", "001 (ds)", "002 (ds)"));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 4 documenti su 6 (2 copie)."));
}

TEST_F(Zsani_Esc, ChiNonENellAnagraficaNonSiConta) {
  Vendita("Sconosciuto", "001");
  Vendita("Trattoria Lido", "002");
  Apri();
  Stampa(1);
  EXPECT_THAT(stampati, IsEmpty());
  EXPECT_EQ(macchina.messaggi.back(), "Stampa interrotta: 0 documenti su 2.");
}

// One document is whole: Esc, for the screen behind it, waits.
TEST_F(Zsani_Esc, DiUnoSoloNonSiFerma) {
  Giornata();
  Apri();
  macchina.ferma_dopo = 1;
  StampaDocumenti(programma, zsani);
  EXPECT_EQ(stampati.size(), 1U);
  EXPECT_EQ(macchina.unita, 0);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

// The screen of one customer closes after its print, also after a stopped one.
TEST_F(Zsani_Esc, LeCopieDiUnClienteSolo) {
  Giornata();
  ApriDocumentoCliente(programma, zsani, "Laguna Pesca", "001");
  zsani.Combo2.scelta = 2;
  macchina.ferma_dopo = 1;
  Rispondi({true});
  StampaDocumenti(programma, zsani);
  EXPECT_EQ(stampati.size(), 1U);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 1 documento su 3 (3 copie)."));
  EXPECT_TRUE(zsani.chiusa);
  EXPECT_THAT(DDT(), ElementsAre("001 (ds)", "002", "001 (ds)", "003", "Rif.Fat. 12"));
}

// Numbering, checking and saving are one piece each.
TEST_F(Zsani_Esc, INumeriNonSiFermano) {
  Giornata();
  Apri();
  macchina.ferma_dopo = 1;
  Rispondi({true, true});
  ControllaNumeri(programma, zsani);
  EXPECT_EQ(macchina.unita, 0);
  EXPECT_THAT(DDT(), ElementsAre("001", "002", "001", "003", "Rif.Fat. 12"));
}

}  // namespace

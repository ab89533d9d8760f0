#include "primanota/esporta.h"
#include "primanota/znota.h"
#include "tests/primanota/note_di_prova.h"

// Esc while the notes come out.

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Znota_Esc : Note_Di_Prova {
  Znota_Esc() {
    Vendita("Valle", "20", "6");
    Vendita("Laguna", "12,5", "9,80");
    Vendita("Sile", "2", "7");
    ApriNote(programma, znota);
    macchina.messaggi.clear();
  }
  void Stampa(int ferma_dopo, int copie = 1) {
    znota.Copie.scelta = copie - 1;
    macchina.ferma_dopo = ferma_dopo;
    StampaNote(programma, znota);
  }
  // Documents that came out whole.
  std::ptrdiff_t Usciti() const { return std::ranges::count(registro.righe, "fine"); }

  Znota znota;
};

TEST_F(Znota_Esc, FermaTraUnaNotaELAltra) {
  const Testo titolo = znota.titolo;
  znota.Tutte_Le_Note.segnata = true;
  Stampa(2);
  EXPECT_EQ(Usciti(), 2);
  EXPECT_EQ(registro.righe.back(), "fine");
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 2 note su 3."));
  EXPECT_EQ(znota.titolo, titolo);
  EXPECT_EQ(znota.ListaNote.scelta, 1);
  EXPECT_EQ(znota.Text1[1].testo, "Prima Nota in stampa : IT Italia ::: Sile");
  EXPECT_TRUE(znota.attiva && znota.Stampa_Nota.attivo);
  EXPECT_THAT(znota.Vet_Nota, IsEmpty());
}

TEST_F(Znota_Esc, NellaSecondaCopia) {
  znota.Tutte_Le_Note.segnata = true;
  Stampa(4, 2);
  EXPECT_EQ(Usciti(), 4);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 4 note su 6 (2 copie)."));
}

TEST_F(Znota_Esc, FraLeCopieDiUna) {
  znota.ListaNote.scelta = 0;
  Stampa(1, 3);
  EXPECT_EQ(Usciti(), 1);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 1 nota su 3 (3 copie)."));
}

// The whole day is one document: it comes out with all its pages.
TEST_F(Znota_Esc, IlGiornoInUnDocumentoEIntero) {
  Vendite(100, "Valle");
  znota.Unico_Documento.segnata = true;
  Stampa(1);
  EXPECT_EQ(Usciti(), 1);
  EXPECT_GT(registro.pagine, 1);
  EXPECT_EQ(macchina.unita, 0);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

// The market gets the day's file whole or not at all.
TEST_F(Znota_Esc, LEsportazioneEIntera) {
  macchina.ferma_dopo = 1;
  EsportaSulDisco(programma, znota);
  EXPECT_EQ(macchina.unita, 0);
  EXPECT_THAT(Righe(cartella.Contenuto("XBanca/20250314.txt")), testing::SizeIs(3));
}

}  // namespace

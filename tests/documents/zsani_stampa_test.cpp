#include "documents/zsani.h"
#include "tests/documents/zsani_di_prova.h"

// What the document screen prints, and which marks it leaves; and its two quick ways for one customer and one
// row.

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Testo domanda_senza_numero = "Non tutti i Documenti sono numerati... OK per continuare ugualmente";

// ---- printing

TEST_F(Zsani_Test, StampaLaVoceScelta) {
  Giornata();
  Apri();
  SceltaVoce(zsani, 1);
  zsani.Check6.segnata = true;
  Premi(Tasto::F2);
  ASSERT_EQ(stampati.size(), 1U);
  EXPECT_EQ(stampati[0].destinatario.Nome, "Laguna Pesca");
  EXPECT_EQ(stampati[0].Riga_Numero, "(CEE IT 940) no. 001 del 14/03/2025");
  EXPECT_EQ(stampati[0].Peso_Totale, 20);
  EXPECT_TRUE(stampati[0].con_prezzi);
  EXPECT_EQ(stampati[0].tipo, TipoDoc::Sanitario);
  EXPECT_EQ(zsani.MList2.Riga(1), Pad("Laguna Pesca", 50) + "001 (ds)");
  EXPECT_FALSE(zsani.chiusa);
  EXPECT_THAT(macchina.domande, IsEmpty());
}

TEST_F(Zsani_Test, UnaVoceSolaPrendeIlNumeroScritto) {
  Giornata();
  Apri();
  zsani.Text1[2].testo = " 77 ";
  StampaDocumenti(programma, zsani);
  EXPECT_EQ(stampati.at(0).Numero, "77");
  EXPECT_EQ(stampati.at(0).righe.at(0).riga[CampoRiga::DDT], "77");
  EXPECT_EQ(Numeri()[0], "003 (ds)") << "the list changes by \"Modifica\" only";
}

TEST_F(Zsani_Test, TuttiInPiuCopieUnSoloSegno) {
  Giornata();
  Apri();
  zsani.Check1.segnata = zsani.Check4.segnata = true;
  zsani.Combo2.scelta = 1;
  const Testo titolo = zsani.titolo;
  StampaDocumenti(programma, zsani);
  EXPECT_EQ(stampati.size(), 6U);
  EXPECT_EQ(stampati[3].destinatario.Nome, "Bar Ponte");
  EXPECT_EQ(stampati[3].Riga_Numero, "(CEE IT 940) no. 003 del 14/03/2025");
  EXPECT_EQ(stampati[0].tipo, TipoDoc::DDT);
  EXPECT_THAT(Numeri(), ElementsAre("003 (ddt)", "001 (ddt)", "002 (ddt)"));
  EXPECT_EQ(zsani.titolo, titolo);
  zsani.Check4.segnata = false;
  zsani.Combo2.scelta = 0;
  StampaDocumenti(programma, zsani);
  EXPECT_THAT(Numeri(), ElementsAre("003 (ds) (ddt)", "001 (ds) (ddt)", "002 (ds) (ddt)"));
}

TEST_F(Zsani_Test, ISenzaNumeroChiedono) {
  Vendita("Bar Ponte", "001");
  Vendita("Laguna Pesca");
  Vendita("Trattoria Lido", "002");
  Apri();
  zsani.Check1.segnata = true;
  zsani.Combo2.scelta = 2;
  Rispondi({false});
  StampaDocumenti(programma, zsani);
  EXPECT_THAT(macchina.domande, ElementsAre(domanda_senza_numero)) << "no copy more";
  EXPECT_EQ(stampati.size(), 1U);
  EXPECT_THAT(Numeri(), ElementsAre("001 (ds)", "", "002"));

  zsani.Combo2.scelta = 0;
  Rispondi({true});
  StampaDocumenti(programma, zsani);
  EXPECT_EQ(stampati.size(), 4U);
  EXPECT_EQ(stampati[2].Riga_Numero, "(CEE IT 940) no. ______________ del 14/03/2025");
  EXPECT_THAT(Numeri(), ElementsAre("001 (ds)", "(ds)", "002 (ds)"));
  AggiornaNumeri(zsani);
  EXPECT_THAT(Numeri(), ElementsAre("001 (ds)", "003 (ds)", "002 (ds)"));
}

TEST_F(Zsani_Test, ClienteFuoriListaSiDiceESiVaAvanti) {
  Vendita("Sconosciuto", "001");
  Vendita("Trattoria Lido", "002");
  Apri();
  zsani.Check1.segnata = true;
  StampaDocumenti(programma, zsani);
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("Il cliente Sconosciuto non è stato trovato..."_t, "Cliente non trovato..."));
  EXPECT_EQ(stampati.size(), 1U);
  EXPECT_THAT(Numeri(), ElementsAre("001", "002 (ds)"));
}

TEST_F(Zsani_Test, LaCartaCheFallisceFermaTuttoSenzaSegno) {
  Giornata();
  zsani.stampa = [](const Documento_Cliente&, const Avanzamento&) { return false; };
  Apri();
  zsani.Check1.segnata = true;
  StampaDocumenti(programma, zsani);
  EXPECT_THAT(Numeri(), ElementsAre("003", "001", "002"));
}

TEST_F(Zsani_Test, SenzaCartaNonSiStampa) {
  Giornata();
  zsani.stampa = {};
  Apri();
  EXPECT_FALSE(zsani.Command1.attivo);
  Premi(Tasto::F2);
  EXPECT_THAT(Numeri(), ElementsAre("003", "001", "002"));
}

// The whole way to the paper, as the window opens it.
TEST_F(Zsani_Test, SullaCarta) {
  Giornata();
  zsani.stampa = [this](const Documento_Cliente& documento, const Avanzamento& avanzamento) {
    return StampaPagine(programma, documento, avanzamento);
  };
  Apri();
  const Testo titolo = zsani.titolo;
  zsani.Check1.segnata = true;
  zsani.Combo2.scelta = 1;
  StampaDocumenti(programma, zsani);
  std::vector<Testo> documenti;
  for (const Testo& riga : registro.righe)
    if (Inizia(riga, "documento")) documenti.push_back(riga);
  EXPECT_THAT(documenti, ElementsAre("documento \"20250314 Documento Sanitario 003 00200\" Registro",
                                     "documento \"20250314 Documento Sanitario 001 00123\" Registro",
                                     "documento \"20250314 Documento Sanitario 002 00124\" Registro",
                                     "documento \"20250314 Documento Sanitario 003 00200\" Registro",
                                     "documento \"20250314 Documento Sanitario 001 00123\" Registro",
                                     "documento \"20250314 Documento Sanitario 002 00124\" Registro"))
      << "each copy of the whole run is printed anew, without the mark in its number";
  EXPECT_EQ(zsani.titolo, titolo);
  EXPECT_THAT(Numeri(), ElementsAre("003 (ds)", "001 (ds)", "002 (ds)"));
}

TEST_F(Zsani_Test, LaDidascaliaDiceChePaginaSiStampa) {
  Giornata();
  Testo intanto;
  zsani.stampa = [&](const Documento_Cliente&, const Avanzamento& avanzamento) {
    avanzamento("00200 Pagina 1 di 1 in corso...");
    intanto = zsani.titolo;
    return true;
  };
  Apri();
  StampaDocumenti(programma, zsani);
  EXPECT_EQ(intanto, "00200 Pagina 1 di 1 in corso...");
  EXPECT_EQ(zsani.titolo, "Stampa Documento Sanitario del 14/03/2025");
}

// A mark says that paper is on its way with the goods: it isn't set by a machine that has no printer.
TEST_F(Zsani_Test, SenzaStampanteNessunSegno) {
  Giornata();
  macchina.stampante.reset();
  zsani.stampa = [this](const Documento_Cliente& documento, const Avanzamento& avanzamento) {
    return StampaPagine(programma, documento, avanzamento);
  };
  ApriDocumentoCliente(programma, zsani, "Laguna Pesca", "001");
  EXPECT_EQ(zsani.TitoloStampante.testo, "nessuna stampante...  - Verticale");
  StampaDocumenti(programma, zsani);
  EXPECT_THAT(Numeri(), ElementsAre("001"));
  EXPECT_FALSE(zsani.chiusa);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Zsani_Test, MostraDoveSiStampa) {
  Giornata();
  Apri();
  EXPECT_EQ(zsani.TitoloStampante.testo, "Registro  - Verticale");
  macchina.stampante = Stampante{"Aghi 80", true};
  MostraStampante(programma, zsani);
  EXPECT_EQ(zsani.TitoloStampante.testo, "Aghi 80  - Orizzontale");
}

// ---- one customer, one row

TEST_F(Zsani_Test, IBottoniImmediatiVoglionoUnaRiga) {
  const Testo cliente = "selezionare il cliente sulla lista...",
              riga = "Selezionare il Cliente sulla lista..(Hai salvato?)";
  EXPECT_FALSE(ClienteDaStampare(programma, 1, "Laguna Pesca")) << "an empty day has only its mark";
  EXPECT_FALSE(RigaDaStampare(programma, 1));
  Giornata();
  for (const int fuori : {0, 6}) {
    EXPECT_FALSE(ClienteDaStampare(programma, fuori, "Laguna Pesca"));
    EXPECT_FALSE(RigaDaStampare(programma, fuori));
  }
  EXPECT_FALSE(ClienteDaStampare(programma, 1, "  "));
  EXPECT_THAT(macchina.messaggi, ElementsAre(cliente, riga, cliente, riga, cliente, riga, cliente));
  macchina.messaggi.clear();
  EXPECT_TRUE(ClienteDaStampare(programma, 1, "Laguna Pesca"));
  EXPECT_TRUE(RigaDaStampare(programma, 5));
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Zsani_Test, UnClienteSolo) {
  Giornata();
  ApriDocumentoCliente(programma, zsani, "Laguna Pesca ", "001 ");
  EXPECT_THAT(Clienti(), ElementsAre("Laguna Pesca"));
  EXPECT_FALSE(zsani.Command4.attivo || zsani.Command5.attivo || zsani.Command7.attivo ||
               zsani.Command8.attivo || zsani.Num_Automatica.attivo || zsani.Text2.visibile);
  EXPECT_TRUE(zsani.Command3.attivo && zsani.Command6.attivo);
  AggiornaNumeri(zsani);
  NumeraAutomatica(programma, zsani);
  AnnullaNumeri(programma, zsani);
  ControllaNumeri(programma, zsani);
  OrdinaDocumenti(programma, zsani, 2);
  EXPECT_THAT(macchina.domande, IsEmpty());
  EXPECT_EQ(programma.preferenze.flagSortOrder, 0);

  Rispondi({true});
  StampaDocumenti(programma, zsani);
  EXPECT_EQ(stampati.at(0).Peso_Totale, 20);
  EXPECT_TRUE(zsani.chiusa);
  EXPECT_THAT(DDT(), ElementsAre("001 (ds)", "002", "001 (ds)", "003", "Rif.Fat. 12"));
}

TEST_F(Zsani_Test, UnClienteSenzaVoci) {
  Vendita("Laguna Pesca", "Rif.Fat. 12", "-5");
  ApriDocumentoCliente(programma, zsani, "Laguna Pesca", "");
  Rispondi({false});
  StampaDocumenti(programma, zsani);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Nessuna voce da stampare per il cliente Laguna Pesca"));
  EXPECT_THAT(stampati, IsEmpty());
}

// The day on disk and in memory stays whole at every moment, whatever stops the program.
TEST_F(Zsani_Test, UnaRigaSolaNonPerdeIlGiorno) {
  Giornata();
  ASSERT_TRUE(ApriDocumentoRiga(programma, zsani, 3));
  EXPECT_EQ(programma.Vet_Tabella.Righe(), 5);
  EXPECT_THAT(Clienti(), ElementsAre("Laguna Pesca"));
  macchina.durante_attesa = [this] {
    EXPECT_EQ(programma.Vet_Tabella.Righe(), 5);
    EXPECT_EQ(Giorno_Su_Disco().Righe(), 5);
  };
  zsani.Text1[2].testo = "9";
  ModificaNumero(zsani);
  Rispondi({true});
  StampaDocumenti(programma, zsani);
  ASSERT_EQ(stampati.size(), 1U);
  EXPECT_EQ(stampati[0].Peso_Totale, 10) << "that row alone";
  EXPECT_TRUE(zsani.chiusa);
  EXPECT_THAT(DDT(), ElementsAre("001", "002", "009 (ds)", "003", "Rif.Fat. 12"));
  EXPECT_EQ(Giorno_Su_Disco().righe, programma.Vet_Tabella.righe);
}

TEST_F(Zsani_Test, UnaRigaSolaSenzaSalvare) {
  Giornata();
  ASSERT_TRUE(ApriDocumentoRiga(programma, zsani, 1));
  Rispondi({false});
  ChiudiDocumenti(programma, zsani);
  EXPECT_THAT(DDT(), ElementsAre("001", "002", "001", "003", "Rif.Fat. 12"));
  EXPECT_EQ(Giorno_Su_Disco().Righe(), 5);
}

TEST_F(Zsani_Test, UnaRigaCheNonCE) {
  Giornata();
  EXPECT_FALSE(ApriDocumentoRiga(programma, zsani, 0));
  EXPECT_FALSE(ApriDocumentoRiga(programma, zsani, 6));
}

TEST_F(Zsani_Test, UnaRigaDiAccreditoNonSiStampaNePrendeNumero) {
  Giornata();
  ASSERT_TRUE(ApriDocumentoRiga(programma, zsani, 5));
  Rispondi({true});
  StampaDocumenti(programma, zsani);
  EXPECT_THAT(stampati, IsEmpty());
  EXPECT_EQ(DDT()[4], "Rif.Fat. 12");
}

}  // namespace

#include <algorithm>
#include <cerrno>

#include "documents/pagine.h"
#include "printing/screens/stampante_qt.h"
#include "tests/documents/documenti_di_prova.h"
#include "tests/stampa_qt/pdf_riletto.h"

// The transport and sanitary documents as the toolkit makes them.

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct Documento_Cliente_Qt : testing::Test, Documenti_Di_Prova {
  Documento_Cliente_Qt() {
    const Testo intesta[] = {"Mare Blu s.n.c.", "di Verdi Anna & C.", "Posteggio 07",
                             "via Roma, 1",     "30100 Venezia - VE", "Tel. (041) 000000"};
    std::ranges::copy(intesta, programma.preferenze.DS_intesta);
    pdf.Scegli("PDF", Verticale);
    pdf.avviso = [this](const Testo& testo) { avvisi.push_back(testo); };
    zsani.stampa = [this](const Documento_Cliente& documento, const Avanzamento& avanzamento) {
      return StampaPagine(programma, documento, avanzamento);
    };
  }

  Stampante_Qt pdf{cartella.percorso};
  std::vector<Testo> avvisi;
};

// What the customer holds in his hand is what the recorder wrote down, the line at the sheet's edge included.
TEST_F(Documento_Cliente_Qt, ITestiStannoDoveDiceIlRegistro) {
  programma.preferenze.FlagAllergeni = true;
  for (const TipoDoc tipo : {TipoDoc::Sanitario, TipoDoc::DDT}) {
    std::vector<LedgerRow> righe;
    for (int i = 1; i <= 9; ++i) {
      righe.push_back(Riga(i, "Laguna Pesca", "5,5"));
      righe.back()[CampoRiga::Lotti] = "L" + std::to_string(i);
      righe.back()[CampoRiga::Allergeni] = "PES  Pesce e prodotti a base di pesce";
    }
    const auto documento = ComponiDocumento(programma, "Laguna Pesca", "007 (ds)", tipo, true, righe);
    ASSERT_TRUE(documento);
    registro = {};
    macchina.dispositivo = &printer;
    ASSERT_TRUE(StampaPagine(programma, *documento));
    macchina.dispositivo = &pdf;
    ASSERT_TRUE(StampaPagine(programma, *documento));
    EXPECT_EQ(registro.pagine, 2);
    Esigi_Testi_Al_Posto(registro, pdf.Ultimo_PDF());
    EXPECT_THAT(Esegui("qpdf", {"--check", In_Qt(pdf.Ultimo_PDF())}).toStdString(), HasSubstr("esito 0"));
  }
}

// The mark says that the goods have their paper: a document that the disk refused has none, and the run ends
// there with one message.
TEST_F(Documento_Cliente_Qt, IlDiscoPienoFermaIlGiro) {
  Vendita("Bar Ponte", "001");
  Vendita("Laguna Pesca", "002");
  Vendita("Trattoria Lido", "003");
  macchina.dispositivo = &pdf;
  ApriDocumenti(programma, zsani);
  zsani.Check1.segnata = true;
  pdf.disco.guasto = [](const Percorso& file) {
    return file.string().find(" 002 ") != std::string::npos ? ENOSPC : 0;
  };
  StampaDocumenti(programma, zsani);
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_THAT(avvisi[0], HasSubstr("Documento Sanitario 002"));
  std::vector<Testo> numeri;
  for (const VoceDoc& voce : zsani.ListaDoc) numeri.push_back(voce.Numero);
  EXPECT_THAT(numeri, ElementsAre("001 (ds)", "002", "003"));
}

// Without a printer and without a place for PDF a press of F2 is answered, each time.
TEST_F(Documento_Cliente_Qt, SenzaStampanteLoDice) {
  cartella.Metti("Stampe", "un file");
  Vendita("Bar Ponte", "001");
  macchina.dispositivo = &pdf;
  ApriDocumenti(programma, zsani);
  EXPECT_EQ(zsani.TitoloStampante.testo, "nessuna stampante...  - Verticale");
  StampaDocumenti(programma, zsani);
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_THAT(avvisi[0], HasSubstr("non è stato scritto nella cartella\n"_t));
  EXPECT_EQ(zsani.ListaDoc.at(0).Numero, "001");
  StampaDocumenti(programma, zsani);
  EXPECT_EQ(avvisi.size(), 2U);
}

}  // namespace

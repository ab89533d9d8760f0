#include <QImage>
#include <QPrinter>

#include "entry/elenco_macro.h"
#include "entry/etichette.h"
#include "lists/stampa_liste.h"
#include "printing/screens/stampante_qt.h"
#include "tests/core/ditta_di_prova.h"
#include "tests/stampa_qt/pdf_riletto.h"

// The shop labels and the lists as the toolkit makes them.

namespace {

using testing::EndsWith;
using testing::HasSubstr;

// A label printer: its driver keeps 2 mm of the 100 x 70 mm of its paper.
struct Stampante_Di_Etichette : Stampante_Qt {
  using Stampante_Qt::Stampante_Qt;
  Percorso uscita;
  QStringList Stampanti_Di_Sistema() const override { return {"Etichette"}; }
  std::unique_ptr<QPrinter> Stampante_Di_Sistema(const QString&) const override {
    auto stampante = std::make_unique<QPrinter>(QPrinter::HighResolution);
    stampante->setOutputFormat(QPrinter::PdfFormat);
    stampante->setOutputFileName(In_Qt(uscita));
    stampante->setPageLayout(QPageLayout(QPageSize(QSizeF(100, 70), QPageSize::Millimeter),
                                         QPageLayout::Portrait, QMarginsF(2, 2, 2, 2),
                                         QPageLayout::Millimeter));
    return stampante;
  }
};

struct Documenti_Qt : testing::Test {
  Documenti_Qt() {
    programma.preferenze = Preferenze_Predefinite();
    programma.Data_AAAAMMGG = "20250314";
    pdf.Scegli("PDF", Verticale);
  }
  // The same drawing on the recorder, whose sheet is `foglio`, and on the printer.
  struct Su_Foglio : Registratore {
    using Registratore::Registratore;
    std::optional<Carta> foglio;
    Carta Foglio(int orientamento) const override {
      return foglio ? *foglio : Registratore::Foglio(orientamento);
    }
  };
  template <class Disegno>
  Registro_Pagine Confronta_Con(Printer& printer, const std::optional<Carta>& foglio, Disegno disegno) {
    Registro_Pagine registro;
    Su_Foglio registratore(ditta.macchina.stampante, registro);
    registratore.foglio = foglio;
    ditta.macchina.dispositivo = &registratore;
    disegno();
    ditta.macchina.dispositivo = &printer;
    disegno();
    return registro;
  }
  static void Esigi_PDF_Buono(const Percorso& file, const std::string& titolo, int pagine) {
    EXPECT_THAT(Esegui("qpdf", {"--check", In_Qt(file)}).toStdString(), EndsWith("esito 0"));
    const std::string notizie = Esegui("pdfinfo", {In_Qt(file)}).toStdString();
    EXPECT_THAT(notizie, HasSubstr(titolo));
    EXPECT_THAT(notizie, HasSubstr("Pages:           " + std::to_string(pagine)));
  }

  Ditta_Di_Prova ditta;
  Programma& programma = ditta.programma;
  Stampante_Qt pdf{ditta.cartella.percorso};
};

Edita Riga_Immessa() {
  Edita edita;
  const std::pair<CampoRiga, Testo> campi[] = {
      {CampoRiga::Num, "0007"},
      {CampoRiga::Specie, "Gamberi rosa mediterranei, pezzatura mista da cassa e da banco"},
      {CampoRiga::NomeLatino, "Parapenaeus longirostris"},
      {CampoRiga::ZonaP, "A02272 - Mare di Norvegia, Spitzbergen e Isola degli Orsi, parte orientale"},
      {CampoRiga::Prov, "IT Italia"},
      {CampoRiga::MetodoPesca, "RDT Reti da traino"},
      {CampoRiga::Pezzatura, "GRA Grande"},
      {CampoRiga::StatoFisico, "FRE Fresco / Refrigerato"},
      {CampoRiga::Lavorazione, "XXX Non Lavorato"},
      {CampoRiga::Preparazione, "WHL Intero"},
      {CampoRiga::Lotti, "MB250313"},
      {CampoRiga::Allergeni, "Presenti"},
      {CampoRiga::Commento, "12,50 - solfiti"}};
  for (const auto& [campo, testo] : campi) Campo(edita, campo).testo = testo;
  return edita;
}

TEST_F(Documenti_Qt, UnEtichettaSuA4) {
  const Edita edita = Riga_Immessa();
  const Registro_Pagine registro =
      Confronta_Con(pdf, std::nullopt, [&] { StampaEtichetta(programma, edita); });
  EXPECT_EQ(Testi(registro).size(), 21U);
  Esigi_Testi_Al_Posto(registro, pdf.Ultimo_PDF());
  Esigi_PDF_Buono(pdf.Ultimo_PDF(), "Etichetta 0007 del 14/03/2025 - Gamberi rosa", 1);
}

TEST_F(Documenti_Qt, UnEtichettaSullaSuaCarta) {
  const Edita edita = Riga_Immessa();
  Stampante_Di_Etichette rotolo(ditta.cartella.percorso);
  rotolo.uscita = ditta.cartella / "etichetta.pdf";
  const Registro_Pagine registro =
      Confronta_Con(rotolo, Carta{100, 70, 96, 66}, [&] { StampaEtichetta(programma, edita); });
  Esigi_Testi_Al_Posto(registro, rotolo.uscita, 2, 2);
  Esigi_PDF_Buono(rotolo.uscita, "Etichetta 0007", 1);
  for (const Parola_Stampata& parola : Parole(rotolo.uscita)) {
    EXPECT_GE(parola.x, 2) << parola.testo.toStdString();
    EXPECT_LE(parola.destra, 98) << parola.testo.toStdString();
  }
}

TEST_F(Documenti_Qt, LeListeCodificate) {
  programma.Vet_Metodi.assign(70, "RDT Reti da traino");
  programma.Vet_Stati = {"FRE Fresco / Refrigerato"};
  programma.Vet_Zone = {{"A0837 - Mar Mediterraneo", "FAO n.37"}};
  Testo titolo;
  const Registro_Pagine registro = Confronta_Con(pdf, std::nullopt, [&] { Stampa_Liste(programma, titolo); });
  EXPECT_EQ(registro.pagine, 2);
  Esigi_Testi_Al_Posto(registro, pdf.Ultimo_PDF());
  Esigi_PDF_Buono(pdf.Ultimo_PDF(), "Liste del 14/03/2025", 2);
}

TEST_F(Documenti_Qt, LeMacroDeiFornitori) {
  for (int i = 10; i < 99; ++i)
    ditta.cartella.Metti("PREDEF_FOR/" + std::to_string(i) + ".txt",
                         "Laguna Pesca\r\nOrata\r\nA0837 - Mar Mediterraneo\r\n10\r\nORA1\r\nIT Italia\r\n"
                         "L1403\r\nSparus aurata\r\n");
  Elenco_Macro elenco;
  Apri_ElencoMacro(programma, elenco, Tipo_Macro::Fornitore, false);
  const Registro_Pagine registro = Confronta_Con(pdf, std::nullopt, [&] { StampaMacro(programma, elenco); });
  EXPECT_EQ(registro.pagine, 2);
  Esigi_Testi_Al_Posto(registro, pdf.Ultimo_PDF());
  Esigi_PDF_Buono(pdf.Ultimo_PDF(), "Fornitori Predefiniti del 14/03/2025", 2);
}

}  // namespace

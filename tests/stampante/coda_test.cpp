#include <QElapsedTimer>
#include <QThread>

#include "entry/etichette.h"
#include "lists/stampa_liste.h"
#include "printing/pagina.h"
#include "printing/screens/stampante_qt.h"
#include "tests/core/ditta_di_prova.h"
#include "tests/stampa_qt/pdf_riletto.h"

// Documents through the queues of a real print server, which tests/stampante/coda has started: "Banco" with
// A4 sheets, the default one, and "Etichette" with labels. What a queue delivers is the document of its job.

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct Coda : testing::Test {
  Coda() {
    programma.preferenze = Preferenze_Predefinite();
    programma.Data_AAAAMMGG = "20250314";
    stampante.avviso = [this](const Testo& testo) { avvisi.push_back(testo); };
  }

  std::vector<Percorso> Consegnati() const {
    std::vector<Percorso> esito;
    for (const auto& voce : std::filesystem::directory_iterator(uscita))
      if (voce.path().extension() == ".pdf") esito.push_back(voce.path());
    return esito;
  }
  // The document of the job that `disegno` makes; an empty path when none comes.
  template <class Disegno>
  Percorso Stampa(Disegno disegno) {
    const auto prima = Consegnati();
    ditta.macchina.dispositivo = &stampante;
    disegno();
    QElapsedTimer tempo;
    for (tempo.start(); tempo.elapsed() < 15000; QThread::msleep(20))
      for (const Percorso& file : Consegnati())
        if (std::ranges::find(prima, file) == prima.end()) return file;
    return {};
  }
  // The same document on the recorder, on a sheet like the queue's.
  struct Su_Foglio : Registratore {
    using Registratore::Registratore;
    Carta foglio;
    Carta Foglio(int) const override { return foglio; }
  };
  template <class Disegno>
  Registro_Pagine Registra(const Carta& foglio, Disegno disegno) {
    Registro_Pagine registro;
    Su_Foglio registratore(ditta.macchina.stampante, registro);
    registratore.foglio = foglio;
    ditta.macchina.dispositivo = &registratore;
    disegno();
    return registro;
  }
  static void Esigi_Pagine(const Registro_Pagine& registro, const Percorso& file, double bordo_x,
                           double bordo_y) {
    ASSERT_FALSE(file.empty()) << "la coda non ha consegnato nulla";
    EXPECT_THAT(Esegui("qpdf", {"--check", In_Qt(file)}).toStdString(), testing::EndsWith("esito 0"));
    EXPECT_THAT(Esegui("pdfinfo", {In_Qt(file)}).toStdString(),
                HasSubstr("Pages:           " + std::to_string(registro.pagine)));
    Esigi_Testi_Al_Posto(registro, file, bordo_x, bordo_y);
  }

  const Percorso uscita = qgetenv("VELMARA_CODA").toStdString();
  Ditta_Di_Prova ditta;
  Programma& programma = ditta.programma;
  Stampante_Qt stampante{ditta.cartella.percorso};
  std::vector<Testo> avvisi;
};

constexpr Carta a4{210, 297, 200, 283}, etichetta{100, 70, 96, 66};

TEST_F(Coda, LaStampanteDelSistemaEQuellaDiPartenza) {
  EXPECT_EQ(stampante.DeviceName(), "Banco");
  EXPECT_THAT(stampante.Stampanti(), ElementsAre("Banco", "Etichette", "PDF"));
  EXPECT_EQ(stampante.Orientation(), Verticale);
  stampante.ScaleMode(Scala_Millimetri);
  EXPECT_NEAR(stampante.ScaleWidth(), 200, 0.2);
  EXPECT_NEAR(stampante.ScaleHeight(), 283, 0.2);
}

TEST_F(Coda, UnaListaDiPiuPagine) {
  programma.Vet_Metodi.assign(70, "RDT Reti da traino");
  programma.Vet_Zone = {{"A0837 - Mar Mediterraneo", "FAO n.37"}};
  Testo titolo;
  const auto disegno = [&] { Stampa_Liste(programma, titolo); };
  const Registro_Pagine registro = Registra(a4, disegno);
  EXPECT_EQ(registro.pagine, 2);
  Esigi_Pagine(registro, Stampa(disegno), 5, 7);
  EXPECT_THAT(avvisi, IsEmpty());
}

TEST_F(Coda, UnEtichettaSullaStampanteDelleEtichette) {
  Edita edita;
  Campo(edita, CampoRiga::Specie).testo = "Orata";
  Campo(edita, CampoRiga::ZonaP).testo = "A0837 - Mar Mediterraneo";
  Campo(edita, CampoRiga::Commento).testo = "12,50 - solfiti";
  const auto disegno = [&] { StampaEtichetta(programma, edita); };
  ASSERT_TRUE(stampante.Scegli("Etichette", stampante.Orientation()));
  const Percorso file = Stampa(disegno);
  Esigi_Pagine(Registra(etichetta, disegno), file, 2, 2);
  EXPECT_THAT(Esegui("pdfinfo", {In_Qt(file)}).toStdString(), HasSubstr("Page size:       283"));
}

TEST_F(Coda, UnFoglioOrizzontale) {
  const auto disegno = [&] {
    Printer& printer = Dispositivo(programma);
    PreparaPagina(programma);
    StampaTesto(printer, 250, 180, "in-fondo", "Arial", 10, false);
    Riquadro(printer, 10, 10, 100, 50, 3, Nero, false);
    printer.EndDoc();
  };
  ASSERT_TRUE(stampante.Scegli("Banco", Orizzontale));
  Esigi_Pagine(Registra({297, 210, 283, 200}, disegno), Stampa(disegno), 7, 5);
}

// A queue that is taken away between the choice and the print: the operator is told which document didn't
// come out, and can print it elsewhere.
TEST_F(Coda, UnaStampanteSparitaDopoLaScelta) {
  const QString ppd = In_Qt(uscita.parent_path() / "Banco.ppd");
  ASSERT_THAT(Esegui("lpadmin", {"-p", "Breve", "-E", "-v", "cartella:/banco", "-P", ppd}).toStdString(),
              testing::EndsWith("esito 0"));
  ASSERT_TRUE(stampante.Scegli("Breve", Verticale));
  ASSERT_THAT(Esegui("lpadmin", {"-x", "Breve"}).toStdString(), testing::EndsWith("esito 0"));
  ditta.macchina.dispositivo = &stampante;
  programma.Vet_Metodi = {"RDT Reti da traino"};
  Testo titolo = "Prima Nota";
  Stampa_Liste(programma, titolo);
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_THAT(avvisi[0], HasSubstr("Liste del 14/03/2025"));
  EXPECT_THAT(avvisi[0], HasSubstr("Breve"));
  EXPECT_EQ(titolo, "Prima Nota");
  ASSERT_TRUE(stampante.Scegli("PDF", Verticale));
  Stampa_Liste(programma, titolo);
  EXPECT_EQ(stampante.Ultimo_PDF().filename(), "20250314 Liste.pdf");
  EXPECT_EQ(avvisi.size(), 1U);
}

}  // namespace

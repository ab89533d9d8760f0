#include <QDesktopServices>
#include <QUrl>

#include "platform/piattaforma_qt.h"
#include "printing/screens/stampante_qt.h"
#include "tests/core/ditta_di_prova.h"
#include "tests/stampa_qt/pdf_riletto.h"

// The desktop's viewer: what it was asked to open.
class Visore : public QObject {
  Q_OBJECT

 public:
  Visore() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "apri"); }
  ~Visore() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
  Visore(const Visore&) = delete;
  Visore& operator=(const Visore&) = delete;
  QStringList aperti;

 public slots:
  void apri(const QUrl& indirizzo) { aperti.append(indirizzo.toLocalFile()); }
};

namespace {

// Each PDF, under the name that it got in the folder, blanks and accents included.
TEST(Apri_PDF, IlVisoreDelDesktopMostraIlPDFFinito) {
  const Ditta_Di_Prova ditta;
  Stampante_Qt stampante(ditta.cartella.percorso);
  Piattaforma_Qt macchina(stampante);
  stampante.mostra = [&](const Percorso& file) { macchina.Apri_Con_Desktop(file); };
  Visore visore;
  stampante.Scegli("PDF", Verticale);
  const auto stampa = [&] {
    stampante.documento = {"20250314", "Etichetta", "0007", "Passera è #1 100%"_t};
    stampante.Print("Passera");
    stampante.EndDoc();
  };
  stampa();
  EXPECT_TRUE(visore.aperti.isEmpty());
  stampante.Apri_Alla_Fine = true;
  stampa();
  ASSERT_EQ(visore.aperti.size(), 1);
  EXPECT_EQ(visore.aperti.front().toStdString(),
            (ditta.cartella / "Stampe/20250314 Etichetta 0007 Passera è #1 100% (2).pdf").string());
  EXPECT_TRUE(std::filesystem::exists(visore.aperti.front().toStdString()));
}

// All documents of a day at once: nobody wants a viewer for each of them.
TEST(Apri_PDF, DopoUnaCorsaInUnaVolta) {
  const Ditta_Di_Prova ditta;
  Stampante_Qt stampante(ditta.cartella.percorso);
  Piattaforma_Qt macchina(stampante);
  stampante.mostra = [&](const Percorso& file) { macchina.Mostra_Finito(file); };
  stampante.Scegli("PDF", Verticale);
  stampante.Apri_Alla_Fine = true;
  struct Caso {
    int documenti;
    std::vector<std::string> aperti;
  };
  const Caso casi[] = {{2, {"20250314 Fattura 1.pdf", "20250314 Fattura 2.pdf"}}, {40, {"Stampe"}}};
  for (const Caso& caso : casi) {
    std::filesystem::remove_all(ditta.cartella / "Stampe");
    Visore visore;
    macchina.Occupato(true);
    for (int i = 1; i <= caso.documenti; ++i) {
      stampante.documento = {"20250314", "Fattura", std::to_string(i), ""};
      stampante.Print("totale");
      stampante.EndDoc();
    }
    EXPECT_TRUE(visore.aperti.isEmpty());
    macchina.Occupato(false);
    std::vector<std::string> aperti;
    for (const QString& aperto : visore.aperti)
      aperti.push_back(std::filesystem::path(aperto.toStdString()).filename().string());
    EXPECT_EQ(aperti, caso.aperti);
  }
}

}  // namespace

#include "apri_pdf_test.moc"

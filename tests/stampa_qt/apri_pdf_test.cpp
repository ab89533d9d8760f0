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

}  // namespace

#include "apri_pdf_test.moc"

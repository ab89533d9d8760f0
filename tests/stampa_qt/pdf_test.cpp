#include "printing/screens/pdf.h"

#include <cmath>
#include <gmock/gmock.h>
#include <numbers>

#include <QDateTime>
#include <QImage>

#include "printing/pagina.h"
#include "printing/screens/fonte_stampa.h"
#include "printing/screens/lavoro_pdf.h"
#include "printing/screens/stampante_qt.h"
#include "tests/core/ditta_di_prova.h"
#include "tests/stampa_qt/pdf_riletto.h"

// What a PDF is made of.

namespace {

using testing::HasSubstr;

QRawFont Disegno_Di(const char* famiglia) { return QRawFont::fromFont(QFont(famiglia)); }

Segni_Usati Segni_Di(Vista testo) {
  Segni_Usati segni;
  for (const char c : testo) segni.set(static_cast<unsigned char>(c));
  return segni;
}

TEST(Pdf, INumeriHannoAlPiuTreDecimali) {
  const std::pair<double, const char*> casi[] = {
      {0, "0"},           {595, "595"},      {0.5, "0.5"},       {-0.5, "-0.5"},      {0.05, "0.05"},
      {1.0049, "1.005"},  {0.0004, "0"},     {-0.0004, "0"},     {12.3456, "12.346"}, {1.9996, "2"},
      {-71.25, "-71.25"}, {3e38, "1000000"}, {-3e38, "-1000000"}};
  for (const auto& [numero, voluto] : casi) EXPECT_EQ(Numero_Pdf(numero), voluto) << numero;
}

TEST(Pdf, LeParentesiNelTestoNonLoChiudono) {
  EXPECT_EQ(Stringa_Pdf("Totale (Euro)"), "(Totale \\(Euro\\))");
  EXPECT_EQ(Stringa_Pdf(":-)"), "(:-\\))");
  EXPECT_EQ(Stringa_Pdf("C:\\dati"), "(C:\\\\dati)");
}

// An evening's documents differ in a few letters: making the part of a face takes longer than all the rest.
TEST(Fonte_Stampa, IDocumentiCondividonoLaParte) {
  Fonte_Stampa fonte(Disegno_Di("Liberation Sans"));
  const Parte_Fonte* prima = &fonte.Parte(Segni_Di("Fattura 12 del 14/03/2025"));
  EXPECT_EQ(&fonte.Parte(Segni_Di("Nota 7 (bozza)")), prima);
  const Parte_Fonte* accentata = &fonte.Parte(Segni_Di("Quantità 12"_t));
  EXPECT_NE(accentata, prima);
  EXPECT_THAT(accentata->voci_fonte, HasSubstr("/LastChar 224"));
  EXPECT_THAT(prima->voci_fonte, HasSubstr("/LastChar 122"));
  EXPECT_EQ(&fonte.Parte(Segni_Di("Città 7"_t)), accentata);
}

// A page of one line in that font.
std::string Una_Riga(Fonte_Stampa& fonte, Vista testo) {
  Lavoro_Pdf lavoro("prova");
  lavoro.Pagina(1, Verticale);
  lavoro.Scrivi(20, 30, fonte, 12, testo);
  return lavoro.Finisci().value();
}

// Some typefaces have curves of another kind, which a PDF takes in another way.
TEST(Fonte_Stampa, AncheLeLettereACurveCubicheSiIncorporano) {
  const Ditta_Di_Prova ditta;
  QRawFont disegno(QStringLiteral("/usr/share/fonts/opentype/urw-base35/C059-Roman.otf"), 12);
  ASSERT_TRUE(disegno.isValid()) << "package fonts-urw-base35";
  Fonte_Stampa fonte(disegno);
  ditta.cartella.Metti("una.pdf", Una_Riga(fonte, "Quantità (kg) 12,50 €"_t));
  const QString file = In_Qt(ditta.cartella / "una.pdf");
  EXPECT_THAT(Esegui("qpdf", {"--check", file}).toStdString(), testing::EndsWith("esito 0"));
  EXPECT_TRUE(Esegui("pdffonts", {file}).contains(QRegularExpression("C059-Roman .* yes yes yes ")));
  EXPECT_THAT(Esegui("pdftotext", {file, "-"}).toStdString(), HasSubstr("Quantità (kg) 12,50 €"));
}

int Punti_Scuri(const Ditta_Di_Prova& ditta, const std::string& pdf) {
  ditta.cartella.Metti("una.pdf", pdf);
  const QString file = In_Qt(ditta.cartella / "una.pdf"), immagine = In_Qt(ditta.cartella / "una");
  Esegui("pdftoppm", {"-png", "-r", "150", "-singlefile", file, immagine});
  const QImage pagina(immagine + ".png");
  int scuri = 0;
  for (int y = 0; y < pagina.height(); ++y)
    for (int x = 0; x < pagina.width(); ++x) scuri += qGray(pagina.pixel(x, y)) < 128 ? 1 : 0;
  return scuri;
}

// A total in bold stands out also in a typeface that has no bold letters; what follows is thin again.
TEST(Fonte_Stampa, IlGrassettoFintoHaPiuInchiostro) {
  const Ditta_Di_Prova ditta;
  Fonte_Stampa fonte(Disegno_Di("Liberation Sans")), finta(Disegno_Di("Liberation Sans"));
  finta.Chiedi_Stile(true, false);
  const int sottile = Punti_Scuri(ditta, Una_Riga(fonte, "TOTALE"));
  EXPECT_GT(sottile, 0);
  EXPECT_GT(Punti_Scuri(ditta, Una_Riga(finta, "TOTALE")), sottile * 11 / 10);
  Lavoro_Pdf lavoro("prova");
  lavoro.Pagina(1, Verticale);
  lavoro.Scrivi(20, -50, finta, 12, "fuori dal foglio");
  lavoro.Scrivi(20, 30, fonte, 12, "TOTALE");
  EXPECT_EQ(Punti_Scuri(ditta, lavoro.Finisci().value()), sottile);
}

// Two parts of one face in two documents that somebody joins: their names must not be taken for one another.
TEST(Fonte_Stampa, OgniParteHaUnNomeSuo) {
  Fonte_Stampa fonte(Disegno_Di("Liberation Sans"));
  const auto nome = [&](Vista testo) {
    const std::string& voci = fonte.Parte(Segni_Di(testo)).voci_fonte;
    return voci.substr(voci.find("/BaseFont"), 40);
  };
  EXPECT_NE(nome("abc"), nome("ABC"));
  EXPECT_NE(nome("abc"), nome("abc è"_t));
  EXPECT_THAT(nome("abc"), HasSubstr("+LiberationSans"));
}

TEST(Fonte_Stampa, ChiNonHaLettereDisegnateNonSiIncorpora) {
  EXPECT_TRUE(Fonte_Stampa(Disegno_Di("Liberation Mono")).Si_Incorpora());
  EXPECT_FALSE(Fonte_Stampa(QRawFont()).Si_Incorpora());
}

TEST(Fonte_Stampa, SiFingeSoloLoStileCheManca) {
  QFont grassa("Liberation Sans");
  grassa.setBold(true);
  Fonte_Stampa vera(QRawFont::fromFont(grassa)), tonda(Disegno_Di("Liberation Sans"));
  vera.Chiedi_Stile(true, false);
  EXPECT_FALSE(vera.Grassetto_Finto());
  vera.Chiedi_Stile(true, true);
  EXPECT_TRUE(vera.Corsivo_Finto());
  tonda.Chiedi_Stile(false, false);
  EXPECT_FALSE(tonda.Grassetto_Finto() || tonda.Corsivo_Finto());
  tonda.Chiedi_Stile(true, false);
  EXPECT_TRUE(tonda.Grassetto_Finto());
}

struct Pdf_Disegnato : testing::Test {
  Pdf_Disegnato() {
    stampante.Scegli("PDF", Verticale);
    stampante.ScaleMode(Scala_Millimetri);
  }
  // The first page of the last PDF, five points to the millimetre.
  QImage Pagina(const Stampante_Qt& di) const {
    const Percorso immagine = ditta.cartella / "pagina";
    Esegui("pdftoppm", {"-png", "-r", "127", "-singlefile", In_Qt(di.Ultimo_PDF()), In_Qt(immagine)});
    return QImage(In_Qt(immagine) + ".png");
  }
  static QColor Colore_A(const QImage& pagina, double x, double y) {
    return pagina.pixelColor(static_cast<int>(std::lround(x * 5)), static_cast<int>(std::lround(y * 5)));
  }

  Ditta_Di_Prova ditta;
  Stampante_Qt stampante{ditta.cartella.percorso};
};

// A document that comes after others, with parts of faces made for them, is the same as alone: no letter of
// its own is missing.
TEST_F(Pdf_Disegnato, DopoAltriUnDocumentoEComeDaSolo) {
  const auto stampa = [&](Stampante_Qt& su, Vista testo) {
    su.ScaleMode(Scala_Millimetri);
    StampaTesto(su, 20, 20, testo, "Arial", 30, false);
    StampaTesto(su, 20, 40, testo, "Arial", 30, true);
    su.EndDoc();
    return Pagina(su);
  };
  Stampante_Qt sola(ditta.cartella.percorso);
  sola.Scegli("PDF", Verticale);
  stampa(stampante, "totale");
  stampa(stampante, "TOTALE 12");
  const QImage dopo = stampa(stampante, "Sèppia Øresund ½ €"_t),
               da_solo = stampa(sola, "Sèppia Øresund ½ €"_t);
  ASSERT_FALSE(dopo.isNull());
  EXPECT_EQ(dopo, da_solo);
  EXPECT_NE(dopo, stampa(stampante, "Seppia  resund    "));
}

TEST_F(Pdf_Disegnato, UnArcoGiraInSensoAntiorarioDaDestra) {
  stampante.DrawWidth = 10;
  stampante.Circle(100, 100, 30, {200, 0, 0}, 0, static_cast<float>(std::numbers::pi / 2));
  stampante.Circle(100, 200, 30, Nero, static_cast<float>(std::numbers::pi), 0);
  stampante.EndDoc();
  const QImage pagina = Pagina(stampante);
  const double in_diagonale = 30 / std::numbers::sqrt2;
  EXPECT_EQ(Colore_A(pagina, 100 + in_diagonale, 100 - in_diagonale), QColor(200, 0, 0));
  EXPECT_EQ(Colore_A(pagina, 100 - in_diagonale, 100 - in_diagonale), QColor(Qt::white));
  EXPECT_EQ(Colore_A(pagina, 100 + in_diagonale, 100 + in_diagonale), QColor(Qt::white));
  EXPECT_EQ(Colore_A(pagina, 100, 230), QColor(Qt::black));  // through the foot to the right
  EXPECT_EQ(Colore_A(pagina, 100, 170), QColor(Qt::white));
}

TEST_F(Pdf_Disegnato, UnImmagineStaNelSuoRettangolo) {
  Immagine immagine{20, 20, {}};
  for (int y = 0; y < 20; ++y)
    for (int x = 0; x < 20; ++x)
      immagine.punti.push_back(y < 10 ? (x < 10 ? 0xFF0000 : 0x00FF00) : (x < 10 ? 0x0000FF : 0x000000));
  stampante.PaintPicture(immagine, 20, 30, 80, 40);
  stampante.NewPage();
  stampante.PaintPicture(immagine, 0, 0, 10, 10);
  stampante.EndDoc();
  const QImage pagina = Pagina(stampante);
  EXPECT_EQ(Colore_A(pagina, 22, 32), QColor(255, 0, 0));
  EXPECT_EQ(Colore_A(pagina, 98, 32), QColor(0, 255, 0));
  EXPECT_EQ(Colore_A(pagina, 22, 68), QColor(0, 0, 255));
  EXPECT_EQ(Colore_A(pagina, 98, 68), QColor(Qt::black));
  EXPECT_EQ(Colore_A(pagina, 19, 32), QColor(Qt::white));
  EXPECT_EQ(Colore_A(pagina, 60, 71), QColor(Qt::white));
  EXPECT_THAT(Esegui("qpdf", {"--check", In_Qt(stampante.Ultimo_PDF())}).toStdString(),
              testing::EndsWith("esito 0"));
}

// Nothing but paper: a form that was pushed on by mistake.
TEST_F(Pdf_Disegnato, UnFoglioBiancoEBuono) {
  stampante.Print("");
  stampante.NewPage();
  EXPECT_TRUE(stampante.EndDoc());
  const QString file = In_Qt(stampante.Ultimo_PDF());
  EXPECT_THAT(Esegui("qpdf", {"--check", file}).toStdString(), testing::EndsWith("esito 0"));
  EXPECT_THAT(Esegui("pdfinfo", {file}).toStdString(), HasSubstr("Pages:           2"));
}

TEST_F(Pdf_Disegnato, TitoloEDataSiLeggono) {
  stampante.documento = {"20250314", "Fattura", "12", "Società È (n° 1) €"_t};
  stampante.Print("totale");
  stampante.EndDoc();
  const QString notizie = Esegui("pdfinfo", {"-isodates", In_Qt(stampante.Ultimo_PDF())});
  EXPECT_THAT(notizie.toStdString(), HasSubstr("Fattura 12 del 14/03/2025 - Società È (n° 1) €"));
  static const QRegularExpression forma("CreationDate: +(\\S+)");
  const QString scritta = forma.match(notizie).captured(1);
  const QDateTime data = QDateTime::fromString(scritta.size() == 22 ? scritta + ":00" : scritta, Qt::ISODate);
  EXPECT_LT(std::abs(data.secsTo(QDateTime::currentDateTime())), 60) << scritta.toStdString();
}

}  // namespace

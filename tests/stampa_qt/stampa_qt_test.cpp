#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QImage>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPrinter>
#include <QRawFont>
#include <QRegularExpression>

#include "platform/interruzione.h"
#include "platform/piattaforma_qt.h"
#include "platform/testo_qt.h"
#include "printing/nomi_stampe.h"
#include "printing/pagina.h"
#include "printing/registratore.h"
#include "printing/screens/stampante_qt.h"
#include "tests/core/ditta_di_prova.h"
#include "tests/stampa_qt/pdf_riletto.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// Two pages with everything that layouts draw.
void Disegna_Prova(const Programma& programma) {
  Printer& printer = Dispositivo(programma);
  printer.documento = {"20250314", "Fattura", "12", "00345"};
  PreparaPagina(programma);
  PreparaPagina(programma);
  StampaTesto(printer, 20, 20, "Mercato Ittico all'Ingrosso AVATAR", "Arial", 16, true);
  StampaTesto(printer, 20, 30, "Orata (Sparus aurata) è fresca a 12,50 €/kg"_t, "Arial", 11, false);
  printer.FontItalic = true;
  StampaTesto(printer, 20, 36, "Totale corsivo grassetto", "Arial", 11, true);
  StampaTesto(printer, 20, 42, "Totale corsivo", "Arial", 11, false);
  printer.FontItalic = false;
  StampaTesto(printer, 20, 50, "|0123456789| colonne a passo fisso", "courier new", 10, false);
  StampaTesto(printer, 20, 56, "|0123456789| colonne grassette", "courier new", 10, true);
  for (const Vista importo : {"1,50", "1.234,50", "-12,00"}) {
    printer.FontName = "Arial";
    printer.FontSize = 9;
    printer.FontBold = false;
    StampaDestra(printer, 150, printer.CurrentY + 4, 40, importo);
  }
  StampaCentrato(printer, 90, " in mezzo al foglio ", 105);
  Riquadro(printer, 20, 100, 80, 20, 5, {200, 0, 0}, false);
  Riquadro(printer, 110, 100, 80, 20, 1, {200, 220, 200}, true);
  LineaOrizzontale(printer, 20, 130, 170, {0, 0, 255}, 10);
  LineaVerticale(printer, 150, 140, 40, Nero, 10);
  float x = 120;
  StampaEllisse(programma, x, 160);
  printer.NewPage();
  printer.ScaleMode(Scala_Twip);
  printer.CurrentX = 1440;
  printer.CurrentY = 2880;
  printer.Print("pagina-due");
  printer.EndDoc();
}

struct Stampa_Qt : testing::Test {
  Stampa_Qt() {
    ditta.programma.preferenze = Preferenze_Predefinite();
    ditta.programma.preferenze.Numero_Posteggio = "07";
    stampante.Scegli("PDF", Verticale);
  }
  Percorso Stampa(Printer& dispositivo) {
    ditta.macchina.dispositivo = &dispositivo;
    Disegna_Prova(ditta.programma);
    return stampante.Ultimo_PDF();
  }
  Registro_Pagine Registra() {
    Registro_Pagine registro;
    Registratore registratore(ditta.macchina.stampante, registro);
    Stampa(registratore);
    return registro;
  }
  Percorso File_Stampe(const std::string& nome) const { return ditta.cartella / "Stampe" / nome; }

  Ditta_Di_Prova ditta;
  Stampante_Qt stampante{ditta.cartella.percorso};
};

TEST_F(Stampa_Qt, IlPDFEBuonoConCaratteriTitoloENome) {
  const Percorso file = Stampa(stampante);
  EXPECT_EQ(file, File_Stampe("20250314 Fattura 12 00345.pdf"));
  const std::string qpdf = Esegui("qpdf", {"--check", In_Qt(file)}).toStdString();
  EXPECT_THAT(qpdf, HasSubstr("No syntax or stream encoding errors found"));
  EXPECT_THAT(qpdf, testing::EndsWith("esito 0"));
  const QStringList fonti = Esegui("pdffonts", {In_Qt(file)}).split('\n');
  ASSERT_EQ(fonti.size(), 2 + 6 + 1);  // a heading of two lines, six fonts, the status
  for (int i = 2; i < 8; ++i) {
    EXPECT_THAT(fonti[i].toStdString(), HasSubstr("Liberation"));
    // embedded, whether as a part or whole, and with the letters that its glyphs stand for
    EXPECT_TRUE(fonti[i].contains(QRegularExpression(" yes (yes|no ) yes +\\d+ +\\d+ *$")))
        << fonti[i].toStdString();
  }
  const std::string notizie = Esegui("pdfinfo", {In_Qt(file)}).toStdString();
  EXPECT_THAT(notizie, HasSubstr("Fattura 12 del 14/03/2025 - 00345"));
  EXPECT_THAT(notizie, HasSubstr("Pages:           2"));
  EXPECT_THAT(notizie, HasSubstr("(A4)"));
}

TEST_F(Stampa_Qt, ITestiStannoDoveDiceIlRegistro) {
  const Registro_Pagine registro = Registra();
  Esigi_Testi_Al_Posto(registro, Stampa(stampante));
  EXPECT_EQ(Testi(registro).size(), 12U);
}

TEST_F(Stampa_Qt, LineeRiquadriEdEllisseStannoDoveDiceIlRegistro) {
  const Percorso file = Stampa(stampante);
  const Percorso immagine = ditta.cartella / "pagina";
  Esegui("pdftoppm",
         {"-png", "-r", "254", "-f", "1", "-l", "1", "-singlefile", In_Qt(file), In_Qt(immagine)});
  const QImage pagina(In_Qt(immagine) + ".png");
  ASSERT_FALSE(pagina.isNull());
  // 254 dots to the inch are ten to the millimetre.
  const auto colore = [&](double x, double y) {
    return pagina.pixelColor(static_cast<int>(std::lround(x * 10)), static_cast<int>(std::lround(y * 10)));
  };
  const QColor bianco(Qt::white), nero(Qt::black);
  EXPECT_EQ(colore(60, 100), nero);  // the outline is black, though red was asked for
  EXPECT_EQ(colore(20, 110), nero);
  EXPECT_EQ(colore(100, 110), nero);
  EXPECT_EQ(colore(60, 110), bianco);
  EXPECT_EQ(colore(60, 99.5), bianco);
  EXPECT_EQ(colore(150, 110), QColor(200, 220, 200));
  EXPECT_EQ(colore(110.3, 119.7), QColor(200, 220, 200));
  EXPECT_EQ(colore(190.5, 110), bianco);
  EXPECT_EQ(colore(100, 130), QColor(0, 0, 255));
  EXPECT_EQ(colore(19.7, 130), bianco);
  EXPECT_EQ(colore(100, 130.3), QColor(0, 0, 255));  // ten units of the pen are 0.85 mm
  EXPECT_EQ(colore(100, 130.6), bianco);
  EXPECT_EQ(colore(150, 160), nero);
  EXPECT_EQ(colore(150, 139.7), bianco);
  EXPECT_EQ(colore(101 + 11, 160), nero);  // the oval around (101, 160), 11 by 3.3
  EXPECT_EQ(colore(101, 160 - 3.3), nero);
  EXPECT_EQ(colore(101 + 11, 160 - 3.3), bianco);
}

TEST_F(Stampa_Qt, IlTestoSiPuoCopiare) {
  const QString testo = Esegui("pdftotext", {"-layout", In_Qt(Stampa(stampante)), "-"});
  EXPECT_TRUE(testo.contains("Orata (Sparus aurata) è fresca a 12,50 €/kg"));
  EXPECT_TRUE(testo.contains("|0123456789| colonne a passo fisso"));
  EXPECT_TRUE(testo.contains("1.234,50"));
}

TEST_F(Stampa_Qt, OgniCarattereDelCodiceSiStampaESiRilegge) {
  stampante.ScaleMode(Scala_Millimetri);
  QString voluto;
  for (int riga = 2; riga < 16; ++riga) {
    Testo testo;
    for (int i = 0; i < 16; ++i) testo += static_cast<char>(riga * 16 + i);
    stampante.Print(testo);
    testo = Sostituisci_Tutti(testo, "\xAD", "-");  // the face has one glyph for both hyphens
    for (const QChar c : In_QString(testo))
      if (c.isPrint() && !c.isSpace()) voluto += c;
  }
  stampante.EndDoc();
  QString trovato = Esegui("pdftotext", {"-raw", In_Qt(stampante.Ultimo_PDF()), "-"});
  trovato.truncate(trovato.lastIndexOf("esito"));
  trovato.remove(QRegularExpression("[\\s\\x{A0}\\f]"));
  EXPECT_EQ(trovato.toStdString(), voluto.toStdString());
}

// The tables are those of the installed faces: what is drawn is as wide as what was measured.
TEST(Larghezze_Installate, SonoQuelleDelleTabelle) {
  for (const Faccia faccia : {Faccia::Sans, Faccia::Mono})
    for (const bool grassetto : {false, true})
      for (const bool corsivo : {false, true}) {
        QFont fonte(In_QString(Nome_Faccia(faccia)));
        fonte.setBold(grassetto);
        fonte.setItalic(corsivo);
        fonte.setHintingPreference(QFont::PreferNoHinting);
        ASSERT_EQ(QFontInfo(fonte).family(), In_QString(Nome_Faccia(faccia)));
        const Metrica& metrica = Metrica_Della_Faccia(faccia, grassetto);
        QRawFont disegno = QRawFont::fromFont(fonte);
        disegno.setPixelSize(metrica.quadrato);
        EXPECT_EQ(std::lround(disegno.ascent()), metrica.sopra);
        EXPECT_EQ(std::lround(disegno.descent()), metrica.sotto);
        for (int i = 0; i < 256; ++i) {
          const char c = static_cast<char>(i);
          const auto larghezza = metrica.larghezze[static_cast<std::size_t>(i)];
          if (larghezza == 0) continue;
          const auto passi =
              disegno.advancesForGlyphIndexes(disegno.glyphIndexesForString(In_QString(Vista(&c, 1))));
          ASSERT_EQ(passi.size(), 1);
          EXPECT_EQ(std::lround(passi.front().x()), larghezza) << i << grassetto << corsivo;
        }
      }
}

TEST_F(Stampa_Qt, UnFoglioOrizzontale) {
  stampante.Orientation(Orizzontale);
  stampante.ScaleMode(Scala_Millimetri);
  EXPECT_FLOAT_EQ(stampante.ScaleWidth(), 297);
  StampaTesto(stampante, 270, 190, "in-fondo", "Arial", 10, false);
  stampante.Orientation(Verticale);
  stampante.NewPage();
  StampaTesto(stampante, 10, 280, "in-piedi", "Arial", 10, false);
  stampante.EndDoc();
  const auto parole = Parole(stampante.Ultimo_PDF());
  ASSERT_EQ(parole.size(), 2U);
  EXPECT_NEAR(parole[0].x, 270, mezzo_millimetro);
  EXPECT_NEAR(parole[0].y, 190, mezzo_millimetro);
  EXPECT_NEAR(parole[1].y, 280, mezzo_millimetro);
  const QString notizie = Esegui("pdfinfo", {"-f", "1", "-l", "2", In_Qt(stampante.Ultimo_PDF())});
  EXPECT_TRUE(notizie.contains(QRegularExpression("Page +1 size: +842"))) << notizie.toStdString();
  EXPECT_TRUE(notizie.contains(QRegularExpression("Page +2 size: +595"))) << notizie.toStdString();
}

TEST_F(Stampa_Qt, LaSecondaCopiaNonPrendeIlPostoDellaPrima) {
  Stampa(stampante);
  const std::string prima = ditta.cartella.Contenuto("Stampe/20250314 Fattura 12 00345.pdf");
  EXPECT_EQ(Stampa(stampante), File_Stampe("20250314 Fattura 12 00345 (2).pdf"));
  EXPECT_EQ(ditta.cartella.Contenuto("Stampe/20250314 Fattura 12 00345.pdf"), prima);
}

TEST_F(Stampa_Qt, UnPDFFinitoSiMostraSoloSeChiesto) {
  std::vector<Percorso> mostrati;
  stampante.mostra = [&](const Percorso& file) { mostrati.push_back(file); };
  Stampa(stampante);
  EXPECT_THAT(mostrati, IsEmpty());
  stampante.Apri_Alla_Fine = true;
  const Percorso file = Stampa(stampante);
  EXPECT_THAT(mostrati, ElementsAre(file));
}

TEST_F(Stampa_Qt, SenzaStampanteDiSistemaLaPrimaSceltaEPDF) {
  struct Nessuna : Stampante_Qt {
    using Stampante_Qt::Stampante_Qt;
    QStringList Stampanti_Di_Sistema() const override { return {}; }
  } nessuna{ditta.cartella.percorso};
  EXPECT_EQ(nessuna.DeviceName(), "PDF");
  EXPECT_THAT(nessuna.Stampanti(), ElementsAre("PDF"));
  EXPECT_EQ(nessuna.Orientation(), Verticale);
}

TEST_F(Stampa_Qt, LaMacchinaDiceLaStampanteInUso) {
  Piattaforma_Qt macchina(stampante);
  EXPECT_EQ(&macchina.Dispositivo(), &stampante);
  stampante.Orientation(Orizzontale);
  ASSERT_TRUE(macchina.Stampante_Corrente());
  EXPECT_EQ(macchina.Stampante_Corrente()->nome, "PDF");
  EXPECT_TRUE(macchina.Stampante_Corrente()->orizzontale);
  std::filesystem::remove(ditta.cartella / "Stampe");
  ditta.cartella.Metti("Stampe", "un file");
  EXPECT_FALSE(macchina.Stampante_Corrente());
}

// Where a file stands in the folder's place nothing can be printed, and the captions say so.
TEST_F(Stampa_Qt, SenzaLaCartellaStampeNonCEStampante) {
  std::vector<Testo> avvisi;
  stampante.avviso = [&](const Testo& testo) { avvisi.push_back(testo); };
  ditta.cartella.Metti("Stampe", "un file");
  EXPECT_EQ(stampante.DeviceName(), std::nullopt);
  EXPECT_EQ(NomeStampante(stampante), "nessuna stampante...");
  Stampa(stampante);
  ASSERT_EQ(avvisi.size(), 1U);  // of a document of many lines
  EXPECT_THAT(avvisi[0], HasSubstr("non è stato scritto nella cartella\n"_t));
  EXPECT_EQ(stampante.Ultimo_PDF(), Percorso());
  EXPECT_EQ(ditta.cartella.Contenuto("Stampe"), "un file");
}

// The document screen marks as printed only what came out.
TEST_F(Stampa_Qt, AllaFineSiSaSeIlDocumentoEUscito) {
  const auto esce = [&] {
    stampante.Print("totale");
    return stampante.EndDoc();
  };
  EXPECT_FALSE(stampante.EndDoc()) << "nothing was begun";
  EXPECT_TRUE(esce());
  stampante.disco.guasto = [](const Percorso& file) { return file.extension() == ".pdf" ? ENOSPC : 0; };
  EXPECT_FALSE(esce());
  stampante.disco.guasto = nullptr;
  std::filesystem::remove_all(ditta.cartella / "Stampe");
  ditta.cartella.Metti("Stampe", "un file");
  EXPECT_FALSE(esce());
}

// How many points of a third of a millimetre, from the upper edge of the band, have ink in them.
int Righe_Con_Inchiostro(const QImage& pagina, int da_mm, int a_mm) {
  constexpr double punti_per_mm = 300 / 25.4;
  int righe = 0;
  for (int y = static_cast<int>(da_mm * punti_per_mm); y < static_cast<int>(a_mm * punti_per_mm); ++y)
    for (int x = 0; x < pagina.width(); ++x)
      if (qGray(pagina.pixel(x, y)) < 128) {
        ++righe;
        break;
      }
  return righe;
}

// The first line of the letterhead stands a millimetre above the edge: the firm's name must be whole all the
// same. What lies beyond the edge altogether stays there.
TEST_F(Stampa_Qt, UnaRigaCheSporgeDalBordoEIntera) {
  stampante.ScaleMode(Scala_Millimetri);
  stampante.FontSize = 10;
  for (const float y : {-1.0F, 20.0F, -9.0F}) {
    stampante.CurrentX = 30;
    stampante.CurrentY = y;
    stampante.Print("SOCIETÀ D'ORO"_t);
  }
  stampante.EndDoc();
  const QString immagine = In_Qt(ditta.cartella / "pagina");
  Esegui("pdftoppm", {"-r", "300", "-png", "-singlefile", In_Qt(stampante.Ultimo_PDF()), immagine});
  const QImage pagina(immagine + ".png");
  ASSERT_FALSE(pagina.isNull());
  EXPECT_NEAR(Righe_Con_Inchiostro(pagina, 0, 15), Righe_Con_Inchiostro(pagina, 15, 30), 1);
}

// Keys pressed while all the documents come out would bring them all out once more; a commit takes no time
// and keeps what is typed ahead.
TEST_F(Stampa_Qt, DopoUnLavoroLungoITastiPremutiSiButtano) {
  Piattaforma_Qt macchina(stampante);
  QLineEdit campo;
  const auto lavora = [&](double secondi) {
    macchina.Occupato(true);
    macchina.Attendi(secondi);
    macchina.Ridipingi();
    QCoreApplication::postEvent(&campo, new QKeyEvent(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, "7"));
    macchina.Occupato(false);
    QCoreApplication::processEvents();
    return campo.text().toStdString();
  };
  EXPECT_EQ(lavora(0.4), "");
  EXPECT_EQ(lavora(0.05), "7");
}

struct Tasti_In_Lavoro : Stampa_Qt {
  void Premi(int tasto, const QString& testo = {}, bool tenuto = false) {
    QCoreApplication::postEvent(&campo,
                                new QKeyEvent(QEvent::KeyPress, tasto, Qt::NoModifier, testo, tenuto));
  }
  QLineEdit campo;
};

// What else was keyed is dropped; a key held down is none; the same one doesn't stop the next work.
TEST_F(Tasti_In_Lavoro, EscSiRicordaEGliAltriCadono) {
  Premi(Qt::Key_8, "8");
  EXPECT_FALSE(Esc_Premuto());
  Premi(Qt::Key_Escape, {}, true);
  EXPECT_FALSE(Esc_Premuto());
  Premi(Qt::Key_Escape);
  Premi(Qt::Key_9, "9");
  EXPECT_TRUE(Esc_Premuto());
  EXPECT_FALSE(Esc_Premuto());
  EXPECT_EQ(campo.text(), "");
}

// A short work keeps the Esc of who types ahead for the screen behind it.
TEST_F(Tasti_In_Lavoro, EscFermaSoloUnLavoroLungo) {
  Piattaforma_Qt macchina(stampante);
  // repainting, which is done now and then, lets a posted key through; not so one of the keyboard
  const auto fermato = [&] {
    bool si = false;
    for (int volta = 0; volta < 20 && !si; ++volta) {
      macchina.Ridipingi();
      Premi(Qt::Key_Escape);
      si = macchina.Vuole_Fermare();
    }
    return si;
  };
  macchina.Occupato(true);
  EXPECT_FALSE(macchina.Vuole_Fermare());
  macchina.Attendi(0.4);
  EXPECT_TRUE(fermato());
  macchina.Occupato(false);
  macchina.Occupato(true);
  Premi(Qt::Key_Escape);
  EXPECT_FALSE(macchina.Vuole_Fermare());
  macchina.Occupato(false);
}

TEST_F(Stampa_Qt, UnPDFAbbandonatoNonSiScrive) {
  stampante.documento = {"20250314", "Liste", "", ""};
  stampante.Print("prima pagina");
  stampante.NewPage();
  EXPECT_TRUE(stampante.Abbandona());
  EXPECT_TRUE(stampante.Ultimo_PDF().empty());
  EXPECT_TRUE(stampante.disco.Elenca(ditta.cartella / "Stampe", "*").value().empty());
  stampante.Print("intera");
  EXPECT_TRUE(stampante.EndDoc());
  EXPECT_EQ(stampante.disco.Elenca(ditta.cartella / "Stampe", "*").value().size(), 1U);
}

// Of a run only the first lost document is told; the operator who tries that one again hears of it again.
TEST_F(Stampa_Qt, DiUnGiroPersoSiDiceIlPrimoDocumento) {
  std::vector<Testo> avvisi;
  stampante.avviso = [&](const Testo& testo) { avvisi.push_back(testo); };
  stampante.disco.guasto = [](const Percorso& file) { return file.extension() == ".pdf" ? ENOSPC : 0; };
  const auto stampa_numero = [&](const Testo& numero) {
    stampante.documento = {"20250314", "Fattura", numero, "00345"};
    stampante.Print("totale");
    stampante.EndDoc();
  };
  for (const Vista numero : {"12", "13", "14"}) stampa_numero(Testo(numero));
  ASSERT_EQ(avvisi.size(), 1U);
  EXPECT_THAT(avvisi[0], HasSubstr("Fattura 12 del 14/03/2025 - 00345"));
  EXPECT_THAT(avvisi[0], HasSubstr("/Stampe\n"));
  stampa_numero("12");
  EXPECT_EQ(avvisi.size(), 2U);
  EXPECT_EQ(stampante.Ultimo_PDF(), Percorso());
  stampante.disco.guasto = nullptr;
  EXPECT_EQ(Stampa(stampante), File_Stampe("20250314 Fattura 12 00345.pdf"));
  stampante.disco.guasto = [](const Percorso& file) { return file.extension() == ".pdf" ? ENOSPC : 0; };
  stampa_numero("15");
  EXPECT_EQ(avvisi.size(), 3U);
}

// A printer of the system whose driver keeps 5 and 7 mm of the paper for itself; it prints into a file.
struct Stampante_Di_Rete : Stampante_Qt {
  using Stampante_Qt::Stampante_Qt;
  Percorso uscita;
  QStringList Stampanti_Di_Sistema() const override { return {"PDF", "Ufficio", "Banco"}; }
  std::unique_ptr<QPrinter> Stampante_Di_Sistema(const QString& nome) const override {
    if (nome != "Ufficio") return nullptr;
    auto stampante = std::make_unique<QPrinter>(QPrinter::HighResolution);
    stampante->setOutputFormat(QPrinter::PdfFormat);
    stampante->setOutputFileName(In_Qt(uscita));
    stampante->setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                         QMarginsF(5, 7, 5, 7), QPageLayout::Millimeter));
    return stampante;
  }
};

TEST_F(Stampa_Qt, SullaStampanteDiSistemaIPostiSiContanoDaDoveSiPuoStampare) {
  const Registro_Pagine registro = Registra();
  Stampante_Di_Rete rete(ditta.cartella.percorso);
  rete.uscita = ditta.cartella / "rete.pdf";
  EXPECT_EQ(rete.DeviceName(), "Ufficio");
  EXPECT_THAT(rete.Stampanti(), ElementsAre("Ufficio", "Banco", "PDF"));  // ours, once
  rete.ScaleMode(Scala_Millimetri);
  EXPECT_NEAR(rete.ScaleWidth(), 200, 0.1);
  EXPECT_NEAR(rete.ScaleHeight(), 283, 0.1);
  EXPECT_NEAR(rete.Height(), 16838, 5);
  Stampa(rete);
  EXPECT_EQ(rete.Ultimo_PDF(), Percorso());
  EXPECT_FALSE(std::filesystem::exists(ditta.cartella / "Stampe"));
  Esigi_Testi_Al_Posto(registro, rete.uscita, 5, 7);
}

// The borders turn with the sheet.
TEST_F(Stampa_Qt, SullaStampanteDiSistemaIlFoglioGira) {
  Stampante_Di_Rete rete(ditta.cartella.percorso);
  rete.uscita = ditta.cartella / "rete.pdf";
  ASSERT_TRUE(rete.Scegli("Ufficio", Orizzontale));
  rete.ScaleMode(Scala_Millimetri);
  EXPECT_NEAR(rete.ScaleWidth(), 283, 0.1);
  EXPECT_NEAR(rete.ScaleHeight(), 200, 0.1);
  StampaTesto(rete, 250, 180, "in-fondo", "Arial", 10, false);
  rete.Orientation(Verticale);
  rete.NewPage();
  StampaTesto(rete, 150, 270, "in-piedi", "Arial", 10, false);
  rete.EndDoc();
  const auto parole = Parole(rete.uscita);
  ASSERT_EQ(parole.size(), 2U);
  EXPECT_NEAR(parole[0].x, 250 + 7, mezzo_millimetro);
  EXPECT_NEAR(parole[0].y, 180 + 5, mezzo_millimetro);
  EXPECT_NEAR(parole[1].x, 150 + 5, mezzo_millimetro);
  EXPECT_NEAR(parole[1].y, 270 + 7, mezzo_millimetro);
  const QString notizie = Esegui("pdfinfo", {"-f", "1", "-l", "2", In_Qt(rete.uscita)});
  EXPECT_TRUE(notizie.contains(QRegularExpression("Page +1 size: +842"))) << notizie.toStdString();
  EXPECT_TRUE(notizie.contains(QRegularExpression("Page +2 size: +595"))) << notizie.toStdString();
}

// Asked once for a document, not for each of its lines: a print server may let one wait.
TEST_F(Stampa_Qt, UnaStampanteSparitaDopoLaSceltaEDetta) {
  struct Sparita : Stampante_Di_Rete {
    using Stampante_Di_Rete::Stampante_Di_Rete;
    bool spenta = false;
    mutable int richieste = 0;
    std::unique_ptr<QPrinter> Stampante_Di_Sistema(const QString& nome) const override {
      ++richieste;
      return spenta ? nullptr : Stampante_Di_Rete::Stampante_Di_Sistema(nome);
    }
  } sparita{ditta.cartella.percorso};
  sparita.uscita = ditta.cartella / "rete.pdf";
  std::vector<Testo> avvisi;
  sparita.avviso = [&](const Testo& testo) { avvisi.push_back(testo); };
  ASSERT_EQ(sparita.DeviceName(), "Ufficio");
  sparita.spenta = true;
  sparita.richieste = 0;
  Stampa(sparita);
  EXPECT_EQ(sparita.richieste, 1);
  EXPECT_THAT(avvisi, ElementsAre("Il documento\nFattura 12 del 14/03/2025 - 00345\nnon è stato stampato. La "
                                  "stampante\nUfficio\nnon risponde. Se ne sceglie un'altra dal menu "
                                  "\"Stampante\"."_t));
  sparita.spenta = false;
  Stampa(sparita);
  EXPECT_EQ(avvisi.size(), 1U);
  EXPECT_TRUE(std::filesystem::exists(sparita.uscita));
}

TEST_F(Stampa_Qt, UnaStampanteCheNonRispondeNonSiPrende) {
  Stampante_Di_Rete rete(ditta.cartella.percorso);
  rete.uscita = ditta.cartella / "rete.pdf";
  EXPECT_FALSE(rete.Scegli("Banco", Orizzontale));
  EXPECT_EQ(rete.DeviceName(), "Ufficio");
  EXPECT_EQ(rete.Orientation(), Verticale);
  EXPECT_TRUE(rete.Scegli("PDF", Orizzontale));
  EXPECT_EQ(rete.DeviceName(), "PDF");
  EXPECT_TRUE(rete.Scegli("Ufficio", Orizzontale));
  EXPECT_EQ(rete.Orientation(), Orizzontale);
}

// A face that the tables weren't made for is measured by its own letters, and drawn as measured.
TEST_F(Stampa_Qt, UnAltroCarattereSiMisuraDaSe) {
  const QString serif = "Liberation Serif";
  ASSERT_TRUE(QFontDatabase::hasFamily(serif));
  stampante.ScaleMode(Scala_Millimetri);
  stampante.FontSize = 20;
  stampante.FontName = "Arial";
  const float arial = stampante.TextWidth("Mercato");
  stampante.FontName = Da_QString(serif);
  const float suo = stampante.TextWidth("Mercato");
  EXPECT_LT(suo, arial);
  StampaTesto(stampante, 20, 20, "Mercato", Da_QString(serif), 20, false);
  stampante.EndDoc();
  const auto parole = Parole(stampante.Ultimo_PDF());
  ASSERT_EQ(parole.size(), 1U);
  EXPECT_NEAR(parole[0].destra - parole[0].x, suo, mezzo_millimetro);
  EXPECT_THAT(Esegui("pdffonts", {In_Qt(stampante.Ultimo_PDF())}).toStdString(),
              HasSubstr("LiberationSerif"));
}

}  // namespace

#include "tests/runner/controlli.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include "tests/runner/gesti.h"
#include "tests/runner/scena.h"

namespace giornata {

namespace {

// A small screen with one of each kind of control.
class Schermo_Prova : public testing::Test {
 protected:
  void SetUp() override {
    cima.setObjectName("Cima");
    auto* colonna = new QVBoxLayout(&cima);
    aggiungi(colonna, campo, "Text1(0)");
    aggiungi(colonna, altro, "Text1(1)");
    aggiungi(colonna, bottone, "Command1");
    aggiungi(colonna, casella, "Check1");
    aggiungi(colonna, combo, "Combo1");
    aggiungi(colonna, lista, "List1");
    aggiungi(colonna, barra, "hd");
    bottone->setText("Sal&va F7");
    casella->setText("&Tiene");
    combo->addItems({"Gennaio", "Febbraio", "Marzo"});
    for (int i = 1; i <= 40; ++i) lista->addItem(QStringLiteral("voce numero %1").arg(i));
    barra->setRange(1, 9);
    etichetta->setText("Pe&so");
    etichetta->setBuddy(campo);
    colonna->addWidget(etichetta);
    auto* menu = new QMenuBar(&cima);
    auto* file = menu->addMenu("&File");
    voce = file->addAction("Cancella &Tutto");
    spenta = file->addAction("Spenta");
    spenta->setEnabled(false);
    diretta = menu->addAction("&Lista_F12");
    colonna->setMenuBar(menu);
    cima.show();
    cima.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&cima));
  }
  template <class W>
  void aggiungi(QVBoxLayout* colonna, W*& widget, const char* nome) {
    widget = new W;
    widget->setObjectName(QLatin1String(nome));
    colonna->addWidget(widget);
  }
  static Controllo_Trovato Nome(const char* nome) { return Trova_Controllo({nome, false, ""}); }
  static Controllo_Trovato Scritto(const char* didascalia) { return Trova_Controllo({didascalia, true, ""}); }

  QWidget cima;
  QLineEdit *campo = nullptr, *altro = nullptr;
  QPushButton* bottone = nullptr;
  QCheckBox* casella = nullptr;
  QComboBox* combo = nullptr;
  QListWidget* lista = nullptr;
  QScrollBar* barra = nullptr;
  QLabel* etichetta = new QLabel;
  QAction *voce = nullptr, *spenta = nullptr, *diretta = nullptr;
};

template <class Gesto>
std::string Rifiuto(const Gesto& gesto) {
  try {
    gesto();
  } catch (const Fallito& fallito) {
    return fallito.atteso + " / " + fallito.trovato;
  }
  return "";
}

}  // namespace

TEST_F(Schermo_Prova, PerNomeEPerDidascalia) {
  EXPECT_EQ(Nome("Text1(0)").widget, campo);
  EXPECT_EQ(Nome("Cima.hd").widget, barra);
  EXPECT_EQ(Scritto("Salva F7").widget, bottone);
  EXPECT_EQ(Scritto("Sal&va F7").widget, bottone);
  EXPECT_EQ(Scritto("Peso").widget, campo);  // a label stands for its field
  EXPECT_EQ(Scritto("Cancella Tutto").voce, voce);
  altro->setAccessibleName("Tiene");
  EXPECT_EQ(Scritto("Tiene").widget, casella);  // what bears the caption comes first
}

TEST_F(Schermo_Prova, MancanteOAmbiguo) {
  EXPECT_THAT(Rifiuto([] { Nome("Text9"); }),
              testing::HasSubstr("il controllo Text9 / in Cima: Check1 Combo1"));
  EXPECT_THAT(Rifiuto([] { Scritto("Salva"); }), testing::HasSubstr("Salva F7"));
  EXPECT_THAT(Rifiuto([] { Nome("Altra.hd"); }), testing::HasSubstr("la finestra Altra aperta / Cima"));
  altro->setObjectName("Text1(0)");
  EXPECT_THAT(Rifiuto([] { Nome("Text1(0)"); }), testing::HasSubstr("un solo controllo"));
  altro->hide();
  EXPECT_EQ(Nome("Text1(0)").widget, campo);
}

TEST_F(Schermo_Prova, TestiEStati) {
  campo->setText("12,5");
  lista->setCurrentRow(1);
  EXPECT_EQ(Testo_Controllo(Nome("Text1(0)")), "12,5");
  EXPECT_EQ(Testo_Controllo(Nome("List1")), "voce numero 2");
  EXPECT_EQ(Testo_Controllo(Nome("Combo1")), "Gennaio");
  EXPECT_EQ(Testo_Controllo(Nome("hd")), "1");
  EXPECT_EQ(Numero_Righe(Nome("List1")), 40);
  EXPECT_EQ(Cerca_Riga(Nome("List1"), "numero 12"), 11);
  EXPECT_EQ(Cerca_Riga(Nome("List1"), "numero 99"), -1);
  EXPECT_FALSE(Segnato(Nome("Check1")));
  EXPECT_NE(Rifiuto([] { Segnato(Nome("Command1")); }), "");
  EXPECT_NE(Rifiuto([] { Numero_Righe(Nome("Text1(0)")); }), "");
}

TEST_F(Schermo_Prova, ITastiVannoDoveStaLaTastiera) {
  Da_Fuoco(Nome("Text1(0)"));
  EXPECT_TRUE(Ha_Fuoco(Nome("Text1(0)")));
  Scrivi("Città €5\tB");
  EXPECT_EQ(campo->text(), "Città €5");
  EXPECT_EQ(altro->text(), "B");
  EXPECT_TRUE(Ha_Fuoco(Nome("Text1(1)")));
  Premi_Tasto(*Leggi_Tasto("Shift+Tab"));
  EXPECT_TRUE(Ha_Fuoco(Nome("Text1(0)")));
}

TEST_F(Schermo_Prova, MettiRiscriveTuttoIlCampo) {
  campo->setText("vecchio");
  Metti(Nome("Text1(0)"), "nuovo");
  EXPECT_EQ(campo->text(), "nuovo");
  Metti(Nome("Text1(0)"), "");
  EXPECT_EQ(campo->text(), "");
  Metti(Nome("Combo1"), "Marzo");
  EXPECT_EQ(combo->currentIndex(), 2);
  Metti(Nome("hd"), "4");
  EXPECT_EQ(barra->value(), 4);
  EXPECT_NE(Rifiuto([] { Metti(Nome("Combo1"), "Aprile"); }), "");
  EXPECT_NE(Rifiuto([] { Metti(Nome("hd"), "10"); }), "");
  campo->setReadOnly(true);
  EXPECT_NE(Rifiuto([] { Metti(Nome("Text1(0)"), "x"); }), "");
}

TEST_F(Schermo_Prova, IClicSonoDelTopo) {
  int clic = 0, doppi = 0, menu = 0;
  QObject::connect(bottone, &QPushButton::clicked, [&] { ++clic; });
  QObject::connect(lista, &QListWidget::itemDoubleClicked, [&] { ++doppi; });
  altro->setContextMenuPolicy(Qt::CustomContextMenu);
  QObject::connect(altro, &QWidget::customContextMenuRequested, [&] { ++menu; });
  Clic(Nome("Command1"), Qt::LeftButton);
  Clic(Scritto("Tiene"), Qt::LeftButton);
  Scegli(Nome("List1"), 30);
  Clic(Nome("List1"), Qt::LeftButton, true);
  Clic(Nome("Text1(1)"), Qt::RightButton);
  EXPECT_EQ(clic, 1);
  EXPECT_TRUE(casella->isChecked());
  EXPECT_EQ(lista->currentRow(), 30);
  EXPECT_EQ(doppi, 1);
  EXPECT_EQ(menu, 1);
  EXPECT_NE(Rifiuto([] { Scegli(Nome("List1"), 40); }), "");
  EXPECT_NE(Rifiuto([] { Scegli(Nome("Command1"), 0); }), "");
}

TEST_F(Schermo_Prova, IlComboDiceLaScelta) {
  int scelte = 0;
  QObject::connect(combo, &QComboBox::activated, [&] { ++scelte; });
  Scegli(Nome("Combo1"), 2);
  Scegli(Nome("Combo1"), 2);  // the same entry, taken once more
  EXPECT_EQ(combo->currentText(), "Marzo");
  EXPECT_EQ(scelte, 2);
}

TEST_F(Schermo_Prova, UnControlloSpentoONascostoRifiuta) {
  bottone->setEnabled(false);
  campo->hide();
  EXPECT_THAT(Rifiuto([] { Clic(Nome("Command1"), Qt::LeftButton); }), testing::HasSubstr("inattivo"));
  EXPECT_THAT(Rifiuto([] { Metti(Nome("Text1(0)"), "x"); }), testing::HasSubstr("nascosto"));
  EXPECT_THAT(Rifiuto([] { Da_Fuoco(Nome("Text1(0)")); }), testing::HasSubstr("nascosto"));
}

TEST_F(Schermo_Prova, DietroUnaFinestraCheAspetta) {
  QWidget davanti;
  davanti.setObjectName("Davanti");
  davanti.setWindowModality(Qt::ApplicationModal);
  davanti.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&davanti));
  EXPECT_THAT(Rifiuto([] { Clic(Nome("Command1"), Qt::LeftButton); }), testing::HasSubstr("Davanti"));
}

TEST_F(Schermo_Prova, Menu) {
  int scelte = 0;
  QObject::connect(voce, &QAction::triggered, [&] { ++scelte; });
  QObject::connect(diretta, &QAction::triggered, [&] { ++scelte; });
  Scegli_Menu({"File", "Cancella Tutto"});
  Scegli_Menu({"Lista_F12"});
  EXPECT_EQ(scelte, 2);
  EXPECT_THAT(Rifiuto([] { Scegli_Menu({"File", "Spenta"}); }), testing::HasSubstr("inattiva"));
  EXPECT_THAT(Rifiuto([] { Scegli_Menu({"File"}); }), testing::HasSubstr("una voce di menu"));
  EXPECT_THAT(Rifiuto([] { Scegli_Menu({"File", "Salva"}); }), testing::HasSubstr("Cancella Tutto | Spenta"));
}

}  // namespace giornata

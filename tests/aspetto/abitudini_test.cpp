#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QUrl>

#include "platform/memoria_finestre.h"
#include "printing/screens/stampante_finestra.h"
#include "start/screens/b_inizio.h"
#include "start/screens/cornice.h"
#include "tests/aspetto/banco.h"

// What the operator knows from any program of the desktop.

namespace {

struct Abitudini : Banco, testing::Test {
  static void Lavora() { QCoreApplication::processEvents(); }
  std::optional<Posto_Finestra> Posto(const char* finestra) const {
    return Posti_Finestre(programma.disco, cartella.percorso).Posto(finestra);
  }
};

TEST_F(Abitudini, UnaFinestraSpostataTornaDovEra) {
  Posti_Finestre posti(programma.disco, cartella.percorso);
  const Memoria_Finestre memoria(posti);
  const QRect spostata(150, 90, 640, 420);
  for (int volta = 0; volta < 2; ++volta) {
    StampanteFinestra finestra(programma);
    finestra.show();
    Lavora();
    if (volta == 0) finestra.setGeometry(spostata);
    EXPECT_EQ(finestra.geometry(), spostata) << volta;
    finestra.close();
    Lavora();
    EXPECT_EQ(Posto("Stampante"), (Posto_Finestra{150, 90, 640, 420, false})) << volta;
  }
}

TEST_F(Abitudini, UnaFinestraCheNessunoToccaNonLasciaFile) {
  Posti_Finestre posti(programma.disco, cartella.percorso);
  const Memoria_Finestre memoria(posti);
  StampanteFinestra finestra(programma);
  finestra.show();
  Lavora();
  finestra.close();
  EXPECT_FALSE(programma.disco.Esiste_File(cartella / "_Finestre.txt"));
}

TEST_F(Abitudini, DalloSchermoCheNonCePiuLaFinestraTornaInVista) {
  cartella.Metti("_Finestre.txt", "Stampante\t4000\t3000\t640\t420\t0\r\n");
  Posti_Finestre posti(programma.disco, cartella.percorso);
  const Memoria_Finestre memoria(posti);
  StampanteFinestra finestra(programma);
  finestra.show();
  Lavora();
  EXPECT_EQ(finestra.geometry(), QRect(726, 348, 640, 420));
}

// The frame fills the screen unless it was left otherwise, and the small window of F12 is for a moment.
TEST_F(Abitudini, LaCorniceTornaComEraENonPiccola) {
  Posti_Finestre posti(programma.disco, cartella.percorso);
  const Memoria_Finestre memoria(posti);
  const QRect lasciata(40, 30, 1100, 650);
  {
    Cornice cornice;
    cornice.showMaximized();
    Lavora();
    cornice.setWindowState(Qt::WindowNoState);
    cornice.setGeometry(lasciata);
    cornice.hide();
  }
  EXPECT_EQ(Posto("Albero2"), (Posto_Finestra{40, 30, 1100, 650, false}));
  Cornice cornice;
  cornice.showMaximized();
  Lavora();
  EXPECT_FALSE(cornice.isMaximized());
  EXPECT_EQ(cornice.geometry(), lasciata);
  cornice.riduci();
  EXPECT_LT(cornice.height(), 100);
  cornice.hide();
  EXPECT_EQ(Posto("Albero2"), (Posto_Finestra{40, 30, 1100, 650, false}));
}

// A window that fills the screen does so again, also after the screen on which it stood is gone, and goes
// back to a place that can be seen.
TEST_F(Abitudini, UnaFinestraMassimaRestaMassima) {
  cartella.Metti("_Finestre.txt", "Stampante\t4000\t3000\t640\t420\t1\r\n");
  Posti_Finestre posti(programma.disco, cartella.percorso);
  const Memoria_Finestre memoria(posti);
  for (int volta = 0; volta < 2; ++volta) {
    StampanteFinestra finestra(programma);
    finestra.show();
    Lavora();
    EXPECT_TRUE(finestra.isMaximized());
    EXPECT_TRUE(finestra.screen()->availableGeometry().contains(finestra.normalGeometry()));
    finestra.close();
    Lavora();
  }
}

struct Trascina : Abitudini {
  Trascina() : inizio(programma) {
    inizio.show();
    Lavora();
  }
  void Lascia(const std::vector<Percorso>& file) {
    QMimeData dati;
    QList<QUrl> indirizzi;
    for (const Percorso& uno : file) indirizzi << QUrl::fromLocalFile(QString::fromStdString(uno.string()));
    dati.setUrls(indirizzi);
    const Qt::DropActions tutte = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
    QDragEnterEvent entra(QPoint(5, 5), tutte, &dati, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent passa(QPoint(9, 9), tutte, &dati, Qt::LeftButton, Qt::NoModifier);
    QDropEvent cade(QPointF(9, 9), tutte, &dati, Qt::LeftButton, Qt::NoModifier);
    for (QDropEvent* evento : std::initializer_list<QDropEvent*>{&entra, &passa, &cade}) {
      evento->setDropAction(Qt::MoveAction);  // what a file manager proposes
      QCoreApplication::sendEvent(&inizio, evento);
      EXPECT_TRUE(evento->isAccepted());
      EXPECT_EQ(evento->dropAction(), Qt::CopyAction);  // it would delete a file that it thinks is moved
    }
    Lavora();
  }
  QString Testo_Di(const char* campo) const {
    return inizio.findChild<QLineEdit*>(QLatin1String(campo))->text();
  }
  B_InizioFinestra inizio;
};

TEST_F(Trascina, UnaGiornataEntraEDiventaIlGiornoScelto) {
  cartella.Metti("chiavetta/20250310.txt", "righe");
  macchina.risposte = {true};
  Lascia({cartella / "chiavetta/20250310.txt"});
  EXPECT_EQ(cartella.Contenuto("2025/20250310.txt"), "righe");
  EXPECT_EQ(Testo_Di("Text1"), "10");
  EXPECT_EQ(macchina.domande.size(), 1U);
}

// Each is asked for; Annulla is the end of it.
TEST_F(Trascina, PiuGiornateInsieme) {
  for (const char* giorno : {"20250310", "20250311", "20250312"})
    cartella.Metti("chiavetta/" + Testo(giorno) + ".txt", giorno);
  macchina.risposte = {true, false};
  Lascia({cartella / "chiavetta/20250310.txt", cartella / "chiavetta/20250311.txt",
          cartella / "chiavetta/20250312.txt"});
  EXPECT_EQ(macchina.domande.size(), 2U);
  EXPECT_EQ(cartella.Contenuto("2025/20250310.txt"), "20250310");
  EXPECT_EQ(cartella.Contenuto("2025/20250311.txt"), "(manca)");
  EXPECT_EQ(Testo_Di("Text1"), "10");
}

TEST_F(Trascina, UnIndirizzoDellaReteNonSiPrende) {
  QMimeData dati;
  dati.setUrls({QUrl(QStringLiteral("https://localhost/20250310.txt"))});
  QDragEnterEvent entra(QPoint(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
  entra.ignore();
  QCoreApplication::sendEvent(&inizio, &entra);
  EXPECT_FALSE(entra.isAccepted());
}

TEST_F(Trascina, UnTestoNonEUnaGiornata) {
  QMimeData dati;
  dati.setText(QStringLiteral("20250310"));
  QDragEnterEvent entra(QPoint(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
  entra.ignore();
  QCoreApplication::sendEvent(&inizio, &entra);
  EXPECT_FALSE(entra.isAccepted());
  for (const auto* campo : inizio.findChildren<QLineEdit*>()) EXPECT_FALSE(campo->acceptDrops());
}

}  // namespace

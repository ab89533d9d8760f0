#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QListView>
#include <QPainter>
#include <QProxyStyle>
#include <QScrollBar>
#include <QStringListModel>
#include <QStyleOption>

#include "platform/aspetto.h"
#include "platform/riga_elenco.h"

// What is kept instead of being painted anew looks as the desktop's style paints it, also the second time.

namespace {

// ---- the lines of the day's list

struct Riga {
  const char* nome;
  const char* testo;
  bool scelta = false;
  bool spenta = false;
  bool fuoco = false;
  int larghezza = 400;
  double scala = 1;
};
void PrintTo(const Riga& riga, std::ostream* dove) { *dove << riga.nome; }

struct Righe_Dipinte : testing::TestWithParam<Riga> {
  QListView lista;
  QStringListModel modello;

  Righe_Dipinte() {
    modello.setStringList({QString::fromLatin1(GetParam().testo)});
    lista.setModel(&modello);
    lista.setTextElideMode(Qt::ElideNone);
  }

  QImage Dipinta(const QStyledItemDelegate& mano, const QFont& carattere) {
    QStyleOptionViewItem voce;
    voce.initFrom(&lista);
    voce.widget = &lista;
    voce.font = carattere;
    voce.fontMetrics = QFontMetrics(carattere);
    voce.rect = QRect(3, 2, GetParam().larghezza, 24);
    voce.textElideMode = lista.textElideMode();
    voce.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    voce.showDecorationSelected = true;
    voce.state = QStyle::State_Active;
    voce.state.setFlag(QStyle::State_Enabled, !GetParam().spenta);
    voce.state.setFlag(QStyle::State_Selected, GetParam().scelta);
    voce.state.setFlag(QStyle::State_HasFocus, GetParam().fuoco);
    QImage immagine((QSizeF(420, 30) * GetParam().scala).toSize(), QImage::Format_RGB32);
    immagine.setDevicePixelRatio(GetParam().scala);
    immagine.fill(Qt::white);
    QPainter pittore(&immagine);
    mano.paint(&pittore, voce, modello.index(0));
    return immagine;
  }
};

TEST_P(Righe_Dipinte, ComeLeDipingeLoStile) {
  const QStyledItemDelegate stile;
  const RigaElenco nostra(nullptr);
  for (const double punti : {10.0, 14.0, 10.0}) {  // another size of the letters in between
    const QFont carattere = Carattere_Fisso(punti);
    const QImage attesa = Dipinta(stile, carattere);
    QImage vuota = attesa;
    vuota.fill(Qt::white);
    EXPECT_NE(attesa, vuota);
    EXPECT_EQ(Dipinta(nostra, carattere), attesa) << punti;
    EXPECT_EQ(Dipinta(nostra, carattere), attesa) << punti << ", tenuta";
  }
}

constexpr const char* orate = "0001|Mare Blu       |Trattoria Laguna|Orate   12.50   9.80|<b>x</b> & y";

INSTANTIATE_TEST_SUITE_P(
    Righe, Righe_Dipinte,
    testing::Values(Riga{"Semplice", orate}, Riga{"Scelta", orate, true}, Riga{"Spenta", orate, false, true},
                    Riga{"ConIlFuoco", orate, true, false, true}, Riga{"Vuota", " ", true},
                    Riga{"Accenti", "Calamari \xE0\xE8 del giorno \xB1"},
                    Riga{"PiuLungaDelPosto", orate, false, false, false, 100}, Riga{"DueRighe", "una\naltra"},
                    Riga{.nome = "SchermoDoppio", .testo = orate, .scelta = true, .scala = 2}),
    [](const auto& caso) { return caso.param.nome; });

// ---- scroll bars

struct Barra : QScrollBar {
  using QScrollBar::QScrollBar;
  QImage dipinta(const QStyle& stile, double scala) {
    QStyleOptionSlider opzioni;
    initStyleOption(&opzioni);
    opzioni.subControls = QStyle::SC_All;
    QImage immagine((QSizeF(size()) * scala).toSize(), QImage::Format_RGB32);
    immagine.setDevicePixelRatio(scala);
    immagine.fill(palette().color(QPalette::Window));
    QPainter pittore(&immagine);
    stile.drawComplexControl(QStyle::CC_ScrollBar, &opzioni, &pittore, this);
    return immagine;
  }
};

// Shades that are laid over the ground in two steps may come out one step of a colour apart.
int Differenza(const QImage& una, const QImage& altra) {
  if (una.size() != altra.size()) return 256;
  int massima = 0;
  for (int y = 0; y < una.height(); ++y)
    for (int x = 0; x < una.width(); ++x) {
      const QRgb a = una.pixel(x, y), b = altra.pixel(x, y);
      massima = qMax(massima, qMax(qAbs(qRed(a) - qRed(b)),
                                   qMax(qAbs(qGreen(a) - qGreen(b)), qAbs(qBlue(a) - qBlue(b)))));
    }
  return massima;
}

TEST(BarreDiScorrimento, ComeLeDipingeLoStile) {
  const auto* nostro = qobject_cast<const QProxyStyle*>(QApplication::style());
  ASSERT_NE(nostro, nullptr);
  const QStyle& suo = *nostro->baseStyle();
  for (const auto verso : {Qt::Vertical, Qt::Horizontal})
    for (const double scala : {1.0, 2.0})
      for (const bool accesa : {true, false})
        for (const int massimo : {0, 9, 30'000}) {
          Barra barra(verso);
          barra.resize(verso == Qt::Vertical ? QSize(14, 300) : QSize(300, 14));
          barra.setRange(0, massimo);
          barra.setPageStep(massimo / 3 + 1);
          barra.setEnabled(accesa);
          for (const int valore : {0, massimo / 2, massimo}) {
            barra.setValue(valore);
            const QImage attesa = barra.dipinta(suo, scala);
            EXPECT_LE(Differenza(barra.dipinta(*nostro, scala), attesa), 2) << massimo << ' ' << valore;
            EXPECT_LE(Differenza(barra.dipinta(*nostro, scala), attesa), 2) << massimo << ' ' << valore;
          }
        }
}

// A kept picture isn't shown where the bar looks otherwise.
TEST(BarreDiScorrimento, UnaPiccolaDifferenzaSiVede) {
  const QStyle& stile = *QApplication::style();
  Barra barra(Qt::Vertical);
  barra.resize(14, 300);
  barra.setRange(0, 100);
  const QImage in_alto = barra.dipinta(stile, 1);
  barra.setValue(2);
  EXPECT_NE(barra.dipinta(stile, 1), in_alto);
  barra.setValue(0);
  EXPECT_EQ(barra.dipinta(stile, 1), in_alto);
  barra.setEnabled(false);
  EXPECT_NE(barra.dipinta(stile, 1), in_alto);
  barra.setEnabled(true);
  QPalette scura = barra.palette();
  scura.setColor(QPalette::Button, Qt::darkGray);
  scura.setColor(QPalette::Window, Qt::black);
  barra.setPalette(scura);
  EXPECT_NE(barra.dipinta(stile, 1), in_alto);
}

}  // namespace

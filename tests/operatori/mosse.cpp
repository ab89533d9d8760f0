#include "tests/operatori/mosse.h"

#include <algorithm>
#include <array>
#include <vector>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QUrl>
#include <QWheelEvent>

#include "tests/operatori/macchina.h"
#include "tests/runner/gesti.h"
#include "tests/runner/scena.h"

namespace operatori {

using giornata::Controllo_Trovato;

namespace {

constexpr std::array mosse_di_tasto = {
    Tasto::Invio,  Tasto::Invio, Tasto::Invio, Tasto::Invio,     Tasto::Tab,      Tasto::Tab,   Tasto::Su,
    Tasto::Su,     Tasto::Giu,   Tasto::Giu,   Tasto::Destra,    Tasto::Sinistra, Tasto::PagSu, Tasto::PagGiu,
    Tasto::Inizio, Tasto::Fine,  Tasto::Canc,  Tasto::Backspace, Tasto::Spazio,   Tasto::Esc};

std::string Nome_Di(const QObject* oggetto) {
  const QString nome = oggetto->objectName();
  return nome.isEmpty() ? oggetto->metaObject()->className() : nome.toStdString();
}

bool Bloccata(const QWidget* finestra) {
  const QWidget* davanti = QApplication::activeModalWidget();
  return davanti && finestra != davanti && !davanti->isAncestorOf(finestra);
}

// Windows that take the mouse, by name: the toolkit keeps them in no order.
std::vector<QWidget*> Finestre_Raggiungibili() {
  std::vector<QWidget*> finestre;
  const auto cime = QApplication::topLevelWidgets();
  for (QWidget* cima : cime)
    if (cima->isVisible() && !Bloccata(cima) && cima->windowType() != Qt::ToolTip) finestre.push_back(cima);
  std::sort(finestre.begin(), finestre.end(), [](const QWidget* a, const QWidget* b) {
    return Nome_Di(a) + a->metaObject()->className() < Nome_Di(b) + b->metaObject()->className();
  });
  return finestre;
}

QWidget* Finestra_A_Caso(Caso& caso) {
  if (QWidget* aperto = QApplication::activePopupWidget(); aperto && !caso.una_su(4)) return aperto;
  const auto finestre = Finestre_Raggiungibili();
  if (!finestre.empty() && caso.una_su(8)) return caso.uno(finestre);
  if (QWidget* modale = QApplication::activeModalWidget()) return modale;
  if (QWidget* attiva = QApplication::activeWindow()) return attiva;
  return finestre.empty() ? nullptr : caso.uno(finestre);
}

bool Da_Toccare(const QWidget* widget) {
  if (!widget->isVisible() || !widget->isEnabled() || widget->isWindow()) return false;
  // Insides of the toolkit's own: the one around them is touched.
  if (qobject_cast<const QHeaderView*>(widget) || widget->objectName().startsWith(QLatin1String("qt_")))
    return false;
  const QWidget* padre = widget->parentWidget();
  return !qobject_cast<const QComboBox*>(padre) || qobject_cast<const QLineEdit*>(widget) == nullptr;
}

template <class Quale>
std::vector<Quale*> Controlli(QWidget* finestra) {
  std::vector<Quale*> esito;
  if (!finestra) return esito;
  const auto tutti = finestra->findChildren<Quale*>();
  std::copy_if(tutti.begin(), tutti.end(), std::back_inserter(esito), Da_Toccare);
  return esito;
}

template <class Quale>
Quale* Controllo_A_Caso(Caso& caso) {
  const auto tutti = Controlli<Quale>(Finestra_A_Caso(caso));
  return tutti.empty() ? nullptr : caso.uno(tutti);
}

std::string Detto(const char* gesto, const QWidget* widget) {
  return std::string(gesto) + " " + Nome_Di(widget->window()) + "." + Nome_Di(widget);
}

Mossa Premi(const Pressione& pressione) {
  std::string detta = "tasto ";
  if (pressione.maiuscole) detta += "Shift+";
  if (pressione.ctrl) detta += "Ctrl+";
  if (pressione.alt) detta += "Alt+";
  return {detta + std::to_string(static_cast<int>(pressione.tasto)),
          [pressione] { giornata::Premi_Tasto(pressione); }};
}

Mossa Un_Tasto(Caso& caso) {
  Pressione pressione;
  pressione.tasto = caso.uno(mosse_di_tasto);
  if (pressione.tasto == Tasto::Esc && !caso.una_su(3)) pressione.tasto = Tasto::Giu;
  pressione.maiuscole = caso.una_su(8);
  pressione.ctrl = caso.una_su(12);
  pressione.alt = caso.una_su(20);
  return Premi(pressione);
}

Mossa Un_Tasto_Funzione(Caso& caso) {
  Pressione pressione;
  pressione.tasto = static_cast<Tasto>(static_cast<int>(Tasto::F1) + caso.fra(0, 11));
  pressione.maiuscole = caso.una_su(8);
  pressione.ctrl = caso.una_su(16);
  pressione.alt = caso.una_su(16);
  return Premi(pressione);
}

Mossa Scrivi(const QString& testo) {
  return {"scrivi " + giornata::Citato(testo.toStdString()), [testo] { giornata::Scrivi(testo); }};
}

Mossa Una_Lettera(Caso& caso) {
  static const QString lettere = QStringLiteral(
      "abcdefghijklmnopqrstuvwxyzABCDEFGHILMNOPZ0123456789012345678901234567890123456789,.-+*/ àèé");
  return Scrivi(QString(caso.uno(lettere)));
}

Mossa Un_Testo(Caso& caso) { return Scrivi(QString::fromUtf8(caso.uno(Testi_Battuti()))); }

// Alt and a letter, or Ctrl and a letter: shortcuts of captions and of the toolkit.
Mossa Una_Scorciatoia(Caso& caso) {
  const auto lettera = static_cast<Qt::Key>(Qt::Key_A + caso.fra(0, 25));
  const Qt::KeyboardModifier modo = caso.una_su(3) ? Qt::ControlModifier : Qt::AltModifier;
  const std::string detta =
      std::string(modo == Qt::AltModifier ? "Alt+" : "Ctrl+") + static_cast<char>(lettera);
  return {"tasto " + detta, [lettera, modo] {
            QWidget* fuoco = QApplication::focusWidget();
            if (!fuoco || Bloccata(fuoco->window())) fuoco = QApplication::activeModalWidget();
            if (fuoco) QTest::keyClick(fuoco, lettera, modo);
          }};
}

// From another program: with what no key makes, ends of lines and TABs within a field.
Mossa Un_Appunto(Caso& caso) {
  auto* campo = Controllo_A_Caso<QLineEdit>(caso);
  if (!campo || campo->isReadOnly()) return Mossa();
  const QString testo = QString::fromUtf8(caso.uno(Testi_Battuti()));
  return {Detto("incolla", campo) + " " + giornata::Citato(testo.toStdString()), [campo, testo] {
            giornata::Da_Fuoco({campo, nullptr});
            QApplication::clipboard()->setText(testo);
            if (QWidget* fuoco = QApplication::focusWidget())
              QTest::keyClick(fuoco, Qt::Key_V, Qt::ControlModifier);
          }};
}

Mossa Clic_Su(QWidget* widget, Caso& caso) {
  struct Modo {
    const char* nome;
    Qt::MouseButton bottone;
    bool doppio;
  };
  constexpr std::array<Modo, 6> modi = {{{"clic", Qt::LeftButton, false},
                                         {"clic", Qt::LeftButton, false},
                                         {"clic", Qt::LeftButton, false},
                                         {"clic", Qt::LeftButton, false},
                                         {"doppio", Qt::LeftButton, true},
                                         {"destro", Qt::RightButton, false}}};
  const Modo modo = caso.uno(modi);
  return {Detto(modo.nome, widget), [widget, modo] {
            giornata::Clic({widget, nullptr}, modo.bottone, modo.doppio);
          }};
}

Mossa Un_Clic(Caso& caso) {
  QWidget* widget = Controllo_A_Caso<QWidget>(caso);
  return widget ? Clic_Su(widget, caso) : Mossa();
}

Mossa Un_Bottone(Caso& caso) {
  auto* bottone = Controllo_A_Caso<QAbstractButton>(caso);
  return bottone ? Clic_Su(bottone, caso) : Mossa();
}

// Anywhere on it: on a map, a chart, between two controls.
Mossa Un_Punto(Caso& caso) {
  QWidget* widget = Controllo_A_Caso<QWidget>(caso);
  if (!widget || widget->width() < 1 || widget->height() < 1) return Mossa();
  const QPoint punto(caso.fra(0, widget->width() - 1), caso.fra(0, widget->height() - 1));
  const auto bottone = caso.una_su(4) ? Qt::RightButton : Qt::LeftButton;
  return {Detto("punto", widget) + " " + std::to_string(punto.x()) + "," + std::to_string(punto.y()),
          [widget, punto, bottone] { QTest::mouseClick(widget, bottone, Qt::NoModifier, punto); }};
}

Mossa Un_Campo(Caso& caso) {
  auto* campo = Controllo_A_Caso<QLineEdit>(caso);
  if (!campo) return Mossa();
  const QString testo = QString::fromUtf8(caso.uno(Testi_Battuti()));
  return {Detto("metti", campo) + " " + giornata::Citato(testo.toStdString()), [campo, testo] {
            giornata::Metti({campo, nullptr}, testo);
          }};
}

Mossa Il_Fuoco(Caso& caso) {
  QWidget* widget = Controllo_A_Caso<QWidget>(caso);
  if (!widget || widget->focusPolicy() == Qt::NoFocus) return Mossa();
  return {Detto("fuoco", widget), [widget] { giornata::Da_Fuoco({widget, nullptr}); }};
}

Mossa Una_Riga(Caso& caso) {
  auto* lista = Controllo_A_Caso<QAbstractItemView>(caso);
  if (!lista || !lista->model() || lista->model()->rowCount() == 0) return Mossa();
  const int riga = caso.fra(0, lista->model()->rowCount() - 1);
  return {Detto("scegli", lista) + " " + std::to_string(riga), [lista, riga] {
            giornata::Scegli({lista, nullptr}, riga);
          }};
}

Mossa Una_Scelta(Caso& caso) {
  auto* combo = Controllo_A_Caso<QComboBox>(caso);
  if (!combo || combo->count() == 0) return Mossa();
  const int riga = caso.fra(0, combo->count() - 1);
  return {Detto("scegli", combo) + " " + std::to_string(riga), [combo, riga] {
            giornata::Scegli({combo, nullptr}, riga);
          }};
}

Mossa Un_Cursore(Caso& caso) {
  auto* cursore = Controllo_A_Caso<QAbstractSlider>(caso);
  if (!cursore) return Mossa();
  const int valore = caso.fra(cursore->minimum(), std::max(cursore->minimum(), cursore->maximum()));
  return {Detto("metti", cursore) + " " + std::to_string(valore), [cursore, valore] {
            giornata::Metti({cursore, nullptr}, QString::number(valore));
          }};
}

void Raccogli_Voci(const QList<QAction*>& voci, std::vector<QAction*>& foglie) {
  for (QAction* voce : voci) {
    if (!voce->isVisible() || !voce->isEnabled() || voce->isSeparator()) continue;
    if (!voce->menu()) {
      foglie.push_back(voce);
      continue;
    }
    emit voce->menu()->aboutToShow();  // a menu may settle its entries when it opens
    Raccogli_Voci(voce->menu()->actions(), foglie);
  }
}

Mossa Una_Voce(Caso& caso) {
  std::vector<QAction*> voci;
  for (const QMenuBar* barra : Controlli<QMenuBar>(Finestra_A_Caso(caso)))
    Raccogli_Voci(barra->actions(), voci);
  if (voci.empty()) return Mossa();
  QAction* voce = caso.uno(voci);
  return {"menu " + voce->text().toStdString() + " (" + Nome_Di(voce) + ")", [voce] { voce->trigger(); }};
}

Mossa La_X(Caso& caso) {
  QWidget* finestra = Finestra_A_Caso(caso);
  if (!finestra) return Mossa();
  return {"chiudi " + Nome_Di(finestra), [finestra] { finestra->close(); }};
}

Mossa Una_Rotella(Caso& caso) {
  QWidget* widget = Controllo_A_Caso<QWidget>(caso);
  if (!widget) return Mossa();
  const int giro = caso.una_su(2) ? 120 : -120;
  return {Detto("rotella", widget) + " " + std::to_string(giro), [widget, giro] {
            const QPoint punto = widget->rect().center();
            QWheelEvent evento(punto, widget->mapToGlobal(punto), {}, {0, giro}, Qt::NoButton, Qt::NoModifier,
                               Qt::NoScrollPhase, false);
            QApplication::sendEvent(widget, &evento);
          }};
}

Mossa Un_Trascinamento(Caso& caso) {
  QWidget* widget = Controllo_A_Caso<QWidget>(caso);
  if (!widget || widget->width() < 1 || widget->height() < 1) return Mossa();
  const QPoint da(caso.fra(0, widget->width() - 1), caso.fra(0, widget->height() - 1));
  const QPoint a(caso.fra(0, widget->width() - 1), caso.fra(0, widget->height() - 1));
  return {Detto("trascina", widget), [widget = QPointer<QWidget>(widget), da, a] {
            QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, da);
            if (widget) QTest::mouseMove(widget, a);
            if (widget) QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, a);
          }};
}

// A file that the desktop lets fall on the window.
Mossa Un_File_Lasciato(Caso& caso) {
  constexpr std::array file = {"2025/20250313.txt", "2025/20250101.txt", "2025/2025note.txt",
                               "Velmara_2020.ini",  "_Client32.txt",     "2025",
                               "non_c_e.txt"};
  QWidget* finestra = Finestra_A_Caso(caso);
  const std::string quale = caso.uno(file);
  QWidget* sopra = finestra ? finestra->findChild<QWidget*>(QStringLiteral("B_Inizio")) : nullptr;
  if (!sopra || !sopra->isVisible()) return Mossa();
  return {"lascia " + quale, [sopra, quale] {
            QMimeData dati;
            dati.setUrls(
                {QUrl::fromLocalFile(QString::fromStdString((std::filesystem::current_path() / quale)))});
            const QPoint punto = sopra->rect().center();
            QDragEnterEvent entra(punto, Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(sopra, &entra);
            if (!entra.isAccepted()) return;
            QDropEvent lascia(punto, Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(sopra, &lascia);
          }};
}

Mossa Una_Misura(Caso& caso) {
  QWidget* finestra = Finestra_A_Caso(caso);
  if (!finestra) return Mossa();
  const QSize misura(caso.fra(1, 1600), caso.fra(1, 1200));
  return {"misura " + Nome_Di(finestra) + " " + std::to_string(misura.width()) + "x" +
              std::to_string(misura.height()),
          [finestra, misura] { finestra->resize(misura); }};
}

struct Genere {
  int peso;
  Mossa (*fai)(Caso&);
};

constexpr std::array<Genere, 20> generi = {{
    {14, Un_Tasto},        {16, Un_Tasto_Funzione},
    {14, Una_Lettera},     {8, Un_Testo},
    {2, Una_Scorciatoia},  {6, Un_Clic},
    {16, Un_Bottone},      {4, Un_Punto},
    {10, Un_Campo},        {4, Un_Appunto},
    {2, Il_Fuoco},         {6, Una_Riga},
    {3, Una_Scelta},       {3, Un_Cursore},
    {10, Una_Voce},        {1, La_X},
    {2, Una_Rotella},      {2, Un_Trascinamento},
    {1, Un_File_Lasciato}, {1, Una_Misura},
}};

constexpr int pesi = [] {
  int somma = 0;
  for (const Genere& genere : generi) somma += genere.peso;
  return somma;
}();

const Genere& Uno_Dei_Generi(Caso& caso) {
  int scelto = caso.fra(0, pesi - 1);
  const auto* genere = generi.begin();
  for (; scelto >= genere->peso; ++genere) scelto -= genere->peso;
  return *genere;
}

std::pair<QString, QString> Spezza(const QString& testo) {
  const auto spazio = testo.indexOf(QLatin1Char(' '));
  return spazio < 0 ? std::pair(testo, QString()) : std::pair(testo.left(spazio), testo.mid(spazio + 1));
}

Controllo_Trovato Chiamato(const QString& nome) {
  return giornata::Trova_Controllo({nome.toStdString(), false, {}});
}

void Compi(const QString& gesto, const QString& resto) {
  if (gesto == QLatin1String("clic")) return giornata::Clic(Chiamato(resto), Qt::LeftButton);
  if (gesto == QLatin1String("destro")) return giornata::Clic(Chiamato(resto), Qt::RightButton);
  if (gesto == QLatin1String("fuoco")) return giornata::Da_Fuoco(Chiamato(resto));
  if (gesto == QLatin1String("scrivi")) return giornata::Scrivi(resto);
  if (gesto == QLatin1String("tasto"))
    return giornata::Premi_Tasto(*giornata::Leggi_Tasto(resto.toStdString()));
  if (gesto == QLatin1String("metti")) {
    const auto [nome, testo] = Spezza(resto);
    return giornata::Metti(Chiamato(nome), testo);
  }
  if (gesto == QLatin1String("scegli")) {
    const auto [nome, riga] = Spezza(resto);
    return giornata::Scegli(Chiamato(nome), riga.toInt() - 1);
  }
  if (gesto == QLatin1String("menu")) {
    const QStringList voci = resto.split(QLatin1Char('|'));
    return giornata::Scegli_Menu({voci.begin(), voci.end()});
  }
  throw giornata::Fallito("un gesto", gesto.toStdString());
}

}  // namespace

Mossa Mossa_A_Caso(Caso& caso) {
  constexpr int prove = 4;  // a screen may have no list, no combo
  Mossa mossa;
  for (int prova = 0; prova < prove && !mossa.fai; ++prova) mossa = Uno_Dei_Generi(caso).fai(caso);
  return mossa.fai ? mossa : Un_Tasto(caso);
}

Mossa Mossa_Scritta(const std::string& passo) {
  const auto [gesto, resto] = Spezza(QString::fromStdString(passo));
  return {passo, [gesto = gesto, resto = resto] { Compi(gesto, resto); }};
}

}  // namespace operatori

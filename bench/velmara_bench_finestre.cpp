#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <unistd.h>
#include <vector>

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPaintEvent>
#include <QWidget>

#include "bench/ditta.h"
#include "platform/aspetto.h"
#include "printing/nomi_stampe.h"
#include "printing/screens/stampante_qt.h"
#include "start/screens/applicazione.h"

// velmara_bench_finestre START ROWS: one start of the program with its real windows, on a day of so many
// rows. START is the moment at which the process was started, in nanoseconds since 1970 (bench/run gives it).
// Prints milliseconds from there to the first painted window and from "Continua" to the painted entry screen,
// the megabytes held then, and of key presses the slowest of a hundred in milliseconds until all is painted:
// a letter in the look-up of 10,000 customers, and F5; then the same two counting only the time that the
// processor spent on it, which other programs at work don't stretch.

namespace {

constexpr double lento = 0.99;

// Sees a window painted.
class Pittura : public QObject {
 public:
  explicit Pittura(QWidget* finestra) { finestra->installEventFilter(this); }
  bool fatta = false;
  bool eventFilter(QObject*, QEvent* evento) override {
    if (evento->type() == QEvent::Paint) fatta = true;
    return false;
  }
};

QWidget* Finestra_Aperta(const char* nome) {
  for (QWidget* finestra : QApplication::allWidgets())
    if (finestra->objectName() == QLatin1String(nome) && finestra->isVisible()) return finestra;
  return nullptr;
}

// False when the window doesn't come within a minute.
bool Attendi_Dipinta(const char* nome) {
  QElapsedTimer orologio;
  orologio.start();
  QWidget* finestra = nullptr;
  while (finestra == nullptr && orologio.elapsed() < 60'000) {
    QApplication::processEvents(QEventLoop::AllEvents, 5);
    finestra = Finestra_Aperta(nome);
  }
  if (finestra == nullptr) return false;
  Pittura pittura(finestra);
  finestra->update();
  while (!pittura.fatta && orologio.elapsed() < 60'000) QApplication::processEvents(QEventLoop::AllEvents, 5);
  return pittura.fatta;
}

double Millisecondi_Da(std::chrono::nanoseconds allora) {
  const auto adesso = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(adesso - allora).count();
}

std::chrono::nanoseconds Adesso() { return std::chrono::system_clock::now().time_since_epoch(); }

// Memory held now, in megabytes.
double Memoria() {
  std::ifstream stato("/proc/self/statm");
  long tutta = 0, residente = 0;
  stato >> tutta >> residente;
  return static_cast<double>(residente) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1048576;
}

double Millisecondi_Processore() {
  timespec tempo{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &tempo);
  return static_cast<double>(tempo.tv_sec) * 1e3 + static_cast<double>(tempo.tv_nsec) / 1e6;
}

double Quantile(std::vector<double> tempi, double parte) {
  if (tempi.empty()) return 0;
  std::sort(tempi.begin(), tempi.end());
  return tempi[static_cast<std::size_t>(parte * static_cast<double>(tempi.size() - 1))];
}

// Milliseconds of each key press, from the key to the windows painted.
class Tastiera {
 public:
  void Preme(QWidget* dove, int tasto, const QString& testo = {}) {
    QKeyEvent giu(QEvent::KeyPress, tasto, Qt::NoModifier, testo),
        su(QEvent::KeyRelease, tasto, Qt::NoModifier, testo);
    QApplication::sendEvent(dove, &giu);
    QApplication::sendEvent(dove, &su);
    QApplication::processEvents();
  }
  void Misura(QWidget* dove, int tasto, const QString& testo = {}) {
    const auto inizio = Adesso();
    const double lavoro = Millisecondi_Processore();
    Preme(dove, tasto, testo);
    tempi_.push_back(Millisecondi_Da(inizio));
    lavori_.push_back(Millisecondi_Processore() - lavoro);
  }
  double Attesa() const { return Quantile(tempi_, lento); }
  double Lavoro() const { return Quantile(lavori_, lento); }

 private:
  std::vector<double> tempi_, lavori_;
};

QLineEdit* Campo_Di(QWidget* edita, CampoRiga campo) {
  return edita->findChild<QLineEdit*>(QStringLiteral("Text1(%1)").arg(Indice(campo)));
}

// The look-up of a customer, letter by letter, over and over.
bool Cerca_Clienti(QWidget* edita, Tastiera& tastiera) {
  QLineEdit* campo = Campo_Di(edita, CampoRiga::Cliente);
  if (campo == nullptr) return false;
  constexpr int volte = 20;
  const QString nome = QStringLiteral("ristorante cliente 01233");
  for (int volta = 0; volta < volte; ++volta) {
    campo->setFocus();
    campo->selectAll();
    for (const QChar lettera : nome) tastiera.Misura(campo, lettera.toUpper().unicode(), QString(lettera));
    if (campo->text() != nome) return false;
  }
  return true;
}

// F5: each time another row is loaded and its weight keyed anew, then it is added. False when one isn't.
bool Aggiungi_Righe(QWidget* edita, Programma& programma, Tastiera& tastiera) {
  QLineEdit* peso = Campo_Di(edita, CampoRiga::Peso);
  auto* riga = edita->findChild<QAbstractButton*>(QStringLiteral("RigaSuccessiva"));
  if (peso == nullptr || riga == nullptr) return false;
  constexpr int volte = 300;
  for (int volta = 0; volta < volte; ++volta) {
    riga->click();
    peso->setFocus();
    peso->selectAll();
    tastiera.Preme(peso, Qt::Key_7, QStringLiteral("7"));
    const int prima = programma.Vet_Tabella.Righe();
    tastiera.Misura(peso, Qt::Key_F5);
    if (programma.Vet_Tabella.Righe() != prima + 1) return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  std::chrono::nanoseconds partenza = argc > 1 ? std::chrono::nanoseconds(std::atoll(argv[1])) : Adesso();
  const auto prima_della_ditta = Adesso();
  const Ditta ditta;
  Piattaforma_Muta macchina;
  ditta.Scrivi_Giorno(macchina, argc > 2 ? std::atoi(argv[2]) : 10'000);
  partenza += Adesso() - prima_della_ditta;  // making the firm is no part of the start

  QApplication qt(argc, argv);
  Prepara_Aspetto();
  Stampante_Qt carta(ditta.Cartella());
  carta.Scegli(Testo(Stampante_PDF), Verticale);
  macchina.dispositivo = &carta;
  Applicazione applicazione(macchina, ditta.Cartella());
  if (!applicazione.Avvia() || !Attendi_Dipinta("B_Inizio")) {
    std::fprintf(stderr, "la prima finestra non si apre\n");
    return 1;
  }
  const double avvio = Millisecondi_Da(partenza);

  auto* continua = Finestra_Aperta("B_Inizio")->findChild<QAbstractButton*>(QStringLiteral("Command2"));
  if (continua == nullptr) {
    std::fprintf(stderr, "manca il comando Command2\n");
    return 1;
  }
  const auto comando = Adesso();
  continua->click();
  if (!Attendi_Dipinta("Edita")) {
    std::fprintf(stderr, "il giorno non si apre\n");
    return 1;
  }
  const double apertura = Millisecondi_Da(comando);

  const double memoria = Memoria();

  QWidget* edita = Finestra_Aperta("Edita");
  Programma& programma = applicazione.programma();
  programma.preferenze.FlagAutoSalvataggio = false;  // saving is measured by itself
  Tastiera aggiunte, ricerche;
  if (!Aggiungi_Righe(edita, programma, aggiunte)) {
    std::fprintf(stderr, "la riga non si aggiunge\n");
    for (const Testo& testo : macchina.messaggi) std::fprintf(stderr, "%s\n", In_Utf8(testo).c_str());
    return 1;
  }
  if (!Cerca_Clienti(edita, ricerche)) {
    std::fprintf(stderr, "la ricerca dei clienti non riesce\n");
    return 1;
  }
  std::printf("%.1f %.1f %.1f %.3f %.3f %.3f %.3f\n", avvio, apertura, memoria, ricerche.Attesa(),
              aggiunte.Attesa(), ricerche.Lavoro(), aggiunte.Lavoro());
  return 0;
}

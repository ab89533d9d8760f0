#include <chrono>
#include <cstdio>
#include <optional>

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QPaintEvent>
#include <QWidget>

#include "bench/ditta.h"
#include "documents/screens/zsani_finestra.h"
#include "lists/liste.h"
#include "printing/nomi_stampe.h"
#include "printing/screens/stampante_qt.h"
#include "start/screens/applicazione.h"

// One start of the program with its real windows on a day of 10,000 rows. The argument is the moment at which
// the process was started, in nanoseconds since 1970 (bench/run gives it). Prints three figures in
// milliseconds: from there to the first painted window, from "Continua" to the painted entry screen, and all
// documents of a day of 200 customers and 2,000 rows from F2 to the last PDF on the disk.

namespace {

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

// A day on which so many customers have bought in turn.
void Metti_Giornata(Programma& programma, int clienti, int righe) {
  auto& tabella = programma.Vet_Tabella.righe;
  tabella.clear();
  for (int n = 1; n <= righe; ++n) {
    tabella.push_back(Riga_Inventata(programma, n));
    const auto& compratore = programma.Vet_Clienti[static_cast<std::size_t>(n % clienti)];
    tabella.back()[CampoRiga::Cliente] = compratore[cliente::RagioneSociale1];
    tabella.back()[CampoRiga::CodCliente] = compratore[cliente::Codice];
  }
}

// All documents of the day by the window's own command. Nothing when not each customer's came out.
std::optional<double> Stampa_Documenti(Programma& programma, const Ditta& ditta, int clienti) {
  programma.preferenze.FlagC1ds = true;
  ZsaniFinestra finestra(programma, [&](Zsani& zsani) { ApriDocumenti(programma, zsani); });
  finestra.show();
  auto* stampa = finestra.findChild<QAbstractButton*>(QStringLiteral("Command1"));
  if (stampa == nullptr) return std::nullopt;
  const auto comando = Adesso();
  stampa->click();
  const double durata = Millisecondi_Da(comando);
  const auto pdf = programma.disco.Elenca(Unisci_Percorso(ditta.Cartella(), Cartella_Stampe), "*.pdf");
  if (static_cast<int>(pdf.size()) != clienti) return std::nullopt;
  return durata;
}

}  // namespace

int main(int argc, char** argv) {
  std::chrono::nanoseconds partenza = argc > 1 ? std::chrono::nanoseconds(std::atoll(argv[1])) : Adesso();
  const auto prima_della_ditta = Adesso();
  const Ditta ditta;
  Piattaforma_Muta macchina;
  ditta.Scrivi_Giorno(macchina, 10'000);
  partenza += Adesso() - prima_della_ditta;  // making the firm is no part of the start

  QApplication qt(argc, argv);
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

  constexpr int clienti = 200, righe = 2'000;
  Programma& programma = applicazione.programma();
  Metti_Giornata(programma, clienti, righe);
  const auto stampa = Stampa_Documenti(programma, ditta, clienti);
  if (!stampa) {
    std::fprintf(stderr, "i documenti non si stampano\n");
    return 1;
  }
  std::printf("%.1f %.1f %.1f\n", avvio, apertura, *stampa);
  return 0;
}

#include "tests/operatori/giro.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <limits>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>

#include "platform/aspetto.h"
#include "tests/operatori/guardia.h"
#include "tests/operatori/operatore.h"
#include "tests/runner/scena.h"

namespace operatori {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t passi_raccontati = 30;

// The toolkit warns of every key that nobody wanted, which does nothing on a screen either, and of size
// limits that this platform without a screen doesn't know.
void Avviso(QtMsgType tipo, const QMessageLogContext&, const QString& testo) {
  for (const auto* atteso : {"not accepted by receiving widget", "This plugin does not support"})
    if (testo.contains(QLatin1String(atteso))) return;
  std::fprintf(stderr, "%s\n", qPrintable(testo));
  if (tipo == QtFatalMsg) std::abort();
}

// Saves flush: in memory where there is such a place. Its name is of digits, which are all as wide: windows
// that show it are as high for one round as for another.
Percorso Cartella_Nuova() {
  const Percorso memoria = "/dev/shm";
  const Percorso dove = fs::is_directory(memoria) ? memoria : fs::temp_directory_path();
  constexpr std::size_t cifre = 12;
  constexpr long per_processo = 10000, diritti = 0700;
  for (long n = 0; n < per_processo; ++n) {
    std::string numero = std::to_string(static_cast<long>(getpid()) * per_processo + n);
    numero.insert(0, cifre - std::min(cifre, numero.size()), '0');
    const Percorso cartella = dove / ("velmara_operatori." + numero);
    if (mkdir(cartella.c_str(), diritti) == 0) return cartella;
    if (errno != EEXIST) break;
  }
  throw giornata::Fallito("una cartella temporanea", std::strerror(errno));
}

[[noreturn]] void Figlio(const Giro& giro, const Percorso& progetto, const Testi_Noti& testi,
                         const Percorso& cartella, const Percorso& registro) {
  qInstallMessageHandler(Avviso);
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  setenv("QT_HASH_SEED", "0", 1);
  setenv("XDG_RUNTIME_DIR", cartella.c_str(), 0);  // the toolkit makes one elsewhere, which would stay
  setenv("HOME", cartella.c_str(), 1);
  const int scritto = open(registro.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
  {
    char nome[] = "operatori";
    char* argomenti[] = {nome, nullptr};
    int quanti = 1;
    QApplication applicazione(quanti, argomenti);
    QApplication::setQuitOnLastWindowClosed(false);
    // Nothing waits for the clock.
    QApplication::setDoubleClickInterval(0);
    QApplication::setKeyboardInputInterval(std::numeric_limits<int>::max());
    QApplication::setCursorFlashTime(0);
    Prepara_Aspetto();
    Prendi_La_Guardia();
    Operatore(giro, progetto, testi, cartella / "mondo", scritto).gioca();
  }
  std::exit(0);
}

void Leggi(const Percorso& registro, Esito& esito) {
  std::ifstream flusso(registro);
  std::string riga;
  while (std::getline(flusso, riga)) {
    if (riga.starts_with("VISTA "))
      esito.classi.insert(riga.substr(std::strlen("VISTA ")));
    else if (riga.starts_with("DIFETTO "))
      esito.difetto = riga.substr(std::strlen("DIFETTO "));
    else
      esito.passi.push_back(riga);
  }
}

std::string Fine(int stato) {
  if (WIFSIGNALED(stato)) return std::string("il programma è caduto: ") + strsignal(WTERMSIG(stato));
  if (WEXITSTATUS(stato) == Esito_Fermo) return "un passo dura più di cinque secondi";
  return WEXITSTATUS(stato) == 0 ? "" : "il programma è finito con " + std::to_string(WEXITSTATUS(stato));
}

}  // namespace

Esito Gioca(const Giro& giro, const Percorso& progetto, const Testi_Noti& testi) {
  const Percorso cartella = Cartella_Nuova();
  const Percorso registro = cartella / "passi";
  fs::create_directories(cartella / "mondo");
  std::fflush(nullptr);
  const pid_t figlio = fork();
  if (figlio < 0) throw giornata::Fallito("un processo", std::strerror(errno));
  if (figlio == 0) Figlio(giro, progetto, testi, cartella, registro);
  int stato = 0;
  while (waitpid(figlio, &stato, 0) < 0 && errno == EINTR) {
  }
  Esito esito;
  Leggi(registro, esito);
  if (esito.difetto.empty()) esito.difetto = Fine(stato);
  std::error_code errore;
  fs::remove_all(cartella, errore);
  return esito;
}

std::string Racconto(const Giro& giro, const Esito& esito) {
  std::string testo = std::string(giro.schermo->nome) + ", seme " + std::to_string(giro.seme) + ", " +
                      std::to_string(giro.passi) + " passi: " + esito.difetto + "\n";
  const std::size_t da = esito.passi.size() - std::min(passi_raccontati, esito.passi.size());
  for (std::size_t i = da; i < esito.passi.size(); ++i) testo += "    " + esito.passi[i] + "\n";
  return testo;
}

}  // namespace operatori

#include "tests/runner/esecuzione.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>

#include "platform/aspetto.h"
#include "tests/runner/giornata.h"
#include "tests/runner/passi.h"

namespace giornata {

namespace {

// The line that the player is at, seen by the process that waits for it.
class Segnalibro {
 public:
  Segnalibro() {
    void* memoria = mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memoria == MAP_FAILED) throw std::bad_alloc();
    riga_ = static_cast<int*>(memoria);
  }
  ~Segnalibro() { munmap(riga_, sizeof(int)); }
  Segnalibro(const Segnalibro&) = delete;
  Segnalibro& operator=(const Segnalibro&) = delete;
  int& riga() { return *riga_; }

 private:
  int* riga_;
};

// The toolkit warns of every key that nobody wanted, which does nothing on a screen either, and of size
// limits that this platform without a screen doesn't know.
void Avviso(QtMsgType tipo, const QMessageLogContext&, const QString& testo) {
  for (const auto* atteso : {"not accepted by receiving widget", "This plugin does not support"})
    if (testo.contains(QLatin1String(atteso))) return;
  std::fprintf(stderr, "%s\n", qPrintable(testo));
  if (tipo == QtFatalMsg) std::abort();
}

int Figlio(Copione copione, const Percorso& file, const Percorso& radice, Segnalibro& segnalibro,
           Album* album, const Percorso& resto, int& argc, char** argv) {
  qInstallMessageHandler(Avviso);
  setenv("XDG_RUNTIME_DIR", radice.c_str(), 0);  // the toolkit makes one elsewhere, which would stay
  QApplication applicazione(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  Prepara_Aspetto();
  Giornata giornata(
      std::move(copione), file, radice, [&](int riga) { segnalibro.riga() = riga; }, album, resto);
  return giornata.Gioca();
}

Percorso Cartella_Nuova() {
  std::string modello = (std::filesystem::temp_directory_path() / "velmara_giornata.XXXXXX").string();
  if (!mkdtemp(modello.data())) throw Fallito("una cartella temporanea", std::strerror(errno));
  return modello;
}

void Rimuovi(const Percorso& cartella) {
  std::error_code errore;
  // Folders that the day made read-only would stay.
  for (const auto& voce : std::filesystem::recursive_directory_iterator(cartella, errore))
    if (voce.is_directory() && !voce.is_symlink())
      std::filesystem::permissions(voce.path(), std::filesystem::perms::owner_all,
                                   std::filesystem::perm_options::add, errore);
  std::filesystem::remove_all(cartella, errore);
}

int Aspetta(pid_t figlio, const std::string& file, Segnalibro& segnalibro) {
  int stato = 0;
  while (waitpid(figlio, &stato, 0) < 0 && errno == EINTR) {
  }
  if (WIFEXITED(stato)) return WEXITSTATUS(stato) == 0 ? 0 : 1;
  const int segnale = WIFSIGNALED(stato) ? WTERMSIG(stato) : 0;
  Stampa_Fallita(file, segnalibro.riga(), "", "il passo compiuto",
                 segnale == SIGALRM ? "il programma non risponde"
                                    : std::string("il programma è caduto: ") + strsignal(segnale));
  return 1;
}

}  // namespace

int Gioca_Copione(const Percorso& file, int& argc, char** argv, Album* album, const Percorso& resto) {
  const std::string nome = file.string();
  try {
    auto letto = Leggi_Copione(Leggi_Byte(file), Forme());
    if (const auto* errore = std::get_if<Errore_Copione>(&letto)) {
      Stampa_Fallita(nome, errore->riga, "", errore->atteso, errore->trovato);
      return 1;
    }
    auto& copione = std::get<Copione>(letto);
    if (const auto difetto = Difetto(copione)) {
      Stampa_Fallita(nome, difetto->riga, "", difetto->atteso, difetto->trovato);
      return 1;
    }
    const Percorso radice = Cartella_Nuova();
    Segnalibro segnalibro;
    std::fflush(stdout);
    const pid_t figlio = fork();
    if (figlio < 0) throw Fallito("un processo", std::strerror(errno));
    if (figlio == 0)
      std::exit(Figlio(std::move(copione), file, radice, segnalibro, album, resto, argc, argv));
    const int esito = Aspetta(figlio, nome, segnalibro);
    Rimuovi(radice);
    return esito;
  } catch (const Fallito& fallito) {
    Stampa_Fallita(nome, 0, "", fallito.atteso, fallito.trovato);
    return 1;
  }
}

}  // namespace giornata

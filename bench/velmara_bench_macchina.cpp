#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <string>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

// velmara_bench_macchina FILE TARGET: what the machine itself needs, whatever program runs on it, as the
// floor under our figures. Prints milliseconds: to read FILE's bytes into memory already held; to pass over
// them once; to write them to TARGET and flush it; to get 100 MB of new memory and touch each page, in pages
// as they come and in large ones.

namespace {

constexpr std::size_t milione = 1'000'000, cento_megabyte = 100 * milione, pagina = 4096;

// The fastest of several turns: what others take away is no property of the machine.
double Millisecondi(const std::function<bool()>& opera) {
  constexpr int turni = 9;
  double minimo = -1;
  for (int turno = 0; turno < turni; ++turno) {
    const auto inizio = std::chrono::steady_clock::now();
    if (!opera()) return -1;
    const std::chrono::duration<double, std::milli> durata = std::chrono::steady_clock::now() - inizio;
    minimo = minimo < 0 ? durata.count() : std::min(minimo, durata.count());
  }
  return minimo;
}

bool Leggi(const char* file, std::string& byte) {
  const int descrittore = open(file, O_RDONLY | O_CLOEXEC);
  if (descrittore < 0) return false;
  std::size_t letti = 0;
  for (ssize_t n = 1; n > 0; letti += static_cast<std::size_t>(std::max<ssize_t>(n, 0))) {
    if (letti + milione > byte.size()) byte.resize(letti + milione);
    n = read(descrittore, byte.data() + letti, byte.size() - letti);
  }
  close(descrittore);
  byte.resize(letti);
  return letti > 0;
}

bool Scrivi_E_Scarica(const char* meta, const std::string& byte) {
  const int descrittore = open(meta, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (descrittore < 0) return false;
  const bool scritti = write(descrittore, byte.data(), byte.size()) == static_cast<ssize_t>(byte.size());
  const bool scaricati = fsync(descrittore) == 0;
  return close(descrittore) == 0 && scritti && scaricati;
}

bool Tocca_Memoria_Nuova(int consiglio) {
  void* memoria = mmap(nullptr, cento_megabyte, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (memoria == MAP_FAILED) return false;
  madvise(memoria, cento_megabyte, consiglio);
  auto* byte = static_cast<volatile char*>(memoria);
  for (std::size_t dove = 0; dove < cento_megabyte; dove += pagina) byte[dove] = 1;
  return munmap(memoria, cento_megabyte) == 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::string byte;
  if (argc < 3 || !Leggi(argv[1], byte)) {
    std::fprintf(stderr, "velmara_bench_macchina FILE META\n");
    return 2;
  }
  std::size_t righe = 0;
  const double lettura = Millisecondi([&] { return Leggi(argv[1], byte); });
  const double passata = Millisecondi([&] {
    righe = 0;
    for (const char* qui = byte.data(); qui != nullptr; ++righe) {
      const auto restano = static_cast<std::size_t>(byte.data() + byte.size() - qui);
      qui = static_cast<const char*>(std::memchr(qui, '\n', restano));
      if (qui != nullptr) ++qui;
    }
    return righe > 0;
  });
  const double scarico = Millisecondi([&] { return Scrivi_E_Scarica(argv[2], byte); });
  const double piccole = Millisecondi([] { return Tocca_Memoria_Nuova(MADV_NOHUGEPAGE); });
  const double grandi = Millisecondi([] { return Tocca_Memoria_Nuova(MADV_HUGEPAGE); });
  std::printf("%.2f %.2f %.2f %.2f %.2f\n", lettura, passata, scarico, piccole, grandi);
}

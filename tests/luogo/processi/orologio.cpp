#include <cstdlib>
#include <sys/syscall.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

// The machine's clock for everything in this process, the toolkit too: where VELMARA_OROLOGIO holds seconds
// since 1970, it stands at those.

namespace {

const char* Fermo() { return std::getenv("VELMARA_OROLOGIO"); }

}  // namespace

extern "C" {

int clock_gettime(clockid_t quale, timespec* adesso) {
  if (quale != CLOCK_REALTIME || Fermo() == nullptr)
    return static_cast<int>(syscall(SYS_clock_gettime, quale, adesso));
  *adesso = {static_cast<time_t>(std::strtoll(Fermo(), nullptr, 10)), 0};
  return 0;
}

int gettimeofday(timeval* adesso, void*) {
  timespec preciso{};
  const int esito = clock_gettime(CLOCK_REALTIME, &preciso);
  adesso->tv_sec = preciso.tv_sec;
  adesso->tv_usec = static_cast<suseconds_t>(preciso.tv_nsec / 1000);
  return esito;
}

time_t time(time_t* dove) {
  timespec adesso{};
  clock_gettime(CLOCK_REALTIME, &adesso);
  if (dove != nullptr) *dove = adesso.tv_sec;
  return adesso.tv_sec;
}

}  // extern "C"

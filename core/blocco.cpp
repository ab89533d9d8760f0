#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "core/disco.h"

Blocco_Cartella::~Blocco_Cartella() { Lascia(); }

// Closed in programs that this one starts: they live on when it is gone, and would keep the folder locked.
bool Blocco_Cartella::Prendi(const Percorso& cartella) {
  Lascia();
  descrittore_ = open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descrittore_ < 0) return true;
  if (flock(descrittore_, LOCK_EX | LOCK_NB) == 0) return true;
  const bool d_altri = errno == EWOULDBLOCK;
  Lascia();
  return !d_altri;
}

void Blocco_Cartella::Lascia() {
  if (descrittore_ < 0) return;
  close(descrittore_);
  descrittore_ = -1;
}

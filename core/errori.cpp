#include <algorithm>
#include <cerrno>
#include <iterator>
#include <string>

#include "core/disco.h"

namespace {

struct Errore_Noto {
  int errore;
  Vista testo;
};

// What the operator may meet. The machine's own texts come in the language of the desk, or in English, and
// speak to other people.
constexpr Errore_Noto errori_noti[] = {
    {EPERM, "operazione non permessa"},
    {ENOENT, "il file o la cartella manca"},
    {EIO, "guasto del disco"},
    {ENXIO, "il disco non risponde"},
    {ENOMEM, "memoria esaurita"},
    {EACCES, "permesso negato"},
    {EBUSY, "in uso da un altro programma"},
    {EEXIST, "esiste un altro file con questo nome"},
    {EXDEV, "si trova su un altro disco"},
    {ENODEV, "il disco manca"},
    {ENOTDIR, "al posto della cartella si trova un file"},
    {EISDIR, "al posto del file si trova una cartella"},
    {EINVAL, "al posto del file si trova qualcosa che non lo sostituisce"},
    {EMFILE, "troppi file aperti"},
    {ENFILE, "troppi file aperti"},
    {ETXTBSY, "il programma da sostituire sta funzionando"},
    {EFBIG, "file troppo grande"},
    {ENOSPC, "spazio esaurito sul disco"},
    {EROFS, "disco in sola lettura"},
    {ENAMETOOLONG, "nome troppo lungo"},
    {ENOTEMPTY, "la cartella contiene altri file"},
    {ELOOP, "collegamento ad un altro posto"},
    {EDQUOT, "spazio concesso esaurito"},
    {ESTALE, "il disco di rete non risponde"},
    {ETIMEDOUT, "il disco di rete non risponde"},
    {EHOSTDOWN, "il disco di rete non risponde"},
    {EHOSTUNREACH, "il disco di rete non risponde"},
    {ENOTCONN, "il disco manca"},
    {ENOMEDIUM, "nel lettore manca il disco"},
    {EREMOTEIO, "guasto del disco"},
    {EMLINK, "troppi collegamenti"},
    {EAGAIN, "in uso da un altro programma"},
    {EINTR, "operazione interrotta"},
    {ENOTSUP, "operazione impossibile su questo disco"},
    {ENOSYS, "operazione impossibile su questo disco"},
};

}  // namespace

Testo Testo_Errore(int errore) {
  const auto* noto = std::ranges::find(errori_noti, errore, &Errore_Noto::errore);
  if (noto != std::end(errori_noti)) return Testo(noto->testo);
  return "errore " + std::to_string(errore);
}

#include <cerrno>
#include <gtest/gtest.h>
#include <system_error>

#include "core/disco.h"

namespace {

// What the operator can meet, in the operator's language: the machine's own texts may be in another one.
TEST(Errori, InItaliano) {
  EXPECT_EQ(Testo_Errore(ENOSPC), "spazio esaurito sul disco");
  EXPECT_EQ(Testo_Errore(EACCES), "permesso negato");
  for (const int errore :
       {EDQUOT,       EFBIG,     EPERM,  EROFS,     EIO,       ENOENT,       EEXIST,   ENOTDIR,   EISDIR,
        EMFILE,       ENFILE,    ENODEV, ENXIO,     EBUSY,     ENAMETOOLONG, ETXTBSY,  ESTALE,    ELOOP,
        EXDEV,        ENOTEMPTY, ENOMEM, EINVAL,    EAGAIN,    EINTR,        ENOTCONN, ETIMEDOUT, EHOSTDOWN,
        EHOSTUNREACH, ENOTSUP,   ENOSYS, ENOMEDIUM, EREMOTEIO, EMLINK}) {
    const Testo testo = Testo_Errore(errore);
    EXPECT_NE(testo, std::generic_category().message(errore));
    EXPECT_NE(testo, "errore " + std::to_string(errore));
  }
}

TEST(Errori, GliAltriColLoroNumero) {
  EXPECT_EQ(Testo_Errore(EDOM), "errore 33");
  EXPECT_EQ(Testo_Errore(0), "errore 0");
  EXPECT_EQ(Testo_Errore(-7), "errore -7");
  EXPECT_EQ(Testo_Errore(9999), "errore 9999");
}

}  // namespace

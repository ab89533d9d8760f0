#include "start/screens/schermi.h"

#include "documents/screens/zsani_finestra.h"
#include "entry/screens/edita_finestra.h"

namespace {

// A screen in front of the others, until it closes; it goes with its window.
template <class Schermata, class... Argomenti>
void Apri_Davanti(Argomenti&&... argomenti) {
  auto* finestra = new Schermata(std::forward<Argomenti>(argomenti)...);
  finestra->setAttribute(Qt::WA_DeleteOnClose);
  finestra->esegui();
}

}  // namespace

void Prepara_Schermi(Programma& programma, const Edita& /*edita*/, EditaFinestra& finestra) {
  finestra.apre(QStringLiteral("Doc_Trasporto"), [&] {
    Apri_Davanti<ZsaniFinestra>(
        programma, [&](Zsani& zsani) { ApriDocumenti(programma, zsani); }, &finestra);
  });
}

#include "start/screens/schermi.h"

#include "accounts/screens/gemmit_finestra.h"
#include "accounts/screens/zvendita_finestra.h"
#include "documents/screens/dimddt_finestra.h"
#include "documents/screens/zsani_finestra.h"
#include "entry/screens/edita_finestra.h"
#include "invoices/screens/diciture_finestra.h"
#include "invoices/screens/zfatture_finestra.h"
#include "primanota/screens/znota_finestra.h"
#include "start/screens/cornice.h"
#include "stats/screens/controllo_cv_finestra.h"
#include "stats/screens/rxcli_finestra.h"
#include "stats/screens/rxfor_finestra.h"
#include "stats/screens/statistica2_finestra.h"
#include "stats/screens/statistica_finestra.h"
#include "transfers/screens/sceltafile_finestra.h"

namespace {

// A screen in front of the others, until it closes; it goes with its window.
template <class Schermata, class... Argomenti>
void Apri_Davanti(Argomenti&&... argomenti) {
  auto* finestra = new Schermata(std::forward<Argomenti>(argomenti)...);
  finestra->setAttribute(Qt::WA_DeleteOnClose);
  finestra->esegui();
}

// The desk is cleared for a screen of documents or accounts: the entry screen is out of sight and the frame
// small as with F12, until that screen closes.
class Scrivania_Libera {
 public:
  explicit Scrivania_Libera(EditaFinestra& edita)
      : edita_(edita), cornice_(qobject_cast<Cornice*>(edita.window())) {
    ridotta_ = cornice_ && cornice_->grande();
    edita_.hide();
    if (ridotta_) cornice_->riduci();
  }
  ~Scrivania_Libera() {
    if (ridotta_ && !cornice_->grande()) cornice_->riduci();
    edita_.show();
    edita_.riprendi_fuoco();
  }
  Scrivania_Libera(const Scrivania_Libera&) = delete;
  Scrivania_Libera& operator=(const Scrivania_Libera&) = delete;

 private:
  EditaFinestra& edita_;
  Cornice* cornice_;
  bool ridotta_ = false;
};

// A screen that has the desk to itself, in its middle.
template <class Schermata, class... Argomenti>
void Apri_Sola(EditaFinestra& edita, Argomenti&&... argomenti) {
  const Scrivania_Libera libera(edita);
  Apri_Davanti<Schermata>(std::forward<Argomenti>(argomenti)...);
}

void Prepara_Documenti(Programma& programma, const Edita& edita, EditaFinestra& finestra) {
  finestra.apre(QStringLiteral("Doc_Trasporto"), [&] {
    Apri_Sola<ZsaniFinestra>(finestra, programma, [&](Zsani& zsani) { ApriDocumenti(programma, zsani); });
  });
  finestra.apre(QStringLiteral("DSI"), [&] {
    const Testo& cliente = Campo(edita, CampoRiga::Cliente).testo;
    if (!ClienteDaStampare(programma, edita.hd.valore, cliente)) return;
    Apri_Sola<ZsaniFinestra>(finestra, programma, [&](Zsani& zsani) {
      ApriDocumentoCliente(programma, zsani, cliente, Campo(edita, CampoRiga::DDT).testo);
    });
  });
  finestra.apre(QStringLiteral("DSI_Riga"), [&] {
    const int riga = edita.hd.valore;
    if (!RigaDaStampare(programma, riga)) return;
    Apri_Sola<ZsaniFinestra>(finestra, programma,
                             [&](Zsani& zsani) { ApriDocumentoRiga(programma, zsani, riga); });
  });
  finestra.apre(QStringLiteral("Preferenze_Documenti"),
                [&] { Apri_Davanti<DimDDTFinestra>(programma, &finestra); });
}

void Apri_Fatture(Programma& programma, EditaFinestra& finestra) {
  if (!CiSonoVendite(programma)) return;
  ZFatture zfatture;
  if (programma.preferenze.FlagFatBrenval) zfatture.variante = &Fatture_Con_Vettore;
  ApriFatture(programma, zfatture);
  if (!zfatture.chiusa) Apri_Davanti<ZFattureFinestra>(programma, std::move(zfatture), &finestra);
}

void Apri_Conti(Programma& programma, EditaFinestra& finestra) {
  if (!StampantePerConti(programma)) return;
  if (programma.preferenze.FlagCVManuale)
    Apri_Sola<ZgemmitFinestra>(finestra, programma);
  else
    Apri_Sola<ZvenditaFinestra>(finestra, programma);
}

void Apri_Periodo(Programma& programma, EditaFinestra& finestra) {
  Statistica2 statistica;
  if (Apri_Statistica2(programma, statistica))
    Apri_Davanti<Statistica2Finestra>(programma, std::move(statistica), &finestra);
}

void Prepara_Statistiche(Programma& programma, const Edita& edita, EditaFinestra& finestra) {
  const auto chiede_file = [&programma](QWidget* padre) { return Chiedi_File(programma, padre); };
  finestra.apre(QStringLiteral("Stat"),
                [&, chiede_file] { Apri_Davanti<StatisticaFinestra>(programma, chiede_file, &finestra); });
  finestra.apre(QStringLiteral("Stat2"), [&] { Apri_Periodo(programma, finestra); });
  finestra.apre(QStringLiteral("Saldo"), [&] { Apri_Davanti<RXForFinestra>(programma, &finestra); });
  finestra.apre(QStringLiteral("KgCli"), [&, chiede_file] {
    Apri_Davanti<RXcliFinestra>(programma, Vista(), chiede_file, &finestra);
  });
  // the buyer in the form is looked for among the day's
  finestra.apre(QStringLiteral("Cerca_Acquirente"), [&, chiede_file] {
    Apri_Davanti<RXcliFinestra>(programma, Campo(edita, CampoRiga::Cliente).testo, chiede_file, &finestra);
  });
}

}  // namespace

void Prepara_Schermi(Programma& programma, const Edita& edita, EditaFinestra& finestra) {
  Prepara_Documenti(programma, edita, finestra);
  Prepara_Statistiche(programma, edita, finestra);
  finestra.apre(QStringLiteral("Fat"), [&] { Apri_Fatture(programma, finestra); });
  finestra.apre(QStringLiteral("Preferenze_Fatture"),
                [&] { Apri_Davanti<DicitureFinestra>(programma, &finestra); });
  finestra.apre(QStringLiteral("Conti_Vendita"), [&] { Apri_Conti(programma, finestra); });
  finestra.apre(QStringLiteral("Prima_Nota"), [&] { Apri_Davanti<ZnotaFinestra>(programma, &finestra); });
  finestra.apre(QStringLiteral("Controllo_CV"),
                [&] { Apri_Davanti<ControlloCVFinestra>(programma, &finestra); });
}

#include "start/screens/applicazione.h"

#include <QApplication>
#include <QSplitter>

#include "entry/screens/albero_finestra.h"
#include "entry/screens/edita_finestra.h"
#include "platform/memoria_finestre.h"
#include "start/avvio.h"
#include "start/screens/b_inizio.h"
#include "start/screens/cornice.h"
#include "start/screens/primo_avvio.h"
#include "start/screens/schermi.h"

struct Applicazione::Interno {
  Interno(Piattaforma& piattaforma, Percorso dove) : programma(piattaforma), cartella(std::move(dove)) {}
  ~Interno() {
    if (cornice) cornice->hide();  // its place is remembered
  }
  Interno(const Interno&) = delete;
  Interno& operator=(const Interno&) = delete;

  void fa_finestre();
  void apri_giorno();
  void torna_all_inizio();
  void chiusura();

  Programma programma;
  Percorso cartella;
  Blocco_Cartella blocco;
  Edita edita;
  std::optional<Posti_Finestre> posti;
  std::optional<Memoria_Finestre> memoria;
  std::unique_ptr<Cornice> cornice;
  B_InizioFinestra* inizio = nullptr;
  EditaFinestra* edita_finestra = nullptr;
  AlberoFinestra* albero = nullptr;
  QSplitter* giornata = nullptr;
};

void Applicazione::Interno::fa_finestre() {
  cornice = std::make_unique<Cornice>();
  inizio = new B_InizioFinestra(programma);
  giornata = new QSplitter(Qt::Vertical);
  edita_finestra = new EditaFinestra(programma, edita);
  albero = new AlberoFinestra(programma, edita);
  giornata->addWidget(edita_finestra);
  giornata->addWidget(albero);
  giornata->setChildrenCollapsible(false);
  giornata->setStretchFactor(0, 0);
  giornata->setStretchFactor(1, 1);
  cornice->aggiungi(inizio, inizio);
  cornice->aggiungi(giornata, edita_finestra);

  QObject::connect(inizio, &B_InizioFinestra::giorno_aperto, cornice.get(), [this] { apri_giorno(); });
  QObject::connect(edita_finestra, &EditaFinestra::giornata_chiusa, cornice.get(),
                   [this] { torna_all_inizio(); });
  QObject::connect(edita_finestra, &EditaFinestra::mostrata, albero, &AlberoFinestra::mostra);
  QObject::connect(edita_finestra, &EditaFinestra::riduci, cornice.get(), &Cornice::riduci);
  QObject::connect(albero, &AlberoFinestra::riga_scelta, edita_finestra, &EditaFinestra::mostra);
  QObject::connect(albero, &AlberoFinestra::fuoco_rifiutato, edita_finestra, &EditaFinestra::riprendi_fuoco);
  QObject::connect(albero, &AlberoFinestra::riduci, cornice.get(), &Cornice::riduci);
  Prepara_Schermi(programma, edita, *edita_finestra);
  cornice->chiusura = [this] { chiusura(); };
}

void Applicazione::Interno::apri_giorno() {
  Apri_Edita(programma, edita);
  cornice->vai(giornata);
  albero->apri();
  edita_finestra->apri();
}

void Applicazione::Interno::torna_all_inizio() {
  cornice->vai(inizio);
  inizio->ritorna();
}

// The window manager's X ends the program; an open day is closed first, with its question.
void Applicazione::Interno::chiusura() {
  if (inizio->occupata() || edita_finestra->occupata()) return;
  if (cornice->pagina() == giornata && !edita_finestra->chiudi()) return;
  programma.piattaforma.Termina();
}

Applicazione::Applicazione(Piattaforma& piattaforma, Percorso cartella)
    : interno_(std::make_unique<Interno>(piattaforma, std::move(cartella))) {}

Applicazione::~Applicazione() = default;

bool Applicazione::Avvia() {
  Interno& io = *interno_;
  Piattaforma& piattaforma = io.programma.piattaforma;
  piattaforma.Occupato(true);
  const auto chiedi = [&piattaforma] {
    piattaforma.Occupato(false);
    auto dati = PrimoAvvioFinestra(piattaforma, piattaforma.Separatore_Decimale()).chiedi();
    piattaforma.Occupato(true);
    return dati;
  };
  const EsitoAvvio esito = ::Avvia(io.programma, io.cartella, io.blocco, chiedi);
  piattaforma.Occupato(false);
  if (esito == EsitoAvvio::Fine) return false;
  io.memoria.emplace(io.posti.emplace(io.programma.disco, io.programma.Cartella_Dati));
  io.fa_finestre();
  io.cornice->vai(io.inizio);
  io.cornice->showMaximized();
  io.cornice->activateWindow();
  io.inizio->ritorna();
  return true;
}

Programma& Applicazione::programma() { return interno_->programma; }

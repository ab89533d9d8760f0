#include "tests/runner/giornata.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <set>
#include <unistd.h>

#include <QApplication>
#include <QWidget>

#include "tests/runner/passi.h"

namespace giornata {

namespace {

// Beats of the event loop that must pass before the next step, so that what the last one set off is done.
constexpr int battiti_quieti = 4;
constexpr int ms_per_essere_pronto = 400, ms_per_uscire = 5000, ms_fra_tentativi = 10;
// A program that doesn't come back from a step is killed by the alarm.
constexpr unsigned secondi_per_passo = 120;

bool Finestre_Aperte() {
  const auto cime = QApplication::topLevelWidgets();
  return std::any_of(cime.begin(), cime.end(), [](const QWidget* cima) { return cima->isVisible(); });
}

class Conteggio {
 public:
  explicit Conteggio(int& conta) : conta_(conta) { ++conta_; }
  ~Conteggio() { --conta_; }
  Conteggio(const Conteggio&) = delete;
  Conteggio& operator=(const Conteggio&) = delete;

 private:
  int& conta_;
};

}  // namespace

std::optional<Errore_Copione> Difetto(const Copione& copione) {
  std::set<std::string> volumi;
  bool controlla = false;
  for (const Passo& passo : copione.passi) {
    if (Forme()[passo.forma].starts_with("volume ")) volumi.insert(passo.argomenti[2].testo);
    controlla = controlla || Mosse()[passo.forma].genere == Genere_Passo::Controllo;
  }
  if (!controlla) return Errore_Copione{copione.righe, "un copione con almeno un controllo", "nessuno"};
  for (const Passo& passo : copione.passi)
    for (const std::string& fuori : Percorsi_Accanto_Alla_Ditta(passo, Forme()[passo.forma]))
      if (!volumi.contains(fuori))
        return Errore_Copione{passo.riga, "un percorso dentro la cartella della ditta o di un volume",
                              passo.scritto};
  return std::nullopt;
}

void Stampa_Fallita(const std::string& file, int riga, const std::string& passo, const std::string& atteso,
                    const std::string& trovato) {
  std::printf("FALLITA  %s:%d%s%s\n  atteso:  %s\n  trovato: %s\n", file.c_str(), riga,
              passo.empty() ? "" : ": ", passo.c_str(), atteso.c_str(), trovato.c_str());
  std::fflush(stdout);
}

Giornata::Giornata(Copione copione, const Percorso& file, const Percorso& radice,
                   std::function<void(int)> segna, Album* album, const Percorso& resto)
    : copione_(std::move(copione)), nome_(file.string()), segna_(std::move(segna)) {
  scena_.accanto = std::filesystem::absolute(file).parent_path();
  scena_.radice = radice;
  scena_.album = album;
  scena_.resto = resto;
  scena_.macchina.senza_risposta = [this](const std::string& atteso, const std::string& trovato) {
    const Passo& passo = copione_.passi[ultimo_];
    fallisci(passo.riga, passo.scritto, atteso, trovato);
  };
  battito_.setSingleShot(true);
  connect(&battito_, &QTimer::timeout, this, &Giornata::batti);
}

int Giornata::Gioca() {
  battito_.start(0);
  return QApplication::exec();
}

void Giornata::fallisci(int riga, const std::string& passo, const std::string& atteso,
                        const std::string& trovato) {
  Stampa_Fallita(nome_, riga, passo, atteso, trovato);
  std::_Exit(1);  // windows may be waiting on the stack, and the program in the midst of anything
}

void Giornata::batti() {
  if (++quieti_ < battiti_quieti) {
    battito_.start(0);
    return;
  }
  quieti_ = 0;
  if (scena_.applicazione && (scena_.macchina.terminata || !Finestre_Aperte()) && !chiudi_programma()) {
    battito_.start(0);
    return;
  }
  if (passo_ < copione_.passi.size())
    gioca_passo();
  else
    controlla_fine();
}

bool Giornata::chiudi_programma() {
  if (dentro_ > 0) {
    if (QWidget* davanti = QApplication::activeModalWidget()) davanti->close();
    return false;
  }
  scena_.applicazione.reset();
  return true;
}

void Giornata::gioca_passo() {
  const std::size_t questo = passo_;
  const Passo& passo = copione_.passi[questo];
  const Mossa& mossa = Mosse()[passo.forma];
  if (ultimo_ != questo) da_.start();
  ultimo_ = questo;
  segna_(passo.riga);
  alarm(secondi_per_passo);
  if (mossa.genere == Genere_Passo::Gesto && scena_.pagine_viste) {
    auto& girate = scena_.pagine_girate;
    std::ranges::move(scena_.macchina.pagine.righe, std::back_inserter(girate));
    scena_.macchina.pagine = {};
    scena_.pagine_viste = false;
  }
  if (!mossa.insiste) ++passo_;
  battito_.start(0);
  try {
    const Conteggio conteggio(dentro_);
    if (mossa.azione(scena_, passo.argomenti) == Esito_Passo::Fatto) {
      if (mossa.insiste && passo_ == questo) ++passo_;
    } else if (da_.elapsed() > ms_per_uscire) {
      throw Fallito("la fine del programma", "è ancora in funzione");
    }
  } catch (const Fallito& fallito) {
    const bool altri_dopo = passo_ > questo + 1;
    if (mossa.insiste || fallito.a_meta || altri_dopo || da_.elapsed() > ms_per_essere_pronto)
      fallisci(passo.riga, passo.scritto, fallito.atteso, fallito.trovato);
    passo_ = questo;  // what wasn't ready a moment ago may be by now
    battito_.start(ms_fra_tentativi);
  }
}

void Giornata::controlla_fine() {
  const Piattaforma_Copione& macchina = scena_.macchina;
  const auto finisce_male = [&](const std::string& atteso, const std::string& trovato) {
    fallisci(copione_.righe, "fine", atteso, trovato);
  };
  if (!macchina.messaggi.empty())
    finisce_male("nessun messaggio da controllare", Citato(In_Utf8(macchina.messaggi.front())));
  if (!macchina.risposte.empty())
    finisce_male("nessuna risposta rimasta in coda", std::to_string(macchina.risposte.size()));
  if (macchina.ferma_fra > 0)
    finisce_male("un lavoro da fermare con Esc", "altre " + std::to_string(macchina.ferma_fra) + " unità");
  Tieni_Il_Resto(scena_);
  std::printf("ok  %s%s%s\n", nome_.c_str(), copione_.titolo.empty() ? "" : ": ", copione_.titolo.c_str());
  std::fflush(stdout);
  alarm(0);
  if (dentro_ > 0) std::_Exit(0);
  scena_.applicazione.reset();
  QApplication::exit(0);
}

}  // namespace giornata

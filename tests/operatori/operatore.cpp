#include "tests/operatori/operatore.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <unistd.h>
#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QThread>

#include "accounts/conti.h"
#include "platform/testo_qt.h"
#include "start/screens/ditte_finestra.h"
#include "tests/operatori/ditta.h"
#include "tests/operatori/guardia.h"
#include "tests/runner/controlli.h"
#include "tests/runner/scena.h"

namespace operatori {

namespace fs = std::filesystem;

namespace {

// Beats of the event loop that pass between two steps, so that what the last one set off is done.
constexpr int battiti_quieti = 4;
constexpr int passi_lontano = 12, attese_massime = 6, cammini_massimi = 3, passi_di_cammino = 40,
              passi_di_fila = 600;
constexpr int battiti_premuto = 400;
constexpr int controlla_i_giorni_ogni = 20;
constexpr int testi_per_passo = 2000;  // more: the program asks and asks

constexpr std::array errori = {ENOSPC, EIO, EACCES, EROFS};

// The screen of that name is open, and no other one stands in front that must be answered first.
bool Raggiungibile(const char* nome) {
  const QWidget* davanti = QApplication::activeModalWidget();
  const auto tutti = QApplication::allWidgets();
  return std::any_of(tutti.begin(), tutti.end(), [&](const QWidget* widget) {
    return widget->isVisible() && widget->property("schermata").toBool() &&
           widget->objectName() == QLatin1String(nome) && (!davanti || davanti == widget->window());
  });
}

std::string Davanti() {
  const QWidget* schermo = giornata::Schermo_Attivo();
  return schermo ? schermo->objectName().toStdString() : "";
}

std::string Nome_Davanti() {
  const QWidget* schermo = giornata::Schermo_Attivo();
  if (!schermo) return "-";
  return schermo->objectName().isEmpty() ? schermo->metaObject()->className()
                                         : schermo->objectName().toStdString();
}

bool Nessuna_Finestra() {
  const auto cime = QApplication::topLevelWidgets();
  return std::none_of(cime.begin(), cime.end(), [](const QWidget* cima) { return cima->isVisible(); });
}

// Each screen has other operators for the same seed.
std::uint64_t Seme_Proprio(const Giro& giro) {
  std::uint64_t seme = giro.seme;
  for (const char* c = giro.schermo->nome; *c != 0; ++c) seme = seme * 131 + static_cast<unsigned char>(*c);
  return seme;
}

class Livello {
 public:
  explicit Livello(std::vector<int>& livelli) : livelli_(livelli) {
    livelli_.push_back(QThread::currentThread()->loopLevel());
  }
  ~Livello() { livelli_.pop_back(); }
  Livello(const Livello&) = delete;
  Livello& operator=(const Livello&) = delete;

 private:
  std::vector<int>& livelli_;
};

}  // namespace

Operatore::Operatore(const Giro& giro, const Percorso& progetto, const Testi_Noti& testi,
                     const Percorso& radice, int registro)
    : giro_(giro),
      progetto_(progetto),
      radice_(radice),
      ditta_(radice / "ditta"),
      testi_(testi),
      registro_(registro),
      caso_(Seme_Proprio(giro)) {
  Prepara_Ditta(progetto_, ditta_, *giro_.schermo, caso_);
  macchina_.separatore = caso_.una_su(4) ? '.' : ',';
  macchina_.mostrato = [this](const Testo& testo, const Testo& titolo, const std::string& risposta) {
    controlla_testo(testo, titolo, risposta);
  };
  macchina_.dispositivo.altre_stampanti = {"Altra"};
  battito_.setSingleShot(true);
  connect(&battito_, &QTimer::timeout, this, [this] { batti(); });
}

Operatore::~Operatore() = default;

void Operatore::gioca() {
  battito_.start(0);
  QApplication::exec();
  Lascia_La_Guardia();
  for (const std::string& classe : classi_) scrivi("VISTA " + classe);
  scrivi("FINE");
}

Programma* Operatore::programma() {
  return applicazione_ && avviata_ ? &applicazione_->programma() : nullptr;
}

void Operatore::scrivi(const std::string& riga) const {
  std::string intera = riga;
  const std::string radice = radice_.string();
  for (auto dove = intera.find(radice); dove != std::string::npos; dove = intera.find(radice))
    intera.replace(dove, radice.size(), "RADICE");
  std::replace(intera.begin(), intera.end(), '\n', '|');
  intera += '\n';
  if (write(registro_, intera.data(), intera.size()) < 0) std::_Exit(4);
}

void Operatore::difetto(const std::string& quale) {
  scrivi("DIFETTO " + quale);
  std::_Exit(1);  // windows may be waiting on the stack, and the program in the midst of anything
}

// ---- the beat

bool Operatore::fermo_a_meta() {
  const auto tutti = QApplication::allWidgets();
  for (const QWidget* widget : tutti) {
    const auto* bottone = qobject_cast<const QAbstractButton*>(widget);
    if (!bottone || !bottone->isDown() || premuti_.contains(bottone)) continue;
    if (++giri_fermi_ < battiti_premuto) return true;
    premuti_.insert(bottone);
  }
  giri_fermi_ = 0;
  return false;
}

void Operatore::batti() {
  // A routine that looks for Esc lets the events through: no time for the next step.
  if (!livelli_.empty() && QThread::currentThread()->loopLevel() <= livelli_.back()) {
    battito_.start(0);
    return;
  }
  if (++quieti_ < battiti_quieti) {
    battito_.start(0);
    return;
  }
  if (fermo_a_meta()) {
    battito_.start(1);
    return;
  }
  quieti_ = 0;
  Rinnova_La_Guardia();
  if (finito_ || macchina_.terminata || (avviata_ && Nessuna_Finestra())) {
    if (!chiudi_tutto()) {
      battito_.start(0);
      return;
    }
    if (finito_) return finisci();
  }
  passo();
}

bool Operatore::chiudi_tutto() {
  while (QWidget* aperto = QApplication::activePopupWidget()) aperto->close();
  if (!livelli_.empty()) {
    if (QWidget* davanti = QApplication::activeModalWidget()) davanti->close();
    return false;
  }
  const bool era_aperta = applicazione_ != nullptr;
  applicazione_.reset();
  ditte_.reset();
  avviata_ = macchina_.terminata = false;
  passo_via_ = 0;
  premuti_.clear();
  if (era_aperta) scrivi("  (fine del programma)");
  if (std::exchange(altra_ditta_, false)) {
    scrivi("  (un'altra ditta)");
    Prepara_Ditta(progetto_, ditta_, *giro_.schermo, caso_);
  }
  return true;
}

void Operatore::finisci() {
  if (const std::string quale = Difetto_Giorni(ditta_); !quale.empty()) difetto(quale);
  QApplication::exit(0);
}

void Operatore::passo() {
  if (numero_ >= giro_.passi) {
    finito_ = true;
    battito_.start(0);
    return;
  }
  battito_.start(0);
  if (!applicazione_ && !ditte_) return avvia();
  if (stato_ == Stato::Selvaggio && !arrivato() && ++lontano_ > passi_lontano) {
    stato_ = Stato::In_Cammino;
    passo_via_ = 0;
    attese_ = 0;
    cammini_ = 0;
  }
  if (stato_ == Stato::In_Cammino && arrivato()) {
    stato_ = Stato::Selvaggio;
    arrivato_mai_ = true;
    rifiuto_.clear();
  }
  const bool selvaggio = stato_ == Stato::Selvaggio;
  if (selvaggio && arrivato()) lontano_ = 0;
  macchina_.docile = !selvaggio;
  if (selvaggio) di_fila_ = 0;
  if (!selvaggio) {
    if (++di_fila_ > passi_di_fila) difetto("allo schermo non si torna più; " + rifiuto_);
    errore_disco_ = 0;
    macchina_.stampante = Stampante{"Registro", false};
    esegui(mossa_in_cammino());
    return;
  }
  ++numero_;
  esegui(caso_.una_su(25) ? alla_macchina() : Mossa_A_Caso(caso_));
}

void Operatore::esegui(const Mossa& mossa) {
  scrivi(std::to_string(numero_) + (stato_ == Stato::In_Cammino ? "v " : " ") + Nome_Davanti() + ": " +
         mossa.detta);
  macchina_.mostrati = 0;
  annota_campi();
  try {
    const Livello livello(livelli_);
    mossa.fai();
  } catch (const giornata::Fallito& fallito) {
    rifiuto_ = fallito.atteso + "; " + fallito.trovato;
    scrivi("  rifiutato");
  } catch (const std::exception& eccezione) {
    difetto(std::string("un'eccezione: ") + eccezione.what());
  }
  controlla();
}

// ---- the program and the way to the screen

void Operatore::avvia() {
  const std::string nome = giro_.schermo->nome;
  scrivi("avvia");
  macchina_.docile = true;
  errore_disco_ = 0;
  passo_via_ = 0;
  attese_ = 0;
  stato_ = Stato::In_Cammino;
  if (nome == "Ditte") {
    ditte_ = std::make_unique<DitteFinestra>(radice_ / "programmi", radice_ / "ditte");
    ditte_->setProperty("schermata", true);
    ditte_->show();
    ditte_->activateWindow();
    avviata_ = true;
    return;
  }
  if (nome == "PrimoAvvio" && caso_.una_su(2)) fs::remove(ditta_ / "_2020_RAGIONE.txt");
  if (nome == "PrimoAvvio" && !arrivato_mai_) fs::remove(ditta_ / "_2020_RAGIONE.txt");
  fs::current_path(ditta_);
  const Livello livello(livelli_);
  applicazione_ = std::make_unique<Applicazione>(macchina_, ditta_);
  applicazione_->programma().disco.guasto = [this](const Percorso& percorso) { return guasto(percorso); };
  if (applicazione_->Avvia())
    avviata_ = true;
  else
    applicazione_.reset();
}

bool Operatore::arrivato() const { return Raggiungibile(giro_.schermo->nome); }

void Operatore::rinuncia(const std::string& perche) {
  if (!arrivato_mai_)
    difetto(std::string("lo schermo ") + giro_.schermo->nome + " non si apre: " + perche + "; davanti " +
            Nome_Davanti() + "; " + rifiuto_);
  if (++cammini_ < cammini_massimi) {
    passo_via_ = 0;
    return;
  }
  // What the operator has done to the firm leads there no more: another firm.
  cammini_ = 0;
  macchina_.terminata = altra_ditta_ = true;
}

Mossa Operatore::verso_la_partenza(const std::string& davanti) {
  const bool in_edita = davanti == "Edita" || davanti == "Albero";
  if (davanti == "B_Inizio")
    return {"apri il 14 marzo", [] {
              Mossa_Scritta("metti Text1 14").fai();
              Mossa_Scritta("scegli Combo1 3").fai();
              Mossa_Scritta("metti Text3 2025").fai();
              Mossa_Scritta("clic Command2").fai();
            }};
  if (in_edita) return Mossa_Scritta("clic Edita.Chiudi");
  return {"chiudi " + davanti, [] {
            if (QWidget* aperto = QApplication::activePopupWidget())
              aperto->close();
            else if (QWidget* schermo = giornata::Schermo_Attivo())
              schermo->window()->close();
          }};
}

Mossa Operatore::mossa_in_cammino() {
  const Schermo& schermo = *giro_.schermo;
  const std::string davanti = Davanti();
  const bool in_edita = davanti == "Edita" || davanti == "Albero";
  const bool partito = passo_via_ > 0 || (schermo.dall_inizio ? davanti == "B_Inizio" : in_edita);
  if (!partito || QApplication::activePopupWidget()) {
    if (++attese_ > passi_di_cammino) {
      attese_ = 0;
      rinuncia("non si torna alla partenza");
    }
    if (std::string(schermo.nome) == "PrimoAvvio" || davanti.empty()) macchina_.terminata = true;
    return verso_la_partenza(davanti);
  }
  if (passo_via_ < schermo.via.size()) return Mossa_Scritta(schermo.via[passo_via_++]);
  if (++attese_ > attese_massime) {
    attese_ = 0;
    rinuncia("la via è finita");
  }
  if (schermo.via.empty()) macchina_.terminata = true;
  return {"aspetta", [] {}};
}

// ---- the machine

int Operatore::guasto(const Percorso& percorso) {
  const Percorso intero = (percorso.is_absolute() ? percorso : ditta_ / percorso).lexically_normal();
  if (intero.string().starts_with(radice_.string())) return errore_disco_;
  return EACCES;  // the machine's own folders
}

Mossa Operatore::alla_macchina() {
  struct Evento {
    const char* nome;
    void (*fai)(Operatore&);
  };
  static constexpr std::array<Evento, 12> eventi = {
      {{"nessuna stampante", [](Operatore& o) { o.macchina_.stampante.reset(); }},
       {"una stampante",
        [](Operatore& o) {
          o.macchina_.stampante = Stampante{"Registro", o.caso_.una_su(2)};
        }},
       {"la stampante PDF",
        [](Operatore& o) {
          o.macchina_.stampante = Stampante{"PDF", false};
        }},
       {"disco guasto", [](Operatore& o) { o.errore_disco_ = o.caso_.uno(errori); }},
       {"disco guasto", [](Operatore& o) { o.errore_disco_ = o.caso_.uno(errori); }},
       {"disco guasto", [](Operatore& o) { o.errore_disco_ = o.caso_.uno(errori); }},
       {"disco sano", [](Operatore& o) { o.errore_disco_ = 0; }},
       {"disco sano", [](Operatore& o) { o.errore_disco_ = 0; }},
       {"appunti",
        [](Operatore& o) {
          const char* testo = o.caso_.uno(Testi_Battuti());
          o.macchina_.appunti = Da_Utf8(testo);
          QApplication::clipboard()->setText(QString::fromUtf8(testo));
        }},
       {"una chiavetta",
        [](Operatore& o) {
          fs::create_directories(o.radice_ / "chiavetta");
          o.macchina_.volumi.push_back({o.radice_ / "chiavetta", "E:", "CHIAVETTA"});
        }},
       {"chiavetta tolta", [](Operatore& o) { o.macchina_.volumi.clear(); }},
       {"chiavetta strappata", [](Operatore& o) { fs::remove_all(o.radice_ / "chiavetta"); }}}};
  const Evento& evento = caso_.uno(eventi);
  return {std::string("MACCHINA ") + evento.nome, [this, &evento] { evento.fai(*this); }};
}

// ---- the checks

void Operatore::annota_finestre() {
  const auto tutti = QApplication::allWidgets();
  for (const QWidget* widget : tutti)
    if (widget->isVisible()) classi_.insert(widget->metaObject()->className());
}

void Operatore::annota_campi() {
  const auto tutti = QApplication::allWidgets();
  for (const QWidget* uno : tutti) {
    if (const auto* campo = qobject_cast<const QLineEdit*>(uno)) nei_campi_.insert(campo->text());
    if (const auto* campo = qobject_cast<const QPlainTextEdit*>(uno)) nei_campi_.insert(campo->toPlainText());
  }
}

Testo Operatore::dati() {
  annota_campi();
  Testo tutto = Dati_Della_Ditta(radice_, programma());
  tutto += "\nRegistro\nAltra\nCHIAVETTA\n" + macchina_.appunti;
  constexpr std::size_t lunghezza_codice = 8;  // of a macro: what is keyed longer is cut to it
  for (const char* testo : Testi_Battuti()) {
    tutto.append("\n").append(Da_Utf8(testo));
    tutto.append("\n").append(Sinistra(Senza_Separatori(Da_Utf8(testo)), lunghezza_codice));
  }
  for (const QString& testo : nei_campi_) tutto.append("\n").append(Da_QString(testo));
  const auto widget = QApplication::allWidgets();
  for (const QWidget* uno : widget)
    // not those of a message, which is what is looked at
    if (const auto* scritta = qobject_cast<const QLabel*>(uno);
        scritta && !qobject_cast<const QMessageBox*>(uno->window()))
      tutto.append("\n").append(Da_QString(scritta->text()));
  return tutto;
}

void Operatore::controlla_testo(const Testo& testo, const Testo& titolo, const std::string& risposta) {
  if (Contiene(testo, "durante il salvataggio")) salvataggio_fallito_ = true;
  scrivi("  \"" + In_Utf8(testo) + "\"" + (risposta.empty() ? "" : " -> " + risposta));
  if (macchina_.mostrati > testi_per_passo) difetto("il programma non smette di parlare");
  for (const Testo& uno : {testo, titolo})
    if (const Testo ignoto = testi_.Sconosciuto(uno, [this] { return dati(); });
        !uno.empty() && !ignoto.empty())
      difetto("un testo sconosciuto: " + In_Utf8(ignoto));
}

void Operatore::controlla_carta() {
  static constexpr Vista inizio = "documento \"";
  for (const Testo& riga : std::exchange(macchina_.pagine, {}).righe) {
    if (!riga.starts_with(inizio)) continue;
    const Vista documento = Vista(riga).substr(inizio.size());
    scrivi("  carta " + In_Utf8(documento));
    controlla_numero(documento);
  }
}

// An account is on paper: its number must be out on the disk, so that no other one gets it. By hand, numbers
// are the operator's; an account that could not be numbered, which has been told, or that he has given the
// sign for none, has none to give out.
void Operatore::controlla_numero(Vista documento) {
  static constexpr Vista conto = " Conto Vendita ";
  const auto dove = documento.find(conto);
  if (dove == Vista::npos || Raggiungibile("Zgemmit")) return;
  const Testo numero(documento.substr(dove + conto.size(), 9));
  const auto stampato = std::strtol(numero.c_str(), nullptr, 10);
  const bool senza = salvataggio_fallito_ || nei_campi_.contains(QString::number(Senza_Numero_CV));
  if (stampato == Senza_Numero_CV && senza) return;
  if (const auto emesso = Ultimo_Conto(ditta_); emesso < stampato)
    difetto("stampato il conto " + std::to_string(stampato) + ", nel file l'ultimo e' " +
            std::to_string(emesso));
}

void Operatore::controlla() {
  annota_finestre();
  annota_campi();
  controlla_carta();
  if (const auto* box = qobject_cast<const QMessageBox*>(QApplication::activeModalWidget()))
    controlla_testo(Da_QString(box->text()), Da_QString(box->windowTitle()), "");
  const Programma* aperto = programma();
  if (!aperto) return;
  if (const std::string quale = Difetto_Giorno(*aperto); !quale.empty()) difetto(quale);
  if (numero_ % controlla_i_giorni_ogni == 0)
    if (const std::string quale = Difetto_Giorni(ditta_); !quale.empty()) difetto(quale);
}

}  // namespace operatori

#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include <QPointer>
#include <QTimer>

#include "start/screens/applicazione.h"
#include "tests/operatori/giro.h"
#include "tests/operatori/macchina.h"
#include "tests/operatori/mosse.h"

class DitteFinestra;

namespace operatori {

// Plays one round in this process, on the real windows. The event loop drives the steps, as a person does,
// and they go on inside windows that wait for an answer. Ends the process at the first fault.
class Operatore : public QObject {
 public:
  // `radice` is an empty folder of this round's own; every step is written to `registro` before it is done.
  Operatore(const Giro& giro, const Percorso& progetto, const Testi_Noti& testi, const Percorso& radice,
            int registro);
  ~Operatore() override;

  void gioca();

 private:
  enum class Stato { Selvaggio, In_Cammino };

  void batti();
  void passo();
  void esegui(const Mossa& mossa);
  void finisci();
  bool fermo_a_meta();  // something of the toolkit's is on its way that takes its time
  bool chiudi_tutto();  // false while windows of the program still wait
  void avvia();
  Mossa mossa_in_cammino();
  Mossa verso_la_partenza(const std::string& davanti);
  Mossa alla_macchina();  // something happens to the machine
  bool arrivato() const;
  void rinuncia(const std::string& perche);
  void annota_finestre();
  void annota_campi();
  void controlla();
  void controlla_testo(const Testo& testo, const Testo& titolo, const std::string& risposta);
  void controlla_carta();
  void controlla_numero(Vista documento);
  int guasto(const Percorso& percorso);
  Testo dati();
  Programma* programma();
  void scrivi(const std::string& riga) const;
  [[noreturn]] void difetto(const std::string& quale);

  Giro giro_;
  Percorso progetto_, radice_, ditta_;
  const Testi_Noti& testi_;
  int registro_;
  Caso caso_;
  Macchina macchina_{caso_};
  std::unique_ptr<Applicazione> applicazione_;
  std::unique_ptr<DitteFinestra> ditte_;
  QTimer battito_;
  Stato stato_ = Stato::In_Cammino;
  std::vector<int> livelli_;  // of the event loop, of each step that still waits for a window it opened
  std::size_t passo_via_ = 0;
  int numero_ = 0, quieti_ = 0, lontano_ = 0, attese_ = 0, cammini_ = 0, giri_fermi_ = 0, di_fila_ = 0;
  int errore_disco_ = 0;              // what writes fail with, 0 for a sound disk
  bool salvataggio_fallito_ = false;  // and told
  bool arrivato_mai_ = false, finito_ = false, avviata_ = false, altra_ditta_ = false;
  std::string rifiuto_;
  std::set<std::string> classi_;
  std::set<const QObject*> premuti_;
  std::set<QString> nei_campi_;  // all that a field ever held
};

}  // namespace operatori

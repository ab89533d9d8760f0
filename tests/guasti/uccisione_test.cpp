#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <iostream>
#include <poll.h>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "start/avvio.h"
#include "start/inizio.h"
#include "tests/guasti/chiamate.h"
#include "tests/guasti/salvataggi.h"
#include "tests/guasti/versioni.h"

// The process dies in the middle of a save: every file is a whole old or a whole new one, nothing that was
// saved is lost, and the program starts and opens the day.

namespace {

// ---- files that tell by themselves whether they are whole: each version of each is made of its number

constexpr int righe_massime = 400;

Tabella Giorno_Di(int versione) {
  Tabella tabella;
  tabella.righe.clear();
  for (int i = 1; i <= 1 + versione * 37 % righe_massime; ++i) {
    LedgerRow& riga = tabella.righe.emplace_back(Scena::Riga(i));
    riga[CampoRiga::Commento] = std::to_string(versione);
  }
  return tabella;
}

TabellaLista<9> Clienti_Di(int versione) {
  TabellaLista<9> clienti;
  for (int i = 0; i <= versione * 53 % righe_massime; ++i)
    clienti.push_back({Pad_Sinistra(std::to_string(i), 5, '0'), "Cliente", "zz", "via",
                       std::to_string(versione), "", "-", "-", ""});
  return clienti;
}

int Versione_Del_Giorno(const Programma& programma) {
  return std::atoi(programma.Vet_Tabella(CampoRiga::Commento, 1).c_str());
}

struct Versioni {
  int giorno = 0, clienti = 0, numeri = 0, impostazioni = 0;
};

// How a file is saved: as the program does, or, to show what the test is worth, over the old bytes.
using Salva_File = std::function<void(Programma&, const Percorso&, const Testo&)>;

void Salva_Sul_Posto(Programma&, const Percorso& file, const Testo& contenuto) {
  constexpr std::size_t pezzo = 4096;
  const int aperto = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  for (std::size_t i = 0; i < contenuto.size(); i += pezzo) {
    const auto parte = std::min(pezzo, contenuto.size() - i);
    if (write(aperto, contenuto.data() + i, parte) != static_cast<ssize_t>(parte)) break;
    std::this_thread::sleep_for(std::chrono::microseconds(100));  // as a slow disk does
  }
  close(aperto);
}

// The saves of one round, each version told to `fatto` when it is done.
void Giro(Programma& programma, int versione, const Salva_File& a_modo_suo,
          const std::function<void(char)>& fatto) {
  programma.Vet_Tabella = Giorno_Di(versione);
  bool errore = false;
  if (a_modo_suo)
    a_modo_suo(programma, programma.File_Giorno, Scrivi_Tabella(programma.Vet_Tabella));
  else
    Salva_Giorno(programma, errore);
  if (!errore) fatto('g');
  programma.Vet_Clienti = Clienti_Di(versione);
  if (Salva_Clienti(programma)) fatto('c');
  programma.Ultimo_CV = programma.Ultimo_DDT = programma.Ultima_NA = programma.Ultima_Fattura = versione;
  if (Salva_Ultimi_Numeri(programma)) fatto('n');
  programma.preferenze.BORDO3 = programma.preferenze.DASU3 = versione;
  if (Scrivi_Preferenze(programma)) fatto('i');
}

// What is wrong in the folder after a death: nothing, or the first file that isn't a whole version, or is
// older than the last one that was saved.
std::string Difetto(const Percorso& cartella, const Versioni& salvate) {
  Macchina_Che_Conferma macchina;
  Programma programma(macchina);
  Blocco_Cartella blocco;
  if (Avvia(programma, cartella, blocco, [] { return std::nullopt; }) != EsitoAvvio::Pronto)
    return "non parte";
  B_Inizio inizio;
  Carica_Inizio(programma, inizio);
  for (CampoTesto* campo : {&inizio.Text2, &inizio.Text4, &inizio.Text5, &inizio.Text6})
    campo->testo = std::to_string(programma.Ultimo_CV);
  if (!Apri_Giorno(programma, inizio)) return "il giorno non si apre";

  const int giorno = Versione_Del_Giorno(programma);
  if (programma.Vet_Tabella.righe != Giorno_Di(giorno).righe) return "il giorno non e' intero";
  if (giorno < salvate.giorno) return "il giorno e' piu' vecchio dell'ultimo salvato";
  const int clienti = std::atoi(programma.Vet_Clienti.at(0)[cliente::Citta].c_str());
  if (programma.Vet_Clienti != Clienti_Di(clienti)) return "i clienti non sono interi";
  if (clienti < salvate.clienti) return "i clienti sono piu' vecchi degli ultimi salvati";
  if (programma.Ultimo_CV != programma.Ultima_Fattura || programma.Ultimo_CV != programma.Ultimo_DDT ||
      programma.Ultimo_CV != programma.Ultima_NA)
    return "i numeri non sono interi";
  if (programma.Ultimo_CV < salvate.numeri) return "i numeri sono piu' vecchi degli ultimi salvati";
  if (programma.preferenze.BORDO3 != programma.preferenze.DASU3) return "le impostazioni non sono intere";
  if (programma.preferenze.BORDO3 < salvate.impostazioni) return "le impostazioni sono piu' vecchie";
  const Testo ini = programma.disco.Leggi(programma.File_Ini).value_or("");
  if (ini.find("mia=tenuta") == Testo::npos) return "una chiave della ditta e' persa";
  for (const auto& voce : std::filesystem::recursive_directory_iterator(cartella))
    if (voce.path().filename().string().starts_with(".velmara")) return "resta " + voce.path().string();
  if (!macchina.messaggi.empty()) return "all'avvio: " + macchina.messaggi.front();
  return {};
}

void Prepara(Scena& scena) {
  Giro(scena.programma, 0, {}, [](char) {});
}

// A process that saves on and on from the version given; its reports come through the pipe.
struct Figlio {
  pid_t processo = -1;
  int rapporti = -1;
};

Figlio Salva_Finche_Muore(const Percorso& cartella, int versione, const Salva_File& a_modo_suo) {
  int tubo[2];
  if (pipe2(tubo, O_CLOEXEC) != 0) throw std::runtime_error("pipe");
  const pid_t processo = fork();
  if (processo == 0) {
    Macchina_Che_Conferma macchina;
    Programma programma(macchina);
    Apri_Giornata(programma, cartella, ',');
    Leggi_Preferenze(programma);
    for (;; ++versione)
      Giro(programma, versione, a_modo_suo, [&](char che_cosa) {
        const struct {
          char che_cosa;
          int versione;
        } rapporto{che_cosa, versione};
        if (write(tubo[1], &rapporto, sizeof rapporto) < 0) _exit(1);
      });
  }
  close(tubo[1]);
  return {processo, tubo[0]};
}

void Leggi_Rapporti(int rapporti, Versioni& salvate) {
  struct {
    char che_cosa;
    int versione;
  } rapporto{};
  while (read(rapporti, &rapporto, sizeof rapporto) == static_cast<ssize_t>(sizeof rapporto)) {
    int& quale = rapporto.che_cosa == 'g'   ? salvate.giorno
                 : rapporto.che_cosa == 'c' ? salvate.clienti
                 : rapporto.che_cosa == 'n' ? salvate.numeri
                                            : salvate.impostazioni;
    quale = rapporto.versione;
  }
  close(rapporti);
}

unsigned Dall_Ambiente(const char* nome, unsigned altrimenti) {
  const char* valore = std::getenv(nome);
  return valore == nullptr ? altrimenti : static_cast<unsigned>(std::strtoul(valore, nullptr, 10));
}

// Waits until the child has saved once: how long it takes to get there depends on the machine.
void Aspetta_Il_Primo(int rapporti) {
  constexpr int limite = 10'000;  // milliseconds
  pollfd attesa{rapporti, POLLIN, 0};
  poll(&attesa, 1, limite);
}

// Kills so many times at random moments; the first fault found, and after how many kills.
std::pair<std::string, unsigned> Uccidi_Spesso(unsigned volte, unsigned seme, const Salva_File& a_modo_suo) {
  Scena scena;
  Prepara(scena);
  std::mt19937 sorte(seme);
  Versioni salvate;
  for (unsigned i = 1; i <= volte; ++i) {
    const int prossima =
        std::max({salvate.giorno, salvate.clienti, salvate.numeri, salvate.impostazioni}) + 1;
    const Figlio figlio = Salva_Finche_Muore(scena.cartella.percorso, prossima, a_modo_suo);
    if (sorte() % 4 != 0) Aspetta_Il_Primo(figlio.rapporti);
    std::this_thread::sleep_for(std::chrono::microseconds(500 + sorte() % 12000));
    kill(figlio.processo, SIGKILL);
    waitpid(figlio.processo, nullptr, 0);
    Leggi_Rapporti(figlio.rapporti, salvate);
    const std::string difetto = Difetto(scena.cartella.percorso, salvate);
    if (!difetto.empty()) return {difetto, i};
  }
  std::cout << "versioni salvate: " << salvate.giorno << "\n";
  return {"", volte};
}

// VELMARA_UCCISIONI and VELMARA_SEME give another count and the seed of a run that is to be repeated.
TEST(Uccisione, InUnMomentoQualunque) {
  const unsigned volte = Dall_Ambiente("VELMARA_UCCISIONI", 100);
  const unsigned seme = Dall_Ambiente("VELMARA_SEME", std::random_device()());
  std::cout << "VELMARA_SEME=" << seme << " VELMARA_UCCISIONI=" << volte << "\n";
  const auto [difetto, dopo] = Uccidi_Spesso(volte, seme, {});
  EXPECT_EQ(difetto, "") << "seme " << seme << ", uccisione " << dopo;
}

// What the test is worth: a save over the old bytes is found out.
TEST(Uccisione, ChiScriveSulPostoEScoperto) {
  const auto [difetto, dopo] = Uccidi_Spesso(2000, 1, Salva_Sul_Posto);
  EXPECT_NE(difetto, "");
  std::cout << "dopo " << dopo << " uccisioni: " << difetto << "\n";
}

// ---- at every single call

// The child dies at that call; true when it was met.
bool Muore_Alla(int posto, const std::function<void()>& salva) {
  const pid_t figlio = fork();
  if (figlio == 0) {
    regia().Uccidi(posto);
    salva();
    _exit(0);
  }
  int stato = 0;
  waitpid(figlio, &stato, 0);
  return WIFSIGNALED(stato);
}

// How many files are neither as before nor as after nor as the save itself has them in between, over all the
// calls at which it can die.
std::size_t Guaste_Da_Morti(const std::function<std::function<void()>(Scena&)>& prepara) {
  Versioni_Intere versioni;
  {
    Scena scena;
    versioni.Prendi(scena, prepara(scena));
  }
  std::size_t guaste = 0;
  for (int posto = 1;; ++posto) {
    Scena scena;
    const auto salva = prepara(scena);
    if (!Muore_Alla(posto, salva)) return guaste;
    guaste += versioni.Guaste(scena.Foto()).size();
  }
}

class Morte : public testing::TestWithParam<Salvataggio> {};

TEST_P(Morte, AdOgniChiamata) {
  if (GetParam().si_distrugge) return;
  EXPECT_EQ(Guaste_Da_Morti([](Scena& scena) -> std::function<void()> {
              return [salva = GetParam().prepara(scena)] { salva(); };
            }),
            0U);
}

INSTANTIATE_TEST_SUITE_P(Salvataggi, Morte, testing::ValuesIn(Salvataggi()),
                         [](const auto& caso) { return std::string(caso.param.nome); });

TEST(Morte, ChiScriveSulPostoEScoperto) {
  EXPECT_GT(Guaste_Da_Morti([](Scena& scena) {
              return [&scena] {
                Salva_Sul_Posto(scena.programma, scena.programma.File_Giorno, Scrivi_Tabella(Giorno_Di(9)));
              };
            }),
            0U);
}

}  // namespace

#include <cstdio>
#include <iostream>
#include <string>

#include "core/numeri.h"
#include "platform/piattaforma_qt.h"
#include "printing/registratore.h"
#include "start/avvio.h"

namespace {

// The real machine, but what it would show in a window comes out as a line, and questions are refused.
class Macchina_A_Righe : public Piattaforma_Qt {
 public:
  using Piattaforma_Qt::Piattaforma_Qt;
  void Messaggio(const Testo& testo, Icona, const Testo&) override { Di("messaggio " + testo); }
  bool Domanda(const Testo& testo, Icona, const Testo&) override {
    Di("domanda " + testo);
    return false;
  }
  std::optional<Testo> Chiedi(const Testo& testo, const Testo&, const Testo&) override {
    Di("domanda " + testo);
    return std::nullopt;
  }
  void Ridipingi() override {}
  void Attendi(double) override {}
  void Occupato(bool) override {}

  static void Di(const Testo& testo) {
    std::cout << Sostituisci_Tutti(In_Utf8(testo), "\n", " / ") << std::endl;
  }
};

}  // namespace

// --macchina: what the machine says of today and of the decimal separator.
// FOLDER [COMMAND]: the start of the program in that folder as a process of its own; it then holds the folder
// until its input ends. COMMAND is a program that it starts and leaves behind.
int main(int argomenti, char** testi) {
  std::optional<Stampante> stampante;
  Registro_Pagine registro;
  Registratore carta(stampante, registro);
  Macchina_A_Righe macchina(carta);
  if (argomenti < 2) return 2;
  const std::string primo = testi[1];
  if (primo == "--macchina") {
    Macchina_A_Righe::Di(Testo("separatore ") + macchina.Separatore_Decimale());
    Macchina_A_Righe::Di("oggi " + Testo_Data(macchina.Oggi(), "yyyymmdd"));
    return 0;
  }
  Programma programma(macchina);
  Blocco_Cartella blocco;
  const EsitoAvvio esito = Avvia(programma, primo, blocco, [] { return std::nullopt; });
  if (argomenti > 2 && esito == EsitoAvvio::Pronto) macchina.Avvia_Programma(testi[2], {"3"});
  Macchina_A_Righe::Di(esito == EsitoAvvio::Pronto ? "pronto" : "fine");
  if (esito == EsitoAvvio::Pronto)
    for (std::string riga; std::getline(std::cin, riga);) continue;
  return 0;
}

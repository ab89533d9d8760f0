#pragma once

#include <deque>
#include <map>
#include <stdexcept>

#include "core/piattaforma.h"

// The machine of the unit tests: keeps every text it was shown, answers questions from a queue, and fails the
// test on a question that nobody expected.
class Piattaforma_Finta : public Piattaforma {
 public:
  std::vector<Testo> messaggi;             // in order of appearance
  std::vector<Testo> domande;              // questions and input boxes, in order
  std::deque<bool> risposte;               // to the next questions
  std::deque<std::optional<Testo>> testi;  // to the next input boxes
  std::vector<Testo> programmi;            // file names started
  bool programmi_partono = true;
  std::vector<Percorso> aperti;  // files and folders shown by the desktop
  Data oggi{2025, 3, 14};
  char separatore = ',';
  Testo appunti;
  std::vector<Volume> volumi;
  std::optional<Stampante> stampante = Stampante{"Registro", false};
  Printer* dispositivo = nullptr;  // of the tests that print
  double attesa = 0;               // seconds waited in all
  int ridipinture = 0;
  bool occupato = false;
  bool terminata = false;
  int unita = 0;                         // of long works, done in all when the program asked whether to stop
  std::optional<int> ferma_dopo;         // the operator presses Esc when so many are done
  std::function<void()> fra_le_unita;    // what "happens" between two of them
  std::function<void()> durante_attesa;  // what "happens" while the program waits or asks

  void Messaggio(const Testo& testo, Icona, const Testo&) override { messaggi.push_back(testo); }
  bool Domanda(const Testo& testo, Icona, const Testo&) override {
    domande.push_back(testo);
    if (durante_attesa) durante_attesa();
    if (risposte.empty()) throw std::logic_error("domanda inattesa: " + testo);
    const bool risposta = risposte.front();
    risposte.pop_front();
    return risposta;
  }
  std::optional<Testo> Chiedi(const Testo& testo, const Testo&, const Testo&) override {
    domande.push_back(testo);
    if (testi.empty()) throw std::logic_error("richiesta inattesa: " + testo);
    auto risposta = testi.front();
    testi.pop_front();
    return risposta;
  }
  void Ridipingi() override { ++ridipinture; }
  bool Vuole_Fermare() override {
    if (fra_le_unita) fra_le_unita();
    return ++unita == ferma_dopo;
  }
  void Attendi(double secondi) override {
    attesa += secondi;
    if (durante_attesa) durante_attesa();
  }
  void Occupato(bool si) override { occupato = si; }
  Data Oggi() override { return oggi; }
  char Separatore_Decimale() override { return separatore; }
  Testo Appunti() override { return appunti; }
  std::vector<Volume> Volumi() override { return volumi; }
  std::optional<Stampante> Stampante_Corrente() override { return stampante; }
  Printer& Dispositivo() override {
    if (!dispositivo) throw std::logic_error("stampa inattesa");
    return *dispositivo;
  }
  bool Avvia_Programma(const Percorso& programma, const std::vector<Testo>&) override {
    programmi.push_back(Testo_Percorso(programma.filename()));
    return programmi_partono;
  }
  void Apri_Con_Desktop(const Percorso& percorso) override { aperti.push_back(percorso); }
  void Termina() override { terminata = true; }
};

#pragma once

#include <QElapsedTimer>

#include "core/piattaforma.h"

// The machine as the desktop's toolkit gives it.
class Piattaforma_Qt : public Piattaforma {
 public:
  explicit Piattaforma_Qt(Printer& dispositivo) : dispositivo_(dispositivo) {}

  void Messaggio(const Testo& testo, Icona icona, const Testo& titolo) override;
  bool Domanda(const Testo& testo, Icona icona, const Testo& titolo) override;
  std::optional<Testo> Chiedi(const Testo& testo, const Testo& titolo, const Testo& proposta) override;
  void Ridipingi() override;
  bool Vuole_Fermare() override;
  void Attendi(double secondi) override;
  void Occupato(bool si) override;
  Data Oggi() override;
  char Separatore_Decimale() override;
  Testo Appunti() override;
  std::vector<Volume> Volumi() override;
  std::optional<Stampante> Stampante_Corrente() override;
  Printer& Dispositivo() override { return dispositivo_; }
  bool Avvia_Programma(const Percorso& programma, const std::vector<Testo>& argomenti) override;
  void Apri_Con_Desktop(const Percorso& file_o_cartella) override;
  void Termina() override;

  // A file that the work in hand has finished: opened when that is over, or its folder in place of many.
  void Mostra_Finito(const Percorso& file);

 private:
  Printer& dispositivo_;
  QElapsedTimer ultima_ridipintura_, occupato_da_;
  bool lavoro_lungo_ = false;     // the present one repaints the screen, and has done so for a while
  std::vector<Percorso> finiti_;  // to be opened when it is over
};

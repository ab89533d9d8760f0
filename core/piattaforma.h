#pragma once

#include <optional>
#include <vector>

#include "core/date.h"
#include "core/disco.h"
#include "core/testo.h"

class Printer;  // the page device, printing/dispositivo.h

enum class Icona { Nessuna, Informazione, Esclamazione, Domanda };

struct Volume {
  Percorso radice;  // where it is mounted
  Testo lettera;    // how the operator knows it: "E:" or the mount folder
  Testo etichetta;
};

struct Stampante {
  Testo nome;
  bool orizzontale = false;
};

// What the logic asks of the machine. The windows' answer stands in platform/piattaforma_qt, the scripted
// double of the working days in platform/piattaforma_copione. Line ends inside texts are a single LF.
class Piattaforma {
 public:
  Piattaforma() = default;
  Piattaforma(const Piattaforma&) = delete;
  Piattaforma& operator=(const Piattaforma&) = delete;
  virtual ~Piattaforma() = default;

  virtual void Messaggio(const Testo& testo, Icona icona = Icona::Esclamazione, const Testo& titolo = {}) = 0;
  // OK (true) or Cancel.
  virtual bool Domanda(const Testo& testo, Icona icona = Icona::Domanda, const Testo& titolo = {}) = 0;
  // The text of an input box; nothing when it was cancelled.
  virtual std::optional<Testo> Chiedi(const Testo& testo, const Testo& titolo = {},
                                      const Testo& proposta = {}) = 0;

  virtual void Ridipingi() = 0;  // lets the screen repaint; may do nothing when it just did
  // Between two units of a long work: lets the screen repaint, and says whether the operator has pressed Esc
  // to stop it. What else he keyed or clicked meanwhile reaches nobody.
  virtual bool Vuole_Fermare() = 0;
  virtual void Attendi(double secondi) = 0;  // waits while the screen repaints
  virtual void Occupato(bool si) = 0;        // the busy pointer
  virtual Data Oggi() = 0;
  virtual char Separatore_Decimale() = 0;  // '.' or ','
  virtual Testo Appunti() = 0;             // the clipboard's text
  virtual std::vector<Volume> Volumi() = 0;
  virtual std::optional<Stampante> Stampante_Corrente() = 0;
  // The one page device that all print routines draw on, of which a printer is chosen in the menu
  // "Stampante".
  virtual Printer& Dispositivo() = 0;

  // Starts a program and doesn't wait for it; false when it didn't start.
  virtual bool Avvia_Programma(const Percorso& programma, const std::vector<Testo>& argomenti = {}) = 0;
  virtual void Apri_Con_Desktop(const Percorso& file_o_cartella) = 0;  // failure is silent
  virtual void Termina() = 0;  // ends the program once the present event is done
};

#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "core/testo.h"

// What a screen's state is made of: the texts of its fields, checks, lists and captions, what is enabled and
// visible. The logic changes these; a window shows them (platform/legame.h) and turns events into calls.

struct Colore {
  int rosso = 255, verde = 255, blu = 255;
  bool operator==(const Colore&) const = default;
};

struct Controllo {
  bool attivo = true;
  bool visibile = true;
  Testo suggerimento;  // tooltip
  std::optional<Colore> sfondo;
};

struct Scritta : Controllo {  // a label, and the caption of a button or menu entry
  Testo testo;
};

struct Bottone : Scritta {};

struct CampoTesto : Controllo {  // a text field
  Testo testo;
};

struct Spunta : Controllo {  // a check box or an option button
  bool segnata = false;
  Testo didascalia;
};

// A list box or the list of a combo. Short lists hold their lines; long ones (the ledger) make a line when it
// is looked at. Whoever changes lines calls Cambiato.
struct Elenco : Controllo {
  int scelta = -1;  // index of the selected line from 0, -1 for none
  unsigned versione = 0;

  void Cambiato() { ++versione; }
  void Riempi(std::vector<Testo> righe);
  void Svuota() { Riempi({}); }
  // Lines from a source: how many there are and the text of line i, from 0.
  void Collega(std::function<std::size_t()> numero, std::function<Testo(std::size_t)> riga);
  std::size_t Numero() const;
  Testo Riga(std::size_t i) const;  // empty beyond the end
  Testo Scelta() const;             // text of the selected line, empty without one

 private:
  std::vector<Testo> righe_;
  std::function<std::size_t()> numero_;
  std::function<Testo(std::size_t)> riga_;
};

struct Cursore : Controllo {  // a scroll bar or slider
  int minimo = 1, massimo = 1, valore = 1;
};

// A key press as the logic sees it.
enum class Tasto {
  Altro,
  Invio,
  Esc,
  Su,
  Giu,
  Sinistra,
  Destra,
  PagSu,
  PagGiu,
  Inizio,
  Fine,
  Canc,
  Backspace,
  Tab,
  Spazio,
  F1,
  F2,
  F3,
  F4,
  F5,
  F6,
  F7,
  F8,
  F9,
  F10,
  F11,
  F12
};

struct Pressione {
  Tasto tasto = Tasto::Altro;
  bool maiuscole = false, ctrl = false, alt = false;
  bool Nudo() const { return !maiuscole && !ctrl && !alt; }
};

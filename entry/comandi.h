#pragma once

#include <span>

#include "entry/edita.h"

// The commands and menus of the entry screen as data, and the one place that says what of them is enabled and
// visible: buttons, keys and menus all ask here.

struct Voce_Comando {
  Vista nome;  // of the control
  Testo didascalia;
  Testo suggerimento;  // tooltip
  Tasto tasto = Tasto::Altro;
};

// Commands that work. Names are those of the routines they run.
std::span<const Voce_Comando> Comandi();
// Names of those commands and menu entries whose screens stand in other rooms: the application gives the
// entry screen's window what opens them.
std::span<const Vista> Comandi_Altrui();
// Such a command was given: its screen opens once the event is done.
void ChiediSchermo(Edita& edita, Vista comando);

struct Stato_Comando {
  bool attivo = false;
  bool visibile = true;
};
// A command by the name it has in the tables above. An unknown one is disabled.
Stato_Comando StatoComando(const Programma& programma, const Edita& edita, Vista nome);

struct Voce_Menu {
  Vista menu;  // of the menu bar; an entry with an empty `voce` stands in the bar itself
  Testo voce;
  Vista nome;
  bool funziona = false;
  Tasto tasto = Tasto::Altro;
};
std::span<const Voce_Menu> Menu();
// The caption of a menu entry as it reads now ("Marca" changes to "SMarca").
Testo DidascaliaMenu(const Edita& edita, const Voce_Menu& voce);

#pragma once

#include <optional>
#include <span>

#include "core/programma.h"

// The help of the entry screen: one text for each entry of the menu "Help".

struct Voce_Aiuto {
  Vista nome;   // of the menu entry
  Testo voce;   // its caption, also the title of the message
  Testo testo;  // lines separated by LF
};

std::span<const Voce_Aiuto> Aiuti();
// Shows the text of that name; nothing happens for a name without one.
void MostraAiuto(Programma& programma, Vista nome);

// The operator's manual, which stands beside the helps in the same menu.
inline constexpr Vista File_Manuale = "Velmara_Guida.pdf";
inline constexpr Vista Cartella_Manuale = "/usr/share/doc/velmara";  // of the installed program
// The firm's own copy, else that of the installed program; nothing where the machine has neither.
std::optional<Percorso> CercaManuale(const Programma& programma, Vista installato = Cartella_Manuale);
// Opens it with the desktop's viewer; where it is missing, tells where it can be had.
void ApriManuale(Programma& programma, Vista installato = Cartella_Manuale);

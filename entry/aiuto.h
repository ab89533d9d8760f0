#pragma once

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

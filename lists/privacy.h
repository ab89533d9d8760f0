#pragma once

#include <array>
#include <optional>
#include <vector>

#include "core/programma.h"

// The privacy letters to customers and suppliers. The text lies in privacy.txt, one line of the file for one
// line of the letter.

inline constexpr Vista File_Privacy = "privacy.txt";

// Name, second name, street, town.
using Destinatario = std::array<Testo, 4>;

// The lines of the letter, at least one. A file that is missing, empty or can't be read is told, and gives
// nothing.
std::optional<std::vector<Testo>> CaricaPrivacy(Programma& programma);

// The letter for one addressee on the chosen printer; `codice` is the addressee's, for the name of the
// document. The lines aren't wrapped; a letter longer than the sheet goes on on the next one.
void StampaPrivacy(Programma& programma, const std::vector<Testo>& lettera, const Destinatario& destinatario,
                   Vista codice);

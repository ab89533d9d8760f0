#pragma once

#include <optional>
#include <vector>

#include "core/disco.h"

// The firms of a user where the program is installed for the whole machine: one folder for each below one
// folder in the user's home. A firm's folder holds its own copy of the programs, so that it can be carried
// elsewhere and still runs.

inline constexpr Vista Programma_Ditta = "Velmara_2020";
inline constexpr Vista Programmi_Ditta[] = {Programma_Ditta, "Velmara_2020_Descri"};

// The folders below `radice` that hold the program or a letterhead, also one of the older generation, by
// name. Nothing where it can't be read; `errore` then says why.
std::optional<std::vector<Percorso>> Ditte_In(const Disco& disco, const Percorso& radice,
                                              int* errore = nullptr);

// A name for a new firm's folder: trimmed, without what a name of a file can't hold on any kind of machine;
// nothing when no name is left.
std::optional<Testo> Nome_Di_Ditta(Vista nome);

// Copies the programs of `da` into the firm's folder, made if missing, where they differ; a program that runs
// there goes on with its own file. 0, or the errno of what failed.
int Metti_Programmi(const Disco& disco, const Percorso& da, const Percorso& ditta);

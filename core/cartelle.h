#pragma once

#include <dirent.h>
#include <functional>
#include <optional>
#include <vector>

#include "core/disco.h"

// How the door to the disk (core/disco.h) reads folders.

// Where a path stands. `errore`: a folder on the way to it can't be read, so that nobody knows whether it
// stands there under another letter case.
struct Posto_Trovato {
  Percorso percorso;
  int errore = 0;
};

// The path under the letter case in which its folders and its last name are spelled on the disk; as it is
// where it isn't there.
Posto_Trovato Cerca(const Percorso& richiesto);

// '*' is any characters, none too; '?' is exactly one; the case of ASCII letters doesn't count.
bool Corrisponde(Vista nome, Vista modello);

enum class Specie_Voce { File, Cartella };

// The names in a folder, sorted ignoring case, of what is a regular file or a folder, or leads to one, and
// whose name is wanted. A folder that isn't there has none. Nothing where it can't be read to its end;
// `errore` then says why.
std::optional<std::vector<Percorso>> Nomi_In(const Percorso& cartella, Specie_Voce specie,
                                             const std::function<bool(Vista)>& voluto, int* errore);

#pragma once

#include <map>
#include <utility>
#include <vector>

#include "core/testo.h"

// The classic initialisation format: `[section]`, then `key=value` a line; lines that begin with ';' or '#'
// are comments. Names of sections and keys are compared ignoring case. Any bytes in: what is no section and
// no key is passed over. Values are Windows-1252 as they stand, without the blanks around them.

struct Ordine_Ini {
  using is_transparent = void;
  bool operator()(Vista a, Vista b) const { return Confronta(a, b) < 0; }
};
using Valori_Ini = std::map<Testo, Testo, Ordine_Ini>;

// The values of one section, which may stand in several pieces. Of a key that stands twice the first counts,
// as for the machine's classic reader.
Valori_Ini Leggi_Ini(Vista contenuto, Vista sezione);

// The content with these keys set in that section: the line of a known key is replaced, a new key comes
// behind the section's last line, a missing section behind the file's. Every other byte stays, comments and
// unknown keys included. Our lines are `key=value`, CR LF; a value that would break its line loses its TAB,
// CR, LF and NUL.
Testo Scrivi_Ini(Vista contenuto, Vista sezione, const std::vector<std::pair<Testo, Testo>>& chiavi);

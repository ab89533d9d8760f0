#pragma once

#include <string_view>
#include <vector>

#include "core/testo.h"

// The bytes (UTF-8) of the file data/<nome> as it was when the program was built; empty for an unknown name.
std::string_view Dato_Incorporato(std::string_view nome);

// The same as rows of fields in the program's code page. Lines that are empty or begin with "#" aren't rows.
std::vector<std::vector<Testo>> Righe_Incorporate(std::string_view nome);

#pragma once

#include <cstddef>

// Memory of megabytes that is about to be filled: asks the machine for it in large pieces, since fetching ten
// thousand small ones takes longer than reading a day. Only advice: where the machine doesn't follow it, or
// for less than a few megabytes, nothing changes.
void Chiedi_Pagine_Grandi(void* inizio, std::size_t byte);

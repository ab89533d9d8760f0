#pragma once

#include "start/inizio.h"
#include "transfers/xdisk.h"

// Command7: the data of the day chosen on the start screen go to a stick or come from it, into a folder of
// the year on both. `dalla_chiavetta`: the right button, from the stick. The copy is flushed to the disk,
// read again from there and compared before it takes the day's name, so that the stick can be pulled at once.
// Whatever fails is told and leaves the target as it was.
void CopiaGiorno(Programma& programma, const B_Inizio& inizio, bool dalla_chiavetta,
                 const Scelta_Drive& scelta_drive);

// A day file dropped on the start screen comes in as from a stick, with the same questions. The day is that
// of its name, and stands in the fields afterwards; a file of another name is refused. False where the
// operator cancelled: he isn't asked for those dropped with it.
bool CopiaFileGiorno(Programma& programma, B_Inizio& inizio, const Percorso& file);

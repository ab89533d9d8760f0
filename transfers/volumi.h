#pragma once

#include <optional>
#include <vector>

#include "core/programma.h"

// Mounted volumes: sticks and other drives that the operator carries away.

// The line of a volume in a list: "E:[CHIAVETTA]". The old floppy letters have a text of their own, since
// asking such a drive for its label makes it turn for seconds.
Testo Voce_Volume(const Volume& volume);

// The root of the volume on which a path lies; of two, one mounted inside the other, the inner one. Nothing:
// the machine's own disk.
std::optional<Percorso> Volume_Di(const std::vector<Volume>& volumi, const Percorso& percorso);
// Whether a path lies on the volume of that root, which needn't be mounted any more (then nothing does).
bool Sul_Volume(const std::vector<Volume>& volumi, const Percorso& percorso, const Percorso& radice);

// Writes or copies a whole file with a volume in play, whose root is `radice` (empty: none but the machine's
// own disk). It must be mounted before and after: a stick that was pulled out may leave an empty folder
// behind, on the machine's disk, which takes the file without a word. A copy makes the folder that it goes
// to, but never the place of a stick that is gone. 0, or the errno of what failed.
int Scrivi_Sul_Volume(const Programma& programma, const Percorso& radice, const Percorso& file,
                      Vista contenuto);
int Copia_Sul_Volume(const Programma& programma, const Percorso& radice, const Percorso& da,
                     const Percorso& a);

// "Errore 28 durante il salvataggio", the path, and in the operator's words what is wrong with the drive.
Testo Testo_Guasto(int errore, Vista che_cosa, const Percorso& file);

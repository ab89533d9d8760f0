#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "core/controlli.h"
#include "core/programma.h"

// The screen `xdisk`: on which drive a file shall go, or come from. Any room that needs a drive asks through
// Scelta_Drive, which the window of the screen that asks provides.

enum class ModoCopia {
  NOTA,      // the transmission file: the first entry is its folder, so that it can stay on the disk
  COPIA_IN,  // to the stick
  COPIA_DA,  // from the stick
  Altro
};

struct DriveScelto {
  Testo voce;                     // the line as it was shown
  Percorso radice;                // where the volume is mounted, or the folder offered as the first entry
  bool cartella_propria = false;  // that first entry
};

// What was asked, and the folder that a NOTA offers first. Nothing: the operator cancelled.
using Scelta_Drive =
    std::function<std::optional<DriveScelto>(ModoCopia modo, const Percorso& cartella_propria)>;

struct Xdisk {
  Testo titolo = "Scelta destinazione";
  Scritta Titolo;  // what is asked
  Elenco List1;
  Bottone Command1, Command2, MenuAggiorna;

  ModoCopia modo = ModoCopia::Altro;
  Percorso cartella_propria;
  std::vector<DriveScelto> voci;  // one for each line of List1
  std::optional<DriveScelto> scelto;
  bool chiusa = false;  // the window goes
};

void Apri_Xdisk(const Programma& programma, Xdisk& xdisk, ModoCopia modo,
                const Percorso& cartella_propria = {});
// Fills the list anew; the selected drive stays selected where it is still there.
void Aggiorna_Dischi(const Programma& programma, Xdisk& xdisk);
void Cambia_Drive(Xdisk& xdisk);    // a line was selected
void Conferma_Drive(Xdisk& xdisk);  // takes the selected line and closes; without one it stays open
void Annulla_Drive(Xdisk& xdisk);

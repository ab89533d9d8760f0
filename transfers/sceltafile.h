#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "core/controlli.h"
#include "core/programma.h"

// The screen `SceltaFile`: drive, folder and name of a file to write. A room that needs a file asks through
// Scelta_File, which the window of the screen that asks provides.

inline constexpr Vista Nome_File_Proposto = "zzzz.txt";

// Nothing: the operator cancelled.
using Scelta_File = std::function<std::optional<Percorso>()>;

struct SceltaFile {
  Testo titolo = "Scelta File";
  Elenco Drive1;     // the firm's own disk and the volumes
  Elenco Dir1;       // ".." and the folders of the folder in work
  Elenco File1;      // its files
  Scritta Cartella;  // its path
  Scritta Caption_Text1;
  CampoTesto Text1;  // the name
  Bottone Command1, Command2, MenuAggiorna;

  std::vector<Percorso> dischi;    // root of each line of Drive1
  std::vector<Percorso> cartelle;  // path of each line of Dir1
  Percorso cartella;               // in work
  std::optional<Percorso> FileScelto;
  bool chiusa = false;  // the window goes
};

void Apri_SceltaFile(const Programma& programma, SceltaFile& schermo, Vista nome = Nome_File_Proposto);
void Cambia_Disco(const Programma& programma, SceltaFile& schermo);         // a line of Drive1 was selected
void Entra_Cartella(const Programma& programma, SceltaFile& schermo);       // double click in Dir1
void Prendi_Nome(SceltaFile& schermo);                                      // a file was selected
void Aggiorna_SceltaFile(const Programma& programma, SceltaFile& schermo);  // disks and folder read anew
void Conferma_File(Programma& programma, SceltaFile& schermo);
void Annulla_File(SceltaFile& schermo);

// The name with ".xls" behind it unless it ends in ".txt" or ".xls" in any letter case; nothing for a blank
// one.
std::optional<Testo> Nome_Con_Estensione(Vista nome);

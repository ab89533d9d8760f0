#pragma once

#include <exception>
#include <memory>
#include <string>
#include <vector>

#include "core/disco.h"
#include "start/screens/applicazione.h"
#include "tests/runner/foto.h"
#include "tests/runner/piattaforma_copione.h"

namespace giornata {

// A step that found something else than it expected.
struct Fallito : std::exception {
  Fallito(std::string che_atteso, std::string che_trovato)
      : atteso(std::move(che_atteso)), trovato(std::move(che_trovato)) {}
  const char* what() const noexcept override { return atteso.c_str(); }
  std::string atteso, trovato;
  bool a_meta = false;  // something was done already, so that the step can't be tried again
};

// What a working day plays with: the machine, the firm's folder, the program when it runs.
struct Scena {
  Percorso accanto;  // the folder of the script
  Percorso
      radice;      // a fresh folder of this day's own: the firm's folder and those of the volumes stand in it
  Percorso ditta;  // the firm's folder
  bool ditta_scelta = false;
  std::vector<Percorso> guasti;  // what can't be written: files, or folders with all that is in them
  Album* album = nullptr;        // where the pictures go, when they are wanted
  Piattaforma_Copione macchina;
  std::unique_ptr<Applicazione> applicazione;
  bool uscita = false;        // the operator is on his way out of the program
  bool pagine_viste = false;  // checked since the last gesture: the next gesture begins new pages
  Percorso resto;             // where what is left at the end shall go: the firm's folder and all pages
  std::vector<Testo> pagine_girate;  // lines of the pages before the present ones
};

// Where a script's path stands on the disk: in the firm's folder, or in that of a volume, whose paths begin
// with its letter, with the name of its folder, or with "../" and that name. Fails outside of these.
Percorso Nel_Disco(const Scena& scena, const std::string& percorso);
Percorso Accanto(const Scena& scena, const std::string& percorso);

// Makes the firm's folder: a copy of `origine`, whose name it keeps, or an empty one.
void Prepara_Ditta(Scena& scena, const Percorso* origine);
// Puts the firm's folder and all that was drawn where they shall be kept.
void Tieni_Il_Resto(const Scena& scena);
void Aggiungi_Volume(Scena& scena, const std::string& lettera, const std::string& etichetta,
                     const std::string& cartella);
void Copia_Tutto(const Percorso& da, const Percorso& a);  // a file, or a folder with all that is in it
bool Guasto(const Scena& scena, const Percorso& percorso);
// The firm's folder as on a write-protected disk, for this process alone and until it ends. Needs the right
// to mount in a namespace of one's own; without it the step fails.
void Proteggi_Ditta(const Scena& scena);

std::string Citato(const std::string& testo);  // in quotes, with \n, \t, \" and \\ as the script writes them
std::string Leggi_Byte(const Percorso& file);  // fails when it can't be read

}  // namespace giornata

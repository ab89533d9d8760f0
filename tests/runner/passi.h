#pragma once

#include <span>
#include <vector>

#include "tests/runner/copione.h"
#include "tests/runner/scena.h"

// The steps of the script language, as one table: how each is written and what it does.
//
// A step is over before the next one begins, so that a key can't be pressed in the midst of a long work:
// `esc dopo 3` says beforehand that in the works that follow the operator presses Esc when three units of
// them (documents, accounts, pages ...) are done.
namespace giornata {

enum class Genere_Passo {
  Preparazione,  // sets the machine or the firm's folder
  Gesto,         // what the operator does
  Controllo      // what must come out
};

// Whether a step is done, or must be gone on with once the events that it caused have passed.
enum class Esito_Passo { Fatto, Continua };

using Argomenti = std::vector<Parola>;

struct Mossa {
  Forma forma;
  Genere_Passo genere;
  Esito_Passo (*azione)(Scena&, const Argomenti&);  // throws Fallito
  bool insiste = false;                             // stays in turn, and is tried again, until it is done
};

std::span<const Mossa> Mosse();
std::span<const Forma> Forme();  // the same order

// The steps about files and pages (passi_file.cpp).
void Elenco_Nomi(Scena& scena, const Argomenti& argomenti);
void File_Uguale(Scena& scena, const Argomenti& argomenti);
void File_Contiene(Scena& scena, const Argomenti& argomenti);
void File_Manca(Scena& scena, const Argomenti& argomenti);
void File_Righe(Scena& scena, const Argomenti& argomenti);
void Copia(Scena& scena, const Argomenti& argomenti);
void Cancella(Scena& scena, const Argomenti& argomenti);
void Pagine_Uguali(Scena& scena, const Argomenti& argomenti);
void Pagine_Contengono(Scena& scena, const Argomenti& argomenti);
void Pagine_Numero(Scena& scena, const Argomenti& argomenti);

}  // namespace giornata

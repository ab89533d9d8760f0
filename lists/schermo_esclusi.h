#pragma once

#include "core/controlli.h"
#include "core/programma.h"

// The screen `Esclusi`: codes of customers that are left out. What is changed here goes into Vet_Esclusi and
// its file with "Salva", or with a double click.
struct SchermoEsclusi {
  Testo titolo = "Esclusi";
  Elenco List1;
  std::vector<Testo> codici;  // the lines of List1
  CampoTesto Text1;           // the code being keyed
  Scritta Appunti;            // what is being pasted
  Scritta AiutoManuale, AiutoAutomatico, AiutoDoppioClic;
  Scritta Esito;
  Bottone Aggiungi, Elimina, Salva, Incolla, Incolla2, Chiudi;
};

void Prepara_Esclusi(Programma& programma, SchermoEsclusi& schermo);

void Aggiungi_Escluso(Programma& programma, SchermoEsclusi& schermo);  // the code of Text1
// "Escludi questo codice" of the entry screen: a code goes onto the open list. False when it is no number.
bool Escludi_Codice(Programma& programma, SchermoEsclusi& schermo, Vista codice);
void Elimina_Escluso(Programma& programma, SchermoEsclusi& schermo);
// Double click on a line: "_r_" is taken away or put in front, and the list is saved at once.
void Reintegra_Escluso(Programma& programma, SchermoEsclusi& schermo);
// False when the file couldn't be written: that is told, file and tables stay, the list keeps what it shows.
bool Salva_Elenco_Esclusi(Programma& programma, SchermoEsclusi& schermo);

// Where the pieces of a pasted text end, and what of a piece is the code.
enum class Incollatura {
  Pezzo_Intero,  // "INCOLLA": lines and TABs; the whole piece
  Prima_Parola   // "INCOLLA2": double blanks too; its first word
};
void Incolla_Esclusi(Programma& programma, SchermoEsclusi& schermo, Incollatura come);

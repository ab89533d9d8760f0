#pragma once

#include "entry/macro.h"

// The windows DescPre and DescPreFOR: the stored macros of species and of suppliers, one line each.

// Columns of what was read. A species macro has neither supplier nor lot; Codici are the first three
// characters of gear, size, state, working and presentation.
namespace colonna_macro {
enum Colonna { Codice, Fornitore, Specie, ZonaP, Prov, Codici, Alfa, Lotti };
}

struct Elenco_Macro {
  Tipo_Macro tipo = Tipo_Macro::Specie;
  bool dal_campo = false;  // a "-" in the field opened it
  bool eseguita = false;   // a macro ran
  bool chiusa = false;     // the window has done its work
  Testo titolo;
  CampoTesto Text1;  // code to run
  CampoTesto Text2;  // text to look for in the lines
  Elenco List1;      // line i is row i of the table
  TabellaLista<8> tabella;
  Scritta Esito;  // what came of the last code or search
  Bottone Chiudi, Copia, Elimina, Rinomina, Stampa, Aiuto;
  Scritta Stampante;  // where "Stampa" goes, and how the paper lies there
  Testo cercato;      // by the last search, and the line where it ended
  int riga_trovata = -1;
};

void Apri_ElencoMacro(Programma& programma, Elenco_Macro& elenco, Tipo_Macro tipo, bool dal_campo);
// The window closes: after a macro, and after a "-" in any case, the flow goes on behind the first landing.
void Chiudi_ElencoMacro(Edita& edita, const Elenco_Macro& elenco);
// Reads the folder anew.
void Leggi_ElencoMacro(Programma& programma, Elenco_Macro& elenco);

void EseguiCodice(Programma& programma, Edita& edita, Elenco_Macro& elenco);  // Enter in Text1
void EseguiScelta(Programma& programma, Edita& edita, Elenco_Macro& elenco);  // Enter, double click, "Copia"
// Enter in Text2: the first line from the selected one on that holds the text; again, the next one.
void CercaMacro(Elenco_Macro& elenco);
// A character in the list: the next line whose 4th character it is.
void SaltaMacro(Elenco_Macro& elenco, char carattere);
void EliminaMacro(Programma& programma, Elenco_Macro& elenco);
void RinominaMacro(Programma& programma, Elenco_Macro& elenco);
// The lines of the window on paper. An empty list prints nothing.
void StampaMacro(Programma& programma, Elenco_Macro& elenco);
void MostraStampante(Programma& programma, Elenco_Macro& elenco);
void AiutoMacro(Programma& programma, const Elenco_Macro& elenco);

#pragma once

#include "core/controlli.h"
#include "core/programma.h"

// The screen `ControlloCV`: the account files of a year or a month as they stand in the year's folder CV_NO,
// with the totals of taxable values and commissions. The agent sees here that all accounts of a period were
// issued, and what they brought. It writes nothing.

namespace controllo {
enum Colonna { Numero, Fornitore, Imponibile, Commissioni, File };
}
using RigaControllo = std::array<Testo, 5>;

struct ControlloCV {
  Testo titolo;
  Scritta Caption_Text1, Caption_Combo1, Caption_Text2, Caption_Text3;
  CampoTesto Text1;         // year
  Elenco Combo1;            // "Gennaio" to "Dicembre", "Tutto"
  CampoTesto Text2, Text3;  // totals of taxable values and of commissions; empty without accounts
  Scritta Titoli;           // over the columns of the list
  Elenco ListaControllo;
  Scritta Esito;                         // the files that don't count whole, and why a year isn't taken
  Scritta Stampante;                     // where the print goes
  Bottone Command3, Command4, Command5;  // read, merge by supplier, print
  Bottone OrdinaNumero, OrdinaFornitore, OrdinaProvvigione, MenuCancella, Scelta_Stampante;
  Bottone MenuChiudi, Chiudi;  // of the menu bar, and below the list

  std::vector<RigaControllo> Tabella_Controllo;
  double totale_imponibile = 0, totale_commissioni = 0;
  Testo periodo;       // of the accounts in the table: "Marzo / 2025"
  bool attiva = true;  // false while a command runs or a message stands
};

void Apri_Controllo(const Programma& programma, ControlloCV& schermo);
// What is enabled now and which printer is in use; every routine here ends with it.
void Aggiorna_Comandi_Controllo(const Programma& programma, ControlloCV& schermo);

// `Command3`. A year that is still to come is put back to this one and nothing is read. A file that is cut
// or no account at all has a line with what could be read of it; amounts that are no numbers don't count in
// the totals, and such files are named in Esito.
void Leggi_Controllo(Programma& programma, ControlloCV& schermo);
// `Command4`: one line for each supplier, the account's number blank.
void Consolida_Controllo(const Programma& programma, ControlloCV& schermo);
// By the texts of that column: a commission of ",50" stands before "10,00".
void Ordina_Controllo(const Programma& programma, ControlloCV& schermo, controllo::Colonna colonna);
void Cancella_Controllo(const Programma& programma, ControlloCV& schermo);  // empties list and totals
void Stampa_Controllo(Programma& programma, ControlloCV& schermo);          // `Command5`

Testo Riga_Controllo(const RigaControllo& riga, char separatore);  // its line in the list
Testo Titoli_Controllo();

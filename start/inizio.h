#pragma once

#include <array>
#include <vector>

#include "core/controlli.h"
#include "core/programma.h"

// The start screen B_Inizio.
struct B_Inizio {
  Testo titolo;
  CampoTesto Text1, Text3;                // day, year
  Elenco Combo1;                          // month
  CampoTesto Text2, Text4, Text5, Text6;  // last account, credit note, invoice, transport document
  Scritta Prompt, Label13, Stato, Ditta, RagioneSociale, Moduli, Nota;
  Bottone Command1, Command2, Command4, Command5, Command6, Command7, Command8, Command9, Command10,
      Command11, Command12, Command14, Command15, Command16;
  Elenco File1;    // working tool, not shown
  Elenco Recenti;  // the last days that have a file; the chosen line is the day in the fields
  std::vector<Data> giorni_recenti;  // its lines; one more tells that there may be others
  Colore sfondo;                     // grey while Modo_Dat is on
  bool attiva = true;
  // What the program knew when the number fields were filled: account, credit note, invoice, transport
  // document.
  std::array<std::int32_t, 4> numeri_mostrati{};
};

// The chosen day as it stands in names of files: two digits, two, and the year.
struct GiornoScelto {
  Testo giorno, mese, anno;
};
GiornoScelto Giorno_In_Cifre(const Programma& programma, const B_Inizio& inizio);

void Carica_Inizio(Programma& programma, B_Inizio& inizio);  // screen load
// Back from the entry screen: the numbers issued meanwhile go into the fields, so that the next opening
// doesn't take the old ones for numbers corrected by hand.
void Ritorna_Inizio(Programma& programma, B_Inizio& inizio);
void Cambia_Data(Programma& programma, B_Inizio& inizio);  // day, month or year changed: the weekday follows
// The list of the last days: read again; a line chosen by the operator goes into the fields; and F8 goes to
// it, with its first line where the day in the fields isn't in it. False: there is none.
void Aggiorna_Recenti(Programma& programma, B_Inizio& inizio);
void Scelto_Recente(Programma& programma, B_Inizio& inizio);
bool Vai_Ai_Recenti(Programma& programma, B_Inizio& inizio);
void Metti_Giorno(Programma& programma, B_Inizio& inizio, const Data& giorno);  // into the fields
void Giorno_Su(Programma& programma, B_Inizio& inizio);                         // Command11
void Giorno_Giu(Programma& programma, B_Inizio& inizio);                        // Command12
// Checks the last numbers against the latest day of the year `anno` (four digits): a number file that came
// back from an old copy must not issue numbers twice. Raises Ultimo_DDT and Ultima_Fattura; returns the last
// account number for Text2, "0" where the year has no day.
Testo Trova_Ultimi_Numeri(Programma& programma, Vista anno);
// A double click in File1: the sibling that shows a day file opens the selected one.
void MostraFile1(Programma& programma, const B_Inizio& inizio);
// Opens the chosen day: lists read, day loaded, Edita_Aperta set. False: refused and told, the screen stays.
bool Apri_Giorno(Programma& programma, B_Inizio& inizio);
bool TastoInizio(Programma& programma, B_Inizio& inizio, const Pressione& pressione);  // Shift+F1, Shift+F2
void GestioneListe(Programma& programma);  // Command10: the list generator, instead of this program
void Abbandona(Programma& programma);      // Command1

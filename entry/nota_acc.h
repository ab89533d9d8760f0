#pragma once

#include <array>

#include "entry/edita.h"

// The dialog `NotaAcc`: a "-" typed in the price asks what is credited, of which invoice. A row of negative
// price stands on a credit note; its reference is kept in DDT and DDT_CV, and FAT is "NA" until the note has
// its number.

struct NotaAcc {
  Testo titolo = "Nota di Accredito";
  std::array<CampoTesto, 3> Text1;  // amount, number and date of the invoice
  std::array<Scritta, 3> Caption;
  Scritta Label1;                // what "i" and "o" do in the date
  Bottone Command2, Annulla;     // confirm
  Bottone Command11, Command12;  // the date a day back, a day forward
  int fuoco = nessun_fuoco;      // the field that shall get the focus; the window clears it
  static constexpr int nessun_fuoco = -1, fuoco_conferma = 3;
  bool data_rifiutata = false;  // the date was just emptied: who is sent back to it finds it so
  bool chiusa = false;          // the window goes
};

// A character typed in field `indice`: true when it is the price's "-", which asks for the dialog instead of
// going into the field. `cursore` is where it would have gone.
bool ChiediNotaAcc(Edita& edita, int indice, char carattere, std::size_t cursore);

void Apri_NotaAcc(const Programma& programma, const Edita& edita, NotaAcc& nota);
// The character that a typed one becomes in field `indice`, 0 for none. "i" and "o" put a date instead.
char FiltraNotaAcc(const Programma& programma, NotaAcc& nota, int indice, Vista resta, char carattere);
void InvioNotaAcc(NotaAcc& nota, int indice);                              // Enter in a field
void FuocoNotaAcc(const Programma& programma, NotaAcc& nota, int indice);  // the field got the focus
void PassoNotaAcc(NotaAcc& nota, bool avanti);                             // Command11, Command12

// Takes the dialog into the row being keyed: the four fields at once, the price with its minus and the cursor
// behind it. False, and the dialog stays, when number or date were refused.
bool Conferma_NotaAcc(Programma& programma, Edita& edita, NotaAcc& nota);
// The "-" goes into the price as it was typed.
void Annulla_NotaAcc(Programma& programma, Edita& edita, NotaAcc& nota);

// "Rif.Fat. 1234 - 14/03/2025", with "R.Fat. " where that is too long for its column.
Testo RiferimentoFattura(Vista numero, Vista data);

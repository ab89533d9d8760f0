#pragma once

#include "entry/edita.h"

// Lots: the command that gives every row of the day its number, and the firm's list of predefined lots.

// Button "Lotti": after a question every row gets the lot prefix of its supplier and the day before the
// ledger's. At a supplier without a prefix it stops, and the rows done so far keep their new lots.
void AttribuisciLotti(Programma& programma, Edita& edita);

// The window Lotti_predefiniti. Its list lives as long as the entry screen, also while the window is closed.
struct Lotti_Predefiniti {
  Testo titolo = "Lotti predefiniti";
  Elenco List1;
  std::vector<Testo> lotti;
  CampoTesto Text1;
  Bottone Aggiungi, Carica, Salva, Svuota, Elimina, Chiudi;
  bool chiusa = false;  // a lot was chosen
};

// An empty list is read from its file, when there is one.
void Apri_LottiPredefiniti(Programma& programma, Lotti_Predefiniti& lista);
void AggiungiLotto(Lotti_Predefiniti& lista);
void CaricaLotti(Programma& programma, Lotti_Predefiniti& lista);
void SalvaLotti(Programma& programma, const Lotti_Predefiniti& lista);
void SvuotaLotti(Programma& programma, Lotti_Predefiniti& lista);
void EliminaLotto(Programma& programma, Lotti_Predefiniti& lista);
void ScegliLotto(Edita& edita, Lotti_Predefiniti& lista);  // the selected line into Lotti
// Double click on the field: today, yyyymmdd, behind the supplier's prefix where lots are automatic.
void LottoDiOggi(const Programma& programma, Lotti_Predefiniti& lista);

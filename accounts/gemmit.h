#pragma once

#include <array>

#include "accounts/gemmit_conto.h"
#include "accounts/zvendita.h"
#include "core/controlli.h"
#include "core/programma.h"

// The screen `Zgemmit`: the day's accounts whose numbers were given by hand, one for each number on the
// ledger's rows. It takes the place of the screen of the accounts where the firm numbers by hand, and numbers
// nothing by itself.

struct Zgemmit {
  Testo titolo;
  std::array<CampoTesto, 7> Text1;  // the account's six fields, the town: Campo_Conto
  std::array<Scritta, 7> Caption;
  Scritta Titolo_Lista;
  Elenco ListaCV;    // one line for each account
  Elenco Anteprima;  // over the screen while it is visible
  Elenco Combo1;     // copies
  Spunta Check1;     // "Stampa Tutti i CV F4"
  Spunta Check2;     // "Stampa Statistica"
  Scritta Avviso;    // what is wrong with the selected account's rows
  Scritta Stampante;
  Bottone Command1, Command2, Command3;  // preview, print, change
  Bottone Command4, Chiudi;              // supplier list, close
  Bottone Scelta_Stampante, Aiuto;
  Controllo Pannello;  // what the preview covers

  static constexpr int nessun_fuoco = -1, fuoco_Lista = -2;
  int fuoco = nessun_fuoco;  // field that shall take the keyboard; the window clears it

  Tabella_Conti Tabella_CV;
  std::vector<Testo> file_falliti;  // text files that couldn't be written in this print
  bool attiva = true;               // false while a command runs or asks
  bool chiusa = false;              // the window goes
};

// Sorts the ledger by number and makes the list; no row is changed.
void ApriContiManuali(Programma& programma, Zgemmit& zgemmit);
// What is enabled now and which printer is in use; every routine here ends with it.
void AggiornaComandi(const Programma& programma, Zgemmit& zgemmit);

void SceltaConto(const Programma& programma, Zgemmit& zgemmit, int riga);  // a line was clicked, from 0
void ContoSuccessivo(const Programma& programma, Zgemmit& zgemmit);        // F9, from the last to the first
void ContoPrecedente(const Programma& programma, Zgemmit& zgemmit);        // F8
bool TastoConti(Programma& programma, Zgemmit& zgemmit, const Pressione& pressione);
// Enter, Up and Down between the fields; false for other keys.
bool TastoCampoConto(Zgemmit& zgemmit, int campo, const Pressione& pressione);
void DoppioClicCampo(const Programma& programma, Zgemmit& zgemmit, int campo);
void ScegliFornitore(Zgemmit& zgemmit, const Testo& nome);  // from the supplier list

void MostraAnteprima(Programma& programma, Zgemmit& zgemmit);  // F6, the selected account
// F2. A supplier who isn't in the list is told and his account left out, without paper or file.
void StampaCV(Programma& programma, Zgemmit& zgemmit);
// Asks, and puts the fields on all rows of the account's number; a number typed here is the rows' new number.
// When the day can't be saved rows and list are what they were, and what was typed stays.
void ModificaDati(Programma& programma, Zgemmit& zgemmit);
void MostraAiutoConti(Programma& programma, Zgemmit& zgemmit);
void ChiudiConti(Programma& programma, Zgemmit& zgemmit);  // stores ticks and town

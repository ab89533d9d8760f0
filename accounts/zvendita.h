#pragma once

#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "accounts/conti.h"
#include "accounts/importi.h"
#include "accounts/pagine.h"
#include "core/controlli.h"

// The screen `Zvendita`: the day's consignment accounts, one for each supplier, their numbers, their printing
// and their text files. An account's values live in Tabella_CV; what a command saves goes into the account
// fields of the supplier's rows and the day is saved with it.

struct Zvendita {
  Testo titolo;                     // caption of the window
  std::array<CampoTesto, 8> Text1;  // the account's six fields, the town, the value of "Aggio Banca"
  std::array<Scritta, 8> Caption;
  Scritta Titolo_Lista;
  Elenco ListaCV;
  Elenco Anteprima;                       // in front of the screen while it is visible
  Elenco Combo1;                          // copies
  Spunta Check1, Check2, Check3;          // all accounts, statistics, control only
  Spunta Check4, Check5, Check6, Check7;  // without credit notes, kilos, VAT to zero, note
  Spunta Check8;                          // "Aggio Banca"
  Bottone Command1, Command2, Command3;   // confirm, print, change
  Bottone Command4, Command5, Chiudi;     // supplier list, more options, close
  Bottone Canc_Numerazione, Rinumera, Salva_Numerazione, Stato_IVA, Aiuto;
  Controllo Pannello;          // what the preview covers
  Controllo Schermo;           // takes the colour of "Azzera IVA"
  Controllo Riquadro_Opzioni;  // what the short size leaves out

  static constexpr int nessun_fuoco = -1, fuoco_Lista = -2;
  int fuoco = nessun_fuoco;  // field that shall take the keyboard; the window clears it

  Tabella_Conti Tabella_CV;
  std::vector<LedgerRow> Righe_CV;
  Testata_Fornitore testata;
  std::vector<double> IvaCV;        // rates of the lines last shown
  Testo titolo_normale;             // while the preview has its own
  std::vector<Testo> file_falliti;  // accounts whose text file couldn't be written in this print
  bool attiva = true;               // false while a command runs or asks
  bool chiusa = false;              // the window goes
};

// The account's fields among Text1.
enum Campo_Conto {
  Campo_NCV,
  Campo_Data,
  Campo_Fornitore,
  Campo_DDT,
  Campo_Spese,
  Campo_Prov,
  Campo_Citta,
  Campo_Aggio
};

// Before the screen opens: false, and told, when the printer stands in landscape. No printer is no hindrance.
bool StampantePerConti(Programma& programma);

// Derives the accounts and, with FlagNumCVAutomatica, numbers those without a number.
void ApriConti(Programma& programma, Zvendita& zvendita);

// What is enabled, visible and coloured now; every routine here ends with it.
void AggiornaComandi(Zvendita& zvendita);

void SceltaConto(Zvendita& zvendita, int riga);  // a line was clicked, from 0
void ContoSuccessivo(Zvendita& zvendita);        // F9, from the last to the first
void ContoPrecedente(Zvendita& zvendita);        // F8
bool TastoConti(Programma& programma, Zvendita& zvendita, const Pressione& pressione);
// Enter, Up and Down between the fields; false for other keys.
bool TastoCampoConto(Zvendita& zvendita, int campo, const Pressione& pressione);
// What a key puts into a field that holds `testo` besides its selected part: itself, the decimal separator
// for anything but digits in the fields of expenses and commission, or nothing.
std::optional<char> CarattereCampoConto(int campo, char carattere, Vista testo, char separatore);
void DoppioClicCampo(const Programma& programma, Zvendita& zvendita, int campo);
void ScegliFornitore(Zvendita& zvendita, const Testo& nome);  // from the supplier list

void CambiaAzzeraIva(Zvendita& zvendita);     // the tick was changed
void CambiaAggioBanca(Zvendita& zvendita);    // likewise
void CambiaAltreOpzioni(Zvendita& zvendita);  // between the tall size and the short one

void ConfermaDati(Programma& programma, Zvendita& zvendita);  // F6
void StampaCV(Programma& programma, Zvendita& zvendita);      // F2
void ModificaDati(Programma& programma, Zvendita& zvendita);
void SalvaNumerazione(Programma& programma, Zvendita& zvendita);
void Rinumera(Programma& programma, Zvendita& zvendita);
void CancellaNumerazione(Programma& programma, Zvendita& zvendita);
void MostraAiutoConti(Programma& programma, Zvendita& zvendita);
void ChiudiConti(Programma& programma, Zvendita& zvendita);

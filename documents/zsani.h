#pragma once

#include <array>
#include <functional>
#include <unordered_map>
#include <vector>

#include "core/controlli.h"
#include "core/programma.h"
#include "documents/documento.h"
#include "documents/numeri.h"
#include "documents/pagine.h"

// The screen `Zsani`: the day's transport and sanitary documents, one for each customer, their numbers and
// their printing. Numbers live in ListaDoc until they are saved into the rows.

// What the list stands for. A list of one customer or one row knows nothing of the day's other numbers: it
// doesn't number, check or sort.
enum class ModoDocumenti { Tutti, Cliente, Riga };

// Draws one document and tells its progress; false when the paper failed, which ends the run.
using StampaDoc = std::function<bool(const Documento_Cliente&, const Avanzamento&)>;

struct Zsani {
  Testo titolo;                     // caption of the window
  std::array<CampoTesto, 3> Text1;  // date of the day, customer, number
  std::array<Scritta, 3> Caption;   // their captions
  CampoTesto Text2;                 // first number
  Scritta Caption_Text2;
  Elenco MList2;                         // one line for each entry of ListaDoc
  Elenco Combo2;                         // copies
  Scritta TitoloStampante;               // where the print will go
  Spunta Check1, Check4, Check6;         // all documents, DDT, prices
  Bottone Command1, Command2;            // print, close
  Bottone Command3, Command4;            // number by hand, check
  Bottone Command5, Command7, Command8;  // by customer, by number up and down
  Bottone Command6;                      // save
  Bottone Num_Automatica, Aggiorna_Num, Annulla_Num;
  Bottone Intestazione_Dimensioni, Preferenze_Operative, Scelta_Stampante;  // the screens that they open

  ModoDocumenti modo = ModoDocumenti::Tutti;
  ListaDocumenti ListaDoc;
  std::vector<LedgerRow> TabellaDoc;  // the rows of the documents, sorted by customer
  std::unordered_map<Testo, std::vector<std::size_t>> righe_cliente;  // places in TabellaDoc by folded name
  int riga = 0;         // the row of a document of its own, from 1
  StampaDoc stampa;     // without it nothing can be printed
  bool attiva = true;   // false while a command runs or asks
  bool chiusa = false;  // the window goes
};

// The three ways to open it: all customers; the customer and number in the entry form; row n alone. The day's
// table stays whole in all of them. False when there is no such row.
void ApriDocumenti(Programma& programma, Zsani& zsani);
void ApriDocumentoCliente(Programma& programma, Zsani& zsani, Vista cliente, Vista numero);
bool ApriDocumentoRiga(Programma& programma, Zsani& zsani, int n);

// The messages of the entry screen's two quick buttons, row n of the list being selected (0 for none): false
// when there is no customer, or no row, to make a document for.
bool ClienteDaStampare(Programma& programma, int n, Vista cliente);
bool RigaDaStampare(Programma& programma, int n);

// The printer in use, after it was chosen anew.
void MostraStampante(Programma& programma, Zsani& zsani);
// What is enabled, visible and written on the buttons now; every routine here ends with it.
void AggiornaComandi(Zsani& zsani);

void SceltaVoce(Zsani& zsani, int riga);  // a line was clicked, from 0
void VoceSuccessiva(Zsani& zsani);        // F9, from the last to the first
void VocePrecedente(Zsani& zsani);        // F8
bool TastoDocumenti(Programma& programma, Zsani& zsani, const Pressione& pressione);

void ModificaNumero(Zsani& zsani);                                     // "Modifica"
void AggiornaNumeri(Zsani& zsani);                                     // menu "Aggiorna_Num"
void NumeraAutomatica(Programma& programma, Zsani& zsani);             // menu "Num_Automatica"
void AnnullaNumeri(Programma& programma, Zsani& zsani);                // menu "Annulla_Num"
void ControllaNumeri(Programma& programma, Zsani& zsani);              // "Controlla"
void OrdinaDocumenti(Programma& programma, Zsani& zsani, int ordine);  // 0 customer, 1 number up, 2 down

// Asks, writes the numbers into the rows and the day file and reads it back. When the file can't be written
// the rows are what they were, and so is the list, so that it can be tried again.
enum class EsitoNumeri { Annullato, Salvato, Fallito };
EsitoNumeri SalvaNumeri(Programma& programma, Zsani& zsani);

void StampaDocumenti(Programma& programma, Zsani& zsani);  // F2
// Saves with its question and closes; a failed save keeps the screen open.
void ChiudiDocumenti(Programma& programma, Zsani& zsani);

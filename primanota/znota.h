#pragma once

#include <array>
#include <vector>

#include "core/controlli.h"
#include "core/programma.h"
#include "primanota/righe.h"
#include "transfers/xdisk.h"

// The screen `Znota`: the day's ledger on paper, one note for each provenance and supplier or the whole day
// as one document, and its file for the market operator. It works on copies of the rows.

struct Znota {
  Testo titolo;                     // caption of the window
  std::array<CampoTesto, 2> Text1;  // Text1(1): what is printed
  Scritta Destinatario;             // to whom the paper goes
  Scritta Stampante;                // where the print goes
  Elenco ListaNote;                 // one line for each note
  Elenco Copie;
  Spunta Tutte_Le_Note, Unico_Documento, Scrivi_Totale, Ordina_Specie, Limita_Zona, Tante_NA;
  Bottone Stampa_Nota, Esporta_Nota, Chiudi;
  Bottone MenuEsclusi, Scelta_Stampante, Aiuto_Esportazione;
  Scritta Caption_ListaEsclusi;
  Elenco ListaEsclusi;  // shown when the menu asks for it

  std::vector<Nota> note;  // one for each line of ListaNote
  std::vector<Cliente_Lasciato> esclusi;
  std::vector<LedgerRow> Vet_Nota;  // the day without excluded customers, while it is printed
  Scelta_Drive scegli_drive;        // asks where the file shall go; without it it stays on the disk
  bool attiva = true;               // false while a command runs or asks
  bool chiusa = false;              // the window goes
};

// Tells every customer that is left out.
void ApriNote(Programma& programma, Znota& znota);
void AggiornaComandi(const Programma& programma, Znota& znota);  // every routine here ends with it

void SceltaNota(Znota& znota);                                 // a line was selected
void CambiaOrdine(const Programma& programma, Znota& znota);   // the tick of the order
void MostraEsclusi(const Programma& programma, Znota& znota);  // the menu: shows or hides their list
void MostraAiutoEsportazione(const Programma& programma, Znota& znota);
bool TastoNote(Programma& programma, Znota& znota, const Pressione& pressione);

void StampaNote(Programma& programma, Znota& znota);  // F2
// Prints one document of these rows, which are in the order of the paper. `chiave` is "TUTTO" for the whole
// day, and empty for the selected note. Without a row that is told, and nothing is printed.
void StampaNota(Programma& programma, Znota& znota, const std::vector<LedgerRow>& righe, Vista chiave);
void Esporta(Programma& programma, Znota& znota);          // F6
void EsportaSulDisco(Programma& programma, Znota& znota);  // the same, without asking where to
void ChiudiNote(Programma& programma, Znota& znota);       // keeps the ticks

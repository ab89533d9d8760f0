#pragma once

#include <array>
#include <functional>

#include "core/controlli.h"
#include "invoices/fatture.h"

// The screen `ZFatture`: the day's invoices and credit notes, their numbers and their printing. The numbers
// live in the two tables until they are written into the ledger: by a print, by an edit, at the closing.

// What the screen of a firm that ships its goods, `ZFattureBRENVAL`, has otherwise. All else is one screen.
struct Variante_Fatture {
  Vista nome;    // of the window
  Vista titolo;  // of the screen, and what stands in front of the day in it
  Vista titolo_del_giorno;
  Vista didascalia_Command6;
  Vista nome_Report;  // of the button "Report"
  // Fields of the transport and buttons that filter the list stand in place of the boxes of the layouts and
  // of the filters at the opening; documents are always drawn by the carrier's layout.
  bool spedizione;
};
inline constexpr Variante_Fatture Fatture_Senza_Vettore = {
    "ZFatture", "Fatturazione e Note di Accredito NA", "Stampa Fatture del ", "x Clienti", "Command7", false};
inline constexpr Variante_Fatture Fatture_Con_Vettore = {"ZFattureBRENVAL",
                                                         "Fatturazione e Note di Accredito NA Brenval",
                                                         "Stampa Fatture Brenval del ",
                                                         "Scegli...",
                                                         "Report",
                                                         true};

// The controls that only the carrier's screen has.
struct Campi_Spedizione {
  CampoTesto Text8, Text3, Text6;   // reason of the transport, aspect of the goods, by which means
  CampoTesto Text4, Text5;          // expenses and their VAT rate
  std::array<CampoTesto, 3> Text7;  // the carrier
  Scritta Caption_Text8, Caption_Text3, Caption_Text6, Caption_Text4, Caption_Text7;
  Bottone Command8, Command7;       // only restaurants, only codes that aren't numbers
  Bottone Mostra_Esclusi, Vettori;  // menu entries
};

struct ZFatture {
  const Variante_Fatture* variante = &Fatture_Senza_Vettore;
  Testo titolo;
  Scritta ListaTitolo, Caption_MList2, Caption_ListNA;
  Elenco MList2, ListNA;            // one line for each row of TabellaFatture and TabellaNote
  std::array<CampoTesto, 4> Text1;  // 1 customer, 2 reference, 3 number of the document in work
  std::array<Scritta, 4> Caption;   // their captions
  CampoTesto Text2;                 // place before the date
  Scritta Caption_Text2;
  Scritta Esclusi;                          // how many excluded customers were left out
  Spunta Tutte, Stampale, Paginax2;         // all documents, to the printer too, two a sheet
  Spunta Personalizzata, Check1, Completa;  // the graphic layouts
  Spunta Check2, Check3;                    // only the excluded, only restaurants
  Elenco Combo2;                            // copies
  Bottone Ordina_Codice, Ordina_Cliente, Ordina_Numero;
  Bottone ModificaFAT, ModificaNA;
  Bottone Command3, Command7, Command6;  // run, report, archive
  Bottone Chiudi;
  // menus
  Bottone NumeraFat, NumeraNA, Numera_Tutto, Annulla_Numerazione, Aggiungi_Data, Togli_Data;
  Bottone Mostra_Transazioni, Mostra_Fatture, Mostra_Report, Formato_Semplice, Formato_Lear;
  Bottone Personalizza_Fatture, Scelta_Stampante;  // the screens that they open
  Campi_Spedizione spedizione;

  TabellaDocumenti TabellaFatture, TabellaNote;
  TipoFattura ListaAttiva = TipoFattura::Fattura;  // of the list that was touched last
  bool attiva = true;                              // false while a command runs or asks
  bool chiusa = false;                             // the window goes
};

// Whether the day has rows to be invoiced; told when it hasn't.
bool CiSonoVendite(Programma& programma);
// The lists are built and filtered. `chiusa` is set when there was nothing to do (told).
void ApriFatture(Programma& programma, ZFatture& zfatture);
// Numbers and references go into the ledger, which is back in the order of entry; the last invoice number is
// stored. The day isn't saved: the operator is told to.
void ChiudiFatture(Programma& programma, ZFatture& zfatture);

// What is enabled and written on buttons and captions now; every routine here ends with it.
void AggiornaComandi(const Programma& programma, ZFatture& zfatture);

// Leaves these invoices out of the list.
void TogliFatture(const Programma& programma, ZFatture& zfatture,
                  const std::function<bool(const Voce_Fattura&)>& via);

void SceltaDocumento(Programma& programma, ZFatture& zfatture, TipoFattura tipo, int riga);  // from 0
void CambiaFiltro(Programma& programma, ZFatture& zfatture,
                  bool ristoranti);  // Check2 or Check3 was switched
void Ordina(Programma& programma, ZFatture& zfatture, ColonnaFatture colonna);  // the three buttons

void NumeraFat(Programma& programma, ZFatture& zfatture);
void NumeraNA(Programma& programma, ZFatture& zfatture);
void NumeraTutto(Programma& programma, ZFatture& zfatture);
void AnnullaNumerazione(Programma& programma, ZFatture& zfatture);
void ModificaFAT(Programma& programma, ZFatture& zfatture);
void ModificaNA(Programma& programma, ZFatture& zfatture);
void AggiungiData(Programma& programma, ZFatture& zfatture);  // of the day, behind the references
void TogliData(Programma& programma, ZFatture& zfatture);

void StampaFatNa(Programma& programma, ZFatture& zfatture);  // "Stampa Fat+Na"
// A double click: one document, or the day's folder where nothing is to be printed.
void DoppioClic(Programma& programma, ZFatture& zfatture, TipoFattura tipo, int riga);
void Report(Programma& programma, ZFatture& zfatture);
void Archivio(Programma& programma, ZFatture& zfatture);

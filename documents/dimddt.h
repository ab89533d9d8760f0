#pragma once

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <span>

#include "core/controlli.h"
#include "core/profili.h"
#include "core/programma.h"
#include "documents/pagine.h"
#include "printing/dispositivo.h"

inline constexpr int Larghezza_Massima_DDT = 210, Altezza_Massima_DDT = 293;  // an A4 sheet

// The screen `DimDDT`, the page of the transport and sanitary documents: sizes in millimetres, title,
// letterhead and foot lines. Its fields are named by the keys of their settings.
struct DimDDT {
  Testo titolo = "Dimensioni del documento Sanitario/DDT/tracciabilità"_t;
  std::map<Testo, CampoTesto, std::less<>> campi;
  std::map<Testo, Scritta, std::less<>> didascalie;
  Spunta FlagPiedePagina;
  std::map<Testo, Bottone, std::less<>> predefiniti;  // buttons that only fill fields, by their names below
  Bottone Conferma, Chiudi;
  bool chiusa = false;  // the window goes
};

// The keys of its fields in the order in which they stand.
std::span<const Vista> Chiavi_DimDDT();

// The buttons that fill fields, each with the values it gives.
struct Valore_Dim {
  Vista chiave;
  Testo valore;
};
struct Predefinito_Dim {
  Vista nome;
  Testo didascalia, suggerimento;
  std::vector<Valore_Dim> valori;  // those of the letterhead depend on the firm
};
std::span<const Predefinito_Dim> Predefiniti_DimDDT();

void Apri_DimDDT(Programma& programma, DimDDT& schermo);
void Tocca_DimDDT(DimDDT& schermo);  // a field was changed: the hint of the heading's shift follows
// A button of Predefiniti_DimDDT; nothing is stored.
void Riempi_DimDDT(const Programma& programma, DimDDT& schermo, Vista nome);
// Checks and stores all, and closes. False when a size was refused or the settings couldn't be written
// (told): then nothing is stored, and what was keyed stays but for the logo's space, which gets the least
// that is good.
bool Conferma_DimDDT(Programma& programma, DimDDT& schermo);
void Chiudi_DimDDT(DimDDT& schermo);

// The picture of the form that the window shows: a page with one item as it would come out with what is
// keyed. Nothing while the sheet has no size, or one beyond the limits.
struct Schizzo_DDT {
  Foglio_Documento foglio;
  Pagina_Documento pagina;
  std::optional<Ovale> bollo;
};
std::optional<Schizzo_DDT> Schizzo(const Programma& programma, const DimDDT& schermo);

// The six letterhead lines that some firms have of their own, with the stall's number; nothing for the
// others.
std::optional<std::array<Testo, 6>> IntestazioneProfilo(const Programma& programma, Profilo profilo);
// The letterhead that the button proposes: the firm's own, or lines 1, 3 and 5 of its letterhead file.
std::array<Testo, 6> IntestazionePredefinita(const Programma& programma);

#pragma once

#include <functional>
#include <map>
#include <vector>

#include "core/controlli.h"
#include "core/preferenze.h"

// The preferences screen: one control for each setting of the table that has a group, named by the setting's
// key. Flags are checks, settings with lines to choose from are lists, all others fields.
struct SchermoPreferenze {
  Testo titolo = "Preferenze";
  std::map<Testo, CampoTesto, std::less<>> campi;
  std::map<Testo, Spunta, std::less<>> spunte;
  std::map<Testo, Elenco, std::less<>> elenchi;
  Bottone Applica, Chiudi, Predefiniti, Default, DimensioniDDT, Personalizza;
  Scritta Esito;  // that the last command has stored, until a control changes
  // The entry screen's width follows FlagBarra; called while it is open.
  std::function<void()> larghezza_edita;
  // What the buttons DimensioniDDT and Personalizza open, screens of other rooms; a button without it is
  // disabled.
  std::function<void()> dimensioni_ddt, personalizza;
};

// Fills the screen from programma.preferenze. `fonti` are the font families of the printer.
void Apri_Preferenze(Programma& programma, SchermoPreferenze& schermo, const std::vector<Testo>& fonti);

// "&Applica": takes every control into programma.preferenze and writes all keys. When the file can't be
// written that is told, the values in use stay as they were, the screen keeps what was keyed, and the result
// is false.
bool Applica_Preferenze(Programma& programma, SchermoPreferenze& schermo);

// Runs such a screen. What it stored shows in the controls here, so that "&Applica" doesn't bring back old
// values; what was keyed into the others stays.
void Apri_Altro_Schermo(Programma& programma, SchermoPreferenze& schermo, const std::function<void()>& apri);

void Tocca_Preferenze(SchermoPreferenze& schermo);    // a control was changed
void Riempi_Predefiniti(SchermoPreferenze& schermo);  // "Prede&finiti": only fills the controls
void Fonte_Predefinita(SchermoPreferenze& schermo);   // "Default"

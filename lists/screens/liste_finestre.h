#pragma once

#include <array>

#include "lists/screens/anagrafica_finestra.h"

// The windows of the species, the coded lists, the zones and the provenances, each with its editor. `copia`
// gets what the operator takes over (may be empty: nothing to copy to); `chiusa` is called when the window
// closes.

// `Descrizioni`. `copia` gets the whole row of the species.
AnagraficaFinestra* Apri_Specie(Programma& programma, QWidget* padre,
                                std::function<void(const std::array<Testo, 8>&)> copia,
                                const std::function<void()>& chiusa = {});
// `MetodoPesca`, for the list of that kind (Tipo_Lista, 1 to 7).
AnagraficaFinestra* Apri_Lista_Codificata(Programma& programma, int tipo, QWidget* padre,
                                          std::function<void(const Testo&)> copia,
                                          const std::function<void()>& chiusa = {});
// `Zone`. `copia` gets the label.
AnagraficaFinestra* Apri_Zone(Programma& programma, QWidget* padre, std::function<void(const Testo&)> copia,
                              const std::function<void()>& chiusa = {});
// `Provenienze`.
AnagraficaFinestra* Apri_Provenienze(Programma& programma, QWidget* padre,
                                     std::function<void(const Testo&)> copia,
                                     const std::function<void()>& chiusa = {});

#pragma once

#include <array>

#include "lists/screens/anagrafica_finestra.h"

// The windows of the firm's lists, each with its editor. `copia` gets what the operator takes over (may be
// empty: nothing to copy to); `chiusa` is called when the window closes.

// `Clienti`.
AnagraficaFinestra* Apri_Clienti(Programma& programma, QWidget* padre,
                                 std::function<void(const Testo& nome, const Testo& codice)> copia,
                                 const std::function<void()>& chiusa = {});
// `Fornitori`. The lot code comes only where lots are automatic.
AnagraficaFinestra* Apri_Fornitori(
    Programma& programma, QWidget* padre,
    std::function<void(const Testo& nome, const Testo& provvigione, const Testo& lotto)> copia,
    const std::function<void()>& chiusa = {});
// `AnagraficaVettori`. `mezzo` is the means, "Vettore"; three lines are the carrier's.
AnagraficaFinestra* Apri_Vettori(
    Programma& programma, QWidget* padre,
    std::function<void(const Testo& mezzo, const std::array<Testo, 3>& vettore)> copia,
    const std::function<void()>& chiusa = {});
// `Descrizioni`. The whole row of the species.
AnagraficaFinestra* Apri_Specie(Programma& programma, QWidget* padre,
                                std::function<void(const std::array<Testo, 8>&)> copia,
                                const std::function<void()>& chiusa = {});
// `MetodoPesca`, for the list of that kind (Tipo_Lista, 1 to 7).
AnagraficaFinestra* Apri_Lista_Codificata(Programma& programma, int tipo, QWidget* padre,
                                          std::function<void(const Testo&)> copia,
                                          const std::function<void()>& chiusa = {});
// `Zone`. The label.
AnagraficaFinestra* Apri_Zone(Programma& programma, QWidget* padre, std::function<void(const Testo&)> copia,
                              const std::function<void()>& chiusa = {});
// `Provenienze`.
AnagraficaFinestra* Apri_Provenienze(Programma& programma, QWidget* padre,
                                     std::function<void(const Testo&)> copia,
                                     const std::function<void()>& chiusa = {});

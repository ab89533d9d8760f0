#pragma once

#include <array>

#include "lists/screens/anagrafica_finestra.h"

// The carriers, `AnagraficaVettori` with its editor `ModVETTORI`. `copia` gets the means ("Vettore") and the
// three lines of the carrier that the operator takes over (may be empty: nothing to copy to); `chiusa` is
// called when the window closes.
AnagraficaFinestra* Apri_Vettori(
    Programma& programma, QWidget* padre,
    std::function<void(const Testo& mezzo, const std::array<Testo, 3>& vettore)> copia,
    const std::function<void()>& chiusa = {});

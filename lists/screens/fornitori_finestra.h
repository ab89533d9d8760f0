#pragma once

#include "lists/screens/anagrafica_finestra.h"

// The suppliers, `Fornitori` with its editor `ModFOR`. `copia` gets the supplier that the operator takes over
// (may be empty: nothing to copy to), the lot code only where lots are automatic; `chiusa` is called when the
// window closes.
AnagraficaFinestra* Apri_Fornitori(
    Programma& programma, QWidget* padre,
    std::function<void(const Testo& nome, const Testo& provvigione, const Testo& lotto)> copia,
    const std::function<void()>& chiusa = {});

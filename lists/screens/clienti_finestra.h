#pragma once

#include "lists/screens/anagrafica_finestra.h"

// The customers, `Clienti` with its editor `ModCLI`. `copia` gets the customer that the operator takes over
// (may be empty: nothing to copy to); `chiusa` is called when the window closes.
AnagraficaFinestra* Apri_Clienti(Programma& programma, QWidget* padre,
                                 std::function<void(const Testo& nome, const Testo& codice)> copia,
                                 const std::function<void()>& chiusa = {});

#pragma once

class EditaFinestra;
struct Edita;
struct Programma;

// Gives the entry screen's window what opens the screens of the other rooms, which it doesn't know. All must
// outlive the window.
void Prepara_Schermi(Programma& programma, const Edita& edita, EditaFinestra& finestra);

#pragma once

#include "accounts/zvendita.h"
#include "core/impegno.h"

// What the routines of the screen share among themselves.

// A command runs or asks.
inline auto Ferma(Zvendita& zvendita) {
  return Schermo_Fermo(zvendita, [&zvendita] { AggiornaComandi(zvendita); });
}

// The caption with the day and the last number.
void TitoloConti(const Programma& programma, Zvendita& zvendita);
// The list from Tabella_CV with that line selected, the last one where there are fewer.
void RiempiListaCV(const Programma& programma, Zvendita& zvendita, int scelta);
// The town of the field becomes that of the settings, unless it is blank.
void PrendiCitta(Programma& programma, const Zvendita& zvendita);

// The six fields, trimmed.
Conto_CV CampiConto(const Zvendita& zvendita);
Conto_CV& ContoScelto(Zvendita& zvendita);
// Whether the fields differ from the selected account.
bool CampiCambiati(const Zvendita& zvendita);

enum class Esito_Modifica { Uguale, Annullata, Fatta, Fallita };
Esito_Modifica EseguiModifica(Programma& programma, Zvendita& zvendita);
// False when the day couldn't be saved (told); a refusal is no failure.
bool EseguiSalvaNumerazione(Programma& programma, Zvendita& zvendita);
// The number on the last line of the list becomes the last one of all. False when it couldn't be written.
bool Aggiorna_Ultimo_CV(Programma& programma, const Zvendita& zvendita);

#pragma once

#include "invoices/stampa_fatture.h"
#include "invoices/zfatture.h"

// What only the carrier's screen, `ZFattureBRENVAL`, does. The routines of all invoicing screens call the
// first three; without a carrier they do nothing.

void PreparaSpedizione(const Preferenze& preferenze, ZFatture& zfatture);
void AttivaSpedizione(ZFatture& zfatture);  // the controls follow `attiva`
// The fields and the place before the date go into the settings and their file; false when that can't be
// written.
bool SalvaSpedizione(Programma& programma, const ZFatture& zfatture);

// What the fields say of transport and expenses; nothing without a carrier. The expenses are read by their
// leading number: "22%" is 22.
std::optional<Spedizione> SpedizioneScelta(const Programma& programma, const ZFatture& zfatture);

// A double click on a field of the transport puts its usual word there.
void PredefinitoSpedizione(ZFatture& zfatture, CampoTesto Campi_Spedizione::*campo);
// Whether a key typed into the fields of the expenses goes in.
bool AmmessoNelleSpese(char c);
// A carrier taken over from the list.
void PrendiVettore(ZFatture& zfatture, const Testo& mezzo, const std::array<Testo, 3>& vettore);

// The buttons that filter: the others leave the list until the screen opens again.
void SelezionaRistoranti(Programma& programma, ZFatture& zfatture);
void SelezionaAlfanumerici(Programma& programma, ZFatture& zfatture);
void MostraEsclusi(Programma& programma, ZFatture& zfatture);  // how many excluded ones were left out

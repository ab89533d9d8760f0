#pragma once

#include <optional>
#include <span>
#include <vector>

#include "core/programma.h"

// The sibling programs that stand in the data folder, each for one job.

// Where the sibling stands: under its exact name, or under that name without ".exe"; nothing when it is
// missing.
std::optional<Percorso> Trova_Programma(const Programma& programma, Vista nome);

// Starts the sibling, and this program goes on. A missing one, or one that doesn't start, is told and gives
// false.
bool Avvia_Strumento(Programma& programma, Vista nome, const std::vector<Testo>& argomenti = {});

// Starts the sibling and ends this program, since the siblings work on its files. False: it didn't start,
// which is told, and this program goes on.
bool LanciaProgramma(Programma& programma, Vista nome, const std::vector<Testo>& argomenti = {});

// A button of the start screen whose sibling says first what it does, and ends this program.
struct Strumento {
  Vista bottone, programma;
  Testo avviso;           // empty: nothing is said
  bool conferma = false;  // the text is a question, and Annulla ends the command
};
std::span<const Strumento> Strumenti();
void UsaStrumento(Programma& programma, Vista bottone);
// Command9: the command on the first line of ProgDati.txt, which is made where it is missing.
void ConvertiDati(Programma& programma);
// A double click in File1: the sibling that shows a day file; this program goes on.
void ApriFoglioDati(Programma& programma, const Percorso& file);

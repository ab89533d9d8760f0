#pragma once

#include <span>

#include "core/programma.h"

// The built-in contents of the lists, which are written where a list file is missing.

// A list of one entry a line.
struct Lista_Codificata {
  Vista nome;  // file name
  std::vector<Testo> (*seme)();
  std::vector<Testo> Programma::*tabella;
};

// Provenances and the seven coded lists, in the order in which the day opening reads them.
std::span<const Lista_Codificata> Liste_Codificate();

TabellaLista<2> Seme_Zone();    // 83 rows, in the order of their sort codes
TabellaLista<8> Seme_Specie();  // the reference list; descriptions are different from each other

// The sample customer of a firm without a customer file, and the sample carrier.
TabellaLista<9> Seme_Clienti();
TabellaLista<3> Seme_Vettori();
// What is listed, and not written, while the supplier file is missing.
TabellaLista<9> Seme_Fornitori();
// The one line of the default supplier file and of the default carrier file, with line end.
Testo Riga_Fornitore_Predefinita();
Testo Riga_Vettore_Predefinita();

#pragma once

#include "core/programma.h"

// The reference lists: small TAB-separated files beside the program, read whole into the tables of Programma
// at day opening and rewritten whole when an editor changes them. A row whose first column is empty is a
// deleted row: the writers leave it out.

// Columns, from 0, in the order of the files.
namespace cliente {
enum Colonna { Codice, RagioneSociale1, Soprannome, Via, Citta, PIva, Escluso, Ristorante, Iban };
}
namespace fornitore {
enum Colonna { Codice, RagioneSociale1, RagioneSociale2, Via, Citta, PIva, Provvigione, CodiceLotto, Iban };
}
namespace specie {
enum Colonna { Iva, Descrizione, NomeLatino, Famiglia, CodiceMercato, NomeFattura, CodiceNumerico, Alfa };
}
namespace zona {
enum Colonna { Etichetta, Codice };
}

namespace nomi_file {
inline constexpr Vista Clienti = "_Client32.txt", Clienti_16 = "Clienti.txt",
                       Clienti_Banca = "_CLIENTI_Anag_banca.txt", Fornitori = "_2020_Fornitori.txt",
                       Specie = "_2020_Descri32.txt", Pelmoro = "_2020_Descri32_Pelmoro.txt",
                       Vettori = "_2020_Vettori.txt", Zone = "_2020_Zona.txt",
                       Provenienze = "_2020_Proveni.txt", Metodi = "_2020_MetodoPesca.txt",
                       Pezzature = "_2020_Pezzatura.txt", Stati = "_2020_StatoFisico.txt",
                       Lavorazioni = "_2020_Lavorazione.txt", Presentazioni = "_2020_Presentazione.txt",
                       Barche = "_2020_Barca.txt", Allergeni = "_2020_Allergeni.txt",
                       Esclusi = "_Esclusi.txt";
}

// Labels of catch zones begin with a capital A; "acquacoltura" in small letters is no catch.
inline bool Zona_Di_Cattura(Vista etichetta) { return etichetta.starts_with('A'); }

void Leggi_Clienti(Programma& programma);
void Leggi_Fornitori(Programma& programma);
void Leggi_Specie(Programma& programma);
void Leggi_Pelmoro(Programma& programma);
void Leggi_Zone(Programma& programma);
void Leggi_Vettori(Programma& programma);
void Leggi_Provenienze(Programma& programma);
void Leggi_Metodi(Programma& programma);
void Leggi_Pezzature(Programma& programma);
void Leggi_Stati(Programma& programma);
void Leggi_Lavorazioni(Programma& programma);
void Leggi_Presentazioni(Programma& programma);
void Leggi_Barche(Programma& programma);
void Leggi_Allergeni(Programma& programma);
void Leggi_Esclusi(Programma& programma);

// All lists of a day opening in their fixed order, the screen repainted between them.
void Leggi_Liste(Programma& programma);

// Rewrite a file from its table; false when it couldn't be written (the file and the table stay).
bool Salva_Clienti(Programma& programma);
bool Salva_Fornitori(Programma& programma);
bool Salva_Specie(Programma& programma);
bool Salva_Zone(Programma& programma);
bool Salva_Vettori(Programma& programma);
bool Salva_Esclusi(Programma& programma);

// The default files that start-up writes where they are missing.
bool Scrivi_Fornitori_Predefiniti(Programma& programma);
bool Scrivi_Vettori_Predefiniti(Programma& programma);

// Column 7 of the supplier with that name (trimmed, ignoring case), with the machine's separator; nothing
// when there is no such supplier.
std::optional<Testo> Provvigione_Fornitore(const Programma& programma, Vista nome);
// Column 8 of that supplier, the lot prefix; empty when there is none.
Testo Codice_Lotto(const Programma& programma, Vista nome);
// 999 when the code is excluded. Only a list of at most two entries excludes anybody.
int Codice_Escluso(const Programma& programma, Vista codice);

// Row of the first customer with that name or code (trimmed, ignoring case); -1 for none.
int Cerca_Cliente_Per_Nome(const Programma& programma, Vista nome);
int Cerca_Cliente_Per_Codice(const Programma& programma, Vista codice);

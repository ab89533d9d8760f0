#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <vector>

#include "core/date.h"
#include "core/disco.h"
#include "core/piattaforma.h"
#include "core/preferenze.h"
#include "core/riga.h"
#include "core/testo.h"

// A list table: rows of N columns, as the list files have them.
template <std::size_t N>
using TabellaLista = std::vector<std::array<Testo, N>>;

// The program's data: one object that app/ makes and every routine gets by reference. Plain records and
// tables, named as the domain names them; routines stand with their subjects.
struct Programma {
  explicit Programma(Piattaforma& macchina) : piattaforma(macchina) {}

  Piattaforma& piattaforma;
  Disco disco;
  Preferenze preferenze;

  // the program and its folder, which is also the root of all data
  Testo Nome_Programma = "Velmara_2020";  // without an extension
  Percorso Cartella_Dati;
  Percorso File_Ini;
  char Separatore_Decimale = ',', Separatore_Altro = '.';
  Data Oggi;                // when the program started
  int Errore_Cartella = 0;  // why nothing can be written in the firm's folder: told when the program starts
  Testo Ieri_AAMMGG;        // the day before Oggi; the date of automatic lots
  std::array<Testo, 7> Ragione;  // letterhead lines Ragione1 to Ragione7

  // the open day
  Testo Anno_Lavoro, Data_AAAAMMGG, Data_GGMMAAAA,
      Data_Giorno;  // "2025", "20250314", "14032025", "14/03/2025"
  Percorso Cartella_Anno, File_Giorno;
  Tabella Vet_Tabella;
  bool Tabella_Modificata = false;
  int Righe_Non_Salvate = 0;
  bool Modo_Dat = false;
  bool Edita_Aperta = false;
  int Colonna_Ordine = 1;

  // last numbers issued, _2020_ncv.txt
  std::int32_t Ultimo_CV = 0, Ultimo_DDT = 0, Ultima_NA = 0, Ultima_Fattura = 0;
  bool Numeri_Da_Salvare = false;  // the last writing failed
  bool Numeri_Ignoti = false;      // the file is there and couldn't be read: it must not be replaced by zeros

  // Files that are there and couldn't be read, with the errno: what the program holds in their stead must not
  // replace them, not even when the disk has come back meanwhile.
  bool Impostazioni_Ignote = false;
  std::map<Testo, int> Liste_Ignote;

  // reference lists; columns in the order of their files
  TabellaLista<9> Vet_Clienti, Vet_Fornitori;
  TabellaLista<8> Vet_Specie, Vet_Pelmoro;
  TabellaLista<3> Vet_Vettori;
  TabellaLista<2> Vet_Zone;
  std::vector<Testo> Vet_Provenienze, Vet_Metodi, Vet_Pezzature, Vet_Stati, Vet_Lavorazioni,
      Vet_Presentazioni, Vet_Barche, Vet_Allergeni;
  std::vector<Testo> Vet_Esclusi = {"Esclusi"};  // codes; "_r_" in front of one that is reinstated for now
  std::vector<Testo> Vet_Esclusi_Puliti = {"Esclusi"};  // the same without "_r_"
  Testo PrefissoLotto;                                  // lot prefix of the supplier in work
};

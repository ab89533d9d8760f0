#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <span>
#include <variant>
#include <vector>

#include "core/testo.h"

struct Programma;

// All settings of Velmara_2020.ini, section [VELMARA], as program-wide values. A member has the name of its
// key but where the program knows the value by another name (said beside it). Flags stand in the file as -1
// and 0. Defaults, limits and captions stand in the table of preferenze.cpp, from which reading, writing, the
// preferences screen and docs/impostazioni.md come.
struct Preferenze {
  // texts
  Testo Testo_ContoVendita;
  Testo Testo_Fattura[6], Testo_Fattura_Completa[6], Testo_Fattura_Gra[6],
      Testo_Fattura_Gra2[6];  // keys _1.._6
  Testo DS_intesta[6];        // keys 1..6
  Testo PiedePaginaBolla1, PiedePaginaBolla2, TitoloBolla, StringaCEE;
  Testo Codice_Commissionario;  // key CodiceCOM
  Testo IBANCommissionario1, IBANCommissionario2, AggioBanca, PercentualeAggioBanca;
  Testo Numero_Posteggio;  // key nposteggio
  Testo StringaB, StringaC, FlagColonneListaVoci;
  char sep_exp = ';';
  double DimFontListe = 12, DimFontEdita = 10, DimFont = 11;
  Testo DimFontEtichetta;
  double Aliquota1 = 10, Aliquota2 = 22, Aliquota3 = 4;  // keys PrimaAliquota, SecondaAliquota, TerzaAliquota
  Testo fonte;
  Testo CittaCV;  // a non-blank key CittaVC overrides; screens that change the town write CittaVC
  Testo Causale, Aspetto, Mezzo, Spese, SpeseIVA, Vettore[3];  // carrier invoices; keys Vettore_1..3

  // whole numbers
  int ColoreTesto = 2, Colore1 = 125, Colore2 = 125, Colore3 = 125, flagSortOrder = 0;
  int FlagFirmaPN = 1, FlagStampaFrame = 0, FlagStampaFramePN = 0;
  int DocSani_dadestra = 0, DocSani_AltezzaPagina = 172, DocSani_LarghezzaPagina = 154,
      DocSani_Offset_Logo = 45;
  int DocSani_Aggiustamento = 15, DocSani_AltezzaDest = 0, ellisse_centrox = 165, ellisse_centroy = 8;
  int Flag5 = 0, Flag6 = 0, Flag7 = 1;  // 0 or 1: the boxes Check5 to Check7 of the entry screen
  int maxrighesalvate = 5, DASU3 = 0, BORDO3 = 0;

  // flags
  bool FlagStringaEE = true, FlagPiedePagina = true, Flag_Lear = true, FlagComponiDDTNuovo = true;
  bool FlagAllergeni = false, FlagDSimmediato = false, FlagDSimmediatoUR = false, FlagNonBloccaMacro = true;
  bool FlagRistoranti = false, FlagSarvena = false, FlagC3pn = true, FlagLottiAutomatici = false;
  bool FlagCopiaNPinCommento = false, FlagFatBrenval = false, FlagSaldoDaA = false,
       Flag_fatture_Esteso = false;
  bool FlagAutoSalvataggio = true, FlagBarra = true, FlagModificaCV = false, FlagCaselleCV = false;
  bool FlagCVManuale = false, FlagAggDDT = false, FlagEllisse = true, FlagDetto = false,
       FlagDataMacro = false;
  bool v_pesce1 = true, v_pesce2 = false, v_pesce3 = false, v_pesce4 = false;
  bool FlagTastierino = false, FlagAzzSoloPeso = false, FlagAzzCliente = false, FlagMouse = false;
  bool FlagAzzeraPrezzo = false, FlagFAO = false, FlagSpessoreEllisse = true, FlagNumCVAutomatica = true;
  // marks of the document, ledger print, account and invoice screens, all off by default
  bool FlagC1 = false, FlagC2 = false, FlagC3 = false, FlagKT = false, FlagIVA = false, FlagNOTA = false;
  bool FlagC1ds = false, FlagC2ds = false, FlagC4ds = false, FlagC1pn = false, FlagC2pn = false;
  bool FlagC4pn = false, FlagOrdina1 = false, FlagZ5 = false, FlagPersonalizzata = false;
  bool FlagPersonalizzataCompleta = false, FlagEE = false, FlagSoloRis = false;
};

inline constexpr Vista Sezione_Ini = "VELMARA";

// Where the value of a key stands: a member, or one of a series of members.
template <std::size_t N>
struct Elemento {
  Testo (Preferenze::*serie)[N];
  std::size_t indice;
};
using Posto = std::variant<Testo Preferenze::*, Elemento<6>, Elemento<3>, char Preferenze::*,
                           double Preferenze::*, int Preferenze::*, bool Preferenze::*>;

// What a text key that reads as blank comes to.
enum class SeVuoto {
  Resta,        // stays blank: the operator emptied it
  Predefinito,  // the default
  Riscritto,    // the default, stored in the file at once so that it can be edited there
  Ignora        // the value read before it stays
};

// A number outside becomes `fuori`, or the nearest limit where there is none.
struct Limiti {
  double minimo = 0, massimo = 0;
  std::optional<double> fuori;
};

// The group of the preferences screen in which a setting stands.
enum class Gruppo { Nessuno, Ditta, Documenti, Inserimento, Conto_Vendita, Prima_Nota, Fatture, Stampa };

struct Impostazione {
  Testo chiave;
  Posto posto;
  Testo predefinito = {};  // as it stands in the file
  Testo didascalia = {};   // on the screen that edits it; empty where it has none of its own
  Gruppo gruppo = Gruppo::Nessuno;
  SeVuoto vuoto = SeVuoto::Resta;
  std::optional<Limiti> limiti = {};
  std::vector<Testo> scelte = {};  // lines of its list; a whole number is the position of its line, from 0
  bool fra_tutte = true;           // written when all keys are written
  std::size_t lunghezza = 128;     // longer values are cut when read
  Testo suggerimento = {};
};

// The whole table of keys, in the order in which they are read and written.
std::span<const Impostazione> Impostazioni();
const Impostazione* Trova_Impostazione(Vista chiave);  // ignoring case; null for an unknown key

// The value of a key as it stands in the file, and its member from such a text by the rules of the table.
// Numbers: the leading number with either decimal sign; the default where there is none.
Testo Valore_Scritto(const Impostazione& impostazione, const Preferenze& preferenze);
void Prendi_Valore(const Impostazione& impostazione, Preferenze& preferenze, Vista valore);

Preferenze Preferenze_Predefinite();

// Whether the text is a usable stall number: its leading number is above 0.
bool Posteggio_Valido(Vista testo);

// The six lines of the invoice footer that the program proposes; lines 2 to 4 end in a blank.
std::span<const Testo, 6> Righe_Piede_Fattura();

// Reads every key from programma.File_Ini. A missing or unreadable file gives all defaults; an unreadable one
// is told and not written until it was read (Impostazioni_Ignote). Text keys that are written back get their
// default in the file at once. Asks for the stall number until there is one.
void Leggi_Preferenze(Programma& programma);

// Writes one key of the settings file at once; what else stands in the file (unknown keys, comments, order)
// stays. False when the file couldn't be written.
bool Scrivi_Chiave(Programma& programma, Vista chiave, Vista valore);

// The same for several keys in one replacement of the file.
bool Scrivi_Chiavi(Programma& programma, const std::vector<std::pair<Testo, Testo>>& chiavi);

// Writes every known key from programma.preferenze in one replacement of the file. CittaVC is left to the
// screens that own it, since it would override a town edited by hand.
bool Scrivi_Preferenze(Programma& programma);

// Writes these keys from programma.preferenze in one replacement of the file.
bool Scrivi_Preferenze(Programma& programma, std::initializer_list<Vista> chiavi);

// Only firms with a code from 5 up copy the species' personal name into the comment. Start-up calls it once
// the settings are read.
void Limita_Per_Codice(Programma& programma);

// Line width of the oval health mark.
int Spessore_Ellisse(const Preferenze& preferenze);

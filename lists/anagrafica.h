#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <span>
#include <vector>

#include "core/controlli.h"
#include "core/programma.h"
#include "lists/privacy.h"

// A list of the firm with its two windows, the list and its editor: what customers, suppliers, carriers and
// species have in common. What is different from list to list stands in an `Anagrafica`, a table of data.

// A list table row by row, whatever the number of its columns.
struct Accesso_Tabella {
  std::size_t (*righe)(const Programma&);
  std::span<const Testo> (*riga)(const Programma&, std::size_t r);           // r from 0, below righe()
  void (*scrivi)(Programma&, std::size_t r, std::span<const Testo> valori);  // r == righe(): a new last row
  std::function<void()> (*ripristino)(Programma&);                           // puts back what is there now
};

// Of a member of Programma: Accesso<&Programma::Vet_Clienti>().
template <auto tabella>
constexpr Accesso_Tabella Accesso() {
  return {[](const Programma& programma) { return (programma.*tabella).size(); },
          [](const Programma& programma, std::size_t r) {
            return std::span<const Testo>((programma.*tabella)[r]);
          },
          [](Programma& programma, std::size_t r, std::span<const Testo> valori) {
            auto& righe = programma.*tabella;
            if (r >= righe.size()) righe.emplace_back();
            auto& riga = righe[std::min(r, righe.size() - 1)];
            for (std::size_t i = 0; i < riga.size(); ++i) riga[i] = i < valori.size() ? valori[i] : Testo();
          },
          [](Programma& programma) -> std::function<void()> {
            return [&programma, prima = programma.*tabella] { programma.*tabella = prima; };
          }};
}

struct Campo_Anagrafica {
  Testo didascalia;
  Testo suggerimento = {};
  Testo vuoto = {};     // what stands for an empty field
  bool a_mano = true;   // false: nothing is keyed into it, a double click or the space bar changes it
  bool numero = false;  // digits and one decimal separator
  Testo (*doppio_clic)(const Programma&, Vista testo) = nullptr;  // what a double click makes of the text
  bool bianchi = false;                                           // the blanks around its text belong to it
  bool riprende = false;  // a double click takes the text back from the row in work
};

struct Ordine_Anagrafica {
  Vista nome;  // of the control
  Testo didascalia;
  bool (*ordina)(Programma&);  // sorts the table and writes the file; false when that failed (told)
};

struct SchermoAnagrafica;

// A further command, in both windows or in the editor alone.
struct Comando_Anagrafica {
  Vista nome;  // of the control
  Testo didascalia;
  void (*esegui)(Programma&, SchermoAnagrafica&);  // null: a window of its own, which the screens open
  bool solo_modulo = false;
};

enum class Aggiunta {
  Tutto_Il_File,   // the row goes into the table, and the file is written from that
  In_Coda_Al_File  // the line goes to the end of the file, which otherwise stays as it is
};

struct Anagrafica {
  Vista lista, modulo;                  // names of the two windows
  Vista file;                           // name of the list's file
  Testo didascalia_lista;               // what is listed, read aloud
  Testo titolo_modulo;                  // caption of the editor
  Testo comando_modulo;                 // caption of the command that opens it
  std::vector<Campo_Anagrafica> campi;  // in the order of the columns; a blank first column is a deleted row
  std::vector<Ordine_Anagrafica> ordini;
  std::vector<Comando_Anagrafica> comandi = {};
  int colonna_tab = 0;           // where the list shows what stands behind a TAB of its lines, in characters
  std::vector<Testo> note = {};  // lines in the editor that tell how an entry is made up
  Accesso_Tabella tabella;
  Testo (*titolo)(std::size_t voci);
  // The list line of a row; `ordine` is the order chosen since the window opened, -1 for none.
  Testo (*voce)(const Programma&, std::size_t r, int ordine);
  void (*leggi)(Programma&);
  bool (*salva)(Programma&);
  // True when the row can't be taken. May tell more than the "Dati incompleti..." that follows.
  bool (*incompleta)(Programma&, std::span<const Testo> valori);
  // Last touch on a row that is being stored; may be null.
  void (*componi)(const Programma&, std::span<Testo> valori, bool nuova) = nullptr;
  Aggiunta aggiunta = Aggiunta::Tutto_Il_File;
  bool letta_all_apertura = false;  // lists that no day opening reads
  // To whom the privacy letter of a row goes; null for lists without letters.
  Destinatario (*destinatario)(const Programma&, std::size_t r) = nullptr;
};

struct SchermoAnagrafica {
  const Anagrafica* anagrafica = nullptr;
  // A row was chosen to be copied to the screen that opened the list; empty where there is none.
  std::function<void(std::size_t r)> copia;

  // the list window
  Testo titolo;
  Elenco List1;  // one line per row of the table, made when it is looked at
  CampoTesto Cerca;
  std::vector<Bottone> Ordini, Comandi;
  Bottone AggiungiModifica, Copia, Privacy, Chiudi;
  Scritta Esito;
  int ordine = -1;

  // the editor
  Testo titolo_modulo;
  std::vector<CampoTesto> Text1;
  std::vector<Scritta> Caption;
  Cursore Scorri;  // the row in work, from 1
  Scritta Posto;   // "riga 3 di 40"
  Scritta Aiuto;   // tip of the field in work
  Bottone Aggiungi, Modifica, Elimina, Pulisci, ChiudiModulo;
  Scritta EsitoModulo;
};

// The screen must stay where it is from here on: its list asks it for the lines.
void Apri_Anagrafica(Programma& programma, SchermoAnagrafica& schermo, const Anagrafica& anagrafica);

// ---- list window

int Riga_Scelta(const SchermoAnagrafica& schermo);  // row of the table from 0, -1 for none
void Ordina_Anagrafica(Programma& programma, SchermoAnagrafica& schermo, std::size_t ordine);
// Selects the next line that holds the text of Cerca (ignoring case), from the selected one on and round to
// the beginning. `oltre`: the selected line is passed over. Without a hit the selection stays.
void Cerca_Voce(Programma& programma, SchermoAnagrafica& schermo, bool oltre = false);
void Copia_Voce(SchermoAnagrafica& schermo);  // nothing without a selection
// The privacy letter for the selected row, after a question.
void Lettera_Privacy(Programma& programma, SchermoAnagrafica& schermo);
void Scegli_Voce(Programma& programma, SchermoAnagrafica& schermo);  // another line was selected

// ---- editor. Scroller and selected line always name the same row.

void Apri_Modulo(Programma& programma, SchermoAnagrafica& schermo);  // the selected row, or the first
void Vai_Alla_Riga(Programma& programma, SchermoAnagrafica& schermo, int n);  // from 1, brought into range
void Cambia_Campo(Programma& programma, SchermoAnagrafica& schermo, std::size_t i);  // its text was edited
// What a field that takes a number makes of a text, typed or pasted: digits, and the first decimal sign as
// the machine's.
Testo Solo_Numero(Vista testo, char separatore);
void Doppio_Clic_Campo(Programma& programma, SchermoAnagrafica& schermo, std::size_t i);
void Fuoco_Campo(SchermoAnagrafica& schermo, std::size_t i);
void Pulisci_Campi(SchermoAnagrafica& schermo);

// Each writes the file and reads it again. When it can't be written that is told, file and table stay as they
// were, the fields keep what was keyed, and the result is false; false too for an incomplete row.
bool Aggiungi_Voce(Programma& programma, SchermoAnagrafica& schermo);
bool Modifica_Voce(Programma& programma, SchermoAnagrafica& schermo);
bool Elimina_Voce(Programma& programma, SchermoAnagrafica& schermo);

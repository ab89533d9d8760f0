#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/controlli.h"
#include "core/date.h"

namespace giornata {

// The script of a working day: UTF-8 text, one step a line, `#` starts a comment outside quotes; texts may
// stand in double quotes with \n, \t, \" and \\. Everything about a step's words is checked here, before
// anything runs.

// A word of a step. `Albero.ListaVoci` and `Albero."Prima Nota"` are one word each.
struct Parola {
  std::string testo;  // without quotes and escapes, UTF-8
  bool virgolette = false;
  std::string davanti;  // what stands before the dot of a quoted word
  bool operator==(const Parola&) const = default;
};

// How a step may be written: its name, then words that stand so, and in angle brackets the kinds of
// arguments: <testo> <testi> (any number) <voci> (one or more) <nome> <controllo> <numero> <percorso>
// <accanto> <cartella> <data> <segno> <tasto>. Of several forms with one name the first that fits counts.
using Forma = std::string_view;

struct Passo {
  int riga = 0;                   // in the script, from 1
  std::string scritto;            // the line as it stands
  std::size_t forma = 0;          // its place among the forms
  std::vector<Parola> argomenti;  // the words at the places in angle brackets
};

struct Copione {
  std::string titolo;  // the first comment
  std::vector<Passo> passi;
  int righe = 0;
};

struct Errore_Copione {
  int riga = 0;
  std::string atteso, trovato;
};

std::variant<Copione, Errore_Copione> Leggi_Copione(std::string_view utf8, std::span<const Forma> forme);

// The folders beside the firm's that the step's paths name ("../NAME..."): those of volumes, if they are any
// good.
std::vector<std::string> Percorsi_Accanto_Alla_Ditta(const Passo& passo, Forma forma);

// "Invio", "Shift+F1", "Ctrl+Alt+Canc"; nothing for a key that the language doesn't have.
std::optional<Pressione> Leggi_Tasto(std::string_view nome);
std::optional<Data> Leggi_Giorno(std::string_view testo);  // AAAA-MM-GG, a real day

}  // namespace giornata

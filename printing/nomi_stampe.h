#pragma once

#include <optional>
#include <set>

#include "core/disco.h"
#include "printing/documento.h"

// The folder of the printed PDFs, in the firm's folder.
inline constexpr Vista Cartella_Stampe = "Stampe";

// How the file of a document is called, without ".pdf": day, kind, number and addressee's code with blanks
// between, "20250314 Fattura 12 00345"; what is empty is left out, and "Stampa" stands for a kind that isn't
// known. Characters that a file name of some desktop can't have become "-"; at most 120 characters, so that a
// running number still has room.
Testo Nome_Stampa(const Documento& documento);

// The title that a viewer shows: "Fattura 12 del 14/03/2025 - 00345".
Testo Titolo_Stampa(const Documento& documento);

// Where a new PDF goes: in `cartella`, under its name; where a file has that name already, under the first
// free one of "... (2)", "... (3)", so that a second print never takes the place of one that was handed out.
Percorso File_Stampa(const Disco& disco, const Percorso& cartella, const Documento& documento);

// The same over a run of many documents. The folder holds the prints of years: it is read anew only when
// somebody else has changed it.
class Nomi_Stampe {
 public:
  Percorso Libero(const Disco& disco, const Percorso& cartella, const Documento& documento);
  // Makes the document's file under the name that Libero gives: 0, or the errno of what failed.
  int Scrivi(const Disco& disco, const Percorso& cartella, const Documento& documento, Vista contenuto,
             Percorso& file);

 private:
  void Leggi(const Disco& disco, const Percorso& cartella);

  Percorso cartella_;
  std::optional<std::filesystem::file_time_type> cambiata_;
  std::set<Testo> presi_;  // files and folders, in small letters
};

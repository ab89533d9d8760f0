#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "core/testo.h"

using Percorso = std::filesystem::path;

// The one place where a text of the firm becomes a path, and back (for messages).
Percorso In_Percorso(Vista testo);
Testo Testo_Percorso(const Percorso& percorso);
// `cartella` and `nome` joined with exactly one separator, whether or not the folder ends with one. The
// result lies in the folder whatever the name: a part ".." and a NUL become "-" ("--" and "-").
Percorso Unisci_Percorso(const Percorso& cartella, Vista nome);
Testo Nome_File(const Percorso& percorso);  // what stands behind the last separator, either slash

// The one door to the disk. A name that isn't there as it is spelled is looked for ignoring the case of ASCII
// letters, since folders come over from machines that do not care about it; a name that is written keeps the
// case in which it was found. Errors are values of errno, 0 for success.
class Disco {
 public:
  // Tests put a fault here: the errno that a write to that path shall fail with, or 0.
  std::function<int(const Percorso&)> guasto;

  bool Esiste_File(const Percorso& percorso) const;  // an existing regular file; false on any error
  // No regular file, as the disk itself says. Who makes what is missing asks this: false where the disk
  // doesn't answer, since it may hold it, and `errore` then says why.
  bool Manca_File(const Percorso& percorso, int* errore = nullptr) const;
  bool Esiste_Cartella(const Percorso& percorso) const;
  // Whether the name leads elsewhere. What is emptied or destroyed must stand in the firm's folder itself.
  bool E_Collegamento(const Percorso& percorso) const;
  // Where the file or folder stands under another letter case of its last name; else the path as it is.
  Percorso Trova(const Percorso& percorso) const;

  // The whole file, or nothing when it is missing, no regular file, larger than a gigabyte, or can't be read;
  // `errore` then says why.
  std::optional<Testo> Leggi(const Percorso& percorso, int* errore = nullptr) const;
  // The same of a text of the firm: without the UTF-8 mark that some editors put in front.
  std::optional<Testo> Leggi_Testo(const Percorso& percorso, int* errore = nullptr) const;

  // Replaces the whole file: a sibling temporary file, written, flushed to disk, renamed over the target, the
  // folder flushed. The file is at any moment the last good one or the new one. A file that already holds
  // exactly these bytes is left alone. Rights and links of an existing file are kept.
  // After a failure, also one of the last step, the old file is there again where the file system can
  // exchange two names.
  int Sostituisci(const Percorso& percorso, Vista contenuto) const;
  // The same for a stick: read again from the disk before it takes its name, as by Copia.
  int Sostituisci_E_Rileggi(const Percorso& percorso, Vista contenuto) const;
  // The same for a file that isn't there: EEXIST, and nothing is changed, where something stands under
  // exactly this name. Other letter cases of the name are not looked for.
  int Scrivi_Nuovo(const Percorso& percorso, Vista contenuto) const;
  // Appends, made if missing. Up to a megabyte in all the file is replaced as by Sostituisci; a larger one
  // grows in place and is cut back when that fails.
  int Aggiungi(const Percorso& percorso, Vista contenuto) const;
  // Appends to a file that counts only until the program is done with it: grows in place, without waiting for
  // the disk.
  int Accoda_Provvisorio(const Percorso& percorso, Vista contenuto) const;
  // In place, so that the old bytes are gone from the disk; made if missing. A link is ELOOP: what it leads
  // to stays.
  int Sovrascrivi(const Percorso& percorso, Vista contenuto) const;
  // Whole and atomic as Sostituisci. The new file is read again from the disk before it takes its name: EIO,
  // and what stood there stays, where it isn't the same.
  int Copia(const Percorso& da, const Percorso& a) const;
  int Cancella(const Percorso& percorso) const;               // a missing file is ENOENT
  int Rinomina(const Percorso& da, const Percorso& a) const;  // EEXIST when the target is there
  int Crea_Cartella(const Percorso& percorso) const;          // with every missing parent
  // Removes what saves left behind whose program died under them.
  void Togli_Provvisori(const Percorso& cartella) const;
  int Rendi_Eseguibile(const Percorso& percorso) const;  // by those who may read it

  // Names (without the folder) of the files of a folder that match a pattern of '*' and '?' ignoring case,
  // sorted by name ignoring case. A folder that isn't there has none. Nothing where it can't be read: what it
  // holds isn't known then, and `errore` says why.
  std::optional<std::vector<Percorso>> Elenca(const Percorso& cartella, Vista modello,
                                              int* errore = nullptr) const;
  // Names of the folders in a folder, in the same order and with the same answers.
  std::optional<std::vector<Percorso>> Elenca_Cartelle(const Percorso& cartella, int* errore = nullptr) const;
  // When a name last came into a folder or left it; nothing where it can't be asked.
  std::optional<std::filesystem::file_time_type> Cambiata(const Percorso& cartella) const;
};

// An errno in Italian; "errore 33" for one that no operator meets.
Testo Testo_Errore(int errore);

// One running program for one folder: a lock on the folder itself, which dies with the process, so that a
// crash never locks the firm out and nothing is left in the folder.
class Blocco_Cartella {
 public:
  Blocco_Cartella() = default;
  ~Blocco_Cartella();
  Blocco_Cartella(const Blocco_Cartella&) = delete;
  Blocco_Cartella& operator=(const Blocco_Cartella&) = delete;
  // False when another program holds the lock. A folder that can't be locked at all counts as free.
  bool Prendi(const Percorso& cartella);
  void Lascia();

 private:
  int descrittore_ = -1;
};

#pragma once

#include <span>

#include "accounts/pagine.h"

// The layouts of the printed account as data: columns, order of the rates, lines on a page.

enum class Campo_CV { Nr, Colli, Descrizione, Peso, Prezzo, Importo, Aliquota };

struct Colonna_CV {
  Campo_CV campo;
  Testo titolo;
  int larghezza;  // millimetres
};

struct Forma_CV {
  std::vector<Colonna_CV> colonne;
  int scarto = 0;             // of the table from the left margin
  int righe_fisse = 0;        // lines on a page; 0: as many as the sheet has room for
  bool prima_sempre = false;  // the first rate is printed also with a sum of 0
  std::vector<int> aliquote;  // 1 to 3, in the order of their lines

  int Larghezza() const;
  int Larghezza_Di(Campo_CV campo) const;
  int Sinistra_Di(Campo_CV campo) const;  // left edge, from that of the table
};
const Forma_CV& FormaCV(Tracciato_CV tracciato);

// A line of the totals. Its step is its place: what isn't printed leaves its room.
struct Totale_CV {
  int passo = 0;
  Testo etichetta;
  Testo valore;
  Testo imponibile;  // taxable sum in front of the value; empty where there is none
  bool operator==(const Totale_CV&) const = default;
};
std::vector<Totale_CV> TotaliCV(const Documento_CV& documento, Tracciato_CV tracciato, char separatore);

// The letterhead lines from the top, each with its size.
struct Riga_Intestazione {
  int y = 0;
  Testo testo;
  float punti = 9;
  bool grassetto = false;
  bool operator==(const Riga_Intestazione&) const = default;
};
std::vector<Riga_Intestazione> IntestazioneCV(const Documento_CV& documento, Tracciato_CV tracciato);

// How many lines a page of that layout takes, at least one.
int RighePerPagina(Tracciato_CV tracciato, const Foglio_CV& foglio);
int AltezzaTabella(const Foglio_CV& foglio);  // of the framed table, millimetres

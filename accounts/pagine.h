#pragma once

#include <array>
#include <vector>

#include "accounts/conti.h"
#include "accounts/importi.h"
#include "printing/pagina.h"

// How an account reaches the outside: the preview, and the printed pages in one of several layouts.

enum class Tracciato_CV { Semplice, Tipo1, Tipo2, Busta, Colli };

struct Scelta_Tracciato {
  Tracciato_CV tracciato = Tracciato_CV::Semplice;
  bool ConContorni = false;  // frames, in the layout Busta only
};
// By the setting FlagStampaFrame.
Scelta_Tracciato TracciatoCV(int FlagStampaFrame);

// Wordings in which the screen of the accounts and that of the manual ones differ.
struct Diciture_CV {
  Testo telefono = "Tel. ";                   // of the preset letterhead
  Testo spese_semplice = "Spese anticipate";  // in the plain layout
  Testo commissioni_tipo2 = "Commissioni (";
  Testo piva_tipo2 = "p.IVA ";
};

// Everything that an account's pages show.
struct Documento_CV {
  Conto_CV conto;
  Testata_Fornitore fornitore;
  Importi_CV importi;
  Regole_Importi regole;
  std::array<Testo, 7> Ragione;  // the firm's letterhead
  Testo citta;                   // town in front of the date
  Testo piede;                   // Testo_ContoVendita
  bool KgTotali = false;         // the tick "Kg. Totali"
  bool NotaDDLL = false;         // the tick "Nota DDLL 331/93"
  Diciture_CV diciture;
};
// With letterhead, rates, town and foot of the settings; the rest is the caller's.
Documento_CV DocumentoCV(const Programma& programma, const Regole_Importi& regole);

// The lines of the preview. `titolo` is the heading above the account's lines.
inline constexpr Vista Didascalia_Anteprima = "Preview ContoVendita ...";  // caption meanwhile
Testo TitoloAnteprima();
std::vector<Testo> RigheAnteprima(const Documento_CV& documento, Vista titolo, char separatore);

// One thing on a page: millimetres from the corner of the sheet's printable part.
struct Elemento_CV {
  enum class Tipo { Scritta, Destra, Riga_Orizzontale, Riga_Verticale, Riquadro };
  Tipo tipo = Tipo::Scritta;
  float x = 0, y = 0;
  // Of a right-aligned text its column, of a line its length. Another text with a width is set smaller, and
  // at last cut, where it is wider; 0: it may be as wide as it is.
  float larghezza = 0, altezza = 0;
  Testo testo;
  float punti = 10;
  bool grassetto = false;
  Testo carattere;  // empty: the page font of the settings
  bool operator==(const Elemento_CV&) const = default;
};
using Pagina_CV = std::vector<Elemento_CV>;

struct Foglio_CV {
  int sinistra = 0, alto = 0;  // margins
  float altezza = 297;         // printable
};
// The account's pages, at least one.
std::vector<Pagina_CV> PagineCV(const Documento_CV& documento, Scelta_Tracciato scelta,
                                const Foglio_CV& foglio, char separatore);

// Draws one copy, with its EndDoc.
void StampaConto(const Programma& programma, const Documento_CV& documento, Scelta_Tracciato scelta,
                 const Avanzamento& avanzamento);

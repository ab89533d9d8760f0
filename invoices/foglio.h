#pragma once

#include <array>
#include <functional>
#include <span>

#include "invoices/fatture.h"
#include "printing/pagina.h"

// What the graphic layouts of invoices share: a sheet in the firm's font, millimetres, and a table of items.

// Texts are made smaller where they wouldn't fit their room, so that a long name or lot is still whole; below
// what can be read a name is cut and a number runs out to the left.
class Foglio {
 public:
  explicit Foglio(const Programma& programma)
      : printer_(Dispositivo(programma)), fonte_(FontePagina(programma)) {}

  float Altezza() const { return printer_.ScaleHeight(); }
  Printer& Penna() { return printer_; }

  // `largo` 0: as wide as it gets.
  void Scrivi(float x, float y, Vista testo, float corpo, bool grassetto = false, float largo = 0);
  void Corsivo(float x, float y, Vista testo, float corpo, float largo);
  void A_Destra(float x, float y, float largo, Vista testo, float corpo, bool grassetto = false);
  void Nome_A_Destra(float x, float y, float largo, Vista testo, float corpo);  // cut like any name
  float Larghezza(Vista testo, float corpo, bool grassetto = false);
  bool Entra(Vista testo, float largo);  // at the smallest size

 private:
  void Carattere(float corpo, bool grassetto);
  float Corpo_Che_Entra(Vista testo, float corpo, float largo);
  Vista Parte_Che_Entra(Vista testo, float largo);

  Printer& printer_;
  Testo fonte_;
};

enum class Cella { Descrizione, Lotto, Colli, Peso, Prezzo, Importo, Iva, Zona, Vuota };

struct Colonna_Fattura {
  Vista titolo;
  float largo;  // millimetres
  Cella cella;
};

inline constexpr float Larghezza_Tabella = 200;
inline constexpr float Margine_Cella = 1;

// A row of headings, and the first line of an item.
void Disegna_Titoli(Foglio& foglio, std::span<const Colonna_Fattura> colonne, float x, float y, float corpo);
void Disegna_Voce(Foglio& foglio, std::span<const Colonna_Fattura> colonne, const Voce_Documento& voce,
                  float x, float y, float corpo, char separatore);

// "  Lotto: ..." where the lot had to be cut in its cell: the law wants it whole. Else nothing.
Testo Lotto_Intero(Foglio& foglio, std::span<const Colonna_Fattura> colonne, const Voce_Documento& voce);

// With Flag_fatture_Esteso: the first 20 characters of the codes and what stands behind their "*".
Testo Codici_Voce(const Voce_Documento& voce);

inline constexpr std::array<std::size_t, 3> Ordine_Aliquote = {1, 0, 2};  // second, first, third
// "22%", "4,5%".
Testo Percento(double aliquota, char separatore);
// "pag. 1 di 3".
Testo Numero_Pagina(Vista parola, int pagina, int pagine);

// The document itself, once; the device is set up already. One of these for each family of layouts.
void Disegna_Intestata(const Programma& programma, const Documento_Fattura& documento, bool nota,
                       bool cornice, const std::function<void(int, int)>& pagina_in_corso);
void Disegna_Prestampata(const Programma& programma, const Documento_Fattura& documento,
                         Tracciato_Fattura tracciato, const std::function<void(int, int)>& pagina_in_corso);
int Voci_Intestata(const Programma& programma, bool nota, float altezza);
int Voci_Prestampata(const Programma& programma);

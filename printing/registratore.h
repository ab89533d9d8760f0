#pragma once

#include "printing/dispositivo.h"

// What a page device drew, and how many pages in all.
struct Registro_Pagine {
  std::vector<Testo> righe;
  int pagine = 0;
};

// The page device that draws nothing and writes down everything: a line of text for each drawn thing, for
// tests and for whoever wants to compare two pages. The lines, in the order of drawing:
//
//   documento "20250314 Fattura 12 00345" PDF         a document begins, on that printer
//   pagina 1 verticale 210x297                         a page begins; the sheet in millimetres
//   p1 testo 10.00 20.50 Arial 11 grassetto: Peso Kg   left and top of the line, font, points, style
//   p1 linea 10.00 20.00 190.00 20.00 penna 1 #000000
//   p1 riquadro 10.00 20.00 190.00 30.00 penna 2 #000000   an outline, two opposite corners
//   p1 pieno 10.00 20.00 190.00 30.00 penna 1 #C0C0C0      a filled rectangle
//   p1 ellisse 146.00 8.00 11.00 3.30 penna 10 #000000     centre, the two radii
//   p1 arco 100.00 50.00 11.00 3.30 da 0.00 a 3.14 penna 1 #000000   between two angles
//   p1 immagine 10.00 20.00 190.00 130.00 1200x700     a picture: two opposite corners, its points
//   fine                                               or "abbandonato", where nothing comes out
//
// Millimetres from the printable area's corner, always with two decimals and a point. Sizes are in points
// with as many decimals as they have. The style is nothing, "grassetto", "corsivo" or both. A text stands as
// it was given, blanks at its end included; control characters stand as \t, \r, \n or \xNN. An empty text
// draws nothing. The quotes behind "documento" hold what a PDF's file would be called, without a running
// number.
//
// Its sheet is A4, printable to the edge.
class Registratore : public Printer {
 public:
  // `stampante` is the machine's printer, nothing when it has none; choosing and turning write there. All
  // lines go to `registro`. Both must outlive this.
  Registratore(std::optional<Stampante>& stampante, Registro_Pagine& registro)
      : stampante_(stampante), registro_(registro) {}

  std::vector<Testo> altre_stampanti;  // names that may be chosen besides the present one and "PDF"
  bool orientamento_fisso = false;     // a printer that can't turn its paper

  std::optional<Testo> DeviceName() override;
  std::vector<Testo> Stampanti() override;

 protected:
  Carta Foglio(int orientamento) const override;
  int Orientamento() const override;
  void Orienta(int orientamento) override;
  bool Prendi_Stampante(const Testo& nome) override;
  bool Inizia_Documento() override;
  void Inizia_Pagina(int pagina, int orientamento) override;
  bool Finisci_Documento() override;
  bool Abbandona_Documento() override;
  void Disegna(double x, double y, const Carattere_Stampa& carattere, Vista testo) override;
  void Disegna(const Segno& segno) override;
  void Disegna(const Ovale& ovale) override;
  void Disegna(const Figura& figura) override;

 private:
  void Scrivi(Vista cosa);

  std::optional<Stampante>& stampante_;
  Registro_Pagine& registro_;
  int pagina_ = 0;
};

// A4, printable to the edge: the sheet of the recorder and of PDF, so that both measure alike.
Carta Foglio_A4(int orientamento);

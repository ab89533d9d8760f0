#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/controlli.h"
#include "core/disco.h"
#include "core/piattaforma.h"
#include "printing/documento.h"
#include "printing/immagine.h"
#include "printing/metrica.h"

inline constexpr int Scala_Twip = 1, Scala_Millimetri = 6;  // values of ScaleMode
inline constexpr int Verticale = 1, Orizzontale = 2;        // values of Orientation
inline constexpr double Twip_Per_Millimetro = 1440 / 25.4;  // a twip is 1/1440 inch
inline constexpr double Millimetri_Per_Punto = 25.4 / 72;
inline constexpr double Millimetri_Per_Penna = 25.4 / 300;  // of one unit of DrawWidth
inline constexpr Colore Nero{0, 0, 0};
inline constexpr Vista Stampante_PDF = "PDF";  // the printer that is in every list: one file a document

// A sheet as it lies for the operator: the paper, and the part of it that can be printed, whose top left
// corner is the origin of all positions. Millimetres.
struct Carta {
  double larghezza = 210, altezza = 297;
  double larghezza_stampabile = 210, altezza_stampabile = 297;
};

// How a text is drawn.
struct Carattere_Stampa {
  Testo nome;
  double punti = 0;
  bool grassetto = false, corsivo = false;
};

enum class Tratto { Linea, Contorno, Pieno };  // a straight line, the outline of a rectangle, a filled one

// A drawn line or rectangle between two points, and an ellipse around a centre. Millimetres.
struct Segno {
  Tratto tratto = Tratto::Linea;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  Colore colore = Nero;
  int penna = 1;
};
struct Ovale {
  double x = 0, y = 0, raggio_x = 0, raggio_y = 0;
  double inizio = 0, fine = 0;  // of the arc in radians, against the clock from the right; equal: all of it
  Colore colore = Nero;
  int penna = 1;
};

// A picture stretched into a rectangle. Millimetres.
struct Figura {
  double x = 0, y = 0, larghezza = 0, altezza = 0;
  const Immagine& immagine;
};

// The page device: a pen on a sheet. What is set stays until it is set anew, over pages and documents; a
// routine that needs a value sets it itself. A document begins with the first Print (or Line, Circle,
// NewPage) and ends with EndDoc; a new page or document begins with the pen at (0, 0). Positions are single
// precision in the unit of ScaleMode and may lie outside the sheet, where nothing is seen. Nothing here fails
// aloud: what a device can't do is left undone.
//
// All state and all measuring stand here, so that they are the same on every device; an answer to this
// interface only draws (the protected part).
class Printer {
 public:
  Printer() = default;
  Printer(const Printer&) = delete;
  Printer& operator=(const Printer&) = delete;
  virtual ~Printer() = default;

  // ---- properties that are only values
  float CurrentX = 0, CurrentY = 0;  // the pen, in the current unit
  Testo FontName = "Arial";
  float FontSize = 10;  // points
  bool FontBold = false, FontItalic = false;
  int DrawWidth = 1;  // of Line and Circle; 1 is the normal thin pen, of 1/300 inch
  std::int32_t Zoom = 100;
  int LarghezzaUtile = 0;       // usable width in millimetres; set by PreparaPagina
  Documento documento;          // what is being printed: for the name and title of a PDF
  bool Apri_Alla_Fine = false;  // a finished PDF is shown by the desktop's own viewer

  // ---- properties that the device knows of
  int ScaleMode() const { return scala_; }
  void ScaleMode(int scala);  // the pen stays where it is on the sheet; other values are not taken
  int Orientation() const { return Orientamento(); }
  // Other values, and what the device refuses, are not taken. In an open document it holds from the next page
  // on.
  void Orientation(int orientamento);
  float ScaleWidth() const;                                      // printable, in the current unit
  float ScaleHeight() const;                                     // printable, in the current unit
  int Height() const;                                            // of the sheet, in twips
  Carta Carta_In_Uso() const { return Foglio(Orientamento()); }  // the sheet of the next document
  // The name of the printer; nothing when there is none: then nothing is drawn, and the sheet measures as A4.
  virtual std::optional<Testo> DeviceName() = 0;

  // ---- operations
  void Print(
      Vista testo);  // then the pen stands at the start of the next line; an empty text starts a page too
  float TextWidth(Vista testo);
  float TextHeight(Vista testo);  // of a line of the current font, whatever the text
  void Line(float x1, float y1, float x2, float y2, Colore colore = Nero, Tratto tratto = Tratto::Linea);
  // `aspetto` is height by width; the radius is that of the longer axis.
  void Circle(float x, float y, float raggio, Colore colore = Nero, float inizio = 0, float fine = 0,
              float aspetto = 1);
  void PaintPicture(const Immagine& immagine, float x, float y, float larghezza, float altezza);
  void NewPage();
  // False where nothing came out: no printer, or a PDF that couldn't be written. The device has told it.
  bool EndDoc();
  // Ends the document without what hasn't come out yet: a PDF isn't written. True where nothing came out.
  bool Abbandona();

  // ---- the choice of the printer
  virtual std::vector<Testo> Stampanti() = 0;  // names, "PDF" always among them
  // False, and nothing changes, for a name that isn't there or while a document is open.
  bool Scegli(const Testo& nome, int orientamento);
  virtual Percorso Ultimo_PDF() const { return {}; }  // the last PDF that was finished; empty without one

 protected:
  virtual Carta Foglio(int orientamento) const = 0;  // the sheet as it lies in that orientation
  // How wide the letters are: the built-in tables where the device knows of nothing else.
  virtual const Metrica& Misure(const Carattere_Stampa& carattere);
  virtual int Orientamento() const = 0;
  virtual void Orienta(int orientamento) = 0;  // Verticale or Orizzontale
  virtual bool Prendi_Stampante(const Testo& nome) = 0;

  // Documents and pages. False from Inizia_Documento: there is no printer, and nothing is asked to be drawn.
  virtual bool Inizia_Documento() = 0;
  virtual void Inizia_Pagina(int pagina, int orientamento) = 0;  // from 1; the first one too
  virtual bool Finisci_Documento() = 0;                          // false: the document is lost
  virtual bool Abbandona_Documento() = 0;                        // true: nothing of it came out
  // Within a page. The position of a text is the top left corner of its line.
  virtual void Disegna(double x, double y, const Carattere_Stampa& carattere, Vista testo) = 0;
  virtual void Disegna(const Segno& segno) = 0;
  virtual void Disegna(const Ovale& ovale) = 0;
  virtual void Disegna(const Figura& figura) = 0;

  // Millimetres to a unit of ScaleMode and back.
  double In_Millimetri(float misura) const;
  float Da_Millimetri(double millimetri) const;

 private:
  bool Apri();  // the document and its first page, if they aren't open; false without a printer
  void Comincia_Pagina();
  Carattere_Stampa Carattere_Corrente() const;
  Carta Foglio_In_Uso() const;  // of the page in work, or of the next document

  int scala_ = Scala_Twip;
  int orientamento_pagina_ = Verticale;  // of the page in work
  bool aperto_ = false;
  // The document that couldn't begin: until EndDoc the printer isn't asked again for it, so that a printer
  // that comes back never prints the rest of a document without its beginning.
  std::optional<Documento> mancato_;
  int pagina_ = 0;
};

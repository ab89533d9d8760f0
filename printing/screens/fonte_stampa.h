#pragma once

#include <bitset>
#include <functional>
#include <string>
#include <unordered_map>

#include <QRawFont>

#include "printing/metrica.h"

using Segni_Usati = std::bitset<256>;  // by the bytes of Windows-1252

// What a PDF takes of a font: a part of its program and the lines that describe it, in PDF's own form.
struct Parte_Fonte {
  std::string programma;     // as PDF takes it in, compressed; empty where the font has nothing to give
  std::string voci_flusso;   // of the stream that holds the program
  std::string programma_in;  // the name by which the descriptor calls it
  std::string voci_fonte;    // of the font: kind, name, widths
  std::string voci_descrittore;
};

// A typeface as it is measured, drawn and taken into a PDF. Letters stand side by side by the widths of the
// metrics.
class Fonte_Stampa {
 public:
  // Measured by its own letters, or by the tables that were made for it.
  explicit Fonte_Stampa(const QRawFont& fonte);
  Fonte_Stampa(const QRawFont& fonte, const Metrica& metrica);

  const QRawFont& Disegno() const { return fonte_; }
  const Metrica& Misure() const { return metrica_; }
  double Altezza(
      Vista testo) const;  // how far its highest letter stands above the base line, in design units
  // Whether it can be taken into a PDF; those made of points can't, and some old kinds.
  bool Si_Incorpora() { return !Parte({}).programma.empty(); }
  // The part that has at least these letters. An evening's documents differ in a few letters, so that they
  // share parts: making one takes longer than the rest of the document.
  const Parte_Fonte& Parte(const Segni_Usati& segni);
  // What was asked for and the face hasn't got is made of its upright or thin letters.
  void Chiedi_Stile(bool grassetto, bool corsivo);
  bool Grassetto_Finto() const { return grassetto_finto_; }
  bool Corsivo_Finto() const { return corsivo_finto_; }

 private:
  Parte_Fonte Nuova_Parte(const Segni_Usati& segni) const;
  std::string Voci_Fonte(const std::string& nome, const Segni_Usati& segni) const;
  std::string Voci_Descrittore(const std::string& nome) const;

  QRawFont fonte_;
  Metrica metrica_;
  bool grassetto_finto_ = false, corsivo_finto_ = false;
  std::unordered_map<Segni_Usati, Parte_Fonte> parti_;
};

// A byte that is drawn: no control character, and none that the code page leaves undefined.
bool Si_Vede(char c);

#include "printing/dispositivo.h"

#include <cmath>

namespace {

bool Finiti(std::initializer_list<float> misure) {
  for (const float misura : misure)
    if (!std::isfinite(misura)) return false;
  return true;
}

}  // namespace

double Printer::In_Millimetri(float misura) const {
  return scala_ == Scala_Twip ? misura / Twip_Per_Millimetro : misura;
}

float Printer::Da_Millimetri(double millimetri) const {
  return static_cast<float>(scala_ == Scala_Twip ? millimetri * Twip_Per_Millimetro : millimetri);
}

void Printer::ScaleMode(int scala) {
  if ((scala != Scala_Twip && scala != Scala_Millimetri) || scala == scala_) return;
  const double x = In_Millimetri(CurrentX), y = In_Millimetri(CurrentY);
  scala_ = scala;
  CurrentX = Da_Millimetri(x);
  CurrentY = Da_Millimetri(y);
}

void Printer::Orientation(int orientamento) {
  if (orientamento == Verticale || orientamento == Orizzontale) Orienta(orientamento);
}

Carta Printer::Foglio_In_Uso() const { return Foglio(aperto_ ? orientamento_pagina_ : Orientamento()); }

float Printer::ScaleWidth() const { return Da_Millimetri(Foglio_In_Uso().larghezza_stampabile); }

float Printer::ScaleHeight() const { return Da_Millimetri(Foglio_In_Uso().altezza_stampabile); }

int Printer::Height() const {
  return static_cast<int>(std::lround(Foglio_In_Uso().altezza * Twip_Per_Millimetro));
}

Carattere_Stampa Printer::Carattere_Corrente() const { return {FontName, FontSize, FontBold, FontItalic}; }

const Metrica& Printer::Misure(const Carattere_Stampa& carattere) {
  return Metrica_Della_Faccia(Faccia_Di(carattere.nome), carattere.grassetto);
}

float Printer::TextWidth(Vista testo) {
  const Metrica& metrica = Misure(Carattere_Corrente());
  return Da_Millimetri(static_cast<double>(Unita(metrica, testo)) / metrica.quadrato * FontSize *
                       Millimetri_Per_Punto);
}

float Printer::TextHeight(Vista) {
  const Metrica& metrica = Misure(Carattere_Corrente());
  return Da_Millimetri(static_cast<double>(metrica.sopra + metrica.sotto) / metrica.quadrato * FontSize *
                       Millimetri_Per_Punto);
}

void Printer::Comincia_Pagina() {
  orientamento_pagina_ = Orientamento();
  Inizia_Pagina(++pagina_, orientamento_pagina_);
}

bool Printer::Apri() {
  if (aperto_) return true;
  if (mancato_ == documento) return false;
  if (!Inizia_Documento()) {
    mancato_ = documento;
    return false;
  }
  mancato_.reset();
  pagina_ = 0;
  Comincia_Pagina();
  aperto_ = true;
  return true;
}

void Printer::Print(Vista testo) {
  if (!Apri()) return;
  if (!testo.empty() && FontSize > 0 && Finiti({CurrentX, CurrentY, FontSize}))
    Disegna(In_Millimetri(CurrentX), In_Millimetri(CurrentY), Carattere_Corrente(), testo);
  CurrentX = 0;
  CurrentY += TextHeight(testo);
}

void Printer::Line(float x1, float y1, float x2, float y2, Colore colore, Tratto tratto) {
  if (!Finiti({x1, y1, x2, y2}) || !Apri()) return;
  Disegna(Segno{tratto, In_Millimetri(x1), In_Millimetri(y1), In_Millimetri(x2), In_Millimetri(y2), colore,
                DrawWidth});
}

void Printer::Circle(float x, float y, float raggio, Colore colore, float inizio, float fine, float aspetto) {
  if (!Finiti({x, y, raggio, inizio, fine, aspetto}) || raggio <= 0 || aspetto <= 0 || !Apri()) return;
  const double lungo = In_Millimetri(raggio), rapporto = aspetto;
  Disegna(Ovale{In_Millimetri(x), In_Millimetri(y), rapporto > 1 ? lungo / rapporto : lungo,
                rapporto > 1 ? lungo : lungo * rapporto, inizio, fine, colore, DrawWidth});
}

void Printer::PaintPicture(const Immagine& immagine, float x, float y, float larghezza, float altezza) {
  if (immagine.Vuota() || !Finiti({x, y, larghezza, altezza}) || larghezza <= 0 || altezza <= 0 || !Apri())
    return;
  Disegna(
      Figura{In_Millimetri(x), In_Millimetri(y), In_Millimetri(larghezza), In_Millimetri(altezza), immagine});
}

void Printer::NewPage() {
  if (!Apri()) return;
  CurrentX = CurrentY = 0;
  Comincia_Pagina();
}

bool Printer::EndDoc() {
  mancato_.reset();
  if (!aperto_) return false;
  aperto_ = false;
  CurrentX = CurrentY = 0;
  return Finisci_Documento();
}

bool Printer::Abbandona() {
  mancato_.reset();
  if (!aperto_) return true;
  aperto_ = false;
  CurrentX = CurrentY = 0;
  return Abbandona_Documento();
}

bool Printer::Scegli(const Testo& nome, int orientamento) {
  if (aperto_ || !Prendi_Stampante(nome)) return false;
  mancato_.reset();
  Orientation(orientamento);
  return true;
}

#include "printing/pagina.h"

namespace {

void Stato_Normale(const Programma& programma, Printer& printer) {
  printer.Print("");
  printer.Zoom = 0;
  printer.FontSize = DimFontPagina(programma);
  printer.ScaleMode(Scala_Millimetri);
  printer.FontName = FontePagina(programma);
  printer.FontBold = true;
  printer.LarghezzaUtile =
      static_cast<int>(printer.ScaleWidth() - 2 * static_cast<float>(BordoSinistro(programma)));
}

void Scrivi(Printer& printer, float x, float y, Vista testo) {
  printer.CurrentX = x;
  printer.CurrentY = y;
  printer.Print(testo);
}

}  // namespace

void Due_Pause(const Programma& programma) {
  programma.piattaforma.Ridipingi();
  programma.piattaforma.Ridipingi();
}

void PreparaPagina(const Programma& programma) {
  Printer& printer = Dispositivo(programma);
  Stato_Normale(programma, printer);
  programma.piattaforma.Ridipingi();
  Stato_Normale(programma, printer);
  printer.FontName = FontePagina(programma);
}

void StampaTesto(Printer& printer, float x, float y, Vista testo, Vista fontName, float fontSize, bool bold) {
  printer.CurrentX = x;
  printer.CurrentY = y;
  printer.FontName = fontName;
  printer.FontSize = fontSize;
  printer.FontBold = bold;
  printer.Print(testo);
}

void StampaDestra(Printer& printer, float left, float top, float width, Vista testo) {
  Scrivi(printer, left + (width - printer.TextWidth(testo)), top, testo);
}

void StampaCentrato(Printer& printer, float y, Vista testo, float xCentre) {
  const Vista pulito = Pulito(testo);
  Scrivi(printer, xCentre - printer.TextWidth(pulito) * 0.5F, y, pulito);
}

void LineaOrizzontale(Printer& printer, int x, int y, int length, Colore colore, int penWidth) {
  printer.DrawWidth = penWidth;
  const auto alto = static_cast<float>(y);
  printer.Line(static_cast<float>(x), alto, static_cast<float>(x) + static_cast<float>(length), alto, colore);
}

void LineaVerticale(Printer& printer, float x, float y, float length, Colore colore, int penWidth) {
  printer.DrawWidth = penWidth;
  printer.Line(x, y, x, y + length, colore);
  printer.DrawWidth = 1;
}

void Riquadro(Printer& printer, float x, float y, float width, float height, int penWidth, Colore colore,
              bool filled) {
  printer.DrawWidth = penWidth;
  printer.Line(x, y, x + width, y + height, filled ? colore : Nero,
               filled ? Tratto::Pieno : Tratto::Contorno);
}

void StampaEllisse(const Programma& programma, float& x, float y) {
  if (!programma.preferenze.FlagEllisse) return;
  constexpr float raggio = 11, dimensione = 8, aspetto = 0.3F;
  Printer& printer = Dispositivo(programma);
  const float prima = printer.FontSize;
  printer.FontSize = dimensione;
  x = x - raggio - 8;
  printer.DrawWidth = Spessore_Ellisse(programma.preferenze);
  printer.Circle(x, y, raggio, Nero, 0, 0, aspetto);
  const Testo& numero = programma.preferenze.Numero_Posteggio;
  Scrivi(printer, x - printer.TextWidth(numero) * 0.5F, y - printer.TextHeight(numero) * 0.5F, numero);
  printer.DrawWidth = 1;
  printer.FontSize = prima;
}

void StampaDueRighe(const Programma& programma, float y, float x, float scarto) {
  Printer& printer = Dispositivo(programma);
  Scrivi(printer, x + 5 + scarto, y - 10, programma.preferenze.PiedePaginaBolla1);
  Scrivi(printer, x + 5 + scarto, y - 6, programma.preferenze.PiedePaginaBolla2);
}

Testo NomeStampante(Printer& printer) { return printer.DeviceName().value_or("nessuna stampante..."); }

void TitoloStampante(Printer& printer, Scritta& control) {
  control.testo =
      NomeStampante(printer) + " " + (printer.Orientation() == Verticale ? " - Verticale" : " - Orizzontale");
}

Testo OrientamentoStampante(const Printer& printer) {
  return printer.Orientation() == Verticale ? "Stampante VERTICALE" : "Stampante ORIZZONTALE";
}

int Pagine_Di(int righe, int righe_per_pagina) {
  if (righe <= 0 || righe_per_pagina <= 0) return 0;
  return righe / righe_per_pagina + (righe % righe_per_pagina == 0 ? 0 : 1);
}

Testo Pagina_In_Corso(Vista codice, int pagina, int pagine) {
  return Testo(codice) + " Pagina " + std::to_string(pagina) + " di " + std::to_string(pagine) +
         " in corso...";
}

std::vector<Testo> Voci_Copie() { return {"1 copia", "2 copie", "3 copie"}; }

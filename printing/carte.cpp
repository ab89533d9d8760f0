#include "printing/carte.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double pollice = 25.4;

constexpr Carta_Nota carte[] = {
    {"10X11", 10 * pollice, 11 * pollice},
    {"10X14", 10 * pollice, 14 * pollice},
    {"11X17", 11 * pollice, 17 * pollice},
    {"15X11", 15 * pollice, 11 * pollice},
    {"9X11", 9 * pollice, 11 * pollice},
    {"A Plus", 227, 356},
    {"A2", 420, 594},
    {"A3", 297, 420},
    {"A3 Extra", 322, 445},
    {"A3 Extra Transverse", 322, 445},
    {"A3 Transverse", 297, 420},
    {"A4", 210, 297},
    {"A4 Extra", 9.27 * pollice, 12.69 * pollice},
    {"A4 Plus", 210, 330},
    {"A4 Transverse", 210, 297},
    {"A4 Small", 210, 297},
    {"A5", 148, 210},
    {"A5 Extra", 174, 235},
    {"A5 Transverse", 148, 210},
    {"B Plus", 305, 487},
    {"B4", 257, 364},
    {"B5", 182, 257},
    {"B5 Extra", 201, 276},
    {"B5 Transverse", 182, 257},
    {"C Sheet", 17 * pollice, 22 * pollice},
    {"D Sheet", 22 * pollice, 34 * pollice},
    {"Envelope 10", 4.125 * pollice, 9.5 * pollice},
    {"Envelope 11", 4.5 * pollice, 10.375 * pollice},
    {"Envelope 12", 4.75 * pollice, 11 * pollice},
    {"Envelope 14", 5 * pollice, 11.5 * pollice},
    {"Envelope 9", 3.875 * pollice, 8.875 * pollice},
    {"Envelope B4", 250, 353},
    {"Envelope B5", 176, 250},
    {"Envelope B6", 176, 125},
    {"Envelope C3", 324, 458},
    {"Envelope C4", 229, 324},
    {"Envelope C5", 162, 229},
    {"Envelope C6", 114, 162},
    {"Envelope C65", 114, 229},
    {"Envelope DL", 110, 220},
    {"Envelope Invite", 220, 220},
    {"Envelope Italy", 110, 230},
    {"Envelope Monarch", 3.875 * pollice, 7.5 * pollice},
    {"Envelope Personal", 3.625 * pollice, 6.5 * pollice},
    {"E Sheet", 34 * pollice, 44 * pollice},
    {"Executive", 7.25 * pollice, 10.5 * pollice},
    {"Fanfold Lgl. German", 8.5 * pollice, 13 * pollice},
    {"Fanfold Std. German", 8.5 * pollice, 12 * pollice},
    {"Fanfold US", 14.875 * pollice, 11 * pollice},
    {"Folio", 8.5 * pollice, 13 * pollice},
    {"ISO B4", 250, 353},
    {"Japanese Postcard", 100, 148},
    {"Ledger", 17 * pollice, 11 * pollice},
    {"Legal", 8.5 * pollice, 14 * pollice},
    {"Legal Extra", 9.275 * pollice, 15 * pollice},
    {"Letter", 8.5 * pollice, 11 * pollice},
    {"Letter Extra", 9.275 * pollice, 12 * pollice},
    {"Letter Extra Transverse", 9.275 * pollice, 12 * pollice},
    {"Letter Plus", 8.5 * pollice, 12.69 * pollice},
    {"Letter Transverse", 8.275 * pollice, 11 * pollice},
    {"Letter Small", 8.5 * pollice, 11 * pollice},
    {"Note", 8.5 * pollice, 11 * pollice},
    {"Quarto", 215, 275},
    {"Statement", 5.5 * pollice, 8.5 * pollice},
    {"Tabloid", 11 * pollice, 17 * pollice},
    {"Tabloid Extra", 11.69 * pollice, 18 * pollice},
    {"User", 0, 0},
    {"Unknown", 0, 0},
};

bool Simili(double a, double b) { return std::abs(a - b) < 0.6; }

}  // namespace

std::span<const Carta_Nota> Carte() { return carte; }

Vista Nome_Carta(double larghezza, double altezza) {
  const auto stessa = [&](const Carta_Nota& carta) {
    return (Simili(carta.larghezza, larghezza) && Simili(carta.altezza, altezza)) ||
           (Simili(carta.larghezza, altezza) && Simili(carta.altezza, larghezza));
  };
  if (larghezza <= 0 || altezza <= 0) return "Unknown";
  const auto trovata = std::ranges::find_if(carte, stessa);
  return trovata == std::end(carte) ? Vista("User") : trovata->nome;
}

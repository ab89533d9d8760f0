#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

// Texts as the firm's files hold them: Windows-1252, one byte, one character, one column, so that padding,
// cutting and fixed positions mean what they say and a file read and written back is the same bytes, also for
// the five bytes that the code page leaves undefined (81 8D 8F 90 9D).

using Testo = std::string;
using Vista = std::string_view;  // a Windows-1252 text that somebody else owns

namespace testo_interno {

// The code points of bytes 80 to 9F; the undefined bytes stand for themselves.
inline constexpr char16_t alti[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                      0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                      0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                      0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

extern const std::array<char, 256> minuscole;  // of each byte

constexpr char Da_Codice(char32_t codice) {
  if (codice < 0x80 || (codice >= 0xA0 && codice <= 0xFF)) return static_cast<char>(codice);
  for (int i = 0; i < 32; ++i)
    if (alti[i] == codice) return static_cast<char>(0x80 + i);
  return '?';
}

template <std::size_t N>
struct Letterale {
  char byte[N] = {};
  std::size_t lunghezza = 0;
  // NOLINTNEXTLINE(google-explicit-constructor): a literal operator's parameter converts by itself
  consteval Letterale(const char (&utf8)[N]) {
    for (std::size_t i = 0; i + 1 < N;) {
      const auto primo = static_cast<unsigned char>(utf8[i]);
      std::size_t seguono = 0;
      char32_t codice = primo;
      if (primo >= 0xF0) {
        seguono = 3;
        codice = primo & 0x07U;
      } else if (primo >= 0xE0) {
        seguono = 2;
        codice = primo & 0x0FU;
      } else if (primo >= 0xC0) {
        seguono = 1;
        codice = primo & 0x1FU;
      }
      for (std::size_t k = 1; k <= seguono; ++k)
        codice = (codice << 6U) | (static_cast<unsigned char>(utf8[i + k]) & 0x3FU);
      i += seguono + 1;
      byte[lunghezza++] = Da_Codice(codice);
    }
  }
};

}  // namespace testo_interno

// "Lunedì"_t: a text of the source file (UTF-8) as Windows-1252, converted by the compiler. Every literal
// with a letter outside ASCII needs it; plain ASCII literals are the same bytes and go without.
template <testo_interno::Letterale L>
constexpr Testo operator""_t() {
  return Testo(L.byte, L.lunghezza);
}

// Any bytes in; what is no UTF-8, or has no place in the code page, becomes '?'.
Testo Da_Utf8(std::string_view utf8);
std::string In_Utf8(Vista testo);

// À -> à, Š -> š; by one table for the whole code page, no locale
inline char Minuscola(char c) { return testo_interno::minuscole[static_cast<unsigned char>(c)]; }
char Maiuscola(char c);  // ÿ -> Ÿ; ß and other letters without a capital stay
Testo Minuscolo(Vista testo);
Testo Maiuscolo(Vista testo);

// Order of two texts ignoring case, by byte value after folding: below zero, zero, above zero.
int Confronta(Vista a, Vista b);
bool Uguali(Vista a, Vista b);            // ignoring case
bool Inizia(Vista testo, Vista inizio);   // ignoring case
bool Contiene(Vista testo, Vista parte);  // ignoring case; an empty part is in every text

constexpr bool E_Cifra(char c) { return c >= '0' && c <= '9'; }
bool Tutte_Cifre(Vista testo);  // at least one
bool Tutte_Cifre(Vista testo, std::size_t quante);

Vista Pulito(Vista testo);  // without the blanks (0x20 only) at both ends
Vista Pulito_Destra(Vista testo);
Vista Sinistra(Vista testo, std::size_t n);  // the first n characters, or all
Vista Destra(Vista testo, std::size_t n);    // the last n characters, or all
Vista Da(Vista testo,
         std::size_t posizione);        // from that character on, counted from 1; beyond the end: empty
Testo Pad(Vista testo, std::size_t n);  // cut or filled with blanks on the right to n characters
Testo Pad_Sinistra(Vista testo, std::size_t n,
                   char con = ' ');  // filled on the left to n; longer ones stay whole
Testo Sostituisci_Tutti(Vista testo, Vista cosa, Vista con);

// The lines of a text: CR LF, LF and CR end a line; a last line needs no end. An empty text has no line.
// The views point into `contenuto`.
std::vector<Vista> Righe(Vista contenuto);

// The content without the UTF-8 mark that some editors put in front of a file, where it would hide the first
// field.
Vista Senza_Marca(Vista contenuto);

// The text without TAB, CR, LF and NUL, which would split a field or a line of our files when read back.
Testo Senza_Separatori(Vista testo);

// Removes the first TAB-separated field from `riga` and returns it trimmed; without a TAB returns `riga` as
// it stands, untrimmed, and leaves it empty, so that every later field of a short line is empty.
Vista Prossimo_Campo(Vista& riga);
// The text behind the last TAB; `riga` keeps what stands before it. Without a TAB: all of `riga`, unchanged.
Vista Ultimo_Campo(Vista& riga);

inline constexpr char TAB = '\t';
constexpr bool Fine_Campo(char c) { return c == TAB || c == '\r' || c == '\n'; }
// The first of these in a text that ends at `fine`, or `fine`. Eight bytes are passed at once while none is a
// control character, as nearly all of a day file are.
inline const char* Trova_Fine_Campo(const char* qui, const char* fine) {
  constexpr std::uint64_t in_ognuno = 0x0101010101010101, alto = in_ognuno << 7U, oltre = '\r' + 1;
  std::uint64_t otto = 0;
  while (static_cast<std::size_t>(fine - qui) >= sizeof otto) {
    std::memcpy(&otto, qui, sizeof otto);
    const std::uint64_t comandi =
        (otto - in_ognuno * oltre) & ~otto & alto;  // 80 where a byte is below `oltre`
    const char* dopo = qui + sizeof otto;
    if (comandi == 0) {
      qui = dopo;
      continue;
    }
    if constexpr (std::endian::native == std::endian::little) qui += std::countr_zero(comandi) / 8;
    for (; qui != dopo; ++qui)
      if (Fine_Campo(*qui)) return qui;
  }
  while (qui != fine && !Fine_Campo(*qui)) ++qui;
  return qui;
}
inline constexpr Vista FINE_RIGA = "\r\n";  // every text file of the firm

#include "core/testo.h"

#include <array>
#include <optional>

namespace {

constexpr unsigned char Byte(char c) { return static_cast<unsigned char>(c); }

constexpr bool Minuscola_Accentata(unsigned b) {
  return b >= 0xE0 && b <= 0xFE && b != 0xF7;
}  // not the division sign

// Letters of the code page outside both the ASCII and the accented block: capital, small.
constexpr unsigned char lettere_sparse[][2] = {{0x8A, 0x9A}, {0x8C, 0x9C}, {0x8E, 0x9E}, {0x9F, 0xFF}};

struct Piegature {
  std::array<char, 256> minuscole{}, maiuscole{};
  constexpr Piegature() {
    for (unsigned b = 0; b < 256; ++b) minuscole[b] = maiuscole[b] = static_cast<char>(b);
    for (unsigned b = 'a'; b <= 'z'; ++b) Coppia(b - 0x20, b);
    for (unsigned b = 0xE0; b <= 0xFE; ++b)
      if (Minuscola_Accentata(b)) Coppia(b - 0x20, b);
    for (const auto& [grande, piccola] : lettere_sparse) Coppia(grande, piccola);
  }
  constexpr void Coppia(unsigned grande, unsigned piccola) {
    minuscole[grande] = static_cast<char>(piccola);
    maiuscole[piccola] = static_cast<char>(grande);
  }
};

constexpr Piegature piegature;

constexpr bool Continua(unsigned char b) { return (b & 0xC0U) == 0x80U; }

// Bytes that follow a first byte and the range of the second one, which keeps out overlong forms, surrogates
// and what lies beyond the last code point.
struct Sequenza {
  std::size_t seguono = 0;
  unsigned char minimo = 0x80, massimo = 0xBF;
};

constexpr std::optional<Sequenza> Sequenza_Di(unsigned char primo) {
  if (primo < 0x80) return Sequenza{};
  if (primo < 0xC2 || primo > 0xF4) return std::nullopt;
  if (primo < 0xE0) return Sequenza{1};
  if (primo == 0xE0) return Sequenza{2, 0xA0, 0xBF};
  if (primo == 0xED) return Sequenza{2, 0x80, 0x9F};
  if (primo < 0xF0) return Sequenza{2};
  if (primo == 0xF0) return Sequenza{3, 0x90, 0xBF};
  if (primo == 0xF4) return Sequenza{3, 0x80, 0x8F};
  return Sequenza{3};
}

constexpr char32_t Bit_Del_Primo(unsigned char primo, std::size_t seguono) {
  constexpr unsigned char maschere[] = {0x7F, 0x1F, 0x0F, 0x07};
  return primo & maschere[seguono];
}

// The character at the front of `utf8`, taken away from it; a broken sequence counts as one character.
char Carattere(std::string_view& utf8) {
  const unsigned char primo = Byte(utf8.front());
  utf8.remove_prefix(1);
  const auto sequenza = Sequenza_Di(primo);
  if (!sequenza) return '?';
  char32_t codice = Bit_Del_Primo(primo, sequenza->seguono);
  for (std::size_t k = 0; k < sequenza->seguono; ++k) {
    if (utf8.empty()) return '?';
    const unsigned char b = Byte(utf8.front());
    const bool buono = k == 0 ? b >= sequenza->minimo && b <= sequenza->massimo : Continua(b);
    if (!buono) return '?';
    codice = (codice << 6U) | (b & 0x3FU);
    utf8.remove_prefix(1);
  }
  return testo_interno::Da_Codice(codice);
}

void Aggiungi_Utf8(std::string& utf8, char16_t codice) {
  if (codice < 0x80) {
    utf8 += static_cast<char>(codice);
    return;
  }
  if (codice < 0x800) {
    utf8 += static_cast<char>(0xC0U | (codice >> 6U));
  } else {
    utf8 += static_cast<char>(0xE0U | (codice >> 12U));
    utf8 += static_cast<char>(0x80U | ((codice >> 6U) & 0x3FU));
  }
  utf8 += static_cast<char>(0x80U | (codice & 0x3FU));
}

bool Uguali_In(Vista testo, std::size_t posizione, Vista parte) {
  for (std::size_t i = 0; i < parte.size(); ++i)
    if (Minuscola(testo[posizione + i]) != Minuscola(parte[i])) return false;
  return true;
}

}  // namespace

constinit const std::array<char, 256> testo_interno::minuscole = piegature.minuscole;

Testo Da_Utf8(std::string_view utf8) {
  Testo testo;
  testo.reserve(utf8.size());
  while (!utf8.empty()) testo += Carattere(utf8);
  return testo;
}

std::string In_Utf8(Vista testo) {
  std::string utf8;
  utf8.reserve(testo.size() + testo.size() / 8);
  for (const char c : testo) {
    const unsigned char b = Byte(c);
    Aggiungi_Utf8(utf8, b >= 0x80 && b < 0xA0 ? testo_interno::alti[b - 0x80U] : static_cast<char16_t>(b));
  }
  return utf8;
}

char Maiuscola(char c) { return piegature.maiuscole[Byte(c)]; }

Testo Minuscolo(Vista testo) {
  Testo piegato(testo);
  for (char& c : piegato) c = Minuscola(c);
  return piegato;
}

Testo Maiuscolo(Vista testo) {
  Testo piegato(testo);
  for (char& c : piegato) c = Maiuscola(c);
  return piegato;
}

int Confronta(Vista a, Vista b) {
  const std::size_t comuni = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < comuni; ++i) {
    const int differenza = Byte(Minuscola(a[i])) - Byte(Minuscola(b[i]));
    if (differenza != 0) return differenza;
  }
  if (a.size() == b.size()) return 0;
  return a.size() < b.size() ? -1 : 1;
}

bool Uguali(Vista a, Vista b) { return a.size() == b.size() && Uguali_In(a, 0, b); }

bool Inizia(Vista testo, Vista inizio) {
  return testo.size() >= inizio.size() && Uguali_In(testo, 0, inizio);
}

bool Contiene(Vista testo, Vista parte) {
  if (parte.empty()) return true;
  if (parte.size() > testo.size()) return false;
  const char prima = Minuscola(parte.front());
  for (std::size_t i = 0; i + parte.size() <= testo.size(); ++i)
    if (Minuscola(testo[i]) == prima && Uguali_In(testo, i, parte)) return true;
  return false;
}

Vista Pulito(Vista testo) {
  const std::size_t prima = testo.find_first_not_of(' ');
  if (prima == Vista::npos) return testo.substr(0, 0);
  return Pulito_Destra(testo.substr(prima));
}

Vista Pulito_Destra(Vista testo) {
  while (!testo.empty() && testo.back() == ' ') testo.remove_suffix(1);
  return testo;
}

Vista Sinistra(Vista testo, std::size_t n) { return testo.substr(0, n); }

Vista Destra(Vista testo, std::size_t n) {
  return n >= testo.size() ? testo : testo.substr(testo.size() - n);
}

Vista Da(Vista testo, std::size_t posizione) {
  if (posizione <= 1) return testo;
  return testo.substr(std::min(posizione - 1, testo.size()));
}

Testo Pad(Vista testo, std::size_t n) {
  Testo colonna(testo.substr(0, n));
  colonna.resize(n, ' ');
  return colonna;
}

Testo Pad_Sinistra(Vista testo, std::size_t n, char con) {
  Testo colonna(n > testo.size() ? n - testo.size() : 0, con);
  return colonna.append(testo);
}

bool Tutte_Cifre(Vista testo) { return !testo.empty() && std::all_of(testo.begin(), testo.end(), E_Cifra); }

bool Tutte_Cifre(Vista testo, std::size_t quante) { return testo.size() == quante && Tutte_Cifre(testo); }

Testo Sostituisci_Tutti(Vista testo, Vista cosa, Vista con) {
  if (cosa.empty()) return Testo(testo);
  Testo nuovo;
  nuovo.reserve(testo.size());
  for (;;) {
    const std::size_t dove = testo.find(cosa);
    nuovo.append(testo.substr(0, dove));
    if (dove == Vista::npos) return nuovo;
    nuovo.append(con);
    testo.remove_prefix(dove + cosa.size());
  }
}

std::vector<Vista> Righe(Vista contenuto) {
  std::vector<Vista> righe;
  std::size_t inizio = 0;
  for (std::size_t i = 0; i < contenuto.size(); ++i) {
    const char c = contenuto[i];
    if (c != '\n' && c != '\r') continue;
    righe.push_back(contenuto.substr(inizio, i - inizio));
    if (c == '\r' && i + 1 < contenuto.size() && contenuto[i + 1] == '\n') ++i;
    inizio = i + 1;
  }
  if (inizio < contenuto.size()) righe.push_back(contenuto.substr(inizio));
  return righe;
}

Vista Senza_Marca(Vista contenuto) {
  constexpr Vista marca = "\xEF\xBB\xBF";
  if (contenuto.starts_with(marca)) contenuto.remove_prefix(marca.size());
  return contenuto;
}

Testo Senza_Separatori(Vista testo) {
  Testo pulito;
  pulito.reserve(testo.size());
  for (const char c : testo)
    if (c != TAB && c != '\r' && c != '\n' && c != '\0') pulito += c;
  return pulito;
}

Vista Prossimo_Campo(Vista& riga) {
  const std::size_t tab = riga.find(TAB);
  const Vista campo = riga.substr(0, tab);
  if (tab == Vista::npos) {
    riga = riga.substr(riga.size());
    return campo;
  }
  riga.remove_prefix(tab + 1);
  return Pulito(campo);
}

Vista Ultimo_Campo(Vista& riga) {
  const std::size_t tab = riga.rfind(TAB);
  if (tab == Vista::npos) return riga;
  const Vista campo = riga.substr(tab + 1);
  riga = riga.substr(0, tab);
  return campo;
}

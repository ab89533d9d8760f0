#include "core/numeri.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

struct Numero_Scritto {
  std::size_t lunghezza = 0;  // characters from the start of the text: sign, digits, separator
  bool cifre = false;         // there is at least one digit
};

// How far a number reaches at the start of a text: a sign, digits, one separator, digits.
Numero_Scritto Misura(Vista testo, char separatore) {
  Numero_Scritto scritto;
  bool separato = false;
  for (std::size_t i = 0; i < testo.size(); ++i) {
    const char c = testo[i];
    if (E_Cifra(c)) {
      scritto.cifre = true;
    } else if (c == separatore && !separato) {
      separato = true;
    } else if (i != 0 || (c != '-' && c != '+')) {
      break;
    }
    scritto.lunghezza = i + 1;
  }
  return scritto;
}

// The separator by which a number text goes: the machine's, or the other one where it stands alone.
char Separatore_Di(Vista testo, char separatore) {
  const char altro = Altro_Separatore(separatore);
  const bool solo_altro = testo.find(separatore) == Vista::npos && testo.find(altro) != Vista::npos;
  return solo_altro ? altro : separatore;
}

// In so many characters the digits are a whole number that a double holds exactly, and so is the power of ten
// by which the separator divides it: their quotient is the double nearest to the text.
constexpr std::size_t caratteri_esatti = 15;
constexpr auto potenze_di_dieci = [] {
  std::array<double, caratteri_esatti + 1> potenze{1};
  for (std::size_t i = 1; i < potenze.size(); ++i) potenze[i] = potenze[i - 1] * 10;
  return potenze;
}();

double Converti_Corto(Vista numero, char separatore) {
  std::int64_t cifre = 0;
  std::size_t decimali = 0;
  bool separato = false;
  for (const char c : numero) {
    if (c == separatore) {
      separato = true;
    } else if (E_Cifra(c)) {
      cifre = cifre * 10 + (c - '0');
      if (separato) ++decimali;
    }
  }
  const double valore = static_cast<double>(cifre) / potenze_di_dieci[decimali];
  return numero.front() == '-' && cifre != 0 ? -valore : valore;  // "-0" is 0
}

// A text that Misura has found to be a number. One too long for a double is the largest double.
double Converti(Vista numero, char separatore) {
  if (numero.size() <= caratteri_esatti) return Converti_Corto(numero, separatore);
  Testo testo(numero.front() == '+' ? numero.substr(1) : numero);
  std::replace(testo.begin(), testo.end(), separatore, '.');
  double valore = 0;
  const auto esito =
      std::from_chars(testo.data(), testo.data() + testo.size(), valore, std::chars_format::fixed);
  if (esito.ec == std::errc()) return valore + 0.0;  // "-0" is 0
  const Vista intera = Vista(testo).substr(0, testo.find('.'));
  if (intera.find_first_of("123456789") == Vista::npos) return 0;
  const double massimo = std::numeric_limits<double>::max();
  return testo.front() == '-' ? -massimo : massimo;
}

// A number as a person reads it: 0.CIFRE times ten to the PUNTO, at most 15 digits, none for zero.
struct Decimale {
  bool negativo = false;
  Testo cifre;
  int punto = 0;

  void Togli_Zeri() {
    while (!cifre.empty() && cifre.back() == '0') cifre.pop_back();
    if (!cifre.empty()) return;
    negativo = false;
    punto = 0;
  }
};

Decimale Scomponi(double valore) {
  if (std::isnan(valore)) return {};
  const double massimo = std::numeric_limits<double>::max();
  valore = std::clamp(valore, -massimo, massimo);
  std::array<char, 32> buffer{};
  const auto fine = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(valore),
                                  std::chars_format::scientific, 14);
  const Vista scritto(buffer.data(), static_cast<std::size_t>(fine.ptr - buffer.data()));
  const std::size_t e = scritto.find('e');
  Decimale decimale;
  decimale.negativo = valore < 0;
  decimale.cifre = Testo(scritto.substr(0, 1)).append(scritto.substr(2, e - 2));
  const char* esponente = scritto.data() + e + (scritto[e + 1] == '+' ? 2 : 1);
  std::from_chars(esponente, fine.ptr, decimale.punto);
  ++decimale.punto;
  decimale.Togli_Zeri();
  return decimale;
}

// Half away from zero to so many digits behind the point.
void Arrotonda(Decimale& decimale, int decimali) {
  const int tenute = decimale.punto + decimali;
  if (tenute >= static_cast<int>(decimale.cifre.size())) return;
  if (tenute < 0) {
    decimale = {};
    return;
  }
  const auto taglio = static_cast<std::size_t>(tenute);
  const bool in_su = decimale.cifre[taglio] >= '5';
  decimale.cifre.resize(taglio);
  if (in_su) {
    auto nove = decimale.cifre.rbegin();
    for (; nove != decimale.cifre.rend() && *nove == '9'; ++nove) *nove = '0';
    if (nove != decimale.cifre.rend()) {
      ++*nove;
    } else {
      decimale.cifre.insert(decimale.cifre.begin(), '1');
      ++decimale.punto;
    }
  }
  decimale.Togli_Zeri();
}

Testo Parte_Intera(const Decimale& decimale) {
  if (decimale.punto <= 0) return {};
  Testo intera = decimale.cifre.substr(0, static_cast<std::size_t>(decimale.punto));
  intera.resize(static_cast<std::size_t>(decimale.punto), '0');
  return intera;
}

Testo Parte_Decimale(const Decimale& decimale) {
  if (decimale.punto >= static_cast<int>(decimale.cifre.size())) return {};
  if (decimale.punto >= 0) return decimale.cifre.substr(static_cast<std::size_t>(decimale.punto));
  return Testo(static_cast<std::size_t>(-decimale.punto), '0').append(decimale.cifre);
}

// A classic pattern taken apart: literal text, digit positions, literal text.
struct Modello_Numero {
  Vista prima, dopo;
  bool posti = false;        // there is a digit position at all
  std::size_t interi = 0;    // digits before the point that are always written
  std::size_t decimali = 0;  // digits behind the point that are always written
  std::size_t posti_decimali = 0;
  bool punto = false, migliaia = false;
};

Modello_Numero Leggi_Modello(Vista modello) {
  Modello_Numero letto;
  const std::size_t inizio = std::min(modello.find_first_of("#0."), modello.size());
  letto.prima = modello.substr(0, inizio);
  std::size_t i = inizio;
  for (; i < modello.size(); ++i) {
    const char c = modello[i];
    if (c == '.' && !letto.punto) {
      letto.punto = true;
    } else if (c == ',' && !letto.punto) {
      letto.migliaia = true;
    } else if ((c == '#' || c == '0') && letto.punto) {
      letto.posti = true;
      ++letto.posti_decimali;
      if (c == '0') letto.decimali = letto.posti_decimali;
    } else if (c == '#' || c == '0') {
      letto.posti = true;
      if (c == '0' || letto.interi > 0) ++letto.interi;
    } else {
      break;
    }
  }
  letto.dopo = modello.substr(i);
  return letto;
}

Testo Con_Migliaia(Vista cifre, char segno) {
  Testo gruppi;
  for (std::size_t i = 0; i < cifre.size(); ++i) {
    if (i > 0 && (cifre.size() - i) % 3 == 0) gruppi += segno;
    gruppi += cifre[i];
  }
  return gruppi;
}

}  // namespace

std::optional<double> Numero(Vista testo, char separatore) {
  testo = Pulito(testo);
  const char separa = Separatore_Di(testo, separatore);
  const Numero_Scritto scritto = Misura(testo, separa);
  if (!scritto.cifre || scritto.lunghezza != testo.size()) return std::nullopt;
  return Converti(testo, separa);
}

double Valore(Vista testo, char separatore) {
  testo = Pulito(testo);
  // Only the number's own separators count: a comma in a remark behind "12.50" must not change the number.
  const std::size_t segno = Inizia(testo, "-") || Inizia(testo, "+") ? 1 : 0;
  testo = testo.substr(0, testo.find_first_not_of("0123456789.,", segno));
  const char separa = Separatore_Di(testo, separatore);
  const Numero_Scritto scritto = Misura(testo, separa);
  return scritto.cifre ? Converti(testo.substr(0, scritto.lunghezza), separa) : 0;
}

int Intero(Vista testo, char separatore) {
  const double valore = Valore(testo, separatore);
  return static_cast<int>(
      std::clamp(valore, double{std::numeric_limits<int>::min()}, double{std::numeric_limits<int>::max()}));
}

Testo Piano(double valore, char separatore) {
  const Decimale decimale = Scomponi(valore);
  Testo testo(decimale.negativo ? 1 : 0, '-');
  testo.append(Pad_Sinistra(Parte_Intera(decimale), 1, '0'));
  const Testo frazione = Parte_Decimale(decimale);
  if (!frazione.empty()) (testo += separatore) += frazione;
  return testo;
}

Testo Formato(double valore, Vista modello, char separatore) {
  const Modello_Numero letto = Leggi_Modello(modello);
  if (!letto.posti) return Testo(modello);
  Decimale decimale = Scomponi(valore);
  Arrotonda(decimale, static_cast<int>(letto.posti_decimali));
  Testo intera = Pad_Sinistra(Parte_Intera(decimale), letto.interi, '0');
  if (letto.migliaia) intera = Con_Migliaia(intera, Altro_Separatore(separatore));
  Testo frazione = Parte_Decimale(decimale);
  if (frazione.size() < letto.decimali) frazione.resize(letto.decimali, '0');

  Testo testo(letto.prima);
  if (decimale.negativo) testo += '-';
  testo += intera;
  if (letto.punto) testo += separatore;
  return testo.append(frazione).append(letto.dopo);
}

Testo Formato(Vista testo, Vista modello, char separatore) {
  if (testo.empty()) return {};
  return Formato(Valore(testo, separatore), modello, separatore);
}

// The machine's separator has no say on paper: the parameter keeps the calls alike for every number.
Testo Euro2(double valore, char) { return Formato(valore, "#0.00", ','); }
Testo Euro2_Migliaia(double valore, char separatore) { return NumN_Migliaia(valore, 2, separatore); }
Testo Num3_Migliaia(double valore, char separatore) { return NumN_Migliaia(valore, 3, separatore); }

Testo NumN_Migliaia(double valore, int decimali, char) {
  const Testo zeri(static_cast<std::size_t>(std::max(decimali, 0)), '0');
  return Formato(valore, "###,###,###,##0." + zeri, ',');
}

Testo Correggi_Separatore(Vista testo, char separatore) {
  Testo corretto(testo);
  const std::size_t dove = corretto.find(Altro_Separatore(separatore));
  if (dove != Testo::npos) corretto[dove] = separatore;
  return corretto;
}

Testo Normalizza_Numero(Vista testo, char separatore) {
  Testo normale(testo);
  std::replace(normale.begin(), normale.end(), Separatore_Di(testo, separatore), separatore);
  return normale;
}

Testo Punto_Per_Virgola(Vista testo) {
  Testo nuovo(testo);
  const std::size_t virgola = nuovo.find(',');
  if (virgola != Testo::npos && nuovo.find('.') != Testo::npos) nuovo[virgola] = '.';
  return nuovo;
}

bool Numerico(Vista testo, char separatore) { return Numero(testo, separatore).has_value(); }

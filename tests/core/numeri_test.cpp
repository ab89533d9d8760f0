#include "core/numeri.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

namespace {

// The cases are written with ',' as the machine's separator; on a point machine the two change places.
Testo Per(Vista testo, char separatore) {
  Testo scambiato(testo);
  if (separatore == ',') return scambiato;
  for (char& c : scambiato)
    if (c == ',' || c == '.') c = Altro_Separatore(c);
  return scambiato;
}

class Numeri : public testing::TestWithParam<char> {
 protected:
  char s = GetParam();
  Testo Qui(Vista testo) const { return Per(testo, s); }
};

INSTANTIATE_TEST_SUITE_P(Macchine, Numeri, testing::Values(',', '.'),
                         [](const auto& caso) { return caso.param == ',' ? "Virgola" : "Punto"; });

TEST_P(Numeri, NumeroLeggeIlTestoIntero) {
  const struct {
    Vista testo;
    double valore;
  } casi[] = {{"12", 12},    {"12,5", 12.5}, {"12.50", 12.5}, {" -3,25 ", -3.25},
              {"+4", 4},     {",5", 0.5},    {".5", 0.5},     {"5,", 5},
              {"5.", 5},     {"0", 0},       {"-0", 0},       {"0010,10", 10.1},
              {"-,5", -0.5}, {"9999", 9999}, {"0,1", 0.1},    {"+,25", 0.25}};
  for (const auto& caso : casi) {
    const auto numero = Numero(Qui(caso.testo), s);
    ASSERT_TRUE(numero.has_value()) << caso.testo;
    EXPECT_EQ(*numero, caso.valore) << caso.testo;
    EXPECT_FALSE(std::signbit(*numero) && *numero == 0) << caso.testo;
    EXPECT_TRUE(Numerico(Qui(caso.testo), s));
  }
}

TEST_P(Numeri, NumeroRifiutaIlResto) {
  for (const Vista testo :
       {"",      " ",     "-",        "+",   ",",   ".",   "-,",  "a",    "12a",     "1 2",
        "1e5",   "1E5",   "0x10",     "inf", "nan", "--1", "+-1", "1-",   "1.234,5", "1,234.5",
        "1,2,3", "1.2.3", "12,50 kg", "12%", "- 1", "\t1", "1\n", "1\xA0"}) {
    EXPECT_FALSE(Numero(Qui(testo), s).has_value()) << testo;
    EXPECT_FALSE(Numerico(Qui(testo), s)) << testo;
  }
  EXPECT_FALSE(Numero(Vista("1\0", 2), s).has_value());
}

TEST_P(Numeri, ValoreLeggeIlNumeroDavanti) {
  const struct {
    Vista testo;
    double valore;
  } casi[] = {{"22%", 22},     {"007 (ds)", 7},
              {"NA5", 0},      {"", 0},
              {"   ", 0},      {" 12,5 kg", 12.5},
              {"12.50", 12.5}, {"-3x", -3},
              {"+3x", 3},      {"-", 0},
              {"-,", 0},       {",5", 0.5},
              {"1e5", 1},      {"0x10", 0},
              {"1.234,5", 1},  {"1,234.5", 1.234},
              {"1.2.3", 1.2},  {"12.50 (a, b)", 12.5},
              {"3. Orata", 3}, {"--1", 0},
              {"1-2", 1},      {"-0", 0},
              {"inf", 0},      {"5 6", 5},
              {"- 5", 0},      {"+-5", 0}};
  for (const auto& caso : casi) {
    EXPECT_EQ(Valore(Qui(caso.testo), s), caso.valore) << caso.testo;
    EXPECT_FALSE(std::signbit(Valore(Qui(caso.testo), s)) && caso.valore == 0) << caso.testo;
  }
}

TEST_P(Numeri, InteroTroncaESiFermaAiLimiti) {
  EXPECT_EQ(Intero(Qui("12,9"), s), 12);
  EXPECT_EQ(Intero(Qui("-12,9"), s), -12);
  EXPECT_EQ(Intero("0042x", s), 42);
  EXPECT_EQ(Intero("x", s), 0);
  EXPECT_EQ(Intero("2147483647", s), std::numeric_limits<int>::max());
  EXPECT_EQ(Intero("2147483648", s), std::numeric_limits<int>::max());
  EXPECT_EQ(Intero("-99999999999999999999", s), std::numeric_limits<int>::min());
  EXPECT_EQ(Intero(Testo(5000, '9'), s), std::numeric_limits<int>::max());
}

TEST_P(Numeri, CifreSenzaFine) {
  const double massimo = std::numeric_limits<double>::max();
  EXPECT_EQ(Numero(Testo(400, '9'), s), massimo);
  EXPECT_EQ(Numero("-" + Testo(400, '9'), s), -massimo);
  EXPECT_EQ(Numero(Testo(100000, '0') + "7", s), 7);
  EXPECT_EQ(Valore(Qui("0," + Testo(5000, '0') + "1"), s), 0);
  EXPECT_EQ(Valore(Qui("0," + Testo(5000, '3')), s), 1.0 / 3);
  EXPECT_EQ(Formato(massimo, "#0.00", s).size(), 309U + 3);
}

// Prices and weights are short texts, which are read another way than long ones: both give the double that is
// nearest to what is written.
TEST_P(Numeri, CortiELunghiSonoIlDoublePiuVicino) {
  std::uint64_t caso = 20250314;
  for (int giro = 0; giro < 20000; ++giro) {
    caso = caso * 6364136223846793005U + 1442695040888963407U;
    Testo cifre = std::to_string(caso >> 7U);
    cifre.resize(1 + (caso >> 33U) % 19, '7');
    const std::size_t posto = (caso >> 40U) % (cifre.size() + 1);
    if (giro % 5 != 0) cifre.insert(posto, 1, '.');
    if (giro % 3 == 0) cifre.insert(0, 1, '-');
    double atteso = 0;
    std::from_chars(cifre.data(), cifre.data() + cifre.size(), atteso);
    Testo testo = cifre;
    std::ranges::replace(testo, '.', s);
    ASSERT_EQ(Numero(testo, s), atteso) << testo;
    ASSERT_EQ(Valore(testo + " kg", s), atteso) << testo;
  }
  EXPECT_FALSE(std::signbit(*Numero(Qui("-0,00"), s)));
}

TEST_P(Numeri, QualunqueByteSiLegge) {
  for (int a = 0; a < 256; ++a)
    for (const Vista resto : {"", "1", ",5", "-", " "}) {
      const Testo testo = Testo(1, static_cast<char>(a)).append(resto);
      const double valore = Valore(testo, s);
      EXPECT_TRUE(std::isfinite(valore));
      EXPECT_EQ(Numero(testo, s).value_or(valore), valore) << testo;
    }
}

TEST_P(Numeri, PianoSenzaZeriSenzaEsponente) {
  const struct {
    double valore;
    Vista testo;
  } casi[] = {{0.1 + 0.2, "0,3"},
              {12.50, "12,5"},
              {0, "0"},
              {-0.0, "0"},
              {100, "100"},
              {0.5, "0,5"},
              {-0.25, "-0,25"},
              {1e15, "1000000000000000"},
              {1e20, "100000000000000000000"},
              {1e-7, "0,0000001"},
              {1234.5, "1234,5"},
              {1.0 / 3, "0,333333333333333"},
              {2.0 / 3, "0,666666666666667"},
              {12.5 + 1, "13,5"},
              {123456789012345.6, "123456789012346"}};
  for (const auto& caso : casi) EXPECT_EQ(Piano(caso.valore, s), Qui(caso.testo));
  EXPECT_EQ(Piano(std::nan(""), s), "0");
  EXPECT_EQ(Piano(std::numeric_limits<double>::infinity(), s).size(), 309U);
  EXPECT_EQ(Piano(-std::numeric_limits<double>::infinity(), s).front(), '-');
}

TEST_P(Numeri, PianoSiRilegge) {
  for (int centesimi = -5000; centesimi <= 5000; ++centesimi) {
    const double valore = centesimi / 100.0;
    EXPECT_EQ(Numero(Piano(valore, s), s), valore);
  }
}

TEST_P(Numeri, FormatoDiOgniModello) {
  const struct {
    double valore;
    Vista modello, testo;
  } casi[] = {
      {0, "#.00", ",00"},
      {0.5, "#.00", ",50"},
      {-0.5, "#.00", "-,50"},
      {12.5, "#.00", "12,50"},
      {0, "#", ""},
      {0.4, "#", ""},
      {-0.4, "#", ""},
      {0.5, "#", "1"},
      {10, "00.#", "10,"},  // the separator is left standing
      {4, "00.#", "04,"},
      {10.5, "00.#", "10,5"},
      {0.25, "##.000", ",250"},
      {5, "0#.00", "05,00"},
      {7, "000 ", "007 "},
      {1234, "000 ", "1234 "},
      {12.6, "#0", "13"},
      {0, "#0", "0"},
      {-12, "#000.00", "-012,00"},
      {9.8, "#000.00", "009,80"},
      {12.5, "#00.00", "12,50"},
      {-12, "00000.000", "-00012,000"},
      {4, "00", "04"},
      {123, "0000", "0123"},
      {1, "0000", "0001"},
      {0, "#0.00", "0,00"},
      {1234.5, "#0.00", "1234,50"},
      {0, "###,###,###,##0.00", "0,00"},
      {999, "###,###,###,##0.00", "999,00"},
      {1000, "###,###,###,##0.00", "1.000,00"},
      {1234567.891, "###,###,###,##0.00", "1.234.567,89"},
      {-1234.5, "###,###,###,##0.00", "-1.234,50"},
      {1234567890123.0, "###,###,###,##0.00", "1.234.567.890.123,00"},
      {999999.995, "###,###,###,##0.00", "1.000.000,00"},
      {12, " -0", " -12"},
      {5, "kg", "kg"},
      {5, "", ""},
  };
  for (const auto& caso : casi)
    EXPECT_EQ(Formato(caso.valore, caso.modello, s), Qui(caso.testo)) << caso.valore << " " << caso.modello;
}

TEST_P(Numeri, FormatoArrotondaComeSiLegge) {
  const struct {
    double valore;
    Vista modello, testo;
  } casi[] = {
      {1.005, "#0.00", "1,01"},
      {2.675, "#0.00", "2,68"},
      {-0.125, "#0.00", "-0,13"},
      {0.125, "#0.00", "0,13"},
      {0.004, "#0.00", "0,00"},
      {-0.004, "#0.00", "0,00"},  // no minus before nothing
      {-0.005, "#0.00", "-0,01"},
      {0.5, "#0", "1"},
      {1.5, "#0", "2"},
      {2.5, "#0", "3"},
      {-2.5, "#0", "-3"},
      {9.995, "#0.00", "10,00"},
      {99.999, "#0.00", "100,00"},
      {0.999, "#.00", "1,00"},
      {0.05, "#0.0", "0,1"},
      {0.0499, "#0.0", "0,0"},
      {1e-300, "#0.00", "0,00"},
      {0.1 + 0.2, "#0.000", "0,300"},
      {1.0049999999999999, "#0.00", "1,01"},  // fifteen digits read 1.005
      {1.00499999999999, "#0.00", "1,00"},
      {679.875, "#0.00", "679,88"},
      {664.875, "#0.00", "664,88"},
  };
  for (const auto& caso : casi)
    EXPECT_EQ(Formato(caso.valore, caso.modello, s), Qui(caso.testo)) << caso.valore << " " << caso.modello;
  EXPECT_EQ(Formato(std::nan(""), "#0.00", s), Qui("0,00"));
}

// Whole thousandths read half away from zero, checked against integers.
TEST_P(Numeri, FormatoDiOgniMillesimo) {
  for (int millesimi = -20000; millesimi <= 20000; ++millesimi) {
    const int centesimi = (std::abs(millesimi) + 5) / 10;
    Testo atteso = millesimi < 0 && centesimi > 0 ? "-" : "";
    atteso += std::to_string(centesimi / 100) + s + Pad_Sinistra(std::to_string(centesimi % 100), 2, '0');
    ASSERT_EQ(Formato(millesimi / 1000.0, "#0.00", s), atteso) << millesimi;
  }
}

TEST_P(Numeri, FormatoDiUnTesto) {
  EXPECT_EQ(Formato(Vista(""), "#00.00", s), "");  // list line of the placeholder row
  EXPECT_EQ(Formato(Vista("abc"), "#00.00", s), Qui("00,00"));
  EXPECT_EQ(Formato(Qui("12,5"), "#00.00", s), Qui("12,50"));
  EXPECT_EQ(Formato(Qui("12.5"), "#00.00", s), Qui("12,50"));
  EXPECT_EQ(Formato(Vista("007 (ds)"), "000", s), "007");
  EXPECT_EQ(Formato(Vista("-3"), "#000.00", s), Qui("-003,00"));
}

TEST_P(Numeri, SullaCartaSempreItaliano) {
  EXPECT_EQ(Euro2(1234.5, s), "1234,50");
  EXPECT_EQ(Euro2_Migliaia(1234.5, s), "1.234,50");
  EXPECT_EQ(Num3_Migliaia(1234.5, s), "1.234,500");
  EXPECT_EQ(NumN_Migliaia(1234567.125, 2, s), "1.234.567,13");
  EXPECT_EQ(NumN_Migliaia(1234.5, 1, s), "1.234,5");
  EXPECT_EQ(NumN_Migliaia(1234, 0, s), "1.234,");
  EXPECT_EQ(Euro2(-0.001, s), "0,00");
  EXPECT_EQ(Euro2_Migliaia(0, s), "0,00");
  EXPECT_EQ(Euro2_Migliaia(-1000, s), "-1.000,00");
}

TEST_P(Numeri, CorreggiSoloIlPrimo) {
  EXPECT_EQ(Correggi_Separatore(Qui("1.234.5"), s), Qui("1,234.5"));
  EXPECT_EQ(Correggi_Separatore(Qui("12.5"), s), Qui("12,5"));
  EXPECT_EQ(Correggi_Separatore(Qui("12,5"), s), Qui("12,5"));
  EXPECT_EQ(Correggi_Separatore(Qui("1,2.5"), s), Qui("1,2,5"));
  EXPECT_EQ(Correggi_Separatore("", s), "");
}

TEST_P(Numeri, NormalizzaTuttiSeSoli) {
  EXPECT_EQ(Normalizza_Numero(Qui("1.2.3"), s), Qui("1,2,3"));
  EXPECT_EQ(Normalizza_Numero(Qui("1.234,5"), s), Qui("1.234,5"));
  EXPECT_EQ(Normalizza_Numero(Qui("12,5"), s), Qui("12,5"));
  EXPECT_EQ(Normalizza_Numero("125", s), "125");
  EXPECT_EQ(Normalizza_Numero("", s), "");
}

TEST(Numeri_Testi, PuntoPerVirgolaSoloConTuttiEDue) {
  EXPECT_EQ(Punto_Per_Virgola("1.2,3"), "1.2.3");
  EXPECT_EQ(Punto_Per_Virgola("1,2.3,4"), "1.2.3,4");
  EXPECT_EQ(Punto_Per_Virgola("10,5"), "10,5");
  EXPECT_EQ(Punto_Per_Virgola("10.5"), "10.5");
  EXPECT_EQ(Punto_Per_Virgola(""), "");
}

}  // namespace

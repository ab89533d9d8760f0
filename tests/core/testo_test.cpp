#include "core/testo.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

Testo Tutti_I_Byte() {
  Testo byte;
  for (int b = 0; b < 256; ++b) byte += static_cast<char>(b);
  return byte;
}

TEST(Testo_Codici, OgniByteTornaUguale) {
  const Testo byte = Tutti_I_Byte();
  EXPECT_EQ(Da_Utf8(In_Utf8(byte)), byte);
  for (const char c : byte) EXPECT_EQ(Da_Utf8(In_Utf8(Testo(1, c))), Testo(1, c)) << static_cast<int>(c);
}

TEST(Testo_Codici, OgniByteHaIlSuoCarattere) {
  struct {
    const char* byte;
    const char* utf8;
  } const casi[] = {{"\x80", "€"}, {"\x8A", "Š"}, {"\x9F", "Ÿ"}, {"\xA0", "\u00A0"}, {"\xE0", "à"},
                    {"\xFF", "ÿ"}, {"\xB0", "°"}, {"\x99", "™"}, {"A", "A"},         {"\x81", "\xC2\x81"}};
  for (const auto& caso : casi) {
    EXPECT_EQ(In_Utf8(caso.byte), caso.utf8);
    EXPECT_EQ(Da_Utf8(caso.utf8), caso.byte);
  }
}

TEST(Testo_Codici, SenzaPostoDiventaPuntoInterrogativo) {
  struct {
    std::string_view utf8;
    Vista atteso;
  } const casi[] = {
      {"a漢b", "a?b"},
      {"😀", "?"},
      {"\xFF", "?"},
      {"\x80x", "?x"},  // a continuation without a beginning
      {"\xC3", "?"},    // cut at the end
      {"\xE2\x82", "?"},
      {"\xC0\xAF", "??"},            // an overlong form is not a slash
      {"\xED\xA0\x80", "???"},       // half a pair
      {"\xF4\x90\x80\x80", "????"},  // beyond the last code point
      {"\xC2\x80", "?"},             // the place of the euro sign as a control character
      {"\xE2\x28\xA1", "?(?"},
      {"", ""},
  };
  for (const auto& caso : casi) EXPECT_EQ(Da_Utf8(caso.utf8), caso.atteso);
}

TEST(Testo_Codici, LetteraleConvertitoDalCompilatore) {
  EXPECT_EQ("Lunedì"_t, "Luned\xEC");
  EXPECT_EQ("€ 1°"_t, "\x80 1\xB0");
  EXPECT_EQ("漢"_t, "?");
  EXPECT_EQ("Però"_t, Da_Utf8("Però"));
}

TEST(Testo_Maiuscole, TuttaLaPaginaDiCodici) {
  struct {
    Testo grande, piccola;
  } const coppie[] = {{"A"_t, "a"_t}, {"Z"_t, "z"_t}, {"À"_t, "à"_t}, {"Þ"_t, "þ"_t}, {"Ö"_t, "ö"_t},
                      {"Š"_t, "š"_t}, {"Œ"_t, "œ"_t}, {"Ž"_t, "ž"_t}, {"Ÿ"_t, "ÿ"_t}};
  for (const auto& [grande, piccola] : coppie) {
    EXPECT_EQ(Minuscolo(grande), piccola);
    EXPECT_EQ(Maiuscolo(piccola), grande);
    EXPECT_TRUE(Uguali(grande, piccola));
  }
  for (const Testo& sola : {"ß"_t, "×"_t, "÷"_t, "ƒ"_t, "ª"_t, "µ"_t, "€"_t, "@"_t, "["_t, "{"_t}) {
    EXPECT_EQ(Minuscolo(sola), sola);
    EXPECT_EQ(Maiuscolo(sola), sola);
  }
}

TEST(Testo_Maiuscole, PiegareDueVolteNonCambia) {
  for (const char c : Tutti_I_Byte()) {
    EXPECT_EQ(Minuscola(Minuscola(c)), Minuscola(c));
    EXPECT_EQ(Maiuscola(Maiuscola(c)), Maiuscola(c));
    EXPECT_EQ(Minuscola(Maiuscola(c)), Minuscola(c));
  }
}

TEST(Testo_Confronto, OrdinePerByteDopoLaPiegatura) {
  const Testo in_ordine[] = {"",      " ",     "-5",   "0",     "5",    "9",     "_esce",  "anna",
                             "ANNA ", "Anna-", "Bice", "zorro", "Ža"_t, "àla"_t, "École"_t};
  for (std::size_t i = 0; i < std::size(in_ordine); ++i)
    for (std::size_t k = 0; k < std::size(in_ordine); ++k) {
      const int ordine = Confronta(in_ordine[i], in_ordine[k]);
      EXPECT_EQ(ordine < 0, i < k) << in_ordine[i] << " / " << in_ordine[k];
      EXPECT_EQ(ordine > 0, i > k) << in_ordine[i] << " / " << in_ordine[k];
      EXPECT_EQ(Uguali(in_ordine[i], in_ordine[k]), i == k);
    }
  EXPECT_EQ(Confronta("PERÒ"_t, "però"_t), 0);
}

TEST(Testo_Confronto, IniziaEContiene) {
  EXPECT_TRUE(Inizia("Na 12", "NA"));
  EXPECT_TRUE(Inizia("abc", ""));
  EXPECT_FALSE(Inizia("N", "NA"));
  EXPECT_FALSE(Inizia("xNA", "NA"));
  EXPECT_TRUE(Contiene("ORATA di mare", "a DI"));
  EXPECT_TRUE(Contiene("branzino", "INO"));
  EXPECT_TRUE(Contiene("Caffè"_t, "FÈ"_t));
  EXPECT_TRUE(Contiene("aab", "AB"));
  EXPECT_TRUE(Contiene("", ""));
  EXPECT_FALSE(Contiene("", "a"));
  EXPECT_FALSE(Contiene("ab", "abc"));
  EXPECT_FALSE(Contiene("ab", "c"));
}

TEST(Testo_Cifre, SonoDaZeroANove) {
  for (const char c : Tutti_I_Byte())
    EXPECT_EQ(E_Cifra(c), Vista("0123456789").find(c) != Vista::npos) << static_cast<int>(c);
}

TEST(Testo_Cifre, TutteOQuante) {
  for (const Vista testo : {"0", "9", "007", "20250314", "99999999999999999999"}) {
    EXPECT_TRUE(Tutte_Cifre(testo)) << testo;
    EXPECT_TRUE(Tutte_Cifre(testo, testo.size())) << testo;
    EXPECT_FALSE(Tutte_Cifre(testo, testo.size() + 1)) << testo;
    EXPECT_FALSE(Tutte_Cifre(testo, testo.size() - 1)) << testo;
  }
  for (const Vista testo : {"", " ", "7 ", " 7", "-7", "+7", "7,0", "7.0", "a", "0x10", "\xB2", "7\n"}) {
    EXPECT_FALSE(Tutte_Cifre(testo)) << testo;
    EXPECT_FALSE(Tutte_Cifre(testo, testo.size())) << testo;
  }
}

TEST(Testo_Pezzi, PulitoToglieSoloGliSpazi) {
  EXPECT_EQ(Pulito("  a b  "), "a b");
  EXPECT_EQ(Pulito("\ta\r\n "), "\ta\r\n");
  EXPECT_EQ(Pulito("\xA0"
                   "a"),
            "\xA0"
            "a");
  EXPECT_EQ(Pulito("    "), "");
  EXPECT_EQ(Pulito(""), "");
  EXPECT_EQ(Pulito_Destra("  a  "), "  a");
  EXPECT_EQ(Pulito_Destra("   "), "");
}

TEST(Testo_Pezzi, SinistraDestraDa) {
  EXPECT_EQ(Sinistra("abcd", 2), "ab");
  EXPECT_EQ(Sinistra("abcd", 9), "abcd");
  EXPECT_EQ(Destra("abcd", 2), "cd");
  EXPECT_EQ(Destra("abcd", 9), "abcd");
  EXPECT_EQ(Destra("abcd", 0), "");
  EXPECT_EQ(Da("abcd", 1), "abcd");
  EXPECT_EQ(Da("abcd", 3), "cd");
  EXPECT_EQ(Da("abcd", 5), "");
  EXPECT_EQ(Da("abcd", 99), "");
  EXPECT_EQ(Da("", 1), "");
}

TEST(Testo_Pezzi, PadTagliaORiempie) {
  EXPECT_EQ(Pad("Orata", 7), "Orata  ");
  EXPECT_EQ(Pad("Orata", 3), "Ora");
  EXPECT_EQ(Pad("Orata", 0), "");
  EXPECT_EQ(Pad("é"_t, 3).size(), 3U);  // one letter, one column
  EXPECT_EQ(Pad_Sinistra("7", 4, '0'), "0007");
  EXPECT_EQ(Pad_Sinistra("7", 3), "  7");
  EXPECT_EQ(Pad_Sinistra("12345", 4, '0'), "12345");
}

TEST(Testo_Pezzi, SostituisciTutti) {
  EXPECT_EQ(Sostituisci_Tutti("a.b.c", ".", ", "), "a, b, c");
  EXPECT_EQ(Sostituisci_Tutti("aaa", "aa", "a"), "aa");
  EXPECT_EQ(Sostituisci_Tutti("aaa", "a", "aa"), "aaaaaa");
  EXPECT_EQ(Sostituisci_Tutti("abc", "", "x"), "abc");
  EXPECT_EQ(Sostituisci_Tutti("abc", "abc", ""), "");
}

TEST(Testo_Righe, OgniFineRiga) {
  struct {
    Vista contenuto;
    std::vector<Vista> righe;
  } const casi[] = {
      {"", {}},
      {"a", {"a"}},
      {"a\r\n", {"a"}},
      {"a\nb\r\nc\rd", {"a", "b", "c", "d"}},
      {"\r\n", {""}},
      {"\n\r", {"", ""}},
      {"a\r\n\r\nb\r\n", {"a", "", "b"}},
      {"a\r", {"a"}},
      {"a\r\r\nb", {"a", "", "b"}},
      {" a \t", {" a \t"}},
  };
  for (const auto& caso : casi) EXPECT_EQ(Righe(caso.contenuto), caso.righe) << caso.contenuto;
}

TEST(Testo_Campi, ProssimoCampo) {
  Vista riga = " 0001 \tMare Blu\t\t resto ";
  EXPECT_EQ(Prossimo_Campo(riga), "0001");
  EXPECT_EQ(riga, "Mare Blu\t\t resto ");
  EXPECT_EQ(Prossimo_Campo(riga), "Mare Blu");
  EXPECT_EQ(Prossimo_Campo(riga), "");
  EXPECT_EQ(riga, " resto ");
  EXPECT_EQ(Prossimo_Campo(riga), " resto ");  // the last one keeps its blanks
  EXPECT_EQ(riga, "");
  EXPECT_EQ(Prossimo_Campo(riga), "");
}

// Every later field of a short line is empty, so an old day with fewer fields still opens.
TEST(Testo_Campi, ProssimoCampoSenzaTab) {
  Vista riga = "AB";
  EXPECT_EQ(Prossimo_Campo(riga), "AB");
  EXPECT_EQ(riga, "");
}

TEST(Testo_Campi, UltimoCampo) {
  Vista riga = "a\tb\t c ";
  EXPECT_EQ(Ultimo_Campo(riga), " c ");
  EXPECT_EQ(riga, "a\tb");
  EXPECT_EQ(Ultimo_Campo(riga), "b");
  EXPECT_EQ(Ultimo_Campo(riga), "a");
  EXPECT_EQ(riga, "a");
  riga = "a\t";
  EXPECT_EQ(Ultimo_Campo(riga), "");
  EXPECT_EQ(riga, "a");
}

TEST(Testo_Campi, SenzaSeparatori) {
  EXPECT_EQ(Senza_Separatori(Vista("a\tb\r\nc\0d e", 10)), "abcd e");
  EXPECT_EQ(Senza_Separatori(""), "");
}

TEST(Testi, SenzaMarca) {
  EXPECT_EQ(Senza_Marca("\xEF\xBB\xBF"
                        "0001\tMare"),
            "0001\tMare");
  EXPECT_EQ(Senza_Marca("\xEF\xBB\xBF"), "");
  EXPECT_EQ(Senza_Marca("\xEF\xBB"), "\xEF\xBB");
  EXPECT_EQ(Senza_Marca("x\xEF\xBB\xBF"), "x\xEF\xBB\xBF") << "only at the head";
  EXPECT_EQ(Senza_Marca(""), "");
}

// Eight bytes at once or one by one: each sign in each place, whatever stands around it.
TEST(Testo_Campi, LaFineDelCampoSiTrovaInOgniPosto) {
  const Testo tutti = Tutti_I_Byte();
  Testo altri;
  for (const char c : tutti)
    if (c != TAB && c != '\r' && c != '\n') altri += c;
  for (std::size_t lungo = 0; lungo <= 20; ++lungo)
    for (std::size_t posto = 0; posto <= lungo; ++posto)
      for (std::size_t giro = 0; giro < altri.size(); ++giro)
        for (const char segno : {TAB, '\r', '\n'}) {
          Testo testo;
          for (std::size_t i = 0; i < lungo; ++i) testo += altri[(giro + i * 7) % altri.size()];
          if (posto < lungo) testo[posto] = segno;
          if (posto + 1 < lungo) testo.back() = TAB;  // the first one counts
          const char *inizio = testo.data(), *fine = inizio + testo.size();
          ASSERT_EQ(Trova_Fine_Campo(inizio, fine) - inizio, std::find_if(inizio, fine, Fine_Campo) - inizio)
              << testo;
        }
}

}  // namespace

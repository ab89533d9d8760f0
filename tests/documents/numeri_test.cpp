#include "documents/numeri.h"

#include <chrono>
#include <gmock/gmock.h>
#include <random>

namespace {

using testing::ElementsAre;

ListaDocumenti Lista(const std::vector<Testo>& numeri) {
  ListaDocumenti lista;
  for (const Testo& numero : numeri) lista.push_back({"cliente " + std::to_string(lista.size() + 1), numero});
  return lista;
}

std::vector<Testo> Numeri(const ListaDocumenti& lista) {
  std::vector<Testo> numeri;
  for (const VoceDoc& voce : lista) numeri.push_back(voce.Numero);
  return numeri;
}

Testo Numero_Di(const ListaDocumenti& lista, Vista cliente) {
  for (const VoceDoc& voce : lista)
    if (voce.Cliente == cliente) return voce.Numero;
  return "(manca)";
}

TEST(NumeroDiUnDocumento, SiLeggeDalSuoInizio) {
  const std::pair<Vista, int> casi[] = {{"", 0},
                                        {" ", 0},
                                        {"007", 7},
                                        {"007 (ds)", 7},
                                        {"1234", 1234},
                                        {"(ds)", 0},
                                        {"abc", 0},
                                        {"-5", 0},
                                        {"12/003", 12},
                                        {" 8 (ddt)", 8},
                                        {"Rif.Fat. 12", 0},
                                        {"7,9", 7},
                                        {"99999999999", 2147483647}};
  for (const auto& [testo, numero] : casi) EXPECT_EQ(NumeroDoc(testo), numero) << testo;
}

// The forms stand in the field DDT of the day files, where the invoices read them back.
TEST(NumeroDiUnDocumento, HaTreCifreESegniDietroUnoSpazio) {
  EXPECT_EQ(TestoNumero(7), "007");
  EXPECT_EQ(TestoNumero(7, {.ds = true}), "007 (ds)");
  EXPECT_EQ(TestoNumero(7, {.ddt = true}), "007 (ddt)");
  EXPECT_EQ(TestoNumero(7, {.ds = true, .ddt = true}), "007 (ds) (ddt)");
  EXPECT_EQ(TestoNumero(1234), "1234");
}

TEST(NumeroDiUnDocumento, RiconosceISegniInOgniForma) {
  EXPECT_EQ(LeggiMarchi("007"), (MarchiDoc{}));
  EXPECT_EQ(LeggiMarchi("007(ds)(ddt)"), (MarchiDoc{true, true}));
  EXPECT_EQ(LeggiMarchi("007 (DDT)"), (MarchiDoc{false, true}));
}

TEST(NumeroDiUnDocumento, PrendeOgniSegnoUnaVoltaSola) {
  EXPECT_EQ(ConMarchio("007", TipoDoc::Sanitario), "007 (ds)");
  EXPECT_EQ(ConMarchio("007 ", TipoDoc::DDT), "007 (ddt)");
  EXPECT_EQ(ConMarchio("007 (ds)", TipoDoc::Sanitario), "007 (ds)");
  EXPECT_EQ(ConMarchio("007 (ds)", TipoDoc::DDT), "007 (ds) (ddt)");
  EXPECT_EQ(ConMarchio("007 (ddt)", TipoDoc::Sanitario), "007 (ds) (ddt)");
  EXPECT_EQ(ConMarchio("", TipoDoc::Sanitario), "(ds)");
  EXPECT_EQ(ConMarchio("(ddt)", TipoDoc::Sanitario), "(ds) (ddt)");
  EXPECT_EQ(ConMarchio("12/A", TipoDoc::DDT), "12/A (ddt)");
}

TEST(NumeroDiUnDocumento, SiStampaSenzaSegni) {
  EXPECT_EQ(SenzaMarchi("007 (ds) (ddt)"), "007");
  EXPECT_EQ(SenzaMarchi("(ds)"), "");
  EXPECT_EQ(SenzaMarchi(" 12/A "), "12/A");
}

TEST(OrdineDeiDocumenti, PerClienteNonGuardaMaiuscole) {
  ListaDocumenti lista = {{"rosso", "1"}, {"Bianco", "2"}, {"ROSSO", "3"}, {"Azzurro", "4"}};
  OrdinaPerCliente(lista);
  EXPECT_THAT(Numeri(lista), ElementsAre("4", "2", "1", "3"));
}

// The repair goes by this order: a number above 999 stands among the lower ones.
TEST(OrdineDeiDocumenti, PerNumeroConfrontaTesti) {
  auto lista = Lista({"999", "1000", "002", "", "10"});
  OrdinaPerNumero(lista);
  EXPECT_THAT(Numeri(lista), ElementsAre("", "002", "10", "1000", "999"));
  OrdinaPerNumero(lista, false);
  EXPECT_THAT(Numeri(lista), ElementsAre("999", "1000", "10", "002", ""));
}

TEST(OrdineDeiDocumenti, QuelliUgualiRestanoInFila) {
  auto lista = Lista({"002", "", "002", ""});
  OrdinaPerNumero(lista, false);
  EXPECT_EQ(lista[0].Cliente, "cliente 1");
  EXPECT_EQ(lista[1].Cliente, "cliente 3");
  EXPECT_EQ(lista[2].Cliente, "cliente 2");
}

TEST(NumeraMancanti, PartonoDalPiuAlto) {
  auto lista = Lista({"", "005 (ds)", "003", "(ds)", "abc", " "});
  NumeraMancanti(lista);
  EXPECT_THAT(Numeri(lista), ElementsAre("006", "005 (ds)", "003", "007 (ds)", "abc", "008"));
}

TEST(NumeraMancanti, SenzaNumeriPartonoDaUno) {
  auto lista = Lista({"", "", ""});
  NumeraMancanti(lista);
  EXPECT_THAT(Numeri(lista), ElementsAre("001", "002", "003"));
}

TEST(NumeraDa, PerdeISegni) {
  auto lista = Lista({"", "005 (ds)", "xyz"});
  NumeraDa(lista, 998);
  EXPECT_THAT(Numeri(lista), ElementsAre("998", "999", "1000"));
}

struct Riparazione {
  Vista che_cosa;
  std::vector<Testo> numeri;
  int primo;
  std::vector<Testo> attesi;
};

class RiparaNumeriTest : public testing::TestWithParam<Riparazione> {};

TEST_P(RiparaNumeriTest, DaLaNumerazioneGiusta) {
  auto lista = Lista(GetParam().numeri);
  ASSERT_TRUE(RiparaNumeri(lista, GetParam().primo));
  EXPECT_EQ(Numeri(lista), GetParam().attesi);
  const auto riparata = lista;
  ASSERT_TRUE(RiparaNumeri(lista, GetParam().primo)) << "the check can be run as often as wanted";
  EXPECT_EQ(lista, riparata);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, RiparaNumeriTest,
    testing::Values(
        Riparazione{"un doppio va nel buco", {"001", "001", "003"}, 1, {"001", "002", "003"}},
        Riparazione{"manca il primo", {"002", "003"}, 1, {"001", "002"}},
        Riparazione{"primo numero del giorno 5", {"003", "006"}, 5, {"005", "006"}},
        Riparazione{"primo numero del giorno 5, senza zeri", {"3", "6"}, 5, {"005", "006"}},
        Riparazione{"nessun numero", {"", "", ""}, 1, {"001", "002", "003"}},
        Riparazione{"in ordine coi segni", {"002 (ddt)", "001 (ds)"}, 1, {"001 (ds)", "002 (ddt)"}},
        Riparazione{"segni ripetuti", {"1(ds)(ds)(ddt)", "2 (ds) (ds)"}, 1, {"001 (ds) (ddt)", "002 (ds)"}},
        Riparazione{"uno solo, un altro numero", {"007 (ds)"}, 1, {"001"}},
        Riparazione{"uno solo, giusto", {"1 (ds) (ds)"}, 1, {"001 (ds)"}},
        Riparazione{"uno solo, senza numero", {"(ds)"}, 3, {"003"}},
        Riparazione{"testo che non e' un numero", {"abc", "001"}, 1, {"001", "002"}},
        Riparazione{"un segno senza numero lo perde", {"(ds)", "001"}, 1, {"001", "002"}},
        Riparazione{"numero sotto zero", {"-5", "-3", "001"}, 1, {"001", "002", "003"}},
        Riparazione{"il piu' alto scende", {"001", "002", "004", "005"}, 1, {"001", "002", "003", "004"}},
        Riparazione{
            "i senza numero prima del piu' alto", {"001", "", "004", "005"}, 1, {"001", "002", "003", "004"}},
        Riparazione{"tre uguali", {"004", "004", "004"}, 4, {"004", "005", "006"}},
        Riparazione{"quattro cifre", {"1002", "1000"}, 1000, {"1000", "1001"}}));

TEST(RiparaNumeri, IBuchiVannoAiSenzaNumeroPoiAlPiuAlto) {
  auto lista = Lista({"001", "", "004 (ds)", "006 (ds)"});
  ASSERT_TRUE(RiparaNumeri(lista, 1));
  EXPECT_EQ(Numero_Di(lista, "cliente 2"), "002") << "the lowest hole";
  EXPECT_EQ(Numero_Di(lista, "cliente 4"), "003") << "the highest moves down and loses its mark";
  EXPECT_EQ(Numero_Di(lista, "cliente 3"), "004 (ds)");
}

TEST(RiparaNumeri, DiDueUgualiIlPrimoTieneIlNumero) {
  auto lista = Lista({"001", "001"});
  ASSERT_TRUE(RiparaNumeri(lista, 1));
  EXPECT_EQ(Numero_Di(lista, "cliente 1"), "001");
  EXPECT_EQ(Numero_Di(lista, "cliente 2"), "002");
}

// The paper with that number is already with the customer.
TEST(RiparaNumeri, DiDueUgualiQuelloStampatoTieneIlNumero) {
  auto lista = Lista({"001", "001 (ds)"});
  ASSERT_TRUE(RiparaNumeri(lista, 1));
  EXPECT_EQ(Numero_Di(lista, "cliente 1"), "002");
  EXPECT_EQ(Numero_Di(lista, "cliente 2"), "001 (ds)");
}

TEST(RiparaNumeri, ListaVuota) {
  ListaDocumenti lista;
  EXPECT_TRUE(RiparaNumeri(lista, 1));
  EXPECT_TRUE(lista.empty());
}

TEST(RiparaNumeri, NovecentonovantanoveDocumentiSiNumeranoTutti) {
  auto lista = Lista(std::vector<Testo>(999));
  ASSERT_TRUE(RiparaNumeri(lista, 1));
  for (std::size_t i = 0; i < lista.size(); ++i)
    ASSERT_EQ(lista[i].Numero, TestoNumero(static_cast<std::int64_t>(i) + 1));
}

// From here on the mark of an invalid number is one of the numbers and "1000" sorts behind "100": there is no
// end to it, and a half-repaired numbering would be worse than the one before.
TEST(RiparaNumeri, MilleDocumentiRestanoComErano) {
  auto lista = Lista(std::vector<Testo>(1000));
  lista[3].Numero = "7(ds)";
  const auto prima = lista;
  EXPECT_FALSE(RiparaNumeri(lista, 1));
  EXPECT_EQ(lista, prima);
}

// Beyond what a number of the program holds nothing follows.
TEST(RiparaNumeri, OltreIlMassimoDegliInteriRestanoComErano) {
  auto lista = Lista({"2147483647", "99999999999", "", "2"});
  const auto prima = lista;
  EXPECT_FALSE(RiparaNumeri(lista, 2147483647));
  EXPECT_EQ(lista, prima);
}

void Nuovo(VoceDoc& voce, int numero) { voce.Numero = TestoNumero(numero); }

// The repair as an operator would do it by hand: sort, walk from the top, mend the first fault, begin again.
template <class Guasto, class Rimedio>
void Passo_Passo(ListaDocumenti& lista, Guasto guasto, Rimedio rimedio) {
  for (bool ancora = true; ancora;) {
    ancora = false;
    OrdinaPerNumero(lista);
    for (std::size_t i = 0; i + 1 < lista.size() && !ancora; ++i) {
      const int sopra = NumeroDoc(lista[i].Numero), sotto = NumeroDoc(lista[i + 1].Numero);
      if (!guasto(sopra, sotto)) continue;
      rimedio(i, sopra);
      ancora = true;
    }
  }
}

void Ripara_A_Mano(ListaDocumenti& lista, int primo) {
  OrdinaPerNumero(lista);
  for (VoceDoc& voce : lista) {
    const int numero = NumeroDoc(voce.Numero);
    voce.Numero = numero == 0 || numero < primo ? "999" : TestoNumero(numero, LeggiMarchi(voce.Numero));
  }
  OrdinaPerNumero(lista);
  if (NumeroDoc(lista.front().Numero) != primo) Nuovo(lista.front(), primo);
  Passo_Passo(
      lista, [](int sopra, int sotto) { return sopra == sotto && sopra != 999; },
      [&](std::size_t i, int) { Nuovo(lista[i + 1], 999); });
  Passo_Passo(
      lista, [](int sopra, int sotto) { return sotto != sopra + 1; },
      [&](std::size_t, int sopra) { Nuovo(lista.back(), sopra + 1); });
}

TEST(RiparaNumeri, FaComeAManoAncheACavalloDelMille) {
  std::mt19937 caso(20250314);
  const auto fino_a = [&](unsigned n) { return static_cast<int>(caso() % n); };
  for (int prova = 0; prova < 2000; ++prova) {
    const int base = prova % 3 == 0 ? 990 : prova % 3 == 1 ? 95 : 0;
    std::vector<Testo> numeri(static_cast<std::size_t>(2 + fino_a(13)));
    for (Testo& numero : numeri)
      if (fino_a(5) > 0) numero = TestoNumero(base + fino_a(18), {fino_a(3) == 0, fino_a(3) == 0});
    auto riparata = Lista(numeri), a_mano = riparata;
    const int primo = base + 1 + fino_a(6);
    ASSERT_TRUE(RiparaNumeri(riparata, primo));
    Ripara_A_Mano(a_mano, primo);
    ASSERT_EQ(riparata, a_mano) << "first number " << primo << " of " << testing::PrintToString(numeri);
  }
}

TEST(RiparaNumeri, MoltiDocumentiInUnAttimo) {
  auto lista = Lista(std::vector<Testo>(998, "500 (ds)"));
  const auto inizio = std::chrono::steady_clock::now();
  ASSERT_TRUE(RiparaNumeri(lista, 1));
  EXPECT_LT(std::chrono::steady_clock::now() - inizio, std::chrono::seconds(1));
  EXPECT_EQ(lista.front().Numero, "001");
  EXPECT_EQ(lista.back().Numero, "998");
}

}  // namespace

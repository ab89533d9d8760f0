#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <ostream>
#include <regex>

#include "tests/operatori/ditta.h"
#include "tests/operatori/giro.h"

// Random operators on every screen. VELMARA_OPERATORI_SEME, _GIRI and _PASSI make another and a longer run of
// it; velmara_operatori plays one round again by its seed.
namespace operatori {

namespace fs = std::filesystem;

void PrintTo(const Schermo& schermo, std::ostream* dove) { *dove << schermo.nome; }

namespace {

std::uint64_t Dall_Ambiente(const char* nome, std::uint64_t altrimenti) {
  const char* valore = std::getenv(nome);
  return valore ? std::strtoull(valore, nullptr, 10) : altrimenti;
}

const Percorso progetto = PROGETTO;

const Testi_Noti& Testi() {
  static const Testi_Noti testi = Testi_Noti::Dei_Sorgenti(progetto);
  return testi;
}

const Schermo& Chiamato(const std::string& nome) {
  const auto schermi = Schermi();
  return *std::find_if(schermi.begin(), schermi.end(), [&](const Schermo& s) { return s.nome == nome; });
}

class Operatori : public testing::TestWithParam<Schermo> {};

TEST_P(Operatori, NonFannoCadereNiente) {
  const auto seme = Dall_Ambiente("VELMARA_OPERATORI_SEME", 1);
  const auto giri = Dall_Ambiente("VELMARA_OPERATORI_GIRI", 1);
  const auto passi = static_cast<int>(Dall_Ambiente("VELMARA_OPERATORI_PASSI", 120));
  for (std::uint64_t giro = 0; giro < giri; ++giro) {
    const Giro questo{&GetParam(), seme + giro, passi};
    const Esito esito = Gioca(questo, progetto, Testi());
    EXPECT_EQ(esito.difetto, "") << Racconto(questo, esito);
    EXPECT_TRUE(esito.difetto != "" || esito.classi.contains(GetParam().classe)) << "never seen";
  }
}

INSTANTIATE_TEST_SUITE_P(Tutti, Operatori, testing::ValuesIn(Schermi().begin(), Schermi().end()),
                         [](const auto& caso) { return std::string(caso.param.nome); });

// A window of the sources that stands in no line of the table would never be tried.
TEST(Operatori_Tavola, NonMancaNessunaFinestra) {
  std::set<std::string> in_tavola, nei_sorgenti;
  for (const Schermo& schermo : Schermi()) in_tavola.insert(schermo.classe);
  const std::regex forma("\nclass (\\w+Finestra|Finestra_\\w+) : public");
  for (const auto& stanza : fs::directory_iterator(progetto)) {
    const Percorso finestre = stanza.path().filename() == "tools" ? stanza.path() : stanza.path() / "screens";
    if (!fs::is_directory(finestre)) continue;
    for (const auto& voce : fs::directory_iterator(finestre)) {
      std::ifstream flusso(voce.path());
      const std::string sorgente{std::istreambuf_iterator<char>(flusso), {}};
      for (std::sregex_iterator trovata(sorgente.begin(), sorgente.end(), forma), fine; trovata != fine;
           ++trovata)
        if (voce.path().extension() == ".h") nei_sorgenti.insert((*trovata)[1]);
    }
  }
  EXPECT_GT(nei_sorgenti.size(), 25U);
  EXPECT_EQ(in_tavola, nei_sorgenti);
}

// What a seed did once it does again, so that a fault can be looked at.
TEST(Operatori_Seme, LoStessoFaLeStesseCose) {
  for (const char* nome : {"Edita", "ZFatture", "ModCLI", "Stampante"}) {
    const Giro giro{&Chiamato(nome), 7, 150};
    const Esito una = Gioca(giro, progetto, Testi()), altra = Gioca(giro, progetto, Testi());
    EXPECT_GT(una.passi.size(), 150U);
    EXPECT_EQ(una.passi, altra.passi) << nome;
  }
}

TEST(Operatori_Seme, UnAltroNeFaAltre) {
  const Giro uno{&Chiamato("Edita"), 7, 30}, altro{&Chiamato("Edita"), 8, 30};
  EXPECT_NE(Gioca(uno, progetto, Testi()).passi, Gioca(altro, progetto, Testi()).passi);
}

// ---- what counts as a known text

Testo Nessun_Dato() { return {}; }

TEST(Testi_Noti, SonoQuelliDeiSorgentiConIDatiDellaDitta) {
  const auto dati = [] { return Testo("00101\tPescheria Rialto\tRiva 5"); };
  EXPECT_EQ(Testi().Sconosciuto("Errore 28 durante il salvataggio", Nessun_Dato), "");
  EXPECT_EQ(Testi().Sconosciuto("OK per salvare 60 dati immessi...", Nessun_Dato), "");
  EXPECT_EQ(Testi().Sconosciuto("Errore 28 durante il salvataggio\nPescheria Rialto", dati), "");
  EXPECT_EQ(Testi().Sconosciuto("Errore 28 durante il salvataggio\nPescheria Rialto", Nessun_Dato),
            "Pescheria");
}

TEST(Testi_Noti, NonSonoQuelliDiNessuno) {
  for (const char* testo :
       {"std::bad_alloc", "vector::_M_range_check: __n (which is 7)", "basic_string::substr",
        "Segmentation fault", "Il gatto dorme", "Errore 28 durante il pisolino",
        "Errore %s durante il salvataggio", "(null)", "Errore \x01"})
    EXPECT_NE(Testi().Sconosciuto(testo, Nessun_Dato), "") << testo;
}

TEST(Testi_Noti, UnLetteraleSiLeggeComeLoVedeIlCompilatore) {
  EXPECT_EQ(
      Letterali("f(\"uno\" \"due\"); // \"tre\"\n#include \"quattro\"\ng(\"a\\n\\\"b\\\"\", 'x', '\"');"),
      (std::vector<Testo>{"unodue", "a\n\"b\""}));
  EXPECT_EQ(Letterali("Testo a = \"Luned\u00ec\"_t; /* \"no\" */ int n = 10'000; h(\"si\")"),
            (std::vector<Testo>{Da_Utf8("Luned\u00ec"), "si"}));
}

// ---- what counts as a sound day file

TEST(Difetto_Del_Giorno, UnaRigaHa35Campi) {
  const Testo riga = Testo(34, TAB) + "\r\n";
  EXPECT_EQ(Difetto_File(""), "");
  EXPECT_EQ(Difetto_File(riga + riga), "");
  EXPECT_EQ(Difetto_File(riga + "a\tb\r\n"), "la riga 2 con 2 campi");
  EXPECT_EQ(Difetto_File(riga + Testo(34, TAB)), "la riga 2 senza fine");
  EXPECT_EQ(Difetto_File(riga + "\n" + riga), "la riga 2 spezzata");
}

}  // namespace
}  // namespace operatori

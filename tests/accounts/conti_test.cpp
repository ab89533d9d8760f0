#include "accounts/conti.h"

#include <chrono>

#include "lists/ordina.h"
#include "tests/accounts/conti_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<Testo> Campi(const std::vector<LedgerRow>& righe, CampoRiga campo) {
  std::vector<Testo> testi;
  for (const LedgerRow& riga : righe) testi.push_back(riga[campo]);
  return testi;
}

Tabella Fai_Tabella(std::vector<LedgerRow> righe) {
  Tabella tabella;
  tabella.righe = std::move(righe);
  return tabella;
}

TEST(Conti, IlNumeroELaSuaMancanza) {
  struct Caso {
    Vista testo;
    int numero;
    bool numerato;
  };
  for (const auto& [testo, numero, numerato] :
       {Caso{"123", 123, true}, Caso{"0", 0, false}, Caso{"", 0, false}, Caso{"-", 0, false},
        Caso{"9999", 9999, false}, Caso{"9998", 9998, true}, Caso{"12345", 12345, true},
        Caso{"12,7", 12, true}, Caso{"abc", 0, false}}) {
    EXPECT_EQ(NumeroCV(testo, ','), numero) << testo;
    EXPECT_EQ(Numerato(testo, ','), numerato) << testo;
  }
}

// The account's values are those of the supplier's last row; what the others hold is passed over.
TEST(Conti, UnContoPerFornitoreDallUltimaRiga) {
  Conti_Di_Prova p;
  auto& prima = p.Vendita(Riga_CV("Adriatica", "Orata", "1", "1"), "7", "10.50", "8");
  prima[CampoRiga::DDT_CV] = "primo";
  auto& seconda = p.Vendita(Riga_CV("adriatica", "Sarda", "1", "1"), "9", "12.50", "6.5");
  seconda[CampoRiga::DDT_CV] = "secondo";
  seconda[CampoRiga::DataCV] = "14/03/2025";
  p.Vendita(Riga_CV("Baldo", "Sarda", "1", "1"), "3", "", "10");
  const auto conti = ContiDelGiorno(p.programma.Vet_Tabella, CampoRiga::Fornitore, ',');
  ASSERT_EQ(conti.size(), 2U);
  EXPECT_EQ(conti[0].Fornitore, "Baldo");  // backwards
  const Conto_CV atteso{"9", "14/03/2025", "adriatica", "secondo", "12,50", "6,5"};
  EXPECT_EQ(conti[1], atteso);
}

TEST(Conti, LaRigaDelGiornoVuotoNonEUnConto) {
  Conti_Di_Prova p;
  EXPECT_THAT(ContiDelGiorno(p.programma.Vet_Tabella, CampoRiga::Fornitore, ','), IsEmpty());
}

TEST(Conti, OrdineDeiNumeri) {
  Tabella_Conti conti;
  for (const char* numero : {"12", "3", "9999", "", "10000", "3"})
    conti.push_back({numero, "", "", "", "", ""});
  conti[1].Fornitore = "primo";
  conti[5].Fornitore = "secondo";
  const auto ordine = Ordina_Tabella_CV(conti, ',');
  std::vector<Testo> numeri;
  for (const Conto_CV& conto : conti) numeri.push_back(conto.NCV);
  // five digits stand where their text stands; those without a number first
  EXPECT_THAT(numeri, ElementsAre("", "3", "3", "12", "10000", "9999"));
  EXPECT_EQ(conti[1].Fornitore, "primo");
  EXPECT_THAT(ordine, ElementsAre(3, 1, 5, 0, 4, 2));
}

TEST(Conti, LaRigaDellaLista) {
  EXPECT_EQ(TitoloListaCV(), "NCV   | data     |   Fornitore   |     DDT_CV    |SpeAnt.|Prov.%");
  EXPECT_EQ(RigaListaCV({"41", "14/03/2025", "Adriatica", "12 del 13/03/2025", "15", "8"}, ','),
            "00041 |14/03/2025|Adriatica      |12 del 13/03/20|     15|8 %");
  EXPECT_EQ(RigaListaCV({"-", "14/03/2025", "Cooperativa Pescatori", "-", "123456,78", ""}, ','),
            "00000 |14/03/2025|Cooperativa Pes|-              |123456,78| %");
  EXPECT_EQ(Sinistra(RigaListaCV({"12345", "", "", "", "", ""}, ','), 7), "12345 |");
}

// ---- the rows of an account

TEST(Righe_Conto, PositivePoiNegativeFuseEOrdinatePerSpecie) {
  const Tabella tabella = Fai_Tabella(
      {Riga_CV("Adriatica", "Sarda", "5", "2"), Riga_CV("Baldo", "Orata", "9", "9"),
       Riga_CV(" adriatica ", "Orata", "3", "-10"), Riga_CV("Adriatica", "Orata", "1,5", "10", "10", "2"),
       Riga_CV("ADRIATICA", "Orata", "2,25", "10", "10", "3"), Riga_CV("Adriatica", "Orata", "4", "0")});
  const auto righe = CaricaRigheCV(tabella, " Adriatica ", false, ',');
  EXPECT_THAT(Campi(righe, CampoRiga::Specie), ElementsAre("Orata", "Orata", "Sarda"));
  EXPECT_THAT(Campi(righe, CampoRiga::Prezzo), ElementsAre("-10", "10", "2"));
  EXPECT_THAT(Campi(righe, CampoRiga::Peso), ElementsAre("3", "3,75", "5"));
  EXPECT_THAT(Campi(righe, CampoRiga::Colli), ElementsAre("1", "5", "1"));
}

TEST(Righe_Conto, SenzaNoteAccredito) {
  const Tabella tabella =
      Fai_Tabella({Riga_CV("Adriatica", "Orata", "3", "-10"), Riga_CV("Adriatica", "Orata", "3", "10")});
  EXPECT_THAT(Campi(CaricaRigheCV(tabella, "Adriatica", true, ','), CampoRiga::Prezzo), ElementsAre("10"));
}

// A row of price 0, or of a price that is none, is in no account.
TEST(Righe_Conto, PrezzoZeroOIlleggibile) {
  const Tabella tabella =
      Fai_Tabella({Riga_CV("Adriatica", "Orata", "3", "0"), Riga_CV("Adriatica", "Orata", "3", "0,00"),
                   Riga_CV("Adriatica", "Orata", "3", ""), Riga_CV("Adriatica", "Orata", "3", "x")});
  EXPECT_THAT(CaricaRigheCV(tabella, "Adriatica", false, ','), IsEmpty());
}

// Prices are compared as texts, so one price written in two ways stays two lines, as it always has on paper.
TEST(Righe_Conto, IlPrezzoSiConfrontaComeTesto) {
  const Tabella tabella =
      Fai_Tabella({Riga_CV("Adriatica", "Orata", "1", "12,5"), Riga_CV("Adriatica", "Orata", "2", "12,50"),
                   Riga_CV("Adriatica", "Orata", "4", "12,5")});
  const auto righe = CaricaRigheCV(tabella, "Adriatica", false, ',');
  EXPECT_THAT(Campi(righe, CampoRiga::Prezzo), ElementsAre("12,5", "12,50"));
  EXPECT_THAT(Campi(righe, CampoRiga::Peso), ElementsAre("5", "2"));
}

TEST(Righe_Conto, LaPrimaInOrdineDaIlNome) {
  const Tabella tabella =
      Fai_Tabella({Riga_CV("Adriatica", "Orate", "1", "10"), Riga_CV("Adriatica", "Orate", "2", "10"),
                   Riga_CV("Adriatica", "orate", "4", "10")});
  const auto righe = CaricaRigheCV(tabella, "Adriatica", false, ',');
  EXPECT_THAT(Campi(righe, CampoRiga::Specie), ElementsAre("Orate"));
  EXPECT_THAT(Campi(righe, CampoRiga::Peso), ElementsAre("7"));
}

TEST(Righe_Conto, IlLibroNonSiTocca) {
  const Tabella tabella =
      Fai_Tabella({Riga_CV("Adriatica", "Orata", "1", "10"), Riga_CV("Adriatica", "Orata", "2", "10")});
  auto righe = CaricaRigheCV(tabella, "Adriatica", false, ',');
  righe[0][CampoRiga::Peso] = "999";
  EXPECT_THAT(Campi(tabella.righe, CampoRiga::Peso), ElementsAre("1", "2"));
}

// Walking back and merging two by two, starting again after each pass, as it is told of old: the one pass of
// today must lay down the same.
void Fondi_A_Passi(std::vector<LedgerRow>& righe) {
  const auto testo = [](const LedgerRow& riga, CampoRiga campo) -> const Testo& { return riga[campo]; };
  for (bool fuse = true; fuse && righe.size() >= 2;) {
    fuse = false;
    Ordina_Righe(righe, {CampoRiga::Specie, CampoRiga::Prezzo});
    for (std::size_t i = righe.size() - 1; i-- > 0;) {
      if (!Uguali(testo(righe[i], CampoRiga::Specie), testo(righe[i + 1], CampoRiga::Specie)) ||
          !Uguali(testo(righe[i], CampoRiga::Prezzo), testo(righe[i + 1], CampoRiga::Prezzo)))
        continue;
      for (const CampoRiga campo : {CampoRiga::Peso, CampoRiga::Colli}) {
        const auto a = Numero(righe[i][campo], ','), b = Numero(righe[i + 1][campo], ',');
        if (b) righe[i][campo] = Piano(a.value_or(0) + *b, ',');
      }
      righe.erase(righe.begin() + static_cast<std::ptrdiff_t>(i) + 1);
      fuse = true;
    }
  }
}

TEST(Consolida, UnaPassataDaQuelloCheDavanoTante) {
  const char* specie[] = {"Orata", "orata", "Orata - 1", "Branzino", ""};
  const char* prezzi[] = {"10", "10,0", "-10", "2 - 10", "9"};
  const char* pesi[] = {"0,1", "0,2", "1,3", "", "1e3", "7"};
  unsigned seme = 1;
  const auto caso = [&seme](unsigned n) { return (seme = seme * 1664525U + 1013904223U) / 65536U % n; };
  for (int giro = 0; giro < 60; ++giro) {
    std::vector<LedgerRow> righe;
    const unsigned numero = caso(40);
    for (unsigned i = 0; i < numero; ++i)
      righe.push_back(Riga_CV("A", specie[caso(5)], pesi[caso(6)], prezzi[caso(5)], "10", pesi[caso(6)]));
    auto attese = righe;
    Fondi_A_Passi(attese);
    Consolida_CV(righe, CampoRiga::Specie, CampoRiga::Prezzo, CampoRiga::Peso, CampoRiga::Colli, ',');
    ASSERT_EQ(righe.size(), attese.size());
    for (std::size_t i = 0; i < righe.size(); ++i) EXPECT_EQ(righe[i].campi, attese[i].campi);
  }
}

// One pass behind the sort: twice the rows take about twice the time, where the walk of old took four times.
TEST(Consolida, DiecimilaRigheInUnBaleno) {
  std::vector<LedgerRow> righe;
  for (int i = 0; i < 10000; ++i)
    righe.push_back(Riga_CV("A", "Specie " + std::to_string(i % 40), "1", std::to_string(5 + i % 3)));
  const auto inizio = std::chrono::steady_clock::now();
  Consolida_CV(righe, CampoRiga::Specie, CampoRiga::Prezzo, CampoRiga::Peso, CampoRiga::Colli, ',');
  const std::chrono::duration<double> durata = std::chrono::steady_clock::now() - inizio;
  EXPECT_EQ(righe.size(), 120U);
  EXPECT_LT(durata.count(), 30.0);  // about 0.02 s where the sources are optimized, and minutes the old way
}

// ---- the supplier's heading

TEST(Testata, IlPrimoConQuelNome) {
  Conti_Di_Prova p;
  p.programma.Vet_Fornitori.push_back({"0009", "Adriatica", "altra", "", "", "", "", "", ""});
  const auto testata = CercaFornitoreCV(p.programma, " ADRIATICA ");
  ASSERT_TRUE(testata);
  const Testata_Fornitore attesa{"0001",       "Adriatica",      "Pesca s.r.l.",
                                 "via Riva 4", "30015 Chioggia", "11111111111"};
  EXPECT_EQ(*testata, attesa);
  EXPECT_FALSE(CercaFornitoreCV(p.programma, "Ignoto"));
  EXPECT_FALSE(CercaFornitoreCV(p.programma, "  "));
}

}  // namespace

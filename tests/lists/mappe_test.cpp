#include "lists/mappe.h"

#include <cmath>
#include <gmock/gmock.h>
#include <set>

#include "lists/semi.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

constexpr Vista nomi[] = {nomi_mappa::Mondo, nomi_mappa::Mediterraneo, nomi_mappa::Atlantico};

const Mappa_Zone& Mappa_Di(Vista nome) {
  static const TabellaLista<2> zone = Seme_Zone();
  static const Mappa_Zone mappe[] = {Leggi_Mappa(nomi[0], zone), Leggi_Mappa(nomi[1], zone),
                                     Leggi_Mappa(nomi[2], zone)};
  for (const Mappa_Zone& mappa : mappe)
    if (mappa.nome == nome) return mappa;
  throw std::logic_error("mappa sconosciuta");
}

std::vector<Testo> Zone_Di(const Mappa_Zone& mappa) {
  std::vector<Testo> zone;
  for (const Bersaglio& bersaglio : mappa.bersagli) zone.push_back(bersaglio.zona);
  return zone;
}

// Number of the area at a place given in degrees, "" for none.
Testo Numero_In(Vista nome, double est, double nord) {
  const Mappa_Zone& mappa = Mappa_Di(nome);
  const int quale = Bersaglio_In(mappa, Punto_Su(nome, est, nord));
  return quale < 0 ? "" : mappa.bersagli[static_cast<std::size_t>(quale)].numero;
}

Testo Numero(const Mappa_Zone& mappa, int quale) {
  return quale < 0 ? "" : mappa.bersagli.at(static_cast<std::size_t>(quale)).numero;
}

int Posizione(const Mappa_Zone& mappa, Vista numero) {
  for (std::size_t i = 0; i < mappa.bersagli.size(); ++i)
    if (mappa.bersagli[i].numero == numero) return static_cast<int>(i);
  return -1;
}

}  // namespace

// The row gets these texts as they stand, misspellings included: old days, lots and documents hold them, and
// a mended text would make a second zone of each.
TEST(Mappe, ITestiDelMediterraneoSonoQuelliDiSempre) {
  const Mappa_Zone& mappa = Mappa_Di(nomi_mappa::Mediterraneo);
  EXPECT_EQ(mappa.titolo, "Mediterraneo FAO 37");
  EXPECT_THAT(Zone_Di(mappa), ElementsAre("A083711 - Mar Med. Baleari", "A083712 - Mar Med. Golfo Leone",
                                          "A083713 - Mar Med. Sardrgna", "A083721 - Mar Med. Adratico",
                                          "A083722 - Mar Med. Ionio", "A083731 - Mar Med. Egeo",
                                          "A083732 - Mar Med. Levante", "A083741 - Mar Med. Marmara",
                                          "A083742 - Mar Med. Nero", "A083743 - Mar Med. Azov"));
}

TEST(Mappe, ITestiDellAtlanticoSonoQuelliDiSempre) {
  const Mappa_Zone& mappa = Mappa_Di(nomi_mappa::Atlantico);
  EXPECT_EQ(mappa.titolo, "Atlantico Nord Orientale FAO 27");
  EXPECT_THAT(
      Zone_Di(mappa),
      ElementsAre("A02271 - Mar di Barents", "A02272 - Mare di Norvegia, Spitzbergen e Isola degli Orsi",
                  "A02273 - Skagerrak, Kattegat,...", "A02274 - Mare del Nord",
                  "A02275 - Islanda e Fær Øer"_t, "A02276 - Rockall, Nord Scozia, Nord Irlanda",
                  "A02277 - Mare d'Irlanda", "A02278 - Baia di Biscaglia", "A02279 - Portogallo",
                  "A022710 - Azzorre", "A03273d - Mar Baltico", "A022712 - Azzorre settentrionali",
                  "A022714 - Groenlandia Orientale"));
}

TEST(Mappe, LeEtichetteDelleDueCarteSonoNumerateDaZeroEDiconoIlLoroTesto) {
  for (const Vista nome : {nomi_mappa::Mediterraneo, nomi_mappa::Atlantico}) {
    int atteso = 0;
    for (const Bersaglio& bersaglio : Mappa_Di(nome).bersagli) {
      EXPECT_EQ(bersaglio.indice, atteso++);
      EXPECT_EQ(bersaglio.spiegazione, bersaglio.zona);
      EXPECT_THAT(bersaglio.apre, IsEmpty());
    }
  }
}

struct Area_Attesa {
  int indice;
  Testo zona, apre;
};

TEST(Mappe, OgniAreaDelMondoDaLaSuaZonaOApreLaSuaCarta) {
  const Area_Attesa attese[] = {{18, "A0018 - Mar Artico", ""},
                                {21, "A0121 - Atlantico nord-occidentale", ""},
                                {27, "", "Mappa27"},
                                {31, "A0431 - Atlantico centro-occidentale", ""},
                                {34, "A0534 - Atlantico centro-orientale", ""},
                                {37, "", "Mappa"},
                                {41, "A0641 - Atlantico sud-occidentale", ""},
                                {47, "A0747 - Atlantico sud-orientale", ""},
                                {48, "A1248 - Oceano Atlantico Antartico", ""},
                                {51, "A1051 - Oceano Indiano occidentale", ""},
                                {57, "A1057 - Oceano Indiano orientale", ""},
                                {58, "A1258 - Oceano Indiano Antartico", ""},
                                {61, "A1161 - Pacifico nord-occidentale", ""},
                                {67, "A1167 - Pacifico nord-orientale", ""},
                                {71, "A1171 - Pacifico centro-occidentale", ""},
                                {77, "A1177 - Pacifico centro-orientale", ""},
                                {81, "A1181 - Pacifico sud-occidentale", ""},
                                {87, "A1187 - Pacifico sud-orientale", ""},
                                {88, "A1288 - Oceano Pacifico Antartico", ""}};
  const Mappa_Zone& mappa = Mappa_Di(nomi_mappa::Mondo);
  EXPECT_EQ(mappa.titolo, "Tutto il Mondo - Zone FAO");
  ASSERT_THAT(mappa.bersagli, SizeIs(std::size(attese)));
  for (std::size_t i = 0; i < std::size(attese); ++i) {
    SCOPED_TRACE(attese[i].indice);
    EXPECT_EQ(mappa.bersagli[i].indice, attese[i].indice);
    EXPECT_EQ(mappa.bersagli[i].numero, std::to_string(attese[i].indice));
    EXPECT_EQ(mappa.bersagli[i].zona, attese[i].zona);
    EXPECT_EQ(mappa.bersagli[i].apre, attese[i].apre);
    if (attese[i].apre.empty()) {
      EXPECT_EQ(mappa.bersagli[i].spiegazione, attese[i].zona);
    } else {
      EXPECT_THAT(mappa.bersagli[i].spiegazione, HasSubstr(": apre la mappa"));
    }
  }
}

TEST(Mappe, ICodiciDelleSottozoneNonSiScambianoConLeAree) {
  const TabellaLista<2> zone = {{"A02271 - Mar di Barents", "FAO n.27 I"},
                                {"A02277 - Mare d'Irlanda", "FAO n.27 VII"},
                                {" A1171  - Pacifico - ovest", "FAO n.71"},
                                {"a1177 - Pacifico - est", "FAO n.77"}};
  EXPECT_EQ(Zona_Di_Area(zone, 71), " A1171  - Pacifico - ovest");
  EXPECT_EQ(Zona_Di_Area(zone, 77), "a1177 - Pacifico - est");
}

TEST(Mappe, SenzaUnCodiceDiCinqueValeLaPrimaZonaCheFinisceCosi) {
  const TabellaLista<2> zone = {{"", ""},
                                {"B1061 - nostra", "x"},
                                {"XX61 - prima", "x"},
                                {"A99961 - seconda", "x"},
                                {"A1261 corta 61 senza trattino", "x"}};
  EXPECT_EQ(Zona_Di_Area(zone, 61), "B1061 - nostra");
  EXPECT_EQ(Zona_Di_Area(zone, 67), "");
  EXPECT_EQ(Zona_Di_Area({}, 61), "");
  EXPECT_EQ(Zona_Di_Area({{"A1261", "-"}}, 61), "A1261");
}

TEST(Mappe, UnAreaCheLaDittaHaToltoDallaListaNonScriveNiente) {
  const Mappa_Zone mappa = Leggi_Mappa(nomi_mappa::Mondo, {});
  const Bersaglio& atlantico = mappa.bersagli[static_cast<std::size_t>(Posizione(mappa, "31"))];
  EXPECT_EQ(atlantico.zona, "");
  EXPECT_EQ(atlantico.apre, "");
  EXPECT_EQ(atlantico.spiegazione, "FAO 31 - Atlantico centro-occidentale: manca nella lista delle zone");
  EXPECT_EQ(mappa.bersagli[static_cast<std::size_t>(Posizione(mappa, "37"))].apre, "Mappa");
}

TEST(Mappe, UnNomeSconosciutoNonHaAree) { EXPECT_THAT(Leggi_Mappa("Mappa99", {}).bersagli, IsEmpty()); }

class Mappa_Disegnata : public testing::TestWithParam<Vista> {
 protected:
  const Mappa_Zone& mappa = Mappa_Di(GetParam());
};

TEST_P(Mappa_Disegnata, OgniAreaHaIlSuoPuntoSullAcqua) {
  for (std::size_t i = 0; i < mappa.bersagli.size(); ++i) {
    const Bersaglio& bersaglio = mappa.bersagli[i];
    SCOPED_TRACE(bersaglio.numero);
    EXPECT_FALSE(In_Terra(mappa, bersaglio.acqua));
    EXPECT_EQ(Bersaglio_In(mappa, bersaglio.acqua), static_cast<int>(i));
  }
}

TEST_P(Mappa_Disegnata, ConfiniETerreSonoContorniVeri) {
  for (const Bersaglio& bersaglio : mappa.bersagli) {
    EXPECT_FALSE(bersaglio.numero.empty() || bersaglio.nome.empty());
    EXPECT_THAT(bersaglio.confini, testing::Not(IsEmpty())) << bersaglio.numero;
    for (const Anello& confine : bersaglio.confini) EXPECT_GE(confine.size(), 3U) << bersaglio.numero;
  }
  EXPECT_GT(mappa.terre.size(), 50U);
  for (const auto& terra : mappa.terre)
    for (const Anello& anello : terra) {
      EXPECT_GE(anello.size(), 3U);
      for (const Punto_Mappa punto : anello) ASSERT_TRUE(std::isfinite(punto.x) && std::isfinite(punto.y));
    }
}

TEST_P(Mappa_Disegnata, LeScritteStannoNellaCorniceESeparate) {
  for (std::size_t i = 0; i < mappa.bersagli.size(); ++i) {
    const Punto_Mappa a = mappa.bersagli[i].scritta;
    EXPECT_GT(a.x, mappa.alto_sinistra.x);
    EXPECT_LT(a.x, mappa.basso_destra.x);
    EXPECT_GT(a.y, mappa.alto_sinistra.y);
    EXPECT_LT(a.y, mappa.basso_destra.y);
    const double larga = mappa.basso_destra.x - mappa.alto_sinistra.x;
    for (std::size_t k = i + 1; k < mappa.bersagli.size(); ++k) {
      const Punto_Mappa b = mappa.bersagli[k].scritta;
      // a label takes about a sixteenth of the map in width and a fortieth of that width in height
      EXPECT_TRUE(std::abs(a.x - b.x) > larga / 16 || std::abs(a.y - b.y) > larga / 40)
          << mappa.bersagli[i].numero << " e " << mappa.bersagli[k].numero;
    }
  }
}

// On a fine grid: no water belongs to two areas, and two areas side by side have two tints.
TEST_P(Mappa_Disegnata, LeAreeNonSiAccavallanoEVicineHannoTinteDiverse) {
  constexpr int passi = 240;
  const double passo = (mappa.basso_destra.x - mappa.alto_sinistra.x) / passi;
  std::set<std::pair<int, int>> vicine;
  std::vector<int> riga_sopra(passi, -1);
  for (double y = mappa.alto_sinistra.y + passo / 2; y < mappa.basso_destra.y; y += passo) {
    int a_sinistra = -1;
    for (int i = 0; i < passi; ++i) {
      const Punto_Mappa punto{mappa.alto_sinistra.x + (i + 0.5) * passo, y};
      const int qui = Bersaglio_In(mappa, punto);
      for (const int accanto : {a_sinistra, riga_sopra[static_cast<std::size_t>(i)]})
        if (qui >= 0 && accanto >= 0 && qui != accanto) vicine.emplace(qui, accanto);
      if (qui >= 0) {
        Mappa_Zone altre;
        altre.cornice = mappa.cornice;
        altre.bersagli.assign(mappa.bersagli.begin() + qui + 1, mappa.bersagli.end());
        EXPECT_EQ(Bersaglio_In(altre, punto), -1) << mappa.bersagli[static_cast<std::size_t>(qui)].numero;
      }
      a_sinistra = riga_sopra[static_cast<std::size_t>(i)] = qui;
    }
  }
  EXPECT_GE(vicine.size(), 5U);
  for (const auto& [una, altra] : vicine)
    EXPECT_NE(mappa.bersagli[static_cast<std::size_t>(una)].tinta,
              mappa.bersagli[static_cast<std::size_t>(altra)].tinta)
        << Numero(mappa, una) << " e " << Numero(mappa, altra);
}

TEST_P(Mappa_Disegnata, ConLeFrecceSiArrivaAOgniScrittaDaQualunque) {
  const int quante = static_cast<int>(mappa.bersagli.size());
  for (int da = 0; da < quante; ++da) {
    std::set<int> raggiunte = {da};
    std::vector<int> da_vedere = {da};
    while (!da_vedere.empty()) {
      const int qui = da_vedere.back();
      da_vedere.pop_back();
      for (const auto& [dx, dy] : {std::pair(-1, 0), std::pair(1, 0), std::pair(0, -1), std::pair(0, 1)})
        if (const int altra = Bersaglio_Accanto(mappa, qui, dx, dy);
            altra >= 0 && raggiunte.insert(altra).second)
          da_vedere.push_back(altra);
    }
    EXPECT_EQ(static_cast<int>(raggiunte.size()), quante) << Numero(mappa, da);
  }
}

TEST_P(Mappa_Disegnata, LaCostaDiUnAreaEUnPezzoDellaCostaELaTocca) {
  std::set<std::pair<double, double>> punti;
  for (const Spezzata& costa : mappa.coste)
    for (const Punto_Mappa punto : costa) punti.emplace(punto.x, punto.y);
  for (const Bersaglio& bersaglio : mappa.bersagli)
    for (const Spezzata& costa : Coste_Di(mappa, bersaglio)) {
      EXPECT_FALSE(costa.empty());
      for (const Punto_Mappa punto : costa) ASSERT_TRUE(punti.count({punto.x, punto.y}));
    }
}

TEST_P(Mappa_Disegnata, OgniZonaDelleSueEtichetteERiconosciuta) {
  for (std::size_t i = 0; i < mappa.bersagli.size(); ++i) {
    if (mappa.bersagli[i].zona.empty()) continue;
    EXPECT_EQ(Bersaglio_Di_Zona(mappa, mappa.bersagli[i].zona), static_cast<int>(i));
  }
}

INSTANTIATE_TEST_SUITE_P(Mappe, Mappa_Disegnata, testing::ValuesIn(nomi),
                         [](const auto& nome) { return Testo(nome.param); });

struct Luogo {
  Vista mappa;
  double est, nord;
  Testo numero;
  Vista quale;
};

TEST(Mappe, IMariCheSiConosconoStannoNellaLoroArea) {
  const Luogo luoghi[] = {{nomi_mappa::Mediterraneo, 12.7, 45.1, "37.2.1", "largo di Chioggia"},
                          {nomi_mappa::Mediterraneo, 18.0, 41.4, "37.2.2", "largo di Brindisi"},
                          {nomi_mappa::Mediterraneo, 12.4, 37.3, "37.2.2", "Mazara del Vallo"},
                          {nomi_mappa::Mediterraneo, 9.0, 44.1, "37.1.3", "largo di Genova"},
                          {nomi_mappa::Mediterraneo, 2.6, 41.2, "37.1.1", "largo di Barcellona"},
                          {nomi_mappa::Mediterraneo, 5.2, 43.0, "37.1.2", "largo di Marsiglia"},
                          {nomi_mappa::Mediterraneo, 24.8, 38.8, "37.3.1", "Egeo"},
                          {nomi_mappa::Mediterraneo, 30.0, 31.9, "37.3.2", "largo di Alessandria"},
                          {nomi_mappa::Mediterraneo, 31.0, 45.8, "37.4.2", "largo di Odessa"},
                          {nomi_mappa::Mediterraneo, 12.5, 42.0, "", "Roma"},
                          {nomi_mappa::Mediterraneo, -4.0, 45.0, "", "Golfo di Biscaglia, d'altra carta"},
                          {nomi_mappa::Mediterraneo, 50.0, 40.0, "", "fuori dalla cornice"},
                          {nomi_mappa::Atlantico, 9.5, 58.0, "IIIa", "Skagerrak"},
                          {nomi_mappa::Atlantico, 11.2, 57.2, "IIIa", "Kattegat"},
                          {nomi_mappa::Atlantico, 18.5, 56.0, "IIId", "largo di Gotland"},
                          {nomi_mappa::Atlantico, 20.0, 62.5, "IIId", "Golfo di Botnia"},
                          {nomi_mappa::Atlantico, 3.0, 54.5, "IV", "Dogger Bank"},
                          {nomi_mappa::Atlantico, -0.5, 50.2, "VII", "Manica"},
                          {nomi_mappa::Atlantico, -5.0, 45.0, "VIII", "Golfo di Biscaglia"},
                          {nomi_mappa::Atlantico, -7.0, 61.2, "V", "largo delle Fær Øer"},
                          {nomi_mappa::Atlantico, -20.0, 66.8, "V", "a nord dell'Islanda"},
                          {nomi_mappa::Atlantico, -28.0, 40.0, "X", "Azzorre"},
                          {nomi_mappa::Atlantico, 5.0, 41.0, "", "Mediterraneo, d'altra carta"},
                          {nomi_mappa::Atlantico, 2.3, 48.8, "", "Parigi"},
                          {nomi_mappa::Mondo, 15.5, 43.0, "37", "Adriatico"},
                          {nomi_mappa::Mondo, 34.0, 43.5, "37", "Mar Nero"},
                          {nomi_mappa::Mondo, 38.0, 21.0, "51", "Mar Rosso"},
                          {nomi_mappa::Mondo, -85.0, 60.0, "18", "Baia di Hudson"},
                          {nomi_mappa::Mondo, 179.0, 40.0, "61", "un grado prima del cambio di data"},
                          {nomi_mappa::Mondo, 181.0, 40.0, "61", "un grado dopo"},
                          {nomi_mappa::Mondo, -170.0, 0.0, "77", "al bordo sinistro"},
                          {nomi_mappa::Mondo, 170.0, -50.0, "81", "a sud della Nuova Zelanda"},
                          {nomi_mappa::Mondo, -170.0, -50.0, "81", "la stessa area all'altro bordo"},
                          {nomi_mappa::Mondo, 175.0, -65.0, "88", "Antartide"},
                          {nomi_mappa::Mondo, 175.0, 72.0, "18", "Mar Glaciale"},
                          {nomi_mappa::Mondo, 50.8, 42.5, "", "Mar Caspio, d'acqua e di nessuna zona"},
                          {nomi_mappa::Mondo, 20.0, 20.0, "", "Sahara"}};
  for (const auto& [mappa, est, nord, numero, quale] : luoghi)
    EXPECT_EQ(Numero_In(mappa, est, nord), numero) << quale;
}

// A pool without a zone would be a click without an answer; the Caspian is the only one.
TEST(Mappe, OgniMareDelMondoHaUnArea) {
  const Mappa_Zone& mappa = Mappa_Di(nomi_mappa::Mondo);
  for (int nord = -78; nord <= 84; nord += 3)
    for (int est = -174; est <= 184; est += 3) {
      const bool caspio = est > 45 && est < 56 && nord > 36 && nord < 48;
      const Punto_Mappa punto = Punto_Su(nomi_mappa::Mondo, est, nord);
      if (caspio || In_Terra(mappa, punto)) continue;
      EXPECT_GE(Bersaglio_In(mappa, punto), 0) << est << " E " << nord << " N";
    }
}

// The outlines are cut at the date line and at the pole, and no coast may be drawn there.
TEST(Mappe, DoveIContorniSonoTagliatiNonCECosta) {
  const Mappa_Zone& mappa = Mappa_Di(nomi_mappa::Mondo);
  const double cambio_data = Punto_Su(nomi_mappa::Mondo, 180, 0).x;
  for (const Spezzata& costa : mappa.coste)
    for (std::size_t i = 1; i < costa.size(); ++i)
      EXPECT_FALSE(std::abs(costa[i].x - cambio_data) < 0.04 &&
                   std::abs(costa[i - 1].x - cambio_data) < 0.04 &&
                   std::abs(costa[i].y - costa[i - 1].y) > 0.5)
          << costa[i].y;
}

struct Zona_Riconosciuta {
  Vista mappa, zona;
  Testo numero;
};

TEST(Mappe, LaZonaDellaRigaESegnataSullaCarta) {
  const Zona_Riconosciuta casi[] = {
      {nomi_mappa::Mediterraneo, "A083721 - Mediterraneo Adriatico", "37.2.1"},
      {nomi_mappa::Mediterraneo, "a083721", "37.2.1"},
      {nomi_mappa::Mediterraneo, "A093742 - Mar Nero propriamente detto", "37.4.2"},
      {nomi_mappa::Mediterraneo, "A0837 - Mar Mediterraneo", ""},
      {nomi_mappa::Mediterraneo, "A02271 - Mar di Barents", ""},
      {nomi_mappa::Mediterraneo, "", ""},
      {nomi_mappa::Atlantico, "A02274b - Mare del Nord centrale", "IV"},
      {nomi_mappa::Atlantico, "A02273b - Sound e Belt", "IIIa"},
      {nomi_mappa::Atlantico, "A02273d - Mar Baltico", "IIId"},
      {nomi_mappa::Atlantico, "A022710a - Azores grounds", "X"},
      {nomi_mappa::Atlantico, "A02271a - Mar di Barents - zona NEAFC", "I"},
      {nomi_mappa::Atlantico, "A022711", ""},
      {nomi_mappa::Mondo, "A083721 - Mar Med. Adratico", "37"},
      {nomi_mappa::Mondo, "A09374 - Mar Nero", "37"},
      {nomi_mappa::Mondo, "A0327 - Mar Baltico", "27"},
      {nomi_mappa::Mondo, "A1171 - Pacifico centro-occidentale", "71"},
      {nomi_mappa::Mondo, "A02271 - Mar di Barents", "27"},
      {nomi_mappa::Mondo, "B - Prodotto della pesca in acqua dolce", ""},
      {nomi_mappa::Mondo, "Adriatico", ""}};
  for (const auto& [mappa, zona, numero] : casi)
    EXPECT_EQ(Numero(Mappa_Di(mappa), Bersaglio_Di_Zona(Mappa_Di(mappa), zona)), numero)
        << mappa << ' ' << zona;
}

TEST(Mappe, LeFreccePortanoAllaScrittaAccanto) {
  const Mappa_Zone& mappa = Mappa_Di(nomi_mappa::Mediterraneo);
  const auto accanto = [&](Vista da, int dx, int dy) {
    return Numero(mappa, Bersaglio_Accanto(mappa, Posizione(mappa, da), dx, dy));
  };
  EXPECT_EQ(accanto("37.1.1", 1, 0), "37.1.3");
  EXPECT_EQ(accanto("37.1.1", 0, -1), "37.1.2");
  EXPECT_EQ(accanto("37.2.1", 0, 1), "37.2.2");
  EXPECT_EQ(accanto("37.3.2", -1, 0), "37.2.2");
  EXPECT_EQ(accanto("37.1.1", -1, 0), "");
  EXPECT_EQ(Bersaglio_Accanto(mappa, -1, 1, 0), -1);
  EXPECT_EQ(Bersaglio_Accanto(mappa, 99, 1, 0), -1);
}

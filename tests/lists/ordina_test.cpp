#include "lists/ordina.h"

#include <algorithm>
#include <numeric>

#include "lists/consolida.h"
#include "tests/lists/cartella_ditta.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Ordini : public Cartella_Ditta {
 protected:
  void Righe_Con(CampoRiga campo, const std::vector<Testo>& testi) {
    programma.Vet_Tabella.righe.clear();
    for (const Testo& testo : testi) {
      auto& riga = programma.Vet_Tabella.righe.emplace_back();
      riga[CampoRiga::Num] = Pad_Sinistra(std::to_string(programma.Vet_Tabella.Righe()), 4, '0');
      riga[campo] = testo;
    }
  }
  std::vector<Testo> Colonna(CampoRiga campo) const {
    std::vector<Testo> testi;
    for (const auto& riga : programma.Vet_Tabella.righe) testi.push_back(riga[campo]);
    return testi;
  }
};

TEST(Quick_Sort, OrdinaIgnorandoLeMaiuscoleTraIDueEstremi) {
  std::vector<Testo> chiavi = {"z", "b", "A", "à"_t, "B2", "a"};
  Quick_Sort(chiavi, 1, 4);
  EXPECT_THAT(chiavi, ElementsAre("z", "A", "b", "B2", "à"_t, "a"));
  Quick_Sort(chiavi, 3, 3);
  EXPECT_THAT(chiavi, ElementsAre("z", "A", "b", "B2", "à"_t, "a"));
  Quick_Sort(chiavi, 0, 5);
  EXPECT_EQ(chiavi.front(), "A");
  EXPECT_EQ(chiavi.back(), "à"_t);
  std::vector<Testo> nessuna;
  Quick_Sort(nessuna, 0, 0);
  EXPECT_THAT(nessuna, IsEmpty());
}

// Rounds of every length, rows that stay where they are, and texts both short and long enough for a memory of
// their own.
TEST(Riordina, OgniRigaVaAlSuoPosto) {
  constexpr std::size_t quante = 6;
  std::vector<Testo> righe;
  for (std::size_t i = 0; i < quante; ++i)
    righe.push_back(Testo(i % 2 == 0 ? 3 : 40, static_cast<char>('a' + i)));
  std::vector<std::size_t> ordine(quante);
  std::iota(ordine.begin(), ordine.end(), std::size_t{0});
  do {
    std::vector<Testo> attese;
    for (const std::size_t vecchio : ordine) attese.push_back(righe[vecchio]);
    std::vector<Testo> ordinate = righe;
    Riordina(ordinate, ordine);
    ASSERT_EQ(ordinate, attese);
  } while (std::ranges::next_permutation(ordine).found);
}

TEST_F(Ordini, PerUnCampoComeTestoECambiaColonnaOrdine) {
  Righe_Con(CampoRiga::DDT, {"9", "10", "", "002", "abc"});
  programma.Tabella_Modificata = false;
  Ordina_Colonna(programma, CampoRiga::DDT);
  EXPECT_THAT(Colonna(CampoRiga::DDT), ElementsAre("", "002", "10", "9", "abc"));
  EXPECT_THAT(Colonna(CampoRiga::Num), ElementsAre("0003", "0004", "0002", "0001", "0005"));
  EXPECT_EQ(programma.Colonna_Ordine, 20);
  EXPECT_FALSE(programma.Tabella_Modificata);
}

TEST_F(Ordini, LeRigheUgualiTengonoIlLoroOrdine) {
  Righe_Con(CampoRiga::Fornitore, {"mare", "Alba", "MARE", "alba", "Mare"});
  Ordina_Colonna(programma, CampoRiga::Fornitore);
  EXPECT_THAT(Colonna(CampoRiga::Num), ElementsAre("0002", "0004", "0001", "0003", "0005"));
}

TEST_F(Ordini, MoltissimeRigheUgualiTengonoIlLoroOrdine) {
  Righe_Con(CampoRiga::Fornitore, std::vector<Testo>(3000, "uguale"));
  const auto prima = Colonna(CampoRiga::Num);
  Ordina_Colonna(programma, CampoRiga::Fornitore);
  EXPECT_EQ(Colonna(CampoRiga::Num), prima);
}

// The key joins the fields with " - ", so a name and a longer one that begins with it stand by that sign.
TEST_F(Ordini, IlSegnoTraICampiDellaChiaveContaNelConfronto) {
  Righe_Con(CampoRiga::Cliente, {"Mare", "Mare  Blu", "Mare!", "Mare Blu"});
  Ordina_Colonna(programma, CampoRiga::Cliente);
  EXPECT_THAT(Colonna(CampoRiga::Cliente), ElementsAre("Mare  Blu", "Mare", "Mare Blu", "Mare!"));
}

TEST_F(Ordini, PerPrezzoComeNumeroINegativiDavantiPerTesto) {
  Righe_Con(CampoRiga::Prezzo, {"100", "9,5", "-12", "-2", "0,50", "12,345", ""});
  Ordina_Colonna(programma, CampoRiga::Prezzo);
  EXPECT_THAT(Colonna(CampoRiga::Prezzo), ElementsAre("", "-2", "-12", "0,50", "9,5", "12,345", "100"));
  EXPECT_EQ(programma.Colonna_Ordine, 8);
}

TEST_F(Ordini, PrezziDiversiSoloDopoIlTerzoDecimalePerNumeroDiRiga) {
  Righe_Con(CampoRiga::Prezzo, {"5,0004", "5,0001", "5"});
  Ordina_Colonna(programma, CampoRiga::Prezzo);
  EXPECT_THAT(Colonna(CampoRiga::Num), ElementsAre("0001", "0002", "0003"));
}

TEST_F(Ordini, PerPrezzoConLAltroSeparatore) {
  programma.Separatore_Decimale = '.';
  Righe_Con(CampoRiga::Prezzo, {"10.5", "9.75", "9.8"});
  Ordina_Colonna(programma, CampoRiga::Prezzo);
  EXPECT_THAT(Colonna(CampoRiga::Prezzo), ElementsAre("9.75", "9.8", "10.5"));
}

TEST_F(Ordini, UnaRigaSolaRestaComE) {
  programma.Vet_Tabella = Tabella{{Riga_Segnaposto()}};
  for (const CampoRiga campo : {CampoRiga::Prezzo, CampoRiga::Fornitore}) {
    Ordina_Colonna(programma, campo);
    EXPECT_EQ(programma.Vet_Tabella.righe, std::vector{Riga_Segnaposto()});
    EXPECT_EQ(programma.Colonna_Ordine, static_cast<int>(campo));
  }
}

TEST_F(Ordini, ComeDocSanitarioIlPrezzoETestoEIBianchiInFondoAiCodiciNonContano) {
  Righe_Con(CampoRiga::Cliente, {"B", "A", "A", "A", "A"});
  const Testo prezzi[] = {"1", "9,00", "10,00", "9,00", "9,00"};
  const Testo codici[] = {"x", "k ", "k", "k", "k "};
  for (int r = 1; r <= 5; ++r) {
    programma.Vet_Tabella(CampoRiga::Prezzo, r) = prezzi[r - 1];
    programma.Vet_Tabella(CampoRiga::CodiciConsolidare, r) = codici[r - 1];
  }
  OrdinaCinque(programma, CampoRiga::Cliente, CampoRiga::Specie, CampoRiga::Prezzo, CampoRiga::Lotti,
               CampoRiga::CodiciConsolidare);
  EXPECT_THAT(Colonna(CampoRiga::Num), ElementsAre("0003", "0002", "0004", "0005", "0001"));
  EXPECT_EQ(programma.Colonna_Ordine, 3);
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::CodiciConsolidare, 2), "k ");
}

TEST_F(Ordini, ADueEATreCampi) {
  Righe_Con(CampoRiga::Fornitore, {"B", "a", "b", "A"});
  const Testo specie[] = {"Orata", "Sogliola", "Canocchia", "sogliola"};
  for (int r = 1; r <= 4; ++r) programma.Vet_Tabella(CampoRiga::Specie, r) = specie[r - 1];
  OrdinaDue(programma, CampoRiga::Fornitore, CampoRiga::Specie);
  EXPECT_THAT(Colonna(CampoRiga::Num), ElementsAre("0002", "0004", "0003", "0001"));
  OrdinaTre(programma, CampoRiga::Specie, CampoRiga::Num, CampoRiga::Fornitore);
  EXPECT_THAT(Colonna(CampoRiga::Num), ElementsAre("0003", "0001", "0002", "0004"));
  EXPECT_EQ(programma.Colonna_Ordine, 5);
}

TEST_F(Ordini, RinumerareChiudeIVuotiNellOrdineDiImmissione) {
  Righe_Con(CampoRiga::Specie, {"c", "a", "b"});
  const Testo numeri[] = {"0009", "0002", "0005"};
  for (int r = 1; r <= 3; ++r) programma.Vet_Tabella(CampoRiga::Num, r) = numeri[r - 1];
  programma.Colonna_Ordine = 5;
  Rinumera_Tabella(programma);
  EXPECT_THAT(Colonna(CampoRiga::Specie), ElementsAre("a", "b", "c"));
  EXPECT_THAT(Colonna(CampoRiga::Num), ElementsAre("0001", "0002", "0003"));
  EXPECT_EQ(programma.Colonna_Ordine, 1);
}

// A number of five digits stands behind those of four, where its text alone would stand among them.
TEST_F(Ordini, OltreNovemilanovecentonovantanoveRigheLOrdineDiImmissioneTiene) {
  std::vector<Testo> specie;
  for (int i = 1; i <= 32767; ++i) specie.push_back(std::to_string(i));
  Righe_Con(CampoRiga::Specie, specie);
  Ordina_Colonna(programma, CampoRiga::Num);
  EXPECT_EQ(Colonna(CampoRiga::Specie), specie);
  std::ranges::reverse(programma.Vet_Tabella.righe);
  EXPECT_FALSE(Rinumera_Tabella(programma));
  EXPECT_EQ(Colonna(CampoRiga::Specie), specie);
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Num, 10000), "10000");
}

// Up to four digits, and for what is no number, Num goes by its text as every other field.
TEST_F(Ordini, FinoAQuattroCifreIlNumeroETesto) {
  Righe_Con(CampoRiga::Fornitore, {"a", "a", "a", "a", "a", "a", "a", "a", "a"});
  const std::vector<Testo> numeri = {"10000", "9999", "0007", "7", "9x", "", "-", "x", "123456"};
  for (int r = 1; r <= 9; ++r)
    programma.Vet_Tabella(CampoRiga::Num, r) = numeri[static_cast<std::size_t>(r - 1)];
  const std::vector<Testo> attesi = {"", "-", "0007", "7", "9999", "9x", "10000", "123456", "x"};
  Ordina_Colonna(programma, CampoRiga::Num);
  EXPECT_EQ(Colonna(CampoRiga::Num), attesi);
  OrdinaTre(programma, CampoRiga::Fornitore, CampoRiga::Specie, CampoRiga::Num);
  EXPECT_EQ(Colonna(CampoRiga::Num), attesi);
}

TEST_F(Ordini, DodicimilaRigheIntere) {
  std::vector<Testo> testi;
  for (int i = 0; i < 12000; ++i) testi.push_back(std::to_string(i * 7919 % 12000));
  Righe_Con(CampoRiga::Lotti, testi);
  Ordina_Colonna(programma, CampoRiga::Lotti);
  const auto colonna = Colonna(CampoRiga::Lotti);
  EXPECT_TRUE(std::is_sorted(colonna.begin(), colonna.end()));
  for (const auto& riga : programma.Vet_Tabella.righe)
    EXPECT_EQ(riga[CampoRiga::Lotti], testi[static_cast<std::size_t>(std::stoi(riga[CampoRiga::Num]) - 1)]);
}

TEST_F(Ordini, IClientiPerCodiceNomeESoprannomeFinisconoNelFile) {
  const TabellaLista<9> clienti = {{"00003", "beta", "zz"}, {"00001", "Gamma", "b"}, {"00002", "Alfa", "C"}};
  const std::tuple<int, Testo> prove[] = {{1, "123"}, {2, "231"}, {3, "123"}};
  for (const auto& [campo, ordine] : prove) {
    programma.Vet_Clienti = clienti;
    ASSERT_TRUE(Ordina_Clienti(programma, campo));
    Testo trovato;
    const Testo contenuto = Contenuto(nomi_file::Clienti);
    for (const Vista riga : Righe(contenuto)) trovato += riga[4];
    EXPECT_EQ(trovato, ordine) << campo;
  }
  Disco_Pieno(nomi_file::Clienti);
  EXPECT_FALSE(Ordina_Clienti(programma, 2));
  EXPECT_EQ(programma.Vet_Clienti[0][cliente::RagioneSociale1], "Alfa");
}

TEST_F(Ordini, LeSpeciePerAlfaDescrizioneAliquotaELatino) {
  const TabellaLista<8> elenco = {{"22", "Orata", "Sparus", "", "1", "", "", "SBG"},
                                  {"10", "sogliola", "Solea", "", "2", "", "", "SOL"},
                                  {"4", "Alice", "Engraulis", "", "3", "", "", "ANE"}};
  const std::tuple<int, Testo> prove[] = {
      {specie::Alfa, "312"}, {specie::Descrizione, "312"}, {specie::Iva, "213"}, {specie::NomeLatino, "321"}};
  for (const auto& [colonna, ordine] : prove) {
    programma.Vet_Specie = elenco;
    ASSERT_TRUE(Ordina_Specie(programma, colonna));
    Testo trovato;
    for (const auto& riga : programma.Vet_Specie) trovato += riga[specie::CodiceMercato];
    EXPECT_EQ(trovato, ordine) << colonna;
  }
  EXPECT_THAT(Contenuto(nomi_file::Specie), testing::StartsWith("4\tAlice\t"));
}

using Riga4 = std::array<Testo, 4>;
constexpr std::size_t A = 0, B = 1, S1 = 2, S2 = 3;

std::vector<Riga4> Consolidata(std::vector<Riga4> righe, char separatore = ',') {
  Consolida(righe, {A, B}, {S1, S2}, separatore);
  return righe;
}

TEST(Consolida, SommaLeRigheConLeStesseChiavi) {
  EXPECT_THAT(Consolidata({{"Orata", "9", "12,50", "1"},
                           {"alice", "3", "5", "2"},
                           {"ORATA", "9", "1", "3"},
                           {"Orata", "9,0", "7", "1"},
                           {"orata", "9", "0,1", "0"}}),
              ElementsAre(Riga4{"alice", "3", "5", "2"}, Riga4{"Orata", "9", "13,6", "4"},
                          Riga4{"Orata", "9,0", "7", "1"}));
}

TEST(Consolida, LeSommeSonoTestiDecimaliSenzaZeriDiTroppo) {
  EXPECT_THAT(Consolidata({{"a", "b", "12,50", "0,1"}, {"a", "b", "1", "0,2"}}),
              ElementsAre(Riga4{"a", "b", "13,5", "0,3"}));
  EXPECT_THAT(Consolidata({{"a", "b", "12.50", "-1"}, {"a", "b", "1", "0.5"}}, '.'),
              ElementsAre(Riga4{"a", "b", "13.5", "-0.5"}));
}

// A text that is no number counts as nothing: it neither changes the sum nor takes the weight of its
// neighbours away, which stand on a document and an invoice.
TEST(Consolida, UnTestoCheNonENumeroNonCambiaLaSomma) {
  EXPECT_THAT(Consolidata({{"a", "b", "x", "1"}, {"a", "b", "2", ""}, {"a", "b", "3", "4"}}),
              ElementsAre(Riga4{"a", "b", "5", "5"}));
  EXPECT_THAT(Consolidata({{"a", "b", "10,50", "1"}, {"a", "b", "x", "x"}, {"a", "b", "5", "2"}}),
              ElementsAre(Riga4{"a", "b", "15,5", "3"}));
  EXPECT_THAT(Consolidata({{"a", "b", "x", "01"}, {"a", "b", "", "y"}}),
              ElementsAre(Riga4{"a", "b", "x", "01"}));
}

TEST(Consolida, MenoDiDueRigheRestanoComeSono) {
  EXPECT_THAT(Consolidata({}), IsEmpty());
  EXPECT_THAT(Consolidata({{"a", "b", "12,50", "01"}}), ElementsAre(Riga4{"a", "b", "12,50", "01"}));
}

TEST(Consolida, SoloLeVicineSeNonSiOrdina) {
  std::vector<Riga4> righe = {{"a", "", "1"}, {"A", "", "2"}, {"b", "", "4"}, {"a", "", "8"}};
  Unisci_Vicine(righe, {A}, {S1}, ',');
  EXPECT_THAT(righe, ElementsAre(Riga4{"a", "", "3"}, Riga4{"b", "", "4"}, Riga4{"a", "", "8"}));
}

TEST(Consolida, RigheDelGiornoPerQuattroCampiAncheConIBianchiInFondoAiCodici) {
  std::vector<LedgerRow> righe(3);
  for (auto& riga : righe) {
    riga[CampoRiga::Specie] = "Orata";
    riga[CampoRiga::Peso] = "2,5";
    riga[CampoRiga::Colli] = "1";
    riga[CampoRiga::CodiciConsolidare] = "RDT SBG";
  }
  righe[1][CampoRiga::CodiciConsolidare] = "RDT SBG ";
  righe[2][CampoRiga::Lotti] = "altro";
  Consolida(righe, {CampoRiga::Specie, CampoRiga::Prezzo, CampoRiga::Lotti, CampoRiga::CodiciConsolidare},
            {CampoRiga::Peso, CampoRiga::Colli}, ',');
  ASSERT_EQ(righe.size(), 2U);
  EXPECT_EQ(righe[0][CampoRiga::Peso], "5");
  EXPECT_EQ(righe[0][CampoRiga::Colli], "2");
  EXPECT_EQ(righe[1][CampoRiga::Peso], "2,5");
}

TEST(Consolida, CentomilaRigheUgualiDiventanoUna) {
  std::vector<Riga4> righe(100000, Riga4{"a", "b", "0,1", "1"});
  Consolida(righe, {A, B}, {S1, S2}, ',');
  EXPECT_THAT(righe, ElementsAre(Riga4{"a", "b", "10000", "100000"}));
}

}  // namespace

#include "primanota/nota.h"

#include <gmock/gmock.h>
#include <numeric>

#include "tests/primanota/note_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::Pair;

constexpr Foglio_Nota A4{0, 279};

// ---- the sheet

TEST(Nota_Foglio, RighePerPaginaEPasso) {
  struct Caso {
    Modo_Nota modo;
    int righe, passo;
  };
  const Caso casi[] = {
      {{false, false, false}, 25, 7},
      {{false, true, false}, 15, 6},
      {{true, false, false}, 35, 6},
      {{true, true, false}, 25, 6},
  };
  for (const auto& [modo, righe, passo] : casi) {
    EXPECT_EQ(RighePerPagina(modo), righe);
    EXPECT_EQ(PassoRighe(modo), passo);
  }
}

TEST(Nota_Foglio, FondoEAltezze) {
  const std::pair<double, double> fondi[] = {{297, 279}, {280, 279}, {279.9, 279.9}, {200, 200}};
  for (const auto& [altezza, fondo] : fondi) EXPECT_DOUBLE_EQ(FondoUtile(altezza), fondo);
  EXPECT_DOUBLE_EQ(AltezzaLinea(A4, {}, 1), 72);
  EXPECT_DOUBLE_EQ(AltezzaLinea({5, 279}, {}, 25), 245);
  EXPECT_DOUBLE_EQ(AltezzaLinea({5, 279}, {true, false, false}, 10), 130);
}

// ---- a row

TEST(Nota_Riga, Zona) {
  struct Caso {
    Testo zona, prov, zona_mostrata, prov_mostrata;
  };
  const Caso casi[] = {
      {"A0837 - Mar Mediterraneo", "IT Italia", "A0837", "IT"},
      {"C - Prodotto di acquacoltura", "ITA", "ITA_C", " "},
      {"c - allevato", "IT Italia", "IT_c", " "},
      {"B - Acque dolci", " HR Croazia", "HR_B", " "},
      {"A0837", "IT", "A0837", "IT"},
      {"altra zona", "IT", "altra zona", "IT"},
      {"- niente", "IT", "", "IT"},
      {"", "", "", ""},
      {"C", "", "_C", " "},
  };
  for (const Caso& caso : casi)
    EXPECT_THAT(ZonaMostrata(caso.zona, caso.prov), Pair(caso.zona_mostrata, caso.prov_mostrata))
        << caso.zona;
}

TEST(Nota_Riga, Acquirente) {
  EXPECT_EQ(ClienteMostrato("00123", Testo(30, 'N')), "00123  " + Testo(30, 'N'));
  EXPECT_EQ(ClienteMostrato("00123", Testo(31, 'N')), "00123  " + Testo(27, 'N') + "...");
  EXPECT_EQ(ClienteMostrato("", ""), "  ");
}

struct Nota_Composta : Note_Di_Prova {
  Riga_Nota Composta(Vista peso, Vista prezzo, Vista iva = "10") const {
    LedgerRow riga = Riga(1, "Laguna", peso, prezzo);
    riga[CampoRiga::Iva] = iva;
    riga[CampoRiga::DDT_CV] = "00012";
    return ComponiRigaNota(programma, riga, 1);
  }
  Nota_Stampata Nota_Di(const std::vector<LedgerRow>& righe, const Modo_Nota& modo = {}) const {
    const Nota nota{"IT Italia", "Laguna"};
    return ComponiNota(programma, righe, modo.tutto ? nullptr : &nota, modo, A4);
  }
};

TEST_F(Nota_Composta, PesoPrezzoImporto) {
  struct Caso {
    Testo peso, prezzo, iva, peso_stampato, prezzo_stampato;
    double importo, imposta;
    bool accredito;
  };
  const Caso casi[] = {
      {"12,5", "9,80", "10", "12,50", "9,80", 122.5, 12.25, false},
      {"1234,5", "2", "4", "1.234,50", "2,00", 2469, 98.76, false},
      {"5", "-3.5", "10", "5,00", "-3,50", -17.5, -1.75, true},
      {"10", "0", "10", "10,00", "0,00", 0, 0, false},
      {"dieci", "5", "10", "dieci", "5,00", 0, 0, false},  // seen on the paper, in no sum
      {"10", "", "10", "10,00", "", 0, 0, false},
      {"10", "5", "ESENTE", "10,00", "5,00", 50, 0, false},
  };
  for (const char separatore : {',', '.'}) {
    Apri_Giorno(separatore);
    for (const Caso& caso : casi) {
      const Riga_Nota riga = Composta(caso.peso, caso.prezzo, caso.iva);
      EXPECT_EQ(riga.Peso, caso.peso_stampato);
      EXPECT_EQ(riga.Prezzo, caso.prezzo_stampato);
      EXPECT_DOUBLE_EQ(riga.Importo, caso.importo) << caso.peso;
      EXPECT_DOUBLE_EQ(riga.Iva, caso.imposta) << caso.peso;
      EXPECT_EQ(riga.accredito, caso.accredito);
      EXPECT_EQ(riga.Credito, caso.accredito ? "00012" : "");
    }
  }
}

TEST_F(Nota_Composta, LaDescrizioneSiTaglia) {
  LedgerRow riga = Riga(1, "Laguna");
  riga[CampoRiga::Specie] = Testo(31, 's');
  EXPECT_EQ(ComponiRigaNota(programma, riga, 1).Descrizione, Testo(30, 's'));
}

// ---- pages

struct Caso_Pagine {
  int righe, accrediti;  // credit rows last
  Modo_Nota modo;
  std::vector<int> attese;  // rows on each page
};

TEST_F(Nota_Composta, Pagine) {
  const Modo_Nota normale, na{false, true, false}, tutto{true, false, false}, tutto_na{true, true, false};
  const Caso_Pagine casi[] = {
      {0, 0, normale, {}},
      {1, 0, normale, {1}},
      {25, 0, normale, {25}},  // exactly the page's rows are one page
      {26, 0, normale, {25, 1}},
      {50, 0, normale, {25, 25}},
      {15, 0, na, {15}},
      {16, 0, na, {15, 1}},
      {35, 0, tutto, {35}},
      {36, 0, tutto, {35, 1}},
      {25, 0, tutto_na, {25}},
      {26, 0, tutto_na, {25, 1}},
      // a credit row has a line more: the page holds what fits above its foot
      {24, 1, normale, {25}},
      {23, 2, normale, {24, 1}},
      {0, 25, normale, {13, 12}},
      {0, 15, na, {15}},  // so many fit with "Tante NA"
      {0, 16, na, {15, 1}},
  };
  for (const Caso_Pagine& caso : casi) {
    std::vector<Riga_Nota> righe(static_cast<std::size_t>(caso.righe), Composta("1", "2"));
    righe.resize(static_cast<std::size_t>(caso.righe + caso.accrediti), Composta("1", "-2"));
    std::vector<int> trovate;
    for (const Pagina_Nota& pagina : ImpaginaNota(righe, caso.modo, A4))
      trovate.push_back(static_cast<int>(pagina.righe.size()));
    EXPECT_EQ(trovate, caso.attese) << caso.righe << "+" << caso.accrediti;
  }
}

TEST_F(Nota_Composta, UnFoglioBassoTieneLeRigheDette) {
  std::vector<Riga_Nota> righe(25, Composta("1", "2"));
  EXPECT_EQ(ImpaginaNota(righe, {}, {30, 150}).size(), 1U);
}

TEST_F(Nota_Composta, LeSommeDellePagineFannoIlTotale) {
  std::vector<LedgerRow> righe;
  for (int i = 0; i < 60; ++i)
    righe.push_back(Riga(i + 1, "Laguna", std::to_string(i) + ",25", i % 7 == 0 ? "-3" : "4,5"));
  righe.push_back(Riga(61, "Laguna", "x", "4"));
  const Nota_Stampata nota = Nota_Di(righe);
  double pagine = 0;
  int numero = 0;
  for (const Pagina_Nota& pagina : nota.pagine) {
    pagine += pagina.Importo;
    for (const Riga_Nota& riga : pagina.righe) EXPECT_EQ(riga.numero, ++numero);
  }
  EXPECT_EQ(numero, 61);
  EXPECT_NEAR(pagine, nota.Importo, 1e-9);
  EXPECT_NEAR(nota.Iva, nota.Importo * 0.1, 1e-9);
}

// ---- head and signature

TEST_F(Nota_Composta, Testata) {
  const Nota_Stampata nota = Nota_Di({Riga(1, "Laguna")});
  EXPECT_THAT(nota.Ditta, ElementsAre("Mare Blu s.n.c. di Verdi Anna & C.", "via Roma, 1 30100 Venezia - VE",
                                      "Partita I.V.A. 00000000017"));
  EXPECT_EQ(nota.Venditore, "345 Mare Blu s.n.c.");
  EXPECT_EQ(nota.Provenienza, "IT Italia");
  EXPECT_EQ(nota.Giorno, "14/03/2025");
}

TEST_F(Nota_Composta, LaProvenienzaSoloDiUnaNotaPerProvenienza) {
  EXPECT_FALSE(Nota_Di({Riga(1, "Laguna")}, {true, false, false}).Provenienza);
  programma.preferenze.FlagC3pn = true;
  EXPECT_FALSE(Nota_Di({Riga(1, "Laguna")}).Provenienza);
}

TEST_F(Nota_Composta, LaFirma) {
  struct Caso {
    int preferenza;
    bool tutto, firma;
  };
  const Caso casi[] = {{1, false, true}, {1, true, false}, {0, false, false}, {2, false, false}};
  for (const Caso& caso : casi) {
    programma.preferenze.FlagFirmaPN = caso.preferenza;
    const Nota_Stampata nota = Nota_Di({Riga(1, "Laguna")}, {caso.tutto, false, false});
    EXPECT_EQ(nota.Firma.has_value(), caso.firma);
    if (caso.firma) {
      EXPECT_EQ(nota.Firma, "Venezia 14-03-2025");
    }
  }
}

TEST_F(Nota_Composta, LeCorniciDaOgniTipo) {
  const std::pair<int, bool> casi[] = {{0, false}, {1, true}, {2, true}};
  for (const auto& [tipo, cornici] : casi) {
    programma.preferenze.FlagStampaFramePN = tipo;
    EXPECT_EQ(Nota_Di({Riga(1, "Laguna")}).cornici, cornici);
  }
}

}  // namespace

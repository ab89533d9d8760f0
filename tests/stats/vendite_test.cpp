#include "stats/vendite.h"

#include "core/numeri.h"

namespace {

TEST(Somma, NonPerdeUnCentesimo) {
  Somma_Esatta somma;
  for (int i = 0; i < 1'000'000; ++i) somma.Aggiungi(0.1);
  EXPECT_EQ(somma.Valore(), 100'000.0);
}

TEST(Somma, ProdottiDiTreDecimaliSonoEsatti) {
  Somma_Esatta somma;
  for (int i = 0; i < 600'000; ++i) somma.Aggiungi_Prodotto(12.345, 9.876);
  EXPECT_EQ(Piano(somma.Valore(), '.'), "73151532");  // 121.91922 each
}

TEST(Somma, NegativiEPositiviSiAnnullano) {
  Somma_Esatta somma;
  somma.Aggiungi_Prodotto(12.5, 0.1);
  somma.Aggiungi_Prodotto(12.5, -0.1);
  somma.Aggiungi(0.3);
  somma.Aggiungi(-0.1);
  somma.Aggiungi(-0.2);
  EXPECT_EQ(somma.Valore(), 0);
}

TEST(Somma, PiuDiTreDecimaliEGrandiNumeriVannoAncheLoro) {
  Somma_Esatta somma;
  somma.Aggiungi_Prodotto(1.23456, 2);
  EXPECT_DOUBLE_EQ(somma.Valore(), 2.46912);
  somma.Aggiungi(1e300);
  EXPECT_EQ(somma.Valore(), 1e300);
  Somma_Esatta piena;  // beyond what 64 bits hold in millionths
  for (int i = 0; i < 4; ++i) piena.Aggiungi_Prodotto(2'000'000, 3'000'000);
  EXPECT_DOUBLE_EQ(piena.Valore(), 24e12);
  for (int i = 0; i < 8; ++i) piena.Aggiungi_Prodotto(2'000'000, -3'000'000);
  EXPECT_DOUBLE_EQ(piena.Valore(), -24e12);
}

TEST(Somma, UnaSommaSiAggiungeAdUnAltra) {
  Somma_Esatta prima, seconda;
  prima.Aggiungi(0.1);
  seconda.Aggiungi(0.2);
  seconda.Aggiungi(0.0000001);
  prima.Aggiungi(seconda);
  EXPECT_DOUBLE_EQ(prima.Valore(), 0.3000001);
}

TEST(Vendite, SegnapostoERigaVuotaNonSonoVendite) {
  EXPECT_TRUE(Senza_Vendita(Riga_Segnaposto()));
  EXPECT_TRUE(Senza_Vendita({}));
  LedgerRow riga;
  riga[CampoRiga::Num] = "0001";
  riga[CampoRiga::Cliente] = "Bar Sport";
  EXPECT_TRUE(Senza_Vendita(riga));
  riga[CampoRiga::Peso] = "0";
  EXPECT_FALSE(Senza_Vendita(riga));
}

}  // namespace

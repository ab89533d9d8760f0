#include "core/profili.h"

#include <gtest/gtest.h>
#include <set>

#include "core/riga.h"

namespace {

constexpr Profilo profili[] = {Profilo::Altinel, Profilo::Brenval, Profilo::Burvano, Profilo::Caspero,
                               Profilo::Cavarzo, Profilo::Dolvena, Profilo::Fusinal, Profilo::Lagomar,
                               Profilo::Marvesi, Profilo::Ombrano, Profilo::Rovigal, Profilo::Sarvena,
                               Profilo::Tolvera, Profilo::Zenival};

TEST(Profili, CodiciDelleDitte) {
  std::set<Profilo> visti;
  for (int codice = 101; codice <= 114; ++codice) visti.insert(Profilo_Ditta(std::to_string(codice)));
  EXPECT_EQ(visti, std::set<Profilo>(std::begin(profili), std::end(profili)));
  EXPECT_EQ(Profilo_Ditta("101"), Profilo::Altinel);
  EXPECT_EQ(Profilo_Ditta(" 108 "), Profilo::Lagomar);
  EXPECT_EQ(Profilo_Ditta("114"), Profilo::Zenival);
}

TEST(Profili, IlNomeValeComeCodice) {
  for (const Profilo profilo : profili) {
    EXPECT_FALSE(Nome_Profilo(profilo).empty());
    EXPECT_EQ(Profilo_Ditta(Nome_Profilo(profilo)), profilo);
    EXPECT_EQ(Profilo_Ditta(Maiuscolo(Nome_Profilo(profilo))), profilo);
  }
  EXPECT_EQ(Nome_Profilo(Profilo::Sarvena), "Sarvena");
}

TEST(Profili, SenzaProfilo) {
  for (const Vista codice : {"0", "", " ", "1", "100", "115", "0101", "Sarven", "Nessuno", "101x"})
    EXPECT_EQ(Profilo_Ditta(codice), Profilo::Nessuno) << codice;
  EXPECT_EQ(Nome_Profilo(Profilo::Nessuno), "");
}

TEST(Riga, Segnaposto) {
  const LedgerRow riga = Riga_Segnaposto();
  EXPECT_EQ(riga[CampoRiga::Num], "0001");
  EXPECT_EQ(riga[CampoRiga::Fornitore], "Modificare questa riga...");
  for (std::size_t i = 2; i < riga.campi.size(); ++i) EXPECT_EQ(riga.campi[i], "") << i;
}

TEST(Riga, TitoliDeiCampi) {
  EXPECT_EQ(Vet_Titoli[static_cast<std::size_t>(Indice(CampoRiga::Num))], "Num.");
  EXPECT_EQ(Vet_Titoli[static_cast<std::size_t>(Indice(CampoRiga::CodCliente))], "Codice");
  EXPECT_EQ(Vet_Titoli[static_cast<std::size_t>(Indice(CampoRiga::CodSpecie))], "Codice");
  EXPECT_EQ(Vet_Titoli[static_cast<std::size_t>(Indice(CampoRiga::DDT))], "DDT");
  EXPECT_EQ(Vet_Titoli[static_cast<std::size_t>(Indice(CampoRiga::Commento))], "Commento (solo in fattura)");
  EXPECT_EQ(Vet_Titoli[static_cast<std::size_t>(Indice(CampoRiga::Allergeni))], "Allegeni");
}

}  // namespace

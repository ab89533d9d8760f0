#include "entry/elenco_macro.h"
#include "tests/entry/stampa_di_giornata.h"

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

namespace {

struct Macro_Su_Carta : Giornata_Con_Stampante, testing::Test {
  void ApriElenco(Tipo_Macro tipo, int quante) {
    const Percorso folder = cartella / (tipo == Tipo_Macro::Specie ? "PREDEF" : "PREDEF_FOR");
    std::filesystem::create_directories(folder);
    for (int i = 0; i < quante; ++i)
      std::ofstream(folder / ("M" + std::to_string(1000 + i) + ".txt"), std::ios::binary)
          << "Mare Blu\r\nOrata\r\nA0837 - Mar Mediterraneo\r\n";
    Apri_ElencoMacro(programma, elenco, tipo, false);
  }
  Elenco_Macro elenco;
};

TEST_F(Macro_Su_Carta, LeSpecieHannoUnTitoloSolo) {
  ApriElenco(Tipo_Macro::Specie, 2);
  const Testo titolo = elenco.titolo;
  StampaMacro(programma, elenco);
  EXPECT_EQ(registro.righe.front(), "documento \"20250314 Specie Predefinite\" Registro");
  EXPECT_THAT(Scritti(), ElementsAre("Lista delle Macro delle Spece (Predefinite)", "pag. 1 di 1",
                                     elenco.List1.Riga(0), elenco.List1.Riga(1)));
  EXPECT_EQ(elenco.titolo, titolo);
}

TEST_F(Macro_Su_Carta, IFornitoriDicanoCheContinuano) {
  ApriElenco(Tipo_Macro::Fornitore, 250);
  StampaMacro(programma, elenco);
  EXPECT_EQ(registro.righe.front(), "documento \"20250314 Fornitori Predefiniti\" Registro");
  const auto scritti = Scritti();
  EXPECT_EQ(std::ranges::count(scritti, "Dati Predefiniti Fornitori "), 1);
  EXPECT_EQ(std::ranges::count(scritti, "Dati Predefiniti Fornitori (continua)"), registro.pagine - 1);
  EXPECT_EQ(registro.pagine, 3);
  for (std::size_t i = 0; i < elenco.List1.Numero(); ++i)
    EXPECT_EQ(std::ranges::count(scritti, elenco.List1.Riga(i)), 1) << i;
}

TEST_F(Macro_Su_Carta, SenzaMacroIlComandoESpento) {
  ApriElenco(Tipo_Macro::Specie, 0);
  EXPECT_FALSE(elenco.Stampa.attivo);
  StampaMacro(programma, elenco);
  EXPECT_THAT(registro.righe, IsEmpty());
}

TEST_F(Macro_Su_Carta, LaFinestraDiceDoveSiStampa) {
  ApriElenco(Tipo_Macro::Specie, 1);
  MostraStampante(programma, elenco);
  EXPECT_EQ(elenco.Stampante.testo, "Registro  - Verticale");
  macchina.stampante.reset();
  MostraStampante(programma, elenco);
  EXPECT_EQ(elenco.Stampante.testo, "nessuna stampante...  - Verticale");
  StampaMacro(programma, elenco);
  EXPECT_THAT(registro.righe, IsEmpty());
}

}  // namespace

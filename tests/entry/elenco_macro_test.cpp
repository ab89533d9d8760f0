#include "entry/elenco_macro.h"

#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/entry/giornata_di_prova.h"

using C = CampoRiga;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

struct Elenco_Di_Prova : Giornata_Di_Prova {
  Elenco_Macro elenco;

  explicit Elenco_Di_Prova(Tipo_Macro tipo = Tipo_Macro::Specie, char separatore = ',')
      : Giornata_Di_Prova(separatore),
        cartella_macro(tipo == Tipo_Macro::Specie ? "PREDEF/" : "PREDEF_FOR/") {
    Apri();
    Fuoco();
    std::filesystem::create_directories(cartella / cartella_macro);
    elenco.tipo = tipo;
  }
  void Metti(const std::string& nome, const std::string& contenuto) const {
    std::ofstream(cartella / (cartella_macro + nome), std::ios::binary) << contenuto;
  }
  void MettiTre() const {
    Metti("07.txt", "ORATA\r\nA0837 - Mar Mediterraneo\r\nIT Italia\r\n10\r\n");
    Metti("SEPPIE.txt", "SEPPIA\r\n");
    Metti("ORATE1.txt", "Orata grande");
  }
  void ApriElenco(bool dal_campo = false) { Apri_ElencoMacro(programma, elenco, elenco.tipo, dal_campo); }
  std::vector<Testo> Codici() const {
    std::vector<Testo> codici;
    for (const auto& riga : elenco.tabella) codici.push_back(riga[colonna_macro::Codice]);
    return codici;
  }
  std::vector<std::string> Nomi() const {
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(cartella / cartella_macro))
      nomi.push_back(voce.path().filename().string());
    std::ranges::sort(nomi);
    return nomi;
  }

  std::string cartella_macro;
};

}  // namespace

TEST(ElencoMacro, LaRigaDiUnaSpecie) {
  Elenco_Di_Prova g;
  g.Metti("07.txt",
          "ORATA GRANDISSIMA DI MARE\r\nA0837 - Mar Mediterraneo\r\nIT Italia\r\n10\r\nORA1\r\nSparus\r\n"
          "Pesci\r\n\r\nOrata\r\n1001\r\nRDT Reti da traino\r\nSBG\r\nGRA Grande\r\nFRE Fresco\r\n"
          "XX\r\nWHL Intero\r\n");
  g.ApriElenco();
  EXPECT_EQ(g.elenco.List1.Riga(0),
            "07         | orata grandissima di | A0837 - Mar Mediterr | IT Italia            | "
            "RDT GRA FRE XX  WHL SBG");
  EXPECT_THAT(g.elenco.tabella[0],
              ElementsAre("07", "", "ORATA GRANDISSIMA DI MARE", "A0837 - Mar Mediterraneo", "IT Italia",
                          "RDT GRA FRE XX  WHL ", "SBG", ""));
}

TEST(ElencoMacro, LaMarcaDiUnEditorNonEDelNome) {
  Elenco_Di_Prova g;
  g.Metti("07.txt", "\xEF\xBB\xBFORATA\r\nA0837\r\n");
  g.ApriElenco();
  EXPECT_EQ(g.elenco.tabella[0][colonna_macro::Specie], "ORATA");
}

// The macros may all be there: an empty list must not be taken for none.
TEST(ElencoMacro, UnaCartellaCheNonSiLeggeSiDice) {
  Elenco_Di_Prova g;
  std::filesystem::remove_all(g.cartella / "PREDEF");
  std::filesystem::create_directory_symlink("PREDEF", g.cartella / "PREDEF");
  g.ApriElenco();
  EXPECT_THAT(g.macchina.messaggi, ElementsAre("Errore =" + std::to_string(ELOOP) + "  aprendo il file " +
                                               Testo_Percorso(g.cartella / "PREDEF")));
}

TEST(ElencoMacro, LaRigaDiUnFornitore) {
  Elenco_Di_Prova g(Tipo_Macro::Fornitore);
  g.Metti("MARE.txt",
          "MARE BLU\r\nSociet\xC0\r\nA0837\r\n10\r\nORA1\r\nIT Italia\r\nMB250313\r\nx\r\nx\r\nx\r\nx\r\n"
          "RDT Reti\r\nSBG\r\nGRA\r\nFRE\r\nXXX\r\nWHL\r\n");
  g.ApriElenco();
  EXPECT_EQ(g.elenco.List1.Riga(0),
            "MARE       | mare blu             | societ\xE0              | A0837      | "
            "IT Italia    | RDT GRA FRE XXX WHL SBG | MB250313");
}

TEST(ElencoMacro, TitoliENumero) {
  Elenco_Di_Prova specie, fornitori(Tipo_Macro::Fornitore);
  specie.ApriElenco();
  EXPECT_EQ(specie.elenco.titolo, "Lista delle Specie Predefinite (massimo 99) - presenti 0");
  EXPECT_EQ(specie.elenco.List1.scelta, -1);
  specie.MettiTre();
  fornitori.MettiTre();
  specie.ApriElenco();
  fornitori.ApriElenco();
  EXPECT_EQ(specie.elenco.titolo, "Lista delle Specie Predefinite (massimo 99) - presenti 3");
  EXPECT_EQ(fornitori.elenco.titolo, "Lista delle Fornitori Predefiniti - presenti 3");
  EXPECT_THAT(specie.Codici(), ElementsAre("07", "ORATE1", "SEPPIE"));
  EXPECT_EQ(specie.elenco.List1.scelta, 0);
  EXPECT_TRUE(specie.elenco.Stampa.attivo);
}

TEST(ElencoMacro, FileEstraneiNonDannoDisturbo) {
  Elenco_Di_Prova g;
  g.MettiTre();
  g.Metti("NOTE.doc", "x");
  g.Metti("VUOTO.TXT", "");
  g.Metti(".txt", "x");
  g.Metti(" ACAPO.txt", "x");
  g.Metti("A|B.txt", "x");
  g.Metti("\xE6\xB0\xB4.txt", "x");  // a name outside the code page
  g.Metti("BYTE.txt", std::string("\0\t\xFF\x81", 4) + std::string(100000, 'z'));
  std::filesystem::create_directories(g.cartella / "PREDEF/CARTELLA.txt");
  g.ApriElenco();
  EXPECT_THAT(g.Codici(), ElementsAre("07", "BYTE", "ORATE1", "SEPPIE", "VUOTO"));
  EXPECT_THAT(g.macchina.messaggi, ElementsAre());
}

TEST(ElencoMacro, SenzaCartellaELaListaVuota) {
  Elenco_Di_Prova g;
  std::filesystem::remove_all(g.cartella / "PREDEF");
  g.ApriElenco();
  EXPECT_EQ(g.elenco.List1.Numero(), 0U);
  EseguiScelta(g.programma, g.edita, g.elenco);
  EliminaMacro(g.programma, g.elenco);
  RinominaMacro(g.programma, g.elenco);
  SaltaMacro(g.elenco, 'x');
  g.elenco.Text2.testo = "x";
  CercaMacro(g.elenco);
  EXPECT_FALSE(g.elenco.chiusa);
  EXPECT_THAT(g.macchina.domande, ElementsAre());
}

TEST(ElencoMacro, IlCodiceScrittoEsegueLaMacro) {
  struct Caso {
    const char* codice;
    bool esegue;
  };
  for (const Caso& caso : {Caso{"07", true}, Caso{"orate1", true}, Caso{" SEPPIE ", true}, Caso{"7", false},
                           Caso{"55", false}, Caso{"", false}, Caso{"../07", false}}) {
    Elenco_Di_Prova g;
    g.MettiTre();
    g.ApriElenco();
    g.elenco.Text1.testo = caso.codice;
    EseguiCodice(g.programma, g.edita, g.elenco);
    EXPECT_EQ(g.elenco.chiusa, caso.esegue) << caso.codice;
    EXPECT_EQ(g[C::Specie].empty(), !caso.esegue);
    EXPECT_EQ(g.elenco.Esito.testo.empty(), caso.esegue || *caso.codice == 0);
    Chiudi_ElencoMacro(g.edita, g.elenco);
    EXPECT_EQ(g.Fuoco(), caso.esegue ? static_cast<int>(C::Peso) : 0);
  }
}

TEST(ElencoMacro, LaRigaSceltaEsegueLaMacro) {
  Elenco_Di_Prova g(Tipo_Macro::Fornitore);
  g.Metti("07.txt", "Mare Blu");
  g.Metti("UNCODICEMOLTOLUNGO.txt", "Valle Zappa");  // the line shows ten characters of it
  g.ApriElenco();
  g.elenco.List1.scelta = 1;
  EseguiScelta(g.programma, g.edita, g.elenco);
  EXPECT_EQ(g[C::Fornitore], "Valle Zappa");
  EXPECT_TRUE(g.elenco.chiusa);
  g.elenco.List1.scelta = -1;
  g.elenco.chiusa = false;
  EseguiScelta(g.programma, g.edita, g.elenco);
  EXPECT_FALSE(g.elenco.chiusa);
}

// Closed without a macro: a "-" in the field was a key of the flow, the menu was not.
TEST(ElencoMacro, ChiusaSenzaMacro) {
  for (const bool dal_campo : {true, false}) {
    Elenco_Di_Prova g;
    g.ApriElenco(dal_campo);
    Chiudi_ElencoMacro(g.edita, g.elenco);
    EXPECT_EQ(g.Fuoco(), dal_campo ? static_cast<int>(C::Peso) : 0);
  }
}

TEST(ElencoMacro, Cerca) {
  Elenco_Di_Prova g;
  g.MettiTre();
  g.ApriElenco();
  const auto cerca = [&](const char* testo) {
    g.elenco.Text2.testo = testo;
    CercaMacro(g.elenco);
    return g.elenco.List1.scelta;
  };
  EXPECT_EQ(cerca("ORATA"), 0);  // the selected line itself counts
  EXPECT_EQ(cerca("ORATA"), 1);  // again: the next one
  EXPECT_EQ(cerca("ORATA"), 1);  // and no further
  EXPECT_EQ(g.elenco.Esito.testo, "ORATA   non trovato...");
  EXPECT_EQ(cerca("seppia"), 2);
  EXPECT_EQ(g.elenco.Esito.testo, "");
  EXPECT_EQ(cerca("07"), 2);  // it stands above
  g.elenco.List1.scelta = -1;
  EXPECT_EQ(cerca("07"), 0);
  EXPECT_EQ(cerca(""), 0);
}

// A line begins with the code: the fourth character is that of the word, a blank for a number.
TEST(ElencoMacro, UnCarattereSaltaAllaRigaColQuartoUguale) {
  Elenco_Di_Prova g;
  g.MettiTre();
  g.Metti("08.txt", "x");
  g.ApriElenco();
  const auto salta = [&](char c) {
    SaltaMacro(g.elenco, c);
    return g.elenco.List1.scelta;
  };
  EXPECT_THAT(g.Codici(), ElementsAre("07", "08", "ORATE1", "SEPPIE"));
  EXPECT_EQ(salta('t'), 2);
  EXPECT_EQ(salta('P'), 3);
  EXPECT_EQ(salta('t'), 3);  // none below
  EXPECT_EQ(salta('o'), 3);
  g.elenco.List1.scelta = 0;
  EXPECT_EQ(salta(' '), 1);
}

TEST(ElencoMacro, Elimina) {
  Elenco_Di_Prova g;
  g.MettiTre();
  g.ApriElenco();
  g.elenco.List1.scelta = 1;
  g.macchina.risposte = {false, true, true, true};
  EliminaMacro(g.programma, g.elenco);
  EXPECT_EQ(g.elenco.List1.Numero(), 3U);
  EliminaMacro(g.programma, g.elenco);
  EXPECT_THAT(g.macchina.domande, ElementsAre("ORATE1\nOK per eliminare", "ORATE1\nOK per eliminare"));
  EXPECT_THAT(g.Nomi(), ElementsAre("07.txt", "SEPPIE.txt"));
  EXPECT_THAT(g.Codici(), ElementsAre("07", "SEPPIE"));
  EXPECT_EQ(g.elenco.List1.Numero(), 2U);
  EXPECT_EQ(g.elenco.List1.scelta, 1);
  EXPECT_EQ(g.elenco.titolo, "Lista delle Specie Predefinite (massimo 99) - presenti 2");
  EliminaMacro(g.programma, g.elenco);
  EXPECT_EQ(g.elenco.List1.scelta, 0);
  EliminaMacro(g.programma, g.elenco);
  EXPECT_EQ(g.elenco.List1.scelta, -1);
  EXPECT_THAT(g.Nomi(), ElementsAre());
}

TEST(ElencoMacro, LaCancellazioneCheNonRiesce) {
  Elenco_Di_Prova g;
  g.MettiTre();
  g.ApriElenco();
  g.programma.disco.guasto = [](const Percorso&) { return EACCES; };
  g.macchina.risposte = {true};
  EliminaMacro(g.programma, g.elenco);
  EXPECT_THAT(g.macchina.messaggi, ElementsAre("cancellazione non riuscita"));
  EXPECT_EQ(g.elenco.List1.Numero(), 3U);
  EXPECT_EQ(g.Nomi().size(), 3U);
}

struct Caso_Rinomina {
  std::optional<Testo> risposta;
  const char* atteso;  // the file that 07.txt has become
};

TEST(ElencoMacro, Rinomina) {
  for (const char separatore : {',', '.'})
    for (const Caso_Rinomina& caso : std::vector<Caso_Rinomina>{{std::nullopt, "07.txt"},
                                                                {"", "07.txt"},
                                                                {"  ", "07.txt"},
                                                                {"8", "07.txt"},
                                                                {" 8 ", "07.txt"},
                                                                {"08", "08.txt"},
                                                                {"008", "08.txt"},
                                                                {" 12 ", "12.txt"},
                                                                {"123", "123.txt"},
                                                                {"+9", "09.txt"},
                                                                {"1,5", "01.txt"},
                                                                {"00", "00.txt"},
                                                                {"-5", "-5.txt"},
                                                                {" ALICI ", "ALICI.txt"},
                                                                {"CITT\xC0", "CITTÀ.txt"}}) {
      Elenco_Di_Prova g(Tipo_Macro::Specie, separatore);
      g.Metti("07.txt", "Orata");
      g.ApriElenco();
      const auto risposta = caso.risposta == "1,5" ? std::optional<Testo>(g.N("1,5")) : caso.risposta;
      g.macchina.testi = {risposta};
      RinominaMacro(g.programma, g.elenco);
      EXPECT_THAT(g.macchina.domande, ElementsAre("Rinominare 07 in:"));
      EXPECT_THAT(g.Nomi(), ElementsAre(caso.atteso));
      EXPECT_EQ(g.elenco.List1.Numero(), 1U);
      EXPECT_EQ(g.elenco.List1.scelta, 0);
      EXPECT_THAT(g.macchina.messaggi, ElementsAre());
    }
}

TEST(ElencoMacro, RinominaRileggeLaListaESceglieLaMacro) {
  Elenco_Di_Prova g;
  g.MettiTre();
  g.ApriElenco();
  g.macchina.testi = {"ZEPPOLE"};
  RinominaMacro(g.programma, g.elenco);
  EXPECT_THAT(g.Codici(), ElementsAre("ORATE1", "SEPPIE", "ZEPPOLE"));
  EXPECT_EQ(g.elenco.List1.scelta, 2);
}

TEST(ElencoMacro, UnNomeGiaUsatoNonSiPrende) {
  for (const char* nome : {"ORATE1", "orate1", "SEPPIE"}) {
    Elenco_Di_Prova g;
    g.MettiTre();
    g.ApriElenco();
    g.elenco.List1.scelta = 2;
    g.macchina.testi = {nome};
    RinominaMacro(g.programma, g.elenco);
    EXPECT_THAT(g.macchina.messaggi, ElementsAre("Questo nome/numero è già usato...."_t));
    EXPECT_THAT(g.Nomi(), ElementsAre("07.txt", "ORATE1.txt", "SEPPIE.txt"));
  }
}

TEST(ElencoMacro, RinominaNonEsceDallaCartella) {
  for (const char* nome : {"../x", "a/b", "a\\b", "..", "a:b", "a|b"}) {
    Elenco_Di_Prova g;
    g.MettiTre();
    g.ApriElenco();
    g.macchina.testi = {nome};
    RinominaMacro(g.programma, g.elenco);
    EXPECT_EQ(g.macchina.messaggi.size(), 1U) << nome;
    EXPECT_THAT(g.Nomi(), ElementsAre("07.txt", "ORATE1.txt", "SEPPIE.txt"));
  }
}

TEST(ElencoMacro, RinominaCheNonRiesceSiDice) {
  Elenco_Di_Prova g;
  g.MettiTre();
  g.ApriElenco();
  g.programma.disco.guasto = [](const Percorso&) { return EROFS; };
  g.macchina.testi = {"ALICI"};
  RinominaMacro(g.programma, g.elenco);
  ASSERT_EQ(g.macchina.messaggi.size(), 1U);
  EXPECT_THAT(g.macchina.messaggi[0], HasSubstr("Errore =30"));
  EXPECT_EQ(g.elenco.List1.Numero(), 3U);
}

TEST(ElencoMacro, AiutoParlaDelSuoCampo) {
  for (const Tipo_Macro tipo : {Tipo_Macro::Specie, Tipo_Macro::Fornitore}) {
    Elenco_Di_Prova g(tipo);
    AiutoMacro(g.programma, g.elenco);
    ASSERT_EQ(g.macchina.messaggi.size(), 1U);
    EXPECT_THAT(g.macchina.messaggi[0],
                HasSubstr(tipo == Tipo_Macro::Specie ? "Memorizza Specie Predefinita"
                                                     : "Memorizza Fornitore Predefinito"));
  }
}

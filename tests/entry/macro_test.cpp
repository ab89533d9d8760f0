#include "entry/macro.h"

#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/entry/giornata_di_prova.h"

using C = CampoRiga;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

constexpr C campi_fornitore[] = {
    C::Fornitore, C::Specie,     C::ZonaP,       C::Iva,         C::CodSpecie,     C::Prov,
    C::Lotti,     C::NomeLatino, C::Famiglia,    C::NomeComune,  C::CodNumVeritas, C::MetodoPesca,
    C::Alfa,      C::Pezzatura,  C::StatoFisico, C::Lavorazione, C::Preparazione,  C::PrimoImb};
constexpr C campi_specie[] = {C::Specie,     C::ZonaP,     C::Prov,        C::Iva,           C::CodSpecie,
                              C::NomeLatino, C::Famiglia,  C::NomeComune,  C::CodNumVeritas, C::MetodoPesca,
                              C::Alfa,       C::Pezzatura, C::StatoFisico, C::Lavorazione,   C::Preparazione};
constexpr int caselle_tenute[] = {1, 2, 3, 4, 10, 11, 13, 14, 15, 16};

struct Giornata_Macro : Giornata_Di_Prova {
  explicit Giornata_Macro(char separatore = ',') : Giornata_Di_Prova(separatore) { Apri(); }
  void Metti(const std::string& nome, const std::string& contenuto) const {
    std::filesystem::create_directories((cartella / nome).parent_path());
    std::ofstream(cartella / nome, std::ios::binary) << contenuto;
  }
  // "riga 1".."riga n" as the lines of a macro.
  static std::string Righe_Numerate(int n) {
    std::string esito;
    for (int i = 1; i <= n; ++i) esito += "riga " + std::to_string(i) + "\r\n";
    return esito;
  }
  int Marcate() const {
    int n = 0;
    for (const int casella : caselle_tenute) n += edita.Check[static_cast<std::size_t>(casella)].segnata;
    return n;
  }
  void SmarcaTutte() {
    for (const int casella : caselle_tenute) edita.Check[static_cast<std::size_t>(casella)].segnata = false;
  }
};

}  // namespace

// The files of the firms have this order of lines; another one would put a zone into the VAT rate.
TEST(Macro, LeRigheDelFornitoreStannoAlLoroPosto) {
  Giornata_Macro g;
  g.Metti("PREDEF_FOR/07.txt", Giornata_Macro::Righe_Numerate(18));
  ASSERT_EQ(EseguiMacroFornitore(g.programma, g.edita, "07"), 0);
  int riga = 0;
  for (const C campo : campi_fornitore) EXPECT_EQ(g[campo], "riga " + std::to_string(++riga));
  EXPECT_EQ(riga, 18);
}

// An editor that opened the file put its mark in front: it is no part of the supplier's name.
TEST(Macro, LaMarcaDiUnEditorNonEDelNome) {
  Giornata_Macro g;
  g.Metti("PREDEF_FOR/07.txt", "\xEF\xBB\xBF" + Giornata_Macro::Righe_Numerate(18));
  ASSERT_EQ(EseguiMacroFornitore(g.programma, g.edita, "07"), 0);
  EXPECT_EQ(g[C::Fornitore], "riga 1");
}

TEST(Macro, LeRigheDellaSpecieStannoAlLoroPostoELOttavaSiSalta) {
  Giornata_Macro g;
  g.Metti("PREDEF/07.txt", Giornata_Macro::Righe_Numerate(16));
  ASSERT_EQ(EseguiMacroSpecie(g.programma, g.edita, "07"), 0);
  int riga = 0;
  for (const C campo : campi_specie) {
    if (++riga == 8) ++riga;
    EXPECT_EQ(g[campo], "riga " + std::to_string(riga));
  }
  EXPECT_EQ(riga, 16);
  for (int i = 0; i < Num_Campi; ++i) EXPECT_NE(g.edita.Text1[static_cast<std::size_t>(i)].testo, "riga 8");
}

TEST(Macro, MemorizzataERipresaEUguale) {
  for (const Tipo_Macro tipo : {Tipo_Macro::Fornitore, Tipo_Macro::Specie}) {
    Giornata_Macro g;
    LedgerRow riga = Giornata_Di_Prova::RigaBuona();
    riga[C::Specie] = "Seppia più € buona"_t;
    g.RiempiCampi(riga);
    g.macchina.testi = {"ORATE1"};
    (tipo == Tipo_Macro::Fornitore ? MemorizzaFornitore : MemorizzaSpecie)(g.programma, g.edita);
    EXPECT_EQ(g.Luce(), "BENE");
    g.RiempiCampi({});
    ASSERT_EQ(EseguiMacro(g.programma, g.edita, tipo, "orate1"), 0);
    for (const C campo : campi_specie) EXPECT_EQ(g[campo], riga[campo]) << static_cast<int>(campo);
    EXPECT_EQ(g[C::Cliente], "");
    EXPECT_EQ(g[C::Peso], "");
    if (tipo != Tipo_Macro::Fornitore) continue;
    for (const C campo : campi_fornitore) EXPECT_EQ(g[campo], riga[campo]) << static_cast<int>(campo);
  }
}

// Byte for byte what the firms' folders hold: Windows-1252, CR LF, and the empty 8th line of a species.
TEST(Macro, ILFileMemorizzato) {
  Giornata_Macro g;
  g.RiempiCampi();
  g[C::Specie] = "Società"_t;
  g.macchina.testi = {"7", "7"};
  MemorizzaFornitore(g.programma, g.edita);
  MemorizzaSpecie(g.programma, g.edita);
  EXPECT_EQ(g.cartella.Contenuto("PREDEF_FOR/07.txt"),
            "Mare Blu\r\nSociet\xE0\r\nA0837 - Mar Mediterraneo\r\n10\r\nORA1\r\n001 IT Laguna Venezia\r\n"
            "MB250313\r\nSparus aurata\r\nPesci\r\nOrata\r\n1001\r\nRDT Reti da traino\r\nSBG\r\n"
            "GRA Grande\r\nFRE Fresco / Refrigerato\r\nXXX Non Lavorato\r\nWHL Intero\r\n, Barca 1\r\n");
  EXPECT_EQ(g.cartella.Contenuto("PREDEF/07.txt"),
            "Societ\xE0\r\nA0837 - Mar Mediterraneo\r\n001 IT Laguna Venezia\r\n10\r\nORA1\r\n"
            "Sparus aurata\r\nPesci\r\n\r\nOrata\r\n1001\r\nRDT Reti da traino\r\nSBG\r\nGRA Grande\r\n"
            "FRE Fresco / Refrigerato\r\nXXX Non Lavorato\r\nWHL Intero\r\n");
}

TEST(Macro, IlFornitoreSenzaFileRestaVuoto) {
  Giornata_Macro g;
  g.RiempiCampi();
  EXPECT_EQ(EseguiMacroFornitore(g.programma, g.edita, "12"), 1);
  for (const C campo :
       {C::Fornitore, C::ZonaP, C::Prov, C::PrimoImb, C::MetodoPesca, C::Pezzatura, C::StatoFisico})
    EXPECT_EQ(g[campo], "") << static_cast<int>(campo);
  const LedgerRow riga = Giornata_Di_Prova::RigaBuona();
  for (const C campo : {C::Specie, C::Iva, C::Lotti, C::Lavorazione, C::Preparazione, C::Cliente, C::Alfa})
    EXPECT_EQ(g[campo], riga[campo]) << static_cast<int>(campo);
  EXPECT_EQ(g.Marcate(), 10);
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
  EXPECT_FALSE(Occupata(g.edita));
}

TEST(Macro, LaSpecieSenzaFileRestaComEra) {
  Giornata_Macro g;
  g.RiempiCampi();
  EXPECT_EQ(EseguiMacroSpecie(g.programma, g.edita, "12"), 1);
  const LedgerRow riga = Giornata_Di_Prova::RigaBuona();
  for (const C campo : campi_specie) EXPECT_EQ(g[campo], riga[campo]);
  EXPECT_EQ(g.Marcate(), 0);
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
  EXPECT_TRUE(Campo(g.edita, C::Specie).attivo);
}

TEST(Macro, RigheVuote) {
  Giornata_Macro g;
  g.Metti("PREDEF/07.txt", "Orata\r\n\r\n   \r\n10\r\n");
  g.Metti("PREDEF_FOR/07.txt", "Mare Blu\r\n\r\n \r\n\r\n\r\nIT Italia\r\n");
  g.RiempiCampi();
  ASSERT_EQ(EseguiMacroSpecie(g.programma, g.edita, "07"), 0);
  EXPECT_EQ(g[C::ZonaP], "A0837 - Mar Mediterraneo");
  EXPECT_EQ(g[C::Prov], "001 IT Laguna Venezia");
  ASSERT_EQ(EseguiMacroFornitore(g.programma, g.edita, "07"), 0);
  EXPECT_EQ(g[C::Specie], "");
  EXPECT_EQ(g[C::ZonaP], " ");
  EXPECT_EQ(g[C::Iva], "");
  EXPECT_EQ(g[C::Prov], "IT Italia");
}

// Hand-made or old files are shorter: what they don't hold stays, but for what a supplier empties first.
TEST(Macro, UnFileCortoLasciaIlResto) {
  Giornata_Macro g;
  for (const char* contenuto : {"Valle", "Valle\n", "Valle\r"}) {
    g.Metti("PREDEF_FOR/07.txt", contenuto);
    g.Metti("PREDEF/07.txt", contenuto);
    g.RiempiCampi();
    ASSERT_EQ(EseguiMacroFornitore(g.programma, g.edita, "07"), 0);
    EXPECT_EQ(g[C::Fornitore], "Valle");
    EXPECT_EQ(g[C::Specie], "Orata");
    EXPECT_EQ(g[C::ZonaP], "");
    EXPECT_EQ(g[C::Lavorazione], "XXX Non Lavorato");
    g.RiempiCampi();
    ASSERT_EQ(EseguiMacroSpecie(g.programma, g.edita, "07"), 0);
    EXPECT_EQ(g[C::Specie], "Valle");
    EXPECT_EQ(g[C::ZonaP], "A0837 - Mar Mediterraneo");
  }
}

TEST(Macro, UnFileVuotoOEstraneoNonDaDanno) {
  Giornata_Macro g;
  g.RiempiCampi();
  g.Metti("PREDEF/07.txt", "");
  EXPECT_EQ(EseguiMacroSpecie(g.programma, g.edita, "07"), 0);
  EXPECT_EQ(g[C::Specie], "Orata");
  g.Metti("PREDEF/08.txt", std::string("a\tb\0c\r\n", 7) + Giornata_Macro::Righe_Numerate(500));
  EXPECT_EQ(EseguiMacroSpecie(g.programma, g.edita, "08"), 0);
  EXPECT_EQ(g[C::Specie], "abc");  // what would split the row's line in the day file is left out
  EXPECT_EQ(g[C::Preparazione], "riga 15");
  std::filesystem::create_directories(g.cartella / "PREDEF/09.txt");
  EXPECT_EQ(EseguiMacroSpecie(g.programma, g.edita, "09"), 1);
  EXPECT_THAT(g.macchina.messaggi, ElementsAre());
}

TEST(Macro, LeCaselleSegueLImpostazione) {
  for (const Tipo_Macro tipo : {Tipo_Macro::Fornitore, Tipo_Macro::Specie})
    for (const bool flag : {true, false}) {
      Giornata_Macro g;
      g.programma.preferenze.FlagNonBloccaMacro = flag;
      g.Metti("PREDEF/07.txt", "Orata");
      g.Metti("PREDEF_FOR/07.txt", "Mare Blu");
      ASSERT_EQ(EseguiMacro(g.programma, g.edita, tipo, "07"), 0);
      EXPECT_EQ(g.Marcate(), flag ? 10 : 0);
      for (const std::size_t altra : {5U, 6U, 8U, 9U}) EXPECT_FALSE(g.edita.Check[altra].segnata);
    }
}

struct Caso_Data {
  Tipo_Macro tipo;
  bool data, automatici;
  const char* atteso;
};

TEST(Macro, LaDataDelLotto) {
  for (const Caso_Data& caso : {Caso_Data{Tipo_Macro::Fornitore, false, false, "L1"},
                                Caso_Data{Tipo_Macro::Fornitore, false, true, "L1"},
                                Caso_Data{Tipo_Macro::Fornitore, true, false, "250314"},
                                Caso_Data{Tipo_Macro::Fornitore, true, true, "MB250314"},
                                Caso_Data{Tipo_Macro::Specie, true, true, "prima"}}) {
    Giornata_Macro g;
    g.programma.preferenze.FlagDataMacro = caso.data;
    g.programma.preferenze.FlagLottiAutomatici = caso.automatici;
    g.programma.PrefissoLotto = "vecchio";
    g.Metti("PREDEF/07.txt", "Orata");
    g.Metti("PREDEF_FOR/07.txt", " mare BLU \r\nOrata\r\n\r\n\r\n\r\n\r\nL1\r\n");
    g[C::Lotti] = "prima";
    ASSERT_EQ(EseguiMacro(g.programma, g.edita, caso.tipo, "07"), 0);
    EXPECT_EQ(g[C::Lotti], caso.atteso);
    const bool preso = caso.tipo == Tipo_Macro::Fornitore && caso.automatici;
    EXPECT_EQ(g.programma.PrefissoLotto, preso ? "MB" : "vecchio");
  }
}

TEST(Macro, IlCodice) {
  struct Caso {
    const char *codice, *file;
    int esito;
  };
  for (const Caso& caso : {Caso{"07", "07.txt", 0}, Caso{"7", "07.txt", 1}, Caso{"7", "7.txt", 1},
                           Caso{" 7", "7.txt", 1}, Caso{"", ".txt", 1}, Caso{" 07 ", "07.txt", 0},
                           Caso{"orate1", "ORATE1.txt", 0}, Caso{"ORATE1", "orate1.TXT", 0},
                           Caso{"01", "1.txt", 1}, Caso{"../x", "../x.txt", 1}, Caso{"a/b", "a/b.txt", 1},
                           Caso{"a\\b", "a\\b.txt", 1}, Caso{"..", "...txt", 1}, Caso{"123", "123.txt", 0}}) {
    Giornata_Macro g;
    g.Metti(std::string("PREDEF/") + caso.file, "Cefalo");
    EXPECT_EQ(EseguiMacroSpecie(g.programma, g.edita, caso.codice), caso.esito) << caso.codice;
    EXPECT_EQ(g[C::Specie] == "Cefalo", caso.esito == 0) << caso.codice;
  }
}

TEST(Macro, NomiAccentati) {
  Giornata_Macro g;
  g.RiempiCampi();
  g.macchina.testi = {"PIÙ€"_t};
  MemorizzaSpecie(g.programma, g.edita);
  EXPECT_TRUE(std::filesystem::exists(g.cartella / "PREDEF/PIÙ€.txt"));
  g[C::Specie] = "";
  EXPECT_EQ(EseguiMacroSpecie(g.programma, g.edita, "PIÙ€"_t), 0);
  EXPECT_EQ(g[C::Specie], "Orata");
}

TEST(Macro, UnComandoInCorsoNonSiInterrompe) {
  Giornata_Macro g;
  g.Metti("PREDEF_FOR/07.txt", "Mare Blu");
  g.RiempiCampi();
  g[C::Fornitore] = "altro";
  g.edita.attiva = false;
  EXPECT_EQ(EseguiMacroFornitore(g.programma, g.edita, "07"), 1);
  MemorizzaFornitore(g.programma, g.edita);
  EXPECT_EQ(g[C::Fornitore], "altro");
  EXPECT_THAT(g.macchina.domande, ElementsAre());
}

// ---- from the field

TEST(MacroDalCampo, DueCifreRiempionoLaRigaESiVaAlPeso) {
  for (const C campo : {C::Fornitore, C::Specie}) {
    Giornata_Macro g;
    g.Metti("PREDEF/12.txt", "Cefalo\r\nA0837 - Mar Mediterraneo");
    g.Metti("PREDEF_FOR/12.txt", "Valle Zappa\r\nCefalo");
    g.edita.List1.visibile = true;
    Semaforo(g.edita, StatoSemaforo::BENE);
    g.Fuoco();
    g.Scrivi(campo, "1");
    EXPECT_EQ(g[campo], "1");  // a single digit is no code yet
    EXPECT_EQ(g.Fuoco(), 0);
    EXPECT_EQ(g.Marcate(), 0);
    g.Scrivi(campo, "12");
    EXPECT_EQ(g[C::Specie], "Cefalo");
    EXPECT_EQ(g[C::Fornitore], campo == C::Fornitore ? "Valle Zappa" : "Modificare questa riga...");
    EXPECT_EQ(g.Fuoco(), static_cast<int>(C::Peso));
    EXPECT_TRUE(g.edita.Aggiungi.attivo);
    EXPECT_FALSE(g.edita.List1.visibile);
    EXPECT_EQ(g.Luce(), "NORMALE");
    EXPECT_EQ(g.edita.richiesta, Richiesta::Nessuna);
  }
}

TEST(MacroDalCampo, IlFlussoSegueLeCaselle) {
  Giornata_Macro g;
  g.Metti("PREDEF/12.txt", "Cefalo");
  g.Segna(8);
  g.Segna(9);
  g.Fuoco();
  g.Scrivi(C::Specie, "12");
  EXPECT_EQ(g.Fuoco(), static_cast<int>(C::Colli));  // the macro holds the lot too
  g.SmarcaTutte();
  g.programma.preferenze.FlagNonBloccaMacro = false;
  g.Scrivi(C::Specie, "12");
  EXPECT_EQ(g.Fuoco(), static_cast<int>(C::Lotti));
}

TEST(MacroDalCampo, SenzaFileFinisceLiStesso) {
  for (const C campo : {C::Fornitore, C::Specie}) {
    Giornata_Macro g;
    g.Fuoco();
    g[C::CodSpecie] = "ORA1";
    g.Scrivi(campo, "12");
    EXPECT_EQ(g[campo], campo == C::Fornitore ? "" : "12");
    EXPECT_EQ(g.Fuoco(), 0);
    EXPECT_FALSE(g.edita.List1.visibile);
    EXPECT_EQ(g[C::CodSpecie], "ORA1");
  }
}

TEST(MacroDalCampo, IlMenoChiedeLaFinestra) {
  for (const Vista testo : {"-", "-5", "-orata"})
    for (const C campo : {C::Fornitore, C::Specie, C::Cliente, C::Prezzo}) {
      Giornata_Macro g;
      g.Segna(6, false);
      g.edita.List1.visibile = true;
      g.Scrivi(campo, testo);
      const Richiesta attesa = campo == C::Fornitore ? Richiesta::Macro_Fornitore
                               : campo == C::Specie  ? Richiesta::Macro_Specie
                                                     : Richiesta::Nessuna;
      EXPECT_EQ(g.edita.richiesta, attesa);
      EXPECT_EQ(g[campo], testo);
      EXPECT_TRUE(attesa == Richiesta::Nessuna || !g.edita.List1.visibile);
    }
}

// A macro whose own text looks like a code runs no further macro.
TEST(MacroDalCampo, UnaMacroNonNeChiamaUnAltra) {
  Giornata_Macro g;
  g.Metti("PREDEF_FOR/12.txt", "13\r\n14\r\n");
  g.Metti("PREDEF_FOR/13.txt", "-\r\nTonno\r\n");
  g.Metti("PREDEF/14.txt", "Tonno\r\n");
  g.Scrivi(C::Fornitore, "12");
  EXPECT_EQ(g[C::Fornitore], "13");
  EXPECT_EQ(g[C::Specie], "14");
  EXPECT_EQ(g.edita.richiesta, Richiesta::Nessuna);
}

// Other texts that read as numbers go the way of a code; words never run from the field.
TEST(MacroDalCampo, ParoleENumeriScrittiAltrimenti) {
  Giornata_Macro g;
  g.Metti("PREDEF/ORATE1.txt", "Tonno");
  g.Scrivi(C::Specie, "ORATE1");
  EXPECT_EQ(g[C::Specie], "ORATE1");
  EXPECT_TRUE(g.edita.List1.visibile);
  g.Scrivi(C::Specie, "1,5");
  EXPECT_EQ(g[C::Specie], "1,5");
  EXPECT_FALSE(g.edita.List1.visibile);
}

// ---- storing

TEST(Memorizza, SenzaFornitoreDiceCheCosaServe) {
  for (const char* vuoto : {"", "  "}) {
    Giornata_Macro g;
    g.RiempiCampi();
    g[C::Fornitore] = vuoto;
    MemorizzaFornitore(g.programma, g.edita);
    EXPECT_THAT(
        g.macchina.messaggi,
        ElementsAre("immettere:\nFornitore\nZona\nprovenienza\nAttrezzo di pesca\nStato Fisico\n"
                    "Lavorazione\nPreparazione\nPrimo Imbarco\nLotto\n"
                    "e ripetere il comando...il fornitore verrà memorizzata\n"
                    "e sarà possibile richiamerlo con un numero (da 01 1 99)o con un codice alfanumerico"_t));
    EXPECT_THAT(g.macchina.domande, ElementsAre());
  }
}

TEST(Memorizza, SenzaSpecieDiceCheCosaServe) {
  Giornata_Macro g;
  g.RiempiCampi();
  g[C::Specie] = "";
  MemorizzaSpecie(g.programma, g.edita);
  EXPECT_THAT(
      g.macchina.messaggi,
      ElementsAre(
          "immettere Specie, provenienza e zona e ripetere il comando...la specie verrà memorizzata e sarà possibile richiamarla con un numero"_t));
}

struct Caso_Codice {
  const char* risposta;
  const char* file;  // empty: the command ended
};

TEST(Memorizza, CodiciNumerici) {
  for (const char separatore : {',', '.'})
    for (const Caso_Codice& caso :
         {Caso_Codice{"1", "01"}, Caso_Codice{"07", "07"}, Caso_Codice{"99", "99"}, Caso_Codice{"-5", "05"},
          Caso_Codice{" 12 ", "12"}, Caso_Codice{"+3", "03"}, Caso_Codice{"12,9", "12"},
          Caso_Codice{"99,9", "99"}, Caso_Codice{"0", ""}, Caso_Codice{"0,9", ""}, Caso_Codice{"100", ""},
          Caso_Codice{"123", ""}, Caso_Codice{"-100", ""}, Caso_Codice{"99999999999999999999", ""},
          Caso_Codice{"", ""}}) {
      Giornata_Macro g(separatore);
      g.RiempiCampi();
      g.macchina.testi = {g.N(caso.risposta)};
      MemorizzaFornitore(g.programma, g.edita);
      EXPECT_THAT(g.macchina.domande,
                  ElementsAre("a che numero (01-99) o codice (8 caratteri) vuoi associare Mare Blu ?"));
      EXPECT_THAT(g.macchina.messaggi, ElementsAre());
      const auto nomi = g.programma.disco.Elenca(g.cartella / "PREDEF_FOR", "*").value();
      if (*caso.file == 0) {
        EXPECT_TRUE(nomi.empty()) << caso.risposta;
        EXPECT_EQ(g.Luce(), "NORMALE");
      } else {
        EXPECT_THAT(nomi, ElementsAre(Percorso(std::string(caso.file) + ".txt"))) << caso.risposta;
        EXPECT_EQ(g.Luce(), "BENE");
      }
    }
}

TEST(Memorizza, AnnullareFinisceIlComando) {
  Giornata_Macro g;
  g.RiempiCampi();
  g.macchina.testi = {std::nullopt};
  MemorizzaSpecie(g.programma, g.edita);
  EXPECT_THAT(g.macchina.domande,
              ElementsAre("a che numero (01-99) o codice (8 caratteri) vuoi associare Orata ?"));
  EXPECT_FALSE(Occupata(g.edita));
}

struct Caso_Parola {
  Tipo_Macro tipo;
  std::deque<std::optional<Testo>> risposte;
  std::vector<Testo> messaggi;
  const char* file;
};

TEST(Memorizza, Parole) {
  const Testo lunga = "il codice deve essere al massimo di 8 caratteri...";
  const Testo spazi_for = "immettere un codice senza spazi....";
  const Testo spazi = "togliere gli spazi dal nome..", corta = "almeno 2 caratteri...";
  const Testo vietati = "il codice non può contenere / \\ : * ? \" < > | .."_t;
  constexpr auto fornitore = Tipo_Macro::Fornitore, specie = Tipo_Macro::Specie;
  for (const Caso_Parola& caso : std::vector<Caso_Parola>{
           {fornitore, {"ORATE1"}, {}, "ORATE1"},
           {fornitore, {"ABCDEFGHI"}, {lunga}, "ABCDEFGH"},
           {fornitore, {"ABCDEFGH I"}, {lunga}, "ABCDEFGH"},
           {fornitore, {"ABCD EFGHI", "ABC"}, {lunga, spazi_for}, "ABC"},
           {fornitore, {"A B", "A C", "AC"}, {spazi_for, spazi_for}, "AC"},
           {fornitore, {"A B", std::nullopt}, {spazi_for}, ""},
           {fornitore, {"A B", "7"}, {spazi_for}, "07"},
           {fornitore, {" ", ""}, {spazi_for}, ""},
           // one letter is stored for a supplier, though no macro of one character ever runs
           {fornitore, {"X"}, {}, "X"},
           {specie, {"X", "XY"}, {corta}, "XY"},
           {specie, {"X Y", "XY"}, {spazi}, "XY"},
           {specie, {" ", "XY"}, {corta}, "XY"},
           {specie, {"ABCDEFGHI"}, {lunga}, "ABCDEFGH"},
           {specie, {"../x", "XY"}, {vietati}, "XY"},
           {fornitore,
            {"a/b", "a\\b", "..", Testo("a\0b", 3), "a|b", "\"a\"", ""},
            {vietati, vietati, vietati, vietati, vietati, vietati},
            ""},
       }) {
    Giornata_Macro g;
    g.RiempiCampi();
    g.macchina.testi = caso.risposte;
    (caso.tipo == fornitore ? MemorizzaFornitore : MemorizzaSpecie)(g.programma, g.edita);
    EXPECT_EQ(g.macchina.messaggi, caso.messaggi) << *caso.risposte[0];
    EXPECT_TRUE(g.macchina.testi.empty());
    const auto nomi =
        g.programma.disco.Elenca(g.cartella / (caso.tipo == fornitore ? "PREDEF_FOR" : "PREDEF"), "*")
            .value();
    if (*caso.file == 0)
      EXPECT_TRUE(nomi.empty());
    else
      EXPECT_THAT(nomi, ElementsAre(Percorso(std::string(caso.file) + ".txt")));
  }
}

TEST(Memorizza, SopraUnaMacroCheCEChiede) {
  Giornata_Macro g;
  g.Metti("PREDEF/orate1.txt", "vecchia");
  g.RiempiCampi();
  g.macchina.testi = {"ORATE1", "ORATE1"};
  g.macchina.risposte = {false, true};
  MemorizzaSpecie(g.programma, g.edita);
  EXPECT_EQ(g.macchina.domande.back(), "OK per sovrascrivere");
  EXPECT_EQ(g.cartella.Contenuto("PREDEF/orate1.txt"), "vecchia");
  EXPECT_EQ(g.Luce(), "NORMALE");
  MemorizzaSpecie(g.programma, g.edita);
  EXPECT_THAT(g.cartella.Contenuto("PREDEF/orate1.txt"), HasSubstr("Orata\r\n"));
  EXPECT_EQ(g.programma.disco.Elenca(g.cartella / "PREDEF", "*").value().size(), 1U);
  EXPECT_EQ(g.Luce(), "BENE");
}

TEST(Memorizza, LaScritturaCheFallisceSiDice) {
  Giornata_Macro g;
  g.Metti("PREDEF/07.txt", "vecchia");
  g.RiempiCampi();
  g.programma.disco.guasto = [](const Percorso&) { return ENOSPC; };
  g.macchina.testi = {"07"};
  g.macchina.risposte = {true};
  MemorizzaSpecie(g.programma, g.edita);
  ASSERT_EQ(g.macchina.messaggi.size(), 1U);
  EXPECT_EQ(g.macchina.messaggi[0],
            "Errore =28  aprendo il file " + Testo_Percorso(g.cartella / "PREDEF/07.txt"));
  EXPECT_EQ(g.cartella.Contenuto("PREDEF/07.txt"), "vecchia");
  EXPECT_EQ(g.Luce(), "NORMALE");
  EXPECT_FALSE(Occupata(g.edita));
}

TEST(Memorizza, LaCartellaCheNonSiPuoFareSiDice) {
  Giornata_Macro g;
  std::ofstream(g.cartella / "PREDEF") << "x";
  g.RiempiCampi();
  g.macchina.testi = {"07"};
  MemorizzaSpecie(g.programma, g.edita);
  ASSERT_EQ(g.macchina.messaggi.size(), 1U);
  EXPECT_THAT(g.macchina.messaggi[0], HasSubstr("la creazione della cartella"));
}

TEST(Memorizza, MentreChiedeLoSchermoStaFermo) {
  Giornata_Macro g;
  g.RiempiCampi();
  g.Metti("PREDEF/07.txt", "vecchia");
  g.macchina.testi = {"07"};
  g.macchina.risposte = {true};
  bool ferma = false;
  g.macchina.durante_attesa = [&] { ferma = Occupata(g.edita); };
  MemorizzaSpecie(g.programma, g.edita);
  EXPECT_TRUE(ferma);
}

#include "tests/runner/copione.h"

#include <array>
#include <gmock/gmock.h>

#include "tests/runner/giornata.h"
#include "tests/runner/passi.h"

namespace giornata {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

Copione Letto(std::string_view testo) {
  auto esito = Leggi_Copione(testo, Forme());
  if (const auto* errore = std::get_if<Errore_Copione>(&esito)) {
    ADD_FAILURE() << errore->riga << ": " << errore->atteso << " / " << errore->trovato;
    return {};
  }
  return std::get<Copione>(esito);
}

Errore_Copione Errore(std::string_view testo) {
  auto esito = Leggi_Copione(testo, Forme());
  if (const auto* errore = std::get_if<Errore_Copione>(&esito)) return *errore;
  ADD_FAILURE() << "letto senza errori: " << testo;
  return {};
}

std::vector<std::string> Testi(const Passo& passo) {
  std::vector<std::string> esito;
  for (const Parola& parola : passo.argomenti) esito.push_back(parola.testo);
  return esito;
}

}  // namespace

TEST(Copione, UnPassoPerRigaConCommentiERigheVuote) {
  const Copione copione = Letto("# Il titolo della giornata\n\n  avvia   # si parte\r\nfinestra B_Inizio\n");
  EXPECT_EQ(copione.titolo, "Il titolo della giornata");
  EXPECT_EQ(copione.righe, 4);
  ASSERT_EQ(copione.passi.size(), 2U);
  EXPECT_EQ(copione.passi[0].riga, 3);
  EXPECT_EQ(copione.passi[1].riga, 4);
  EXPECT_THAT(Testi(copione.passi[1]), ElementsAre("B_Inizio"));
}

TEST(Copione, VirgoletteEscapeECancelletto) {
  const Copione copione = Letto(R"(vale "#DDT automatico " "riga uno\nriga due\t\"x\" \\ è" # resto)"
                                "\n");
  ASSERT_EQ(copione.passi.size(), 1U);
  EXPECT_THAT(Testi(copione.passi[0]), ElementsAre("#DDT automatico ", "riga uno\nriga due\t\"x\" \\ è"));
  EXPECT_TRUE(copione.passi[0].argomenti[0].virgolette);
}

TEST(Copione, ControlliDiUnaFinestra) {
  const Copione copione = Letto("clic Albero.ListaVoci\nclic Edita.\"Sal&va F7\"\nvale Text1(6) \"\"\n");
  EXPECT_EQ(copione.passi[0].argomenti[0], (Parola{"Albero.ListaVoci", false, ""}));
  EXPECT_EQ(copione.passi[1].argomenti[0], (Parola{"Sal&va F7", true, "Edita"}));
  EXPECT_THAT(Testi(copione.passi[2]), ElementsAre("Text1(6)", ""));
}

TEST(Copione, NumeroOTesto) {
  const Copione copione = Letto("scegli Lista 2\nscegli Lista \"2\"\nscegli Lista due\n");
  EXPECT_EQ(Forme()[copione.passi[0].forma], "scegli <controllo> <numero>");
  EXPECT_EQ(Forme()[copione.passi[1].forma], "scegli <controllo> <testo>");
  EXPECT_EQ(Forme()[copione.passi[2].forma], "scegli <controllo> <testo>");
}

TEST(Copione, RispostaOTestoDellaRisposta) {
  const Copione copione = Letto("rispondi OK\nrispondi Annulla\nrispondi \"OK\"\nrispondi 12\n");
  EXPECT_EQ(Forme()[copione.passi[0].forma], "rispondi OK");
  EXPECT_EQ(Forme()[copione.passi[1].forma], "rispondi Annulla");
  EXPECT_EQ(Forme()[copione.passi[2].forma], "rispondi <testo>");
  EXPECT_EQ(Forme()[copione.passi[3].forma], "rispondi <testo>");
}

TEST(Copione, OgniPassoDellaLinguaSiLegge) {
  const Copione copione = Letto(
      "ditta base\noggi 2024-02-29\nseparatore .\navvia\nesci\nfinestra Edita\nscrivi \"a b\"\ntasto "
      "Ctrl+Shift+F12\n"
      "clic C\nclic-destro C\ndoppio C\nfuoco C\nmetti C \"\"\nscegli C 1\nscegli C \"x\"\nmenu \"A\" \"B\"\n"
      "menu PrefSpecie\nrispondi OK\nmessaggio \"x\"\nmessaggio contiene \"x\"\ndomanda "
      "\"x\"\nnessun-messaggio\n"
      "vale C \"x\"\ncontiene C \"x\"\nrighe C 0\nattivo C\ninattivo C\nvisibile C\nnascosto C\nha-fuoco C\n"
      "segnato C\nnon-segnato C\nelenco PREDEF\nelenco . \"A\" \"B\"\nfile P = Q\nfile P contiene \"x\"\n"
      "file P manca\nfile P righe 3\npagine = Q\npagine contiene \"x\"\npagine numero 0\ncopia ../Q P/Q\n"
      "cancella P\nguasto P\nguasto fine\nstampante \"X\" verticale\nstampante X orizzontale\nstampante "
      "nessuna\n"
      "appunti \"x\"\nvolume \"E:\" \"CHIAVE\" chiave\nfile ../chiave/x manca\nprogramma \"P.exe a\"\ntitolo "
      "\"x\"\n"
      "titolo contiene \"x\"\n");
  EXPECT_EQ(copione.passi.size(), 54U);
}

struct Caso_Errore {
  const char* riga;
  const char* detto;  // in what is said of it
};

class Copione_Sbagliato : public testing::TestWithParam<Caso_Errore> {};

TEST_P(Copione_Sbagliato, SiRifiutaPrimaDiGiocare) {
  const Errore_Copione errore = Errore(std::string("avvia\n") + GetParam().riga + "\n");
  EXPECT_EQ(errore.riga, 2);
  EXPECT_THAT(errore.atteso + " / " + errore.trovato, HasSubstr(GetParam().detto));
}

INSTANTIATE_TEST_SUITE_P(
    Copione, Copione_Sbagliato,
    testing::Values(
        Caso_Errore{"balla", "un passo conosciuto / balla"}, Caso_Errore{"\"avvia\"", "un passo conosciuto"},
        Caso_Errore{"Avvia", "un passo conosciuto"}, Caso_Errore{"avvia adesso", "avvia / avvia adesso"},
        Caso_Errore{"clic", "clic <controllo>"}, Caso_Errore{"clic A B", "clic <controllo>"},
        Caso_Errore{"tasto F13", "F1-F12"}, Caso_Errore{"tasto F0", "F1-F12"},
        Caso_Errore{"tasto Enter", "Invio"}, Caso_Errore{"tasto Shift+Shift+F1", "Shift+"},
        Caso_Errore{"tasto \"F1\"", "Invio"}, Caso_Errore{"oggi 2025-02-29", "AAAA-MM-GG"},
        Caso_Errore{"oggi 14/03/2025", "AAAA-MM-GG"}, Caso_Errore{"separatore ;", "',' o '.'"},
        Caso_Errore{"righe C tre", "un numero intero"}, Caso_Errore{"righe C -1", "un numero intero"},
        Caso_Errore{"pagine numero", "pagine numero <numero>"},
        Caso_Errore{"file P", "file <percorso> manca"},
        Caso_Errore{"file P == Q", "file <percorso> = <accanto>"},

        Caso_Errore{"file A/../../P manca", "dentro la cartella"},
        Caso_Errore{"cancella ..", "dentro la cartella"},
        Caso_Errore{"file /etc/passwd manca", "dentro la cartella"},
        Caso_Errore{"copia Q ../..", "dentro la cartella"},
        Caso_Errore{"guasto ..\\..\\x", "dentro la cartella"},
        Caso_Errore{"volume E: X ../fuori", "un nome di cartella"}, Caso_Errore{"menu", "una o più voci"},
        Caso_Errore{"stampante X", "stampante nessuna"}, Caso_Errore{"rispondi", "rispondi OK"},
        Caso_Errore{"vale C \"x", "le virgolette chiuse"}, Caso_Errore{"vale C \"\\q\"", "\\q"},
        Caso_Errore{"vale C \"a\"\"b\"", "uno spazio dopo le virgolette"},
        Caso_Errore{"vale C a\"b\"", "uno spazio prima delle virgolette"},
        Caso_Errore{"scrivi \xE8", "UTF-8"}));

TEST(Copione, IlPercorsoDiUnVolumePuoCominciareAccantoAllaDitta) {
  EXPECT_FALSE(Difetto(Letto("volume E: X chiave\nfile ../chiave/2025/a.txt manca\n")));
  EXPECT_EQ(Difetto(Letto("nessun-messaggio\nfile ../chiave/2025/a.txt manca\n"))->riga, 2);
  EXPECT_EQ(Errore("file ../chiave/../a.txt manca\n").riga, 1);
}

TEST(Copione, SenzaControlliHaUnDifetto) {
  EXPECT_TRUE(Difetto(Letto("avvia\nesci\n")));
  EXPECT_TRUE(Difetto(Letto("# niente\n")));
  EXPECT_FALSE(Difetto(Letto("avvia\nnessun-messaggio\n")));
}

TEST(Tasti, NomiEModi) {
  const auto tasto = Leggi_Tasto("Ctrl+Shift+Canc");
  ASSERT_TRUE(tasto);
  EXPECT_EQ(tasto->tasto, Tasto::Canc);
  EXPECT_TRUE(tasto->ctrl && tasto->maiuscole && !tasto->alt);
  EXPECT_EQ(Leggi_Tasto("F1")->tasto, Tasto::F1);
  EXPECT_EQ(Leggi_Tasto("F12")->tasto, Tasto::F12);
  for (const char* nome : {"", "F", "F01", "F123", "A", "Shift+", "shift+F1", "invio"})
    EXPECT_FALSE(Leggi_Tasto(nome)) << nome;
}

}  // namespace giornata

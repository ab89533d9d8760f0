#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/core/cartella_temporanea.h"

// The player as it is run: scripts in, status and printed lines out.
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr const char* programma = VELMARA_GIORNATA;

namespace fs = std::filesystem;

// A folder for scripts with the firms that they name beside them; gone with the object.
class Banco {
 public:
  Banco() {
    const fs::path prove = COPIONI_PROVA;
    fs::create_directory_symlink(prove / "copioni" / "ditta", cartella_ / "ditta");
    fs::create_directory_symlink(prove / "copioni" / "chiave", cartella_ / "chiave");
    fs::create_directory_symlink(prove / ".." / "giornate" / "ditte" / "base", cartella_ / "base");
  }
  std::string scrivi(const std::string& nome, const std::string& righe) const {
    const fs::path file = cartella_ / (nome + ".giornata");
    std::ofstream(file) << righe;
    return file.string();
  }
  const fs::path& cartella() const { return cartella_.percorso; }

 private:
  Cartella_Temporanea cartella_;
};

struct Esito {
  int stato = -1;
  std::string scritto;
};

Esito Esegui(const std::string& argomenti) {
  Esito esito;
  FILE* uscita = popen((std::string(programma) + " " + argomenti + " 2>/dev/null").c_str(), "r");
  if (!uscita) return esito;
  std::array<char, 4096> pezzo;
  while (const std::size_t letti = std::fread(pezzo.data(), 1, pezzo.size(), uscita))
    esito.scritto.append(pezzo.data(), letti);
  const int stato = pclose(uscita);
  esito.stato = WIFEXITED(stato) ? WEXITSTATUS(stato) : -1;
  return esito;
}

struct Caso {
  const char* nome;
  const char* righe;
  int stato;
  const char* detto;  // in what is printed
};

void PrintTo(const Caso& caso, std::ostream* flusso) { *flusso << caso.nome; }

class Passi : public testing::TestWithParam<Caso> {};

}  // namespace

TEST_P(Passi, StatoEStampa) {
  const Caso& caso = GetParam();
  const Banco banco;
  const Esito esito = Esegui(banco.scrivi(caso.nome, caso.righe));
  EXPECT_EQ(esito.stato, caso.stato);
  EXPECT_THAT(esito.scritto, HasSubstr(caso.detto));
}

INSTANTIATE_TEST_SUITE_P(
    Runner, Passi,
    testing::Values(
        Caso{"vuoto", "# niente\n", 1, "almeno un controllo"},
        Caso{"senza_controlli", "ditta ditta\navvia\nesci\n", 1, "almeno un controllo"},
        Caso{"ignoto", "ditta ditta\nballa\n", 1,
             ".giornata:2\n  atteso:  un passo conosciuto\n  trovato: balla"},
        Caso{"prima_si_legge", "cancella niente\nnessun-messaggio\nrighe X tre\n", 1, ".giornata:3\n"},
        Caso{"fuori", "file ../../x manca\n", 1, "dentro la cartella della ditta"},
        Caso{"fuori_dai_volumi", "file ../x/y manca\n", 1, "dentro la cartella della ditta o di un volume"},
        Caso{"solo_file",
             "ditta ditta\nfile nota.txt contiene \"perché\"\nelenco . nota.txt sotto\n"
             "elenco sotto vuoto.txt\nfile nota.txt righe 2\nfile altro.txt manca\n",
             0, "ok  "},
        Caso{"testo_diverso", "ditta ditta\nfile nota.txt contiene \"perche'\"\n", 1,
             "atteso:  \"perche'\"\n  trovato: \"la fattura, perché no?<CR>\\nseconda riga<CR>\\n\""},
        Caso{"file_uguale", "ditta ditta\nfile nota.txt = ditta/nota.txt\n", 0, "ok  "},
        Caso{"file_diverso", "ditta ditta\nfile nota.txt = ditta/sotto/vuoto.txt\n", 1,
             "riga 1: fine del file"},
        Caso{"elenco_diverso", "ditta ditta\nelenco . nota.txt\n", 1, "trovato: \"nota.txt\" \"sotto\""},
        Caso{"copia",
             "copia ditta/nota.txt 2025/a.txt\nfile 2025/a.txt righe 2\ncancella 2025\nfile 2025 manca\n"
             "copia ditta tutto\nelenco tutto nota.txt sotto\n",
             0, "ok  "},
        Caso{"cancella_niente", "cancella x.txt\nnessun-messaggio\n", 1, "x.txt da cancellare"},
        Caso{"volume",
             "volume \"E:\" \"CHIAVE\" chiave\nfile E:/dati.txt righe 1\nfile chiave/dati.txt righe 1\n"
             "file ../chiave/dati.txt righe 1\ncopia ditta/nota.txt E:/nota.txt\n"
             "elenco E: dati.txt nota.txt\n",
             0, "ok  "},
        Caso{"pagine", "pagine numero 0\n", 0, "ok  "},
        Caso{"pagine_mancanti", "pagine contiene \"DDT\"\n", 1, "trovato: 0 pagine"},
        Caso{"programma_spento", "clic Command1\nnessun-messaggio\n", 1, "il programma avviato"},
        Caso{"ditta_mancante", "ditta nessuna\nnessun-messaggio\n", 1, "la cartella "},
        Caso{"risposta_avanzata", "rispondi OK\nnessun-messaggio\n", 1, "nessuna risposta rimasta in coda"},
        Caso{"esc_avanzato", "esc dopo 2\nnessun-messaggio\n", 1, "un lavoro da fermare con Esc"},
        Caso{"messaggio_mancante", "messaggio \"x\"\n", 1, "trovato: nessun messaggio"},
        Caso{"domanda_mancante", "domanda \"x\"\n", 1, "trovato: nessuna domanda"},
        Caso{"foto_senza_programma", "foto inizio\n", 1, "il programma avviato"},
        Caso{"programma_mancante", "programma \"CopiaDati.exe\"\n", 1, "trovato: nessuno"}),
    [](const auto& caso) { return std::string(caso.param.nome); });

TEST(Runner, LeFotoVannoNellaCartellaChiesta) {
  const Banco banco;
  const std::string copione = banco.scrivi(
      "foto",
      "ditta base\navvia\nfoto inizio\ntasto Invio\nfinestra Edita\nmenu \"Help\" \"Stampa Liste\"\n"
      "foto-carta liste\nesci\n");
  const fs::path foto = banco.cartella() / "foto";
  EXPECT_EQ(Esegui(copione).stato, 0);
  EXPECT_FALSE(fs::exists(foto));
  EXPECT_EQ(Esegui("--foto " + foto.string() + " " + copione).stato, 0);
  EXPECT_GT(fs::file_size(foto / "inizio.png"), 1000U);
  EXPECT_GT(fs::file_size(foto / "liste.pdf"), 1000U);
}

TEST(Runner, FotoDiNienteESbagliata) {
  const Banco banco;
  for (const std::string& opzione : {std::string(), "--foto " + (banco.cartella() / "f").string() + " "}) {
    const Esito esito = Esegui(opzione + banco.scrivi("niente", "ditta base\navvia\nfoto-carta niente\n"));
    EXPECT_EQ(esito.stato, 1);
    EXPECT_THAT(esito.scritto, HasSubstr("atteso:  un documento stampato"));
    EXPECT_EQ(Esegui(opzione + banco.scrivi("nome", "ditta base\navvia\nfoto ../Fuori\n")).stato, 1);
  }
}

// With the program's windows, on the firm that the working days share.
INSTANTIATE_TEST_SUITE_P(
    Finestre, Passi,
    testing::Values(
        Caso{"avvio",
             "ditta base\navvia\nfinestra B_Inizio\ntitolo contiene \"14/03/2025\"\n"
             "vale \"Giorno\" 14\nattivo \"Continua ...\"\nnascosto Command14\ninattivo Command15\n"
             "contiene Combo1 Marzo\nrighe Combo1 12\nesci\navvia\nfinestra B_Inizio\n",
             0, "ok  "},
        Caso{"oggi",
             "ditta base\noggi 2024-02-29\nseparatore .\navvia\nvale Text1 29\n"
             "vale Text3 2024\ncontiene Stato PUNTO\n",
             0, "ok  "},
        Caso{"controllo_mancante", "ditta base\navvia\nclic Command99\nnessun-messaggio\n", 1,
             ".giornata:3: clic Command99\n  atteso:  il controllo Command99\n  trovato: in B_Inizio: "},
        Caso{"controllo_spento", "ditta base\navvia\nclic Command15\nnessun-messaggio\n", 1,
             "B_Inizio.Command15 attivo"},
        Caso{"controllo_nascosto", "ditta base\navvia\nclic Command14\nnessun-messaggio\n", 1,
             "B_Inizio.Command14 visibile"},
        Caso{"valore_diverso", "ditta base\navvia\nvale Text1 15\n", 1,
             "  atteso:  B_Inizio.Text1 \"15\"\n  trovato: \"14\"\n"},
        Caso{"finestra_diversa", "ditta base\navvia\nfinestra Edita\n", 1,
             "  atteso:  la finestra Edita\n  trovato: B_Inizio\n"},
        Caso{"messaggio_dimenticato",
             "ditta base\navvia\noggi 2025-03-13\ntasto Invio\n"
             "messaggio contiene \"oggi è 13/03/2025\"\nfinestra B_Inizio\n",
             1, "trovato: \"Non si possono inserire dati per il futuro\""},
        Caso{"messaggi_controllati",
             "ditta base\navvia\noggi 2025-03-13\ntasto Invio\n"
             "messaggio \"Secondo questo PC oggi è 13/03/2025\"\n"
             "messaggio \"Non si possono inserire dati per il futuro\"\nnessun-messaggio\n",
             0, "ok  "},
        Caso{"domanda_senza_risposta", "ditta base\navvia\ntasto Shift+F2\nnessun-messaggio\n", 1,
             ":3: tasto Shift+F2\n  atteso:  una risposta in coda per la domanda\n  trovato: \"Ok per "
             "cancellare"},
        Caso{"domanda_con_risposta",
             "ditta base\navvia\nrispondi Annulla\ntasto Shift+F2\n"
             "domanda \"Ok per cancellare tutti i .DAT del 2025\"\nnessun-messaggio\n",
             0, "ok  "},
        Caso{"posteggio_chiesto_per_sempre",
             "ditta base\ncancella Velmara_2020.ini\nrispondi "
             "Annulla\navvia\nnessun-messaggio\n",
             1, "una risposta in coda per la domanda"},
        Caso{"doppio_avvio", "ditta base\navvia\navvia\nnessun-messaggio\n", 1,
             "il programma non ancora avviato"},
        Caso{"primo_avvio",
             "avvia\nfinestra PrimoAvvio\nmetti Text1(0) \"Mare Blu\"\nmetti Text3 \"07\"\nclic Command1\n"
             "messaggio contiene \"lancio il programma per la generazione delle liste\"\n"
             "file _2020_RAGIONE.txt contiene \"Mare Blu\"\nfile Velmara_2020.ini contiene nposteggio\n",
             0, "ok  "}),
    [](const auto& caso) { return std::string(caso.param.nome); });

TEST(Runner, PiuCopioniUnaRigaCiascuno) {
  const Banco banco;
  const std::string uno = banco.scrivi("uno", "# Uno\nnessun-messaggio\n");
  const std::string due = banco.scrivi("due", "messaggio \"x\"\n");
  const std::string tre = banco.scrivi("tre", "# Tre\nnessun-messaggio\n");
  const Esito tutti = Esegui(uno + " " + due + " " + tre);
  const Esito buoni = Esegui(uno + " " + tre);
  EXPECT_EQ(tutti.stato, 1);
  EXPECT_THAT(tutti.scritto, AllOf(HasSubstr("uno.giornata: Uno\n"), HasSubstr("due.giornata:1"),
                                   HasSubstr("tre.giornata: Tre\n")));
  EXPECT_EQ(buoni.stato, 0);
  EXPECT_THAT(buoni.scritto, Not(HasSubstr("FALLITA")));
}

TEST(Runner, SenzaCopioniOConUnoCheNonCE) {
  EXPECT_EQ(Esegui("").stato, 1);
  EXPECT_EQ(Esegui("/nessun/copione").stato, 1);
}

TEST(Runner, LaCartellaDellaGiornataSparisce) {
  const Banco banco, altrove;
  const std::string copione = banco.scrivi("sparisce", "ditta ditta\nfile nota.txt manca\n");
  const auto voci = [&] { return std::distance(fs::directory_iterator(altrove.cartella()), {}); };
  const auto prima = voci();
  setenv("TMPDIR", altrove.cartella().c_str(), 1);
  EXPECT_EQ(Esegui(copione).stato, 1);
  unsetenv("TMPDIR");
  EXPECT_EQ(voci(), prima);
}

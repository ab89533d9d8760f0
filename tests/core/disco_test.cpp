#include "core/disco.h"

#include <cerrno>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/core/cartella_temporanea.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class Disco_Prova : public testing::Test {
 protected:
  Cartella_Temporanea cartella;
  Disco disco;

  // The n-th question whether a write shall fail (from 1) is answered with "disk full".
  void Guasta_Al(int n) {
    disco.guasto = [volte = 0, n](const Percorso&) mutable { return ++volte == n ? ENOSPC : 0; };
  }
};

mode_t Diritti(const Percorso& percorso) {
  struct stat stato {};
  return stat(percorso.c_str(), &stato) == 0 ? stato.st_mode & 07777U : 0;
}

TEST(Percorsi, UnisciConUnaSolaBarra) {
  const struct {
    const char* cartella;
    Vista nome;
    const char* atteso;
  } casi[] = {{"/dati", "a.txt", "/dati/a.txt"},
              {"/dati/", "a.txt", "/dati/a.txt"},
              {"/dati//", "/a.txt", "/dati/a.txt"},
              {"/dati", "\\a.txt", "/dati/a.txt"},
              {"/dati\\", "a.txt", "/dati/a.txt"},
              {"", "a.txt", "a.txt"},
              {"/", "a", "/a"},
              {"dati", "b/c", "dati/b/c"}};
  for (const auto& caso : casi) EXPECT_EQ(Unisci_Percorso(caso.cartella, caso.nome).native(), caso.atteso);
}

TEST(Percorsi, TestoEPercorso) {
  EXPECT_EQ(In_Percorso("Però €"_t).native(), "Però €");
  EXPECT_EQ(Testo_Percorso(Percorso("/dati/Però €")), "/dati/Però €"_t);
  EXPECT_EQ(Unisci_Percorso("/dati", "Niccolò"_t).native(), "/dati/Niccolò");
  EXPECT_EQ(Nome_File("/dati/a.txt"), "a.txt");
  EXPECT_EQ(Nome_File("C:\\dati\\a.txt"), "a.txt");
  EXPECT_EQ(Nome_File("dati\\b/c.txt"), "c.txt");
  EXPECT_EQ(Nome_File("a.txt"), "a.txt");
  EXPECT_EQ(Nome_File("/dati/"), "");
}

TEST_F(Disco_Prova, EsisteSoloCioCheE) {
  cartella.Metti("a.txt", "");
  fs::create_directory(cartella / "vuota");
  EXPECT_TRUE(disco.Esiste_File(cartella / "a.txt"));
  EXPECT_FALSE(disco.Esiste_File(cartella / "vuota"));
  EXPECT_FALSE(disco.Esiste_File(cartella / "b.txt"));
  EXPECT_FALSE(disco.Esiste_File(cartella / "a.txt/x"));
  EXPECT_FALSE(disco.Esiste_File(""));
  EXPECT_FALSE(disco.Esiste_File("/dev/null"));
  EXPECT_TRUE(disco.Esiste_Cartella(cartella / "vuota"));  // an empty folder counts
  EXPECT_TRUE(disco.Esiste_Cartella(cartella / "vuota/"));
  EXPECT_FALSE(disco.Esiste_Cartella(cartella / "a.txt"));
  EXPECT_FALSE(disco.Esiste_Cartella(cartella / "b"));
}

TEST_F(Disco_Prova, TrovaSenzaGuardareLeMaiuscole) {
  cartella.Metti("Predef/Orata.TXT", "x");
  EXPECT_EQ(disco.Trova(cartella / "PREDEF/orata.txt"), cartella / "Predef/Orata.TXT");
  EXPECT_EQ(disco.Trova(cartella / "Predef/Orata.TXT"), cartella / "Predef/Orata.TXT");
  EXPECT_EQ(disco.Trova(cartella / "predef/"), cartella / "Predef");
  EXPECT_EQ(disco.Trova(cartella / "PREDEF/altro.txt"), cartella / "PREDEF/altro.txt");
  EXPECT_TRUE(disco.Esiste_File(cartella / "predef/ORATA.txt"));
  EXPECT_TRUE(disco.Esiste_Cartella(cartella / "PREDEF"));
  EXPECT_EQ(disco.Leggi(cartella / "preDEF/orata.txt"), "x");
}

TEST_F(Disco_Prova, TraPiuGrafiePrimaQuellaEsatta) {
  cartella.Metti("LISTA.txt", "1");
  cartella.Metti("lista.txt", "2");
  EXPECT_EQ(disco.Leggi(cartella / "lista.txt"), "2");
  EXPECT_EQ(disco.Leggi(cartella / "LISTA.txt"), "1");
  EXPECT_EQ(disco.Leggi(cartella / "Lista.txt"), "1");  // the first by name, always the same one
}

TEST_F(Disco_Prova, SoloLeLettereASCIISiPiegano) {
  cartella.Metti("È.txt", "x");
  EXPECT_FALSE(disco.Esiste_File(cartella / "è.txt"));
}

TEST_F(Disco_Prova, LeggiTuttiIByte) {
  Testo byte;
  for (int b = 0; b < 256; ++b) byte += static_cast<char>(b);
  cartella.Metti("a.dat", byte);
  int errore = -1;
  EXPECT_EQ(disco.Leggi(cartella / "a.dat", &errore), byte);
  EXPECT_EQ(errore, 0);
  cartella.Metti("vuoto", "");
  EXPECT_EQ(disco.Leggi(cartella / "vuoto"), "");
  const Testo grande(20'000'000, 'x');
  cartella.Metti("grande", grande);
  EXPECT_TRUE(disco.Leggi(cartella / "grande") == grande);
}

TEST_F(Disco_Prova, LeggiDiceIlPerche) {
  cartella.Metti("a.txt", "x");
  fs::create_directory(cartella / "giorno.txt");
  ASSERT_EQ(mkfifo((cartella / "tubo").c_str(), 0600), 0);
  const struct {
    Percorso percorso;
    int errore;
  } casi[] = {{cartella / "manca.txt", ENOENT},
              {cartella / "giorno.txt", EISDIR},
              {cartella / "a.txt/b.txt", ENOTDIR},
              {cartella / "tubo", EINVAL},
              {"/dev/zero", EINVAL},
              {"", ENOENT}};
  for (const auto& caso : casi) {
    int errore = 0;
    EXPECT_FALSE(disco.Leggi(caso.percorso, &errore).has_value()) << caso.percorso;
    EXPECT_EQ(errore, caso.errore) << caso.percorso;
    EXPECT_FALSE(disco.Leggi(caso.percorso).has_value());
  }
}

TEST_F(Disco_Prova, SostituisciScriveTuttoENullAltro) {
  EXPECT_EQ(disco.Sostituisci(cartella / "a.txt", "uno"), 0);
  EXPECT_EQ(cartella.Contenuto("a.txt"), "uno");
  EXPECT_EQ(disco.Sostituisci(cartella / "a.txt", "d"), 0);
  EXPECT_EQ(cartella.Contenuto("a.txt"), "d");
  EXPECT_EQ(disco.Sostituisci(cartella / "a.txt", ""), 0);
  EXPECT_EQ(cartella.Contenuto("a.txt"), "");
  EXPECT_THAT(cartella.Nomi(), ElementsAre("a.txt"));
}

TEST_F(Disco_Prova, SostituisciTieneLaGrafiaTrovata) {
  cartella.Metti("Anno/_Client32.TXT", "x");
  EXPECT_EQ(disco.Sostituisci(cartella / "anno/_client32.txt", "nuovo"), 0);
  EXPECT_EQ(disco.Sostituisci(cartella / "ANNO/altro.txt", "y"), 0);
  EXPECT_THAT(cartella.Nomi(), ElementsAre("Anno"));
  EXPECT_EQ(cartella.Contenuto("Anno/_Client32.TXT"), "nuovo");
  EXPECT_EQ(cartella.Contenuto("Anno/altro.txt"), "y");
}

TEST_F(Disco_Prova, SostituisciTieneDiritti) {
  cartella.Metti("a.txt", "x");
  ASSERT_EQ(chmod((cartella / "a.txt").c_str(), 0640), 0);
  EXPECT_EQ(disco.Sostituisci(cartella / "a.txt", "y"), 0);
  EXPECT_EQ(Diritti(cartella / "a.txt"), 0640U);
  const mode_t maschera = umask(022);
  EXPECT_EQ(disco.Sostituisci(cartella / "b.txt", "y"), 0);
  umask(maschera);
  EXPECT_EQ(Diritti(cartella / "b.txt"), 0644U);
}

TEST_F(Disco_Prova, SostituisciLasciaStareIlFileUguale) {
  cartella.Metti("a.txt", "uguale");
  const auto prima = fs::last_write_time(cartella / "a.txt") - std::chrono::hours(1);
  fs::last_write_time(cartella / "a.txt", prima);
  EXPECT_EQ(disco.Sostituisci(cartella / "a.txt", "uguale"), 0);
  EXPECT_EQ(fs::last_write_time(cartella / "a.txt"), prima);
  EXPECT_EQ(disco.Sostituisci(cartella / "a.txt", "ugualE"), 0);
  EXPECT_NE(fs::last_write_time(cartella / "a.txt"), prima);
}

TEST_F(Disco_Prova, SostituisciScriveOltreIlCollegamento) {
  cartella.Metti("vero/a.txt", "x");
  fs::create_symlink("vero/a.txt", cartella / "uno");
  fs::create_symlink(cartella / "uno", cartella / "due");
  EXPECT_EQ(disco.Sostituisci(cartella / "due", "nuovo"), 0);
  EXPECT_EQ(cartella.Contenuto("vero/a.txt"), "nuovo");
  EXPECT_TRUE(fs::is_symlink(cartella / "uno"));
  EXPECT_TRUE(fs::is_symlink(cartella / "due"));
  fs::create_symlink("vero/nuovo.txt", cartella / "pendente");
  EXPECT_EQ(disco.Sostituisci(cartella / "pendente", "y"), 0);
  EXPECT_EQ(cartella.Contenuto("vero/nuovo.txt"), "y");
  EXPECT_TRUE(fs::is_symlink(cartella / "pendente"));
}

// At whatever step it fails, the file is the last good one and nothing else is left in the folder.
TEST_F(Disco_Prova, GuastoAdOgniPassoLasciaIlFileVecchio) {
  cartella.Metti("a.txt", "vecchio");
  int passi = 0;
  disco.guasto = [&passi](const Percorso&) { return ++passi, 0; };
  ASSERT_EQ(disco.Sostituisci(cartella / "a.txt", "vecchissimo"), 0);
  ASSERT_GE(passi, 5);
  cartella.Metti("a.txt", "vecchio");
  for (int n = 1; n <= passi; ++n) {
    Guasta_Al(n);
    EXPECT_EQ(disco.Sostituisci(cartella / "a.txt", "nuovo"), ENOSPC) << n;
    EXPECT_EQ(cartella.Contenuto("a.txt"), "vecchio") << n;
    EXPECT_THAT(cartella.Nomi(), ElementsAre("a.txt")) << n;
    Guasta_Al(n);
    EXPECT_EQ(disco.Sostituisci(cartella / "b.txt", "nuovo"), ENOSPC) << n;
    EXPECT_THAT(cartella.Nomi(), ElementsAre("a.txt")) << n;
  }
  Guasta_Al(passi + 1);
  EXPECT_EQ(disco.Sostituisci(cartella / "a.txt", "nuovo"), 0);
  EXPECT_EQ(cartella.Contenuto("a.txt"), "nuovo");
}

// A power cut leaves the temporary file behind: no list of days, copies or invoices may show it.
TEST_F(Disco_Prova, NessunElencoMostraIlFileProvvisorio) {
  std::vector<std::string> visti;
  int passi = 0;
  disco.guasto = [&](const Percorso&) {
    ++passi;
    for (const Vista modello : {"*.txt", "*.dat", "?????_FAT*.txt"})
      EXPECT_THAT(disco.Elenca(cartella.percorso, modello).value(), testing::Each("20250314.txt")) << modello;
    for (const auto& nome : cartella.Nomi()) visti.push_back(nome);
    return 0;
  };
  EXPECT_EQ(disco.Sostituisci(cartella / "20250314.txt", "x"), 0);
  EXPECT_GE(visti.size(), 3U);
  EXPECT_THAT(cartella.Nomi(), ElementsAre("20250314.txt"));
}

TEST_F(Disco_Prova, UnProvvisorioRimastoNonDisturba) {
  cartella.Metti(".velmara-" + std::to_string(getpid()) + "-0~", "resto");
  EXPECT_EQ(disco.Sostituisci(cartella / "a.txt", "x"), 0);
  EXPECT_EQ(cartella.Contenuto("a.txt"), "x");
  EXPECT_EQ(cartella.Nomi().size(), 2U);
}

TEST_F(Disco_Prova, SostituisciDoveNonSiPuo) {
  cartella.Metti("file", "x");
  fs::create_directory(cartella / "giorno.txt");
  fs::create_symlink("giro", cartella / "giro");
  EXPECT_EQ(disco.Sostituisci(cartella / "giorno.txt", "x"), EISDIR);
  EXPECT_EQ(disco.Sostituisci(cartella / "manca/a.txt", "x"), ENOENT);
  EXPECT_EQ(disco.Sostituisci(cartella / "file/a.txt", "x"), ENOTDIR);
  EXPECT_EQ(disco.Sostituisci("/dev/null", "x"), EINVAL);
  EXPECT_NE(disco.Sostituisci("", "x"), 0);
  EXPECT_THAT(cartella.Nomi(), ElementsAre("file", "giorno.txt", "giro"));
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(Disco_Prova, Aggiungi) {
  EXPECT_EQ(disco.Aggiungi(cartella / "a.txt", "uno\r\n"), 0);
  EXPECT_EQ(disco.Aggiungi(cartella / "A.TXT", "due\r\n"), 0);
  EXPECT_EQ(cartella.Contenuto("a.txt"), "uno\r\ndue\r\n");
  Guasta_Al(1);
  EXPECT_EQ(disco.Aggiungi(cartella / "a.txt", "tre"), ENOSPC);
  EXPECT_EQ(cartella.Contenuto("a.txt"), "uno\r\ndue\r\n");
  EXPECT_EQ(disco.Aggiungi(cartella.percorso, "x"), EISDIR);
  EXPECT_EQ(disco.Aggiungi(cartella / "a.txt/b", "x"), ENOTDIR);
  EXPECT_THAT(cartella.Nomi(), ElementsAre("a.txt"));
}

// A large file grows in place, a small one is replaced; what is cut short is taken back.
// It isn't flushed, but what can't be written is told as for every other file.
TEST_F(Disco_Prova, AccodaProvvisorio) {
  const Percorso file = cartella / "zzz.txt";
  EXPECT_EQ(disco.Accoda_Provvisorio(file, "uno\r\n"), 0);
  EXPECT_EQ(disco.Accoda_Provvisorio(cartella / "ZZZ.TXT", "due\r\n"), 0);
  EXPECT_EQ(disco.Leggi(file), "uno\r\ndue\r\n");
  EXPECT_EQ(disco.Accoda_Provvisorio(cartella.percorso, "x"), EISDIR);
  disco.guasto = [](const Percorso&) { return ENOSPC; };
  EXPECT_EQ(disco.Accoda_Provvisorio(file, "tre"), ENOSPC);
  EXPECT_EQ(disco.Leggi(file), "uno\r\ndue\r\n");
}

TEST_F(Disco_Prova, AggiungiAFileGrandiEPiccoli) {
  constexpr std::size_t un_megabyte = std::size_t{1} << 20U;
  const Testo grande(un_megabyte, 'x');
  EXPECT_EQ(disco.Aggiungi(cartella / "a.txt", grande), 0);
  EXPECT_EQ(disco.Aggiungi(cartella / "a.txt", "coda"), 0);
  EXPECT_TRUE(cartella.Contenuto("a.txt") == grande + "coda");
  EXPECT_EQ(disco.Aggiungi(cartella / "b.txt", grande + "coda"), 0);
  EXPECT_TRUE(cartella.Contenuto("b.txt") == grande + "coda");
  Guasta_Al(1);
  EXPECT_EQ(disco.Aggiungi(cartella / "a.txt", "altro"), ENOSPC);
  EXPECT_EQ(disco.Aggiungi(cartella / "manca/a.txt", grande + "coda"), ENOENT);
  EXPECT_EQ(disco.Aggiungi("/dev/full", grande + "coda"), EINVAL);
  EXPECT_TRUE(cartella.Contenuto("a.txt") == grande + "coda");
  EXPECT_THAT(cartella.Nomi(), ElementsAre("a.txt", "b.txt"));
}

// In place: the same file on the disk, so that the sold fish of a trial day can't be read from freed blocks.
TEST_F(Disco_Prova, SovrascriviSulPosto) {
  cartella.Metti("a.dat", Testo(10000, 'x'));
  fs::create_hard_link(cartella / "a.dat", cartella / "altro");
  EXPECT_EQ(disco.Sovrascrivi(cartella / "A.dat", "corto"), 0);
  EXPECT_EQ(cartella.Contenuto("altro"), "corto");
  EXPECT_EQ(disco.Sovrascrivi(cartella / "a.dat", "piu' lungo"), 0);
  EXPECT_EQ(cartella.Contenuto("altro"), "piu' lungo");
  EXPECT_EQ(disco.Sovrascrivi(cartella / "nuovo", "x"), 0);
  EXPECT_EQ(cartella.Contenuto("nuovo"), "x");
  Guasta_Al(1);
  EXPECT_EQ(disco.Sovrascrivi(cartella / "a.dat", "no"), ENOSPC);
  EXPECT_EQ(cartella.Contenuto("a.dat"), "piu' lungo");
  EXPECT_EQ(disco.Sovrascrivi(cartella.percorso, "x"), EISDIR);
}

TEST_F(Disco_Prova, Copia) {
  cartella.Metti("a.txt", "x");
  EXPECT_EQ(disco.Copia(cartella / "A.txt", cartella / "b.dat"), 0);
  EXPECT_EQ(cartella.Contenuto("b.dat"), "x");
  EXPECT_EQ(disco.Copia(cartella / "manca", cartella / "b.dat"), ENOENT);
  EXPECT_EQ(disco.Copia(cartella / "a.txt", cartella / "a.txt"), 0);
  cartella.Metti("a.txt", "y");
  Guasta_Al(3);
  EXPECT_EQ(disco.Copia(cartella / "a.txt", cartella / "b.dat"), ENOSPC);
  EXPECT_EQ(cartella.Contenuto("b.dat"), "x");
  EXPECT_THAT(cartella.Nomi(), ElementsAre("a.txt", "b.dat"));
}

TEST_F(Disco_Prova, Cancella) {
  cartella.Metti("a.txt", "x");
  Guasta_Al(1);
  EXPECT_EQ(disco.Cancella(cartella / "a.txt"), ENOSPC);
  EXPECT_THAT(cartella.Nomi(), ElementsAre("a.txt"));
  EXPECT_EQ(disco.Cancella(cartella / "A.TXT"), 0);
  EXPECT_EQ(disco.Cancella(cartella / "a.txt"), ENOENT);
  EXPECT_EQ(disco.Cancella(cartella.percorso), EISDIR);
}

TEST_F(Disco_Prova, ScriviNuovoNonPrendeIlPostoDiNessuno) {
  EXPECT_EQ(disco.Scrivi_Nuovo(cartella / "a.txt", "x"), 0);
  EXPECT_EQ(disco.Scrivi_Nuovo(cartella / "a.txt", "y"), EEXIST);
  EXPECT_EQ(cartella.Contenuto("a.txt"), "x");
  EXPECT_EQ(disco.Scrivi_Nuovo(cartella / "A.txt", "y"), 0);
  EXPECT_EQ(disco.Scrivi_Nuovo(cartella / "manca/b.txt", "y"), ENOENT);
  std::filesystem::create_directory(cartella / "c");
  EXPECT_EQ(disco.Scrivi_Nuovo(cartella / "c", "y"), EEXIST);
  EXPECT_EQ(disco.Scrivi_Nuovo(cartella / "C/d.txt", "y"), 0);
  Guasta_Al(1);
  EXPECT_EQ(disco.Scrivi_Nuovo(cartella / "e.txt", "y"), ENOSPC);
  EXPECT_THAT(cartella.Nomi(), ElementsAre("A.txt", "a.txt", "c"));
  EXPECT_TRUE(disco.Cambiata(cartella.percorso).has_value());
  EXPECT_FALSE(disco.Cambiata(cartella / "manca").has_value());
}

TEST_F(Disco_Prova, Rinomina) {
  cartella.Metti("a.txt", "x");
  cartella.Metti("B.txt", "y");
  EXPECT_EQ(disco.Rinomina(cartella / "a.txt", cartella / "b.TXT"), EEXIST);
  EXPECT_EQ(disco.Rinomina(cartella / "a.txt", cartella / "a.txt"), EEXIST);
  EXPECT_EQ(disco.Rinomina(cartella / "manca", cartella / "c"), ENOENT);
  Guasta_Al(1);
  EXPECT_EQ(disco.Rinomina(cartella / "a.txt", cartella / "c.txt"), ENOSPC);
  Guasta_Al(2);
  EXPECT_EQ(disco.Rinomina(cartella / "a.txt", cartella / "c.txt"), ENOSPC);
  EXPECT_THAT(cartella.Nomi(), ElementsAre("B.txt", "a.txt"));
  EXPECT_EQ(disco.Rinomina(cartella / "A.txt", cartella / "c.txt"), 0);
  EXPECT_EQ(cartella.Contenuto("c.txt"), "x");
  EXPECT_EQ(disco.Rinomina(cartella / "c.txt", cartella / "C.TXT"), 0);  // only the letter case
  EXPECT_THAT(cartella.Nomi(), ElementsAre("B.txt", "C.TXT"));
  EXPECT_EQ(cartella.Contenuto("B.txt"), "y");
}

TEST_F(Disco_Prova, CreaCartella) {
  EXPECT_EQ(disco.Crea_Cartella(cartella / "2025_fat/20250314"), 0);
  EXPECT_TRUE(fs::is_directory(cartella / "2025_fat/20250314"));
  EXPECT_EQ(disco.Crea_Cartella(cartella / "2025_fat/20250314/"), 0);
  EXPECT_EQ(disco.Crea_Cartella(cartella / "2025_FAT/altra/"), 0);
  EXPECT_TRUE(fs::is_directory(cartella / "2025_fat/altra"));
  EXPECT_THAT(cartella.Nomi(), ElementsAre("2025_fat"));
  Guasta_Al(1);
  EXPECT_EQ(disco.Crea_Cartella(cartella / "2026"), ENOSPC);
  EXPECT_EQ(disco.Crea_Cartella(cartella / "2025_fat"), 0);  // nothing to write
  cartella.Metti("file", "");
  EXPECT_EQ(disco.Crea_Cartella(cartella / "file"), ENOTDIR);
  EXPECT_EQ(disco.Crea_Cartella(cartella / "file/x/y"), ENOTDIR);
  EXPECT_EQ(disco.Crea_Cartella(""), ENOENT);
  EXPECT_THAT(cartella.Nomi(), ElementsAre("2025_fat", "file"));
}

// A folder that leads in a circle is there and can't be read by anybody.
TEST_F(Disco_Prova, UnaCartellaCheNonSiLeggeNonEVuota) {
  fs::create_directory_symlink("giro", cartella / "giro");
  for (const char* nome : {"giro", "giro/2025"}) {
    int errore = 0;
    EXPECT_FALSE(disco.Elenca(cartella / nome, "*", &errore).has_value()) << nome;
    EXPECT_EQ(errore, ELOOP);
    errore = 0;
    EXPECT_FALSE(disco.Elenca_Cartelle(cartella / nome, &errore).has_value()) << nome;
    EXPECT_EQ(errore, ELOOP);
    EXPECT_FALSE(disco.Elenca(cartella / nome, "*").has_value());
  }
  int errore = -1;
  EXPECT_THAT(disco.Elenca(cartella / "manca", "*", &errore).value(), IsEmpty());
  EXPECT_EQ(errore, 0);
}

TEST_F(Disco_Prova, MancaSoloCioCheIlDiscoDiceMancante) {
  cartella.Metti("Lista.txt", "x");
  fs::create_directory(cartella / "cartella.txt");
  fs::create_directory_symlink("giro", cartella / "giro");
  EXPECT_TRUE(disco.Manca_File(cartella / "altra.txt"));
  EXPECT_TRUE(disco.Manca_File(cartella / "manca/altra.txt"));
  EXPECT_TRUE(disco.Manca_File(cartella / "Lista.txt/x"));
  EXPECT_TRUE(disco.Manca_File(cartella / "cartella.txt"));
  EXPECT_FALSE(disco.Manca_File(cartella / "LISTA.TXT"));
  EXPECT_FALSE(disco.Manca_File(cartella / "giro/lista.txt"));
}

TEST_F(Disco_Prova, LeggiTestoSenzaLaMarca) {
  cartella.Metti("a.txt",
                 "\xEF\xBB\xBF"
                 "uno\xEF\xBB\xBF");
  cartella.Metti("b.txt", "uno");
  cartella.Metti("c.txt", "\xEF\xBB\xBF");
  EXPECT_EQ(disco.Leggi_Testo(cartella / "a.txt"), "uno\xEF\xBB\xBF");
  EXPECT_EQ(disco.Leggi_Testo(cartella / "b.txt"), "uno");
  EXPECT_EQ(disco.Leggi_Testo(cartella / "c.txt"), "");
  int errore = 0;
  EXPECT_FALSE(disco.Leggi_Testo(cartella / "d.txt", &errore).has_value());
  EXPECT_EQ(errore, ENOENT);
}

TEST_F(Disco_Prova, ElencaSegueICollegamenti) {
  cartella.Metti("vero.txt", "x");
  fs::create_directory(cartella / "vera");
  fs::create_symlink("vero.txt", cartella / "altro.txt");
  fs::create_symlink("manca", cartella / "rotto.txt");
  fs::create_directory_symlink("vera", cartella / "altra");
  EXPECT_THAT(disco.Elenca(cartella.percorso, "*.txt").value(), ElementsAre("altro.txt", "vero.txt"));
  EXPECT_THAT(disco.Elenca_Cartelle(cartella.percorso).value(), ElementsAre("altra", "vera"));
}

TEST_F(Disco_Prova, ElencaLeCartelle) {
  cartella.Metti("file.txt", "");
  for (const char* nome : {"b", "A", "c/dentro"}) std::filesystem::create_directories(cartella / nome);
  EXPECT_THAT(disco.Elenca_Cartelle(cartella.percorso).value(), ElementsAre("A", "b", "c"));
  EXPECT_THAT(disco.Elenca_Cartelle(cartella / "c").value(), ElementsAre("dentro"));
  EXPECT_THAT(disco.Elenca_Cartelle(cartella / "manca").value(), IsEmpty());
}

TEST_F(Disco_Prova, ElencaPerModello) {
  for (const char* nome : {"20250314.txt", "20250101.TXT", "20250314.dat", "a.txt~", ".velmara-1-0~",
                           "00012_FAT1.txt", "0001_FAT1.txt", "00003_fat.TXT", "è.txt"})
    cartella.Metti(nome, "");
  fs::create_directory(cartella / "cartella.txt");
  EXPECT_THAT(disco.Elenca(cartella.percorso, "*.dat").value(), ElementsAre("20250314.dat"));
  EXPECT_THAT(disco.Elenca(cartella.percorso, "*.txt").value(),
              ElementsAre("00003_fat.TXT", "00012_FAT1.txt", "0001_FAT1.txt", "20250101.TXT", "20250314.txt",
                          "è.txt"));
  EXPECT_THAT(disco.Elenca(cartella.percorso, "?????_FAT*.txt").value(),
              ElementsAre("00003_fat.TXT", "00012_FAT1.txt"));
  EXPECT_THAT(disco.Elenca(cartella.percorso, "?.txt").value(),
              ElementsAre("è.txt"));  // one letter is one character
  EXPECT_THAT(disco.Elenca(cartella.percorso, "*2025*1*").value(),
              ElementsAre("20250101.TXT", "20250314.dat", "20250314.txt"));
  EXPECT_THAT(disco.Elenca(cartella.percorso, "").value(), IsEmpty());
  EXPECT_THAT(disco.Elenca(cartella / "manca", "*").value(), IsEmpty());
  EXPECT_THAT(disco.Elenca(cartella / "è.txt", "*").value(), IsEmpty());
}

// The lock belongs to an opened folder, so a second opening stands for a second program.
TEST(Blocco, UnSoloProgrammaPerCartella) {
  const Cartella_Temporanea cartella, altra;
  Blocco_Cartella primo, secondo;
  EXPECT_TRUE(primo.Prendi(cartella.percorso));
  EXPECT_FALSE(secondo.Prendi(cartella.percorso));
  EXPECT_TRUE(secondo.Prendi(altra.percorso));   // another firm runs beside it
  EXPECT_TRUE(primo.Prendi(cartella.percorso));  // its own lock is no obstacle
  secondo.Lascia();
  primo.Lascia();
  EXPECT_TRUE(secondo.Prendi(cartella.percorso));
  EXPECT_THAT(cartella.Nomi(), IsEmpty());
}

TEST(Blocco, MuoreConIlProgramma) {
  const Cartella_Temporanea cartella;
  const pid_t figlio = fork();
  if (figlio == 0) {
    Blocco_Cartella suo;
    const bool preso = suo.Prendi(cartella.percorso);
    _exit(preso ? 0 : 1);  // as in a crash: nothing is tidied up
  }
  int stato = -1;
  ASSERT_EQ(waitpid(figlio, &stato, 0), figlio);
  EXPECT_EQ(stato, 0);
  Blocco_Cartella mio;
  EXPECT_TRUE(mio.Prendi(cartella.percorso));
}

TEST(Blocco, CioCheNonSiBloccaELibero) {
  Blocco_Cartella blocco;
  EXPECT_TRUE(blocco.Prendi("/cartella/che/manca"));
}

}  // namespace

#include <cerrno>

#include "start/copia_giorno.h"
#include "tests/guasti/chiamate.h"
#include "tests/guasti/salvataggi.h"
#include "tests/guasti/versioni.h"
#include "transfers/volumi.h"

// Each save of each room, with each call to the disk failing in turn: the operator is told, file and table
// are as before, and a later save works.

namespace {

// The calls of the save, and what it leaves when nothing fails.
struct Buon_Esito {
  std::vector<std::string> chiamate;
  Versioni_Intere versioni;
  bool un_solo_file = false;
  int ultima_scrittura = 0;  // the place of the call that put the last file into its place
};

std::size_t Diversi(const Foto& a, const Foto& b) {
  std::size_t quanti = 0;
  for (const auto& [nome, contenuto] : a) {
    const auto altro = b.find(nome);
    quanti += altro == b.end() || altro->second != contenuto ? 1 : 0;
  }
  for (const auto& [nome, contenuto] : b) quanti += a.contains(nome) ? 0 : 1;
  return quanti;
}

// The calls that put a file in its place, and make that last.
constexpr const char* mettono_al_posto[] = {"rename", "renameat2", "unlink", "mkdir", "fsync"};

Buon_Esito Senza_Guasti(const Salvataggio& salvataggio) {
  Buon_Esito esito;
  Scena scena;
  const auto salva = salvataggio.prepara(scena);
  bool fatto = false;
  esito.versioni.Prendi(scena, [&] { fatto = salva(); });
  EXPECT_TRUE(fatto) << testing::PrintToString(scena.macchina.messaggi);
  esito.chiamate = regia().Chiamate();
  esito.un_solo_file = Diversi(esito.versioni.Prima(), esito.versioni.Dopo()) == 1;
  for (std::size_t i = 0; i < esito.chiamate.size(); ++i)
    if (std::ranges::find(mettono_al_posto, esito.chiamate[i]) != std::end(mettono_al_posto))
      esito.ultima_scrittura = static_cast<int>(i) + 1;
  return esito;
}

class Guasti : public testing::TestWithParam<Salvataggio> {};

void Prova(const Salvataggio& salvataggio, const Buon_Esito& esito, int posto, Guasto_Chiamata guasto) {
  const std::string dove = std::to_string(posto) + " " + esito.chiamate[static_cast<std::size_t>(posto - 1)] +
                           " errno " + std::to_string(guasto.errore) + (guasto.a_meta ? " a meta'" : "") +
                           (guasto.per_sempre ? " per sempre" : "");
  const Foto &prima = esito.versioni.Prima(), &dopo = esito.versioni.Dopo();
  Scena scena;
  const auto salva = salvataggio.prepara(scena);
  ASSERT_EQ(scena.Foto(), prima) << dove;
  const Testo tabelle = scena.Tabelle();
  const std::size_t detti = scena.macchina.messaggi.size();
  regia().Guasta(posto, guasto);
  const bool fatto = salva();
  regia().Ferma();
  ASSERT_TRUE(regia().Scattato()) << dove;

  const Foto adesso = scena.Foto();
  if (!salvataggio.si_distrugge) {
    EXPECT_THAT(esito.versioni.Guaste(adesso), testing::IsEmpty()) << dove;
  }
  const bool detto = !fatto || scena.macchina.messaggi.size() > detti;
  if (!detto && !salvataggio.taciuto) {
    EXPECT_EQ(adesso, dopo) << "taciuto, e non salvato: " << dove;
  }
  // What was saved and then can't be read back is told, and stays saved.
  const bool salvato_e_non_riletto = posto > esito.ultima_scrittura && adesso == dopo;
  if (!fatto && !salvato_e_non_riletto) {
    if (esito.un_solo_file && !guasto.per_sempre) {
      EXPECT_EQ(adesso, prima) << dove;
    }
    if (adesso == prima && !salvataggio.cambia_le_righe) {
      EXPECT_EQ(scena.Tabelle(), tabelle) << dove;
    }
  }
  // A name that a dead disk didn't give back is done already.
  if (fatto || (guasto.per_sempre && adesso == dopo)) return;
  EXPECT_TRUE(salva()) << "poi non salva: " << dove << testing::PrintToString(scena.macchina.messaggi);
  if (!guasto.per_sempre) {
    EXPECT_EQ(scena.Foto(), dopo) << "salvato poi: " << dove;
  }
}

TEST_P(Guasti, AdOgniChiamata) {
  const Buon_Esito esito = Senza_Guasti(GetParam());
  ASSERT_GT(Diversi(esito.versioni.Prima(), esito.versioni.Dopo()), 0U) << "non salva nulla";
  for (int posto = 1; posto <= static_cast<int>(esito.chiamate.size()); ++posto) {
    const std::string& chiamata = esito.chiamate[static_cast<std::size_t>(posto - 1)];
    for (const int errore : {ENOSPC, EIO, EACCES}) Prova(GetParam(), esito, posto, {errore});
    Prova(GetParam(), esito, posto, {EIO, false, true});
    if (chiamata == "write") Prova(GetParam(), esito, posto, {ENOSPC, true});
    if (HasFatalFailure()) return;
  }
}

// Lists of tests, and faults, name it.
TEST(Salvataggio, SiStampaColSuoNome) {
  EXPECT_EQ(testing::PrintToString(Salvataggi().front()), Salvataggi().front().nome);
}

INSTANTIATE_TEST_SUITE_P(Salvataggi, Guasti, testing::ValuesIn(Salvataggi()),
                         [](const auto& caso) { return std::string(caso.param.nome); });

// A stick that stores other bytes than it was given, and says that all went well: the copy is read again
// before it takes the day's name, and what stood there stays.
TEST(Copie, UnaChiavettaCheRestituisceAltriByteNonPrendeIlPostoDelGiorno) {
  for (const bool dalla_chiavetta : {false, true})
    for (const bool c_e_gia : {false, true}) {
      Scena scena;
      const Percorso chiavetta = scena.cartella / "chiavetta";
      std::filesystem::create_directories(chiavetta);
      scena.macchina.volumi = {{chiavetta, "E:", "CHIAVETTA"}};
      const char* verso = dalla_chiavetta ? "2025/20250314.txt" : "chiavetta/2025/20250314.txt";
      if (dalla_chiavetta) scena.cartella.Metti("chiavetta/2025/20250314.txt", "0001\tAltra\r\n");
      std::filesystem::remove(scena.cartella / (dalla_chiavetta ? verso : "manca"));
      if (c_e_gia) scena.cartella.Metti(verso, "0001\tDi prima\r\n");
      B_Inizio inizio;
      Carica_Inizio(scena.programma, inizio);
      const Foto prima = scena.Foto();
      regia().Falsa();
      CopiaGiorno(scena.programma, inizio, dalla_chiavetta, [&](ModoCopia, const Percorso&) {
        return std::optional(DriveScelto{"E:[CHIAVETTA]", chiavetta, false});
      });
      regia().Ferma();
      EXPECT_EQ(scena.Foto(), prima);
      ASSERT_EQ(scena.macchina.messaggi.size(), 1U);
      EXPECT_TRUE(Contiene(scena.macchina.messaggi.back(), "durante la copia"))
          << scena.macchina.messaggi.back();
      EXPECT_TRUE(scena.macchina.aperti.empty());
    }
}

TEST(Copie, UnaChiavettaCheRestituisceAltriByteNonPrendeIlFileDelMercato) {
  for (const bool c_e_gia : {false, true}) {
    Scena scena;
    const Percorso chiavetta = scena.cartella / "chiavetta", file = chiavetta / "20250314.txt";
    std::filesystem::create_directories(chiavetta);
    scena.macchina.volumi = {{chiavetta, "E:", "CHIAVETTA"}};
    if (c_e_gia) scena.cartella.Metti("chiavetta/20250314.txt", "di prima\r\n");
    const Foto prima = scena.Foto();
    regia().Falsa();
    const int errore = Scrivi_Sul_Volume(scena.programma, chiavetta, file, "di adesso\r\n");
    regia().Ferma();
    EXPECT_EQ(errore, EIO);
    EXPECT_EQ(scena.Foto(), prima);
  }
}

// A day that lies elsewhere, behind a link, and doesn't answer: whoever reads the year is told, and doesn't
// count a day less.
TEST(Cartelle, UnCollegamentoCheNonRispondeRestaNellElenco) {
  Scena scena;
  scena.cartella.Metti("altrove/giorno.txt", "0001\tMare\r\n");
  std::filesystem::create_directories(scena.cartella / "anno");
  std::filesystem::create_symlink("../altrove/giorno.txt", scena.cartella / "anno/20250102.txt");
  std::filesystem::create_symlink("../altrove/manca.txt", scena.cartella / "anno/20250103.txt");
  const auto elenca = [&] { return scena.programma.disco.Elenca(scena.cartella / "anno", "*.txt").value(); };
  regia().Registra();
  EXPECT_THAT(elenca(), testing::ElementsAre("20250102.txt"));
  const std::vector<std::string> chiamate = regia().Chiamate();
  for (std::size_t posto = 1; posto <= chiamate.size(); ++posto) {
    if (chiamate[posto - 1] != "fstatat") continue;
    regia().Guasta(static_cast<int>(posto), {EIO});
    EXPECT_THAT(elenca(), testing::Contains(Percorso("20250102.txt")));
  }
  regia().Ferma();
  EXPECT_EQ(std::ranges::count(chiamate, "fstatat"), 2) << "both links are asked";
}

// What somebody else has put on the stick may still be in the machine's memory only when the stick is pulled.
TEST(Copie, AncheQuelloCheCEGiaUgualeVaFinoAlDisco) {
  Scena scena;
  scena.cartella.Metti("da.txt", "0001\tMare\r\n");
  scena.cartella.Metti("a.txt", "0001\tMare\r\n");
  regia().Registra();
  const int errore = scena.programma.disco.Copia(scena.cartella / "da.txt", scena.cartella / "a.txt");
  regia().Ferma();
  EXPECT_EQ(errore, 0);
  EXPECT_EQ(std::ranges::count(regia().Chiamate(), "fsync"), 2) << "the file and its folder";
}

}  // namespace

#include <chrono>
#include <fcntl.h>
#include <fstream>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

#include "tests/core/cartella_temporanea.h"
#include "tests/luogo/processi/processo.h"

// Two programs at once, as processes of their own: the program as it is shipped, without a screen, holds a
// folder, and another start of it meets that.

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

const std::string Gia_Attivo =
    "messaggio Velmara_2020.exe  gia' attivo...! (aprire un altro programma da una cartella diversa)";

struct Due : testing::Test {
  Cartella_Temporanea base;
  fs::path ditta = base / "ditta", altra = base / "altra";

  Due() {
    Fai_Ditta(ditta);
    Fai_Ditta(altra);
  }

  static void Fai_Ditta(const fs::path& dove) {
    fs::copy(DITTA_BASE, dove, fs::copy_options::recursive);
    // The folder of the program is the folder of the data, so each firm has a program of its own.
    std::error_code altro_disco;
    fs::create_hard_link(VELMARA_PROGRAMMA, dove / "Velmara_2020", altro_disco);
    if (altro_disco) fs::copy_file(VELMARA_PROGRAMMA, dove / "Velmara_2020");
  }

  static bool Presa(const fs::path& cartella) {
    const int aperta = open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool presa = flock(aperta, LOCK_EX | LOCK_NB) != 0;
    close(aperta);
    return presa;
  }

  // The program as shipped; it has the folder when this is done.
  std::unique_ptr<Processo> Avvia_Vero(const fs::path& dove) const {
    auto vero = std::make_unique<Processo>(
        dove / "Velmara_2020", std::vector<std::string>{},
        Processo::Ambiente{{"QT_QPA_PLATFORM", "offscreen"}, {"XDG_RUNTIME_DIR", base.percorso.string()}});
    constexpr int tentativi = 100;  // twenty seconds
    // Not often: who asks holds the folder himself for a moment, and the program asks only once.
    for (int i = 0; i < tentativi && vero->Vivo() && !Presa(dove); ++i)
      std::this_thread::sleep_for(std::chrono::milliseconds(200));
    EXPECT_TRUE(Presa(dove)) << "the program doesn't hold its folder";
    return vero;
  }

  // What another start in that folder shows, up to "pronto" or "fine".
  static std::vector<std::string> Un_Altro(const fs::path& dove) {
    return Processo(VELMARA_PROVA_PROCESSO, {dove.string()}).Righe_Fino_A("pronto");
  }
};

TEST_F(Due, IlSecondoNellaStessaCartellaERifiutatoEQuelloInUnAltraCorre) {
  const auto primo = Avvia_Vero(ditta);
  EXPECT_THAT(Un_Altro(ditta), ElementsAre(Gia_Attivo, "fine"));
  const auto accanto = Avvia_Vero(altra);
  EXPECT_THAT(Un_Altro(altra), ElementsAre(Gia_Attivo, "fine"));
  EXPECT_TRUE(primo->Vivo());
  EXPECT_TRUE(accanto->Vivo());
}

// The same folder by another name.
TEST_F(Due, UnCollegamentoAllaCartellaNonEUnAltraDitta) {
  fs::create_directory_symlink(ditta, base / "scorciatoia");
  const auto primo = Avvia_Vero(ditta);
  EXPECT_THAT(Un_Altro(base / "scorciatoia"), ElementsAre(Gia_Attivo, "fine"));
}

TEST_F(Due, UnProgrammaUccisoLasciaLiberaLaCartella) {
  Avvia_Vero(ditta)->Uccidi();
  EXPECT_THAT(Un_Altro(ditta), ElementsAre("pronto"));
}

// It has rows in its memory still, and goes on when it is let.
TEST_F(Due, UnProgrammaSospesoTieneLaCartella) {
  const auto sospeso = Avvia_Vero(ditta);
  sospeso->Manda(SIGSTOP);
  EXPECT_THAT(Un_Altro(ditta), ElementsAre(Gia_Attivo, "fine"));
  sospeso->Manda(SIGCONT);
  EXPECT_TRUE(sospeso->Vivo());
  sospeso->Manda(SIGSTOP);
  sospeso->Uccidi();
  EXPECT_THAT(Un_Altro(ditta), ElementsAre("pronto"));
}

// Sibling programs live on when this one is gone.
TEST_F(Due, UnProgrammaAvviatoDalPrimoNonTieneLaCartella) {
  {
    Processo primo(VELMARA_PROVA_PROCESSO, {ditta.string(), "/bin/sleep"});
    EXPECT_THAT(primo.Righe_Fino_A("pronto"), ElementsAre("pronto"));
    EXPECT_TRUE(Presa(ditta));
  }
  EXPECT_FALSE(Presa(ditta));
}

// What came along when the folder was copied while a program ran in it, here or on another machine, or was
// left by one that died: the numbers are those of processes of others, or of none.
TEST_F(Due, FileLasciatiDaUnMortoODaUnAltraMacchinaNonFermano) {
  const std::string vivo = std::to_string(getpid());
  const struct {
    std::string nome, contenuto;
  } resti[] = {{".velmara_scrittura", "\r\n"},
               {".velmara-999999999-0~", "meta' di un"},
               {".velmara-1-0~", "meta' di un"},
               {".velmara-" + vivo + "-0~", "meta' di un"},
               {".velmara-blocco", vivo + " altra-macchina"},
               {"Velmara_2020.lock", "1\naltra-macchina\n"},
               {".#Velmara_2020.ini", "anna@altra-macchina.1"}};
  for (const auto& resto : resti) base.Metti("ditta/" + resto.nome, resto.contenuto);
  EXPECT_THAT(Un_Altro(ditta), ElementsAre("pronto"));
  const auto primo = Avvia_Vero(ditta);
  EXPECT_THAT(Un_Altro(ditta), ElementsAre(Gia_Attivo, "fine"));
  // Copied while it runs, the lock doesn't come along.
  fs::copy(ditta, base / "copia", fs::copy_options::recursive);
  EXPECT_THAT(Un_Altro(base / "copia"), ElementsAre("pronto"));
}

// ---- the machine's place and time

struct Caso_Luogo {
  const char* nome;
  Processo::Ambiente ambiente;
  std::string separatore;
  friend void PrintTo(const Caso_Luogo& caso, std::ostream* dove) { *dove << caso.nome; }
};

// Only what the desk says of numbers counts: Italian machines have the comma, also with an English desktop.
const Caso_Luogo luoghi[] = {
    {"italiano", {{"LANG", "it_IT.UTF-8"}}, ","},
    {"turco", {{"LANG", "tr_TR.UTF-8"}}, ","},
    {"inglese", {{"LANG", "en_US.UTF-8"}}, "."},
    {"nessuno", {}, "."},
    {"C", {{"LANG", "C"}}, "."},
    {"C_in_UTF8", {{"LC_ALL", "C.UTF-8"}, {"LANG", "it_IT.UTF-8"}}, "."},
    {"inglese_coi_numeri_italiani", {{"LANG", "en_US.UTF-8"}, {"LC_NUMERIC", "it_IT.UTF-8"}}, ","},
    {"italiano_coi_numeri_inglesi", {{"LANG", "it_IT.UTF-8"}, {"LC_NUMERIC", "en_US.UTF-8"}}, "."},
    {"tutto_turco", {{"LC_ALL", "tr_TR.UTF-8"}, {"LC_NUMERIC", "C"}, {"LANG", "C"}}, ","},
    {"testi_inglesi", {{"LANG", "it_IT.UTF-8"}, {"LANGUAGE", "en"}, {"LC_MESSAGES", "C"}}, ","},
    {"vecchia_codifica", {{"LANG", "it_IT.ISO-8859-1"}}, ","},
    {"svizzero", {{"LANG", "it_CH.UTF-8"}}, "."},
};

class Luogo : public testing::TestWithParam<Caso_Luogo> {};

std::vector<std::string> Della_Macchina(Processo::Ambiente ambiente) {
  for (const char* nome : {"LC_ALL", "LC_NUMERIC", "LC_MESSAGES", "LANG", "LANGUAGE", "VELMARA_OROLOGIO"})
    ambiente.try_emplace(nome, "");
  return Processo(VELMARA_PROVA_PROCESSO, {"--macchina"}, ambiente).Tutte();
}

TEST_P(Luogo, IlSeparatoreEQuelloDellaMacchina) {
  const auto righe = Della_Macchina(GetParam().ambiente);
  ASSERT_EQ(righe.size(), 2U);
  EXPECT_EQ(righe[0], "separatore " + GetParam().separatore);
}

INSTANTIATE_TEST_SUITE_P(Luoghi, Luogo, testing::ValuesIn(luoghi),
                         [](const auto& caso) { return std::string(caso.param.nome); });

struct Caso_Oggi {
  const char* secondi;  // since 1970, in UTC
  const char* fuso;
  const char* oggi;
};

// The day is that of the place, and seconds since 1970 outgrew 32 bits on 19/01/2038.
TEST(Oggi, LaMacchinaDiceIlSuoGiornoAncheDopoIl2038) {
  const Caso_Oggi casi[] = {
      {"2147483647", "UTC", "20380119"},
      {"2147483648", "UTC", "20380119"},
      {"2147558400", "UTC", "20380120"},
      {"2245658400", "Europe/Rome", "20410228"},
      {"2245658400", "<+14>-14", "20410301"},
      {"2245658400", "<-11>11", "20410227"},
      {"3981312000", "CET-1CEST,M3.5.0,M10.5.0/3", "20960229"},
      {"4102358400", "UTC", "20991231"},
      {"4102444800", "UTC", "21000101"},
      {"4294967296", "UTC", "21060207"},
      {"4102441200", "CET-1", "21000101"},
  };
  for (const Caso_Oggi& caso : casi) {
    const auto righe = Della_Macchina({{"VELMARA_OROLOGIO", caso.secondi}, {"TZ", caso.fuso}});
    ASSERT_EQ(righe.size(), 2U);
    EXPECT_EQ(righe[1], "oggi " + std::string(caso.oggi)) << caso.secondi << " " << caso.fuso;
  }
}

}  // namespace

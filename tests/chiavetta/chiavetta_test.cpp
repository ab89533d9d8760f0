// A stick as the kernel shows it: a small volume that is mounted here, fills up, is write-protected and goes
// away. To be run by tests/chiavetta/volume, which gives it mounts of its own.
#include <gmock/gmock.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include "primanota/esporta.h"
#include "start/copia_giorno.h"
#include "tests/start/cartella_prova.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr int righe_molte = 500;  // more than the small volume holds

// The volumes that are mounted at this moment.
class Macchina_Con_Chiavetta : public Piattaforma_Finta {
 public:
  Percorso posto;
  std::vector<Volume> Volumi() override {
    struct stat suo {
    }, intorno{};
    if (stat(posto.c_str(), &suo) != 0 || stat(posto.parent_path().c_str(), &intorno) != 0) return {};
    if (suo.st_dev == intorno.st_dev) return {};
    return {{posto, "E:", "CHIAVETTA"}};
  }
};

Testo Letto(const Percorso& file) {
  std::ifstream flusso(file, std::ios::binary);
  if (!flusso) return "(manca)";
  return {std::istreambuf_iterator<char>(flusso), {}};
}
void Metti(const Percorso& file, const Testo& contenuto) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << contenuto;
}
std::set<std::string> Nomi_In(const Percorso& cartella) {
  std::set<std::string> nomi;
  for (const auto& voce : std::filesystem::directory_iterator(cartella))
    nomi.insert(voce.path().filename().string());
  return nomi;
}

LedgerRow Riga(int numero) {
  LedgerRow riga;
  riga[CampoRiga::Num] = Pad_Sinistra(std::to_string(numero), 4, '0');
  riga[CampoRiga::Fornitore] = "Laguna Pesca";
  riga[CampoRiga::Cliente] = "Pescheria Rialto";
  riga[CampoRiga::CodCliente] = "00101";
  riga[CampoRiga::Specie] = "Orata";
  riga[CampoRiga::Peso] = "10";
  riga[CampoRiga::Prezzo] = "5";
  return riga;
}

class Chiavetta : public Cartella_Prova {
 protected:
  Chiavetta() : programma(macchina) {
    macchina.posto = posto;
    std::filesystem::create_directory(posto);
    programma.Cartella_Dati = cartella;
    programma.Oggi = macchina.oggi;
    programma.Data_AAAAMMGG = "20250314";
    programma.Data_GGMMAAAA = "14032025";
    programma.File_Giorno = qui;
    programma.Vet_Tabella.righe.clear();
    for (int i = 1; i <= righe_molte; ++i) programma.Vet_Tabella.righe.push_back(Riga(i));
    inizio.Text1.testo = "14";
    inizio.Text3.testo = "2025";
    inizio.Combo1.Riempi({"Gennaio", "Febbraio", "Marzo"});
    inizio.Combo1.scelta = 2;
  }
  void SetUp() override { Monta("size=64k"); }
  ~Chiavetta() override { Togli(); }

  void Monta(const char* opzioni) const {
    ASSERT_EQ(mount("velmara", posto.c_str(), "tmpfs", 0, opzioni), 0) << errno;
  }
  void Proteggi() const {
    ASSERT_EQ(mount("velmara", posto.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr), 0) << errno;
  }
  void Togli() const { umount2(posto.c_str(), MNT_DETACH); }

  Scelta_Drive Scelta(bool la_toglie = false) {
    return [this, la_toglie](ModoCopia, const Percorso&) {
      if (la_toglie) Togli();
      return std::optional<DriveScelto>({"E:[CHIAVETTA]", posto, false});
    };
  }
  void Copia(bool dalla_chiavetta, bool la_toglie = false) {
    CopiaGiorno(programma, inizio, dalla_chiavetta, Scelta(la_toglie));
  }

  Macchina_Con_Chiavetta macchina;
  Programma programma;
  B_Inizio inizio;
  Percorso posto = base / "chiavetta";
  Percorso qui = cartella / "2025/20250314.txt", la = posto / "2025/20250314.txt",
           esportato = posto / "20250314.txt";
};

TEST_F(Chiavetta, Porta_il_giorno_e_lo_riporta) {
  Metti(qui, "righe del giorno\r\n");
  macchina.risposte = {true};
  Copia(false);
  EXPECT_EQ(Letto(la), "righe del giorno\r\n");
  EXPECT_THAT(Nomi_In(posto / "2025"), ElementsAre("20250314.txt"));
  std::filesystem::remove(qui);
  macchina.risposte = {true};
  Copia(true);
  EXPECT_EQ(Letto(qui), "righe del giorno\r\n");
  EXPECT_THAT(macchina.messaggi,
              ElementsAre(HasSubstr("è stato copiato in \n"_t), HasSubstr("è stato copiato in \n"_t)));
}

TEST_F(Chiavetta, Piena_tiene_il_giorno_che_aveva) {
  Metti(qui, Testo(200000, 'n'));
  Metti(la, "vecchio");
  macchina.risposte = {true, true};
  Copia(false);
  EXPECT_THAT(macchina.messaggi, ElementsAre(HasSubstr("il disco è pieno"_t)));
  EXPECT_EQ(Letto(la), "vecchio");
  EXPECT_THAT(Nomi_In(posto / "2025"), ElementsAre("20250314.txt")) << "nothing half-written stays behind";
  EXPECT_THAT(macchina.aperti, IsEmpty());
}

TEST_F(Chiavetta, Piena_tiene_il_file_del_mercato_che_aveva) {
  Togli();
  Monta("size=8k");
  Metti(esportato, "vecchio");
  EXPECT_FALSE(EsportaPrimaNota(programma, false, Scelta()));
  EXPECT_THAT(macchina.messaggi, ElementsAre(HasSubstr("il disco è pieno"_t)));
  EXPECT_EQ(Letto(esportato), "vecchio");
  EXPECT_THAT(Nomi_In(posto), ElementsAre("20250314.txt"));
}

TEST_F(Chiavetta, Protetta_si_dice_e_si_legge) {
  Metti(qui, "di qui");
  Metti(la, "di la");
  Proteggi();
  macchina.risposte = {true, true};
  Copia(false);
  EXPECT_FALSE(EsportaPrimaNota(programma, false, Scelta()));
  EXPECT_THAT(macchina.messaggi, ElementsAre(HasSubstr("il disco è protetto da scrittura"_t),
                                             HasSubstr("il disco è protetto da scrittura"_t)));
  EXPECT_EQ(Letto(la), "di la");
  macchina.risposte = {true, true};
  Copia(true);
  EXPECT_EQ(Letto(qui), "di la");
}

// What is left at its place is a folder of the machine's own disk.
TEST_F(Chiavetta, Tolta_mentre_la_si_sceglie) {
  Metti(qui, "di qui");
  Metti(la, "di la");
  macchina.risposte = {true};
  Copia(false, true);
  EXPECT_THAT(macchina.messaggi, ElementsAre(HasSubstr("il disco non c'è più"_t)));
  EXPECT_THAT(Nomi_In(posto), IsEmpty());
  macchina.risposte = {true};
  Copia(true);
  EXPECT_THAT(macchina.messaggi.back(), HasSubstr("non è stato trovato"_t));
  EXPECT_EQ(Letto(qui), "di qui");
}

TEST_F(Chiavetta, Tolta_mentre_si_scrive) {
  Metti(qui, "di qui");
  programma.disco.guasto = [this](const Percorso& file) {
    if (Testo_Percorso(file).find("chiavetta") != Testo::npos) Togli();
    return 0;
  };
  macchina.risposte = {true};
  Copia(false);
  ASSERT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_THAT(macchina.messaggi[0], HasSubstr("non c'è più"_t));
  Monta("size=64k");
  EXPECT_FALSE(EsportaPrimaNota(programma, false, Scelta()));
  ASSERT_EQ(macchina.messaggi.size(), 2U);
  EXPECT_THAT(macchina.messaggi[1], HasSubstr("non c'è più"_t));
  EXPECT_EQ(Letto(qui), "di qui");
}

// The day and the market's file go to the volume that is mounted at CHIAVETTA_MONTATA; who runs this test
// then looks at the device itself, which is what is left when the stick is pulled the moment the message
// shows.
TEST(Chiavetta_Tolta_Subito, Tiene_i_file) {
  const char* montata = getenv("CHIAVETTA_MONTATA");
  const char* ditta = getenv("CHIAVETTA_DITTA");
  ASSERT_TRUE(montata != nullptr && ditta != nullptr);
  Macchina_Con_Chiavetta macchina;
  macchina.posto = montata;
  Programma programma(macchina);
  programma.Cartella_Dati = ditta;
  programma.Data_AAAAMMGG = "20250314";
  programma.Data_GGMMAAAA = "14032025";
  programma.File_Giorno = programma.Cartella_Dati / "2025/20250314.txt";
  programma.Vet_Tabella.righe = {Riga(1), Riga(2)};
  B_Inizio inizio;
  inizio.Text1.testo = "14";
  inizio.Text3.testo = "2025";
  inizio.Combo1.Riempi({"Gennaio", "Febbraio", "Marzo"});
  inizio.Combo1.scelta = 2;
  const Scelta_Drive scelta = [&](ModoCopia, const Percorso&) {
    return std::optional<DriveScelto>({"E:[CHIAVETTA]", macchina.posto, false});
  };
  macchina.risposte = {true};
  CopiaGiorno(programma, inizio, false, scelta);
  EXPECT_TRUE(EsportaPrimaNota(programma, false, scelta));
  EXPECT_THAT(macchina.messaggi,
              ElementsAre(HasSubstr("è stato copiato in \n"_t), HasSubstr("Salvati 2 su 2")));
}

}  // namespace

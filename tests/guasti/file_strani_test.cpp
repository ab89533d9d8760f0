#include <cerrno>
#include <chrono>
#include <sys/stat.h>

#include "lists/ordina.h"
#include "lists/privacy.h"
#include "start/avvio.h"
#include "tests/guasti/scena.h"

// Files of a size or a kind that no firm has: nothing stops the program, nothing is cut without a word.

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::size_t un_megabyte = std::size_t{1} << 20U;

class File_Strani : public testing::Test {
 protected:
  Scena scena;
  Programma& programma = scena.programma;
  const Percorso& giorno = scena.programma.File_Giorno;

  void Metti(const std::string& nome, const Testo& contenuto) const { scena.cartella.Metti(nome, contenuto); }
  Testo Contenuto(const std::string& nome) const { return scena.cartella.Contenuto(nome); }
  bool Salva() const {
    bool errore = true;
    Salva_Giorno(programma, errore);
    return !errore;
  }
};

// ---- sizes

TEST_F(File_Strani, GiornoConUnaRigaDiUnMegabyte) {
  const Testo lunga(un_megabyte, 'x');
  Metti("2025/20250314.txt", "0001\t" + lunga + "\tcliente\r\n0002\tb\r\n");
  ASSERT_TRUE(Carica_Giorno(programma));
  EXPECT_EQ(programma.Vet_Tabella.Righe(), 2);
  EXPECT_TRUE(programma.Vet_Tabella(CampoRiga::Fornitore, 1) == lunga);
  ASSERT_TRUE(Salva());
  const Tabella salvata = programma.Vet_Tabella;
  ASSERT_TRUE(Carica_Giorno(programma));
  EXPECT_TRUE(programma.Vet_Tabella.righe == salvata.righe);
}

TEST_F(File_Strani, ListeConUnaRigaDiUnMegabyte) {
  const Testo lunga(un_megabyte, 'x');
  Metti("_Client32.txt", "00001\t" + lunga + "\tzz\tvia\r\n");
  Metti("_2020_Proveni.txt", lunga + "\r\nIT Italia\r\n");
  Metti("_2020_Zona.txt", lunga + "\tcodice\r\n");
  Leggi_Liste(programma);
  EXPECT_TRUE(programma.Vet_Clienti.at(0)[cliente::RagioneSociale1] == lunga);
  EXPECT_EQ(programma.Vet_Provenienze.size(), 2U);
  EXPECT_TRUE(Salva_Clienti(programma));
  EXPECT_TRUE(Salva_Zone(programma));
  Leggi_Liste(programma);
  EXPECT_TRUE(programma.Vet_Clienti.at(0)[cliente::RagioneSociale1] == lunga);
  EXPECT_TRUE(programma.Vet_Zone.at(0)[zona::Etichetta] == lunga);
  EXPECT_THAT(scena.macchina.messaggi, IsEmpty());
}

TEST_F(File_Strani, ImpostazioniENumeriConUnaRigaDiUnMegabyte) {
  const Testo lunga(un_megabyte, 'x');
  Metti("Velmara_2020.ini",
        "[VELMARA]\r\nignota=" + lunga + "\r\nnposteggio=7\r\nTitoloBolla=" + lunga + "\r\n");
  Leggi_Preferenze(programma);
  EXPECT_EQ(programma.preferenze.Numero_Posteggio, "7");
  EXPECT_EQ(programma.preferenze.TitoloBolla.size(), 128U);
  ASSERT_TRUE(Scrivi_Chiave(programma, "fonte", "Mia"));
  const Testo scritte = Contenuto("Velmara_2020.ini");
  EXPECT_NE(scritte.find("ignota=" + lunga + "\r\n"), Testo::npos);
  EXPECT_NE(scritte.find("TitoloBolla=" + lunga + "\r\n"), Testo::npos)
      << "cut in the program, not in the file";
  Metti("_2020_ncv.txt", lunga + "\r\n12\r\n" + Testo(un_megabyte, '9') + "\r\n3\r\n4\r\n");
  Leggi_Ultimi_Numeri(programma);
  EXPECT_EQ(programma.Ultimo_CV, 12);
  EXPECT_EQ(programma.Ultimo_DDT, std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(programma.Ultima_Fattura, 4);
}

TEST_F(File_Strani, TrentaduemilasettecentosessantasetteRigheEUnaInPiu) {
  constexpr int massimo = 32767;
  Tabella tabella;
  tabella.righe.assign(massimo, Scena::Riga(1));
  Metti("2025/20250314.txt", Scrivi_Tabella(tabella));
  ASSERT_TRUE(Carica_Giorno(programma));
  EXPECT_EQ(programma.Vet_Tabella.Righe(), massimo);
  programma.Vet_Tabella.Riga(massimo)[CampoRiga::Commento] = "ultima";
  ASSERT_TRUE(Salva());
  ASSERT_TRUE(Carica_Giorno(programma));
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Commento, massimo), "ultima");

  tabella.righe.push_back(Scena::Riga(2));
  const Testo troppe = Scrivi_Tabella(tabella);
  Metti("2025/20250314.txt", troppe);
  EXPECT_FALSE(Carica_Giorno(programma));
  EXPECT_THAT(scena.macchina.messaggi, ElementsAre(HasSubstr("32768 righe")));
  EXPECT_EQ(programma.Vet_Tabella.Righe(), massimo) << "the day that was open stays";
  EXPECT_TRUE(Contenuto("2025/20250314.txt") == troppe);
}

TEST_F(File_Strani, CentomilaClienti) {
  constexpr int quanti = 100000;
  programma.Vet_Clienti.clear();
  for (int i = quanti; i > 0; --i)
    programma.Vet_Clienti.push_back({Pad_Sinistra(std::to_string(i), 6, '0'), "Cliente " + std::to_string(i),
                                     "zz", "", "", "", "-", "-", ""});
  ASSERT_TRUE(Salva_Clienti(programma));
  Leggi_Clienti(programma);
  ASSERT_EQ(programma.Vet_Clienti.size(), static_cast<std::size_t>(quanti));
  EXPECT_EQ(Cerca_Cliente_Per_Codice(programma, "000001"), quanti - 1);
  ASSERT_TRUE(Ordina_Clienti(programma, 1));
  Leggi_Clienti(programma);
  EXPECT_EQ(programma.Vet_Clienti.front()[cliente::Codice], "000001");
  EXPECT_EQ(programma.Vet_Clienti.back()[cliente::Codice], "100000");
}

// A gigabyte isn't read: the day is refused, in a moment.
TEST_F(File_Strani, UnFileEnormeNonSiApre) {
  fs::resize_file(giorno, (std::uintmax_t{1} << 30U) + 1);  // no room on the disk is taken
  EXPECT_FALSE(Carica_Giorno(programma));
  EXPECT_THAT(scena.macchina.messaggi, ElementsAre(HasSubstr("Errore " + std::to_string(EFBIG))));
  EXPECT_EQ(fs::file_size(giorno), (std::uintmax_t{1} << 30U) + 1);
}

// ---- bytes

TEST_F(File_Strani, ByteNulliEFineRigaSoli) {
  const Testo nulli("0001\tMare\0Blu\t\0\r0002\tb\n\0\0003", 24);
  Metti("2025/20250314.txt", nulli);
  ASSERT_TRUE(Carica_Giorno(programma));
  ASSERT_EQ(programma.Vet_Tabella.Righe(), 3);
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Fornitore, 1), Testo("Mare\0Blu", 8));
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Fornitore, 2), "b");
  EXPECT_EQ(Contenuto("2025/20250314.txt"), nulli) << "loading doesn't touch the file";
  const auto lette = programma.Vet_Tabella.righe;
  ASSERT_TRUE(Salva());
  ASSERT_TRUE(Carica_Giorno(programma));
  EXPECT_EQ(programma.Vet_Tabella.righe, lette);

  Metti("_Client32.txt", Testo("00001\tUno\r00002\tDue\n\0\r\n", 23));
  Leggi_Clienti(programma);
  ASSERT_EQ(programma.Vet_Clienti.size(), 3U);
  EXPECT_EQ(programma.Vet_Clienti[1][cliente::RagioneSociale1], "Due");
}

// An editor puts the mark in front of what it saves; it isn't part of the first field.
TEST_F(File_Strani, MarcaUtf8InTesta) {
  const Testo marca = "\xEF\xBB\xBF";
  Metti("2025/20250314.txt", marca + "0001\tMare Blu\r\n");
  ASSERT_TRUE(Carica_Giorno(programma));
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Num, 1), "0001");
  Metti("2025/20250314.txt", marca);
  ASSERT_TRUE(Carica_Giorno(programma));
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Fornitore, 1), Riga_Vuota)
      << "nothing but a mark is an empty day";

  Metti("_Client32.txt", marca + "00001\tUno\r\n");
  Metti("_2020_Fornitori.txt", marca + "0001\tUno\r\n");
  Metti("_Esclusi.txt", marca + "00001\r\n");
  Leggi_Liste(programma);
  Leggi_Esclusi(programma);
  EXPECT_EQ(programma.Vet_Clienti.at(0)[cliente::Codice], "00001");
  EXPECT_EQ(programma.Vet_Fornitori.at(0)[fornitore::Codice], "0001");
  EXPECT_THAT(programma.Vet_Esclusi, ElementsAre("00001"));

  Metti("Velmara_2020.ini", marca + "[VELMARA]\r\nnposteggio=8\r\n");
  Leggi_Preferenze(programma);
  EXPECT_EQ(programma.preferenze.Numero_Posteggio, "8");
  Metti("privacy.txt", marca + "Gentile cliente\r\n");
  const auto lettera = CaricaPrivacy(programma);
  ASSERT_TRUE(lettera);
  EXPECT_EQ(lettera->front(), "Gentile cliente");
}

// ---- what isn't a file

TEST_F(File_Strani, GiornoCheEUnaCartella) {
  fs::remove(giorno);
  fs::create_directory(giorno);
  EXPECT_FALSE(Carica_Giorno(programma));
  EXPECT_FALSE(Salva());
  EXPECT_EQ(scena.macchina.messaggi.size(), 2U);
  EXPECT_TRUE(fs::is_directory(giorno));
}

// A pipe without a writer would keep the program waiting for ever.
TEST_F(File_Strani, GiornoCheEUnTubo) {
  fs::remove(giorno);
  ASSERT_EQ(mkfifo(giorno.c_str(), 0600), 0);
  EXPECT_FALSE(Carica_Giorno(programma));
  EXPECT_FALSE(Salva());
  EXPECT_EQ(scena.macchina.messaggi.size(), 2U);
  EXPECT_TRUE(fs::is_fifo(giorno));
}

TEST_F(File_Strani, GiornoCheEUnDispositivo) {
  fs::remove(giorno);
  fs::create_symlink("/dev/zero", giorno);  // endless
  EXPECT_FALSE(Carica_Giorno(programma));
  EXPECT_FALSE(Salva());
  EXPECT_EQ(fs::read_symlink(giorno), "/dev/zero");
}

// A firm may keep its days elsewhere: what the link leads to is saved, and the link stays.
TEST_F(File_Strani, GiornoCheEUnCollegamento) {
  fs::rename(giorno, scena.cartella / "altrove.txt");
  fs::create_symlink(scena.cartella / "altrove.txt", giorno);
  ASSERT_TRUE(Carica_Giorno(programma));
  programma.Vet_Tabella.righe.resize(1);
  ASSERT_TRUE(Salva());
  EXPECT_TRUE(fs::is_symlink(giorno));
  EXPECT_EQ(Contenuto("altrove.txt"), Scrivi_Tabella(programma.Vet_Tabella));

  fs::remove(giorno);
  fs::create_symlink(giorno.filename(), giorno);  // leads to itself
  EXPECT_FALSE(Carica_Giorno(programma));
  EXPECT_FALSE(Salva());
  EXPECT_TRUE(fs::is_symlink(giorno));
}

// Start and opening with a pipe in the place of every file in turn: told where something is lost, and no
// waiting.
TEST_F(File_Strani, TubiAlPostoDeiFile) {
  std::vector<std::string> nomi;
  for (const auto& [nome, contenuto] : scena.Foto())
    if (nome.find('/') == std::string::npos) nomi.push_back(nome);
  ASSERT_GT(nomi.size(), 15U);
  for (const std::string& nome : nomi) {
    Scena altra;
    fs::remove(altra.cartella / nome);
    ASSERT_EQ(mkfifo((altra.cartella / nome).c_str(), 0600), 0);
    Programma nuovo(altra.macchina);
    Blocco_Cartella blocco;
    if (Avvia(nuovo, altra.cartella.percorso, blocco, [] { return std::nullopt; }) == EsitoAvvio::Pronto)
      Leggi_Liste(nuovo);
    EXPECT_TRUE(fs::is_fifo(altra.cartella / nome)) << nome;
  }
}

// ---- a disk that comes and goes

// What couldn't be read once must not be replaced by what the program has in its stead, not even when the
// disk has come back.
TEST_F(File_Strani, ListaNonLettaNonSiRiscrive) {
  const Testo buoni = Contenuto("_Client32.txt");
  fs::rename(scena.cartella / "_Client32.txt", scena.cartella / "via");
  {
    std::ofstream(scena.cartella / "_Client32.txt");
    fs::resize_file(scena.cartella / "_Client32.txt", (std::uintmax_t{1} << 30U) + 1);
    Leggi_Clienti(programma);
    EXPECT_THAT(programma.Vet_Clienti, IsEmpty());
  }
  fs::rename(scena.cartella / "via", scena.cartella / "_Client32.txt");
  EXPECT_FALSE(Salva_Clienti(programma));
  EXPECT_EQ(scena.macchina.messaggi.size(), 2U) << "told when read, and when not written";
  EXPECT_EQ(Contenuto("_Client32.txt"), buoni);
  Leggi_Clienti(programma);
  EXPECT_TRUE(Salva_Clienti(programma));
  EXPECT_EQ(Contenuto("_Client32.txt"), buoni);
}

// The firm's species are made of the reference list when they are missing: not of one that can't be read.
TEST_F(File_Strani, DaUnElencoDiRiferimentoNonLettoNonNasconoSpecie) {
  fs::remove(scena.cartella / Testo(nomi_file::Specie));
  fs::resize_file(scena.cartella / Testo(nomi_file::Pelmoro), (std::uintmax_t{1} << 30U) + 1);
  programma.Vet_Pelmoro.clear();
  Leggi_Specie(programma);
  EXPECT_FALSE(fs::exists(scena.cartella / Testo(nomi_file::Specie)));
  EXPECT_EQ(programma.Vet_Specie.size(), 1U) << "as where both lists are missing";
}

TEST_F(File_Strani, ImpostazioniNonLetteNonSiRiscrivono) {
  const Testo buone = Contenuto("Velmara_2020.ini");
  fs::rename(programma.File_Ini, scena.cartella / "via");
  fs::create_directory(programma.File_Ini);
  Leggi_Preferenze(programma);
  EXPECT_THAT(scena.macchina.messaggi, ElementsAre(HasSubstr("impostazioni non si possono leggere")));
  fs::remove(programma.File_Ini);
  fs::rename(scena.cartella / "via", programma.File_Ini);
  EXPECT_FALSE(Scrivi_Preferenze(programma));
  EXPECT_FALSE(Scrivi_Chiave(programma, "fonte", "Mia"));
  EXPECT_EQ(Contenuto("Velmara_2020.ini"), buone);
  Leggi_Preferenze(programma);
  EXPECT_TRUE(Scrivi_Chiave(programma, "fonte", "Mia"));
}

// Documents without the firm's name would go out unnoticed.
TEST_F(File_Strani, IntestazioneNonLettaSiDice) {
  fs::resize_file(scena.cartella / "_2020_RAGIONE.txt", (std::uintmax_t{1} << 30U) + 1);
  Programma nuovo(scena.macchina);
  Blocco_Cartella blocco;
  EXPECT_EQ(Avvia(nuovo, scena.cartella.percorso, blocco, [] { return std::nullopt; }), EsitoAvvio::Pronto);
  EXPECT_THAT(scena.macchina.messaggi, ElementsAre(HasSubstr("L'intestazione della ditta non si")));
}

// ---- what a crash leaves behind

TEST_F(File_Strani, IRestiDiUnProgrammaMortoSpariscono) {
  const std::string vivo = std::to_string(getpid());
  Metti(".velmara-999999999-0~", "di un morto");
  Metti("2025/.velmara-999999999-3~", "di un morto");
  Metti(".velmara-" + vivo + "-7~", "di un vivo");
  Metti(".velmara-appunti~", "d'altri");
  Programma nuovo(scena.macchina);
  Blocco_Cartella blocco;
  EXPECT_EQ(Avvia(nuovo, scena.cartella.percorso, blocco, [] { return std::nullopt; }), EsitoAvvio::Pronto);
  EXPECT_EQ(Contenuto(".velmara-999999999-0~"), "(manca)");
  EXPECT_EQ(Contenuto("2025/.velmara-999999999-3~"), "(manca)");
  EXPECT_EQ(Contenuto(".velmara-" + vivo + "-7~"), "di un vivo");
  EXPECT_EQ(Contenuto(".velmara-appunti~"), "d'altri");
}

}  // namespace

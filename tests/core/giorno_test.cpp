#include "core/giorno.h"

#include <cerrno>
#include <gmock/gmock.h>

#include "tests/core/cartella_temporanea.h"
#include "tests/piattaforma_finta.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

Testo Riga_Di_File(const std::vector<Testo>& campi) {
  Testo riga;
  for (std::size_t i = 0; i < Num_Campi; ++i) {
    if (i > 0) riga += TAB;
    if (i < campi.size()) riga += campi[i];
  }
  return riga + "\r\n";
}

const Testo orata = Riga_Di_File({"0001", "Mare Blu", "Laguna Pesca", "00123", "Orata", "FAO n.37", "12,50",
                                  "9,80", "10", "3", "", "", "-"});

bool E_Segnaposto(const Tabella& tabella) {
  return tabella.righe == std::vector<LedgerRow>{Riga_Segnaposto()};
}

class Giorno : public testing::Test {
 protected:
  Cartella_Temporanea cartella;
  Piattaforma_Finta macchina;
  Programma programma{macchina};

  Giorno() {
    programma.Cartella_Dati = cartella.percorso;
    programma.Anno_Lavoro = "2025";
    programma.Cartella_Anno = cartella / "2025";
    programma.Data_AAAAMMGG = "20250314";
    programma.Data_Giorno = "14/03/2025";
    fs::create_directory(programma.Cartella_Anno);
    Scegli_File_Giorno(programma);
  }
  void Guasto(int errore) {
    programma.disco.guasto = [errore](const Percorso&) { return errore; };
  }
  Testo Errore_File(int errore, Vista che_cosa, const Percorso& percorso) const {
    return "Errore " + std::to_string(errore) + " durante " + Testo(che_cosa) + "\n" +
           Testo_Percorso(percorso) + "\n" + Testo_Errore(errore);
  }
};

TEST(Tabella_Giorno, UnaRigaConISuoiCampi) {
  const Tabella tabella = Leggi_Tabella(orata, ',');
  ASSERT_EQ(tabella.Righe(), 1);
  EXPECT_EQ(tabella(CampoRiga::Num, 1), "0001");
  EXPECT_EQ(tabella(CampoRiga::Specie, 1), "Orata");
  EXPECT_EQ(tabella(CampoRiga::Peso, 1), "12,50");
  EXPECT_EQ(tabella(CampoRiga::Colli, 1), "3");
  EXPECT_EQ(tabella(CampoRiga::DDT_CV, 1), "-");
  EXPECT_EQ(tabella(CampoRiga::Allergeni, 1), "");
  EXPECT_EQ(Scrivi_Tabella(tabella), orata);
}

TEST(Tabella_Giorno, SenzaByteIlSegnaposto) {
  EXPECT_TRUE(E_Segnaposto(Leggi_Tabella("", ',')));
  EXPECT_EQ(Scrivi_Tabella(Leggi_Tabella("", ',')), Riga_Di_File({"0001", "Modificare questa riga..."}));
}

TEST(Tabella_Giorno, OgniFineRigaEOgniRigaVuota) {
  const struct {
    Vista contenuto;
    int righe;
  } casi[] = {{"a", 1},    {"a\r\n", 1},          {"a\r\nb", 2},    {"a\nb\n", 2}, {"a\rb\r", 2},
              {"\r\n", 1}, {"a\r\n\r\nb\r\n", 3}, {"a\r\n\r\n", 2}, {"\n\n", 2},   {"\t\t\n\r", 2}};
  for (const auto& caso : casi)
    EXPECT_EQ(Leggi_Tabella(caso.contenuto, ',').Righe(), caso.righe) << caso.contenuto;
}

// A blank line counts as a row and stays one: rows are known by their place.
TEST(Tabella_Giorno, RigaVuotaInMezzoRestaSalvata) {
  const Testo contenuto = orata + Riga_Di_File({}) + orata;
  const Tabella tabella = Leggi_Tabella(orata + "\r\n" + orata, ',');
  ASSERT_EQ(tabella.Righe(), 3);
  EXPECT_EQ(tabella.Riga(2), LedgerRow());
  EXPECT_EQ(Scrivi_Tabella(tabella), contenuto);
  EXPECT_EQ(Scrivi_Tabella(Leggi_Tabella(contenuto, ',')), contenuto);
}

TEST(Tabella_Giorno, GiornoVecchioConVentiCampi) {
  Testo riga;
  for (int i = 1; i <= 20; ++i) riga += (i > 1 ? "\tc" : "c") + std::to_string(i);
  const Tabella tabella = Leggi_Tabella(riga + "\r\n", ',');
  EXPECT_EQ(tabella(CampoRiga::DDT, 1), "c20");
  EXPECT_EQ(tabella(CampoRiga::FAT, 1), "");
  EXPECT_EQ(tabella(CampoRiga::Allergeni, 1), "");
  EXPECT_EQ(Scrivi_Tabella(tabella), riga + Testo(15, TAB) + "\r\n");
}

TEST(Tabella_Giorno, SoloLUltimoCampoTieneGliSpazi) {
  const Tabella corta = Leggi_Tabella(" 1 \t  Mare Blu  \t cliente \r\n", ',');
  EXPECT_EQ(corta(CampoRiga::Num, 1), "1");
  EXPECT_EQ(corta(CampoRiga::Fornitore, 1), "Mare Blu");
  EXPECT_EQ(corta(CampoRiga::Cliente, 1), " cliente ");
  const Testo piena = Testo(34, TAB) + " x ";
  EXPECT_EQ(Leggi_Tabella(piena + "\r\n", ',')(CampoRiga::Allergeni, 1), " x ");
  EXPECT_EQ(Leggi_Tabella(piena + "\tin piu'\taltro\r\nb", ',')(CampoRiga::Allergeni, 1), "x");
  EXPECT_EQ(Leggi_Tabella(piena + "\tin piu'\taltro\r\nb", ',')(CampoRiga::Num, 2), "b");
}

// Weight, price and commission go to the machine's separator, the other numbers keep what they held.
TEST(Tabella_Giorno, SeparatoreDellaltraMacchina) {
  LedgerRow scritta;
  for (const CampoRiga campo : {CampoRiga::Peso, CampoRiga::Prezzo, CampoRiga::Provvigione, CampoRiga::SAnt,
                                CampoRiga::Iva, CampoRiga::Commento})
    scritta[campo] = "1.2.3";
  Tabella tabella;
  tabella.righe = {scritta};
  const Tabella letta = Leggi_Tabella(Scrivi_Tabella(tabella), ',');
  for (const CampoRiga campo : {CampoRiga::Peso, CampoRiga::Prezzo, CampoRiga::Provvigione})
    EXPECT_EQ(letta(campo, 1), "1,2.3");
  for (const CampoRiga campo : {CampoRiga::SAnt, CampoRiga::Iva, CampoRiga::Commento})
    EXPECT_EQ(letta(campo, 1), "1.2.3");
  EXPECT_EQ(Leggi_Tabella(orata, '.')(CampoRiga::Peso, 1), "12.50");
  EXPECT_EQ(Leggi_Tabella(orata, '.')(CampoRiga::Prezzo, 1), "9.80");
}

// Any row that the program can hold comes back the same, byte for byte, twice over.
TEST(Tabella_Giorno, SalvaCaricaSalvaStessiByte) {
  Tabella tabella;
  tabella.righe.clear();
  for (int inizio = 0; inizio < 256; inizio += 5) {
    LedgerRow& riga = tabella.righe.emplace_back();
    for (std::size_t i = 0; i < riga.campi.size(); ++i) {
      Testo campo;
      for (int k = 0; k <= static_cast<int>(i); ++k) campo += static_cast<char>((inizio + 7 * k) % 256);
      riga.campi[i] = Testo(Pulito(Senza_Separatori(campo)));
    }
  }
  for (const char separatore : {',', '.'}) {
    const Tabella letta = Leggi_Tabella(Scrivi_Tabella(tabella), separatore);
    const Testo contenuto = Scrivi_Tabella(letta);
    EXPECT_EQ(letta.Righe(), tabella.Righe());
    EXPECT_EQ(Scrivi_Tabella(Leggi_Tabella(contenuto, separatore)), contenuto);
    for (int r = 1; r <= letta.Righe(); ++r)
      for (const CampoRiga campo :
           {CampoRiga::Num, CampoRiga::Lotti, CampoRiga::Commento, CampoRiga::Allergeni})
        ASSERT_EQ(letta(campo, r), tabella(campo, r)) << r;
  }
}

TEST(Tabella_Giorno, QualunqueByteDaUnaTabella) {
  unsigned seme = 12345;
  for (int prova = 0; prova < 200; ++prova) {
    Testo byte;
    for (int i = 0; i < 300; ++i) {
      seme = seme * 1103515245U + 12345U;
      const unsigned sorte = seme >> 16U;
      byte += sorte % 4 == 0 ? "\t\r\n "[sorte / 4 % 4] : static_cast<char>(sorte % 256);
    }
    const Tabella tabella = Leggi_Tabella(byte, ',');
    EXPECT_EQ(tabella.righe.size(), Righe(byte).size());
    const Testo scritta = Scrivi_Tabella(tabella);
    EXPECT_EQ(Leggi_Tabella(scritta, ',').righe.size(), tabella.righe.size());
  }
}

TEST(Tabella_Giorno, StessiCampiDelLettoreDiRighe) {
  const Testo contenuto = "a \t b\t\t c \r\n" + Testo(40, TAB) + "x\n\r\n" + orata + "  \t1.5";
  const Tabella tabella = Leggi_Tabella(contenuto, ',');
  const std::vector<Vista> righe = Righe(contenuto);
  ASSERT_EQ(tabella.righe.size(), righe.size());
  for (std::size_t r = 0; r < righe.size(); ++r) {
    Vista riga = righe[r];
    for (const Testo& campo : tabella.righe[r].campi) EXPECT_EQ(campo, Prossimo_Campo(riga)) << r;
  }
}

TEST_F(Giorno, FileDelGiorno) {
  EXPECT_EQ(programma.File_Giorno, cartella / "2025/20250314.txt");
  EXPECT_FALSE(fs::exists(programma.File_Giorno));
}

TEST_F(Giorno, CopiaDatDelGiorno) {
  cartella.Metti("2025/20250314.txt", orata);
  programma.Modo_Dat = true;
  Scegli_File_Giorno(programma);
  EXPECT_EQ(programma.File_Giorno, cartella / "2025/20250314.dat");
  EXPECT_EQ(cartella.Contenuto("2025/20250314.dat"), orata);

  ASSERT_TRUE(Carica_Giorno(programma));
  programma.Vet_Tabella(CampoRiga::Specie, 1) = "Branzino";
  bool errore = true;
  Salva_Giorno(programma, errore);
  EXPECT_FALSE(errore);
  EXPECT_EQ(cartella.Contenuto("2025/20250314.txt"), orata);  // the day itself stays untouched

  Scegli_File_Giorno(programma);  // a copy that is there is gone on with
  ASSERT_TRUE(Carica_Giorno(programma));
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Specie, 1), "Branzino");
}

// Its supplier isn't the marker of a day without rows, so this row counts.
TEST_F(Giorno, CopiaDatSenzaGiorno) {
  programma.Modo_Dat = true;
  Scegli_File_Giorno(programma);
  EXPECT_EQ(cartella.Contenuto("2025/20250314.dat"), "0001\tFornitore\t\r\n");
  ASSERT_TRUE(Carica_Giorno(programma));
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Fornitore, 1), "Fornitore");
  EXPECT_EQ(programma.Vet_Tabella.Righe(), 1);
}

TEST_F(Giorno, CopiaDatCheNonSiScrive) {
  programma.Modo_Dat = true;
  Guasto(ENOSPC);
  Scegli_File_Giorno(programma);
  EXPECT_THAT(macchina.messaggi,
              ElementsAre(Errore_File(ENOSPC, "la copia", cartella / "2025/20250314.dat")));
  EXPECT_FALSE(fs::exists(cartella / "2025/20250314.dat"));
}

TEST_F(Giorno, SenzaFileUnGiornoNuovo) {
  programma.Tabella_Modificata = true;
  programma.Colonna_Ordine = 5;
  EXPECT_TRUE(Carica_Giorno(programma));
  EXPECT_TRUE(E_Segnaposto(programma.Vet_Tabella));
  EXPECT_FALSE(programma.Tabella_Modificata);
  EXPECT_EQ(programma.Colonna_Ordine, 1);
  EXPECT_FALSE(fs::exists(programma.File_Giorno));
  cartella.Metti("2025/20250314.txt", "");
  EXPECT_TRUE(Carica_Giorno(programma));
  EXPECT_TRUE(E_Segnaposto(programma.Vet_Tabella));
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Giorno, CaricareNonToccaIlFile) {
  programma.Separatore_Decimale = '.';
  programma.Separatore_Altro = ',';
  cartella.Metti("2025/20250314.txt", orata);
  EXPECT_TRUE(Carica_Giorno(programma));
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Peso, 1), "12.50");
  EXPECT_EQ(cartella.Contenuto("2025/20250314.txt"), orata);
  bool errore = true;
  Salva_Giorno(programma, errore);
  EXPECT_EQ(cartella.Contenuto("2025/20250314.txt"),
            Sostituisci_Tutti(Sostituisci_Tutti(orata, "12,50", "12.50"), "9,80", "9.80"));
}

// A day that is there and can't be read must not open as a new one: the next save would replace it.
TEST_F(Giorno, FileCheNonSiLegge) {
  programma.Vet_Tabella.righe = {LedgerRow(), LedgerRow()};
  programma.Tabella_Modificata = true;
  fs::create_directory(programma.File_Giorno);
  EXPECT_FALSE(Carica_Giorno(programma));
  EXPECT_EQ(programma.Vet_Tabella.Righe(), 2);
  EXPECT_TRUE(programma.Tabella_Modificata);
  EXPECT_EQ(macchina.messaggi.back(), Errore_File(EISDIR, "la lettura", programma.File_Giorno));
}

// A year whose folder can't be: its days count as not there yet, so that the operator can go on keying.
TEST_F(Giorno, AnnoCheNonEUnaCartella) {
  cartella.Metti("2026", "un file al posto della cartella");
  programma.File_Giorno = cartella / "2026/20260101.txt";
  EXPECT_TRUE(Carica_Giorno(programma));
  EXPECT_TRUE(E_Segnaposto(programma.Vet_Tabella));
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  bool errore = false;
  Salva_Giorno(programma, errore);
  EXPECT_TRUE(errore);
  EXPECT_EQ(cartella.Contenuto("2026"), "un file al posto della cartella");
}

TEST_F(Giorno, NumeriNonScrittiSonoDaScrivere) {
  Guasto(ENOSPC);
  EXPECT_FALSE(Salva_Ultimi_Numeri(programma));
  EXPECT_TRUE(programma.Numeri_Da_Salvare);
  programma.disco.guasto = nullptr;
  EXPECT_TRUE(Salva_Ultimi_Numeri(programma));
  EXPECT_FALSE(programma.Numeri_Da_Salvare);
}

TEST_F(Giorno, RigheFinoALimite) {
  Testo contenuto;
  for (int i = 0; i < 32767; ++i) contenuto += "x\r\n";
  cartella.Metti("2025/20250314.txt", contenuto);
  EXPECT_TRUE(Carica_Giorno(programma));
  EXPECT_EQ(programma.Vet_Tabella.Righe(), 32767);
  cartella.Metti("2025/20250314.txt", contenuto + "x\r\n");
  programma.Vet_Tabella.righe.resize(3);
  EXPECT_FALSE(Carica_Giorno(programma));
  EXPECT_EQ(programma.Vet_Tabella.Righe(), 3);
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("Il giorno ha 32768 righe, se ne possono aprire al massimo 32767\n" +
                          Testo_Percorso(programma.File_Giorno)));
}

TEST_F(Giorno, IlLimiteContaOgniFineRiga) {
  Testo ritorni(32767, '\r'), miste;
  for (int i = 0; i < 16383; ++i) miste += "x\r\n\n";
  for (const Testo& giusto : {ritorni, miste + "x", miste + "x\r\n"}) {
    cartella.Metti("2025/20250314.txt", giusto);
    EXPECT_TRUE(Carica_Giorno(programma));
    EXPECT_EQ(programma.Vet_Tabella.Righe(), 32767);
  }
  for (const Testo& troppo : {ritorni + "x", miste + "x\r\nx", miste + "\n\r"}) {
    cartella.Metti("2025/20250314.txt", troppo);
    macchina.messaggi.clear();
    EXPECT_FALSE(Carica_Giorno(programma));
    EXPECT_TRUE(Contiene(macchina.messaggi.at(0), "32768 righe"));
  }
}

// Each line would become a row of more than a thousand bytes.
TEST_F(Giorno, MilioniDiFineRigaNonEsaurisconoLaMemoria) {
  cartella.Metti("2025/20250314.txt", Testo(40'000'000, '\n'));
  EXPECT_FALSE(Carica_Giorno(programma));
  EXPECT_THAT(macchina.messaggi, ElementsAre(testing::StartsWith("Il giorno ha 40000000 righe")));
}

TEST_F(Giorno, SalvaScriveOgniRiga) {
  programma.Vet_Tabella = Leggi_Tabella(orata + orata, ',');
  programma.Tabella_Modificata = true;
  programma.Righe_Non_Salvate = 3;
  bool errore = true;  // whatever comes in has no effect
  Salva_Giorno(programma, errore);
  EXPECT_FALSE(errore);
  EXPECT_FALSE(programma.Tabella_Modificata);
  EXPECT_EQ(programma.Righe_Non_Salvate, 3);  // only the save command and the autosave count anew
  EXPECT_EQ(cartella.Contenuto("2025/20250314.txt"), orata + orata);
  EXPECT_THAT(cartella.Nomi(), ElementsAre("2025"));
}

TEST_F(Giorno, SalvataggioFallito) {
  cartella.Metti("2025/20250314.txt", orata);
  programma.Tabella_Modificata = true;
  bool errore = false;
  Guasto(ENOSPC);
  Salva_Giorno(programma, errore);
  EXPECT_TRUE(errore);
  EXPECT_TRUE(programma.Tabella_Modificata);
  EXPECT_EQ(cartella.Contenuto("2025/20250314.txt"), orata);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Errore 28 durante il salvataggio"));

  programma.disco.guasto = nullptr;
  fs::remove_all(programma.Cartella_Anno);
  Salva_Giorno(programma, errore);
  EXPECT_TRUE(errore);
  EXPECT_EQ(macchina.messaggi.back(), "Errore 2 durante il salvataggio");

  fs::create_directory(programma.Cartella_Anno);
  Salva_Giorno(programma, errore);  // the operator tries again
  EXPECT_FALSE(errore);
  EXPECT_FALSE(programma.Tabella_Modificata);
}

TEST_F(Giorno, NumeriDiUnaDittaNuova) {
  programma.Ultimo_CV = 9;
  Leggi_Ultimi_Numeri(programma);
  EXPECT_EQ(programma.Ultimo_CV, 0);
  EXPECT_EQ(cartella.Contenuto("_2020_ncv.txt"),
            "Ultimo numero Conto Vendita, Nota Accredito, Fattura\r\n0\r\n0\r\n0\r\n0\r\n");
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Giorno, NumeriAndataERitorno) {
  programma.Ultimo_CV = 12;
  programma.Ultimo_DDT = 345;
  programma.Ultima_NA = 6;
  programma.Ultima_Fattura = 78901;
  EXPECT_TRUE(Salva_Ultimi_Numeri(programma));
  EXPECT_EQ(cartella.Contenuto("_2020_ncv.txt"),
            "Ultimo numero Conto Vendita,DDT, Nota Accredito, Fattura\r\n12\r\n345\r\n6\r\n78901\r\n");
  programma.Ultimo_CV = programma.Ultimo_DDT = programma.Ultima_NA = programma.Ultima_Fattura = -1;
  Leggi_Ultimi_Numeri(programma);
  EXPECT_EQ(programma.Ultimo_CV, 12);
  EXPECT_EQ(programma.Ultimo_DDT, 345);
  EXPECT_EQ(programma.Ultima_NA, 6);
  EXPECT_EQ(programma.Ultima_Fattura, 78901);
}

TEST_F(Giorno, NumeriLettiPerPosto) {
  const struct {
    const char* contenuto;
    std::int32_t cv, ddt, na, fattura;
  } casi[] = {{"", 0, 0, 0, 0},
              {"7\n8\n", 8, 0, 0, 0},  // the first line is never read
              {"x\r\n 12,9 \r\n3.7\r\n-4\r\nabc\r\n99\r\n", 12, 3, -4, 0},
              {"x\r\n\r\n2\r\n", 0, 2, 0, 0},
              {"x\n99999999999\n1\n2\n3", 2147483647, 1, 2, 3}};
  for (const auto& caso : casi) {
    cartella.Metti("_2020_ncv.txt", caso.contenuto);
    Leggi_Ultimi_Numeri(programma);
    EXPECT_EQ(programma.Ultimo_CV, caso.cv) << caso.contenuto;
    EXPECT_EQ(programma.Ultimo_DDT, caso.ddt) << caso.contenuto;
    EXPECT_EQ(programma.Ultima_NA, caso.na) << caso.contenuto;
    EXPECT_EQ(programma.Ultima_Fattura, caso.fattura) << caso.contenuto;
    EXPECT_EQ(cartella.Contenuto("_2020_ncv.txt"), caso.contenuto);
  }
}

TEST_F(Giorno, NumeriCheNonSiScrivonoONonSiLeggono) {
  Guasto(EROFS);
  Leggi_Ultimi_Numeri(programma);
  EXPECT_FALSE(Salva_Ultimi_Numeri(programma));
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("Errore 30 durante il salvataggio", "Errore 30 durante il salvataggio"));
  EXPECT_THAT(cartella.Nomi(), ElementsAre("2025"));
  fs::create_directory(cartella / "_2020_ncv.txt");
  Leggi_Ultimi_Numeri(programma);
  EXPECT_EQ(macchina.messaggi.back(), Errore_File(EISDIR, "la lettura", cartella / "_2020_ncv.txt"));
}

// A number file that couldn't be read once (a flaky disk) and is there again must not be replaced by zeros:
// the firm would issue the same numbers twice.
TEST_F(Giorno, NumeriNonLettiNonSiRiscrivono) {
  fs::create_directory(cartella / "_2020_ncv.txt");
  Leggi_Ultimi_Numeri(programma);
  fs::remove(cartella / "_2020_ncv.txt");
  const Testo buoni = "Ultimo numero\r\n12\r\n34\r\n5\r\n678\r\n";
  cartella.Metti("_2020_ncv.txt", buoni);
  programma.Ultima_Fattura = 1;
  EXPECT_FALSE(Salva_Ultimi_Numeri(programma));
  EXPECT_THAT(macchina.messaggi.back(),
              testing::StartsWith("Gli ultimi numeri emessi non si sono potuti leggere"));
  EXPECT_EQ(cartella.Contenuto("_2020_ncv.txt"), buoni);
  Leggi_Ultimi_Numeri(programma);
  EXPECT_EQ(programma.Ultima_Fattura, 678);
  EXPECT_TRUE(Salva_Ultimi_Numeri(programma));
}

TEST_F(Giorno, CartellaDelleFatture) {
  EXPECT_EQ(Cartella_Fatture(programma), cartella / "2025_fat/20250314");
  EXPECT_TRUE(fs::is_directory(cartella / "2025_fat/20250314"));
  EXPECT_EQ(Cartella_Fatture(programma), cartella / "2025_fat/20250314");
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Giorno, CreaCartellaDiceLErrore) {
  EXPECT_TRUE(Crea_Cartella(programma, cartella / "a/b"));
  cartella.Metti("file", "");
  EXPECT_FALSE(Crea_Cartella(programma, cartella / "file/b"));
  EXPECT_THAT(macchina.messaggi,
              ElementsAre(Errore_File(ENOTDIR, "la creazione della cartella", cartella / "file/b")));
}

TEST_F(Giorno, CancellaFileDat) {
  cartella.Metti("2025/20250314.dat", "segreto");
  cartella.Metti("2025/20250315.DAT", "segreto");
  cartella.Metti("2025/20250314.txt", orata);
  cartella.Metti("2503.dat", "della ditta");
  fs::create_hard_link(cartella / "2025/20250314.dat", cartella / "traccia");
  programma.Modo_Dat = true;
  macchina.risposte = {true};
  Cancella_File_Dat(programma, "2025");
  EXPECT_THAT(macchina.domande, ElementsAre("Ok per cancellare tutti i .DAT del 2025"));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Tutto OK..."));
  EXPECT_FALSE(programma.Modo_Dat);
  EXPECT_EQ(cartella.Contenuto("traccia"), "file temporaneo da cancellare\r\n");  // the old bytes are gone
  EXPECT_THAT(programma.disco.Elenca(cartella / "2025", "*").value(), ElementsAre("20250314.txt"));
  EXPECT_EQ(cartella.Contenuto("2503.dat"), "della ditta");
}

TEST_F(Giorno, CancellaFileDatAnnullato) {
  cartella.Metti("2025/20250314.dat", "segreto");
  programma.Modo_Dat = true;
  macchina.risposte = {false};
  Cancella_File_Dat(programma, "2025");
  EXPECT_EQ(cartella.Contenuto("2025/20250314.dat"), "segreto");
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_FALSE(programma.Modo_Dat);
}

TEST_F(Giorno, CancellaFileDatSenzaFileOSenzaAnno) {
  cartella.Metti("2503.dat", "della ditta");
  for (const Vista anno : {"2025", "1999", "", "  ", "..", "."}) {
    macchina.risposte = {true};
    macchina.messaggi.clear();
    Cancella_File_Dat(programma, anno);
    EXPECT_THAT(macchina.messaggi, ElementsAre("Tutto OK...")) << anno;
  }
  EXPECT_EQ(cartella.Contenuto("2503.dat"), "della ditta");
}

// Of a folder that can't be read nobody knows what it holds.
TEST_F(Giorno, CancellaFileDatInUnaCartellaCheNonSiLegge) {
  fs::create_directory_symlink("giro", cartella / "giro");
  programma.Cartella_Dati = cartella / "giro";
  macchina.risposte = {true};
  Cancella_File_Dat(programma, "2024");
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_File(ELOOP, "la cancellazione", cartella / "giro/2024")));
}

// Deleted, but the old bytes may still lie on the disk.
TEST_F(Giorno, CancellaFileDatCheNonSiSovrascriveSiDice) {
  cartella.Metti("2025/20250314.dat", "segreto");
  const Percorso dat = cartella / "2025/20250314.dat";
  programma.disco.guasto = [dat, volte = 0](const Percorso& percorso) mutable {
    return percorso == dat && ++volte == 1 ? EIO : 0;
  };
  macchina.risposte = {true};
  Cancella_File_Dat(programma, "2025");
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_File(EIO, "la cancellazione", dat)));
  EXPECT_FALSE(fs::exists(dat));
}

TEST_F(Giorno, CancellaFileDatCheResta) {
  cartella.Metti("2025/20250314.dat", "segreto");
  cartella.Metti("2025/20250315.dat", "segreto");
  const Percorso ostinato = cartella / "2025/20250314.dat";
  programma.disco.guasto = [ostinato](const Percorso& percorso) { return percorso == ostinato ? EACCES : 0; };
  macchina.risposte = {true};
  Cancella_File_Dat(programma, "2025");
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_File(EACCES, "la cancellazione", ostinato)));
  EXPECT_THAT(programma.disco.Elenca(cartella / "2025", "*").value(), ElementsAre("20250314.dat"));
}

}  // namespace

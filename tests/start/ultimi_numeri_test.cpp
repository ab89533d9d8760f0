#include <cerrno>
#include <gmock/gmock.h>

#include "core/riga.h"
#include "start/inizio.h"
#include "tests/start/cartella_prova.h"

namespace {

class Ultimi_Numeri : public Cartella_Prova {
 protected:
  Ultimi_Numeri() : programma(macchina) { programma.Cartella_Dati = cartella; }

  Testo Trova() { return Trova_Ultimi_Numeri(programma, "2025"); }
  void Numeri(int cv, int ddt, int na, int fattura) {
    programma.Ultimo_CV = cv;
    programma.Ultimo_DDT = ddt;
    programma.Ultima_NA = na;
    programma.Ultima_Fattura = fattura;
  }
  // A line with `tab` TABs, NCV in field 11 and the last two fields as given.
  static Testo Riga(int tab, const Testo& ncv, const Testo& penultimo, const Testo& ultimo) {
    Testo riga;
    for (int campo = 1; campo <= tab + 1; ++campo) {
      if (campo > 1) riga += TAB;
      if (campo == 11) riga += ncv;
      if (campo == tab) riga += penultimo;
      if (campo == tab + 1) riga += ultimo;
    }
    return riga + "\r\n";
  }
  static Testo Riga_Oggi(const Testo& ncv) { return Riga(Num_Campi - 1, ncv, "", ""); }

  Programma programma;
};

TEST_F(Ultimi_Numeri, Senza_cartella_o_senza_giorni_e_zero) {
  Numeri(57, 1, 2, 3);
  EXPECT_EQ(Trova(), "0");  // the opening then stores 0: a new year begins its accounts at 1
  std::filesystem::create_directory(cartella / "2025");
  EXPECT_EQ(Trova(), "0");
  Scrivi("2025/20250101.dat", Riga_Oggi("99"));
  EXPECT_EQ(Trova(), "0");
  EXPECT_EQ(programma.Ultima_Fattura, 3);
}

// 0 would let the year's accounts begin at 1 a second time.
TEST_F(Ultimi_Numeri, Una_cartella_che_non_si_legge_lascia_i_numeri) {
  Numeri(57, 1, 2, 3);
  std::filesystem::create_directory_symlink("2025", cartella / "2025");
  EXPECT_EQ(Trova(), "57");
}

TEST_F(Ultimi_Numeri, Il_conto_piu_alto_dell_ultimo_giorno) {
  struct Caso {
    std::vector<Testo> ncv;
    int ultimo;
    Testo atteso;
  };
  const Caso casi[] = {
      {{"12", "40", "39"}, 10, "40"},  // above the stored one
      {{"12", "40", "39"}, 40, "40"},  // equal
      {{"12"}, 50, "50"},              // below
      {{"-", "", "abc"}, 7, "7"},      // no numbers
      {{"9998"}, 7, "9998"},           //
      {{"9999", "40"}, 10, "10"},      // one row without an account hides the real ones
      {{"12000"}, 10, "10"},           //
      {{"9", "10"}, 1, "10"},          // as numbers, not as texts
      {{"0041"}, 1, "41"},
  };
  for (const Caso& caso : casi) {
    Testo giorno;
    for (const Testo& ncv : caso.ncv) giorno += Riga_Oggi(ncv);
    Scrivi("2025/20250310.txt", giorno);
    Numeri(caso.ultimo, 0, 0, 0);
    EXPECT_EQ(Trova(), caso.atteso) << caso.ncv[0] << " / " << caso.ultimo;
    EXPECT_EQ(programma.Ultimo_CV, caso.ultimo) << "stored only when a day is opened";
  }
}

TEST_F(Ultimi_Numeri, Conta_l_ultimo_giorno_in_ordine_di_nome) {
  Scrivi("2025/20250310.txt", Riga_Oggi("90"));
  Scrivi("2025/20250311.TXT", Riga_Oggi("30"));
  Scrivi("2025/20250312.dat", Riga_Oggi("95"));
  EXPECT_EQ(Trova(), "30");
}

TEST_F(Ultimi_Numeri, Un_ultimo_giorno_vuoto_si_cancella_e_conta_quello_prima) {
  Scrivi("2025/20250310.txt", Riga_Oggi("30"));
  Scrivi("2025/20250311.txt", "");
  Scrivi("2025/20250312.txt", "");
  EXPECT_EQ(Trova(), "30");
  EXPECT_TRUE(Manca("2025/20250311.txt"));
  EXPECT_TRUE(Manca("2025/20250312.txt"));
  Scrivi("2025/20250310.txt", "");
  EXPECT_EQ(Trova(), "0");
  EXPECT_TRUE(Manca("2025/20250310.txt"));
}

TEST_F(Ultimi_Numeri, Un_giorno_vuoto_che_non_si_cancella_non_ferma_nulla) {
  Scrivi("2025/20250310.txt", Riga_Oggi("30"));
  Scrivi("2025/20250311.txt", "");
  programma.disco.guasto = [](const Percorso&) { return EACCES; };
  EXPECT_EQ(Trova(), "30");
}

TEST_F(Ultimi_Numeri, Ventuno_campi_danno_fattura_nota_e_documento) {
  Scrivi("2025/20250310.txt",
         Riga(20, "5", "31", "120") + Riga(20, "6", "33", "118") + Riga(20, "4", "32", "121/004"));
  Numeri(1, 1, 1, 1);
  EXPECT_EQ(Trova(), "6");
  EXPECT_EQ(programma.Ultima_Fattura, 121);
  EXPECT_EQ(programma.Ultimo_DDT, 33);
  EXPECT_EQ(programma.Ultima_NA, 1);
}

TEST_F(Ultimi_Numeri, I_numeri_piu_alti_nel_file_restano) {
  Scrivi("2025/20250310.txt", Riga(20, "5", "31", "120"));
  Numeri(50, 51, 52, 530);
  EXPECT_EQ(Trova(), "50");
  EXPECT_EQ(programma.Ultimo_DDT, 51);
  EXPECT_EQ(programma.Ultima_NA, 52);
  EXPECT_EQ(programma.Ultima_Fattura, 530);
}

// The firms' number files were always raised so; a later day's invoices go on from it.
TEST_F(Ultimi_Numeri, La_nota_piu_alta_va_nel_numero_di_fattura) {
  Scrivi("2025/20250310.txt", Riga(20, "5", "31", "120") + Riga(20, "5", "31", "NA007") +
                                  Riga(20, "5", "31", "na9") + Riga(20, "5", "31", "NA"));
  Numeri(1, 1, 3, 100);
  Trova();
  EXPECT_EQ(programma.Ultima_Fattura, 9);
  EXPECT_EQ(programma.Ultima_NA, 3);

  Numeri(1, 1, 9, 100);
  Trova();
  EXPECT_EQ(programma.Ultima_Fattura, 120) << "a credit note already counted changes nothing";
}

TEST_F(Ultimi_Numeri, Venti_campi_danno_il_documento) {
  Scrivi("2025/20250310.txt", Riga(19, "5", "31", "77") + Riga(19, "8", "31", "78"));
  Numeri(1, 1, 1, 1);
  EXPECT_EQ(Trova(), "8");
  EXPECT_EQ(programma.Ultimo_DDT, 78);
  EXPECT_EQ(programma.Ultima_Fattura, 1);
}

TEST_F(Ultimi_Numeri, La_prima_riga_dice_la_generazione) {
  // Every present day file, and a first line of another length, tells only the account.
  for (const int tab : {34, 18, 21}) {
    Scrivi("2025/20250310.txt", Riga(tab, "5", "31", "120") + Riga(20, "6", "31", "120"));
    Numeri(1, 1, 1, 1);
    EXPECT_EQ(Trova(), "6") << tab;
    EXPECT_EQ(programma.Ultimo_DDT, 1) << tab;
    EXPECT_EQ(programma.Ultima_Fattura, 1) << tab;
  }
}

TEST_F(Ultimi_Numeri, Righe_corte_e_bianche_non_disturbano) {
  Scrivi("2025/20250310.txt", Riga_Oggi("5") + "\r\nsolo testo\r\n0001\tMare\r\n" + Riga_Oggi("6"));
  EXPECT_EQ(Trova(), "6");
}

}  // namespace

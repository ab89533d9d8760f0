#include "stats/scansione.h"

#include <cstdio>
#include <map>

#include "bench/anno.h"
#include "core/numeri.h"
#include "tests/stats/periodo_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Scansioni : Periodo_Di_Prova {
  std::vector<Testo> Nomi() const {
    std::vector<Testo> nomi;
    for (const Percorso& nome : File_Dell_Anno(programma).value_or(std::vector<Percorso>()))
      nomi.push_back(Testo_Percorso(nome));
    return nomi;
  }

  // The totals of a day file of these bytes: "supplier|species|kg|amount|rows".
  std::vector<Testo> Leggi(const Testo& contenuto, Scopo_Scansione scopo = {.per_specie = true}) {
    Metti_File("20250310.txt", contenuto);
    Scansione scansione(programma, std::move(scopo));
    EXPECT_TRUE(scansione.Leggi_Giorno(cartella / "2025" / "20250310.txt"));
    EXPECT_EQ(scansione.Chiudi(), 0);
    mancanze = Mancanze(scansione);
    std::vector<Testo> righe;
    for (const Totale& totale : scansione.Prendi_Totali())
      righe.push_back(totale.Fornitore + "|" + totale.Specie + "|" + totale.Testo_Kg(',') + "|" +
                      totale.Testo_Importo(',') + "|" + std::to_string(totale.righe));
    return righe;
  }
  Testo mancanze;
};

// A row up to the price, as an old or cut day file has it.
Testo Corta(const Testo& fornitore, const Testo& specie, const Testo& peso, const Testo& prezzo) {
  return "0001\t" + fornitore + "\tBar Sport\t00001\t" + specie + "\tA0837\t" + peso + "\t" + prezzo;
}

TEST_F(Scansioni, IFileDellAnnoSonoQuelliDeiGiorni) {
  for (const char* nome : {"20250311.txt", "20250102.txt", "20250310.dat", "2025note.txt", "20251301.txt",
                           "20250100.txt", "20240310.txt", "20250312.TXT", "202503111.txt", "2025031.txt"})
    Metti_File(nome, "");
  EXPECT_THAT(Nomi(), ElementsAre("20250102.txt", "20250311.txt", "20250312.TXT"));
  EXPECT_EQ(Giorno_Del_File("20250312.TXT"), "20250312");
}

TEST_F(Scansioni, UnAnnoSenzaCartellaNonHaFile) { EXPECT_THAT(Nomi(), IsEmpty()); }

TEST(FormaDelleDate, OttoCifreConMeseEGiorno) {
  struct Caso {
    const char* testo;
    bool giusta;
  };
  constexpr Caso casi[] = {{"20250314", true},  {"20250231", true},   {"20251231", true},
                           {"20251301", false}, {"20250100", false},  {"20250132", false},
                           {"2025031", false},  {"202503140", false}, {"", false},
                           {"14/03/25", false}, {"2025 314", false},  {"2025-3-4", false},
                           {"20250014", false}, {"-2025031", false},  {"abcdefgh", false}};
  for (const auto& [testo, giusta] : casi) EXPECT_EQ(In_Forma_AAAAMMGG(testo), giusta) << testo;
}

TEST_F(Scansioni, ConsolidaSenzaBadareAlleMaiuscole) {
  const Testo giorno = Corta("Mare Blu", "Orata", "12,50", "9,80") + "\r\n" +
                       Corta("MARE BLU", "ORATA", "1", "10") + "\r\n" +
                       Corta("Mare Blu", "Branzino", "2", "5");
  EXPECT_THAT(Leggi(giorno), ElementsAre("Mare Blu|Orata|13,5|132,5|2", "Mare Blu|Branzino|2|10|1"));
  EXPECT_THAT(mancanze, "");
}

// One row's weight stands in lists and saved balances as it was keyed.
TEST_F(Scansioni, IlPesoDiUnaRigaSolaRestaComeScritto) {
  EXPECT_THAT(Leggi(Corta("Mare Blu", "Orata", "12.50", "9,80")),
              ElementsAre("Mare Blu|Orata|12,50|122,5|1"));
}

TEST_F(Scansioni, LineeDiOgniGenere) {
  const Testo a = Corta("A", "x", "1", "2"), b = Corta("B", "x", "3", "4"), c = Corta("C", "x", "5", "6");
  for (const Testo& fine : {Testo("\r\n"), Testo("\n"), Testo("\r")})
    EXPECT_THAT(Leggi(a + fine + fine + b + fine + c), ElementsAre("A|x|1|2|1", "B|x|3|12|1", "C|x|5|30|1"));
  EXPECT_THAT(Leggi(a + "\r" + b + "\n" + c + "\r\n"), ElementsAre("A|x|1|2|1", "B|x|3|12|1", "C|x|5|30|1"));
}

TEST_F(Scansioni, UnFileTroncatoDaCioCheSiLegge) {
  const Testo intera = Corta("Mare Blu", "Orata", "12,50", "9,80");
  EXPECT_THAT(Leggi(intera + "\r\n" + intera.substr(0, intera.size() - 5)),
              ElementsAre("Mare Blu|Orata|25|122,5|2"));  // cut behind the weight
  EXPECT_EQ(mancanze, "righe senza peso o prezzo leggibile: 1");
  EXPECT_THAT(Leggi(intera + "\r\n0002\tMare"), ElementsAre("Mare Blu|Orata|12,50|122,5|1", "Mare|||0|1"));
  EXPECT_THAT(Leggi(intera + "\r\n0002"), ElementsAre("Mare Blu|Orata|12,50|122,5|1"));
}

TEST_F(Scansioni, NumeriCheNonSonoNumeriNonContano) {
  const Testo giorno = Corta("A", "x", "abc", "9,80") + "\n" + Corta("A", "x", "2", "abc") + "\n" +
                       Corta("A", "x", "", "5") + "\n" + Corta("A", "x", "0", "5") + "\n" +
                       Corta("A", "x", "1", "5") + "\n" + Corta("A", "x", "1", "-2") + "\n";
  EXPECT_THAT(Leggi(giorno), ElementsAre("A|x|4|3|6"));
  EXPECT_EQ(mancanze, "righe senza peso o prezzo leggibile: 3");
}

TEST_F(Scansioni, IlSegnapostoNonSiContaNeppureNelPrimoSbarco) {
  const Testo giorno = Scrivi_Tabella(programma.Vet_Tabella);
  EXPECT_THAT(Leggi(giorno), IsEmpty());
  EXPECT_THAT(Leggi(giorno, {.per_specie = true, .primo_sbarco = true}), IsEmpty());
}

TEST_F(Scansioni, IlPrimoSbarcoPrendeIlPostoDelFornitore) {
  Tabella tabella;
  tabella.righe = Righe_Di({{"Mare Blu", "Orata", "1", "2", "Bar", "Chioggia"},
                            {"Laguna", "Orata", "2", "2", "Bar", "CHIOGGIA"},
                            {"Laguna", "Orata", "4", "2", "Bar", ""}});
  EXPECT_THAT(Leggi(Scrivi_Tabella(tabella), {.per_specie = true, .primo_sbarco = true}),
              ElementsAre("Chioggia|Orata|3|6|2", "|Orata|4|8|1"));
}

TEST_F(Scansioni, FileDiAltriProgrammiNonDannoVendite) {
  EXPECT_THAT(Leggi("Gentile cliente,\r\nil suo ordine\r\n\r\n"), IsEmpty());
  EXPECT_EQ(Leggi(Testo("\0\xFF\t\0\r\n\t\t\t\t\t\t\t\t", 14)).size(), 1U);  // a NUL in the supplier's place
}

TEST_F(Scansioni, UnFileMancanteSiSaltaUnoIllegibileSiDice) {
  std::filesystem::create_directories(cartella / "2025" / "20250311.txt");
  Scansione scansione(programma, {});
  EXPECT_FALSE(scansione.Leggi_Giorno(cartella / "2025" / "20250310.txt"));
  EXPECT_EQ(Mancanze(scansione), "");
  EXPECT_FALSE(scansione.Leggi_Giorno(cartella / "2025" / "20250311.txt"));
  EXPECT_EQ(Mancanze(scansione), "file non letti: 20250311.txt");
}

TEST_F(Scansioni, IlFileTemporaneoHaUnaLineaPerRiga) {
  const Testo giorno = Corta("Mare Blu", "Orata", "12.50", "9,80") + "\r\n" + Corta("B", "", "x", "-1");
  Leggi(giorno, {.per_specie = true, .provvisorio = cartella / "zzzztemp.txt"});
  EXPECT_EQ(cartella.Contenuto("zzzztemp.txt"), "Mare Blu\tOrata\t12,50\t9,80\r\nB\t\tx\t-1\r\n");
}

// It is written in parts: half of it would be taken for the whole, and a full disk wants the room.
TEST_F(Scansioni, DelFileTemporaneoNonRestaUnaParte) {
  Testo giorno;
  for (const char nome : {'a', 'b', 'c'}) giorno += Corta(Testo(5U << 20U, nome), "Orata", "1", "2") + "\r\n";
  Metti_File("20250310.txt", giorno);
  int parti = 0;
  programma.disco.guasto = [&](const Percorso& file) {
    return file.filename() == "zzzztemp.txt" && ++parti == 2 ? ENOSPC : 0;
  };
  Scansione scansione(programma, {.per_specie = true, .provvisorio = cartella / "zzzztemp.txt"});
  EXPECT_TRUE(scansione.Leggi_Giorno(cartella / "2025" / "20250310.txt"));
  EXPECT_EQ(scansione.Chiudi(), ENOSPC);
  EXPECT_EQ(cartella.Contenuto("zzzztemp.txt").substr(0, 8), "(manca)");
  EXPECT_EQ(scansione.Prendi_Totali().size(), 3U);
}

TEST_F(Scansioni, UnGiornoVuotoDaNessunoNelFileTemporaneo) {
  EXPECT_THAT(Leggi("", {.per_specie = true, .provvisorio = cartella / "zzzztemp.txt"}),
              ElementsAre("Nessuno|nulla|0|0|1"));
  EXPECT_EQ(cartella.Contenuto("zzzztemp.txt"), "Nessuno\tnulla\t0\t0\r\n");
}

TEST_F(Scansioni, IFornitoriSiUnisconoAncheConUnNomeDentroLAltro) {
  const Testo giorno = Corta("A", "zeta", "1", "1") + "\n" + Corta("A - M", "x", "2", "1") + "\n" +
                       Corta("A", "alfa", "4", "1") + "\n";
  Metti_File("20250310.txt", giorno);
  Scansione scansione(programma, {.per_specie = true});
  scansione.Leggi_Giorno(cartella / "2025" / "20250310.txt");
  std::vector<Totale> totali = scansione.Prendi_Totali();
  Ordina_Totali(totali);
  std::vector<Testo> nomi;
  for (const Totale& totale : totali) nomi.push_back(totale.Fornitore + "|" + totale.Specie);
  EXPECT_THAT(nomi, ElementsAre("A|alfa", "A - M|x", "A|zeta"));
  Consolida_Vettore_1x1a(totali);
  ASSERT_EQ(totali.size(), 2U);
  EXPECT_EQ(totali[0].Fornitore, "A");
  EXPECT_EQ(totali[0].Testo_Kg(','), "5");
  EXPECT_EQ(totali[1].Testo_Kg(','), "2");
}

TEST_F(Scansioni, LeggiPeriodoDiceOgniFileESiFerma) {
  for (const char* giorno : {"20250310", "20250311", "20250312"})
    Metti_Giorno(giorno, {{"A", "x", "1", "1"}});
  const std::vector<Percorso> nomi = {"20250310.txt", "20250311.txt", "20250312.txt"};
  Scritta avanzamento;
  std::vector<Testo> visti;
  Scansione intera(programma, {});
  macchina.fra_le_unita = [&] { visti.push_back(avanzamento.testo); };
  EXPECT_TRUE(Leggi_Periodo(programma, intera, nomi, avanzamento));
  EXPECT_THAT(visti, ElementsAre("20250310.txt letto", "20250311.txt letto", "20250312.txt letto"));
  EXPECT_EQ(intera.Righe(), 3);
  Scansione fermata(programma, {});
  macchina.unita = 0;
  macchina.ferma_dopo = 2;
  EXPECT_FALSE(Leggi_Periodo(programma, fermata, nomi, avanzamento));
  EXPECT_EQ(fermata.Righe(), 2);
}

// A year's totals against another program's: awk adds whole thousandths, so that its sums are exact too.
struct AnnoIntero : Scansioni, testing::WithParamInterface<char> {};

TEST_P(AnnoIntero, ISaldiSonoQuelliDiAwk) {
  const char separatore = GetParam();
  Anno({.giorni = 20, .righe = 300, .fornitori = 12, .specie = 8, .separatore = separatore})
      .Scrivi(programma.Cartella_Anno);
  programma.Separatore_Decimale = separatore;
  Scansione scansione(programma, {.per_specie = true});
  Scritta avanzamento;
  ASSERT_TRUE(Leggi_Periodo(programma, scansione, File_Dell_Anno(programma).value(), avanzamento));
  ASSERT_EQ(scansione.Righe(), 6000);
  std::map<Testo, Testo> nostri;
  for (const Totale& totale : scansione.Prendi_Totali())
    nostri[Minuscolo(totale.Fornitore + "|" + totale.Specie)] =
        Formato(totale.kg.Valore(), "0.000", '.') + "|" + Formato(totale.importo.Valore(), "0.000000", '.');

  const std::string comando =
      "cat '" + programma.Cartella_Anno.string() +
      "'/*.txt | LC_ALL=C awk -F'\\t' 'function mille(t, p) { sub(/,/, \".\", t); split(t, p, \".\"); "
      "return (p[1] substr(p[2] \"000\", 1, 3)) + 0 } "
      "{ k = tolower($2 \"|\" $5); w = mille($7); e = mille($8); kg[k] += w; euro[k] += w * e } "
      "END { for (k in kg) printf \"%s\\t%.3f|%.6f\\n\", k, kg[k] / 1000, euro[k] / 1000000 }'";
  std::FILE* awk = popen(comando.c_str(), "r");
  ASSERT_NE(awk, nullptr);
  std::map<Testo, Testo> suoi;
  std::array<char, 400> linea{};
  while (std::fgets(linea.data(), static_cast<int>(linea.size()), awk) != nullptr) {
    Vista riga = linea.data();
    riga.remove_suffix(1);
    const Testo chiave(Prossimo_Campo(riga));
    suoi[chiave] = riga;
  }
  ASSERT_EQ(pclose(awk), 0);
  EXPECT_EQ(nostri.size(), 96U);
  EXPECT_EQ(nostri, suoi);
}

INSTANTIATE_TEST_SUITE_P(ConVirgolaEPunto, AnnoIntero, testing::Values(',', '.'));

}  // namespace

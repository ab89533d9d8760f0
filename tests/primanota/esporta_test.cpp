#include "primanota/esporta.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <gmock/gmock.h>

#include "lists/aiuto_esportazione.h"
#include "tests/primanota/note_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

// ---- the pieces

TEST(Esportazione_Campi, Zona) {
  struct Caso {
    Testo zona;
    bool taglia;
    Testo attesa;
  };
  const Caso casi[] = {
      {"A0837 ADRIATICO", true, "A0837"},
      {"A0837 ADRIATICO", false, "A0837"},
      {"A08371 - x", true, "A08371"},
      {"A083721 - Mediterraneo", true, "A08372"},
      {"A083721 - x", false, "A083721"},
      {"A12345", true, "A1234"},
      {"A12345", false, "A12345"},
      {"A0227a - Atlantico", true, "A0227"},
      {"C - Prodotto di acquacoltura", true, "C"},
      {"B123456 - Acque dolci", true, "B123456"},
      {"a12345 - x", true, "a12345"},
      {" A0837 - x", true, "A0837"},
      {"", true, ""},
      {"A", true, "A"},
  };
  for (const auto& [zona, taglia, attesa] : casi) EXPECT_EQ(ZonaEsportata(zona, taglia), attesa) << zona;
}

TEST(Esportazione_Campi, Commento) {
  const std::pair<Testo, Testo> casi[] = {
      {"", ""},
      {".", ""},
      {",", ""},
      {" . ", ""},
      {"abc", ""},
      {"abcd", "abcd"},
      {"  abcd  ", "abcd"},
      {"abcd.", "abcd"},
      {"abcd ,  .", "abcd"},
      {"abcd..", "abcd."},
      {"abcd.,", "abcd."},  // the dot goes first, the comma after it
      {"abc.", ""},
      {"abcd,", "abcd"},
      {"10.00 - solfiti", "10.00 - solfiti"},
      // the reader splits at every ";" and at every line end
      {"vivo; di valle", "vivo, di valle"},
      {"vivo;", "vivo"},
      {"prima\r\nseconda", "prima  seconda"},
      {"prima\tseconda\n", "prima seconda"},
      {Testo("con\0zero", 8), "con zero"},
      {";;;;", ""},
      {";;;;;", ",,,,"},
  };
  for (const auto& [commento, atteso] : casi) EXPECT_EQ(CommentoPulito(commento), atteso) << commento;
}

TEST(Esportazione_Campi, CommentoLungo) {
  EXPECT_EQ(CommentoPulito(Testo(250, 'x')), Testo(250, 'x'));
  EXPECT_EQ(CommentoPulito(Testo(251, 'x')), Testo(250, 'x'));
  EXPECT_EQ(CommentoPulito(Testo(250, 'x') + "."), Testo(250, 'x'));
  EXPECT_EQ(CommentoPulito(Testo(300, 'x') + "."), Testo(250, 'x'));
}

TEST(Esportazione_Campi, Immaginari) {
  const std::pair<Testo, bool> casi[] = {{"00000007", true},  {"00000000", true}, {"00000012", false},
                                         {"00000123", false}, {"10000000", true}, {"A00000000", true},
                                         {"00123456", false}};
  for (const auto& [codice, immaginario] : casi) EXPECT_EQ(ClienteImmaginario(codice), immaginario) << codice;
}

// ---- a row

struct Esportazione_Riga : Note_Di_Prova {
  RigaEsportata Campi(const LedgerRow& riga, bool taglia = true) const {
    return ComponiCampi(programma, riga, taglia);
  }
};

TEST_F(Esportazione_Riga, Vendita) {
  LedgerRow riga = Riga(1, "Laguna", "12,5", "9,80");
  riga[CampoRiga::Lotti] = " L1403 ";
  riga[CampoRiga::Commento] = "pescato a mano.";
  EXPECT_THAT(Campi(riga),
              ElementsAre("2", "14032025", "ITTIVE", "00000345", "00000123", "SBG", "A0837", "IT", "9,80",
                          "12,50", "122,50", " ", "L1403", "RDT", "MED", "FRE", "WHL", "pescato a mano"));
  EXPECT_EQ(ComponiLinea(Campi(riga)),
            "2;14032025;ITTIVE;00000345;00000123;SBG;A0837;IT;9,80;12,50;122,50; ;L1403;RDT;MED;FRE;WHL;"
            "pescato a mano");
}

TEST_F(Esportazione_Riga, Accredito) {
  LedgerRow riga = Riga(1, "Laguna", "5", "-3.5");
  riga[CampoRiga::DDT_CV] = "00012";
  const RigaEsportata campi = Campi(riga);
  EXPECT_EQ(campi[0], "4");
  EXPECT_EQ(campi[8], "3,50") << "the price has no sign";
  EXPECT_EQ(campi[9], "-5,00");
  EXPECT_EQ(campi[10], "-17,50");
  EXPECT_EQ(campi[11], "00012");
}

TEST_F(Esportazione_Riga, Importi) {
  struct Caso {
    Testo peso, prezzo, tipo, prezzo_scritto, peso_scritto, importo;
  };
  const Caso casi[] = {
      {"10", "0", "2", "0,00", "10,00", "0,00"},
      {"100", "12,345", "2", "12,35", "100,00", "1234,50"},
      {"1000", "1.2345", "2", "1,23", "1000,00", "1234,50"},  // no thousands signs
      {"-4", "2", "2", "2,00", "4,00", "8,00"},
      {"4", " -2", "4", "2,00", "-4,00", "-8,00"},
      {"4", "-0", "4", "0,00", "-4,00", "-0,00"},  // the sign is the record's, not the amount's
      {"3", "0,335", "2", "0,34", "3,00", "1,01"},
      // no number: 0
      {"dieci", "2", "2", "2,00", "0,00", "0,00"},
      {"4", "due", "2", "0,00", "4,00", "0,00"},
      {"4", "-due", "4", "0,00", "-4,00", "-0,00"},
      {"", "", "2", "0,00", "0,00", "0,00"},
      {"1.234,5", "2", "2", "2,00", "0,00", "0,00"},
  };
  for (const char separatore : {',', '.'}) {
    Apri_Giorno(separatore);
    for (const Caso& caso : casi) {
      const RigaEsportata campi = Campi(Riga(1, "Laguna", caso.peso, caso.prezzo));
      EXPECT_EQ(campi[0], caso.tipo) << caso.peso << " " << caso.prezzo;
      EXPECT_EQ(campi[8], caso.prezzo_scritto) << caso.peso << " " << caso.prezzo;
      EXPECT_EQ(campi[9], caso.peso_scritto) << caso.peso << " " << caso.prezzo;
      EXPECT_EQ(campi[10], caso.importo) << caso.peso << " " << caso.prezzo;
    }
  }
}

TEST_F(Esportazione_Riga, Codici) {
  struct Caso {
    CampoRiga campo;
    std::size_t posto;
    Testo valore, atteso;
  };
  const Caso casi[] = {
      {CampoRiga::CodCliente, 4, "7", "00000007"},
      {CampoRiga::CodCliente, 4, " 123 ", "00000123"},
      {CampoRiga::CodCliente, 4, "123456789", "123456789"},
      {CampoRiga::CodCliente, 4, "A12", "00000A12"},
      {CampoRiga::Prov, 7, " IT Italia", "IT"},
      {CampoRiga::Prov, 7, "IT", "IT"},
      {CampoRiga::Prov, 7, "", ""},
      {CampoRiga::MetodoPesca, 13, "XXX   ", ""},
      {CampoRiga::MetodoPesca, 13, "XX", "XX"},
      {CampoRiga::MetodoPesca, 13, "", ""},
      {CampoRiga::Pezzatura, 14, "XXX    ", ""},
      {CampoRiga::Pezzatura, 14, "GRA Grande", "GRA"},
      {CampoRiga::StatoFisico, 15, "XXX Sconosciuto", "XXX"},  // only gear and size have the empty form
      {CampoRiga::Preparazione, 16, "XXX Altro", "XXX"},
      {CampoRiga::Lavorazione, 16, "SAL Salato", "WHL"},  // the working isn't in the file
      // what would be a nineteenth field, or another line
      {CampoRiga::Alfa, 5, "A;B", "A,B"},
      {CampoRiga::ZonaP, 6, "A0837;x - y", "A0837,"},
      {CampoRiga::Lotti, 12, "L1;\r\nL2", "L1,  L2"},
      {CampoRiga::DDT_CV, 11, "12;3", " "},
  };
  for (const Caso& caso : casi) {
    LedgerRow riga = Riga(1, "Laguna");
    riga[caso.campo] = caso.valore;
    EXPECT_EQ(Campi(riga)[caso.posto], caso.atteso) << caso.valore;
  }
}

TEST_F(Esportazione_Riga, SepExpNonContaESeparaSemprePuntoEVirgola) {
  programma.preferenze.sep_exp = '\t';
  const Testo linea = ComponiLinea(Campi(Riga(1, "Laguna")));
  EXPECT_EQ(std::count(linea.begin(), linea.end(), ';'), 17);
  EXPECT_EQ(linea.find('\t'), Testo::npos);
}

// ---- the file

// What the receiver of the file checks, written without our code: fields, codes and arithmetic of each line.
constexpr const char* lettore = R"AWK(
BEGIN { FS = ";" }
function guasto(che) { printf "riga %d: %s: %s\n", NR, che, $0; guasti++ }
{
  if (!sub(/\r$/, "")) guasto("fine riga")
  if (NF != 18) guasto("campi " NF)
  if ($1 != "2" && $1 != "4") guasto("tipo")
  if ($2 !~ /^[0-9][0-9][0-9][0-9][0-9][0-9][0-9][0-9]$/) guasto("giorno")
  if ($3 != "ITTIVE") guasto("genere")
  if (length($4) != 8 || length($5) != 8 || $5 ~ /0000000/) guasto("codici")
  if ($7 ~ / / || $8 ~ / /) guasto("zona o provenienza")
  if ($9 !~ /^[0-9]+,[0-9][0-9]$/) guasto("prezzo")
  segno = $1 == "4" ? "-" : ""
  if ($10 !~ "^" segno "[0-9]+,[0-9][0-9]$" || $11 !~ "^" segno "[0-9]+,[0-9][0-9]$") guasto("segni")
  for (i = 9; i <= 11; i++) { n[i] = $i; sub(/^-/, "", n[i]); sub(/,/, ".", n[i]) }
  scarto = n[9] * n[10] - n[11]
  if (scarto > 0.0051 || scarto < -0.0051) guasto("importo")
  if ($1 == "2" && $12 != " ") guasto("riferimento")
  for (i = 14; i <= 17; i++) if (length($i) != 3 && length($i) != 0) guasto("codice " i)
  if (length($18) > 250) guasto("commento")
}
END { print NR " righe, " guasti + 0 " guasti" }
)AWK";

Testo Letto(const Cartella_Temporanea& cartella, const std::string& file) {
  cartella.Metti("lettore.awk", lettore);
  const std::string comando =
      "LC_ALL=C awk -f '" + (cartella / "lettore.awk").string() + "' '" + (cartella / file).string() + "'";
  FILE* uscita = popen(comando.c_str(), "r");
  if (uscita == nullptr) return "awk non parte";
  Testo testo;
  std::array<char, 256> pezzo{};
  while (fgets(pezzo.data(), static_cast<int>(pezzo.size()), uscita) != nullptr) testo += pezzo.data();
  pclose(uscita);
  return testo;
}

struct Esportazione_File : Note_Di_Prova {
  Esportazione_File() {
    std::filesystem::create_directories(chiavetta);
    macchina.volumi = {{chiavetta, "E:", "CHIAVETTA"}};
  }
  // A picker that takes line n (from 0) of what it is offered; -1 cancels.
  Scelta_Drive Prende(int n) {
    return [this, n](ModoCopia modo, const Percorso& propria) -> std::optional<DriveScelto> {
      Xdisk xdisk;
      Apri_Xdisk(programma, xdisk, modo, propria);
      xdisk.List1.scelta = n;
      Conferma_Drive(xdisk);
      return xdisk.scelto;
    };
  }
  void Giornata() {
    Vendita("Valle", "20", "6,00");
    Vendita("Laguna", "12,5", "9,80");
    Vendita("Laguna", "5", "-3,5")[CampoRiga::DDT_CV] = "00012";
    Vendita("Laguna")[CampoRiga::CodCliente] = "7";
    Vendita("Valle")[CampoRiga::CodCliente] = "00124";
  }
  Percorso chiavetta = cartella / "chiavetta";
  Testo file = Testo_Percorso(cartella / "XBanca/20250314.txt");
};

TEST_F(Esportazione_File, SulDisco) {
  Giornata();
  EXPECT_TRUE(EsportaPrimaNota(programma, false, Prende(0)));
  EXPECT_EQ(
      cartella.Contenuto("XBanca/20250314.txt"),
      "2;14032025;ITTIVE;00000345;00000123;SBG;A0837;IT;9,80;12,50;122,50; ;L1403;RDT;MED;FRE;WHL;\r\n"
      "4;14032025;ITTIVE;00000345;00000123;SBG;A0837;IT;3,50;-5,00;-17,50;00012;L1403;RDT;MED;FRE;WHL;"
      "\r\n"
      "2;14032025;ITTIVE;00000345;00000123;SBG;A0837;IT;6,00;20,00;120,00; ;L1403;RDT;MED;FRE;WHL;\r\n");
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("Salvati 3 su 4\n1 clienti immaginari\nin:\n" + file +
                          "\n\nFormato esteso con:\n"
                          "Attrezzo Pesca, Pezzatura, Stato Fisico, Lavorazione e Preparazione."));
  EXPECT_EQ(programma.Vet_Tabella.Riga(1)[CampoRiga::Fornitore], "Valle") << "the ledger keeps its order";
  EXPECT_EQ(Letto(cartella, "XBanca/20250314.txt"), "3 righe, 0 guasti\n");
}

TEST_F(Esportazione_File, IlLettoreVedeUnCampoInPiu) {
  cartella.Metti("storto.txt",
                 "2;14032025;ITTIVE;00000345;00000123;SBG;A0837;IT;9,80;12,50;100,00; ;L;R;M;F;W;a;b\r\n");
  const Testo letto = Letto(cartella, "storto.txt");
  EXPECT_THAT(letto, HasSubstr("campi 19"));
  EXPECT_THAT(letto, HasSubstr("importo"));
}

TEST_F(Esportazione_File, RilettaDaUnAltro) {
  const Testo commenti[] = {Testo(251, 'x'), ".", "vivo; di valle", "una\r\ndue", "", "fresco.", "tab\tqui"};
  const Testo zone[] = {"A0837 - Mar", "A083721 - Adriatico", "C - allevato", "B - dolci", "A02271 - Nord"};
  for (int i = 0; i < 70; ++i) {
    LedgerRow& riga = Vendita(i % 2 == 0 ? "Laguna" : "Valle", std::to_string(i) + ",25",
                              (i % 5 == 0 ? "-" : "") + std::to_string(i % 9) + ".5");
    riga[CampoRiga::Commento] = commenti[i % 7];
    riga[CampoRiga::ZonaP] = zone[i % 5];
    riga[CampoRiga::DDT_CV] = "1;2";
    riga[CampoRiga::Lotti] = "L;" + std::to_string(i);
  }
  Vendita("Valle", "x", "y");
  for (const bool taglia : {true, false}) {
    EXPECT_TRUE(EsportaPrimaNota(programma, taglia, Prende(0)));
    EXPECT_EQ(Letto(cartella, "XBanca/20250314.txt"), "71 righe, 0 guasti\n");
  }
}

TEST_F(Esportazione_File, SullaChiavetta) {
  Giornata();
  cartella.Metti("XBanca/20250313.txt", "ieri");
  EXPECT_TRUE(EsportaPrimaNota(programma, false, Prende(1)));
  EXPECT_THAT(macchina.messaggi.back(), HasSubstr("in:\n" + Testo_Percorso(chiavetta / "20250314.txt")));
  EXPECT_EQ(Letto(cartella, "chiavetta/20250314.txt"), "3 righe, 0 guasti\n");
  EXPECT_THAT(programma.disco.Elenca(cartella / "XBanca", "*").value(), IsEmpty());
}

// The program itself lives on the stick: then the root of the same stick isn't another drive.
TEST_F(Esportazione_File, LoStessoVolumeELaCartella) {
  Giornata();
  macchina.volumi = {{cartella.percorso, "E:", "CHIAVETTA"}};
  EXPECT_TRUE(EsportaPrimaNota(programma, false, Prende(1)));
  EXPECT_EQ(Letto(cartella, "XBanca/20250314.txt"), "3 righe, 0 guasti\n");
  EXPECT_EQ(cartella.Contenuto("20250314.txt"), "(manca)");
}

TEST_F(Esportazione_File, DueVolteUnSoloFile) {
  Giornata();
  for (int i = 0; i < 2; ++i) EXPECT_TRUE(EsportaPrimaNota(programma, false, Prende(0)));
  EXPECT_THAT(programma.disco.Elenca(cartella / "XBanca", "*").value(), ElementsAre("20250314.txt"));
}

TEST_F(Esportazione_File, SoloLUltimoResta) {
  Giornata();
  cartella.Metti("XBanca/20250313.txt", "ieri");
  cartella.Metti("XBanca/Transazioni_00345_20250313.txt", "banca");
  cartella.Metti("XBanca/vecchi/20240101.txt", "cartella");
  EXPECT_TRUE(EsportaPrimaNota(programma, false, Prende(0)));
  EXPECT_THAT(programma.disco.Elenca(cartella / "XBanca", "*").value(), ElementsAre("20250314.txt"));
  EXPECT_EQ(cartella.Contenuto("XBanca/vecchi/20240101.txt"), "cartella");
}

TEST_F(Esportazione_File, Annullata) {
  Giornata();
  EXPECT_FALSE(EsportaPrimaNota(programma, false, Prende(-1)));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Operazione Annullata dall'Utente..."));
  EXPECT_THAT(programma.disco.Elenca(cartella / "XBanca", "*").value(), IsEmpty());
}

TEST_F(Esportazione_File, SenzaChiedereSulDisco) {
  Giornata();
  std::filesystem::remove_all(cartella / "XBanca");
  EXPECT_TRUE(EsportaPrimaNota(programma, false, {}));
  EXPECT_EQ(Letto(cartella, "XBanca/20250314.txt"), "3 righe, 0 guasti\n");
}

TEST_F(Esportazione_File, IlNomeEDelFileDelGiorno) {
  Giornata();
  programma.File_Giorno = cartella / "2025/20250314.dat";
  EXPECT_TRUE(EsportaPrimaNota(programma, false, Prende(0)));
  EXPECT_THAT(programma.disco.Elenca(cartella / "XBanca", "*").value(), ElementsAre("20250314.txt"));
}

TEST_F(Esportazione_File, ChiEEsclusoPerNomeNonSiConta) {
  Vendita("Laguna");
  LedgerRow& riga = Vendita("Laguna");  // an excluded customer under another code
  riga[CampoRiga::Cliente] = " trattoria lido ";
  EXPECT_TRUE(EsportaPrimaNota(programma, false, Prende(0)));
  EXPECT_THAT(macchina.messaggi.back(), StartsWith("Salvati 1 su 2\nin:\n"));
}

// The mark is the whole word here, longer than three characters for the rows left out by code.
TEST_F(Esportazione_File, UnMarchioDiversoVaPerCodiceSoltanto) {
  programma.Vet_Clienti[1][cliente::Escluso] = "SOSPESO";
  Vendita("Laguna")[CampoRiga::CodCliente] = "00124";
  Vendita("Laguna")[CampoRiga::Cliente] = "Trattoria Lido";
  EXPECT_TRUE(EsportaPrimaNota(programma, false, Prende(0)));
  EXPECT_THAT(macchina.messaggi.back(), StartsWith("Salvati 1 su 1\nin:\n"));
}

TEST_F(Esportazione_File, GiornoVuoto) {
  EXPECT_TRUE(EsportaPrimaNota(programma, false, Prende(0)));
  EXPECT_EQ(cartella.Contenuto("XBanca/20250314.txt"), "");
  EXPECT_THAT(macchina.messaggi.back(), StartsWith("Salvati 0 su 0\nin:\n"));
}

TEST_F(Esportazione_File, ChiNonHaNumeriSiDice) {
  Vendita("Laguna", "dieci", "5");
  Vendita("Laguna");
  Vendita("Laguna", "10", "");
  EXPECT_TRUE(EsportaPrimaNota(programma, false, Prende(0)));
  ASSERT_EQ(macchina.messaggi.size(), 2U);
  EXPECT_THAT(macchina.messaggi[0], StartsWith("Salvati 3 su 3\n"));
  EXPECT_EQ(macchina.messaggi[1], "Peso o prezzo non numerico, nel file vale 0,00 alla riga:\n0001, 0003");
}

TEST_F(Esportazione_File, DeiTantiSenzaNumeriSiDiconoVenti) {
  for (int i = 0; i < 21; ++i) Vendita("Laguna", "x");
  EXPECT_TRUE(EsportaPrimaNota(programma, false, Prende(0)));
  EXPECT_THAT(macchina.messaggi.back(), HasSubstr("0019, 0020 ..."));
}

TEST_F(Esportazione_File, IlVisoreSeCE) {
  Giornata();
  EXPECT_TRUE(EsportaPrimaNota(programma, false, Prende(0)));
  EXPECT_THAT(macchina.programmi, IsEmpty());
  cartella.Metti("notepad1.exe", "");
  EXPECT_TRUE(EsportaPrimaNota(programma, false, Prende(0)));
  EXPECT_THAT(macchina.programmi, ElementsAre("notepad1.exe"));
}

// ---- what goes wrong is told; day and stick are as they were

TEST_F(Esportazione_File, ChiavettaPienaOProtetta) {
  Giornata();
  cartella.Metti("chiavetta/20250314.txt", "prima");
  const std::pair<int, Testo> casi[] = {{ENOSPC, "il disco è pieno"_t},
                                        {EROFS, "il disco è protetto da scrittura"_t},
                                        {EIO, "il disco è guasto, o è stato tolto"_t}};
  const Tabella giornata = programma.Vet_Tabella;
  for (const auto& [errore, parole] : casi) {
    macchina.messaggi.clear();
    programma.disco.guasto = [&, guasto = errore](const Percorso& percorso) {
      return percorso == chiavetta / "20250314.txt" ? guasto : 0;
    };
    EXPECT_FALSE(EsportaPrimaNota(programma, false, Prende(1)));
    EXPECT_THAT(macchina.messaggi,
                ElementsAre("Errore " + std::to_string(errore) + " durante il salvataggio\n" +
                            Testo_Percorso(chiavetta / "20250314.txt") + "\n" + parole));
    EXPECT_EQ(cartella.Contenuto("chiavetta/20250314.txt"), "prima");
    EXPECT_EQ(programma.Vet_Tabella.righe, giornata.righe);
  }
  EXPECT_EQ(programma.disco.Elenca(chiavetta, "*").value().size(), 1U) << "nothing half written is left";
}

TEST_F(Esportazione_File, ChiavettaToltaDopoLaScelta) {
  Giornata();
  const Scelta_Drive prende = Prende(1);
  EXPECT_FALSE(EsportaPrimaNota(programma, false, [&](ModoCopia modo, const Percorso& propria) {
    auto scelto = prende(modo, propria);
    macchina.volumi.clear();
    return scelto;
  }));
  EXPECT_THAT(macchina.messaggi.back(), HasSubstr("il disco non c'è più"_t));
  EXPECT_EQ(cartella.Contenuto("chiavetta/20250314.txt"), "(manca)");
}

TEST_F(Esportazione_File, ChiavettaToltaDuranteLaCopia) {
  Giornata();
  programma.disco.guasto = [&](const Percorso& percorso) {
    if (percorso != chiavetta / "20250314.txt") return 0;
    macchina.volumi.clear();
    return 0;
  };
  EXPECT_FALSE(EsportaPrimaNota(programma, false, Prende(1)));
  EXPECT_THAT(macchina.messaggi.back(), HasSubstr("il file potrebbe mancare"));
}

TEST_F(Esportazione_File, UnFileCheNonSiCancellaFerma) {
  Giornata();
  cartella.Metti("XBanca/20250313.txt", "ieri");
  programma.disco.guasto = [](const Percorso&) { return EACCES; };
  EXPECT_FALSE(EsportaPrimaNota(programma, false, Prende(0)));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Errore 13 durante la cancellazione\n" +
                                             Testo_Percorso(cartella / "XBanca/20250313.txt") +
                                             "\nnon è permesso scrivere qui"_t));
  EXPECT_EQ(cartella.Contenuto("XBanca/20250313.txt"), "ieri");
}

TEST_F(Esportazione_File, Aiuto) {
  EXPECT_EQ(Aiuto_Esportazione(Testo_Percorso(cartella.percorso)),
            "Il file da trasmettere alla Veritas (per eleborare le statistiche):\n"
            "viene salvato nella cartella:\n" +
                Testo_Percorso(cartella.percorso) +
                "\\xVeritas\n"
                "è presente solo l'ultimo file creato, tutti gli altri file \n"
                "eventualmente presenti vengono cancellati\n"
                "Il separatore di campo è ; (punto e virgola) e non può essere cambiato.\n"
                "Se si sceglie una destinazione diversa (per esempio una chiavetta USB)\n"
                "il file viene salvato nella radice del disco (per esempio d:\\ )"_t);
}

}  // namespace

#include <gmock/gmock.h>

#include "invoices/file_fatture.h"
#include "invoices/lear.h"
#include "invoices/rapporto.h"
#include "invoices/stampa_fatture.h"
#include "invoices/transazioni.h"
#include "printing/registratore.h"
#include "tests/invoices/pagine_di_prova.h"
#include "tests/invoices/stampe_di_prova.h"
#include "tests/invoices/taglio.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

const Testo fatto = "quanto richiesto è stato fatto...."_t;

// A run of a firm that ships: two invoices with expenses of 15 euro at 22%, and a note.
struct Corsa_Vettore : Stampe_Di_Prova {
  Corsa_Vettore() {
    programma.Ragione = {"Ittica Laguna", "", "", "", "", "", "P.IVA 01234567890"};
    Due_Clienti();
    stampa.scelte.Stampale = true;
    stampa.Text2 = "Venezia";
    stampa.spedizione = {.trasporto = {"Vendita", "Casse", "Vettore", {"Trasporti Brenta", "-", "-"}},
                         .spese = 15,
                         .aliquota = 22};
  }
  Testo Banca() const { return cartella.Contenuto("XBanca/Transazioni_00042_20250314.txt"); }
  bool Stampato(Vista cosa) const {
    return std::ranges::any_of(registro.righe,
                               [&](const Testo& riga) { return riga.find(cosa) != Testo::npos; });
  }
  void Metti_Vecchi() const {
    cartella.Metti("XBanca/Transazioni_00042_20250314.txt", "transazioni di prima");
    cartella.Metti("XBanca/20250313.txt", "trasmesso");
    cartella.Metti("_ReportLear/20250314_00099_Lear.txt", "lear di prima");
    cartella.Metti("_ReportLear/20250313_00099_Lear.txt", "lear di ieri");
  }
};

// 20 + 2 and 11 + 1.1 of goods, each with 15 + 3.30 of expenses; the note has none.
const std::vector<Testo> tre_documenti = {"00101_FAT_00127_20250314_00042_4030_11.txt",
                                          "00101_NAC_NA004_20250314_00042_-330_11.txt",
                                          "00102_FAT_00128_20250314_00042_3040_11.txt"};

TEST_F(Corsa_Vettore, ScriveITestiDisegnaERegistra) {
  Metti_Vecchi();
  EXPECT_TRUE(Esegui());
  EXPECT_THAT(macchina.messaggi, ElementsAre(fatto));
  EXPECT_THAT(macchina.domande, ElementsAre("Stampa tutte le fatture e note di accredito personalizzate \n"
                                            "la stampa avviene nell'ordine che si vede in lista.\n"
                                            "i dati devono essere giusti.\nOK per continuare..."));
  EXPECT_EQ(In("2025_fat/20250314"), tre_documenti);
  EXPECT_THAT(Report(), HasSubstr("*************** Totale euro =      70,70\r\n"));
  EXPECT_THAT(In("XBanca"), ElementsAre("Transazioni_00042_20250314.txt"));
  EXPECT_THAT(In("_ReportLear"), ElementsAre("20250313_00099_Lear.txt", "20250314_00004_Lear.txt",
                                             "20250314_00127_Lear.txt", "20250314_00128_Lear.txt"));
  EXPECT_EQ(registro.pagine, 3);
  EXPECT_THAT(registro.righe, Contains("pagina 1 verticale 210x297"));
  EXPECT_TRUE(Stampato("Causale trasporto: Vendita"));
  EXPECT_FALSE(Stampato("Courier"));
}

// Head, two invoices, a note, tail, as the bank has them of a run; all bear the customer looked up last.
TEST_F(Corsa_Vettore, LeTransazioniSonoQuelleDellaCorsa) {
  EXPECT_TRUE(Esegui());
  Confronta_Attesa("corsa_transazioni.txt", Banca());
  const std::vector<Campo_Record> dettaglio = {{"tipo", 2},   {"zeri", 5},    {"cliente", 5}, {"importo", 15},
                                               {"ditta", 10}, {"testo", 140}, {"coda", 140}};
  const auto record = Record_Di(Banca());
  ASSERT_THAT(record, SizeIs(5));
  const std::pair<const char*, const char*> attesi[] = {
      {"10", "000000000004030"}, {"10", "000000000003040"}, {"20", "-00000000000330"}};
  for (std::size_t i = 0; i < 3; ++i) {
    const Record_Tagliato riga(record[i + 1], dettaglio);
    EXPECT_EQ(riga["tipo"], attesi[i].first);
    EXPECT_EQ(riga["importo"], attesi[i].second);
    EXPECT_EQ(riga["cliente"], "00102");
  }
  EXPECT_EQ(record[4].substr(0, 43), "9914032025000000000000000003000000000674000");
}

TEST_F(Corsa_Vettore, IRecordLearHannoLeSpeseSoloNelleFatture) {
  EXPECT_TRUE(Esegui());
  Confronta_Attesa("corsa_lear.txt", cartella.Contenuto("_ReportLear/20250314_00127_Lear.txt") +
                                         cartella.Contenuto("_ReportLear/20250314_00128_Lear.txt") +
                                         cartella.Contenuto("_ReportLear/20250314_00004_Lear.txt"));
  // behind names, rates and spare groups: what is to be paid, the taxable amount, the total
  const auto totali = [&](const char* nome) {
    return cartella.Contenuto("_ReportLear/" + Testo(nome)).substr(63 + 11 + 12 + 84 + 56, 36);
  };
  EXPECT_EQ(totali("20250314_00127_Lear.txt"), "000000004030000000003500000000004030");
  EXPECT_EQ(totali("20250314_00004_Lear.txt"), "-00000000330-00000000300-00000000330");
}

// The records know no decimals: whatever the machine writes them with, they are the same bytes.
TEST_F(Corsa_Vettore, ColPuntoDecimaleIRecordSonoGliStessi) {
  programma.Separatore_Decimale = '.';
  programma.Separatore_Altro = ',';
  EXPECT_TRUE(Esegui());
  Confronta_Attesa("corsa_transazioni.txt", Banca());
  Confronta_Attesa("corsa_lear.txt", cartella.Contenuto("_ReportLear/20250314_00127_Lear.txt") +
                                         cartella.Contenuto("_ReportLear/20250314_00128_Lear.txt") +
                                         cartella.Contenuto("_ReportLear/20250314_00004_Lear.txt"));
}

// With no expenses the totals are those of any other firm.
TEST_F(Corsa_Vettore, SenzaSpeseITotaliSonoQuelliDiSempre) {
  stampa.spedizione->spese = 0;
  EXPECT_TRUE(Esegui());
  EXPECT_THAT(In("2025_fat/20250314"), IsSupersetOf({Testo("00101_FAT_00127_20250314_00042_2200_11.txt"),
                                                     Testo("00102_FAT_00128_20250314_00042_1210_11.txt")}));
}

TEST_F(Corsa_Vettore, SenzaFlagLearNonSiScrivonoRecordEIVecchiDelGiornoVanno) {
  Metti_Vecchi();
  programma.preferenze.Flag_Lear = false;
  EXPECT_TRUE(Esegui());
  EXPECT_THAT(In("_ReportLear"), ElementsAre("20250313_00099_Lear.txt"));
  EXPECT_THAT(Banca(), StartsWith("0014032025    ITTIVE0000000042"));
}

TEST_F(Corsa_Vettore, SenzaTutteNonSiScriveNulla) {
  Metti_Vecchi();
  stampa.scelte.Tutte = false;
  EXPECT_FALSE(StampaFatNa(programma, stampa));
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("per stampare un documento alla volta fare doppio click sulla lista..."));
  EXPECT_EQ(Banca(), "transazioni di prima");
  EXPECT_THAT(In("_ReportLear"), ElementsAre("20250313_00099_Lear.txt", "20250314_00099_Lear.txt"));
  EXPECT_THAT(In("2025_fat/20250314"), IsEmpty());
}

TEST_F(Corsa_Vettore, UnaCorsaRifiutataToglieIRecordDelGiorno) {
  Metti_Vecchi();
  stampa.note[0].Numero = "NA";
  EXPECT_FALSE(Esegui());
  EXPECT_THAT(In("_ReportLear"), ElementsAre("20250313_00099_Lear.txt"));
  EXPECT_EQ(Banca(), "transazioni di prima");
  EXPECT_EQ(registro.pagine, 0);
}

TEST_F(Corsa_Vettore, LaSecondaCorsaNonLasciaNullaDellaPrima) {
  EXPECT_TRUE(Esegui());
  stampa.fatture[0].Numero = "00300";
  EXPECT_TRUE(Esegui());
  EXPECT_THAT(In("_ReportLear"),
              ElementsAre("20250314_00004_Lear.txt", "20250314_00128_Lear.txt", "20250314_00300_Lear.txt"));
  EXPECT_THAT(Banca(), Not(HasSubstr("00127/2025")));
}

TEST_F(Corsa_Vettore, UnClienteSoloDiPrezziAZeroNonHaFileNeRecord) {
  Vendi("00104", "0");
  stampa.fatture.push_back({"00104", "Mensa Remi", "", "00129"});
  EXPECT_TRUE(Esegui());
  EXPECT_EQ(In("2025_fat/20250314"), tre_documenti);
  EXPECT_THAT(In("_ReportLear"), Not(Contains("20250314_00129_Lear.txt")));
  // but he is the one who was looked up last
  EXPECT_EQ(Record_Di(Banca())[1].substr(7, 5), "00104");
}

TEST_F(Corsa_Vettore, IlReportEUnaCorsaSenzaCarta) {
  macchina.risposte = {true};
  EXPECT_TRUE(StampaReport(programma, stampa));
  EXPECT_EQ(registro.pagine, 0);
  EXPECT_THAT(macchina.domande, ElementsAre(HasSubstr("Salva su disco le fatture")));
  EXPECT_EQ(In("2025_fat/20250314"), tre_documenti);
  EXPECT_THAT(Record_Di(Banca()), SizeIs(5));
  EXPECT_THAT(macchina.aperti, ElementsAre(CartellaReport(programma)));
}

TEST_F(Corsa_Vettore, UnDoppioClicDisegnaENonLasciaFile) {
  stampa.scelte.Stampale = false;
  stampa.scelte.copie = 2;
  macchina.risposte = {true};
  EXPECT_TRUE(StampaVoce(programma, stampa, TipoFattura::Fattura, stampa.fatture[0]));
  EXPECT_THAT(macchina.domande, ElementsAre("OK per stampare questa fattura ...\nStampante VERTICALE\n"
                                            "OK per continuare..."));
  EXPECT_EQ(registro.pagine, 2);
  EXPECT_TRUE(Stampato("Arial 9 grassetto: 40,30"));
  EXPECT_THAT(In("2025_fat/20250314"), IsEmpty());
  EXPECT_THAT(In("XBanca"), IsEmpty());
  EXPECT_THAT(In("_ReportLear"), IsEmpty());
  EXPECT_FALSE(stampa.scelte.Tutte);
}

// ---- the disk fails

TEST_F(Corsa_Vettore, SuUnDiscoPienoNonSiStampaENulladiPrimaVaPerduto) {
  Metti_Vecchi();
  for (const Testo& guasto : tre_documenti) {
    programma.disco.guasto = [&](const Percorso& file) { return file.filename() == guasto ? ENOSPC : 0; };
    macchina.messaggi.clear();
    EXPECT_FALSE(Esegui());
    EXPECT_THAT(macchina.messaggi, ElementsAre(StartsWith("I documenti non sono stati scritti.\nErrore 28")));
    EXPECT_EQ(registro.pagine, 0);
    EXPECT_EQ(Banca(), "transazioni di prima");
    EXPECT_THAT(In("_ReportLear"), ElementsAre("20250313_00099_Lear.txt", "20250314_00099_Lear.txt"));
  }
}

TEST_F(Corsa_Vettore, UnRegistroCheNonSiScriveSiDiceEGliAltriSiScrivono) {
  struct Caso {
    const char *file, *messaggio, *resta, *scritto;
  };
  const Caso casi[] = {{"Transazioni_00042_20250314.txt", "Le transazioni non sono state scritte.\nErrore 28",
                        "XBanca/Transazioni_00042_20250314.txt", "_ReportLear/20250314_00127_Lear.txt"},
                       {"20250314_00128_Lear.txt", "I file Lear non sono stati scritti.\nErrore 28",
                        "_ReportLear/20250314_00099_Lear.txt", "XBanca/Transazioni_00042_20250314.txt"}};
  for (const auto& [file, messaggio, resta, scritto] : casi) {
    Metti_Vecchi();
    const Testo prima = cartella.Contenuto(resta);
    programma.disco.guasto = [guasto = Testo(file)](const Percorso& quale) {
      return quale.filename() == guasto ? ENOSPC : 0;
    };
    macchina.messaggi.clear();
    EXPECT_FALSE(Esegui());
    EXPECT_THAT(macchina.messaggi, ElementsAre(StartsWith(messaggio)));
    EXPECT_EQ(cartella.Contenuto(resta), prima);
    EXPECT_THAT(cartella.Contenuto(scritto), Not(HasSubstr("di prima")));
    EXPECT_EQ(titoli.back(), "Fatturazione");
  }
}

TEST_F(Corsa_Vettore, UnaVecchiaTransazioneCheRestaSiDice) {
  Metti_Vecchi();
  programma.disco.guasto = [](const Percorso& file) {
    return file.filename() == "20250313.txt" ? EACCES : 0;
  };
  EXPECT_FALSE(Esegui());
  EXPECT_THAT(macchina.messaggi,
              ElementsAre(StartsWith("Le transazioni di prima non si possono cancellare.")));
  EXPECT_THAT(Record_Di(Banca()), SizeIs(5));
}

TEST_F(Corsa_Vettore, IModuliSuUnFoglioCoricatoSiDiconoUnaVolta) {
  macchina.stampante->orizzontale = true;
  printer.orientamento_fisso = true;
  EXPECT_TRUE(Esegui());
  EXPECT_THAT(macchina.messaggi, ElementsAre("la stampante non è orientata in verticale"_t, fatto));
  EXPECT_EQ(In("2025_fat/20250314"), tre_documenti);
}

}  // namespace

#include "invoices/stampa_fatture.h"

#include <gmock/gmock.h>

#include "invoices/file_fatture.h"
#include "invoices/pagine_testo.h"
#include "invoices/rapporto.h"
#include "printing/registratore.h"
#include "tests/invoices/stampe_di_prova.h"

namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

const Testo fatto = "quanto richiesto è stato fatto...."_t;

struct Stampe_Fatture : Stampe_Di_Prova {
  Stampe_Fatture() {
    programma.preferenze.Numero_Posteggio = "12";
    programma.Ragione[0] = "Ittica Laguna";
    Due_Clienti();
    stampa.Text2 = " Chioggia ";
  }
  std::vector<Testo> Documenti_Stampati() const {
    std::vector<Testo> documenti;
    for (const Testo& riga : registro.righe)
      if (riga.starts_with("documento ")) documenti.push_back(riga);
    return documenti;
  }
  void Metti_Vecchi() const {
    cartella.Metti("2025_fat/20250314/00101_FAT_00099_20250314_00042_100_11.txt", "vecchia");
    cartella.Metti("2025_fat/20250314/appunti.txt", "estraneo");
    cartella.Metti("2025_fat/Report/20250314_00042_RepFat.txt", "vecchio report");
  }
};

const std::vector<Testo> tre_documenti = {"00101_FAT_00127_20250314_00042_2200_11.txt",
                                          "00101_NAC_NA004_20250314_00042_-330_11.txt",
                                          "00102_FAT_00128_20250314_00042_1210_11.txt"};

TEST_F(Stampe_Fatture, UnaCorsaScriveFileEReport) {
  Metti_Vecchi();
  EXPECT_TRUE(Esegui());
  EXPECT_EQ(File(), tre_documenti);
  EXPECT_THAT(Report(), HasSubstr("numero Fatture emesse = 2\r\n"));
  EXPECT_THAT(Report(), HasSubstr("*************** Totale euro =      34,10\r\n"));
  EXPECT_THAT(Report(), HasSubstr("Nac n.NA004 a: 00101 per euro      -3,30\r\n"));
  EXPECT_THAT(macchina.messaggi, ElementsAre(fatto));
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_TRUE(programma.Tabella_Modificata);
  EXPECT_EQ(programma.preferenze.CittaCV, "Chioggia");
}

TEST_F(Stampe_Fatture, LaDidascaliaDiceACheePunto) {
  Esegui();
  EXPECT_THAT(titoli, ElementsAre("Cancellazione Fatture e Transazioni di oggi...",
                                  "Controlo numerazione....", "00101 Pagina 1 di 1 in corso...",
                                  "00101 Pagina 1 di 1 in corso...", "00102 Pagina 1 di 1 in corso...",
                                  "Prepara i report...", "Selezione documenti....", "Selezione documenti....",
                                  "Prepara file transazioni con vet_report", "Fatturazione"));
  EXPECT_TRUE(lavorava);
  EXPECT_FALSE(macchina.occupato);
}

// The credit notes come first, and only the invoices write their numbers into the rows.
TEST_F(Stampe_Fatture, INumeriDelleFattureVannoNelleRighe) {
  Esegui();
  EXPECT_THAT(Colonna(CampoRiga::FAT), ElementsAre("00127", "00128", "NA"));
  EXPECT_THAT(Colonna(CampoRiga::DDT), ElementsAre("007", "008", "R.Fat. 00120 - 10/03/2025"));
}

TEST_F(Stampe_Fatture, LaSecondaCorsaNonLasciaNullaDellaPrima) {
  Esegui();
  stampa.fatture[0].Numero = "00200";
  EXPECT_TRUE(Esegui());
  EXPECT_THAT(File(),
              ElementsAre("00101_FAT_00200_20250314_00042_2200_11.txt", tre_documenti[1], tre_documenti[2]));
}

TEST_F(Stampe_Fatture, ONulla) {
  struct Caso {
    std::function<void(Stampa_Fatture&)> guasta;
    Testo messaggio;
  };
  const Testo senza_fatture = "Non tutti le fatture sono numerate... numerare tutte le fatture";
  const Testo senza_note = "Non tutti le note di credito sono numerate... numerare tutte le fatture";
  const Caso casi[] = {{[](Stampa_Fatture& s) { s.fatture = s.note = {}; }, "nulla da fare..."},
                       {[](Stampa_Fatture& s) { s.scelte.Tutte = false; },
                        "per stampare un documento alla volta fare doppio click sulla lista..."},
                       {[](Stampa_Fatture& s) { s.fatture[1].Numero = ""; }, senza_fatture},
                       {[](Stampa_Fatture& s) { s.note[0].Numero = ""; }, senza_note}};
  const Stampa_Fatture buona = stampa;
  Metti_Vecchi();
  for (const auto& [guasta, messaggio] : casi) {
    stampa = buona;
    guasta(stampa);
    macchina.messaggi.clear();
    EXPECT_FALSE(StampaFatNa(programma, stampa));
    EXPECT_THAT(macchina.messaggi, ElementsAre(messaggio));
  }
  EXPECT_THAT(macchina.domande, IsEmpty());
  stampa = buona;
  EXPECT_FALSE(Esegui(false));  // Cancel
  EXPECT_THAT(File(), SizeIs(2));
  EXPECT_EQ(Report(), "vecchio report");
  EXPECT_FALSE(programma.Tabella_Modificata);
}

// The checks on the notes' numbers come after the day's files have gone.
TEST_F(Stampe_Fatture, UnaNotaColSoloNAFermaLaCorsaDopoLaCancellazione) {
  for (const Testo& numero : {Testo("NA"), Testo("00005"), Testo("NA000")}) {
    Metti_Vecchi();
    stampa.note[0].Numero = numero;
    macchina.messaggi.clear();
    EXPECT_FALSE(Esegui());
    EXPECT_THAT(macchina.messaggi,
                ElementsAre("Non tutte le note di accredito sono numerate correttamente... "
                            "numerare tutte le note di accredito"));
    EXPECT_THAT(File(), IsEmpty());
    EXPECT_EQ(Report(), "manca");
    EXPECT_FALSE(macchina.occupato);
  }
}

TEST_F(Stampe_Fatture, SoloNoteOSoloFatture) {
  stampa.note.clear();
  EXPECT_TRUE(Esegui());
  EXPECT_THAT(File(), ElementsAre(tre_documenti[0], tre_documenti[2]));
  EXPECT_THAT(Report(), HasSubstr("numero Note di credito = 0\r\n"));
  stampa.note = {{"00101", "Pescheria Rialto", "x", "NA004"}};
  stampa.fatture.clear();
  EXPECT_TRUE(Esegui());
  EXPECT_THAT(File(), ElementsAre(tre_documenti[1]));
}

TEST_F(Stampe_Fatture, UnDocumentoSenzaVociNonLasciaFile) {
  Vendi("00103", "0");
  stampa.fatture.push_back({"00103", "Ittica Nord", "", "00129"});
  EXPECT_TRUE(Esegui());
  EXPECT_EQ(File(), tre_documenti);
}

TEST_F(Stampe_Fatture, UnClienteFuoriListaSiStampaEPrendeIlCodiceDellUltimo) {
  Vendi("00999", "1");
  stampa.fatture = {{"00999", "Ignoto", "", "00127"}};
  stampa.note.clear();
  EXPECT_TRUE(Esegui());
  EXPECT_THAT(macchina.messaggi, ElementsAre(StartsWith("cliente non trovato "), fatto));
  EXPECT_THAT(File(), ElementsAre("00104_FAT_00127_20250314_00042_220_11.txt"));
}

// ---- the disk fails

TEST_F(Stampe_Fatture, SuUnDiscoPienoRestaQuelCheCEra) {
  Metti_Vecchi();
  for (const Testo& guasto : tre_documenti) {
    programma.disco.guasto = [&](const Percorso& file) { return file.filename() == guasto ? ENOSPC : 0; };
    macchina.messaggi.clear();
    EXPECT_FALSE(Esegui());
    ASSERT_THAT(macchina.messaggi, SizeIs(1));
    EXPECT_THAT(macchina.messaggi[0], StartsWith("I documenti non sono stati scritti.\nErrore 28: "));
    EXPECT_THAT(macchina.messaggi[0], HasSubstr("sono rimasti come erano."));
    EXPECT_THAT(File(), ElementsAre("00101_FAT_00099_20250314_00042_100_11.txt", "appunti.txt"));
    EXPECT_EQ(Report(), "vecchio report");
    EXPECT_FALSE(macchina.occupato);
    EXPECT_EQ(titoli.back(), "Fatturazione");
  }
}

TEST_F(Stampe_Fatture, UnaCartellaCheNonSiFaLoDice) {
  Disco_Pieno();
  EXPECT_FALSE(Esegui());
  EXPECT_THAT(macchina.messaggi, ElementsAre(HasSubstr("2025_fat")));
  EXPECT_FALSE(macchina.occupato);
}

TEST_F(Stampe_Fatture, UnReportCheNonSiScriveLoDice) {
  programma.disco.guasto = [](const Percorso& file) {
    return file.filename() == "20250314_00042_RepFat.txt" ? EACCES : 0;
  };
  EXPECT_FALSE(Esegui());
  EXPECT_THAT(macchina.messaggi, ElementsAre(StartsWith("Il report non è stato scritto."_t)));
  EXPECT_EQ(File(), tre_documenti);
}

TEST_F(Stampe_Fatture, DocumentiCheNonSiCancellanoFermanoQuelliDisegnati) {
  Metti_Vecchi();
  stampa.scelte.Check1 = true;
  programma.disco.guasto = [](const Percorso& file) { return file.filename() == "appunti.txt" ? EACCES : 0; };
  EXPECT_FALSE(Esegui());
  EXPECT_THAT(macchina.messaggi, ElementsAre(StartsWith("I documenti di prima non si possono cancellare.")));
  EXPECT_THAT(registro.righe, IsEmpty());
}

// ---- on paper

TEST_F(Stampe_Fatture, ConStampaLeFattureEsconoCoricate) {
  stampa.scelte.Stampale = true;
  EXPECT_TRUE(Esegui());
  EXPECT_THAT(Documenti_Stampati(), ElementsAre("documento \"20250314 Fattura 00127 00101\" Registro",
                                                "documento \"20250314 Fattura 00128 00102\" Registro"));
  EXPECT_THAT(registro.righe, Contains("pagina 1 orizzontale 297x210"));
  EXPECT_THAT(registro.righe, Contains(HasSubstr("Courier 10: | Orata")));
}

TEST_F(Stampe_Fatture, DuePerFoglioPrimaLeFatturePoiLeNote) {
  stampa.scelte.Stampale = stampa.scelte.Paginax2 = true;
  EXPECT_TRUE(Esegui());
  EXPECT_THAT(Documenti_Stampati(),
              ElementsAre("documento \"20250314 Fattura 00127 00101\" Registro",
                          "documento \"20250314 Nota di Accredito NA004 00101\" Registro"));
  EXPECT_EQ(registro.pagine, 2);
  EXPECT_THAT(registro.righe, Contains("pagina 1 verticale 210x297"));
  // the heads of the two invoices on their sheet, half of it apart
  std::vector<Testo> teste;
  for (const Testo& riga : registro.righe)
    if (riga.ends_with("00101") || riga.ends_with("00102")) teste.push_back(riga.substr(0, riga.find(':')));
  EXPECT_THAT(teste, ElementsAre("p1 testo 0.18 2.80 Courier 7", "p1 testo 0.18 151.30 Courier 7",
                                 "p1 testo 0.18 2.80 Courier 7"));
}

TEST_F(Stampe_Fatture, DiUnaPaginaInDueCinquantadueRighe) {
  programma.Vet_Tabella.righe.clear();
  for (int i = 0; i < 16; ++i) Vendi("00101", std::to_string(i + 1));
  stampa.fatture.resize(1);
  stampa.note.clear();
  stampa.scelte.Paginax2 = true;
  EXPECT_TRUE(Esegui());
  std::vector<Testo> righe;
  for (const Testo& riga : registro.righe)
    if (riga.starts_with("p1 testo ")) righe.push_back(riga);
  EXPECT_THAT(righe, SizeIs(52 + 1));              // the blank that opens the page
  EXPECT_THAT(righe.back(), HasSubstr(" Euro "));  // the sums are the last line
}

// The sums of a full page stand on line 52 of 55: the lines come closer so that they are on the sheet.
TEST_F(Stampe_Fatture, UnaPaginaPienaStaTuttaSulFoglioCoricato) {
  programma.Vet_Tabella.righe.clear();
  for (int i = 0; i < 16; ++i) Vendi("00101", std::to_string(i + 1));
  stampa.fatture.resize(1);
  stampa.note.clear();
  stampa.scelte.Stampale = true;
  EXPECT_TRUE(Esegui());
  double ultima = 0;
  for (const Testo& riga : registro.righe)
    if (riga.starts_with("p1 testo "))
      ultima = std::max(ultima, Valore(riga.substr(riga.find(' ', 9) + 1), '.'));
  EXPECT_GT(ultima, 190);
  EXPECT_LE(ultima, 210 - 3.5);  // with the height of its letters
}

TEST_F(Stampe_Fatture, LePersonalizzateSiDisegnanoENonLascianoFile) {
  Metti_Vecchi();
  stampa.scelte.Personalizzata = stampa.scelte.Paginax2 = true;
  stampa.scelte.copie = 2;
  EXPECT_TRUE(Esegui());
  EXPECT_THAT(File(), IsEmpty());
  EXPECT_THAT(Report(), HasSubstr("numero Fatture emesse = 0\r\n"));
  EXPECT_TRUE(stampa.scelte.Stampale);
  EXPECT_FALSE(stampa.scelte.Paginax2);
  EXPECT_EQ(registro.pagine, 6);
  EXPECT_THAT(Documenti_Stampati()[0], HasSubstr("Nota di Accredito NA004"));  // the notes come first
  EXPECT_THAT(registro.righe, IsSupersetOf({"p1 testo 6.00 44.50 Arial 10: NOTA CREDITO N. NA004",
                                            "p1 testo 6.00 44.50 Arial 10: Fattura N. 00128",
                                            "p1 testo 6.00 39.00 Arial 10: Chioggia, 14/03/2025"}));
}

TEST_F(Stampe_Fatture, SenzaGraficaNonSiFaLaCompleta) {
  stampa.scelte.Completa = true;
  EXPECT_TRUE(Esegui());
  EXPECT_FALSE(stampa.scelte.Completa);
  EXPECT_EQ(File(), tre_documenti);
}

TEST_F(Stampe_Fatture, IModuliSuUnFoglioCoricatoSiDiconoUnaVolta) {
  macchina.stampante->orizzontale = true;
  printer.orientamento_fisso = true;
  stampa.scelte.Check1 = true;
  stampa.note.clear();
  EXPECT_TRUE(Esegui());
  EXPECT_THAT(macchina.messaggi, ElementsAre("la stampante non è orientata in verticale"_t, fatto));
  EXPECT_THAT(registro.righe, IsEmpty());
}

TEST_F(Stampe_Fatture, LaConferma) {
  struct Caso {
    bool personalizzata, check1, stampale, paginax2;
    Testo cosa;
  };
  const Testo grafica =
      "Stampa tutte le fatture e note di accredito personalizzate \n"
      "la stampa avviene nell'ordine che si vede in lista.";
  const Testo disco =
      "Salva su disco le fatture (un file per pagina) ordinate per codice cliente\nper i clienti (e "
      "casellario).";
  const Testo stampa_tutto = "Stampa (sulla stampante) ed esporta tutte le fatture e le note di credito\n";
  const Caso casi[] = {
      {false, false, false, false, disco},
      {false, false, false, true, disco},
      {false, false, true, false,
       stampa_tutto + "la stampa avviene nell'ordine che si vede in lista.\nStampa una fatture per pagina "
                      "(in orizzontale) "},
      {false, false, true, true,
       stampa_tutto + "Stampa due fatture per pagina (in verticale) ordinate per numero di fattura\n"
                      "per ARCHIVIAZIONE."},
      {true, false, true, false, grafica},
      {true, true, false, false, grafica},
      {false, true, true, true, grafica}};
  for (const auto& [personalizzata, check1, stampale, paginax2, cosa] : casi) {
    const Scelte_Stampa scelte{
        .Stampale = stampale, .Paginax2 = paginax2, .Personalizzata = personalizzata, .Check1 = check1};
    EXPECT_EQ(ConfermaFatNa(scelte, "Stampante VERTICALE"),
              "\n\nStampante VERTICALE\n\n" + cosa + "\ni dati devono essere giusti.\nOK per continuare...");
  }
}

TEST_F(Stampe_Fatture, LaConfermaDiceComeSiGiraIlFoglio) {
  struct Caso {
    bool personalizzata, check1, paginax2;
    Vista orientamento;
  };
  const Caso casi[] = {{false, false, false, "ORIZZONTALE"}, {false, false, true, "VERTICALE"},
                       {true, false, true, "VERTICALE"},     {false, true, false, "VERTICALE"},
                       {true, true, false, "ORIZZONTALE"},   {true, true, true, "VERTICALE"}};
  for (const auto& [personalizzata, check1, paginax2, orientamento] : casi) {
    stampa.scelte = {.Paginax2 = paginax2, .Personalizzata = personalizzata, .Check1 = check1};
    Esegui(false);
    EXPECT_THAT(macchina.domande.back(), StartsWith("\n\nStampante " + Testo(orientamento) + "\n\n"));
  }
}

// The bank's file is a carrier's affair: other firms see the caption pass and get none.
TEST_F(Stampe_Fatture, SenzaVettoreNonSiScrivonoTransazioni) {
  EXPECT_TRUE(Esegui());
  EXPECT_EQ(titoli[titoli.size() - 2], "Prepara file transazioni con vet_report");
  EXPECT_FALSE(programma.disco.Esiste_Cartella(cartella / "XBanca"));
  EXPECT_FALSE(programma.disco.Esiste_Cartella(cartella / "_ReportLear"));
}

// What a credit note is drawn by goes with the firm.
TEST_F(Stampe_Fatture, LaNotaDisegnataSegueIlProfilo) {
  struct Caso {
    Vista ditta;
    bool completa;
    Testo titolo;
    bool intestazione_in_riga;
  };
  const Caso casi[] = {{"Altinel", false, "Nota di Credito n. NA004", false},
                       {"Cavarzo", true, "Nota di Credito n. NA004", false},
                       {"Brenval", false, "Nota di Credito n. NA004", true},
                       {"Burvano", true, "Nota di Credito n. NA004", true},
                       {"42", false, "NOTA CREDITO N. NA004", false},
                       {"42", true, "Nota di Credito n. NA004", true}};
  stampa.fatture.clear();
  stampa.scelte.Personalizzata = true;
  for (const auto& [ditta, completa, titolo, intestazione_in_riga] : casi) {
    programma.preferenze.Codice_Commissionario = ditta;
    stampa.scelte.Completa = completa;
    registro = {};
    EXPECT_TRUE(Esegui());
    EXPECT_THAT(registro.righe, Contains(HasSubstr(titolo))) << ditta;
    const auto in_riga = HasSubstr("Ittica Laguna - 12 cod. " + Testo(ditta));
    EXPECT_THAT(registro.righe, testing::Contains(in_riga).Times(intestazione_in_riga ? 1 : 0)) << ditta;
  }
}

TEST_F(Stampe_Fatture, SoloIFileDeiDocumentiVannoSuCarta) {
  cartella.Metti("x_11.doc", "x");
  for (const Percorso& nome : {Percorso(), cartella / "x_11.doc", cartella / "non_ce_11.txt"})
    StampaFileTesto(programma, nome, TipoFattura::Fattura);
  EXPECT_THAT(registro.righe, IsEmpty());
}

// A page that went to the disk and doesn't come back from it is missing on paper, and nobody would know.
struct Pagina_Non_Riletta : Stampe_Fatture {
  // The second customer's page, as soon as it is written.
  void Guasta() const {
    const Percorso file = cartella / "2025_fat/20250314" / tre_documenti[2];
    if (!std::filesystem::is_regular_file(file)) return;
    std::filesystem::remove(file);
    std::filesystem::create_symlink("/proc/self/mem", file);  // is there, and reads as an error
  }
  Testo Detta() const {
    return "Una pagina non si è potuta rileggere: sulla carta manca.\nErrore 5: "_t + Testo_Errore(EIO) +
           "\n" + Testo_Percorso(cartella / "2025_fat/20250314" / tre_documenti[2]) +
           "\nControllare il disco e ripetere la stampa.";
  }
};

TEST_F(Pagina_Non_Riletta, UnaPerFoglio) {
  stampa.scelte = {.Tutte = true, .Stampale = true};
  macchina.fra_le_unita = [this] { Guasta(); };
  EXPECT_FALSE(Esegui());
  EXPECT_THAT(macchina.messaggi, ElementsAre(Detta()));
  EXPECT_THAT(Documenti_Stampati(), SizeIs(1));
}

TEST_F(Pagina_Non_Riletta, DuePerFoglio) {
  stampa.scelte = {.Tutte = true, .Stampale = true, .Paginax2 = true};
  stampa.titolo = [this](const Testo& titolo) {
    if (titolo == "Prepara i report...") Guasta();
  };
  EXPECT_FALSE(Esegui());
  EXPECT_THAT(macchina.messaggi, ElementsAre(Detta()));
  EXPECT_THAT(Documenti_Stampati(), SizeIs(2));
  EXPECT_THAT(registro.righe, Contains(HasSubstr("FATTURA N.00127")));
  EXPECT_THAT(registro.righe, Not(Contains(HasSubstr("FATTURA N.00128"))));
}

// The sheet is called by what stands on it.
TEST_F(Pagina_Non_Riletta, IlFoglioHaIlNomeDiQuelloCheCiSta) {
  stampa.fatture.erase(stampa.fatture.begin());
  Vendi("00300", "10", "00300", "");
  stampa.fatture.push_back({"00300", "Cliente", "00300", "00300"});
  stampa.scelte = {.Tutte = true, .Stampale = true, .Paginax2 = true};
  stampa.titolo = [this](const Testo& titolo) {
    if (titolo == "Prepara i report...") Guasta();
  };
  EXPECT_FALSE(Esegui());
  EXPECT_THAT(Documenti_Stampati(), Contains(HasSubstr("00300")));
  EXPECT_THAT(Documenti_Stampati(), Not(Contains(HasSubstr("00128"))));
}

TEST_F(Pagina_Non_Riletta, DiTanteSiDiconoLePrime) {
  for (int n = 0; n < 7; ++n) {
    const Testo codice = "0020" + std::to_string(n), numero = "0020" + std::to_string(n);
    Vendi(codice, "10", codice, "");
    stampa.fatture.push_back({codice, "Cliente", codice, numero});
  }
  stampa.scelte = {.Tutte = true, .Stampale = true, .Paginax2 = true};
  stampa.titolo = [this](const Testo& titolo) {
    if (titolo != "Prepara i report...") return;
    for (const Testo& nome : File()) {
      std::filesystem::remove(cartella / "2025_fat/20250314" / nome);
      std::filesystem::create_directory(cartella / "2025_fat/20250314" / nome);
    }
  };
  EXPECT_FALSE(Esegui());
  ASSERT_FALSE(macchina.messaggi.empty());
  EXPECT_THAT(macchina.messaggi.back(),
              StartsWith("10 pagine non si sono potute rileggere: sulla carta mancano.\n"));
  EXPECT_THAT(Righe(macchina.messaggi.back()), SizeIs(2 + 5 + 2));
  EXPECT_THAT(macchina.messaggi.back(), HasSubstr("\n...\nControllare il disco e ripetere la stampa."));
}

TEST_F(Pagina_Non_Riletta, UnDocumentoDaSolo) {
  stampa.scelte = {.Stampale = true, .copie = 3};
  macchina.risposte = {true};
  // The sheet is turned when the page is written, before it is read.
  struct Girata : Registratore {
    using Registratore::Registratore;
    std::function<void()> durante;
    void Orienta(int orientamento) override {
      durante();
      Registratore::Orienta(orientamento);
    }
  } girata{macchina.stampante, registro};
  girata.durante = [this] { Guasta(); };
  macchina.dispositivo = &girata;
  EXPECT_FALSE(StampaVoce(programma, stampa, TipoFattura::Fattura, stampa.fatture[1]));
  EXPECT_THAT(macchina.messaggi, ElementsAre(Detta()));
  EXPECT_THAT(Documenti_Stampati(), IsEmpty());
}

// ---- one document

TEST_F(Stampe_Fatture, SenzaStampaIlDoppioClicApreLaCartella) {
  EXPECT_TRUE(StampaVoce(programma, stampa, TipoFattura::Fattura, stampa.fatture[0]));
  EXPECT_THAT(macchina.aperti, ElementsAre(cartella / "2025_fat/20250314"));
  EXPECT_THAT(macchina.domande, IsEmpty());
  EXPECT_TRUE(stampa.scelte.Tutte);
}

TEST_F(Stampe_Fatture, UnDocumentoDaSolo) {
  Metti_Vecchi();
  stampa.scelte = {.Tutte = true, .Stampale = true, .Paginax2 = true, .copie = 2};
  macchina.risposte = {true, true};
  EXPECT_TRUE(StampaVoce(programma, stampa, TipoFattura::Fattura, stampa.fatture[1]));
  EXPECT_FALSE(stampa.scelte.Tutte);
  EXPECT_FALSE(stampa.scelte.Paginax2);
  EXPECT_THAT(macchina.domande,
              ElementsAre("OK per stampare questa fattura ...\nStampante ORIZZONTALE\nOK per continuare..."));
  EXPECT_THAT(File(), Contains(tre_documenti[2]));
  EXPECT_THAT(File(), Contains("appunti.txt"));  // one document takes nothing away
  EXPECT_THAT(Documenti_Stampati(), SizeIs(2));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Pronto per nuova operazione...."));
  EXPECT_THAT(Colonna(CampoRiga::FAT), ElementsAre("", "00128", "NA"));

  EXPECT_TRUE(StampaVoce(programma, stampa, TipoFattura::Nota, stampa.note[0]));
  EXPECT_EQ(macchina.domande.back(),
            "OK per stampare questa nota di credito ...\nStampante ORIZZONTALE\nOK per continuare...");
  EXPECT_THAT(File(), Contains(tre_documenti[1]));
}

TEST_F(Stampe_Fatture, UnDocumentoDisegnatoDaSolo) {
  stampa.scelte.Check1 = true;
  macchina.risposte = {true};
  EXPECT_TRUE(StampaVoce(programma, stampa, TipoFattura::Fattura, stampa.fatture[0]));
  EXPECT_THAT(macchina.domande[0], HasSubstr("VERTICALE"));
  EXPECT_EQ(registro.pagine, 1);
  EXPECT_THAT(File(), IsEmpty());
}

TEST_F(Stampe_Fatture, UnDocumentoSenzaNumeroNonSiStampa) {
  stampa.scelte.Stampale = true;
  stampa.fatture[0].Numero = "";
  stampa.note[0].Numero = "NA";
  macchina.risposte = {true, true, false};
  EXPECT_FALSE(StampaVoce(programma, stampa, TipoFattura::Fattura, stampa.fatture[0]));
  EXPECT_FALSE(StampaVoce(programma, stampa, TipoFattura::Nota, stampa.note[0]));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Mancano numeri di fattura...del cliente 00101",
                                             "Manca il numero di nota di accredito a 00101..."));
  EXPECT_FALSE(StampaVoce(programma, stampa, TipoFattura::Fattura, stampa.fatture[1]));  // Cancel
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_THAT(File(), IsEmpty());
}

TEST_F(Stampe_Fatture, UnDocumentoCheNonSiScriveNonSiStampa) {
  stampa.scelte.Stampale = true;
  std::filesystem::create_directories(cartella / "2025_fat/20250314");
  Disco_Pieno();
  macchina.risposte = {true};
  EXPECT_FALSE(StampaVoce(programma, stampa, TipoFattura::Fattura, stampa.fatture[0]));
  EXPECT_THAT(macchina.messaggi, ElementsAre(StartsWith("Il documento non è stato scritto."_t)));
  EXPECT_THAT(registro.righe, IsEmpty());
}

// ---- report, archive, menu "Mostra"

TEST_F(Stampe_Fatture, IlReportEUnaCorsaSenzaCarta) {
  stampa.scelte = {
      .Tutte = false, .Stampale = true, .Paginax2 = true, .Personalizzata = true, .Completa = true};
  macchina.risposte = {true};
  EXPECT_TRUE(StampaReport(programma, stampa));
  EXPECT_EQ(File(), tre_documenti);
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_THAT(macchina.aperti, ElementsAre(cartella / "2025_fat/Report"));
  EXPECT_TRUE(stampa.scelte.Tutte);
  EXPECT_TRUE(stampa.scelte.Personalizzata);  // the operator's own box
  EXPECT_FALSE(stampa.scelte.Stampale || stampa.scelte.Paginax2 || stampa.scelte.Completa);
}

TEST_F(Stampe_Fatture, LArchivioVaEViene) {
  Scelte_Stampa scelte{.Tutte = false, .Stampale = true};
  Ordine_Archivio ordine = CambiaArchivio(scelte);
  EXPECT_TRUE(scelte.Tutte && scelte.Stampale && scelte.Paginax2);
  EXPECT_EQ(ordine.colonna, ColonnaFatture::Numero);
  EXPECT_EQ(ordine.didascalia, "Archivio");
  ordine = CambiaArchivio(scelte);
  EXPECT_TRUE(scelte.Tutte);
  EXPECT_FALSE(scelte.Stampale || scelte.Paginax2);
  EXPECT_EQ(ordine.colonna, ColonnaFatture::Codice);
  EXPECT_EQ(ordine.didascalia, "x Clienti");
}

TEST_F(Stampe_Fatture, MostraDiceQuelCheManca) {
  MostraTransazioni(programma);
  MostraFatture(programma);
  MostraReport(programma);
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("la cartella\n" + Testo_Percorso(cartella / "XBanca") + "\nnon siste...",
                          "la cartella\n" + Testo_Percorso(cartella / "2025_fat/20250314") + "\nnon siste...",
                          "non esiste...."));
  EXPECT_THAT(macchina.aperti, IsEmpty());
  std::filesystem::create_directories(cartella / "XBanca");
  Esegui();
  MostraTransazioni(programma);
  MostraFatture(programma);
  MostraReport(programma);
  EXPECT_THAT(macchina.aperti, ElementsAre(cartella / "XBanca", cartella / "2025_fat/20250314",
                                           cartella / "2025_fat/Report/20250314_00042_RepFat.txt"));
}

TEST_F(Stampe_Fatture, IlFormatoDelleTransazioni) {
  MostraFormatoSemplice(programma);
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("Formato del file .txt con la lista delle transazioni.\ncampo  :  contenuto\n"
                          "1 : numero fattura\n2 : data=data Fattura\n3 : IBAN Cliente\n"
                          "4 : importo da accreditare moltiplicato per 100 (senza separatore decimale)\n"
                          "5 : IBAN commmissionario beneficiario\n"
                          "il file si trova temporaneamente nella cartella .\\xbanca32"));
}

}  // namespace

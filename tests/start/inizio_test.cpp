#include "start/inizio.h"

#include <cerrno>
#include <gmock/gmock.h>

#include "core/giorno.h"
#include "core/profili.h"
#include "tests/start/cartella_prova.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Inizio : public Cartella_Prova {
 protected:
  Inizio() : programma(macchina) {
    programma.Cartella_Dati = cartella;
    programma.Oggi = macchina.oggi;
    Scrivi("_Client32.txt", "00001\tCliente\tsop\tvia\tcitta\t1\t-\t-\t\r\n");
    Scrivi("_2020_Fornitori.txt", "0001\tMare\t\tvia\tcitta\t1\t6,5\tppqq\t\r\n");
    Scrivi("_2020_Descri32.txt", "10\tOrata\tSparus aurata\tSparidae\t1\tOrata\t1\tSBG\r\n");
  }
  void Oggi(const Data& giorno) {
    macchina.oggi = giorno;
    programma.Oggi = giorno;
  }
  void Carica() { Carica_Inizio(programma, inizio); }
  void Scegli(const Testo& giorno, int mese, const Testo& anno) {
    inizio.Text1.testo = giorno;
    inizio.Combo1.scelta = mese - 1;
    inizio.Text3.testo = anno;
    Cambia_Data(programma, inizio);
  }
  bool Apri() { return Apri_Giorno(programma, inizio); }
  static Testo Riga_Giorno(const Testo& num, const Testo& fornitore, const Testo& ncv = "") {
    Testo riga = num + "\t" + fornitore + "\tCliente\t00001\tOrata\tA0837\t12.50\t9,80\t10\t1\t" + ncv;
    return riga + Testo(Num_Campi - 11, TAB) + "\r\n";
  }

  Programma programma;
  B_Inizio inizio;
};

// ---- what the screen shows

TEST_F(Inizio, I_testi_dello_schermo) {
  programma.preferenze.Codice_Commissionario = "7";
  programma.preferenze.Numero_Posteggio = "03";
  programma.Ragione[0] = "Mare Blu s.n.c.";
  Carica();
  EXPECT_EQ(inizio.titolo, "PrimaNota 14/03/2025 - Velmara_2020 (" + Testo_Percorso(cartella) + ")");
  EXPECT_EQ(inizio.Prompt.testo, "Scegliere Anno, Mese e il Giorno desiderato ... ");
  EXPECT_EQ(inizio.Text1.testo, "14");
  EXPECT_EQ(inizio.Combo1.Scelta(), "Marzo");
  EXPECT_EQ(inizio.Combo1.Numero(), 12U);
  EXPECT_EQ(inizio.Combo1.Riga(0), "Gennaio");
  EXPECT_EQ(inizio.Combo1.Riga(11), "Dicembre");
  EXPECT_EQ(inizio.Text3.testo, "2025");
  EXPECT_EQ(inizio.Label13.testo, "(Venerdì)"_t);
  EXPECT_EQ(inizio.Ditta.testo, "Codice :7 posteggio = 03");
  EXPECT_EQ(inizio.RagioneSociale.testo, "Mare Blu s.n.c.");
  EXPECT_EQ(inizio.Moduli.testo,
            "Prima Nota, Conto Vendita, DDT, Documento di trasporto Sanitario, Privacy. \nFatturazione "
            "(opzionale) ");
  EXPECT_EQ(inizio.Nota.testo, " Utilizza la modalità con codici ALFA3 dal  1 marzo 2020"_t);
  EXPECT_EQ(inizio.Command1.testo, "&Abbandona");
  EXPECT_EQ(inizio.Command2.testo, "&Continua ...");
  EXPECT_EQ(inizio.Command4.testo, "Wipe");
  EXPECT_EQ(inizio.Command5.testo, "Exp. Utente");
  EXPECT_EQ(inizio.Command6.testo, "Controllo CV");
  EXPECT_EQ(inizio.Command7.testo, "Copia in..");
  EXPECT_EQ(inizio.Command8.testo, "&Back Up");
  EXPECT_EQ(inizio.Command9.testo, "2503.dat");
  EXPECT_EQ(inizio.Command10.testo, "Gestione Liste");
  EXPECT_EQ(inizio.Command14.testo, "Stampa Fatture");
  EXPECT_EQ(inizio.Command14.suggerimento, "Statistiche per Decade");
  EXPECT_EQ(inizio.Command15.testo, "Prepara .dat");
  EXPECT_EQ(inizio.Command16.testo, "Servizio Stampa");
}

TEST_F(Inizio, La_riga_di_stato_dice_stampante_e_separatore) {
  struct Caso {
    std::optional<Stampante> stampante;
    char separatore;
    const char* atteso;
  };
  const Caso casi[] = {{Stampante{"A", false}, ',', " - Verticale -  Separatore decimali = VIRGOLA"},
                       {Stampante{"A", true}, ',', " - Orizzontale -  Separatore decimali = VIRGOLA"},
                       {Stampante{"A", true}, '.', " - Orizzontale -  Separatore decimali = PUNTO"},
                       {std::nullopt, '.', " - Verticale -  Separatore decimali = PUNTO"}};
  for (const Caso& caso : casi) {
    macchina.stampante = caso.stampante;
    programma.Separatore_Decimale = caso.separatore;
    Carica();
    EXPECT_EQ(inizio.Stato.testo, caso.atteso);
  }
}

TEST_F(Inizio, Il_giorno_della_settimana_segue_la_data) {
  struct Caso {
    const char* giorno;
    int mese;
    const char* anno;
    Testo atteso;
  };
  const Caso casi[] = {
      {"16", 3, "2025", "(Domenica)"},    {"17", 3, "2025", "(Lunedì)"_t},  {"18", 3, "2025", "(Martedì)"_t},
      {"19", 3, "2025", "(Mercoledì)"_t}, {"20", 3, "2025", "(Giovedì)"_t}, {"21", 3, "2025", "(Venerdì)"_t},
      {"22", 3, "2025", "(Sabato)"},      {"9", 3, "2025", "(Domenica)"},   {"31", 4, "2025", "(errore)"},
      {"29", 2, "2025", "(errore)"},      {"29", 2, "2024", "(Giovedì)"_t}, {"", 3, "2025", "(errore)"},
      {"xx", 3, "2025", "(errore)"},      {"14", 3, "", "(errore)"},        {"14", 0, "2025", "(errore)"},
      {"0", 3, "2025", "(errore)"}};
  Carica();
  for (const Caso& caso : casi) {
    Scegli(caso.giorno, caso.mese, caso.anno);
    EXPECT_EQ(inizio.Label13.testo, caso.atteso) << caso.giorno << "/" << caso.mese << "/" << caso.anno;
  }
}

TEST_F(Inizio, Il_passo_del_giorno_si_ferma_ai_margini_del_mese) {
  struct Caso {
    const char* giorno;
    int mese;
    const char *anno, *su, *giu;
  };
  const Caso casi[] = {
      {"14", 3, "2025", "15", "13"}, {"9", 3, "2025", "10", "08"},   {"31", 1, "2025", "31", "30"},
      {"30", 1, "2025", "31", "29"}, {"30", 4, "2025", "30", "29"},  {"30", 6, "2025", "30", "29"},
      {"30", 9, "2025", "30", "29"}, {"30", 11, "2025", "30", "29"}, {"31", 12, "2025", "31", "30"},
      {"28", 2, "2025", "28", "27"}, {"28", 2, "2024", "29", "27"},  {"29", 2, "2024", "29", "28"},
      {"28", 2, "2100", "29", "27"},  // every year divisible by 4
      {"01", 3, "2025", "02", "01"}, {"1", 3, "2025", "02", "1"},    {"", 3, "2025", "01", ""},
      {"40", 3, "2025", "40", "39"}};
  Carica();
  for (const Caso& caso : casi) {
    Scegli(caso.giorno, caso.mese, caso.anno);
    Giorno_Su(programma, inizio);
    EXPECT_EQ(inizio.Text1.testo, caso.su) << caso.giorno << "/" << caso.mese << "/" << caso.anno;
    Scegli(caso.giorno, caso.mese, caso.anno);
    Giorno_Giu(programma, inizio);
    EXPECT_EQ(inizio.Text1.testo, caso.giu) << caso.giorno << "/" << caso.mese << "/" << caso.anno;
  }
  Scegli("14", 3, "2025");
  Giorno_Su(programma, inizio);
  EXPECT_EQ(inizio.Label13.testo, "(Sabato)");
}

TEST_F(Inizio, I_campi_dei_numeri_vengono_dopo_il_controllo_sul_disco) {
  Scrivi("2025/20250310.txt", Testo("\t\t\t\t\t\t\t\t\t\t15\t\t\t\t\t\t\t\t\t33\t120\r\n"));
  programma.Ultimo_CV = 10;
  programma.Ultimo_DDT = 11;
  programma.Ultima_NA = 12;
  programma.Ultima_Fattura = 13;
  Carica();
  EXPECT_EQ(inizio.Text2.testo, "15");
  EXPECT_EQ(inizio.Text4.testo, "12");
  EXPECT_EQ(inizio.Text5.testo, "120");
  EXPECT_EQ(inizio.Text6.testo, "33");
}

TEST_F(Inizio, Il_caricamento_legge_i_codici_esclusi) {
  Scrivi("_Esclusi.txt", "00012\r\n");
  Carica();
  EXPECT_THAT(programma.Vet_Esclusi, testing::Contains("00012"));
}

// ---- which commands can be given

TEST_F(Inizio, I_comandi_degli_strumenti) {
  Carica();
  for (const Bottone* bottone :
       {&inizio.Command1, &inizio.Command2, &inizio.Command4, &inizio.Command5, &inizio.Command6,
        &inizio.Command7, &inizio.Command8, &inizio.Command10, &inizio.Command11, &inizio.Command12}) {
    EXPECT_TRUE(bottone->attivo) << bottone->testo;
    EXPECT_TRUE(bottone->visibile) << bottone->testo;
  }
  for (const Bottone* bottone : {&inizio.Command9, &inizio.Command15, &inizio.Command16}) {
    EXPECT_FALSE(bottone->attivo) << bottone->testo;
    EXPECT_TRUE(bottone->visibile) << bottone->testo;
  }
  EXPECT_FALSE(inizio.Command14.visibile);
  EXPECT_FALSE(inizio.File1.visibile);
  EXPECT_TRUE(inizio.Text2.attivo);
}

TEST_F(Inizio, File1_tiene_i_giorni_dell_anno_e_ne_apre_uno) {
  Scrivi("2025/20250312.txt", "x");
  Scrivi("2025/20250313.txt", "x");
  Scrivi("FoglioDati", "x");
  Carica();
  ASSERT_EQ(inizio.File1.Numero(), 2U);
  MostraFile1(programma, inizio);
  EXPECT_TRUE(macchina.programmi.empty());
  inizio.File1.scelta = 1;
  EXPECT_EQ(inizio.File1.Scelta(), "20250313.txt");
  MostraFile1(programma, inizio);
  EXPECT_EQ(macchina.programmi, std::vector<Testo>{"FoglioDati"});
  EXPECT_FALSE(macchina.terminata);
}

TEST_F(Inizio, Solo_quattro_ditte_hanno_il_file_dat) {
  const std::vector<Profilo> con_dat = {Profilo::Zenival, Profilo::Marvesi, Profilo::Sarvena,
                                        Profilo::Dolvena};
  for (const Profilo profilo : {Profilo::Zenival, Profilo::Marvesi, Profilo::Sarvena, Profilo::Dolvena,
                                Profilo::Lagomar, Profilo::Rovigal, Profilo::Fusinal}) {
    programma.preferenze.Codice_Commissionario = Nome_Profilo(profilo);
    Carica();
    EXPECT_EQ(inizio.Command9.attivo, std::ranges::find(con_dat, profilo) != con_dat.end())
        << Nome_Profilo(profilo);
  }
}

TEST_F(Inizio, Lagomar_non_vede_il_controllo_dei_conti) {
  for (const Profilo profilo : {Profilo::Lagomar, Profilo::Zenival, Profilo::Dolvena}) {
    programma.preferenze.Codice_Commissionario = Nome_Profilo(profilo);
    Carica();
    EXPECT_EQ(inizio.Command6.visibile, profilo != Profilo::Lagomar) << Nome_Profilo(profilo);
  }
}

TEST_F(Inizio, DOC_SANI_fa_solo_documenti_sanitari) {
  struct Caso {
    const char* cartella;
    bool attivo;
  };
  for (const Caso& caso :
       {Caso{"/C/DOC_SANI", false}, Caso{"/C/DOC_SANI2/ditta", false}, Caso{"C:\\DOC_SANI", false},
        Caso{"/C/doc_sani", false}, Caso{"/C/DOCSANI", true}, Caso{"/C/ditta_DOC_SANI", true}}) {
    programma.Cartella_Dati = caso.cartella;
    Carica();
    EXPECT_EQ(inizio.Text2.attivo, caso.attivo) << caso.cartella;
    EXPECT_EQ(inizio.Command6.attivo, caso.attivo) << caso.cartella;
  }
}

// ---- opening a day

TEST_F(Inizio, Un_giorno_nuovo_si_apre_con_la_riga_segnaposto) {
  Carica();
  EXPECT_TRUE(Apri());
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_TRUE(programma.Edita_Aperta);
  EXPECT_TRUE(inizio.attiva);
  EXPECT_EQ(programma.Anno_Lavoro, "2025");
  EXPECT_EQ(programma.Data_AAAAMMGG, "20250314");
  EXPECT_EQ(programma.Data_GGMMAAAA, "14032025");
  EXPECT_EQ(programma.Data_Giorno, "14/03/2025");
  EXPECT_EQ(programma.Cartella_Anno, cartella / "2025");
  EXPECT_EQ(programma.File_Giorno, cartella / "2025" / "20250314.txt");
  EXPECT_TRUE(std::filesystem::is_directory(cartella / "2025"));
  EXPECT_TRUE(Manca("2025/20250314.txt")) << "opening writes no day";
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Fornitore, 1), Riga_Vuota);
  EXPECT_FALSE(programma.Vet_Clienti.empty());
  EXPECT_FALSE(programma.Vet_Zone.empty());
  EXPECT_GT(macchina.ridipinture, 0) << "the screen is repainted between the lists";
}

TEST_F(Inizio, Un_giorno_gia_scritto_si_carica_col_separatore_della_macchina) {
  Scrivi("2025/20250314.txt", Riga_Giorno("0001", "Mare") + Riga_Giorno("0002", "Laguna"));
  Carica();
  ASSERT_TRUE(Apri());
  EXPECT_EQ(programma.Vet_Tabella.Righe(), 2);
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Peso, 2), "12,50");
  EXPECT_FALSE(programma.Tabella_Modificata);
}

TEST_F(Inizio, Giorno_e_mese_hanno_due_cifre) {
  Carica();
  Scegli("5", 1, "2025");
  ASSERT_TRUE(Apri());
  EXPECT_EQ(programma.Data_AAAAMMGG, "20250105");
  EXPECT_EQ(programma.Data_GGMMAAAA, "05012025");
}

TEST_F(Inizio, Un_anno_davanti_torna_quello_di_oggi_senza_dire_nulla) {
  Carica();
  Scegli("14", 3, "2026");
  EXPECT_FALSE(Apri());
  EXPECT_EQ(inizio.Text3.testo, "2025");
  EXPECT_EQ(inizio.Label13.testo, "(Venerdì)"_t);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_FALSE(programma.Edita_Aperta);
  EXPECT_TRUE(programma.Vet_Clienti.empty()) << "nothing else happens";
  EXPECT_TRUE(Apri()) << "the command given again";
}

TEST_F(Inizio, Oggi_si_apre_domani_no) {
  Carica();
  Scegli("15", 3, "2025");
  EXPECT_FALSE(Apri());
  EXPECT_THAT(macchina.messaggi, ElementsAre("Secondo questo PC oggi è 14/03/2025"_t,
                                             "Non si possono inserire dati per il futuro"));
  EXPECT_EQ(inizio.Text1.testo, "15");
  EXPECT_FALSE(programma.Edita_Aperta);
  EXPECT_FALSE(std::filesystem::exists(cartella / "2025"));
}

TEST_F(Inizio, Una_data_che_non_c_e_riporta_il_giorno_di_oggi) {
  struct Caso {
    const char* giorno;
    int mese;
    const char *anno, *data;
  };
  for (const Caso& caso : {Caso{"31", 4, "2024", "31/04/2024"}, Caso{"29", 2, "2025", "29/02/2025"},
                           Caso{"0", 3, "2025", "00/03/2025"}, Caso{"", 3, "2025", "00/03/2025"},
                           Caso{"14", 3, "25", "14/03/25"}, Caso{"14", 3, "", "14/03/"},
                           Caso{"14", 3, "../2025", "14/03/../2025"}}) {
    macchina.messaggi.clear();
    Carica();
    Scegli(caso.giorno, caso.mese, caso.anno);
    EXPECT_FALSE(Apri()) << caso.data;
    EXPECT_THAT(macchina.messaggi, ElementsAre(Testo(caso.data) + "\nimmettere una data valida..."));
    EXPECT_EQ(inizio.Text1.testo, "14") << caso.data;
    EXPECT_FALSE(programma.Edita_Aperta);
  }
  EXPECT_FALSE(std::filesystem::exists(cartella / "25"));
}

TEST_F(Inizio, Il_29_febbraio_di_un_anno_bisestile_si_apre) {
  Carica();
  Scegli("29", 2, "2024");
  EXPECT_TRUE(Apri());
  EXPECT_EQ(programma.Data_Giorno, "29/02/2024");
}

TEST_F(Inizio, I_giorni_prima_dei_codici_ALFA3_sono_della_versione_precedente) {
  Scrivi("Velmara_32.exe", "programma");
  Carica();
  Scegli("1", 3, "2020");
  EXPECT_FALSE(Apri());
  EXPECT_THAT(macchina.programmi, ElementsAre("Velmara_32.exe"));
  EXPECT_TRUE(macchina.terminata);
  EXPECT_THAT(macchina.messaggi, IsEmpty());

  Scegli("2", 3, "2020");
  EXPECT_TRUE(Apri());
}

TEST_F(Inizio, Senza_la_versione_precedente_si_rifiuta_e_si_resta) {
  Carica();
  Scegli("28", 2, "2019");
  EXPECT_FALSE(Apri());
  ASSERT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_THAT(macchina.messaggi[0], HasSubstr(Percorso_Di("Velmara_32.exe") + "\nnon trovato..."));
  EXPECT_FALSE(macchina.terminata);
  EXPECT_EQ(inizio.Text1.testo, "28");
  EXPECT_TRUE(programma.Vet_Clienti.empty());
}

TEST_F(Inizio, Il_primo_marzo_2020_la_macchina_apre_ancora_i_giorni_vecchi) {
  Oggi({2020, 3, 1});
  Carica();
  Scegli("28", 2, "2020");
  EXPECT_TRUE(Apri());
  EXPECT_EQ(programma.Data_AAAAMMGG, "20200228");
}

TEST_F(Inizio, I_numeri_corretti_a_mano_valgono_all_apertura) {
  programma.Ultima_Fattura = 120;
  Scrivi("2025/20250310.txt", Riga_Giorno("0001", "Mare", "15"));
  programma.Ultimo_CV = 15;
  Carica();
  inizio.Text5.testo = "121";
  inizio.Text6.testo = "44 ";
  inizio.Text4.testo = "9b";
  ASSERT_TRUE(Apri());
  EXPECT_EQ(programma.Ultima_Fattura, 121);
  EXPECT_EQ(programma.Ultimo_DDT, 44);
  EXPECT_EQ(programma.Ultima_NA, 9);
  EXPECT_EQ(Contenuto("_2020_ncv.txt"),
            "Ultimo numero Conto Vendita,DDT, Nota Accredito, Fattura\r\n15\r\n44\r\n9\r\n121\r\n");
}

TEST_F(Inizio, Numeri_uguali_non_riscrivono_il_file) {
  Scrivi("2025/20250310.txt", Riga_Giorno("0001", "Mare", "15"));
  programma.Ultimo_CV = 15;
  Carica();
  ASSERT_TRUE(Apri());
  EXPECT_TRUE(Manca("_2020_ncv.txt"));
}

TEST_F(Inizio, Il_conto_trovato_sul_disco_entra_nel_file_dei_numeri) {
  Scrivi("2025/20250310.txt", Riga_Giorno("0001", "Mare", "15"));
  programma.Ultimo_CV = 3;  // a number file back from an old copy
  Carica();
  ASSERT_TRUE(Apri());
  EXPECT_EQ(programma.Ultimo_CV, 15);
  EXPECT_THAT(Contenuto("_2020_ncv.txt"), HasSubstr("Fattura\r\n15\r\n"));
}

TEST_F(Inizio, Un_file_dei_numeri_che_non_si_scrive_si_dice_e_il_giorno_si_apre) {
  Carica();
  inizio.Text5.testo = "121";
  programma.disco.guasto = [](const Percorso& p) { return p.filename() == "_2020_ncv.txt" ? ENOSPC : 0; };
  EXPECT_TRUE(Apri());
  EXPECT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_EQ(programma.Ultima_Fattura, 121);
}

TEST_F(Inizio, Tornando_dal_giorno_i_numeri_emessi_stanno_nei_campi) {
  Carica();
  ASSERT_TRUE(Apri());
  programma.Ultimo_CV = 5;  // issued while the day was open
  programma.Ultima_Fattura = 8;
  programma.Edita_Aperta = false;
  Ritorna_Inizio(programma, inizio);
  EXPECT_EQ(inizio.Text2.testo, "5");
  EXPECT_EQ(inizio.Text5.testo, "8");
  ASSERT_TRUE(Apri());
  EXPECT_EQ(programma.Ultimo_CV, 5);
  EXPECT_EQ(programma.Ultima_Fattura, 8);
}

TEST_F(Inizio, Tornando_senza_numeri_nuovi_i_campi_restano) {
  Scrivi("2025/20250310.txt", Riga_Giorno("0001", "Mare", "15"));
  programma.Ultimo_CV = 3;
  Carica();
  inizio.Text5.testo = "121";
  Ritorna_Inizio(programma, inizio);
  EXPECT_EQ(inizio.Text2.testo, "15") << "found on disk, not stored yet";
  EXPECT_EQ(inizio.Text5.testo, "121") << "keyed, not stored yet";
}

TEST_F(Inizio, Una_cartella_dell_anno_che_non_si_fa_si_dice_e_il_giorno_si_apre) {
  Carica();
  programma.disco.guasto = [](const Percorso& p) { return p.filename() == "2025" ? EACCES : 0; };
  EXPECT_TRUE(Apri());
  EXPECT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Fornitore, 1), Riga_Vuota);
}

TEST_F(Inizio, Un_giorno_che_non_si_legge_non_si_apre) {
  std::filesystem::create_directories(cartella / "2025" /
                                      "20250314.txt");  // a folder where the day should be
  Carica();
  EXPECT_FALSE(Apri());
  EXPECT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_FALSE(programma.Edita_Aperta);
  EXPECT_TRUE(inizio.attiva);
}

TEST_F(Inizio, Una_lista_cancellata_torna_all_apertura_del_giorno) {
  Carica();
  ASSERT_TRUE(Apri());
  std::filesystem::remove(cartella / "_2020_Pezzatura.txt");
  ASSERT_TRUE(Apri());
  EXPECT_EQ(Righe(Contenuto("_2020_Pezzatura.txt")).size(), 18U);
}

// ---- the .dat copy of a day

TEST_F(Inizio, Shift_F1_lavora_sulla_copia_dat) {
  Scrivi("2025/20250314.txt", Riga_Giorno("0001", "Mare"));
  Carica();
  EXPECT_EQ(inizio.sfondo, (Colore{255, 255, 255}));
  EXPECT_TRUE(TastoInizio(programma, inizio, {Tasto::F1, true}));
  EXPECT_TRUE(programma.Modo_Dat);
  EXPECT_EQ(inizio.sfondo, (Colore{128, 128, 128}));
  ASSERT_TRUE(Apri());
  EXPECT_EQ(programma.File_Giorno, cartella / "2025" / "20250314.dat");
  EXPECT_EQ(Contenuto("2025/20250314.dat"), Contenuto("2025/20250314.txt"));

  EXPECT_TRUE(TastoInizio(programma, inizio, {Tasto::F1, true}));
  EXPECT_FALSE(programma.Modo_Dat);
  EXPECT_EQ(inizio.sfondo, (Colore{255, 255, 255}));
}

TEST_F(Inizio, Una_copia_dat_senza_il_giorno_ha_una_riga_vera) {
  Carica();
  TastoInizio(programma, inizio, {Tasto::F1, true});
  ASSERT_TRUE(Apri());
  EXPECT_EQ(Contenuto("2025/20250314.dat"), "0001\tFornitore\t\r\n");
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Fornitore, 1), "Fornitore");
}

TEST_F(Inizio, Shift_F2_cancella_le_copie_dat_dell_anno_scelto) {
  for (const bool risposta : {true, false}) {
    Scrivi("2024/20240301.dat", "a\r\n");
    Scrivi("2024/20240301.txt", "a\r\n");
    Scrivi("2025/20250301.dat", "a\r\n");
    Carica();
    TastoInizio(programma, inizio, {Tasto::F1, true});
    Scegli("14", 3, "2024");
    macchina.messaggi.clear();
    macchina.domande.clear();
    macchina.risposte = {risposta};
    EXPECT_TRUE(TastoInizio(programma, inizio, {Tasto::F2, true}));
    EXPECT_THAT(macchina.domande, ElementsAre("Ok per cancellare tutti i .DAT del 2024"));
    EXPECT_EQ(Manca("2024/20240301.dat"), risposta);
    EXPECT_FALSE(Manca("2024/20240301.txt"));
    EXPECT_FALSE(Manca("2025/20250301.dat"));
    EXPECT_FALSE(programma.Modo_Dat);
    EXPECT_EQ(inizio.sfondo, (Colore{255, 255, 255}));
    const std::vector<Testo> attesi = risposta ? std::vector<Testo>{"Tutto OK..."} : std::vector<Testo>{};
    EXPECT_EQ(macchina.messaggi, attesi);
  }
}

TEST_F(Inizio, Altri_tasti_non_sono_dello_schermo) {
  Carica();
  for (const Pressione& pressione :
       {Pressione{Tasto::F1}, Pressione{Tasto::F2}, Pressione{Tasto::F3, true},
        Pressione{Tasto::F1, true, true}, Pressione{Tasto::F2, true, false, true}, Pressione{Tasto::Invio}})
    EXPECT_FALSE(TastoInizio(programma, inizio, pressione));
  EXPECT_FALSE(programma.Modo_Dat);
}

}  // namespace

#include "start/avvio.h"

#include <cerrno>
#include <gmock/gmock.h>

#include "core/giorno.h"
#include "core/preferenze.h"
#include "lists/liste.h"
#include "tests/start/cartella_prova.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const Testo Lancio = "lancio il programma per la generazione delle liste...(Velmara_2020 viene chiuso)";
const Testo Specie_Prova = "10\tOrata\tSparus aurata\tSparidae\t1\tOrata\t1\tSBG\r\n";

class Avvio : public Cartella_Prova {
 protected:
  // One start of the program as its own process would do it.
  struct Corsa {
    explicit Corsa(Piattaforma& macchina) : programma(macchina) {}
    Programma programma;
    Blocco_Cartella blocco;
    EsitoAvvio esito = EsitoAvvio::Fine;
    int dialoghi = 0;
  };

  std::unique_ptr<Corsa> Avvia_In(const Percorso& dove, std::optional<PrimoAvvio> risposta = std::nullopt) {
    auto corsa = std::make_unique<Corsa>(macchina);
    Prosegui(*corsa, dove, risposta);
    return corsa;
  }
  std::unique_ptr<Corsa> Avvia_Ditta(std::optional<PrimoAvvio> risposta = std::nullopt) {
    return Avvia_In(cartella, risposta);
  }
  static void Prosegui(Corsa& corsa, const Percorso& dove, const std::optional<PrimoAvvio>& risposta) {
    corsa.esito = Avvia(corsa.programma, dove, corsa.blocco, [&] {
      ++corsa.dialoghi;
      return risposta;
    });
  }

  // A folder in which nothing is missing.
  void Ditta_Completa() const {
    Scrivi("Velmara_2020.ini", "[VELMARA]\r\nCodiceCOM=7\r\nnposteggio=03\r\n");
    Scrivi("_2020_RAGIONE.txt",
           "Mare Blu s.n.c.\r\ndi Verdi Anna & C.\r\n\r\nvia Roma, 1\r\n30100 Venezia - VE\r\n"
           "Tel. (041) 1\r\nPartita I.V.A. 1\r\n");
    Scrivi("_2020_Descri32_Pelmoro.txt", Specie_Prova);
    Scrivi("_2020_Descri32.txt", Specie_Prova);
    Scrivi("_2020_Barca.txt", ".\r\n");
    Scrivi("_2020_ncv.txt", "Ultimo numero\r\n11\r\n12\r\n13\r\n14\r\n");
    Scrivi("_2020_Vettori.txt", "Vettore\tVia\tCitta\r\n");
    Scrivi("_2020_Fornitori.txt", "0001\tMare\t\tvia\tcitta\t1\t6,5\tppqq\t\r\n");
  }
  void Cancella(const std::string& nome) const { std::filesystem::remove(cartella / nome); }
};

const PrimoAvvio Dati_Ditta{{"Mare Blu s.n.c.", "di Verdi Anna & C.", "", "via Roma, 1", "30100 Venezia - VE",
                             "Tel. (041) 5", "Partita I.V.A. 000000000000"},
                            "7",
                            "03"};

TEST_F(Avvio, Una_cartella_completa_parte_senza_un_messaggio) {
  Ditta_Completa();
  const auto corsa = Avvia_Ditta();
  EXPECT_EQ(corsa->esito, EsitoAvvio::Pronto);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_THAT(macchina.domande, IsEmpty());
  EXPECT_EQ(corsa->dialoghi, 0);
  const Programma& p = corsa->programma;
  EXPECT_EQ(p.Ragione[0], "Mare Blu s.n.c.");
  EXPECT_EQ(p.Ragione[2], "");
  EXPECT_EQ(p.Ragione[6], "Partita I.V.A. 1");
  EXPECT_EQ(p.Ieri_AAMMGG, "250313");
  EXPECT_EQ(p.Oggi, (Data{2025, 3, 14}));
  EXPECT_EQ(p.Ultimo_CV, 11);
  EXPECT_EQ(p.Ultimo_DDT, 12);
  EXPECT_EQ(p.Ultima_NA, 13);
  EXPECT_EQ(p.Ultima_Fattura, 14);
  EXPECT_EQ(p.preferenze.Codice_Commissionario, "7");
  EXPECT_EQ(p.preferenze.Numero_Posteggio, "03");
  ASSERT_EQ(p.Vet_Pelmoro.size(), 1U);
  EXPECT_EQ(p.Vet_Pelmoro[0][specie::Descrizione], "Orata");
  EXPECT_THAT(p.Vet_Esclusi, ElementsAre("Esclusi"));
  for (const char* nome : {"XBanca", "PREDEF", "PREDEF_FOR"})
    EXPECT_TRUE(std::filesystem::is_directory(cartella / nome)) << nome;
  EXPECT_FALSE(std::filesystem::exists(cartella / ".velmara_scrittura"));
}

TEST_F(Avvio, Il_separatore_della_macchina_vale_gia_per_le_impostazioni) {
  for (const char separatore : {',', '.'}) {
    Ditta_Completa();
    Scrivi("Velmara_2020.ini", "[VELMARA]\r\nnposteggio=03\r\nPrimaAliquota=10,5\r\n");
    macchina.separatore = separatore;
    const auto corsa = Avvia_Ditta();
    EXPECT_EQ(corsa->programma.Separatore_Decimale, separatore);
    EXPECT_EQ(corsa->programma.Separatore_Altro, separatore == ',' ? '.' : ',');
    EXPECT_DOUBLE_EQ(corsa->programma.preferenze.Aliquota1, 10.5) << separatore;
  }
}

// ---- the first installation

TEST_F(Avvio, Prima_installazione_in_una_cartella_vuota) {
  {
    const auto prima = Avvia_Ditta(Dati_Ditta);
    EXPECT_EQ(prima->esito, EsitoAvvio::Fine);
    EXPECT_EQ(prima->dialoghi, 1);
    EXPECT_THAT(macchina.messaggi, ElementsAre(Lancio));
    EXPECT_THAT(macchina.domande, IsEmpty()) << "the stall number came from the dialog";
  }
  EXPECT_EQ(
      Contenuto("_2020_RAGIONE.txt"),
      "Mare Blu s.n.c.\r\ndi Verdi Anna & C.\r\n\r\nvia Roma, 1\r\n30100 Venezia - VE\r\nTel. (041) 5\r\n"
      "Partita I.V.A. 000000000000\r\n");
  for (const char* nome :
       {"Velmara_2020.ini", "_2020_Allergeni.txt", "_2020_Descri32_Pelmoro.txt", "_2020_Descri32.txt",
        "_2020_Fornitori.txt", "_2020_Barca.txt", "_2020_MetodoPesca.txt", "_2020_Pezzatura.txt",
        "_2020_StatoFisico.txt", "_2020_Lavorazione.txt", "_2020_Presentazione.txt", "_2020_Proveni.txt",
        "_2020_Zona.txt", "_2020_ncv.txt", "_2020_Vettori.txt"})
    EXPECT_FALSE(Manca(nome)) << nome;

  macchina.messaggi.clear();
  const auto seconda = Avvia_Ditta();
  EXPECT_EQ(seconda->esito, EsitoAvvio::Pronto);
  EXPECT_EQ(seconda->dialoghi, 0);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_THAT(macchina.domande, IsEmpty());
  EXPECT_EQ(seconda->programma.Ragione[0], "Mare Blu s.n.c.");
  EXPECT_EQ(seconda->programma.preferenze.Codice_Commissionario, "7");
  EXPECT_EQ(seconda->programma.preferenze.Numero_Posteggio, "03");
  EXPECT_FALSE(seconda->programma.Vet_Pelmoro.empty());
}

TEST_F(Avvio, Primo_avvio_annullato_scrive_sette_righe_vuote_e_chiede_il_posteggio) {
  macchina.testi = {Testo("05")};
  Avvia_Ditta(std::nullopt);
  EXPECT_EQ(Contenuto("_2020_RAGIONE.txt"), "\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
  EXPECT_THAT(macchina.domande, ElementsAre("0\nnumero del posteggio su due cifre per esempio 01"));
  EXPECT_THAT(macchina.messaggi, ElementsAre(Lancio));

  macchina.domande.clear();
  const auto seconda = Avvia_Ditta();
  EXPECT_EQ(seconda->dialoghi, 0) << "an empty letterhead is a letterhead";
  EXPECT_THAT(macchina.domande, IsEmpty());
  EXPECT_EQ(seconda->programma.Ragione[0], "");
  EXPECT_EQ(seconda->programma.preferenze.Numero_Posteggio, "05");
}

TEST_F(Avvio, Un_posteggio_che_non_e_un_numero_si_chiede_di_nuovo) {
  for (const char* posteggio : {"", "0", "banco", "-3"}) {
    Cancella("_2020_RAGIONE.txt");
    Cancella("Velmara_2020.ini");
    macchina.domande.clear();
    macchina.testi = {Testo("08")};
    PrimoAvvio dati = Dati_Ditta;
    dati.posteggio = posteggio;
    const auto corsa = Avvia_Ditta(dati);
    EXPECT_THAT(macchina.domande, ElementsAre("7\nnumero del posteggio su due cifre per esempio 01"))
        << posteggio;
    EXPECT_EQ(corsa->programma.preferenze.Numero_Posteggio, "08") << posteggio;
  }
}

TEST_F(Avvio, Le_righe_del_primo_avvio_restano_sette_anche_con_a_capo_incollati) {
  PrimoAvvio dati = Dati_Ditta;
  dati.righe[0] = "Mare\r\nBlu\t";
  Avvia_Ditta(dati);
  EXPECT_EQ(Righe(Contenuto("_2020_RAGIONE.txt")).size(), 7U);
}

TEST_F(Avvio, Con_l_intestazione_vecchia_non_si_chiede_nulla) {
  Ditta_Completa();
  Cancella("_2020_RAGIONE.txt");
  Scrivi("RAGIONE.txt", "Vecchia Ditta\r\n");
  const auto corsa = Avvia_Ditta(Dati_Ditta);
  EXPECT_EQ(corsa->dialoghi, 0);
  EXPECT_EQ(corsa->programma.Ragione[0], "Vecchia Ditta");
  EXPECT_EQ(corsa->programma.Ragione[1], "") << "a short letterhead leaves the other lines empty";
}

TEST_F(Avvio, Una_intestazione_che_non_si_scrive_si_dice) {
  Ditta_Completa();
  Cancella("_2020_RAGIONE.txt");
  Corsa corsa(macchina);
  corsa.programma.disco.guasto = [](const Percorso& p) {
    return p.filename() == "_2020_RAGIONE.txt" ? ENOSPC : 0;
  };
  Prosegui(corsa, cartella, Dati_Ditta);
  ASSERT_EQ(macchina.messaggi.size(), 2U);
  EXPECT_EQ(macchina.messaggi[0], "Non si può scrivere il file\n"_t + Percorso_Di("_2020_RAGIONE.txt") +
                                      "\n" + Testo_Errore(ENOSPC));
  EXPECT_EQ(macchina.messaggi[1], "Ii file RAGIONE.txt\nnon esiste..");
  EXPECT_EQ(corsa.esito, EsitoAvvio::Pronto);
}

// ---- the list generator

TEST_F(Avvio, Il_generatore_che_c_e_parte_e_il_programma_finisce) {
  for (const char* nome : {"Velmara_2020_Descri.exe", "Velmara_2020_Descri"}) {
    Ditta_Completa();
    Cancella("_2020_Descri32_Pelmoro.txt");
    Scrivi(nome, "programma");
    macchina.messaggi.clear();
    macchina.programmi.clear();
    const auto corsa = Avvia_Ditta();
    EXPECT_EQ(corsa->esito, EsitoAvvio::Fine);
    EXPECT_THAT(macchina.messaggi, ElementsAre(Lancio));
    EXPECT_THAT(macchina.programmi, ElementsAre(nome));
    EXPECT_TRUE(Manca("_2020_Descri32_Pelmoro.txt")) << "the generator's work";
    Blocco_Cartella altro;
    EXPECT_TRUE(altro.Prendi(cartella)) << "the generator starts the program again";
    Cancella(nome);
  }
}

TEST_F(Avvio, Un_generatore_che_non_parte_lascia_il_lavoro_al_programma) {
  Ditta_Completa();
  Cancella("_2020_Descri32_Pelmoro.txt");
  Scrivi("Velmara_2020_Descri.exe", "programma");
  macchina.programmi_partono = false;
  const auto corsa = Avvia_Ditta();
  EXPECT_EQ(corsa->esito, EsitoAvvio::Fine);
  EXPECT_THAT(macchina.messaggi, ElementsAre(Lancio));
  EXPECT_FALSE(Manca("_2020_Descri32_Pelmoro.txt"));
}

TEST_F(Avvio, Senza_la_lista_delle_specie_si_rifa_e_il_programma_finisce) {
  Ditta_Completa();
  Cancella("_2020_Descri32.txt");
  const auto corsa = Avvia_Ditta();
  EXPECT_EQ(corsa->esito, EsitoAvvio::Fine);
  // The first message comes also when there was nothing to copy.
  EXPECT_THAT(macchina.messaggi, ElementsAre("Generato il file " + Percorso_Di("_2020_Descri32.txt") +
                                                 "\nper la versione 2020..",
                                             "Ii file _Descri32.txt\nnon esiste..\nimpossibile continuare"));
  EXPECT_FALSE(Manca("_2020_Descri32.txt"));
  macchina.messaggi.clear();
  EXPECT_EQ(Avvia_Ditta()->esito, EsitoAvvio::Pronto);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

// ---- files of the older generation

TEST_F(Avvio, Ogni_file_vecchio_si_copia_col_suo_nome_di_oggi) {
  struct Caso {
    const char *vecchio, *nuovo;
    Testo contenuto;
  };
  const Caso casi[] = {{"RAGIONE.txt", "_2020_RAGIONE.txt", "Ditta\r\n"},
                       {"_Descri32.txt", "_2020_Descri32.txt", Specie_Prova},
                       {"_Barca.txt", "_2020_Barca.txt", ", Barca 9\r\n"},
                       {"ncv.txt", "_2020_ncv.txt", "x\r\n101\r\n102\r\n103\r\n104\r\n"},
                       {"_Vettori.txt", "_2020_Vettori.txt", "Uno\tDue\tTre\r\n"},
                       {"_Fornitori.txt", "_2020_Fornitori.txt", "0009\tVecchio\t\t\t\t\t5\t\t\r\n"}};
  Ditta_Completa();
  std::vector<Testo> attesi;
  for (const Caso& caso : casi) {
    Cancella(caso.nuovo);
    Scrivi(caso.vecchio, caso.contenuto);
    attesi.push_back("Generato il file " + Percorso_Di(caso.nuovo) + "\nper la versione 2020..");
  }
  auto corsa = Avvia_Ditta();
  EXPECT_EQ(corsa->esito, EsitoAvvio::Pronto);
  EXPECT_EQ(macchina.messaggi, attesi);
  for (const Caso& caso : casi) {
    EXPECT_EQ(Contenuto(caso.nuovo), caso.contenuto) << caso.nuovo;
    EXPECT_EQ(Contenuto(caso.vecchio), caso.contenuto) << caso.vecchio;
  }
  EXPECT_EQ(corsa->programma.Ultimo_CV, 101);
  EXPECT_EQ(corsa->programma.Ultima_Fattura, 104);

  corsa.reset();
  macchina.messaggi.clear();
  Avvia_Ditta();
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

// The generator must leave room for what the old folder holds: a number file begun at zero would issue
// numbers twice.
TEST_F(Avvio, Una_cartella_della_generazione_precedente_tiene_i_suoi_dati) {
  Scrivi("Velmara_32.ini", "[VELMARA]\r\nCodiceCOM=3\r\nnposteggio=12\r\n");
  Scrivi("RAGIONE.txt", "Vecchia Ditta\r\n");
  Scrivi("_Descri32.txt", Specie_Prova);
  Scrivi("_Barca.txt", ", Barca 9\r\n");
  Scrivi("ncv.txt", "x\r\n101\r\n102\r\n103\r\n104\r\n");
  Scrivi("_Vettori.txt", "Uno\tDue\tTre\r\n");
  Scrivi("_Fornitori.txt", "0009\tVecchio\t\t\t\t\t5\t\t\r\n");
  Scrivi("Clienti.txt", "00001\tCliente\t\t\t\t\r\n");
  EXPECT_EQ(Avvia_Ditta()->esito, EsitoAvvio::Fine);
  EXPECT_THAT(macchina.messaggi, ElementsAre(Lancio));
  macchina.messaggi.clear();

  const auto corsa = Avvia_Ditta();
  EXPECT_EQ(corsa->esito, EsitoAvvio::Pronto);
  EXPECT_EQ(macchina.messaggi.size(), 6U);
  EXPECT_EQ(corsa->programma.Ultimo_CV, 101);
  EXPECT_EQ(corsa->programma.preferenze.Numero_Posteggio, "12");
  EXPECT_EQ(corsa->programma.Ragione[0], "Vecchia Ditta");
  EXPECT_EQ(Contenuto("_2020_Descri32.txt"), Specie_Prova);
  EXPECT_EQ(Contenuto("_2020_Barca.txt"), ", Barca 9\r\n");
  EXPECT_THAT(Contenuto("_2020_Fornitori.txt"), HasSubstr("Vecchio"));
  EXPECT_THAT(Contenuto("_2020_Vettori.txt"), HasSubstr("Uno"));
  EXPECT_TRUE(Manca("_Client32.txt")) << "the older customers would be passed over";
}

TEST_F(Avvio, Ogni_nome_vecchio_che_manca_ha_il_suo_messaggio) {
  Ditta_Completa();
  for (const char* nome : {"_2020_Barca.txt", "_2020_ncv.txt", "_2020_Vettori.txt", "_2020_Fornitori.txt"})
    Cancella(nome);
  const auto corsa = Avvia_Ditta();
  EXPECT_EQ(corsa->esito, EsitoAvvio::Pronto);
  ASSERT_GE(macchina.messaggi.size(), 5U);
  EXPECT_EQ(macchina.messaggi[0], "Ii file _Barca.txt\nnon esiste..");
  EXPECT_EQ(macchina.messaggi[1], "Ii file ncv.txt\nnon esiste..");
  EXPECT_EQ(macchina.messaggi[2], "Ii file _Vettori.txt\nnon esiste..");
  EXPECT_EQ(macchina.messaggi[3], "Ii file _Fornitori.txt\nnon esiste..");
  EXPECT_EQ(macchina.messaggi[4],
            Percorso_Di("_2020_Fornitori.txt") + "....non trovato...\nScrivo il file di default... ");
  EXPECT_FALSE(Manca("_2020_Fornitori.txt"));
  EXPECT_FALSE(Manca("_2020_Vettori.txt"));
  EXPECT_FALSE(Manca("_2020_ncv.txt"));
  EXPECT_EQ(corsa->programma.Ultimo_CV, 0);
}

TEST_F(Avvio, Una_copia_che_non_riesce_si_dice_e_il_programma_va_avanti) {
  Ditta_Completa();
  Cancella("_2020_Barca.txt");
  Scrivi("_Barca.txt", ", Barca 9\r\n");
  Corsa corsa(macchina);
  corsa.programma.disco.guasto = [](const Percorso& p) {
    return p.filename() == "_2020_Barca.txt" ? ENOSPC : 0;
  };
  Prosegui(corsa, cartella, std::nullopt);
  EXPECT_EQ(corsa.esito, EsitoAvvio::Pronto);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Non si può scrivere il file\n"_t +
                                             Percorso_Di("_2020_Barca.txt") + "\n" + Testo_Errore(ENOSPC)));
}

// ---- settings of the previous version

TEST_F(Avvio, Le_impostazioni_vecchie_si_copiano_solo_dove_mancano_le_nuove) {
  Ditta_Completa();
  Cancella("Velmara_2020.ini");
  Scrivi("Velmara_32.ini", "[VELMARA]\r\nnposteggio=44\r\nChiaveIgnota=x\r\n");
  EXPECT_EQ(Avvia_Ditta()->programma.preferenze.Numero_Posteggio, "44");
  EXPECT_THAT(Contenuto("Velmara_2020.ini"), HasSubstr("ChiaveIgnota=x"));

  Scrivi("Velmara_2020.ini", "[VELMARA]\r\nnposteggio=03\r\n");
  Scrivi("Velmara_32.ini", "[VELMARA]\r\nnposteggio=55\r\n");  // newer, and still the old one
  EXPECT_EQ(Avvia_Ditta()->programma.preferenze.Numero_Posteggio, "03");
}

TEST_F(Avvio, La_copia_nel_commento_e_solo_delle_ditte_dal_codice_5) {
  struct Caso {
    const char* codice;
    bool resta;
  };
  for (const Caso& caso : {Caso{"0", false}, Caso{"4", false}, Caso{"4,9", false}, Caso{"5", true},
                           Caso{"12", true}, Caso{"abc", false}}) {
    Ditta_Completa();
    Scrivi("Velmara_2020.ini", "[VELMARA]\r\nnposteggio=03\r\nFlagCopiaNPinCommento=-1\r\nCodiceCOM=" +
                                   Testo(caso.codice) + "\r\n");
    EXPECT_EQ(Avvia_Ditta()->programma.preferenze.FlagCopiaNPinCommento, caso.resta) << caso.codice;
  }
}

TEST_F(Avvio, La_vista_della_lista_torna_a_NOTA) {
  Ditta_Completa();
  Scrivi("Velmara_2020.ini", "[VELMARA]\r\nnposteggio=03\r\nFlagColonneListaVoci=VENDITA\r\n");
  EXPECT_EQ(Avvia_Ditta()->programma.preferenze.FlagColonneListaVoci, "NOTA");
  EXPECT_THAT(Contenuto("Velmara_2020.ini"), HasSubstr("FlagColonneListaVoci=VENDITA"));
}

// ---- March 2020

const Testo Domanda_Rinnovo =
    "OK per rinnovare le liste di:\nPezzature,\nAttrezzo di Pesca,\nProvenienza\n\n"
    "Questa domanda sarà ripetuta fino al 2 marzo compreso. Se lo si è già fatto almeno una volta dare Annnulla."_t;
const char* const Sette[] = {
    "_2020_Descri32_Pelmoro.txt", "_2020_StatoFisico.txt", "_2020_Presentazione.txt", "_2020_Zona.txt",
    "_2020_Pezzatura.txt",        "_2020_Proveni.txt",     "_2020_MetodoPesca.txt"};

TEST_F(Avvio, Il_2_marzo_2020_si_chiede_e_OK_cancella_sette_liste) {
  Ditta_Completa();
  for (const char* nome : Sette) Scrivi(nome, Specie_Prova);
  Scrivi("_2020_Lavorazione.txt", "XXX .\r\n");
  macchina.oggi = {2020, 3, 2};
  macchina.risposte = {true};
  {
    const auto corsa = Avvia_Ditta();
    EXPECT_THAT(macchina.domande, ElementsAre(Domanda_Rinnovo));
    EXPECT_EQ(corsa->esito, EsitoAvvio::Pronto) << "the reference list was read before it went";
    EXPECT_EQ(corsa->programma.Vet_Pelmoro.size(), 1U);
    EXPECT_GE(macchina.ridipinture, 7);
  }
  for (const char* nome : Sette) EXPECT_TRUE(Manca(nome)) << nome;
  EXPECT_FALSE(Manca("_2020_Lavorazione.txt"));

  macchina.oggi = {2020, 3, 3};
  macchina.messaggi.clear();
  EXPECT_EQ(Avvia_Ditta()->esito, EsitoAvvio::Fine);
  EXPECT_THAT(macchina.messaggi, ElementsAre(Lancio));
  EXPECT_FALSE(Manca("_2020_Descri32_Pelmoro.txt"));
}

TEST_F(Avvio, Annulla_tiene_le_liste_e_dal_3_marzo_2020_non_si_chiede_piu) {
  Ditta_Completa();
  for (const char* nome : Sette) Scrivi(nome, Specie_Prova);
  macchina.oggi = {2020, 3, 2};
  macchina.risposte = {false};
  Avvia_Ditta();
  EXPECT_EQ(macchina.domande.size(), 1U);
  for (const char* nome : Sette) EXPECT_EQ(Contenuto(nome), Specie_Prova) << nome;

  for (const Data giorno : {Data{2020, 3, 3}, Data{2020, 12, 1}, Data{2025, 1, 1}}) {
    macchina.oggi = giorno;
    macchina.domande.clear();
    Avvia_Ditta();
    EXPECT_THAT(macchina.domande, IsEmpty());
  }
}

// What the trial of writing would have destroyed, and the program would have said that it can't save.
TEST_F(Avvio, La_prova_di_scrittura_non_passa_per_un_collegamento) {
  Ditta_Completa();
  Scrivi("../fuori.txt", "d'altri");
  std::filesystem::create_symlink("../fuori.txt", cartella / ".velmara_scrittura");
  EXPECT_EQ(Avvia_Ditta()->esito, EsitoAvvio::Pronto);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_EQ(Contenuto("../fuori.txt"), "d'altri");
}

// ---- one program for one folder

TEST_F(Avvio, Un_secondo_programma_nella_stessa_cartella_non_parte) {
  Ditta_Completa();
  const auto primo = Avvia_Ditta();
  ASSERT_EQ(primo->esito, EsitoAvvio::Pronto);
  const auto secondo = Avvia_Ditta();
  EXPECT_EQ(secondo->esito, EsitoAvvio::Fine);
  EXPECT_THAT(
      macchina.messaggi,
      ElementsAre("Velmara_2020.exe  gia' attivo...! (aprire un altro programma da una cartella diversa)"));
}

TEST_F(Avvio, Una_copia_della_cartella_e_un_altra_ditta_e_va_accanto) {
  Ditta_Completa();
  std::filesystem::copy(cartella, base / "altra", std::filesystem::copy_options::recursive);
  const auto primo = Avvia_Ditta();
  const auto secondo = Avvia_In(base / "altra");
  EXPECT_EQ(primo->esito, EsitoAvvio::Pronto);
  EXPECT_EQ(secondo->esito, EsitoAvvio::Pronto);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_EQ(secondo->programma.File_Ini, base / "altra" / "Velmara_2020.ini");
}

TEST_F(Avvio, Un_programma_finito_lascia_libera_la_cartella) {
  Ditta_Completa();
  Avvia_Ditta();
  EXPECT_EQ(Avvia_Ditta()->esito, EsitoAvvio::Pronto);
}

// ---- a folder without write permission

TEST_F(Avvio, Dove_non_si_puo_scrivere_si_dice_una_volta_e_si_va_avanti) {
  Ditta_Completa();
  Corsa corsa(macchina);
  corsa.programma.disco.guasto = [](const Percorso&) { return EACCES; };
  Prosegui(corsa, cartella, Dati_Ditta);
  EXPECT_EQ(corsa.esito, EsitoAvvio::Pronto);
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("Nella cartella " + Testo_Percorso(cartella) +
                          " non si può scrivere: i dati non verranno salvati\n"_t + Testo_Errore(EACCES)));
  EXPECT_EQ(corsa.programma.Ragione[0], "Mare Blu s.n.c.");
  EXPECT_EQ(corsa.programma.Ultima_Fattura, 14);
}

// The letterhead and the numbers of an older firm that can't be copied: each is told, and the numbers aren't
// begun anew when the disk is sound again, or all of them would be given twice.
TEST_F(Avvio, Di_una_ditta_di_prima_si_dice_quel_che_non_passa_e_i_numeri_non_ricominciano) {
  Ditta_Completa();
  for (const char* nome : {"_2020_RAGIONE.txt", "_2020_ncv.txt"}) Cancella(nome);
  Scrivi("RAGIONE.txt", "Vecchia Ditta\r\n");
  Scrivi("ncv.txt", "x\r\n101\r\n102\r\n103\r\n104\r\n");
  Corsa corsa(macchina);
  corsa.programma.disco.guasto = [](const Percorso&) { return ENOSPC; };
  Prosegui(corsa, cartella, Dati_Ditta);
  EXPECT_EQ(corsa.esito, EsitoAvvio::Pronto);
  for (const char* nome : {"_2020_RAGIONE.txt", "_2020_ncv.txt"})
    EXPECT_THAT(macchina.messaggi,
                testing::Contains("Non si può scrivere il file\n"_t + Testo_Percorso(cartella / nome) + "\n" +
                                  Testo_Errore(ENOSPC)));
  EXPECT_TRUE(corsa.programma.Numeri_Ignoti);

  corsa.programma.disco.guasto = nullptr;
  corsa.programma.Ultimo_DDT = 1;
  EXPECT_FALSE(Salva_Ultimi_Numeri(corsa.programma));
  EXPECT_TRUE(Manca("_2020_ncv.txt"));
}

TEST_F(Avvio, Una_cartella_vuota_dove_non_si_puo_scrivere_finisce_dicendolo) {
  macchina.testi = {Testo("03")};
  Scrivi("Velmara_2020_Descri.exe", "programma");
  Corsa corsa(macchina);
  corsa.programma.disco.guasto = [](const Percorso&) { return EROFS; };
  Prosegui(corsa, cartella, Dati_Ditta);
  EXPECT_EQ(corsa.esito, EsitoAvvio::Fine);
  EXPECT_EQ(corsa.dialoghi, 0) << "the firm's data could not be kept";
  EXPECT_THAT(macchina.programmi, IsEmpty()) << "generator and program would start each other for ever";
  ASSERT_GE(macchina.messaggi.size(), 3U);
  EXPECT_THAT(macchina.messaggi[0], HasSubstr("non si può scrivere: i dati non verranno salvati"_t));
  EXPECT_EQ(macchina.messaggi[1], Lancio);
  EXPECT_THAT(macchina.messaggi.back(), HasSubstr("_2020_Descri32_Pelmoro.txt: " + Testo_Errore(EROFS)));
}

}  // namespace

#include "lists/schermo_esclusi.h"
#include "tests/lists/cartella_ditta.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Schermo_Degli_Esclusi : public Cartella_Ditta {
 protected:
  void Apri_Con(Vista contenuto) {
    Scrivi(nomi_file::Esclusi, contenuto);
    Apri();
  }
  void Apri() {
    Leggi_Esclusi(programma);
    Prepara_Esclusi(programma, schermo);
  }
  std::vector<Testo> Voci() const {
    std::vector<Testo> voci;
    for (std::size_t i = 0; i < schermo.List1.Numero(); ++i) voci.push_back(schermo.List1.Riga(i));
    return voci;
  }
  void Aggiungi(const Testo& codice) {
    schermo.Text1.testo = codice;
    Aggiungi_Escluso(programma, schermo);
  }
  SchermoEsclusi schermo;
};

TEST_F(Schermo_Degli_Esclusi, TestiFissi) {
  Apri();
  EXPECT_EQ(schermo.AiutoManuale.testo, "Inserimento Manuale:");
  EXPECT_EQ(schermo.AiutoAutomatico.testo, "Inserimento Automatico");
  EXPECT_EQ(schermo.AiutoDoppioClic.testo, "doppio click per escludere/reintegrare con l'asterisco");
  EXPECT_EQ(schermo.Incolla.testo, "&INCOLLA");
  EXPECT_EQ(schermo.Incolla2.testo, "INCOLLA&2");
}

TEST_F(Schermo_Degli_Esclusi, IlCodiceSiRiempieDiZeriFinoACinque) {
  struct Caso {
    Testo scritto;
    std::vector<Testo> voci;
  };
  const Caso casi[] = {{"123", {"00123"}},   {"1", {"00001"}},
                       {"12", {"00012"}},    {"1234", {"01234"}},
                       {"12345", {"12345"}}, {"123456", {"123456"}},
                       {" 77 ", {"00077"}},  {"", {}},
                       {"  ", {}},           {"A12", {}},
                       {"_r_00123", {}},     {"12 3", {}}};
  for (const auto& [scritto, voci] : casi) {
    Apri();
    Aggiungi(scritto);
    EXPECT_EQ(Voci(), voci) << scritto;
    EXPECT_EQ(schermo.Text1.testo, voci.empty() ? scritto : Testo()) << scritto;
  }
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_FALSE(Esiste(nomi_file::Esclusi));
}

TEST_F(Schermo_Degli_Esclusi, SalvareScriveUnCodicePerRiga) {
  Apri_Con("00100\r\n_r_00200\r\n");
  EXPECT_THAT(Voci(), ElementsAre("00100", "_r_00200"));
  Aggiungi("300");
  EXPECT_THAT(programma.Vet_Esclusi, ElementsAre("00100", "_r_00200"));
  EXPECT_EQ(Contenuto(nomi_file::Esclusi), "00100\r\n_r_00200\r\n");
  ASSERT_TRUE(Salva_Elenco_Esclusi(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Esclusi), "00100\r\n_r_00200\r\n00300\r\n");
  EXPECT_THAT(programma.Vet_Esclusi, ElementsAre("00100", "_r_00200", "00300"));
  EXPECT_THAT(programma.Vet_Esclusi_Puliti, ElementsAre("00100", "00200", "00300"));
}

TEST_F(Schermo_Degli_Esclusi, CancellareVuoleUnaScelta) {
  Apri_Con("00100\r\n00200\r\n");
  Elimina_Escluso(programma, schermo);
  EXPECT_THAT(macchina.messaggi, ElementsAre("selezionare il codice da cancellare..."));
  schermo.List1.scelta = 0;
  Elimina_Escluso(programma, schermo);
  EXPECT_THAT(Voci(), ElementsAre("00200"));
  EXPECT_EQ(schermo.List1.scelta, 0);
  EXPECT_EQ(Contenuto(nomi_file::Esclusi), "00100\r\n00200\r\n");
  EXPECT_THAT(macchina.messaggi, testing::SizeIs(1));
}

// Other programs of the firm read the file and know the list without codes by this word.
TEST_F(Schermo_Degli_Esclusi, LaListaVuotaSiScriveConLaSuaParola) {
  Apri_Con("00100\r\n");
  schermo.List1.scelta = 0;
  Elimina_Escluso(programma, schermo);
  ASSERT_TRUE(Salva_Elenco_Esclusi(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Esclusi), "Esclusi\r\n");
  EXPECT_THAT(programma.Vet_Esclusi, ElementsAre("Esclusi"));
  EXPECT_THAT(programma.Vet_Esclusi_Puliti, ElementsAre("Esclusi"));
  EXPECT_THAT(Voci(), IsEmpty());
  SchermoEsclusi riaperto;
  Prepara_Esclusi(programma, riaperto);
  EXPECT_EQ(riaperto.List1.Numero(), 0U);
}

TEST_F(Schermo_Degli_Esclusi, SenzaFileLaListaEVuotaMaUn99999NelFileEUnCodice) {
  Apri();
  EXPECT_THAT(programma.Vet_Esclusi, ElementsAre("99999"));
  EXPECT_THAT(Voci(), IsEmpty());
  Apri_Con("99999\r\n");
  EXPECT_THAT(Voci(), ElementsAre("99999"));
}

TEST_F(Schermo_Degli_Esclusi, IlDoppioClicReintegraEdEscludeESalvaSubito) {
  Apri_Con("00100\r\n00200\r\n");
  schermo.List1.scelta = 1;
  Reintegra_Escluso(programma, schermo);
  EXPECT_EQ(Contenuto(nomi_file::Esclusi), "00100\r\n_r_00200\r\n");
  EXPECT_EQ(Codice_Escluso(programma, "00200"), 0);
  EXPECT_EQ(Codice_Escluso(programma, "00100"), 999);
  EXPECT_THAT(programma.Vet_Esclusi_Puliti, ElementsAre("00100", "00200"));
  EXPECT_EQ(schermo.List1.scelta, 1);
  Reintegra_Escluso(programma, schermo);
  EXPECT_EQ(Contenuto(nomi_file::Esclusi), "00100\r\n00200\r\n");
  EXPECT_EQ(Codice_Escluso(programma, "00200"), 999);
  schermo.List1.scelta = -1;
  Reintegra_Escluso(programma, schermo);
  EXPECT_EQ(Contenuto(nomi_file::Esclusi), "00100\r\n00200\r\n");
}

// A third code turns the list into one that stops nobody.
TEST_F(Schermo_Degli_Esclusi, DueCodiciFermanoTreNo) {
  Apri();
  Aggiungi("1");
  Aggiungi("2");
  Salva_Elenco_Esclusi(programma, schermo);
  EXPECT_EQ(Codice_Escluso(programma, "00001"), 999);
  EXPECT_EQ(Codice_Escluso(programma, "00002"), 999);
  Aggiungi("3");
  Salva_Elenco_Esclusi(programma, schermo);
  for (const char* codice : {"00001", "00002", "00003"}) EXPECT_EQ(Codice_Escluso(programma, codice), 0);
}

TEST_F(Schermo_Degli_Esclusi, EscludiQuestoCodiceVaNellElencoAperto) {
  Apri_Con("00100\r\n");
  EXPECT_TRUE(Escludi_Codice(programma, schermo, " 42"));
  EXPECT_FALSE(Escludi_Codice(programma, schermo, ""));
  EXPECT_FALSE(Escludi_Codice(programma, schermo, "A42"));
  EXPECT_THAT(Voci(), ElementsAre("00100", "00042"));
  EXPECT_EQ(Contenuto(nomi_file::Esclusi), "00100\r\n");
}

TEST_F(Schermo_Degli_Esclusi, IncollareSenzaTesto) {
  Apri();
  for (const auto come : {Incollatura::Pezzo_Intero, Incollatura::Prima_Parola})
    Incolla_Esclusi(programma, schermo, come);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Nessun testo da incollare...", "Nessun testo da incollare..."));
  EXPECT_THAT(Voci(), IsEmpty());
}

TEST_F(Schermo_Degli_Esclusi, IncollarePezziInteriOPrimeParole) {
  struct Caso {
    Testo appunti;
    std::vector<Testo> interi, prime;
  };
  const Caso casi[] = {{"12\r\n345\n 6 ", {"00012", "00345", "00006"}, {"00012", "00345", "00006"}},
                       {"12\tRossi\t77\n", {"00012", "00077"}, {"00012", "00077"}},
                       {"12 Rossi\r\n345 Bianchi", {}, {"00012", "00345"}},
                       {"Rossi 12", {}, {}},
                       {"12  34", {}, {"00012", "00034"}},
                       {"12 34", {}, {"00012"}},
                       {"123456\n\n\n", {"123456"}, {"123456"}},
                       {"testo senza numeri è"_t, {}, {}}};
  for (const auto& [appunti, interi, prime] : casi) {
    macchina.appunti = appunti;
    for (const auto come : {Incollatura::Pezzo_Intero, Incollatura::Prima_Parola}) {
      macchina.messaggi.clear();
      schermo = {};
      Apri();
      Incolla_Esclusi(programma, schermo, come);
      EXPECT_EQ(Voci(), come == Incollatura::Pezzo_Intero ? interi : prime) << appunti;
      EXPECT_THAT(macchina.messaggi, ElementsAre("dai una occhiata e premi ok...", "fatto.."));
      EXPECT_EQ(schermo.Esito.testo, Voci().empty() ? "" : "da salvare") << appunti;
      EXPECT_FALSE(Esiste(nomi_file::Esclusi));
    }
  }
}

TEST_F(Schermo_Degli_Esclusi, IlTestoIncollatoSiVedePrimaDellOk) {
  Apri();
  macchina.appunti = "12\tRossi  Mario";
  Incolla_Esclusi(programma, schermo, Incollatura::Pezzo_Intero);
  EXPECT_EQ(schermo.Appunti.testo, "12\nRossi  Mario");
  Incolla_Esclusi(programma, schermo, Incollatura::Prima_Parola);
  EXPECT_EQ(schermo.Appunti.testo, "12\nRossi\nMario");
  macchina.appunti = "12\r\n13";
  Incolla_Esclusi(programma, schermo, Incollatura::Pezzo_Intero);
  EXPECT_EQ(schermo.Appunti.testo, "12\n13");
}

TEST_F(Schermo_Degli_Esclusi, UnGuastoLasciaFileETabelleEQuantoSiVede) {
  Apri_Con("00100\r\n");
  Aggiungi("2");
  Disco_Pieno(nomi_file::Esclusi);
  EXPECT_FALSE(Salva_Elenco_Esclusi(programma, schermo));
  schermo.List1.scelta = 0;
  Reintegra_Escluso(programma, schermo);
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_Su(nomi_file::Esclusi), Errore_Su(nomi_file::Esclusi)));
  EXPECT_EQ(Contenuto(nomi_file::Esclusi), "00100\r\n");
  EXPECT_THAT(programma.Vet_Esclusi, ElementsAre("00100"));
  EXPECT_THAT(programma.Vet_Esclusi_Puliti, ElementsAre("00100"));
  EXPECT_THAT(Voci(), ElementsAre("_r_00100", "00002"));
  programma.disco.guasto = nullptr;
  EXPECT_TRUE(Salva_Elenco_Esclusi(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Esclusi), "_r_00100\r\n00002\r\n");
}

TEST_F(Schermo_Degli_Esclusi, DiecimilaCodiciIncollati) {
  for (int i = 0; i < 10'000; ++i) macchina.appunti += std::to_string(i) + "\r\n";
  Apri();
  Incolla_Esclusi(programma, schermo, Incollatura::Pezzo_Intero);
  ASSERT_EQ(schermo.List1.Numero(), 10'000U);
  EXPECT_EQ(schermo.List1.Riga(9'999), "09999");
  EXPECT_EQ(schermo.List1.Riga(0), "00000");
}

}  // namespace

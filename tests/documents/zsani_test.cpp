#include "documents/zsani.h"

#include <algorithm>
#include <chrono>

#include "tests/documents/zsani_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Testo domanda_salva = "Ok per salvare la attuale numerazione dei documenti....";
const Testo domanda_controllo =
    "Controlla che la numerazione sia progressiva e completa\n"
    "controlla il formato del numero del documento e riduce il numero di (ds) a uno\n"
    "controlla i numeri doppi (cancella i numeri doppi)\n"
    "controlla la progressione\n"
    "controlla i senza numero";
const Testo domanda_annulla =
    "OK per annullare la numerazione: la numerazione attuale sarà perduta..."_t
    "eventuali errori possono essere corretti manualmente..."_t;

// ---- opening

TEST_F(Zsani_Test, Apertura) {
  Giornata();
  Apri();
  EXPECT_EQ(zsani.titolo, "Stampa Documento Sanitario del 14/03/2025");
  EXPECT_EQ(zsani.Text1[0].testo, "14/03/2025");
  EXPECT_EQ(zsani.Text2.testo, "1");
  EXPECT_EQ(zsani.Combo2.Scelta(), "1 copia");
  EXPECT_THAT(Clienti(), ElementsAre("Bar Ponte", "Laguna Pesca", "Trattoria Lido"));
  EXPECT_EQ(zsani.MList2.Numero(), 3U);
  EXPECT_EQ(zsani.MList2.Riga(1), Pad("Laguna Pesca", 50) + "001");
  EXPECT_EQ(zsani.MList2.scelta, 0);
  EXPECT_EQ(zsani.Text1[1].testo, "Bar Ponte");
  EXPECT_EQ(zsani.Text1[2].testo, "003");
  EXPECT_EQ(zsani.Command1.testo, "Stampa Doc. F2");
  EXPECT_EQ(zsani.Caption[2].testo, "DS numero");
  EXPECT_TRUE(zsani.Command1.attivo && zsani.Command4.attivo && zsani.Annulla_Num.attivo);
}

TEST_F(Zsani_Test, UnNomeLungoSiTagliaNellaLista) {
  Vendita(Testo(60, 'N'), "001");
  Apri();
  EXPECT_EQ(zsani.MList2.Riga(0), Testo(50, 'N') + "001");
  EXPECT_EQ(Clienti().front().size(), 60U);
}

TEST_F(Zsani_Test, ApreConLOrdineELeCaselleDelleImpostazioni) {
  Giornata();
  programma.preferenze.flagSortOrder = 2;
  programma.preferenze.FlagC1ds = programma.preferenze.FlagC4ds = true;
  Apri();
  EXPECT_THAT(Numeri(), ElementsAre("003", "002", "001"));
  EXPECT_TRUE(zsani.Check1.segnata);
  EXPECT_TRUE(zsani.Check4.segnata);
  EXPECT_FALSE(zsani.Check6.segnata);
  EXPECT_EQ(zsani.Command1.testo, "Stampa DDT F2");
  EXPECT_EQ(zsani.Caption[2].testo, "numero DDT");
}

TEST_F(Zsani_Test, GiornoVuoto) {
  Apri();
  EXPECT_THAT(Clienti(), IsEmpty());
  EXPECT_EQ(zsani.MList2.scelta, -1);
  for (const Tasto tasto : {Tasto::F2, Tasto::F4, Tasto::F8, Tasto::F9, Tasto::Su, Tasto::Giu}) Premi(tasto);
  ModificaNumero(zsani);
  AggiornaNumeri(zsani);
  NumeraAutomatica(programma, zsani);
  AnnullaNumeri(programma, zsani);
  ControllaNumeri(programma, zsani);
  EXPECT_EQ(SalvaNumeri(programma, zsani), EsitoNumeri::Annullato);
  Premi(Tasto::Esc);
  EXPECT_TRUE(zsani.chiusa);
  EXPECT_THAT(macchina.domande, IsEmpty());
  EXPECT_EQ(cartella.Contenuto("2025/20250314.txt"), "(manca)") << "an empty day gets no file";
}

// ---- moving, sorting, numbers by hand

TEST_F(Zsani_Test, ITastiMuovonoLaScelta) {
  Giornata();
  Apri();
  const std::pair<Tasto, int> passi[] = {{Tasto::Su, 0},  {Tasto::F8, 2}, {Tasto::Giu, 2}, {Tasto::F9, 0},
                                         {Tasto::Giu, 1}, {Tasto::F9, 2}, {Tasto::Su, 1},  {Tasto::F8, 0}};
  for (const auto& [tasto, attesa] : passi) {
    Premi(tasto);
    EXPECT_EQ(zsani.MList2.scelta, attesa);
    EXPECT_EQ(zsani.Text1[1].testo, zsani.ListaDoc[static_cast<std::size_t>(attesa)].Cliente);
  }
  EXPECT_FALSE(TastoDocumenti(programma, zsani, {.tasto = Tasto::F9, .ctrl = true}));
  EXPECT_FALSE(TastoDocumenti(programma, zsani, {.tasto = Tasto::F3}));
}

TEST_F(Zsani_Test, F4GiraLaCasellaDiTutti) {
  Giornata();
  Apri();
  Premi(Tasto::F4);
  EXPECT_TRUE(zsani.Check1.segnata);
  Premi(Tasto::F4);
  EXPECT_FALSE(zsani.Check1.segnata);
}

TEST_F(Zsani_Test, OrdiniConMemoria) {
  Giornata();
  Apri();
  OrdinaDocumenti(programma, zsani, 1);
  EXPECT_THAT(Numeri(), ElementsAre("001", "002", "003"));
  OrdinaDocumenti(programma, zsani, 2);
  EXPECT_THAT(Numeri(), ElementsAre("003", "002", "001"));
  EXPECT_THAT(Sostituisci_Tutti(Ini(), " = ", "="), testing::HasSubstr("flagSortOrder=2"));
  OrdinaDocumenti(programma, zsani, 0);
  EXPECT_THAT(Clienti(), ElementsAre("Bar Ponte", "Laguna Pesca", "Trattoria Lido"));
  EXPECT_EQ(programma.preferenze.flagSortOrder, 0);
  EXPECT_EQ(zsani.MList2.Riga(0), Pad("Bar Ponte", 50) + "003");
}

TEST_F(Zsani_Test, ModificaAMano) {
  Giornata();
  Apri();
  const std::pair<Vista, Vista> casi[] = {
      {"7", "007"}, {"7(ds)(ds)", "007 (ds)"}, {" 12 (ddt)(ds) ", "012 (ds) (ddt)"},
      {"0", ""},    {"abc (ds)", ""},          {"1000", "1000"}};
  SceltaVoce(zsani, 1);
  for (const auto& [scritto, atteso] : casi) {
    zsani.Text1[2].testo = scritto;
    ModificaNumero(zsani);
    EXPECT_EQ(Numeri()[1], atteso);
    EXPECT_EQ(zsani.MList2.Riga(1), Pad("Laguna Pesca", 50) + Testo(atteso));
  }
  EXPECT_EQ(zsani.MList2.scelta, 1);
  EXPECT_THAT(DDT(), ElementsAre("001", "002", "001", "003", "Rif.Fat. 12")) << "the rows wait for the save";
}

// ---- numbering commands

TEST_F(Zsani_Test, AggiornaNumeraIMancanti) {
  Vendita("Bar Ponte");
  Vendita("Laguna Pesca", "004 (ds)");
  Vendita("Trattoria Lido", "(ds)");
  Apri();
  SceltaVoce(zsani, 2);
  AggiornaNumeri(zsani);
  EXPECT_THAT(Numeri(), ElementsAre("005", "004 (ds)", "006 (ds)"));
  EXPECT_EQ(zsani.MList2.scelta, 0);
  EXPECT_EQ(zsani.Text1[2].testo, "005");
}

TEST_F(Zsani_Test, UnTestoSenzaNumeroValeZeroEResta) {
  Vendita("Bar Ponte", "abc");
  Vendita("Laguna Pesca");
  Apri();
  AggiornaNumeri(zsani);
  EXPECT_THAT(Numeri(), ElementsAre("abc", "001"));
  Rispondi({true, false});
  ControllaNumeri(programma, zsani);
  EXPECT_THAT(Numeri(), ElementsAre("001", "002")) << "the repair gives it one";
  EXPECT_THAT(Clienti(), ElementsAre("Laguna Pesca", "Bar Ponte"));
}

TEST_F(Zsani_Test, AutomaticaDalPrimoNumero) {
  Giornata();
  Apri();
  macchina.testi.emplace_back(" 12 ");
  NumeraAutomatica(programma, zsani);
  EXPECT_THAT(macchina.domande, ElementsAre("immettere il primo numero da utilizzare... "));
  EXPECT_EQ(zsani.Text2.testo, "12");
  EXPECT_THAT(Numeri(), ElementsAre("012", "013", "014"));
  EXPECT_TRUE(zsani.MList2.visibile);
}

TEST_F(Zsani_Test, AutomaticaSenzaRispostaLasciaTutto) {
  Giornata();
  Apri();
  for (const auto& risposta : {std::optional<Testo>(), std::optional<Testo>(" ")}) {
    macchina.testi.push_back(risposta);
    NumeraAutomatica(programma, zsani);
    EXPECT_EQ(zsani.Text2.testo, "1");
  }
  macchina.testi.emplace_back("abc");
  NumeraAutomatica(programma, zsani);
  EXPECT_EQ(zsani.Text2.testo, "0");
  EXPECT_THAT(Numeri(), ElementsAre("003", "001", "002"));
  EXPECT_TRUE(zsani.attiva);
}

TEST_F(Zsani_Test, AutomaticaChiedeSeQualcunoEStampato) {
  Vendita("Bar Ponte", "009 (ds)");
  Apri();
  Rispondi({false});
  NumeraAutomatica(programma, zsani);
  EXPECT_THAT(macchina.domande,
              ElementsAre("Alcuni documenti sono già stati stampati con la numerazione attuale...\n"_t
                          "OK per rinumerare ugualmente"_t));
  EXPECT_THAT(Numeri(), ElementsAre("009 (ds)"));
  Rispondi({true});
  macchina.testi.emplace_back("1");
  NumeraAutomatica(programma, zsani);
  EXPECT_THAT(Numeri(), ElementsAre("001"));
}

// The day's rows lose their numbers at once; the file waits for the save. One blank, as cancelled numbers
// have always stood there; the day file read back has none.
TEST_F(Zsani_Test, AnnullaToglieINumeriDalleRighe) {
  Giornata();
  Apri();
  Rispondi({true});
  AnnullaNumeri(programma, zsani);
  EXPECT_THAT(macchina.domande, ElementsAre(domanda_annulla));
  EXPECT_THAT(Numeri(), ElementsAre("", "", ""));
  EXPECT_THAT(DDT(), ElementsAre(" ", " ", " ", " ", "Rif.Fat. 12"));
  EXPECT_TRUE(programma.Tabella_Modificata);
  EXPECT_EQ(Giorno_Su_Disco()(CampoRiga::DDT, 1), "001");

  Apri();
  EXPECT_THAT(Numeri(), ElementsAre("", "", "")) << "a lone blank is no number";
}

TEST_F(Zsani_Test, AnnullaConDueDomandeSeQualcunoEStampato) {
  Vendita("Bar Ponte", "009 (ds)");
  Apri();
  Rispondi({false});
  AnnullaNumeri(programma, zsani);
  Rispondi({true, false});
  AnnullaNumeri(programma, zsani);
  EXPECT_THAT(DDT(), ElementsAre("009 (ds)"));
  EXPECT_THAT(macchina.domande,
              ElementsAre(domanda_annulla, domanda_annulla,
                          "Alcuni documenti sono già stati stampati con la numerazione attuale...\n"_t
                          "OK per annullare la numerazione ugualmente"_t));
  EXPECT_FALSE(programma.Tabella_Modificata);
}

// ---- the check

TEST_F(Zsani_Test, ControllaRiparaESalva) {
  Vendita("Bar Ponte", "001");
  Vendita("Laguna Pesca", "001");
  Vendita("Trattoria Lido", "003");
  Apri();
  Rispondi({true, true});
  ControllaNumeri(programma, zsani);
  EXPECT_THAT(macchina.domande, ElementsAre(domanda_controllo, domanda_salva));
  EXPECT_THAT(Numeri(), ElementsAre("001", "002", "003"));
  EXPECT_EQ(zsani.MList2.scelta, 0);
  EXPECT_TRUE(zsani.MList2.visibile);
  EXPECT_THAT(DDT(), ElementsAre("001", "002", "003"));
  EXPECT_EQ(Giorno_Su_Disco()(CampoRiga::DDT, 2), "002");
}

TEST_F(Zsani_Test, ControllaAnnullatoOSenzaSalvare) {
  Vendita("Bar Ponte", "002");
  Apri();
  Rispondi({false});
  ControllaNumeri(programma, zsani);
  EXPECT_THAT(Numeri(), ElementsAre("002"));
  Rispondi({true, false});
  ControllaNumeri(programma, zsani);
  EXPECT_THAT(Numeri(), ElementsAre("001"));
  EXPECT_THAT(DDT(), ElementsAre("002"));
}

TEST_F(Zsani_Test, ControllaVuoleUnPrimoNumero) {
  Giornata();
  Apri();
  for (const Vista primo : {"0", "", "abc"}) {
    zsani.Text2.testo = primo;
    macchina.messaggi.clear();
    Rispondi({true});
    ControllaNumeri(programma, zsani);
    EXPECT_THAT(macchina.messaggi, ElementsAre("sistemare il Primo Numero..."));
    EXPECT_EQ(zsani.Text2.testo, "001");
    EXPECT_TRUE(zsani.MList2.visibile);
    EXPECT_THAT(Numeri(), ElementsAre("001", "002", "003")) << "sorted, not changed";
  }
}

TEST_F(Zsani_Test, ControllaDiceQuandoIDocumentiSonoTroppi) {
  for (int i = 0; i < 1000; ++i)
    programma.Vet_Tabella.righe.push_back(Riga(i + 1, "Cliente " + std::to_string(i), "5"));
  Apri();
  Rispondi({true});
  ControllaNumeri(programma, zsani);
  ASSERT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_THAT(macchina.messaggi[0], testing::HasSubstr("999"));
  EXPECT_THAT(Numeri(), testing::Each(Testo())) << "and nothing is asked to be saved";
}

// ---- saving

TEST_F(Zsani_Test, SalvaScriveOgniRigaDelClienteERilegge) {
  Vendita("Laguna Pesca", "001");
  Vendita("laguna pesca", "");
  Vendita("Laguna Pesca", "Rif.Fat. 12", "-5");
  Vendita("Laguna Pesca", "001", "0");
  Vendita("Bar Ponte", "002");
  Vendita("Laguna Pesca", "001");
  Apri();
  programma.Righe_Non_Salvate = 3;
  zsani.ListaDoc[1].Numero = "008 (ds)";
  zsani.ListaDoc[0].Numero = " ";
  Rispondi({true});
  EXPECT_EQ(SalvaNumeri(programma, zsani), EsitoNumeri::Salvato);
  EXPECT_THAT(macchina.domande, ElementsAre(domanda_salva));
  EXPECT_THAT(DDT(), ElementsAre("008 (ds)", "008 (ds)", "Rif.Fat. 12", "001", "", "008 (ds)"))
      << "rows with a price above zero; a blank is gone with the reading back";
  EXPECT_EQ(Giorno_Su_Disco().righe, programma.Vet_Tabella.righe);
  EXPECT_FALSE(programma.Tabella_Modificata);
  EXPECT_EQ(programma.Righe_Non_Salvate, 3) << "the automatic save goes on counting";
}

TEST_F(Zsani_Test, SalvaAnnullatoLasciaLeRighe) {
  Giornata();
  Apri();
  zsani.ListaDoc[0].Numero = "099";
  Rispondi({false});
  EXPECT_EQ(SalvaNumeri(programma, zsani), EsitoNumeri::Annullato);
  EXPECT_THAT(DDT(), ElementsAre("001", "002", "001", "003", "Rif.Fat. 12"));
}

TEST_F(Zsani_Test, UnSalvataggioFallitoLasciaRigheEFileELoSchermoAperto) {
  Giornata();
  Apri();
  zsani.ListaDoc[0].Numero = "099";
  const Testo prima = cartella.Contenuto("2025/20250314.txt");
  Disco_Pieno();
  Rispondi({true});
  ChiudiDocumenti(programma, zsani);
  EXPECT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_FALSE(zsani.chiusa);
  EXPECT_TRUE(zsani.attiva);
  EXPECT_THAT(DDT(), ElementsAre("001", "002", "001", "003", "Rif.Fat. 12"));
  EXPECT_EQ(cartella.Contenuto("2025/20250314.txt"), prima);
  EXPECT_EQ(Numeri()[0], "099");

  programma.disco.guasto = {};
  Rispondi({true});
  ChiudiDocumenti(programma, zsani);
  EXPECT_TRUE(zsani.chiusa);
  EXPECT_EQ(DDT()[3], "099");
}

TEST_F(Zsani_Test, LaChiusuraRimetteLOrdineDiImmissioneETieneLeCaselle) {
  Giornata();
  std::reverse(programma.Vet_Tabella.righe.begin(), programma.Vet_Tabella.righe.end());
  programma.Vet_Tabella(CampoRiga::Num, 1) = "0009";
  Apri();
  zsani.Check1.segnata = zsani.Check6.segnata = true;
  Rispondi({false});
  Premi(Tasto::Esc);
  EXPECT_TRUE(zsani.chiusa);
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Num, 1), "0001");
  EXPECT_EQ(programma.Vet_Tabella(CampoRiga::Num, 5), "0005");
  EXPECT_TRUE(programma.Tabella_Modificata) << "a row got another entry number";
  const Testo ini = Sostituisci_Tutti(Ini(), " = ", "=");
  for (const Vista riga : {"FlagC1ds=-1", "FlagC2ds=-1", "FlagC4ds=0"})
    EXPECT_THAT(ini, testing::HasSubstr(Testo(riga)));
}

// A click that arrives while a question stands would work on a list that is just being changed.
TEST_F(Zsani_Test, MentreChiedeNonFaAltro) {
  Giornata();
  Apri();
  macchina.durante_attesa = [this] {
    EXPECT_FALSE(zsani.attiva || zsani.Command1.attivo || zsani.Command2.attivo || zsani.Command4.attivo);
    zsani.Text1[2].testo = "5";
    ModificaNumero(zsani);
    AggiornaNumeri(zsani);
    SceltaVoce(zsani, 2);
    Premi(Tasto::Esc);
    Premi(Tasto::F2);
    OrdinaDocumenti(programma, zsani, 2);
  };
  Rispondi({true});
  SalvaNumeri(programma, zsani);
  EXPECT_EQ(macchina.domande.size(), 1U);
  EXPECT_THAT(Numeri(), ElementsAre("003", "001", "002"));
  EXPECT_FALSE(zsani.chiusa);
  EXPECT_TRUE(zsani.Command4.attivo);
}

// ---- a big day

TEST_F(Zsani_Test, UnaGrandeGiornataInUnAttimo) {
  programma.Vet_Clienti.clear();
  for (int i = 0; i < 200; ++i)
    programma.Vet_Clienti.push_back({std::to_string(10000 + i), "Cliente " + std::to_string(i)});
  programma.Vet_Tabella.righe.clear();
  for (int i = 0; i < 2000; ++i) {
    LedgerRow riga = Riga(i + 1, "Cliente " + std::to_string(i % 200), "5");
    riga[CampoRiga::Lotti] = std::to_string(i % 3);
    programma.Vet_Tabella.righe.push_back(std::move(riga));
  }
  const auto inizio = std::chrono::steady_clock::now();
  Apri();
  AggiornaNumeri(zsani);
  zsani.Check1.segnata = true;
  StampaDocumenti(programma, zsani);
  Rispondi({true});
  EXPECT_EQ(SalvaNumeri(programma, zsani), EsitoNumeri::Salvato);
  const auto durata = std::chrono::steady_clock::now() - inizio;
  EXPECT_EQ(stampati.size(), 200U);
  EXPECT_EQ(stampati[0].righe.size(), 3U);
  for (const Testo& numero : DDT()) ASSERT_TRUE(numero.ends_with("(ds)"));
  RecordProperty("millisecondi",
                 static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(durata).count()));
  EXPECT_LT(durata, std::chrono::seconds(10)) << "milliseconds, but for sanitizers and a busy machine";
}

}  // namespace

#include "primanota/znota.h"

#include <algorithm>
#include <gmock/gmock.h>

#include "tests/primanota/note_di_prova.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

struct Znota_Test : Note_Di_Prova {
  void Giornata() {
    Vendita("Valle", "20", "6");
    Vendita("Laguna", "12,5", "9,80");
    Vendita("Laguna", "5", "-3,5")[CampoRiga::DDT_CV] = "00012";
    Vendita("Laguna", "2", "7")[CampoRiga::Prov] = "HR Croazia";
    Vendita("Laguna")[CampoRiga::CodCliente] = "00124";
  }
  void Apri() {
    ApriNote(programma, znota);
    macchina.messaggi.clear();
  }
  void Scegli(int riga) {
    znota.ListaNote.scelta = riga;
    SceltaNota(znota);
  }
  void Premi(Tasto tasto) { EXPECT_TRUE(TastoNote(programma, znota, {.tasto = tasto})); }
  std::vector<Testo> Voci() const {
    std::vector<Testo> voci;
    for (std::size_t i = 0; i < znota.ListaNote.Numero(); ++i) voci.push_back(znota.ListaNote.Riga(i));
    return voci;
  }
  // Of each document the name and how many pages.
  std::vector<Testo> Documenti() const {
    std::vector<Testo> documenti;
    for (const Testo& riga : registro.righe)
      if (Inizia(riga, "documento ")) documenti.push_back(riga);
    return documenti;
  }
  std::size_t Volte(Vista testo) const {
    return static_cast<std::size_t>(std::count_if(registro.righe.begin(), registro.righe.end(),
                                                  [&](const Testo& riga) { return Contiene(riga, testo); }));
  }
  Znota znota;
};

TEST_F(Znota_Test, Apertura) {
  Giornata();
  ApriNote(programma, znota);
  EXPECT_EQ(znota.titolo, "Stampa Prima Nota del 14/03/2025 Ordinata per Immissione");
  EXPECT_THAT(macchina.messaggi, ElementsAre("Trattoria Lido è escluso"_t));
  EXPECT_THAT(Voci(), ElementsAre("HR Croazia ::: Laguna", "IT Italia ::: Laguna", "IT Italia ::: Valle"));
  EXPECT_EQ(znota.ListaNote.scelta, -1);
  EXPECT_EQ(znota.Text1[1].testo, "Prima Nota in stampa : ");
  EXPECT_EQ(znota.MenuEsclusi.testo, "Esclusi=1");
  EXPECT_EQ(znota.Caption_ListaEsclusi.testo, "Lista Clienti Esclusi");
  EXPECT_EQ(znota.Destinatario.testo, "La Prima Nota deve essere inviata a\na chi le redige fatture");
  EXPECT_EQ(znota.Esporta_Nota.testo, "F6 - Esport Prima Nota con codici FAO");
  EXPECT_EQ(znota.Stampante.testo, "Registro  - Verticale");
  EXPECT_EQ(znota.Copie.Scelta(), "1 copia");
}

TEST_F(Znota_Test, LeNotePerFornitore) {
  Giornata();
  programma.preferenze.FlagC3pn = true;
  Apri();
  EXPECT_THAT(Voci(), ElementsAre(" ::: Laguna", " ::: Valle"));
  Scegli(0);
  StampaNote(programma, znota);
  EXPECT_EQ(Volte(": Nota di Accredito 00012"), 1U);
  EXPECT_EQ(Volte("Provenienza del Prodotto"), 0U);
  EXPECT_EQ(Volte(": HR"), 1U) << "all provenances of the supplier are on his note";
}

TEST_F(Znota_Test, GliEsclusiDalMenu) {
  Giornata();
  Apri();
  EXPECT_FALSE(znota.ListaEsclusi.visibile);
  MostraEsclusi(programma, znota);
  EXPECT_TRUE(znota.ListaEsclusi.visibile && znota.Caption_ListaEsclusi.visibile);
  EXPECT_EQ(znota.ListaEsclusi.Riga(0), "00124  Trattoria Lido");
  MostraEsclusi(programma, znota);
  EXPECT_FALSE(znota.ListaEsclusi.visibile);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Znota_Test, NessunEscluso) {
  programma.Vet_Clienti.clear();
  ApriNote(programma, znota);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_EQ(znota.MenuEsclusi.testo, "Esclusi=0");
  MostraEsclusi(programma, znota);
  EXPECT_THAT(macchina.messaggi, ElementsAre("nessun cliente escluso..."));
  EXPECT_FALSE(znota.ListaEsclusi.visibile);
}

TEST_F(Znota_Test, SenzaSceltaSiChiede) {
  Giornata();
  Apri();
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("trovato Trattoria Lido", "Scegliere un cliente sulla lista e ridare il comando"));
  EXPECT_EQ(registro.pagine, 0);
  EXPECT_TRUE(znota.Stampa_Nota.attivo);
}

TEST_F(Znota_Test, UnaNotaScelta) {
  Giornata();
  Apri();
  Scegli(1);
  EXPECT_EQ(znota.Text1[1].testo, "Prima Nota in stampa : IT Italia ::: Laguna");
  const std::vector<LedgerRow> prima = programma.Vet_Tabella.righe;
  Premi(Tasto::F2);
  EXPECT_THAT(macchina.messaggi, ElementsAre("trovato Trattoria Lido"));
  EXPECT_THAT(Documenti(), ElementsAre("documento \"20250314 Prima Nota IT Laguna\" Registro"));
  EXPECT_EQ(registro.pagine, 1);
  EXPECT_EQ(Volte(": 00123  Pescheria Rialto"), 2U);
  EXPECT_EQ(Volte(":  Importo Totale = Euro 105,00"), 1U);
  EXPECT_EQ(Volte("Trattoria Lido"), 0U) << "an excluded customer has no row in any note";
  EXPECT_EQ(programma.Vet_Tabella.righe, prima);
  EXPECT_FALSE(programma.Tabella_Modificata);
  EXPECT_EQ(znota.titolo, "Stampa Prima Nota del 14/03/2025 Ordinata per Immissione");
  EXPECT_EQ(znota.Text1[1].testo, "Prima Nota in stampa : IT Italia ::: Laguna");
}

TEST_F(Znota_Test, CopiePerNota) {
  Giornata();
  Apri();
  Scegli(2);
  znota.Copie.scelta = 2;
  StampaNote(programma, znota);
  EXPECT_EQ(Documenti().size(), 3U);
  EXPECT_EQ(registro.pagine, 3);
}

TEST_F(Znota_Test, TutteLeNote) {
  Giornata();
  Apri();
  Premi(Tasto::F4);
  EXPECT_TRUE(znota.Tutte_Le_Note.segnata);
  znota.Copie.scelta = 1;
  StampaNote(programma, znota);
  const Testo hr = "documento \"20250314 Prima Nota HR Laguna\" Registro",
              it = "documento \"20250314 Prima Nota IT Laguna\" Registro",
              valle = "documento \"20250314 Prima Nota IT Valle\" Registro";
  EXPECT_THAT(Documenti(), ElementsAre(hr, it, valle, hr, it, valle));
  EXPECT_EQ(znota.ListaNote.scelta, 2);
  Premi(Tasto::F4);
  EXPECT_FALSE(znota.Tutte_Le_Note.segnata);
}

TEST_F(Znota_Test, UnaNotaDiSoliEsclusi) {
  Vendita("Valle")[CampoRiga::CodCliente] = "00124";
  Vendita("Laguna");
  Apri();
  znota.Tutte_Le_Note.segnata = true;
  StampaNote(programma, znota);
  EXPECT_THAT(macchina.messaggi, ElementsAre("trovato Trattoria Lido", "Nessuna trovata ..."));
  EXPECT_EQ(registro.pagine, 1);
}

TEST_F(Znota_Test, TuttoInUnDocumento) {
  Giornata();
  Apri();
  znota.Unico_Documento.segnata = true;
  znota.Tutte_Le_Note.segnata = true;  // the one document goes first
  znota.Copie.scelta = 1;
  StampaNote(programma, znota);
  const Testo nome = "documento \"20250314 Prima Nota\" Registro";
  EXPECT_THAT(Documenti(), ElementsAre(nome, nome));
  EXPECT_EQ(Volte("Provenienza del Prodotto"), 0U);
  EXPECT_EQ(Volte("Firma del Venditore"), 0U);
  EXPECT_EQ(Volte(":  Importo Totale = Euro 239,00"), 2U);
  EXPECT_EQ(Volte("Trattoria Lido"), 0U);
}

TEST_F(Znota_Test, IlGiornoVuoto) {
  Apri();
  EXPECT_THAT(Voci(), IsEmpty());
  znota.Tutte_Le_Note.segnata = true;
  StampaNote(programma, znota);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  znota.Unico_Documento.segnata = true;
  StampaNote(programma, znota);
  EXPECT_THAT(macchina.messaggi, ElementsAre("Nessuna trovata ..."));
  EXPECT_EQ(registro.pagine, 0);
}

TEST_F(Znota_Test, OrdineDelleRighe) {
  const Testo specie[] = {"Seppia", "Orata", "Alice"};
  for (const Testo& nome : specie) Vendita("Laguna")[CampoRiga::Specie] = nome;
  std::reverse(programma.Vet_Tabella.righe.begin(), programma.Vet_Tabella.righe.end());  // ordered by hand
  Apri();
  Scegli(0);
  const auto stampate = [&] {
    registro.righe.clear();
    StampaNote(programma, znota);
    std::vector<Testo> trovate;
    for (const Testo& riga : registro.righe)
      for (const Testo& nome : specie)
        if (Contiene(riga, ": " + nome)) trovate.push_back(nome);
    return trovate;
  };
  EXPECT_THAT(stampate(), ElementsAre("Seppia", "Orata", "Alice"));
  znota.Ordina_Specie.segnata = true;
  CambiaOrdine(programma, znota);
  EXPECT_EQ(znota.titolo, "Stampa Prima Nota del 14/03/2025 Ordinata per Specie");
  EXPECT_THAT(stampate(), ElementsAre("Alice", "Orata", "Seppia"));
  EXPECT_EQ(znota.titolo, "Stampa Prima Nota del 14/03/2025 Ordinata per Specie");
}

TEST_F(Znota_Test, IlTitoloDiceCheSiFa) {
  Vendite(26, "Laguna");
  Apri();
  Scegli(0);
  std::vector<Testo> titoli;
  struct Spia : Piattaforma_Finta {
    std::function<void()> dopo;
    void Ridipingi() override { dopo(); }
  } spia;
  spia.dispositivo = &printer;
  spia.dopo = [&] {
    if (titoli.empty() || titoli.back() != znota.titolo) titoli.push_back(znota.titolo);
  };
  Programma con_spia{spia};
  con_spia.preferenze = programma.preferenze;
  con_spia.Vet_Tabella = programma.Vet_Tabella;
  con_spia.Data_Giorno = programma.Data_Giorno;
  StampaNote(con_spia, znota);
  EXPECT_THAT(titoli, ElementsAre("Eleborazione in corso ... ", "Calcolo Importo Totale della nota ...",
                                  "Laguna Pagina 1 di 2 in corso...", "Laguna Pagina 2 di 2 in corso..."));
}

// ---- keys, ticks, closing

TEST_F(Znota_Test, AltriTasti) {
  Giornata();
  Apri();
  EXPECT_FALSE(TastoNote(programma, znota, {.tasto = Tasto::F3}));
  EXPECT_FALSE(TastoNote(programma, znota, {.tasto = Tasto::F2, .ctrl = true}));
  znota.attiva = false;  // a command runs
  for (const Tasto tasto : {Tasto::F2, Tasto::F4, Tasto::F6, Tasto::Esc}) Premi(tasto);
  MostraEsclusi(programma, znota);
  MostraAiutoEsportazione(programma, znota);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_FALSE(znota.chiusa);
  EXPECT_FALSE(znota.Tutte_Le_Note.segnata);
}

TEST_F(Znota_Test, LeSpunteRestano) {
  Apri();
  EXPECT_FALSE(znota.Limita_Zona.segnata);
  znota.Tutte_Le_Note.segnata = znota.Scrivi_Totale.segnata = znota.Limita_Zona.segnata = true;
  znota.Tante_NA.segnata = true;
  Premi(Tasto::Esc);
  EXPECT_TRUE(znota.chiusa);
  for (const char* riga : {"FlagC1pn=-1", "FlagC2pn=0", "FlagC4pn=-1", "FlagOrdina1=0", "FlagZ5=-1"})
    EXPECT_THAT(Ini(), HasSubstr(riga));
  Znota seconda;
  ApriNote(programma, seconda);
  EXPECT_TRUE(seconda.Tutte_Le_Note.segnata && seconda.Scrivi_Totale.segnata && seconda.Limita_Zona.segnata);
  EXPECT_FALSE(seconda.Unico_Documento.segnata || seconda.Ordina_Specie.segnata);
  EXPECT_FALSE(seconda.Tante_NA.segnata) << "this one is asked for each time";
}

TEST_F(Znota_Test, F6EsportaColSegnoDellaZona) {
  Vendita("Laguna")[CampoRiga::ZonaP] = "A083721 - Adriatico";
  Apri();
  znota.scegli_drive = [](ModoCopia modo, const Percorso& propria) {
    EXPECT_EQ(modo, ModoCopia::NOTA);
    return std::optional<DriveScelto>({Testo_Percorso(propria), propria, true});
  };
  Premi(Tasto::F6);
  EXPECT_THAT(cartella.Contenuto("XBanca/20250314.txt"), HasSubstr(";A083721;IT;"));
  znota.Limita_Zona.segnata = true;
  Esporta(programma, znota);
  EXPECT_THAT(cartella.Contenuto("XBanca/20250314.txt"), HasSubstr(";A08372;IT;"));
  EXPECT_TRUE(znota.attiva && znota.Esporta_Nota.attivo);
}

TEST_F(Znota_Test, EsportaSulDiscoNonChiede) {
  Vendita("Laguna");
  Apri();
  znota.scegli_drive = [](ModoCopia, const Percorso&) -> std::optional<DriveScelto> {
    ADD_FAILURE() << "asked";
    return std::nullopt;
  };
  EsportaSulDisco(programma, znota);
  EXPECT_THAT(macchina.messaggi.front(), StartsWith("Salvati 1 su 1\n"));
}

TEST_F(Znota_Test, LAiuto) {
  Apri();
  MostraAiutoEsportazione(programma, znota);
  EXPECT_THAT(macchina.messaggi, ElementsAre(HasSubstr("\\xVeritas\n")));
}

}  // namespace

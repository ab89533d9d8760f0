#include "lists/anagrafica_fornitori.h"

#include "tests/lists/anagrafica_prova.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Anagrafica_Dei_Fornitori : public Anagrafica_Aperta {
 protected:
  void Apri_Con(Vista contenuto) {
    Scrivi(nomi_file::Fornitori, contenuto);
    Leggi_Fornitori(programma);
    Apri(Anagrafica_Fornitori());
  }
};

constexpr Vista due =
    "0001\tMare Blu\tdi Mario\tvia 1\tChioggia\t99\t6.5\tmb\tIT1\r\n"
    "0002\tPesca D'Oro\t\t\t\t\t8\tpo\t\r\n";

TEST_F(Anagrafica_Dei_Fornitori, TitoliERighe) {
  Apri_Con(due);
  EXPECT_EQ(schermo.titolo, "Lista dei Fornitori Registrati");
  EXPECT_EQ(schermo.titolo_modulo, "Aggiungi/Modifica Lista dei Fornitori Registrati");
  EXPECT_EQ(schermo.AggiungiModifica.testo, "Aggiungi/&Modifica");
  EXPECT_THAT(Voci(), ElementsAre("0001 - Mare Blu", "0002 - Pesca D'Oro"));
  std::vector<Testo> didascalie;
  for (const Scritta& scritta : schermo.Caption) didascalie.push_back(scritta.testo);
  EXPECT_THAT(didascalie,
              ElementsAre("Codice", "Ragione Sociale 1 ", "Ragione Sociale 2 ", "Via + Civico",
                          "Cap + Citta' ", "P.IVA", "Provvigione (% imponibile)", "Codice Lotto", "IBAN"));
}

// What stands in the file already isn't touched by an addition, the commission in its own form included.
TEST_F(Anagrafica_Dei_Fornitori, AggiungereMetteLaRigaInFondoAlFile) {
  Apri_Con(due);
  Compila({"0003", "Laguna è bella"_t, "s.n.c.", "via", "citta", "1", "7.25", "lb", "IT3"});
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Fornitori),
            Testo(due) + "0003\tLaguna \xE8 bella\ts.n.c.\tvia\tcitta\t1\t7,25\tlb\tIT3\r\n");
  In_Passo(2, 3);
  EXPECT_EQ(schermo.Text1[fornitore::RagioneSociale1].testo, "Laguna è bella"_t);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Anagrafica_Dei_Fornitori, UnaUltimaRigaSenzaFineNonSiAttaccaAllaNuova) {
  for (const Vista fine : {"", "\r\n", "\n", "\r"}) {
    Apri_Con("0001\tMare Blu\r\n0002\tDue" + Testo(fine));
    Compila({"0003", "Tre"});
    ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
    EXPECT_EQ(Contenuto(nomi_file::Fornitori), "0001\tMare Blu\r\n0002\tDue" +
                                                   Testo(fine.empty() ? FINE_RIGA : fine) +
                                                   "0003\tTre\t\t\t\t\t\t\t\r\n");
    EXPECT_THAT(Voci(), ElementsAre("0001 - Mare Blu", "0002 - Due", "0003 - Tre"));
  }
}

TEST_F(Anagrafica_Dei_Fornitori, SenzaFileLaPrimaAggiuntaLoFa) {
  Leggi_Fornitori(programma);
  Apri(Anagrafica_Fornitori());
  EXPECT_EQ(schermo.List1.Numero(), 2U);
  Compila({"0001", "Nostro"});
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Fornitori), "0001\tNostro\t\t\t\t\t\t\t\r\n");
  In_Passo(0, 1);
}

TEST_F(Anagrafica_Dei_Fornitori, AggiungereConUnGuastoDiceNumeroETesto) {
  Apri_Con(due);
  Compila({"0003", "Tre"});
  const auto campi = Campi();
  const auto tabella = programma.Vet_Fornitori;
  Disco_Pieno(nomi_file::Fornitori);
  EXPECT_FALSE(Aggiungi_Voce(programma, schermo));
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("Errore =" + std::to_string(ENOSPC) + ' ' + Testo_Errore(ENOSPC)));
  EXPECT_EQ(Contenuto(nomi_file::Fornitori), due);
  EXPECT_EQ(programma.Vet_Fornitori, tabella);
  EXPECT_EQ(Campi(), campi);
  In_Passo(0, 2);
}

TEST_F(Anagrafica_Dei_Fornitori, UnFileCheNonSiLeggeNonSiAllunga) {
  std::filesystem::create_symlink("/proc/self/mem",
                                  File(nomi_file::Fornitori));  // is there, reads as an error
  Leggi_Fornitori(programma);
  Apri(Anagrafica_Fornitori());
  macchina.messaggi.clear();
  Compila({"0003", "Tre"});
  EXPECT_FALSE(Aggiungi_Voce(programma, schermo));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Errore =" + std::to_string(EIO) + ' ' + Testo_Errore(EIO)));
}

TEST_F(Anagrafica_Dei_Fornitori, ConNomeOCodiceVuotoIDatiSonoIncompleti) {
  Apri_Con(due);
  for (const std::vector<Testo>& valori : {std::vector<Testo>{"", "Tre"}, {"0003", ""}, {" ", "Tre"}}) {
    macchina.messaggi.clear();
    Compila(valori);
    EXPECT_FALSE(Aggiungi_Voce(programma, schermo));
    EXPECT_FALSE(Modifica_Voce(programma, schermo));
    EXPECT_THAT(macchina.messaggi, ElementsAre("Dati incompleti...", "Dati incompleti..."));
  }
  EXPECT_EQ(Contenuto(nomi_file::Fornitori), due);
}

TEST_F(Anagrafica_Dei_Fornitori, ModificareRiscriveIlFile) {
  Apri_Con(due);
  Vai_Alla_Riga(programma, schermo, 2);
  schermo.Text1[fornitore::Provvigione].testo = "8.75";
  Cambia_Campo(programma, schermo, fornitore::Provvigione);
  EXPECT_EQ(schermo.Text1[fornitore::Provvigione].testo, "8,75");
  ASSERT_TRUE(Modifica_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Fornitori),
            "0001\tMare Blu\tdi Mario\tvia 1\tChioggia\t99\t6,5\tmb\tIT1\r\n"
            "0002\tPesca D'Oro\t\t\t\t\t8,75\tpo\t\r\n");
  In_Passo(1, 2);
}

TEST_F(Anagrafica_Dei_Fornitori, CancellareDiceCancellata) {
  Apri_Con(due);
  ASSERT_TRUE(Elimina_Voce(programma, schermo));
  EXPECT_EQ(schermo.EsitoModulo.testo, "cancellata");
  EXPECT_EQ(Contenuto(nomi_file::Fornitori), "0002\tPesca D'Oro\t\t\t\t\t8\tpo\t\r\n");
  EXPECT_THAT(Voci(), ElementsAre("0002 - Pesca D'Oro"));
}

TEST_F(Anagrafica_Dei_Fornitori, LaTabellaSopravviveAUnGuasto) {
  Apri_Con(due);
  const auto tabella = programma.Vet_Fornitori;
  Disco_Pieno(nomi_file::Fornitori);
  schermo.Text1[fornitore::Via].testo = "via 2";
  EXPECT_FALSE(Modifica_Voce(programma, schermo));
  EXPECT_FALSE(Elimina_Voce(programma, schermo));
  EXPECT_EQ(schermo.EsitoModulo.testo, "");
  EXPECT_THAT(macchina.messaggi,
              ElementsAre(Errore_Su(nomi_file::Fornitori), Errore_Su(nomi_file::Fornitori)));
  EXPECT_EQ(programma.Vet_Fornitori, tabella);
  EXPECT_EQ(Contenuto(nomi_file::Fornitori), due);
  EXPECT_EQ(schermo.Text1[fornitore::Via].testo, "via 2");
}

TEST_F(Anagrafica_Dei_Fornitori, LaProvvigionePrendeSoloCifreEUnSeparatore) {
  struct Caso {
    char separatore;
    Testo scritto, diventa;
  };
  const Caso casi[] = {{',', "6.5", "6,5"},   {'.', "6,5", "6.5"},    {',', "6,5", "6,5"},
                       {',', "6,,5", "6,5"},  {',', "6.5,2", "6,52"}, {'.', "a6%b.5 ", "6.5"},
                       {',', "", ""},         {',', "-10", "10"},     {',', ".", ","},
                       {',', "1\t0\n", "10"}, {'.', "sei", ""}};
  Apri_Con(due);
  for (const auto& [separatore, scritto, diventa] : casi) {
    programma.Separatore_Decimale = separatore;
    schermo.Text1[fornitore::Provvigione].testo = scritto;
    Cambia_Campo(programma, schermo, fornitore::Provvigione);
    EXPECT_EQ(schermo.Text1[fornitore::Provvigione].testo, diventa) << scritto;
  }
  schermo.Text1[fornitore::CodiceLotto].testo = "a6%b.5";
  Cambia_Campo(programma, schermo, fornitore::CodiceLotto);
  EXPECT_EQ(schermo.Text1[fornitore::CodiceLotto].testo, "a6%b.5");
}

// A commission written on a point machine goes into a row with this machine's separator.
TEST_F(Anagrafica_Dei_Fornitori, CopiaDaNomeProvvigioneEIlLottoSeAutomatico) {
  Apri_Con(due);
  programma.Vet_Fornitori[0][fornitore::Provvigione] = "6.5";
  auto copia = Copia_Del_Fornitore(programma, 0);
  EXPECT_EQ(copia.nome, "Mare Blu");
  EXPECT_EQ(copia.provvigione, "6,5");
  EXPECT_EQ(copia.lotto, "");
  programma.preferenze.FlagLottiAutomatici = true;
  EXPECT_EQ(Copia_Del_Fornitore(programma, 0).lotto, "mb");
  programma.Separatore_Decimale = '.';
  programma.Vet_Fornitori[0][fornitore::Provvigione] = "6,5";
  EXPECT_EQ(Copia_Del_Fornitore(programma, 0).provvigione, "6.5");
}

TEST_F(Anagrafica_Dei_Fornitori, UnaRigaDiCinqueCaratteriRestaNelFileFinoAllaRiscrittura) {
  Apri_Con("0001\tA\r\n0009\t\r\n");
  EXPECT_THAT(Voci(), ElementsAre("0001 - A"));
  Compila({"0002", "B"});
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Fornitori), "0001\tA\r\n0009\t\r\n0002\tB\t\t\t\t\t\t\t\r\n");
  In_Passo(1, 2);
  ASSERT_TRUE(Modifica_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Fornitori), "0001\tA\t\t\t\t\t\t\t\r\n0002\tB\t\t\t\t\t\t\t\r\n");
}

}  // namespace

#include "lists/anagrafica_clienti.h"

#include "tests/lists/anagrafica_prova.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class Anagrafica_Dei_Clienti : public Anagrafica_Aperta {
 protected:
  // As the day opening leaves it.
  void Apri_Con(Vista contenuto) {
    Scrivi(nomi_file::Clienti, contenuto);
    Leggi_Clienti(programma);
    Apri(Anagrafica_Clienti());
  }
};

constexpr Vista tre =
    "00101\tIttica Alba S.r.l.\talba\tVia del Porto 1\t30015 Chioggia - VE\t99010000000\t-\t-\tIT60\r\n"
    "00203\tPescheria del Porto di Chioggia Vecchia\tzeta\tvia\tcitta\t99\tESCLUSO\tRISTORANTE\t\r\n"
    "00150\tGabbiano\t\t\t\t\t-\t-\t\r\n";

TEST_F(Anagrafica_Dei_Clienti, TitoloConIlNumeroECampiNellOrdineDelFile) {
  Apri_Con(tre);
  EXPECT_EQ(schermo.titolo, "Lista dei Clienti: 3");
  EXPECT_EQ(schermo.titolo_modulo, "Aggiungi/Modifica Lista dei Clienti Registrati");
  EXPECT_EQ(schermo.AggiungiModifica.testo, "Aggiungi/&modifica");
  std::vector<Testo> didascalie;
  for (const Scritta& scritta : schermo.Caption) didascalie.push_back(scritta.testo);
  EXPECT_THAT(didascalie, ElementsAre("Codice", "Ragione Sociale 1 ", "Soprannome ", "Via + Civico",
                                      "Cap + Citta' ", "P.IVA", "Cliente ESCLUSO", "RISTORANTE", "IBAN"));
  EXPECT_EQ(schermo.Text1[cliente::PIva].suggerimento,
            "Inserire partita iva ed eventualmente codice fiscale\n"
            "inserire eventualmente 12345678901 cf XXXXXX00Y00Z000Z");
  EXPECT_TRUE(schermo.Privacy.visibile);
  EXPECT_TRUE(schermo.Privacy.attivo);
}

// Printed lists of the firms are compared with the screen by these columns.
TEST_F(Anagrafica_Dei_Clienti, LeDueFormeDellaRiga) {
  Apri_Con(tre);
  EXPECT_THAT(Voci(), ElementsAre("00101 - Ittica Alba S.r.l.        - alba - -",
                                  "00203 - Pescheria del Porto di Ch - zeta - ESCLUSO",
                                  "00150 - Gabbiano                  - zz - -"));
  EXPECT_EQ(Riga_Cliente(programma, 0, true), "alba       Ittica Alba S. - 00101 - -");
  EXPECT_EQ(Riga_Cliente(programma, 1, true), "zeta       Pescheria del  - 00203 - ESCLUSO");
  EXPECT_EQ(Riga_Cliente(programma, 2, true), "zz         Gabbiano - 00150 - -");
  programma.Vet_Clienti[0][cliente::Soprannome] = "soprannome lungo";
  EXPECT_EQ(Riga_Cliente(programma, 0, true), "soprannome Ittica Alba S. - 00101 - -");
  programma.Vet_Clienti[0][cliente::Soprannome].clear();
  EXPECT_EQ(Riga_Cliente(programma, 0, true).substr(0, 11), "zz         ");
}

TEST_F(Anagrafica_Dei_Clienti, OgniOrdineRestaNelFile) {
  struct Caso {
    std::size_t ordine;
    Testo nome;
    std::vector<Testo> codici;
  };
  const Caso casi[] = {{0, "Ordina_Nome", {"00150", "00101", "00203"}},
                       {1, "Ordina_Codice", {"00101", "00150", "00203"}},
                       {2, "Ordina_Soprannome", {"00101", "00203", "00150"}}};
  for (const auto& [ordine, nome, codici] : casi) {
    Apri_Con(tre);
    ASSERT_EQ(Anagrafica_Clienti().ordini[ordine].nome, nome);
    Ordina_Anagrafica(programma, schermo, ordine);
    std::vector<Testo> nel_file;
    const Testo contenuto = Contenuto(nomi_file::Clienti);
    for (const Vista riga : Righe(contenuto)) nel_file.emplace_back(Sinistra(riga, 5));
    EXPECT_EQ(nel_file, codici) << nome;
    std::vector<Testo> in_tabella;
    for (const auto& riga : programma.Vet_Clienti) in_tabella.push_back(riga[cliente::Codice]);
    EXPECT_EQ(in_tabella, codici) << nome;
  }
}

// The nickname of those who have none is written with the first save, so that they stay last.
TEST_F(Anagrafica_Dei_Clienti, LOrdinePerSoprannomeMostraIlSoprannomeEScriveZz) {
  Apri_Con(tre);
  Ordina_Anagrafica(programma, schermo, 2);
  EXPECT_THAT(Voci(),
              ElementsAre("alba       Ittica Alba S. - 00101 - -",
                          "zeta       Pescheria del  - 00203 - ESCLUSO", "zz         Gabbiano - 00150 - -"));
  EXPECT_EQ(
      Contenuto(nomi_file::Clienti),
      "00101\tIttica Alba S.r.l.\talba\tVia del Porto 1\t30015 Chioggia - VE\t99010000000\t-\t-\tIT60\r\n"
      "00203\tPescheria del Porto di Chioggia Vecchia\tzeta\tvia\tcitta\t99\tESCLUSO\tRISTORANTE\t\r\n"
      "00150\tGabbiano\tzz\t\t\t\t-\t-\t\r\n");
  Ordina_Anagrafica(programma, schermo, 1);
  EXPECT_EQ(Voci()[0], "00101 - Ittica Alba S.r.l.        - alba - -");
}

TEST_F(Anagrafica_Dei_Clienti, OrdinandoLaRigaSceltaRestaScelta) {
  Apri_Con(tre);
  Scegli_Riga(2);
  Ordina_Anagrafica(programma, schermo, 0);
  In_Passo(0, 3);
  EXPECT_EQ(schermo.Text1[0].testo, "00150");
}

TEST_F(Anagrafica_Dei_Clienti, OrdinandoColDiscoPienoFileETabellaRestano) {
  Apri_Con(tre);
  const auto prima = programma.Vet_Clienti;
  Disco_Pieno(nomi_file::Clienti);
  Ordina_Anagrafica(programma, schermo, 0);
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_Su(nomi_file::Clienti)));
  EXPECT_EQ(programma.Vet_Clienti, prima);
  EXPECT_EQ(Contenuto(nomi_file::Clienti), tre);
  EXPECT_EQ(Voci()[0], "00101 - Ittica Alba S.r.l.        - alba - -");
}

TEST_F(Anagrafica_Dei_Clienti, AggiungereScriveInFondoEVaAllaRigaNuova) {
  Apri_Con(tre);
  Compila({" 00300 ", "Trattoria dell'Orsù"_t, "", "Calle è 3"_t, "30015 Chioggia", "123", "-", "RISTORANTE",
           "IT1"});
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_EQ(
      Contenuto(nomi_file::Clienti),
      "00101\tIttica Alba S.r.l.\talba\tVia del Porto 1\t30015 Chioggia - VE\t99010000000\t-\t-\tIT60\r\n"
      "00203\tPescheria del Porto di Chioggia Vecchia\tzeta\tvia\tcitta\t99\tESCLUSO\tRISTORANTE\t\r\n"
      "00150\tGabbiano\tzz\t\t\t\t-\t-\t\r\n"
      "00300\tTrattoria dell'Ors\xF9\t\tCalle \xE8 3\t30015 Chioggia\t123\t-\tRISTORANTE\tIT1\r\n");
  In_Passo(3, 4);
  EXPECT_EQ(schermo.titolo, "Lista dei Clienti: 4");
  EXPECT_EQ(schermo.Text1[cliente::Soprannome].testo, "zz");
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Anagrafica_Dei_Clienti, SenzaCodiceOSenzaNomeIDatiSonoIncompleti) {
  const std::vector<Testo> casi[] = {{"", "Nome"}, {"00400", ""}, {"  ", "Nome"}, {"00400", "   "}};
  for (const auto& valori : casi) {
    Apri_Con(tre);
    Compila(valori);
    macchina.messaggi.clear();
    EXPECT_FALSE(Aggiungi_Voce(programma, schermo));
    EXPECT_THAT(macchina.messaggi, ElementsAre("Dati incompleti..."));
    EXPECT_FALSE(Modifica_Voce(programma, schermo));
    EXPECT_THAT(macchina.messaggi, ElementsAre("Dati incompleti...", "Dati incompleti..."));
    EXPECT_EQ(Contenuto(nomi_file::Clienti), tre);
    EXPECT_EQ(Campi()[0], valori[0]);
  }
}

// Firms that ship have customers with letters in their codes.
TEST_F(Anagrafica_Dei_Clienti, UnCodiceAlfanumericoSiAccetta) {
  Apri_Con("");
  Compila({"A12", "Estero"});
  EXPECT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Clienti), "A12\tEstero\t\t\t\t\t-\t-\t\r\n");
}

TEST_F(Anagrafica_Dei_Clienti, ModificareRiscriveLaRiga) {
  Apri_Con(tre);
  Vai_Alla_Riga(programma, schermo, 2);
  schermo.Text1[cliente::RagioneSociale1].testo = "Pescheria Nuova";
  ASSERT_TRUE(Modifica_Voce(programma, schermo));
  EXPECT_EQ(
      Contenuto(nomi_file::Clienti),
      "00101\tIttica Alba S.r.l.\talba\tVia del Porto 1\t30015 Chioggia - VE\t99010000000\t-\t-\tIT60\r\n"
      "00203\tPescheria Nuova\tzeta\tvia\tcitta\t99\tESCLUSO\tRISTORANTE\t\r\n"
      "00150\tGabbiano\tzz\t\t\t\t-\t-\t\r\n");
  In_Passo(1, 3);
}

TEST_F(Anagrafica_Dei_Clienti, CancellareTogliLaRigaDalFile) {
  Apri_Con(tre);
  Vai_Alla_Riga(programma, schermo, 3);
  ASSERT_TRUE(Elimina_Voce(programma, schermo));
  EXPECT_EQ(
      Contenuto(nomi_file::Clienti),
      "00101\tIttica Alba S.r.l.\talba\tVia del Porto 1\t30015 Chioggia - VE\t99010000000\t-\t-\tIT60\r\n"
      "00203\tPescheria del Porto di Chioggia Vecchia\tzeta\tvia\tcitta\t99\tESCLUSO\tRISTORANTE\t\r\n");
  In_Passo(1, 2);
  EXPECT_EQ(schermo.Text1[0].testo, "00203");
  Elimina_Voce(programma, schermo);
  Elimina_Voce(programma, schermo);
  EXPECT_EQ(Contenuto(nomi_file::Clienti), "");
  In_Passo(-1, 0);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Anagrafica_Dei_Clienti, UnGuastoLasciaFileTabellaEQuantoScritto) {
  for (int operazione = 0; operazione < 3; ++operazione) {
    programma.disco.guasto = nullptr;
    macchina.messaggi.clear();
    Apri_Con(tre);
    Vai_Alla_Riga(programma, schermo, 2);
    Compila({"00999", "Nuovo"});
    const auto tabella = programma.Vet_Clienti;
    const auto campi = Campi();
    Disco_Pieno(nomi_file::Clienti);
    const bool fatto = operazione == 0   ? Aggiungi_Voce(programma, schermo)
                       : operazione == 1 ? Modifica_Voce(programma, schermo)
                                         : Elimina_Voce(programma, schermo);
    EXPECT_FALSE(fatto);
    EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_Su(nomi_file::Clienti)));
    EXPECT_EQ(programma.Vet_Clienti, tabella);
    EXPECT_EQ(Contenuto(nomi_file::Clienti), tre);
    EXPECT_EQ(Campi(), campi);
    In_Passo(1, 3);
  }
}

TEST_F(Anagrafica_Dei_Clienti, IlDoppioClicCambiaISegni) {
  struct Caso {
    Testo prima, escluso, ristorante;
  };
  const Caso casi[] = {{"-", "ESCLUSO", "RISTORANTE"},
                       {"ESCLUSO", "-", "-"},
                       {"RISTORANTE", "-", "-"},
                       {"", "-", "-"},
                       {" ", "-", "-"},
                       {"escluso", "-", "-"}};
  Apri_Con(tre);
  for (const auto& [prima, escluso, ristorante] : casi) {
    schermo.Text1[cliente::Escluso].testo = schermo.Text1[cliente::Ristorante].testo = prima;
    Doppio_Clic_Campo(programma, schermo, cliente::Escluso);
    Doppio_Clic_Campo(programma, schermo, cliente::Ristorante);
    EXPECT_EQ(schermo.Text1[cliente::Escluso].testo, escluso) << prima;
    EXPECT_EQ(schermo.Text1[cliente::Ristorante].testo, ristorante) << prima;
  }
  Doppio_Clic_Campo(programma, schermo, cliente::Codice);
  EXPECT_EQ(schermo.Text1[cliente::Codice].testo, "00101");
  EXPECT_FALSE(Anagrafica_Clienti().campi[cliente::Escluso].a_mano);
  EXPECT_FALSE(Anagrafica_Clienti().campi[cliente::Ristorante].a_mano);
  EXPECT_TRUE(Anagrafica_Clienti().campi[cliente::PIva].a_mano);
}

TEST_F(Anagrafica_Dei_Clienti, IlSegnoEsclusoArrivaNelFile) {
  Apri_Con("00101\tAlba\ta\t\t\t\t-\t-\t\r\n");
  Doppio_Clic_Campo(programma, schermo, cliente::Escluso);
  ASSERT_TRUE(Modifica_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Clienti), "00101\tAlba\ta\t\t\t\tESCLUSO\t-\t\r\n");
}

// The ninth column is the rest of the line: changing another field must not cut it.
TEST_F(Anagrafica_Dei_Clienti, IlRestoDellaRigaSopravviveAUnaModifica) {
  Apri_Con("00101\tAlba\ta\t\t\t\t-\t-\tIT60\taltro\t resto \r\n");
  schermo.Text1[cliente::Via].testo = "via\tnuova\r\n";
  ASSERT_TRUE(Modifica_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Clienti), "00101\tAlba\ta\tvianuova\t\t\t-\t-\tIT60\taltro\t resto \r\n");
}

TEST_F(Anagrafica_Dei_Clienti, RigheConPocheOTroppeColonne) {
  Apri_Con("00101\r\n\tSenza codice\r\n00102\tSolo nome\r\n");
  EXPECT_THAT(Voci(),
              ElementsAre("00101 -                           - zz - ", " - Senza codice              - zz - ",
                          "00102 - Solo nome                 - zz - "));
  Vai_Alla_Riga(programma, schermo, 3);
  ASSERT_TRUE(Modifica_Voce(programma, schermo));
  // The row without a code has gone with this save, and the row in work is still the one that was changed.
  In_Passo(1, 2);
  EXPECT_EQ(schermo.Text1[0].testo, "00102");
  EXPECT_EQ(Contenuto(nomi_file::Clienti),
            "00101\t\tzz\t\t\t\t\t\t\r\n00102\tSolo nome\tzz\t\t\t\t-\t-\t\r\n");
}

TEST_F(Anagrafica_Dei_Clienti, SenzaFileLEsempioSiScriveColPrimoCliente) {
  Leggi_Clienti(programma);
  macchina.messaggi.clear();
  Apri(Anagrafica_Clienti());
  ASSERT_EQ(schermo.List1.Numero(), 1U);
  Compila({"00001", "Primo", "primo"});
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  const Testo contenuto = Contenuto(nomi_file::Clienti);
  EXPECT_THAT(Righe(contenuto), SizeIs(2));
  EXPECT_THAT(contenuto, testing::EndsWith("00001\tPrimo\tprimo\t\t\t\t-\t-\t\r\n"));
}

TEST_F(Anagrafica_Dei_Clienti, CopiaDaNomeECodice) {
  Apri_Con(tre);
  const auto [nome, codice] = Copia_Del_Cliente(programma, 1);
  EXPECT_EQ(nome, "Pescheria del Porto di Chioggia Vecchia");
  EXPECT_EQ(codice, "00203");
}

}  // namespace

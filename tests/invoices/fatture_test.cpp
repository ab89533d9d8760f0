#include "invoices/fatture.h"

#include <gmock/gmock.h>

#include "tests/invoices/fatture_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using enum TipoFattura;
using C = CampoRiga;

struct Fatture_Test : testing::Test, Fatture_Di_Prova {
  TabellaDocumenti Carica(TipoFattura tipo) { return CaricaDocumenti(programma.Vet_Tabella, tipo); }
};

// ---- the lists

TEST_F(Fatture_Test, DallUltimaRigaAllaPrima) {
  Vendi("00101", "5", "001", "00121");
  Vendi("00101", "6", "002", "00122");
  Vendi("00102", "7", "003");
  EXPECT_THAT(Carica(Fattura), ElementsAre(Voce_Fattura{"00102", "Trattoria Pontile", "003", ""},
                                           Voce_Fattura{"00101", "Pescheria Rialto", "002", "00122"}));
  EXPECT_THAT(Carica(Nota), IsEmpty());
}

TEST_F(Fatture_Test, UnClienteDeiDueSegniStaNelleDueListe) {
  Vendi("00101", "5", "001", "00121");
  Vendi("00101", "-6", "Rif.Fat. 9 - 01/03/2025", "NA");
  EXPECT_THAT(Carica(Fattura), ElementsAre(Voce_Fattura{"00101", "Pescheria Rialto", "001", "00121"}));
  EXPECT_THAT(Carica(Nota),
              ElementsAre(Voce_Fattura{"00101", "Pescheria Rialto", "Rif.Fat. 9 - 01/03/2025", "NA"}));
}

// rows of the other sign between two of one customer don't part him
TEST_F(Fatture_Test, ConfinaSoloCoiSuoi) {
  Vendi("00101", "5");
  Vendi("00102", "-5");
  Vendi("00101", "5");
  EXPECT_THAT(Codici(Carica(Fattura)), ElementsAre("00101"));
}

TEST_F(Fatture_Test, RigheNonVicineSonoPiuDocumenti) {
  Vendi("00101", "5");
  Vendi("00102", "5");
  Vendi("00101", "5");
  EXPECT_THAT(Codici(Carica(Fattura)), ElementsAre("00101", "00102", "00101"));
}

TEST_F(Fatture_Test, IlPrezzoZeroApreUnaFattura) {
  Vendi("00101", "0,00");
  Vendi("00102", "");
  EXPECT_THAT(Codici(Carica(Fattura)), ElementsAre("00102", "00101"));
}

TEST_F(Fatture_Test, IlSegnaErigaSenzaCodiceNonSonoDocumenti) {
  programma.Vet_Tabella.righe = {Riga_Segnaposto()};
  EXPECT_THAT(Carica(Fattura), IsEmpty());
  programma.Vet_Tabella.righe = {LedgerRow()};  // a day that was emptied
  EXPECT_THAT(Carica(Fattura), IsEmpty());
}

TEST_F(Fatture_Test, OrdinaPerTestoEdAParitaComePrima) {
  TabellaDocumenti tabella = {
      {"00103", "b", "9", "00009"}, {"00101", "A", "10", "100000"}, {"00102", "a", "10", "00010"}};
  OrdinaDocumenti(tabella, ColonnaFatture::Codice);
  EXPECT_THAT(Codici(tabella), ElementsAre("00101", "00102", "00103"));
  OrdinaDocumenti(tabella, ColonnaFatture::Cliente);
  EXPECT_THAT(Codici(tabella), ElementsAre("00101", "00102", "00103"));  // "A" and "a" are one name
  OrdinaDocumenti(tabella, ColonnaFatture::Riferimento);
  EXPECT_THAT(Codici(tabella), ElementsAre("00101", "00102", "00103"));  // "10" before "9"
  OrdinaDocumenti(tabella, ColonnaFatture::Numero);
  EXPECT_THAT(Codici(tabella), ElementsAre("00103", "00102", "00101"));
}

TEST_F(Fatture_Test, EsclusiERistoranti) {
  EXPECT_FALSE(E_Escluso(programma, "00101"));
  EXPECT_TRUE(E_Escluso(programma, "00103"));
  EXPECT_TRUE(E_Escluso(programma, "  00103  "));
  EXPECT_TRUE(E_Escluso(programma, "00103X"));  // the first five characters
  EXPECT_FALSE(E_Escluso(programma, "99999"));
  EXPECT_TRUE(E_Ristorante(programma, "00102"));
  EXPECT_FALSE(E_Ristorante(programma, "00101"));
  EXPECT_FALSE(E_Ristorante(programma, "99999"));
  programma.Vet_Clienti[0][cliente::Escluso] = "ESCLUSA";  // the word, not just something
  EXPECT_FALSE(E_Escluso(programma, "00101"));
}

// ---- numbers

struct Caso_Numero {
  Testo scritto, fattura, nota;
};

class Numeri_A_Mano : public testing::TestWithParam<Caso_Numero> {};

TEST_P(Numeri_A_Mano, NellaLoroForma) {
  EXPECT_EQ(CorreggiNumeroFattura(GetParam().scritto, ','), GetParam().fattura);
  EXPECT_EQ(CorreggiNumeroNota(GetParam().scritto, ','), GetParam().nota);
}

INSTANTIATE_TEST_SUITE_P(
    Fatture, Numeri_A_Mano,
    testing::Values(Caso_Numero{"12", "00012", "NA012"}, Caso_Numero{" 12 ", "00012", "NA012"},
                    Caso_Numero{"12/7", "12/007", "NA012"}, Caso_Numero{"12/007", "12/007", "NA012"},
                    Caso_Numero{"00127/4", "00127/004", "NA127"}, Caso_Numero{"NA5", "00000", "NA005"},
                    Caso_Numero{"na 5", "00000", "NA005"}, Caso_Numero{"NA", "00000", "NA"},
                    Caso_Numero{"", "", "NA"}, Caso_Numero{"123456", "123456", "NA123456"},
                    Caso_Numero{"12/", "12/", "NA012"}));

TEST(Numeri, IlLoroValore) {
  EXPECT_EQ(ValoreNumero("00127", ','), 127);
  EXPECT_EQ(ValoreNumero("127/004", ','), 127);
  EXPECT_EQ(ValoreNumero("NA005", ','), 5);
  EXPECT_EQ(ValoreNumero("NA", ','), 0);
  EXPECT_EQ(ValoreNumero("", ','), 0);
  EXPECT_EQ(NumeroFattura(7), "00007");
  EXPECT_EQ(NumeroFattura(100000), "100000");
  EXPECT_EQ(NumeroNota(7), "NA007");
  EXPECT_EQ(NumeroNota(1000), "NA1000");
}

// ---- what draws a document

struct Caso_Tracciato {
  Scelte_Stampa scelte;
  Profilo profilo;
  Tracciato_Fattura fattura, nota;
};

class Tracciati : public testing::TestWithParam<Caso_Tracciato> {};

TEST_P(Tracciati, DalleCaselleEDallaDitta) {
  const Caso_Tracciato& caso = GetParam();
  EXPECT_EQ(ScegliTracciato(Fattura, caso.scelte, caso.profilo), caso.fattura);
  EXPECT_EQ(ScegliTracciato(Nota, caso.scelte, caso.profilo), caso.nota);
}

using T = Tracciato_Fattura;
INSTANTIATE_TEST_SUITE_P(
    Fatture, Tracciati,
    testing::Values(
        Caso_Tracciato{{}, Profilo::Nessuno, T::Pagine_Testo, T::Pagine_Testo},
        Caso_Tracciato{{.Personalizzata = true}, Profilo::Nessuno, T::Grafica1, T::Nota_Grafica},
        Caso_Tracciato{{.Check1 = true}, Profilo::Nessuno, T::Grafica2, T::Nota_Grafica},
        Caso_Tracciato{
            {.Personalizzata = true, .Check1 = true}, Profilo::Nessuno, T::Grafica2, T::Nota_Grafica},
        // with the complete layout alone an invoice is drawn and a note is written
        Caso_Tracciato{{.Completa = true}, Profilo::Nessuno, T::Grafica4, T::Pagine_Testo},
        Caso_Tracciato{
            {.Personalizzata = true, .Completa = true}, Profilo::Nessuno, T::Grafica4, T::Grafica4},
        Caso_Tracciato{{.Personalizzata = true}, Profilo::Altinel, T::Grafica1, T::Grafica2},
        Caso_Tracciato{{.Check1 = true, .Completa = true}, Profilo::Cavarzo, T::Grafica4, T::Grafica2},
        Caso_Tracciato{{.Personalizzata = true}, Profilo::Brenval, T::Grafica1, T::Grafica3},
        Caso_Tracciato{{.Check1 = true}, Profilo::Burvano, T::Grafica2, T::Grafica3},
        Caso_Tracciato{{}, Profilo::Altinel, T::Pagine_Testo, T::Pagine_Testo}));

// ---- checks before a run

TEST_F(Fatture_Test, ControlloDelleFatture) {
  EXPECT_TRUE(ControllaFatture(programma, {}));
  EXPECT_TRUE(ControllaFatture(programma, {{"00101", "a", "", "00001"}}));
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_FALSE(ControllaFatture(programma, {{"00101", "a", "", "00001"}, {"00102", "b", "", ""}}));
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("Non tutti le fatture sono numerate... numerare tutte le fatture"));
}

TEST_F(Fatture_Test, ControlloDelleNote) {
  EXPECT_TRUE(ControllaNote(programma, {}));
  EXPECT_TRUE(ControllaNote(programma, {{"00101", "a", "", "NA"}}));
  EXPECT_FALSE(ControllaNote(programma, {{"00101", "a", "", ""}}));
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("Non tutti le note di credito sono numerate... numerare tutte le fatture"));
}

struct Caso_Nota {
  const char* nome;
  Testo numero;
  std::vector<Testo> messaggi;
};

const Testo numerate_male =
    "Non tutte le note di accredito sono numerate correttamente... numerare tutte le note di accredito";

class Note_Stampabili : public testing::TestWithParam<Caso_Nota> {};

TEST_P(Note_Stampabili, PrimaDiStamparleTutte) {
  Fatture_Di_Prova prova;
  EXPECT_EQ(NoteStampabili(
                prova.programma,
                {{"00101", "a", "", "NA001"}, {"00102", "b", "", GetParam().numero}, {"00103", "c", "", ""}}),
            false);
  EXPECT_EQ(prova.macchina.messaggi, GetParam().messaggi);  // the first fault alone
}

INSTANTIATE_TEST_SUITE_P(
    Fatture, Note_Stampabili,
    testing::Values(Caso_Nota{"SenzaNumero", "", {"Manca il numero di nota di accredito a 00102..."}},
                    Caso_Nota{"SenzaNA", "00012", {numerate_male}},
                    Caso_Nota{"SoloNA", "NA", {numerate_male}}, Caso_Nota{"Zero", "NA000", {numerate_male}},
                    Caso_Nota{"Buona", "NA002", {"Manca il numero di nota di accredito a 00103..."}}),
    [](const auto& caso) { return caso.param.nome; });

TEST_F(Fatture_Test, UnDocumentoSolo) {
  EXPECT_TRUE(FatturaStampabile(programma, {"00101", "a", "", "00001"}));
  EXPECT_FALSE(FatturaStampabile(programma, {"00101", "a", "", ""}));
  EXPECT_TRUE(NotaStampabile(programma, {"00101", "a", "", "NA1"}));
  EXPECT_FALSE(NotaStampabile(programma, {"00101", "a", "", "NA"}));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Mancano numeri di fattura...del cliente 00101",
                                             "Manca il numero di nota di accredito a 00101..."));
}

// ---- the ledger

TEST_F(Fatture_Test, ScritturaNelleRighe) {
  Vendi("00101", "5", "001");
  Vendi("00101", "-5", "Rif.Fat. 9 - 01/03/2025", "NA");
  Vendi("00101", "0", "002");
  Vendi("00102", "5", "003");
  Vendi("00101", "x", "004");
  Modifica_Vet_Tabella(programma, Fattura, {"00101", "", "007", "00121"});
  EXPECT_THAT(Colonna(C::DDT), ElementsAre("007", "Rif.Fat. 9 - 01/03/2025", "002", "003", "004"));
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("00121", "NA", "", "", ""));
  EXPECT_TRUE(programma.Tabella_Modificata);

  Modifica_Vet_Tabella(programma, Nota, {"00101", "", "R.Fat. 8", "NA004"});
  EXPECT_THAT(Colonna(C::DDT_CV), ElementsAre("", "R.Fat. 8", "", "", ""));
  EXPECT_THAT(Colonna(C::DDT), ElementsAre("007", "Rif.Fat. 9 - 01/03/2025", "002", "003", "004"));
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("00121", "NA004", "", "", ""));
}

TEST_F(Fatture_Test, UgualiNonSonoUnaModifica) {
  Vendi("00101", "5", "001", "00121");
  Modifica_Vet_Tabella(programma, Fattura, {"00101", "", "001", "00121"});
  EXPECT_FALSE(programma.Tabella_Modificata);
}

// Two entries of one code, which a mixed order gives: the later one of the list holds.
TEST_F(Fatture_Test, PrimaLeNoteEPoiLeFatture) {
  Vendi("00101", "5");
  Vendi("00102", "-5");
  Modifica_Vet_Tabella_Tutto(programma, {{"00102", "", "rif", "NA001"}},
                             {{"00101", "", "1", "00001"}, {"00101", "", "2", "00002"}});
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("00002", "NA001"));
  EXPECT_THAT(Colonna(C::DDT_CV), ElementsAre("", "rif"));
}

// ---- the customer

TEST_F(Fatture_Test, IlCliente) {
  const Cliente_Fattura trovato = TrovaCliente(programma, " 00101 ");
  EXPECT_TRUE(trovato.trovato);
  EXPECT_EQ(trovato.Codice, "00101");
  EXPECT_EQ(trovato.Nome, "Pescheria Rialto");
  EXPECT_EQ(trovato.Soprannome, "rialto");
  EXPECT_EQ(trovato.Indirizzo, "Campo 1");
  EXPECT_EQ(trovato.Citta, "30125 Venezia");
  EXPECT_EQ(trovato.PIva, "00000000101");
  EXPECT_EQ(trovato.Iban, "IT01");
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

// The name of the file goes by the code that the search ended with.
TEST_F(Fatture_Test, ChiNonEInListaHaIlCodiceDellUltimo) {
  const Cliente_Fattura ignoto = TrovaCliente(programma, "99999");
  EXPECT_FALSE(ignoto.trovato);
  EXPECT_EQ(ignoto.Nome, "xxx");
  EXPECT_EQ(ignoto.Codice, "00104");
  EXPECT_EQ(ignoto.PIva, "");
  programma.Vet_Clienti.clear();
  EXPECT_EQ(TrovaCliente(programma, "00101").Codice, "xxxx");
  EXPECT_THAT(macchina.messaggi, ElementsAre("cliente non trovato 99999", "cliente non trovato 00101"));
}

// ---- the whole document

TEST_F(Fatture_Test, LaFatturaScriveNelleRighePrimaDiNascere) {
  Vendi("00101", "5,00", "001");
  Vendi("00101", "5,00", "002");
  Vendi("00101", "-5,00", "rif", "NA");
  Vendi("00101", "0", "003");
  Vendi("00102", "9");
  const Documento_Fattura fattura =
      PreparaDocumento(programma, Fattura, {"00101", "Pescheria Rialto", "001", "00121"});
  EXPECT_EQ(fattura.Numero, "00121");
  EXPECT_EQ(fattura.RifDocumento, "001");
  EXPECT_EQ(fattura.Data, "14/03/2025");
  EXPECT_EQ(fattura.Data_AAAAMMGG, "20250314");
  EXPECT_EQ(fattura.CittaVC, "Venezia");
  EXPECT_EQ(fattura.cliente.Nome, "Pescheria Rialto");
  ASSERT_EQ(fattura.voci.size(), 1U);
  EXPECT_EQ(fattura.voci[0].RifRiga, "001");  // the reference that was just written
  EXPECT_EQ(fattura.voci[0].riga[C::FAT], "00121");
  EXPECT_DOUBLE_EQ(fattura.importi.TotaleDocumento, 22);
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("00121", "00121", "NA", "", ""));
}

TEST_F(Fatture_Test, LaNotaNonScriveNulla) {
  Vendi("00101", "-5,00", "rif", "NA");
  Vendi("00101", "-7,50", "rif", "NA");
  const Tabella prima = programma.Vet_Tabella;
  const Documento_Fattura nota =
      PreparaDocumento(programma, Nota, {"00101", "Pescheria Rialto", "rif", "NA004"});
  EXPECT_EQ(programma.Vet_Tabella.righe, prima.righe);
  EXPECT_FALSE(programma.Tabella_Modificata);
  EXPECT_EQ(nota.voci.size(), 2U);
  EXPECT_DOUBLE_EQ(nota.importi.TotaleDocumento, -27.5);
}

// Of merged rows the one with the lower number lends its other fields.
TEST_F(Fatture_Test, LeRigheDellaNotaVannoPerNumero) {
  Vendi("00101", "-5,00", "rif b", "NA002");
  Vendi("00101", "-5,00", "rif a", "NA001");
  const Documento_Fattura nota = PreparaDocumento(programma, Nota, {"00101", "", "rif", "NA001"});
  ASSERT_EQ(nota.voci.size(), 1U);
  EXPECT_EQ(nota.voci[0].RifRiga, "rif a");
}

TEST_F(Fatture_Test, SoloPrezziZeroNonDaRighe) {
  Vendi("00101", "0");
  const Documento_Fattura fattura = PreparaDocumento(programma, Fattura, {"00101", "", "", "00121"});
  EXPECT_THAT(fattura.voci, IsEmpty());
  EXPECT_THAT(Colonna(C::FAT), ElementsAre(""));
}

TEST_F(Fatture_Test, LeAliquoteELeChiaviSonoDellePreferenze) {
  programma.preferenze.Aliquota1 = 5;
  programma.preferenze.Flag_fatture_Esteso = true;
  Vendi("00101", "5")[C::Iva] = "5";
  LedgerRow& altra = Vendi("00101", "5");
  altra[C::Iva] = "5";
  altra[C::ZonaP] = "altra";
  const Documento_Fattura fattura = PreparaDocumento(programma, Fattura, {"00101", "", "", "1"});
  EXPECT_EQ(fattura.voci.size(), 1U);
  EXPECT_DOUBLE_EQ(fattura.importi.Aliquota[0], 5);
  EXPECT_DOUBLE_EQ(fattura.importi.TotaleDocumento, 21);
}

TEST_F(Fatture_Test, NessunoCercaLeFattureAltrove) { EXPECT_EQ(TrovaNumoroFattura(programma, "00101"), 0); }

}  // namespace

#include "invoices/zfatture.h"

#include <chrono>
#include <gmock/gmock.h>

#include "tests/invoices/fatture_di_prova.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using enum TipoFattura;
using C = CampoRiga;

const Testo messaggio_chiusura =
    "Per salvare i numeri di fattura \nsalvare i dati prima di chiudere il programma.";

struct ZFatture_Test : testing::Test, Fatture_Di_Prova {
  // Two customers with invoices, one of them with a note too.
  void Giornata() {
    Vendi("00102", "5", "002");
    Vendi("00101", "6", "001");
    Vendi("00102", "-4", "Rif.Fat. 9 - 01/03/2025", "NA");
    Vendi("00102", "7", "002");
    Su_Disco();
  }
  Testo Dopo_Intestazione() const { return Numeri_Su_Disco().substr(Numeri_Su_Disco().find("\r\n") + 2); }
};

// ---- opening

TEST_F(ZFatture_Test, ApreLeDueListe) {
  Giornata();
  Apri();
  EXPECT_FALSE(zfatture.chiusa);
  EXPECT_EQ(zfatture.titolo, "Stampa Fatture del 14/03/2025");
  EXPECT_EQ(zfatture.ListaTitolo.testo, "Codice| Cliente                   DDT Riferimento           N.Fat ");
  ASSERT_EQ(zfatture.MList2.Numero(), 2U);
  EXPECT_EQ(zfatture.MList2.Riga(0), " | 00101Pescheria Rialto         | 001                      ");
  EXPECT_EQ(zfatture.MList2.scelta, 0);
  ASSERT_EQ(zfatture.ListNA.Numero(), 1U);
  EXPECT_EQ(zfatture.ListNA.Riga(0), " | 00102Trattoria Pontile        | Rif.Fat. 9 - 01/03/2025  NA");
  EXPECT_EQ(zfatture.Text1[1].testo, "Pescheria Rialto");
  EXPECT_EQ(zfatture.Text1[2].testo, "001");
  EXPECT_EQ(zfatture.Text2.testo, "Venezia");
  EXPECT_EQ(zfatture.Caption[1].testo, "Destinatario");
  EXPECT_EQ(zfatture.Caption[2].testo, "riferimento DDT");
  EXPECT_EQ(zfatture.Caption[3].testo, "numero fattura");
  EXPECT_EQ(zfatture.Annulla_Numerazione.testo, "AnnullaNum_FAT");
  EXPECT_TRUE(zfatture.Tutte.segnata);
  EXPECT_FALSE(zfatture.Stampale.segnata);
  EXPECT_FALSE(zfatture.Paginax2.segnata);
  EXPECT_EQ(zfatture.Command6.testo, "x Clienti");
  EXPECT_EQ(zfatture.Combo2.Numero(), 3U);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_FALSE(programma.Tabella_Modificata);
}

TEST_F(ZFatture_Test, LeColonneLungheSonoTagliate) {
  programma.Vet_Clienti[0][1] = "Pescheria Rialto di Marco e Figli";
  Vendi("00101", "5", "abcdefghijklmnopqrstuvwxyz", "00121");
  Apri();
  EXPECT_EQ(zfatture.MList2.Riga(0), " | 00101Pescheria Rialto di Marco| abcdefghijklmnopqrstuvwxy00121");
}

TEST_F(ZFatture_Test, SiVedonoPrimaPerNumeroPoiPerRiferimento) {
  Vendi("00101", "5", "003", "00007");
  Vendi("00102", "5", "002");
  Vendi("99999", "5", "001");
  Apri();
  EXPECT_THAT(Codici(zfatture.TabellaFatture), ElementsAre("99999", "00102", "00101"));
}

TEST_F(ZFatture_Test, IlGiornoSegnapostoNonSiFattura) {
  programma.Vet_Tabella.righe = {Riga_Segnaposto()};
  EXPECT_FALSE(CiSonoVendite(programma));
  EXPECT_THAT(macchina.messaggi, ElementsAre("nulla da fare..."));
  Vendi("00101", "5");
  EXPECT_TRUE(CiSonoVendite(programma));
}

TEST_F(ZFatture_Test, SenzaDocumentiSiChiude) {
  programma.Vet_Tabella.righe = {LedgerRow()};  // "Cancella Tutto"
  Apri();
  EXPECT_TRUE(zfatture.chiusa);
  EXPECT_THAT(macchina.messaggi, ElementsAre(" nulla da fare....", messaggio_chiusura));
}

TEST_F(ZFatture_Test, SoloNoteSiComincaDaQuelle) {
  Vendi("00101", "-5", "rif", "NA");
  Apri();
  EXPECT_EQ(zfatture.ListaAttiva, Nota);
  EXPECT_EQ(zfatture.titolo, "Stampa Note di Accredito del 14/03/2025");
  EXPECT_EQ(zfatture.Caption[3].testo, "num.Nota acc.");
  EXPECT_EQ(zfatture.Annulla_Numerazione.testo, "AnnullaNum_NA");
  EXPECT_EQ(zfatture.Tutte.didascalia, "Stampa Tutte le N.di Acc.");
  EXPECT_EQ(zfatture.ListNA.scelta, 0);
  EXPECT_EQ(zfatture.Text1[3].testo, "NA");
}

TEST_F(ZFatture_Test, IlFileDaTrasmettereDelGiornoVaVia) {
  cartella.Metti("XBanca/20250314.txt", "x");
  cartella.Metti("XBanca/20250313.txt", "x");
  Giornata();
  Apri();
  EXPECT_FALSE(programma.disco.Esiste_File(cartella / "XBanca/20250314.txt"));
  EXPECT_TRUE(programma.disco.Esiste_File(cartella / "XBanca/20250313.txt"));
}

// ---- filters

struct Caso_Filtro {
  const char* nome;
  bool esclusi, ristoranti_visibili, ristoranti;
  std::vector<Testo> fatture;
  Testo scritta;
};

class Filtri : public testing::TestWithParam<Caso_Filtro> {};

TEST_P(Filtri, Apertura) {
  Fatture_Di_Prova prova;
  for (const Vista codice : {"00101", "00102", "00103", "00104", "99999"}) prova.Vendi(codice, "5");
  prova.Vendi("00103", "-5", "rif", "NA");
  Preferenze& preferenze = prova.programma.preferenze;
  preferenze.FlagEE = GetParam().esclusi;
  preferenze.FlagRistoranti = GetParam().ristoranti_visibili;
  preferenze.FlagSoloRis = GetParam().ristoranti;
  prova.Apri();
  std::vector<Testo> codici = Fatture_Di_Prova::Codici(prova.zfatture.TabellaFatture);
  std::ranges::sort(codici);
  EXPECT_EQ(codici, GetParam().fatture);
  EXPECT_THAT(Fatture_Di_Prova::Codici(prova.zfatture.TabellaNote), ElementsAre("00103"));  // always stay
  EXPECT_EQ(prova.zfatture.Esclusi.testo, GetParam().scritta);
  EXPECT_EQ(prova.zfatture.Check2.segnata, GetParam().esclusi);
  EXPECT_EQ(prova.zfatture.Check3.visibile, GetParam().ristoranti_visibili);
  EXPECT_EQ(prova.zfatture.Check3.segnata, GetParam().ristoranti && GetParam().ristoranti_visibili);
}

INSTANTIATE_TEST_SUITE_P(
    Fatture, Filtri,
    testing::Values(
        Caso_Filtro{"Nessuno", false, false, false, {"00101", "00102", "99999"}, "2 Esclusi"},
        Caso_Filtro{"SoloEsclusi", true, false, false, {"00103", "00104"}, ""},
        Caso_Filtro{"SoloRistoranti", false, true, true, {"00102"}, "2 Esclusi"},
        Caso_Filtro{
            "RistorantiSenzaLaPreferenza", false, false, true, {"00101", "00102", "99999"}, "2 Esclusi"},
        Caso_Filtro{"RistorantiNonScelti", false, true, false, {"00101", "00102", "99999"}, "2 Esclusi"},
        Caso_Filtro{"EsclusiERistoranti", true, true, true, {"00104"}, ""}),
    [](const auto& caso) { return caso.param.nome; });

TEST_F(ZFatture_Test, SoloEsclusiSenzaEsclusiSiChiudeESiSpegne) {
  programma.preferenze.FlagEE = true;
  Vendi("00101", "5");
  Apri();
  EXPECT_TRUE(zfatture.chiusa);
  EXPECT_FALSE(programma.preferenze.FlagEE);
  EXPECT_THAT(macchina.messaggi, ElementsAre(" le liste sono vuote...nulla da fare", messaggio_chiusura));
  EXPECT_THAT(Ini(), HasSubstr("FlagEE=0"));
}

TEST_F(ZFatture_Test, SoloEsclusiSenzaEsclusiMaConNote) {
  programma.preferenze.FlagEE = true;
  Vendi("00101", "5");
  Vendi("00102", "-5", "rif", "NA");
  Apri();
  EXPECT_FALSE(zfatture.chiusa);
  EXPECT_THAT(zfatture.TabellaFatture, IsEmpty());
  EXPECT_THAT(Codici(zfatture.TabellaNote), ElementsAre("00102"));
  EXPECT_EQ(zfatture.ListaAttiva, Nota);
}

TEST_F(ZFatture_Test, TuttiEsclusiLascianoLeListeVuote) {
  Vendi("00103", "5");
  Apri();
  EXPECT_FALSE(zfatture.chiusa);
  EXPECT_EQ(zfatture.MList2.Numero(), 0U);
  EXPECT_EQ(zfatture.MList2.scelta, -1);
  EXPECT_EQ(zfatture.Text1[1].testo, "");
  EXPECT_FALSE(zfatture.ModificaFAT.attivo);
}

struct Caso_Cambio {
  bool ristoranti;
  Testo messaggio;
};

class Cambio_Filtro : public testing::TestWithParam<Caso_Cambio> {};

TEST_P(Cambio_Filtro, ChiudeEValeDallaProssimaVolta) {
  Fatture_Di_Prova prova;
  prova.programma.preferenze.FlagRistoranti = true;
  prova.Vendi("00101", "5");
  prova.Apri();
  Spunta& casella = GetParam().ristoranti ? prova.zfatture.Check3 : prova.zfatture.Check2;
  casella.segnata = true;
  CambiaFiltro(prova.programma, prova.zfatture, GetParam().ristoranti);
  EXPECT_TRUE(prova.zfatture.chiusa);
  EXPECT_THAT(prova.macchina.messaggi, ElementsAre(GetParam().messaggio, messaggio_chiusura));
  EXPECT_EQ(prova.programma.preferenze.FlagSoloRis, GetParam().ristoranti);
  EXPECT_EQ(prova.programma.preferenze.FlagEE, !GetParam().ristoranti);
  EXPECT_THAT(prova.Ini(), HasSubstr(GetParam().ristoranti ? "FlagSoloRis=-1" : "FlagEE=-1"));
}

INSTANTIATE_TEST_SUITE_P(Fatture, Cambio_Filtro,
                         testing::Values(Caso_Cambio{false, "Riavviare la Procedura..."},
                                         Caso_Cambio{true, "Solo Ristoranti: Riavviare la Procedura..."}));

// ---- selection and order

TEST_F(ZFatture_Test, LaNotaToccataEIlDocumentoInUso) {
  Giornata();
  Apri();
  SceltaDocumento(programma, zfatture, Nota, 0);
  EXPECT_EQ(zfatture.ListaAttiva, Nota);
  EXPECT_EQ(zfatture.Text1[2].testo, "Rif.Fat. 9 - 01/03/2025");
  EXPECT_EQ(zfatture.Annulla_Numerazione.testo, "AnnullaNum_NA");
  EXPECT_EQ(zfatture.titolo, "Stampa Note di Accredito del 14/03/2025");
  EXPECT_TRUE(zfatture.ModificaNA.attivo);
  EXPECT_FALSE(zfatture.ModificaFAT.attivo);
  SceltaDocumento(programma, zfatture, Fattura, 1);
  EXPECT_EQ(zfatture.Text1[1].testo, "Trattoria Pontile");
  EXPECT_EQ(zfatture.titolo, "Stampa Fatture del 14/03/2025");
  EXPECT_TRUE(zfatture.ModificaFAT.attivo);
  EXPECT_FALSE(zfatture.ModificaNA.attivo);
  SceltaDocumento(programma, zfatture, Fattura, 7);  // no such line
  EXPECT_EQ(zfatture.MList2.scelta, 1);
}

TEST_F(ZFatture_Test, ITreOrdini) {
  Giornata();
  Apri();
  zfatture.Paginax2.segnata = true;
  Ordina(programma, zfatture, ColonnaFatture::Cliente);
  EXPECT_TRUE(zfatture.Paginax2.segnata);
  Ordina(programma, zfatture, ColonnaFatture::Codice);
  EXPECT_FALSE(zfatture.Paginax2.segnata);
  EXPECT_THAT(Codici(zfatture.TabellaFatture), ElementsAre("00101", "00102"));
  zfatture.MList2.scelta = 1;
  Ordina(programma, zfatture, ColonnaFatture::Numero);
  EXPECT_TRUE(zfatture.Paginax2.segnata);
  EXPECT_EQ(zfatture.MList2.scelta, 0);
}

// ---- numbering

TEST_F(ZFatture_Test, NumeraLeFatturePerCodice) {
  Giornata();
  Apri();
  Scrivi("121");
  NumeraFat(programma, zfatture);
  EXPECT_THAT(macchina.domande, ElementsAre("immettere il numero della prima fattura di oggi... "));
  EXPECT_THAT(Codici(zfatture.TabellaFatture), ElementsAre("00101", "00102"));
  EXPECT_THAT(Numeri(zfatture.TabellaFatture), ElementsAre("00121", "00122"));
  EXPECT_THAT(Numeri(zfatture.TabellaNote), ElementsAre("NA"));
  EXPECT_EQ(zfatture.MList2.Riga(0), " | 00101Pescheria Rialto         | 001                      00121");
  EXPECT_EQ(zfatture.Text1[3].testo, "00121");
  // neither the ledger nor the counter know of it yet
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("", "", "NA", ""));
  EXPECT_EQ(programma.Ultima_Fattura, 120);
  EXPECT_FALSE(programma.Tabella_Modificata);
}

struct Caso_Primo {
  const char* nome;
  std::optional<Testo> scritto;
  Testo fattura, nota;
};

class Primo_Numero : public testing::TestWithParam<Caso_Primo> {};

TEST_P(Primo_Numero, DelleDueNumerazioni) {
  Fatture_Di_Prova prova;
  prova.Vendi("00101", "5");
  prova.Vendi("00101", "-5", "rif", "NA");
  prova.Apri();
  prova.macchina.testi = {GetParam().scritto, GetParam().scritto};
  NumeraFat(prova.programma, prova.zfatture);
  NumeraNA(prova.programma, prova.zfatture);
  EXPECT_THAT(Fatture_Di_Prova::Numeri(prova.zfatture.TabellaFatture), ElementsAre(GetParam().fattura));
  EXPECT_THAT(Fatture_Di_Prova::Numeri(prova.zfatture.TabellaNote), ElementsAre(GetParam().nota));
}

INSTANTIATE_TEST_SUITE_P(Fatture, Primo_Numero,
                         testing::Values(Caso_Primo{"Sette", "7", "00007", "NA007"},
                                         Caso_Primo{"Zero", "0", "", "NA001"},
                                         Caso_Primo{"Vuoto", "", "", "NA001"},
                                         Caso_Primo{"NonNumero", "abc", "", "NA001"},
                                         Caso_Primo{"Negativo", "-3", "", "NA001"},
                                         Caso_Primo{"Annullato", std::nullopt, "", "NA"},
                                         Caso_Primo{"Enorme", "99999999999", "2147483647", "NA2147483647"}),
                         [](const auto& caso) { return caso.param.nome; });

TEST_F(ZFatture_Test, NumeraLeNoteESubitoEScritto) {
  Vendi("00102", "-5", "rif", "NA");
  Vendi("00101", "-5", "rif", "NA");
  Apri();
  Scrivi("4");
  NumeraNA(programma, zfatture);
  EXPECT_THAT(macchina.domande, ElementsAre("immettere il numero della nota di accredito di oggi... "));
  EXPECT_THAT(Codici(zfatture.TabellaNote), ElementsAre("00101", "00102"));
  EXPECT_THAT(Numeri(zfatture.TabellaNote), ElementsAre("NA004", "NA005"));
  EXPECT_EQ(programma.Ultima_NA, 5);
  EXPECT_EQ(Dopo_Intestazione(), "0\r\n0\r\n5\r\n120\r\n");
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("NA", "NA"));
}

TEST_F(ZFatture_Test, SenzaDocumentiNessunaDomanda) {
  Vendi("00101", "5");
  Apri();
  NumeraNA(programma, zfatture);
  zfatture.TabellaFatture.clear();
  NumeraFat(programma, zfatture);
  AnnullaNumerazione(programma, zfatture);
  EXPECT_THAT(macchina.domande, IsEmpty());
}

TEST_F(ZFatture_Test, NumeraTuttoAncheSeLaPrimaEAnnullata) {
  Giornata();
  Apri();
  zfatture.Paginax2.segnata = true;
  Annulla();
  Scrivi("4");
  NumeraTutto(programma, zfatture);
  EXPECT_FALSE(zfatture.Paginax2.segnata);
  EXPECT_THAT(Numeri(zfatture.TabellaFatture), ElementsAre("", ""));
  EXPECT_THAT(Numeri(zfatture.TabellaNote), ElementsAre("NA004"));
}

// While a command asks, a second one given by key or mouse finds the screen at rest.
TEST_F(ZFatture_Test, MentreUnComandoChiedeNullAltroParte) {
  Giornata();
  Apri();
  zfatture.attiva = false;
  AggiornaComandi(programma, zfatture);
  for (const Bottone* comando : {&zfatture.Command3, &zfatture.Command6, &zfatture.Command7, &zfatture.Chiudi,
                                 &zfatture.NumeraFat, &zfatture.ModificaFAT, &zfatture.Annulla_Numerazione})
    EXPECT_FALSE(comando->attivo) << comando->testo;
  NumeraFat(programma, zfatture);
  NumeraNA(programma, zfatture);
  NumeraTutto(programma, zfatture);
  AnnullaNumerazione(programma, zfatture);
  AggiungiData(programma, zfatture);
  CambiaFiltro(programma, zfatture, false);
  ChiudiFatture(programma, zfatture);
  EXPECT_FALSE(zfatture.chiusa);
  EXPECT_THAT(macchina.domande, IsEmpty());
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_EQ(zfatture.TabellaFatture[0].Riferimento, "001");
}

// ---- taking numbers back

TEST_F(ZFatture_Test, AnnullaConNoteVuotaIlGiornoSulDisco) {
  Vendi("00101", "5", "001", "00121");
  Vendi("00102", "-5", "rif", "NA004");
  Su_Disco();
  Apri();
  AnnullaNumerazione(programma, zfatture);
  EXPECT_THAT(Numeri(zfatture.TabellaFatture), ElementsAre(""));
  EXPECT_THAT(Numeri(zfatture.TabellaNote), ElementsAre(""));
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("", ""));
  const Tabella su_disco = Leggi_Tabella(cartella.Contenuto("2025/20250314.txt"), ',');
  EXPECT_EQ(su_disco(C::FAT, 1), "");
  EXPECT_EQ(su_disco(C::FAT, 2), "");
}

// The unevenness: without notes the ledger keeps its numbers until the closing.
TEST_F(ZFatture_Test, AnnullaSenzaNoteLasciaIlGiorno) {
  Vendi("00101", "5", "001", "00121");
  Su_Disco();
  const Testo prima = cartella.Contenuto("2025/20250314.txt");
  Apri();
  AnnullaNumerazione(programma, zfatture);
  EXPECT_THAT(Numeri(zfatture.TabellaFatture), ElementsAre(""));
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("00121"));
  EXPECT_EQ(cartella.Contenuto("2025/20250314.txt"), prima);
  ChiudiFatture(programma, zfatture);
  EXPECT_THAT(Colonna(C::FAT), ElementsAre(""));
}

TEST_F(ZFatture_Test, AnnullaSenzaFattureNonFaNulla) {
  Vendi("00102", "-5", "rif", "NA004");
  Apri();
  AnnullaNumerazione(programma, zfatture);
  EXPECT_THAT(Numeri(zfatture.TabellaNote), ElementsAre("NA004"));
}

TEST_F(ZFatture_Test, AnnullaADiscoPienoLasciaTuttoComEra) {
  Vendi("00101", "5", "001", "00121");
  Vendi("00102", "-5", "rif", "NA004");
  Su_Disco();
  const Testo prima = cartella.Contenuto("2025/20250314.txt");
  Apri();
  Disco_Pieno();
  AnnullaNumerazione(programma, zfatture);
  EXPECT_THAT(macchina.messaggi, Contains(HasSubstr("durante il salvataggio")));
  EXPECT_THAT(Numeri(zfatture.TabellaFatture), ElementsAre("00121"));
  EXPECT_THAT(Numeri(zfatture.TabellaNote), ElementsAre("NA004"));
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("00121", "NA004"));
  EXPECT_EQ(cartella.Contenuto("2025/20250314.txt"), prima);
}

// ---- edits

TEST_F(ZFatture_Test, ModificaFATScriveSubito) {
  Giornata();
  Apri();
  SceltaDocumento(programma, zfatture, Fattura, 1);  // 00102
  zfatture.Text1[2].testo = "009";
  zfatture.Text1[3].testo = " 12 ";
  ModificaFAT(programma, zfatture);
  EXPECT_EQ(zfatture.Text1[3].testo, "00012");
  EXPECT_EQ(zfatture.MList2.scelta, 1);
  EXPECT_THAT(zfatture.MList2.Riga(1), HasSubstr("| 009                      00012"));
  EXPECT_THAT(Colonna(C::DDT), ElementsAre("009", "001", "Rif.Fat. 9 - 01/03/2025", "009"));
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("00012", "", "NA", "00012"));
  EXPECT_TRUE(programma.Tabella_Modificata);
  EXPECT_EQ(programma.Ultima_Fattura, 120);
}

TEST_F(ZFatture_Test, ModificaFATConLaBarra) {
  Giornata();
  Apri();
  zfatture.Text1[3].testo = "12/7";
  ModificaFAT(programma, zfatture);
  EXPECT_EQ(zfatture.Text1[3].testo, "12/007");
  EXPECT_THAT(Numeri(zfatture.TabellaFatture), ElementsAre("12/007", ""));
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("", "12/007", "NA", ""));
}

TEST_F(ZFatture_Test, ModificaSenzaDifferenzeSegnaIlGiorno) {
  Vendi("00101", "5", "001", "00121");
  Vendi("00101", "6", "altro", "");  // the customer's last row is the one shown
  Apri();
  ModificaFAT(programma, zfatture);
  EXPECT_TRUE(programma.Tabella_Modificata);
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("00121", ""));  // nothing was written
}

TEST_F(ZFatture_Test, ModificaNAScriveEFaSeguireIlContatore) {
  Giornata();
  Apri();
  SceltaDocumento(programma, zfatture, Nota, 0);
  zfatture.Text1[3].testo = "NA7";
  zfatture.Text1[2].testo = "R.Fat. 8";
  ModificaNA(programma, zfatture);
  EXPECT_EQ(zfatture.Text1[3].testo, "NA007");
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("", "", "NA007", ""));
  EXPECT_THAT(Colonna(C::DDT_CV), ElementsAre("", "", "R.Fat. 8", ""));
  EXPECT_EQ(programma.Ultima_NA, 7);
  EXPECT_EQ(Dopo_Intestazione(), "0\r\n0\r\n7\r\n120\r\n");
}

// A note that gets a lower number than another of the day doesn't make that other number free again.
TEST_F(ZFatture_Test, IlContatoreDelleNoteEIlPiuAlto) {
  Vendi("00101", "-5", "rif", "NA");
  Vendi("00102", "-5", "rif", "NA");
  Apri();
  Scrivi("8");
  NumeraNA(programma, zfatture);
  SceltaDocumento(programma, zfatture, Nota, 0);
  zfatture.Text1[3].testo = "2";
  ModificaNA(programma, zfatture);
  EXPECT_THAT(Numeri(zfatture.TabellaNote), ElementsAre("NA002", "NA009"));
  EXPECT_EQ(programma.Ultima_NA, 9);
}

TEST_F(ZFatture_Test, OgniModificaVaAllaSuaLista) {
  Giornata();
  Apri();
  zfatture.Text1[3].testo = "5";
  ModificaNA(programma, zfatture);  // an invoice is in work
  EXPECT_THAT(Numeri(zfatture.TabellaNote), ElementsAre("NA"));
  SceltaDocumento(programma, zfatture, Nota, 0);
  ModificaFAT(programma, zfatture);
  EXPECT_THAT(Numeri(zfatture.TabellaFatture), ElementsAre("", ""));
}

TEST_F(ZFatture_Test, UnTabNonEntraNelGiorno) {
  Giornata();
  Apri();
  zfatture.Text1[2].testo = "0\t9";
  ModificaFAT(programma, zfatture);
  EXPECT_EQ(Colonna(C::DDT)[1], "09");
}

TEST_F(ZFatture_Test, LaDataDeiRiferimenti) {
  Vendi("00101", "5", "001 (ds)");
  Vendi("00102", "5", "");
  Vendi("00102", "-5", "Rif.Fat. 9", "NA");
  Apri();
  AggiungiData(programma, zfatture);
  EXPECT_EQ(zfatture.TabellaFatture[0].Riferimento, " 14/03/2025");
  EXPECT_EQ(zfatture.TabellaFatture[1].Riferimento, "001 14/03/2025");
  AggiungiData(programma, zfatture);  // again: still one date
  EXPECT_EQ(zfatture.TabellaFatture[1].Riferimento, "001 14/03/2025");
  EXPECT_EQ(zfatture.TabellaNote[0].Riferimento, "Rif.Fat. 9");
  EXPECT_THAT(zfatture.MList2.Riga(1), HasSubstr("001 14/03/2025"));
  EXPECT_THAT(Colonna(C::DDT), ElementsAre("001 (ds)", "", "Rif.Fat. 9"));  // with the other write-backs
  TogliData(programma, zfatture);
  EXPECT_EQ(zfatture.TabellaFatture[1].Riferimento, "001");
}

// ---- closing

TEST_F(ZFatture_Test, LaChiusura) {
  Giornata();
  Apri();
  Scrivi("121");
  Scrivi("4");
  NumeraTutto(programma, zfatture);
  zfatture.Personalizzata.segnata = zfatture.Completa.segnata = true;
  zfatture.Text2.testo = " Chioggia ";
  const Testo su_disco = cartella.Contenuto("2025/20250314.txt");
  ChiudiFatture(programma, zfatture);
  EXPECT_TRUE(zfatture.chiusa);
  EXPECT_EQ(programma.Ultima_Fattura, 122);
  EXPECT_EQ(Dopo_Intestazione(), "0\r\n0\r\n4\r\n122\r\n");
  // the rows are back in the order of entry
  const Tabella& tabella = programma.Vet_Tabella;
  ASSERT_EQ(tabella.Righe(), 4);
  for (int r = 1; r <= 4; ++r) EXPECT_EQ(tabella(C::Num, r), "000" + std::to_string(r));
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("00122", "00121", "NA004", "00122"));
  EXPECT_THAT(Colonna(C::DDT_CV), ElementsAre("", "", "Rif.Fat. 9 - 01/03/2025", ""));
  EXPECT_EQ(programma.Colonna_Ordine, 1);
  EXPECT_TRUE(programma.Tabella_Modificata);
  EXPECT_EQ(cartella.Contenuto("2025/20250314.txt"), su_disco);  // the day isn't saved
  EXPECT_THAT(macchina.messaggi, ElementsAre(messaggio_chiusura));
  for (const char* chiave : {"FlagPersonalizzata=-1", "FlagPersonalizzataCompleta=-1", "CittaVC=Chioggia",
                             "FlagEE=0", "FlagSoloRis=0"})
    EXPECT_THAT(Ini(), HasSubstr(chiave));
  EXPECT_EQ(programma.preferenze.CittaCV, "Chioggia");
}

// Kept as firms know it: the counter follows the last line, whatever stands there.
struct Caso_Ultima {
  const char* nome;
  std::vector<Testo> numeri;
  int ultima;
};

class Ultima : public testing::TestWithParam<Caso_Ultima> {};

TEST_P(Ultima, AllaChiusura) {
  Fatture_Di_Prova prova;
  const Testo codici[] = {"00101", "00102", "99999"};
  for (std::size_t i = 0; i < GetParam().numeri.size(); ++i)
    prova.Vendi(codici[i], "5", "", GetParam().numeri[i]);
  prova.Vendi("00101", "-5", "rif", "NA");
  prova.Apri();
  ChiudiFatture(prova.programma, prova.zfatture);
  EXPECT_EQ(prova.programma.Ultima_Fattura, GetParam().ultima);
  EXPECT_THAT(prova.Numeri_Su_Disco(),
              testing::EndsWith("\r\n" + std::to_string(GetParam().ultima) + "\r\n"));
}

INSTANTIATE_TEST_SUITE_P(Fatture, Ultima,
                         testing::Values(Caso_Ultima{"Numerate", {"00123", "00121", "00122"}, 123},
                                         Caso_Ultima{"SenzaFatture", {}, 0},
                                         Caso_Ultima{"SenzaNumeri", {"", ""}, 0},
                                         Caso_Ultima{"UnaSolaNumerata", {"", "00121", ""}, 121},
                                         Caso_Ultima{"ConBarra", {"127/004"}, 127}),
                         [](const auto& caso) { return caso.param.nome; });

TEST_F(ZFatture_Test, GliEsclusiRestanoComErano) {
  Vendi("00101", "5", "001");
  Vendi("00103", "5", "002", "00099");
  Apri();
  Scrivi("121");
  NumeraFat(programma, zfatture);
  ChiudiFatture(programma, zfatture);
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("00121", "00099"));
  EXPECT_EQ(programma.Ultima_Fattura, 121);
}

TEST_F(ZFatture_Test, PrezzoZeroEInListaMaNonPrendeNulla) {
  Vendi("00101", "0", "001");
  Apri();
  Scrivi("121");
  NumeraFat(programma, zfatture);
  EXPECT_THAT(Numeri(zfatture.TabellaFatture), ElementsAre("00121"));
  ChiudiFatture(programma, zfatture);
  EXPECT_THAT(Colonna(C::FAT), ElementsAre(""));
}

TEST_F(ZFatture_Test, DueCodiciDiUnNomeSiMescolano) {
  programma.Vet_Clienti[1][1] = "Pescheria Rialto";
  Vendi("00101", "5");
  Vendi("00102", "5");
  Vendi("00101", "5");
  Apri();
  EXPECT_THAT(zfatture.TabellaFatture, testing::SizeIs(3));
  Scrivi("121");
  NumeraFat(programma, zfatture);
  ChiudiFatture(programma, zfatture);
  // every row has one number, and none is left without
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("00122", "00123", "00122"));
}

// What was issued on one day is not issued again on the next.
TEST_F(ZFatture_Test, INumeriNonSiRipetono) {
  std::vector<Testo> fatture, note;
  for (int giorno = 0; giorno < 3; ++giorno) {
    programma.Vet_Tabella.righe.clear();
    Giornata();
    zfatture = {};
    Apri();
    Scrivi(std::to_string(programma.Ultima_Fattura + 1));
    Scrivi(std::to_string(programma.Ultima_NA + 1));
    NumeraTutto(programma, zfatture);
    for (const Testo& numero : Numeri(zfatture.TabellaFatture)) fatture.push_back(numero);
    for (const Testo& numero : Numeri(zfatture.TabellaNote)) note.push_back(numero);
    ChiudiFatture(programma, zfatture);
    Leggi_Ultimi_Numeri(programma);  // as after a new start
  }
  EXPECT_THAT(fatture, ElementsAre("00121", "00122", "00123", "00124", "00125", "00126"));
  EXPECT_THAT(note, ElementsAre("NA004", "NA005", "NA006"));
}

TEST_F(ZFatture_Test, LaChiusuraADiscoPienoTieneINumeriAMente) {
  Giornata();
  Apri();
  Scrivi("121");
  NumeraFat(programma, zfatture);
  Disco_Pieno();
  ChiudiFatture(programma, zfatture);
  EXPECT_TRUE(zfatture.chiusa);
  EXPECT_TRUE(programma.Numeri_Da_Salvare);
  EXPECT_EQ(programma.Ultima_Fattura, 122);
  EXPECT_THAT(Colonna(C::FAT), ElementsAre("00122", "00121", "NA", "00122"));
  EXPECT_THAT(macchina.messaggi, Contains(messaggio_chiusura));
}

TEST_F(ZFatture_Test, ChiusaNonSiChiudeDiNuovo) {
  Giornata();
  Apri();
  ChiudiFatture(programma, zfatture);
  ChiudiFatture(programma, zfatture);
  EXPECT_THAT(macchina.messaggi, ElementsAre(messaggio_chiusura));
}

// ---- print boxes

TEST_F(ZFatture_Test, LArchivioEIClienti) {
  Giornata();
  Apri();
  Scrivi("121");
  NumeraFat(programma, zfatture);
  zfatture.Tutte.segnata = false;
  Archivio(programma, zfatture);
  EXPECT_EQ(zfatture.Command6.testo, "Archivio");
  EXPECT_TRUE(zfatture.Stampale.segnata);
  EXPECT_TRUE(zfatture.Tutte.segnata);
  EXPECT_TRUE(zfatture.Paginax2.segnata);
  Archivio(programma, zfatture);
  EXPECT_EQ(zfatture.Command6.testo, "x Clienti");
  EXPECT_FALSE(zfatture.Stampale.segnata);
  EXPECT_TRUE(zfatture.Tutte.segnata);
  EXPECT_FALSE(zfatture.Paginax2.segnata);
  // two of the three alone are not the archive yet
  zfatture.Stampale.segnata = true;
  Archivio(programma, zfatture);
  EXPECT_EQ(zfatture.Command6.testo, "Archivio");
}

TEST_F(ZFatture_Test, DoppioClicFuoriDallaLista) {
  Giornata();
  Apri();
  DoppioClic(programma, zfatture, Fattura, 9);
  DoppioClic(programma, zfatture, Nota, -1);
  EXPECT_THAT(macchina.domande, IsEmpty());
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

// ---- a big day

// 300 customers of whom every tenth has a note: everything but the paper in a blink.
TEST_F(ZFatture_Test, UnGiornoGrande) {
  programma.Vet_Clienti.clear();
  for (int c = 0; c < 300; ++c) {
    const Testo codice = Pad_Sinistra(std::to_string(c), 5, '0');
    programma.Vet_Clienti.push_back({codice, "Cliente " + codice, "", "", "", "", "-", "-", ""});
  }
  for (int r = 0; r < 3000; ++r)
    Vendi(Pad_Sinistra(std::to_string(r % 300), 5, '0'), r % 10 == 9 ? "-5" : "7");
  const auto prima = std::chrono::steady_clock::now();
  Apri();
  Scrivi("121");
  Scrivi("4");
  NumeraTutto(programma, zfatture);
  ChiudiFatture(programma, zfatture);
  EXPECT_LT(std::chrono::steady_clock::now() - prima, std::chrono::seconds(2));
  EXPECT_EQ(zfatture.TabellaFatture.size(), 270U);
  EXPECT_EQ(zfatture.TabellaNote.size(), 30U);
  EXPECT_EQ(programma.Ultima_Fattura, 390);
  EXPECT_EQ(programma.Ultima_NA, 33);
  for (const LedgerRow& riga : programma.Vet_Tabella.righe) ASSERT_NE(riga[C::FAT], "") << riga[C::Num];
}

}  // namespace

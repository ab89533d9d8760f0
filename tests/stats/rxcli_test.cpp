#include "stats/rxcli.h"

#include "tests/stats/periodo_di_prova.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct TotaliClienti : Periodo_Di_Prova {
  TotaliClienti() {
    Apri_Giorno({{"A", "Orata", "12,50", "9,80", "Pescheria Rialto"},
                 {"A", "Orata", "2", "10", "Bar Sport"},
                 {"B", "Sgombro", "1", "-5", "PESCHERIA RIALTO"},
                 {"B", "Sgombro", "x", "5", "Bar Sport"}});
    schermo.scegli_file = [this] { return file; };
  }
  RXcli schermo;
  std::optional<Percorso> file = cartella / "uscita.txt";
  const Testo bar = "Bar Sport                      -> 02       2,00 Kg. per      20,00",
              rialto = "Pescheria Rialto               -> 02      13,50 Kg. per     117,50";
};

TEST_F(TotaliClienti, UnaLineaPerClienteSenzaBadareAlleMaiuscole) {
  Apri_RXcli(programma, schermo);
  EXPECT_EQ(schermo.titolo, "Numero Immissioni e Peso totale per Cliente");
  EXPECT_THAT(Righe_Di(schermo.ListaTotali), ElementsAre(bar, rialto));
  EXPECT_THAT(Righe_Di(schermo.ListaClienti), ElementsAre("Bar Sport", "Pescheria Rialto"));
  EXPECT_EQ(schermo.grafico.barre[0].nome, "Pescheria Rialto");
  EXPECT_EQ(schermo.grafico.barre[0].importo, 117.5);
}

TEST_F(TotaliClienti, LaGiornataTornaNellOrdineDiImmissione) {
  std::swap(programma.Vet_Tabella.righe[0], programma.Vet_Tabella.righe[3]);
  programma.Vet_Tabella.righe[0][CampoRiga::Num] = "0009";
  Apri_RXcli(programma, schermo);
  std::vector<Testo> numeri;
  for (const LedgerRow& riga : programma.Vet_Tabella.righe) numeri.push_back(riga[CampoRiga::Num]);
  EXPECT_THAT(numeri, ElementsAre("0001", "0002", "0003", "0009"));  // not numbered anew
  EXPECT_FALSE(programma.Tabella_Modificata);
}

// The day is saved in the order of the table: row 10000 of a big day must not come back before row 1001.
TEST_F(TotaliClienti, LOrdineDiImmissioneVaPerNumero) {
  programma.Vet_Tabella.righe.resize(3);
  programma.Vet_Tabella.righe[0][CampoRiga::Num] = "1000";
  programma.Vet_Tabella.righe[1][CampoRiga::Num] = "1001";
  programma.Vet_Tabella.righe[2][CampoRiga::Num] = "10000";
  const auto prima = programma.Vet_Tabella.righe;
  Apri_RXcli(programma, schermo);
  EXPECT_EQ(programma.Vet_Tabella.righe, prima);
  EXPECT_EQ(programma.Colonna_Ordine, 1);
}

TEST_F(TotaliClienti, LeRigheIllegibiliSiDicono) {
  Apri_RXcli(programma, schermo);
  EXPECT_EQ(schermo.Avviso.testo, "righe senza peso o prezzo leggibile: 1");
}

TEST_F(TotaliClienti, SenzaOrdinareOgniCambioDiClienteConta) {
  CalcolaPerCliente(programma, schermo, 0);
  EXPECT_THAT(Righe_Di(schermo.ListaClienti),
              ElementsAre("Pescheria Rialto", "Bar Sport", "PESCHERIA RIALTO", "Bar Sport"));
}

TEST_F(TotaliClienti, IlGiornoVuotoDaUnaListaVuota) {
  for (const LedgerRow& riga : {Riga_Segnaposto(), LedgerRow()}) {
    programma.Vet_Tabella.righe = {riga};
    Apri_RXcli(programma, schermo);
    EXPECT_THAT(Righe_Di(schermo.ListaTotali), IsEmpty());
    EXPECT_FALSE(schermo.StampaGrafico.attivo);
  }
}

TEST_F(TotaliClienti, UnNomeLungoSiTaglia) {
  Apri_Giorno({{"A", "Orata", "1", "1", "Ristorante alla Vecchia Laguna Veneta"}});
  Apri_RXcli(programma, schermo);
  EXPECT_EQ(schermo.ListaTotali.Riga(0),
            "Ristorante alla Vecchia Laguna -> 01       1,00 Kg. per       1,00");
}

TEST_F(TotaliClienti, IlClienteCercatoESceltoEIlPannelloLoTrova) {
  Apri_RXcli(programma, schermo, " pescheria rialto ");
  EXPECT_EQ(schermo.ListaClienti.scelta, 1);
  EXPECT_EQ(schermo.ListaTotali.scelta, 1);
  schermo.ListaClienti.scelta = 0;
  Scelto_Cliente(schermo);
  EXPECT_EQ(schermo.ListaTotali.scelta, 0);
  RXcli altro;
  Apri_RXcli(programma, altro, "Nessuno");
  EXPECT_EQ(altro.ListaTotali.scelta, -1);
}

TEST_F(TotaliClienti, Stampa) {
  Apri_RXcli(programma, schermo);
  Stampa_Clienti(programma, schermo);
  EXPECT_THAT(
      Disegnato(),
      ElementsAre(
          "p1 testo 10.00 10.00 Courier New 11 grassetto: Peso e totale imponibile per Cliente del "
          "14/03/2025",
          "p1 testo 10.00 18.79 Courier New 11 grassetto: N   Righe      Cliente   ",
          "p1 testo 174.38 10.00 Courier New 11: pag. 1 di 1",
          "p1 testo 10.00 27.58 Courier New 11: 001 02         Bar Sport                      ->       "
          "2,00 Kg. per      20,00",
          "p1 testo 10.00 31.98 Courier New 11: 002 02         Pescheria Rialto               ->      "
          "13,50 Kg. per     117,50"));
}

TEST_F(TotaliClienti, StampaDelSoloPeso) {
  Apri_RXcli(programma, schermo);
  schermo.SoloPeso.segnata = true;
  Stampa_Clienti(programma, schermo);
  EXPECT_THAT(registro.righe, Contains(HasSubstr("Peso per Cliente del 14/03/2025")));
  EXPECT_THAT(registro.righe, Not(Contains(HasSubstr("per     117,50"))));
}

TEST_F(TotaliClienti, Salva) {
  Apri_RXcli(programma, schermo);
  Salva_Totali(programma, schermo);
  EXPECT_EQ(cartella.Contenuto("uscita.txt"),
            "\r\nPeso totale per Cliente calcolato il 14/03/2025\r\n\r\n" + bar + "\r\n" + rialto + "\r\n");
  EXPECT_THAT(macchina.messaggi, ElementsAre("fatto..."));
}

TEST_F(TotaliClienti, SalvataggioAnnullatoOFallito) {
  Apri_RXcli(programma, schermo);
  Disco_Pieno();
  Salva_Totali(programma, schermo);
  EXPECT_THAT(macchina.messaggi, ElementsAre(HasSubstr("Errore 28 durante il salvataggio")));
  macchina.messaggi.clear();
  file.reset();
  Salva_Totali(programma, schermo);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

}  // namespace

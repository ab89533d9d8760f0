#include "invoices/zfatture_vettore.h"

#include <gmock/gmock.h>

#include "printing/registratore.h"
#include "tests/invoices/fatture_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using S = Campi_Spedizione;

struct ZFatture_Vettore : testing::Test, Fatture_Di_Prova {
  ZFatture_Vettore() {
    zfatture.variante = &Fatture_Con_Vettore;
    programma.Vet_Clienti.push_back(
        {"A7B2C", "Cooperativa", "coop", "Via 5", "30100 Venezia", "00000000105", "-", "-", ""});
  }
  void Giornata() {
    Vendi("00102", "5", "002", "00122");
    Vendi("00101", "6", "001", "00121");
    Vendi("A7B2C", "7", "004", "00124");
    Vendi("00104", "7", "003", "00123");
    Vendi("00101", "-1", "rif", "NA004");
  }
};

TEST_F(ZFatture_Vettore, ApreCoiSuoiCampi) {
  Giornata();
  Apri();
  EXPECT_EQ(zfatture.titolo, "Stampa Fatture Brenval del 14/03/2025");
  const S& spedizione = zfatture.spedizione;
  EXPECT_EQ(spedizione.Text8.testo, "Vendita");
  EXPECT_EQ(spedizione.Text3.testo, "Casse");
  EXPECT_EQ(spedizione.Text6.testo, "Vettore");
  EXPECT_EQ(spedizione.Text4.testo, "0");
  EXPECT_EQ(spedizione.Text5.testo, "22%");
  for (const CampoTesto& riga : spedizione.Text7) EXPECT_EQ(riga.testo, "-");
  EXPECT_EQ(spedizione.Caption_Text8.testo, "Causale del trasporto");
  EXPECT_EQ(spedizione.Caption_Text3.testo, "Aspetto esteriore dei beni");
  EXPECT_EQ(spedizione.Caption_Text6.testo, "Trasporto a mezzo");
  EXPECT_EQ(spedizione.Caption_Text4.testo, "Spese e  IVA spese");
  EXPECT_EQ(spedizione.Caption_Text7.testo, "Incaricato del trasporto");
  EXPECT_EQ(spedizione.Text8.suggerimento, "Doppio click per Vendita");
  EXPECT_EQ(spedizione.Text6.suggerimento, "Doppio click per Vettore");
  EXPECT_EQ(spedizione.Text5.suggerimento, "Aliquota IVA applicata alle spese");
  EXPECT_EQ(zfatture.Command6.testo, "Scegli...");
  EXPECT_TRUE(zfatture.Tutte.segnata);
}

// The boxes of the other screen aren't here, whatever was ticked there.
TEST_F(ZFatture_Vettore, LeCaselleDellAltroSchermoNonCiSono) {
  programma.preferenze.FlagPersonalizzata = programma.preferenze.FlagPersonalizzataCompleta = true;
  programma.preferenze.FlagRistoranti = programma.preferenze.FlagSoloRis = programma.preferenze.FlagEE = true;
  Giornata();
  Apri();
  EXPECT_TRUE(zfatture.Tutte.visibile);
  for (const auto& casella : {zfatture.Stampale, zfatture.Paginax2, zfatture.Personalizzata, zfatture.Check1,
                              zfatture.Completa, zfatture.Check2, zfatture.Check3}) {
    EXPECT_FALSE(casella.visibile);
    EXPECT_FALSE(casella.segnata);
  }
  EXPECT_THAT(Codici(zfatture.TabellaFatture), ElementsAre("00101", "00102", "A7B2C"));
  ChiudiFatture(programma, zfatture);
  // the other screen finds its own choices again
  EXPECT_TRUE(programma.preferenze.FlagEE);
  EXPECT_TRUE(programma.preferenze.FlagSoloRis);
  EXPECT_TRUE(programma.preferenze.FlagPersonalizzata);
}

TEST_F(ZFatture_Vettore, GliEsclusiSiDiconoInUnaFinestrella) {
  Giornata();
  Vendi("00103", "7", "005", "00125");
  Apri();
  EXPECT_FALSE(zfatture.Esclusi.visibile);
  MostraEsclusi(programma, zfatture);
  EXPECT_THAT(macchina.messaggi, ElementsAre("2 Esclusi"));
}

TEST_F(ZFatture_Vettore, IlTitoloSegueLaLista) {
  Giornata();
  Apri();
  SceltaDocumento(programma, zfatture, TipoFattura::Nota, 0);
  EXPECT_EQ(zfatture.titolo, "Stampa Note di Accredito del 14/03/2025");
  SceltaDocumento(programma, zfatture, TipoFattura::Fattura, 1);
  EXPECT_EQ(zfatture.titolo, "Stampa Fatture Brenval del 14/03/2025");
}

TEST_F(ZFatture_Vettore, SiFiltraCoiBottoni) {
  Giornata();
  Apri();
  SceltaDocumento(programma, zfatture, TipoFattura::Fattura, 2);
  SelezionaAlfanumerici(programma, zfatture);
  EXPECT_THAT(Codici(zfatture.TabellaFatture), ElementsAre("A7B2C"));
  EXPECT_EQ(zfatture.MList2.Numero(), 1U);
  EXPECT_EQ(zfatture.MList2.scelta, 0);
  EXPECT_EQ(zfatture.Text1[1].testo, "Cooperativa");
  EXPECT_EQ(zfatture.TabellaNote.size(), 1U);
  SelezionaRistoranti(programma, zfatture);
  EXPECT_THAT(zfatture.TabellaFatture, IsEmpty());
  EXPECT_EQ(zfatture.MList2.Numero(), 0U);
  EXPECT_EQ(zfatture.Text1[1].testo, "");
  EXPECT_FALSE(zfatture.ModificaFAT.attivo);
}

TEST_F(ZFatture_Vettore, IRistorantiRestano) {
  Giornata();
  Vendi("99999", "7", "009", "00129");  // in no list, so no restaurant
  Apri();
  SelezionaRistoranti(programma, zfatture);
  EXPECT_THAT(Codici(zfatture.TabellaFatture), ElementsAre("00102"));
}

TEST_F(ZFatture_Vettore, UnCodiceConUnaLetteraOSenzaCifreEAlfanumerico) {
  for (const Vista codice : {"0010A", "-0101", " 0101 ", "1.5", ""}) Vendi(codice, "5");
  Vendi("00101", "5");
  Apri();
  SelezionaAlfanumerici(programma, zfatture);
  EXPECT_THAT(Codici(zfatture.TabellaFatture), testing::UnorderedElementsAre("0010A", "-0101", "1.5", ""));
}

TEST_F(ZFatture_Vettore, IlDoppioClicMetteLaParolaSolita) {
  Giornata();
  Apri();
  S& spedizione = zfatture.spedizione;
  for (CampoTesto S::*campo : {&S::Text8, &S::Text3, &S::Text6, &S::Text4, &S::Text5}) {
    (spedizione.*campo).testo = "x";
    PredefinitoSpedizione(zfatture, campo);
  }
  EXPECT_EQ(spedizione.Text8.testo, "Vendita");
  EXPECT_EQ(spedizione.Text3.testo, "Casse");
  EXPECT_EQ(spedizione.Text6.testo, "Vettore");
  EXPECT_EQ(spedizione.Text4.testo, "x");
  EXPECT_EQ(spedizione.Text5.testo, "x");
}

TEST_F(ZFatture_Vettore, LeSpeseVoglionoCifre) {
  for (const char c : {'0', '5', '9'}) EXPECT_TRUE(AmmessoNelleSpese(c));
  for (const char c : {',', '.', '%', '-', ' ', 'a', '\xE0'}) EXPECT_FALSE(AmmessoNelleSpese(c));
}

TEST_F(ZFatture_Vettore, LeSpeseSiLegganoDalPrimoNumero) {
  Giornata();
  Apri();
  struct Caso {
    Testo spese, iva;
    double euro, aliquota;
  };
  for (const auto& [spese, iva, euro, aliquota] :
       {Caso{"0", "22%", 0, 22}, Caso{"15", "10", 15, 10}, Caso{"", "", 0, 0}, Caso{"abc", "x", 0, 0}}) {
    zfatture.spedizione.Text4.testo = spese;
    zfatture.spedizione.Text5.testo = iva;
    const auto spedizione = SpedizioneScelta(programma, zfatture);
    ASSERT_TRUE(spedizione);
    EXPECT_EQ(spedizione->spese, euro);
    EXPECT_EQ(spedizione->aliquota, aliquota);
  }
  zfatture.variante = &Fatture_Senza_Vettore;
  EXPECT_FALSE(SpedizioneScelta(programma, zfatture));
}

TEST_F(ZFatture_Vettore, UnVettorePresoDallaLista) {
  Giornata();
  Apri();
  PrendiVettore(zfatture, "Vettore", {"Trasporti Brenta", "via del Porto, 3", "30015 Chioggia"});
  zfatture.spedizione.Text8.testo = " Conto deposito ";
  const auto trasporto = SpedizioneScelta(programma, zfatture)->trasporto;
  EXPECT_EQ(trasporto.Causale, "Conto deposito");
  EXPECT_EQ(trasporto.Mezzo, "Vettore");
  EXPECT_THAT(trasporto.Vettore, ElementsAre("Trasporti Brenta", "via del Porto, 3", "30015 Chioggia"));
}

TEST_F(ZFatture_Vettore, AllaChiusuraICampiVannoNelleImpostazioni) {
  Metti_Ini("[VELMARA]\r\nFlagEE=-1\r\n");
  Giornata();
  Apri();
  S& spedizione = zfatture.spedizione;
  spedizione.Text8.testo = "Reso";
  spedizione.Text3.testo = "Cartoni";
  spedizione.Text6.testo = "Mittente";
  spedizione.Text4.testo = "12";
  spedizione.Text5.testo = "10";
  PrendiVettore(zfatture, "Vettore", {"Uno", "Due", "Tre"});
  zfatture.Text2.testo = "Chioggia ";
  ChiudiFatture(programma, zfatture);
  for (const char* riga :
       {"Causale=Reso", "Aspetto=Cartoni", "Mezzo=Vettore", "Spese=12", "SpeseIVA=10", "Vettore_1=Uno",
        "Vettore_2=Due", "Vettore_3=Tre", "CittaVC=Chioggia", "FlagEE=-1"})
    EXPECT_THAT(Ini(), HasSubstr(Testo(riga) + "\r\n"));
  EXPECT_THAT(Ini(), Not(HasSubstr("FlagPersonalizzata")));
  ZFatture ancora;
  ancora.variante = &Fatture_Con_Vettore;
  ApriFatture(programma, ancora);
  EXPECT_EQ(ancora.spedizione.Text3.testo, "Cartoni");
  EXPECT_EQ(ancora.spedizione.Text7[2].testo, "Tre");
}

TEST_F(ZFatture_Vettore, ScegliCambiaSoloLOrdine) {
  Vendi("00101", "6", "001", "00122");
  Vendi("00102", "5", "002", "00121");
  Apri();
  zfatture.Tutte.segnata = false;
  Archivio(programma, zfatture);
  EXPECT_TRUE(zfatture.Tutte.segnata);
  EXPECT_THAT(Codici(zfatture.TabellaFatture), ElementsAre("00102", "00101"));
  Archivio(programma, zfatture);
  EXPECT_THAT(Codici(zfatture.TabellaFatture), ElementsAre("00101", "00102"));
  EXPECT_EQ(zfatture.Command6.testo, "Scegli...");
}

TEST_F(ZFatture_Vettore, LaCorsaPrendeICampiDelloSchermo) {
  Registro_Pagine registro;
  Registratore printer{macchina.stampante, registro};
  macchina.dispositivo = &printer;
  Vendi("00101", "10", "007", "00127");
  Apri();
  zfatture.spedizione.Text4.testo = "10";
  zfatture.spedizione.Text5.testo = "20%";
  Archivio(programma, zfatture);  // two a sheet is for other firms
  zfatture.spedizione.Text8.testo = "Conto deposito";
  macchina.risposte = {true};
  StampaFatNa(programma, zfatture);
  EXPECT_EQ(registro.pagine, 1);
  EXPECT_THAT(registro.righe, testing::Contains(HasSubstr(": Causale trasporto: Conto deposito")));
  EXPECT_TRUE(
      programma.disco.Esiste_File(cartella / "2025_fat/20250314/00101_FAT_00127_20250314_00000_3400_11.txt"));
  EXPECT_EQ(zfatture.titolo, "Fatturazione");
}

TEST_F(ZFatture_Vettore, MentreUnComandoCorreNullaCambia) {
  Giornata();
  Apri();
  zfatture.attiva = false;
  AggiornaComandi(programma, zfatture);
  EXPECT_FALSE(zfatture.spedizione.Text7[0].attivo);
  EXPECT_FALSE(zfatture.spedizione.Command8.attivo);
  zfatture.spedizione.Text8.testo = "x";
  PredefinitoSpedizione(zfatture, &S::Text8);
  PrendiVettore(zfatture, "Vettore", {"a", "b", "c"});
  SelezionaRistoranti(programma, zfatture);
  SelezionaAlfanumerici(programma, zfatture);
  MostraEsclusi(programma, zfatture);
  EXPECT_EQ(zfatture.spedizione.Text8.testo, "x");
  EXPECT_EQ(zfatture.spedizione.Text7[0].testo, "-");
  EXPECT_EQ(zfatture.TabellaFatture.size(), 3U);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

}  // namespace

#include "lists/anagrafica.h"

#include <chrono>

#include "lists/anagrafica_clienti.h"
#include "lists/anagrafica_vettori.h"
#include "tests/lists/anagrafica_prova.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Lista_Con_Modulo : public Anagrafica_Aperta {
 protected:
  void Apri_Con(Vista contenuto) {
    Scrivi(nomi_file::Vettori, contenuto);
    Apri(Anagrafica_Vettori());
  }
  void Apri_Quattro() { Apri_Con("Alfa\ta\tx\r\nBeta\tb\ty\r\nGamma\tc\tx\r\nAlfio\td\tz\r\n"); }
  int Cerca(const Testo& testo, bool oltre = false) {
    schermo.Cerca.testo = testo;
    Cerca_Voce(programma, schermo, oltre);
    return schermo.List1.scelta;
  }
};

TEST_F(Lista_Con_Modulo, AllAperturaLaPrimaRigaEScelta) {
  Apri_Quattro();
  In_Passo(0, 4);
  EXPECT_THAT(Campi(), ElementsAre("Alfa", "a", "x"));
  EXPECT_EQ(schermo.Posto.testo, "riga 1 di 4");
}

TEST_F(Lista_Con_Modulo, ScorrimentoEListaVannoInsieme) {
  Apri_Quattro();
  Scegli_Riga(2);
  In_Passo(2, 4);
  EXPECT_THAT(Campi(), ElementsAre("Gamma", "c", "x"));
  Vai_Alla_Riga(programma, schermo, 4);
  In_Passo(3, 4);
  EXPECT_THAT(Campi(), ElementsAre("Alfio", "d", "z"));
  EXPECT_EQ(schermo.Posto.testo, "riga 4 di 4");
  for (const auto& [voluta, riga] : {std::pair(9, 3), {0, 0}, {-5, 0}}) {
    Vai_Alla_Riga(programma, schermo, voluta);
    In_Passo(riga, 4);
  }
  Cerca("beta");
  In_Passo(1, 4);
  EXPECT_THAT(Campi(), ElementsAre("Beta", "b", "y"));
}

TEST_F(Lista_Con_Modulo, IlModuloSiApreSullaRigaSceltaOSullaPrima) {
  Apri_Quattro();
  Scegli_Riga(2);
  schermo.Text1[0].testo = "rimasto";
  Apri_Modulo(programma, schermo);
  In_Passo(2, 4);
  EXPECT_EQ(Campi()[0], "Gamma");
  Scegli_Riga(-1);
  Apri_Modulo(programma, schermo);
  In_Passo(0, 4);
}

TEST_F(Lista_Con_Modulo, LaRicercaParteDallaRigaSceltaEFaIlGiro) {
  Apri_Quattro();
  EXPECT_EQ(Cerca("alf"), 0);
  EXPECT_EQ(Cerca("ALF", true), 3);
  EXPECT_EQ(Cerca("alf"), 3);        // the selected line itself comes first
  EXPECT_EQ(Cerca("alf", true), 0);  // round to the beginning
  EXPECT_EQ(Cerca("- x"), 0);
  EXPECT_EQ(Cerca("- x", true), 2);
  EXPECT_EQ(Cerca("gamma", true), 2);  // the only hit is the line itself
}

TEST_F(Lista_Con_Modulo, LaRicercaVanaLasciaLaSceltaELoDice) {
  Apri_Quattro();
  Scegli_Riga(1);
  EXPECT_EQ(Cerca("delta"), 1);
  EXPECT_EQ(schermo.Esito.testo, "non trovato");
  EXPECT_EQ(Cerca("g"), 2);
  EXPECT_EQ(schermo.Esito.testo, "");
  EXPECT_EQ(Cerca("  "), 2);
  EXPECT_EQ(Cerca(""), 2);
  EXPECT_EQ(schermo.Esito.testo, "");
}

TEST_F(Lista_Con_Modulo, LaRicercaIgnoraMaiuscoleAncheAccentate) {
  Apri_Con("Uno\ta\tb\r\nPescheria Così\tvia dell'Orto\tx\r\n"_t);
  EXPECT_EQ(Cerca("COSÌ"_t), 1);
  Scegli_Riga(0);
  EXPECT_EQ(Cerca("L'ORTO"), 1);
}

TEST_F(Lista_Con_Modulo, LaListaVuota) {
  Apri_Con("");
  In_Passo(-1, 0);
  EXPECT_EQ(schermo.Posto.testo, "nessuna riga");
  EXPECT_FALSE(schermo.Scorri.attivo);
  EXPECT_FALSE(schermo.Modifica.attivo);
  EXPECT_FALSE(schermo.Elimina.attivo);
  EXPECT_TRUE(schermo.Aggiungi.attivo);
  EXPECT_EQ(Cerca("x"), -1);
  Apri_Modulo(programma, schermo);
  Vai_Alla_Riga(programma, schermo, 3);
  In_Passo(-1, 0);
  EXPECT_FALSE(Modifica_Voce(programma, schermo));
  EXPECT_FALSE(Elimina_Voce(programma, schermo));
  int copie = 0;
  schermo.copia = [&](std::size_t) { ++copie; };
  Copia_Voce(schermo);
  EXPECT_EQ(copie, 0);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  Compila({"Primo"});
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Vettori), "Primo\t\t\r\n");
  In_Passo(0, 1);
  EXPECT_TRUE(schermo.Modifica.attivo);
}

TEST_F(Lista_Con_Modulo, UnOrdineSuUnaListaVuota) {
  Scrivi(nomi_file::Clienti, "");
  Leggi_Clienti(programma);
  Apri(Anagrafica_Clienti());
  Ordina_Anagrafica(programma, schermo, 0);
  In_Passo(-1, 0);
  EXPECT_EQ(Contenuto(nomi_file::Clienti), "");
}

TEST_F(Lista_Con_Modulo, SiCopiaLaRigaScelta) {
  std::vector<std::size_t> copiate;
  schermo.copia = [&](std::size_t r) { copiate.push_back(r); };
  Apri_Quattro();
  EXPECT_TRUE(schermo.Copia.attivo);
  Scegli_Riga(2);
  Copia_Voce(schermo);
  EXPECT_THAT(copiate, ElementsAre(2U));
  Scegli_Riga(-1);
  Copia_Voce(schermo);
  EXPECT_THAT(copiate, ElementsAre(2U));
}

TEST_F(Lista_Con_Modulo, SenzaUnoSchermoDovCopiareIlComandoESpento) {
  Apri_Quattro();
  EXPECT_FALSE(schermo.Copia.attivo);
  Copia_Voce(schermo);
  EXPECT_EQ(schermo.Esito.testo, "");
}

TEST_F(Lista_Con_Modulo, PulireSvuotaICampiELasciaLaRiga) {
  Apri_Quattro();
  Vai_Alla_Riga(programma, schermo, 2);
  Pulisci_Campi(schermo);
  EXPECT_THAT(Campi(), ElementsAre("", "", ""));
  In_Passo(1, 4);
  Scegli_Voce(programma, schermo);
  EXPECT_THAT(Campi(), ElementsAre("Beta", "b", "y"));
}

TEST_F(Lista_Con_Modulo, IlSuggerimentoDelCampoInUso) {
  Leggi_Clienti(programma);
  Apri(Anagrafica_Clienti());
  Fuoco_Campo(schermo, cliente::PIva);
  EXPECT_THAT(schermo.Aiuto.testo, testing::StartsWith("Inserire partita iva"));
  Fuoco_Campo(schermo, cliente::Via);
  EXPECT_EQ(schermo.Aiuto.testo, "");
}

TEST_F(Lista_Con_Modulo, DopoUnaModificaLaRigaInUsoEAncoraQuella) {
  Apri_Con("Alfa\ta\tb\r\n\tsenza nome\tx\r\nGamma\tc\td\r\nDelta\te\tf\r\n");
  EXPECT_EQ(schermo.List1.Numero(), 4U);
  Vai_Alla_Riga(programma, schermo, 4);
  schermo.Text1[1].testo = "nuova";
  ASSERT_TRUE(Modifica_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Vettori), "Alfa\ta\tb\r\nGamma\tc\td\r\nDelta\tnuova\tf\r\n");
  In_Passo(2, 3);
  EXPECT_THAT(Campi(), ElementsAre("Delta", "nuova", "f"));
}

TEST_F(Lista_Con_Modulo, SeparatoriIncollatiNonArrivanoNelFile) {
  Apri_Con("");
  schermo.Text1[0].testo = "A\tB\r\nC";
  schermo.Text1[1].testo = Testo("via\0x", 5);
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Vettori), "ABC\tviax\t\r\n");
}

// Every byte of the code page, the undefined ones too, goes to the file and back.
TEST_F(Lista_Con_Modulo, OgniCarattereDellaTabellaTorna) {
  Testo tutti;
  for (int c = 33; c < 256; ++c) tutti += static_cast<char>(c);
  Apri_Con("");
  schermo.Text1[0].testo = tutti;
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Vettori), tutti + "\t\t\r\n");
  EXPECT_EQ(Campi()[0], tutti);
}

// A key in the search field must answer within a screen frame; the limit here only catches a list whose lines
// are all made, or a search that goes over them more than once.
TEST_F(Lista_Con_Modulo, DiecimilaClienti) {
  Testo contenuto;
  for (int i = 0; i < 10'000; ++i)
    contenuto += Pad_Sinistra(std::to_string(i), 5, '0') + "\tPescheria numero " + std::to_string(i) +
                 " di Chioggia\tsopra" + std::to_string(i % 97) + "\tvia\tcitta\t99\t-\t-\tIT\r\n";
  Scrivi(nomi_file::Clienti, contenuto);
  Leggi_Clienti(programma);
  const auto da = std::chrono::steady_clock::now();
  Apri(Anagrafica_Clienti());
  for (const char* testo : {"n", "nu", "numero 99", "numero 9999", "in nessuna riga"}) Cerca(testo);
  const std::chrono::duration<double> ricerche = std::chrono::steady_clock::now() - da;
  EXPECT_EQ(schermo.List1.scelta, 9999);
  EXPECT_EQ(schermo.Esito.testo, "non trovato");
  EXPECT_LT(ricerche.count(), 10.0);
  Ordina_Anagrafica(programma, schermo, 2);
  EXPECT_EQ(schermo.Text1[0].testo, "09999");
  Vai_Alla_Riga(programma, schermo, 5'000);
  ASSERT_TRUE(Elimina_Voce(programma, schermo));
  In_Passo(4'999, 9'999);
}

}  // namespace

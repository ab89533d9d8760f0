#include "lists/semi.h"
#include "tests/lists/cartella_ditta.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

struct Caso {
  Vista nome;
  void (*leggi)(Programma&);
  std::vector<Testo> Programma::*tabella;
  std::size_t voci;
  Testo prima, ultima;
};

const Caso casi[] = {
    {nomi_file::Metodi, Leggi_Metodi, &Programma::Vet_Metodi, 11, "AEP Ami e palangari",
     "XXX con teletrasporto"},
    {nomi_file::Pezzature, Leggi_Pezzature, &Programma::Vet_Pezzature, 18, "GRA Grande",
     "XXX personalizzata3"},
    {nomi_file::Stati, Leggi_Stati, &Programma::Vet_Stati, 8, "ALI Vivo", "SAL Salato"},
    {nomi_file::Lavorazioni, Leggi_Lavorazioni, &Programma::Vet_Lavorazioni, 27, "XXX .", "TRA Trasformato"},
    {nomi_file::Presentazioni, Leggi_Presentazioni, &Programma::Vet_Presentazioni, 49, "OTH Altro",
     "OTH Hamburger"},
    {nomi_file::Barche, Leggi_Barche, &Programma::Vet_Barche, 4, ".", ", Barca 3"},
    {nomi_file::Allergeni, Leggi_Allergeni, &Programma::Vet_Allergeni, 5, "-",
     "XXX Pesce - Molluschi - Crostacei"},
    {nomi_file::Provenienze, Leggi_Provenienze, &Programma::Vet_Provenienze, 239, "001 IT Laguna Venezia",
     "ZW Zimbabwe"},
};

class Lista_Codificata_Prova : public Cartella_Ditta, public testing::WithParamInterface<Caso> {
 protected:
  const std::vector<Testo>& Tabella() const { return programma.*GetParam().tabella; }
  void Leggi() { GetParam().leggi(programma); }
};

TEST_P(Lista_Codificata_Prova, UnFileCheMancaNasceConLeSueVoci) {
  Leggi();
  ASSERT_THAT(Tabella(), SizeIs(GetParam().voci));
  EXPECT_EQ(Tabella().front(), GetParam().prima);
  EXPECT_EQ(Tabella().back(), GetParam().ultima);
  const Testo contenuto = Contenuto(GetParam().nome);
  EXPECT_EQ(Righe(contenuto).size(), GetParam().voci);
  EXPECT_EQ(contenuto, Contenuto_Voci(Tabella()));
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_P(Lista_Codificata_Prova, QuelloScrittoSiRileggeUguale) {
  Leggi();
  const auto prima = Tabella();
  (programma.*GetParam().tabella).clear();
  Leggi();
  EXPECT_EQ(Tabella(), prima);
}

TEST_P(Lista_Codificata_Prova, UnFileCancellatoRinasceAllaProssimaLettura) {
  Leggi();
  ASSERT_EQ(programma.disco.Cancella(File(GetParam().nome)), 0);
  Leggi();
  EXPECT_THAT(Tabella(), SizeIs(GetParam().voci));
  EXPECT_TRUE(Esiste(GetParam().nome));
}

TEST_P(Lista_Codificata_Prova, IlFileDellaDittaValeComEScrittoConIBlanchi) {
  Scrivi(GetParam().nome, "AAA  due spazi  \r\nXXX   \nBBB\rultima senza fine");
  Leggi();
  EXPECT_THAT(Tabella(), ElementsAre("AAA  due spazi  ", "XXX   ", "BBB", "ultima senza fine"));
}

TEST_P(Lista_Codificata_Prova, DiUnaRigaConTabRestaIlPrimoCampo) {
  Scrivi(GetParam().nome, " AAA voce \taltro\r\n");
  Leggi();
  EXPECT_THAT(Tabella(), ElementsAre("AAA voce"));
}

TEST_P(Lista_Codificata_Prova, UnFileVuotoEUnaListaVuota) {
  Scrivi(GetParam().nome, "");
  Leggi();
  EXPECT_THAT(Tabella(), IsEmpty());
}

TEST_P(Lista_Codificata_Prova, ColDiscoPienoSiUsanoLeVociESiDice) {
  Disco_Pieno(GetParam().nome);
  Leggi();
  EXPECT_THAT(Tabella(), SizeIs(GetParam().voci));
  EXPECT_FALSE(Esiste(GetParam().nome));
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_Su(GetParam().nome)));
}

// Where nothing can be written at all, which was told when the program started, a list that can't be kept is
// no news.
TEST_P(Lista_Codificata_Prova, QuelloCheSiSaGiaNonSiRidice) {
  Disco_Pieno(GetParam().nome);
  programma.Errore_Cartella = ENOSPC;
  Leggi();
  EXPECT_THAT(Tabella(), SizeIs(GetParam().voci));
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Liste, Lista_Codificata_Prova, testing::ValuesIn(casi), [](const auto& caso) {
  Testo nome(caso.param.nome.substr(6));
  return nome.substr(0, nome.find('.'));
});

using Voci_Codificate = Cartella_Ditta;

// The three letters and the blanks behind them go onto documents as they stand.
TEST_F(Voci_Codificate, LeVociVuoteHannoIBlanchiContati) {
  Leggi_Metodi(programma);
  Leggi_Pezzature(programma);
  EXPECT_EQ(programma.Vet_Metodi[7], "XXX   ");
  EXPECT_EQ(programma.Vet_Pezzature[14], "XXX    ");
  EXPECT_THAT(Contenuto(nomi_file::Metodi), HasSubstr("\r\nXXX   \r\n"));
}

TEST_F(Voci_Codificate, LavorazioniPresentazioniEAllergeniParlanti) {
  Leggi_Liste(programma);
  EXPECT_EQ(programma.Vet_Lavorazioni[1], "XXX Non Lavorato");
  EXPECT_EQ(programma.Vet_Lavorazioni[6], "ALI Ali");
  EXPECT_EQ(programma.Vet_Presentazioni[1], "CBF Filetto doppio di merluzzo bianco (eviscerato)");
  EXPECT_EQ(programma.Vet_Presentazioni[13], "GUT eviscerato");
  EXPECT_EQ(programma.Vet_Presentazioni[30], "WHL Intero");
  EXPECT_EQ(programma.Vet_Presentazioni[32], "OTH Teste");
  EXPECT_EQ(programma.Vet_Allergeni[3], "XXX PESCE - MOLLUSCHI - CROSTACEI");
  EXPECT_EQ(programma.Vet_Stati[5], "FRE Fresco / Refrigerato");
  EXPECT_EQ(programma.Vet_Pezzature[4], "A02 (0,3-0,45kg)");
}

TEST_F(Voci_Codificate, LeProvenienzeConLaLagunaInTestaEINomiDelMercato) {
  Leggi_Provenienze(programma);
  const auto& voci = programma.Vet_Provenienze;
  EXPECT_EQ(voci[1], "IT Italia");
  EXPECT_EQ(voci[2], "AD Andorra");
  EXPECT_EQ(voci[3], "AE Emirati Arabi Uniti");
  EXPECT_EQ(std::count(voci.begin(), voci.end(), "IT Italia"), 1);
  EXPECT_TRUE(std::is_sorted(voci.begin() + 2, voci.end()));
  for (const Vista voce :
       {"AN Antille Olandesi", "TP Timor Est", "YU Jugoslavia", "XE Unione Europea", "BV BOUVET, ISOLA",
        "CX CHRISTMAS, ISOLA", "GS SOUTH GEORGIA AND THE SOUTH SANDWICH ISLANDS",
        "HM HEARD ISLAND E MCDONALD ISLANDS", "IO TERRITORI OCEANO INDIANO BRITANNICI", "YT MAYOTTE",
        "FK Farkland o Malvine, Isole", "HR Croazia", "GR Grecia"})
    EXPECT_THAT(voci, testing::Contains(voce));
  EXPECT_THAT(voci, testing::Contains("PE Perù"_t));
  EXPECT_THAT(voci, testing::Contains("FO Isole Fær Øer"_t));
}

// The code is what rows are merged on, so no two entries may share it.
TEST_F(Voci_Codificate, OgniProvenienzaHaIlSuoCodice) {
  Leggi_Provenienze(programma);
  std::set<Testo> codici;
  for (const Testo& voce : programma.Vet_Provenienze) codici.insert(voce.substr(0, voce.find(' ')));
  EXPECT_EQ(codici.size(), programma.Vet_Provenienze.size());
}

TEST_F(Voci_Codificate, SpazzaturaNelFileNonFermaNulla) {
  Testo spazzatura;
  for (int i = 0; i < 5000; ++i) spazzatura += static_cast<char>(i * 131 % 256);
  for (const Caso& caso : casi) Scrivi(caso.nome, spazzatura);
  for (const Vista nome : {nomi_file::Clienti, nomi_file::Fornitori, nomi_file::Specie, nomi_file::Pelmoro,
                           nomi_file::Zone, nomi_file::Vettori, nomi_file::Esclusi})
    Scrivi(nome, spazzatura);
  Leggi_Liste(programma);
  Leggi_Pelmoro(programma);
  Leggi_Vettori(programma);
  Leggi_Esclusi(programma);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_EQ(programma.Vet_Stati.size(), Righe(spazzatura).size());
}

TEST_F(Voci_Codificate, AperturaDelGiornoLeggeTuttoERidipingeTraUnaListaELAltra) {
  Scrivi(nomi_file::Clienti, "00001\tA\tB\tC\tD\tE\t-\t-\t\r\n");
  Scrivi(nomi_file::Fornitori, "0001\tMare Blu\t\t\t\t\t6,5\tpp\t\r\n");
  Scrivi(nomi_file::Specie, "10\tOrata\tSparus aurata\tPesci\t1\tOrata\t1\tSBG\r\n");
  Leggi_Liste(programma);
  EXPECT_EQ(macchina.ridipinture, 12);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_THAT(programma.Vet_Clienti, SizeIs(1));
  EXPECT_THAT(programma.Vet_Zone, SizeIs(83));
  EXPECT_THAT(programma.Vet_Barche, SizeIs(4));
}

TEST_F(Voci_Codificate, PiuListeNonScritteSonoUnMessaggioSolo) {
  Scrivi(nomi_file::Clienti, "");
  Scrivi(nomi_file::Fornitori, "");
  Scrivi(nomi_file::Specie, "");
  Scrivi(nomi_file::Zone, "");
  programma.disco.guasto = [](const Percorso&) { return EROFS; };
  Leggi_Liste(programma);
  ASSERT_THAT(macchina.messaggi, SizeIs(1));
  EXPECT_EQ(Righe(macchina.messaggi[0]).size(), 8U);
  EXPECT_THAT(macchina.messaggi[0], HasSubstr(nomi_file::Barche));
}

}  // namespace

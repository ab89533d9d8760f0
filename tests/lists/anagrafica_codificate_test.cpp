#include "lists/anagrafica_codificate.h"

#include "lists/anagrafica_zone.h"
#include "tests/lists/cartella_ditta.h"

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class Lista_Di_Voci : public Cartella_Ditta {
 protected:
  void Apri(const Anagrafica& anagrafica, const std::vector<Testo>& voci) {
    Scrivi(anagrafica.file, Contenuto_Voci(voci));
    anagrafica.leggi(programma);
    Apri_Anagrafica(programma, schermo, anagrafica);
  }
  void Scegli(int riga) {
    schermo.List1.scelta = riga;
    Scegli_Voce(programma, schermo);
  }
  bool Aggiungi(const Testo& voce) {
    schermo.Text1[0].testo = voce;
    return Aggiungi_Voce(programma, schermo);
  }
  bool Modifica(int riga, const Testo& voce) {
    Scegli(riga);
    schermo.Text1[0].testo = voce;
    return Modifica_Voce(programma, schermo);
  }
  bool Elimina(int riga) {
    Scegli(riga);
    return Elimina_Voce(programma, schermo);
  }
  std::vector<Testo> Voci() const {
    std::vector<Testo> voci;
    for (std::size_t i = 0; i < schermo.List1.Numero(); ++i) voci.push_back(schermo.List1.Riga(i));
    return voci;
  }

  SchermoAnagrafica schermo;
};

struct Tipo {
  Testo titolo, titolo_modulo;
  Vista file;
  std::vector<Testo> Programma::*voci;
  Testo nota;
};

const Tipo tipi[] = {
    {"Attrezzo di Pesca", "Attrezzo di Pesca ", "_2020_MetodoPesca.txt", &Programma::Vet_Metodi,
     "Il codice XXX non va in fattura e può  essere cambiato/aggiunto a piacere."_t},
    {"Pezzatura", "Pezzatura", "_2020_Pezzatura.txt", &Programma::Vet_Pezzature,
     "I codici vanno in fattura e devono essere queli ufficciali."},
    {"Stato Fisico", "Stato Fisico", "_2020_StatoFisico.txt", &Programma::Vet_Stati,
     "I codici vanno in fattura e devono essere queli ufficciali."},
    {"Presentazione (Lavorazione)", "Lavorazione (non va in fattura)", "_2020_Lavorazione.txt",
     &Programma::Vet_Lavorazioni,
     "I codici NON vanno in fattura e possono essere cambiati/aggiunti a piacere."},
    {"Preparazione", "Presentazione", "_2020_Presentazione.txt", &Programma::Vet_Presentazioni,
     "I codici vanno in fattura e e devono essere queli ufficciali. Il codice OTH è a piacere."_t},
    {"Primo Imbarco", "Barca", "_2020_Barca.txt", &Programma::Vet_Barche, ""},
    {"Allergeni", "Allergeni", "_2020_Allergeni.txt", &Programma::Vet_Allergeni, ""}};

TEST_F(Lista_Di_Voci, OgniTipoHaISuoiTitoliELaSuaNota) {
  for (int tipo = 1; tipo <= 7; ++tipo) {
    const Tipo& atteso = tipi[tipo - 1];
    SCOPED_TRACE(tipo);
    Apri(Anagrafica_Codificata(tipo), {"AAA Uno"});
    EXPECT_EQ(schermo.titolo, atteso.titolo);
    EXPECT_EQ(schermo.titolo_modulo, atteso.titolo_modulo);
    EXPECT_EQ(Anagrafica_Codificata(tipo).lista, "MetodoPesca");
    EXPECT_EQ(Anagrafica_Codificata(tipo).modulo, "ModMetodo");
    std::vector<Testo> note = {"I primi tre caratteri sono il codice e vanno in maiuscolo ",
                               "poi va uno spazio e quindi la descrizione."};
    if (!atteso.nota.empty()) note.push_back(atteso.nota);
    EXPECT_EQ(Anagrafica_Codificata(tipo).note, note);
  }
  EXPECT_EQ(&Anagrafica_Codificata(0), &Anagrafica_Codificata(1));
  EXPECT_EQ(&Anagrafica_Codificata(99), &Anagrafica_Codificata(7));
}

TEST_F(Lista_Di_Voci, OgniTipoScriveIlSuoFile) {
  for (int tipo = 1; tipo <= 7; ++tipo) {
    const Tipo& lista = tipi[tipo - 1];
    SCOPED_TRACE(tipo);
    Apri(Anagrafica_Codificata(tipo), {"AAA Uno", "BBB Due"});
    ASSERT_TRUE(Aggiungi("CCC D'Altrove è"_t));
    EXPECT_EQ(Contenuto(lista.file), "AAA Uno\r\nBBB Due\r\nCCC D'Altrove è\r\n"_t);
    EXPECT_THAT(programma.*lista.voci, ElementsAre("AAA Uno", "BBB Due", "CCC D'Altrove è"_t));
    EXPECT_EQ(schermo.List1.scelta, 2);
    ASSERT_TRUE(Modifica(0, "ZZZ"));
    ASSERT_TRUE(Elimina(1));
    EXPECT_EQ(Contenuto(lista.file), "ZZZ\r\nCCC D'Altrove è\r\n"_t);
    EXPECT_THAT(Voci(), ElementsAre("ZZZ", "CCC D'Altrove è"_t));
    EXPECT_EQ(Voce_Codificata(programma, tipo, 1), "CCC D'Altrove è"_t);
    ASSERT_EQ(programma.disco.Cancella(File(lista.file)), 0);
  }
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Lista_Di_Voci, SalvareLaListaDiUnTipoLaRilegge) {
  programma.Vet_Stati = {"ALI Vivo", "", "FRE\tFresco"};
  ASSERT_TRUE(Salva_Lista_Tipo(programma, 3));
  EXPECT_EQ(Contenuto(nomi_file::Stati), "ALI Vivo\r\nFREFresco\r\n");
  EXPECT_THAT(programma.Vet_Stati, ElementsAre("ALI Vivo", "FREFresco"));
}

// Blanks behind a code go onto documents: neither keying nor reading may lose them.
TEST_F(Lista_Di_Voci, IBlanchiDelleVociRestano) {
  Apri(Anagrafica_Codificata(1), {"XXX   "});
  ASSERT_TRUE(Aggiungi(" AAA  due  "));
  EXPECT_EQ(Contenuto(nomi_file::Metodi), "XXX   \r\n AAA  due  \r\n");
  EXPECT_THAT(programma.Vet_Metodi, ElementsAre("XXX   ", " AAA  due  "));
}

TEST_F(Lista_Di_Voci, TabEFineRigaNonEntrano) {
  Apri(Anagrafica_Codificata(2), {});
  ASSERT_TRUE(Aggiungi("AAA\tuno\r\ndue"));
  EXPECT_THAT(programma.Vet_Pezzature, ElementsAre("AAAunodue"));
  EXPECT_EQ(Contenuto(nomi_file::Pezzature), "AAAunodue\r\n");
}

TEST_F(Lista_Di_Voci, DoppioClickRiprendeLaVoce) {
  Apri(Anagrafica_Codificata(3), {"ALI Vivo", "FRE Fresco"});
  Scegli(1);
  schermo.Text1[0].testo = "altro";
  Doppio_Clic_Campo(programma, schermo, 0);
  EXPECT_EQ(schermo.Text1[0].testo, "FRE Fresco");
}

TEST_F(Lista_Di_Voci, UnaVoceVuotaNonEntra) {
  Apri(Anagrafica_Codificata(3), {"ALI Vivo"});
  for (const Vista vuota : {"", "   ", "\t"}) EXPECT_FALSE(Aggiungi(Testo(vuota)));
  EXPECT_FALSE(Modifica(0, ""));
  EXPECT_THAT(macchina.messaggi, Each("Dati incompleti..."));
  EXPECT_THAT(macchina.messaggi, SizeIs(4));
  EXPECT_EQ(Contenuto(nomi_file::Stati), "ALI Vivo\r\n");
}

TEST_F(Lista_Di_Voci, LUltimaVoceEliminataLasciaUnFileVuoto) {
  Apri(Anagrafica_Codificata(7), {"-"});
  ASSERT_TRUE(Elimina(0));
  EXPECT_TRUE(Esiste(nomi_file::Allergeni));
  EXPECT_EQ(Contenuto(nomi_file::Allergeni), "");
  EXPECT_THAT(programma.Vet_Allergeni, IsEmpty());
  EXPECT_FALSE(Elimina(-1));
  EXPECT_FALSE(Modifica(-1, "X"));
  EXPECT_EQ(Contenuto(nomi_file::Allergeni), "");
}

TEST_F(Lista_Di_Voci, RigheVuoteDelFileVannoViaESiRestaSullaVoce) {
  Apri(Anagrafica_Codificata(7), {"", "", "AAA", "", "BBB"});
  ASSERT_TRUE(Modifica(4, "CCC"));
  EXPECT_THAT(Voci(), ElementsAre("AAA", "CCC"));
  EXPECT_EQ(schermo.List1.Scelta(), "CCC");
  Apri(Anagrafica_Codificata(7), {"", "", "AAA"});
  ASSERT_TRUE(Elimina(2));
  EXPECT_THAT(Voci(), IsEmpty());
}

TEST_F(Lista_Di_Voci, ColDiscoPienoFileListaECampoRestano) {
  for (int tipo = 1; tipo <= 7; ++tipo) {
    const Tipo& lista = tipi[tipo - 1];
    SCOPED_TRACE(tipo);
    programma.disco.guasto = nullptr;
    Apri(Anagrafica_Codificata(tipo), {"AAA Uno", "BBB Due"});
    Disco_Pieno(lista.file);
    macchina.messaggi.clear();
    EXPECT_FALSE(Aggiungi("CCC"));
    EXPECT_EQ(schermo.Text1[0].testo, "CCC");
    EXPECT_FALSE(Modifica(0, "DDD"));
    EXPECT_EQ(schermo.Text1[0].testo, "DDD");
    EXPECT_FALSE(Elimina(0));
    EXPECT_THAT(programma.*lista.voci, ElementsAre("AAA Uno", "BBB Due"));
    EXPECT_EQ(Contenuto(lista.file), "AAA Uno\r\nBBB Due\r\n");
    EXPECT_THAT(macchina.messaggi, SizeIs(3));
    EXPECT_THAT(macchina.messaggi, Each(Errore_Su(lista.file)));
  }
}

using Lista_Provenienze = Lista_Di_Voci;

// The second file is pasted into the built-in list by whoever keeps it; the marks belong to it.
TEST_F(Lista_Provenienze, OgniVoceAncheNelFileDeiSemi) {
  Apri(Anagrafica_Provenienze(), {"001 IT Laguna Venezia"});
  EXPECT_EQ(schermo.titolo, "Lista Provenienza");
  EXPECT_EQ(schermo.titolo_modulo, "Aggiungi/Modifica Specie");
  EXPECT_EQ(schermo.Caption[0].testo, "Provenienza");
  ASSERT_TRUE(Aggiungi("FO Isole Fær Øer"_t));
  EXPECT_EQ(Contenuto(nomi_file::Provenienze), "001 IT Laguna Venezia\r\nFO Isole Fær Øer\r\n"_t);
  EXPECT_EQ(Contenuto("zzzzz.txt"),
            "print #numfile, !001 IT Laguna Venezia!\r\nprint #numfile, !FO Isole Fær Øer!\r\n"_t);
  ASSERT_TRUE(Modifica(1, "IT Italia"));
  ASSERT_TRUE(Elimina(0));
  EXPECT_EQ(Contenuto("zzzzz.txt"), "print #numfile, !IT Italia!\r\n");
  EXPECT_EQ(Contenuto(nomi_file::Provenienze), "IT Italia\r\n");
  EXPECT_THAT(programma.Vet_Provenienze, ElementsAre("IT Italia"));
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Lista_Provenienze, SeIlFileDeiSemiNonSiScriveLaVoceResta) {
  Apri(Anagrafica_Provenienze(), {"IT Italia"});
  Disco_Pieno("zzzzz.txt");
  EXPECT_TRUE(Aggiungi("FR Francia"));
  EXPECT_THAT(programma.Vet_Provenienze, ElementsAre("IT Italia", "FR Francia"));
  EXPECT_EQ(Contenuto(nomi_file::Provenienze), "IT Italia\r\nFR Francia\r\n");
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_Su("zzzzz.txt")));
}

TEST_F(Lista_Provenienze, SeIlFileNonSiScriveNonSiScriveNeancheLAltro) {
  Apri(Anagrafica_Provenienze(), {"IT Italia"});
  Disco_Pieno(nomi_file::Provenienze);
  EXPECT_FALSE(Elimina(0));
  EXPECT_FALSE(Aggiungi(" "));
  EXPECT_THAT(programma.Vet_Provenienze, ElementsAre("IT Italia"));
  EXPECT_FALSE(Esiste("zzzzz.txt"));
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_Su(nomi_file::Provenienze), "Dati incompleti..."));
}

TEST_F(Lista_Provenienze, IlCampoDiRicercaVaAvantiERicomincia) {
  Apri(Anagrafica_Provenienze(), {"IT Italia", "FR Francia", "PE Perù"_t, "HR Croazia"});
  const std::pair<Testo, int> ricerche[] = {
      {"FRANCIA", 1}, {"azia", 3}, {"ITALIA", 0}, {"PERÙ"_t, 2}, {"Marte", 2}};
  for (const auto& [testo, riga] : ricerche) {
    schermo.Cerca.testo = testo;
    Cerca_Voce(programma, schermo);
    EXPECT_EQ(schermo.List1.scelta, riga) << testo;
  }
}

TEST_F(Lista_Provenienze, DiecimilaVoci) {
  std::vector<Testo> voci;
  for (int i = 0; i < 10000; ++i) voci.push_back("XXX voce " + std::to_string(i));
  Apri(Anagrafica_Provenienze(), voci);
  ASSERT_TRUE(Aggiungi("ultima"));
  EXPECT_EQ(schermo.List1.scelta, 10000);
  const Testo seme = Contenuto("zzzzz.txt");
  EXPECT_THAT(Righe(seme), SizeIs(10001));
}

class Lista_Zone : public Lista_Di_Voci {
 protected:
  void Batti(const Testo& etichetta, const Testo& codice) {
    schermo.Text1[0].testo = etichetta;
    schermo.Text1[1].testo = codice;
  }
};

TEST_F(Lista_Zone, AggiungereModificareEliminare) {
  Scrivi(nomi_file::Zone, "A0837 - Mar Mediterraneo\tFAO n.37\r\n");
  Leggi_Zone(programma);
  Apri_Anagrafica(programma, schermo, Anagrafica_Zone());
  EXPECT_EQ(schermo.titolo, "Lista Zone");
  EXPECT_EQ(schermo.titolo_modulo, "Aggiungi/Modifica Specie");
  EXPECT_EQ(schermo.Caption[0].testo, "Codice - Zona di Cattura");
  EXPECT_EQ(schermo.Caption[1].testo, "Denominazione della Zona");
  EXPECT_THAT(Voci(), ElementsAre("A0837 - Mar Mediterraneo\tFAO n.37"));
  Batti(" D - Città d'acqua "_t, " Prova ");
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Zone),
            "A0837 - Mar Mediterraneo\tFAO n.37\r\nD - Città d'acqua\tProva\r\n"_t);
  EXPECT_THAT(programma.Vet_Zone, SizeIs(2));
  Batti("D - Altro", "FAO\tn.1");
  ASSERT_TRUE(Modifica_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Zone), "A0837 - Mar Mediterraneo\tFAO n.37\r\nD - Altro\tFAOn.1\r\n");
  ASSERT_TRUE(Elimina(0));
  EXPECT_EQ(Contenuto(nomi_file::Zone), "D - Altro\tFAOn.1\r\n");
  EXPECT_THAT(Voci(), ElementsAre("D - Altro\tFAOn.1"));
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Lista_Zone, UnCampoVuotoSonoDatiIncompleti) {
  Scrivi(nomi_file::Zone, "A1\tx\r\n");
  Leggi_Zone(programma);
  Apri_Anagrafica(programma, schermo, Anagrafica_Zone());
  const std::pair<Testo, Testo> vuote[] = {{"", ""}, {" ", "x"}, {"A2", "  "}};
  for (const auto& [etichetta, codice] : vuote) {
    macchina.messaggi.clear();
    Batti(etichetta, codice);
    EXPECT_FALSE(Aggiungi_Voce(programma, schermo));
    EXPECT_FALSE(Modifica_Voce(programma, schermo));
    EXPECT_THAT(macchina.messaggi, ElementsAre("Dati incompleti...", "Dati incompleti..."));
  }
  EXPECT_EQ(Contenuto(nomi_file::Zone), "A1\tx\r\n");
}

TEST_F(Lista_Zone, ColDiscoPienoFileETabellaRestano) {
  Scrivi(nomi_file::Zone, "A1\tx\r\nA2\ty\r\n");
  Leggi_Zone(programma);
  Apri_Anagrafica(programma, schermo, Anagrafica_Zone());
  const auto prima = programma.Vet_Zone;
  Disco_Pieno(nomi_file::Zone);
  Batti("A3", "z");
  EXPECT_FALSE(Aggiungi_Voce(programma, schermo));
  EXPECT_FALSE(Modifica_Voce(programma, schermo));
  EXPECT_EQ(schermo.Text1[0].testo, "A3");
  EXPECT_FALSE(Elimina_Voce(programma, schermo));
  EXPECT_EQ(programma.Vet_Zone, prima);
  EXPECT_EQ(Contenuto(nomi_file::Zone), "A1\tx\r\nA2\ty\r\n");
  EXPECT_THAT(macchina.messaggi, Each(Errore_Su(nomi_file::Zone)));
}

}  // namespace

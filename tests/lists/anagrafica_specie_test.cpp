#include "lists/anagrafica_specie.h"

#include "tests/lists/cartella_ditta.h"

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

const Campi_Specie orata = {"10", "Orata", "Sparus aurata", "Pesci", "00001", "Orata", "1", "SBG"};
const Campi_Specie seppia = {"22", "Seppia", "Sepia officinalis", "Molluschi", "2", "Seppia", "2", "CTC"};
const Testo riga_orata = "10\tOrata\tSparus aurata\tPesci\t00001\tOrata\t1\tSBG\r\n";
const Testo riga_seppia = "22\tSeppia\tSepia officinalis\tMolluschi\t2\tSeppia\t2\tCTC\r\n";
const Testo minkia = "ma che minkia di aliquota IVA hai messo?";

class Lista_Specie : public Cartella_Ditta {
 protected:
  void Parti_Da(const TabellaLista<8>& tabella) {
    Scrivi(nomi_file::Specie, Contenuto_Tabella(tabella));
    Leggi_Specie(programma);
    Apri();
  }
  void Apri() { Apri_Anagrafica(programma, schermo, Anagrafica_Specie()); }
  void Scegli(int riga) {
    schermo.List1.scelta = riga;
    Scegli_Voce(programma, schermo);
  }
  void Batti(const Campi_Specie& campi) {
    for (std::size_t i = 0; i < campi.size(); ++i) schermo.Text1[i].testo = campi[i];
  }
  Campi_Specie Campi() const {
    Campi_Specie campi;
    for (std::size_t i = 0; i < campi.size(); ++i) campi[i] = schermo.Text1[i].testo;
    return campi;
  }
  void Comando(Vista nome) {
    for (const Comando_Anagrafica& comando : Anagrafica_Specie().comandi)
      if (comando.nome == nome) return comando.esegui(programma, schermo);
    FAIL() << nome;
  }
  static Campi_Specie Senza(Campi_Specie campi, const std::vector<int>& colonne) {
    for (const int colonna : colonne) campi[static_cast<std::size_t>(colonna)] = "  ";
    return campi;
  }

  SchermoAnagrafica schermo;
};

// ---- the list

TEST_F(Lista_Specie, LaRigaDellElenco) {
  EXPECT_EQ(Riga_Specie(orata), "10 - Orata");
  Campi_Specie campi = orata;
  for (const Vista corto : {"", "S"}) {
    campi[specie::NomeLatino] = corto;
    EXPECT_EQ(Riga_Specie(campi), "10 - Orata <--------definire");
  }
  campi[specie::NomeLatino] = "Sp";
  EXPECT_EQ(Riga_Specie(campi), "10 - Orata");
  campi[specie::Alfa] = "-";
  EXPECT_EQ(Riga_Specie(campi), "10 - Orata <--------definire");
}

TEST_F(Lista_Specie, TitoliDidascalieESuggerimenti) {
  Parti_Da({orata, seppia});
  EXPECT_EQ(schermo.titolo, "Lista Specie 2 voci");
  EXPECT_EQ(schermo.titolo_modulo, "Aggiungi/Modifica Descrizioni delle Specie");
  const std::pair<Vista, Testo> campi[] = {
      {"Aliquota IVA", "doppio click per cambiare"},
      {"Descrizione Personalizzata", "questo nome può essere personalizzato"_t},
      {"Nome Latino", "Nome latino obbligatorio e deve essere giusto"},
      {"Famiglia", "doppio click per cambiare"},
      {"Vecchio Codice Mercato", "Il vecchio codice di mercato oppure un codice di fantasia"},
      {"Nome in fattura", "Questo deve essere copiato dalla lista ufficiale"},
      {"Codice numerico", "non strettamente necessario -> un numero di fantasia"},
      {"Codice ALFA", "Deve essere quello corrispondente al nome latino"}};
  ASSERT_THAT(schermo.Text1, SizeIs(8));
  for (std::size_t i = 0; i < 8; ++i) {
    EXPECT_EQ(schermo.Caption[i].testo, campi[i].first);
    EXPECT_EQ(schermo.Text1[i].suggerimento, campi[i].second);
  }
  Scegli(1);
  ASSERT_TRUE(Elimina_Voce(programma, schermo));
  EXPECT_EQ(schermo.titolo, "Lista Specie 1 voci");
}

TEST_F(Lista_Specie, SenzaFileSiVedonoDueVociENonSiInserisceNulla) {
  Leggi_Specie(programma);
  macchina.messaggi.clear();
  Apri();
  ASSERT_EQ(schermo.List1.Numero(), 2U);
  EXPECT_EQ(schermo.List1.Riga(0), "Sogliola\t10");
  EXPECT_EQ(schermo.List1.Riga(1), "Orata\t10");
  for (const int riga : {0, 1}) {
    Scegli(riga);
    EXPECT_EQ(Campi(), Campi_Specie{});
    Batti(orata);
    EXPECT_FALSE(Aggiungi_Voce(programma, schermo));
    EXPECT_FALSE(Modifica_Voce(programma, schermo));
    EXPECT_EQ(Campi(), orata);
    EXPECT_FALSE(Elimina_Voce(programma, schermo));
    Ordina_Anagrafica(programma, schermo, 0);
    EXPECT_FALSE(Specie_Da_Copiare(programma, static_cast<std::size_t>(riga)));
  }
  EXPECT_THAT(macchina.messaggi, Contains("non sarà possibile inserire dati"_t).Times(8));
  EXPECT_FALSE(Esiste(nomi_file::Specie));
  EXPECT_TRUE(Specie_Provvisorie(programma));
}

TEST_F(Lista_Specie, UnElencoVuotoNonHaRigheEPrendeLaPrima) {
  Parti_Da({});
  EXPECT_EQ(schermo.List1.Numero(), 0U);
  EXPECT_EQ(schermo.titolo, "Lista Specie 0 voci");
  EXPECT_FALSE(Modifica_Voce(programma, schermo));
  EXPECT_FALSE(Elimina_Voce(programma, schermo));
  Batti(orata);
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Specie), riga_orata);
  EXPECT_THAT(programma.Vet_Specie, ElementsAre(orata));
  EXPECT_EQ(schermo.List1.scelta, 0);
}

TEST_F(Lista_Specie, SiCopiaTuttaLaRiga) {
  Parti_Da({orata, seppia});
  EXPECT_EQ(Specie_Da_Copiare(programma, 1), seppia);
  EXPECT_FALSE(Specie_Da_Copiare(programma, 2));
}

// ---- the checks

TEST_F(Lista_Specie, UnMessaggioFermaIlControlloMaNonRifiuta) {
  struct Caso {
    Vista nome;
    std::vector<int> vuoti;
    int esito;
    std::vector<Testo> messaggi;
  };
  const Caso casi[] = {
      {"tutto", {}, 0, {}},
      {"senza aliquota", {0}, 0, {"manca IVA"}},
      {"senza descrizione", {1}, 0, {"manca DESCRIZIONE"}},
      {"senza nome latino", {2}, 0, {"manca Nome latino"}},
      {"senza famiglia", {3}, 1, {}},
      {"senza codice", {4}, 0, {"manca CODICE"}},
      {"senza nome in fattura", {5}, 1, {}},
      {"senza codice numerico", {6}, 1, {}},
      {"senza ALFA", {7}, 0, {"manca codice ALFA"}},
      {"il primo messaggio ferma: la famiglia non si guarda", {2, 3}, 0, {"manca Nome latino"}},
      {"il rifiuto resta anche col messaggio dopo", {3, 4}, 1, {"manca CODICE"}},
      {"nome in fattura e ALFA", {5, 7}, 1, {"manca codice ALFA"}},
      {"vuoto del tutto", {0, 1, 2, 3, 4, 5, 6, 7}, 0, {"manca IVA"}},
  };
  for (const Caso& caso : casi) {
    SCOPED_TRACE(caso.nome);
    macchina.messaggi.clear();
    Campi_Specie campi = Senza(orata, caso.vuoti);
    EXPECT_EQ(Controlla_Specie(programma, campi), caso.esito);
    EXPECT_EQ(macchina.messaggi, caso.messaggi);
  }
}

TEST_F(Lista_Specie, LAliquotaSiControllaSoloAllaFine) {
  const std::pair<Vista, int> casi[] = {{"10", 0}, {"22", 0}, {" 4 ", 0}, {"04", 0}, {"4,0", 0},
                                        {"5", 1},  {"0", 1},  {"10%", 1}, {"1O", 1}};
  for (const auto& [aliquota, esito] : casi) {
    SCOPED_TRACE(aliquota);
    macchina.messaggi.clear();
    Campi_Specie campi = orata;
    campi[specie::Iva] = aliquota;
    EXPECT_EQ(Controlla_Specie(programma, campi), esito);
    EXPECT_THAT(macchina.messaggi, SizeIs(esito));
    EXPECT_THAT(macchina.messaggi, Each(minkia));
  }
  macchina.messaggi.clear();
  Campi_Specie campi = Senza(orata, {7});
  campi[specie::Iva] = "5";
  EXPECT_EQ(Controlla_Specie(programma, campi), 0);
  EXPECT_THAT(macchina.messaggi, ElementsAre("manca codice ALFA"));
  programma.preferenze.Aliquota3 = 5;
  campi = orata;
  campi[specie::Iva] = "5";
  EXPECT_EQ(Controlla_Specie(programma, campi), 0);
}

TEST_F(Lista_Specie, IlControlloToglieIBlanchiAiCapi) {
  Campi_Specie campi = {" 10 ", " Orata (Grande) ", " Sparus  aurata", "Pesci ", " 1", " Orata", " 1 ",
                        " SBG "};
  ASSERT_EQ(Controlla_Specie(programma, campi), 0);
  EXPECT_EQ(campi,
            (Campi_Specie{"10", "Orata (Grande)", "Sparus  aurata", "Pesci", "1", "Orata", "1", "SBG"}));
}

// ---- adding

TEST_F(Lista_Specie, AggiungereAccodaUnaRigaERilegge) {
  Parti_Da({orata});
  Campi_Specie campi = seppia;
  campi[specie::Iva] = "4";
  campi[specie::Descrizione] = "Seppia d'Istria (così)"_t;
  Batti(campi);
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Specie),
            riga_orata + "4\tSeppia d'Istria (così)\tSepia officinalis\tMolluschi\t2\tSeppia\t2\tCTC\r\n"_t);
  EXPECT_THAT(programma.Vet_Specie, ElementsAre(orata, campi));
  EXPECT_EQ(schermo.List1.scelta, 1);
  EXPECT_EQ(schermo.titolo, "Lista Specie 2 voci");
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

// The rest of the file stays as it is, whoever has written it.
TEST_F(Lista_Specie, AggiungereNonToccaLeRigheDiPrima) {
  const Testo prima = "10\tOrata\tSparus aurata\tPesci\t1\tOrata\t1\tSBG\tin più\n\tsenza IVA\tultima"_t;
  Scrivi(nomi_file::Specie, prima);
  Leggi_Specie(programma);
  Apri();
  Batti(seppia);
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Specie), prima + "\r\n" + riga_seppia);
  EXPECT_THAT(programma.Vet_Specie, SizeIs(3));
}

// The missing rate is told, the row is stored all the same; the list shows what is still to be done.
TEST_F(Lista_Specie, AggiungereSenzaAliquotaDiceEScrive) {
  Parti_Da({orata});
  Batti(Senza(seppia, {0, 2}));
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_THAT(macchina.messaggi, ElementsAre("manca IVA"));
  ASSERT_EQ(schermo.List1.Numero(), 2U);
  EXPECT_EQ(schermo.List1.Riga(1), " - Seppia <--------definire");
}

TEST_F(Lista_Specie, DatiIncompletiNonSiScrivono) {
  Parti_Da({orata});
  Batti(Senza(seppia, {3}));
  EXPECT_FALSE(Aggiungi_Voce(programma, schermo));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Dati incompleti..."));
  macchina.messaggi.clear();
  Campi_Specie campi = seppia;
  campi[specie::Iva] = "5";
  Batti(campi);
  EXPECT_FALSE(Modifica_Voce(programma, schermo));
  EXPECT_THAT(macchina.messaggi, ElementsAre(minkia, "Dati incompleti..."));
  EXPECT_EQ(Campi(), campi);
  EXPECT_EQ(Contenuto(nomi_file::Specie), riga_orata);
  EXPECT_THAT(programma.Vet_Specie, ElementsAre(orata));
}

TEST_F(Lista_Specie, TabEFineRigaNonEntranoNelFile) {
  Parti_Da({});
  Campi_Specie campi = orata;
  campi[specie::Descrizione] = "Ora\tta\r\n di valle";
  Batti(campi);
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Specie),
            "10\tOrata di valle\tSparus aurata\tPesci\t00001\tOrata\t1\tSBG\r\n");
}

TEST_F(Lista_Specie, ColDiscoPienoFileTabellaECampiRestano) {
  Parti_Da({seppia, orata});
  const auto prima = programma.Vet_Specie;
  Disco_Pieno(nomi_file::Specie);
  Campi_Specie campi = orata;
  campi[specie::Descrizione] = "Altra";
  Scegli(1);
  Batti(campi);
  EXPECT_FALSE(Aggiungi_Voce(programma, schermo));
  EXPECT_FALSE(Modifica_Voce(programma, schermo));
  EXPECT_EQ(Campi(), campi);
  EXPECT_FALSE(Elimina_Voce(programma, schermo));
  Ordina_Anagrafica(programma, schermo, 2);
  EXPECT_EQ(programma.Vet_Specie, prima);
  EXPECT_EQ(Contenuto(nomi_file::Specie), riga_seppia + riga_orata);
  EXPECT_EQ(schermo.List1.scelta, 1);
  EXPECT_THAT(macchina.messaggi, SizeIs(4));
  EXPECT_THAT(macchina.messaggi, Contains(Errore_Su(nomi_file::Specie)).Times(3));
}

// ---- changing, deleting, orders

TEST_F(Lista_Specie, ModificareScriveLAliquotaADueCifre) {
  Parti_Da({orata, seppia});
  Campi_Specie campi = orata;
  campi[specie::Iva] = "4";
  campi[specie::Alfa] = "sbg";
  Batti(campi);
  ASSERT_TRUE(Modifica_Voce(programma, schermo));
  EXPECT_EQ(Campi()[specie::Iva], "04");
  EXPECT_EQ(Contenuto(nomi_file::Specie),
            "04\tOrata\tSparus aurata\tPesci\t00001\tOrata\t1\tsbg\r\n" + riga_seppia);
  EXPECT_EQ(programma.Vet_Specie[0], Campi());
}

// Otherwise a forgotten rate would delete the species.
TEST_F(Lista_Specie, ModificareSenzaAliquotaTieneLaRiga) {
  Parti_Da({orata, seppia});
  Batti(Senza(orata, {0}));
  ASSERT_TRUE(Modifica_Voce(programma, schermo));
  EXPECT_THAT(macchina.messaggi, ElementsAre("manca IVA"));
  ASSERT_THAT(programma.Vet_Specie, SizeIs(2));
  EXPECT_EQ(programma.Vet_Specie[0][specie::Iva], "00");
}

TEST_F(Lista_Specie, ModificareSegueLaRigaQuandoQuelleSenzaAliquotaVannoVia) {
  Scrivi(nomi_file::Specie, riga_orata + "\tsenza\r\n" + riga_seppia);
  Leggi_Specie(programma);
  Apri();
  Scegli(2);
  schermo.Text1[specie::Descrizione].testo = "Seppiolina";
  ASSERT_TRUE(Modifica_Voce(programma, schermo));
  ASSERT_THAT(programma.Vet_Specie, SizeIs(2));
  EXPECT_EQ(schermo.List1.scelta, 1);
  EXPECT_EQ(schermo.List1.Scelta(), "22 - Seppiolina");
}

TEST_F(Lista_Specie, EliminareToglieLaRigaDalFileEDallaTabella) {
  Parti_Da({orata, seppia});
  ASSERT_TRUE(Elimina_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Specie), riga_seppia);
  EXPECT_THAT(programma.Vet_Specie, ElementsAre(seppia));
  EXPECT_EQ(Campi(), seppia);
  ASSERT_TRUE(Elimina_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Specie), "");
  EXPECT_THAT(programma.Vet_Specie, IsEmpty());
  EXPECT_EQ(schermo.List1.scelta, -1);
}

TEST_F(Lista_Specie, OgniOrdineRiscriveIlFileESegueLaSpecie) {
  const std::pair<Vista, bool> casi[] = {
      {"Ordina_Alfa", false}, {"Ordina_Latino", false}, {"Ordina_Descrizione", true}, {"Ordina_Iva", true}};
  const auto& ordini = Anagrafica_Specie().ordini;
  ASSERT_THAT(ordini, SizeIs(4));
  for (std::size_t i = 0; i < 4; ++i) {
    const auto& [nome, orata_prima] = casi[i];
    SCOPED_TRACE(nome);
    EXPECT_EQ(ordini[i].nome, nome);
    Parti_Da(orata_prima ? TabellaLista<8>{seppia, orata} : TabellaLista<8>{orata, seppia});
    Scegli(0);
    Ordina_Anagrafica(programma, schermo, i);
    EXPECT_EQ(Contenuto(nomi_file::Specie),
              orata_prima ? riga_orata + riga_seppia : riga_seppia + riga_orata);
    EXPECT_EQ(schermo.List1.scelta, 1);
  }
}

// ---- what a field takes

TEST_F(Lista_Specie, DoppioClickSullAliquotaGiraLeTre) {
  const std::pair<Vista, Vista> casi[] = {{"10", "22"}, {"22", "04"}, {"04", "10"}, {"4", "10"},
                                          {"", "10"},   {"7", "10"},  {"x", "10"}};
  for (const auto& [da, a] : casi) EXPECT_EQ(Prossima_Aliquota(programma, da), a) << da;
  programma.preferenze.Aliquota1 = programma.preferenze.Aliquota2 = 10;
  EXPECT_EQ(Prossima_Aliquota(programma, "10"), "04");
  programma.preferenze.Aliquota3 = 10;
  EXPECT_EQ(Prossima_Aliquota(programma, "10"), "10");
}

TEST_F(Lista_Specie, DoppioClickSullaFamigliaGiraLeQuattro) {
  const std::pair<Vista, Vista> casi[] = {{"Altro", "Crostacei"}, {"Crostacei", "Molluschi"},
                                          {"Molluschi", "Pesci"}, {"Pesci", "Altro"},
                                          {"", "Altro"},          {"Alghe", "Altro"}};
  for (const auto& [da, a] : casi) EXPECT_EQ(Prossima_Famiglia(da), a) << da;
}

TEST_F(Lista_Specie, DoppioClickNeiCampi) {
  Parti_Da({orata});
  for (std::size_t i = 0; i < 8; ++i) Doppio_Clic_Campo(programma, schermo, i);
  EXPECT_EQ(Campi(),
            (Campi_Specie{"22", "Orata", "Sparus aurata", "Altro", "AAAAA", "Orata", "99999", "SBG"}));
}

TEST_F(Lista_Specie, AliquotaECodiciPrendonoSoloCifre) {
  Parti_Da({orata});
  for (std::size_t i = 0; i < 8; ++i) {
    schermo.Text1[i].testo = "a1b,2";
    Cambia_Campo(programma, schermo, i);
  }
  EXPECT_EQ(Campi(), (Campi_Specie{"1,2", "a1b,2", "a1b,2", "a1b,2", "1,2", "a1b,2", "1,2", "a1b,2"}));
}

// ---- searches

TEST_F(Lista_Specie, CercaPerAlfaEPerNomeLatino) {
  Campi_Specie grande = orata;
  grande[specie::Descrizione] = "Orata (Grande)";
  const TabellaLista<8> tabella = {seppia, orata, grande};
  macchina.testi = {"sbg", " SBG ", "sbg", "zzz", std::nullopt, "", "AURATA", "officin", "niente"};
  EXPECT_EQ(Cerca_Codice_Alfa(programma, tabella, 0), 1);
  EXPECT_EQ(Cerca_Codice_Alfa(programma, tabella, 1), 2);
  EXPECT_EQ(Cerca_Codice_Alfa(programma, tabella, 2), 1);  // and round
  EXPECT_EQ(Cerca_Codice_Alfa(programma, tabella, 2), -1);
  EXPECT_EQ(Cerca_Codice_Alfa(programma, tabella, 2), 2);
  EXPECT_EQ(Cerca_Codice_Alfa(programma, tabella, 2), 2);
  EXPECT_EQ(Cerca_Nome_Latino(programma, tabella, -1), 1);
  EXPECT_EQ(Cerca_Nome_Latino(programma, tabella, 1), 0);
  EXPECT_EQ(Cerca_Nome_Latino(programma, tabella, 1), -1);
  EXPECT_THAT(macchina.messaggi, ElementsAre("non trovato", "non tovato"));
  EXPECT_EQ(macchina.domande.front(), "Immettere il codice ALFA");
  EXPECT_EQ(macchina.domande.back(), "Immettere il Nome Latino");
  macchina.testi = {"SBG"};
  EXPECT_EQ(Cerca_Codice_Alfa(programma, {}, -1), -1);
}

TEST_F(Lista_Specie, LaRicercaVaAllaRigaEQuelloCheNonCeLaLasciaDovE) {
  Parti_Da({orata, seppia});
  macchina.testi = {"ctc", "xxx", "sparus"};
  Comando("Cerca_Alfa");
  EXPECT_EQ(schermo.List1.scelta, 1);
  EXPECT_EQ(Campi(), seppia);
  Batti(Senza(seppia, {1}));  // being keyed: a search without a hit leaves the fields alone
  Comando("Cerca_Alfa");
  EXPECT_EQ(schermo.List1.scelta, 1);
  EXPECT_EQ(Campi()[specie::Descrizione], "  ");
  Comando("Cerca_Latino");
  EXPECT_EQ(Campi(), orata);
}

// ---- the official list

class Lista_Ufficiale : public Lista_Specie {
 protected:
  Lista_Ufficiale() {
    programma.Vet_Pelmoro = {
        {"10", "Orata", "Sparus aurata", "Pesci", "00200", "Orata", "200", "SBG"},
        {"10", "Sogliola (Comune)", "Solea solea", "Pesci", "00300", "Sogliola", "300", "SOL"}};
    Apri_Ufficiali(programma, ufficiali);
  }
  SchermoUfficiali ufficiali;
};

TEST_F(Lista_Ufficiale, RigheERicerche) {
  EXPECT_EQ(ufficiali.titolo, "Descrizioni ufficiali - doppio click per copiare");
  ASSERT_EQ(ufficiali.List1.Numero(), 2U);
  EXPECT_TRUE(ufficiali.List1.Riga(1).starts_with("SOL  Sogliola (Comune) "));
  macchina.testi = {"sol", "qqq", "aurata", "mai"};
  Cerca_Ufficiale(programma, ufficiali, true);
  EXPECT_EQ(ufficiali.List1.scelta, 1);
  Cerca_Ufficiale(programma, ufficiali, true);
  EXPECT_EQ(ufficiali.List1.scelta, 1);
  Cerca_Ufficiale(programma, ufficiali, false);
  EXPECT_EQ(ufficiali.List1.scelta, 0);
  Cerca_Ufficiale(programma, ufficiali, false);
  EXPECT_THAT(macchina.messaggi, ElementsAre("non trovato", "non tovato"));
}

TEST_F(Lista_Ufficiale, NeiCampiVuotiVannoISegnapostiDeiCodici) {
  Parti_Da({});
  Batti({"22"});
  ufficiali.List1.scelta = 1;
  macchina.risposte = {true};
  ASSERT_TRUE(Copia_Ufficiale(programma, ufficiali, schermo));
  EXPECT_THAT(macchina.domande,
              ElementsAre("OK per copiare :\nNome personalizzato = Sogliola\nNome latino = Solea solea\n"
                          "Famiglia = Pesci\nNome in fattura = Sogliola\nCodice ALFA SOL"));
  EXPECT_EQ(Campi(),
            (Campi_Specie{"22", "Sogliola", "Solea solea", "Pesci", "BBBBB", "Sogliola", "88888", "SOL"}));
}

TEST_F(Lista_Ufficiale, NomeECodiciDellaDittaRestano) {
  Parti_Da({orata});
  ufficiali.List1.scelta = 1;
  macchina.risposte = {true};
  ASSERT_TRUE(Copia_Ufficiale(programma, ufficiali, schermo));
  EXPECT_THAT(
      macchina.domande,
      ElementsAre("OK per copiare :\nNome personalizzato invariato \nNome latino = Solea solea\n"
                  "Famiglia = Pesci\nNome in fattura = Sogliola\nCodice ALFA SOL\nCodice mercato invariato\n"
                  "Codice numerico invariato"));
  EXPECT_EQ(Campi(), (Campi_Specie{"10", "Orata", "Solea solea", "Pesci", "00001", "Sogliola", "1", "SOL"}));
}

TEST_F(Lista_Ufficiale, AnnullaOSenzaSceltaNonCambiaNulla) {
  Parti_Da({orata});
  ufficiali.List1.scelta = 1;
  macchina.risposte = {false};
  EXPECT_FALSE(Copia_Ufficiale(programma, ufficiali, schermo));
  ufficiali.List1.scelta = -1;
  EXPECT_FALSE(Copia_Ufficiale(programma, ufficiali, schermo));
  EXPECT_EQ(Campi(), orata);
  EXPECT_EQ(Contenuto(nomi_file::Specie), riga_orata);
}

// ---- salva lista Specie

TEST_F(Lista_Specie, SalvaListaSpecieScriveLeColonneTraVirgolette) {
  programma.Vet_Specie = {orata, {"10", "Cal\tamaro d'è"_t}};
  ASSERT_TRUE(Esporta_Specie(programma));
  EXPECT_EQ(Contenuto("Vet_Descrizioni.txt"),
            "\"10\"\t\"Orata\"\t\"Sparus aurata\"\t\"Pesci\"\t\"00001\"\t\"Orata\"\t\"1\"\t\"SBG\"\t\r\n"
            "\"10\"\t\"Calamaro d'è\"\t\"\"\t\"\"\t\"\"\t\"\"\t\"\"\t\"\"\t\r\n"_t);
  EXPECT_THAT(macchina.messaggi,
              ElementsAre("scritto il file:\n" + Testo_Percorso(File("Vet_Descrizioni.txt"))));
  macchina.messaggi.clear();
  Disco_Pieno("Vet_Descrizioni.txt");
  programma.Vet_Specie.pop_back();
  EXPECT_FALSE(Esporta_Specie(programma));
  EXPECT_THAT(macchina.messaggi, ElementsAre(Errore_Su("Vet_Descrizioni.txt")));
}

TEST_F(Lista_Specie, SenzaSpecieSiScriveUnFileVuoto) {
  ASSERT_TRUE(Esporta_Specie(programma));
  EXPECT_EQ(Contenuto("Vet_Descrizioni.txt"), "");
}

TEST_F(Lista_Specie, DiecimilaSpecie) {
  TabellaLista<8> tabella(10000, orata);
  for (std::size_t i = 0; i < tabella.size(); ++i)
    tabella[i][specie::Descrizione] = std::to_string(99999 - i);
  Parti_Da(tabella);
  Ordina_Anagrafica(programma, schermo, 2);
  EXPECT_EQ(schermo.List1.scelta, 9999);
  ASSERT_TRUE(Elimina_Voce(programma, schermo));
  Batti(seppia);
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_EQ(schermo.List1.Numero(), 10000U);
  EXPECT_EQ(schermo.List1.Riga(9999), "22 - Seppia");
  const Testo contenuto = Contenuto(nomi_file::Specie);
  EXPECT_THAT(Righe(contenuto), SizeIs(10000));
}

}  // namespace

#include "core/schermo_preferenze.h"

#include <gmock/gmock.h>

#include "core/schermo_colori.h"
#include "tests/core/ditta_di_prova.h"

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

constexpr Vista RIAVVIARE =
    "Riavviare il programma per rendere effettive le modifiche...\nmodificare manualmente la lista delle "
    "ZonePesca.";

struct Schermo_Aperto : Ditta_Di_Prova {
  SchermoPreferenze schermo;

  explicit Schermo_Aperto(Vista righe = "", char separatore = ',') {
    Metti_Ini("[VELMARA]\r\nnposteggio=07\r\n" + Testo(righe));
    programma.Separatore_Decimale = separatore;
    Leggi_Preferenze(programma);
    Apri_Preferenze(programma, schermo, {"Arial", "Courier New"});
  }
  Testo& Campo(Vista chiave) { return schermo.campi.find(chiave)->second.testo; }
  bool& Segno(Vista chiave) { return schermo.spunte.find(chiave)->second.segnata; }
  Elenco& Lista(Vista chiave) { return schermo.elenchi.find(chiave)->second; }
  void Scegli(Vista chiave, Vista riga) {
    Elenco& elenco = Lista(chiave);
    for (std::size_t i = 0; i < elenco.Numero(); ++i)
      if (elenco.Riga(i) == riga) elenco.scelta = static_cast<int>(i);
    ASSERT_EQ(elenco.Scelta(), riga);
  }
};

std::vector<Testo> Righe_Di(const Elenco& elenco) {
  std::vector<Testo> righe;
  for (std::size_t i = 0; i < elenco.Numero(); ++i) righe.push_back(elenco.Riga(i));
  return righe;
}

TEST(SchermoPreferenze, mostra_i_valori_in_uso) {
  Schermo_Aperto s("FlagAllergeni=-1\r\nPrimaAliquota=10.5\r\nDimFontListe=8.25\r\nFlagStampaFrame=3\r\n");
  EXPECT_EQ(s.Campo("nposteggio"), "07");
  EXPECT_EQ(s.Campo("StringaC"), "Allevato, ");
  EXPECT_EQ(s.Campo("PrimaAliquota"), "10,5") << "with the machine's separator";
  EXPECT_EQ(s.Campo("maxrighesalvate"), "5");
  EXPECT_TRUE(s.Segno("FlagAllergeni"));
  EXPECT_FALSE(s.Segno("FlagMouse"));
  EXPECT_EQ(s.Lista("DimFontListe").Scelta(), "8.25");
  EXPECT_EQ(s.Lista("FlagStampaFrame").Scelta(), "Busta Gra.");
  EXPECT_EQ(s.Lista("FlagFirmaPN").Scelta(), "SI");
  EXPECT_EQ(s.Lista("FlagColonneListaVoci").Scelta(), "NOTA");
  EXPECT_EQ(s.Lista("fonte").Scelta(), "Arial");
}

// The positions of these lists are the values in the file, on which the layouts of the paper depend.
TEST(SchermoPreferenze, righe_degli_elenchi) {
  Schermo_Aperto s;
  EXPECT_THAT(Righe_Di(s.Lista("FlagFirmaPN")), ElementsAre("NO", "SI"));
  EXPECT_THAT(Righe_Di(s.Lista("FlagStampaFrame")), ElementsAre("NO", "tipo 1 (M)", "tipo 2", "Busta Gra.",
                                                                "Busta", "tipo 3 (Z)", "tipo 4 (Colli)"));
  EXPECT_THAT(Righe_Di(s.Lista("FlagStampaFramePN")), ElementsAre("NO", "tipo 1", "tipo 2"));
  EXPECT_THAT(Righe_Di(s.Lista("FlagColonneListaVoci")), ElementsAre("TUTTO", "NOTA", "VENDITA", "DDT"));
  EXPECT_THAT(Righe_Di(s.Lista("DimFont")), ElementsAre("8", "8.25", "9", "9.75", "10", "11", "12"));
  EXPECT_THAT(Righe_Di(s.Lista("fonte")), ElementsAre("Arial", "Courier New"));
}

TEST(SchermoPreferenze, un_valore_fuori_elenco_vi_e_aggiunto_e_resta) {
  Schermo_Aperto s("DimFontListe=14\r\nfonte=Garamond\r\n");
  EXPECT_EQ(s.Lista("DimFontListe").Scelta(), "14");
  EXPECT_EQ(s.Lista("fonte").Scelta(), "Garamond");
  ASSERT_TRUE(Applica_Preferenze(s.programma, s.schermo));
  EXPECT_EQ(s.programma.preferenze.DimFontListe, 14);
  EXPECT_EQ(s.programma.preferenze.fonte, "Garamond");
}

TEST(SchermoPreferenze, didascalie_dei_comandi_e_delle_spunte) {
  Schermo_Aperto s;
  EXPECT_EQ(s.schermo.Applica.testo, "&Applica");
  EXPECT_EQ(s.schermo.Chiudi.testo, "&Chiudi");
  EXPECT_EQ(s.schermo.Predefiniti.testo, "Prede&finiti");
  EXPECT_EQ(s.schermo.Default.testo, "Default");
  EXPECT_EQ(s.schermo.DimensioniDDT.testo, "Dimensioni DDT");
  EXPECT_EQ(s.schermo.Personalizza.testo, "Personalizza");
  EXPECT_FALSE(s.schermo.DimensioniDDT.attivo);
  EXPECT_FALSE(s.schermo.Personalizza.attivo);

  const std::map<Testo, Testo> attese = {
      {"FlagStringaEE", "CEE in fattura"},
      {"Flag_Lear", "Report Lear"},
      {"FlagComponiDDTNuovo", "DocSani Nuovo"},
      {"FlagAllergeni", "Allergeni"},
      {"FlagDSimmediato", "Doc_Sani del Cliente"},
      {"FlagDSimmediatoUR", "Doc_Sani 1R (una riga)"},
      {"FlagNonBloccaMacro", "Non blocca macro"},
      {"FlagRistoranti", "Ristoranti"},
      {"FlagSarvena", "Spese % (nel Conto Vendita)"},
      {"FlagC3pn", "Prima Nota Senza Provenienza"},
      {"FlagLottiAutomatici", "Lotto Automatico"},
      {"FlagCopiaNPinCommento", "Copia Nome Personalizzaro in Commento"},
      {"FlagFatBrenval", "Fatture con Vettore"},
      {"FlagSaldoDaA", "Saldo da...a"},
      {"Flag_fatture_Esteso", "Fatture con tutti i codici"},
      {"FlagAutoSalvataggio", "Salvataggio Automatico ogni ... immissioni"},
      {"FlagBarra", "Barra scorrimento a destra"},
      {"FlagModificaCV", "Modifica Conto Vendita"},
      {"FlagCaselleCV", "Mostra le caselle del Conto Vendita"},
      {"FlagCVManuale", "Numerazione Manuale Conto Vendita"},
      {"FlagAggDDT", "Modifica numero DDT, Doc Sani e Fattura"},
      {"FlagEllisse", "Stampa Ellisse CEEI"},
      {"FlagDetto", "Bottone \"Detto\""},
      {"FlagDataMacro", "Data Macro (Tolvera)"},
      {"FlagTastierino", "Mostra Tastierino Numerico"},
      {"FlagAzzSoloPeso", "Azzera il  Peso"},
      {"FlagAzzCliente", "Azzera l' Acquirente"},
      {"FlagMouse", "Usa prevalentemente Mouse"},
      {"FlagAzzeraPrezzo", "Azzera il  Prezzo"},
      {"FlagFAO", "Zona FAO in ddt"},
      {"FlagSpessoreEllisse", "Grossa"},
      {"FlagNumCVAutomatica", "Num.Automatica Conto Vendita"}};
  std::map<Testo, Testo> mostrate;
  for (const auto& [chiave, spunta] : s.schermo.spunte) mostrate[chiave] = spunta.didascalia;
  EXPECT_EQ(mostrate, attese);
  EXPECT_EQ(s.schermo.spunte.at("FlagTastierino").suggerimento, "Per immissione numeri con mouse");
}

TEST(SchermoPreferenze, senza_cambiare_nulla_Applica_tace_e_scrive_tutto) {
  Schermo_Aperto s("; mia nota\r\nIgnota=1\r\n");
  ASSERT_TRUE(Applica_Preferenze(s.programma, s.schermo));
  EXPECT_THAT(s.macchina.messaggi, IsEmpty());
  EXPECT_THAT(s.Ini(), HasSubstr("; mia nota\r\nIgnota=1\r\n"));
  for (const Impostazione& i : Impostazioni())
    if (i.fra_tutte) {
      EXPECT_THAT(s.Ini(), HasSubstr("\r\n" + i.chiave + "=")) << i.chiave;
    }

  // and what was written reads back as nothing changed
  Leggi_Preferenze(s.programma);
  Apri_Preferenze(s.programma, s.schermo, {"Arial"});
  ASSERT_TRUE(Applica_Preferenze(s.programma, s.schermo));
  EXPECT_THAT(s.macchina.messaggi, IsEmpty());
}

TEST(SchermoPreferenze, ogni_spunta_e_ogni_elenco_arriva_nel_file_e_torna) {
  Schermo_Aperto s;
  for (auto& [chiave, spunta] : s.schermo.spunte) spunta.segnata = !spunta.segnata;
  for (auto& [chiave, elenco] : s.schermo.elenchi) elenco.scelta = 0;
  for (const Vista campo :
       {"nposteggio", "StringaCEE", "PrimaAliquota", "SecondaAliquota", "TerzaAliquota", "DASU3", "BORDO3",
        "maxrighesalvate", "IBANCommissionario1", "IBANCommissionario2"})
    s.Campo(campo) = "33";
  ASSERT_TRUE(Applica_Preferenze(s.programma, s.schermo));

  SchermoPreferenze dopo;
  Leggi_Preferenze(s.programma);
  Apri_Preferenze(s.programma, dopo, {"Arial"});
  for (const auto& [chiave, spunta] : dopo.spunte) EXPECT_EQ(spunta.segnata, s.Segno(chiave)) << chiave;
  for (const auto& [chiave, elenco] : dopo.elenchi)
    EXPECT_EQ(elenco.Scelta(), s.Lista(chiave).Scelta()) << chiave;
  for (const auto& [chiave, campo] : dopo.campi) EXPECT_EQ(campo.testo, s.Campo(chiave)) << chiave;
}

TEST(SchermoPreferenze, le_diciture_cambiate_chiedono_il_riavvio) {
  for (const Vista dicitura : {"StringaB", "StringaC"}) {
    Schermo_Aperto s;
    s.Campo(dicitura) = "Pescato, ";
    ASSERT_TRUE(Applica_Preferenze(s.programma, s.schermo));
    EXPECT_THAT(s.macchina.messaggi, ElementsAre(RIAVVIARE)) << dicitura;
    EXPECT_EQ(s.Campo(dicitura), "Pescato, ") << "the blank before the zone stays";
    ASSERT_TRUE(Applica_Preferenze(s.programma, s.schermo));
    EXPECT_EQ(s.macchina.messaggi.size(), 1u) << "told once";
  }
}

TEST(SchermoPreferenze, aliquote_con_l_uno_o_l_altro_separatore) {
  struct {
    char separatore;
    Testo scritta, mostrata;
    double vale;
  } const casi[] = {{'.', "10,5", "10.5", 10.5}, {'.', "10.5", "10.5", 10.5}, {',', "10.5", "10,5", 10.5},
                    {',', "10,5", "10,5", 10.5}, {',', "dieci", "10", 10},    {',', "", "10", 10},
                    {',', "1,2,3", "10", 10},    {',', " 8 ", "8", 8}};
  for (const auto& [separatore, scritta, mostrata, vale] : casi) {
    Schermo_Aperto s("", separatore);
    s.Campo("PrimaAliquota") = scritta;
    ASSERT_TRUE(Applica_Preferenze(s.programma, s.schermo));
    EXPECT_EQ(s.programma.preferenze.Aliquota1, vale) << scritta;
    EXPECT_EQ(s.Campo("PrimaAliquota"), mostrata) << scritta;
  }
  Schermo_Aperto s("SecondaAliquota=20\r\nTerzaAliquota=5\r\n");
  s.Campo("SecondaAliquota") = "venti";
  s.Campo("TerzaAliquota") = "?";
  ASSERT_TRUE(Applica_Preferenze(s.programma, s.schermo));
  EXPECT_EQ(s.programma.preferenze.Aliquota2, 22);
  EXPECT_EQ(s.programma.preferenze.Aliquota3, 4);
  EXPECT_THAT(s.Ini(), HasSubstr("SecondaAliquota=22\r\n"));
}

TEST(SchermoPreferenze, margini_e_righe_fra_due_salvataggi) {
  Schermo_Aperto s;
  s.Campo("DASU3") = "6.9";
  s.Campo("BORDO3") = "molto";
  s.Campo("maxrighesalvate") = "0";
  ASSERT_TRUE(Applica_Preferenze(s.programma, s.schermo));
  EXPECT_EQ(s.programma.preferenze.DASU3, 6);
  EXPECT_EQ(s.programma.preferenze.BORDO3, 0);
  EXPECT_EQ(s.programma.preferenze.maxrighesalvate, 10);
  EXPECT_EQ(s.Campo("maxrighesalvate"), "10");
  for (const Vista meno_di_uno : {"-3", "", "x"}) {
    s.Campo("maxrighesalvate") = meno_di_uno;
    ASSERT_TRUE(Applica_Preferenze(s.programma, s.schermo));
    EXPECT_EQ(s.programma.preferenze.maxrighesalvate, 10) << meno_di_uno;
  }
  s.Campo("maxrighesalvate") = "1";
  ASSERT_TRUE(Applica_Preferenze(s.programma, s.schermo));
  EXPECT_EQ(s.programma.preferenze.maxrighesalvate, 1);
}

TEST(SchermoPreferenze, il_posteggio_non_si_puo_togliere) {
  for (const Vista vuoto : {"", "  ", "0", "banco"}) {
    Schermo_Aperto s;
    s.Campo("nposteggio") = vuoto;
    ASSERT_TRUE(Applica_Preferenze(s.programma, s.schermo));
    EXPECT_EQ(s.Campo("nposteggio"), "07");
    EXPECT_THAT(s.Ini(), HasSubstr("nposteggio=07\r\n"));
  }
}

TEST(SchermoPreferenze, la_larghezza_dell_immissione_segue_la_barra_solo_se_e_aperta) {
  Schermo_Aperto s;
  std::vector<bool> viste;
  s.schermo.larghezza_edita = [&] { viste.push_back(s.programma.preferenze.FlagBarra); };
  s.Segno("FlagBarra") = false;
  ASSERT_TRUE(Applica_Preferenze(s.programma, s.schermo));
  EXPECT_THAT(viste, IsEmpty());
  s.programma.Edita_Aperta = true;
  ASSERT_TRUE(Applica_Preferenze(s.programma, s.schermo));
  EXPECT_THAT(viste, ElementsAre(false));
}

TEST(SchermoPreferenze, una_scrittura_mancata_e_detta_e_le_immissioni_restano) {
  Schermo_Aperto s;
  const Testo prima = s.Ini();
  s.Campo("StringaC") = "Pescato";
  s.Campo("PrimaAliquota") = "5";
  s.Segno("FlagAllergeni") = true;
  s.Disco_Pieno();
  EXPECT_FALSE(Applica_Preferenze(s.programma, s.schermo));
  EXPECT_THAT(s.macchina.messaggi, ElementsAre(RIAVVIARE, HasSubstr("Le preferenze non sono state salvate")))
      << "in this order";
  EXPECT_EQ(s.Campo("PrimaAliquota"), "5");
  EXPECT_TRUE(s.Segno("FlagAllergeni"));
  EXPECT_EQ(s.programma.preferenze.Aliquota1, 10);
  EXPECT_FALSE(s.programma.preferenze.FlagAllergeni);
  EXPECT_EQ(s.Ini(), prima);

  s.programma.disco.guasto = nullptr;
  EXPECT_TRUE(Applica_Preferenze(s.programma, s.schermo));
  EXPECT_EQ(s.programma.preferenze.Aliquota1, 5);
  EXPECT_THAT(s.Ini(), HasSubstr("StringaC=Pescato\r\n"));
}

TEST(SchermoPreferenze, Predefiniti_riempie_i_campi_e_non_scrive) {
  Schermo_Aperto s(
      "DASU3=9\r\nBORDO3=9\r\nfonte=Courier New\r\nStringaB=x\r\nStringaC=y\r\nStringaCEE=z\r\n"
      "PrimaAliquota=1\r\nSecondaAliquota=2\r\nTerzaAliquota=3\r\nDimFont=8\r\nFlagAllergeni=-1\r\n");
  s.Scegli("FlagColonneListaVoci", "DDT");
  const Testo prima = s.Ini();
  Riempi_Predefiniti(s.schermo);
  EXPECT_EQ(s.Campo("DASU3"), "0");
  EXPECT_EQ(s.Campo("BORDO3"), "0");
  EXPECT_EQ(s.Lista("fonte").Scelta(), "Arial");
  EXPECT_EQ(s.Campo("StringaB"), "Prodotto della Pesca in Acque Dolci, ");
  EXPECT_EQ(s.Campo("StringaC"), "Allevato, ");
  EXPECT_EQ(s.Campo("StringaCEE"), "CEE IT 940/");
  EXPECT_EQ(s.Campo("PrimaAliquota"), "10");
  EXPECT_EQ(s.Campo("SecondaAliquota"), "22");
  EXPECT_EQ(s.Campo("TerzaAliquota"), "3") << "not among them";
  EXPECT_EQ(s.Lista("DimFontListe").Scelta(), "8.25");
  EXPECT_EQ(s.Lista("DimFontEdita").Scelta(), "8.25");
  EXPECT_EQ(s.Lista("DimFont").Scelta(), "11");
  EXPECT_EQ(s.Lista("FlagColonneListaVoci").Scelta(), "NOTA");
  EXPECT_TRUE(s.Segno("FlagAllergeni"));
  EXPECT_EQ(s.Ini(), prima);
  EXPECT_EQ(s.programma.preferenze.StringaCEE, "z");

  ASSERT_TRUE(Applica_Preferenze(s.programma, s.schermo));
  EXPECT_EQ(s.programma.preferenze.StringaCEE, "CEE IT 940/");
  EXPECT_EQ(s.programma.preferenze.DimFontListe, 8.25);
}

TEST(SchermoPreferenze, dice_che_ha_salvato_finche_nulla_cambia) {
  Schermo_Aperto s;
  EXPECT_EQ(s.schermo.Esito.testo, "");
  Applica_Preferenze(s.programma, s.schermo);
  EXPECT_EQ(s.schermo.Esito.testo, "Preferenze salvate.");
  Riempi_Predefiniti(s.schermo);
  EXPECT_EQ(s.schermo.Esito.testo, "");
  Applica_Preferenze(s.programma, s.schermo);
  Tocca_Preferenze(s.schermo);
  EXPECT_EQ(s.schermo.Esito.testo, "");
  Applica_Preferenze(s.programma, s.schermo);
  s.Disco_Pieno();
  s.Segno("FlagMouse") = true;
  Applica_Preferenze(s.programma, s.schermo);
  EXPECT_EQ(s.schermo.Esito.testo, "");
}

TEST(SchermoPreferenze, Default_rimette_solo_la_fonte) {
  Schermo_Aperto s("fonte=Courier New\r\nDASU3=9\r\n");
  Fonte_Predefinita(s.schermo);
  EXPECT_EQ(s.Lista("fonte").Scelta(), "Arial");
  EXPECT_EQ(s.Campo("DASU3"), "9");
}

// DimDDT stores the health mark too: an old text kept here would go back into the file with "&Applica".
TEST(SchermoPreferenze, quanto_un_altro_schermo_ha_salvato_si_vede) {
  Schermo_Aperto s("StringaCEE=CEE IT 1\r\n");
  s.schermo.dimensioni_ddt = [&] { s.programma.preferenze.StringaCEE = "CEE IT 2"; };
  Apri_Preferenze(s.programma, s.schermo, {"Arial"});
  EXPECT_TRUE(s.schermo.DimensioniDDT.attivo);
  EXPECT_FALSE(s.schermo.Personalizza.attivo);
  s.Campo("PrimaAliquota") = "11";
  Apri_Altro_Schermo(s.programma, s.schermo, s.schermo.dimensioni_ddt);
  EXPECT_EQ(s.Campo("StringaCEE"), "CEE IT 2");
  EXPECT_EQ(s.Campo("PrimaAliquota"), "11") << "what was keyed here stays";
  EXPECT_TRUE(Applica_Preferenze(s.programma, s.schermo));
  EXPECT_EQ(s.programma.preferenze.StringaCEE, "CEE IT 2");
  EXPECT_EQ(s.programma.preferenze.Aliquota1, 11);
}

TEST(SchermoColori, mostra_sceglie_e_salva) {
  Schermo_Aperto s("ColoreTesto=3\r\nColore1=10\r\n");
  SchermoColori colori;
  Apri_Colori(s.programma, colori);
  EXPECT_TRUE(colori.ColoreTesto[2].segnata);
  EXPECT_EQ(colori.Colore1.valore, 10);
  EXPECT_EQ(colori.Colore2.valore, 125);
  EXPECT_EQ(colori.Colore3.massimo, 255);
  EXPECT_EQ(colori.Normale.testo, "testo normale");
  EXPECT_EQ(colori.Selezionato.testo, "testo selezionato");
  EXPECT_EQ(colori.Normale.inchiostro, (Colore{0, 0, 255}));
  EXPECT_EQ(colori.Normale.fondo, (Colore{10, 125, 125}));

  Scegli_Inchiostro(colori, 4);
  colori.Colore2.valore = 0;
  Rinfresca_Campioni(colori);
  EXPECT_FALSE(colori.ColoreTesto[2].segnata);
  EXPECT_EQ(colori.Normale.inchiostro, (Colore{255, 255, 0}));
  EXPECT_EQ(colori.Normale.fondo, (Colore{10, 0, 125}));
  EXPECT_EQ(colori.Selezionato.fondo, colori.Normale.inchiostro);
  EXPECT_THAT(s.Ini(), HasSubstr("ColoreTesto=3")) << "nothing is stored before the command";

  EXPECT_TRUE(Applica_Colori(s.programma, colori));
  for (const Vista riga : {"ColoreTesto=4", "Colore1=10", "Colore2=0", "Colore3=125"})
    EXPECT_THAT(s.Ini(), HasSubstr("\r\n" + Testo(riga) + "\r\n"));
  EXPECT_EQ(s.programma.preferenze.ColoreTesto, 4);
}

TEST(SchermoColori, una_scrittura_mancata_e_detta_e_nulla_cambia) {
  Schermo_Aperto s;
  SchermoColori colori;
  Apri_Colori(s.programma, colori);
  Scegli_Inchiostro(colori, 1);
  s.Disco_Pieno();
  EXPECT_FALSE(Applica_Colori(s.programma, colori));
  EXPECT_THAT(s.macchina.messaggi, ElementsAre(HasSubstr("I colori non sono stati salvati")));
  EXPECT_EQ(s.programma.preferenze.ColoreTesto, 2);
  EXPECT_TRUE(colori.ColoreTesto[0].segnata);
}

TEST(SchermoColori, inchiostri) {
  EXPECT_EQ(Colore_Inchiostro(1), (Colore{255, 255, 255}));
  EXPECT_EQ(Colore_Inchiostro(2), (Colore{0, 0, 0}));
  EXPECT_EQ(Colore_Inchiostro(3), (Colore{0, 0, 255}));
  EXPECT_EQ(Colore_Inchiostro(4), (Colore{255, 255, 0}));
  EXPECT_EQ(Colore_Inchiostro(77), (Colore{0, 0, 0}));
}

}  // namespace

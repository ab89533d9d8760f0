#include "core/preferenze.h"

#include <gmock/gmock.h>
#include <set>

#include "core/ini.h"
#include "core/numeri.h"
#include "tests/core/ditta_di_prova.h"

using namespace std::string_view_literals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

constexpr Vista TESTA = "[VELMARA]\r\nnposteggio=07\r\n";  // with a stall number nothing is asked

Preferenze Letta(Ditta_Di_Prova& ditta, Vista righe) {
  ditta.Metti_Ini(Testo(TESTA) + Testo(righe));
  Leggi_Preferenze(ditta.programma);
  return ditta.programma.preferenze;
}

Testo Come_Letto(Vista chiave, Vista valore) {
  Ditta_Di_Prova ditta;
  const Preferenze preferenze = Letta(ditta, Testo(chiave) + "=" + Testo(valore) + "\r\n");
  return Valore_Scritto(*Trova_Impostazione(chiave), preferenze);
}

struct Caso {
  Testo chiave, letto, vale;
};
void PrintTo(const Caso& caso, std::ostream* uscita) { *uscita << caso.chiave << "=" << caso.letto; }

class Chiave_Letta : public ::testing::TestWithParam<Caso> {};

TEST_P(Chiave_Letta, vale) {
  const auto& [chiave, letto, vale] = GetParam();
  EXPECT_EQ(Come_Letto(chiave, letto), vale);
}

INSTANTIATE_TEST_SUITE_P(
    testi, Chiave_Letta,
    ::testing::Values(Caso{"sep_exp", "TAB", "TAB"}, Caso{"sep_exp", "T", "TAB"}, Caso{"sep_exp", "|", ";"},
                      Caso{"sep_exp", ";", ";"}, Caso{"sep_exp", "", ";"},
                      Caso{"StringaB", "   ", "Prodotto della Pesca in Acque Dolci, "},
                      Caso{"StringaC", "", "Allevato, "}, Caso{"StringaC", "Allevato,", "Allevato, "},
                      Caso{"StringaC", "Di allevamento", "Di allevamento"}, Caso{"fonte", "  ", "Arial"},
                      Caso{"fonte", Testo(70, 'f'), Testo(64, 'f')}, Caso{"CittaCV", " ", "Venezia"},
                      Caso{"CittaCV", "Chioggia", "Chioggia"}, Caso{"CittaVC", "Mestre", "Mestre"},
                      Caso{"CittaVC", " ", "Venezia"}, Caso{"TitoloBolla", "", ""},
                      Caso{"StringaCEE", Testo(200, 'c'), Testo(128, 'c')},
                      Caso{"IBANCommissionario1", "   IT60X   ", "IT60X"},
                      Caso{"Testo_Fattura_Gra_3", "una = due ; tre", "una = due ; tre"},
                      Caso{"DS_intesta6", "perch\xE9 \x80 \x81", "perch\xE9 \x80 \x81"},
                      Caso{"FlagColonneListaVoci", "", "NOTA"}, Caso{"DimFontEtichetta", "9.75", "9.75"}));

INSTANTIATE_TEST_SUITE_P(
    numeri, Chiave_Letta,
    ::testing::Values(
        Caso{"DimFontListe", "20", "14"}, Caso{"DimFontListe", "7", "8"},
        Caso{"DimFontListe", "8.25", "8.25"}, Caso{"DimFontListe", "9,75", "9.75"},
        Caso{"DimFontEdita", "99", "14"}, Caso{"DimFontEdita", "-1", "8"}, Caso{"DimFont", "0", "8.25"},
        Caso{"DimFont", "-3", "8.25"}, Caso{"DimFont", "24", "24"}, Caso{"PrimaAliquota", "10,5", "10.5"},
        Caso{"PrimaAliquota", "10.5", "10.5"}, Caso{"SecondaAliquota", "ventidue", "22"},
        Caso{"TerzaAliquota", "5%", "5"}, Caso{"maxrighesalvate", "12abc", "12"},
        Caso{"maxrighesalvate", "abc", "5"}, Caso{"maxrighesalvate", "0", "0"},
        Caso{"maxrighesalvate", "-", "5"}, Caso{"maxrighesalvate", "99999999999999", "2147483647"},
        Caso{"DASU3", " 6 mm", "6"}, Caso{"BORDO3", "-5", "-5"}, Caso{"Colore1", "300", "255"},
        Caso{"Colore2", "-1", "0"}, Caso{"Colore3", "x", "125"}, Caso{"ColoreTesto", "4", "4"},
        Caso{"ColoreTesto", "9", "2"}, Caso{"ColoreTesto", "0", "2"}, Caso{"FlagStampaFrame", "6", "6"},
        Caso{"FlagStampaFrame", "7", "0"}, Caso{"FlagStampaFramePN", "-1", "1"},
        Caso{"FlagStampaFramePN", "2", "2"}, Caso{"FlagFirmaPN", "-1", "1"}, Caso{"FlagFirmaPN", "0", "0"},
        Caso{"Flag7", "-1", "1"}, Caso{"Flag7", "0", "0"}, Caso{"flagSortOrder", "3", "0"},
        Caso{"flagSortOrder", "2", "2"}));

INSTANTIATE_TEST_SUITE_P(flag, Chiave_Letta,
                         ::testing::Values(Caso{"FlagAllergeni", "-1", "-1"},
                                           Caso{"FlagAllergeni", "1", "-1"}, Caso{"FlagAllergeni", "2", "-1"},
                                           Caso{"FlagAllergeni", "0", "0"}, Caso{"FlagBarra", "0", "0"},
                                           Caso{"FlagBarra", "", "-1"}, Caso{"FlagBarra", "vero", "-1"},
                                           Caso{"flagallergeni", "1", "-1"},
                                           Caso{"FlagPersonalizzatacompleta", "-1", "-1"}));

TEST(Preferenze, senza_file_valgono_i_predefiniti_e_la_macchina_e_chiesta_solo_del_posteggio) {
  Ditta_Di_Prova ditta;
  ditta.macchina.testi = {"01"};
  Leggi_Preferenze(ditta.programma);
  const Preferenze& p = ditta.programma.preferenze;
  EXPECT_EQ(p.StringaCEE, "CEE IT 940");
  EXPECT_EQ(p.Codice_Commissionario, "0");
  EXPECT_EQ(p.PercentualeAggioBanca, "1");
  EXPECT_EQ(p.PiedePaginaBolla1, "assolve gli obblighi di cui all'Art. 62 comma 1 del D.L.24 gennaio 2012");
  EXPECT_EQ(p.PiedePaginaBolla2, "n. 1 convertito con modificazioni dalla Legge 24 marzo 2012 n\xB0 27");
  EXPECT_EQ(p.TitoloBolla, "DOCUMENTO sulla TRACCIABILITA' dei PRODOTTI ITTICI");
  EXPECT_EQ(p.CittaCV, "Venezia");
  EXPECT_EQ(p.fonte, "Arial");
  EXPECT_EQ(p.sep_exp, ';');
  EXPECT_EQ(p.Causale, "Vendita");
  EXPECT_EQ(p.SpeseIVA, "22%");
  EXPECT_EQ(p.Vettore[2], "-");
  EXPECT_EQ(p.FlagFirmaPN, 1) << "the default -1 prints the signature";
  EXPECT_TRUE(ditta.macchina.messaggi.empty());
}

// The invoice's legal wording, letter by letter: it goes to the customers.
TEST(Preferenze, sei_righe_del_piede_della_fattura) {
  EXPECT_THAT(
      std::vector<Testo>(Righe_Piede_Fattura().begin(), Righe_Piede_Fattura().end()),
      ElementsAre(
          "La merce viaggia a rischio e pericolo del committente anche se venduta franco destinazione.",
          "Non si accettano reclami se non al momento della consegna. Non si accettano pagamenti se non "
          "effettuati ",
          "direttamente alla Ditta in intestazione. Per qualsiasi controversia \xE8 competente il Foro di "
          "Venezia. ",
          "Contributo CONAI assolto ove dovuto. Assolve gli Obblighi di cui all'art.62, comma1. del D.L. "
          "24/01/2012, n. 1 ",
          "convertito con modificazioni della legge 24 marzo 2012, n. 27. Prezzo concordato giornalmente.",
          "Durata del contratto: limitata solo alla presente consegna."));
}

TEST(Preferenze, le_righe_riscritte_stanno_subito_nel_file) {
  Ditta_Di_Prova ditta;
  const Preferenze p = Letta(ditta, "Testo_Fattura_1=    \r\nTesto_Fattura_2=Mia riga\r\n");
  EXPECT_EQ(p.Testo_Fattura[0], Righe_Piede_Fattura()[0]);
  EXPECT_EQ(p.Testo_Fattura[1], "Mia riga");
  const Testo ini = ditta.Ini();
  EXPECT_THAT(ini, HasSubstr("Testo_Fattura_1=" + Righe_Piede_Fattura()[0] + "\r\n"));
  EXPECT_THAT(ini, HasSubstr("Testo_Fattura_2=Mia riga\r\n"));
  EXPECT_THAT(ini, HasSubstr("Testo_ContoVendita=\r\n"));
  EXPECT_THAT(ini, HasSubstr("Testo_Fattura_Completa_6=" + Righe_Piede_Fattura()[5] + "\r\n"));
  EXPECT_THAT(ini, Not(HasSubstr("Testo_Fattura_Gra"))) << "these stay empty and unwritten";
  EXPECT_THAT(ini, Not(HasSubstr("StringaB"))) << "falls back without a write";

  Leggi_Preferenze(ditta.programma);
  EXPECT_EQ(ditta.Ini(), ini);
  EXPECT_EQ(ditta.programma.preferenze.Testo_Fattura[3], Righe_Piede_Fattura()[3])
      << "the blank at the end is back though the file doesn't keep it";
}

TEST(Preferenze, CittaVC_vince_su_CittaCV_ma_non_quando_e_vuota) {
  Ditta_Di_Prova ditta;
  EXPECT_EQ(Letta(ditta, "CittaVC=Mestre\r\nCittaCV=Chioggia\r\n").CittaCV, "Mestre");
  EXPECT_EQ(Letta(ditta, "CittaVC=\r\nCittaCV=Chioggia\r\n").CittaCV, "Chioggia");
  EXPECT_EQ(Letta(ditta, "").CittaCV, "Venezia");
}

TEST(Preferenze, di_due_chiavi_uguali_conta_la_prima) {
  Ditta_Di_Prova ditta;
  EXPECT_EQ(Letta(ditta, "fonte=Prima\r\nFONTE=Seconda\r\n[ALTRA]\r\nStringaCEE=x\r\n").fonte, "Prima");
  EXPECT_EQ(ditta.programma.preferenze.StringaCEE, "CEE IT 940") << "another section isn't ours";
}

// What the program uses before the settings are read, and what a missing file gives, must be one and the
// same.
TEST(Preferenze, ogni_chiave_ha_il_suo_predefinito_una_volta_sola) {
  std::set<Testo> chiavi;
  const Preferenze predefinite = Preferenze_Predefinite();
  for (const Impostazione& i : Impostazioni()) {
    EXPECT_TRUE(chiavi.insert(Minuscolo(i.chiave)).second) << i.chiave;
    const bool testuale = std::holds_alternative<Testo Preferenze::*>(i.posto) ||
                          std::holds_alternative<Elemento<6>>(i.posto) ||
                          std::holds_alternative<Elemento<3>>(i.posto);
    if (!testuale) {
      EXPECT_EQ(Valore_Scritto(i, Preferenze{}), Valore_Scritto(i, predefinite)) << i.chiave;
    }
    const Testo atteso = i.chiave == "CittaVC" ? "Venezia" : i.chiave == "FlagFirmaPN" ? "1" : i.predefinito;
    EXPECT_EQ(Valore_Scritto(i, predefinite), atteso) << i.chiave;
  }
  EXPECT_EQ(chiavi.size(), 140u);
}

// Every key goes out to the file and comes back, with a value that isn't its default.
TEST(Preferenze, andata_e_ritorno_di_tutte_le_chiavi) {
  Ditta_Di_Prova ditta;
  ditta.Metti_Ini(TESTA);
  Leggi_Preferenze(ditta.programma);
  Preferenze& p = ditta.programma.preferenze;
  for (const Impostazione& i : Impostazioni()) {
    if (std::holds_alternative<bool Preferenze::*>(i.posto)) {
      Prendi_Valore(i, p, i.predefinito == "0" ? "-1" : "0");
    } else if (i.limiti) {
      Prendi_Valore(i, p, i.limiti->minimo == 8 ? "9.75" : "1");
    } else if (i.chiave == "sep_exp") {
      Prendi_Valore(i, p, "TAB");
    } else {
      Prendi_Valore(i, p, i.chiave.starts_with("Citta") ? "Chioggia" : "3 \xE0\x80 " + i.chiave);
    }
  }
  std::vector<Testo> scritti;
  for (const Impostazione& i : Impostazioni()) scritti.push_back(Valore_Scritto(i, p));
  ASSERT_TRUE(Scrivi_Preferenze(ditta.programma));
  p = {};
  Leggi_Preferenze(ditta.programma);
  std::size_t k = 0;
  for (const Impostazione& i : Impostazioni()) EXPECT_EQ(Valore_Scritto(i, p), scritti[k++]) << i.chiave;
}

TEST(Preferenze, scrivere_tutte_le_chiavi_lascia_CittaVC_alle_sue_schermate) {
  Ditta_Di_Prova ditta;
  Letta(ditta, "CittaCV=Chioggia\r\n");
  ASSERT_TRUE(Scrivi_Preferenze(ditta.programma));
  EXPECT_THAT(ditta.Ini(), HasSubstr("CittaCV=Chioggia\r\n"));
  EXPECT_THAT(ditta.Ini(), Not(HasSubstr("CittaVC")));
  for (const Impostazione& i : Impostazioni())
    if (i.fra_tutte) {
      EXPECT_THAT(ditta.Ini(), HasSubstr("\r\n" + i.chiave + "=")) << i.chiave;
    }
}

TEST(Preferenze, flag_e_decimali_come_stanno_nel_file) {
  Ditta_Di_Prova ditta;
  Letta(ditta, "");
  Preferenze& p = ditta.programma.preferenze;
  p.FlagAllergeni = true;
  p.FlagBarra = false;
  p.DimFont = 8.25;
  p.sep_exp = TAB;
  ASSERT_TRUE(Scrivi_Preferenze(ditta.programma));
  for (const Vista riga : {"FlagAllergeni=-1", "FlagBarra=0", "DimFont=8.25", "sep_exp=TAB", "Flag7=1"})
    EXPECT_THAT(ditta.Ini(), HasSubstr("\r\n" + Testo(riga) + "\r\n"));
}

TEST(Preferenze, scrivere_una_chiave_lascia_ogni_altro_byte) {
  struct {
    Testo prima, dopo;
  } const casi[] = {
      {"", "[VELMARA]\r\nfonte=Courier New\r\n"},
      {"[VELMARA]\r\n", "[VELMARA]\r\nfonte=Courier New\r\n"},
      {"[VELMARA]", "[VELMARA]\r\nfonte=Courier New\r\n"},
      {"; nota\r\n\r\n[Altra]\r\nfonte = x\r\n[ velmara ] ; qui\r\n  sconosciuta = 1 "
       "\r\nrobaccia\r\n\r\n[Fine]\r\nz=1",
       "; nota\r\n\r\n[Altra]\r\nfonte = x\r\n[ velmara ] ; qui\r\n  sconosciuta = 1 "
       "\r\nrobaccia\r\nfonte=Courier "
       "New\r\n\r\n[Fine]\r\nz=1"},
      {"[VELMARA]\r\n FONTE = Arial \r\nfonte=due\r\n#c\r\nalto=\x81\x80\r\n",
       "[VELMARA]\r\nFONTE=Courier New\r\nfonte=due\r\n#c\r\nalto=\x81\x80\r\n"},
      {"[VELMARA]\na=1\nfonte=x\nb=2\n", "[VELMARA]\na=1\nfonte=Courier New\r\nb=2\n"},
      {"[ALTRA]\r\na=1", "[ALTRA]\r\na=1\r\n[VELMARA]\r\nfonte=Courier New\r\n"},
      {"\xEF\xBB\xBF[VELMARA]\r\nfonte=x\r\n", "\xEF\xBB\xBF[VELMARA]\r\nfonte=Courier New\r\n"},
      {"[VELMARA]\r\nfonte=x", "[VELMARA]\r\nfonte=Courier New\r\n"},
  };
  for (const auto& [prima, dopo] : casi) {
    Ditta_Di_Prova ditta;
    ditta.Metti_Ini(prima);
    EXPECT_TRUE(Scrivi_Chiave(ditta.programma, "fonte", "Courier New"));
    EXPECT_EQ(ditta.Ini(), dopo);
    EXPECT_EQ(Leggi_Ini(ditta.Ini(), Sezione_Ini)["fonte"], "Courier New");
  }
}

TEST(Preferenze, un_valore_non_rompe_la_sua_riga) {
  Ditta_Di_Prova ditta;
  ASSERT_TRUE(Scrivi_Chiave(ditta.programma, "Causale", "a\r\nfonte=b\tc\0d"sv));
  EXPECT_EQ(ditta.Ini(), "[VELMARA]\r\nCausale=afonte=bcd\r\n");
}

Testo Senza_Senso(unsigned seme) {
  constexpr Vista pezzi[] = {
      "[",  "]",     "VELMARA", "=",   ";",           "#",         "\r",           "\n",       "\r\n", " ",
      "\t", "fonte", "\"",      "<<<", "[VELMARA]\n", "fonte=1\n", "\xEF\xBB\xBF", "\xFF\xFE", "a"};
  Testo testo;
  for (int i = 0; i < 60; ++i) {
    seme = seme * 1664525u + 1013904223u;
    const unsigned scelta = (seme >> 16U) % (std::size(pezzi) + 1);
    if (scelta == std::size(pezzi))
      testo += '\0';
    else
      testo += pezzi[scelta];
  }
  return testo;
}

// A settings file out of a broken stick must neither stop the program nor lose what is written next.
TEST(Preferenze, qualunque_file_si_legge_e_dopo_la_scrittura_rende_il_valore) {
  std::vector<Testo> file = {Testo(1, '\0'),
                             "[",
                             "]",
                             "=",
                             "[]",
                             "[VELMARA",
                             "\xEF\xBB\xBF",
                             Testo(2'000'000, 'x'),
                             "[VELMARA]\r\nfonte=" + Testo(2'000'000, 'y'),
                             "[VELMARA]\r\n" + Testo(500'000, '\n'),
                             Testo("[VELMARA]\0\r\nfonte\0=x\r\n"sv)};
  Testo binario;
  for (int i = 0; i < 4096; ++i) binario += static_cast<char>(i * 37 % 256);
  file.push_back(binario);
  for (unsigned seme = 1; seme <= 400; ++seme) file.push_back(Senza_Senso(seme));

  for (const Testo& contenuto : file) {
    const Testo scritto = Scrivi_Ini(contenuto, Sezione_Ini, {{"fonte", "Mia"}, {"Nuova", "1"}});
    const Valori_Ini valori = Leggi_Ini(scritto, Sezione_Ini);
    ASSERT_EQ(valori.at("fonte"), "Mia") << ::testing::PrintToString(Sinistra(contenuto, 400));
    ASSERT_EQ(valori.at("Nuova"), "1") << ::testing::PrintToString(Sinistra(contenuto, 400));
  }
  Ditta_Di_Prova ditta;
  ditta.macchina.testi = {"3"};
  ditta.Metti_Ini(binario);
  Leggi_Preferenze(ditta.programma);
  EXPECT_EQ(ditta.programma.preferenze.fonte, "Arial");
}

TEST(Preferenze, marca_utf8_e_NUL_non_nascondono_le_chiavi) {
  Ditta_Di_Prova ditta;
  ditta.Metti_Ini("\xEF\xBB\xBF[VELMARA]\r\nnposteggio=07\r\n\0\r\nfonte=Mia\r\n"sv);
  Leggi_Preferenze(ditta.programma);
  EXPECT_EQ(ditta.programma.preferenze.fonte, "Mia");
}

TEST(Preferenze, una_scrittura_mancata_e_detta_a_chi_la_chiede_e_il_file_resta) {
  Ditta_Di_Prova ditta;
  Letta(ditta, "fonte=Mia\r\n");
  const Testo prima = ditta.Ini();
  ditta.Disco_Pieno();
  ditta.programma.preferenze.fonte = "Altra";
  EXPECT_FALSE(Scrivi_Chiave(ditta.programma, "fonte", "Altra"));
  EXPECT_FALSE(Scrivi_Preferenze(ditta.programma));
  EXPECT_FALSE(Scrivi_Preferenze(ditta.programma, {"fonte"}));
  EXPECT_EQ(ditta.Ini(), prima);
}

// Else one key written over a folder in the file's place, or over a file without rights, would lose the rest.
TEST(Preferenze, un_file_che_non_si_legge_non_viene_sostituito) {
  Ditta_Di_Prova ditta;
  std::filesystem::create_directory(ditta.programma.File_Ini);
  ditta.macchina.testi = {"5"};
  Leggi_Preferenze(ditta.programma);
  EXPECT_EQ(ditta.programma.preferenze.Numero_Posteggio, "5");
  EXPECT_FALSE(Scrivi_Chiave(ditta.programma, "fonte", "Mia"));
  EXPECT_TRUE(std::filesystem::is_directory(ditta.programma.File_Ini));
}

TEST(Preferenze, con_il_disco_pieno_si_parte_lo_stesso) {
  Ditta_Di_Prova ditta;
  ditta.Metti_Ini("[VELMARA]\r\nTesto_Fattura_1= \r\n");
  ditta.Disco_Pieno();
  ditta.macchina.testi = {"9"};
  Leggi_Preferenze(ditta.programma);
  EXPECT_EQ(ditta.programma.preferenze.Testo_Fattura[0], Righe_Piede_Fattura()[0]);
  EXPECT_EQ(ditta.programma.preferenze.Numero_Posteggio, "9");
  EXPECT_EQ(ditta.Ini(), "[VELMARA]\r\nTesto_Fattura_1= \r\n");
  EXPECT_TRUE(ditta.macchina.messaggi.empty());
}

TEST(Preferenze, una_chiave_sconosciuta_non_si_scrive_dalle_preferenze) {
  Ditta_Di_Prova ditta;
  EXPECT_FALSE(Scrivi_Preferenze(ditta.programma, {"fonte", "Inventata"}));
  EXPECT_EQ(ditta.Ini(), "");
}

TEST(Preferenze, il_posteggio_e_chiesto_finche_ce_un_numero) {
  Ditta_Di_Prova ditta;
  ditta.Metti_Ini("[VELMARA]\r\nCodiceCOM=12\r\n");
  ditta.macchina.testi = {std::nullopt, "", "   ", "0", "zero", " 04 "};
  Leggi_Preferenze(ditta.programma);
  EXPECT_EQ(ditta.programma.preferenze.Numero_Posteggio, "04");
  EXPECT_EQ(ditta.macchina.domande.size(), 6u);
  for (const Testo& domanda : ditta.macchina.domande)
    EXPECT_EQ(domanda, "12\nnumero del posteggio su due cifre per esempio 01");
  EXPECT_THAT(ditta.Ini(), HasSubstr("nposteggio=04\r\n"));

  Leggi_Preferenze(ditta.programma);
  EXPECT_EQ(ditta.macchina.domande.size(), 6u) << "asked once in the firm's life";
}

TEST(Preferenze, il_nome_personale_in_commento_solo_da_codice_cinque) {
  for (const auto& [codice, resta] : {std::pair{"0", false},
                                      {"4", false},
                                      {"4.9", false},
                                      {"", false},
                                      {"abc", false},
                                      {"5", true},
                                      {"00007", true}}) {
    Ditta_Di_Prova ditta;
    Letta(ditta, "FlagCopiaNPinCommento=-1\r\nCodiceCOM=" + Testo(codice) + "\r\n");
    EXPECT_TRUE(ditta.programma.preferenze.FlagCopiaNPinCommento);
    Limita_Per_Codice(ditta.programma);
    EXPECT_EQ(ditta.programma.preferenze.FlagCopiaNPinCommento, resta) << codice;
  }
}

TEST(Preferenze, spessore_dell_ellisse) {
  Preferenze preferenze;
  EXPECT_EQ(Spessore_Ellisse(preferenze), 10);
  preferenze.FlagSpessoreEllisse = false;
  EXPECT_EQ(Spessore_Ellisse(preferenze), 1);
}

// The page that operators and their helpers read names every key with its default.
TEST(Preferenze, la_pagina_delle_impostazioni_e_completa) {
  const auto pagina = Percorso(__FILE__).parent_path() / "../../docs/impostazioni.md";
  std::ifstream file(pagina, std::ios::binary);
  const std::string testo{std::istreambuf_iterator<char>(file), {}};
  for (const Impostazione& i : Impostazioni()) {
    const Testo predefinito = Pulito(i.predefinito).empty() ? Testo() : "`" + i.predefinito + "`";
    const Testo riga = "\n| `" + i.chiave + "` | " + predefinito + " | " + i.didascalia + " |";
    EXPECT_THAT(testo, HasSubstr(In_Utf8(riga)));
  }
}

}  // namespace

#include "documents/dimddt.h"

#include <gmock/gmock.h>

#include "printing/pagina.h"
#include "tests/documents/documenti_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr Vista rifiuto = "dimesione del foglio non corretta...(o posizione dell'ellisse non corretta)";

struct DimDDT_Test : testing::Test, Documenti_Di_Prova {
  DimDDT schermo;
  DimDDT_Test() { Apri_DimDDT(programma, schermo); }
  Testo& operator[](Vista chiave) { return schermo.campi.find(chiave)->second.testo; }
};

TEST_F(DimDDT_Test, MostraLeImpostazioni) {
  EXPECT_EQ((*this)["DocSani_LarghezzaPagina"], "154");
  EXPECT_EQ((*this)["DocSani_AltezzaPagina"], "172");
  EXPECT_EQ((*this)["DocSani_Offset_Logo"], "45");
  EXPECT_EQ((*this)["DocSani_Aggiustamento"], "15");
  EXPECT_EQ((*this)["ellisse_centrox"], "165");
  EXPECT_EQ((*this)["ellisse_centroy"], "8");
  EXPECT_EQ((*this)["TitoloBolla"], "DOCUMENTO sulla TRACCIABILITA' dei PRODOTTI ITTICI");
  EXPECT_TRUE(schermo.FlagPiedePagina.segnata);
  EXPECT_EQ(schermo.titolo, "Dimensioni del documento Sanitario/DDT/tracciabilità"_t);
  EXPECT_EQ(schermo.didascalie.at("DocSani_LarghezzaPagina").testo, "Larghezza in mm.");
  EXPECT_EQ(schermo.Conferma.testo, "conferma le modifiche");
}

TEST_F(DimDDT_Test, Suggerimenti) {
  const std::pair<Testo, Testo> casi[] = {
      {"DocSani_LarghezzaPagina", "larghezza della pagina in millimetri"},
      {"DocSani_AltezzaPagina", "altezza della pagina in millimetri"},
      {"DocSani_Offset_Logo", "Spazio occupato dal logo in millimetri"},
      {"DocSani_Aggiustamento", "Sposta l'intestazione a destra di 15 millimetri"},
      {"TitoloBolla", "Titolo del documento sanitario/tracciabilità"_t},
      {"PiedePaginaBolla1", "prima riga"},
      {"PiedePaginaBolla2", "seconda riga"},
      {"ellisse_centrox", "righe 1, 3 e 5 di ragione.txt"}};
  for (const auto& [chiave, atteso] : casi) EXPECT_EQ(schermo.campi.at(chiave).suggerimento, atteso);
  (*this)["DocSani_Aggiustamento"] = "20";
  Tocca_DimDDT(schermo);
  EXPECT_EQ(schermo.campi.at("DocSani_Aggiustamento").suggerimento,
            "Sposta l'intestazione a destra di 20 millimetri");
  EXPECT_EQ(schermo.predefiniti.at("FoglioA4").suggerimento, "Per A5 dimezzare l'altezza");
}

TEST_F(DimDDT_Test, ConfermaScriveTuttoEChiude) {
  (*this)["DocSani_LarghezzaPagina"] = " 210 ";
  (*this)["DocSani_AltezzaPagina"] = "293";
  (*this)["DocSani_AltezzaDest"] = "4";
  (*this)["DS_intesta6"] = "Riga\tsei";
  schermo.FlagPiedePagina.segnata = false;
  EXPECT_TRUE(Conferma_DimDDT(programma, schermo));
  EXPECT_TRUE(schermo.chiusa);
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_EQ(programma.preferenze.DocSani_LarghezzaPagina, 210);
  EXPECT_EQ(programma.preferenze.DocSani_AltezzaDest, 4);
  EXPECT_EQ(programma.preferenze.DS_intesta[5], "Rigasei") << "a TAB can't stand in the file";
  EXPECT_FALSE(programma.preferenze.FlagPiedePagina);
  for (const Vista riga :
       {"DocSani_LarghezzaPagina=210", "DocSani_AltezzaPagina=293", "DocSani_AltezzaDest=4",
        "DS_intesta6=Rigasei", "FlagPiedePagina=0", "ellisse_centrox=165"})
    EXPECT_THAT(Sostituisci_Tutti(Ini(), " = ", "="), HasSubstr(Testo(riga)));
}

struct Rifiuto {
  Vista chiave, valore;
};

TEST_F(DimDDT_Test, MisureRifiutate) {
  const Rifiuto casi[] = {{"DocSani_LarghezzaPagina", "0"},   {"DocSani_LarghezzaPagina", "abc"},
                          {"DocSani_LarghezzaPagina", "211"}, {"DocSani_LarghezzaPagina", "-154"},
                          {"DocSani_AltezzaPagina", ""},      {"DocSani_AltezzaPagina", "294"},
                          {"DocSani_Offset_Logo", "0"},       {"DocSani_Aggiustamento", "46"},
                          {"ellisse_centrox", "0"},           {"ellisse_centroy", "-1"}};
  for (const Rifiuto& caso : casi) {
    DimDDT prova;
    Apri_DimDDT(programma, prova);
    prova.campi.find(caso.chiave)->second.testo = caso.valore;
    macchina.messaggi.clear();
    EXPECT_FALSE(Conferma_DimDDT(programma, prova)) << caso.chiave << " " << caso.valore;
    EXPECT_THAT(macchina.messaggi, ElementsAre(rifiuto));
    EXPECT_FALSE(prova.chiusa);
  }
  EXPECT_EQ(programma.preferenze.DocSani_LarghezzaPagina, 154);
  EXPECT_EQ(Ini(), "") << "nothing is stored";
}

TEST_F(DimDDT_Test, MisureAlLimiteVannoBene) {
  (*this)["DocSani_LarghezzaPagina"] = "210";
  (*this)["DocSani_AltezzaPagina"] = "293";
  (*this)["DocSani_Offset_Logo"] = "15";
  (*this)["ellisse_centrox"] = (*this)["ellisse_centroy"] = "1";
  EXPECT_TRUE(Conferma_DimDDT(programma, schermo));
}

TEST_F(DimDDT_Test, IlCampoDelLogoPrendeIlMinimoCheVaBene) {
  (*this)["DocSani_Offset_Logo"] = "0";
  (*this)["DocSani_Aggiustamento"] = "0";
  Conferma_DimDDT(programma, schermo);
  EXPECT_EQ((*this)["DocSani_Offset_Logo"], "1");
  EXPECT_TRUE(Conferma_DimDDT(programma, schermo));

  (*this)["DocSani_Aggiustamento"] = "30";
  (*this)["DocSani_Offset_Logo"] = "20";
  EXPECT_FALSE(Conferma_DimDDT(programma, schermo));
  EXPECT_EQ((*this)["DocSani_Offset_Logo"], "30");
  EXPECT_TRUE(Conferma_DimDDT(programma, schermo));
}

TEST_F(DimDDT_Test, ISalvatiCheFallisconoLascianoTuttoComEra) {
  Disco_Pieno();
  (*this)["DocSani_AltezzaPagina"] = "200";
  EXPECT_FALSE(Conferma_DimDDT(programma, schermo));
  EXPECT_FALSE(schermo.chiusa);
  EXPECT_EQ(programma.preferenze.DocSani_AltezzaPagina, 172);
  EXPECT_EQ((*this)["DocSani_AltezzaPagina"], "200") << "what was keyed stays";
  ASSERT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_THAT(macchina.messaggi[0], HasSubstr("Velmara_2020.ini"));
}

TEST_F(DimDDT_Test, IPredefinitiRiempionoISoliCampi) {
  struct Atteso {
    Vista bottone, chiave;
    Testo valore;
  };
  const Atteso casi[] = {
      {"FoglioA4", "DocSani_LarghezzaPagina", "210"},
      {"FoglioA4", "DocSani_AltezzaPagina", "293"},
      {"ModuloContinuo", "DocSani_LarghezzaPagina", "154"},
      {"ModuloContinuo", "DocSani_AltezzaPagina", "172"},
      {"PredefinitoMargini", "DocSani_Offset_Logo", "45"},
      {"PredefinitoMargini", "DocSani_Aggiustamento", "15"},
      {"PredefinitoMargini", "DocSani_dadestra", "0"},
      {"PredefinitoEllisse", "ellisse_centrox", "165"},
      {"PredefinitoEllisse", "ellisse_centroy", "8"},
      {"PredefinitoTitolo", "TitoloBolla", "DOCUMENTO sulla TRACCIABILITA' dei PRODOTTI ITTICI"},
      // the button parts the sentence elsewhere than the built-in settings do
      {"PredefinitoPiede", "PiedePaginaBolla1",
       "assolve gli obblighi di cui all'Art. 62 comma 1 del D.L.24 gennaio 2012 n. 1"},
      {"PredefinitoPiede", "PiedePaginaBolla2",
       "convertito con modificazioni dalla Legge 24 marzo 2012 n° 27"_t}};
  for (const Atteso& caso : casi) {
    (*this)[caso.chiave] = "altro";
    Riempi_DimDDT(programma, schermo, caso.bottone);
    EXPECT_EQ((*this)[caso.chiave], caso.valore);
  }
  EXPECT_EQ(Ini(), "");
}

TEST_F(DimDDT_Test, IntestazioneDallaRagione) {
  programma.Ragione[2] = "Terza";
  (*this)["DS_intesta4"] = "da togliere";
  Riempi_DimDDT(programma, schermo, "PredefinitoIntestazione");
  EXPECT_EQ((*this)["DS_intesta1"], "Mare Blu s.n.c.");
  EXPECT_EQ((*this)["DS_intesta2"], "Terza");
  EXPECT_EQ((*this)["DS_intesta3"], "30100 Venezia - VE");
  EXPECT_EQ((*this)["DS_intesta4"], "");
}

TEST_F(DimDDT_Test, IntestazioneDelleDitteConLaPropria) {
  for (const Profilo profilo : {Profilo::Rovigal, Profilo::Fusinal, Profilo::Sarvena}) {
    programma.preferenze.Codice_Commissionario = Nome_Profilo(profilo);
    Riempi_DimDDT(programma, schermo, "PredefinitoIntestazione");
    EXPECT_EQ((*this)["DS_intesta1"], Maiuscolo(Nome_Profilo(profilo)));
    EXPECT_EQ((*this)["DS_intesta3"], "Posteggio n. 07");
    EXPECT_EQ((*this)["DS_intesta6"], "CEE IT 940");
  }
  EXPECT_FALSE(IntestazioneProfilo(programma, Profilo::Lagomar));
}

// ---- the picture of the form

TEST_F(DimDDT_Test, LoSchizzoSegueQuantoSiScrive) {
  (*this)["DocSani_LarghezzaPagina"] = "210";
  (*this)["DocSani_AltezzaDest"] = "7";
  (*this)["DS_intesta2"] = "Posteggio 07";
  const auto schizzo = Schizzo(programma, schermo);
  ASSERT_TRUE(schizzo);
  EXPECT_EQ(schizzo->foglio.larghezza, 210);
  const auto dove = [&](Vista testo) {
    for (const Scritta_Pagina& scritta : schizzo->pagina.testata)
      if (scritta.testo == testo) return scritta.y;
    return -100.0F;
  };
  EXPECT_EQ(dove("Posteggio 07"), 3);
  EXPECT_EQ(dove("Destinatario:"), 51);
  EXPECT_EQ(dove("(CEE IT 940) no. 001 del 14/03/2025"), 33);
  EXPECT_EQ(programma.preferenze.DocSani_LarghezzaPagina, 154) << "nothing is stored";
}

TEST_F(DimDDT_Test, SenzaUnFoglioNienteSchizzo) {
  for (const Vista misura : {"0", "", "-5", "294", "99999"}) {
    (*this)["DocSani_AltezzaPagina"] = misura;
    EXPECT_FALSE(Schizzo(programma, schermo)) << misura;
  }
}

// The stamp and the foot lines of the picture are where the print puts them.
TEST_F(DimDDT_Test, BolloEPiedeDelloSchizzoSonoQuelliStampati) {
  const auto schizzo = Schizzo(programma, schermo);
  ASSERT_TRUE(schizzo && schizzo->bollo);
  const Preferenze& preferenze = programma.preferenze;
  printer.ScaleMode(Scala_Millimetri);
  auto x = static_cast<float>(preferenze.ellisse_centrox);
  StampaEllisse(programma, x, static_cast<float>(preferenze.ellisse_centroy));
  const Ovale& bollo = *schizzo->bollo;
  const auto mm = [](double valore) { return Formato(valore, "#0.00", '.'); };
  EXPECT_THAT(registro.righe, testing::Contains(HasSubstr("ellisse " + mm(bollo.x) + " " + mm(bollo.y) + " " +
                                                          mm(bollo.raggio_x) + " " + mm(bollo.raggio_y))));
  StampaDueRighe(programma, 172, 0);
  for (std::size_t i = 1; i <= 2; ++i) {
    const Scritta_Pagina& riga = schizzo->pagina.tabella[schizzo->pagina.tabella.size() - 3 + i];
    EXPECT_THAT(registro.righe,
                testing::Contains(testing::AllOf(HasSubstr("testo " + mm(riga.x) + " " + mm(riga.y) + " "),
                                                 testing::EndsWith(": " + riga.testo))));
  }
  programma.preferenze.FlagEllisse = false;
  EXPECT_FALSE(Schizzo(programma, schermo)->bollo);
}

}  // namespace

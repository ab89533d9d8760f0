#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/entry/giornata_di_prova.h"

using C = CampoRiga;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// One field of a good row changed: what the check answers, what it shows, and what the field holds
// afterwards.
struct Caso_Riga {
  C campo;
  Testo testo;
  int esito;
  Testo dopo;
  std::vector<Testo> messaggi = {};
};
void PrintTo(const Caso_Riga& caso, std::ostream* uscita) { *uscita << Nome_Caso(caso.campo, caso.testo); }

class Convalida : public testing::TestWithParam<std::tuple<Caso_Riga, char>> {};

TEST_P(Convalida, UnCampo) {
  const auto& [caso, separatore] = GetParam();
  Giornata_Di_Prova g(separatore);
  g.Apri();
  g.RiempiCampi();
  g[caso.campo] = g.N(caso.testo);
  EXPECT_EQ(ValidaRiga(g.programma, g.edita, ""), caso.esito);
  EXPECT_EQ(g[caso.campo], g.N(caso.dopo));
  EXPECT_EQ(g.macchina.messaggi, caso.messaggi);
}

const std::vector<Testo> manca_prezzo = {"manca il prezzo..."};
const std::vector<Testo> alfa = {"codice Alfa non valido..."};
const std::vector<Testo> commento = {"Il campo commento supera i 250 caratteri..."};

INSTANTIATE_TEST_SUITE_P(
    Campi, Convalida,
    testing::Combine(
        testing::Values(
            Caso_Riga{C::Fornitore, "Mare Blu", 0, "Mare Blu"},
            Caso_Riga{C::Fornitore, "Modificare questa riga...", 1, ""},
            Caso_Riga{C::Fornitore, "MODIFICARE QUESTA RIGA...", 1, ""},
            Caso_Riga{C::Fornitore, "Mare", 1, ""}, Caso_Riga{C::Fornitore, "  Mare  ", 1, ""},
            Caso_Riga{C::Fornitore, "Mare1", 0, "Mare1"}, Caso_Riga{C::Fornitore, "non trovato...", 1, ""},
            Caso_Riga{C::Cliente, "Lido", 1, ""}, Caso_Riga{C::Cliente, "Lido1", 0, "Lido1"},
            Caso_Riga{C::Cliente, "Non Trovato...", 1, ""}, Caso_Riga{C::CodCliente, "0123", 1, ""},
            Caso_Riga{C::CodCliente, "non trovato...", 1, ""}, Caso_Riga{C::CodCliente, "00123", 0, "00123"},
            Caso_Riga{C::Specie, "Or", 1, ""}, Caso_Riga{C::Specie, "non trovato...", 1, ""},
            Caso_Riga{C::Specie, "Ora", 0, "Ora"}, Caso_Riga{C::ZonaP, "A083", 1, ""},
            Caso_Riga{C::ZonaP, "A0837", 0, "A0837"}, Caso_Riga{C::ZonaP, "non trovato...", 1, ""},
            // the weight isn't emptied; a text that is no number meets the next check
            Caso_Riga{C::Peso, "0", 1, "0"}, Caso_Riga{C::Peso, "-1", 1, "-1"}, Caso_Riga{C::Peso, "", 1, ""},
            Caso_Riga{C::Peso, "0,01", 0, "0,01"}, Caso_Riga{C::Peso, ",", 0, ","},
            Caso_Riga{C::Peso, "x", 0, "x"},
            // the price is rewritten
            Caso_Riga{C::Prezzo, "5", 0, "5,00"}, Caso_Riga{C::Prezzo, "9,8", 0, "9,80"},
            Caso_Riga{C::Prezzo, "3,335", 0, "3,34"}, Caso_Riga{C::Prezzo, ",5", 0, "0,50"},
            Caso_Riga{C::Prezzo, "-,50", 0, "-0,50"}, Caso_Riga{C::Prezzo, "-12", 0, "-12,00"},
            Caso_Riga{C::Prezzo, "12,5c", 0, "12,5c"}, Caso_Riga{C::Prezzo, "12,5C", 0, "12,5C"},
            Caso_Riga{C::Prezzo, "0", 1, "0,00", manca_prezzo}, Caso_Riga{C::Prezzo, "", 1, "", manca_prezzo},
            Caso_Riga{C::Prezzo, "0c", 1, "0c", manca_prezzo},
            Caso_Riga{C::Prezzo, "c", 1, "c", manca_prezzo},
            Caso_Riga{C::Prezzo, "0,004", 1, "0,00", manca_prezzo}, Caso_Riga{C::Prezzo, ",", 0, ","},
            Caso_Riga{C::Prezzo, "1c2", 0, "1c2"}, Caso_Riga{C::Iva, "10", 0, "10"},
            Caso_Riga{C::Iva, "4,0", 0, "4"}, Caso_Riga{C::Iva, "0", 0, "0"},
            Caso_Riga{C::Iva, "100", 0, "100"}, Caso_Riga{C::Iva, "100,5", 1, "100,5"},
            Caso_Riga{C::Iva, "-1", 1, "-1"}, Caso_Riga{C::Iva, "", 0, "0"},
            Caso_Riga{C::Iva, "22%", 0, "22%"}, Caso_Riga{C::Colli, "3", 0, "3"},
            Caso_Riga{C::Colli, "2,5", 0, "3"}, Caso_Riga{C::Colli, "-2", 1, "1"},
            Caso_Riga{C::Colli, "007", 0, "7"}, Caso_Riga{C::Colli, "x", 0, "x"},
            Caso_Riga{C::NCV, "", 0, "9999"}, Caso_Riga{C::NCV, "-", 0, "9999"},
            Caso_Riga{C::NCV, "0", 0, "9999"}, Caso_Riga{C::NCV, "-3", 0, "9999"},
            Caso_Riga{C::NCV, "12", 0, "12"}, Caso_Riga{C::DataCV, "", 0, "-"},
            Caso_Riga{C::DataCV, "31/02/2025", 0, "-"}, Caso_Riga{C::DataCV, "14/03/2025", 0, "14/03/2025"},
            Caso_Riga{C::DataCV, "1.2.25", 0, "1.2.25"}, Caso_Riga{C::SAnt, "", 0, ""},
            Caso_Riga{C::SAnt, "-1", 0, "0"}, Caso_Riga{C::SAnt, "0,0", 0, "0"},
            Caso_Riga{C::SAnt, "2,5", 0, "2,5"}, Caso_Riga{C::SAnt, "-", 0, "-"},
            Caso_Riga{C::Alfa, "SB", 1, "SB", alfa}, Caso_Riga{C::Alfa, " SB ", 1, " SB ", alfa},
            Caso_Riga{C::Alfa, "", 1, "", alfa}, Caso_Riga{C::Prov, "IT I", 1, ""},
            Caso_Riga{C::Prov, "IT It", 0, "IT It"}, Caso_Riga{C::Lotti, "", 1, ""},
            Caso_Riga{C::Lotti, " ", 1, " "}, Caso_Riga{C::NomeLatino, "Sp", 1, "Sp"},
            Caso_Riga{C::Famiglia, "", 1, ""}),
        testing::Values(',', '.')));

INSTANTIATE_TEST_SUITE_P(
    Codici, Convalida,
    testing::Combine(
        testing::Values(
            Caso_Riga{C::NomeComune, "", 1, ""},
            Caso_Riga{C::MetodoPesca, "XXX Non Specificato ora", 0, "non specificato"},
            Caso_Riga{C::MetodoPesca, "", 1, ""}, Caso_Riga{C::MetodoPesca, "non trovato...", 1, ""},
            Caso_Riga{C::Pezzatura, "non specificato (x)", 0, "non specificato"},
            Caso_Riga{C::Pezzatura, "  ", 1, "  "}, Caso_Riga{C::StatoFisico, "", 1, ""},
            Caso_Riga{C::StatoFisico, "non specificato x", 0, "non specificato x"},
            Caso_Riga{C::Lavorazione, "", 1, ""}, Caso_Riga{C::Preparazione, "", 1, ""},
            Caso_Riga{C::PrimoImb, "", 1, ""}, Caso_Riga{C::PrimoImb, ".", 0, "."},
            Caso_Riga{C::Commento, Testo(250, 'x'), 0, Testo(250, 'x')},
            Caso_Riga{C::Commento, Testo(251, 'x'), 1, Testo(251, 'x'), commento},
            Caso_Riga{C::Commento, Testo(251, ' '), 1, Testo(251, ' '), commento},  // blanks count
            Caso_Riga{C::CodSpecie, "", 0, ""}, Caso_Riga{C::CodNumVeritas, "", 0, ""},
            Caso_Riga{C::Allergeni, "", 0, ""}),
        testing::Values(',', '.')));

// The checks stop at the first fault: with every field bad, each one mended brings up the next in the fixed
// order.
TEST(Convalida_Ordine, UnControlloDopoLAltro) {
  Giornata_Di_Prova g;
  g.Apri();
  const LedgerRow buona = Giornata_Di_Prova::RigaBuona();
  g.RiempiCampi({});
  g.programma.Vet_Esclusi = {"00123"};
  g[C::CodCliente] = "00123";
  g[C::Cliente] = "Laguna Pesca";
  EXPECT_EQ(ValidaRiga(g.programma, g.edita, ""), 999);
  EXPECT_THAT(g.macchina.messaggi, ElementsAre("Laguna Pesca\nè escluso..."_t));
  EXPECT_EQ(g[C::Provvigione], "");

  g.programma.Vet_Esclusi = {"99999"};
  g.macchina.messaggi.clear();
  g.RiempiCampi({});
  g[C::Commento] = Testo(251, 'x');
  const auto ripara = [&](C campo) { g[campo] = buona[campo]; };
  const auto esito = [&] { return ValidaRiga(g.programma, g.edita, "MOD"); };

  EXPECT_EQ(esito(), 1);  // supplier
  ripara(C::Fornitore);
  EXPECT_EQ(g[C::Provvigione], "");  // not reached yet
  EXPECT_EQ(esito(), 1);             // customer
  EXPECT_EQ(g[C::Provvigione], "6,5");
  ripara(C::Cliente);
  EXPECT_EQ(esito(), 1);  // its code
  ripara(C::CodCliente);
  EXPECT_EQ(esito(), 1);
  ripara(C::Specie);
  EXPECT_EQ(esito(), 1);
  ripara(C::ZonaP);
  EXPECT_EQ(esito(), 1);
  EXPECT_THAT(g.macchina.messaggi, IsEmpty());
  ripara(C::Peso);
  EXPECT_EQ(esito(), 1);
  EXPECT_THAT(g.macchina.messaggi, ElementsAre("manca il prezzo..."));
  ripara(C::Prezzo);
  g[C::Iva] = "101";
  EXPECT_EQ(esito(), 1);
  EXPECT_THAT(g.macchina.domande, IsEmpty());
  ripara(C::Iva);
  g.macchina.risposte = {false, true};
  EXPECT_EQ(esito(), 999);
  EXPECT_EQ(g[C::NCV], "");
  EXPECT_EQ(esito(), 1);  // the boxes are zero and agreed, the Alfa code is missing
  EXPECT_EQ(g[C::NCV], "9999");
  EXPECT_EQ(g[C::DataCV], "-");
  EXPECT_EQ(g.macchina.messaggi.back(), "codice Alfa non valido...");
  ripara(C::Colli);
  ripara(C::Alfa);
  const auto messaggi = g.macchina.messaggi.size();
  for (const C campo : {C::Prov, C::Lotti, C::NomeLatino, C::Famiglia, C::NomeComune, C::MetodoPesca,
                        C::Pezzatura, C::StatoFisico, C::Lavorazione, C::Preparazione}) {
    EXPECT_EQ(esito(), 1) << static_cast<int>(campo);
    EXPECT_EQ(g.macchina.messaggi.size(), messaggi);
    ripara(campo);
  }
  EXPECT_EQ(esito(), 1);
  EXPECT_EQ(g.macchina.messaggi.back(), "Il campo commento supera i 250 caratteri...");
  g[C::Commento] = "";
  EXPECT_EQ(esito(), 1);  // first landing
  EXPECT_EQ(g.macchina.messaggi.size(), messaggi + 1);
  ripara(C::PrimoImb);
  EXPECT_EQ(esito(), 0);
}

// Only a list of at most two codes refuses anybody here; a longer one is the work of the mark on the
// customer.
TEST(Convalida_Esclusi, FinoADueVoci) {
  struct Caso {
    std::vector<Testo> esclusi;
    int esito;
  };
  for (const Caso& caso : {Caso{{"00123"}, 999}, Caso{{"11111", "00123"}, 999},
                           Caso{{"11111", "22222", "00123"}, 0}, Caso{{"_r_00123"}, 0}, Caso{{"99999"}, 0}}) {
    Giornata_Di_Prova g;
    g.programma.Vet_Esclusi = caso.esclusi;
    g.Apri();
    g.RiempiCampi();
    g[C::CodCliente] = " 00123 ";
    EXPECT_EQ(ValidaRiga(g.programma, g.edita, ""), caso.esito);
    EXPECT_EQ(g.macchina.messaggi.size(), caso.esito == 999 ? 1U : 0U);
  }
}

TEST(Convalida_Colli, ZeroChiedeEVuotaIntantoIlCampo) {
  for (const Vista colli : {"0", "", "0,4"}) {
    Giornata_Di_Prova g;
    g.Apri();
    g.RiempiCampi();
    g[C::Colli] = colli;
    Testo durante = "?";
    g.macchina.durante_attesa = [&] { durante = g[C::Colli]; };
    g.macchina.risposte = {false};
    EXPECT_EQ(ValidaRiga(g.programma, g.edita, ""), 999);
    EXPECT_EQ(durante, "");
    EXPECT_EQ(g[C::Colli], "");
    g.macchina.risposte = {true};
    EXPECT_EQ(ValidaRiga(g.programma, g.edita, ""), 0);
    EXPECT_EQ(g[C::Colli], "0");
    EXPECT_EQ(g.macchina.domande.front(), "il numero di colli è pari a 0...ok per continuare"_t);
    EXPECT_THAT(g.macchina.messaggi, IsEmpty());
  }
}

// Always the list's commission, also over one changed by hand, and also for a row that is only modified.
TEST(Convalida_Provvigione, DallaListaDeiFornitori) {
  struct Caso {
    const char *fornitore, *provvigione;
  };
  for (const char separatore : {',', '.'})
    for (const Caso& caso : {Caso{"Mare Blu", "6,5"}, Caso{" MARE BLU ", "6,5"}, Caso{"Marina Nord", "8"},
                             Caso{"Mare Sconosciuto", "0"}})
      for (const Vista modo : {"", "MOD"}) {
        Giornata_Di_Prova g(separatore);
        g.Apri();
        g.RiempiCampi();
        g[C::Fornitore] = caso.fornitore;
        g[C::Provvigione] = "99";
        EXPECT_EQ(ValidaRiga(g.programma, g.edita, modo), 0);
        EXPECT_EQ(g[C::Provvigione], g.N(caso.provvigione));
      }
}

struct Caso_Commento {
  const char *specie, *comune, *preparazione, *lavorazione, *commento;
};

TEST(Convalida_Commento, Composizione) {
  for (const Caso_Commento& caso : {
           Caso_Commento{"Orata", "Orata", "WHL Intero", "XXX Non Lavorato", "Non Lavorato"},
           Caso_Commento{"Orata", "orata", "OTH Bottarga", "FIL Filone", "Bottarga, Filone"},
           Caso_Commento{"Branzino", "Spigola", "WHL Intero", "FIL Filone", "Branzino, Filone"},
           Caso_Commento{"Branzino", "Spigola", "OTH Bottarga", "FIL Filone", "Branzino, Bottarga, Filone"},
           Caso_Commento{"Branzino", "Spigola", "OTH Altro", "FIL Filone", "Branzino, Filone"},
           Caso_Commento{"Branzino", "Spigola", "oth altro modo", "XXX .", "Branzino, ."},
       }) {
    Giornata_Di_Prova g;
    g.programma.preferenze.FlagCopiaNPinCommento = true;
    g.Apri();
    g.RiempiCampi();
    g[C::Specie] = caso.specie;
    g[C::NomeComune] = caso.comune;
    g[C::Preparazione] = caso.preparazione;
    g[C::Lavorazione] = caso.lavorazione;
    g[C::Commento] = "scritto a mano";
    EXPECT_EQ(ValidaRiga(g.programma, g.edita, ""), 0);
    EXPECT_EQ(g[C::Commento], caso.commento);
    g[C::Commento] = "scritto a mano";
    EXPECT_EQ(ValidaRiga(g.programma, g.edita, "MOD"), 0);
    EXPECT_EQ(g[C::Commento], "scritto a mano");
    g.programma.preferenze.FlagCopiaNPinCommento = false;
    EXPECT_EQ(ValidaRiga(g.programma, g.edita, ""), 0);
    EXPECT_EQ(g[C::Commento], "scritto a mano");
  }
}

TEST(Convalida_Commento, LaComposizionePuoSuperareIlLimite) {
  Giornata_Di_Prova g;
  g.programma.preferenze.FlagCopiaNPinCommento = true;
  g.Apri();
  g.RiempiCampi();
  g[C::Specie] = Testo(240, 'x');
  EXPECT_EQ(ValidaRiga(g.programma, g.edita, ""), 1);
  EXPECT_THAT(g.macchina.messaggi, ElementsAre("Il campo commento supera i 250 caratteri..."));
}

TEST(Codici, Composizione) {
  Giornata_Di_Prova g;
  g.Apri();
  g.RiempiCampi();
  ComponiCodici(g.edita);
  EXPECT_EQ(g[C::CodiciConsolidare], "RDT SBG GRA FRE XXX WHL , B - A0837 001 ");
  g[C::Commento] = " nota ";
  ComponiCodici(g.edita);
  EXPECT_EQ(g[C::CodiciConsolidare], "RDT SBG GRA FRE XXX WHL , B - A0837 001 * nota ");
  g[C::Commento] = "  ";
  g[C::ZonaP] = " FAO37 ";
  g[C::Prov] = "Italia";
  g[C::Allergeni] = "XXX Assenti";
  ComponiCodici(g.edita);
  EXPECT_EQ(g[C::CodiciConsolidare], "RDT SBG GRA FRE XXX WHL , B XXX Assenti FAO37 Italia ");
}

struct Caso_Cassa {
  const char *peso, *prezzo, *colli, *peso_dopo, *prezzo_dopo;
};

TEST(Cassa, Conversione) {
  for (const char separatore : {',', '.'})
    for (const Caso_Cassa& caso :
         {Caso_Cassa{"10", "12,5c", "5", "50,00", "1,25"}, Caso_Cassa{"10", "12,5C", "5", "50,00", "1,25"},
          Caso_Cassa{"3", "10c ", "1", "3,00", "3,33"}, Caso_Cassa{"10", "-12,5c", "5", "50,00", "-1,25"},
          Caso_Cassa{"10", "12,5", "5", "10", "12,5"}, Caso_Cassa{"10", "1c2", "5", "10", "1c2"},
          Caso_Cassa{"0", "12,5c", "5", "0", "12,5c"}, Caso_Cassa{"x", "12,5c", "5", "x", "12,5c"}}) {
      Giornata_Di_Prova g(separatore);
      g.Apri();
      g[C::Peso] = g.N(caso.peso);
      g[C::Prezzo] = g.N(caso.prezzo);
      g[C::Colli] = caso.colli;
      ConvertiCassa(g.programma, g.edita);
      EXPECT_EQ(g[C::Peso], g.N(caso.peso_dopo)) << caso.prezzo;
      EXPECT_EQ(g[C::Prezzo], g.N(caso.prezzo_dopo)) << caso.prezzo;
    }
}

TEST(Cassa, ConPesoZeroNonPassaIlControllo) {
  Giornata_Di_Prova g;
  g.Apri();
  g.RiempiCampi();
  g[C::Prezzo] = "12,5C";
  g[C::Colli] = "3";
  g[C::Peso] = "0";
  EXPECT_EQ(ValidaRiga(g.programma, g.edita, ""), 1);
  EXPECT_EQ(g[C::Prezzo], "12,5C");
}

struct Voce_Giorno {
  const char *codice, *ddt;
};
struct Caso_Documento {
  std::vector<Voce_Giorno> giorno;
  const char *codice, *ddt;
};

TEST(Documento, Numero) {
  for (const Caso_Documento& caso : {
           Caso_Documento{{{"00123", "001"}, {"00124", "002"}}, "00124", "002"},
           Caso_Documento{{{"00123", "001"}, {"00124", "002"}}, "00200", "003"},
           Caso_Documento{{{"00123", "001"}, {"00124", "005"}}, "00200", "006"},  // a gap isn't filled
           Caso_Documento{{{"00123", ""}, {"00123", "004"}}, "00123", "005"},     // the first row tells
           Caso_Documento{{{"00123", "007 (ds)"}}, "00123", "007 (ds)"},          // copied with its mark
           Caso_Documento{{{"00123", "007 (ds)"}}, "00124", "008"},
           Caso_Documento{{{"00123", "Rif.Fat. 12 - 01/03/2025"}, {"00123", "009"}}, "00123", "010"},
           Caso_Documento{{{"00123", "0"}}, "00123", "001"},
           Caso_Documento{{{"00123", ""}}, "00124", "001"},
           Caso_Documento{{{"a0123", "003"}}, "A0123", "003"},
           Caso_Documento{{{"00123", "999"}}, "00124", "1000"},
       }) {
    Giornata_Di_Prova g;
    g.programma.Vet_Tabella.righe.clear();
    for (const Voce_Giorno& voce : caso.giorno)
      g.programma.Vet_Tabella.righe.push_back(g.RigaDelGiorno(1, "Laguna Pesca", voce.codice, voce.ddt));
    g.Apri();
    g[C::DDT] = "x";
    NumeroDocumento(g.programma, g.edita, caso.codice);
    EXPECT_EQ(g[C::DDT], caso.ddt);
  }
}

TEST(Conto, IlNumeroDelFornitore) {
  Giornata_Di_Prova g;
  auto& righe = g.programma.Vet_Tabella.righe;
  righe = {g.RigaDelGiorno(1, "Laguna Pesca", "00123"), g.RigaDelGiorno(2, "Laguna Pesca", "00123"),
           g.RigaDelGiorno(3, "Laguna Pesca", "00123")};
  righe[1][C::NCV] = "12";
  righe[2][C::NCV] = "13";
  g.Apri();
  g[C::Fornitore] = "MARE BLU";
  g[C::NCV] = "x";
  CercaNCV(g.programma, g.edita);
  EXPECT_EQ(g[C::NCV], "12");
  g[C::Fornitore] = "Marina Nord";
  g[C::NCV] = "x";
  CercaNCV(g.programma, g.edita);
  EXPECT_EQ(g[C::NCV], "x");
}

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/entry/giornata_di_prova.h"

using C = CampoRiga;

namespace {

constexpr int nessuno = 0;

struct Caso_Flusso {
  C da;
  std::vector<int> segnate;  // marked boxes
  int atteso;                // field that gets the focus, 0 for none
};
void PrintTo(const Caso_Flusso& caso, std::ostream* uscita) {
  *uscita << "da " << static_cast<int>(caso.da) << " tenute";
  for (const int numero : caso.segnate) *uscita << " " << numero;
}

class Flusso : public testing::TestWithParam<Caso_Flusso> {};

TEST_P(Flusso, CampoSuccessivo) {
  const Caso_Flusso& caso = GetParam();
  Giornata_Di_Prova g;
  g.Apri();
  for (const int numero : {5, 6, 7}) g.Segna(numero, false);
  // the marks alone, without the pair's exclusion, so that every combination can be looked at
  for (const int numero : caso.segnate) g.edita.Check[static_cast<std::size_t>(numero)].segnata = true;
  g.edita.fuoco = Edita::nessun_fuoco;
  CampoSuccessivo(g.edita, Indice(caso.da));
  EXPECT_EQ(g.Fuoco(), caso.atteso);
}

constexpr int n(C campo) { return static_cast<int>(campo); }
const std::vector<int> tutte = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13, 14, 15, 16};

INSTANTIATE_TEST_SUITE_P(
    Campi, Flusso,
    testing::Values(
        // without marks the flow walks its order
        Caso_Flusso{C::Fornitore, {}, n(C::Cliente)}, Caso_Flusso{C::Cliente, {}, n(C::CodCliente)},
        Caso_Flusso{C::CodCliente, {}, n(C::Specie)}, Caso_Flusso{C::Specie, {}, n(C::ZonaP)},
        Caso_Flusso{C::ZonaP, {}, n(C::Prov)}, Caso_Flusso{C::Prov, {}, n(C::MetodoPesca)},
        Caso_Flusso{C::MetodoPesca, {}, n(C::Pezzatura)}, Caso_Flusso{C::Pezzatura, {}, n(C::StatoFisico)},
        Caso_Flusso{C::StatoFisico, {}, n(C::Lavorazione)},
        Caso_Flusso{C::Lavorazione, {}, n(C::Preparazione)}, Caso_Flusso{C::Preparazione, {}, n(C::PrimoImb)},
        Caso_Flusso{C::PrimoImb, {}, n(C::Peso)}, Caso_Flusso{C::Peso, {}, n(C::Prezzo)},
        Caso_Flusso{C::Prezzo, {}, n(C::Lotti)}, Caso_Flusso{C::Lotti, {}, n(C::Colli)},
        Caso_Flusso{C::Colli, {}, n(C::Fornitore)},
        // with everything held it ends on the boxes of fish, but from the supplier and from the boxes it
        // stays
        Caso_Flusso{C::Fornitore, tutte, nessuno}, Caso_Flusso{C::Cliente, tutte, n(C::Colli)},
        Caso_Flusso{C::CodCliente, tutte, n(C::Colli)}, Caso_Flusso{C::Specie, tutte, n(C::Colli)},
        Caso_Flusso{C::PrimoImb, tutte, n(C::Colli)}, Caso_Flusso{C::Peso, tutte, n(C::Colli)},
        Caso_Flusso{C::Prezzo, tutte, n(C::Colli)}, Caso_Flusso{C::Lotti, tutte, n(C::Colli)},
        Caso_Flusso{C::Colli, tutte, nessuno},
        // the supplier looks at the customer's two fields only
        Caso_Flusso{C::Fornitore, {6}, n(C::CodCliente)}, Caso_Flusso{C::Fornitore, {7}, n(C::Cliente)},
        Caso_Flusso{C::Fornitore, {6, 7}, nessuno},
        // round from the boxes
        Caso_Flusso{C::Colli, {5}, n(C::Cliente)}, Caso_Flusso{C::Colli, {5, 6}, n(C::CodCliente)},
        Caso_Flusso{C::Colli, {5, 7}, n(C::Cliente)}, Caso_Flusso{C::Colli, {5, 6, 7}, nessuno},
        // held fields are passed over one by one
        Caso_Flusso{C::Cliente, {7}, n(C::Specie)}, Caso_Flusso{C::Cliente, {7, 1}, n(C::ZonaP)},
        Caso_Flusso{C::CodCliente, {1, 2}, n(C::Prov)}, Caso_Flusso{C::Specie, {2, 3}, n(C::MetodoPesca)},
        Caso_Flusso{C::Specie, {2, 3, 10}, n(C::Pezzatura)},
        Caso_Flusso{C::Specie, {2, 3, 10, 11}, n(C::StatoFisico)},
        Caso_Flusso{C::Specie, {2, 3, 10, 11, 13}, n(C::Lavorazione)},
        Caso_Flusso{C::Specie, {2, 3, 10, 11, 13, 14}, n(C::Preparazione)},
        Caso_Flusso{C::Specie, {2, 3, 10, 11, 13, 14, 15}, n(C::PrimoImb)},
        Caso_Flusso{C::Specie, {2, 3, 10, 11, 13, 14, 15, 16}, n(C::Peso)},
        Caso_Flusso{C::Specie, {2, 3, 10, 11, 13, 14, 15, 16, 8}, n(C::Prezzo)},
        Caso_Flusso{C::Specie, {2, 3, 10, 11, 13, 14, 15, 16, 8, 9}, n(C::Lotti)},
        Caso_Flusso{C::Specie, {2, 3, 10, 11, 13, 14, 15, 16, 8, 9, 4}, n(C::Colli)},
        Caso_Flusso{C::Peso, {9}, n(C::Lotti)}, Caso_Flusso{C::Peso, {9, 4}, n(C::Colli)},
        Caso_Flusso{C::Prezzo, {4}, n(C::Colli)},
        // fields outside the flow
        Caso_Flusso{C::Num, {}, nessuno}, Caso_Flusso{C::Iva, {}, nessuno}, Caso_Flusso{C::NCV, {}, nessuno},
        Caso_Flusso{C::Commento, {}, nessuno}, Caso_Flusso{C::Allergeni, {}, nessuno}));

struct Caso_Indietro {
  C da;
  int atteso;
};
void PrintTo(const Caso_Indietro& caso, std::ostream* uscita) {
  *uscita << "da " << static_cast<int>(caso.da);
}
class Indietro : public testing::TestWithParam<Caso_Indietro> {};

// The way back looks at no box: the operator goes back to mend a held field.
TEST_P(Indietro, CampoPrecedente) {
  Giornata_Di_Prova g;
  g.Apri();
  for (const int numero : {5, 6, 7}) g.Segna(numero, false);
  for (const int numero : {1, 2, 3, 4, 10, 11, 13, 14, 15, 16}) g.Segna(numero);
  g.edita.fuoco = Edita::nessun_fuoco;
  CampoPrecedente(g.edita, Indice(GetParam().da));
  EXPECT_EQ(g.Fuoco(), GetParam().atteso);
}

INSTANTIATE_TEST_SUITE_P(
    Campi, Indietro,
    testing::Values(Caso_Indietro{C::Fornitore, n(C::Colli)}, Caso_Indietro{C::Cliente, n(C::Fornitore)},
                    Caso_Indietro{C::CodCliente, n(C::Fornitore)}, Caso_Indietro{C::Specie, n(C::CodCliente)},
                    Caso_Indietro{C::ZonaP, n(C::Specie)}, Caso_Indietro{C::Peso, n(C::PrimoImb)},
                    Caso_Indietro{C::Prezzo, n(C::Peso)}, Caso_Indietro{C::Colli, n(C::Lotti)},
                    Caso_Indietro{C::Prov, n(C::ZonaP)}, Caso_Indietro{C::Lotti, n(C::Prezzo)},
                    Caso_Indietro{C::MetodoPesca, n(C::Prov)}, Caso_Indietro{C::Pezzatura, n(C::MetodoPesca)},
                    Caso_Indietro{C::StatoFisico, n(C::Pezzatura)},
                    Caso_Indietro{C::Lavorazione, n(C::StatoFisico)},
                    Caso_Indietro{C::Preparazione, n(C::Lavorazione)},
                    Caso_Indietro{C::PrimoImb, n(C::Preparazione)}, Caso_Indietro{C::Num, nessuno},
                    Caso_Indietro{C::Iva, nessuno}, Caso_Indietro{C::NCV, nessuno},
                    Caso_Indietro{C::Commento, nessuno}, Caso_Indietro{C::Allergeni, nessuno}));

TEST(Flusso_Indietro, DallaSpecieAlCampoDelClienteCheSiScrive) {
  Giornata_Di_Prova g;
  g.Apri();  // Check7 is marked: the code is looked up
  g.Fuoco();
  CampoPrecedente(g.edita, Indice(C::Specie));
  EXPECT_EQ(g.Fuoco(), n(C::Cliente));
  g.Segna(6);
  CampoPrecedente(g.edita, Indice(C::Specie));
  EXPECT_EQ(g.Fuoco(), n(C::CodCliente));
}

TEST(Flusso_Indietro, UnCampoChiusoNonPrendeIlFuoco) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Segna(8);
  g.Fuoco();
  CampoPrecedente(g.edita, Indice(C::Prezzo));
  EXPECT_EQ(g.Fuoco(), nessuno);
}

TEST(Caselle, ChiudonoIlLoroCampo) {
  struct Caso {
    int casella;
    C campo;
  };
  for (const auto& [casella, campo] : {Caso{5, C::Fornitore}, Caso{8, C::Peso}, Caso{9, C::Prezzo}}) {
    Giornata_Di_Prova g;
    g.Apri();
    g.Segna(casella);
    EXPECT_FALSE(Campo(g.edita, campo).attivo) << casella;
    g.Segna(casella, false);
    EXPECT_TRUE(Campo(g.edita, campo).attivo) << casella;
  }
}

TEST(Caselle, LeAltreNonChiudonoNulla) {
  Giornata_Di_Prova g;
  g.Apri();
  for (const int casella : {1, 2, 3, 4, 10, 11, 13, 14, 15, 16}) {
    g.Segna(casella);
    for (int i = 0; i < Num_Campi; ++i)
      if (CasellaCampo(i) == casella) {
        EXPECT_TRUE(g.edita.Text1[static_cast<std::size_t>(i)].attivo) << casella;
      }
  }
}

TEST(Caselle, ClienteECodiceSiEscludono) {
  Giornata_Di_Prova g;
  g.Apri();
  EXPECT_TRUE(Campo(g.edita, C::Cliente).attivo);
  EXPECT_FALSE(Campo(g.edita, C::CodCliente).attivo);
  g.Segna(6);
  EXPECT_FALSE(g.edita.Check[7].segnata);
  EXPECT_FALSE(Campo(g.edita, C::Cliente).attivo);
  EXPECT_TRUE(Campo(g.edita, C::CodCliente).attivo);
  g.Segna(7);
  EXPECT_FALSE(g.edita.Check[6].segnata);
  EXPECT_TRUE(Campo(g.edita, C::Cliente).attivo);
  EXPECT_FALSE(Campo(g.edita, C::CodCliente).attivo);
  g.Segna(7, false);
  EXPECT_TRUE(Campo(g.edita, C::Cliente).attivo);
  EXPECT_TRUE(Campo(g.edita, C::CodCliente).attivo);
}

struct Caso_Pagina {
  bool sei, sette;  // marks before
  bool sei_dopo, sette_dopo;
  int fuoco;
};

TEST(Caselle, PagSuEPagGiuScambianoIlCampoDelCliente) {
  for (const Caso_Pagina& caso : {Caso_Pagina{false, true, true, false, n(C::CodCliente)},
                                  Caso_Pagina{true, false, false, true, n(C::Cliente)},
                                  Caso_Pagina{false, false, true, false, nessuno}})
    for (const Tasto tasto : {Tasto::PagSu, Tasto::PagGiu}) {
      Giornata_Di_Prova g;
      g.Apri();
      g.Segna(6, caso.sei);
      g.Segna(7, caso.sette);
      g.Fuoco();
      EXPECT_TRUE(g.PremiSchermo(tasto));
      EXPECT_EQ(g.edita.Check[6].segnata, caso.sei_dopo);
      EXPECT_EQ(g.edita.Check[7].segnata, caso.sette_dopo);
      EXPECT_EQ(Campo(g.edita, C::Cliente).attivo, !caso.sei_dopo);
      EXPECT_EQ(Campo(g.edita, C::CodCliente).attivo, !caso.sette_dopo);
      EXPECT_EQ(g.Fuoco(), caso.fuoco);
    }
}

TEST(Caselle, AltGrTieneOLiberaIlCampo) {
  Giornata_Di_Prova g;
  g.Apri();
  EXPECT_TRUE(InvertiSpuntaCampo(g.programma, g.edita, Indice(C::ZonaP)));
  EXPECT_TRUE(g.edita.Check[2].segnata);
  EXPECT_TRUE(InvertiSpuntaCampo(g.programma, g.edita, Indice(C::ZonaP)));
  EXPECT_FALSE(g.edita.Check[2].segnata);
  for (const C campo : {C::Colli, C::NCV, C::Commento, C::Allergeni, C::Iva, C::Num})
    EXPECT_FALSE(InvertiSpuntaCampo(g.programma, g.edita, Indice(campo))) << n(campo);
}

// A field that closes under the operator hands the focus on.
TEST(Caselle, AltGrInUnCampoCheSiChiudePassaAvanti) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Fuoco();
  InvertiSpuntaCampo(g.programma, g.edita, Indice(C::Peso));
  EXPECT_EQ(g.Fuoco(), n(C::Prezzo));
  InvertiSpuntaCampo(g.programma, g.edita, Indice(C::Prezzo));
  EXPECT_EQ(g.Fuoco(), n(C::Lotti));
  InvertiSpuntaCampo(g.programma, g.edita, Indice(C::Fornitore));
  EXPECT_EQ(g.Fuoco(), n(C::Cliente));
  InvertiSpuntaCampo(g.programma, g.edita, Indice(C::Cliente));
  EXPECT_EQ(g.Fuoco(), n(C::CodCliente));
  InvertiSpuntaCampo(g.programma, g.edita, Indice(C::CodCliente));
  EXPECT_EQ(g.Fuoco(), n(C::Cliente));
}

TEST(Caselle, LiberaCampiRiapreQuelliCheNonSiRaggiungono) {
  Giornata_Di_Prova g;
  g.Apri();
  for (const int casella : {5, 8, 9, 2}) g.Segna(casella);
  LiberaCampi(g.edita);
  for (const std::size_t casella : {5U, 8U, 9U}) EXPECT_FALSE(g.edita.Check[casella].segnata) << casella;
  for (const C campo : {C::Fornitore, C::Peso, C::Prezzo}) EXPECT_TRUE(Campo(g.edita, campo).attivo);
  EXPECT_TRUE(g.edita.Check[2].segnata);
  EXPECT_TRUE(g.edita.Check[7].segnata);
}

TEST(Caselle, MarcaESmarca) {
  Giornata_Di_Prova g;
  g.Apri();
  const std::vector<std::size_t> di_marca = {2, 3, 4, 10, 11, 13, 14, 15, 16};
  EXPECT_EQ(VoceMarca(g.edita), "Marca");
  g.edita.Check[10].segnata = true;
  Marca(g.edita);
  EXPECT_EQ(VoceMarca(g.edita), "SMarca");
  for (const std::size_t c : di_marca) EXPECT_TRUE(g.edita.Check[c].segnata) << c;
  for (const std::size_t c : {1U, 5U, 6U, 8U, 9U, 18U}) EXPECT_FALSE(g.edita.Check[c].segnata) << c;
  g.edita.Check[1].segnata = true;
  Marca(g.edita);
  EXPECT_EQ(VoceMarca(g.edita), "Marca");
  for (const std::size_t c : di_marca) EXPECT_FALSE(g.edita.Check[c].segnata) << c;
  EXPECT_TRUE(g.edita.Check[1].segnata);
  EXPECT_TRUE(g.edita.Check[7].segnata);
  EXPECT_TRUE(g.edita.Check[12].segnata);
}

TEST(Doppio_Clic, Lotti) {
  struct Caso {
    const char* prima;
    bool automatico;
    const char* dopo;
  };
  for (const Caso& caso :
       {Caso{"", false, "250314"}, Caso{"250314", false, "140325"}, Caso{"140325", false, "250314"},
        Caso{" MB250314 ", false, "140325"}, Caso{"qualcosa", false, "250314"},
        Caso{"MB250314", true, "MB140325"}, Caso{"MB140325", true, "MB250314"}, Caso{"", true, "MB250314"}}) {
    Giornata_Di_Prova g;
    g.programma.preferenze.FlagLottiAutomatici = caso.automatico;
    g.Apri();
    g.programma.PrefissoLotto = "MB";
    g[C::Lotti] = caso.prima;
    g.edita.Aggiungi.attivo = false;
    DoppioClicCampo(g.programma, g.edita, Indice(C::Lotti));
    EXPECT_EQ(g[C::Lotti], caso.dopo) << caso.prima;
    EXPECT_TRUE(g.edita.Aggiungi.attivo);
  }
}

TEST(Doppio_Clic, Allergeni) {
  struct Caso {
    const char *prima, *dopo;
  };
  for (const Caso& caso :
       {Caso{"-", "Assenti"}, Caso{"Assenti", "Presenti"}, Caso{"Presenti", "PESCE - MOLLUSCHI - CROSTACEI"},
        Caso{"PESCE - MOLLUSCHI - CROSTACEI", "Assenti"}, Caso{"XXX Assenti", "XXX Assenti"}, Caso{"", ""}}) {
    Giornata_Di_Prova g;
    g.Apri();
    g[C::Allergeni] = caso.prima;
    DoppioClicCampo(g.programma, g.edita, Indice(C::Allergeni));
    EXPECT_EQ(g[C::Allergeni], caso.dopo);
  }
}

TEST(Doppio_Clic, DateERiferimento) {
  Giornata_Di_Prova g;
  g.programma.preferenze.FlagModificaCV = true;
  g.Apri();
  DoppioClicCampo(g.programma, g.edita, Indice(C::DataCV));
  EXPECT_EQ(g[C::DataCV], "14/03/2025");
  g[C::Prezzo] = "-5";
  RigaImporti(g.programma, g.edita);
  DoppioClicCampo(g.programma, g.edita, Indice(C::DDT_CV));
  EXPECT_EQ(g[C::DDT_CV], "R.Fat NNNNN  - 14/03/2025");
}

TEST(Doppio_Clic, UnCampoChiusoResta) {
  Giornata_Di_Prova g;
  g.Apri();
  DoppioClicCampo(g.programma, g.edita, Indice(C::DataCV));
  EXPECT_EQ(g[C::DataCV], "");
  EXPECT_FALSE(g.edita.Aggiungi.attivo);
}

// A choice or a double click is a change of the row, but no text to look up: the list stays closed.
TEST(Doppio_Clic, NonApreLaLista) {
  Giornata_Di_Prova g;
  g.Apri();
  Semaforo(g.edita, StatoSemaforo::BENE);
  DoppioClicCampo(g.programma, g.edita, Indice(C::Lotti));
  EXPECT_FALSE(g.edita.List1.visibile);
  EXPECT_EQ(g.Luce(), "NORMALE");
}

TEST(Lotto, UnGiornoAvantiEIndietro) {
  struct Caso {
    const char* prima;
    bool avanti, automatico;
    const char* dopo;
  };
  for (const Caso& caso : {Caso{"250314", true, false, "250315"}, Caso{"250314", false, false, "250313"},
                           Caso{"250228", true, false, "250301"}, Caso{"240228", true, false, "240229"},
                           Caso{"250101", false, false, "241231"}, Caso{"MB250314", true, false, "250315"},
                           Caso{"MB250314", true, true, "MB250315"},
                           Caso{"XX250314", false, true, "MB250313"}, Caso{"lotto", true, false, "lotto"},
                           Caso{"", true, true, ""}, Caso{"259999", true, false, "259999"}}) {
    Giornata_Di_Prova g;
    g.programma.preferenze.FlagLottiAutomatici = caso.automatico;
    g.Apri();
    g.programma.PrefissoLotto = "MB";
    g[C::Lotti] = caso.prima;
    PassoLotto(g.programma, g.edita, caso.avanti);
    EXPECT_EQ(g[C::Lotti], caso.dopo) << caso.prima;
  }
}

TEST(Lotto, IlBottoneContaComeUnaModifica) {
  Giornata_Di_Prova g;
  g.Apri();
  g[C::Lotti] = "250314";
  PassoLotto(g.programma, g.edita, true);
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
  EXPECT_FALSE(g.edita.List1.visibile);
}

TEST(Sopra, MostraIlTesto) {
  Giornata_Di_Prova g;
  g.Apri();
  g.RiempiCampi();
  struct Caso {
    C campo;
    Testo linea;
  };
  for (const Caso& caso :
       {Caso{C::Fornitore, "Mare Blu"}, Caso{C::Lotti, "MB250313 -> doppio click per invertire la data"},
        Caso{C::PrimoImb, "Primo Sbarco: , Barca 1"}, Caso{C::Peso, "5x10=50,00 + IVA 5,00 = 55,00 €/kg"_t},
        Caso{C::Prezzo, "5x10=50,00 + IVA 5,00 = 55,00 €/kg"_t},
        Caso{C::Colli, "5x10=50,00 + IVA 5,00 = 55,00 €/kg"_t}}) {
    SopraCampo(g.programma, g.edita, Indice(caso.campo));
    EXPECT_EQ(g.edita.Label2.testo, caso.linea);
    EXPECT_EQ(Campo(g.edita, caso.campo).suggerimento, caso.linea);
  }
  SopraCampo(g.programma, g.edita, Indice(C::Commento));
  EXPECT_EQ(g.edita.Label2.testo, "per etichetta: 10.00 - solfiti");
  EXPECT_EQ(Campo(g.edita, C::Commento).suggerimento, "inserire prezzo - trattamento");
}

TEST(Pulisci, VuotaICampiDa2A33) {
  Giornata_Di_Prova g;
  g.Apri();
  g.RiempiCampi();
  g[C::Commento] = "nota";
  g.edita.Aggiungi.attivo = false;
  g.edita.List1.visibile = true;
  Pulisci(g.programma, g.edita);
  EXPECT_EQ(g[C::Num], "0001");
  for (int campo = 2; campo <= 33; ++campo) EXPECT_EQ(g[static_cast<C>(campo)], "") << campo;
  EXPECT_EQ(g[C::PrimoImb], ", Barca 1");
  EXPECT_EQ(g[C::Allergeni], "-");
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
  EXPECT_FALSE(g.edita.List1.visibile);
}

TEST(Tastierino, CompareSoloSuiCampiNumericiConLeDueSpunte) {
  for (const bool tastierino : {false, true})
    for (const bool mouse : {false, true}) {
      Giornata_Di_Prova g;
      g.programma.preferenze.FlagTastierino = tastierino;
      g.programma.preferenze.FlagMouse = mouse;
      g.Apri();
      for (int i = 0; i < Num_Campi; ++i) {
        const C campo = static_cast<C>(i + 1);
        const bool numerico = campo == C::Peso || campo == C::Prezzo || campo == C::Iva || campo == C::Colli;
        FuocoCampo(g.programma, g.edita, i);
        EXPECT_EQ(g.edita.Frame1.visibile, tastierino && mouse && numerico) << i;
        EXPECT_EQ(g.edita.CampoCorrente, i);
      }
    }
}

TEST(Tastierino, ScriveNelCampoCorrente) {
  Giornata_Di_Prova g;
  g.Apri();
  FuocoCampo(g.programma, g.edita, Indice(C::Peso));
  for (const Vista tasto : {"1", "000", ",", "5", ","}) BottoneTastierino(g.programma, g.edita, tasto);
  EXPECT_EQ(g[C::Peso], "1000,5");
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
  InvioTastierino(g.programma, g.edita);
  EXPECT_EQ(g.Fuoco(), n(C::Prezzo));
  SvuotaTastierino(g.programma, g.edita);
  EXPECT_EQ(g[C::Peso], "");
}

TEST(Fuoco, NascondeListaETastierino) {
  Giornata_Di_Prova g;
  g.Apri();
  g.edita.List1.visibile = g.edita.Frame1.visibile = true;
  FuocoCampo(g.programma, g.edita, Indice(C::Specie));
  EXPECT_FALSE(g.edita.List1.visibile);
  EXPECT_FALSE(g.edita.Frame1.visibile);
}

}  // namespace

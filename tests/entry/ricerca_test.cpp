#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/entry/giornata_di_prova.h"

using C = CampoRiga;
using testing::ElementsAre;

namespace {

struct Caso_Filtro {
  C campo;
  const char* scritto;
  std::vector<Testo> attese;
};
void PrintTo(const Caso_Filtro& caso, std::ostream* uscita) {
  *uscita << Nome_Caso(caso.campo, caso.scritto);
}

class Filtro : public testing::TestWithParam<Caso_Filtro> {};

TEST_P(Filtro, Voci) {
  Giornata_Di_Prova g;
  g.Apri();
  g.Segna(6, false);
  g.Segna(7, false);
  g.Scrivi(GetParam().campo, GetParam().scritto);
  EXPECT_EQ(g.Lista(), GetParam().attese);
  EXPECT_TRUE(g.edita.List1.visibile);
  EXPECT_EQ(g.edita.List1.scelta, 0);
  EXPECT_EQ(g.edita.Label2.testo, GetParam().attese.front());
  EXPECT_EQ(g.edita.CampoLista, Indice(GetParam().campo));
}

INSTANTIATE_TEST_SUITE_P(
    Campi, Filtro,
    testing::Values(
        Caso_Filtro{C::Fornitore, "mar", {"Mare Blu", "Marina Nord"}},
        Caso_Filtro{C::Fornitore, "MARI", {"Marina Nord"}},
        Caso_Filtro{C::Fornitore, "blu", {"non trovato..."}},
        Caso_Filtro{C::Fornitore, "", {"Mare Blu", "Marina Nord"}},
        Caso_Filtro{C::Fornitore, "  mare ", {"Mare Blu"}},
        Caso_Filtro{C::Cliente, "la", {"Laguna Pesca", "Lagunare"}},
        Caso_Filtro{C::CodCliente, "0012", {"00123", "00124"}},
        Caso_Filtro{C::CodCliente, "9", {"non trovato..."}}, Caso_Filtro{C::Specie, "o", {"Orata (Grande)"}},
        // zones: by the number of the area anywhere, but not when it begins with 6
        Caso_Filtro{C::ZonaP, "3", {"A0837 - Mar Mediterraneo", "A0327 - Mar Baltico"}},
        Caso_Filtro{C::ZonaP, "27", {"A0327 - Mar Baltico"}},
        Caso_Filtro{C::ZonaP, " 837", {"A0837 - Mar Mediterraneo"}},
        Caso_Filtro{C::ZonaP, "08", {"A0837 - Mar Mediterraneo"}},
        Caso_Filtro{C::ZonaP, "6", {"6 zona della casa"}},
        Caso_Filtro{C::ZonaP,
                    "a",
                    {"A0837 - Mar Mediterraneo", "A0327 - Mar Baltico", "A1161 - Pacifico nord-occidentale"}},
        Caso_Filtro{C::ZonaP, "61", {"non trovato..."}},
        Caso_Filtro{C::ZonaP, "161", {"A1161 - Pacifico nord-occidentale"}},
        Caso_Filtro{C::ZonaP, "mar", {"non trovato..."}},
        // coded lists: behind the code, but provenance and first landing from the 1st character
        Caso_Filtro{C::StatoFisico, "SAL", {"ABC  SALATO"}},
        Caso_Filtro{C::StatoFisico, "fre", {"FRE Fresco / Refrigerato"}},
        Caso_Filtro{C::StatoFisico, "pes", {"SAL  PESCE"}},
        Caso_Filtro{C::MetodoPesca, "rdt", {"non trovato..."}},
        Caso_Filtro{C::MetodoPesca, "a", {"AEP Ami e palangari"}},
        Caso_Filtro{C::Pezzatura, "m", {"MED Medio"}}, Caso_Filtro{C::Lavorazione, "fil", {"FIL Filone"}},
        Caso_Filtro{C::Preparazione, "int", {"WHL Intero"}}, Caso_Filtro{C::Prov, "it", {"IT Italia"}},
        Caso_Filtro{C::Prov, "001", {"001 IT Laguna Venezia"}},
        Caso_Filtro{C::Prov, "laguna", {"non trovato..."}}, Caso_Filtro{C::PrimoImb, ", b", {", Barca 1"}},
        Caso_Filtro{C::PrimoImb, "", {".", ", Barca 1"}}));

TEST(Ricerca, SpecieVuotaIlSuoCodice) {
  Giornata_Di_Prova g;
  g.Apri();
  g[C::CodSpecie] = "ORA1";
  g.Scrivi(C::Specie, "s");
  EXPECT_EQ(g[C::CodSpecie], "");
}

TEST(Ricerca, IlFiltroNonEntraInSeStesso) {
  Giornata_Di_Prova g;
  g.Apri();
  g.edita.filtro_in_corso = true;
  g.Scrivi(C::Cliente, "la");
  EXPECT_EQ(g.edita.List1.Numero(), 0U);
}

TEST(Ricerca, LarghezzaDellaLista) {
  for (int i = 0; i < Num_Campi; ++i) {
    const C campo = static_cast<C>(i + 1);
    const bool doppia = campo == C::ZonaP || campo == C::Prov || campo == C::MetodoPesca;
    EXPECT_EQ(LarghezzaLista(i), doppia ? 2 : 1);
  }
}

TEST(Cambia, AttivaIComandi) {
  Giornata_Di_Prova g;
  g.Apri();
  g.edita.Modifica.attivo = g.edita.Elimina.attivo = false;
  Campo(g.edita, C::Iva).attivo = Campo(g.edita, C::CodSpecie).attivo = true;
  Semaforo(g.edita, StatoSemaforo::BENE);
  g.Scrivi(C::Lotti, "x");
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
  EXPECT_TRUE(g.edita.Modifica.attivo);
  EXPECT_TRUE(g.edita.Elimina.attivo);
  EXPECT_FALSE(Campo(g.edita, C::Iva).attivo);
  EXPECT_FALSE(Campo(g.edita, C::CodSpecie).attivo);
  EXPECT_EQ(g.Luce(), "NORMALE");
}

TEST(Cambia, CampiCheNonContano) {
  for (const C campo : {C::Iva, C::Controllato, C::CodSpecie, C::Commento}) {
    Giornata_Di_Prova g;
    g.Apri();
    Campo(g.edita, campo).attivo = true;
    Campo(g.edita, campo).visibile = true;
    g.Scrivi(campo, "x");
    EXPECT_FALSE(g.edita.Aggiungi.attivo) << static_cast<int>(campo);
  }
}

TEST(Cambia, CampoChiusoONascostoOSchermoNonPronto) {
  Giornata_Di_Prova g;
  g.Apri();
  Campo(g.edita, C::Lotti).attivo = false;
  g.Scrivi(C::Lotti, "x");
  Campo(g.edita, C::Lotti).attivo = true;
  Campo(g.edita, C::Lotti).visibile = false;
  g.Scrivi(C::Lotti, "x");
  Campo(g.edita, C::Lotti).visibile = true;
  g.edita.pronta = false;
  g.Scrivi(C::Lotti, "x");
  EXPECT_FALSE(g.edita.Aggiungi.attivo);
}

// A TAB or a line end in a field would split the row when the day is read back.
TEST(Cambia, SeparatoriIncollatiSpariscono) {
  Giornata_Di_Prova g;
  g.Apri();
  for (const C campo : {C::Lotti, C::Commento, C::Cliente, C::Iva}) {
    g.Scrivi(campo, "a\tb\r\nc");
    EXPECT_EQ(g[campo], "abc");
  }
}

TEST(Cambia, UnNumeroOUnMenoChiamaUnaMacroENonLaLista) {
  for (const C campo : {C::Fornitore, C::Specie})
    for (const Vista testo : {"-", "-x", "7"}) {  // codes of two digits: macro_test
      Giornata_Di_Prova g;
      g.Apri();
      g[C::CodSpecie] = "ORA1";
      g.Scrivi(campo, testo);
      EXPECT_FALSE(g.edita.Aggiungi.attivo) << testo;
      EXPECT_FALSE(g.edita.List1.visibile) << testo;
      EXPECT_EQ(g[C::CodSpecie], "ORA1");
      EXPECT_EQ(g[campo], testo);
    }
}

struct Caso_Importi {
  const char *prezzo, *peso, *iva, *colli, *linea;
};

TEST(Importi, Linea) {
  for (const char separatore : {',', '.'})
    for (const Caso_Importi& caso : {
             Caso_Importi{"9,80", "12,50", "10", "3", "9,80x12,50=122,50 + IVA 12,25 = 134,75 "},
             Caso_Importi{"5", "10", "22", "", "5x10=50,00 + IVA 11,00 = 61,00 "},
             Caso_Importi{"-5", "2", "10", "", "-5x2=-10,00 + IVA -1,00 = -11,00 "},
             Caso_Importi{"", "10", "10", "", "0x10=0,00 + IVA 0,00 = 0,00 "},
             Caso_Importi{"12,5c", "10", "10", "5", "12,5x5=62,50 + IVA 6,25 = 68,75 (1,25 "},
             Caso_Importi{"12,5C", "10", "4", "2", "12,5x2=25,00 + IVA 1,00 = 26,00 (1,25 "},
             Caso_Importi{"12c", "10", "10", "", "12x0=0,00 + IVA 0,00 = 0,00 (0,00 "},
         }) {
      Giornata_Di_Prova g(separatore);
      g.Apri();
      g[C::Prezzo] = g.N(caso.prezzo);
      g[C::Peso] = g.N(caso.peso);
      g[C::Iva] = caso.iva;
      g[C::Colli] = caso.colli;
      RigaImporti(g.programma, g.edita);
      EXPECT_EQ(g.edita.Label2.testo, g.N(caso.linea) + "€/kg"_t + (PrezzoPerCassa(g.edita) ? ")" : ""));
    }
}

TEST(Importi, UnTestoCheNonEUnNumeroLasciaLaLinea) {
  Giornata_Di_Prova g;
  g.Apri();
  g.edita.Label2.testo = "prima";
  g[C::Prezzo] = "-";
  g[C::Peso] = "1";
  RigaImporti(g.programma, g.edita);
  EXPECT_EQ(g.edita.Label2.testo, "prima");
}

TEST(Importi, SulCampoPesoPrezzoColli) {
  for (const C campo : {C::Peso, C::Prezzo, C::Colli}) {
    Giornata_Di_Prova g;
    g.Apri();
    g.RiempiCampi();
    g.Scrivi(campo, "2");
    EXPECT_THAT(g.edita.Label2.testo, testing::HasSubstr(" + IVA ")) << static_cast<int>(campo);
    EXPECT_FALSE(g.edita.List1.visibile);
  }
}

TEST(Segno, RigaDiCreditoApreIlRiferimento) {
  Giornata_Di_Prova g;
  g.Apri();
  const auto titolo = [&] { return g.edita.Caption[static_cast<std::size_t>(Indice(C::DDT_CV))]; };
  g.Scrivi(C::Prezzo, " -5");
  EXPECT_EQ(titolo().testo, "Rif. Fattura");
  EXPECT_TRUE(Campo(g.edita, C::DDT_CV).attivo);
  EXPECT_TRUE(Campo(g.edita, C::DDT_CV).visibile);
  EXPECT_TRUE(titolo().visibile);
  g.Scrivi(C::Prezzo, "5");
  EXPECT_EQ(titolo().testo, "Rif. DDT");
  EXPECT_FALSE(Campo(g.edita, C::DDT_CV).attivo);
  EXPECT_FALSE(Campo(g.edita, C::DDT_CV).visibile);
  EXPECT_FALSE(titolo().visibile);
}

struct Caso_Segno {
  const char *prezzo, *fat, *ddt, *fat_dopo, *ddt_dopo;
};

TEST(Segno, IlPrezzoPositivoTogliLaNotaDiAccredito) {
  for (const Caso_Segno& caso :
       {Caso_Segno{"5", "NA003", "Rif.Fat. 7", "", ""}, Caso_Segno{"5", "na", "007", "", ""},
        Caso_Segno{"5", "127", "007", "127", "007"}, Caso_Segno{"-5", "NA003", "Rif", "NA003", "Rif"},
        Caso_Segno{"", "NA", "007", "", ""}}) {
    Giornata_Di_Prova g;
    g.Apri();
    g[C::FAT] = caso.fat;
    g[C::DDT] = caso.ddt;
    g[C::Prezzo] = caso.prezzo;
    SegnoPrezzo(g.programma, g.edita);
    EXPECT_EQ(g[C::FAT], caso.fat_dopo);
    EXPECT_EQ(g[C::DDT], caso.ddt_dopo);
  }
}

struct Caso_Caselle {
  bool modifica, mostra, credito;
  bool conto_attivo, conto_visibile, rif_attivo, rif_visibile;
};

TEST(Segno, CampiDelContoVendita) {
  for (const Caso_Caselle& caso : {
           Caso_Caselle{false, false, false, false, false, false, false},
           Caso_Caselle{false, false, true, false, false, true, true},
           Caso_Caselle{false, true, false, false, true, false, true},
           Caso_Caselle{false, true, true, false, true, true, true},
           Caso_Caselle{true, false, false, true, true, true, true},
           Caso_Caselle{true, true, true, true, true, true, true},
       }) {
    Giornata_Di_Prova g;
    g.programma.preferenze.FlagModificaCV = caso.modifica;
    g.programma.preferenze.FlagCaselleCV = caso.mostra;
    g.Apri();
    g[C::Prezzo] = caso.credito ? "-5" : "5";
    SegnoPrezzo(g.programma, g.edita);
    for (const C campo : {C::NCV, C::DataCV, C::SAnt, C::Provvigione, C::Controllato}) {
      EXPECT_EQ(Campo(g.edita, campo).attivo, caso.conto_attivo);
      EXPECT_EQ(Campo(g.edita, campo).visibile, caso.conto_visibile);
      EXPECT_EQ(g.edita.Caption[static_cast<std::size_t>(Indice(campo))].visibile, caso.conto_visibile);
    }
    EXPECT_EQ(Campo(g.edita, C::DDT_CV).attivo, caso.rif_attivo);
    EXPECT_EQ(Campo(g.edita, C::DDT_CV).visibile, caso.rif_visibile);
  }
}

TEST(Specie, Nome) {
  struct Caso {
    const char *voce, *nome;
  };
  for (const Caso& caso :
       {Caso{"Orata (Grande)", "Orata"}, Caso{" Orata ", "Orata"}, Caso{"Orata", "Orata"},
        Caso{"Orata)))", "Orata"}, Caso{"Orata))))", "Orata)"}, Caso{"Sepp )) )", "Sepp ))"},
        Caso{"Orata )", "Orata"}, Caso{"(x)", ""}, Caso{"", ""}})
    EXPECT_EQ(NomeSpecie(caso.voce), caso.nome);
}

TEST(Specie, CompilaDallaDescrizioneIntera) {
  for (const char separatore : {',', '.'}) {
    Giornata_Di_Prova g(separatore);
    g.programma.Vet_Specie[0][0] = separatore == ',' ? "10.5" : "10,5";
    g.Apri();
    CompilaSpecie(g.programma, g.edita, "ORATA (grande)");
    EXPECT_EQ(g[C::Iva], g.N("10,5"));
    EXPECT_EQ(g[C::Alfa], "SBG");
    EXPECT_EQ(g[C::CodNumVeritas], "1001");
  }
}

TEST(Specie, SconosciutaVuotaICodiciELasciaIva) {
  Giornata_Di_Prova g;
  g.Apri();
  g.RiempiCampi();
  CompilaSpecie(g.programma, g.edita, "Tonno");
  for (const C campo : {C::CodSpecie, C::NomeLatino, C::Famiglia, C::NomeComune, C::CodNumVeritas, C::Alfa})
    EXPECT_EQ(g[campo], "");
  EXPECT_EQ(g[C::Iva], "10");
}

TEST(Copie, DalleListe) {
  Giornata_Di_Prova g;
  g.programma.Vet_Fornitori[0][fornitore::Provvigione] = "7.5";
  g.Apri();
  CopiaCliente(g.programma, g.edita, 1);
  EXPECT_EQ(g[C::Cliente], "Trattoria Lido");
  EXPECT_EQ(g[C::CodCliente], "00124");
  EXPECT_TRUE(g.edita.Aggiungi.attivo);
  CopiaFornitore(g.programma, g.edita, 0);
  EXPECT_EQ(g[C::Fornitore], "Mare Blu");
  EXPECT_EQ(g[C::Provvigione], "7,5");
  EXPECT_EQ(g[C::Lotti], "");
  g.programma.preferenze.FlagLottiAutomatici = true;
  CopiaFornitore(g.programma, g.edita, 0);
  EXPECT_EQ(g[C::Lotti], "MB250313");
  CopiaSpecie(g.programma, g.edita, 0);
  EXPECT_EQ(g[C::Specie], "Orata");
  EXPECT_EQ(g[C::Alfa], "SBG");
  CopiaVoce(g.edita, C::ZonaP, "A083721 - Mar Med. Adratico");
  EXPECT_EQ(g[C::ZonaP], "A083721 - Mar Med. Adratico");
  EXPECT_FALSE(g.edita.List1.visibile);
  for (const int fuori : {-1, 99}) {
    CopiaCliente(g.programma, g.edita, fuori);
    CopiaFornitore(g.programma, g.edita, fuori);
    CopiaSpecie(g.programma, g.edita, fuori);
  }
  EXPECT_EQ(g[C::Cliente], "Trattoria Lido");
}

}  // namespace

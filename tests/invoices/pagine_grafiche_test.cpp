#include "invoices/pagine_grafiche.h"

#include <gmock/gmock.h>

#include "printing/registratore.h"
#include "tests/invoices/pagine_di_prova.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct Pagine_Grafiche : Ditta_Di_Prova, testing::Test {
  Pagine_Grafiche() {
    Prepara_Ditta_Fatture(programma);
    macchina.dispositivo = &printer;
    programma.preferenze.BORDO3 = 9;
    programma.preferenze.IBANCommissionario1 = "IT60X0542811101000000123456";
    programma.preferenze.IBANCommissionario2 = "IT02L1234512345123456789012";
    for (std::size_t i = 0; i < 6; ++i) {
      programma.preferenze.Testo_Fattura_Gra[i] = "personalizzata 1 riga " + std::to_string(i + 1);
      programma.preferenze.Testo_Fattura_Gra2[i] = "personalizzata 2 riga " + std::to_string(i + 1);
      programma.preferenze.Testo_Fattura_Completa[i] = "completa riga " + std::to_string(i + 1);
      programma.preferenze.Testo_Fattura[i] = "generica riga " + std::to_string(i + 1);
    }
  }
  Documento_Fattura Fattura(int voci) const {
    return Documento_Di(programma, TipoFattura::Fattura, Vendite(voci));
  }
  Documento_Fattura Nota(int voci) const {
    return Documento_Di(programma, TipoFattura::Nota, Vendite(voci, true));
  }
  bool Stampa(const Documento_Fattura& documento, Tracciato_Fattura tracciato, int copie = 1) {
    return StampaGrafica(programma, documento, tracciato, copie);
  }
  Testo Registrato() {
    Testo testo;
    for (const Testo& riga : registro.righe) testo.append(riga).append("\n");
    registro = {};
    return testo;
  }

  Registro_Pagine registro;
  Registratore printer{macchina.stampante, registro};
};

// Firms print on paper of their own: the places of things are as measured on it.
TEST_F(Pagine_Grafiche, OgniTracciatoAlSuoPosto) {
  struct Caso {
    const char* attesa;
    Tracciato_Fattura tracciato;
    int voci;
    bool nota, esteso;
  };
  using enum Tracciato_Fattura;
  const Caso casi[] = {{"grafica1.pagine", Grafica1, 17, false, false},
                       {"grafica1_estesa.pagine", Grafica1, 2, false, true},
                       {"grafica2.pagine", Grafica2, 26, false, false},
                       {"grafica2_nota_estesa.pagine", Grafica2, 2, true, true},
                       {"grafica3.pagine", Grafica3, 2, false, false},
                       {"grafica4.pagine", Grafica4, 2, false, false},
                       {"nota_grafica.pagine", Nota_Grafica, 11, true, false}};
  for (const auto& [attesa, tracciato, voci, nota, esteso] : casi) {
    programma.preferenze.Flag_fatture_Esteso = esteso;
    EXPECT_TRUE(Stampa(nota ? Nota(voci) : Fattura(voci), tracciato));
    Confronta_Attesa(attesa, Registrato());
  }
}

// A margin that the printer needs must not push the amounts off the paper: the description gives way.
TEST_F(Pagine_Grafiche, ColMargineLargoGliImportiRestanoSulFoglio) {
  programma.preferenze.BORDO3 = 20;
  Stampa(Fattura(1), Tracciato_Fattura::Grafica1);
  const Testo fattura = Registrato();
  EXPECT_THAT(fattura, HasSubstr("p1 riquadro 21.00 85.00 210.00 91.00"));
  EXPECT_THAT(fattura, HasSubstr("p1 testo 22.00 86.00 Arial 8 grassetto: Descrizione"));
  programma.preferenze.BORDO3 = 9;
  Stampa(Fattura(1), Tracciato_Fattura::Grafica1);
  EXPECT_THAT(Registrato(), HasSubstr("p1 riquadro 10.00 85.00 210.00 91.00"));
}

TEST_F(Pagine_Grafiche, LaTestataScalataDiDolvena) {
  programma.Ragione[0] = "DOLVENA Pesca";
  Stampa(Fattura(1), Tracciato_Fattura::Grafica1);
  const Testo pagina = Registrato();
  // margin 9 + 1 and the steps to the right
  for (const Vista riga :
       {"p1 testo 10.00 0.00 Arial 12 grassetto: DOLVENA Pesca di Zennaro",
        "p1 testo 28.00 5.00 Arial 10 grassetto: Comm", "p1 testo 19.00 10.00 Arial 8 grassetto: Fondamenta",
        "p1 testo 24.00 14.00 Arial 8 grassetto: tel. 041", "p1 testo 18.50 18.00 Arial 8 grassetto: P.IVA",
        "p1 testo 25.00 21.00 Arial 8 grassetto: 07 cod. 42"})
    EXPECT_THAT(pagina, HasSubstr(Testo(riga)));
}

TEST_F(Pagine_Grafiche, LaCorniceHaSeiLineeLunghe200) {
  StampaGrafica(programma, Fattura(1), Tracciato_Fattura::Grafica1, 1, {}, true);
  const Testo pagina = Registrato();
  for (const Vista x : {"10.00", "112.00", "134.00", "156.00", "178.00", "200.00"}) {
    const Testo linea = "p1 linea " + Testo(x) + " 85.00 " + Testo(x) + " 285.00 penna 1";
    EXPECT_THAT(pagina, HasSubstr(linea));
  }
  EXPECT_THAT(pagina, HasSubstr("p1 linea 10.00 285.00 210.00 285.00 penna 1"));
  Stampa(Fattura(1), Tracciato_Fattura::Grafica1);
  EXPECT_THAT(Registrato(), Not(HasSubstr("p1 linea")));
}

TEST_F(Pagine_Grafiche, QuanteVociPerPagina) {
  struct Caso {
    Tracciato_Fattura tracciato;
    float altezza;
    int margine;
    bool esteso;
    int voci;
  };
  using enum Tracciato_Fattura;
  const Caso casi[] = {
      {Grafica1, 297, 0, false, 16}, {Grafica1, 297, 7, false, 15},     {Grafica1, 280, 0, false, 14},
      {Grafica1, 100, 0, false, 1},  {Nota_Grafica, 297, 0, false, 10}, {Grafica2, 297, 0, false, 25},
      {Grafica2, 297, 6, true, 13},  {Grafica3, 280, 0, false, 25},     {Grafica4, 297, 0, true, 13}};
  for (const auto& [tracciato, altezza, margine, esteso, voci] : casi) {
    programma.preferenze.DASU3 = margine;
    programma.preferenze.Flag_fatture_Esteso = esteso;
    EXPECT_EQ(VociPerPaginaGrafica(programma, tracciato, altezza), voci);
  }
}

TEST_F(Pagine_Grafiche, LePagineSiContanoPrima) {
  const std::pair<int, int> casi[] = {{16, 1}, {17, 2}, {32, 2}, {33, 3}};
  for (const auto& [voci, pagine] : casi) {
    Stampa(Fattura(voci), Tracciato_Fattura::Grafica1);
    EXPECT_EQ(registro.pagine, pagine) << voci;
    EXPECT_THAT(registro.righe, Contains(HasSubstr("pag. 1 di " + std::to_string(pagine))));
    registro = {};
  }
}

TEST_F(Pagine_Grafiche, OgniCopiaEUnDocumento) {
  Stampa(Fattura(17), Tracciato_Fattura::Grafica1, 3);
  EXPECT_EQ(registro.pagine, 6);
  EXPECT_EQ(std::ranges::count(registro.righe, "documento \"20250314 Fattura 00127 00345\" Registro"), 3);
}

TEST_F(Pagine_Grafiche, SenzaVociNonSiStampa) {
  EXPECT_TRUE(Stampa(Fattura(0), Tracciato_Fattura::Grafica1));
  EXPECT_THAT(registro.righe, IsEmpty());
}

// A printer whose paper lies on its side spoils the printed forms; the plain sheet is turned or not, as it
// can.
TEST_F(Pagine_Grafiche, SuUnFoglioCoricatoIModuliNonSiStampano) {
  macchina.stampante->orizzontale = true;
  printer.orientamento_fisso = true;
  for (const Tracciato_Fattura tracciato :
       {Tracciato_Fattura::Grafica2, Tracciato_Fattura::Grafica3, Tracciato_Fattura::Grafica4})
    EXPECT_FALSE(Stampa(Fattura(1), tracciato));
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_TRUE(Stampa(Fattura(1), Tracciato_Fattura::Grafica1));
  EXPECT_EQ(registro.pagine, 1);
}

TEST_F(Pagine_Grafiche, IlModuloNonEsceDalFoglioASinistra) {
  for (const auto& [bordo, x] : {std::pair<int, Vista>{0, "1.00"}, {9, "1.00"}, {12, "4.00"}}) {
    programma.preferenze.BORDO3 = bordo;
    Stampa(Fattura(1), Tracciato_Fattura::Grafica2);
    EXPECT_THAT(registro.righe, Contains("p1 testo " + Testo(x) + " 94.50 Arial 9: Orata")) << bordo;
    registro = {};
  }
}

TEST_F(Pagine_Grafiche, NomiELottiLunghiNonEntranoNelleColonneVicine) {
  LedgerRow riga = Vendita(Testo(200, 'N'), "1", "1");
  riga[CampoRiga::Lotti] = Testo(80, 'L');
  for (const Tracciato_Fattura tracciato : {Tracciato_Fattura::Grafica1, Tracciato_Fattura::Grafica2}) {
    Stampa(Documento_Di(programma, TipoFattura::Fattura, {riga}), tracciato);
    const auto larghezza = [&](char lettera) {
      for (const Testo& disegnato : registro.righe) {
        const std::size_t inizio = disegnato.find(Testo(5, lettera));
        if (inizio == Testo::npos) continue;
        printer.FontSize = 5;
        printer.FontBold = false;
        return static_cast<double>(printer.TextWidth(disegnato.substr(inizio)));
      }
      return 0.0;
    };
    const double nome = larghezza('N'), lotto = larghezza('L');
    EXPECT_GT(nome, 60);
    EXPECT_LE(nome, 102 - 2);
    EXPECT_GT(lotto, 15);
    EXPECT_LE(lotto, 22 - 2);
    EXPECT_THAT(registro.righe,
                Contains(HasSubstr("  Lotto: " + riga[CampoRiga::Lotti])));  // whole, for the law
    registro = {};
  }
}

TEST_F(Pagine_Grafiche, UnaRigaDiDicituraVuotaTieneIlPosto) {
  programma.preferenze.Testo_Fattura_Gra[1].clear();
  Stampa(Fattura(1), Tracciato_Fattura::Grafica1);
  EXPECT_THAT(registro.righe, Contains("p1 testo 10.00 247.00 Arial 7: personalizzata 1 riga 3"));
}

TEST_F(Pagine_Grafiche, LaDittaSenzaBancaNonLaNomina) {
  programma.preferenze.IBANCommissionario1.clear();
  programma.preferenze.IBANCommissionario2.clear();
  Stampa(Fattura(1), Tracciato_Fattura::Grafica2);
  EXPECT_THAT(Registrato(), Not(HasSubstr("Banca di appoggio")));
}

TEST_F(Pagine_Grafiche, OgniPaginaDiceACheePunto) {
  std::vector<Testo> titoli;
  StampaGrafica(programma, Fattura(17), Tracciato_Fattura::Grafica1, 1,
                [&](const Testo& titolo) { titoli.push_back(titolo); });
  EXPECT_THAT(titoli, ElementsAre("00345 Pagina 1 di 2 in corso...", "00345 Pagina 2 di 2 in corso..."));
}

}  // namespace

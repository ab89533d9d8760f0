#include "printing/pagina_righe.h"

#include "tests/printing/stampa_di_prova.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

struct Stampa_Di_Righe : Stampa_Di_Prova {
  Stampa_Di_Righe() {
    foglio.documento = {"20250314", "Prova", "", ""};
    foglio.codice = "Prova";
    foglio.testa = {"Titolo"};
  }
  void Stampa() { Stampa_Righe(programma, foglio, titolo); }

  Foglio_Di_Righe foglio;
  Testo titolo = "Schermo";
};

TEST_F(Stampa_Di_Righe, UnaPagina) {
  foglio.righe = {{"prima"}, {"seconda", true}};
  Stampa();
  EXPECT_THAT(registro.righe,
              ElementsAre("documento \"20250314 Prova\" Registro", "pagina 1 verticale 210x297",
                          "p1 testo 10.00 10.00 Courier New 11 grassetto: Titolo",
                          "p1 testo 174.38 10.00 Courier New 11: pag. 1 di 1",
                          "p1 testo 10.00 18.79 Courier New 11: prima",
                          "p1 testo 10.00 23.19 Courier New 11 grassetto: seconda", "fine"));
  EXPECT_EQ(titolo, "Schermo");
}

// An empty sheet would cost paper and say nothing.
TEST_F(Stampa_Di_Righe, SenzaRigheNonEsceNulla) {
  Stampa();
  EXPECT_THAT(registro.righe, IsEmpty());
  EXPECT_EQ(titolo, "Schermo");
}

TEST_F(Stampa_Di_Righe, LePagineDopoLaPrimaHannoLaLoroTesta) {
  foglio.testa_seguito = {"Titolo (continua)"};
  foglio.righe.assign(130, {"riga"});
  Stampa();
  EXPECT_EQ(registro.pagine, 3);
  EXPECT_THAT(registro.righe, Contains(EndsWith(": Titolo")).Times(1));
  EXPECT_THAT(registro.righe, Contains(EndsWith(": Titolo (continua)")).Times(2));
  EXPECT_THAT(registro.righe, Contains(EndsWith(": Continua ...")).Times(2));
  EXPECT_THAT(registro.righe, Contains(EndsWith(": riga")).Times(130));
  EXPECT_THAT(registro.righe, Contains(EndsWith("pag. 3 di 3")).Times(1));
}

// 81 letters of eleven points are as wide as the sheet between its borders.
TEST_F(Stampa_Di_Righe, UnaRigaLargaRimpiccioliscETuttoIlDocumento) {
  struct Caso {
    std::size_t lettere;
    Vista punti;
    std::size_t restano;
  };
  const Caso casi[] = {{81, " 11: ", 81},  {82, " 10.5: ", 82}, {100, " 8.5: ", 100},
                       {149, " 6: ", 149}, {150, " 6: ", 149},  {5000, " 6: ", 149}};
  for (const Caso& caso : casi) {
    registro = {};
    foglio.righe = {{"corta"}, {Testo(caso.lettere, '#')}};
    Stampa();
    EXPECT_THAT(registro.righe, Contains(HasSubstr(Testo(caso.punti) + "corta"))) << caso.lettere;
    EXPECT_THAT(registro.righe, Contains(EndsWith(Testo(caso.punti) + Testo(caso.restano, '#'))))
        << caso.lettere;
  }
}

// A list is one document: of a stopped one nothing comes out, where the printer takes it back.
TEST_F(Stampa_Di_Righe, EscFermaTraDuePagine) {
  foglio.righe.assign(130, {"riga"});
  macchina.ferma_dopo = 2;
  Stampa();
  EXPECT_EQ(registro.pagine, 2);
  EXPECT_EQ(registro.righe.back(), "abbandonato");
  EXPECT_EQ(titolo, "Schermo");
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 0 pagine su 3."));
  macchina.messaggi.clear();
  macchina.ferma_dopo.reset();
  Stampa();  // the next one is as any other
  EXPECT_EQ(registro.pagine, 2 + 3);
  EXPECT_EQ(registro.righe.back(), "fine");
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

// Pages that a printer has taken come out.
TEST_F(Stampa_Di_Righe, LePagineGiaConsegnateSiContano) {
  struct Di_Carta : Registratore {
    using Registratore::Registratore;
    bool Abbandona_Documento() override { return !Finisci_Documento(); }
  } carta{macchina.stampante, registro};
  macchina.dispositivo = &carta;
  foglio.righe.assign(130, {"riga"});
  macchina.ferma_dopo = 2;
  Stampa();
  EXPECT_EQ(registro.righe.back(), "fine");
  EXPECT_THAT(macchina.messaggi, ElementsAre("Stampa interrotta: 2 pagine su 3."));
}

// Borders that leave no room at all: the document comes out, however little of it.
TEST_F(Stampa_Di_Righe, ConBordiImpossibiliFinisceLoStesso) {
  programma.preferenze.BORDO3 = 150;
  programma.preferenze.DASU3 = 400;
  foglio.righe.assign(3, {"riga"});
  Stampa();
  EXPECT_EQ(registro.pagine, 3);
  EXPECT_EQ(registro.righe.back(), "fine");
}

}  // namespace

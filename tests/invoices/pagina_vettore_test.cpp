#include "invoices/pagina_vettore.h"

#include <gmock/gmock.h>

#include "core/numeri.h"
#include "invoices/pagine_grafiche.h"
#include "printing/registratore.h"
#include "tests/invoices/pagine_di_prova.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct Pagina_Vettore : Ditta_Di_Prova, testing::Test {
  Pagina_Vettore() {
    Prepara_Ditta_Fatture(programma);
    macchina.dispositivo = &printer;
    programma.preferenze.BORDO3 = 9;
    programma.preferenze.IBANCommissionario1 = "IT60X0542811101000000123456";
    programma.preferenze.Testo_Fattura[0] = "generica riga 1";
  }
  Documento_Fattura Fattura(int voci) const {
    auto documento = Documento_Di(programma, TipoFattura::Fattura, Vendite(voci));
    AggiungiSpese(documento.importi, 15, 22);
    documento.trasporto = {.Causale = "Vendita",
                           .Aspetto = "Casse",
                           .Mezzo = "Vettore",
                           .Vettore = {"Trasporti Brenta", "via del Porto, 3", "30015 Chioggia"}};
    return documento;
  }
  Documento_Fattura Nota(int voci) const {
    return Documento_Di(programma, TipoFattura::Nota, Vendite(voci, true));
  }
  Testo Stampa(const Documento_Fattura& documento, int copie = 1) {
    EXPECT_TRUE(StampaGrafica(programma, documento, Tracciato_Fattura::Vettore, copie));
    Testo testo;
    for (const Testo& riga : registro.righe) testo.append(riga).append("\n");
    return testo;
  }

  Registro_Pagine registro;
  Registratore printer{macchina.stampante, registro};
};

// The goods travel with these pages: what the road police reads stands where the drivers know it.
TEST_F(Pagina_Vettore, OgniCosaAlSuoPosto) {
  struct Caso {
    const char* attesa;
    int voci;
    bool nota, esteso;
  };
  const Caso casi[] = {{"vettore.pagine", 26, false, false},
                       {"vettore_esteso.pagine", 3, false, true},
                       {"vettore_nota.pagine", 2, true, false}};
  for (const auto& [attesa, voci, nota, esteso] : casi) {
    programma.preferenze.Flag_fatture_Esteso = esteso;
    Confronta_Attesa(attesa, Stampa(nota ? Nota(voci) : Fattura(voci)));
    registro = {};
  }
}

TEST_F(Pagina_Vettore, LeCasseNellaColonnaEIlLottoSotto) {
  const Testo pagina = Stampa(Fattura(2));
  EXPECT_THAT(pagina, HasSubstr(" Arial 8 grassetto: Colli\n"));
  EXPECT_THAT(pagina, Not(HasSubstr("grassetto: Lotto")));
  EXPECT_THAT(pagina, HasSubstr(" Arial 6.5 corsivo: Sparus aurata  Lotto: MB250313\n"));
}

TEST_F(Pagina_Vettore, SenzaNomeLatinoRestaIlLotto) {
  LedgerRow riga = Vendita("Orata", "1", "1");
  riga[CampoRiga::NomeLatino] = "";
  const Testo pagina = Stampa(Documento_Di(programma, TipoFattura::Fattura, {riga}));
  EXPECT_THAT(pagina, HasSubstr(" Arial 6.5 corsivo: Lotto: MB250313\n"));
}

TEST_F(Pagina_Vettore, IlTrasportoStaSoloSullUltimaPagina) {
  const Testo pagina = Stampa(Fattura(26));
  EXPECT_EQ(registro.pagine, 2);
  for (const char* scritta :
       {"Causale trasporto: Vendita", "Aspetto esteriore dei beni: Casse", "Trasporto mezzo: Vettore",
        "Numero colli: 26", "Peso netto: 651,75kg", "Incaricato del trasporto:", "Trasporti Brenta",
        "via del Porto, 3", "30015 Chioggia", "Ora inizo trasporto____________", "Firma Vettore",
        "Firma Destinatario", "Annotazioni", "Totale Fattura"}) {
    const Testo fine = ": " + Testo(scritta);
    const auto quante =
        std::ranges::count_if(registro.righe, [&](const Testo& riga) { return riga.ends_with(fine); });
    EXPECT_EQ(quante, 1) << scritta;
    EXPECT_THAT(registro.righe,
                Contains(testing::AllOf(testing::StartsWith("p2 "), testing::EndsWith(fine))));
  }
  EXPECT_THAT(registro.righe,
              Contains(testing::AllOf(testing::StartsWith("p1 "), HasSubstr("Continua ..."))));
}

TEST_F(Pagina_Vettore, LaDicituraEFissa) {
  const Testo pagina = Stampa(Fattura(1));
  EXPECT_THAT(pagina, HasSubstr(": NON SI ACCETTANO CONTESTAZIONI SE NON COMUNICATE a MEZZO MAIL O FAX il "
                                "GIORNO SUCCESSIVO alla CONSEGNA della MERCE\n"));
  EXPECT_THAT(pagina, HasSubstr(": Assolve agli obblighi di cui All'art 62, comma1, legge 24 Gennaio n.1, "
                                "convertito, con modifiche, dalla Legge 24 Marcp 2012, n27\n"));
  EXPECT_THAT(pagina, Not(HasSubstr("generica")));
}

TEST_F(Pagina_Vettore, ITotaliNelleCaselle) {
  Importi importi;
  importi.Aliquota = {10, 22, 4.5};
  importi.Imponibile = {1, 2, 3};
  importi.Iva = {4, 5, 6};
  AggiungiSpese(importi, 7, 22);
  std::vector<std::pair<Testo, double>> caselle;
  for (const Casella_Totale& casella : Totali_Vettore(importi, ','))
    caselle.emplace_back(casella.titolo, casella.valore);
  using P = std::pair<Testo, double>;
  EXPECT_THAT(
      caselle,
      ElementsAre(P("Impo. 22%", 2), P("IVA 22%", 5), P("Impo. 10%", 1), P("IVA 10%", 4), P("Impo. 4,5%", 3),
                  P("IVA 4,5%", 6), P("Spese", 7), P("IVA Spese", importi.IvaSpese), P("Totale Imp.", 13),
                  P("Totale IVA", importi.TotaleIva), P("Totale Fattura", importi.TotaleDocumento)));
  EXPECT_DOUBLE_EQ(importi.IvaSpese, 1.54);
}

// What a note gives back was shipped with its invoice: nobody signs for it.
TEST_F(Pagina_Vettore, UnaNotaNonHaTrasporto) {
  const Testo pagina = Stampa(Nota(2));
  EXPECT_THAT(pagina, HasSubstr(": Nota di Credito n. NA005\n"));
  EXPECT_THAT(pagina, HasSubstr(" Colli\n"));
  EXPECT_THAT(pagina, Not(HasSubstr("Firma")));
  EXPECT_THAT(pagina, Not(HasSubstr("Causale")));
}

TEST_F(Pagina_Vettore, QuanteVociPerPagina) {
  for (const auto& [esteso, voci] : {std::pair{false, 25}, std::pair{true, 13}}) {
    programma.preferenze.Flag_fatture_Esteso = esteso;
    EXPECT_EQ(VociPerPaginaGrafica(programma, Tracciato_Fattura::Vettore, 297), voci);
  }
}

TEST_F(Pagina_Vettore, SuUnFoglioCoricatoNonSiStampa) {
  macchina.stampante->orizzontale = true;
  printer.orientamento_fisso = true;
  EXPECT_FALSE(StampaGrafica(programma, Fattura(1), Tracciato_Fattura::Vettore, 1));
  EXPECT_THAT(registro.righe, IsEmpty());
}

// A full last page: the items end above the block, whatever the margin.
TEST_F(Pagina_Vettore, LUltimaVoceNonEntraNelTrasporto) {
  for (const bool esteso : {false, true}) {
    for (const int margine : {0, 10}) {
      programma.preferenze.Flag_fatture_Esteso = esteso;
      programma.preferenze.DASU3 = margine;
      Stampa(Fattura(esteso ? 13 : 25));
      EXPECT_EQ(registro.pagine, 1);
      double ultima = 0;
      for (const Testo& riga : registro.righe)
        if (riga.find("corsivo") != Testo::npos)
          ultima = std::max(ultima, Valore(riga.substr(riga.find(' ', 9) + 1), '.'));
      EXPECT_GT(ultima, 200);
      EXPECT_LE(ultima + 2.5, 297 - 58.5);  // with the height of its letters
      registro = {};
    }
  }
}

TEST_F(Pagina_Vettore, NomiLunghiRestanoNelleLoroCaselle) {
  Documento_Fattura documento = Fattura(1);
  documento.trasporto->Causale = Testo(200, 'C');
  documento.trasporto->Vettore[1] = Testo(200, 'V');
  Stampa(documento);
  printer.FontSize = 5;
  printer.FontBold = false;
  int trovate = 0;
  for (const auto& [lettera, largo] : {std::pair{'C', 80.0F}, std::pair{'V', 60.0F}})
    for (const Testo& riga : registro.righe) {
      if (riga.find(Testo(9, lettera)) == Testo::npos) continue;
      ++trovate;
      EXPECT_THAT(riga, HasSubstr(" Arial 5: "));
      EXPECT_LE(printer.TextWidth(riga.substr(riga.find(" Arial 5: ") + 10)), largo - 2);
    }
  EXPECT_EQ(trovate, 2);
}

}  // namespace

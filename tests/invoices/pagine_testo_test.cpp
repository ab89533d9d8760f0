#include "invoices/pagine_testo.h"

#include <gmock/gmock.h>

#include "tests/invoices/pagine_di_prova.h"

// The pages are the archived form of a document: who keeps them, and who reads them by column, needs every
// line as it is here.

namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct Pagine_Testo : Ditta_Di_Prova, testing::Test {
  Pagine_Testo() { Prepara_Ditta_Fatture(programma); }

  std::vector<Pagina_Testo> Pagine(const Documento_Fattura& documento) const {
    return ComponiPagineTesto(programma, documento);
  }
  std::vector<Pagina_Testo> Fattura(int voci) const {
    return Pagine(Documento_Di(programma, TipoFattura::Fattura, Vendite(voci)));
  }
  Testo File(const Documento_Fattura& documento) const {
    Testo tutto;
    for (const File_Documento& file : PagineDocumento(programma, documento)) tutto += file.contenuto;
    return tutto;
  }
  // The lines of the first item of a document with that sale.
  std::vector<Testo> Righe_Di_Voce(const LedgerRow& riga) const {
    const auto pagina = Pagine(Documento_Di(programma, TipoFattura::Fattura, {riga})).front();
    return {pagina[18], pagina[19]};
  }
};

constexpr std::size_t inizio_tabella = 4;  // lines before it have widths of their own

TEST_F(Pagine_Testo, OgniPaginaColonnaPerColonna) {
  struct Caso {
    const char* attesa;
    TipoFattura tipo;
    int voci;
    bool esteso;
  };
  const Caso casi[] = {{"fattura_1.txt", TipoFattura::Fattura, 1, false},
                       {"fattura_16.txt", TipoFattura::Fattura, 16, false},
                       {"fattura_17_estesa.txt", TipoFattura::Fattura, 17, true},
                       {"fattura_33.txt", TipoFattura::Fattura, 33, false},
                       {"nota_1_estesa.txt", TipoFattura::Nota, 1, true},
                       {"nota_17.txt", TipoFattura::Nota, 17, false}};
  for (const auto& [attesa, tipo, voci, esteso] : casi) {
    programma.preferenze.Flag_fatture_Esteso = esteso;
    Confronta_Attesa(attesa, File(Documento_Di(programma, tipo, Vendite(voci, tipo == TipoFattura::Nota))));
  }
}

TEST_F(Pagine_Testo, SediciVociPerPagina) {
  const std::pair<int, std::size_t> casi[] = {{0, 0}, {1, 1}, {16, 1}, {17, 2}, {32, 2}, {33, 3}, {160, 10}};
  for (const auto& [voci, pagine] : casi) EXPECT_THAT(Fattura(voci), SizeIs(pagine)) << voci;
}

TEST_F(Pagine_Testo, LeRigheVuotePortanoITotaliAlloStessoPosto) {
  const Testo vuota = "| " + Testo(129, ' ') + "|";
  const auto vuote = [&](int voci) { return std::ranges::count(Fattura(voci).back(), vuota); };
  EXPECT_EQ(vuote(1), 28);
  EXPECT_EQ(vuote(17), 28);
  EXPECT_EQ(vuote(15), 0);
  EXPECT_EQ(vuote(16), 0);  // a full last page has none, and ends two lines later
  EXPECT_THAT(Fattura(1).back(), SizeIs(53));
  EXPECT_THAT(Fattura(15).back(), SizeIs(53));
  EXPECT_THAT(Fattura(16).back(), SizeIs(55));
  EXPECT_THAT(Fattura(17).front(), SizeIs(55));
}

TEST_F(Pagine_Testo, LaTabellaELarga132) {
  for (const bool esteso : {false, true}) {
    programma.preferenze.Flag_fatture_Esteso = esteso;
    for (const Pagina_Testo& pagina : Fattura(17)) {
      for (std::size_t i = inizio_tabella; i + 2 < pagina.size(); ++i) {
        if (pagina[i].starts_with("| Continua")) continue;
        EXPECT_EQ(pagina[i].size(), 132U) << pagina[i];
      }
    }
  }
}

TEST_F(Pagine_Testo, LaRigaDelTitolo) {
  Documento_Fattura documento = Documento_Di(programma, TipoFattura::Fattura, Vendite(17));
  const Testo mercato = "           MERCATO ITTICO ALL'INGROSSO";
  EXPECT_EQ(Pagine(documento)[1][1],
            Pad(mercato + "FATTURA N.00127 del  14/03/2025 Rif. Doc. 007 (ds)", 123) + "pag. 2/2");
  documento.RifDocumento.clear();
  EXPECT_EQ(Pagine(documento)[0][1], Pad(mercato + "FATTURA N.00127 del  14/03/2025 ", 123) + "pag. 1/2");
  documento.tipo = TipoFattura::Nota;
  documento.Numero = "NA005";
  documento.RifDocumento = "R.Fat. 00127 - 14/03/2025";
  EXPECT_EQ(
      Pagine(documento)[0][1],
      Pad(mercato + "NOTA di CREDITO N.NA005 del  14/03/2025 Rif. Doc. R.Fat. 00127 - 14/03/2025", 123) +
          "pag. 1/2");
  documento.RifDocumento = Testo(60, 'x');  // too long: nothing is lost, the page's number moves
  EXPECT_EQ(Pagine(documento)[0][1],
            mercato + "NOTA di CREDITO N.NA005 del  14/03/2025 Rif. Doc. " + Testo(60, 'x') + "pag. 1/2");
}

TEST_F(Pagine_Testo, CampiLarghiQuantoLaColonnaSonoTagliati) {
  LedgerRow riga = Vendita(Testo(31, 'n'), "1234,5", "1000000", "10");
  riga[CampoRiga::Prov] = Testo(33, 'z');
  riga[CampoRiga::Lotti] = Testo(28, 'l');
  riga[CampoRiga::NomeLatino] = Testo(31, 'a');
  // what fits is whole; prices and amounts of items are cut like any field
  EXPECT_THAT(Righe_Di_Voce(riga),
              ElementsAre("| " + Testo(31, 'n') + " " + Testo(33, 'z') + " " + Testo(28, 'l') +
                              " 1.234,50 1.000.00 10%   1.234.50  |",
                          "| " + Testo(32, ' ') + Testo(31, 'a') + "   " + Testo(62, ' ') + " |"));
  riga[CampoRiga::Specie] = Testo(32, 'n');
  riga[CampoRiga::Prov] = Testo(34, 'z');
  riga[CampoRiga::Lotti] = Testo(29, 'l');
  EXPECT_EQ(Righe_Di_Voce(riga)[0], "| " + Testo(31, 'n') + " " + Testo(33, 'z') + " " + Testo(28, 'l') +
                                        " 1.234,50 1.000.00 10%   1.234.50  |");
}

TEST_F(Pagine_Testo, ITotaliTroppoLarghiRestanoInteri) {
  LedgerRow riga = Vendita("Tonno", "1000000", "12345,67", "10");
  const auto pagina = Pagine(Documento_Di(programma, TipoFattura::Fattura, {riga})).front();
  EXPECT_EQ(
      pagina[pagina.size() - 4],
      "| 0,00           0,00      12.345.670.000,00 1.234.567.000,00 0,00             0,00      0.00        "
      "        13.580.237.000,00 Euro        |");
}

TEST_F(Pagine_Testo, LeAliquoteNeiTitoliSonoNumeriSemplici) {
  programma.preferenze.Aliquota3 = 4.5;
  const auto pagina = Fattura(1).front();
  EXPECT_EQ(
      pagina[pagina.size() - 5],
      "| IMPONIBILE4,5  IVA4,5%   IMPONIBILE10     IVA10%    IMPONIBILE22     IVA22%    ESENTE              "
      "T O T A L E                   |");
}

TEST_F(Pagine_Testo, GliImportiSonoItalianiSuOgniMacchina) {
  programma.Separatore_Decimale = '.';
  const LedgerRow riga = Vendita("Orata", "12.5", "3.335");
  EXPECT_THAT(Righe_Di_Voce(riga)[0], testing::HasSubstr("12,50    3,34     10%   41,69    "));
}

TEST_F(Pagine_Testo, ICodiciEstesi) {
  programma.preferenze.Flag_fatture_Esteso = true;
  LedgerRow riga = Vendita("Orata", "1", "1");
  EXPECT_EQ(
      Righe_Di_Voce(riga)[1],
      Pad("| " + Testo(32, ' ') + Pad("Sparus aurata", 34) + Pad("OTB-GRA-FRE-WHL-AAA-", 29) + "12/7", 130) +
          " |");
  riga[CampoRiga::CodiciConsolidare] = "senza asterisco";
  EXPECT_EQ(Righe_Di_Voce(riga)[1],
            Pad("| " + Testo(32, ' ') + Pad("Sparus aurata", 34) + "senza asterisco", 130) + " |");
}

TEST_F(Pagine_Testo, UnClienteFuoriListaSiVedeXxx) {
  Documento_Fattura documento = Documento_Di(programma, TipoFattura::Fattura, Vendite(1));
  documento.cliente = {};
  documento.cliente.Codice = "00999";
  const auto pagina = Pagine(documento).front();
  EXPECT_EQ(pagina[0], Testo(125, ' ') + "00999");
  EXPECT_EQ(pagina[8], "| " + Pad("Fondamenta del Vin 7", 65) + "|" + Pad("xxx", 63) + "|");
}

TEST_F(Pagine_Testo, OgniPaginaDiceACheePunto) {
  std::vector<Testo> titoli;
  ComponiPagineTesto(programma, Documento_Di(programma, TipoFattura::Fattura, Vendite(17)),
                     [&](const Testo& titolo) { titoli.push_back(titolo); });
  EXPECT_THAT(titoli, ElementsAre("00345 Pagina 1 di 2 in corso...", "00345 Pagina 2 di 2 in corso..."));
}

TEST_F(Pagine_Testo, SenzaVociNessunFile) {
  EXPECT_THAT(PagineDocumento(programma, Documento_Di(programma, TipoFattura::Fattura, {})), IsEmpty());
}

TEST_F(Pagine_Testo, UnFilePerPagina) {
  const auto file = PagineDocumento(programma, Documento_Di(programma, TipoFattura::Fattura, Vendite(17)));
  ASSERT_THAT(file, SizeIs(2));
  const Testo nome = "00345_FAT_00127_20250314_00042_";
  EXPECT_THAT(file[0].nome, testing::MatchesRegex(nome + "[0-9]+_21.txt"));
  EXPECT_THAT(file[1].nome, testing::MatchesRegex(nome + "[0-9]+_22.txt"));
  EXPECT_TRUE(file[0].contenuto.ends_with("art. 4\r\n\r\n"));
}

}  // namespace

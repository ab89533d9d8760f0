#include "documents/documento.h"

#include <gmock/gmock.h>

#include "tests/documents/documenti_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Pagina {
  int altezza, altezza_dest;
  TipoDoc tipo;
  Tracciato tracciato;
  std::size_t voci;
  Impaginazione attesa;
};

// How many items stand on a page decides where the customer's second sheet begins.
TEST(Impaginazione, RegolaDelSaltoPagina) {
  using enum TipoDoc;
  using enum Tracciato;
  const Pagina casi[] = {
      {172, 0, DDT, Allergeni, 7, {28, 7, 1}},       {172, 0, DDT, Allergeni, 8, {28, 7, 2}},
      {172, 0, DDT, Semplice, 9, {27, 9, 1}},        {172, 0, DDT, Semplice, 10, {27, 9, 2}},
      {172, 0, Sanitario, Allergeni, 6, {24, 6, 1}}, {172, 0, Sanitario, Allergeni, 7, {24, 6, 2}},
      {172, 0, Sanitario, Semplice, 8, {24, 8, 1}},  {172, 0, Sanitario, Semplice, 17, {24, 8, 3}},
      {172, 0, DDT, Vecchio, 9, {27, 9, 1}},         {172, 12, DDT, Allergeni, 1, {24, 6, 1}},
      {293, 0, DDT, Allergeni, 14, {56, 14, 1}},     {293, 0, DDT, Allergeni, 15, {56, 14, 2}},
      {172, 0, DDT, Allergeni, 0, {28, 7, 0}},       {60, 0, DDT, Allergeni, 3, {4, 1, 3}},
      {10, 500, Sanitario, Semplice, 2, {3, 1, 2}},
  };
  for (const Pagina& caso : casi)
    EXPECT_EQ(Impagina(caso.altezza, caso.altezza_dest, caso.tipo, caso.tracciato, caso.voci), caso.attesa)
        << caso.altezza << " mm, " << caso.voci << " voci";
}

// A half goes to the even neighbour: 98 mm are 24 lines, 102 mm are 26.
TEST(Impaginazione, LaMezzaRigaVaAlPari) {
  EXPECT_EQ(Impagina(60 + 98, 0, TipoDoc::DDT, Tracciato::Allergeni, 1).righe, 24);
  EXPECT_EQ(Impagina(60 + 102, 0, TipoDoc::DDT, Tracciato::Semplice, 1).righe, 24);
  EXPECT_EQ(Impagina(60 + 106, 0, TipoDoc::DDT, Tracciato::Semplice, 1).righe, 24) << "26.5 is 26";
  EXPECT_EQ(Impagina(60 + 107, 0, TipoDoc::DDT, Tracciato::Semplice, 1).righe, 27) << "26.75 is 27";
}

TEST(TracciatoDelDocumento, VaConLePreferenze) {
  Preferenze preferenze = Preferenze_Predefinite();
  EXPECT_EQ(ScegliTracciato(preferenze), Tracciato::Semplice);
  preferenze.FlagAllergeni = true;
  EXPECT_EQ(ScegliTracciato(preferenze), Tracciato::Allergeni);
  preferenze.FlagComponiDDTNuovo = false;
  EXPECT_EQ(ScegliTracciato(preferenze), Tracciato::Vecchio);
}

struct Documento_Test : testing::Test, Documenti_Di_Prova {
  std::vector<LedgerRow> RigheDiTutti() const { return RigheDeiDocumenti(programma.Vet_Tabella, ','); }
  Riga_Documento Composta(CampoRiga campo, Vista valore) const {
    LedgerRow riga = Riga(1, "Laguna Pesca", "5");
    riga[campo] = valore;
    return ComponiRiga(programma, riga);
  }
  std::optional<Documento_Cliente> Componi(TipoDoc tipo = TipoDoc::DDT, Vista numero = "007 (ds)",
                                           bool con_prezzi = false) const {
    return ComponiDocumento(programma, "laguna pesca", numero, tipo, con_prezzi,
                            {Riga(1, "Laguna Pesca", "5")});
  }
};

TEST_F(Documento_Test, RigheInOrdineDiClienteSenzaAccrediti) {
  Vendita("Trattoria Lido");
  Vendita("Laguna Pesca", "", "-5");
  Vendita("bar Ponte");
  Vendita("Trattoria Lido", "", "abc");
  std::vector<Testo> numeri;
  for (const LedgerRow& riga : RigheDiTutti()) numeri.push_back(riga[CampoRiga::Num]);
  EXPECT_THAT(numeri, ElementsAre("0003", "0001", "0004")) << "an unreadable price counts as 0, not below it";
}

TEST_F(Documento_Test, UnGiornoVuotoNonHaDocumenti) {
  programma.Vet_Tabella.righe.front()[CampoRiga::Prezzo] = "5";  // left over from a deleted sale
  EXPECT_THAT(RigheDiTutti(), IsEmpty());
  EXPECT_FALSE(PrendeNumero(programma.Vet_Tabella.Riga(1), ','));
}

// A row added after the numbering joins the document of its customer.
TEST_F(Documento_Test, UnaVoceOgniClienteColNumeroDellUltimaRiga) {
  Vendita("Laguna Pesca", "001");
  Vendita("Trattoria Lido", "002 (ds)");
  Vendita("LAGUNA PESCA", " 003 ");
  Vendita("Bar Ponte", " ");
  const auto lista = VociDeiDocumenti(RigheDiTutti(), ',');
  ASSERT_EQ(lista.size(), 3U);
  EXPECT_EQ(lista[0], (VoceDoc{"Trattoria Lido", "002 (ds)"}));
  EXPECT_EQ(lista[1], (VoceDoc{"LAGUNA PESCA", "003"}));
  EXPECT_EQ(lista[2], (VoceDoc{"Bar Ponte", ""}));
}

TEST_F(Documento_Test, SoloAccreditiNessunaVoce) {
  Vendita("Laguna Pesca", "Rif.Fat. 12", "-5");
  EXPECT_THAT(VociDeiDocumenti(RigheDiTutti(), ','), IsEmpty());
}

// Only files of other programs hold such a row: the checks on entry refuse it.
TEST_F(Documento_Test, SenzaPrezzoNellUltimaRigaNessunaVoce) {
  Vendita("Laguna Pesca", "001");
  Vendita("Laguna Pesca", "001", "0");
  EXPECT_THAT(VociDeiDocumenti(RigheDiTutti(), ','), IsEmpty());
}

TEST_F(Documento_Test, UnisceLeRigheUgualiNeiQuattroCampi) {
  std::vector<LedgerRow> righe;
  for (int i = 1; i <= 6; ++i) righe.push_back(Riga(i, "Laguna Pesca", "5"));
  righe[0][CampoRiga::Peso] = "12,50";
  righe[0][CampoRiga::Colli] = "1";
  righe[1][CampoRiga::Specie] = "ORATA";
  righe[1][CampoRiga::Peso] = "1";
  righe[1][CampoRiga::CodiciConsolidare] = "a b c ";  // as keyed, before the day was read back
  righe[2][CampoRiga::Prezzo] = "6";
  righe[3][CampoRiga::Lotti] = "MB250312";
  righe[4][CampoRiga::CodiciConsolidare] = "a b d";
  righe[5][CampoRiga::Specie] = "Alice";
  ConsolidaRighe(righe, ',');
  ASSERT_EQ(righe.size(), 5U);
  EXPECT_EQ(righe[0][CampoRiga::Specie], "Alice");
  std::vector<Testo> pesi;
  for (const LedgerRow& riga : righe) pesi.push_back(riga[CampoRiga::Peso]);
  EXPECT_THAT(pesi, testing::UnorderedElementsAre("13,5", "10", "10", "10", "10"));
  for (const LedgerRow& riga : righe)
    if (riga[CampoRiga::Peso] == "13,5") {
      EXPECT_EQ(riga[CampoRiga::Colli], "3");
      EXPECT_EQ(riga[CampoRiga::Num], "0001");
    }
}

TEST_F(Documento_Test, TestiDiUnaRiga) {
  const auto voce = ComponiRiga(programma, Riga(1, "Laguna Pesca", "5,50"));
  EXPECT_EQ(voce.Descrizione, "orata - MB250313");
  EXPECT_EQ(voce.Latino, "Sparus aurata");
  EXPECT_EQ(voce.Dati, "SBG (Orata): Fresco / Refrigerato,  Non Lavorato, Intero, Attr.pesca=Reti da traino");
  EXPECT_EQ(voce.Zona, "A0837 - Mar Mediterraneo");
  EXPECT_EQ(voce.Origine, "A0837 - Mar Mediterraneo, provenienza Italia");
  EXPECT_EQ(voce.Allergene, "");
  EXPECT_EQ(voce.PrimoImb, ", Barca 1");
  EXPECT_EQ(voce.Peso, 10);
  EXPECT_EQ(voce.Prezzo, 5.5);
  EXPECT_EQ(voce.Colli, 2);
}

TEST_F(Documento_Test, SenzaAlfaIlCodiceEZero) {
  EXPECT_TRUE(Composta(CampoRiga::Alfa, "SB").Dati.starts_with("000 (Orata):"));
  EXPECT_TRUE(Composta(CampoRiga::Alfa, "").Dati.starts_with("000 (Orata):"));
}

// Cut from the fourth character whatever is written there: the paper that customers keep reads so.
TEST_F(Documento_Test, Allergeni) {
  const std::pair<Vista, Vista> casi[] = {
      {"XXX Assenti", ""},
      {"XXX PESCE - MOLLUSCHI - CROSTACEI", ""},
      {"Assenti", "Allergeni:enti"},
      {"PESCE - MOLLUSCHI - CROSTACEI", "Allergeni:CE - MOLLUSCHI - CROSTACEI"},
      {"-", "Allergeni:"},
      {"", "Allergeni:"}};
  for (const auto& [scritto, atteso] : casi)
    EXPECT_EQ(Composta(CampoRiga::Allergeni, scritto).Allergene, atteso);
}

TEST_F(Documento_Test, OrigineDiCattura) {
  EXPECT_EQ(Composta(CampoRiga::Prov, "001 IT Laguna Venezia").Origine,
            "A0837 - Mar Mediterraneo, provenienza IT Laguna Venezia");
}

TEST_F(Documento_Test, OrigineDiAltreZone) {
  LedgerRow riga = Riga(1, "Laguna Pesca", "5");
  riga[CampoRiga::Prov] = "001 IT Laguna";
  const std::pair<Vista, Vista> casi[] = {
      {"B - Prodotto della pesca in acqua dolce", "B - Prodotto della pesca in acqua dolce Prov.  IT Laguna"},
      {"C - Acquicoltura", "C - Acquicoltura Allevato in  IT Laguna"},
      {"acquicoltura", "acquicoltura Allevato in  IT Laguna"},
      // the zone list says "acquacoltura", which isn't the word
      {"C - Prodotto di acquacoltura", "C - Prodotto di acquacoltura Prov.  IT Laguna"},
      {"", " Prov.  IT Laguna"}};
  for (const auto& [zona, atteso] : casi) {
    riga[CampoRiga::ZonaP] = zona;
    EXPECT_EQ(ComponiRiga(programma, riga).Origine, atteso);
  }
}

TEST_F(Documento_Test, ZonaFao) {
  programma.preferenze.FlagFAO = true;
  const std::pair<Vista, Vista> casi[] = {{"A0837 - Mar Mediterraneo", "ZonaP=FAO n.37"},
                                          {"A083721 - nome cambiato", "ZonaP=FAO n.37.2.1"},
                                          {"a0837 - Mar Mediterraneo", "a0837 - Mar Mediterraneo"},
                                          {"A9999 - Altrove", "ZonaP=A9999 - Altrove"},
                                          {"C - Prodotto di acquacoltura", "C - Prodotto di acquacoltura"}};
  for (const auto& [zona, atteso] : casi) EXPECT_EQ(Composta(CampoRiga::ZonaP, zona).Zona, atteso);
  EXPECT_EQ(Composta(CampoRiga::Prov, "001 IT Laguna").Origine, "ZonaP=FAO n.37, provenienza IT Laguna");
}

TEST_F(Documento_Test, NumeriIllegibiliContanoZero) {
  EXPECT_EQ(Composta(CampoRiga::Peso, "x").Peso, 0);
  EXPECT_EQ(Composta(CampoRiga::Colli, "").Colli, 0);
  EXPECT_EQ(Composta(CampoRiga::Peso, "12.5").Peso, 12.5) << "the other separator where it stands alone";
}

TEST_F(Documento_Test, TestataDelDDT) {
  const auto documento = Componi();
  ASSERT_TRUE(documento);
  EXPECT_EQ(documento->Titolo, "DOCUMENTO di TRASPORTO - CEE IT 940");
  EXPECT_EQ(documento->Riga_Numero, "(CEE IT 940) no. 007 del 14/03/2025");
  EXPECT_EQ(documento->Numero, "007 (ds)");
  EXPECT_THAT(documento->Piede, ElementsAre("", ""));
  EXPECT_EQ(documento->destinatario.Codice, "00123");
  EXPECT_EQ(documento->destinatario.Nome, "Laguna Pesca");
  EXPECT_EQ(documento->destinatario.Indirizzo, "Fondamenta 3 - 30121 Venezia");
  EXPECT_EQ(documento->destinatario.PIva, "p. iva 01234567890");
  EXPECT_FALSE(documento->testata_propria);
  EXPECT_TRUE(documento->con_destinazione);
  EXPECT_EQ(documento->pagine, (Impaginazione{27, 9, 1}));
}

TEST_F(Documento_Test, TestataDelDocumentoSanitario) {
  programma.preferenze.DS_intesta[0] = "Mare Blu s.n.c.";
  const auto documento = Componi(TipoDoc::Sanitario, "", true);
  ASSERT_TRUE(documento);
  EXPECT_EQ(documento->Intestazione[0], "Mare Blu s.n.c.");
  EXPECT_EQ(documento->Titolo, "DOCUMENTO sulla TRACCIABILITA' dei PRODOTTI ITTICI");
  EXPECT_EQ(documento->Riga_Numero, "(CEE IT 940) no. ______________ del 14/03/2025");
  EXPECT_EQ(documento->Piede[0], programma.preferenze.PiedePaginaBolla1);
  EXPECT_EQ(documento->Piede[1], programma.preferenze.PiedePaginaBolla2);
  EXPECT_TRUE(documento->con_prezzi);
}

TEST_F(Documento_Test, UnSegnoSenzaNumeroSiScriveAMano) {
  EXPECT_EQ(Componi(TipoDoc::DDT, "(ds)")->Riga_Numero, "(CEE IT 940) no. ______________ del 14/03/2025");
}

TEST_F(Documento_Test, TestataPropriaDellaSarvena) {
  programma.preferenze.Codice_Commissionario = "Sarvena";
  const auto documento = Componi(TipoDoc::Sanitario);
  EXPECT_TRUE(documento->testata_propria);
  EXPECT_TRUE(documento->con_destinazione);
  EXPECT_EQ(documento->Intestazione[0], "SARVENA");
  EXPECT_EQ(documento->Intestazione[5], "CEE IT 940");
  EXPECT_EQ(documento->Titolo, "DOCUMENTO di TRASPORTO");
  EXPECT_EQ(documento->Riga_Numero, "M./I. CEE IT 940 no.007 del 14/03/2025");
}

TEST_F(Documento_Test, IlTracciatoVecchioHaSempreQuellaTestata) {
  programma.preferenze.FlagComponiDDTNuovo = false;
  const auto documento = Componi();
  EXPECT_EQ(documento->tracciato, Tracciato::Vecchio);
  EXPECT_EQ(documento->Intestazione[0], "SARVENA");
  EXPECT_FALSE(documento->con_destinazione);
}

TEST_F(Documento_Test, TotaliERigheUnite) {
  std::vector<LedgerRow> righe;
  for (int i = 1; i <= 3; ++i) righe.push_back(Riga(i, "Laguna Pesca", "5"));
  righe[2][CampoRiga::Specie] = "Seppia";
  const auto documento = ComponiDocumento(programma, "Laguna Pesca", "1", TipoDoc::DDT, false, righe);
  ASSERT_EQ(documento->righe.size(), 2U);
  EXPECT_EQ(documento->righe[0].Peso, 20);
  EXPECT_EQ(documento->Peso_Totale, 30);
  EXPECT_EQ(documento->Colli_Totali, 6);
}

TEST_F(Documento_Test, ClienteFuoriLista) {
  EXPECT_FALSE(ComponiDocumento(programma, "Sconosciuto", "1", TipoDoc::DDT, false, {}));
}

TEST_F(Documento_Test, PuntoDecimale) {
  programma.Separatore_Decimale = '.';
  std::vector<LedgerRow> righe = {Riga(1, "Laguna Pesca", "5.50"), Riga(2, "Laguna Pesca", "5.50")};
  righe[0][CampoRiga::Peso] = "0.25";
  ConsolidaRighe(righe, '.');
  ASSERT_EQ(righe.size(), 1U);
  EXPECT_EQ(righe[0][CampoRiga::Peso], "10.25");
}

}  // namespace

#include "primanota/righe.h"

#include <gmock/gmock.h>

#include "tests/primanota/note_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Righe_Nota : Note_Di_Prova {
  std::vector<Testo> Voci(bool senza_provenienza) const {
    std::vector<Testo> voci;
    for (const Nota& nota : NoteDelGiorno(RigheDelGiorno(programma.Vet_Tabella), senza_provenienza))
      voci.push_back(VoceNota(nota));
    return voci;
  }
  static std::vector<Testo> Numeri(const std::vector<LedgerRow>& righe) {
    std::vector<Testo> numeri;
    for (const LedgerRow& riga : righe) numeri.push_back(riga[CampoRiga::Num]);
    return numeri;
  }
};

TEST_F(Righe_Nota, EsclusoChiHaUnMarchioPiuLungoDiTreCaratteri) {
  const std::pair<Testo, bool> casi[] = {{"ESCLUSO", true}, {"-", false},       {"", false},
                                         {"ESC", false},    {"  ESC  ", false}, {"ESCL", true}};
  for (const auto& [marchio, escluso] : casi) {
    programma.Vet_Clienti = {{"00124", "Lido", "zz", "", "", "", marchio, "-", ""}};
    EXPECT_EQ(ClientiEsclusi(programma).size(), escluso ? 1U : 0U) << marchio;
  }
}

TEST_F(Righe_Nota, IlGiornoVuotoNonHaRighe) {
  EXPECT_THAT(RigheDelGiorno(programma.Vet_Tabella), IsEmpty());
  EXPECT_THAT(Voci(false), IsEmpty());
  programma.Vet_Tabella.righe = {LedgerRow()};  // as "Cancella Tutto" leaves it
  EXPECT_THAT(RigheDelGiorno(programma.Vet_Tabella), IsEmpty());
  Vendita("Laguna")[CampoRiga::Fornitore] = Riga_Vuota;  // the only row was deleted: its fields stay
  EXPECT_THAT(RigheDelGiorno(programma.Vet_Tabella), IsEmpty());
}

TEST_F(Righe_Nota, GliEsclusiSiTolgonoPerCodice) {
  Vendita("Laguna");
  Vendita("Laguna")[CampoRiga::CodCliente] = "00124";
  Vendita("Laguna")[CampoRiga::CodCliente] = " 00124 ";
  LedgerRow& nome = Vendita("Laguna");  // the same name under a code of its own stays
  nome[CampoRiga::Cliente] = "Trattoria Lido";
  std::vector<Cliente_Lasciato> trovati;
  const auto righe = SenzaEsclusi(RigheDelGiorno(programma.Vet_Tabella), ClientiEsclusi(programma), &trovati);
  EXPECT_THAT(Numeri(righe), ElementsAre("0001", "0004"));
  ASSERT_EQ(trovati.size(), 1U);
  EXPECT_EQ(trovati[0].Nome, "Trattoria Lido");
  EXPECT_EQ(programma.Vet_Tabella.Righe(), 4) << "the ledger stays whole";
}

TEST_F(Righe_Nota, UnEsclusoSenzaCodiceNonToglieNessuno) {
  Vendita("Laguna")[CampoRiga::CodCliente] = "";
  EXPECT_EQ(SenzaEsclusi(RigheDelGiorno(programma.Vet_Tabella), {{"", "Senza Codice"}}).size(), 1U);
}

TEST_F(Righe_Nota, UnaNotaPerProvenienzaEFornitore) {
  Vendita("Valle");
  Vendita("Laguna");
  Vendita("laguna ");
  Vendita("Laguna")[CampoRiga::Prov] = "HR Croazia";
  Vendita("Laguna")[CampoRiga::Prov] = " it italia ";
  EXPECT_THAT(Voci(false),
              ElementsAre("HR Croazia ::: Laguna", "IT Italia ::: Laguna", "IT Italia ::: Valle"));
  EXPECT_THAT(Voci(true), ElementsAre(" ::: Laguna", " ::: Valle"));
}

TEST_F(Righe_Nota, LeRigheDellaNota) {
  Vendita("Laguna");
  Vendita("LAGUNA")[CampoRiga::Prov] = " it Italia";
  Vendita("Laguna")[CampoRiga::Prov] = "HR Croazia";
  Vendita("Laguna 2");
  const auto righe = RigheDelGiorno(programma.Vet_Tabella);
  EXPECT_THAT(Numeri(RigheDellaNota(righe, {"IT Italia", "Laguna"}, false)), ElementsAre("0001", "0002"));
  EXPECT_THAT(Numeri(RigheDellaNota(righe, {"", "Laguna"}, true)), ElementsAre("0001", "0002", "0003"));
  EXPECT_THAT(RigheDellaNota(righe, {"FR Francia", "Laguna"}, false), IsEmpty());
}

TEST_F(Righe_Nota, Ordini) {
  std::vector<LedgerRow> righe = {Riga(3, "A"), Riga(1, "A"), Riga(2, "A")};
  righe[0][CampoRiga::Specie] = "alice";
  righe[1][CampoRiga::Specie] = "Seppia";
  righe[2][CampoRiga::Specie] = "Orata";
  OrdinaNota(righe, false);
  EXPECT_THAT(Numeri(righe), ElementsAre("0001", "0002", "0003"));
  OrdinaNota(righe, true);
  EXPECT_THAT(Numeri(righe), ElementsAre("0003", "0002", "0001"));
}

}  // namespace

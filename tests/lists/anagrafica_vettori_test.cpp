#include "lists/anagrafica_vettori.h"

#include "tests/lists/anagrafica_prova.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Anagrafica_Dei_Vettori : public Anagrafica_Aperta {
 protected:
  void Apri_Con(Vista contenuto) {
    Scrivi(nomi_file::Vettori, contenuto);
    Apri(Anagrafica_Vettori());
  }
};

constexpr Vista due = "Trasporti Uno\tvia 1\tChioggia\r\nCorriere Due\tvia 2\tMestre\tquarto\tquinto\r\n";

// No day opening reads this list.
TEST_F(Anagrafica_Dei_Vettori, SiLeggeAprendoLaFinestra) {
  Apri_Con(due);
  EXPECT_EQ(schermo.titolo, "Lista Vettori 2 voci");
  EXPECT_EQ(Anagrafica_Vettori().didascalia_lista, "Lista dei Vettori");
  EXPECT_EQ(schermo.titolo_modulo, "Aggiungi/Modifica Lista dei Vettori");
  EXPECT_THAT(Voci(), ElementsAre("Trasporti Uno - via 1 - Chioggia", "Corriere Due - via 2 - Mestre"));
  std::vector<Testo> didascalie;
  for (const Scritta& scritta : schermo.Caption) didascalie.push_back(scritta.testo);
  EXPECT_THAT(didascalie, ElementsAre("Ragione Sociale", "Via + Civico ", "Cap + Città "_t));
  EXPECT_FALSE(schermo.Privacy.visibile);
}

TEST_F(Anagrafica_Dei_Vettori, SenzaFileLEsempioENessunFile) {
  Apri(Anagrafica_Vettori());
  EXPECT_THAT(Voci(), ElementsAre("Forserivo di Noso Sicuro - via Setetrovo, 22 - Isola che non c'è"_t));
  EXPECT_FALSE(Esiste(nomi_file::Vettori));
  EXPECT_THAT(macchina.messaggi, IsEmpty());
}

TEST_F(Anagrafica_Dei_Vettori, DueCaratteriNonSonoUnVettoreEDelPredefinitoSiVedonoTreCampi) {
  Apri_Con("ab\r\n");
  EXPECT_THAT(Voci(), IsEmpty());
  EXPECT_EQ(schermo.titolo, "Lista Vettori 0 voci");
  std::filesystem::remove(File(nomi_file::Vettori));
  ASSERT_TRUE(Scrivi_Vettori_Predefiniti(programma));
  Apri(Anagrafica_Vettori());
  EXPECT_THAT(Voci(), ElementsAre("Forserivo di Noso Sicuro - trasporti ittici - via Setetrovo, 22"));
}

TEST_F(Anagrafica_Dei_Vettori, AggiungereAccodaELasciaIlResto) {
  Apri_Con(due);
  Compila({"L'Isola", "via è 3"_t, "Venezia"});
  ASSERT_TRUE(Aggiungi_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Vettori), Testo(due) + "L'Isola\tvia \xE8 3\tVenezia\r\n");
  EXPECT_EQ(schermo.titolo, "Lista Vettori 3 voci");
  In_Passo(2, 3);
}

TEST_F(Anagrafica_Dei_Vettori, SenzaNomeIDatiSonoIncompleti) {
  Apri_Con(due);
  Compila({"  ", "via", "citta"});
  EXPECT_FALSE(Aggiungi_Voce(programma, schermo));
  EXPECT_FALSE(Modifica_Voce(programma, schermo));
  EXPECT_THAT(macchina.messaggi, ElementsAre("Dati incompleti...", "Dati incompleti..."));
  EXPECT_EQ(Contenuto(nomi_file::Vettori), due);
}

TEST_F(Anagrafica_Dei_Vettori, ModificareECancellareRiscrivonoTreColonne) {
  Apri_Con(due);
  schermo.Text1[2].testo = "Sottomarina";
  ASSERT_TRUE(Modifica_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Vettori),
            "Trasporti Uno\tvia 1\tSottomarina\r\nCorriere Due\tvia 2\tMestre\r\n");
  ASSERT_TRUE(Elimina_Voce(programma, schermo));
  EXPECT_EQ(Contenuto(nomi_file::Vettori), "Corriere Due\tvia 2\tMestre\r\n");
  In_Passo(0, 1);
}

TEST_F(Anagrafica_Dei_Vettori, UnGuastoLasciaTutto) {
  Apri_Con(due);
  const auto tabella = programma.Vet_Vettori;
  Disco_Pieno(nomi_file::Vettori);
  schermo.Text1[1].testo = "via nuova";
  EXPECT_FALSE(Modifica_Voce(programma, schermo));
  EXPECT_FALSE(Elimina_Voce(programma, schermo));
  EXPECT_FALSE(Aggiungi_Voce(programma, schermo));
  EXPECT_THAT(macchina.messaggi,
              ElementsAre(Errore_Su(nomi_file::Vettori), Errore_Su(nomi_file::Vettori),
                          "Errore =" + std::to_string(ENOSPC) + ' ' + Testo_Errore(ENOSPC)));
  EXPECT_EQ(programma.Vet_Vettori, tabella);
  EXPECT_EQ(Contenuto(nomi_file::Vettori), due);
  EXPECT_EQ(schermo.Text1[1].testo, "via nuova");
}

TEST_F(Anagrafica_Dei_Vettori, CopiaDaVettoreELeTreRighe) {
  Apri_Con(due);
  const auto [mezzo, vettore] = Copia_Del_Vettore(programma, 1);
  EXPECT_EQ(mezzo, "Vettore");
  EXPECT_THAT(vettore, ElementsAre("Corriere Due", "via 2", "Mestre"));
}

}  // namespace

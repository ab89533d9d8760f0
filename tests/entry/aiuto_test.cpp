#include "entry/aiuto.h"

#include <fstream>
#include <gmock/gmock.h>
#include <unistd.h>

#include "tests/piattaforma_finta.h"

using testing::HasSubstr;

namespace {

struct Frase {
  Vista nome;
  Testo testo;
};

// Sentences that the firms' instructions quote, slips of the pen included.
const std::vector<Frase>& Frasi() {
  static const std::vector<Frase> frasi = {
      {"Aiuto_Lotti",
       "L'uso dei lotti è abbligatorio e il programma li scrive regolarmente nei decomenti."_t},
      {"Aiuto_Fatture_1", "Utilizzare le numerazioni automatiche (NumeraFat e NumeraNA)."},
      {"Aiuto_Fatture_1", "che possono essere fatte e rifatte più volte."_t},
      {"Aiuto_Fatture_2", "cliente_numero_data_commissionario_importo_tipo"},
      {"Aiuto_Fatture_2",
       "copiando tutte le fatture (di più commissionari) nella stessa cartella\n"_t
       "queste di ordinano automaticamente per "},
      {"Aiuto_Transazioni", "Formato del file .txt con la lista delle transazioni."},
      {"Aiuto_Transazioni",
       "campo  :  contenuto\n1 : numero fattura\n2 : data=data Fattura\n3 : IBAN Cliente\n"
       "4 : importo da accreditare moltiplicato per 100 (senza separatore decimale)\n"
       "5 : IBAN commmissionario beneficiario\n"},
      {"Aiuto_Transazioni", "il file si trova temporaneamente nella cartella .\\xbanca32"},
      {"Aiuto_Transazioni",
       "Il file viene ricreato ogni volta che si stampano TUTTE le \nfatture e Note di Acredito"},
      {"Aiuto_Transazioni", "Transazioni_"},
      {"Aiuto_Transazioni", "_FAT.txt"},
      {"Aiuto_Numerazione", "La procedura Consolida colli e quantità per Zona/provenienza e Specie."_t},
      {"Aiuto_Numerazione",
       "Il programma raggruppa le voci in modo che ad un cliente corrisponda un unico documento."},
      {"Aiuto_Numerazione",
       "Se viene aggiunta una voce per un cliente che aveva già un numoro di documento la nuova voce viene aggiunta automaticamente al documento preesistente."_t},
      {"Aiuto_Numerazione",
       "Per attribuire manulamente un numero di DDT è necessario disabilitare la numerazione automatica."_t},
      {"Aiuto_Export", "Il file da trasmettere alla Veritas (per eleborare le statistiche):"},
      {"Aiuto_Export", "viene salvato nella cartella:\n\\xVeritas\n"},
      {"Aiuto_Export",
       "è presente solo l'ultimo file creato, tutti gli altri file \n"_t
       "eventualmente presenti vengono cancellati"},
      {"Aiuto_Export", "Il separatore di campo è ; (punto e virgola) e non può essere cambiato."_t},
      {"Aiuto_Export",
       "Se si sceglie una destinazione diversa (per esempio una chiavetta USB)\n"
       "il file viene salvato nella radice del disco (per esempio d:\\ )"},
      {"Aiuto_Etichette",
       "se non si mette il segno meno stampa solo il prezzo e scrive -nessun trattamento-"},
      {"Aiuto_Etichette", "se si mette il segno meno ma non si scrive il trattamento non scrive nulla"},
  };
  return frasi;
}

const Testo& Di(Vista nome) {
  static const Testo niente;
  for (const Voce_Aiuto& aiuto : Aiuti())
    if (aiuto.nome == nome) return aiuto.testo;
  return niente;
}

TEST(Aiuti, FrasiDelleIstruzioni) {
  for (const Frase& frase : Frasi()) EXPECT_THAT(Di(frase.nome), HasSubstr(frase.testo)) << frase.nome;
}

TEST(Aiuti, OrdineDelLavoroConLeFatturePerUltime) {
  const Testo& aiuto = Di("Aiuto");
  std::size_t dove = 0;
  for (const Vista lavoro : {"immettere tutte le righe", "documenti di trasporto", "Prima Nota",
                             "Conti Vendita", "fatture e note di accredito, per ultime"}) {
    const std::size_t trovato = aiuto.find(lavoro);
    ASSERT_NE(trovato, Testo::npos) << lavoro;
    EXPECT_GE(trovato, dove) << lavoro;
    dove = trovato;
  }
}

TEST(Aiuti, EsempioDelPrezzoPerCassa) {
  EXPECT_THAT(Di("Aiuto_Prezzo_Cassa"),
              HasSubstr("Peso 10   Prezzo 12,5c   N colli 5\ndiventa:  Peso 50,00   "
                        "Prezzo 1,25"));
}

TEST(Aiuti, OgniVoceHaUnTestoCheStaInUnMessaggio) {
  std::vector<Testo> voci;
  for (const Voce_Aiuto& aiuto : Aiuti()) {
    voci.push_back(aiuto.voce);
    EXPECT_GT(aiuto.testo.size(), 100U) << aiuto.voce;
    EXPECT_LE(Righe(aiuto.testo).size(), 24U) << aiuto.voce;
  }
  EXPECT_THAT(voci, testing::ElementsAre("Aiuto", "Lotti", "Fatture 1", "Fatture 2", "Transazioni",
                                         "Numerazione DDT e DS", "Specie e Fornitori Predefiniti",
                                         "Prezzo per cassa", "Export Prima Nota Esteso", "Etichette"));
}

TEST(Aiuti, SiMostraComeMessaggio) {
  Piattaforma_Finta macchina;
  Programma programma(macchina);
  MostraAiuto(programma, "Aiuto_Lotti");
  EXPECT_THAT(macchina.messaggi, testing::ElementsAre(Di("Aiuto_Lotti")));
  MostraAiuto(programma, "altro");
  EXPECT_EQ(macchina.messaggi.size(), 1U);
}

// A firm's folder and the installed program's, each with or without the manual.
class Manuale : public testing::Test {
 protected:
  Manuale() {
    programma.Cartella_Dati = ditta;
    std::filesystem::create_directories(ditta);
    std::filesystem::create_directories(installato);
  }
  ~Manuale() override { std::filesystem::remove_all(radice); }
  static void metti(const Percorso& file) { std::ofstream(file) << "%PDF"; }

  Percorso radice = std::filesystem::temp_directory_path() /
                    ("manuale_" + std::to_string(testing::UnitTest::GetInstance()->random_seed()) + "_" +
                     std::to_string(getpid()));
  Percorso ditta = radice / "ditta", installato = radice / "doc";
  Piattaforma_Finta macchina;
  Programma programma{macchina};
};

TEST_F(Manuale, QuelloDellaDittaPrimaDiQuelloInstallato) {
  metti(installato / "Velmara_Guida.pdf");
  ApriManuale(programma, Testo_Percorso(installato));
  EXPECT_THAT(macchina.aperti, testing::ElementsAre(installato / "Velmara_Guida.pdf"));
  metti(ditta / "Velmara_Guida.pdf");
  ApriManuale(programma, Testo_Percorso(installato));
  EXPECT_EQ(macchina.aperti.back(), ditta / "Velmara_Guida.pdf");
  EXPECT_THAT(macchina.messaggi, testing::IsEmpty());
}

// Folders come over from machines that do not care about letter case.
TEST_F(Manuale, SiTrovaComunqueSiaScritto) {
  metti(ditta / "VELMARA_guida.PDF");
  EXPECT_EQ(CercaManuale(programma, Testo_Percorso(installato)), ditta / "VELMARA_guida.PDF");
}

TEST_F(Manuale, SeMancaSiDiceDoveMetterlo) {
  std::filesystem::create_directories(ditta / "Velmara_Guida.pdf");  // a folder is no manual
  ApriManuale(programma, Testo_Percorso(installato));
  EXPECT_THAT(macchina.aperti, testing::IsEmpty());
  ASSERT_EQ(macchina.messaggi.size(), 1U);
  EXPECT_THAT(macchina.messaggi[0], HasSubstr("Il manuale non c'è su questo computer."_t));
  EXPECT_THAT(macchina.messaggi[0], HasSubstr("Velmara_Guida.pdf"));
  EXPECT_THAT(macchina.messaggi[0], testing::EndsWith(Testo_Percorso(ditta)));
}

}  // namespace

#include "entry/nota_acc.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "entry/comandi.h"
#include "tests/entry/giornata_di_prova.h"

namespace {

using C = CampoRiga;

constexpr int prezzo = Indice(C::Prezzo);

struct Dialogo : Giornata_Di_Prova {
  NotaAcc nota;

  explicit Dialogo(char separatore = ',') : Giornata_Di_Prova(separatore) {
    Apri();
    Compila();
    Fuoco();
  }
  void Apri_Dialogo() { Apri_NotaAcc(programma, edita, nota); }
  void Compila_Dialogo(Vista importo, Vista numero, Vista data) {
    nota.Text1[0].testo = importo;
    nota.Text1[1].testo = numero;
    nota.Text1[2].testo = data;
  }
  bool Conferma() { return Conferma_NotaAcc(programma, edita, nota); }
};

// ---- the key

TEST(NotaAcc, SoloIlMenoDelPrezzoApreIlDialogo) {
  Dialogo g;
  EXPECT_FALSE(ChiediNotaAcc(g.edita, prezzo, '5', 0));
  EXPECT_FALSE(ChiediNotaAcc(g.edita, Indice(C::Commento), '-', 0));
  EXPECT_EQ(g.edita.richiesta, Richiesta::Nessuna);
  EXPECT_TRUE(ChiediNotaAcc(g.edita, prezzo, '-', 2));
  EXPECT_EQ(g.edita.richiesta, Richiesta::Nota_Accredito);
  EXPECT_EQ(g[C::Prezzo], "5");  // the key waits for the answer
}

TEST(NotaAcc, MentreUnComandoLavoraIlMenoNonApre) {
  Dialogo g;
  g.edita.attiva = false;
  EXPECT_FALSE(ChiediNotaAcc(g.edita, prezzo, '-', 0));
  EXPECT_EQ(g.edita.richiesta, Richiesta::Nessuna);
}

// ---- opening

TEST(NotaAcc, Apertura) {
  Dialogo g;
  g[C::Prezzo] = "12,5";
  g[C::DDT_CV] = "-";
  g.Apri_Dialogo();
  EXPECT_EQ(g.nota.Text1[0].testo, "12,50");
  EXPECT_EQ(g.nota.Text1[1].testo, "");
  EXPECT_EQ(g.nota.Text1[2].testo, "");
  EXPECT_EQ(g.nota.Caption[0].testo, "Importo  da accreditare ");
  EXPECT_EQ(g.nota.Caption[1].testo, "Numero Fattura di Riferimento");
  EXPECT_EQ(g.nota.Caption[2].testo, "del (data gg/mm/yy)");
  EXPECT_EQ(g.nota.Label1.testo, "data:\ni = ieri\no = oggi");
  EXPECT_EQ(g.nota.fuoco, 0);
}

struct Caso_Importo {
  Testo prezzo, importo;
};

class Importo_Iniziale : public testing::TestWithParam<Caso_Importo> {};

TEST_P(Importo_Iniziale, DalPrezzo) {
  for (const char separatore : {',', '.'}) {
    Dialogo g(separatore);
    g[C::Prezzo] = g.N(GetParam().prezzo);
    g.Apri_Dialogo();
    EXPECT_EQ(g.nota.Text1[0].testo, g.N(GetParam().importo));
  }
}

INSTANTIATE_TEST_SUITE_P(NotaAcc, Importo_Iniziale,
                         testing::Values(Caso_Importo{"5", "5,00"}, Caso_Importo{"-7,25", "7,25"},
                                         Caso_Importo{"0,5", ",50"}, Caso_Importo{"", ",00"},
                                         Caso_Importo{"8,00c", "8,00"}));

struct Caso_Riferimento {
  const char* nome;
  Testo riferimento, numero, data;
};

class Riferimento_Letto : public testing::TestWithParam<Caso_Riferimento> {};

TEST_P(Riferimento_Letto, DaDDT_CV) {
  Dialogo g;
  g[C::DDT_CV] = GetParam().riferimento;
  g.Apri_Dialogo();
  EXPECT_EQ(g.nota.Text1[1].testo, GetParam().numero);
  EXPECT_EQ(g.nota.Text1[2].testo, GetParam().data);
}

INSTANTIATE_TEST_SUITE_P(
    NotaAcc, Riferimento_Letto,
    testing::Values(Caso_Riferimento{"Intero", "Rif.Fat. 1234 - 01/03/2025", "1234", "01/03/2025"},
                    Caso_Riferimento{"Corto", "R.Fat. 12345 - 01/03/2025", "12345", "01/03/2025"},
                    Caso_Riferimento{"Modello", "R.Fat NNNNN  - 14/03/2025", "NNNNN", "14/03/2025"},
                    Caso_Riferimento{"SoloTrattino", "-", "", ""}, Caso_Riferimento{"Vuoto", "", "", ""},
                    Caso_Riferimento{"SenzaTrattino", "007 (ddt)", "", ""},
                    Caso_Riferimento{"TrattinoPrima", "a-b c", "", ""},
                    Caso_Riferimento{"UnoSolo", "a -b", "", ""}, Caso_Riferimento{"Due", "a 1-b", "1", "b"}),
    [](const auto& caso) { return caso.param.nome; });

// ---- keys

struct Caso_Carattere {
  int campo;
  Testo resta;
  char scritto, atteso;
};

class Caratteri_Nota : public testing::TestWithParam<Caso_Carattere> {};

TEST_P(Caratteri_Nota, NeiCampi) {
  Dialogo g;
  const Caso_Carattere& caso = GetParam();
  EXPECT_EQ(FiltraNotaAcc(g.programma, g.nota, caso.campo, caso.resta, caso.scritto), caso.atteso);
}

INSTANTIATE_TEST_SUITE_P(NotaAcc, Caratteri_Nota,
                         testing::Values(Caso_Carattere{0, "", '7', '7'}, Caso_Carattere{0, "12", '.', ','},
                                         Caso_Carattere{0, "12", ',', ','},
                                         Caso_Carattere{0, "1,2", '.', '\0'},
                                         Caso_Carattere{0, "", '-', '\0'}, Caso_Carattere{0, "", 'a', '\0'},
                                         Caso_Carattere{1, "", 'B', 'B'}, Caso_Carattere{1, "", '/', '/'},
                                         Caso_Carattere{2, "", '/', '/'}, Caso_Carattere{2, "", '0', '0'},
                                         Caso_Carattere{2, "", '-', '\0'}, Caso_Carattere{2, "", 'x', '\0'}));

TEST(NotaAcc, LetterePerLaData) {
  struct Lettera {
    char lettera;
    Testo data;
  };
  for (const Lettera& caso : {Lettera{'i', "13/03/2025"}, Lettera{'I', "13/03/2025"},
                              Lettera{'o', "14/03/2025"}, Lettera{'O', "14/03/2025"}}) {
    Dialogo g;
    g.nota.Text1[2].testo = "xx";
    EXPECT_EQ(FiltraNotaAcc(g.programma, g.nota, 2, "xx", caso.lettera), 0);  // the letter isn't kept
    EXPECT_EQ(g.nota.Text1[2].testo, caso.data);
  }
}

// Yesterday is the day before the open day, also over a month's end.
TEST(NotaAcc, IeriEDelGiornoAperto) {
  Dialogo g;
  g.programma.Data_Giorno = "01/03/2025";
  FiltraNotaAcc(g.programma, g.nota, 2, "", 'i');
  EXPECT_EQ(g.nota.Text1[2].testo, "28/02/2025");
}

TEST(NotaAcc, InvioPassaDiCampoInCampo) {
  Dialogo g;
  InvioNotaAcc(g.nota, 0);
  EXPECT_EQ(g.nota.fuoco, 1);
  InvioNotaAcc(g.nota, 1);
  EXPECT_EQ(g.nota.fuoco, 2);
  InvioNotaAcc(g.nota, 2);
  EXPECT_EQ(g.nota.fuoco, NotaAcc::fuoco_conferma);
}

TEST(NotaAcc, ChiEntraNellaDataVuotaTrovaIlGiorno) {
  Dialogo g;
  FuocoNotaAcc(g.programma, g.nota, 1);
  EXPECT_EQ(g.nota.Text1[2].testo, "");
  FuocoNotaAcc(g.programma, g.nota, 2);
  EXPECT_EQ(g.nota.Text1[2].testo, "14/03/2025");
  g.nota.Text1[2].testo = "01/02/25";
  FuocoNotaAcc(g.programma, g.nota, 2);
  EXPECT_EQ(g.nota.Text1[2].testo, "01/02/25");
}

TEST(NotaAcc, UnGiornoIndietroEUnoAvanti) {
  Dialogo g;
  g.nota.Text1[2].testo = "01/03/2025";
  PassoNotaAcc(g.nota, false);
  EXPECT_EQ(g.nota.Text1[2].testo, "28/02/2025");
  PassoNotaAcc(g.nota, true);
  EXPECT_EQ(g.nota.Text1[2].testo, "01/03/2025");
  g.nota.Text1[2].testo = "domani";
  PassoNotaAcc(g.nota, true);
  EXPECT_EQ(g.nota.Text1[2].testo, "domani");
}

// ---- the reference

TEST(NotaAcc, IlRiferimentoLungoSiAccorcia) {
  EXPECT_EQ(RiferimentoFattura("12", "01/03/2025"), "Rif.Fat. 12 - 01/03/2025");
  EXPECT_EQ(RiferimentoFattura("123", "01/03/2025"), "Rif.Fat. 123 - 01/03/2025");  // 25 characters
  EXPECT_EQ(RiferimentoFattura("1234", "01/03/2025"), "R.Fat. 1234 - 01/03/2025");
  EXPECT_EQ(RiferimentoFattura("12345", "01/03/2025"), "R.Fat. 12345 - 01/03/2025");
  EXPECT_EQ(RiferimentoFattura("12345", "01/03/25"), "Rif.Fat. 12345 - 01/03/25");
}

// ---- confirming

TEST(NotaAcc, ConfermaScriveIQuattroCampiInsieme) {
  for (const char separatore : {',', '.'}) {
    Dialogo g(separatore);
    g[C::Peso] = "1";
    g.Apri_Dialogo();
    g.Compila_Dialogo(g.N("12,5"), " 1234 ", "01/03/2025");
    EXPECT_TRUE(g.Conferma());
    EXPECT_EQ(g[C::Prezzo], g.N("-12,50"));
    EXPECT_EQ(g[C::DDT_CV], "R.Fat. 1234 - 01/03/2025");
    EXPECT_EQ(g[C::DDT], "R.Fat. 1234 - 01/03/2025");
    EXPECT_EQ(g[C::FAT], "NA");  // a price without its minus would have emptied it
    EXPECT_TRUE(g.nota.chiusa);
    EXPECT_EQ(g.Fuoco(), static_cast<int>(C::Prezzo));
    EXPECT_EQ(g.edita.cursore, 1U);  // behind the minus
    EXPECT_EQ(g.edita.Caption[Indice(C::DDT_CV)].testo, "Rif. Fattura");
    EXPECT_TRUE(Campo(g.edita, C::DDT_CV).visibile);
    EXPECT_TRUE(Campo(g.edita, C::DDT_CV).attivo);
    EXPECT_THAT(g.edita.Label2.testo, testing::StartsWith(g.N("-12,50x1=-12,50")));
    EXPECT_TRUE(g.edita.Aggiungi.attivo);
    EXPECT_EQ(g.Luce(), "NORMALE");
  }
}

TEST(NotaAcc, UnImportoSottoUnEuro) {
  Dialogo g;
  g.Apri_Dialogo();
  g.Compila_Dialogo("0,5", "1", "01/03/2025");
  EXPECT_TRUE(g.Conferma());
  EXPECT_EQ(g[C::Prezzo], "-,50");
}

struct Caso_Rifiuto {
  const char* nome;
  Testo numero, data;
  int campo;
};

class Rifiuto_Nota : public testing::TestWithParam<Caso_Rifiuto> {};

TEST_P(Rifiuto_Nota, VuotaIlCampoERimane) {
  Dialogo g;
  g[C::DDT] = "007";
  g.Apri_Dialogo();
  g.Compila_Dialogo("5", GetParam().numero, GetParam().data);
  EXPECT_FALSE(g.Conferma());
  EXPECT_FALSE(g.nota.chiusa);
  EXPECT_EQ(g.nota.Text1[static_cast<std::size_t>(GetParam().campo)].testo, "");
  EXPECT_EQ(g.nota.fuoco, GetParam().campo);
  FuocoNotaAcc(g.programma, g.nota, GetParam().campo);  // who is sent back finds the field empty
  EXPECT_EQ(g.nota.Text1[static_cast<std::size_t>(GetParam().campo)].testo, "");
  EXPECT_EQ(g[C::Prezzo], "5");
  EXPECT_EQ(g[C::DDT], "007");
  EXPECT_EQ(g[C::FAT], "");
}

INSTANTIATE_TEST_SUITE_P(NotaAcc, Rifiuto_Nota,
                         testing::Values(Caso_Rifiuto{"SeiCifre", " 123456 ", "01/03/2025", 1},
                                         Caso_Rifiuto{"SeiCifreESenzaData", "123456", "", 1},
                                         Caso_Rifiuto{"SenzaData", "12", "", 2},
                                         Caso_Rifiuto{"DataImpossibile", "12", "31/02/2025", 2},
                                         Caso_Rifiuto{"MezzaData", "12", "01/03", 2}),
                         [](const auto& caso) { return caso.param.nome; });

// ---- cancelling

TEST(NotaAcc, AnnullaScriveIlMenoDoveEra) {
  Dialogo g;
  g[C::Prezzo] = "12,50";
  g[C::DDT] = "007";
  ChiediNotaAcc(g.edita, prezzo, '-', 0);
  g.Apri_Dialogo();
  Annulla_NotaAcc(g.programma, g.edita, g.nota);
  EXPECT_EQ(g[C::Prezzo], "-12,50");
  EXPECT_EQ(g.edita.cursore, 1U);
  EXPECT_EQ(g[C::DDT], "007");
  EXPECT_EQ(g[C::FAT], "");
  EXPECT_EQ(g.Fuoco(), static_cast<int>(C::Prezzo));
  EXPECT_TRUE(g.nota.chiusa);
  // the sign alone makes it a credit row
  EXPECT_EQ(g.edita.Caption[Indice(C::DDT_CV)].testo, "Rif. Fattura");
}

TEST(NotaAcc, AnnullaInUnPrezzoVuoto) {
  Dialogo g;
  g[C::Prezzo] = "";
  ChiediNotaAcc(g.edita, prezzo, '-', 4);
  g.Apri_Dialogo();
  Annulla_NotaAcc(g.programma, g.edita, g.nota);
  EXPECT_EQ(g[C::Prezzo], "-");
}

// ---- the row

TEST(NotaAcc, LaRigaAggiuntaTieneRiferimentoESigla) {
  Giorno_Di_Due g;
  NotaAcc nota;
  g[C::Peso] = "1";
  Apri_NotaAcc(g.programma, g.edita, nota);
  nota.Text1[0].testo = "12,5";
  nota.Text1[1].testo = "12";
  nota.Text1[2].testo = "01/03/2025";
  ASSERT_TRUE(Conferma_NotaAcc(g.programma, g.edita, nota));
  g.Aggiunge();
  ASSERT_EQ(g.programma.Vet_Tabella.Righe(), 3);
  const LedgerRow& riga = g.Riga(3);
  EXPECT_EQ(riga[C::Prezzo], "-12,50");
  EXPECT_EQ(riga[C::DDT], "Rif.Fat. 12 - 01/03/2025");
  EXPECT_EQ(riga[C::DDT_CV], "Rif.Fat. 12 - 01/03/2025");
  EXPECT_EQ(riga[C::FAT], "NA");
}

TEST(NotaAcc, IlPrezzoTornatoPositivoTogliLaSigla) {
  Dialogo g;
  g.Apri_Dialogo();
  g.Compila_Dialogo("5", "12", "01/03/2025");
  ASSERT_TRUE(g.Conferma());
  g.Scrivi(C::Prezzo, "5,00");
  EXPECT_EQ(g[C::FAT], "");
  EXPECT_EQ(g[C::DDT], "");
  EXPECT_EQ(g.edita.Caption[Indice(C::DDT_CV)].testo, "Rif. DDT");
}

}  // namespace

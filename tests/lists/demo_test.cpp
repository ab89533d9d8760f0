#include <map>

#include "core/giorno.h"
#include "core/numeri.h"
#include "lists/semi.h"
#include "tests/lists/cartella_ditta.h"

using testing::Contains;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

// The sample firm must be one that the program itself could have written.
class Ditta_Di_Esempio : public Cartella_Ditta {
 protected:
  Ditta_Di_Esempio() {
    const Percorso esempio = Percorso(__FILE__).parent_path().parent_path().parent_path() / "data" / "demo";
    for (const auto& voce : std::filesystem::directory_iterator(esempio))
      std::filesystem::copy(voce.path(), programma.Cartella_Dati);
    Leggi_Liste(programma);
    testo = Contenuto("giornata.txt");
    giorno = Leggi_Tabella(testo, programma.Separatore_Decimale);
  }

  static bool Di_Accredito(const LedgerRow& riga) { return Vista(riga[CampoRiga::Prezzo]).starts_with('-'); }
  double Numero_Di(const LedgerRow& riga, CampoRiga campo) const {
    return Numero(riga[campo], programma.Separatore_Decimale).value_or(0);
  }

  Testo testo;
  Tabella giorno;
};

Testo Senza_Nota(Vista descrizione) { return Testo(Pulito(descrizione.substr(0, descrizione.find('(')))); }

bool Partita_Iva_Valida(Vista partita) {
  if (partita.size() != 11) return false;
  int somma = 0;
  for (std::size_t i = 0; i < partita.size(); ++i) {
    int cifra = partita[i] - '0';
    if (i % 2 == 1) cifra = cifra * 2 > 9 ? cifra * 2 - 9 : cifra * 2;
    somma += cifra;
  }
  return somma % 10 == 0;
}

Testo Prima_Del(Vista testo, char segno) { return Testo(Pulito(testo.substr(0, testo.find(segno)))); }

// The merge key as the entry screen composes it, without the blank at its end.
Testo Codici_Attesi(const LedgerRow& riga) {
  Testo codici;
  const auto parte = [&](Vista testo_parte) { (codici += testo_parte) += ' '; };
  parte(Sinistra(riga[CampoRiga::MetodoPesca], 3));
  parte(riga[CampoRiga::Alfa]);
  for (const CampoRiga campo : {CampoRiga::Pezzatura, CampoRiga::StatoFisico, CampoRiga::Lavorazione,
                                CampoRiga::Preparazione, CampoRiga::PrimoImb})
    parte(Sinistra(riga[campo], 3));
  parte(riga[CampoRiga::Allergeni]);
  parte(Prima_Del(riga[CampoRiga::ZonaP], '-'));
  parte(Prima_Del(riga[CampoRiga::Prov], ' '));
  const Vista commento = riga[CampoRiga::Commento];
  if (!Pulito(commento).empty()) (codici += '*') += commento;
  return Testo(Pulito_Destra(codici));
}

TEST_F(Ditta_Di_Esempio, LeListeSiLegganoSenzaMessaggi) {
  EXPECT_THAT(macchina.messaggi, IsEmpty());
  EXPECT_GE(programma.Vet_Clienti.size(), 36U);
  EXPECT_GE(programma.Vet_Fornitori.size(), 8U);
  EXPECT_GE(programma.Vet_Specie.size(), 60U);
  EXPECT_THAT(Righe(Contenuto("_2020_RAGIONE.txt")), SizeIs(7));
  EXPECT_THAT(Contenuto("Velmara_2020.ini"), testing::HasSubstr("nposteggio="));
}

TEST_F(Ditta_Di_Esempio, ClientiConCodiceDiCinqueCifreSoprannomeEPartitaIva) {
  int esclusi = 0, ristoranti = 0;
  std::set<Testo> codici, nomi;
  for (const auto& riga : programma.Vet_Clienti) {
    EXPECT_EQ(riga[cliente::Codice].size(), 5U);
    EXPECT_GE(riga[cliente::RagioneSociale1].size(), 5U);
    EXPECT_NE(riga[cliente::Soprannome], "zz");
    EXPECT_TRUE(Partita_Iva_Valida(riga[cliente::PIva])) << riga[cliente::PIva];
    esclusi += riga[cliente::Escluso] == "ESCLUSO";
    ristoranti += riga[cliente::Ristorante] == "RISTORANTE";
    codici.insert(riga[cliente::Codice]);
    nomi.insert(Minuscolo(riga[cliente::RagioneSociale1]));
  }
  EXPECT_EQ(codici.size(), programma.Vet_Clienti.size());
  EXPECT_EQ(nomi.size(), programma.Vet_Clienti.size());
  EXPECT_EQ(esclusi, 1);
  EXPECT_GE(ristoranti, 3);
}

TEST_F(Ditta_Di_Esempio, FornitoriConProvvigioneECodiceLotto) {
  for (const auto& riga : programma.Vet_Fornitori) {
    EXPECT_EQ(riga[fornitore::Codice].size(), 4U);
    EXPECT_GE(riga[fornitore::RagioneSociale1].size(), 5U);
    EXPECT_GT(Numero(riga[fornitore::Provvigione], ',').value_or(0), 0);
    EXPECT_NE(riga[fornitore::CodiceLotto], "");
    EXPECT_TRUE(Partita_Iva_Valida(riga[fornitore::PIva]));
  }
}

TEST_F(Ditta_Di_Esempio, SpecieConNomiECodiciDellElencoDiRiferimento) {
  std::map<Testo, std::array<Testo, 8>> riferimento;
  for (const auto& riga : Seme_Specie()) riferimento[riga[specie::Alfa]] = riga;
  std::set<Testo> descrizioni;
  for (const auto& riga : programma.Vet_Specie) {
    ASSERT_TRUE(riferimento.contains(riga[specie::Alfa])) << riga[specie::Alfa];
    const auto& ufficiale = riferimento[riga[specie::Alfa]];
    EXPECT_EQ(riga[specie::Iva], "10");
    for (const auto colonna : {specie::NomeLatino, specie::Famiglia, specie::CodiceMercato,
                               specie::NomeFattura, specie::CodiceNumerico})
      EXPECT_EQ(riga[colonna], ufficiale[colonna]) << riga[specie::Descrizione];
    descrizioni.insert(Minuscolo(riga[specie::Descrizione]));
  }
  EXPECT_EQ(descrizioni.size(), programma.Vet_Specie.size());
}

TEST_F(Ditta_Di_Esempio, LaGiornataHaTrentaquattroTabPerRiga) {
  const auto righe = Righe(testo);
  EXPECT_GE(righe.size(), 48U);
  for (const Vista riga : righe) EXPECT_EQ(std::count(riga.begin(), riga.end(), TAB), 34) << riga;
  EXPECT_THAT(testo, testing::EndsWith("\r\n"));
}

TEST_F(Ditta_Di_Esempio, OgniRigaSiTrovaNelleListe) {
  int posto = 0;
  for (const auto& riga : giorno.righe) {
    EXPECT_EQ(riga[CampoRiga::Num], Pad_Sinistra(std::to_string(++posto), 4, '0'));
    const int cliente_riga = Cerca_Cliente_Per_Codice(programma, riga[CampoRiga::CodCliente]);
    ASSERT_GE(cliente_riga, 0);
    const auto& compratore = programma.Vet_Clienti[static_cast<std::size_t>(cliente_riga)];
    EXPECT_EQ(compratore[cliente::RagioneSociale1], riga[CampoRiga::Cliente]);
    EXPECT_EQ(compratore[cliente::Escluso], "-");
    EXPECT_EQ(Provvigione_Fornitore(programma, riga[CampoRiga::Fornitore]), riga[CampoRiga::Provvigione]);
    EXPECT_EQ(riga[CampoRiga::Lotti], Codice_Lotto(programma, riga[CampoRiga::Fornitore]) + "250313");
    const bool nota =
        std::any_of(programma.Vet_Specie.begin(), programma.Vet_Specie.end(), [&](const auto& s) {
          return Senza_Nota(s[specie::Descrizione]) == riga[CampoRiga::Specie] &&
                 s[specie::Alfa] == riga[CampoRiga::Alfa] &&
                 s[specie::NomeLatino] == riga[CampoRiga::NomeLatino] &&
                 s[specie::NomeFattura] == riga[CampoRiga::NomeComune] &&
                 s[specie::CodiceMercato] == riga[CampoRiga::CodSpecie] &&
                 s[specie::Iva] == riga[CampoRiga::Iva];
        });
    EXPECT_TRUE(nota) << riga[CampoRiga::Specie];
    EXPECT_THAT(programma.Vet_Zone,
                Contains(testing::Property(&std::array<Testo, 2>::front, riga[CampoRiga::ZonaP])));
    EXPECT_THAT(programma.Vet_Provenienze, Contains(riga[CampoRiga::Prov]));
    if (riga[CampoRiga::MetodoPesca] != Non_Specificato) {
      EXPECT_THAT(programma.Vet_Metodi, Contains(riga[CampoRiga::MetodoPesca]));
    }
    EXPECT_THAT(programma.Vet_Pezzature, Contains(riga[CampoRiga::Pezzatura]));
    EXPECT_THAT(programma.Vet_Stati, Contains(riga[CampoRiga::StatoFisico]));
    EXPECT_THAT(programma.Vet_Lavorazioni, Contains(riga[CampoRiga::Lavorazione]));
    EXPECT_THAT(programma.Vet_Presentazioni, Contains(riga[CampoRiga::Preparazione]));
    EXPECT_THAT(programma.Vet_Barche, Contains(riga[CampoRiga::PrimoImb]));
    EXPECT_THAT(programma.Vet_Allergeni, Contains(riga[CampoRiga::Allergeni]));
  }
}

TEST_F(Ditta_Di_Esempio, OgniRigaPassaLeMisureDellaConvalida) {
  const std::pair<CampoRiga, std::size_t> minime[] = {
      {CampoRiga::Fornitore, 5},    {CampoRiga::Cliente, 5},     {CampoRiga::CodCliente, 5},
      {CampoRiga::Specie, 3},       {CampoRiga::ZonaP, 5},       {CampoRiga::Alfa, 3},
      {CampoRiga::Prov, 5},         {CampoRiga::Lotti, 1},       {CampoRiga::NomeLatino, 3},
      {CampoRiga::Famiglia, 1},     {CampoRiga::NomeComune, 1},  {CampoRiga::MetodoPesca, 1},
      {CampoRiga::Pezzatura, 1},    {CampoRiga::StatoFisico, 1}, {CampoRiga::Lavorazione, 1},
      {CampoRiga::Preparazione, 1}, {CampoRiga::PrimoImb, 1}};
  for (const auto& riga : giorno.righe) {
    for (const auto& [campo, minimo] : minime)
      EXPECT_GE(Pulito(riga[campo]).size(), minimo) << riga[CampoRiga::Num];
    EXPECT_GT(Numero_Di(riga, CampoRiga::Peso), 0);
    EXPECT_NE(Numero_Di(riga, CampoRiga::Prezzo), 0);
    EXPECT_LT(std::abs(Numero_Di(riga, CampoRiga::Prezzo)), 80);
    EXPECT_GT(Numero_Di(riga, CampoRiga::Colli), 0);
    EXPECT_LE(riga[CampoRiga::Commento].size(), 250U);
    EXPECT_EQ(Pulito_Destra(riga[CampoRiga::CodiciConsolidare]), Codici_Attesi(riga));
    EXPECT_EQ(riga[CampoRiga::Prezzo], Formato(riga[CampoRiga::Prezzo], "#0.00", ','));
  }
}

TEST_F(Ditta_Di_Esempio, UnDocumentoPerClienteNumeratoDaUno) {
  std::map<Testo, Testo> documenti;
  std::map<Testo, int> righe_cliente;
  for (const auto& riga : giorno.righe) {
    if (Di_Accredito(riga)) continue;
    const auto [documento, nuovo] = documenti.try_emplace(riga[CampoRiga::CodCliente], riga[CampoRiga::DDT]);
    if (nuovo) {
      EXPECT_EQ(riga[CampoRiga::DDT], Pad_Sinistra(std::to_string(documenti.size()), 3, '0'));
    }
    EXPECT_EQ(documento->second, riga[CampoRiga::DDT]);
    EXPECT_EQ(riga[CampoRiga::FAT], "");
    EXPECT_EQ(riga[CampoRiga::DDT_CV], "-");
    ++righe_cliente[riga[CampoRiga::CodCliente]];
  }
  EXPECT_GE(documenti.size(), 10U);
  EXPECT_GE(
      std::count_if(righe_cliente.begin(), righe_cliente.end(), [](const auto& c) { return c.second > 1; }),
      5);
}

TEST_F(Ditta_Di_Esempio, LeRigheDiAccreditoPortanoIlRiferimentoAllaFattura) {
  int accrediti = 0;
  for (const auto& riga : giorno.righe) {
    if (!Di_Accredito(riga)) continue;
    ++accrediti;
    EXPECT_EQ(riga[CampoRiga::FAT], "NA");
    EXPECT_TRUE(riga[CampoRiga::DDT].starts_with("Rif.Fat. ")) << riga[CampoRiga::DDT];
    EXPECT_EQ(riga[CampoRiga::DDT_CV], riga[CampoRiga::DDT]);
  }
  EXPECT_GE(accrediti, 4);
}

}  // namespace

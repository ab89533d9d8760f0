#include "entry/pagina_etichetta.h"

#include <sstream>

#include "printing/pagina.h"
#include "tests/entry/stampa_di_giornata.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Parti {
  Testo prima, resto;
};

class Spezza : public testing::Test {
 protected:
  // A width in letters of the typewriter face, which are all as wide.
  Parti In(float lettere, Vista testo) {
    g.printer.ScaleMode(Scala_Millimetri);
    g.printer.FontName = "Courier New";
    Parti esito;
    SpezzaTesto(g.printer, g.printer.TextWidth("0") * (lettere + 0.01F), testo, esito.prima, esito.resto);
    return esito;
  }
  Giornata_Con_Stampante g;
};

TEST_F(Spezza, UltimoSpazioPrimaDellaLarghezza) {
  struct Caso {
    float lettere;
    Vista testo, prima, resto;
  };
  const Caso casi[] = {{10, "Orata", "Orata", ""},
                       {10, "0123456789", "0123456789", ""},
                       {10, "Mar Ionio Sud", "Mar Ionio", "Sud"},
                       {9, "Mar Ionio Sud", "Mar Ionio", "Sud"},
                       {8, "Mar Ionio Sud", "Mar", "Ionio Sud"},
                       {5, "Ma Io Su Ov", "Ma Io", "Su Ov"},
                       {5, "Ma Io  Su", "Ma Io", "Su"},
                       {4, "Mediterraneo centrale", "Mediterraneo", "centrale"},
                       {4, "Mediterraneo", "Mediterraneo", ""},
                       {0, "Mar Ionio", "Mar", "Ionio"},
                       {4, " Ionio Sud", " Ionio", "Sud"},
                       {4, "      ", "      ", ""},
                       {4, "Ionio   ", "Ionio", ""},
                       {4, "", "", ""}};
  for (const Caso& caso : casi) {
    const auto [prima, resto] = In(caso.lettere, caso.testo);
    EXPECT_EQ(prima, caso.prima) << caso.testo;
    EXPECT_EQ(resto, caso.resto) << caso.testo;
  }
}

// A box on the page: a text's line, or a cell.
struct Luogo {
  double x1, y1, x2, y2;
  Testo cosa;
};

std::vector<Luogo> Testi(const Registro_Pagine& registro) {
  std::vector<Luogo> esito;
  for (const Testo& riga : registro.righe) {
    std::istringstream parti(riga);
    Testo pagina, genere, nome;
    double x = 0, y = 0, punti = 0;
    if (!(parti >> pagina >> genere >> x >> y >> nome >> punti) || genere != "testo") continue;
    const Testo testo = riga.substr(riga.find(": ") + 2);
    const Metrica& metrica = Metrica_Della_Faccia(Faccia::Sans, riga.find(" grassetto:") != Testo::npos);
    const double unita = punti * Millimetri_Per_Punto / metrica.quadrato;
    // of the line only what letters with their accents and tails take
    esito.push_back({x, y + unita * (metrica.sopra - metrica.quadrato * 0.78),
                     x + unita * static_cast<double>(Unita(metrica, Pulito_Destra(testo))),
                     y + unita * (metrica.sopra + metrica.quadrato * 0.21), testo});
  }
  return esito;
}

std::vector<Luogo> Riquadri(const Registro_Pagine& registro) {
  std::vector<Luogo> esito;
  for (const Testo& riga : registro.righe) {
    std::istringstream parti(riga);
    Testo pagina, genere;
    Luogo luogo{};
    if (parti >> pagina >> genere >> luogo.x1 >> luogo.y1 >> luogo.x2 >> luogo.y2 && genere == "riquadro")
      esito.push_back(luogo);
  }
  return esito;
}

bool Si_Toccano(const Luogo& a, const Luogo& b) {
  constexpr double gioco = 0.02;  // the recording's places are hundredths of a millimetre
  return a.x1 < b.x2 - gioco && b.x1 < a.x2 - gioco && a.y1 < b.y2 - gioco && b.y1 < a.y2 - gioco;
}

bool Dentro(const Luogo& testo, const Luogo& cella) {
  return testo.x1 >= cella.x1 && testo.x2 <= cella.x2 && testo.y1 >= cella.y1 && testo.y2 <= cella.y2;
}

// Each text in one cell, none over another, the frame on the sheet.
void Esigi_Ordine(const Registro_Pagine& registro, const Carta& foglio) {
  const auto testi = Testi(registro), riquadri = Riquadri(registro);
  ASSERT_EQ(riquadri.size(), 5U);  // the frame and four cells
  ASSERT_GE(testi.size(), 14U);
  for (const Luogo& riquadro : riquadri) {
    EXPECT_GE(riquadro.x1, 1);
    EXPECT_GE(riquadro.y1, 1);
    EXPECT_LE(riquadro.x2, foglio.larghezza_stampabile);
    EXPECT_LE(riquadro.y2, foglio.altezza_stampabile);
  }
  for (std::size_t i = 0; i < testi.size(); ++i) {
    EXPECT_EQ(std::count_if(riquadri.begin() + 1, riquadri.end(),
                            [&](const Luogo& cella) { return Dentro(testi[i], cella); }),
              1)
        << testi[i].cosa << " " << testi[i].x2 << " " << testi[i].y2;
    for (std::size_t k = i + 1; k < testi.size(); ++k)
      EXPECT_FALSE(Si_Toccano(testi[i], testi[k])) << testi[i].cosa << " | " << testi[k].cosa;
  }
}

LedgerRow Riga_Lunga() {
  LedgerRow riga = Giornata_Di_Prova::RigaBuona();
  riga[CampoRiga::Specie] = "Gamberi rosa mediterranei di fondale, pezzatura mista da cassa e da banco";
  riga[CampoRiga::NomeLatino] = "Parapenaeus longirostris";
  riga[CampoRiga::ZonaP] = "A02272 - Mare di Norvegia, Spitzbergen e Isola degli Orsi, parte orientale";
  riga[CampoRiga::Prov] = "GB Regno Unito di Gran Bretagna e Irlanda del Nord, porto di Peterhead";
  riga[CampoRiga::MetodoPesca] = "RDT Reti da traino a divergenti, a coppia, pelagiche e semipelagiche";
  riga[CampoRiga::Pezzatura] = "GRA Grande da duecento a trecento grammi";
  riga[CampoRiga::Lavorazione] = "FIL Filettato, spellato e privato delle lische";
  riga[CampoRiga::Preparazione] = "OTH In cassetta di polistirolo con ghiaccio";
  riga[CampoRiga::Lotti] = "MB250313 / 4711 / 0815 / lotto del produttore 20250313-0001";
  riga[CampoRiga::Commento] = "123456,00 - solfiti, polifosfati, acido ascorbico e altri antiossidanti";
  return riga;
}

constexpr Carta carte[] = {
    {}, {297, 210, 297, 210}, {100, 70, 100, 70}, {100, 70, 94, 64}, {62, 100, 59, 94}, {80, 50, 76, 46}};

TEST(Pagina_Etichetta, NullaSiSovrappone) {
  for (const Carta& carta : carte)
    for (LedgerRow riga : {Giornata_Di_Prova::RigaBuona(), Riga_Lunga()})
      for (const bool senza_spazi : {false, true}) {
        SCOPED_TRACE(std::to_string(carta.larghezza_stampabile) + " " + riga[CampoRiga::Specie] +
                     (senza_spazi ? " senza spazi" : ""));
        if (senza_spazi)
          for (Testo& campo : riga.campi) std::ranges::replace(campo, ' ', '.');
        Giornata_Con_Stampante g;
        g.printer.foglio = carta;
        PreparaPagina(g.programma);
        DisegnaEtichetta(g.printer, Componi_Etichetta(riga, ','));
        g.printer.EndDoc();
        Esigi_Ordine(g.registro, carta);
        EXPECT_EQ(g.registro.pagine, 1);
      }
}

// On the paper that it was made for, the label has its letters in full size and a frame as large as the
// paper.
TEST(Pagina_Etichetta, SullaSuaCarta) {
  Giornata_Con_Stampante g;
  g.printer.foglio = Carta{100, 70, 100, 70};
  PreparaPagina(g.programma);
  DisegnaEtichetta(g.printer, Componi_Etichetta(Giornata_Di_Prova::RigaBuona(), ','));
  for (const Vista atteso :
       {"p1 riquadro 1.00 1.00 99.00 69.00 penna 6 #000000", "p1 testo 2.50 2.00 Arial 12 grassetto: Orata",
        "p1 testo 2.50 6.73 Arial 12 grassetto: Prodotto PESCATO"})
    EXPECT_THAT(g.registro.righe, Contains(Testo(atteso)));
  EXPECT_THAT(g.registro.righe, Contains(testing::HasSubstr(" Arial 36 grassetto: 0,00")));
  EXPECT_THAT(g.registro.righe, Contains(testing::HasSubstr(" Arial 32 grassetto: /kg")));
  EXPECT_THAT(g.registro.righe, Contains(testing::EndsWith(" Arial 8: Sparus aurata")));
}

// Two lines each, all of the text on paper, in the same letters as a short one.
TEST(Pagina_Etichetta, SpecieEZonaLungheSuDueRighe) {
  Giornata_Con_Stampante g;
  LedgerRow riga = Giornata_Di_Prova::RigaBuona();
  riga[CampoRiga::Specie] = Riga_Lunga()[CampoRiga::Specie];
  riga[CampoRiga::ZonaP] = Riga_Lunga()[CampoRiga::ZonaP];
  PreparaPagina(g.programma);
  DisegnaEtichetta(g.printer, Componi_Etichetta(riga, ','));
  const auto scritti = g.Scritti();
  EXPECT_EQ(scritti[0] + " " + scritti[1], riga[CampoRiga::Specie]);
  EXPECT_THAT(scritti, Contains("A02272 - Mare di Norvegia, Spitzbergen e Isola degli Orsi, parte"));
  EXPECT_THAT(scritti, Contains("orientale"));
  EXPECT_THAT(g.registro.righe, Contains(testing::HasSubstr(" Arial 12 grassetto: ")).Times(3));
}

// What the law wants on the label is never cut for want of room while there are blanks to break at.
TEST(Pagina_Etichetta, SuUnFoglioStrettoNonSiPerdeNulla) {
  Giornata_Con_Stampante g;
  g.printer.foglio = Carta{62, 100, 59, 97};
  const Contenuto_Etichetta contenuto = Componi_Etichetta(Riga_Lunga(), ',');
  PreparaPagina(g.programma);
  DisegnaEtichetta(g.printer, contenuto);
  Testo tutto;
  for (const Testo& testo : g.Scritti()) tutto += testo + " ";
  for (const Testo& testo : {contenuto.specie, contenuto.origine[0].testo, contenuto.origine[3].testo,
                             contenuto.origine[4].testo, contenuto.lotto.testo, contenuto.trattamento})
    EXPECT_THAT(tutto, testing::HasSubstr(testo));
}

TEST(Pagina_Etichetta, UnFoglioSenzaSpazioNonScriveFuori) {
  Giornata_Con_Stampante g;
  g.printer.foglio = Carta{3, 3, 3, 3};
  PreparaPagina(g.programma);
  DisegnaEtichetta(g.printer, Componi_Etichetta(Riga_Lunga(), ','));
  g.printer.EndDoc();
  EXPECT_EQ(g.registro.pagine, 1);
}

}  // namespace

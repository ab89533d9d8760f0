#include "primanota/stampa_nota.h"

#include <algorithm>

#include "core/numeri.h"
#include "printing/pagina.h"

namespace {

constexpr Vista carattere_ditta = "Arial";
constexpr float punti_righe = 9, punti_minimi = 5;  // of the table; a text too wide for its column is smaller
constexpr float aria = 1;                           // between a text and the edge of its column
constexpr int penna = 1;

// Columns of the table: where they begin, right of the left margin, and how wide their texts may be. The two
// of numbers are followed by a gap.
struct Colonna {
  Vista titolo;
  float sinistra, larghezza;
};
constexpr Colonna numero{" N", 0, 8}, zona{"Zona", 8, 15}, prodotto{"Denom. Prodotto", 23, 40},
    peso{"  KG", 63, 17}, prezzo{"PREZZO", 83, 17};
constexpr float sinistra_compratore = 103, scarto_acquirente = 14, larghezza_lotto = 35;
constexpr float altezza_testa = 18;  // of the boxed head

float F(double valore) { return static_cast<float>(valore); }

// The places on this sheet.
struct Foglio_In_Stampa {
  Printer& printer;
  const Programma& programma;
  const Nota_Stampata& nota;
  Foglio_Nota foglio;
  float sinistra = 0, larghezza = 0;

  float X(float scarto) const { return sinistra + scarto; }
  float Alto(float scarto) const { return F(foglio.alto) + scarto; }
  float Linea(int k) const { return F(AltezzaLinea(foglio, nota.modo, k)); }
  float Lotto() const { return larghezza - larghezza_lotto; }  // where the last column begins
  float Inizio_Testa() const { return Fine_Linea(0) - altezza_testa; }
  float Fine_Linea(int k) const { return Linea(k + 1) - 1; }
};

// The greatest size up to `punti` in which the text keeps within the width.
void Adatta(Printer& printer, Vista testo, float larghezza, float punti) {
  constexpr float passo = 0.5F;
  printer.FontSize = punti;
  while (printer.FontSize > punti_minimi && printer.TextWidth(testo) > larghezza) printer.FontSize -= passo;
}

void Scrivi(const Foglio_In_Stampa& carta, float x, float y, Vista testo, float larghezza) {
  Adatta(carta.printer, testo, larghezza, punti_righe);
  carta.printer.CurrentX = x;
  carta.printer.CurrentY = y;
  carta.printer.Print(testo);
}

// The beginning of a text that fits, up to a blank where there is one.
Vista Parte_Che_Sta(Printer& printer, Vista testo, float larghezza) {
  std::size_t fine = testo.size();
  while (fine > 1 && printer.TextWidth(testo.substr(0, fine)) > larghezza) --fine;
  if (fine == testo.size()) return testo;
  const std::size_t blank = testo.rfind(' ', fine);
  return testo.substr(0, blank == Vista::npos || blank == 0 ? fine : blank);
}

// Goods are traced by their lot, so none of it runs off the sheet: one too long in the smallest letters goes
// over several lines, which have room between two rows.
void Scrivi_Lotto(const Foglio_In_Stampa& carta, float y, Vista lotto) {
  constexpr int linee = 3;
  constexpr float passo = 1.9F;
  const float x = carta.X(carta.Lotto() + aria), larghezza = larghezza_lotto - 2 * aria;
  Adatta(carta.printer, lotto, larghezza, punti_righe);
  for (int linea = 1; linea <= linee; ++linea, y += passo) {
    const Vista parte = linea == linee ? lotto : Parte_Che_Sta(carta.printer, lotto, larghezza);
    carta.printer.CurrentX = x;
    carta.printer.CurrentY = y;
    carta.printer.Print(parte);
    lotto = Pulito(lotto.substr(parte.size()));
    if (lotto.empty()) return;
  }
}

void Scrivi_Destra(const Foglio_In_Stampa& carta, const Colonna& colonna, float y, Vista testo) {
  Adatta(carta.printer, testo, colonna.larghezza - aria, punti_righe);
  StampaDestra(carta.printer, carta.X(colonna.sinistra), y, colonna.larghezza - aria, testo);
}

// ---- head

void Disegna_Testa(const Foglio_In_Stampa& carta, std::size_t pagina) {
  const Nota_Stampata& nota = carta.nota;
  const Testo& fonte = FontePagina(carta.programma);
  const float base = DimFontPagina(carta.programma);
  carta.printer.FontName = fonte;
  carta.printer.FontSize = base;
  carta.printer.FontBold = false;
  StampaDestra(carta.printer, carta.sinistra, carta.Alto(0), carta.larghezza,
               "pagina " + std::to_string(pagina + 1) + " di " + std::to_string(nota.pagine.size()));
  constexpr float altezze[] = {0, 6, 11};
  constexpr float punti[] = {12, 10, 10};
  for (std::size_t i = 0; i < nota.Ditta.size(); ++i)
    StampaTesto(carta.printer, carta.sinistra, carta.Alto(altezze[i]), nota.Ditta[i], carattere_ditta,
                punti[i], i == 0);
  constexpr float riga_titolo = 20, scarto_venditore = 70, riga_provenienza = 35, rientro = 10;
  StampaTesto(carta.printer, carta.sinistra, carta.Alto(riga_titolo), "Prima Nota del " + nota.Giorno, fonte,
              base, true);
  StampaTesto(carta.printer, carta.X(scarto_venditore), carta.Alto(riga_titolo),
              "Fornitore: " + nota.Venditore, fonte, base, true);
  if (nota.Provenienza)
    StampaTesto(carta.printer, carta.X(rientro), carta.Alto(riga_provenienza),
                "Provenienza del Prodotto " + *nota.Provenienza, fonte, base, true);
}

void Disegna_Titoli(const Foglio_In_Stampa& carta) {
  const Testo& fonte = FontePagina(carta.programma);
  const float y = carta.Alto(F(Alto_Tabella));
  const auto titolo = [&](float scarto, Vista testo) {
    StampaTesto(carta.printer, carta.X(scarto), y, testo, fonte, punti_righe, true);
  };
  for (const Colonna& colonna : {numero, zona, prodotto, peso, prezzo})
    titolo(colonna.sinistra + aria, colonna.titolo);
  titolo(sinistra_compratore + aria, "Codice");
  titolo(sinistra_compratore + scarto_acquirente, "Acquirente");
  titolo(carta.Lotto() + aria, "Lotto");
}

// ---- rows

void Disegna_Riga(const Foglio_In_Stampa& carta, const Riga_Nota& riga, int linea) {
  const float y = carta.Linea(linea);
  carta.printer.FontName = FontePagina(carta.programma);
  carta.printer.FontBold = false;
  Scrivi_Destra(carta, numero, y, std::to_string(riga.numero));
  Adatta(carta.printer, riga.Zona + " " + riga.Provenienza, zona.larghezza - 2 * aria, punti_righe);
  const float punti_zona = carta.printer.FontSize;
  StampaTesto(carta.printer, carta.X(zona.sinistra + aria), y, riga.Zona, FontePagina(carta.programma),
              punti_zona, false);
  if (!Pulito(riga.Provenienza).empty())
    StampaDestra(carta.printer, carta.X(zona.sinistra), y, zona.larghezza - aria, riga.Provenienza);
  Scrivi(carta, carta.X(prodotto.sinistra + aria), y, riga.Descrizione, prodotto.larghezza - 2 * aria);
  Scrivi_Destra(carta, peso, y, riga.Peso);
  Scrivi_Destra(carta, prezzo, y, riga.Prezzo);
  Scrivi(carta, carta.X(sinistra_compratore + aria), y, ClienteMostrato(riga.Codice, riga.Cliente),
         carta.Lotto() - sinistra_compratore - 2 * aria);
  Scrivi_Lotto(carta, y, riga.Lotto);
  if (!riga.accredito) return;
  // nothing else stands on this line, so that the text may run on over the columns of the numbers
  Scrivi(carta, carta.X(prodotto.sinistra + aria), carta.Linea(linea + 1),
         "Nota di Accredito " + riga.Credito, sinistra_compratore - prodotto.sinistra - 2 * aria);
}

void Disegna_Righe(const Foglio_In_Stampa& carta, const Pagina_Nota& pagina) {
  int linea = 1;
  for (const Riga_Nota& riga : pagina.righe) {
    Disegna_Riga(carta, riga, linea);
    linea += riga.Linee();
    if (carta.nota.cornici)
      LineaOrizzontale(carta.printer, static_cast<int>(carta.sinistra),
                       static_cast<int>(carta.Fine_Linea(linea - 1)), static_cast<int>(carta.larghezza), Nero,
                       penna);
  }
}

void Disegna_Cornici(const Foglio_In_Stampa& carta, const Pagina_Nota& pagina) {
  const float alto = carta.Inizio_Testa();
  Riquadro(carta.printer, carta.sinistra, alto, carta.larghezza, altezza_testa, penna, Nero, false);
  const float altezza = carta.Fine_Linea(pagina.linee) - alto;
  const float bordi[] = {0,
                         zona.sinistra,
                         prodotto.sinistra,
                         peso.sinistra,
                         prezzo.sinistra,
                         sinistra_compratore,
                         carta.Lotto(),
                         carta.larghezza};
  for (const float bordo : bordi) LineaVerticale(carta.printer, carta.X(bordo), alto, altezza, Nero, penna);
}

// ---- foot

// How far a foot that belongs so much above the bottom has to give way to the rows: only the full page of a
// whole day reaches down to it.
float Spinta(const Foglio_In_Stampa& carta, const Pagina_Nota& pagina, double sopra_il_fondo) {
  return std::max(0.0F, carta.Fine_Linea(pagina.linee) + 1 - F(carta.foglio.fondo - sopra_il_fondo));
}

void Disegna_Piede(const Foglio_In_Stampa& carta, std::size_t quale) {
  const Nota_Stampata& nota = carta.nota;
  const Pagina_Nota& pagina = nota.pagine[quale];
  const char separatore = carta.programma.Separatore_Decimale;
  const bool ultima = quale + 1 == nota.pagine.size(), sola = nota.pagine.size() == 1;
  const Testo parziale = Euro2_Migliaia(pagina.Importo, separatore);
  const Testo totale = " Importo Totale = Euro " + Euro2_Migliaia(nota.Importo, separatore);
  const double luogo = ultima ? Piede_Totale : Piede_Parziale;
  const float spinta = Spinta(carta, pagina, luogo);
  const auto scrivi = [&](float scarto, double sopra_il_fondo, Vista testo) {
    StampaTesto(carta.printer, carta.X(scarto), F(carta.foglio.fondo - sopra_il_fondo) + spinta, testo,
                FontePagina(carta.programma), DimFontPagina(carta.programma), true);
  };
  if (!ultima) return scrivi(0, luogo, "Imp. Parziale pagina = Euro " + parziale + "   (continua)");
  scrivi(0, luogo, sola ? totale : "Imp. Parziale di pagina = Euro " + parziale);
  if (!sola && nota.modo.scrivi_totale) scrivi(carta.larghezza / 2, luogo, totale);
  if (!nota.Firma) return;
  constexpr float scarto_firma = 95;
  scrivi(0, Piede_Firma, *nota.Firma);
  scrivi(scarto_firma, Piede_Firma, "Firma del Venditore");
  scrivi(scarto_firma, Piede_Segno, "___________________");
}

}  // namespace

Foglio_Nota PreparaFoglioNota(const Programma& programma) {
  Printer& printer = Dispositivo(programma);
  printer.Orientation(Verticale);
  Due_Pause(programma);
  PreparaPagina(programma);
  PreparaPagina(programma);
  printer.FontItalic = false;
  return {static_cast<double>(BordoAlto(programma)), FondoUtile(printer.ScaleHeight())};
}

void DisegnaNota(const Programma& programma, const Nota_Stampata& nota, const Foglio_Nota& foglio,
                 Testo& titolo) {
  Printer& printer = Dispositivo(programma);
  const Foglio_In_Stampa carta{
      printer, programma, nota, foglio, F(BordoSinistro(programma)), F(printer.LarghezzaUtile)};
  const int pagine = static_cast<int>(nota.pagine.size());
  for (std::size_t i = 0; i < nota.pagine.size(); ++i) {
    titolo = Pagina_In_Corso(nota.Fornitore, static_cast<int>(i) + 1, pagine);
    programma.piattaforma.Ridipingi();
    Disegna_Testa(carta, i);
    Disegna_Titoli(carta);
    Disegna_Righe(carta, nota.pagine[i]);
    if (nota.cornici) Disegna_Cornici(carta, nota.pagine[i]);
    Disegna_Piede(carta, i);
    if (i + 1 < nota.pagine.size()) printer.NewPage();
  }
  printer.EndDoc();
}

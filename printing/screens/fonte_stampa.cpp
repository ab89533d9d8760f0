#include "printing/screens/fonte_stampa.h"

#include <algorithm>
#include <cmath>
#include <hb-subset.h>
#include <memory>
#include <utility>

#include "platform/testo_qt.h"
#include "printing/screens/pdf.h"

namespace {

constexpr double quadrato_pdf = 1000;  // PDF's own units to the size of a font

// ---- the library's objects

template <auto libera>
struct Liberatore {
  template <class Oggetto>
  void operator()(Oggetto* oggetto) const {
    libera(oggetto);
  }
};
using Faccia_Intera = std::unique_ptr<hb_face_t, Liberatore<hb_face_destroy>>;
using Richiesta = std::unique_ptr<hb_subset_input_t, Liberatore<hb_subset_input_destroy>>;
using Blocco = std::unique_ptr<hb_blob_t, Liberatore<hb_blob_destroy>>;

// Of the face only what draws letters: pairs and ligatures have no use in a text that is measured letter by
// letter.
Faccia_Intera Faccia_Per(const QRawFont& fonte) {
  Faccia_Intera faccia(hb_face_builder_create());
  for (const char* nome : {"head", "hhea", "hmtx", "maxp", "cmap", "loca", "glyf", "CFF "}) {
    const QByteArray byte = fonte.fontTable(nome);
    if (byte.isEmpty()) continue;
    const Blocco blocco(hb_blob_create(byte.constData(), static_cast<unsigned>(byte.size()),
                                       HB_MEMORY_MODE_DUPLICATE, nullptr, nullptr));
    hb_face_builder_add_table(faccia.get(), hb_tag_from_string(nome, -1), blocco.get());
  }
  return faccia;
}

unsigned Codice(std::size_t byte) {
  const char c = static_cast<char>(byte);
  return In_QString(Vista(&c, 1)).front().unicode();
}

// PDF knows these two by the names of the signs that they look like.
constexpr std::size_t spazio_fisso = 0xA0, trattino_debole = 0xAD;

// The program of the face with those letters alone, without the instructions for coarse screens; nothing
// where the face has no outlines.
std::string Ritaglia(const QRawFont& fonte, const Segni_Usati& segni) {
  const Faccia_Intera faccia = Faccia_Per(fonte);
  const Richiesta richiesta(hb_subset_input_create_or_fail());
  if (!richiesta || hb_face_get_glyph_count(faccia.get()) == 0) return {};
  hb_subset_input_set_flags(richiesta.get(), HB_SUBSET_FLAGS_NO_HINTING);
  hb_set_t* codici = hb_subset_input_unicode_set(richiesta.get());
  for (std::size_t i = 0; i < segni.size(); ++i)
    if (segni[i]) hb_set_add(codici, Codice(i));
  if (segni[spazio_fisso]) hb_set_add(codici, ' ');
  if (segni[trattino_debole]) hb_set_add(codici, '-');
  const Faccia_Intera parte(hb_subset_or_fail(faccia.get(), richiesta.get()));
  if (!parte) return {};
  const Blocco byte(hb_face_reference_blob(parte.get()));
  unsigned quanti = 0;
  const char* primo = hb_blob_get_data(byte.get(), &quanti);
  return {primo, quanti};
}

// ---- what the face says of itself

// A number of two bytes in one of its tables; 0 where the table is shorter.
int Corto(const QByteArray& tabella, qsizetype posto) {
  if (tabella.size() < posto + 2) return 0;
  const auto byte = [&](qsizetype i) { return static_cast<unsigned char>(tabella[posto + i]); };
  return static_cast<std::int16_t>(byte(0) << 8U | byte(1));
}

bool Curve_Cubiche(const QRawFont& fonte) { return !fonte.fontTable("CFF ").isEmpty(); }

Metrica Misura(QRawFont fonte) {
  Metrica metrica;
  fonte.setPixelSize(metrica.quadrato);
  metrica.sopra = static_cast<int>(std::lround(fonte.ascent()));
  metrica.sotto = static_cast<int>(std::lround(fonte.descent()));
  for (std::size_t i = 0; i < metrica.larghezze.size(); ++i) {
    const char c = static_cast<char>(i);
    if (!Si_Vede(c)) continue;
    const auto segni = fonte.glyphIndexesForString(In_QString(Vista(&c, 1)));
    const auto passi = fonte.advancesForGlyphIndexes(segni);
    if (!passi.isEmpty()) metrica.larghezze[i] = static_cast<std::uint16_t>(std::lround(passi.front().x()));
  }
  return metrica;
}

// Six capital letters of its own for each part, so that no program takes one for another.
std::string Sigla(const Segni_Usati& segni) {
  std::string esito;
  for (std::size_t resto = std::hash<Segni_Usati>{}(segni); esito.size() < 6; resto /= 26)
    esito += static_cast<char>('A' + resto % 26);
  return esito;
}

// "LiberationSans-BoldItalic"; a name of PDF takes few signs.
std::string Nome_Stampatore(const QRawFont& fonte) {
  std::string esito;
  const auto aggiungi = [&](const QString& parte) {
    for (const QChar c : parte)
      if (c.unicode() < 0x80 && c.isLetterOrNumber()) esito += c.toLatin1();
  };
  aggiungi(fonte.familyName());
  if (fonte.styleName().isEmpty() || fonte.styleName() == "Regular") return esito;
  esito += '-';
  aggiungi(fonte.styleName());
  return esito;
}

// Letters go together: nearly every document has some small ones, some capitals and some figures.
Segni_Usati Allarga(const Segni_Usati& segni) {
  static constexpr std::pair<char, char> gruppi[] = {{' ', '@'}, {'A', 'Z'}, {'a', 'z'}};
  Segni_Usati esito = segni;
  for (const auto& [primo, ultimo] : gruppi) {
    Segni_Usati gruppo;
    for (char c = primo; c <= ultimo; ++c) gruppo.set(static_cast<unsigned char>(c));
    if ((segni & gruppo).any()) esito |= gruppo;
  }
  return esito;
}

}  // namespace

bool Si_Vede(char c) {
  const auto byte = static_cast<unsigned char>(c);
  constexpr unsigned char indefiniti[] = {0x7F, 0x81, 0x8D, 0x8F, 0x90, 0x9D};
  return byte >= 0x20 &&
         std::find(std::begin(indefiniti), std::end(indefiniti), byte) == std::end(indefiniti);
}

Fonte_Stampa::Fonte_Stampa(const QRawFont& fonte) : Fonte_Stampa(fonte, Misura(fonte)) {}

Fonte_Stampa::Fonte_Stampa(const QRawFont& fonte, const Metrica& metrica)
    : fonte_(fonte), metrica_(metrica) {}

void Fonte_Stampa::Chiedi_Stile(bool grassetto, bool corsivo) {
  const int stile = Corto(fonte_.fontTable("head"), 44);
  grassetto_finto_ = grassetto && (stile & 1) == 0;
  corsivo_finto_ = corsivo && (stile & 2) == 0;
}

double Fonte_Stampa::Altezza(Vista testo) const {
  QRawFont fonte = fonte_;
  fonte.setPixelSize(metrica_.quadrato);
  double altezza = 0;
  for (const quint32 segno : fonte.glyphIndexesForString(In_QString(testo)))
    altezza = std::max(altezza, -fonte.boundingRect(segno).top());
  return altezza;
}

const Parte_Fonte& Fonte_Stampa::Parte(const Segni_Usati& segni) {
  const Segni_Usati larghi = Allarga(segni);
  const auto trovata = parti_.find(larghi);
  return trovata != parti_.end() ? trovata->second
                                 : parti_.emplace(larghi, Nuova_Parte(larghi)).first->second;
}

Parte_Fonte Fonte_Stampa::Nuova_Parte(const Segni_Usati& segni) const {
  const std::string nome = "/" + Sigla(segni) + "+" + Nome_Stampatore(fonte_);
  Parte_Fonte parte;
  parte.voci_fonte = Voci_Fonte(nome, segni);
  parte.voci_descrittore = Voci_Descrittore(nome);
  const std::string programma = Ritaglia(fonte_, segni);
  if (programma.empty()) return parte;
  parte.programma = Comprimi_Pdf(programma);
  parte.programma_in = Curve_Cubiche(fonte_) ? "/FontFile3" : "/FontFile2";
  parte.voci_flusso =
      Curve_Cubiche(fonte_) ? "/Subtype /OpenType " : "/Length1 " + std::to_string(programma.size()) + " ";
  return parte;
}

std::string Fonte_Stampa::Voci_Fonte(const std::string& nome, const Segni_Usati& segni) const {
  std::size_t primo = ' ', ultimo = ' ';
  for (std::size_t i = primo; i < segni.size(); ++i)
    if (segni[i]) ultimo = i;
  std::string voci = "/Type /Font /Subtype ";
  voci += Curve_Cubiche(fonte_) ? "/Type1" : "/TrueType";
  voci += " /BaseFont " + nome + " /Encoding /WinAnsiEncoding /FirstChar " + std::to_string(primo) +
          " /LastChar " + std::to_string(ultimo) + " /Widths [";
  for (std::size_t i = primo; i <= ultimo; ++i) {
    if (i > primo) voci += ' ';
    voci += segni[i] ? Numero_Pdf(metrica_.larghezze[i] * quadrato_pdf / metrica_.quadrato) : "0";
  }
  return voci + "] ";
}

std::string Fonte_Stampa::Voci_Descrittore(const std::string& nome) const {
  constexpr int passo_fisso = 1, con_lettere = 32, corsivo = 64;  // Flags
  const QByteArray testa = fonte_.fontTable("head"), ufficio = fonte_.fontTable("OS/2");
  const double unita = quadrato_pdf / std::max(Corto(testa, 18), 1);
  const auto misura = [&](int quanto) { return Numero_Pdf(quanto * unita); };
  const bool inclinata = fonte_.style() != QFont::StyleNormal;
  const bool fissa = metrica_.larghezze['i'] == metrica_.larghezze['W'];
  const bool alta_nota = Corto(ufficio, 0) >= 2;
  std::string voci = "/Type /FontDescriptor /FontName " + nome + " /Flags " +
                     std::to_string(con_lettere + (fissa ? passo_fisso : 0) + (inclinata ? corsivo : 0)) +
                     " /FontBBox [";
  for (const qsizetype posto : {36, 38, 40, 42})
    voci += (posto == 36 ? "" : " ") + misura(Corto(testa, posto));
  voci += "] /ItalicAngle " + std::string(inclinata ? "-12" : "0") + " /Ascent " +
          Numero_Pdf(metrica_.sopra * quadrato_pdf / metrica_.quadrato) + " /Descent " +
          Numero_Pdf(-metrica_.sotto * quadrato_pdf / metrica_.quadrato) + " /CapHeight " +
          misura(alta_nota ? Corto(ufficio, 88) : Corto(testa, 42)) + " /StemV " +
          (fonte_.weight() >= QFont::Bold ? "140" : "80") + " ";
  return voci;
}

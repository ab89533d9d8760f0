#include "printing/screens/stampante_qt.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <numbers>

#include <QBuffer>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>

#include "platform/testo_qt.h"
#include "printing/nomi_stampe.h"
#include "printing/registratore.h"

namespace {

constexpr int punti_per_pollice = 1200;
constexpr double mm_per_pollice = 25.4;

QColor In_QColor(const Colore& colore) { return {colore.rosso, colore.verde, colore.blu}; }

QFont Fonte(const QString& famiglia, const Carattere_Stampa& carattere) {
  QFont fonte(famiglia);
  fonte.setBold(carattere.grassetto);
  fonte.setItalic(carattere.corsivo);
  fonte.setHintingPreference(QFont::PreferNoHinting);
  fonte.setKerning(false);
  return fonte;
}

// The family that is drawn: that of the tables, or the one that was asked for, where the machine has it.
QString Famiglia(const Testo& nome) {
  const QString chiesta = In_QString(nome);
  if (!Faccia_Propria(nome) && QFontDatabase::hasFamily(chiesta)) return chiesta;
  return In_QString(Nome_Faccia(Faccia_Di(nome)));
}

bool Misurata_Da_Noi(const Testo& nome) {
  return Faccia_Propria(nome) || !QFontDatabase::hasFamily(In_QString(nome));
}

bool Si_Vede(char c) {
  const auto byte = static_cast<unsigned char>(c);
  constexpr unsigned char indefiniti[] = {0x7F, 0x81, 0x8D, 0x8F, 0x90, 0x9D};
  return byte >= 0x20 &&
         std::find(std::begin(indefiniti), std::end(indefiniti), byte) == std::end(indefiniti);
}

Testo Non_Scritto(const Percorso& cartella, int errore) {
  return "non è stato scritto nella cartella\n"_t + Testo_Percorso(cartella) + "\n" + Testo_Errore(errore);
}

// How far the highest letter stands above the line that all stand on.
double Altezza_Segni(const QRawFont& fonte, const QGlyphRun& segni) {
  double altezza = 0;
  for (const quint32 segno : segni.glyphIndexes())
    altezza = std::max(altezza, -fonte.boundingRect(segno).top());
  return altezza;
}

QPageLayout::Orientation In_Qt(int orientamento) {
  return orientamento == Orizzontale ? QPageLayout::Landscape : QPageLayout::Portrait;
}

}  // namespace

// A document in work. The paper outlives the painter on it.
struct Stampante_Qt::Lavoro {
  Documento documento;
  QBuffer contenuto;  // of a PDF, which goes to the disk as a whole
  std::unique_ptr<QPagedPaintDevice> carta;
  QPainter pennello;
  bool pdf = false;

  double punti(double millimetri) const { return millimetri * carta->logicalDpiX() / mm_per_pollice; }
  QPen penna(int larghezza, const Colore& colore) const {
    QPen esito(In_QColor(colore));
    esito.setWidthF(punti(std::max(larghezza, 1) * Millimetri_Per_Penna));
    esito.setCapStyle(Qt::FlatCap);
    esito.setJoinStyle(Qt::MiterJoin);
    return esito;
  }
};

Stampante_Qt::Stampante_Qt(const Percorso& cartella_ditta)
    : cartella_stampe_(Unisci_Percorso(cartella_ditta, Cartella_Stampe)) {}

Stampante_Qt::~Stampante_Qt() = default;

QStringList Stampante_Qt::Stampanti_Di_Sistema() const {
  QStringList nomi = QPrinterInfo::availablePrinterNames();
  const QString prima = QPrinterInfo::defaultPrinterName();
  if (nomi.removeOne(prima)) nomi.prepend(prima);
  return nomi;
}

std::unique_ptr<QPrinter> Stampante_Qt::Stampante_Di_Sistema(const QString& nome) const {
  const QPrinterInfo info = QPrinterInfo::printerInfo(nome);
  if (info.isNull()) return nullptr;
  auto stampante = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
  if (info.defaultPageSize().isValid()) stampante->setPageSize(info.defaultPageSize());
  return stampante;
}

std::optional<Stampante_Qt::Scelta> Stampante_Qt::Trova(const QString& nome) const {
  const auto stampante = Stampante_Di_Sistema(nome);
  if (!stampante) return std::nullopt;
  QPageLayout pagina = stampante->pageLayout();
  pagina.setUnits(QPageLayout::Millimeter);
  const bool sdraiata = pagina.orientation() == QPageLayout::Landscape;
  // The least margins are those of the paper; the present ones may still be those of another.
  const QMarginsF minimi = pagina.minimumMargins();
  return Scelta{Da_QString(nome), sdraiata ? Orizzontale : Verticale, pagina.pageSize(),
                minimi.isNull() ? pagina.margins() : minimi};
}

const Stampante_Qt::Scelta& Stampante_Qt::In_Uso() const {
  if (scelta_) return *scelta_;
  QStringList nomi = Stampanti_Di_Sistema();
  nomi.removeAll(In_QString(Stampante_PDF));
  if (!nomi.isEmpty()) scelta_ = Trova(nomi.front());
  if (!scelta_) scelta_ = Scelta{Testo(Stampante_PDF), Verticale, {}, {}};
  return *scelta_;
}

std::optional<Testo> Stampante_Qt::DeviceName() {
  const Scelta& scelta = In_Uso();
  if (scelta.nome == Stampante_PDF && !disco.Esiste_Cartella(cartella_stampe_) &&
      disco.Crea_Cartella(cartella_stampe_) != 0)
    return std::nullopt;
  return scelta.nome;
}

std::vector<Testo> Stampante_Qt::Stampanti() {
  std::vector<Testo> nomi;
  const QStringList sistema = Stampanti_Di_Sistema();
  for (const QString& nome : sistema)
    if (Da_QString(nome) != Stampante_PDF) nomi.push_back(Da_QString(nome));
  nomi.emplace_back(Stampante_PDF);
  return nomi;
}

bool Stampante_Qt::Prendi_Stampante(const Testo& nome) {
  avvisato_.reset();
  if (nome == Stampante_PDF) {
    scelta_ = Scelta{nome, Orientamento(), {}, {}};
    return true;
  }
  auto trovata = Trova(In_QString(nome));
  if (!trovata) return false;
  scelta_ = std::move(trovata);
  return true;
}

int Stampante_Qt::Orientamento() const { return In_Uso().orientamento; }

void Stampante_Qt::Orienta(int orientamento) {
  In_Uso();
  scelta_->orientamento = orientamento;
}

// A sheet lies with its foot at the left.
QMarginsF Stampante_Qt::Bordi(int orientamento) const {
  const QMarginsF& bordi = In_Uso().bordi;
  if (orientamento == Verticale) return bordi;
  return {bordi.bottom(), bordi.left(), bordi.top(), bordi.right()};
}

Carta Stampante_Qt::Foglio(int orientamento) const {
  if (In_Uso().nome == Stampante_PDF) return Foglio_A4(orientamento);
  const QSizeF in_piedi = In_Uso().foglio.size(QPageSize::Millimeter);
  const QSizeF foglio = orientamento == Verticale ? in_piedi : in_piedi.transposed();
  const QSizeF stampabile = foglio.shrunkBy(Bordi(orientamento));
  if (stampabile.isEmpty()) return Foglio_A4(orientamento);
  return {foglio.width(), foglio.height(), stampabile.width(), stampabile.height()};
}

// Null, and told, where there is no printer.
std::unique_ptr<Stampante_Qt::Lavoro> Stampante_Qt::Nuovo_Lavoro(const QString& titolo) {
  auto lavoro = std::make_unique<Lavoro>();
  lavoro->documento = documento;
  lavoro->pdf = In_Uso().nome == Stampante_PDF;
  if (lavoro->pdf) {
    const int errore = disco.Esiste_Cartella(cartella_stampe_) ? 0 : disco.Crea_Cartella(cartella_stampe_);
    if (errore != 0) {
      Perso(documento, Non_Scritto(cartella_stampe_, errore));
      return nullptr;
    }
    lavoro->contenuto.open(QIODevice::WriteOnly);
    auto carta = std::make_unique<QPdfWriter>(&lavoro->contenuto);
    carta->setResolution(punti_per_pollice);
    carta->setPageMargins(QMarginsF());
    carta->setTitle(titolo);
    carta->setCreator(QStringLiteral("Velmara"));
    lavoro->carta = std::move(carta);
    return lavoro;
  }
  auto carta = Stampante_Di_Sistema(In_QString(In_Uso().nome));
  if (!carta || !carta->isValid()) {
    Perso(documento, "non è stato stampato. La stampante\n"_t + In_Uso().nome +
                         "\nnon risponde. Se ne sceglie un'altra dal menu \"Stampante\".");
    return nullptr;
  }
  carta->setDocName(titolo);
  carta->setCreator(QStringLiteral("Velmara"));
  carta->setFullPage(true);  // the origin is the sheet's corner: the borders are counted here
  lavoro->carta = std::move(carta);
  return lavoro;
}

bool Stampante_Qt::Inizia_Documento() {
  lavoro_ = Nuovo_Lavoro(In_QString(Titolo_Stampa(documento)));
  return lavoro_ != nullptr;
}

void Stampante_Qt::Inizia_Pagina(int pagina, int orientamento) {
  Lavoro& lavoro = *lavoro_;
  lavoro.carta->setPageSize(lavoro.pdf ? QPageSize(QPageSize::A4) : In_Uso().foglio);
  lavoro.carta->setPageOrientation(In_Qt(orientamento));
  if (pagina == 1)
    lavoro.pennello.begin(lavoro.carta.get());
  else
    lavoro.carta->newPage();
  const QMarginsF bordi = lavoro.pdf ? QMarginsF() : Bordi(orientamento);
  lavoro.pennello.resetTransform();
  lavoro.pennello.translate(lavoro.punti(bordi.left()), lavoro.punti(bordi.top()));
}

bool Stampante_Qt::Finisci_Documento() {
  lavoro_->pennello.end();
  const bool consegnato = !lavoro_->pdf || Consegna_PDF();
  lavoro_.reset();
  return consegnato;
}

bool Stampante_Qt::Consegna_PDF() {
  lavoro_->carta.reset();
  const QByteArray& byte = lavoro_->contenuto.data();
  const Vista contenuto(byte.constData(), static_cast<std::size_t>(byte.size()));
  Percorso file = nomi_.Libero(disco, cartella_stampe_, lavoro_->documento);
  int errore = disco.Scrivi_Nuovo(file, contenuto);
  if (errore == EEXIST) {  // somebody else's, of this very moment
    nomi_ = {};
    file = nomi_.Libero(disco, cartella_stampe_, lavoro_->documento);
    errore = disco.Scrivi_Nuovo(file, contenuto);
  }
  if (errore != 0) {
    Perso(lavoro_->documento, Non_Scritto(cartella_stampe_, errore));
    return false;
  }
  nomi_.Scritto(disco, file);
  avvisato_.reset();
  ultimo_pdf_ = file;
  if (Apri_Alla_Fine && mostra) mostra(file);
  return true;
}

void Stampante_Qt::Perso(const Documento& documento_perso, const Testo& perche) {
  if (!avviso || (avvisato_ && *avvisato_ != documento_perso)) return;
  avvisato_ = documento_perso;
  avviso("Il documento\n" + Titolo_Stampa(documento_perso) + "\n" + perche);
}

const QRawFont& Stampante_Qt::Carattere(const Carattere_Stampa& carattere) {
  const auto [posto, nuovo] =
      caratteri_.try_emplace({carattere.nome, carattere.grassetto, carattere.corsivo});
  if (nuovo) posto->second = QRawFont::fromFont(Fonte(Famiglia(carattere.nome), carattere));
  return posto->second;
}

const Metrica& Stampante_Qt::Misure(const Carattere_Stampa& carattere) {
  if (Misurata_Da_Noi(carattere.nome)) return Printer::Misure(carattere);
  const auto [posto, nuova] = misure_.try_emplace({carattere.nome, carattere.grassetto, carattere.corsivo});
  Metrica& metrica = posto->second;
  if (!nuova) return metrica;
  QRawFont fonte = Carattere(carattere);
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

// Letter by letter at the places that the tables give: no pair of letters is moved together, no width is
// rounded. A line that hangs over the upper edge comes down until its letters are whole: no printer has ink
// beyond the edge, and the firm's name stands there.
void Stampante_Qt::Disegna(double x, double y, const Carattere_Stampa& carattere, Vista testo) {
  const Metrica& metrica = Misure(carattere);
  const double corpo = lavoro_->punti(carattere.punti * Millimetri_Per_Punto),
               unita = corpo / metrica.quadrato;
  QRawFont fonte = Carattere(carattere);
  fonte.setPixelSize(corpo);
  Testo visibile;
  QList<QPointF> posti;
  double avanti = 0;
  for (const char c : testo) {
    if (!Si_Vede(c)) continue;
    visibile += c;
    posti.append({avanti, 0});
    avanti += metrica.larghezze[static_cast<unsigned char>(c)] * unita;
  }
  QGlyphRun segni;
  segni.setRawFont(fonte);
  segni.setGlyphIndexes(fonte.glyphIndexesForString(In_QString(visibile)));
  segni.setPositions(posti);
  double base = lavoro_->punti(y) + metrica.sopra * unita;
  if (y < 0 && base > 0) base = std::max(base, Altezza_Segni(fonte, segni));
  lavoro_->pennello.setPen(In_QColor(Nero));
  lavoro_->pennello.drawGlyphRun({lavoro_->punti(x), base}, segni);
}

void Stampante_Qt::Disegna(const Segno& segno) {
  QPainter& pennello = lavoro_->pennello;
  const QPointF da(lavoro_->punti(segno.x1), lavoro_->punti(segno.y1));
  const QPointF a(lavoro_->punti(segno.x2), lavoro_->punti(segno.y2));
  const QRectF rettangolo = QRectF(da, a).normalized();
  if (segno.tratto == Tratto::Pieno) {
    pennello.fillRect(rettangolo, In_QColor(segno.colore));
    return;
  }
  pennello.setPen(lavoro_->penna(segno.penna, segno.colore));
  pennello.setBrush(Qt::NoBrush);
  if (segno.tratto == Tratto::Linea)
    pennello.drawLine(da, a);
  else
    pennello.drawRect(rettangolo);
}

void Stampante_Qt::Disegna(const Ovale& ovale) {
  QPainter& pennello = lavoro_->pennello;
  const double rx = lavoro_->punti(ovale.raggio_x), ry = lavoro_->punti(ovale.raggio_y);
  const QRectF intorno(lavoro_->punti(ovale.x) - rx, lavoro_->punti(ovale.y) - ry, 2 * rx, 2 * ry);
  pennello.setPen(lavoro_->penna(ovale.penna, ovale.colore));
  pennello.setBrush(Qt::NoBrush);
  if (ovale.inizio == ovale.fine) {
    pennello.drawEllipse(intorno);
    return;
  }
  constexpr double sedicesimi_di_grado = 16 * 180 / std::numbers::pi;
  const double giro = 2 * std::numbers::pi;
  const double arco = std::fmod(std::fmod(ovale.fine - ovale.inizio, giro) + giro, giro);
  pennello.drawArc(intorno, static_cast<int>(std::lround(ovale.inizio * sedicesimi_di_grado)),
                   static_cast<int>(std::lround(arco * sedicesimi_di_grado)));
}

void Stampante_Qt::Disegna(const Figura& figura) {
  const Immagine& immagine = figura.immagine;
  QImage punti(immagine.larghezza, immagine.altezza, QImage::Format_RGB32);
  std::size_t i = 0;
  for (int y = 0; y < immagine.altezza; ++y)
    for (int x = 0; x < immagine.larghezza; ++x) punti.setPixel(x, y, 0xFF000000U | immagine.punti[i++]);
  const QRectF posto(lavoro_->punti(figura.x), lavoro_->punti(figura.y), lavoro_->punti(figura.larghezza),
                     lavoro_->punti(figura.altezza));
  lavoro_->pennello.setRenderHint(QPainter::SmoothPixmapTransform);
  lavoro_->pennello.drawImage(posto, punti);
}

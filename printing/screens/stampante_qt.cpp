#include "printing/screens/stampante_qt.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <QFontDatabase>
#include <QPrinter>
#include <QPrinterInfo>

#include "platform/testo_qt.h"
#include "printing/nomi_stampe.h"
#include "printing/registratore.h"
#include "printing/screens/lavoro_carta.h"
#include "printing/screens/lavoro_pdf.h"

namespace {

QRawFont Disegno(const QString& famiglia, const Carattere_Stampa& stile) {
  QFont fonte(famiglia);
  fonte.setBold(stile.grassetto);
  fonte.setItalic(stile.corsivo);
  fonte.setHintingPreference(QFont::PreferNoHinting);
  fonte.setKerning(false);
  return QRawFont::fromFont(fonte);
}

Testo Non_Scritto(const Percorso& cartella, int errore) {
  return "non è stato scritto nella cartella\n"_t + Testo_Percorso(cartella) + "\n" + Testo_Errore(errore);
}

}  // namespace

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

Carta Stampante_Qt::Foglio(int orientamento) const {
  if (In_Uso().nome == Stampante_PDF) return Foglio_A4(orientamento);
  const QSizeF in_piedi = In_Uso().foglio.size(QPageSize::Millimeter);
  const QSizeF foglio = orientamento == Verticale ? in_piedi : in_piedi.transposed();
  const QSizeF stampabile = foglio.shrunkBy(Bordi_Girati(In_Uso().bordi, orientamento));
  if (stampabile.isEmpty()) return Foglio_A4(orientamento);
  return {foglio.width(), foglio.height(), stampabile.width(), stampabile.height()};
}

// Null, and told, where there is no printer.
std::unique_ptr<Lavoro> Stampante_Qt::Nuovo_Lavoro(const QString& titolo) {
  const Scelta& scelta = In_Uso();
  if (scelta.nome == Stampante_PDF) return Nuovo_Pdf(titolo);
  auto stampante = Stampante_Di_Sistema(In_QString(scelta.nome));
  if (!stampante || !stampante->isValid()) {
    Perso(documento, "non è stato stampato. La stampante\n"_t + scelta.nome +
                         "\nnon risponde. Se ne sceglie un'altra dal menu \"Stampante\".");
    return nullptr;
  }
  stampante->setDocName(titolo);
  stampante->setCreator(QStringLiteral("Velmara"));
  return std::make_unique<Lavoro_Carta>(std::move(stampante), scelta.foglio, scelta.bordi);
}

std::unique_ptr<Lavoro> Stampante_Qt::Nuovo_Pdf(const QString& titolo) {
  const int errore = disco.Esiste_Cartella(cartella_stampe_) ? 0 : disco.Crea_Cartella(cartella_stampe_);
  if (errore == 0) return std::make_unique<Lavoro_Pdf>(titolo);
  Perso(documento, Non_Scritto(cartella_stampe_, errore));
  return nullptr;
}

bool Stampante_Qt::Inizia_Documento() {
  in_lavoro_ = documento;
  lavoro_ = Nuovo_Lavoro(In_QString(Titolo_Stampa(documento)));
  return lavoro_ != nullptr;
}

void Stampante_Qt::Inizia_Pagina(int pagina, int orientamento) { lavoro_->Pagina(pagina, orientamento); }

bool Stampante_Qt::Finisci_Documento() {
  const auto contenuto = std::exchange(lavoro_, nullptr)->Finisci();
  return !contenuto || Consegna_PDF(*contenuto);
}

bool Stampante_Qt::Abbandona_Documento() { return std::exchange(lavoro_, nullptr)->Abbandona(); }

bool Stampante_Qt::Consegna_PDF(Vista contenuto) {
  Percorso file;
  if (const int errore = nomi_.Scrivi(disco, cartella_stampe_, in_lavoro_, contenuto, file)) {
    Perso(in_lavoro_, Non_Scritto(cartella_stampe_, errore));
    return false;
  }
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

Fonte_Stampa& Stampante_Qt::Fonte_Di(const Testo& famiglia, const Carattere_Stampa& stile) {
  const Chiave chiave{famiglia, stile.grassetto, stile.corsivo};
  const auto presente = fonti_.find(chiave);
  if (presente != fonti_.end()) return presente->second;
  const QRawFont disegno = Disegno(In_QString(famiglia), stile);
  Fonte_Stampa fonte = Faccia_Propria(famiglia)
                           ? Fonte_Stampa(disegno, Metrica_Della_Faccia(Faccia_Di(famiglia), stile.grassetto))
                           : Fonte_Stampa(disegno);
  fonte.Chiedi_Stile(stile.grassetto, stile.corsivo);
  return fonti_.emplace(chiave, std::move(fonte)).first->second;
}

// The font that was asked for where the machine has it and a PDF can hold it, or that of the tables.
Fonte_Stampa& Stampante_Qt::Fonte(const Carattere_Stampa& carattere) {
  Fonte_Stampa*& fonte = chieste_[{carattere.nome, carattere.grassetto, carattere.corsivo}];
  if (fonte) return *fonte;
  if (!Faccia_Propria(carattere.nome) && QFontDatabase::hasFamily(In_QString(carattere.nome)))
    fonte = &Fonte_Di(carattere.nome, carattere);
  if (!fonte || !fonte->Si_Incorpora())
    fonte = &Fonte_Di(Testo(Nome_Faccia(Faccia_Di(carattere.nome))), carattere);
  return *fonte;
}

const Metrica& Stampante_Qt::Misure(const Carattere_Stampa& carattere) { return Fonte(carattere).Misure(); }

// A line that hangs over the upper edge comes down until its letters are whole: no printer has ink beyond the
// edge, and the firm's name stands there.
void Stampante_Qt::Disegna(double x, double y, const Carattere_Stampa& carattere, Vista testo) {
  Fonte_Stampa& fonte = Fonte(carattere);
  Testo visibile;
  std::copy_if(testo.begin(), testo.end(), std::back_inserter(visibile), Si_Vede);
  const double corpo = carattere.punti * Millimetri_Per_Punto, unita = corpo / fonte.Misure().quadrato;
  double base = y + fonte.Misure().sopra * unita;
  if (y < 0 && base > 0) base = std::max(base, fonte.Altezza(visibile) * unita);
  if (!visibile.empty()) lavoro_->Scrivi(x, base, fonte, corpo, visibile);
}

void Stampante_Qt::Disegna(const Segno& segno) { lavoro_->Disegna(segno); }

void Stampante_Qt::Disegna(const Ovale& ovale) { lavoro_->Disegna(ovale); }

void Stampante_Qt::Disegna(const Figura& figura) { lavoro_->Disegna(figura); }

#include "printing/screens/lavoro_pdf.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include <QDateTime>

#include "platform/testo_qt.h"

namespace {

// The sheet in whole points, as viewers name it.
constexpr double lato_corto = 595, lato_lungo = 842;

double Punti(double millimetri) { return millimetri / Millimetri_Per_Punto; }

std::string Coppia(double x, double y) { return Numero_Pdf(x) + " " + Numero_Pdf(y); }

std::string In_Pdf(const Colore& colore) {
  std::string esito;
  for (const int parte : {colore.rosso, colore.verde, colore.blu})
    esito += Numero_Pdf(std::clamp(parte, 0, 255) / 255.0) + " ";
  return esito;
}

constexpr const char* cifre = "0123456789ABCDEF";

std::string Esadecimale(unsigned codice) {
  return {cifre[codice >> 12U & 15U], cifre[codice >> 8U & 15U], cifre[codice >> 4U & 15U],
          cifre[codice & 15U]};
}

// Any text, whatever its letters.
std::string Testo_Pdf(const QString& testo) {
  std::string esito = "<FEFF";
  for (const QChar c : testo) esito += Esadecimale(c.unicode());
  return esito + ">";
}

// "(D:20250314183000+01'00')"
std::string Adesso() {
  const QDateTime adesso = QDateTime::currentDateTime();
  const int scarto = adesso.offsetFromUtc() / 60;
  const QChar zero('0');
  return "(D:" + adesso.toString("yyyyMMddHHmmss").toStdString() + (scarto < 0 ? "-" : "+") +
         QStringLiteral("%1'%2')")
             .arg(std::abs(scarto) / 60, 2, 10, zero)
             .arg(std::abs(scarto) % 60, 2, 10, zero)
             .toStdString();
}

// The letter that each byte stands for, for those who search and copy. The soft hyphen and the fixed blank
// can't be told from their like on paper.
std::string Lettere() {
  std::string righe;
  int quante = 0;
  for (std::size_t byte = 0x80; byte <= 0xAD; ++byte) {
    const char c = static_cast<char>(byte);
    if (!Si_Vede(c)) continue;
    const char letta = c == '\xA0' ? ' ' : c == '\xAD' ? '-' : c;
    righe += std::string("<") + cifre[byte >> 4U] + cifre[byte & 15U] + "> <" +
             Esadecimale(In_QString(Vista(&letta, 1)).front().unicode()) + ">\n";
    ++quante;
  }
  return "/CIDInit /ProcSet findresource begin\n12 dict begin\nbegincmap\n"
         "/CIDSystemInfo << /Registry (Adobe) /Ordering (UCS) /Supplement 0 >> def\n"
         "/CMapName /Adobe-Identity-UCS def\n/CMapType 2 def\n"
         "1 begincodespacerange\n<00> <FF>\nendcodespacerange\n"
         "2 beginbfrange\n<20> <7E> <0020>\n<AE> <FF> <00AE>\nendbfrange\n" +
         std::to_string(quante) + " beginbfchar\n" + righe +
         "endbfchar\nendcmap\nCMapName currentdict /CMap defineresource pop\nend\nend\n";
}

// A piece of the ellipse, up to a quarter of it, as one curve.
std::string Curva(double x, double y, double rx, double ry, double da, double a) {
  const double leva = 4.0 / 3 * std::tan((a - da) / 4);
  const auto punto = [&](double angolo, double avanti) {
    return Coppia(x + rx * (std::cos(angolo) - avanti * std::sin(angolo)),
                  y + ry * (std::sin(angolo) + avanti * std::cos(angolo)));
  };
  return punto(da, leva) + " " + punto(a, -leva) + " " + punto(a, 0) + " c\n";
}

}  // namespace

Lavoro_Pdf::Lavoro_Pdf(QString titolo)
    : titolo_(std::move(titolo)), pagine_(file_.Prenota()), risorse_(file_.Prenota()) {}

void Lavoro_Pdf::Pagina(int pagina, int orientamento) {
  if (pagina > 1) Chiudi_Pagina();
  const bool sdraiata = orientamento == Orizzontale;
  larghezza_ = sdraiata ? lato_lungo : lato_corto;
  altezza_ = sdraiata ? lato_corto : lato_lungo;
  penna_ = {};
  segni_ = "/Fini gs\n";
}

double Lavoro_Pdf::Alto(double y) const { return altezza_ - Punti(y); }

std::size_t Lavoro_Pdf::Indice(Fonte_Stampa& fonte) {
  const auto trovata = std::find_if(fonti_.begin(), fonti_.end(),
                                    [&](const Fonte_In_Uso& uso) { return uso.fonte == &fonte; });
  const auto indice = static_cast<std::size_t>(trovata - fonti_.begin());
  if (trovata == fonti_.end()) fonti_.push_back({&fonte, {}, file_.Prenota()});
  return indice;
}

void Lavoro_Pdf::Metti(std::string& presente, const std::string& voluto) {
  if (presente == voluto) return;
  presente = voluto;
  segni_ += voluto + "\n";
}

void Lavoro_Pdf::Scrivi(double x, double base, Fonte_Stampa& fonte, double corpo, Vista testo) {
  const std::size_t indice = Indice(fonte);
  for (const char c : testo) fonti_[indice].segni.set(static_cast<unsigned char>(c));
  Metti(penna_.colore_pieno, In_Pdf(Nero) + "rg");
  if (fonte.Grassetto_Finto()) {
    Metti(penna_.colore, In_Pdf(Nero) + "RG");
    Metti(penna_.spessore, Numero_Pdf(Punti(corpo) / 25) + " w");
  }
  Metti(penna_.fonte, "/F" + std::to_string(indice) + " " + Numero_Pdf(Punti(corpo)) + " Tf" +
                          (fonte.Grassetto_Finto() ? " 2 Tr" : " 0 Tr"));
  segni_ += "BT " + std::string(fonte.Corsivo_Finto() ? "1 0 0.2 1 " : "1 0 0 1 ") +
            Coppia(Punti(x), Alto(base)) + " Tm " + Stringa_Pdf(testo) + " Tj ET\n";
}

void Lavoro_Pdf::Prendi_Penna(int larghezza, const Colore& colore) {
  Metti(penna_.colore, In_Pdf(colore) + "RG");
  Metti(penna_.spessore, Numero_Pdf(Punti(std::max(larghezza, 1) * Millimetri_Per_Penna)) + " w");
}

void Lavoro_Pdf::Disegna(const Segno& segno) {
  const double x1 = Punti(segno.x1), y1 = Alto(segno.y1), x2 = Punti(segno.x2), y2 = Alto(segno.y2);
  const std::string rettangolo = Coppia(std::min(x1, x2), std::min(y1, y2)) + " " +
                                 Coppia(std::abs(x2 - x1), std::abs(y2 - y1)) + " re ";
  switch (segno.tratto) {
    case Tratto::Pieno:
      Metti(penna_.colore_pieno, In_Pdf(segno.colore) + "rg");
      segni_ += rettangolo + "f\n";
      return;
    case Tratto::Contorno:
      Prendi_Penna(segno.penna, segno.colore);
      segni_ += rettangolo + "S\n";
      return;
    case Tratto::Linea:
      Prendi_Penna(segno.penna, segno.colore);
      segni_ += Coppia(x1, y1) + " m " + Coppia(x2, y2) + " l S\n";
  }
}

void Lavoro_Pdf::Disegna(const Ovale& ovale) {
  const double giro = 2 * std::numbers::pi, quarto = giro / 4;
  const double arco =
      ovale.inizio == ovale.fine ? giro : std::fmod(std::fmod(ovale.fine - ovale.inizio, giro) + giro, giro);
  const double x = Punti(ovale.x), y = Alto(ovale.y), rx = Punti(ovale.raggio_x), ry = Punti(ovale.raggio_y);
  const int pezzi = std::max(1, static_cast<int>(std::ceil(arco / quarto)));
  Prendi_Penna(ovale.penna, ovale.colore);
  segni_ += Coppia(x + rx * std::cos(ovale.inizio), y + ry * std::sin(ovale.inizio)) + " m\n";
  for (int i = 0; i < pezzi; ++i)
    segni_ += Curva(x, y, rx, ry, ovale.inizio + arco * i / pezzi, ovale.inizio + arco * (i + 1) / pezzi);
  segni_ += ovale.inizio == ovale.fine ? "s\n" : "S\n";
}

void Lavoro_Pdf::Disegna(const Figura& figura) {
  std::string byte;
  byte.reserve(figura.immagine.punti.size() * 3);
  for (const std::uint32_t punto : figura.immagine.punti)
    byte.append({static_cast<char>(punto >> 16U & 255U), static_cast<char>(punto >> 8U & 255U),
                 static_cast<char>(punto & 255U)});
  const std::string voci =
      "/Type /XObject /Subtype /Image /ColorSpace /DeviceRGB /BitsPerComponent 8 "
      "/Interpolate true /Width " +
      std::to_string(figura.immagine.larghezza) + " /Height " + std::to_string(figura.immagine.altezza) + " ";
  figure_.push_back(file_.Flusso(voci, Comprimi_Pdf(byte)));
  segni_ += "q " + Numero_Pdf(Punti(figura.larghezza)) + " 0 0 " + Numero_Pdf(Punti(figura.altezza)) + " " +
            Coppia(Punti(figura.x), Alto(figura.y + figura.altezza)) + " cm /I" +
            std::to_string(figure_.size() - 1) + " Do Q\n";
}

void Lavoro_Pdf::Chiudi_Pagina() {
  const int segni = file_.Flusso("", Comprimi_Pdf(segni_));
  fatte_.push_back(file_.Oggetto("<< /Type /Page /Parent " + Rimando_Pdf(pagine_) + " /MediaBox [0 0 " +
                                 Coppia(larghezza_, altezza_) + "] /Resources " + Rimando_Pdf(risorse_) +
                                 " /Contents " + Rimando_Pdf(segni) + " >>"));
}

int Lavoro_Pdf::Scrivi_Lettere() {
  static const std::string lettere = Comprimi_Pdf(Lettere());
  return file_.Flusso("", lettere);
}

void Lavoro_Pdf::Scrivi_Fonti() {
  if (fonti_.empty()) return;
  const int lettere = Scrivi_Lettere();
  for (const Fonte_In_Uso& uso : fonti_) {
    const Parte_Fonte& parte = uso.fonte->Parte(uso.segni);
    std::string descrittore = "<< " + parte.voci_descrittore;
    if (!parte.programma.empty())
      descrittore +=
          parte.programma_in + " " + Rimando_Pdf(file_.Flusso(parte.voci_flusso, parte.programma)) + " ";
    file_.Oggetto(uso.oggetto, "<< " + parte.voci_fonte + "/FontDescriptor " +
                                   Rimando_Pdf(file_.Oggetto(descrittore + ">>")) + " /ToUnicode " +
                                   Rimando_Pdf(lettere) + " >>");
  }
}

// Thin lines are drawn equally thick wherever they fall on the screen's points.
std::string Lavoro_Pdf::Risorse() const {
  std::string esito = "<< /ExtGState << /Fini << /Type /ExtGState /SA true >> >> /Font << ";
  for (std::size_t i = 0; i < fonti_.size(); ++i)
    esito += "/F" + std::to_string(i) + " " + Rimando_Pdf(fonti_[i].oggetto) + " ";
  esito += ">> /XObject << ";
  for (std::size_t i = 0; i < figure_.size(); ++i)
    esito += "/I" + std::to_string(i) + " " + Rimando_Pdf(figure_[i]) + " ";
  return esito + ">> >>";
}

int Lavoro_Pdf::Notizie() {
  return file_.Oggetto("<< /Title " + Testo_Pdf(titolo_) +
                       " /Creator (Velmara) /Producer (Velmara) /CreationDate " + Adesso() + " >>");
}

std::optional<std::string> Lavoro_Pdf::Finisci() {
  Chiudi_Pagina();
  Scrivi_Fonti();
  file_.Oggetto(risorse_, Risorse());
  std::string elenco = "<< /Type /Pages /Count " + std::to_string(fatte_.size()) + " /Kids [";
  for (const int pagina : fatte_) elenco += Rimando_Pdf(pagina) + " ";
  file_.Oggetto(pagine_, elenco + "] >>");
  const int catalogo = file_.Oggetto("<< /Type /Catalog /Pages " + Rimando_Pdf(pagine_) + " >>");
  const int notizie = Notizie();
  return file_.Chiudi(catalogo, notizie);
}

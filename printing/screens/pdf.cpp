#include "printing/screens/pdf.h"

#include <algorithm>
#include <cmath>

#include <QByteArray>

namespace {

// Ten digits, as the list of places wants them.
std::string Posto(std::size_t posto) {
  std::string cifre = std::to_string(posto);
  return std::string(10 - std::min<std::size_t>(10, cifre.size()), '0') + cifre;
}

}  // namespace

// The second line says that the file isn't text.
File_Pdf::File_Pdf() : byte_("%PDF-1.6\n%\xE2\xE3\xCF\xD3\n") {}

int File_Pdf::Prenota() {
  posti_.push_back(0);
  return static_cast<int>(posti_.size());
}

void File_Pdf::Oggetto(int numero, std::string_view contenuto) {
  posti_[static_cast<std::size_t>(numero) - 1] = byte_.size();
  byte_.append(std::to_string(numero)).append(" 0 obj\n").append(contenuto).append("\nendobj\n");
}

int File_Pdf::Oggetto(std::string_view contenuto) {
  const int numero = Prenota();
  Oggetto(numero, contenuto);
  return numero;
}

int File_Pdf::Flusso(std::string_view voci, std::string_view compresso) {
  std::string contenuto = "<< /Filter /FlateDecode /Length " + std::to_string(compresso.size()) + " ";
  contenuto.append(voci).append(">>\nstream\n").append(compresso).append("\nendstream");
  return Oggetto(contenuto);
}

std::string File_Pdf::Chiudi(int catalogo, int notizie) {
  const std::size_t elenco = byte_.size();
  const std::string quanti = std::to_string(posti_.size() + 1);
  byte_ += "xref\n0 " + quanti + "\n0000000000 65535 f \n";
  for (const std::size_t posto : posti_) byte_ += Posto(posto) + " 00000 n \n";
  byte_ += "trailer\n<< /Size " + quanti + " /Root " + Rimando_Pdf(catalogo) + " /Info " +
           Rimando_Pdf(notizie) + " >>\nstartxref\n" + std::to_string(elenco) + "\n%%EOF\n";
  return std::move(byte_);
}

std::string Numero_Pdf(double numero) {
  constexpr double limite = 1e6;  // far outside of any sheet
  const long millesimi = std::lround(std::clamp(numero, -limite, limite) * 1000);
  std::string esito = millesimi < 0 ? "-" : "";
  const long intero = std::labs(millesimi);
  esito += std::to_string(intero / 1000);
  if (intero % 1000 == 0) return esito;
  esito += '.';
  for (long resto = intero % 1000, peso = 100; resto != 0; resto %= peso, peso /= 10)
    esito += static_cast<char>('0' + resto / peso);
  return esito;
}

std::string Rimando_Pdf(int oggetto) { return std::to_string(oggetto) + " 0 R"; }

std::string Stringa_Pdf(std::string_view byte) {
  std::string esito = "(";
  for (const char c : byte) {
    if (c == '(' || c == ')' || c == '\\') esito += '\\';
    esito += c;
  }
  return esito + ")";
}

std::string Comprimi_Pdf(std::string_view byte) {
  const QByteArray compresso =
      qCompress(reinterpret_cast<const uchar*>(byte.data()), static_cast<qsizetype>(byte.size()));
  constexpr qsizetype davanti = 4;  // the toolkit puts the length before
  return {compresso.constData() + davanti, static_cast<std::size_t>(compresso.size() - davanti)};
}

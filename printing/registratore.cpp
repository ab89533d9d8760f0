#include "printing/registratore.h"

#include <algorithm>
#include <utility>

#include "core/numeri.h"
#include "printing/nomi_stampe.h"

namespace {

Testo Mm(double millimetri) { return Formato(millimetri, "#0.00", '.'); }

Testo Coppia(double x, double y) { return Mm(x) + " " + Mm(y); }

Testo In_Cifre(const Colore& colore) {
  constexpr Vista cifre = "0123456789ABCDEF";
  Testo esito = "#";
  for (const int parte : {colore.rosso, colore.verde, colore.blu}) {
    const auto byte = static_cast<unsigned>(std::clamp(parte, 0, 255));
    esito.append({cifre[byte >> 4U], cifre[byte & 15U]});
  }
  return esito;
}

Testo Penna(int penna, const Colore& colore) {
  return " penna " + std::to_string(penna) + " " + In_Cifre(colore);
}

Testo Leggibile(Vista testo) {
  constexpr Vista cifre = "0123456789ABCDEF";
  constexpr std::pair<char, Vista> noti[] = {{'\t', "\\t"}, {'\r', "\\r"}, {'\n', "\\n"}};
  Testo esito;
  for (const char c : testo) {
    const auto byte = static_cast<unsigned char>(c);
    const auto* noto =
        std::find_if(std::begin(noti), std::end(noti), [&](const auto& coppia) { return coppia.first == c; });
    if (noto != std::end(noti))
      esito += noto->second;
    else if (byte < 0x20 || byte == 0x7F)
      esito.append({'\\', 'x', cifre[byte >> 4U], cifre[byte & 15U]});
    else
      esito += c;
  }
  return esito;
}

Vista Nome_Tratto(Tratto tratto) {
  constexpr Vista nomi[] = {"linea", "riquadro", "pieno"};
  return nomi[static_cast<std::size_t>(tratto)];
}

}  // namespace

Carta Foglio_A4(int orientamento) {
  constexpr double corto = 210, lungo = 297;
  if (orientamento == Orizzontale) return {lungo, corto, lungo, corto};
  return {corto, lungo, corto, lungo};
}

std::optional<Testo> Registratore::DeviceName() {
  if (!stampante_) return std::nullopt;
  return stampante_->nome;
}

std::vector<Testo> Registratore::Stampanti() {
  std::vector<Testo> nomi;
  if (stampante_ && stampante_->nome != Stampante_PDF) nomi.push_back(stampante_->nome);
  nomi.insert(nomi.end(), altre_stampanti.begin(), altre_stampanti.end());
  nomi.emplace_back(Stampante_PDF);
  return nomi;
}

Carta Registratore::Foglio(int orientamento) const { return Foglio_A4(orientamento); }

int Registratore::Orientamento() const {
  return stampante_ && stampante_->orizzontale ? Orizzontale : Verticale;
}

void Registratore::Orienta(int orientamento) {
  if (stampante_ && !orientamento_fisso) stampante_->orizzontale = orientamento == Orizzontale;
}

bool Registratore::Prendi_Stampante(const Testo& nome) {
  const std::vector<Testo> nomi = Stampanti();
  if (std::find(nomi.begin(), nomi.end(), nome) == nomi.end()) return false;
  const Testo prima = stampante_ ? stampante_->nome : Testo(Stampante_PDF);
  // The one that was in use stays in the list.
  std::erase(altre_stampanti, nome);
  if (prima != nome && prima != Stampante_PDF) altre_stampanti.insert(altre_stampanti.begin(), prima);
  stampante_ = Stampante{nome, stampante_ && stampante_->orizzontale};
  return true;
}

bool Registratore::Inizia_Documento() {
  if (!stampante_) return false;
  registro_.righe.push_back("documento \"" + Nome_Stampa(documento) + "\" " + stampante_->nome);
  return true;
}

void Registratore::Inizia_Pagina(int pagina, int orientamento) {
  pagina_ = pagina;
  ++registro_.pagine;
  const Carta carta = Foglio(orientamento);
  registro_.righe.push_back("pagina " + std::to_string(pagina) +
                            (orientamento == Orizzontale ? " orizzontale " : " verticale ") +
                            Piano(carta.larghezza, '.') + "x" + Piano(carta.altezza, '.'));
}

bool Registratore::Finisci_Documento() {
  registro_.righe.emplace_back("fine");
  return true;
}

bool Registratore::Abbandona_Documento() {
  registro_.righe.emplace_back("abbandonato");
  return true;
}

void Registratore::Scrivi(Vista cosa) {
  registro_.righe.push_back("p" + std::to_string(pagina_) + " " + Testo(cosa));
}

void Registratore::Disegna(double x, double y, const Carattere_Stampa& carattere, Vista testo) {
  Scrivi("testo " + Coppia(x, y) + " " + carattere.nome + " " + Piano(carattere.punti, '.') +
         (carattere.grassetto ? " grassetto" : "") + (carattere.corsivo ? " corsivo" : "") + ": " +
         Leggibile(testo));
}

void Registratore::Disegna(const Segno& segno) {
  Scrivi(Testo(Nome_Tratto(segno.tratto)) + " " + Coppia(segno.x1, segno.y1) + " " +
         Coppia(segno.x2, segno.y2) + Penna(segno.penna, segno.colore));
}

void Registratore::Disegna(const Ovale& ovale) {
  const Testo posto = Coppia(ovale.x, ovale.y) + " " + Coppia(ovale.raggio_x, ovale.raggio_y);
  if (ovale.inizio == ovale.fine)
    Scrivi("ellisse " + posto + Penna(ovale.penna, ovale.colore));
  else
    Scrivi("arco " + posto + " da " + Mm(ovale.inizio) + " a " + Mm(ovale.fine) +
           Penna(ovale.penna, ovale.colore));
}

void Registratore::Disegna(const Figura& figura) {
  Scrivi("immagine " + Coppia(figura.x, figura.y) + " " +
         Coppia(figura.x + figura.larghezza, figura.y + figura.altezza) + " " +
         std::to_string(figura.immagine.larghezza) + "x" + std::to_string(figura.immagine.altezza));
}

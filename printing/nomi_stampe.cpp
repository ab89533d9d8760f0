#include "printing/nomi_stampe.h"

#include <array>
#include <cerrno>

namespace {

constexpr std::size_t lunghezza_massima = 120;
// File systems count bytes and take 255; letters outside ASCII have two or three. The rest is for a number
// and the extension.
constexpr std::size_t byte_massimi = 230;

// No desktop takes these in a file name, or a name that begins or ends with a dot.
constexpr Vista vietati = "/\\:*?\"<>|";

Testo Parte_Di_Nome(Vista testo) {
  Testo esito;
  for (const char c : Pulito(testo)) {
    const auto byte = static_cast<unsigned char>(c);
    esito += byte < 0x20 || byte == 0x7F || vietati.find(c) != Vista::npos ? '-' : c;
  }
  return esito;
}

Vista Genere(const Documento& documento) {
  const Vista genere = Pulito(documento.genere);
  return genere.empty() ? Vista("Stampa") : genere;
}

// "20250314" as "14/03/2025"; anything else as it stands.
Testo Giorno_Leggibile(Vista giorno) {
  if (giorno.size() != 8) return Testo(giorno);
  return Testo(giorno.substr(6, 2)) + "/" + Testo(giorno.substr(4, 2)) + "/" + Testo(giorno.substr(0, 4));
}

// A name as those machines see it that don't tell the letter cases apart.
Testo Piccolo(const Percorso& nome) { return Minuscolo(Testo_Percorso(nome)); }

}  // namespace

Testo Nome_Stampa(const Documento& documento) {
  const std::array<Vista, 4> parti = {documento.giorno, Genere(documento), documento.numero,
                                      documento.codice};
  Testo esito;
  for (const Vista parte : parti) {
    const Testo pezzo = Parte_Di_Nome(parte);
    if (pezzo.empty()) continue;
    esito += (esito.empty() ? "" : " ") + pezzo;
  }
  esito = Sinistra(esito, lunghezza_massima);
  while (In_Utf8(esito).size() > byte_massimi) esito.pop_back();
  esito = Pulito(esito);
  for (char* bordo : {&esito.front(), &esito.back()})
    if (*bordo == '.') *bordo = '-';
  return esito;
}

Testo Titolo_Stampa(const Documento& documento) {
  Testo esito(Genere(documento));
  if (!Pulito(documento.numero).empty()) esito.append(" ").append(Pulito(documento.numero));
  if (!Pulito(documento.giorno).empty())
    esito.append(" del ").append(Giorno_Leggibile(Pulito(documento.giorno)));
  if (!Pulito(documento.codice).empty()) esito.append(" - ").append(Pulito(documento.codice));
  return esito;
}

Percorso File_Stampa(const Disco& disco, const Percorso& cartella, const Documento& documento) {
  return Nomi_Stampe().Libero(disco, cartella, documento);
}

void Nomi_Stampe::Leggi(const Disco& disco, const Percorso& cartella) {
  const auto cambiata = disco.Cambiata(cartella);
  if (cambiata && cambiata == cambiata_ && cartella == cartella_) return;
  cartella_ = cartella;
  cambiata_ = cambiata;
  presi_.clear();
  // Of a folder that can't be read no name is known to be taken; what stands there is written over by nobody.
  for (const auto& nomi : {disco.Elenca(cartella, "*.pdf"), disco.Elenca_Cartelle(cartella)})
    for (const Percorso& nome : nomi.value_or(std::vector<Percorso>())) presi_.insert(Piccolo(nome));
}

Percorso Nomi_Stampe::Libero(const Disco& disco, const Percorso& cartella, const Documento& documento) {
  Leggi(disco, cartella);
  const Testo nome = Nome_Stampa(documento);
  Percorso file = Unisci_Percorso(cartella, nome + ".pdf");
  for (int n = 2; presi_.contains(Piccolo(file.filename())); ++n)
    file = Unisci_Percorso(cartella, nome + " (" + std::to_string(n) + ").pdf");
  return file;
}

int Nomi_Stampe::Scrivi(const Disco& disco, const Percorso& cartella, const Documento& documento,
                        Vista contenuto, Percorso& file) {
  file = Libero(disco, cartella, documento);
  int errore = disco.Scrivi_Nuovo(file, contenuto);
  if (errore == EEXIST) {  // somebody else's, of this very moment
    *this = {};
    file = Libero(disco, cartella, documento);
    errore = disco.Scrivi_Nuovo(file, contenuto);
  }
  if (errore != 0) return errore;
  presi_.insert(Piccolo(file.filename()));
  cambiata_ = disco.Cambiata(cartella_);
  return 0;
}

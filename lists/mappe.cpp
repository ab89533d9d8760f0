#include "lists/mappe.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>
#include <utility>

#include "lists/dati.h"
#include "lists/liste.h"

namespace {

constexpr double gradi = std::numbers::pi / 180;

// A cone on which the meridians are straight and all their degrees alike, true to length on two parallels;
// with the same parallel twice it is the flat map with upright meridians.
struct Proiezione {
  double meridiano, parallelo_1, parallelo_2;

  Punto_Mappa operator()(double est, double nord) const {
    if (parallelo_1 == parallelo_2) return {(est - meridiano) * std::cos(parallelo_1 * gradi), -nord};
    const double apertura = (std::cos(parallelo_1 * gradi) - std::cos(parallelo_2 * gradi)) /
                            ((parallelo_2 - parallelo_1) * gradi);
    const double vertice = parallelo_1 + std::cos(parallelo_1 * gradi) / apertura / gradi;
    const double angolo = apertura * (est - meridiano) * gradi;
    return {(vertice - nord) * std::sin(angolo), (vertice - nord) * std::cos(angolo)};
  }
};

struct Foglio {
  Vista nome, titolo, file_aree, file_terre;
  Proiezione proiezione;
  double ovest, est, sud, nord;  // the edge of the sea
  int passo;                     // degrees between meridians and between parallels
};

// The world is cut at 175 degrees west, where the Pacific areas have a limit.
constexpr Foglio mondo = {.nome = nomi_mappa::Mondo,
                          .titolo = "Tutto il Mondo - Zone FAO",
                          .file_aree = "mappa_mondo.tsv",
                          .file_terre = "mappa_terre_mondo.tsv",
                          .proiezione = {5, 28, 28},
                          .ovest = -175,
                          .est = 185,
                          .sud = -80,
                          .nord = 85,
                          .passo = 30};
constexpr Foglio mediterraneo = {.nome = nomi_mappa::Mediterraneo,
                                 .titolo = "Mediterraneo FAO 37",
                                 .file_aree = "mappa_mediterraneo.tsv",
                                 .file_terre = "mappa_terre_mediterraneo.tsv",
                                 .proiezione = {18, 39, 39},
                                 .ovest = -6.6,
                                 .est = 42.6,
                                 .sud = 29.6,
                                 .nord = 47.8,
                                 .passo = 5};
constexpr Foglio atlantico = {.nome = nomi_mappa::Atlantico,
                              .titolo = "Atlantico Nord Orientale FAO 27",
                              .file_aree = "mappa_atlantico.tsv",
                              .file_terre = "mappa_terre_atlantico.tsv",
                              .proiezione = {10, 45, 70},
                              .ovest = -46,
                              .est = 66,
                              .sud = 35.4,
                              .nord = 81.8,
                              .passo = 10};
constexpr const Foglio* fogli[] = {&mondo, &mediterraneo, &atlantico};

const Foglio* Foglio_Di(Vista nome) {
  for (const Foglio* foglio : fogli)
    if (foglio->nome == nome) return foglio;
  return nullptr;
}

struct Mappa_Apribile {
  int area;
  Vista nome;
};
constexpr Mappa_Apribile apribili[] = {{37, nomi_mappa::Mediterraneo}, {27, nomi_mappa::Atlantico}};

// The text up to `segno`, which is taken off `resto` with it.
Vista Fino_A(Vista& resto, char segno) {
  const std::size_t fine = std::min(resto.find(segno), resto.size());
  const Vista pezzo = resto.substr(0, fine);
  resto.remove_prefix(std::min(fine + 1, resto.size()));
  return pezzo;
}

double Decimale(Vista testo) {
  double valore = 0;
  std::from_chars(testo.data(), testo.data() + testo.size(), valore);
  return valore;
}

int Numero_Intero(Vista testo) {
  int valore = 0;
  std::from_chars(testo.data(), testo.data() + testo.size(), valore);
  return valore;
}

Punto_Mappa Gradi(Vista testo) {
  const Vista est = Fino_A(testo, ' ');
  return {Decimale(est), Decimale(testo)};
}

Anello Anello_In_Gradi(Vista testo) {
  Anello anello;
  while (!testo.empty()) anello.push_back(Gradi(Fino_A(testo, ';')));
  return anello;
}

std::vector<Anello> Anelli_In_Gradi(Vista testo) {
  std::vector<Anello> anelli;
  while (!testo.empty()) anelli.push_back(Anello_In_Gradi(Fino_A(testo, '|')));
  return anelli;
}

// A straight line between two places in degrees bends on a cone: points in between keep it in place.
void Aggiungi_Tratto(Spezzata& linea, const Proiezione& proiezione, Punto_Mappa da, Punto_Mappa a) {
  const int tratti = std::max(1, static_cast<int>(std::ceil(std::abs(a.x - da.x))));
  for (int i = 0; i < tratti; ++i) {
    const double parte = static_cast<double>(i) / tratti;
    linea.push_back(proiezione(da.x + (a.x - da.x) * parte, da.y + (a.y - da.y) * parte));
  }
}

Anello Proiettato(const Anello& in_gradi, const Proiezione& proiezione, double giro = 0) {
  Anello anello;
  for (std::size_t i = 0; i < in_gradi.size(); ++i) {
    const Punto_Mappa da = in_gradi[i], a = in_gradi[(i + 1) % in_gradi.size()];
    Aggiungi_Tratto(anello, proiezione, {da.x + giro, da.y}, {a.x + giro, a.y});
  }
  return anello;
}

bool Dentro(const Anello& anello, Punto_Mappa punto) {
  bool dentro = false;
  for (std::size_t i = 0, j = anello.size() - 1; i < anello.size(); j = i++) {
    const Punto_Mappa a = anello[i], b = anello[j];
    if ((a.y > punto.y) == (b.y > punto.y)) continue;
    if (punto.x < a.x + (b.x - a.x) * (punto.y - a.y) / (b.y - a.y)) dentro = !dentro;
  }
  return dentro;
}

bool Dentro(const std::vector<Anello>& anelli, Punto_Mappa punto) {
  bool dentro = false;
  for (const Anello& anello : anelli)
    if (Dentro(anello, punto)) dentro = !dentro;
  return dentro;
}

// The outlines of an area only touch, so that any one of them will do.
bool Nell_Area(const Bersaglio& bersaglio, Punto_Mappa punto) {
  return std::any_of(bersaglio.confini.begin(), bersaglio.confini.end(),
                     [&](const Anello& confine) { return Dentro(confine, punto); });
}

// On a world map an outline that passes the edge is drawn a second time, one turn further on.
std::vector<double> Giri(const Foglio& foglio, const Anello& in_gradi) {
  std::vector<double> giri;
  for (const double giro : {-360.0, 0.0, 360.0})
    if (std::any_of(in_gradi.begin(), in_gradi.end(), [&](Punto_Mappa punto) {
          return punto.x + giro > foglio.ovest && punto.x + giro < foglio.est;
        }))
      giri.push_back(giro);
  return giri;
}

// The outline data of the world end at the 180th meridian and at the pole: no coast is there.
bool Taglio(Punto_Mappa a, Punto_Mappa b) {
  const auto al_bordo = [](Punto_Mappa p) { return std::abs(p.x) > 179.95 || p.y < -89.9; };
  return al_bordo(a) && al_bordo(b);
}

void Aggiungi_Coste(std::vector<Spezzata>& coste, const Anello& in_gradi, const Proiezione& proiezione,
                    double giro) {
  Spezzata linea;
  for (std::size_t i = 0; i < in_gradi.size(); ++i) {
    const Punto_Mappa da = in_gradi[i], a = in_gradi[(i + 1) % in_gradi.size()];
    if (Taglio(da, a)) {
      if (linea.empty()) continue;
      linea.push_back(proiezione(da.x + giro, da.y));
      coste.push_back(std::exchange(linea, {}));
      continue;
    }
    Aggiungi_Tratto(linea, proiezione, {da.x + giro, da.y}, {a.x + giro, a.y});
  }
  if (linea.empty()) return;
  linea.push_back(proiezione(in_gradi.front().x + giro, in_gradi.front().y));
  coste.push_back(std::move(linea));
}

void Aggiungi_Terra(Mappa_Zone& mappa, const Foglio& foglio, Vista testo) {
  const auto in_gradi = Anelli_In_Gradi(testo);
  if (in_gradi.empty()) return;
  for (const double giro : Giri(foglio, in_gradi.front())) {
    auto& terra = mappa.terre.emplace_back();
    for (const Anello& anello : in_gradi) {
      terra.push_back(Proiettato(anello, foglio.proiezione, giro));
      Aggiungi_Coste(mappa.coste, anello, foglio.proiezione, giro);
    }
  }
}

void Aggiungi_Reticolo(Mappa_Zone& mappa, const Foglio& foglio) {
  const auto primo = [&](double bordo) { return std::ceil(bordo / foglio.passo) * foglio.passo; };
  for (double est = primo(foglio.ovest); est < foglio.est; est += foglio.passo)
    mappa.reticolo.push_back({foglio.proiezione(est, foglio.sud), foglio.proiezione(est, foglio.nord)});
  for (double nord = primo(foglio.sud); nord < foglio.nord; nord += foglio.passo) {
    auto& linea = mappa.reticolo.emplace_back();
    Aggiungi_Tratto(linea, foglio.proiezione, {foglio.ovest, nord}, {foglio.est, nord});
    linea.push_back(foglio.proiezione(foglio.est, nord));
  }
}

void Incornicia(Mappa_Zone& mappa, const Foglio& foglio) {
  const Anello bordo = {{foglio.ovest, foglio.nord},
                        {foglio.est, foglio.nord},
                        {foglio.est, foglio.sud},
                        {foglio.ovest, foglio.sud}};
  mappa.cornice = Proiettato(bordo, foglio.proiezione);
  Punto_Mappa& alto_sinistra = mappa.alto_sinistra;
  Punto_Mappa& basso_destra = mappa.basso_destra;
  alto_sinistra = basso_destra = mappa.cornice.front();
  for (const Punto_Mappa punto : mappa.cornice) {
    alto_sinistra = {std::min(alto_sinistra.x, punto.x), std::min(alto_sinistra.y, punto.y)};
    basso_destra = {std::max(basso_destra.x, punto.x), std::max(basso_destra.y, punto.y)};
  }
}

// What a click on the world map does with that area.
void Completa_Area(Bersaglio& bersaglio, const TabellaLista<2>& zone) {
  const Testo titolo = "FAO " + bersaglio.numero + " - " + bersaglio.nome;
  for (const auto& [area, nome] : apribili)
    if (area == bersaglio.indice) {
      bersaglio.apre = nome;
      bersaglio.spiegazione = titolo + ": apre la mappa";
      return;
    }
  bersaglio.zona = Zona_Di_Area(zone, bersaglio.indice);
  bersaglio.spiegazione = bersaglio.zona.empty() ? titolo + ": manca nella lista delle zone" : bersaglio.zona;
}

Bersaglio Bersaglio_Da(const std::vector<Testo>& riga, const Foglio& foglio) {
  enum Colonna { Indice, Numero, Nome, Zona, Tinta, Acqua, Scritta, Confini };
  const auto punto = [&](Vista testo) {
    const Punto_Mappa gradi_punto = Gradi(testo);
    return foglio.proiezione(gradi_punto.x, gradi_punto.y);
  };
  Bersaglio bersaglio;
  bersaglio.indice = Numero_Intero(riga.at(Indice));
  bersaglio.numero = riga.at(Numero);
  bersaglio.nome = riga.at(Nome);
  bersaglio.zona = bersaglio.spiegazione = riga.at(Zona);
  bersaglio.tinta = Numero_Intero(riga.at(Tinta));
  bersaglio.acqua = punto(riga.at(Acqua));
  bersaglio.scritta = punto(riga.at(Scritta));
  for (const Anello& anello : Anelli_In_Gradi(riga.at(Confini)))
    for (const double giro : Giri(foglio, anello))
      bersaglio.confini.push_back(Proiettato(anello, foglio.proiezione, giro));
  return bersaglio;
}

// "A083721 - Mediterraneo Adriatico": the code is what stands before the first "-".
Vista Codice_Zona(Vista etichetta) { return Pulito(Fino_A(etichetta, '-')); }

// The FAO part of a zone's code, behind "A" and the ocean group, which differs between list and maps for the
// Black Sea and the Baltic; empty for what is no catch zone.
Vista Parte_Fao(Vista zona) {
  const Vista codice = Codice_Zona(zona);
  return Inizia(codice, "A") ? Da(codice, 4) : Vista{};
}

}  // namespace

Mappa_Zone Leggi_Mappa(Vista nome, const TabellaLista<2>& zone) {
  Mappa_Zone mappa;
  const Foglio* foglio = Foglio_Di(nome);
  if (!foglio) return mappa;
  mappa.nome = foglio->nome;
  mappa.titolo = foglio->titolo;
  Incornicia(mappa, *foglio);
  Aggiungi_Reticolo(mappa, *foglio);
  for (const auto& riga : Righe_Incorporate(foglio->file_terre)) Aggiungi_Terra(mappa, *foglio, riga.at(0));
  for (const auto& riga : Righe_Incorporate(foglio->file_aree)) {
    auto& bersaglio = mappa.bersagli.emplace_back(Bersaglio_Da(riga, *foglio));
    if (nome == nomi_mappa::Mondo) Completa_Area(bersaglio, zone);
  }
  return mappa;
}

Punto_Mappa Punto_Su(Vista nome, double est, double nord) {
  const Foglio* foglio = Foglio_Di(nome);
  return foglio ? foglio->proiezione(est, nord) : Punto_Mappa{};
}

Testo Zona_Di_Area(const TabellaLista<2>& zone, int area) {
  const Testo cifre = Pad_Sinistra(std::to_string(area), 2, '0');
  Testo altra;
  for (const auto& riga : zone) {
    const Vista codice = Codice_Zona(riga[zona::Etichetta]);
    if (Destra(codice, 2) != cifre) continue;
    if (codice.size() == 5 && Inizia(codice, "A")) return riga[zona::Etichetta];
    if (altra.empty()) altra = riga[zona::Etichetta];
  }
  return altra;
}

bool In_Terra(const Mappa_Zone& mappa, Punto_Mappa punto) {
  return std::any_of(mappa.terre.begin(), mappa.terre.end(),
                     [&](const auto& terra) { return Dentro(terra, punto); });
}

int Bersaglio_In(const Mappa_Zone& mappa, Punto_Mappa punto) {
  if (!Dentro(mappa.cornice, punto) || In_Terra(mappa, punto)) return -1;
  for (std::size_t i = 0; i < mappa.bersagli.size(); ++i)
    if (Nell_Area(mappa.bersagli[i], punto)) return static_cast<int>(i);
  return -1;
}

std::vector<Spezzata> Coste_Di(const Mappa_Zone& mappa, const Bersaglio& bersaglio) {
  std::vector<Spezzata> esito;
  for (const Spezzata& costa : mappa.coste) {
    bool continua = false;
    for (const Punto_Mappa punto : costa) {
      const bool dentro = Nell_Area(bersaglio, punto);
      if (dentro && !continua) esito.emplace_back();
      if (dentro) esito.back().push_back(punto);
      continua = dentro;
    }
  }
  return esito;
}

int Bersaglio_Di_Zona(const Mappa_Zone& mappa, Vista zona) {
  const Vista cercata = Parte_Fao(zona);
  if (cercata.empty()) return -1;
  int trovato = -1;
  std::size_t lunghezza = 0;
  for (std::size_t i = 0; i < mappa.bersagli.size(); ++i) {
    const Bersaglio& bersaglio = mappa.bersagli[i];
    const bool aree_intere = mappa.nome == nomi_mappa::Mondo;
    const Vista parte = aree_intere ? Vista(bersaglio.numero) : Parte_Fao(bersaglio.zona);
    if (parte.size() <= lunghezza || !Inizia(cercata, parte)) continue;
    // 27.1 is not the beginning of 27.10; on the world map everything behind the area is a part of it
    if (!aree_intere && cercata.size() > parte.size() && E_Cifra(cercata[parte.size()])) continue;
    trovato = static_cast<int>(i);
    lunghezza = parte.size();
  }
  return trovato;
}

int Bersaglio_Accanto(const Mappa_Zone& mappa, int da, int dx, int dy) {
  if (da < 0 || static_cast<std::size_t>(da) >= mappa.bersagli.size()) return -1;
  const Punto_Mappa qui = mappa.bersagli[static_cast<std::size_t>(da)].scritta;
  int migliore = -1;
  double distanza_migliore = 0;
  for (std::size_t i = 0; i < mappa.bersagli.size(); ++i) {
    const Punto_Mappa la = mappa.bersagli[i].scritta;
    const double avanti = (la.x - qui.x) * dx + (la.y - qui.y) * dy;
    const double di_lato = std::abs((la.x - qui.x) * dy) + std::abs((la.y - qui.y) * dx);
    if (avanti <= 0 || di_lato > 3 * avanti) continue;
    const double distanza = avanti + 8 * di_lato * di_lato / avanti;  // straight ahead before nearer
    if (migliore >= 0 && distanza >= distanza_migliore) continue;
    migliore = static_cast<int>(i);
    distanza_migliore = distanza;
  }
  return migliore;
}

#pragma once

#include "core/programma.h"

// The maps that pick a fishing zone: the world by FAO major areas, the Mediterranean (area 37) by divisions
// and the North-East Atlantic (area 27) by subareas. Outlines and areas are data files; here they become a
// flat drawing, and a place on it becomes the text for the row.

namespace nomi_mappa {
inline constexpr Vista Mondo = "MappaMondo", Mediterraneo = "Mappa", Atlantico = "Mappa27";
}

// A place on the drawing: x to the right, y downward, one degree of latitude is one unit.
struct Punto_Mappa {
  double x = 0, y = 0;
  bool operator==(const Punto_Mappa&) const = default;
};
using Anello = std::vector<Punto_Mappa>;    // a closed outline; the last point joins the first
using Spezzata = std::vector<Punto_Mappa>;  // an open one

// An area that can be picked.
struct Bersaglio {
  int indice = 0;       // of its label: the FAO area number on the world map, else its place from 0
  Testo numero, nome;   // as they stand on the map: "37.2.1", "Adriatico"
  Testo zona;           // what the row's ZonaP gets; empty when it gets nothing
  Testo apre;           // name of the map that takes over instead; empty for none
  Testo spiegazione;    // what it is, in full, to be read before picking
  int tinta = 0;        // 0 to 5, another one for each neighbour
  Punto_Mappa acqua;    // a place on its water
  Punto_Mappa scritta;  // where its label stands: the same, or beside an area that is too small for it
  std::vector<Anello> confini;  // they run over land, which covers them
};

struct Mappa_Zone {
  Testo nome, titolo;
  Anello cornice;                           // edge of the sea, inside which everything is drawn
  Punto_Mappa alto_sinistra, basso_destra;  // the rectangle around it
  std::vector<std::vector<Anello>> terre;   // each with its holes behind it
  std::vector<Spezzata> coste;              // their outlines without the cuts at the edges of the data
  std::vector<Spezzata> reticolo;           // meridians and parallels
  std::vector<Bersaglio> bersagli;          // in the order of the keyboard
};

// The map of that name; without areas for an unknown one. `zone` is the firm's list of zones, which has the
// texts of the world map.
Mappa_Zone Leggi_Mappa(Vista nome, const TabellaLista<2>& zone);

// Degrees east and north as a place on the map of that name.
Punto_Mappa Punto_Su(Vista nome, double est, double nord);

// The label of the zone whose code is that of the FAO major area. Codes of subareas end in the same digits
// ("A02271" for 71), so a code of five characters, "A", the ocean group and the area, goes before the others.
// Empty when the list has none.
Testo Zona_Di_Area(const TabellaLista<2>& zone, int area);

// Position in `bersagli` of ... or -1:
int Bersaglio_In(const Mappa_Zone& mappa, Punto_Mappa punto);  // the area whose water lies at that place
int Bersaglio_Di_Zona(const Mappa_Zone& mappa, Vista zona);    // the area that the text of a row means
// the label next to another one in a direction (one of dx, dy is 1 or -1, the other 0)
int Bersaglio_Accanto(const Mappa_Zone& mappa, int da, int dx, int dy);

// The coast along that area's water: pieces of the map's coasts.
std::vector<Spezzata> Coste_Di(const Mappa_Zone& mappa, const Bersaglio& bersaglio);

bool In_Terra(const Mappa_Zone& mappa, Punto_Mappa punto);

#pragma once

#include <functional>

#include "lists/mappe.h"
#include "platform/finestra.h"

class QLabel;
class TelaMappa;

// A map of fishing zones: `MappaMondo`, `Mappa` (Mediterranean) or `Mappa27` (North-East Atlantic). Picking
// an area closes the map and gives the text for the row; areas 37 and 27 of the world open their own map
// instead.
class MappaFinestra : public FinestraDavanti {
  Q_OBJECT

 public:
  using Scelta = std::function<void(const Testo& zona)>;

  // `zona_attuale`: the row's ZonaP, whose area is marked.
  MappaFinestra(const QString& nome, Programma& programma, const Testo& zona_attuale, Scelta scelta,
                QWidget* padre = nullptr);
  ~MappaFinestra() override;
  MappaFinestra(const MappaFinestra&) = delete;
  MappaFinestra& operator=(const MappaFinestra&) = delete;

 private:
  void scegli(int bersaglio);
  void spiega(int bersaglio);

  Programma& programma_;
  Testo zona_attuale_;
  Scelta scelta_;
  Mappa_Zone mappa_;
  TelaMappa* tela_;
  QLabel* spiegazione_;
};

// Opens the map of that name in front of `padre` and returns at once; `scelta` is called when an area has
// been picked, after the map has closed.
void Apri_Mappa(const QString& nome, Programma& programma, const Testo& zona_attuale,
                MappaFinestra::Scelta scelta, QWidget* padre);

#pragma once

#include "lists/anagrafica_specie.h"
#include "platform/finestra.h"

class ListaVoci;

// The official list of species, `ModDescrLista`. A double click or Enter copies the line into the fields of
// the species editor that stands behind it, and closes the window.
class UfficialiFinestra : public FinestraDavanti {
  Q_OBJECT

 public:
  // `modulo` shows the editor's fields; it must outlive this window.
  UfficialiFinestra(Programma& programma, SchermoAnagrafica& specie, Finestra* modulo);
  void apri();

 private:
  void copia();

  Programma& programma_;
  SchermoAnagrafica& specie_;
  Finestra* modulo_;
  SchermoUfficiali schermo_;
  ListaVoci* lista_;
};

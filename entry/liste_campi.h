#pragma once

#include <optional>
#include <span>

#include "entry/edita.h"

// The list windows and the maps behind the entry fields: which list belongs to which field, and what opening
// and closing one does to the screen.

enum class Lista_Campo { Fornitori, Clienti, Specie, Zone, Provenienze, Codificata };

struct Finestra_Campo {
  Vista nome;        // of the small button beside the field
  Testo didascalia;  // its tooltip, and how it is read aloud
  CampoRiga campo;
  Lista_Campo lista;
  int tipo = 0;  // of the coded lists, 1 to 7
  // The field from which the flow goes on when the window has closed; nothing: the focus stays.
  std::optional<CampoRiga> continua;
};

// The twelve that have a button, in the order of the fields.
std::span<const Finestra_Campo> Finestre_Campi();
// The window of a field; both fields of the customer have the same one. Null for a field without.
const Finestra_Campo* FinestraDelCampo(int indice);

// Asks for the window of field `indice`: the look-up list goes, the screen stands still and the field is
// disabled until ListaChiusa. False when it can't be opened now.
bool ApriListaCampo(Edita& edita, int indice);
// The right button, or the key of the context menu, in a field.
bool DestroCampo(Edita& edita, int indice);
void ChiudiListaCampo(Edita& edita);

// Hides or shows the small buttons.
void MostraNascondeBottoni(Edita& edita);

// Asks for a map: F1 the Mediterranean, F11 the world.
void ApriMappa(Edita& edita, Richiesta mappa);
// The area that was picked goes into ZonaP as if it were keyed, and the focus goes on.
void ScegliZona(Edita& edita, Vista zona);

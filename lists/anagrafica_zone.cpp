#include "lists/anagrafica_zone.h"

#include "lists/liste.h"

namespace {

Anagrafica Descrizione() {
  Anagrafica zone;
  zone.lista = "Zone";
  zone.modulo = "ModZona";
  zone.file = nomi_file::Zone;
  zone.didascalia_lista = "Lista Zone";
  zone.titolo_modulo = "Aggiungi/Modifica Specie";
  zone.comando_modulo = "Aggiungi/&Modifica";
  zone.campi = {{.didascalia = "Codice - Zona di Cattura"}, {.didascalia = "Denominazione della Zona"}};
  zone.colonna_tab = 44;
  zone.tabella = Accesso<&Programma::Vet_Zone>();
  zone.titolo = [](std::size_t) { return Testo("Lista Zone"); };
  zone.voce = [](const Programma& programma, std::size_t r, int) {
    const auto& riga = programma.Vet_Zone[r];
    return riga[zona::Etichetta] + TAB + riga[zona::Codice];
  };
  zone.leggi = Leggi_Zone;
  zone.salva = Salva_Zone;
  zone.incompleta = [](Programma&, std::span<const Testo> valori) {
    return Pulito(valori[zona::Etichetta]).empty() || Pulito(valori[zona::Codice]).empty();
  };
  return zone;
}

}  // namespace

const Anagrafica& Anagrafica_Zone() {
  static const Anagrafica zone = Descrizione();
  return zone;
}

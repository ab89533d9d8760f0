#include "entry/ordinamenti.h"

#include "core/impegno.h"
#include "lists/ordina.h"

namespace {

using enum CampoRiga;

void OrdinaTabella(Programma& programma, const Ordinamento& ordinamento) {
  if (!ordinamento.rinumera) return Ordina_Tabella(programma, ordinamento.chiavi);
  if (Rinumera_Tabella(programma)) programma.Tabella_Modificata = true;
}

void RiempiLista(Edita& edita) {
  edita.riga_marcata = false;
  edita.albero.ListaVoci.scelta = -1;
  edita.albero.ListaVoci.Cambiato();
}

}  // namespace

std::span<const Ordinamento> Ordinamenti() {
  static const std::vector<Ordinamento> ordinamenti = {
      {"Ordina_Immissione", "Per Immissione", {Num}, true},
      {"Ordina_Fornitore", "Per Fornitore", {Fornitore}},
      {"Ordina_Cliente", "Per Cliente", {Cliente}},
      {"Ordina_Cliente_Specie", "Per Cliente e specie", {Cliente, Specie}},
      {"Ordina_CodCliente", "per Codice Cliente", {CodCliente}, false, 1, false},
      {"Ordina_Specie", "Per Specie", {Specie}},
      {"Ordina_Prezzo", "Per Prezzo", {Prezzo}, false, 3},
      {"Ordina_NCV", "Per Num. Conto Vendita", {NCV}},
      {"Ordina_Prov", "Per Provenienza", {Prov}},
      {"Ordina_Iva", "per aliquota IVA", {Iva}},
      {"Ordina_FAT", "Per Fattura", {FAT}},
      {"Ordina_DDT", "Per DDT", {DDT}},
      {"Ordina_Fornitore_Specie", "Per Fornitore+Specie+Immissione", {Fornitore, Specie, Num}},
      {"Ordina_MetodoPesca", "Per Attrezzo di pesca", {MetodoPesca}},
      {"Ordina_Pezzatura", "Per Pezzatura", {Pezzatura}, false, 1, false},
      {"Ordina_StatoFisico", "Per Stato Fisico", {StatoFisico}},
      {"Ordina_Lavorazione", "Per Lavorazione", {Lavorazione}},
      {"Ordina_Preparazione", "Per Preparazione", {Preparazione}},
      {"Ordina_DocSani", "Come Doc Sanitario", {Cliente, Specie, Prezzo, Lotti, CodiciConsolidare}},
  };
  return ordinamenti;
}

void Ordina(Programma& programma, Edita& edita, const Ordinamento& ordinamento) {
  if (Occupata(edita) || programma.Vet_Tabella.Righe() < ordinamento.righe_minime) return;
  const Schermo_Fermo fermo(edita);
  const Clessidra clessidra(programma.piattaforma);
  OrdinaTabella(programma, ordinamento);
  RiempiLista(edita);
  if (ordinamento.ricarica)
    VaiRiga(programma, edita, 1);
  else
    edita.hd.valore = 1;
}

void OrdinaImmissione(Programma& programma, Edita& edita, bool aggiorna) {
  const Ordinamento& immissione = Ordinamenti().front();
  if (aggiorna) return Ordina(programma, edita, immissione);
  OrdinaTabella(programma, immissione);
}

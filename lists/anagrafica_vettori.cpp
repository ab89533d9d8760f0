#include "lists/anagrafica_vettori.h"

#include "lists/liste.h"

namespace {

Anagrafica Descrizione() {
  Anagrafica vettori;
  vettori.lista = "AnagraficaVettori";
  vettori.modulo = "ModVETTORI";
  vettori.file = nomi_file::Vettori;
  vettori.didascalia_lista = "Lista dei Vettori";
  vettori.titolo_modulo = "Aggiungi/Modifica Lista dei Vettori";
  vettori.comando_modulo = "Aggiungi/&Modifica";
  vettori.campi = {
      {.didascalia = "Ragione Sociale"}, {.didascalia = "Via + Civico "}, {.didascalia = "Cap + Città "_t}};
  vettori.tabella = Accesso<&Programma::Vet_Vettori>();
  vettori.titolo = [](std::size_t voci) { return "Lista Vettori " + std::to_string(voci) + " voci"; };
  vettori.voce = [](const Programma& programma, std::size_t r, int) {
    const auto& riga = programma.Vet_Vettori[r];
    return riga[0] + " - " + riga[1] + " - " + riga[2];
  };
  vettori.leggi = Leggi_Vettori;
  vettori.salva = Salva_Vettori;
  vettori.incompleta = [](Programma&, std::span<const Testo> valori) { return Pulito(valori[0]).empty(); };
  vettori.aggiunta = Aggiunta::In_Coda_Al_File;
  vettori.letta_all_apertura = true;
  return vettori;
}

}  // namespace

const Anagrafica& Anagrafica_Vettori() {
  static const Anagrafica vettori = Descrizione();
  return vettori;
}

Vettore_Copiato Copia_Del_Vettore(const Programma& programma, std::size_t r) {
  return {"Vettore", programma.Vet_Vettori[r]};
}

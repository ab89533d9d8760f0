#include "lists/anagrafica_fornitori.h"

#include "core/numeri.h"
#include "lists/liste.h"

namespace {

Anagrafica Descrizione() {
  Anagrafica fornitori;
  fornitori.lista = "Fornitori";
  fornitori.modulo = "ModFOR";
  fornitori.file = nomi_file::Fornitori;
  fornitori.didascalia_lista = "Lista dei Fornitori Registrati";
  fornitori.titolo_modulo = "Aggiungi/Modifica Lista dei Fornitori Registrati";
  fornitori.comando_modulo = "Aggiungi/&Modifica";
  fornitori.campi = {{.didascalia = "Codice"},
                     {.didascalia = "Ragione Sociale 1 "},
                     {.didascalia = "Ragione Sociale 2 "},
                     {.didascalia = "Via + Civico"},
                     {.didascalia = "Cap + Citta' "},
                     {.didascalia = "P.IVA"},
                     {.didascalia = "Provvigione (% imponibile)", .numero = true},
                     {.didascalia = "Codice Lotto"},
                     {.didascalia = "IBAN"}};
  fornitori.tabella = Accesso<&Programma::Vet_Fornitori>();
  fornitori.titolo = [](std::size_t) { return Testo("Lista dei Fornitori Registrati"); };
  fornitori.voce = [](const Programma& programma, std::size_t r, int) {
    const auto& riga = programma.Vet_Fornitori[r];
    return riga[fornitore::Codice] + " - " + riga[fornitore::RagioneSociale1];
  };
  fornitori.leggi = Leggi_Fornitori;
  fornitori.salva = Salva_Fornitori;
  fornitori.incompleta = [](Programma&, std::span<const Testo> valori) {
    return Pulito(valori[fornitore::Codice]).empty() || Pulito(valori[fornitore::RagioneSociale1]).empty();
  };
  fornitori.aggiunta = Aggiunta::In_Coda_Al_File;
  fornitori.destinatario = [](const Programma& programma, std::size_t r) {
    const auto& riga = programma.Vet_Fornitori[r];
    return Destinatario{riga[fornitore::RagioneSociale1], riga[fornitore::RagioneSociale2],
                        riga[fornitore::Via], riga[fornitore::Citta]};
  };
  return fornitori;
}

}  // namespace

const Anagrafica& Anagrafica_Fornitori() {
  static const Anagrafica fornitori = Descrizione();
  return fornitori;
}

Fornitore_Copiato Copia_Del_Fornitore(const Programma& programma, std::size_t r) {
  const auto& riga = programma.Vet_Fornitori[r];
  return {riga[fornitore::RagioneSociale1],
          Correggi_Separatore(riga[fornitore::Provvigione], programma.Separatore_Decimale),
          programma.preferenze.FlagLottiAutomatici ? riga[fornitore::CodiceLotto] : Testo()};
}

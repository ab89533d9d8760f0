#include "entry/comandi.h"

#include <array>

#include "core/profili.h"

namespace {

using StatoDi = Stato_Comando (*)(const Programma&, const Edita&);

struct Regola {
  Voce_Comando voce;
  StatoDi stato;
};

Stato_Comando Sempre(const Programma&, const Edita& edita) { return {!Occupata(edita), true}; }

template <Bottone Edita::*bottone>
Stato_Comando Del_Bottone(const Programma&, const Edita& edita) {
  return {!Occupata(edita) && (edita.*bottone).attivo, (edita.*bottone).visibile};
}

Stato_Comando Del_Lotto(const Programma&, const Edita& edita) {
  const CampoTesto& lotti = Campo(edita, CampoRiga::Lotti);
  return {!Occupata(edita) && lotti.attivo, lotti.visibile};
}

const std::vector<Voce_Comando>& Futuri() {
  static const std::vector<Voce_Comando> voci = {
      {"Conti_Vendita", "Conti Ven&dita F2", "", Tasto::F2},
      {"Prima_Nota", "&Prima Nota F6", "", Tasto::F6},
      {"Doc_Trasporto", "&Doc. Trasporto", "", Tasto::Altro},
      {"DSI", "DSI", "stampa documento sanitario per il cliente selezionato", Tasto::Altro},
      {"DSI_Riga", "DSI 1R", "stampa documento sanitario per la riga selezionata", Tasto::Altro},
      {"Fat", "Fat", "", Tasto::Altro},
      {"Saldo", "Saldo", "totale € e Kg per fornitore"_t, Tasto::Altro},
      {"KgCli", "KgCli", "numero immissioni e Kg per cliente", Tasto::Altro},
      {"Cerca_Acquirente", "Cerca &Acquirente", "numero immissioni e Kg per cliente", Tasto::Altro},
      {"Stat", "Stat", "", Tasto::Altro},
      {"Stat2", "Stat2", "", Tasto::Altro},
      {"Etichetta", "Etichetta", "Stampa Etichetta", Tasto::Altro},
      {"Nasconde_Bottoni", "Mostra/Nasconde bottoni",
       "nasconde i bottoni...usare il tasto destro del mouse...", Tasto::Altro},
      {"Riduce_Edita", "Riduce finestra Edita", "", Tasto::Altro},
      {"Esclusi", "Esclusi", "", Tasto::Altro},
      {"Escludi_Codice", "Escludi questo codice", "", Tasto::Altro},
  };
  return voci;
}

// "Esclusi" belongs to two firms; the two document buttons and "Detto" follow their settings.
bool FuturoVisibile(const Programma& programma, Vista nome) {
  const Preferenze& preferenze = programma.preferenze;
  if (nome == "Esclusi") {
    const Profilo profilo = Profilo_Ditta(preferenze.Codice_Commissionario);
    return profilo == Profilo::Lagomar || profilo == Profilo::Rovigal;
  }
  if (nome == "DSI") return preferenze.FlagDSimmediato;
  if (nome == "DSI_Riga") return preferenze.FlagDSimmediatoUR;
  return true;
}

const std::vector<Regola>& Regole() {
  static const std::vector<Regola> regole = {
      {{"Elimina", "&Elimina F3", "", Tasto::F3}, Del_Bottone<&Edita::Elimina>},
      {{"Modifica", "&Modifica F4", "", Tasto::F4}, Del_Bottone<&Edita::Modifica>},
      {{"Aggiungi", "Ag&giungi F5", "", Tasto::F5}, Del_Bottone<&Edita::Aggiungi>},
      {{"Salva", "Sal&va F7", "", Tasto::F7}, Del_Bottone<&Edita::Salva>},
      {{"RigaPrecedente", "<", "", Tasto::F8}, Sempre},
      {{"RigaSuccessiva", ">", "", Tasto::F9}, Sempre},
      {{"Pulisci", "Pulisci", "", Tasto::Altro}, Sempre},
      {{"Command25", "", "", Tasto::Altro}, Del_Lotto},
      {{"BottoneDDT", "DDT", "modificare il numero del documento di trasporto o sanitario", Tasto::Altro},
       Del_Bottone<&Edita::BottoneDDT>},
      {{"BottoneFAT", "N.Fat", "modificail numero di fattura", Tasto::Altro},
       Del_Bottone<&Edita::BottoneFAT>},
      {{"Lotti", "Lotti", "", Tasto::Altro}, Sempre},
      {{"Imposta_Lotti", "lotti", "Imposta lista Lotti", Tasto::Altro}, Del_Lotto},
      {{"Memorizza_Fornitore", "Memorizza Fornitore Predefinito", "Salva una Macro con il Fornitore...",
        Tasto::Altro},
       Sempre},
      {{"Memorizza_Specie", "Memorizza Specie Predefinita", "Salva una Macro con la Specie...", Tasto::Altro},
       Sempre},
      {{"Chiudi", "&Chiudi", "", Tasto::Altro}, Sempre},
  };
  return regole;
}

const std::vector<Voce_Menu>& Voci_Menu() {
  static const std::vector<Voce_Menu> voci = {
      {"File", "Cancella Tutto", "Cancella_Tutto", false, Tasto::Altro},
      {"File", "Salva", "Salva", true, Tasto::Altro},
      {"File", "Controllo CV", "Controllo_CV", false, Tasto::Altro},
      {"File", "Chiudi", "Chiudi", true, Tasto::Altro},
      {"Pref.", "Preferenze Operative", "Preferenze_Operative", true, Tasto::Altro},
      {"Pref.", "Preferenze per Doc. Sanitario e DDI", "Preferenze_Documenti", false, Tasto::Altro},
      {"Pref.", "Preferenze Fatture Personalizzate", "Preferenze_Fatture", false, Tasto::Altro},
      {"Pref.", "Stampante", "Stampante", false, Tasto::Altro},
      {"Pref.", "Colore Lista", "Colore_Lista", true, Tasto::Altro},
      {"Pref.", "Rinnova Liste", "Rinnova_Liste", false, Tasto::Altro},
      {"Mappe", "Mediterraaneo FAO 37", "Mappa", false, Tasto::F1},
      {"Mappe", "Tutto l Mondo", "MappaMondo", false, Tasto::F11},
      {"&Ordina", "Per Immissione", "Ordina_Immissione", false, Tasto::Altro},
      {"&Ordina", "Per Fornitore", "Ordina_Fornitore", false, Tasto::Altro},
      {"&Ordina", "Per Cliente", "Ordina_Cliente", false, Tasto::Altro},
      {"&Ordina", "Per Cliente e specie", "Ordina_Cliente_Specie", false, Tasto::Altro},
      {"&Ordina", "per Codice Cliente", "Ordina_CodCliente", false, Tasto::Altro},
      {"&Ordina", "Per Specie", "Ordina_Specie", false, Tasto::Altro},
      {"&Ordina", "Per Prezzo", "Ordina_Prezzo", false, Tasto::Altro},
      {"&Ordina", "Per Num. Conto Vendita", "Ordina_NCV", false, Tasto::Altro},
      {"&Ordina", "Per Provenienza", "Ordina_Prov", false, Tasto::Altro},
      {"&Ordina", "per aliquota IVA", "Ordina_Iva", false, Tasto::Altro},
      {"&Ordina", "Per Fattura", "Ordina_FAT", false, Tasto::Altro},
      {"&Ordina", "Per DDT", "Ordina_DDT", false, Tasto::Altro},
      {"&Ordina", "Per Fornitore+Specie+Immissione", "Ordina_Fornitore_Specie", false, Tasto::Altro},
      {"&Ordina", "Per Attrezzo di pesca", "Ordina_MetodoPesca", false, Tasto::Altro},
      {"&Ordina", "Per Pezzatura", "Ordina_Pezzatura", false, Tasto::Altro},
      {"&Ordina", "Per Stato Fisico", "Ordina_StatoFisico", false, Tasto::Altro},
      {"&Ordina", "Per Lavorazione", "Ordina_Lavorazione", false, Tasto::Altro},
      {"&Ordina", "Per Preparazione", "Ordina_Preparazione", false, Tasto::Altro},
      {"&Ordina", "Come Doc Sanitario", "Ordina_DocSani", false, Tasto::Altro},
      {"PrefSpecie", "", "PrefSpecie", true, Tasto::Altro},
      {"PrefFornitori", "", "PrefFornitori", true, Tasto::Altro},
      {"&Lista_F12", "", "Lista_F12", true, Tasto::F12},
      {"Help", "Aiuto", "Aiuto", false, Tasto::Altro},
      {"Help", "Lotti", "Aiuto_Lotti", false, Tasto::Altro},
      {"Help", "Fatture 1", "Aiuto_Fatture_1", false, Tasto::Altro},
      {"Help", "Fatture 2", "Aiuto_Fatture_2", false, Tasto::Altro},
      {"Help", "Transazioni", "Aiuto_Transazioni", false, Tasto::Altro},
      {"Help", "Numerazione DDT e DS", "Aiuto_Numerazione", false, Tasto::Altro},
      {"Help", "Specie e Fornitori Predefiniti", "Aiuto_Predefiniti", false, Tasto::Altro},
      {"Help", "Prezzo per cassa", "Aiuto_Prezzo_Cassa", false, Tasto::Altro},
      {"Help", "Export Prima Nota Esteso", "Aiuto_Export", false, Tasto::Altro},
      {"Help", "Campi", "Aiuto_Campi", false, Tasto::Altro},
      {"Help", "Stampa Liste", "Stampa_Liste", false, Tasto::Altro},
      {"Help", "salva lista Specie", "Salva_Lista_Specie", false, Tasto::Altro},
      {"Help", "Etichette", "Aiuto_Etichette", false, Tasto::Altro},
      {"Marca", "", "Marca", true, Tasto::Altro},
  };
  return voci;
}

}  // namespace

std::span<const Voce_Comando> Comandi() {
  static const std::vector<Voce_Comando> voci = [] {
    std::vector<Voce_Comando> tutte;
    for (const Regola& regola : Regole()) tutte.push_back(regola.voce);
    return tutte;
  }();
  return voci;
}

std::span<const Voce_Comando> Comandi_Futuri() { return Futuri(); }

Stato_Comando StatoComando(const Programma& programma, const Edita& edita, Vista nome) {
  for (const Regola& regola : Regole())
    if (regola.voce.nome == nome) return regola.stato(programma, edita);
  return {false, FuturoVisibile(programma, nome)};
}

std::span<const Voce_Menu> Menu() { return Voci_Menu(); }

Testo DidascaliaMenu(const Edita& edita, const Voce_Menu& voce) {
  if (voce.nome == "Marca") return Testo(VoceMarca(edita));
  return voce.voce.empty() ? Testo(voce.menu) : voce.voce;
}

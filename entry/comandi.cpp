#include "entry/comandi.h"

#include <array>

#include "core/profili.h"
#include "entry/aiuto.h"
#include "entry/liste_campi.h"
#include "entry/ordinamenti.h"

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

Stato_Comando Del_Bottone_Lista(const Programma&, const Edita& edita) {
  return {!Occupata(edita), edita.bottoni_liste};
}

Stato_Comando Degli_Esclusi(const Programma& programma, const Edita& edita) {
  const Profilo profilo = Profilo_Ditta(programma.preferenze.Codice_Commissionario);
  return {!Occupata(edita), profilo == Profilo::Lagomar || profilo == Profilo::Rovigal};
}

// The two document buttons follow their settings.
template <bool Preferenze::*flag>
Stato_Comando Della_Preferenza(const Programma& programma, const Edita& edita) {
  return {!Occupata(edita), programma.preferenze.*flag};
}

std::vector<Regola> Componi_Regole() {
  const Testo per_fornitore = "totale € e Kg per fornitore"_t;
  const Testo per_cliente = "numero immissioni e Kg per cliente";
  std::vector<Regola> tutte = {
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
      {{"Nasconde_Bottoni", "Mostra/Nasconde bottoni",
        "nasconde i bottoni...usare il tasto destro del mouse...", Tasto::Altro},
       Sempre},
      {{"Riduce_Edita", "Riduce finestra Edita", "", Tasto::Altro}, Sempre},
      {{"Esclusi", "Esclusi", "", Tasto::Altro}, Degli_Esclusi},
      {{"Etichetta", "Etichetta", "Stampa Etichetta", Tasto::Altro}, Sempre},
      {{"Doc_Trasporto", "&Doc. Trasporto", "", Tasto::Altro}, Sempre},
      {{"Conti_Vendita", "Conti Ven&dita F2", "", Tasto::F2}, Sempre},
      {{"Prima_Nota", "&Prima Nota F6", "", Tasto::F6}, Sempre},
      {{"DSI", "DSI", "stampa documento sanitario per il cliente selezionato", Tasto::Altro},
       Della_Preferenza<&Preferenze::FlagDSimmediato>},
      {{"DSI_Riga", "DSI 1R", "stampa documento sanitario per la riga selezionata", Tasto::Altro},
       Della_Preferenza<&Preferenze::FlagDSimmediatoUR>},
      {{"Fat", "Fat", "", Tasto::Altro}, Sempre},
      {{"Saldo", "Saldo", per_fornitore, Tasto::Altro}, Sempre},
      {{"KgCli", "KgCli", per_cliente, Tasto::Altro}, Sempre},
      {{"Cerca_Acquirente", "Cerca &Acquirente", per_cliente, Tasto::Altro}, Sempre},
      {{"Stat", "Stat", "", Tasto::Altro}, Sempre},
      {{"Stat2", "Stat2", "", Tasto::Altro}, Sempre},
      {{"Escludi_Codice", "Escludi questo codice", "", Tasto::Altro}, Sempre},
      {{"Chiudi", "&Chiudi", "", Tasto::Altro}, Sempre},
  };
  for (const Finestra_Campo& finestra : Finestre_Campi())
    tutte.push_back({{finestra.nome, "...", finestra.didascalia, Tasto::Altro}, Del_Bottone_Lista});
  return tutte;
}

const std::vector<Regola>& Regole() {
  static const std::vector<Regola> regole = Componi_Regole();
  return regole;
}

void Accoda_Ordini(std::vector<Voce_Menu>& voci) {
  for (const Ordinamento& ordine : Ordinamenti())
    voci.push_back({"&Ordina", ordine.voce, ordine.nome, true, Tasto::Altro});
}

// The helps in their order, with the commands that stand among them.
void Accoda_Aiuti(std::vector<Voce_Menu>& voci) {
  for (const Voce_Aiuto& aiuto : Aiuti()) {
    if (aiuto.nome == "Aiuto_Etichette") {
      voci.push_back({"Help", "Campi", "Aiuto_Campi", true, Tasto::Altro});
      voci.push_back({"Help", "Stampa Liste", "Stampa_Liste", true, Tasto::Altro});
      voci.push_back({"Help", "salva lista Specie", "Salva_Lista_Specie", true, Tasto::Altro});
    }
    voci.push_back({"Help", aiuto.voce, aiuto.nome, true, Tasto::Altro});
  }
  voci.push_back({"Help", "Manuale", "Manuale", true, Tasto::Altro});
}

const std::vector<Voce_Menu>& Voci_Menu() {
  static const std::vector<Voce_Menu> voci = [] {
    std::vector<Voce_Menu> tutte = {
        {"File", "Cancella Tutto", "Cancella_Tutto", true, Tasto::Altro},
        {"File", "Salva", "Salva", true, Tasto::Altro},
        {"File", "Vettori", "Vettori", true, Tasto::Altro},
        {"File", "Controllo CV", "Controllo_CV", true, Tasto::Altro},
        {"File", "Stampa Schermo", "Stampa_Schermo", true, Tasto::Altro},
        {"File", "Chiudi", "Chiudi", true, Tasto::Altro},
        {"Pref.", "Preferenze Operative", "Preferenze_Operative", true, Tasto::Altro},
        {"Pref.", "Preferenze per Doc. Sanitario e DDI", "Preferenze_Documenti", true, Tasto::Altro},
        {"Pref.", "Preferenze Fatture Personalizzate", "Preferenze_Fatture", true, Tasto::Altro},
        {"Pref.", "Stampante", "Stampante", true, Tasto::Altro},
        {"Pref.", "Colore Lista", "Colore_Lista", true, Tasto::Altro},
        {"Pref.", "Rinnova Liste", "Rinnova_Liste", true, Tasto::Altro},
        {"Mappe", "Mediterraaneo FAO 37", "Mappa", true, Tasto::F1},
        {"Mappe", "Tutto l Mondo", "MappaMondo", true, Tasto::F11},
    };
    Accoda_Ordini(tutte);
    tutte.insert(tutte.end(), {
                                  {"PrefSpecie", "", "PrefSpecie", true, Tasto::Altro},
                                  {"PrefFornitori", "", "PrefFornitori", true, Tasto::Altro},
                                  {"&Lista_F12", "", "Lista_F12", true, Tasto::F12},
                              });
    Accoda_Aiuti(tutte);
    tutte.push_back({"Marca", "", "Marca", true, Tasto::Altro});
    return tutte;
  }();
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

std::span<const Vista> Comandi_Altrui() {
  static const std::vector<Vista> nomi = {
      "Conti_Vendita",
      "Prima_Nota",
      "Doc_Trasporto",
      "Fat",
      "DSI",
      "DSI_Riga",
      "Preferenze_Documenti",
      "Preferenze_Fatture",
      "Controllo_CV",
      "Saldo",
      "KgCli",
      "Cerca_Acquirente",
      "Stat",
      "Stat2",
  };
  return nomi;
}

void ChiediSchermo(Edita& edita, Vista comando) {
  if (!Occupata(edita)) edita.schermo = Testo(comando);
}

Stato_Comando StatoComando(const Programma& programma, const Edita& edita, Vista nome) {
  for (const Regola& regola : Regole())
    if (regola.voce.nome == nome) return regola.stato(programma, edita);
  return {};
}

std::span<const Voce_Menu> Menu() { return Voci_Menu(); }

Testo DidascaliaMenu(const Edita& edita, const Voce_Menu& voce) {
  if (voce.nome == "Marca") return Testo(VoceMarca(edita));
  return voce.voce.empty() ? Testo(voce.menu) : voce.voce;
}

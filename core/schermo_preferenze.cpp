#include "core/schermo_preferenze.h"

#include <algorithm>

#include "core/numeri.h"
#include "core/programma.h"

namespace {

bool E_Flag(const Impostazione& impostazione) {
  return std::holds_alternative<bool Preferenze::*>(impostazione.posto);
}
bool E_Intera(const Impostazione& impostazione) {
  return std::holds_alternative<int Preferenze::*>(impostazione.posto);
}
bool E_Decimale(const Impostazione& impostazione) {
  return std::holds_alternative<double Preferenze::*>(impostazione.posto);
}

// Selects the line with this text, which is added where the list doesn't have it.
void Scegli(Elenco& elenco, std::vector<Testo> righe, const Testo& riga) {
  auto posto = std::ranges::find_if(righe, [&](const Testo& altra) { return Uguali(altra, riga); });
  if (posto == righe.end()) posto = righe.insert(righe.end(), riga);
  elenco.scelta = static_cast<int>(posto - righe.begin());
  elenco.Riempi(std::move(righe));
}

void Scegli(Elenco& elenco, const Testo& riga) {
  std::vector<Testo> righe;
  for (std::size_t i = 0; i < elenco.Numero(); ++i) righe.push_back(elenco.Riga(i));
  Scegli(elenco, std::move(righe), riga);
}

void Mostra_Valore(const Programma& programma, SchermoPreferenze& schermo, const Impostazione& impostazione) {
  const Testo valore = Valore_Scritto(impostazione, programma.preferenze);
  if (E_Flag(impostazione)) {
    schermo.spunte[impostazione.chiave].segnata = valore != "0";
  } else if (impostazione.scelte.empty()) {
    schermo.campi[impostazione.chiave].testo =
        E_Decimale(impostazione) ? Correggi_Separatore(valore, programma.Separatore_Decimale) : valore;
  } else if (E_Intera(impostazione)) {
    schermo.elenchi[impostazione.chiave].scelta = Intero(valore, '.');
  } else {
    Scegli(schermo.elenchi[impostazione.chiave], valore);
  }
}

void Mostra_Valori(const Programma& programma, SchermoPreferenze& schermo) {
  for (const Impostazione& impostazione : Impostazioni())
    if (impostazione.gruppo != Gruppo::Nessuno) Mostra_Valore(programma, schermo, impostazione);
}

void Prepara_Controlli(SchermoPreferenze& schermo, const std::vector<Testo>& fonti) {
  for (const Impostazione& impostazione : Impostazioni()) {
    if (impostazione.gruppo == Gruppo::Nessuno) continue;
    if (E_Flag(impostazione)) {
      Spunta& spunta = schermo.spunte[impostazione.chiave];
      spunta.didascalia = impostazione.didascalia;
      spunta.suggerimento = impostazione.suggerimento;
    } else if (impostazione.scelte.empty()) {
      schermo.campi[impostazione.chiave].suggerimento = impostazione.suggerimento;
    } else {
      schermo.elenchi[impostazione.chiave].Riempi(impostazione.scelte);
    }
  }
  Elenco& fonte = schermo.elenchi["fonte"];
  fonte.Riempi(fonti);
  Scegli(fonte, Trova_Impostazione("fonte")->predefinito);

  schermo.Applica.testo = "&Applica";
  schermo.Chiudi.testo = "&Chiudi";
  schermo.Predefiniti.testo = "Prede&finiti";
  schermo.Default.testo = "Default";
  schermo.DimensioniDDT.testo = "Dimensioni DDT";
  schermo.Personalizza.testo = "Personalizza";
  schermo.DimensioniDDT.attivo = static_cast<bool>(schermo.dimensioni_ddt);
  schermo.Personalizza.attivo = static_cast<bool>(schermo.personalizza);
}

// A number as it was keyed, in the form of the file. What is no number gives back a rate's default, and
// counts as 0 for margins and rows.
Testo Numero_Del_Campo(const Impostazione& impostazione, const Testo& testo, char separatore) {
  const auto numero = Numero(Correggi_Separatore(testo, separatore), separatore);
  if (numero) return Piano(*numero, '.');
  return E_Decimale(impostazione) ? impostazione.predefinito : "0";
}

void Prendi_Campo(const Impostazione& impostazione, const Testo& testo, char separatore,
                  Preferenze& preferenze) {
  // The stall's number can't be emptied: the next start would only ask for it again.
  if (impostazione.chiave == "nposteggio" && !Posteggio_Valido(testo)) return;
  if (E_Decimale(impostazione) || E_Intera(impostazione)) {
    Prendi_Valore(impostazione, preferenze, Numero_Del_Campo(impostazione, testo, separatore));
    return;
  }
  Testo pulito = Senza_Separatori(testo);
  // the two wordings of the sanitary document go on with the zone and so keep their blank at the end
  if (impostazione.vuoto != SeVuoto::Predefinito) pulito = Pulito(pulito);
  Prendi_Valore(impostazione, preferenze, pulito);
}

Preferenze Prendi_Controlli(const Programma& programma, const SchermoPreferenze& schermo) {
  Preferenze preferenze = programma.preferenze;
  for (const Impostazione& impostazione : Impostazioni()) {
    if (impostazione.gruppo == Gruppo::Nessuno) continue;
    if (E_Flag(impostazione)) {
      const bool segnata = schermo.spunte.at(impostazione.chiave).segnata;
      Prendi_Valore(impostazione, preferenze, segnata ? "-1" : "0");
    } else if (impostazione.scelte.empty()) {
      Prendi_Campo(impostazione, schermo.campi.at(impostazione.chiave).testo, programma.Separatore_Decimale,
                   preferenze);
    } else if (const Elenco& elenco = schermo.elenchi.at(impostazione.chiave); elenco.scelta >= 0) {
      Prendi_Valore(impostazione, preferenze,
                    E_Intera(impostazione) ? Piano(elenco.scelta, '.') : elenco.Scelta());
    }
  }
  if (preferenze.maxrighesalvate < 1) preferenze.maxrighesalvate = 10;
  return preferenze;
}

}  // namespace

void Apri_Preferenze(Programma& programma, SchermoPreferenze& schermo, const std::vector<Testo>& fonti) {
  Prepara_Controlli(schermo, fonti);
  Mostra_Valori(programma, schermo);
}

void Apri_Altro_Schermo(Programma& programma, SchermoPreferenze& schermo, const std::function<void()>& apri) {
  const Preferenze prima = programma.preferenze;
  apri();
  for (const Impostazione& impostazione : Impostazioni())
    if (impostazione.gruppo != Gruppo::Nessuno &&
        Valore_Scritto(impostazione, prima) != Valore_Scritto(impostazione, programma.preferenze))
      Mostra_Valore(programma, schermo, impostazione);
}

void Tocca_Preferenze(SchermoPreferenze& schermo) { schermo.Esito.testo.clear(); }

bool Applica_Preferenze(Programma& programma, SchermoPreferenze& schermo) {
  Tocca_Preferenze(schermo);
  const Preferenze vecchie = programma.preferenze;
  if (schermo.campi.at("StringaB").testo != vecchie.StringaB ||
      schermo.campi.at("StringaC").testo != vecchie.StringaC)
    programma.piattaforma.Messaggio(
        "Riavviare il programma per rendere effettive le modifiche...\n"
        "modificare manualmente la lista delle ZonePesca.");

  const auto metti_in_uso = [&](const Preferenze& preferenze) {
    programma.preferenze = preferenze;
    if (programma.Edita_Aperta && schermo.larghezza_edita) schermo.larghezza_edita();
  };
  metti_in_uso(Prendi_Controlli(programma, schermo));
  if (Scrivi_Preferenze(programma)) {
    Mostra_Valori(programma, schermo);
    schermo.Esito.testo = "Preferenze salvate.";
    return true;
  }
  metti_in_uso(vecchie);
  programma.piattaforma.Messaggio(
      "Le preferenze non sono state salvate: il file\n"_t + Testo_Percorso(programma.File_Ini) +
      "\nnon si può scrivere. Controllare il disco e premere di nuovo Applica."_t);
  return false;
}

void Riempi_Predefiniti(SchermoPreferenze& schermo) {
  Tocca_Preferenze(schermo);
  for (const Vista margine : {"DASU3", "BORDO3"}) schermo.campi.find(margine)->second.testo = "0";
  for (const Vista testo : {"StringaB", "StringaC", "PrimaAliquota", "SecondaAliquota"})
    schermo.campi.find(testo)->second.testo = Trova_Impostazione(testo)->predefinito;
  schermo.campi.at("StringaCEE").testo = "CEE IT 940/";
  for (const Vista video : {"DimFontListe", "DimFontEdita"})
    Scegli(schermo.elenchi.find(video)->second, "8.25");
  Scegli(schermo.elenchi.at("FlagColonneListaVoci"), "NOTA");
  Scegli(schermo.elenchi.at("DimFont"), "11");
  Fonte_Predefinita(schermo);
}

void Fonte_Predefinita(SchermoPreferenze& schermo) {
  Tocca_Preferenze(schermo);
  Scegli(schermo.elenchi.at("fonte"), "Arial");
}

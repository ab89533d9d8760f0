#include "documents/dimddt.h"

#include <algorithm>
#include <initializer_list>

#include "core/numeri.h"

namespace {

constexpr Vista larghezza = "DocSani_LarghezzaPagina", altezza = "DocSani_AltezzaPagina",
                logo = "DocSani_Offset_Logo", aggiustamento = "DocSani_Aggiustamento",
                altezza_dest = "DocSani_AltezzaDest", da_destra = "DocSani_dadestra",
                titolo_bolla = "TitoloBolla", piede1 = "PiedePaginaBolla1", piede2 = "PiedePaginaBolla2",
                ellisse_x = "ellisse_centrox", ellisse_y = "ellisse_centroy";

// The fields in their order, and the check box at the end.
const std::initializer_list<Vista> chiavi = {
    larghezza,     altezza,   logo,          aggiustamento, altezza_dest,     da_destra,     titolo_bolla,
    piede1,        piede2,    "DS_intesta1", "DS_intesta2", "DS_intesta3",    "DS_intesta4", "DS_intesta5",
    "DS_intesta6", ellisse_x, ellisse_y,     "StringaCEE",  "FlagPiedePagina"};

constexpr Vista righe_ragione = "righe 1, 3 e 5 di ragione.txt";

struct Suggerimento {
  Vista chiave;
  Testo testo;
};

// That of the heading's shift follows what is keyed.
std::array<Suggerimento, 8> Suggerimenti() {
  return {{{larghezza, "larghezza della pagina in millimetri"},
           {altezza, "altezza della pagina in millimetri"},
           {logo, "Spazio occupato dal logo in millimetri"},
           {titolo_bolla, "Titolo del documento sanitario/tracciabilità"_t},
           {piede1, "prima riga"},
           {piede2, "seconda riga"},
           {ellisse_x, Testo(righe_ragione)},
           {ellisse_y, Testo(righe_ragione)}}};
}

constexpr Vista bottone_intestazione = "PredefinitoIntestazione";

std::vector<Predefinito_Dim> Componi_Predefiniti() {
  return {{"ModuloContinuo",
           "154x172 per stampante a modulo continuo",
           {},
           {{larghezza, "154"}, {altezza, "172"}}},
          {"FoglioA4",
           "dimensioni del foglio A4",
           "Per A5 dimezzare l'altezza",
           {{larghezza, "210"}, {altezza, "293"}}},
          {"PredefinitoMargini", "Default", {}, {{logo, "45"}, {aggiustamento, "15"}, {da_destra, "0"}}},
          {"PredefinitoEllisse", "Default", {}, {{ellisse_x, "165"}, {ellisse_y, "8"}}},
          {"PredefinitoTitolo",
           "Default",
           {},
           {{titolo_bolla, "DOCUMENTO sulla TRACCIABILITA' dei PRODOTTI ITTICI"}}},
          {"PredefinitoPiede",
           "Default",
           {},
           {{piede1, "assolve gli obblighi di cui all'Art. 62 comma 1 del D.L.24 gennaio 2012 n. 1"},
            {piede2, "convertito con modificazioni dalla Legge 24 marzo 2012 n° 27"_t}}},
          {bottone_intestazione, "Default", Testo(righe_ragione), {}}};
}

const Impostazione& Di(Vista chiave) { return *Trova_Impostazione(chiave); }

bool E_Intera(Vista chiave) { return std::holds_alternative<int Preferenze::*>(Di(chiave).posto); }

CampoTesto& Campo_Di(DimDDT& schermo, Vista chiave) { return schermo.campi.find(chiave)->second; }

int Millimetri(const DimDDT& schermo, Vista chiave, char separatore) {
  return Intero(schermo.campi.find(chiave)->second.testo, separatore);
}

bool Misure_Buone(DimDDT& schermo, char separatore) {
  const auto mm = [&](Vista chiave) { return Millimetri(schermo, chiave, separatore); };
  bool buone = mm(larghezza) > 0 && mm(altezza) > 0;
  const int spazio_logo = mm(logo), spostamento = mm(aggiustamento);
  if (spazio_logo == 0) {
    Campo_Di(schermo, logo).testo = "1";
    buone = false;
  }
  if (spostamento > spazio_logo) {
    Campo_Di(schermo, logo).testo = std::to_string(spostamento);
    buone = false;
  }
  if (mm(larghezza) > Larghezza_Massima_DDT || mm(altezza) > Altezza_Massima_DDT) buone = false;
  return buone && mm(ellisse_x) >= 1 && mm(ellisse_y) >= 1;
}

void Prendi_Campi(const DimDDT& schermo, char separatore, Preferenze& preferenze) {
  for (const Vista chiave : Chiavi_DimDDT()) {
    const Testo valore = E_Intera(chiave) ? std::to_string(Millimetri(schermo, chiave, separatore))
                                          : Senza_Separatori(schermo.campi.find(chiave)->second.testo);
    Prendi_Valore(Di(chiave), preferenze, valore);
  }
  preferenze.FlagPiedePagina = schermo.FlagPiedePagina.segnata;
}

Vista Didascalia(Vista chiave) {
  if (chiave == "DS_intesta1") return "Intestazione (sei righe)";
  return Di(chiave).didascalia;
}

}  // namespace

std::span<const Vista> Chiavi_DimDDT() { return {chiavi.begin(), chiavi.size() - 1}; }

std::span<const Predefinito_Dim> Predefiniti_DimDDT() {
  static const std::vector<Predefinito_Dim> predefiniti = Componi_Predefiniti();
  return predefiniti;
}

void Apri_DimDDT(Programma& programma, DimDDT& schermo) {
  for (const Vista chiave : Chiavi_DimDDT()) {
    schermo.campi[Testo(chiave)].testo = Valore_Scritto(Di(chiave), programma.preferenze);
    schermo.didascalie[Testo(chiave)].testo = Didascalia(chiave);
  }
  for (const Suggerimento& suggerimento : Suggerimenti())
    Campo_Di(schermo, suggerimento.chiave).suggerimento = suggerimento.testo;
  for (const Predefinito_Dim& predefinito : Predefiniti_DimDDT()) {
    Bottone& bottone = schermo.predefiniti[Testo(predefinito.nome)];
    bottone.testo = predefinito.didascalia;
    bottone.suggerimento = predefinito.suggerimento;
  }
  schermo.FlagPiedePagina.segnata = programma.preferenze.FlagPiedePagina;
  schermo.FlagPiedePagina.didascalia = "Nota a piè pagina"_t;
  schermo.Conferma.testo = "conferma le modifiche";
  schermo.Chiudi.testo = "&Chiudi";
  schermo.chiusa = false;
  Tocca_DimDDT(schermo);
}

void Tocca_DimDDT(DimDDT& schermo) {
  CampoTesto& campo = Campo_Di(schermo, aggiustamento);
  campo.suggerimento = "Sposta l'intestazione a destra di " + campo.testo + " millimetri";
}

void Riempi_DimDDT(const Programma& programma, DimDDT& schermo, Vista nome) {
  for (const Predefinito_Dim& predefinito : Predefiniti_DimDDT()) {
    if (predefinito.nome != nome) continue;
    for (const Valore_Dim& valore : predefinito.valori)
      Campo_Di(schermo, valore.chiave).testo = valore.valore;
  }
  if (nome == bottone_intestazione) {
    char numero = '1';
    for (const Testo& riga : IntestazionePredefinita(programma))
      Campo_Di(schermo, Testo("DS_intesta") + numero++).testo = riga;
  }
  Tocca_DimDDT(schermo);
}

bool Conferma_DimDDT(Programma& programma, DimDDT& schermo) {
  const bool buone = Misure_Buone(schermo, programma.Separatore_Decimale);
  Tocca_DimDDT(schermo);
  if (!buone) {
    programma.piattaforma.Messaggio(
        "dimesione del foglio non corretta...(o posizione dell'ellisse non corretta)");
    return false;
  }
  const Preferenze vecchie = programma.preferenze;
  Prendi_Campi(schermo, programma.Separatore_Decimale, programma.preferenze);
  if (!Scrivi_Preferenze(programma, chiavi)) {
    programma.preferenze = vecchie;
    programma.piattaforma.Messaggio("Le dimensioni non sono state salvate: il file\n" +
                                    Testo_Percorso(programma.File_Ini) +
                                    "\nnon si può scrivere. Controllare il disco e confermare di nuovo."_t);
    return false;
  }
  schermo.chiusa = true;
  return true;
}

void Chiudi_DimDDT(DimDDT& schermo) { schermo.chiusa = true; }

std::optional<std::array<Testo, 6>> IntestazioneProfilo(const Programma& programma, Profilo profilo) {
  constexpr Profilo con_la_propria[] = {Profilo::Rovigal, Profilo::Fusinal, Profilo::Sarvena};
  if (std::ranges::find(con_la_propria, profilo) == std::end(con_la_propria)) return std::nullopt;
  const auto& ragione = programma.Ragione;
  return std::array<Testo, 6>{Maiuscolo(Nome_Profilo(profilo)),
                              "Commissionario al Mercato Ittico all'Ingrosso",
                              "Posteggio n. " + programma.preferenze.Numero_Posteggio,
                              ragione[3],
                              ragione[4],
                              programma.preferenze.StringaCEE};
}

std::array<Testo, 6> IntestazionePredefinita(const Programma& programma) {
  const auto propria =
      IntestazioneProfilo(programma, Profilo_Ditta(programma.preferenze.Codice_Commissionario));
  if (propria) return *propria;
  const auto& ragione = programma.Ragione;
  return {ragione[0], ragione[2], ragione[4]};
}

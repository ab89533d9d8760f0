#include "stats/controllo_cv.h"

#include <algorithm>

#include "accounts/file_conto.h"
#include "core/giorno.h"
#include "core/impegno.h"
#include "core/numeri.h"
#include "lists/consolida.h"
#include "lists/ordina.h"
#include "printing/pagina_righe.h"

namespace {

constexpr std::size_t larghezza_fornitore = 40, larghezza_imponibile = 12, larghezza_commissioni = 8;
constexpr std::size_t cifre_numero = 4;
constexpr Vista separa = " | ", estensione = ".txt", importo = "#0.00";
constexpr std::size_t nomi_detti = 5;  // of files at fault; more of them are only counted

constexpr Vista mesi[] = {"Gennaio", "Febbraio",  "Marzo",   "Aprile",   "Maggio",   "Giugno", "Luglio",
                          "Agosto",  "Settembre", "Ottobre", "Novembre", "Dicembre", "Tutto"};
constexpr int tutto_l_anno = 12;

// ---- reading

// The accounts of a month bear month, day and number in four digits each: MMDDNNNN.
Testo Modello_Nomi(int mese) {
  if (mese < 0 || mese >= tutto_l_anno) return "*.txt";
  return Pad_Sinistra(std::to_string(mese + 1), 2, '0') + "??????.txt";
}

Testo Numero_Dal_Nome(const Percorso& nome) {
  Testo senza = Nome_File(nome);
  senza.resize(senza.size() - std::min(senza.size(), estensione.size()));
  return Testo(Destra(senza, cifre_numero));
}

// What can't be read leaves its column empty.
RigaControllo Leggi_Riga(const Disco& disco, const Percorso& file) {
  RigaControllo riga;
  riga[controllo::Numero] = Numero_Dal_Nome(file);
  riga[controllo::File] = Testo_Percorso(file);
  if (auto testa = Leggi_Testa_Conto(disco, file)) {
    riga[controllo::Fornitore] = std::move(testa->Fornitore);
    riga[controllo::Imponibile] = std::move(testa->ImponibileTotale);
    riga[controllo::Commissioni] = std::move(testa->Commissioni);
  }
  return riga;
}

// Adds an amount to its total; false when it is no number.
bool Somma(double& totale, Vista testo, char separatore) {
  const auto valore = Numero(testo, separatore);
  if (valore) totale += *valore;
  return valore.has_value();
}

Testo Testo_Esito(const std::vector<Testo>& guasti) {
  if (guasti.empty()) return {};
  Testo esito = (guasti.size() == 1
                     ? "1 file non si legge per intero come conto vendita"
                     : std::to_string(guasti.size()) + " file non si leggono per intero come conti vendita") +
                "; nei totali manca quel che non si legge:";
  for (std::size_t i = 0; i < std::min(guasti.size(), nomi_detti); ++i)
    esito.append(i == 0 ? " " : ", ").append(guasti[i]);
  if (guasti.size() > nomi_detti) esito += " ...";
  return esito;
}

void Calcola_Totali(ControlloCV& schermo, char separatore) {
  std::vector<Testo> guasti;
  for (const RigaControllo& riga : schermo.Tabella_Controllo) {
    const bool imponibile = Somma(schermo.totale_imponibile, riga[controllo::Imponibile], separatore);
    const bool commissioni = Somma(schermo.totale_commissioni, riga[controllo::Commissioni], separatore);
    if (!imponibile || !commissioni) guasti.push_back(Nome_File(In_Percorso(riga[controllo::File])));
  }
  schermo.Text2.testo = Formato(schermo.totale_imponibile, importo, separatore);
  schermo.Text3.testo = Formato(schermo.totale_commissioni, importo, separatore);
  schermo.Esito.testo = Testo_Esito(guasti);
}

void Svuota(ControlloCV& schermo) {
  schermo.Tabella_Controllo.clear();
  schermo.totale_imponibile = schermo.totale_commissioni = 0;
  schermo.Text2.testo.clear();
  schermo.Text3.testo.clear();
  schermo.Esito.testo.clear();
  schermo.periodo.clear();
  schermo.ListaControllo.scelta = -1;
  schermo.ListaControllo.Cambiato();
}

// Nothing, told, where the folder can't be read.
std::optional<std::vector<Percorso>> File_Del_Periodo(const Programma& programma, Vista anno, int mese) {
  if (!Tutte_Cifre(anno)) return std::vector<Percorso>();  // no year, no folder of ours
  const Percorso cartella =
      programma.disco.Trova(Unisci_Percorso(Unisci_Percorso(programma.Cartella_Dati, anno), "CV_NO"));
  int errore = 0;
  auto file = programma.disco.Elenca(cartella, Modello_Nomi(mese), &errore);
  if (!file)
    Di_Errore_File(programma, errore, "la lettura", cartella);
  else
    for (Percorso& nome : *file) nome = cartella / nome;
  return file;
}

// ---- the list

// An amount is never cut; a text that isn't one must not push the columns aside.
Testo Colonna_Importo(Vista testo, std::size_t larghezza, char separatore) {
  const Vista mostrato = Numerico(testo, separatore) ? Pulito(testo) : Sinistra(Pulito(testo), larghezza);
  return Pad_Sinistra(mostrato, larghezza);
}

// ---- paper

constexpr std::size_t colonna_data = 30;  // of the first line

// The period and the columns' titles on each page, then the list, a line of "-" and the totals.
Foglio_Di_Righe Foglio(const ControlloCV& schermo, const Data& oggi, char separatore) {
  Foglio_Di_Righe foglio;
  foglio.documento = {Testo_Data(oggi, "yyyymmdd"), "Controllo CV",
                      Sostituisci_Tutti(schermo.periodo, " / ", " "), ""};
  foglio.codice = "Controllo CV";
  foglio.testa = {Pad(schermo.periodo, colonna_data) + Testo_Data(oggi, "dd/mm/yyyy"), Titoli_Controllo()};
  foglio.righe.reserve(schermo.Tabella_Controllo.size() + 3);
  for (const RigaControllo& riga : schermo.Tabella_Controllo)
    foglio.righe.push_back({Riga_Controllo(riga, separatore)});
  foglio.righe.push_back({Testo(foglio.testa.back().size(), '-')});
  foglio.righe.push_back(
      {"Totale conti vendita " + Euro2_Migliaia(schermo.totale_imponibile, separatore), true});
  foglio.righe.push_back(
      {"Totale provvigioni   " + Euro2_Migliaia(schermo.totale_commissioni, separatore), true});
  return foglio;
}

auto Ferma(const Programma& programma, ControlloCV& schermo) {
  return Schermo_Fermo(schermo, [&programma, &schermo] { Aggiorna_Comandi_Controllo(programma, schermo); });
}

}  // namespace

Testo Titoli_Controllo() {
  return Testo("    ")
      .append(separa)
      .append(Pad("   Fornitore", larghezza_fornitore))
      .append(separa)
      .append(Pad_Sinistra("Importo", larghezza_imponibile))
      .append(separa)
      .append("Provvigione");
}

Testo Riga_Controllo(const RigaControllo& riga, char separatore) {
  const Testo imponibile = Colonna_Importo(riga[controllo::Imponibile], larghezza_imponibile, separatore);
  const Testo commissioni = Colonna_Importo(riga[controllo::Commissioni], larghezza_commissioni, separatore);
  return Pad(riga[controllo::Numero], cifre_numero)
      .append(separa)
      .append(Pad(riga[controllo::Fornitore], larghezza_fornitore))
      .append(separa)
      .append(imponibile)
      .append(separa)
      .append(commissioni);
}

void Apri_Controllo(const Programma& programma, ControlloCV& schermo) {
  const Data oggi = programma.piattaforma.Oggi();
  schermo.titolo = "Controllo Conti Vendita";
  schermo.Caption_Text1.testo = "&Anno";
  schermo.Caption_Combo1.testo = "&Mese";
  schermo.Caption_Text2.testo = "Totale conti vendita";
  schermo.Caption_Text3.testo = "Totale provvigioni";
  schermo.Text1.testo = std::to_string(oggi.anno);
  schermo.Combo1.Riempi({std::begin(mesi), std::end(mesi)});
  schermo.Combo1.scelta = oggi.mese - 1;
  schermo.Titoli.testo = Titoli_Controllo();
  schermo.Command3.testo = "&Leggi";
  schermo.Command4.testo = "Consolida per &fornitore";
  schermo.Command5.testo = "&Stampa";
  schermo.OrdinaNumero.testo = "per Numero";
  schermo.OrdinaFornitore.testo = "per Fornitore";
  schermo.OrdinaProvvigione.testo = "per Provvigione";
  schermo.MenuCancella.testo = "Cancella";
  schermo.Scelta_Stampante.testo = "Stampante";
  schermo.MenuChiudi.testo = "Chiudi";
  schermo.Chiudi.testo = "&Chiudi";
  const char separatore = programma.Separatore_Decimale;
  schermo.ListaControllo.Collega([&schermo] { return schermo.Tabella_Controllo.size(); },
                                 [&schermo, separatore](std::size_t i) {
                                   return Riga_Controllo(schermo.Tabella_Controllo[i], separatore);
                                 });
  Svuota(schermo);
  Aggiorna_Comandi_Controllo(programma, schermo);
}

void Aggiorna_Comandi_Controllo(const Programma& programma, ControlloCV& schermo) {
  const bool piena = !schermo.Tabella_Controllo.empty();
  for (Bottone* comando :
       {&schermo.Command3, &schermo.Scelta_Stampante, &schermo.MenuChiudi, &schermo.Chiudi})
    comando->attivo = schermo.attiva;
  for (Bottone* comando : {&schermo.Command4, &schermo.Command5, &schermo.OrdinaNumero,
                           &schermo.OrdinaFornitore, &schermo.OrdinaProvvigione, &schermo.MenuCancella})
    comando->attivo = schermo.attiva && piena;
  TitoloStampante(Dispositivo(programma), schermo.Stampante);
}

void Leggi_Controllo(Programma& programma, ControlloCV& schermo) {
  if (!schermo.attiva) return;
  const Testo anno(Pulito(schermo.Text1.testo));
  schermo.Text1.testo = anno;
  const int oggi = programma.piattaforma.Oggi().anno;
  if (Valore(anno, programma.Separatore_Decimale) > oggi) {
    schermo.Text1.testo = std::to_string(oggi);
    schermo.Esito.testo = "L'anno " + anno + " deve ancora venire: rimesso " + schermo.Text1.testo + ".";
    return;
  }
  Svuota(schermo);
  const auto fermo = Ferma(programma, schermo);
  const int mese = schermo.Combo1.scelta;
  const auto file = File_Del_Periodo(programma, anno, mese);
  if (file)
    programma.piattaforma.Messaggio(
        file->empty() ? Testo("trovato niente") : "trovati " + std::to_string(file->size()),
        Icona::Informazione);
  if (!file || file->empty()) return;
  const Clessidra clessidra(programma.piattaforma);
  schermo.periodo = Testo(mesi[mese < 0 ? tutto_l_anno : mese]) + " / " + anno;
  schermo.Tabella_Controllo.reserve(file->size());
  for (const Percorso& uno : *file) schermo.Tabella_Controllo.push_back(Leggi_Riga(programma.disco, uno));
  Calcola_Totali(schermo, programma.Separatore_Decimale);
  schermo.ListaControllo.Cambiato();
}

void Consolida_Controllo(const Programma& programma, ControlloCV& schermo) {
  if (!schermo.attiva) return;
  const char separatore = programma.Separatore_Decimale;
  for (RigaControllo& riga : schermo.Tabella_Controllo) {
    riga[controllo::Numero] = Testo(cifre_numero, ' ');
    // an amount that can't be read counts as nothing, and shows so in the supplier's line
    for (const auto colonna : {controllo::Imponibile, controllo::Commissioni})
      if (!Numerico(riga[colonna], separatore)) riga[colonna] = "0";
  }
  Consolida(schermo.Tabella_Controllo, {controllo::Fornitore},
            {controllo::Imponibile, controllo::Commissioni}, separatore);
  schermo.ListaControllo.scelta = -1;
  schermo.ListaControllo.Cambiato();
  Aggiorna_Comandi_Controllo(programma, schermo);
}

void Ordina_Controllo(const Programma& programma, ControlloCV& schermo, controllo::Colonna colonna) {
  if (!schermo.attiva) return;
  Ordina_Righe(schermo.Tabella_Controllo, {colonna});
  schermo.ListaControllo.scelta = -1;
  schermo.ListaControllo.Cambiato();
  Aggiorna_Comandi_Controllo(programma, schermo);
}

void Cancella_Controllo(const Programma& programma, ControlloCV& schermo) {
  if (!schermo.attiva) return;
  Svuota(schermo);
  Aggiorna_Comandi_Controllo(programma, schermo);
}

void Stampa_Controllo(Programma& programma, ControlloCV& schermo) {
  if (!schermo.attiva || schermo.Tabella_Controllo.empty()) return;
  const auto fermo = Ferma(programma, schermo);
  Stampa_Righe(programma, Foglio(schermo, programma.piattaforma.Oggi(), programma.Separatore_Decimale),
               schermo.titolo);
}

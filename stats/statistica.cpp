#include "stats/statistica.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "core/numeri.h"
#include "lists/consolida.h"
#include "lists/ordina.h"
#include "printing/pagina_righe.h"
#include "stats/in_corso.h"
#include "stats/salva_elenco.h"

namespace {

using enum CampoRiga;

constexpr std::size_t larghezza_nome = 20, larghezza_cifra = 8;
constexpr Vista separa = " | ", marchio_accredito = "ACC. ", importo = "#0.00";

// ---- computing

// A row whose weight or price can't be read keeps its boxes where the amount would stand.
void Metti_Importo(LedgerRow& riga, char separatore) {
  const auto peso = Numero(riga[Peso], separatore);
  const auto prezzo = Numero(riga[Prezzo], separatore);
  if (peso && prezzo) riga[Colli] = Formato(*peso * *prezzo, importo, separatore);
  if (prezzo && *prezzo < 0) riga[Specie] = Testo(marchio_accredito) + riga[Specie];
}

// A row without weight keeps its account number where the average would stand.
void Metti_Media(LedgerRow& riga, char separatore) {
  const auto totale = Numero(riga[Colli], separatore);
  const auto peso = Numero(riga[Peso], separatore);
  if (totale && peso && *peso != 0) riga[NCV] = Formato(*totale / *peso, importo, separatore);
}

// Of rows that become one the first one's texts stay: where there is one that can be read, it is that.
void Illeggibili_In_Fondo(std::vector<LedgerRow>& righe, char separatore) {
  std::vector<int> mancanze;
  mancanze.reserve(righe.size());
  for (const LedgerRow& riga : righe)
    mancanze.push_back(!Numero(riga[Peso], separatore) ? 2 : !Numero(riga[Prezzo], separatore) ? 1 : 0);
  std::vector<std::size_t> ordine(righe.size());
  std::iota(ordine.begin(), ordine.end(), std::size_t{0});
  std::ranges::stable_sort(ordine, {}, [&](std::size_t i) { return mancanze[i]; });
  Riordina(righe, std::move(ordine));
}

void Calcola(const Programma& programma, Statistica& schermo) {
  if (std::exchange(schermo.calcolata, true)) return;
  const char separatore = programma.Separatore_Decimale;
  std::vector<LedgerRow>& righe = schermo.Vet_Statistica;
  righe = programma.Vet_Tabella.righe;
  std::erase_if(righe, Senza_Vendita);
  schermo.Avviso.testo = Righe_Illeggibili(righe, separatore);
  Illeggibili_In_Fondo(righe, separatore);
  for (LedgerRow& riga : righe) Metti_Importo(riga, separatore);
  Consolida(righe, {Fornitore, Specie}, {Peso, Colli}, separatore);
  for (LedgerRow& riga : righe) Metti_Media(riga, separatore);
  Ordina_Righe(righe, {Fornitore, Specie});
}

// ---- the lists

double Somma(const Statistica& schermo, CampoRiga campo, char separatore) {
  Somma_Esatta somma;
  for (const LedgerRow& riga : schermo.Vet_Statistica)
    somma.Aggiungi(Numero(riga[campo], separatore).value_or(0));
  return somma.Valore();
}

Testo Riga_Statistica(const LedgerRow& riga) {
  return Pad(riga[Fornitore], larghezza_nome)
      .append(separa)
      .append(Pad(riga[Specie], larghezza_nome))
      .append("| ")
      .append(Pad(riga[Peso], larghezza_cifra))
      .append(separa)
      .append(Pad(riga[Colli], larghezza_cifra))
      .append(separa)
      .append(Pad(riga[NCV], larghezza_cifra));
}

std::vector<Testo> Righe_Elenco(const Programma& programma, const Statistica& schermo) {
  const char separatore = programma.Separatore_Decimale;
  std::vector<Testo> righe;
  for (const LedgerRow& riga : schermo.Vet_Statistica) righe.push_back(Riga_Statistica(riga));
  righe.push_back(" totale importo " + Euro2_Migliaia(Somma(schermo, Colli, separatore), separatore));
  righe.push_back(" totale        kg " + Euro2_Migliaia(Somma(schermo, Peso, separatore), separatore));
  return righe;
}

std::vector<Testo> Fornitori(const Statistica& schermo) {
  std::vector<Testo> nomi;
  for (const LedgerRow& riga : schermo.Vet_Statistica)
    if (nomi.empty() || !Uguali(nomi.back(), riga[Fornitore])) nomi.push_back(riga[Fornitore]);
  return nomi;
}

std::vector<Barra> Barre(const Programma& programma, const Statistica& schermo) {
  std::vector<Barra> barre;
  for (const LedgerRow& riga : schermo.Vet_Statistica)
    barre.push_back({riga[Fornitore] + ", " + riga[Specie],
                     Numero(riga[Colli], programma.Separatore_Decimale).value_or(0)});
  return barre;
}

std::vector<Testo> Righe_Del_Fornitore(const Statistica& schermo, Vista fornitore) {
  std::vector<Testo> righe;
  for (const LedgerRow& riga : schermo.Vet_Statistica)
    if (Uguali(riga[Fornitore], fornitore)) righe.push_back(Riga_Statistica(riga));
  return righe;
}

void Stampa(Programma& programma, Statistica& schermo, const std::vector<Testo>& righe, Vista carattere) {
  const auto in_corso = In_Corso(programma, schermo);
  Foglio_Di_Righe foglio;
  foglio.documento = {programma.Data_AAAAMMGG, "Statistica", "", ""};
  foglio.codice = "Statistica";
  foglio.testa = {"Statistica del giorno " + programma.Data_Giorno, ""};
  for (Testo& titolo : Titoli_Statistica()) foglio.testa.push_back(std::move(titolo));
  foglio.numero_in_testa = true;
  for (const Testo& riga : righe) foglio.righe.push_back({riga, schermo.Grassetto.segnata});
  foglio.carattere = carattere;
  Stampa_Righe(programma, foglio, schermo.titolo);
}

}  // namespace

std::vector<Testo> Titoli_Statistica() {
  const Testo primo = Testo("fornitore             |") + " specie               |" + "   peso   |" +
                      "Imponibile" + " prezzo ";
  const std::size_t fino_al_peso = primo.size() - Vista("   peso   |Imponibile prezzo ").size();
  // the units stand under their columns
  const Testo secondo =
      Pad("                      ", fino_al_peso - 1) + "     kg.   |" + "  totale  " + "  medio ";
  return {primo, secondo};
}

void Apri_Statistica(const Programma& programma, Statistica& schermo) {
  Calcola(programma, schermo);
  schermo.ListaTitoli.Riempi(Titoli_Statistica());
  schermo.ListaStatistica.Riempi(Righe_Elenco(programma, schermo));
  schermo.ListaFornitori.Riempi(Fornitori(schermo));
  Riempi_Grafico(schermo.grafico, "Importi maggiori del " + programma.Data_Giorno, Barre(programma, schermo));
  schermo.Chiudi.testo = "&Chiudi";
  schermo.Salva.testo = "&Salva";
  schermo.Stampa.testo = "S&tampaTutto";
  schermo.Aiuto.testo = "&Aiuto";
  schermo.StampaGrafico.testo = "Stampa Gra&fico";
  schermo.Grassetto.didascalia = "&Grassetto";
  Aggiorna_Comandi(schermo);
}

void Aggiorna_Comandi(Statistica& schermo) {
  const Testo fornitore = schermo.ListaFornitori.Scelta();
  schermo.stampaFornitore.testo = "Stampa_" + Sostituisci_Tutti(fornitore, "&", "&&");
  schermo.stampaFornitore.visibile = schermo.ListaFornitori.scelta >= 0;
  for (Bottone* comando : {&schermo.Chiudi, &schermo.Stampa, &schermo.stampaFornitore, &schermo.Aiuto})
    comando->attivo = schermo.attiva;
  schermo.Salva.attivo = schermo.attiva && schermo.scegli_file;
  schermo.StampaGrafico.attivo = schermo.attiva && !schermo.grafico.barre.empty();
  schermo.Grassetto.attivo = schermo.attiva;
}

void Scelto_Fornitore(Statistica& schermo) {
  const Testo fornitore = schermo.ListaFornitori.Scelta();
  for (std::size_t i = 0; i < schermo.Vet_Statistica.size(); ++i) {
    if (!Uguali(schermo.Vet_Statistica[i][Fornitore], fornitore)) continue;
    schermo.ListaStatistica.scelta = static_cast<int>(i);
    break;
  }
  Aggiorna_Comandi(schermo);
}

void Stampa_Statistica(Programma& programma, Statistica& schermo) {
  if (!schermo.attiva) return;
  Stampa(programma, schermo, Righe_Elenco(programma, schermo), "Courier New");
}

void Stampa_Fornitore(Programma& programma, Statistica& schermo) {
  if (!schermo.attiva || schermo.ListaFornitori.scelta < 0) return;
  Stampa(programma, schermo, Righe_Del_Fornitore(schermo, schermo.ListaFornitori.Scelta()), "courier new");
}

void Salva_Statistica(Programma& programma, Statistica& schermo) {
  if (!schermo.attiva || !schermo.scegli_file) return;
  const auto in_corso = In_Corso(programma, schermo);
  const auto file = schermo.scegli_file();
  if (!file) return;
  std::vector<Testo> righe = {""};
  for (Testo& titolo : Titoli_Statistica()) righe.push_back(std::move(titolo));
  righe.emplace_back();
  for (Testo& riga : Righe_Elenco(programma, schermo)) righe.push_back(std::move(riga));
  if (Salva_Righe(programma, *file, righe)) programma.piattaforma.Messaggio("fatto...");
}

void Aiuto_Statistica(Programma& programma) {
  programma.piattaforma.Messaggio(
      "Per stampare tutta la lista scegliere il Menu StampaTutto\n"
      "Per stampare un singolo fornitore:\n"
      "- Selezionare il fornitore con il mouse,\n"
      "- Appare il Menu Stampa_Fornitore\n"
      "- Usare questo menu",
      Icona::Informazione);
}

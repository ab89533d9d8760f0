#include "stats/rxcli.h"

#include <algorithm>

#include "core/numeri.h"
#include "lists/ordina.h"
#include "printing/pagina_righe.h"
#include "stats/in_corso.h"
#include "stats/salva_elenco.h"

namespace {

constexpr std::size_t larghezza_nome = 30, larghezza_cifra = 10;
constexpr Vista importo = "#0.00", due_cifre = "00";

Testo Cifra_A_Destra(double valore, char separatore) {
  return Pad_Sinistra(Formato(valore, importo, separatore), larghezza_cifra);
}

Testo Peso_Cliente(const Totale_Cliente& totale, char separatore) {
  return Cifra_A_Destra(totale.kg.Valore(), separatore) + " Kg.";
}

Testo Peso_E_Imponibile(const Totale_Cliente& totale, char separatore) {
  return Peso_Cliente(totale, separatore) + " per " + Cifra_A_Destra(totale.imponibile.Valore(), separatore);
}

void Aggiungi_Riga(std::vector<Totale_Cliente>& totali, const LedgerRow& riga, char separatore) {
  const Testo& nome = riga[CampoRiga::Cliente];
  if (totali.empty() || !Uguali(totali.back().Cliente, nome)) {
    totali.emplace_back();
    totali.back().Cliente = nome;
  }
  Totale_Cliente& totale = totali.back();
  ++totale.righe;
  const auto peso = Numero(riga[CampoRiga::Peso], separatore);
  const auto prezzo = Numero(riga[CampoRiga::Prezzo], separatore);
  if (peso) totale.kg.Aggiungi(*peso);
  if (peso && prezzo) totale.imponibile.Aggiungi_Prodotto(*peso, *prezzo);
}

std::vector<Testo> Righe_Elenco(const RXcli& schermo) {
  std::vector<Testo> righe;
  for (std::size_t i = 0; i < schermo.ListaTotali.Numero(); ++i) righe.push_back(schermo.ListaTotali.Riga(i));
  return righe;
}

// Under the heads of "N   Righe      Cliente   ".
Testo Riga_Su_Carta(const Totale_Cliente& totale, int numero, bool solo_peso, char separatore) {
  return Formato(numero, "000", separatore) + " " + Pad(Formato(totale.righe, due_cifre, separatore), 11) +
         Pad(totale.Cliente, larghezza_nome) + " -> " +
         (solo_peso ? Peso_Cliente(totale, separatore) : Peso_E_Imponibile(totale, separatore));
}

}  // namespace

Testo Riga_Cliente(const Totale_Cliente& totale, char separatore) {
  return Pad(totale.Cliente, larghezza_nome) + " -> " + Formato(totale.righe, due_cifre, separatore) + " " +
         Peso_E_Imponibile(totale, separatore);
}

void CalcolaPerCliente(Programma& programma, RXcli& schermo, int ordina) {
  if (ordina == 1) Ordina_Colonna(programma, CampoRiga::Cliente);
  schermo.totali.clear();
  for (const LedgerRow& riga : programma.Vet_Tabella.righe)
    if (!Senza_Vendita(riga)) Aggiungi_Riga(schermo.totali, riga, programma.Separatore_Decimale);
  if (ordina == 1) Ordina_Colonna(programma, CampoRiga::Num);
  schermo.Avviso.testo = Righe_Illeggibili(programma.Vet_Tabella.righe, programma.Separatore_Decimale);

  std::vector<Testo> righe, nomi;
  std::vector<Barra> barre;
  for (const Totale_Cliente& totale : schermo.totali) {
    righe.push_back(Riga_Cliente(totale, programma.Separatore_Decimale));
    nomi.push_back(totale.Cliente);
    barre.push_back({totale.Cliente, totale.imponibile.Valore()});
  }
  schermo.ListaTotali.Riempi(std::move(righe));
  schermo.ListaClienti.Riempi(std::move(nomi));
  Riempi_Grafico(schermo.grafico, "Imponibili maggiori del " + programma.Data_Giorno, std::move(barre));
}

void Apri_RXcli(Programma& programma, RXcli& schermo, Vista cliente) {
  CalcolaPerCliente(programma, schermo, 1);
  schermo.Stampa.testo = "&Stampa";
  schermo.Salva.testo = "Sal&va";
  schermo.StampaGrafico.testo = "Stampa Gra&fico";
  schermo.Chiudi.testo = "&Chiudi";
  schermo.SoloPeso.didascalia = "Solo &Peso";
  const auto trovato = std::ranges::find_if(
      schermo.totali, [&](const Totale_Cliente& totale) { return Uguali(totale.Cliente, Pulito(cliente)); });
  if (trovato != schermo.totali.end()) {
    schermo.ListaClienti.scelta = static_cast<int>(trovato - schermo.totali.begin());
    Scelto_Cliente(schermo);
  }
  Aggiorna_Comandi(schermo);
}

void Aggiorna_Comandi(RXcli& schermo) {
  schermo.Stampa.attivo = schermo.Chiudi.attivo = schermo.SoloPeso.attivo = schermo.attiva;
  schermo.Salva.attivo = schermo.attiva && schermo.scegli_file;
  schermo.StampaGrafico.attivo = schermo.attiva && !schermo.grafico.barre.empty();
}

void Scelto_Cliente(RXcli& schermo) { schermo.ListaTotali.scelta = schermo.ListaClienti.scelta; }

void Stampa_Clienti(Programma& programma, RXcli& schermo) {
  if (!schermo.attiva) return;
  const auto in_corso = In_Corso(programma, schermo);
  const bool solo_peso = schermo.SoloPeso.segnata;
  Foglio_Di_Righe foglio;
  foglio.documento = {programma.Data_AAAAMMGG, "Totali Clienti", "", ""};
  foglio.codice = "Totali Clienti";
  foglio.testa = {(solo_peso ? "Peso per Cliente del " : "Peso e totale imponibile per Cliente del ") +
                      programma.Data_Giorno,
                  "", "N   Righe      Cliente   "};
  int numero = 0;
  for (const Totale_Cliente& totale : schermo.totali)
    foglio.righe.push_back({Riga_Su_Carta(totale, ++numero, solo_peso, programma.Separatore_Decimale)});
  Stampa_Righe(programma, foglio, schermo.titolo);
}

void Salva_Totali(Programma& programma, RXcli& schermo) {
  if (!schermo.attiva || !schermo.scegli_file) return;
  const auto in_corso = In_Corso(programma, schermo);
  const auto file = schermo.scegli_file();
  if (!file) return;
  std::vector<Testo> righe = {
      "", "Peso totale per Cliente calcolato il " + Testo_Data(programma.piattaforma.Oggi(), "dd/mm/yyyy"),
      ""};
  for (Testo& riga : Righe_Elenco(schermo)) righe.push_back(std::move(riga));
  if (Salva_Righe(programma, *file, righe)) programma.piattaforma.Messaggio("fatto...");
}

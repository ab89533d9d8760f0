#include "stats/statistica2.h"

#include <algorithm>

#include "core/numeri.h"
#include "printing/pagina_righe.h"
#include "stats/in_corso.h"

namespace {

constexpr std::size_t larghezza_nome = 40;

std::optional<std::vector<Percorso>> File_Del_Periodo(const Programma& programma,
                                                      const Statistica2& schermo) {
  const char separatore = programma.Separatore_Decimale;
  const int da = Intero(schermo.da, separatore), a = Intero(schermo.a, separatore);
  auto nomi = File_Dell_Anno(programma);
  if (!nomi) return nomi;
  std::erase_if(*nomi, [&](const Percorso& nome) {
    const int giorno = Intero(Giorno_Del_File(nome), separatore);
    return giorno < da || giorno > a;
  });
  return nomi;
}

Testo Riga_Periodo(const Totale& totale, char separatore) {
  return Pad(totale.Fornitore, larghezza_nome) + " =  " + totale.Testo_Importo(separatore) + " €"_t;
}

void Mostra_Totali(const Programma& programma, Statistica2& schermo) {
  std::vector<Testo> righe;
  std::vector<Barra> barre;
  for (const Totale& totale : schermo.Vet_Periodo) {
    righe.push_back(Riga_Periodo(totale, programma.Separatore_Decimale));
    barre.push_back({totale.Fornitore, totale.importo.Valore()});
  }
  schermo.ListaSaldo.Riempi(std::move(righe));
  Riempi_Grafico(schermo.grafico, "Importi maggiori dal " + schermo.da + " al " + schermo.a,
                 std::move(barre));
}

void Vuota(const Programma& programma, Statistica2& schermo) {
  schermo.Vet_Periodo.clear();
  schermo.Avanzamento.testo.clear();
  schermo.Avviso.testo.clear();
  Mostra_Totali(programma, schermo);
}

}  // namespace

Testo Titoli_Periodo() { return Pad("fornitore            ", larghezza_nome + 1) + "|" + " euro"; }

bool Apri_Statistica2(Programma& programma, Statistica2& schermo) {
  const auto nomi = File_Dell_Anno(programma);
  if (!nomi) return false;
  if (nomi->empty()) {
    programma.piattaforma.Messaggio(" non ci sono dati...nulla da fare");
    return false;
  }
  schermo.Text1.testo = Giorno_Del_File(nomi->front());
  schermo.Text2.testo = Giorno_Del_File(nomi->back());
  schermo.Caption_Text1.testo = "da";
  schermo.Caption_Text2.testo = "a";
  schermo.Applica.testo = "&Applica";
  schermo.Chiudi.testo = "&Chiudi";
  schermo.MenuChiudi.testo = "Chiudi";
  schermo.Stampante.testo = "Sta&mpante";
  schermo.Stampa.testo = "&Stampa";
  schermo.StampaGrafico.testo = "Stampa Gra&fico";
  schermo.Aiuto.testo = "Ai&uto";
  schermo.Grassetto.didascalia = "&Grassetto";
  schermo.Titoli.testo = Titoli_Periodo();
  Aggiorna_Comandi(schermo);
  return true;
}

void Aggiorna_Comandi(Statistica2& schermo) {
  for (Bottone* comando : {&schermo.Applica, &schermo.Chiudi, &schermo.MenuChiudi, &schermo.Stampante,
                           &schermo.Stampa, &schermo.Aiuto})
    comando->attivo = schermo.attiva;
  schermo.Text1.attivo = schermo.Text2.attivo = schermo.Grassetto.attivo = schermo.attiva;
  schermo.StampaGrafico.attivo = schermo.attiva && !schermo.grafico.barre.empty();
}

void Applica_Periodo(Programma& programma, Statistica2& schermo) {
  if (!schermo.attiva) return;
  const auto in_corso = In_Corso(programma, schermo);
  schermo.da = Pulito(schermo.Text1.testo);
  schermo.a = Pulito(schermo.Text2.testo);
  Vuota(programma, schermo);
  Scansione scansione(programma, {});
  const auto nomi = File_Del_Periodo(programma, schermo);
  if (!nomi) {
    schermo.Avviso.testo = "la cartella dell'anno non si legge";
    return;
  }
  if (!Leggi_Periodo(programma, scansione, *nomi, schermo.Avanzamento)) {
    schermo.Avanzamento.testo = "calcolo interrotto";
    return;
  }
  schermo.Avviso.testo = Mancanze(scansione);
  if (!In_Forma_AAAAMMGG(schermo.da) || !In_Forma_AAAAMMGG(schermo.a))
    schermo.Avviso.testo = "Sistemare le date nel formato aaaammgg";
  schermo.Vet_Periodo = scansione.Prendi_Totali();
  Consolida_Vettore_1x1a(schermo.Vet_Periodo);
  Mostra_Totali(programma, schermo);
}

void Stampa_Periodo(Programma& programma, Statistica2& schermo) {
  if (!schermo.attiva) return;
  const auto in_corso = In_Corso(programma, schermo);
  Foglio_Di_Righe foglio;
  foglio.documento = {programma.Data_AAAAMMGG, "Statistica", schermo.da + "-" + schermo.a, ""};
  foglio.codice = "Statistica";
  foglio.testa = {"Statistica dal " + schermo.da + " al " + schermo.a, "", schermo.Titoli.testo};
  foglio.numero_in_testa = true;
  for (const Totale& totale : schermo.Vet_Periodo)
    foglio.righe.push_back({Riga_Periodo(totale, programma.Separatore_Decimale), schermo.Grassetto.segnata});
  Stampa_Righe(programma, foglio, schermo.titolo);
}

void Aiuto_Statistica2(Programma& programma) {
  programma.piattaforma.Messaggio(
      "Scrivere le due date nella forma aaaammgg e usare il bottone Applica\n"
      "Durante la lettura dei file Esc interrompe il calcolo\n"
      "Per stampare tutta la lista scegliere il Menu Stampa",
      Icona::Informazione);
}

#include "entry/comandi_file.h"

#include <cerrno>

#include "core/impegno.h"
#include "core/numeri.h"
#include "lists/file_lista.h"
#include "lists/liste.h"

namespace {

constexpr Vista liste_fisse[] = {nomi_file::Barche, nomi_file::Metodi,      nomi_file::Pezzature,
                                 nomi_file::Stati,  nomi_file::Lavorazioni, nomi_file::Presentazioni,
                                 nomi_file::Zone,   nomi_file::Provenienze};

constexpr Vista file_campi = "_Lista_Campi.txt";

// What each field holds, in the order of the row.
const std::array<Testo, Num_Campi>& Significati() {
  static const std::array<Testo, Num_Campi> significati = {
      "numero d'ordine della riga, quattro cifre",
      "fornitore: il nome della lista dei fornitori",
      "cliente (acquirente): il nome della lista dei clienti",
      "codice del cliente, cinque cifre",
      "specie: il nome commerciale della merce",
      "ZonaPesca: la zona di pesca o di allevamento",
      "peso in kg",
      "prezzo in euro al kg, segno meno per Nota di Accredito",
      "aliquota IVA in percento",
      "numero dei colli",
      "numero del Conto Vendita, 9999 = senza numero",
      "data del Conto Vendita",
      "riferimento DDT per il Conto Vendita",
      "spese anticipate",
      "provvigione in percento",
      "controllato",
      "codice della specie",
      "provenienza",
      "lotto",
      "DDT per la Fattura",
      "Numero di Fattura, NA e numero per la Nota di Accredito",
      "nome latino della specie",
      "famiglia della specie",
      "nome comune della lista Veritas",
      "codice numerico della lista Veritas",
      "attrezzo di pesca",
      "codice ALFA della specie",
      "pezzatura",
      "stato fisico",
      "lavorazione",
      "preparazione (presentazione)",
      "per uso interno: le righe con gli stessi codici si sommano",
      "commento, al massimo 250 caratteri",
      "primo sbarco",
      "allergeni",
  };
  return significati;
}

Testo Domanda_Rinnova() {
  Testo domanda = "Riscrive le liste fisse";
  for (const Vista nome : liste_fisse) domanda.append("\n").append(nome);
  return domanda;
}

// A list that isn't there needs no deleting; one that can't be deleted is told and stays.
void CancellaListe(Programma& programma) {
  std::vector<Guasto_Lista> guasti;
  for (const Vista nome : liste_fisse) {
    const Percorso percorso = Percorso_Lista(programma, nome);
    const int errore = programma.disco.Cancella(percorso);
    if (errore != 0 && errore != ENOENT) guasti.push_back({errore, percorso});
  }
  Mostra_Guasti(programma, guasti);
}

bool Conferma_Rinnova(Programma& programma, Edita& edita) {
  const Schermo_Fermo fermo(edita);
  if (!programma.piattaforma.Domanda(Domanda_Rinnova(), Icona::Esclamazione)) return false;
  CancellaListe(programma);
  programma.piattaforma.Messaggio("Il programma deve essere chiuso e riavviato...");
  return true;
}

}  // namespace

void CancellaTutto(Programma& programma, Edita& edita) {
  if (Occupata(edita)) return;
  const Schermo_Fermo fermo(edita);
  Piattaforma& piattaforma = programma.piattaforma;
  if (!piattaforma.Domanda("OK per cancellare tutti i dati...", Icona::Esclamazione)) return;
  if (!piattaforma.Domanda("Sei sicuro?...OK per confermare", Icona::Esclamazione)) return;
  programma.Vet_Tabella = Tabella();
  programma.Tabella_Modificata = true;
  edita.riga_marcata = true;
  edita.albero.ListaVoci.Cambiato();
  VaiRiga(programma, edita, 1);
  TitoloVoci(programma, edita);
  Semaforo(edita, StatoSemaforo::NORMALE);
}

void RinnovaListe(Programma& programma, Edita& edita) {
  if (Occupata(edita) || !Conferma_Rinnova(programma, edita)) return;
  if (SalvaConDomanda(programma, edita) == EsitoSalvataggio::Fallito) return;
  programma.piattaforma.Termina();
}

Testo Testo_Lista_Campi() {
  Testo testo = "Lista dei campi contenuti nella tabella";
  testo.append(FINE_RIGA);
  for (std::size_t i = 0; i < Vet_Titoli.size(); ++i) {
    testo.append("campo n. ").append(Pad_Sinistra(std::to_string(i + 1), 2));
    testo.append("  nome: ").append(Pad(Vet_Titoli[i], 26));
    testo.append("  significato: ").append(Significati()[i]).append(FINE_RIGA);
  }
  return testo;
}

void ListaCampi(Programma& programma) {
  const Percorso percorso = Percorso_Lista(programma, file_campi);
  if (const int errore = programma.disco.Sostituisci(percorso, Testo_Lista_Campi()); errore != 0)
    return Mostra_Guasti(programma, {{errore, percorso}});
  programma.piattaforma.Apri_Con_Desktop(percorso);
}

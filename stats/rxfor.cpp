#include "stats/rxfor.h"

#include <algorithm>
#include <cerrno>

#include "core/giorno.h"
#include "core/numeri.h"
#include "printing/pagina_righe.h"
#include "stats/in_corso.h"
#include "stats/salva_elenco.h"

namespace {

constexpr std::size_t larghezza_nome = 30, cifre_anno = 4;
constexpr Vista forma = "yyyymmdd", importo = "#0.00";

Percorso Temporaneo(const Programma& programma) {
  return Unisci_Percorso(programma.Cartella_Dati, File_Temporaneo);
}

// ---- the checks before a run

struct Intervallo {
  Testo da, a;
};

bool Date_Giuste(Programma& programma, const Intervallo& date) {
  if (!In_Forma_AAAAMMGG(date.da) || !In_Forma_AAAAMMGG(date.a)) {
    programma.piattaforma.Messaggio("Sistemare le date nel formato aaaammgg");
    return false;
  }
  if (Sinistra(date.da, cifre_anno) != Sinistra(date.a, cifre_anno)) {
    programma.piattaforma.Messaggio("deve essere lo stesso anno");
    return false;
  }
  return true;
}

// Both dates, in whichever order they stand: a first day behind the last file is no less wrong than a last
// one.
bool Dentro_L_Anno(Programma& programma, const Intervallo& date, const std::vector<Percorso>& nomi) {
  if (nomi.empty()) {
    programma.piattaforma.Messaggio(" non ci sono dati...nulla da fare");
    return false;
  }
  if (std::min(date.da, date.a) < Giorno_Del_File(nomi.front())) {
    programma.piattaforma.Messaggio("primo file: sistemare le date da...a (il primo file è "_t +
                                    Nome_File(nomi.front()) + ")");
    return false;
  }
  if (std::max(date.da, date.a) > Giorno_Del_File(nomi.back())) {
    programma.piattaforma.Messaggio("ultimo file: sistemare le date da...a (il primo file è "_t +
                                    Nome_File(nomi.back()) + ")");
    return false;
  }
  return true;
}

// The days from "da" to "a" and the answer to the question that names the first and the last. Days without
// a file at either end of the range are passed over, so that in a range without any file the first one found
// stands behind the last.
struct Periodo {
  std::vector<Percorso> nomi;
  bool confermato = false;
};

Periodo Chiedi_Periodo(Programma& programma, const Intervallo& date, const std::vector<Percorso>& nomi) {
  const auto primo =
      std::ranges::find_if(nomi, [&](const Percorso& nome) { return Giorno_Del_File(nome) >= date.da; });
  const auto dopo = std::find_if(nomi.begin(), nomi.end(),
                                 [&](const Percorso& nome) { return Giorno_Del_File(nome) > date.a; });
  Periodo periodo;
  periodo.confermato =
      programma.piattaforma.Domanda("Il calcolo comincia da:\n" + Nome_File(*primo) +
                                    "e finisce con: " + Nome_File(*(dopo - 1)) + "..... OK per continuare");
  if (primo < dopo) periodo.nomi.assign(primo, dopo);
  return periodo;
}

// ---- the list

void Vuota(RXFor& schermo) {
  schermo.Vet_Temp1.clear();
  schermo.ListaSaldo.Svuota();
  schermo.Avanzamento.testo.clear();
  schermo.Avviso.testo.clear();
  Riempi_Grafico(schermo.grafico, {}, {});
}

double Importo_Totale(const RXFor& schermo) {
  Somma_Esatta somma;
  for (const Totale& totale : schermo.Vet_Temp1) somma.Aggiungi(totale.importo);
  return somma.Valore();
}

// A line of the list, with the species or without.
Testo Riga_Saldo(const Totale& totale, bool con_specie, char separatore) {
  Testo riga = Pad(totale.Fornitore, larghezza_nome);
  if (con_specie) riga += Pad(totale.Specie, larghezza_nome);
  riga.append(totale.Testo_Kg(separatore)).append(" kg = ").append("  € = "_t);
  riga.append(totale.Testo_Importo(separatore)).append("-> ");
  if (const auto medio = totale.Prezzo_Medio()) riga += Formato(*medio, importo, separatore);
  return riga;
}

void Mostra(const Programma& programma, const RXFor& schermo, std::vector<Testo>& righe) {
  for (const Totale& totale : schermo.Vet_Temp1)
    righe.push_back(Riga_Saldo(totale, !schermo.per_fornitore, programma.Separatore_Decimale));
}

void Mostra_Grafico(RXFor& schermo) {
  std::vector<Barra> barre;
  for (const Totale& totale : schermo.Vet_Temp1)
    barre.push_back({schermo.per_fornitore ? totale.Fornitore : totale.Fornitore + ", " + totale.Specie,
                     totale.importo.Valore()});
  Riempi_Grafico(schermo.grafico, "Importi maggiori dal " + schermo.da + " al " + schermo.a,
                 std::move(barre));
}

// The list by species first, then by supplier: merging the species makes an end of them.
void Mostra_Saldi(const Programma& programma, RXFor& schermo) {
  std::vector<Testo> righe;
  schermo.per_fornitore = false;
  if (schermo.Check2.segnata) {
    Mostra(programma, schermo, righe);
    righe.emplace_back();
    righe.push_back("totale € = "_t +
                    Formato(Importo_Totale(schermo), "###,###,###,##0.00", programma.Separatore_Decimale));
    righe.emplace_back();
  }
  if (schermo.Check1.segnata) {
    schermo.per_fornitore = true;
    for (Totale& totale : schermo.Vet_Temp1) totale.Specie = "A";
    Consolida_Vettore_1x1a(schermo.Vet_Temp1);
    Mostra(programma, schermo, righe);
  }
  schermo.ListaSaldo.Riempi(std::move(righe));
  Mostra_Grafico(schermo);
}

void Di_Errore_Temporaneo(Programma& programma, int errore) {
  programma.piattaforma.Messaggio("Errore " + std::to_string(errore) + " durante la scrittura di " +
                                  Testo(File_Temporaneo) + "\n" + Testo_Errore(errore) +
                                  "\nI totali sono completi.");
}

void Carica_Vet_Temp1(Scansione& scansione, RXFor& schermo) {
  schermo.Avanzamento.testo = std::to_string(scansione.Righe()) + " - righe lette";
  schermo.Avviso.testo = Mancanze(scansione);
  schermo.Vet_Temp1 = scansione.Prendi_Totali();
  if (!schermo.Vet_Temp1.empty()) return;
  Totale nessuno;
  nessuno.Fornitore = "Nessuno";
  nessuno.Specie = "niente";
  nessuno.primo_peso = "0";
  nessuno.righe = 1;
  schermo.Vet_Temp1.push_back(nessuno);
  schermo.Avanzamento.testo = "1 - righe lette";
}

// `errore` is that of an old temporary file that couldn't be deleted: then none is written.
void Leggi_E_Mostra(Programma& programma, RXFor& schermo, const std::vector<Percorso>& nomi, int errore) {
  Scansione scansione(programma, {.per_specie = true,
                                  .primo_sbarco = schermo.Check3.segnata,
                                  .provvisorio = errore == 0 ? Temporaneo(programma) : Percorso()});
  const bool finita = Leggi_Periodo(programma, scansione, nomi, schermo.Avanzamento);
  if (errore == 0) errore = scansione.Chiudi();
  if (!finita) {
    programma.disco.Cancella(Temporaneo(programma));
    schermo.Avanzamento.testo = "calcolo interrotto";
    return;
  }
  Carica_Vet_Temp1(scansione, schermo);
  Ordina_Totali(schermo.Vet_Temp1);
  Mostra_Saldi(programma, schermo);
  if (errore != 0) Di_Errore_Temporaneo(programma, errore);
  programma.piattaforma.Messaggio("fatto...");
}

}  // namespace

void Apri_RXFor(const Programma& programma, RXFor& schermo) {
  schermo.Caption.testo = "Data in formato AAAAMMDD";
  schermo.Caption_Text1.testo = "da";
  schermo.Caption_Text2.testo = "a";
  schermo.Text1.testo = schermo.Text2.testo = programma.Data_AAAAMMGG;
  schermo.Check1.didascalia = "Fornitori";
  schermo.Check2.didascalia = "Specie per Fornitore";
  schermo.Check3.didascalia = "Primo Sbarco";
  schermo.Command4.testo = "Fornitore e Specie";
  for (Bottone* passo : {&schermo.Command25, &schermo.Command3}) {
    passo->testo = ">";
    passo->suggerimento = "il giorno dopo";
  }
  for (Bottone* passo : {&schermo.Command26, &schermo.Command2}) {
    passo->testo = "<";
    passo->suggerimento = "il giorno prima";
  }
  schermo.Stampa.testo = "&Stampa";
  schermo.Salva.testo = "Sal&va";
  schermo.StampaGrafico.testo = "Stampa Gra&fico";
  schermo.Chiudi.testo = "&Chiudi";
  Aggiorna_Comandi(schermo);
}

void Aggiorna_Comandi(RXFor& schermo) {
  const bool piena = schermo.ListaSaldo.Numero() > 0;
  for (Bottone* comando : {&schermo.Command25, &schermo.Command26, &schermo.Command3, &schermo.Command2,
                           &schermo.Command4, &schermo.Chiudi})
    comando->attivo = schermo.attiva;
  for (Bottone* comando : {&schermo.Stampa, &schermo.Salva, &schermo.StampaGrafico})
    comando->attivo = schermo.attiva && piena;
  for (Spunta* scelta : {&schermo.Check1, &schermo.Check2, &schermo.Check3}) scelta->attivo = schermo.attiva;
  schermo.Text1.attivo = schermo.Text2.attivo = schermo.attiva;
}

void Passo_Data(CampoTesto& campo, bool avanti) {
  const Vista data = Pulito(campo.testo);
  if (!In_Forma_AAAAMMGG(data)) return;
  campo.testo = avanti ? Giorno_Dopo(data, forma) : Giorno_Prima(data, forma);
}

void Calcola_Saldo(Programma& programma, RXFor& schermo) {
  if (!schermo.attiva) return;
  const auto in_corso = In_Corso(programma, schermo);
  if (!schermo.Check1.segnata && !schermo.Check2.segnata) {
    programma.piattaforma.Messaggio("Scegliere le opzioni (fornitori o specie e fornitori...");
    return;
  }
  const int errore = programma.disco.Cancella(Temporaneo(programma));
  const Intervallo date = {Testo(Pulito(schermo.Text1.testo)), Testo(Pulito(schermo.Text2.testo))};
  if (!Date_Giuste(programma, date)) return;
  const auto nomi = File_Dell_Anno(programma);
  if (!nomi || !Dentro_L_Anno(programma, date, *nomi)) return;
  const Periodo periodo = Chiedi_Periodo(programma, date, *nomi);
  if (!periodo.confermato) return;
  Vuota(schermo);
  schermo.da = date.da;
  schermo.a = date.a;
  Leggi_E_Mostra(programma, schermo, periodo.nomi, errore == ENOENT ? 0 : errore);
}

void Stampa_Saldo(Programma& programma, RXFor& schermo) {
  if (!schermo.attiva || schermo.Vet_Temp1.empty()) return;
  const auto in_corso = In_Corso(programma, schermo);
  const char separatore = programma.Separatore_Decimale;
  Foglio_Di_Righe foglio;
  foglio.documento = {programma.Data_AAAAMMGG, "Saldo", schermo.da + "-" + schermo.a, ""};
  foglio.codice = "Saldo";
  foglio.testa = {"Saldo Giornaliero per Fornitore del " + schermo.da + " al " + schermo.a, ""};
  foglio.carattere = "Courier new";
  for (const Totale& totale : schermo.Vet_Temp1) {
    Testo riga = Formato(static_cast<double>(foglio.righe.size() + 1), "000", separatore) + " " +
                 Pad(totale.Fornitore, larghezza_nome);
    if (!schermo.per_fornitore) riga += Pad(totale.Specie, larghezza_nome);
    riga.append(" -> ").append(Formato(totale.importo.Valore(), importo, separatore));
    riga.append(" per ").append(Formato(totale.kg.Valore(), importo, separatore)).append(" Kg.");
    foglio.righe.push_back({std::move(riga)});
  }
  foglio.righe.push_back({});
  foglio.righe.push_back(
      {"Saldo totale = " + Formato(Importo_Totale(schermo), "0#.00", separatore) + " euro"});
  Stampa_Righe(programma, foglio, schermo.titolo);
}

void Salva_Saldo(Programma& programma, RXFor& schermo) {
  if (!schermo.attiva || schermo.ListaSaldo.Numero() == 0) return;
  const auto in_corso = In_Corso(programma, schermo);
  const Percorso cartella = Unisci_Percorso(programma.Cartella_Dati, Cartella_Statistiche);
  if (!Crea_Cartella(programma, cartella)) return;
  std::vector<Testo> righe;
  for (std::size_t i = 0; i < schermo.ListaSaldo.Numero(); ++i) righe.push_back(schermo.ListaSaldo.Riga(i));
  righe.emplace_back();
  righe.push_back("Saldo calcolato il " + Testo_Data(programma.piattaforma.Oggi(), "dd/mm/yyyy"));
  righe.push_back("dal: " + schermo.da + " al: " + schermo.a);
  righe.emplace_back();
  if (!Salva_Righe(programma, Unisci_Percorso(cartella, schermo.da + "_" + schermo.a + ".txt"), righe))
    return;
  programma.piattaforma.Messaggio("fatto...");
  programma.piattaforma.Apri_Con_Desktop(cartella);
}

#include "entry/etichette.h"

#include <algorithm>

#include "core/corsa.h"
#include "core/impegno.h"
#include "core/numeri.h"
#include "core/profili.h"
#include "entry/pagina_etichetta.h"
#include "lists/liste.h"
#include "printing/pagina.h"

namespace {

constexpr std::size_t casella_tutte = 18;
constexpr Vista titolo_in_corso = "Etichette";

// The firms that put a label on all that they buy.
bool Stampa_Tutte(const Programma& programma, const Edita& edita) {
  constexpr Profilo con_tutte[] = {Profilo::Caspero, Profilo::Tolvera, Profilo::Cavarzo, Profilo::Ombrano};
  return edita.Check[casella_tutte].segnata &&
         std::ranges::find(con_tutte, Profilo_Ditta(programma.preferenze.Codice_Commissionario)) !=
             std::end(con_tutte);
}

// The blank behind "con" stands before the treatment as it was keyed behind the minus.
Testo Trattamento(Vista commento) {
  const std::size_t meno = commento.find('-');
  if (meno == Vista::npos) return " nessun trattamento";
  const Vista resto = commento.substr(meno + 1);
  return Pulito(resto).empty() ? Testo() : "# trattato con " + Testo(resto);
}

// The readable part of two coded entries, "GRA Grande" and "FRE Fresco" as "Grande , Fresco".
Testo Coppia(const LedgerRow& riga, CampoRiga prima, CampoRiga dopo) {
  return Testo(Da(riga[prima], 5)).append(" , ").append(Da(riga[dopo], 5));
}

LedgerRow Riga_Nei_Campi(const Edita& edita) {
  LedgerRow riga;
  for (std::size_t i = 0; i < riga.campi.size(); ++i) riga.campi[i] = edita.Text1[i].testo;
  return riga;
}

// One label with the caption that tells which; the caption of before comes back.
void Stampa_Una(Programma& programma, Edita& edita, int numero, int quante) {
  const Testo titolo = std::exchange(edita.titolo, Pagina_In_Corso(titolo_in_corso, numero, quante));
  programma.piattaforma.Ridipingi();
  StampaEtichetta(programma, edita);
  edita.titolo = titolo;
}

// 0 where the comment doesn't begin with a number.
double Prezzo_Etichetta(Vista commento, char separatore) {
  return Valore(commento.substr(0, commento.find('-')), separatore);
}

bool Ha_Prezzo(const Programma& programma, const LedgerRow& riga) {
  return Prezzo_Etichetta(riga[CampoRiga::Commento], programma.Separatore_Decimale) > 0;
}

// False once the operator has stopped the run.
bool Stampa_La_Prossima(Programma& programma, Edita& edita, Corsa& corsa, int numero, int quante) {
  if (!corsa.Avanti()) return false;
  Stampa_Una(programma, edita, numero, quante);
  corsa.Fatta();
  return true;
}

void Stampa_Il_Giorno(Programma& programma, Edita& edita, Corsa& corsa, int quante) {
  const Clessidra clessidra(programma.piattaforma);
  int numero = 0;
  for (int n = 1; n <= programma.Vet_Tabella.Righe(); ++n) {
    VaiRiga(programma, edita, n);
    if (!Ha_Prezzo(programma, Riga_Nei_Campi(edita))) continue;
    if (!Stampa_La_Prossima(programma, edita, corsa, ++numero, quante)) return;
  }
}

void Stampa_Tutto_Il_Giorno(Programma& programma, Edita& edita) {
  const auto quante = std::ranges::count_if(
      programma.Vet_Tabella.righe, [&](const LedgerRow& riga) { return Ha_Prezzo(programma, riga); });
  Corsa corsa(programma.piattaforma, static_cast<std::size_t>(quante));
  Stampa_Il_Giorno(programma, edita, corsa, static_cast<int>(quante));
  if (corsa.Fermata())
    programma.piattaforma.Messaggio(corsa.Testo_Fermata({"Stampa interrotta", "etichetta", "etichette"}),
                                    Icona::Informazione);
}

}  // namespace

Contenuto_Etichetta Componi_Etichetta(const LedgerRow& riga, char separatore) {
  const bool pescato = Zona_Di_Cattura(riga[CampoRiga::ZonaP]);
  const Testo& commento = riga[CampoRiga::Commento];
  Contenuto_Etichetta esito;
  esito.specie = riga[CampoRiga::Specie];
  esito.genere = pescato ? "Prodotto PESCATO" : "prodotto ALLEVATO";
  esito.nome_latino = riga[CampoRiga::NomeLatino];
  esito.prezzo = Euro2(Prezzo_Etichetta(commento, separatore), separatore);
  if (!Uguali(Pulito(riga[CampoRiga::Allergeni]), "assenti"))
    esito.allergeni = "* Il prodotto è un allergene"_t;
  esito.trattamento = Trattamento(commento);
  esito.origine = {
      {pescato ? "FAO:" : "FAO", riga[CampoRiga::ZonaP], pescato},
      {"Provenienza:", riga[CampoRiga::Prov]},
      {"Attrezzo di pesca:", Testo(Da(riga[CampoRiga::MetodoPesca], 5))},
      {"Pezzatura e Stato Fisico:", Coppia(riga, CampoRiga::Pezzatura, CampoRiga::StatoFisico)},
      {"Lavorazione e Preparazione:", Coppia(riga, CampoRiga::Lavorazione, CampoRiga::Preparazione)}};
  esito.lotto = {"Lotto:", riga[CampoRiga::Lotti]};
  return esito;
}

void StampaEtichetta(Programma& programma, const Edita& edita) {
  const LedgerRow riga = Riga_Nei_Campi(edita);
  Printer& printer = Dispositivo(programma);
  printer.documento = {programma.Data_AAAAMMGG, "Etichetta", riga[CampoRiga::Num], riga[CampoRiga::Specie]};
  PreparaPagina(programma);
  PreparaPagina(programma);
  DisegnaEtichetta(printer, Componi_Etichetta(riga, programma.Separatore_Decimale));
  printer.EndDoc();
}

void Etichette(Programma& programma, Edita& edita) {
  if (Occupata(edita)) return;
  const Schermo_Fermo fermo(edita);
  if (Stampa_Tutte(programma, edita) &&
      programma.piattaforma.Domanda("OK per stampare tutte le etichette con il prezzo di acquisto..."))
    return Stampa_Tutto_Il_Giorno(programma, edita);
  edita.Check[casella_tutte].segnata = false;
  if (edita.albero.ListaVoci.scelta < 0)
    return programma.piattaforma.Messaggio("Selezionare la riga sulla lista..(Hai salvato?)");
  if (Pulito(Campo(edita, CampoRiga::Commento).testo).empty())
    return programma.piattaforma.Messaggio("Manca il prezzo di vendita...");
  Stampa_Una(programma, edita, 1, 1);
}

#include "entry/edita.h"

#include <utility>

#include "core/giorno.h"
#include "core/numeri.h"
#include "lists/liste.h"

namespace {

struct Dicitura {
  CampoRiga campo;
  Vista testo;
};

// Captions on the screen where they differ from the titles of lists and files.
constexpr Dicitura diciture[] = {
    {CampoRiga::CodCliente, "Codice Cliente"},
    {CampoRiga::ZonaP, "ZonaPesca"},
    {CampoRiga::Iva, "+ Iva"},
    {CampoRiga::Colli, "N colli"},
    {CampoRiga::NCV, "N. Conto Vendita"},
    {CampoRiga::DataCV, "Data CV"},
    {CampoRiga::DDT_CV, "Riferimento DDT"},
    {CampoRiga::SAnt, "Spese Anticipate"},
    {CampoRiga::Provvigione, "Provvigione"},
    {CampoRiga::Controllato, "Controllato"},
    {CampoRiga::Prov, "Provenienza"},
    {CampoRiga::Lotti, "lotti"},
    {CampoRiga::DDT, "Numero DDT Rif."},
    {CampoRiga::FAT, "Numero FAT. NA"},
    {CampoRiga::MetodoPesca, "Attr.Pesca"},
    {CampoRiga::StatoFisico, "StatoFis."},
    {CampoRiga::Lavorazione, "Lavoraz."},
    {CampoRiga::Preparazione, "Presentaz"},
    {CampoRiga::Commento, "Commento"},
    {CampoRiga::Allergeni, "Allergeni"},
};

constexpr CampoRiga disattivi_in_apertura[] = {
    CampoRiga::Num,    CampoRiga::CodSpecie, CampoRiga::Iva,         CampoRiga::NCV,        CampoRiga::DataCV,
    CampoRiga::DDT_CV, CampoRiga::SAnt,      CampoRiga::Provvigione, CampoRiga::Controllato};

void PreparaDiciture(Edita& edita) {
  for (int i = 0; i < Num_Campi; ++i)
    edita.Caption[static_cast<std::size_t>(i)].testo = Vet_Titoli[static_cast<std::size_t>(i)];
  for (const Dicitura& d : diciture) edita.Caption[static_cast<std::size_t>(Indice(d.campo))].testo = d.testo;
  edita.Caption[static_cast<std::size_t>(Indice(CampoRiga::PrimoImb))].testo = "1° Sbarco"_t;
}

void PreparaCaselle(const Programma& programma, Edita& edita) {
  for (int i = 0; i < Num_Campi; ++i)
    if (const int casella = CasellaCampo(i); casella > 0)
      edita.Check[static_cast<std::size_t>(casella)].suggerimento =
          casella == 6 || casella == 7 ? "usare PGSu PGGiù"_t : Testo("usare Alt Gr");
  edita.Check[12].segnata = true;
  edita.Check[12].didascalia = "#DDT automatico ";
  edita.Check[18].didascalia = "Tutte le etichette";
  edita.Check[18].suggerimento = "il bottone Etichetta stampa tutte le righe con un prezzo";
  edita.Check[5].segnata = programma.preferenze.Flag5 != 0;
  edita.Check[7].segnata = programma.preferenze.Flag7 != 0;
  // settings that hold both of the pair come from outside: the customer's code is then the one looked up
  edita.Check[6].segnata = programma.preferenze.Flag6 != 0 && !edita.Check[7].segnata;
  Campo(edita, CampoRiga::Fornitore).attivo = !edita.Check[5].segnata;
  Campo(edita, CampoRiga::Cliente).attivo = !edita.Check[6].segnata;
  Campo(edita, CampoRiga::CodCliente).attivo = !edita.Check[7].segnata;
}

// The fields of the numbers given by hand, closed until their button opens them.
void PreparaNumeriManuali(const Programma& programma, Edita& edita) {
  const bool mostra = programma.preferenze.FlagAggDDT;
  for (const CampoRiga campo : {CampoRiga::DDT, CampoRiga::FAT}) {
    Campo(edita, campo).attivo = false;
    Campo(edita, campo).visibile = mostra;
    Campo(edita, campo).sfondo = Rosa;
    edita.Caption[static_cast<std::size_t>(Indice(campo))].visibile = mostra;
  }
  edita.BottoneDDT.testo = "DDT";
  edita.BottoneDDT.suggerimento = "modificare il numero del documento di trasporto o sanitario";
  edita.BottoneFAT.testo = "N.Fat";
  edita.BottoneFAT.suggerimento = "modificail numero di fattura";
  edita.BottoneDDT.visibile = edita.BottoneFAT.visibile = mostra;
}

void PreparaComandi(Edita& edita) {
  edita.Aggiungi.testo = "Ag&giungi F5";
  edita.Modifica.testo = "&Modifica F4";
  edita.Elimina.testo = "&Elimina F3";
  edita.Salva.testo = "Sal&va F7";
  edita.Aggiungi.attivo = false;
  edita.Frame_Salvataggio.testo = "Salvataggio Automatico in corso...";
  edita.Frame_Salvataggio.visibile = false;
  edita.Frame1.visibile = false;
  edita.List1.visibile = false;
}

// A screen as new. The lists' change counts go on, or a window that was open before would take the lists of
// the new day for those that it shows.
void Rinnova(Edita& edita) {
  Edita nuova;
  nuova.List1.versione = edita.List1.versione + 1;
  nuova.albero.Titoli.versione = edita.albero.Titoli.versione + 1;
  nuova.albero.ListaVoci.versione = edita.albero.ListaVoci.versione + 1;
  edita = std::move(nuova);
}

void CollegaElenco(const Programma& programma, Edita& edita) {
  edita.albero.Titoli.Riempi({TitoliVoci()});
  edita.albero.ListaVoci.Collega([&programma] { return programma.Vet_Tabella.righe.size(); },
                                 [&programma, &edita](std::size_t i) {
                                   if (i == 0 && edita.riga_marcata) return "001 | " + Testo(Riga_Vuota);
                                   return RigaVoci(programma, static_cast<int>(i) + 1);
                                 });
}

// Whether it can't be made for the same reason as anything else in the firm's folder, which has been told.
bool Manca_Come_Detto(const Programma& programma, const Percorso& cartella) {
  const int errore = programma.disco.Crea_Cartella(cartella);
  return errore != 0 && errore == programma.Errore_Cartella;
}

// Folders that later documents of the day write to; a failure is told, and the day can be keyed all the same.
void CreaCartelle(Programma& programma) {
  for (const Percorso& cartella :
       {Unisci_Percorso(programma.Cartella_Anno, "CV_SI"), Unisci_Percorso(programma.Cartella_Anno, "CV_NO"),
        Unisci_Percorso(programma.Cartella_Dati, "_ReportLear"),
        Unisci_Percorso(programma.Cartella_Dati, "XBanca"), Percorso_Fatture(programma)})
    if (!Manca_Come_Detto(programma, cartella)) Crea_Cartella(programma, cartella);
}

Testo MarchioFattura(Vista fat, char separatore) {
  if (!Inizia(fat, "NA")) return Testo(fat);
  if (fat.size() == 2) return " NA  ";
  return "NA" + Formato(Valore(Da(fat, 3), separatore), "000", separatore);
}

}  // namespace

Vista Parola(StatoSemaforo stato) {
  switch (stato) {
    case StatoSemaforo::BENE:
      return "BENE";
    case StatoSemaforo::ERRORE:
      return "ERRORE";
    case StatoSemaforo::NORMALE:
      break;
  }
  return "NORMALE";
}

CampoTesto& Campo(Edita& edita, CampoRiga campo) {
  return edita.Text1[static_cast<std::size_t>(Indice(campo))];
}

const CampoTesto& Campo(const Edita& edita, CampoRiga campo) {
  return edita.Text1[static_cast<std::size_t>(Indice(campo))];
}

bool Occupata(const Edita& edita) { return !edita.attiva || edita.aggiunta_in_corso; }

void ChiediFuoco(Edita& edita, int indice) {
  if (indice < 0 || indice >= Num_Campi) return;
  const CampoTesto& campo = edita.Text1[static_cast<std::size_t>(indice)];
  if (campo.attivo && campo.visibile) edita.fuoco = indice;
}

void Semaforo(Edita& edita, StatoSemaforo stato) { edita.SemaforoRiga = stato; }

void Apri_Edita(Programma& programma, Edita& edita) {
  Rinnova(edita);
  programma.Edita_Aperta = true;
  PreparaDiciture(edita);
  PreparaComandi(edita);
  PreparaCaselle(programma, edita);
  PreparaNumeriManuali(programma, edita);
  Campo(edita, CampoRiga::Allergeni).testo = "-";
  Campo(edita, CampoRiga::Commento).suggerimento = "inserire prezzo - trattamento";
  for (const CampoRiga campo : disattivi_in_apertura) Campo(edita, campo).attivo = false;
  CreaCartelle(programma);
  edita.Label4.testo = programma.Data_Giorno;
  CollegaElenco(programma, edita);
  edita.hd.massimo = programma.Vet_Tabella.Righe();
  edita.titolo = "Aggiunge/Modifica/Cancella n.Voci = " + std::to_string(programma.Vet_Tabella.Righe());
  edita.pronta = true;
  CaricaRiga(programma, edita);
  CampoSuccessivo(edita, Indice(CampoRiga::Colli));
}

void Chiudi_Edita(Programma& programma, Edita& edita) {
  if (Occupata(edita)) return;
  if (programma.Tabella_Modificata && SalvaConDomanda(programma, edita) == EsitoSalvataggio::Fallito) return;
  programma.preferenze.Flag5 = edita.Check[5].segnata ? 1 : 0;
  programma.preferenze.Flag6 = edita.Check[6].segnata ? 1 : 0;
  programma.preferenze.Flag7 = edita.Check[7].segnata ? 1 : 0;
  // a settings file that can't be written costs the operator three ticks, not the closing of the day
  Scrivi_Preferenze(programma, {"Flag5", "Flag6", "Flag7"});
  edita.List1.visibile = false;
  edita.pronta = false;
  programma.Edita_Aperta = false;
}

void PreferenzeCambiate(Programma& programma, Edita& edita) {
  PreparaNumeriManuali(programma, edita);
  SegnoPrezzo(programma, edita);
}

void CaricaRiga(Programma& programma, Edita& edita) {
  if (!edita.pronta || edita.hd.valore < 1 || edita.hd.valore > programma.Vet_Tabella.Righe()) return;
  const bool era_attiva = std::exchange(edita.attiva, false);
  const LedgerRow& riga = programma.Vet_Tabella.Riga(edita.hd.valore);
  for (std::size_t i = 0; i < edita.Text1.size(); ++i) edita.Text1[i].testo = riga.campi[i];
  // the first sale of a day is keyed over the blank row: it keeps the mark that the screen opens with
  if (Uguali(riga[CampoRiga::Fornitore], Riga_Vuota) && riga[CampoRiga::Allergeni].empty())
    Campo(edita, CampoRiga::Allergeni).testo = "-";
  if (programma.preferenze.FlagLottiAutomatici)
    programma.PrefissoLotto = Codice_Lotto(programma, riga[CampoRiga::Fornitore]);
  edita.List1.visibile = false;
  RigaImporti(programma, edita);
  edita.albero.ListaVoci.scelta = edita.hd.valore - 1;
  edita.attiva = era_attiva;
}

void VaiRiga(Programma& programma, Edita& edita, int n) {
  edita.hd.massimo = programma.Vet_Tabella.Righe();
  edita.hd.valore = std::clamp(n, 1, edita.hd.massimo);
  CaricaRiga(programma, edita);
}

LedgerRow RigaCorrente(const Programma& programma, const Edita& edita) {
  const Tabella& tabella = programma.Vet_Tabella;
  const int n = edita.hd.valore;
  return n >= 1 && n <= tabella.Righe() ? tabella.Riga(n) : LedgerRow();
}

void RiprendiEdita(Programma& programma, Edita& edita, const LedgerRow& prima) {
  edita.albero.ListaVoci.Cambiato();
  edita.hd.massimo = programma.Vet_Tabella.Righe();
  if (RigaCorrente(programma, edita) != prima) {
    edita.riga_marcata = false;
    VaiRiga(programma, edita, edita.hd.valore);
  }
  TitoloVoci(programma, edita);
}

void CambiaHd(Programma& programma, Edita& edita, int valore) {
  if (Occupata(edita)) return;
  VaiRiga(programma, edita, valore);
}

void RigaSuccessiva(Programma& programma, Edita& edita) {
  if (Occupata(edita)) return;
  VaiRiga(programma, edita, edita.hd.valore >= edita.hd.massimo ? 1 : edita.hd.valore + 1);
}

void RigaPrecedente(Programma& programma, Edita& edita) {
  if (Occupata(edita)) return;
  VaiRiga(programma, edita, edita.hd.valore <= 1 ? edita.hd.massimo : edita.hd.valore - 1);
}

Testo RigaVoci(const Programma& programma, int n) {
  constexpr Vista sep = " | ";
  const LedgerRow& riga = programma.Vet_Tabella.Riga(n);
  const char separatore = programma.Separatore_Decimale;
  const Testo& iva = riga[CampoRiga::Iva];

  Testo importi = iva.size() == 1 ? " " + iva : iva;
  importi.append("% ").append(Formato(Vista(riga[CampoRiga::Peso]), "#00.00", separatore));
  importi.append(" ").append(Formato(Vista(riga[CampoRiga::Prezzo]), "#000.00", separatore));
  importi.append(" ").append(Sinistra(riga[CampoRiga::Prov], 6));
  if (importi.size() < 19) importi.resize(19, ' ');

  Testo linea;
  linea.reserve(200);
  linea.append(riga[CampoRiga::Num]).append(sep);
  linea.append(Pad(riga[CampoRiga::Fornitore], 20)).append(sep);
  linea.append(riga[CampoRiga::CodCliente]).append(" ").append(Pad(riga[CampoRiga::Cliente], 20)).append(sep);
  linea.append(Pad(riga[CampoRiga::Specie], 15)).append(sep);
  linea.append(Sinistra(riga[CampoRiga::ZonaP], 7)).append(sep);
  linea.append(importi).append(sep);
  linea.append(riga[CampoRiga::DDT]).append(sep);
  linea.append(MarchioFattura(riga[CampoRiga::FAT], separatore)).append(sep);
  linea.append(Pad(riga[CampoRiga::Lotti], 12)).append(riga[CampoRiga::Alfa]).append(sep);
  for (const CampoRiga codice : {CampoRiga::MetodoPesca, CampoRiga::Pezzatura, CampoRiga::StatoFisico,
                                 CampoRiga::Lavorazione, CampoRiga::Preparazione})
    linea.append(Sinistra(riga[codice], 3)).append(" ");
  linea.append(Pulito(riga[CampoRiga::Commento])).append(" ");
  return linea;
}

Testo TitoliVoci() {
  constexpr Vista sep = " | ";
  const auto titolo = [](CampoRiga campo) { return Vet_Titoli[static_cast<std::size_t>(Indice(campo))]; };
  Testo linea(titolo(CampoRiga::Num));
  linea.append(sep).append(Pad(titolo(CampoRiga::Fornitore), 20)).append(sep);
  linea.append("Cod.  ").append(Pad(titolo(CampoRiga::Cliente), 20)).append(sep);
  linea.append(Pad(titolo(CampoRiga::Specie), 15)).append(sep);
  linea.append("Z.Pesca |").append("iva   Kg    Euro Pr.     | ");
  linea.append(titolo(CampoRiga::DDT)).append(sep);
  linea.append("N.Fat | ").append(" Lotto ");
  return linea;
}

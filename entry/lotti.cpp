#include "entry/lotti.h"

#include "core/date.h"
#include "core/impegno.h"
#include "lists/file_lista.h"
#include "lists/liste.h"

namespace {

constexpr Vista file_lotti = "LottiPredeiniti.txt";

bool E_Segnaposto(const LedgerRow& riga) { return Uguali(riga[CampoRiga::Fornitore], Riga_Vuota); }

bool Nessuna_Riga(const Programma& programma) {
  return std::ranges::all_of(programma.Vet_Tabella.righe, E_Segnaposto);
}

// Runs over the rows; the supplier that stopped it, nothing when all rows were done.
std::optional<Testo> ScriviLotti(Programma& programma, Vista data) {
  const Clessidra clessidra(programma.piattaforma);
  for (LedgerRow& riga : programma.Vet_Tabella.righe) {
    if (E_Segnaposto(riga)) continue;
    const Testo fornitore(Pulito(riga[CampoRiga::Fornitore]));
    const Testo prefisso = Codice_Lotto(programma, fornitore);
    if (Pulito(prefisso).empty()) return fornitore;
    riga[CampoRiga::Lotti] = prefisso + Testo(data);
    programma.Tabella_Modificata = true;
  }
  return std::nullopt;
}

void MostraLotti(Lotti_Predefiniti& lista) { lista.List1.Riempi(lista.lotti); }

// False when there is no file.
bool LeggiLotti(Programma& programma, Lotti_Predefiniti& lista) {
  const auto contenuto = Leggi_File_Lista(programma, file_lotti);
  if (!contenuto) return false;
  lista.lotti.clear();
  for (const Vista riga : Righe(*contenuto))
    if (Testo lotto = Senza_Separatori(riga); !Pulito(lotto).empty()) lista.lotti.push_back(std::move(lotto));
  lista.List1.scelta = -1;
  MostraLotti(lista);
  return true;
}

}  // namespace

void AttribuisciLotti(Programma& programma, Edita& edita) {
  if (Occupata(edita) || Nessuna_Riga(programma)) return;
  const Testo data = Giorno_Prima(Da(programma.Data_AAAAMMGG, 3), "yymmdd");
  const Schermo_Fermo fermo(edita);
  if (!programma.piattaforma.Domanda(
          "Questa procedura attribuisce automaticamente un numero di lotto\n a ciascuna specie. Il lotto è formato dal codice del fornitore + \nla data del giono precedente questa prima nota.\ni lotti relativi alle rimanenze dovranno essere modificati manualmente.\nOK per continuare...."_t))
    return;
  const auto senza_codice = ScriviLotti(programma, data);
  edita.albero.ListaVoci.Cambiato();
  // What the operator has keyed stays, but for the lot: F4 would put the old one back into the row.
  if (const int n = edita.hd.valore; n >= 1 && n <= programma.Vet_Tabella.Righe())
    Campo(edita, CampoRiga::Lotti).testo = programma.Vet_Tabella(CampoRiga::Lotti, n);
  if (senza_codice)
    programma.piattaforma.Messaggio(*senza_codice + "\nsenza codice....Inserire i codici dei fornitori...");
}

void Apri_LottiPredefiniti(Programma& programma, Lotti_Predefiniti& lista) {
  lista.Aggiungi.testo = "&Aggiungi";
  lista.Carica.testo = "Ca&rica lista";
  lista.Salva.testo = "&Salva lista";
  lista.Svuota.testo = "S&vuota lista";
  lista.Elimina.testo = "&Elimina lotto";
  lista.Chiudi.testo = "&Chiudi";
  lista.Text1.suggerimento = "doppio click: la data di oggi";
  lista.chiusa = false;
  if (lista.lotti.empty()) LeggiLotti(programma, lista);
  if (lista.List1.scelta < 0 && !lista.lotti.empty()) lista.List1.scelta = 0;
}

void AggiungiLotto(Lotti_Predefiniti& lista) {
  const Testo lotto = Senza_Separatori(lista.Text1.testo);
  if (Pulito(lotto).empty()) return;
  lista.lotti.push_back(lotto);
  MostraLotti(lista);
}

void CaricaLotti(Programma& programma, Lotti_Predefiniti& lista) {
  if (!LeggiLotti(programma, lista)) programma.piattaforma.Messaggio("nessuna lista disponibile");
}

void SalvaLotti(Programma& programma, const Lotti_Predefiniti& lista) {
  Salva_File_Lista(programma, file_lotti, Contenuto_Voci(lista.lotti));
}

void SvuotaLotti(Programma& programma, Lotti_Predefiniti& lista) {
  if (!programma.piattaforma.Domanda("OK per cancellare la lista attuale")) return;
  lista.lotti.clear();
  MostraLotti(lista);
}

void EliminaLotto(Programma& programma, Lotti_Predefiniti& lista) {
  const int riga = lista.List1.scelta;
  if (riga < 0 || static_cast<std::size_t>(riga) >= lista.lotti.size())
    return programma.piattaforma.Messaggio("selezionare il lotto da cancellare...");
  lista.lotti.erase(lista.lotti.begin() + riga);
  MostraLotti(lista);
  lista.List1.scelta = std::min(riga, static_cast<int>(lista.lotti.size()) - 1);
}

void ScegliLotto(Edita& edita, Lotti_Predefiniti& lista) {
  const int riga = lista.List1.scelta;
  if (Occupata(edita) || riga < 0 || static_cast<std::size_t>(riga) >= lista.lotti.size()) return;
  Campo(edita, CampoRiga::Lotti).testo = lista.lotti[static_cast<std::size_t>(riga)];
  SegnaCambiamento(edita, Indice(CampoRiga::Lotti));
  ChiediFuoco(edita, Indice(CampoRiga::Lotti));
  lista.chiusa = true;
}

void LottoDiOggi(const Programma& programma, Lotti_Predefiniti& lista) {
  const Testo prefisso = programma.preferenze.FlagLottiAutomatici ? programma.PrefissoLotto : Testo();
  lista.Text1.testo = prefisso + Testo_Data(programma.Oggi, "yyyymmdd");
}

#include "core/giorno.h"
#include "core/impegno.h"
#include "core/numeri.h"
#include "entry/edita.h"

// The commands that change the day's table: add, modify, delete, save, and the numbers given by hand.

namespace {

// A message box or a pause lets further key presses through to the screen: while a command is under way no
// other one starts.
class Impegno {
 public:
  explicit Impegno(Edita& edita) : edita_(edita) { edita_.aggiunta_in_corso = true; }
  ~Impegno() {
    edita_.aggiunta_in_corso = false;
    edita_.attiva = true;
  }
  Impegno(const Impegno&) = delete;
  Impegno& operator=(const Impegno&) = delete;

 private:
  Edita& edita_;
};

void DicituraRiferimento(Edita& edita) {
  edita.Caption[static_cast<std::size_t>(Indice(CampoRiga::DDT_CV))].testo = "Riferimento DDT";
}

void Togli_Spazi(Edita& edita, CampoRiga campo) {
  Testo& testo = Campo(edita, campo).testo;
  testo = Testo(Pulito(testo));
}

void Predefinito(Edita& edita, CampoRiga campo, Vista valore) {
  if (Pulito(Campo(edita, campo).testo).empty()) Campo(edita, campo).testo = valore;
}

bool Sola_Riga_Vuota(const Programma& programma) {
  return programma.Vet_Tabella.Righe() == 1 &&
         Uguali(programma.Vet_Tabella(CampoRiga::Fornitore, 1), Riga_Vuota);
}

// A price that can't be read is on neither side of zero.
bool Negativo(const Programma& programma, const Edita& edita) {
  return LeggiPrezzo(programma, edita).value_or(0) < 0;
}
bool Positivo(const Programma& programma, const Edita& edita) {
  return LeggiPrezzo(programma, edita).value_or(0) > 0;
}

// What the consignment fields hold until the account is made. `senza_riferimento`: the row corrects no
// invoice.
void CampiContoVendita(const Programma& programma, Edita& edita, bool senza_riferimento) {
  if (programma.preferenze.FlagModificaCV) {
    Predefinito(edita, CampoRiga::SAnt, "0");
    Predefinito(edita, CampoRiga::Provvigione, "0");
    Predefinito(edita, CampoRiga::NCV, "9999");
    Predefinito(edita, CampoRiga::Controllato, "no");
    return;
  }
  Togli_Spazi(edita, CampoRiga::Peso);
  Campo(edita, CampoRiga::NCV).testo = "-";
  Campo(edita, CampoRiga::DataCV).testo = "-";
  if (senza_riferimento) Campo(edita, CampoRiga::DDT_CV).testo = "-";
  Campo(edita, CampoRiga::SAnt).testo = "0";
  Campo(edita, CampoRiga::Controllato).testo = "no";
}

void SalvataggioAutomatico(Programma& programma, Edita& edita) {
  if (!programma.preferenze.FlagAutoSalvataggio ||
      programma.Righe_Non_Salvate != programma.preferenze.maxrighesalvate)
    return;
  edita.Frame_Salvataggio.visibile = true;
  programma.piattaforma.Ridipingi();
  bool errore = false;  // told by the writer; the rows stay in the table and the next round tries again
  Salva_Giorno(programma, errore);
  programma.piattaforma.Attendi(0.5);
  edita.Frame_Salvataggio.visibile = false;
  programma.Righe_Non_Salvate = 0;
  CampoSuccessivo(edita, Indice(CampoRiga::Cliente));
}

// What the next row starts from: the sale's own fields go, supplier, species, zone and provenance stay.
void AzzeraCampi(const Programma& programma, Edita& edita) {
  const Preferenze& preferenze = programma.preferenze;
  const auto vuota = [&](CampoRiga campo) { Campo(edita, campo).testo.clear(); };
  const auto vuota_se_libera = [&](CampoRiga campo) {
    if (!edita.Check[static_cast<std::size_t>(CasellaCampo(Indice(campo)))].segnata) vuota(campo);
  };
  vuota(CampoRiga::Commento);
  if (preferenze.FlagAzzCliente) {
    vuota(CampoRiga::Cliente);
    vuota(CampoRiga::CodCliente);
  }
  if (preferenze.FlagAzzSoloPeso) vuota_se_libera(CampoRiga::Peso);
  if (preferenze.FlagAzzeraPrezzo) vuota_se_libera(CampoRiga::Prezzo);
  for (const CampoRiga campo :
       {CampoRiga::Lotti, CampoRiga::MetodoPesca, CampoRiga::Pezzatura, CampoRiga::StatoFisico,
        CampoRiga::Lavorazione, CampoRiga::Preparazione, CampoRiga::PrimoImb})
    vuota_se_libera(campo);
}

void AccodaRiga(Programma& programma, Edita& edita) {
  const int voci = programma.Vet_Tabella.Righe();  // lines of the list before the new one stands in it
  const int n = voci + 1;
  programma.Vet_Tabella.righe.emplace_back();
  programma.Tabella_Modificata = true;
  ++programma.Righe_Non_Salvate;
  edita.hd.massimo = edita.hd.valore = n;
  edita.titolo = "Aggiunge/Modifica/Cancella - n.Voci immesse = " + std::to_string(n) +
                 ", totali = " + std::to_string(voci);
  ScriviRiga(programma, edita, n);
}

void NumeroDocumentoModificato(const Programma& programma, Edita& edita, int n) {
  if (!edita.Check[12].segnata) {
    Campo(edita, CampoRiga::FAT).testo.clear();
    return;
  }
  if (programma.Vet_Tabella.Righe() == 1) {
    Campo(edita, CampoRiga::Num).testo = "0001";
    Campo(edita, CampoRiga::DDT).testo = "001";
    return;
  }
  const Testo& codice = Campo(edita, CampoRiga::CodCliente).testo;
  if (Negativo(programma, edita) ||
      Uguali(Pulito(codice), Pulito(programma.Vet_Tabella(CampoRiga::CodCliente, n))))
    return;
  Campo(edita, CampoRiga::DDT).testo = " ";
  NumeroDocumento(programma, edita, codice);
}

// The table counts from 1, the list from 0.
int RigaScelta(const Edita& edita) { return edita.albero.ListaVoci.scelta + 1; }

bool ModificaRiga(Programma& programma, Edita& edita) {
  edita.Frame1.visibile = false;
  if (ValidaRiga(programma, edita, "MOD") == 1) {
    Semaforo(edita, StatoSemaforo::ERRORE);
    programma.piattaforma.Domanda("dati errati o mancanti...", Icona::Esclamazione);  // either answer ends it
    return false;
  }
  const int n = RigaScelta(edita);
  if (n < 1 || n > programma.Vet_Tabella.Righe()) return false;
  DicituraRiferimento(edita);
  if (!edita.Modifica.attivo) return false;
  edita.attiva = false;
  Semaforo(edita, StatoSemaforo::NORMALE);
  if (!programma.preferenze.FlagModificaCV) Togli_Spazi(edita, CampoRiga::Prezzo);
  CampiContoVendita(programma, edita, Positivo(programma, edita));
  Togli_Spazi(edita, CampoRiga::Peso);
  const int esito = ValidaRiga(programma, edita, "MOD");
  ConvertiCassa(programma, edita);
  if (esito != 0) {
    edita.attiva = true;
    Semaforo(edita, StatoSemaforo::ERRORE);
    programma.piattaforma.Messaggio("Dati errati o incompleti");
    return false;
  }
  ComponiCodici(edita);
  NumeroDocumentoModificato(programma, edita, n);
  programma.Tabella_Modificata = true;
  TitoloVoci(programma, edita);
  Semaforo(edita, StatoSemaforo::BENE);
  ScriviRiga(programma, edita, n);
  edita.attiva = true;
  ChiediFuoco(edita, Indice(CampoRiga::Cliente));
  VaiRiga(programma, edita, edita.hd.valore + 1);  // on the last row: that row again
  return true;
}

void AggiungiRiga(Programma& programma, Edita& edita) {
  const int esito = ValidaRiga(programma, edita, "");
  if (esito == 999) return;
  if (Sola_Riga_Vuota(programma)) {
    // stored already: a second F5 on the same fields must not add the sale again
    if (ModificaRiga(programma, edita)) edita.Aggiungi.attivo = false;
    return;
  }
  if (!edita.Aggiungi.attivo) return;
  if (programma.Vet_Tabella.Righe() >= Massimo_Righe) {
    programma.piattaforma.Messaggio("La giornata ha raggiunto il massimo di " +
                                    std::to_string(Massimo_Righe) +
                                    " righe: la riga non è stata aggiunta."_t);
    return;
  }
  edita.attiva = false;
  ComponiCodici(edita);
  if (!Negativo(programma, edita)) {  // a credit row keeps its reference and its mark
    Campo(edita, CampoRiga::DDT).testo.clear();
    Campo(edita, CampoRiga::FAT).testo.clear();
  }
  if (edita.Check[5].segnata) Campo(edita, CampoRiga::Fornitore).attivo = false;
  DicituraRiferimento(edita);
  const Clessidra clessidra(programma.piattaforma);
  edita.Frame1.visibile = false;
  Semaforo(edita, StatoSemaforo::NORMALE);
  CampiContoVendita(programma, edita, !Negativo(programma, edita));
  if (!programma.preferenze.FlagModificaCV) CercaNCV(programma, edita);
  if (esito != 0) {
    Semaforo(edita, StatoSemaforo::ERRORE);
    edita.attiva = true;
    programma.piattaforma.Messaggio("Dati errati o incompleti (o cliente escluso)");
    return;
  }
  ConvertiCassa(programma, edita);
  Semaforo(edita, StatoSemaforo::BENE);
  if (edita.Check[12].segnata && Positivo(programma, edita))
    NumeroDocumento(programma, edita, Campo(edita, CampoRiga::CodCliente).testo);
  AccodaRiga(programma, edita);
  SalvataggioAutomatico(programma, edita);
  edita.Aggiungi.attivo = false;
  AzzeraCampi(programma, edita);
  edita.albero.ListaVoci.scelta = edita.hd.valore - 1;
  edita.albero.ListaVoci.visibile = true;
}

// The only row of a day isn't removed: it becomes the blank row again, its other fields stay.
void SvuotaSolaRiga(Programma& programma, Edita& edita) {
  programma.Vet_Tabella(CampoRiga::Num, 1) = "0001";
  programma.Vet_Tabella(CampoRiga::Fornitore, 1) = Riga_Vuota;
  programma.Tabella_Modificata = true;
  edita.riga_marcata = false;
  edita.albero.ListaVoci.Cambiato();
  edita.albero.ListaVoci.scelta = 0;
  Semaforo(edita, StatoSemaforo::BENE);
}

}  // namespace

void TitoloVoci(const Programma& programma, Edita& edita) {
  edita.titolo = "Aggiunge/Modifica/Cancella - n.Voci = " + std::to_string(programma.Vet_Tabella.Righe());
}

void ScriviRiga(Programma& programma, Edita& edita, int n) {
  Predefinito(edita, CampoRiga::DDT_CV, "-");
  edita.List1.visibile = false;  // the row is done: nothing shall cover the fields of the next one
  Tabella& tabella = programma.Vet_Tabella;
  if (n > tabella.Righe()) tabella.righe.resize(static_cast<std::size_t>(n));
  Campo(edita, CampoRiga::Num).testo = Formato(static_cast<double>(n), "0000", programma.Separatore_Decimale);
  LedgerRow& riga = tabella.Riga(n);
  if (n == 1) edita.riga_marcata = false;
  for (std::size_t i = 0; i < edita.Text1.size(); ++i) riga.campi[i] = edita.Text1[i].testo;
  edita.albero.ListaVoci.Cambiato();
}

void Aggiungi(Programma& programma, Edita& edita) {
  if (Occupata(edita)) return;
  const Impegno impegno(edita);
  AggiungiRiga(programma, edita);
}

void Modifica(Programma& programma, Edita& edita) {
  if (Occupata(edita)) return;
  const Impegno impegno(edita);
  ModificaRiga(programma, edita);
}

void Elimina(Programma& programma, Edita& edita) {
  if (Occupata(edita)) return;
  const Impegno impegno(edita);
  edita.Frame1.visibile = false;
  Tabella& tabella = programma.Vet_Tabella;
  if (tabella.Righe() == 1) return SvuotaSolaRiga(programma, edita);
  const int n = RigaScelta(edita);
  if (!edita.Elimina.attivo || n < 1 || n > tabella.Righe()) return;
  Semaforo(edita, StatoSemaforo::NORMALE);
  if (!programma.piattaforma.Domanda("OK per cancellare la voce n. " + std::to_string(n))) return;
  tabella.righe.erase(tabella.righe.begin() + (n - 1));
  if (n == 1) edita.riga_marcata = false;
  programma.Tabella_Modificata = true;
  edita.albero.ListaVoci.Cambiato();
  VaiRiga(programma, edita, n - 1);
  Semaforo(edita, StatoSemaforo::NORMALE);
  TitoloVoci(programma, edita);
}

EsitoSalvataggio SalvaConDomanda(Programma& programma, Edita& edita) {
  if (Occupata(edita)) return EsitoSalvataggio::Annullato;
  const Impegno impegno(edita);
  const Testo domanda =
      "OK per salvare " + std::to_string(programma.Vet_Tabella.Righe()) + " dati immessi...";
  if (!programma.piattaforma.Domanda(domanda)) return EsitoSalvataggio::Annullato;
  edita.attiva = false;
  edita.Frame1.visibile = false;
  bool errore = false;
  Salva_Giorno(programma, errore);
  if (errore) return EsitoSalvataggio::Fallito;  // told; everything else stays as it was
  TitoloVoci(programma, edita);
  Semaforo(edita, StatoSemaforo::BENE);
  edita.Aggiungi.attivo = true;
  programma.Righe_Non_Salvate = 0;
  return EsitoSalvataggio::Salvato;
}

void Salva(Programma& programma, Edita& edita) { SalvaConDomanda(programma, edita); }

void BottoneNumero(Programma& programma, Edita& edita, CampoRiga campo) {
  if (Occupata(edita) || !programma.preferenze.FlagAggDDT) return;
  CampoTesto& numero = Campo(edita, campo);
  if (!numero.attivo) {
    numero.attivo = true;
    numero.sfondo = Bianco;
    return ChiediFuoco(edita, Indice(campo));
  }
  Togli_Spazi(edita, campo);
  Modifica(programma, edita);
  numero.attivo = false;
  numero.sfondo = Rosa;
}

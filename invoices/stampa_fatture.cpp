#include "invoices/stampa_fatture.h"

#include <cerrno>
#include <initializer_list>

#include "core/giorno.h"
#include "invoices/file_fatture.h"
#include "invoices/pagine_grafiche.h"
#include "invoices/pagine_testo.h"
#include "invoices/rapporto.h"
#include "printing/pagina.h"

namespace {

Testo Unisci_Righe(std::initializer_list<Vista> righe) {
  Testo testo;
  for (const Vista riga : righe) {
    if (!testo.empty()) testo += "\n";
    testo += riga;
  }
  return testo;
}

int Quante_Grafiche(const Scelte_Stampa& scelte) {
  return static_cast<int>(scelte.Personalizzata) + static_cast<int>(scelte.Check1);
}

void Mostra_Titolo(const Programma& programma, const Stampa_Fatture& stampa, const Testo& titolo) {
  if (stampa.titolo) stampa.titolo(titolo);
  programma.piattaforma.Ridipingi();
}

// The screen is disabled while documents are made.
class Schermo_Fermo {
 public:
  Schermo_Fermo(const Programma& programma, const Stampa_Fatture& stampa)
      : programma_(programma), stampa_(stampa) {
    if (stampa_.attiva) stampa_.attiva(false);
    programma_.piattaforma.Occupato(true);
  }
  ~Schermo_Fermo() {
    programma_.piattaforma.Occupato(false);
    if (stampa_.attiva) stampa_.attiva(true);
  }
  Schermo_Fermo(const Schermo_Fermo&) = delete;
  Schermo_Fermo& operator=(const Schermo_Fermo&) = delete;

 private:
  const Programma& programma_;
  const Stampa_Fatture& stampa_;
};

// Documents on their way to files or to the printer.
struct Lavoro {
  Programma& programma;
  Stampa_Fatture& stampa;
  Percorso cartella;
  std::vector<File_Documento> file;               // to be written
  std::vector<Percorso> ListaFatture, ListaNote;  // first pages, in list order
  bool orientamento_detto = false;                // once in a run is enough
};

void Di_Orientamento(Lavoro& lavoro) {
  if (lavoro.orientamento_detto) return;
  lavoro.orientamento_detto = true;
  lavoro.programma.piattaforma.Messaggio("la stampante non è orientata in verticale"_t);
}

// Draws the document, or lays down its text pages to be written.
void Stendi(Lavoro& lavoro, TipoFattura tipo, const Voce_Fattura& voce) {
  Programma& programma = lavoro.programma;
  const Scelte_Stampa& scelte = lavoro.stampa.scelte;
  const Documento_Fattura documento = PreparaDocumento(programma, tipo, voce);
  if (documento.voci.empty()) return;  // sales of price zero only
  const auto avanzamento = [&](const Testo& titolo) { Mostra_Titolo(programma, lavoro.stampa, titolo); };
  const Tracciato_Fattura tracciato =
      ScegliTracciato(tipo, scelte, Profilo_Ditta(programma.preferenze.Codice_Commissionario));
  if (tracciato != Tracciato_Fattura::Pagine_Testo) {
    if (!StampaGrafica(programma, documento, tracciato, scelte.copie, avanzamento)) Di_Orientamento(lavoro);
    return;
  }
  auto pagine = PagineDocumento(programma, documento, avanzamento);
  auto& lista = tipo == TipoFattura::Fattura ? lavoro.ListaFatture : lavoro.ListaNote;
  lista.push_back(Unisci_Percorso(lavoro.cartella, pagine.front().nome));
  for (File_Documento& pagina : pagine) lavoro.file.push_back(std::move(pagina));
}

void Di_Errore_File(const Programma& programma, const Esito_File& esito, Vista cosa, Vista e_poi) {
  programma.piattaforma.Messaggio(
      Unisci_Righe({cosa, "Errore " + std::to_string(esito.errore) + ": " + Testo_Errore(esito.errore),
                    Testo_Percorso(esito.file), e_poi}));
}

void Di_Errore_Documenti(const Programma& programma, const Esito_File& esito) {
  const Vista prima = esito.rimesso
                          ? "I documenti della stampa precedente sono rimasti come erano."
                          : "Non tutti i documenti della stampa precedente si sono potuti rimettere.";
  Di_Errore_File(programma, esito, "I documenti non sono stati scritti.", prima);
}

// The day's files and report go; false when one of them couldn't (told).
bool Cancella_Tutto(const Programma& programma, const Percorso& cartella) {
  Esito_File esito = CancellaFile(programma.disco, cartella, ModelloTutti);
  const Percorso report = PercorsoReport(programma);
  const int errore = programma.disco.Cancella(report);
  if (esito.errore == 0 && errore != 0 && errore != ENOENT && errore != ENOTDIR)
    esito = {errore, report, true};
  if (esito.errore != 0)
    Di_Errore_File(programma, esito, "I documenti di prima non si possono cancellare.",
                   "Controllare la cartella e ripetere.");
  return esito.errore == 0;
}

// False when they couldn't be written (told): then all is as it was.
bool Scrivi_Documenti(Lavoro& lavoro) {
  const Programma& programma = lavoro.programma;
  const Esito_File esito = SostituisciDocumenti(programma.disco, lavoro.cartella, lavoro.file);
  if (esito.errore != 0) {
    Di_Errore_Documenti(programma, esito);
    return false;
  }
  // what it told of is gone; a report that stays is written over
  programma.disco.Cancella(PercorsoReport(programma));
  return true;
}

bool Scrivi_Reports(const Programma& programma) {
  for (const TipoFattura tipo : {TipoFattura::Fattura, TipoFattura::Nota}) {
    const Esito_File esito = ScriviReport(programma, tipo);
    if (esito.errore == 0) continue;
    Di_Errore_File(programma, esito, "Il report non è stato scritto."_t, "I documenti sono stati scritti.");
    return false;
  }
  return true;
}

void Stampa_Grande(const Lavoro& lavoro, const std::vector<Percorso>& lista, TipoFattura tipo) {
  Dispositivo(lavoro.programma).Orientation(Orizzontale);
  Due_Pause(lavoro.programma);
  for (const Percorso& nome : lista) StampaFileTesto(lavoro.programma, nome, tipo);
}

// Documents, report and paper; false when something stopped it.
bool Esegui(Programma& programma, Stampa_Fatture& stampa) {
  Lavoro lavoro{programma, stampa, Cartella_Fatture(programma), {}, {}, {}};
  if (!programma.disco.Esiste_Cartella(lavoro.cartella)) return false;  // told
  const bool grafica = Quante_Grafiche(stampa.scelte) > 0;
  Mostra_Titolo(programma, stampa, "Cancellazione Fatture e Transazioni di oggi...");
  // Text pages take the place of the old ones once all of them are safe; drawn ones leave no file.
  if (grafica && !Cancella_Tutto(programma, lavoro.cartella)) return false;
  Mostra_Titolo(programma, stampa, "Controlo numerazione....");
  programma.preferenze.CittaCV = Pulito(stampa.Text2);
  if (!stampa.note.empty() && !NoteStampabili(programma, stampa.note)) {
    // a run that is refused here has already taken away what was there
    if (!grafica) Cancella_Tutto(programma, lavoro.cartella);
    return false;
  }
  for (const Voce_Fattura& nota : stampa.note) Stendi(lavoro, TipoFattura::Nota, nota);
  if (!stampa.fatture.empty() && stampa.scelte.Personalizzata) {
    stampa.scelte.Paginax2 = false;
    stampa.scelte.Stampale = true;
  }
  for (const Voce_Fattura& fattura : stampa.fatture) Stendi(lavoro, TipoFattura::Fattura, fattura);
  if (!grafica && !Scrivi_Documenti(lavoro)) return false;
  if (stampa.scelte.Stampale && !stampa.scelte.Paginax2 && !lavoro.ListaFatture.empty())
    Stampa_Grande(lavoro, lavoro.ListaFatture, TipoFattura::Fattura);
  Mostra_Titolo(programma, stampa, "Prepara i report...");
  const bool scritti = Scrivi_Reports(programma);
  Mostra_Titolo(programma, stampa, "Prepara file transazioni con vet_report");
  if (stampa.transazioni) stampa.transazioni(programma);
  if (stampa.scelte.Paginax2) {
    StampaDuePerFoglio(programma, lavoro.ListaFatture, TipoFattura::Fattura);
    StampaDuePerFoglio(programma, lavoro.ListaNote, TipoFattura::Nota);
  }
  return scritti;
}

// The document to its files, and to the printer for each copy.
bool Stampa_Una(Programma& programma, Stampa_Fatture& stampa, TipoFattura tipo, const Voce_Fattura& voce) {
  const bool numerata =
      tipo == TipoFattura::Fattura ? FatturaStampabile(programma, voce) : NotaStampabile(programma, voce);
  if (!numerata) return false;
  Lavoro lavoro{programma, stampa, CartellaGiornoFatture(programma), {}, {}, {}};
  programma.preferenze.CittaCV = Pulito(stampa.Text2);
  Stendi(lavoro, tipo, voce);
  if (lavoro.file.empty()) return true;
  if (!programma.disco.Esiste_Cartella(Cartella_Fatture(programma))) return false;  // told
  const Esito_File esito = ScriviPagineTesto(programma, lavoro.cartella, lavoro.file);
  if (esito.errore != 0) {
    Di_Errore_File(programma, esito, "Il documento non è stato scritto."_t,
                   "Controllare il disco e ripetere.");
    return false;
  }
  const auto& lista = tipo == TipoFattura::Fattura ? lavoro.ListaFatture : lavoro.ListaNote;
  for (int copia = 0; stampa.scelte.Stampale && copia < stampa.scelte.copie; ++copia)
    Stampa_Grande(lavoro, lista, tipo);
  return true;
}

void Mostra_Cartella(const Programma& programma, const Percorso& cartella) {
  if (programma.disco.Esiste_Cartella(cartella))
    programma.piattaforma.Apri_Con_Desktop(programma.disco.Trova(cartella));
  else
    programma.piattaforma.Messaggio(Unisci_Righe({"la cartella", Testo_Percorso(cartella), "non siste..."}));
}

void Scegli_Orientamento(const Programma& programma, bool verticale) {
  Dispositivo(programma).Orientation(verticale ? Verticale : Orizzontale);
}

}  // namespace

Testo ConfermaFatNa(const Scelte_Stampa& scelte, Vista orientamento) {
  constexpr Vista in_lista = "la stampa avviene nell'ordine che si vede in lista.";
  Testo cosa;
  if (Quante_Grafiche(scelte) > 0)
    cosa = Unisci_Righe({"Stampa tutte le fatture e note di accredito personalizzate ", in_lista});
  else if (!scelte.Stampale)
    cosa = Unisci_Righe({"Salva su disco le fatture (un file per pagina) ordinate per codice cliente",
                         "per i clienti (e casellario)."});
  else if (scelte.Paginax2)
    cosa = Unisci_Righe({"Stampa (sulla stampante) ed esporta tutte le fatture e le note di credito",
                         "Stampa due fatture per pagina (in verticale) ordinate per numero di fattura",
                         "per ARCHIVIAZIONE."});
  else
    cosa = Unisci_Righe({"Stampa (sulla stampante) ed esporta tutte le fatture e le note di credito",
                         in_lista, "Stampa una fatture per pagina (in orizzontale) "});
  return "\n\n" + Testo(orientamento) + "\n\n" +
         Unisci_Righe({cosa, "i dati devono essere giusti.", "OK per continuare..."});
}

bool StampaFatNa(Programma& programma, Stampa_Fatture& stampa) {
  Scelte_Stampa& scelte = stampa.scelte;
  if (stampa.note.empty() && stampa.fatture.empty()) {
    programma.piattaforma.Messaggio("nulla da fare...");
    return false;
  }
  if (!scelte.Tutte) {
    scelte.Paginax2 = false;
    programma.piattaforma.Messaggio("per stampare un documento alla volta fare doppio click sulla lista...");
    return false;
  }
  if (!ControllaFatture(programma, stampa.fatture)) return false;
  if (Quante_Grafiche(scelte) == 0) scelte.Completa = false;
  if (!ControllaNote(programma, stampa.note)) return false;
  if (Quante_Grafiche(scelte) == 1) {
    scelte.Paginax2 = false;
    scelte.Stampale = true;
  }
  Scegli_Orientamento(programma, Quante_Grafiche(scelte) == 1 || scelte.Paginax2);
  const Testo conferma = ConfermaFatNa(scelte, OrientamentoStampante(Dispositivo(programma)));
  if (!programma.piattaforma.Domanda(conferma)) return false;
  {
    const Schermo_Fermo fermo(programma, stampa);
    const bool fatto = Esegui(programma, stampa);
    programma.Tabella_Modificata = true;  // invoices leave their numbers in the rows
    if (!fatto) {
      Mostra_Titolo(programma, stampa, "Fatturazione");
      return false;
    }
  }
  Mostra_Titolo(programma, stampa, "Fatturazione");
  programma.piattaforma.Messaggio("quanto richiesto è stato fatto...."_t);
  return true;
}

bool StampaVoce(Programma& programma, Stampa_Fatture& stampa, TipoFattura tipo, const Voce_Fattura& voce) {
  Scelte_Stampa& scelte = stampa.scelte;
  if (!scelte.Stampale && Quante_Grafiche(scelte) == 0 && !scelte.Completa) {
    programma.piattaforma.Apri_Con_Desktop(Cartella_Fatture(programma));
    return true;
  }
  scelte.Tutte = false;
  scelte.Paginax2 = false;
  Scegli_Orientamento(programma, Quante_Grafiche(scelte) == 1);
  const Vista domanda = tipo == TipoFattura::Fattura ? "OK per stampare questa fattura ..."
                                                     : "OK per stampare questa nota di credito ...";
  if (!programma.piattaforma.Domanda(
          Unisci_Righe({domanda, OrientamentoStampante(Dispositivo(programma)), "OK per continuare..."})))
    return false;
  {
    const Schermo_Fermo fermo(programma, stampa);
    if (!Stampa_Una(programma, stampa, tipo, voce)) return false;
  }
  Mostra_Titolo(programma, stampa, "Fatturazione");
  programma.piattaforma.Messaggio("Pronto per nuova operazione....");
  return true;
}

bool StampaReport(Programma& programma, Stampa_Fatture& stampa) {
  Scelte_Stampa& scelte = stampa.scelte;
  scelte.Completa = false;
  scelte.Stampale = false;
  scelte.Tutte = true;
  scelte.Paginax2 = false;
  // Drawn documents would go to the printer and leave no file to report on: the run goes without them.
  const bool personalizzata = std::exchange(scelte.Personalizzata, false);
  const bool alternativa = std::exchange(scelte.Check1, false);
  const bool fatto = StampaFatNa(programma, stampa);
  scelte.Personalizzata = personalizzata;
  scelte.Check1 = alternativa;
  if (programma.disco.Esiste_Cartella(CartellaReport(programma)))
    programma.piattaforma.Apri_Con_Desktop(programma.disco.Trova(CartellaReport(programma)));
  return fatto;
}

Ordine_Archivio CambiaArchivio(Scelte_Stampa& scelte) {
  const bool gia_archivio = scelte.Stampale && scelte.Tutte && scelte.Paginax2;
  scelte.Tutte = true;
  scelte.Stampale = scelte.Paginax2 = !gia_archivio;
  if (gia_archivio) return {ColonnaFatture::Codice, "x Clienti"};
  return {ColonnaFatture::Numero, "Archivio"};
}

void MostraTransazioni(Programma& programma) { Mostra_Cartella(programma, CartellaTransazioni(programma)); }

void MostraFatture(Programma& programma) { Mostra_Cartella(programma, CartellaGiornoFatture(programma)); }

void MostraReport(Programma& programma) {
  const Percorso report = PercorsoReport(programma);
  if (programma.disco.Esiste_File(report))
    programma.piattaforma.Apri_Con_Desktop(programma.disco.Trova(report));
  else
    programma.piattaforma.Messaggio("non esiste....");
}

void MostraFormatoSemplice(Programma& programma) {
  programma.piattaforma.Messaggio(
      Unisci_Righe({"Formato del file .txt con la lista delle transazioni.", "campo  :  contenuto",
                    "1 : numero fattura", "2 : data=data Fattura", "3 : IBAN Cliente",
                    "4 : importo da accreditare moltiplicato per 100 (senza separatore decimale)",
                    "5 : IBAN commmissionario beneficiario",
                    "il file si trova temporaneamente nella cartella .\\xbanca32"}),
      Icona::Informazione);
}

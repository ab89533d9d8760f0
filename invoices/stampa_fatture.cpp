#include "invoices/stampa_fatture.h"

#include <algorithm>
#include <cerrno>
#include <initializer_list>
#include <utility>

#include "core/corsa.h"
#include "core/giorno.h"
#include "core/impegno.h"
#include "invoices/file_fatture.h"
#include "invoices/lear.h"
#include "invoices/pagine_grafiche.h"
#include "invoices/pagine_testo.h"
#include "invoices/rapporto.h"
#include "invoices/transazioni.h"
#include "printing/pagina.h"

namespace {

constexpr Parole_Corsa documenti_interrotti{"Stampa interrotta", "documento", "documenti"};
constexpr std::size_t pagine_dette = 5;  // of those missing on paper; more of them are only counted
constexpr Vista rimasti = "I documenti della stampa precedente sono rimasti come erano.";

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

// Documents on their way to files or to the printer.
struct Lavoro {
  Programma& programma;
  Stampa_Fatture& stampa;
  Percorso cartella;
  std::vector<File_Documento> file = {};                    // to be written
  std::vector<Percorso> ListaFatture = {}, ListaNote = {};  // first pages, in list order
  std::vector<Documento_Fattura> spediti = {};  // of a carrier's run: drawn and filed once texts are safe
  Testo ultimo_cliente = {};                    // code of the one looked up last
  Pagine_Mancate mancate = {};                  // on paper
  bool orientamento_detto = false;              // once in a run is enough
};

void Di_Orientamento(Lavoro& lavoro) {
  if (lavoro.orientamento_detto) return;
  lavoro.orientamento_detto = true;
  lavoro.programma.piattaforma.Messaggio("la stampante non è orientata in verticale"_t);
}

Tracciato_Fattura Tracciato_Di(const Lavoro& lavoro, TipoFattura tipo) {
  if (lavoro.stampa.spedizione) return Tracciato_Fattura::Vettore;
  return ScegliTracciato(tipo, lavoro.stampa.scelte,
                         Profilo_Ditta(lavoro.programma.preferenze.Codice_Commissionario));
}

void Disegna(Lavoro& lavoro, const Documento_Fattura& documento) {
  const auto avanzamento = [&](const Testo& titolo) {
    Mostra_Titolo(lavoro.programma, lavoro.stampa, titolo);
  };
  if (!StampaGrafica(lavoro.programma, documento, Tracciato_Di(lavoro, documento.tipo),
                     lavoro.stampa.scelte.copie, avanzamento))
    Di_Orientamento(lavoro);
}

// Lays down the document's text pages, to be written.
void Scrivi_Testo(Lavoro& lavoro, const Documento_Fattura& documento) {
  auto pagine = PagineDocumento(lavoro.programma, documento, [&](const Testo& titolo) {
    Mostra_Titolo(lavoro.programma, lavoro.stampa, titolo);
  });
  auto& lista = documento.tipo == TipoFattura::Fattura ? lavoro.ListaFatture : lavoro.ListaNote;
  lista.push_back(Unisci_Percorso(lavoro.cartella, pagine.front().nome));
  for (File_Documento& pagina : pagine) lavoro.file.push_back(std::move(pagina));
}

// The document with its expenses and its carrier, where goods are shipped. What a note gives back was
// shipped with its invoice.
Documento_Fattura Prepara(Lavoro& lavoro, TipoFattura tipo, const Voce_Fattura& voce) {
  Documento_Fattura documento = PreparaDocumento(lavoro.programma, tipo, voce);
  lavoro.ultimo_cliente = documento.cliente.Codice;
  const auto& spedizione = lavoro.stampa.spedizione;
  if (!spedizione || tipo == TipoFattura::Nota) return documento;
  AggiungiSpese(documento.importi, spedizione->spese, spedizione->aliquota);
  documento.trasporto = spedizione->trasporto;
  return documento;
}

// Draws the document or lays down its text pages; in a carrier's run the pages first. True when it is drawn.
bool Stendi(Lavoro& lavoro, TipoFattura tipo, const Voce_Fattura& voce) {
  Documento_Fattura documento = Prepara(lavoro, tipo, voce);
  if (documento.voci.empty()) return false;  // sales of price zero only
  const bool corsa_vettore = lavoro.stampa.spedizione && lavoro.stampa.scelte.Tutte;
  if (!corsa_vettore && Tracciato_Di(lavoro, tipo) != Tracciato_Fattura::Pagine_Testo) {
    Disegna(lavoro, documento);
    return true;
  }
  Scrivi_Testo(lavoro, documento);
  if (corsa_vettore) lavoro.spediti.push_back(std::move(documento));
  return false;
}

// False once the operator has stopped the run.
bool Stendi_Tutti(Lavoro& lavoro, Corsa& corsa, TipoFattura tipo, const TabellaDocumenti& documenti) {
  for (const Voce_Fattura& voce : documenti) {
    if (!corsa.Avanti()) return false;
    if (Stendi(lavoro, tipo, voce)) corsa.Fatta();
  }
  return true;
}

void Di_Errore_File(const Programma& programma, const Esito_File& esito, Vista cosa, Vista e_poi) {
  programma.piattaforma.Messaggio(
      Unisci_Righe({cosa, "Errore " + std::to_string(esito.errore) + ": " + Testo_Errore(esito.errore),
                    Testo_Percorso(esito.file), e_poi}));
}

void Di_Errore_Documenti(const Programma& programma, const Esito_File& esito) {
  const Vista prima =
      esito.rimesso ? rimasti : "Non tutti i documenti della stampa precedente si sono potuti rimettere.";
  Di_Errore_File(programma, esito, "I documenti non sono stati scritti.", prima);
}

// A sheet that doesn't come out is missed by nobody until the customer asks for it. False when some are
// missing (told).
bool Di_Pagine_Mancate(const Lavoro& lavoro) {
  const Pagine_Mancate& mancate = lavoro.mancate;
  if (mancate.empty()) return true;
  const Testo cosa = mancate.size() == 1 ? "Una pagina non si è potuta rileggere: sulla carta manca."_t
                                         : std::to_string(mancate.size()) +
                                               " pagine non si sono potute rileggere: sulla carta mancano.";
  Testo altre;
  for (std::size_t i = 1; i < std::min(mancate.size(), pagine_dette); ++i)
    altre.append(Testo_Percorso(mancate[i].file)).append("\n");
  if (mancate.size() > pagine_dette) altre += "...\n";
  Di_Errore_File(lavoro.programma, mancate.front(), cosa,
                 altre + "Controllare il disco e ripetere la stampa.");
  return false;
}

void Aggiungi_Mancate(Lavoro& lavoro, const Pagine_Mancate& altre) {
  lavoro.mancate.insert(lavoro.mancate.end(), altre.begin(), altre.end());
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

bool Scrivi_Reports(const Programma& programma, const Stampa_Fatture& stampa) {
  const auto avanzamento = [&](const Testo& titolo) { Mostra_Titolo(programma, stampa, titolo); };
  for (const TipoFattura tipo : {TipoFattura::Fattura, TipoFattura::Nota}) {
    const Esito_File esito = ScriviReport(programma, tipo, avanzamento);
    if (esito.errore == 0) continue;
    Di_Errore_File(programma, esito, "Il report non è stato scritto."_t, "I documenti sono stati scritti.");
    return false;
  }
  return true;
}

// The bank's transactions, then the accountant's records; a failure of one doesn't keep the other back.
bool Scrivi_Registri(const Lavoro& lavoro) {
  const Programma& programma = lavoro.programma;
  const auto detto = [&](const Esito_File& esito, Vista cosa, Vista e_poi) {
    if (esito.errore != 0) Di_Errore_File(programma, esito, cosa, e_poi);
    return esito.errore == 0;
  };
  constexpr Vista come_erano = "Quello che c'era prima resta. Controllare il disco e ripetere la stampa.";
  bool scritti =
      detto(ScriviTransazioni(programma, lavoro.ultimo_cliente,
                              [&](const Testo& titolo) { Mostra_Titolo(programma, lavoro.stampa, titolo); }),
            "Le transazioni non sono state scritte.", come_erano);
  if (scritti)
    scritti = detto(CancellaAltreTransazioni(programma), "Le transazioni di prima non si possono cancellare.",
                    "Cancellarle dalla cartella: alla banca va un giorno solo.");
  const Esito_File lear =
      programma.preferenze.Flag_Lear ? ScriviLear(programma, lavoro.spediti) : CancellaLear(programma);
  return detto(lear, "I file Lear non sono stati scritti.",
               lear.rimesso ? come_erano : "Non tutti quelli di prima si sono potuti rimettere.") &&
         scritti;
}

// A run that is refused has already taken away what was there of the day.
void Cancella_Rifiutata(const Lavoro& lavoro) {
  Cancella_Tutto(lavoro.programma, lavoro.cartella);
  if (!lavoro.stampa.spedizione) return;
  const Esito_File lear = CancellaLear(lavoro.programma);
  if (lear.errore != 0)
    Di_Errore_File(lavoro.programma, lear, "I file Lear di prima non si possono cancellare.",
                   "Controllare la cartella e ripetere.");
}

void Gira_In_Orizzontale(const Programma& programma) {
  Dispositivo(programma).Orientation(Orizzontale);
  Due_Pause(programma);
}

void Stampa_Grandi(Lavoro& lavoro, Corsa& corsa) {
  Gira_In_Orizzontale(lavoro.programma);
  for (const Percorso& nome : lavoro.ListaFatture) {
    if (!corsa.Avanti()) return;
    Aggiungi_Mancate(lavoro, StampaFileTesto(lavoro.programma, nome, TipoFattura::Fattura));
    corsa.Fatta();
  }
}

void Disegna_Spediti(Lavoro& lavoro, Corsa& corsa) {
  for (const Documento_Fattura& documento : lavoro.spediti) {
    if (!corsa.Avanti()) return;
    Disegna(lavoro, documento);
    corsa.Fatta();
  }
}

// How many documents the run sends to paper once their texts are safe.
std::size_t Quanti_Su_Carta(const Lavoro& lavoro) {
  if (lavoro.stampa.spedizione) return lavoro.spediti.size();
  const std::size_t note = lavoro.stampa.scelte.Paginax2 ? lavoro.ListaNote.size() : 0;
  return lavoro.ListaFatture.size() + note;
}

// The paper of a run whose texts are safe.
void Stampa_Corsa(Lavoro& lavoro, Corsa& corsa) {
  const Scelte_Stampa& scelte = lavoro.stampa.scelte;
  if (!scelte.Stampale) return;
  Disegna_Spediti(lavoro, corsa);
  if (!lavoro.stampa.spedizione && !scelte.Paginax2 && !lavoro.ListaFatture.empty())
    Stampa_Grandi(lavoro, corsa);
}

// Documents, report and paper; false when something ended it. `interrotta` tells what was done until Esc:
// before the texts are written those of the last run stay, afterwards only paper is missing.
bool Esegui(Programma& programma, Stampa_Fatture& stampa, Testo& interrotta) {
  Lavoro lavoro{.programma = programma, .stampa = stampa, .cartella = CartellaGiornoFatture(programma)};
  if (!Crea_Cartella(programma, lavoro.cartella)) return false;  // told
  const bool grafica = !stampa.spedizione && Quante_Grafiche(stampa.scelte) > 0;
  Mostra_Titolo(programma, stampa, "Cancellazione Fatture e Transazioni di oggi...");
  // Text pages take the place of the old ones once all of them are safe; drawn ones leave no file.
  if (grafica && !Cancella_Tutto(programma, lavoro.cartella)) return false;
  Mostra_Titolo(programma, stampa, "Controlo numerazione....");
  programma.preferenze.CittaCV = Pulito(stampa.Text2);
  if (!stampa.note.empty() && !NoteStampabili(programma, stampa.note)) {
    if (!grafica) Cancella_Rifiutata(lavoro);
    return false;
  }
  Corsa stesura(programma.piattaforma, stampa.note.size() + stampa.fatture.size());
  bool intera = Stendi_Tutti(lavoro, stesura, TipoFattura::Nota, stampa.note);
  if (!stampa.fatture.empty() && stampa.scelte.Personalizzata) {
    stampa.scelte.Paginax2 = false;
    stampa.scelte.Stampale = true;
  }
  intera = intera && Stendi_Tutti(lavoro, stesura, TipoFattura::Fattura, stampa.fatture);
  if (!intera) {
    interrotta = stesura.Testo_Fermata(documenti_interrotti);
    if (!grafica) interrotta = Unisci_Righe({interrotta, rimasti});
    return false;
  }
  if (!grafica && !Scrivi_Documenti(lavoro)) return false;
  Corsa carta(programma.piattaforma, Quanti_Su_Carta(lavoro));
  Stampa_Corsa(lavoro, carta);
  Mostra_Titolo(programma, stampa, "Prepara i report...");
  bool scritti = Scrivi_Reports(programma, stampa);
  Mostra_Titolo(programma, stampa, "Prepara file transazioni con vet_report");
  if (stampa.spedizione) scritti = Scrivi_Registri(lavoro) && scritti;
  if (stampa.scelte.Paginax2) {
    Aggiungi_Mancate(lavoro, StampaDuePerFoglio(programma, lavoro.ListaFatture, TipoFattura::Fattura, carta));
    Aggiungi_Mancate(lavoro, StampaDuePerFoglio(programma, lavoro.ListaNote, TipoFattura::Nota, carta));
  }
  if (carta.Fermata())
    interrotta =
        Unisci_Righe({carta.Testo_Fermata(documenti_interrotti), "Su disco i documenti sono stati scritti."});
  return Di_Pagine_Mancate(lavoro) && scritti;
}

// The document to its files, and to the printer for each copy.
bool Stampa_Una(Programma& programma, Stampa_Fatture& stampa, TipoFattura tipo, const Voce_Fattura& voce) {
  const bool numerata =
      tipo == TipoFattura::Fattura ? FatturaStampabile(programma, voce) : NotaStampabile(programma, voce);
  if (!numerata) return false;
  Lavoro lavoro{.programma = programma, .stampa = stampa, .cartella = CartellaGiornoFatture(programma)};
  programma.preferenze.CittaCV = Pulito(stampa.Text2);
  Stendi(lavoro, tipo, voce);
  if (lavoro.file.empty()) return true;
  if (!Crea_Cartella(programma, lavoro.cartella)) return false;  // told
  const Esito_File esito = ScriviPagineTesto(programma, lavoro.cartella, lavoro.file);
  if (esito.errore != 0) {
    Di_Errore_File(programma, esito, "Il documento non è stato scritto."_t,
                   "Controllare il disco e ripetere.");
    return false;
  }
  const auto& lista = tipo == TipoFattura::Fattura ? lavoro.ListaFatture : lavoro.ListaNote;
  const int copie = stampa.scelte.Stampale ? stampa.scelte.copie : 0;
  for (int copia = 0; copia < copie && lavoro.mancate.empty(); ++copia) {
    Gira_In_Orizzontale(programma);
    for (const Percorso& nome : lista) Aggiungi_Mancate(lavoro, StampaFileTesto(programma, nome, tipo));
  }
  return Di_Pagine_Mancate(lavoro);
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

Testo ConfermaVettore() {
  return Unisci_Righe({"Stampa tutte le fatture e note di accredito personalizzate ",
                       "la stampa avviene nell'ordine che si vede in lista.", "i dati devono essere giusti.",
                       "OK per continuare..."});
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
  const bool disegna = stampa.spedizione && scelte.Stampale;
  Scegli_Orientamento(programma, disegna || Quante_Grafiche(scelte) == 1 || scelte.Paginax2);
  const Testo conferma =
      disegna ? ConfermaVettore() : ConfermaFatNa(scelte, OrientamentoStampante(Dispositivo(programma)));
  if (!programma.piattaforma.Domanda(conferma)) return false;
  Testo interrotta;
  bool fatto = false;
  {
    const Clessidra clessidra(programma.piattaforma);
    fatto = Esegui(programma, stampa, interrotta);
    programma.Tabella_Modificata = true;  // invoices leave their numbers in the rows
  }
  Mostra_Titolo(programma, stampa, "Fatturazione");
  if (!interrotta.empty()) programma.piattaforma.Messaggio(interrotta, Icona::Informazione);
  if (!fatto || !interrotta.empty()) return false;
  programma.piattaforma.Messaggio("quanto richiesto è stato fatto...."_t);
  return true;
}

bool StampaVoce(Programma& programma, Stampa_Fatture& stampa, TipoFattura tipo, const Voce_Fattura& voce) {
  Scelte_Stampa& scelte = stampa.scelte;
  const bool disegna = stampa.spedizione.has_value();
  if (!disegna && !scelte.Stampale && Quante_Grafiche(scelte) == 0 && !scelte.Completa) {
    programma.piattaforma.Apri_Con_Desktop(Cartella_Fatture(programma));
    return true;
  }
  scelte.Tutte = false;
  scelte.Paginax2 = false;
  Scegli_Orientamento(programma, disegna || Quante_Grafiche(scelte) == 1);
  const Vista domanda = tipo == TipoFattura::Fattura ? "OK per stampare questa fattura ..."
                                                     : "OK per stampare questa nota di credito ...";
  if (!programma.piattaforma.Domanda(
          Unisci_Righe({domanda, OrientamentoStampante(Dispositivo(programma)), "OK per continuare..."})))
    return false;
  {
    const Clessidra clessidra(programma.piattaforma);
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

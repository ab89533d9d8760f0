#include "start/avvio.h"

#include <cerrno>

#include "core/giorno.h"
#include "core/numeri.h"
#include "lists/genera.h"
#include "lists/liste.h"
#include "start/strumenti.h"

namespace {

constexpr Vista File_Ini_Attuale = "Velmara_2020.ini", File_Ini_Precedente = "Velmara_32.ini";
constexpr Vista Ragione_Attuale = "_2020_RAGIONE.txt", Ragione_Precedente = "RAGIONE.txt";
constexpr Vista Specie_Precedente = "_Descri32.txt";
constexpr Vista Generatore = "Velmara_2020_Descri.exe";

struct Conversione {
  Vista vecchio, nuovo;
};
constexpr Conversione Conversioni[] = {{Specie_Precedente, nomi_file::Specie},
                                       {"_Barca.txt", nomi_file::Barche},
                                       {"ncv.txt", "_2020_ncv.txt"},
                                       {"_Vettori.txt", nomi_file::Vettori},
                                       {"_Fornitori.txt", nomi_file::Fornitori}};

// The question names three lists; the seven below are the ones that change with the codes of March 2020.
constexpr Vista Liste_Da_Rinnovare[] = {nomi_file::Pelmoro, nomi_file::Stati,     nomi_file::Presentazioni,
                                        nomi_file::Zone,    nomi_file::Pezzature, nomi_file::Provenienze,
                                        nomi_file::Metodi};
constexpr Data Fine_Rinnovo{2020, 3, 3};

Percorso Nella_Cartella(const Programma& programma, Vista nome) {
  return Unisci_Percorso(programma.Cartella_Dati, nome);
}

// True too where the disk doesn't say: nothing is made anew then.
bool C_E(const Programma& programma, Vista nome) {
  return !programma.disco.Manca_File(Nella_Cartella(programma, nome));
}

// Tried with a file of its own, since a folder's rights say little on shares, sticks and read-only mounts.
int Errore_Scrittura_Cartella(const Programma& programma) {
  const Percorso prova = Nella_Cartella(programma, ".velmara_scrittura");
  programma.disco.Cancella(prova);  // whatever stands there: a link would be refused, with a wrong reason
  const int errore = programma.disco.Sovrascrivi(prova, "\r\n");
  if (errore == 0) programma.disco.Cancella(prova);
  return errore;
}

// What a save leaves behind that a power cut or a crash has stopped: in the firm's folder and in those right
// inside, where nobody else writes while the lock is held.
void Togli_Resti(const Programma& programma) {
  const Disco& disco = programma.disco;
  disco.Togli_Provvisori(programma.Cartella_Dati);
  // Without the list of folders what lies in them stays: it did no harm so far.
  for (const Percorso& nome :
       disco.Elenca_Cartelle(programma.Cartella_Dati).value_or(std::vector<Percorso>()))
    disco.Togli_Provvisori(programma.Cartella_Dati / nome);
}

bool Controlla_Scrittura(Programma& programma) {
  const int errore = Errore_Scrittura_Cartella(programma);
  programma.Errore_Cartella = errore;
  if (errore == 0) return true;
  programma.piattaforma.Messaggio("Nella cartella " + Testo_Percorso(programma.Cartella_Dati) +
                                  " non si può scrivere: i dati non verranno salvati\n"_t +
                                  Testo_Errore(errore));
  return false;
}

void Messaggio_Non_Scritto(Programma& programma, const Percorso& file, int errore) {
  programma.piattaforma.Messaggio("Non si può scrivere il file\n"_t + Testo_Percorso(file) + "\n" +
                                  Testo_Errore(errore));
}

void Messaggio_Generato(Programma& programma, const Percorso& file) {
  programma.piattaforma.Messaggio("Generato il file " + Testo_Percorso(file) + "\nper la versione 2020..",
                                  Icona::Informazione);
}

void Fissa_Valori(Programma& programma, const Percorso& cartella) {
  programma.Vet_Esclusi = {"Esclusi"};
  programma.Separatore_Decimale = programma.piattaforma.Separatore_Decimale();
  programma.Separatore_Altro = Altro_Separatore(programma.Separatore_Decimale);
  programma.Oggi = programma.piattaforma.Oggi();
  programma.Ieri_AAMMGG = Testo_Data(Giorno_Prima(programma.Oggi), "yymmdd");
  programma.Cartella_Dati = cartella;
  programma.File_Ini = Nella_Cartella(programma, File_Ini_Attuale);
}

// Whether the folder has neither _2020_RAGIONE.txt nor RAGIONE.txt.
bool Serve_Primo_Avvio(const Programma& programma) {
  return !C_E(programma, Ragione_Attuale) && !C_E(programma, Ragione_Precedente);
}

void Prepara_Impostazioni(Programma& programma, bool scrivibile,
                          const std::function<std::optional<PrimoAvvio>()>& chiedi) {
  const Percorso precedente = Nella_Cartella(programma, File_Ini_Precedente);
  if (programma.disco.Manca_File(programma.File_Ini) && programma.disco.Esiste_File(precedente)) {
    const int errore = programma.disco.Copia(precedente, programma.File_Ini);
    if (errore != 0 && scrivibile) Messaggio_Non_Scritto(programma, programma.File_Ini, errore);
  }
  // Where nothing can be kept there is no sense in asking the firm's data.
  if (scrivibile && Serve_Primo_Avvio(programma))
    Scrivi_Primo_Avvio(programma, chiedi().value_or(PrimoAvvio{}));

  Leggi_Preferenze(programma);
  Limita_Per_Codice(programma);
  programma.preferenze.FlagColonneListaVoci = "NOTA";
}

void Copia_Specie_Precedente(Programma& programma) {
  if (C_E(programma, nomi_file::Specie)) return;
  const Percorso nuovo = Nella_Cartella(programma, nomi_file::Specie);
  programma.disco.Copia(Nella_Cartella(programma, Specie_Precedente), nuovo);
  Messaggio_Generato(programma, nuovo);  // also after a failed copy: the conversion that follows tells of it
}

void Rinnova_Liste(Programma& programma) {
  if (!(programma.Oggi < Fine_Rinnovo)) return;
  const Testo domanda =
      "OK per rinnovare le liste di:\nPezzature,\nAttrezzo di Pesca,\nProvenienza\n\n"
      "Questa domanda sarà ripetuta fino al 2 marzo compreso. Se lo si è già fatto almeno una volta dare Annnulla."_t;
  if (!programma.piattaforma.Domanda(domanda, Icona::Informazione)) return;
  for (const Vista nome : Liste_Da_Rinnovare) {
    programma.disco.Cancella(Nella_Cartella(programma, nome));
    programma.piattaforma.Ridipingi();
  }
}

void Leggi_Ragione(Programma& programma) {
  const Percorso file = Nella_Cartella(programma, Ragione_Attuale);
  int errore = 0;
  const Testo contenuto = programma.disco.Leggi_Testo(file, &errore).value_or(Testo());
  // Documents without the firm's name would go out unnoticed.
  if (errore != 0 && errore != ENOENT)
    programma.piattaforma.Messaggio(
        "L'intestazione della ditta non si può leggere: i documenti ne sono senza\n"_t +
        Testo_Percorso(file) + "\n" + Testo_Errore(errore));
  const std::vector<Vista> righe = Righe(contenuto);
  for (std::size_t i = 0; i < programma.Ragione.size(); ++i)
    programma.Ragione[i] = i < righe.size() ? Testo(righe[i]) : Testo();
}

void Scrivi_Predefiniti(Programma& programma) {
  if (!C_E(programma, nomi_file::Fornitori)) Scrivi_Fornitori_Predefiniti(programma);
  if (!C_E(programma, nomi_file::Vettori)) Scrivi_Vettori_Predefiniti(programma);
}

// Starts the list generator; where it is missing the program does its work itself. Then the program ends.
void Lancia_Generatore(Programma& programma) {
  // In a folder without write permission the generator would write nothing and start this program again, for
  // ever.
  const auto generatore = Trova_Programma(programma, Generatore);
  if (generatore && Errore_Scrittura_Cartella(programma) == 0 &&
      programma.piattaforma.Avvia_Programma(*generatore))
    return;
  Testo mancanti;
  for (const Lista_Generata& lista : Genera_Liste(programma))
    if (lista.errore != 0) mancanti += "\n" + lista.nome + ": " + Testo_Errore(lista.errore);
  if (!mancanti.empty())
    programma.piattaforma.Messaggio("Non si possono scrivere questi file in " +
                                    Testo_Percorso(programma.Cartella_Dati) + mancanti);
}

// Lists, letterhead, folders and last numbers; false when the program must end.
bool Prepara_File(Programma& programma, bool scrivibile) {
  if (!C_E(programma, nomi_file::Pelmoro)) {
    programma.piattaforma.Messaggio(
        "lancio il programma per la generazione delle liste...(Velmara_2020 viene chiuso)",
        Icona::Informazione);
    Lancia_Generatore(programma);
    return false;
  }
  Leggi_Pelmoro(programma);
  Converti_File(programma, Ragione_Precedente, Ragione_Attuale);
  Copia_Specie_Precedente(programma);
  Rinnova_Liste(programma);
  for (const auto& [vecchio, nuovo] : Conversioni)
    if (!Converti_File(programma, vecchio, nuovo)) return false;
  Scrivi_Predefiniti(programma);
  if (scrivibile)
    for (const Vista nome : {"XBanca", "PREDEF", "PREDEF_FOR"})
      Crea_Cartella(programma, Nella_Cartella(programma, nome));
  Leggi_Ultimi_Numeri(programma);
  Leggi_Ragione(programma);
  return true;
}

}  // namespace

EsitoAvvio Avvia(Programma& programma, const Percorso& cartella, Blocco_Cartella& blocco,
                 const std::function<std::optional<PrimoAvvio>()>& chiedi) {
  Piattaforma& piattaforma = programma.piattaforma;
  if (!blocco.Prendi(cartella)) {
    piattaforma.Messaggio(programma.Nome_Programma +
                          ".exe  gia' attivo...! (aprire un altro programma da una cartella diversa)");
    return EsitoAvvio::Fine;
  }
  piattaforma.Occupato(true);
  Fissa_Valori(programma, cartella);
  Togli_Resti(programma);
  const bool scrivibile = Controlla_Scrittura(programma);
  Prepara_Impostazioni(programma, scrivibile, chiedi);
  const bool pronto = Prepara_File(programma, scrivibile);
  piattaforma.Occupato(false);
  if (pronto) return EsitoAvvio::Pronto;
  blocco.Lascia();  // the list generator starts the program again
  return EsitoAvvio::Fine;
}

bool Converti_File(Programma& programma, Vista vecchio, Vista nuovo) {
  const Percorso destinazione = Nella_Cartella(programma, nuovo);
  int ignoto = 0;
  if (!programma.disco.Manca_File(destinazione, &ignoto)) {
    if (ignoto != 0) Messaggio_Non_Scritto(programma, destinazione, ignoto);
    return true;
  }
  if (C_E(programma, vecchio)) {
    const int errore = programma.disco.Copia(Nella_Cartella(programma, vecchio), destinazione);
    if (errore == 0)
      Messaggio_Generato(programma, destinazione);
    else
      Messaggio_Non_Scritto(programma, destinazione, errore);
    return true;
  }
  const Testo messaggio = "Ii file " + Testo(vecchio) + "\nnon esiste..";
  if (!Uguali(vecchio, Specie_Precedente)) {
    programma.piattaforma.Messaggio(messaggio);
    return true;
  }
  programma.piattaforma.Messaggio(messaggio + "\nimpossibile continuare");
  Lancia_Generatore(programma);
  return false;
}

bool Scrivi_Primo_Avvio(Programma& programma, const PrimoAvvio& dati) {
  Testo contenuto;
  for (const Testo& riga : dati.righe) contenuto.append(Senza_Separatori(riga)).append(FINE_RIGA);
  const Percorso file = Nella_Cartella(programma, Ragione_Attuale);
  const int errore = programma.disco.Sostituisci(file, contenuto);
  if (errore != 0) Messaggio_Non_Scritto(programma, file, errore);

  // A blank code leaves the default, a stall number that is none is asked again with the settings.
  const Testo codice = Testo(Pulito(Senza_Separatori(dati.codice)));
  const Testo posteggio = Testo(Pulito(Senza_Separatori(dati.posteggio)));
  std::vector<std::pair<Testo, Testo>> chiavi;
  if (!codice.empty()) chiavi.emplace_back("CodiceCOM", codice);
  if (Numero(posteggio, programma.Separatore_Decimale).value_or(0) > 0)
    chiavi.emplace_back("nposteggio", posteggio);
  const bool scritte = chiavi.empty() || Scrivi_Chiavi(programma, chiavi);
  if (!scritte)
    programma.piattaforma.Messaggio("Non si possono scrivere le impostazioni nel file\n" +
                                    Testo_Percorso(programma.File_Ini));
  return errore == 0 && scritte;
}

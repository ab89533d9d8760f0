#include "start/strumenti.h"

#include "core/profili.h"

std::optional<Percorso> Trova_Programma(const Programma& programma, Vista nome) {
  constexpr Vista estensione = ".exe";
  const Disco& disco = programma.disco;
  const Percorso esatto = Unisci_Percorso(programma.Cartella_Dati, nome);
  if (disco.Esiste_File(esatto)) return disco.Trova(esatto);
  if (!Uguali(Destra(nome, estensione.size()), estensione)) return std::nullopt;
  nome.remove_suffix(estensione.size());
  const Percorso senza = Unisci_Percorso(programma.Cartella_Dati, nome);
  if (disco.Esiste_File(senza)) return disco.Trova(senza);
  return std::nullopt;
}

bool Avvia_Strumento(Programma& programma, Vista nome, const std::vector<Testo>& argomenti) {
  const auto file = Trova_Programma(programma, nome);
  if (!file) {
    programma.piattaforma.Messaggio(Testo_Percorso(Unisci_Percorso(programma.Cartella_Dati, nome)) +
                                    "\nnon trovato...");
    return false;
  }
  if (programma.piattaforma.Avvia_Programma(*file, argomenti)) return true;
  programma.piattaforma.Messaggio(Testo_Percorso(*file) + "\nnon si avvia...");
  return false;
}

bool LanciaProgramma(Programma& programma, Vista nome, const std::vector<Testo>& argomenti) {
  if (!Avvia_Strumento(programma, nome, argomenti)) return false;
  programma.piattaforma.Termina();
  return true;
}

std::span<const Strumento> Strumenti() {
  const Testo chiuso = "(Velmara verrà chiuso)"_t;
  static const std::vector<Strumento> strumenti = {
      {"Command4", "AzzeraDisco.exe",
       "Questo programma cancella definitivamente i dati su disco fisso rendendoli irrecuperabili \n"
       "come richiesto dalla Legge sulla Privacy (richiede un certo tempo...)",
       true},
      {"Command6", "ContaConti.exe", {}},
      {"Command8", "CopiaDati.exe", {}},
      {"Command14", "StampaMulti.exe", "Stampa le fatture prodotte da Velmara....\n" + chiuso, true},
      {"Command15", "UnisciMese.exe", "Procedura per preparare il file dat da convertire per MIDA"},
      {"Command16", "CopiaFatture.exe",
       "Copia: \nfatture, \nnote di credito, \nnella chiavetta USB.\n"
       "La chiavetta USB va consegnata al Servizio di Stampa....\n" +
           chiuso,
       true},
  };
  return strumenti;
}

void UsaStrumento(Programma& programma, Vista bottone) {
  const bool lagomar = Profilo_Ditta(programma.preferenze.Codice_Commissionario) == Profilo::Lagomar;
  if (bottone == "Command6" && lagomar) return;  // that firm has no control of accounts
  for (const Strumento& strumento : Strumenti()) {
    if (strumento.bottone != bottone) continue;
    if (strumento.conferma && !programma.piattaforma.Domanda(strumento.avviso)) return;
    if (!strumento.conferma && !strumento.avviso.empty())
      programma.piattaforma.Messaggio(strumento.avviso, Icona::Informazione);
    LanciaProgramma(programma, strumento.programma);
    return;
  }
}

void ConvertiDati(Programma& programma) {
  constexpr Vista convertitore = "ConvertiDati.exe";
  Piattaforma& piattaforma = programma.piattaforma;
  const Disco& disco = programma.disco;
  const Percorso file = Unisci_Percorso(programma.Cartella_Dati, "ProgDati.txt");
  if (disco.Manca_File(file))
    if (const int errore = disco.Sostituisci(file, Testo(convertitore).append(FINE_RIGA)); errore != 0)
      return piattaforma.Messaggio(Testo_Percorso(file) + "\nnon si scrive: " + Testo_Errore(errore));
  int errore = 0;
  const auto contenuto = disco.Leggi_Testo(file, &errore);
  if (!contenuto)
    return piattaforma.Messaggio(Testo_Percorso(file) + "\nnon si legge: " + Testo_Errore(errore));
  const std::vector<Vista> righe = Righe(*contenuto);
  const Testo comando = righe.empty() ? Testo() : Testo(Pulito(righe.front()));
  if (!piattaforma.Domanda("lancia " + comando +
                           "\nConvertiDati.exe è il programma di conversione per MIDA"_t))
    return;
  // The line is a program's name, or a name and what it is started with.
  const auto blank = comando.find(' ');
  if (blank == Testo::npos || Trova_Programma(programma, comando)) {
    LanciaProgramma(programma, comando);
    return;
  }
  LanciaProgramma(programma, comando.substr(0, blank), {Testo(Pulito(Vista(comando).substr(blank)))});
}

void ApriFoglioDati(Programma& programma, const Percorso& file) {
  constexpr Vista foglio = "FoglioDati.exe";
  if (Trova_Programma(programma, foglio)) {
    Avvia_Strumento(programma, foglio, {Testo_Percorso(file)});
    return;
  }
  programma.piattaforma.Messaggio("programma " + Testo(foglio) + "\nnon trovato....\nvedere il file");
}
